#pragma once
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QString>

class QPaintDevice;

namespace jv::ui {

// Board coordinates are kept in twips, fifteen to a screen pixel (1440 to
// the inch at 96 pixels to the inch), so the drawing formulas keep their own
// proportions: a gap of 20 units is a little more than a pixel. Line widths
// are whole pixels.
constexpr int TwipsPerPixel = 15;

// Twips to the nearest pixel.
int ToPixels(int twips);

// A picture surface addressed in twips with the operations the board drawing
// uses: clear, line, box, filled box, text and picture. Boxes include both
// corners, so a box from x to x + s is s + 1 pixels wide in outline.
class Surface {
public:
    explicit Surface(QPaintDevice& device);

    void Clear(const QColor& back);
    void SetLineWidth(int pixels) { lineWidth_ = pixels < 1 ? 1 : pixels; }
    void Line(int x1, int y1, int x2, int y2, const QColor& colour);
    void Box(int x1, int y1, int x2, int y2, const QColor& colour);
    void FilledBox(int x1, int y1, int x2, int y2, const QColor& colour);

    void SetFont(const QFont& font);
    // The height of a line of text in twips.
    int TextHeight(const QString& text) const;
    // Prints text with the top-left corner of its line at (x, y).
    void Print(int x, int y, const QString& text, const QColor& colour);

    // Paints a picture scaled into the box of the given corner and size.
    void PaintPicture(const QImage& image, int x, int y, int width, int height);

private:
    QPainter painter_;
    int lineWidth_ = 1;
};

}  // namespace jv::ui
