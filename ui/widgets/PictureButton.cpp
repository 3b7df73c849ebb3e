#include "ui/widgets/PictureButton.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace jv::ui {

PictureButton::PictureButton(const QString& toolTip, QWidget* parent) : QPushButton(parent) {
    setFlat(true);
    setToolTip(toolTip);
    setCursor(Qt::PointingHandCursor);
}

void PictureButton::SetPicture(const QImage& picture) {
    picture_ = picture;
    update();
}

void PictureButton::paintEvent(QPaintEvent*) {
    QStylePainter p(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    // A flat button draws its face only while pressed or checked.
    p.drawControl(QStyle::CE_PushButtonBevel, option);
    if (!picture_.isNull()) {
        const int margin = 5;
        QSize size = picture_.size().scaled(rect().adjusted(margin, margin, -margin, -margin).size(),
                                            Qt::KeepAspectRatio);
        const QRect target(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.drawImage(target, picture_);
    }
    if (isChecked()) {
        p.setPen(QPen(palette().color(QPalette::Highlight), 2));
        p.setBrush(Qt::NoBrush);
        p.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(3, 3, -3, -3);
        p.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

}  // namespace jv::ui
