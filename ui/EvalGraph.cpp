#include "ui/EvalGraph.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "ui/ColourValue.h"

namespace jv::ui {

namespace {

constexpr int Margin = 4;

}  // namespace

EvalGraph::EvalGraph(QWidget* parent) : QWidget(parent) {
    setMinimumHeight(50);   // a short window still shows the move list above it
    setToolTip("The defenders' chances after each move, as the review scores them: click a point to show it");
}

void EvalGraph::SetChances(std::vector<double> chances, std::vector<bool> marked) {
    chances_ = std::move(chances);
    marked_ = std::move(marked);
    update();
}

void EvalGraph::SetShown(int position) {
    shown_ = position;
    update();
}

void EvalGraph::SetColours(const std::array<std::int32_t, 14>& table) {
    colours_ = table;
    update();
}

double EvalGraph::XOf(int position) const {
    const int n = Positions();
    const double span = width() - 2.0 * Margin;
    return Margin + (n <= 1 ? span / 2 : span * position / (n - 1));
}

int EvalGraph::PositionAt(int x) const {
    const int n = Positions();
    if (n == 0) return -1;
    const double span = width() - 2.0 * Margin;
    const double at = n <= 1 ? 0 : (x - Margin) * (n - 1) / span;
    return std::clamp(static_cast<int>(std::lround(at)), 0, n - 1);
}

void EvalGraph::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), ToQColor(colours_[12]));
    const double top = Margin, bottom = height() - Margin, middle = (top + bottom) / 2;
    const auto yOf = [&](double chance) { return bottom - chance * (bottom - top); };
    if (!chances_.empty()) {
        QPainterPath curve(QPointF(XOf(0), yOf(chances_.front())));
        for (int i = 1; i < Positions(); ++i) curve.lineTo(XOf(i), yOf(chances_[static_cast<std::size_t>(i)]));
        QPainterPath area = curve;
        area.lineTo(XOf(Positions() - 1), middle);
        area.lineTo(XOf(0), middle);
        area.closeSubpath();
        p.setRenderHint(QPainter::Antialiasing);
        p.save();
        p.setClipRect(QRectF(0, 0, width(), middle));
        p.fillPath(area, ToQColor(colours_[6]));
        p.setClipRect(QRectF(0, middle, width(), height() - middle));
        p.fillPath(area, ToQColor(colours_[7]));
        p.restore();
        p.setPen(QPen(ToQColor(colours_[8]), 1.5));
        p.drawPath(curve);
        p.setBrush(ToQColor(colours_[9]));
        for (std::size_t m = 0; m < marked_.size() && m + 1 < chances_.size(); ++m)
            if (marked_[m]) p.drawEllipse(QPointF(XOf(static_cast<int>(m) + 1), yOf(chances_[m + 1])), 3, 3);
    }
    p.setPen(QPen(ToQColor(colours_[4]), 1, Qt::DotLine));
    p.drawLine(QPointF(0, middle), QPointF(width(), middle));
    if (shown_ >= 0 && shown_ < Positions()) {
        p.setPen(QPen(ToQColor(colours_[10]), 2));
        p.drawLine(QPointF(XOf(shown_), top), QPointF(XOf(shown_), bottom));
    }
}

void EvalGraph::mousePressEvent(QMouseEvent* event) {
    const int position = PositionAt(static_cast<int>(event->position().x()));
    if (position >= 0) emit PositionClicked(position);
}

}  // namespace jv::ui
