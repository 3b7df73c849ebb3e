#pragma once
#include <QImage>
#include <QSize>
#include <array>
#include <string>

#include "core/Game.h"

namespace jv::ui {

// The four piece pictures ColPic, by draw code: 0 a defender, 1 an attacker,
// 2 a Home square, 3 the King. They come from the picture files the
// configuration names, from the program's folder, with their transparency.
class PiecePictures {
public:
    // Loads the pictures whose file names changed since the last call.
    void Load(const Game& g);

    // The picture of a draw code at the given size in pixels, scaled once per
    // size and kept.
    const QImage& Picture(int code, QSize size);

    // True when the picture of the code came from its file (not the fallback).
    bool Loaded(int code) const { return loaded_[Index(code)]; }

private:
    static int Index(int code) { return code < 0 ? 0 : (code > 3 ? 3 : code); }

    std::array<std::string, 4> paths_;
    std::array<QImage, 4> source_;
    std::array<QImage, 4> scaled_;
    std::array<bool, 4> loaded_{};
};

// Reads a picture file at its best size, keeping its alpha channel; a picture
// without one (a bitmap) takes its top-left pixel's colour as transparent.
// A null image when the file cannot be read.
QImage ReadPicture(const std::string& path);

// The picture drawn when a file cannot be read: a disc in the piece's colour.
QImage FallbackPicture(const QColor& colour);

}  // namespace jv::ui
