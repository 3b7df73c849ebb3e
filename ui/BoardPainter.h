#pragma once
#include <QColor>
#include <QPixmap>

#include "core/DrawCode.h"
#include "core/Game.h"
#include "ui/BoardGeometry.h"
#include "ui/PiecePictures.h"

namespace jv::ui {

// The colours of the board, from the colour table.
QColor BoardBackColour(const Game& g);     // entry 2: background and empty squares
QColor GridColour(const Game& g);          // entry 4: grid lines, dark edges
QColor LabelColour(const Game& g);         // the grid colour, made readable on the board's background
QColor SquareColours(const Game& g, int drawCode);   // the four piece colours by draw code
QColor MoveMarkColour(const Game& g);      // entry 10: the last move
QColor VictimMarkColour(const Game& g);    // entry 9: a piece about to be taken

// Everything the board drawing reads and the picture it draws on.
struct BoardCanvas {
    const Game& g;
    const BoardGeometry& geometry;
    PiecePictures& pictures;
    QPixmap& pixmap;
};

// Repaints the whole board: squares in the board style (a throne darker),
// pieces, labels.
void DrawBoard(const BoardCanvas& c);
// Paints one piece into one square: its picture, or a colour block in
// colour mode.
void DrawPiece(const BoardCanvas& c, int a, int b, int drawCode);
// Repaints one square's box in the board style with the given fill colour;
// the board's background stands for the square's own empty fill, which a
// throne shows darker.
void DrawSquare(const BoardCanvas& c, int a, int b, const QColor& colour);
// The mark of the last move: a thick line from the centre of the source to a
// bar a quarter of a square inside the target.
void DrawMoveMark(const BoardCanvas& c, int fromA, int fromB, int toA, int toB);
// The small mark: a filled box a twelfth of a square inside its top-left
// corner, a fifth of a square wide (a piece about to be taken).
void DrawSmallMark(const BoardCanvas& c, int a, int b, const QColor& colour);

}  // namespace jv::ui
