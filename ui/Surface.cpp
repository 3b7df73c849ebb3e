#include "ui/Surface.h"

#include <QFontMetrics>
#include <QPaintDevice>
#include <QRect>
#include <cmath>

namespace jv::ui {

int ToPixels(int twips) {
    return static_cast<int>(std::lround(static_cast<double>(twips) / TwipsPerPixel));
}

namespace {
// The pixel box whose corners are the two twip corners, both included.
QRect PixelBox(int x1, int y1, int x2, int y2) {
    return QRect(QPoint(ToPixels(x1), ToPixels(y1)), QPoint(ToPixels(x2), ToPixels(y2))).normalized();
}
}  // namespace

Surface::Surface(QPaintDevice& device) : painter_(&device) {
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setRenderHint(QPainter::SmoothPixmapTransform, true);
}

void Surface::Clear(const QColor& back) {
    painter_.fillRect(QRect(0, 0, painter_.device()->width(), painter_.device()->height()), back);
}

void Surface::Line(int x1, int y1, int x2, int y2, const QColor& colour) {
    painter_.setPen(QPen(colour, lineWidth_, Qt::SolidLine, lineWidth_ > 1 ? Qt::RoundCap : Qt::SquareCap));
    painter_.drawLine(ToPixels(x1), ToPixels(y1), ToPixels(x2), ToPixels(y2));
}

void Surface::Box(int x1, int y1, int x2, int y2, const QColor& colour) {
    const QRect box = PixelBox(x1, y1, x2, y2);
    painter_.setPen(QPen(colour, lineWidth_, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    // drawRect outlines width + 1 pixels, which is the inclusive box.
    painter_.drawRect(box.x(), box.y(), box.width() - 1, box.height() - 1);
}

void Surface::FilledBox(int x1, int y1, int x2, int y2, const QColor& colour) {
    painter_.fillRect(PixelBox(x1, y1, x2, y2), colour);
}

void Surface::SetFont(const QFont& font) { painter_.setFont(font); }

int Surface::TextHeight(const QString&) const {
    return QFontMetrics(painter_.font(), painter_.device()).height() * TwipsPerPixel;
}

void Surface::Print(int x, int y, const QString& text, const QColor& colour) {
    painter_.setPen(colour);
    const QFontMetrics metrics(painter_.font(), painter_.device());
    painter_.drawText(QPoint(ToPixels(x), ToPixels(y) + metrics.ascent()), text);
}

void Surface::PaintPicture(const QImage& image, int x, int y, int width, int height) {
    if (image.isNull()) return;
    painter_.drawImage(QRect(ToPixels(x), ToPixels(y), ToPixels(width), ToPixels(height)), image);
}

}  // namespace jv::ui
