#pragma once
#include <QImage>

#include "core/Game.h"
#include "ui/PiecePictures.h"

namespace jv::ui {

// A small picture of n by n board squares drawn as the board draws them, in
// the game's colours, board style and piece pictures, with the piece of a
// draw code on every square (-1: none). The layout editor's palette and the
// options dialog's grid styles show these.
QImage SquareSample(const Game& g, PiecePictures& pictures, int squares, int drawCode, int pixels);

}  // namespace jv::ui
