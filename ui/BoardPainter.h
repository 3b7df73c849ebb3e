#pragma once
#include <QColor>
#include <QPixmap>

#include "core/Game.h"
#include "ui/BoardGeometry.h"
#include "ui/PiecePictures.h"

namespace jv::ui {

// The colours of the board, from the colour table.
QColor BoardBackColour(const Game& g);     // entry 2: background and empty squares
QColor GridColour(const Game& g);          // entry 4: grid lines, dark edges, labels
QColor SquareColours(const Game& g, int drawCode);   // entries 6..9 by draw code
QColor MoveMarkColour(const Game& g);      // entry 10: the last move and a victim

// What a square shows: 0 a defender, 1 an attacker, 2 a Home square, 3 the
// King (whatever its stored code, after the Home test), -1 nothing.
int DrawCode(const Game& g, int a, int b);

// Everything the board drawing reads and the picture it draws on.
struct BoardCanvas {
    const Game& g;
    const BoardGeometry& geometry;
    PiecePictures& pictures;
    QPixmap& pixmap;
};

// Repaints the whole board: squares in the board style, pieces, labels.
void DrawBoard(const BoardCanvas& c);
// Paints one piece into one square: its picture, or a colour block in
// colour mode.
void DrawPiece(const BoardCanvas& c, int a, int b, int drawCode);
// Repaints one square's box in the board style with the given fill colour.
void DrawSquare(const BoardCanvas& c, int a, int b, const QColor& colour);
// The mark of the last move: a thick line from the centre of the source to a
// bar a quarter of a square inside the target.
void DrawMoveMark(const BoardCanvas& c, int fromA, int fromB, int toA, int toB);
// The small mark: a filled box a twelfth of a square inside its top-left
// corner, a fifth of a square wide (a piece about to be taken).
void DrawSmallMark(const BoardCanvas& c, int a, int b, const QColor& colour);

}  // namespace jv::ui
