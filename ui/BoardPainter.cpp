#include "ui/BoardPainter.h"

#include <QFont>
#include <algorithm>
#include <cmath>

#include "core/Board.h"
#include "core/VbText.h"
#include "ui/ColourValue.h"
#include "ui/Surface.h"
#include "ui/WindowColours.h"

namespace jv::ui {

QColor BoardBackColour(const Game& g) { return ToQColor(BoardBackColourValue(g)); }
QColor GridColour(const Game& g) { return ToQColor(g.ColourTable[4]); }
QColor LabelColour(const Game& g) { return ReadableOn(GridColour(g), BoardBackColour(g)); }
QColor SquareColours(const Game& g, int drawCode) { return ToQColor(SquareColour(g, drawCode)); }
QColor MoveMarkColour(const Game& g) { return ToQColor(g.ColourTable[10]); }
QColor VictimMarkColour(const Game& g) { return ToQColor(g.ColourTable[9]); }

namespace {

int Whole(double x) { return static_cast<int>(RoundHalfEven(x)); }

bool IsThrone(const Game& g, int a, int b) { return HasThrone(g) && a == g.CentreCol && b == g.CentreRow; }

// What a square shows where no piece stands: the board's background, and on
// a throne the background taken two fifths of the way towards the grid colour.
QColor EmptyFill(const Game& g, int a, int b) {
    const QColor back = BoardBackColour(g);
    if (!IsThrone(g, a, b)) return back;
    const QColor grid = GridColour(g);
    const auto mix = [](int from, int to) { return from + (to - from) * 2 / 5; };
    return QColor(mix(back.red(), grid.red()), mix(back.green(), grid.green()), mix(back.blue(), grid.blue()));
}

// The box of one square in the board style; nothing for an unknown style.
void PaintSquareBox(Surface& s, const BoardCanvas& c, int a, int b, const QColor& fill) {
    const Game& g = c.g;
    const int size = c.geometry.SquareSize;
    const int x = c.geometry.Left(a, b), y = c.geometry.Top(a, b);
    // The gap comes from the configuration file as written by hand too: it
    // is held within one square so that no value can overflow the sums.
    const int shrink = static_cast<int>(std::clamp(20LL * g.SquareGap, -1LL * size, 1LL * size));
    const int r = x + size - shrink, bottom = y + size - shrink;
    const QColor grid = GridColour(g);
    switch (g.BoardStyle) {
        case 2:   // sunken: dark top and left, light right and bottom
            s.FilledBox(x, y, r, bottom, fill);
            s.Line(x, y, r, y, grid);
            s.Line(x, y, x, bottom, grid);
            s.Line(r, y, r, bottom, PaletteWhite());
            s.Line(x, bottom, r, bottom, PaletteWhite());
            break;
        case 1:   // raised: light top and left, dark right and bottom
            s.FilledBox(x, y, r, bottom, fill);
            s.Line(x, y, r, y, PaletteWhite());
            s.Line(x, y, x, bottom, PaletteWhite());
            s.Line(r, y, r, bottom, grid);
            s.Line(x, bottom, r, bottom, grid);
            break;
        case 0:   // flat: neighbours share their outline; the gap is ignored
            s.FilledBox(x, y, x + size, y + size, fill);
            s.Box(x, y, x + size, y + size, grid);
            break;
        default:
            break;
    }
}

void PaintPiece(Surface& s, const BoardCanvas& c, int a, int b, int code) {
    const int size = c.geometry.SquareSize;
    const int left = Whole(c.geometry.Left(a, b) + size / 8.0);
    const int top = Whole(c.geometry.Top(a, b) + size / 8.0);
    if (c.g.ColourMode != 1) {
        // One eighth of margin on the top and left, one twenty-fourth on the
        // right and bottom: the picture is not centred.
        const int side = Whole(size - size / 6.0);
        const QImage& image = c.pictures.Picture(code, QSize(ToPixels(side), ToPixels(side)));
        s.PaintPicture(image, left, top, side, side);
    } else {
        const int extent = Whole(size - size / 4.0);
        s.FilledBox(left, top, left + extent, top + extent, SquareColours(c.g, code));
    }
}

// Where the King escapes on the edge, the edge is drawn as a thick frame a
// little outside the squares, where no square's repaint reaches it.
void FrameTheEdge(Surface& s, const BoardCanvas& c) {
    const BoardGeometry& geo = c.geometry;
    const int gap = 2 * TwipsPerPixel;
    const int left = geo.Left(1, 1) - gap, top = geo.Top(1, 1) - gap;
    const int right = geo.Left(1, c.g.BoardHeight) + geo.SquareSize + gap;
    const int bottom = geo.Top(c.g.BoardWidth, 1) + geo.SquareSize + gap;
    s.SetLineWidth(2);
    s.Box(left, top, right, bottom, GridColour(c.g));
    s.SetLineWidth(c.geometry.GridLineWidth);
}

// The label above column n: its number, or in tafl coordinates its file letter.
QString AcrossLabel(const Game& g, int n) {
    return g.TaflCoordinates ? QString(QChar('a' + n - 1)) : QString::number(n);
}

// The label beside row n: its letter, or in tafl coordinates its rank,
// counted from the bottom.
QString DownLabel(const Game& g, int n) {
    if (g.TaflCoordinates) return QString::number(g.BoardWidth - n + 1);
    return QString::fromStdString(g.ColumnLetters[std::clamp(n, 1, 16)]);
}

void PrintLabels(Surface& s, const BoardCanvas& c) {
    const Game& g = c.g;
    const BoardGeometry& geo = c.geometry;
    QFont font;
    font.setPointSize(8);
    font.setBold(false);
    s.SetFont(font);
    const int h = s.TextHeight("I");
    const int d = Whole(h * 0.9);
    const double size = geo.SquareSize;
    for (int n = 1; n <= g.BoardHeight; ++n) {
        const QString label = AcrossLabel(g, n);
        const double x = geo.Left(1, n) + (label.size() > 1 ? size / 6 : size / 2.5);
        s.Print(Whole(x), Whole(geo.Top(1, 1) - 1.1 * d), label, LabelColour(g));
    }
    for (int n = 1; n <= g.BoardWidth; ++n) {
        const QString label = DownLabel(g, n);
        // The letters from J on are shifted as the two-digit numbers are.
        const bool wide = g.TaflCoordinates ? label.size() > 1 : n > 9;
        const double x = geo.Left(1, 1) - (wide ? 1.5 * d : d);
        s.Print(Whole(x), Whole(geo.Top(n, 1) + size / 3), label, LabelColour(g));
    }
}

}  // namespace

void DrawBoard(const BoardCanvas& c) {
    const Game& g = c.g;
    Surface s(c.pixmap);
    s.Clear(BoardBackColour(g));
    s.SetLineWidth(c.geometry.GridLineWidth);
    for (int a = 1; a <= g.BoardWidth; ++a)
        for (int b = 1; b <= g.BoardHeight; ++b) {
            const int code = DrawCode(g, a, b);
            QColor fill = EmptyFill(g, a, b);
            if (g.ColourMode == 1 && code != -1) fill = SquareColours(g, code);
            PaintSquareBox(s, c, a, b, fill);
            if (g.ColourMode == 0 && code != -1) PaintPiece(s, c, a, b, code);
        }
    if (!HasHomeCorners(g) && g.BoardWidth > 0 && g.BoardHeight > 0) FrameTheEdge(s, c);
    if (g.ShowLabels != 0) PrintLabels(s, c);
}

void DrawPiece(const BoardCanvas& c, int a, int b, int drawCode) {
    Surface s(c.pixmap);
    PaintPiece(s, c, a, b, drawCode);
}

void DrawSquare(const BoardCanvas& c, int a, int b, const QColor& colour) {
    Surface s(c.pixmap);
    s.SetLineWidth(c.geometry.GridLineWidth);
    PaintSquareBox(s, c, a, b, colour == BoardBackColour(c.g) ? EmptyFill(c.g, a, b) : colour);
}

void DrawMoveMark(const BoardCanvas& c, int fromA, int fromB, int toA, int toB) {
    const BoardGeometry& geo = c.geometry;
    const int size = geo.SquareSize, half = size / 2, quarter = size / 4;
    // Moves run along a line or a column: dx, dy is the unit step (across, down).
    const int dx = (toB > fromB) - (toB < fromB), dy = (toA > fromA) - (toA < fromA);
    const int startX = geo.Left(fromA, fromB) + half, startY = geo.Top(fromA, fromB) + half;
    // The line stops a quarter of a square inside the target, where a bar
    // across the move's direction closes it.
    const int endX = geo.Left(toA, toB) + half - dx * quarter;
    const int endY = geo.Top(toA, toB) + half - dy * quarter;
    Surface s(c.pixmap);
    s.SetLineWidth(3);
    s.Line(startX, startY, endX, endY, MoveMarkColour(c.g));
    s.Line(endX - dy * quarter, endY - dx * quarter, endX + dy * quarter, endY + dx * quarter,
           MoveMarkColour(c.g));
    s.SetLineWidth(1);
}

void DrawSmallMark(const BoardCanvas& c, int a, int b, const QColor& colour) {
    const int size = c.geometry.SquareSize;
    const int x = c.geometry.Left(a, b) + size / 12, y = c.geometry.Top(a, b) + size / 12;
    Surface s(c.pixmap);
    s.FilledBox(x, y, x + size / 5, y + size / 5, colour);
}

}  // namespace jv::ui
