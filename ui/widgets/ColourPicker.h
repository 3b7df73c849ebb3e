#pragma once
#include <QColor>
#include <QWidget>
#include <array>

class QFrame;
class QLabel;
class QSlider;

namespace jv::ui {

// The RGB colour picker: three sliders, red, green and blue (0-255), each
// with its value beside it, and a preview of the colour they make.
class ColourPicker : public QWidget {
    Q_OBJECT
public:
    explicit ColourPicker(QWidget* parent = nullptr);

    QColor Colour() const;
    // Moves the sliders to a colour without reporting a change.
    void SetColour(const QColor& colour);

    // The slider of a component: 0 red, 1 green, 2 blue.
    QSlider* Slider(int component) const { return sliders_[component]; }
    QFrame* Preview() const { return preview_; }

signals:
    // The user moved a slider: the colour the sliders make now.
    void ColourChanged(const QColor& colour);

private:
    void ShowColour();

    std::array<QSlider*, 3> sliders_{};
    std::array<QLabel*, 3> values_{};
    QFrame* preview_ = nullptr;
    bool setting_ = false;
};

}  // namespace jv::ui
