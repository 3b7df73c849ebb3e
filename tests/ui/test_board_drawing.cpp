// The board picture: equal square squares with room for the labels, the three square styles, pictures or
// colour blocks, the edge labels and the move marks.
#include "WindowFixture.h"
#include "core/Board.h"
#include "session/ComputerMoves.h"
#include "support/RecordingView.h"
#include "ui/BoardGeometry.h"
#include "ui/BoardPainter.h"
#include "ui/ColourValue.h"
#include "ui/PiecePictures.h"
#include "ui/Surface.h"

using namespace jv;
using namespace jv::ui;

namespace {

// Distinct colours for every table entry the board uses: background (2), grid (4), and the four piece
// colours, User, Computer, Home and King.
const QColor Back = ToQColor(0xE0E0E0), GridLines = ToQColor(0x402010), Defender = ToQColor(0x00C000),
             Attacker = ToQColor(0x0000C0), Home = ToQColor(0x808080), King = ToQColor(0xC0C000), Magenta(255, 0, 255);

// An 11 by 11 board with a King on F6, a defender on C4 and an attacker on H2, drawn with its labels onto a
// 600 by 600 picture; the King's picture is a solid magenta square so its place can be measured.
struct Drawing {
    test::RecordingView view;
    Game g;
    QTemporaryDir folder;
    BoardGeometry geo;
    PiecePictures pictures;
    QPixmap pixmap{600, 600};

    Drawing() {
        g.View = &view;
        g.ProgramFolder = folder.path().toStdString() + "/";
        BuildColumnLetters(g);
        NewBoard(g, 11, 11);
        g.ColourTable.fill(0xFFFFFF);
        g.ColourTable[2] = FromQColor(Back);
        g.ColourTable[4] = FromQColor(GridLines);
        g.PieceColours = {FromQColor(Defender), FromQColor(Attacker), FromQColor(Home), FromQColor(King)};
        g.Board(6, 6) = g.Board(3, 4) = DefenderCode;
        g.KingCol = g.KingRow = 6;
        g.Board(8, 2) = AttackerCode;
        QImage king(64, 64, QImage::Format_ARGB32);
        king.fill(Magenta);
        king.save(QString::fromStdString(g.ProgramFolder + (g.PictureFiles[3] = "king.png")));
        g.SquareGap = g.ShowLabels = 1;
    }
    QImage Draw(int style, int colourMode) {
        g.BoardStyle = style;
        g.ColourMode = colourMode;
        geo = BuildBoardGeometry(600, 600, g.BoardWidth, g.BoardHeight, g.ShowLabels != 0);
        pictures.Load(g);
        DrawBoard({g, geo, pictures, pixmap});
        return pixmap.toImage();
    }
    int X(int a, int b) const { return ToPixels(geo.Left(a, b)); }
    int Y(int a, int b) const { return ToPixels(geo.Top(a, b)); }
    int Side() const { return ToPixels(geo.SquareSize); }
    QPoint Centre(int a, int b) const { return {X(a, b) + Side() / 2, Y(a, b) + Side() / 2}; }
};

// The leftmost column of label ink, clearly darker than the background, in a box; -1 when there is none.
int LeftmostInk(const QImage& image, QRect box) {
    for (int x = box.left(); x <= box.right(); ++x)
        for (int y = box.top(); y <= box.bottom(); ++y)
            if (qGray(image.pixel(x, y)) < 180) return x;
    return -1;
}

}  // namespace

class TestBoardDrawing : public QObject {
    Q_OBJECT
private slots:
    void GeometryGivesEqualSquaresBelowAndRightOfTheLabels() {
        // Squares are equal, whole pixels, below and right of the labels, inside the picture, and found by a point.
        const BoardGeometry geo = BuildBoardGeometry(600, 600, 11, 11, true);
        const int s = geo.SquareSize, x = geo.Left(4, 9) + s / 2, y = geo.Top(4, 9) + s / 2;
        QVERIFY(s % TwipsPerPixel == 0 && s >= 48 * TwipsPerPixel);   // 11 squares of 51 pixels fit in 600
        for (int a = 1; a <= 11; ++a)
            for (int b = 1; b <= 11; ++b)
                QVERIFY(geo.Left(a, b) == geo.Left(1, 1) + (b - 1) * s && geo.Top(a, b) == geo.Top(1, 1) + (a - 1) * s);
        QVERIFY(geo.Left(1, 1) >= LabelMarginLeft * TwipsPerPixel && geo.Top(1, 1) >= LabelMarginTop * TwipsPerPixel);
        QVERIFY(geo.Left(1, 11) + s < 600 * TwipsPerPixel && geo.Top(11, 1) + s < 600 * TwipsPerPixel);
        QCOMPARE(std::pair(geo.SquareAt(x, y, 11, 11).Col, geo.SquareAt(x, y, 11, 11).Row), std::pair(4, 9));
        QCOMPARE(geo.SquareAt(geo.Left(1, 1) - 1, y, 11, 11).Col, -1);
        QCOMPARE(geo.SquareAt(x, geo.Top(11, 1) + s, 11, 11).Col, -1);
    }

    void FlatRaisedAndSunkenSquares() {
        // Flat squares share a grid outline, raised and sunken ones have light and dark edges and a gap.
        Drawing d;
        QImage flat = d.Draw(0, 0);
        const int x = d.X(2, 2), y = d.Y(2, 2), side = d.Side(), mid = side / 2;
        const int r = ToPixels(d.geo.Left(2, 2) + d.geo.SquareSize - 20);
        const int b = ToPixels(d.geo.Top(2, 2) + d.geo.SquareSize - 20);
        QCOMPARE(r, x + side - 1);   // round(20 / 15) = 1 pixel in from the next square
        const auto edges = [&](const QImage& i) {
            return std::vector{i.pixelColor(x + mid, y), i.pixelColor(x, y + mid), i.pixelColor(r, y + mid),
                               i.pixelColor(x + mid, b)};
        };
        QCOMPARE(flat.pixelColor(d.Centre(2, 2)), Back);
        QCOMPARE(flat.pixelColor(x + side, y + mid), GridLines);   // the next square's outline
        QCOMPARE(edges(flat)[0], GridLines);
        QCOMPARE(edges(flat)[1], GridLines);
        QCOMPARE(edges(d.Draw(1, 0)), (std::vector{PaletteWhite(), PaletteWhite(), GridLines, GridLines}));
        QCOMPARE(edges(d.Draw(2, 0)), (std::vector{GridLines, GridLines, PaletteWhite(), PaletteWhite()}));
        d.g.SquareGap = 3;   // a larger gap shows the background between neighbours
        const QImage gapped = d.Draw(2, 1);
        QVERIFY(gapped.pixelColor(x + side - 1, y + mid) == Back && gapped.pixelColor(x + side - 2, y + mid) == Back);
        const QImage none = d.Draw(7, 0);
        QCOMPARE(none.pixelColor(x, y + mid), Back);
        QCOMPARE(none.pixelColor(d.Centre(6, 6)), Magenta);
    }

    void KingPictureOnTheKingsSquareWithUnequalMargins() {
        // The King's picture sits 1/8 of a square in from the top left and 1/24 from the bottom right.
        Drawing d;
        for (int style : {0, 1, 2}) {
            const QImage image = d.Draw(style, 0);
            QVERIFY(image.pixelColor(d.Centre(3, 4)) != Magenta && image.pixelColor(d.Centre(3, 4)) != Back);
            const int x = d.X(6, 6), y = d.Y(6, 6), side = d.Side();
            int left = -1, right = -1, top = -1, bottom = -1;   // the magenta box along the middle lines
            for (int i = 0; i <= side; ++i) {
                if (image.pixelColor(x + i, y + side / 2) == Magenta) left = left < 0 ? i : left, right = i;
                if (image.pixelColor(x + side / 2, y + i) == Magenta) top = top < 0 ? i : top, bottom = i;
            }
            QCOMPARE(std::pair(left, top), std::pair(side / 8, side / 8));   // 51-pixel squares: 6 in, 43 wide
            QVERIFY2(side - 1 - right >= 1 && side - 1 - right <= 3 && side - 1 - bottom >= 1 && side - 1 - bottom <= 3,
                     qPrintable(QString("%1 %2").arg(right).arg(bottom)));
        }
        d.g.KingCol = 1;
        d.g.KingRow = 11;
        d.g.Board(1, 11) = DefenderCode;
        const QImage image = d.Draw(0, 0);
        QVERIFY(image.pixelColor(d.Centre(1, 11)) == Magenta && image.pixelColor(d.Centre(6, 6)) != Magenta);
    }

    void ColourModeFillsSquaresByContent() {
        // In colour mode each square is filled with its content's colour, the King's square with the King's.
        Drawing d;
        for (int style : {0, 1, 2}) {
            const QImage image = d.Draw(style, 1);
            std::vector<QColor> shown;
            for (auto [a, b] : {std::pair{6, 6}, {3, 4}, {8, 2}, {1, 1}, {11, 11}, {5, 5}})
                shown.push_back(image.pixelColor(d.Centre(a, b)));
            QCOMPARE(shown, (std::vector{King, Defender, Attacker, Home, Home, Back}));
        }
    }

    void LabelsAndTheTwoDigitShift() {
        // Numbers and letters label the edges, two-digit numbers and J onwards shifted; none when switched off.
        Drawing d;
        const QImage image = d.Draw(0, 0);
        const int side = d.Side(), band = ToPixels(d.geo.Top(1, 1)) - 1, left = ToPixels(d.geo.Left(1, 1));
        const auto number = [&](int n) {
            return LeftmostInk(image, QRect(d.X(1, n) + 1, band - 16, side - 2, 16)) - d.X(1, n);
        };
        const auto letter = [&](int n) { return LeftmostInk(image, QRect(0, d.Y(n, 1) + 2, left - 1, side - 4)); };
        // 51 / 2.5 = 20.4 and 51 / 6 = 8.5 pixels, plus the glyph's own bearing.
        QVERIFY2(number(9) >= 20 && number(9) <= 22, qPrintable(QString::number(number(9))));
        QVERIFY2(number(10) >= 8 && number(10) <= 10, qPrintable(QString::number(number(10))));
        QVERIFY2(letter(10) > 0 && letter(9) - letter(10) >= 3, qPrintable(QString::number(letter(9) - letter(10))));
        QCOMPARE(image.pixelColor(d.Centre(1, 9)), Back);   // labels stay out of the squares
        d.g.ShowLabels = 0;
        const QImage bare = d.Draw(0, 0);
        QCOMPARE(LeftmostInk(bare, QRect(0, 0, 600, ToPixels(d.geo.Top(1, 1)) - 1)), -1);
        QCOMPARE(LeftmostInk(bare, QRect(0, 0, ToPixels(d.geo.Left(1, 1)) - 1, 600)), -1);
    }

    void MoveMarkAndSmallMark() {
        // The move mark runs from the source square's centre into the target; the small mark sits in a corner.
        Drawing d;
        const QColor mark = ToQColor(0x0080FF);
        d.g.ColourTable[10] = FromQColor(mark);
        d.Draw(0, 0);
        DrawMoveMark({d.g, d.geo, d.pictures, d.pixmap}, 2, 2, 2, 5);
        DrawSmallMark({d.g, d.geo, d.pictures, d.pixmap}, 9, 9, mark);
        const QImage image = d.pixmap.toImage();
        QVERIFY(image.pixelColor(d.Centre(2, 2)) == mark && image.pixelColor(d.Centre(2, 3)) == mark);
        QVERIFY(image.pixelColor(d.Centre(2, 6)) != mark);   // not beyond the target
        const int x = d.X(9, 9), y = d.Y(9, 9), side = d.Side();
        QCOMPARE(image.pixelColor(x + side / 12 + 2, y + side / 12 + 2), mark);
        QVERIFY(image.pixelColor(x + side / 2, y + side / 2) != mark);
    }

    void AnimatedMovesLeaveAFreshDrawingUnderTheLastMark() {
        // After animated moves the picture is a fresh drawing of the position, only the last move's mark over it.
        uitest::StartedWindow s;
        for (int side : {DefenderCode, AttackerCode, DefenderCode, AttackerCode}) MakeAutoMove(s.g(), side);
        const QImage drawn = s.Picture(), shown = s.Board()->grab().toImage();
        s.Board()->DrawBoard();
        QVERIFY2(s.Picture() == drawn, "earlier marks left in the picture");
        QVERIFY2(s.Board()->grab().toImage() == shown, "the last move's mark not shown over it");
    }
};

WINDOW_TEST_MAIN(TestBoardDrawing)
#include "test_board_drawing.moc"
