#pragma once
#include <QImage>
#include <QPushButton>
#include <QString>

namespace jv::ui {

// A flat push button that shows a picture filling it, with a tool tip. It
// can keep a text of its own, its tag (the options dialog keeps the name of
// the picture's file there). Checkable buttons show their checked state
// with a frame.
class PictureButton : public QPushButton {
    Q_OBJECT
public:
    explicit PictureButton(const QString& toolTip = {}, QWidget* parent = nullptr);

    void SetPicture(const QImage& picture);
    const QImage& Picture() const { return picture_; }

    const QString& Tag() const { return tag_; }
    void SetTag(const QString& tag) { tag_ = tag; }

    QSize sizeHint() const override { return {52, 52}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage picture_;
    QString tag_;
};

}  // namespace jv::ui
