#pragma once
#include <QCheckBox>

namespace jv::ui {

// A check box whose caption wraps onto further lines in a narrow column
// instead of widening it; text() keeps the caption whole.
class WrappingCheckBox : public QCheckBox {
    Q_OBJECT
public:
    explicit WrappingCheckBox(const QString& text, QWidget* parent = nullptr);
    // As narrow as the caption's longest word allows.
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    // The whole box, caption lines included, takes the click.
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }

private:
    // The room the indicator takes left of the caption.
    int Indent() const;
    // The height of one line of the box, the indicator's row.
    int LineHeight() const { return QCheckBox::sizeHint().height(); }
    QRect CaptionRect(int width) const;
};

}  // namespace jv::ui
