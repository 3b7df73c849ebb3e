#pragma once
#include <array>

#include "core/Game.h"

namespace jv::ui {

// Where each square of the board picture lies, in twips. The first board
// index (Col) runs down the picture and the second (Row) across it. Both
// tables are stored with a first dimension of 15, element a + 15 * b.
struct BoardGeometry {
    std::array<int, 15 * 15> SquareLeft{};
    std::array<int, 15 * 15> SquareTop{};
    int SquareSize = 0;
    int GridLineWidth = 1;   // pixels

    int Left(int a, int b) const { return SquareLeft[Element(a, b)]; }
    int Top(int a, int b) const { return SquareTop[Element(a, b)]; }

    // The square of the board of the given size under a point (twips);
    // Col -1 when the point lies on no square.
    Square SquareAt(int x, int y, int boardWidth, int boardHeight) const;

    static int Element(int a, int b);
};

// Room kept free round the squares, in pixels: the labels need more above
// and to the left than the plain margin.
constexpr int LabelMarginTop = 22;
constexpr int LabelMarginLeft = 28;
constexpr int PlainMargin = 8;

// Builds the geometry for a picture of the given size in pixels: square,
// equal squares as large as fit, laid out from a top-left origin that
// leaves room for the labels above and to the left, the board centred in the
// room that is left.
BoardGeometry BuildBoardGeometry(int pixelWidth, int pixelHeight, int boardWidth, int boardHeight,
                                 bool showLabels);

}  // namespace jv::ui
