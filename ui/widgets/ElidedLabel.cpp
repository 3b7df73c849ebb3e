#include "ui/widgets/ElidedLabel.h"

#include <QPainter>

namespace jv::ui {

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = contentsRect();
    painter.drawText(area, static_cast<int>(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, area.width()));
}

}  // namespace jv::ui
