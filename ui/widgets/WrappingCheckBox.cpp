#include "ui/widgets/WrappingCheckBox.h"

#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <algorithm>

namespace jv::ui {

namespace {

constexpr int Unbounded = 10000;
constexpr int Wrapped = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

}  // namespace

WrappingCheckBox::WrappingCheckBox(const QString& text, QWidget* parent) : QCheckBox(text, parent) {
    // Narrower than its caption in one line: a plain check box's policy would forbid that.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

int WrappingCheckBox::Indent() const {
    return style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
           style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
}

QRect WrappingCheckBox::CaptionRect(int width) const {
    // The first line stands level with the indicator, as in a plain check box.
    const int top = (LineHeight() - fontMetrics().height()) / 2;
    return {Indent(), top, std::max(1, width - Indent()), Unbounded};
}

QSize WrappingCheckBox::minimumSizeHint() const {
    int widest = 0;
    for (const QString& word : text().split(' ', Qt::SkipEmptyParts))
        widest = std::max(widest, fontMetrics().horizontalAdvance(word));
    const int width = Indent() + widest + 1;
    return {width, heightForWidth(width)};
}

int WrappingCheckBox::heightForWidth(int width) const {
    const QRect caption = CaptionRect(width);
    const int lines = fontMetrics().boundingRect(caption, Wrapped, text()).height();
    return std::max(LineHeight(), caption.top() * 2 + lines);
}

void WrappingCheckBox::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();   // the indicator alone, on the first line; the caption follows wrapped
    option.rect.setHeight(LineHeight());
    painter.drawControl(QStyle::CE_CheckBox, option);
    const QRect caption = CaptionRect(width());
    style()->drawItemText(&painter, caption, Wrapped, palette(), isEnabled(), text(), QPalette::WindowText);
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = fontMetrics().boundingRect(caption, Wrapped, text()).adjusted(-1, 0, 1, 0);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

}  // namespace jv::ui
