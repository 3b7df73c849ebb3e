#pragma once
#include <QWidget>
#include <array>

#include "core/Game.h"
#include "ui/PiecePictures.h"

class QButtonGroup;

namespace jv::ui {

class PictureButton;

// The layout editor's palette, Picture2: beside the board at its height, one
// button for each kind the editor places (an attacker, a defender, the King,
// an empty square), each drawn as the board draws it. The chosen kind stays
// pressed; clicks on the board place it.
class EditorPalette : public QWidget {
    Q_OBJECT
public:
    explicit EditorPalette(const Game& game, QWidget* parent = nullptr);

    // The chosen kind: AttackerCode, DefenderCode, EditorKingCode or EmptyCode.
    int Kind() const { return kind_; }
    // Chooses a kind, as a click on its button does (Picture2_MouseUp).
    void Choose(int kind);

    // Draws the four kinds again in the board's present colours and pictures.
    void Paint();

    // The kinds, top to bottom.
    static constexpr std::array<int, 4> Kinds{AttackerCode, DefenderCode, 99, EmptyCode};

private:
    const Game& g_;
    PiecePictures pictures_;
    std::array<PictureButton*, 4> buttons_{};
    int kind_ = AttackerCode;
};

}  // namespace jv::ui
