#include "ui/widgets/ColourPicker.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QSlider>

namespace jv::ui {

namespace {
const char* const Names[3] = {"Red", "Green", "Blue"};
}

ColourPicker::ColourPicker(QWidget* parent) : QWidget(parent) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    for (int i = 0; i < 3; ++i) {
        auto* caption = new QLabel(Names[i]);
        sliders_[i] = new QSlider(Qt::Horizontal);
        sliders_[i]->setObjectName(Names[i]);
        sliders_[i]->setRange(0, 255);
        sliders_[i]->setPageStep(16);
        sliders_[i]->setToolTip(QString("%1 part of the colour, 0 to 255").arg(Names[i]));
        values_[i] = new QLabel("0");
        values_[i]->setMinimumWidth(values_[i]->fontMetrics().horizontalAdvance("2555"));
        values_[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(caption, i, 0);
        grid->addWidget(sliders_[i], i, 1);
        grid->addWidget(values_[i], i, 2);
        connect(sliders_[i], &QSlider::valueChanged, this, [this] {
            ShowColour();
            if (!setting_) emit ColourChanged(Colour());
        });
    }
    preview_ = new QFrame;
    preview_->setObjectName("Preview");
    preview_->setFrameShape(QFrame::Box);
    preview_->setMinimumSize(48, 48);
    preview_->setAutoFillBackground(true);
    preview_->setToolTip("The colour the three sliders make");
    grid->addWidget(preview_, 0, 3, 3, 1);
    grid->setColumnStretch(1, 1);
    ShowColour();
}

QColor ColourPicker::Colour() const {
    return QColor(sliders_[0]->value(), sliders_[1]->value(), sliders_[2]->value());
}

void ColourPicker::SetColour(const QColor& colour) {
    setting_ = true;
    sliders_[0]->setValue(colour.red());
    sliders_[1]->setValue(colour.green());
    sliders_[2]->setValue(colour.blue());
    setting_ = false;
    ShowColour();
}

void ColourPicker::ShowColour() {
    for (int i = 0; i < 3; ++i) values_[i]->setNum(sliders_[i]->value());
    QPalette palette = preview_->palette();
    palette.setColor(QPalette::Window, Colour());
    preview_->setPalette(palette);
}

}  // namespace jv::ui
