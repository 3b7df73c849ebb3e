#include "ui/BoardGeometry.h"

#include <algorithm>

#include "ui/Surface.h"

namespace jv::ui {

int BoardGeometry::Element(int a, int b) {
    return std::clamp(a, 0, 14) + 15 * std::clamp(b, 0, 14);
}

Square BoardGeometry::SquareAt(int x, int y, int boardWidth, int boardHeight) const {
    if (SquareSize <= 0 || boardWidth < 1 || boardHeight < 1) return {};
    const int dx = x - Left(1, 1), dy = y - Top(1, 1);
    if (dx < 0 || dy < 0) return {};
    const int col = dy / SquareSize + 1, row = dx / SquareSize + 1;
    if (col > boardWidth || row > boardHeight) return {};
    return {col, row};
}

BoardGeometry BuildBoardGeometry(int pixelWidth, int pixelHeight, int boardWidth, int boardHeight,
                                 bool showLabels) {
    BoardGeometry geo;
    const int across = std::max(boardHeight, 1), down = std::max(boardWidth, 1);
    const int top = showLabels ? LabelMarginTop : PlainMargin;
    const int left = showLabels ? LabelMarginLeft : PlainMargin;
    const int roomX = pixelWidth - left - PlainMargin, roomY = pixelHeight - top - PlainMargin;
    // The outline of the last square takes one pixel beyond the squares.
    const int side = std::max(4, std::min((roomX - 1) / across, (roomY - 1) / down));
    const int originX = left + std::max(0, (roomX - side * across) / 2);
    const int originY = top + std::max(0, (roomY - side * down) / 2);
    geo.SquareSize = side * TwipsPerPixel;
    for (int a = 0; a <= 14; ++a)
        for (int b = 0; b <= 14; ++b) {
            geo.SquareLeft[BoardGeometry::Element(a, b)] = (originX + (b - 1) * side) * TwipsPerPixel;
            geo.SquareTop[BoardGeometry::Element(a, b)] = (originY + (a - 1) * side) * TwipsPerPixel;
        }
    return geo;
}

}  // namespace jv::ui
