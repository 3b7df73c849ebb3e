#include "ui/BoardPicture.h"

#include <QPainter>
#include <algorithm>

namespace jv::ui {

BoardPicture::BoardPicture(const Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    setObjectName("Picture1");
}

void BoardPicture::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), QColor(222, 203, 160));
    const int w = game_.BoardWidth, h = game_.BoardHeight;
    if (w <= 0 || h <= 0) return;
    // Col runs down the picture, Row across it.
    const int side = std::max(1, std::min(width() / (h + 1), height() / (w + 1)));
    const int left = side / 2, top = side / 2;
    for (int col = 1; col <= w; ++col)
        for (int row = 1; row <= h; ++row) {
            const QRect box(left + (row - 1) * side, top + (col - 1) * side, side, side);
            p.setPen(QColor(90, 60, 30));
            p.setBrush(QColor(240, 226, 190));
            p.drawRect(box);
            const int code = game_.Board(col, row);
            const QRect piece = box.adjusted(side / 8, side / 8, -side / 8, -side / 8);
            if (col == game_.KingCol && row == game_.KingRow) {
                p.setBrush(QColor(230, 190, 40));
                p.drawEllipse(piece);
            } else if (code == DefenderCode) {
                p.setBrush(QColor(50, 180, 50));
                p.drawEllipse(piece);
            } else if (code == AttackerCode) {
                p.setBrush(QColor(200, 30, 30));
                p.drawEllipse(piece);
            } else if (code == HomeCode) {
                p.setBrush(QColor(130, 130, 130));
                p.drawRect(piece);
            }
        }
}

}  // namespace jv::ui
