#pragma once
#include <QPixmap>

namespace jv::ui {

// The message box's ten pictures, in the order of MsgPictureKeywords: a lit
// bulb, a rune shield, a waste bin, a printer, a happy face, a critical
// cross, an error sign, an exclamation triangle, a question and an
// information disc. Drawn, not loaded, so they look the same everywhere.
QPixmap MsgPicture(int index, int size = 48);

}  // namespace jv::ui
