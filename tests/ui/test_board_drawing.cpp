// The board picture: equal square squares with room for the labels, the
// three square styles, pictures or colour blocks, and the edge labels.
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

#include "core/Board.h"
#include "support/RecordingView.h"
#include "ui/BoardGeometry.h"
#include "ui/BoardPainter.h"
#include "ui/ColourValue.h"
#include "ui/PiecePictures.h"
#include "ui/Surface.h"

using namespace jv;
using namespace jv::ui;

namespace {

// Distinct colours for every table entry the board uses.
constexpr std::int32_t Back = 0xE0E0E0;        // entry 2
constexpr std::int32_t GridLines = 0x402010;        // entry 4: RGB(16, 32, 64)
// The four piece colours: User, Computer, Home, King.
constexpr std::int32_t Defender = 0x00C000;
constexpr std::int32_t Attacker = 0x0000C0;
constexpr std::int32_t Home = 0x808080;
constexpr std::int32_t King = 0xC0C000;
const QColor Magenta(255, 0, 255);

// An 11 by 11 board with a King, one piece of each side and its labels,
// drawn onto a 600 by 600 picture; the King's picture is a solid magenta
// square so its place can be measured.
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
        g.ColourTable[2] = Back;
        g.ColourTable[4] = GridLines;
        g.PieceColours = {Defender, Attacker, Home, King};
        g.Board(6, 6) = DefenderCode;
        g.KingCol = 6;
        g.KingRow = 6;
        g.Board(3, 4) = DefenderCode;
        g.Board(8, 2) = AttackerCode;
        QImage king(64, 64, QImage::Format_ARGB32);
        king.fill(Magenta);
        king.save(QString::fromStdString(g.ProgramFolder + "king.png"));
        g.PictureFiles[3] = "king.png";
        g.SquareGap = 1;
        g.ShowLabels = 1;
        geo = BuildBoardGeometry(600, 600, g.BoardWidth, g.BoardHeight, true);
    }
    QImage Draw(int style, int colourMode) {
        g.BoardStyle = style;
        g.ColourMode = colourMode;
        geo = BuildBoardGeometry(600, 600, g.BoardWidth, g.BoardHeight, g.ShowLabels != 0);
        pictures.Load(g);
        DrawBoard({g, geo, pictures, pixmap});
        return pixmap.toImage();
    }
    // Pixel positions of a square.
    int X(int a, int b) const { return ToPixels(geo.Left(a, b)); }
    int Y(int a, int b) const { return ToPixels(geo.Top(a, b)); }
    int Side() const { return ToPixels(geo.SquareSize); }
    QPoint Centre(int a, int b) const { return {X(a, b) + Side() / 2, Y(a, b) + Side() / 2}; }
};

QColor At(const QImage& image, QPoint p) { return image.pixelColor(p); }

// True for a pixel of label text: clearly darker than the background.
bool Ink(const QImage& image, int x, int y) { return qGray(image.pixel(x, y)) < 180; }

// The leftmost column of ink in a box, -1 when there is none.
int LeftmostInk(const QImage& image, QRect box) {
    for (int x = box.left(); x <= box.right(); ++x)
        for (int y = box.top(); y <= box.bottom(); ++y)
            if (Ink(image, x, y)) return x;
    return -1;
}

}  // namespace

class TestBoardDrawing : public QObject {
    Q_OBJECT
private slots:
    void GeometryGivesEqualSquaresBelowAndRightOfTheLabels();
    void FlatRaisedAndSunkenSquares();
    void KingPictureOnTheKingsSquareWithUnequalMargins();
    void ColourModeFillsSquaresByContent();
    void LabelsAndTheTwoDigitShift();
    void MoveMarkAndSmallMark();
};

void TestBoardDrawing::GeometryGivesEqualSquaresBelowAndRightOfTheLabels() {
    // Squares are square and equal, laid out from a top-left origin that
    // leaves room for the labels above and to the left; Col runs down.
    const BoardGeometry geo = BuildBoardGeometry(600, 600, 11, 11, true);
    const int s = geo.SquareSize;
    QCOMPARE(s % TwipsPerPixel, 0);
    QVERIFY(s >= 48 * TwipsPerPixel);   // 11 squares of 51 pixels fit in 600
    for (int a = 1; a <= 11; ++a)
        for (int b = 1; b <= 11; ++b) {
            QCOMPARE(geo.Left(a, b), geo.Left(1, 1) + (b - 1) * s);
            QCOMPARE(geo.Top(a, b), geo.Top(1, 1) + (a - 1) * s);
        }
    QVERIFY(geo.Left(1, 1) >= LabelMarginLeft * TwipsPerPixel);
    QVERIFY(geo.Top(1, 1) >= LabelMarginTop * TwipsPerPixel);
    QVERIFY(geo.Left(1, 11) + s < 600 * TwipsPerPixel);
    QVERIFY(geo.Top(11, 1) + s < 600 * TwipsPerPixel);
    // A wide picture of a 7 by 13 board (7 down, 13 across) is limited by its width.
    const BoardGeometry wide = BuildBoardGeometry(900, 400, 7, 13, false);
    QVERIFY(wide.Top(7, 1) + wide.SquareSize <= 400 * TwipsPerPixel);
    QVERIFY(wide.Left(1, 13) + wide.SquareSize <= 900 * TwipsPerPixel);
    // The square under a point, and none outside the board.
    const int x = geo.Left(4, 9) + s / 2, y = geo.Top(4, 9) + s / 2;
    QCOMPARE(geo.SquareAt(x, y, 11, 11).Col, 4);
    QCOMPARE(geo.SquareAt(x, y, 11, 11).Row, 9);
    QCOMPARE(geo.SquareAt(geo.Left(1, 1) - 1, y, 11, 11).Col, -1);
    QCOMPARE(geo.SquareAt(x, geo.Top(11, 1) + s, 11, 11).Col, -1);
}

void TestBoardDrawing::FlatRaisedAndSunkenSquares() {
    // Flat squares share a grid outline and ignore the gap; raised squares
    // have light top and left edges and dark right and bottom ones, sunken
    // squares the other way round; both leave a gap of 20 x SquareGap twips.
    Drawing d;
    const int x = d.X(2, 2), y = d.Y(2, 2), side = d.Side();
    const int mid = side / 2;

    QImage flat = d.Draw(0, 0);
    QCOMPARE(At(flat, d.Centre(2, 2)), ToQColor(Back));
    QCOMPARE(At(flat, {x, y + mid}), ToQColor(GridLines));          // shared left outline
    QCOMPARE(At(flat, {x + side, y + mid}), ToQColor(GridLines));   // the next square's outline
    QCOMPARE(At(flat, {x + mid, y}), ToQColor(GridLines));

    // The square's right edge R = X + S - 20 twips lies one pixel in from
    // the next square (round(20 / 15) = 1).
    const int r = ToPixels(d.geo.Left(2, 2) + d.geo.SquareSize - 20);
    const int b = ToPixels(d.geo.Top(2, 2) + d.geo.SquareSize - 20);
    QCOMPARE(r, x + side - 1);
    QImage raised = d.Draw(1, 0);
    QCOMPARE(At(raised, {x + mid, y}), PaletteWhite());
    QCOMPARE(At(raised, {x, y + mid}), PaletteWhite());
    QCOMPARE(At(raised, {r, y + mid}), ToQColor(GridLines));
    QCOMPARE(At(raised, {x + mid, b}), ToQColor(GridLines));
    QCOMPARE(At(raised, d.Centre(2, 2)), ToQColor(Back));

    QImage sunken = d.Draw(2, 0);
    QCOMPARE(At(sunken, {x + mid, y}), ToQColor(GridLines));
    QCOMPARE(At(sunken, {x, y + mid}), ToQColor(GridLines));
    QCOMPARE(At(sunken, {r, y + mid}), PaletteWhite());
    QCOMPARE(At(sunken, {x + mid, b}), PaletteWhite());

    // A larger gap shows the background between neighbours.
    d.g.SquareGap = 3;
    QImage gapped = d.Draw(2, 1);
    QCOMPARE(At(gapped, {x + side - 1, y + mid}), ToQColor(Back));
    QCOMPARE(At(gapped, {x + side - 2, y + mid}), ToQColor(Back));
    QCOMPARE(At(gapped, d.Centre(8, 2)), ToQColor(Attacker));

    // Any other style paints no boxes, but the pieces still.
    QImage none = d.Draw(7, 0);
    QCOMPARE(At(none, {x, y + mid}), ToQColor(Back));
    QCOMPARE(At(none, d.Centre(6, 6)), Magenta);
}

void TestBoardDrawing::KingPictureOnTheKingsSquareWithUnequalMargins() {
    // The King's square shows the King's picture, an eighth of a square in
    // from the top and left and a twenty-fourth from the right and bottom;
    // a King on a Home square is drawn as the King.
    Drawing d;
    for (int style : {0, 1, 2}) {
        const QImage image = d.Draw(style, 0);
        QCOMPARE(At(image, d.Centre(6, 6)), Magenta);
        QVERIFY(At(image, d.Centre(3, 4)) != Magenta);   // an ordinary defender
        QVERIFY(At(image, d.Centre(3, 4)) != ToQColor(Back));
        // Measure the magenta box along the square's middle line and column.
        const int x = d.X(6, 6), y = d.Y(6, 6), side = d.Side();
        int left = -1, right = -1, top = -1, bottom = -1;
        for (int i = 0; i <= side; ++i) {
            if (At(image, {x + i, y + side / 2}) == Magenta) {
                if (left < 0) left = i;
                right = i;
            }
            if (At(image, {x + side / 2, y + i}) == Magenta) {
                if (top < 0) top = i;
                bottom = i;
            }
        }
        // 51-pixel squares: the picture starts 6 pixels in and is 43 wide,
        // which leaves 2 pixels on the right.
        QCOMPARE(left, side / 8);
        QCOMPARE(top, side / 8);
        QVERIFY2(side - 1 - right >= 1 && side - 1 - right <= 3, qPrintable(QString::number(right)));
        QVERIFY(side - 1 - bottom >= 1 && side - 1 - bottom <= 3);
        QVERIFY(left > side - 1 - right + 2);   // not centred
    }
    // The King on a Home corner.
    d.g.KingCol = 1;
    d.g.KingRow = 11;
    d.g.Board(1, 11) = DefenderCode;
    const QImage image = d.Draw(0, 0);
    QCOMPARE(At(image, d.Centre(1, 11)), Magenta);
    QVERIFY(At(image, d.Centre(6, 6)) != Magenta);
}

void TestBoardDrawing::ColourModeFillsSquaresByContent() {
    // In colour mode every square is filled by its draw code: the King's
    // square with the King's colour though it holds a defender, the Home
    // squares with the Home colour, empty squares with the background.
    Drawing d;
    for (int style : {0, 1, 2}) {
        const QImage image = d.Draw(style, 1);
        QCOMPARE(At(image, d.Centre(6, 6)), ToQColor(King));
        QCOMPARE(At(image, d.Centre(3, 4)), ToQColor(Defender));
        QCOMPARE(At(image, d.Centre(8, 2)), ToQColor(Attacker));
        QCOMPARE(At(image, d.Centre(1, 1)), ToQColor(Home));
        QCOMPARE(At(image, d.Centre(11, 11)), ToQColor(Home));
        QCOMPARE(At(image, d.Centre(5, 5)), ToQColor(Back));
    }
}

void TestBoardDrawing::LabelsAndTheTwoDigitShift() {
    // Numbers across the top sit 1/2.5 of a square in, two-digit numbers
    // only 1/6 in; letters down the left edge, J and later further left.
    // Without labels nothing is printed.
    Drawing d;
    const QImage image = d.Draw(0, 0);
    const int side = d.Side();
    const int band = ToPixels(d.geo.Top(1, 1)) - 1;   // the last row above the squares
    auto labelBox = [&](int n) { return QRect(d.X(1, n) + 1, band - 16, side - 2, 16); };
    const int nine = LeftmostInk(image, labelBox(9));
    const int ten = LeftmostInk(image, labelBox(10));
    QVERIFY(nine >= 0 && ten >= 0);
    // 51 / 2.5 = 20.4 and 51 / 6 = 8.5 pixels, plus the glyph's own bearing.
    QVERIFY2(nine - d.X(1, 9) >= 20 && nine - d.X(1, 9) <= 22, qPrintable(QString::number(nine - d.X(1, 9))));
    QVERIFY2(ten - d.X(1, 10) >= 8 && ten - d.X(1, 10) <= 10, qPrintable(QString::number(ten - d.X(1, 10))));
    // The letters: I (9) one d left of the board, J (10) one and a half d.
    const int left = ToPixels(d.geo.Left(1, 1));
    auto letterBox = [&](int n) { return QRect(0, d.Y(n, 1) + 2, left - 1, side - 4); };
    const int i = LeftmostInk(image, letterBox(9));
    const int j = LeftmostInk(image, letterBox(10));
    QVERIFY(i > 0 && j > 0);
    QVERIFY2(i - j >= 3, qPrintable(QString("%1 %2").arg(i).arg(j)));
    // Labels stay out of the squares' own area.
    QCOMPARE(At(image, d.Centre(1, 9)), ToQColor(Back));

    d.g.ShowLabels = 0;
    const QImage bare = d.Draw(0, 0);
    const int top = ToPixels(d.geo.Top(1, 1));
    QCOMPARE(LeftmostInk(bare, QRect(0, 0, 600, top - 1)), -1);
    QCOMPARE(LeftmostInk(bare, QRect(0, 0, ToPixels(d.geo.Left(1, 1)) - 1, 600)), -1);
}

void TestBoardDrawing::MoveMarkAndSmallMark() {
    // The last move's mark runs from the centre of the source square into
    // the target; the small mark sits a twelfth of a square inside a
    // square's top-left corner.
    Drawing d;
    d.g.ColourTable[10] = 0x0080FF;   // RGB(255, 128, 0)
    d.Draw(0, 0);
    DrawMoveMark({d.g, d.geo, d.pictures, d.pixmap}, 2, 2, 2, 5);
    DrawSmallMark({d.g, d.geo, d.pictures, d.pixmap}, 9, 9, ToQColor(0x0080FF));
    const QImage image = d.pixmap.toImage();
    const QColor mark = ToQColor(0x0080FF);
    QCOMPARE(At(image, d.Centre(2, 3)), mark);   // on the way
    QCOMPARE(At(image, d.Centre(2, 2)), mark);   // from the source's centre
    QVERIFY(At(image, d.Centre(2, 6)) != mark);  // not beyond the target
    const int x = d.X(9, 9), y = d.Y(9, 9), side = d.Side();
    QCOMPARE(At(image, {x + side / 12 + 2, y + side / 12 + 2}), mark);
    QVERIFY(At(image, {x + side / 2, y + side / 2}) != mark);
}

QTEST_MAIN(TestBoardDrawing)
#include "test_board_drawing.moc"
