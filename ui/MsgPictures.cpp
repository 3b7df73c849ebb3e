#include "ui/MsgPictures.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <cmath>

namespace jv::ui {

namespace {

// Every picture is drawn on a 48 by 48 grid and scaled.
void Glyph(QPainter& p, const QRectF& box, const QString& text, const QColor& colour, int pixelSize) {
    QFont font;
    font.setBold(true);
    font.setPixelSize(pixelSize);
    p.setFont(font);
    p.setPen(colour);
    p.drawText(box, Qt::AlignCenter, text);
}

void Disc(QPainter& p, const QColor& fill, const QString& text) {
    p.setPen(QPen(fill.darker(140), 2));
    p.setBrush(fill);
    p.drawEllipse(QRectF(4, 4, 40, 40));
    Glyph(p, QRectF(4, 4, 40, 40), text, Qt::white, 28);
}

void Bulb(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 236, 120, 120));
    p.drawEllipse(QRectF(2, 0, 44, 40));
    p.setPen(QPen(QColor(190, 140, 0), 2));
    p.setBrush(QColor(255, 214, 40));
    p.drawEllipse(QRectF(12, 6, 24, 24));
    p.setBrush(QColor(150, 150, 160));
    p.drawRect(QRectF(18, 30, 12, 10));
    p.drawLine(QPointF(18, 34), QPointF(30, 34));
    p.drawLine(QPointF(20, 44), QPointF(28, 44));
}

void Shield(QPainter& p) {
    p.setPen(QPen(QColor(90, 60, 20), 2));
    p.setBrush(QColor(200, 150, 60));
    p.drawEllipse(QRectF(4, 4, 40, 40));
    p.setPen(QPen(QColor(70, 40, 10), 3, Qt::SolidLine, Qt::RoundCap));
    // An elk-sedge rune: a stem and three tines.
    p.drawLine(QPointF(24, 12), QPointF(24, 38));
    p.drawLine(QPointF(24, 24), QPointF(14, 13));
    p.drawLine(QPointF(24, 24), QPointF(34, 13));
}

void Bin(QPainter& p) {
    p.setPen(QPen(QColor(70, 70, 80), 2));
    p.setBrush(QColor(170, 175, 185));
    p.drawPolygon(QPolygonF({QPointF(12, 14), QPointF(36, 14), QPointF(33, 44), QPointF(15, 44)}));
    p.drawRect(QRectF(9, 9, 30, 5));
    p.drawRect(QRectF(20, 5, 8, 4));
    for (int x : {19, 24, 29}) p.drawLine(QPointF(x, 19), QPointF(x, 39));
}

void Printer(QPainter& p) {
    p.setPen(QPen(QColor(60, 60, 70), 2));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(14, 4, 20, 14));
    p.setBrush(QColor(120, 125, 140));
    p.drawRoundedRect(QRectF(5, 17, 38, 17), 3, 3);
    p.setBrush(Qt::white);
    p.drawRect(QRectF(13, 29, 22, 15));
    p.drawLine(QPointF(17, 35), QPointF(31, 35));
    p.drawLine(QPointF(17, 39), QPointF(28, 39));
    p.setBrush(QColor(90, 200, 90));
    p.drawEllipse(QRectF(35, 21, 4, 4));
}

void Happy(QPainter& p) {
    p.setPen(QPen(QColor(190, 140, 0), 2));
    p.setBrush(QColor(255, 214, 40));
    p.drawEllipse(QRectF(4, 4, 40, 40));
    p.setBrush(QColor(60, 40, 0));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QRectF(15, 15, 5, 7));
    p.drawEllipse(QRectF(28, 15, 5, 7));
    p.setPen(QPen(QColor(60, 40, 0), 3, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(13, 14, 22, 20), 200 * 16, 140 * 16);
}

void Critical(QPainter& p) {
    p.setPen(QPen(QColor(140, 10, 10), 2));
    p.setBrush(QColor(215, 35, 35));
    p.drawEllipse(QRectF(4, 4, 40, 40));
    p.setPen(QPen(Qt::white, 5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(16, 16), QPointF(32, 32));
    p.drawLine(QPointF(32, 16), QPointF(16, 32));
}

void Error(QPainter& p) {
    QPolygonF octagon;
    for (int i = 0; i < 8; ++i) {
        const double angle = (22.5 + 45.0 * i) * M_PI / 180.0;
        octagon << QPointF(24 + 21 * std::cos(angle), 24 + 21 * std::sin(angle));
    }
    p.setPen(QPen(QColor(130, 20, 0), 2));
    p.setBrush(QColor(225, 70, 20));
    p.drawPolygon(octagon);
    Glyph(p, QRectF(4, 4, 40, 40), "!", Qt::white, 30);
}

void Exclamation(QPainter& p) {
    p.setPen(QPen(QColor(170, 120, 0), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(QColor(255, 200, 30));
    p.drawPolygon(QPolygonF({QPointF(24, 4), QPointF(45, 43), QPointF(3, 43)}));
    Glyph(p, QRectF(4, 14, 40, 30), "!", QColor(40, 30, 0), 26);
}

}  // namespace

QPixmap MsgPicture(int index, int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 48.0, size / 48.0);
    switch (index) {
        case 0: Bulb(p); break;
        case 1: Shield(p); break;
        case 2: Bin(p); break;
        case 3: Printer(p); break;
        case 4: Happy(p); break;
        case 5: Critical(p); break;
        case 6: Error(p); break;
        case 7: Exclamation(p); break;
        case 8: Disc(p, QColor(40, 100, 200), "?"); break;
        case 9: Disc(p, QColor(40, 100, 200), "i"); break;
        default: break;
    }
    return pixmap;
}

}  // namespace jv::ui
