#include "ui/SquareSample.h"

#include <QPixmap>

#include "ui/BoardPainter.h"
#include "ui/Surface.h"

namespace jv::ui {

QImage SquareSample(const Game& g, PiecePictures& pictures, int squares, int drawCode, int pixels) {
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(BoardBackColour(g));
    const BoardGeometry geometry = BuildBoardGeometry(pixels, pixels, squares, squares, false);
    pictures.Load(g);
    const BoardCanvas canvas{g, geometry, pictures, pixmap};
    const QColor fill = g.ColourMode == 1 && drawCode != -1 ? SquareColours(g, drawCode) : BoardBackColour(g);
    for (int a = 1; a <= squares; ++a)
        for (int b = 1; b <= squares; ++b) {
            DrawSquare(canvas, a, b, fill);
            if (g.ColourMode == 0 && drawCode != -1) DrawPiece(canvas, a, b, drawCode);
        }
    return pixmap.toImage();
}

}  // namespace jv::ui
