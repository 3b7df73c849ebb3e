#pragma once
#include <QLabel>

namespace jv::ui {

// A one-line label that shows as much of its text as fits, cutting it in the
// middle ("moves...1902.txt") rather than at the end, so both the start and
// the ending of a file name stay readable; text() keeps the whole text.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    using QLabel::QLabel;
    // Any width will do: the label never widens its column.
    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace jv::ui
