#include "ui/WindowColours.h"

#include <QPalette>
#include <QPushButton>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "ui/ColourValue.h"

namespace jv::ui {

namespace {

double Luminance(const QColor& c) {
    const auto linear = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
}

const QColor NearBlack(20, 20, 20), NearWhite(245, 245, 245);

}  // namespace

double Contrast(const QColor& a, const QColor& b) {
    const double x = Luminance(a), y = Luminance(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

QColor TextColourOn(const QColor& background) {
    return Contrast(NearBlack, background) >= Contrast(NearWhite, background) ? NearBlack : NearWhite;
}

QColor ReadableOn(const QColor& colour, const QColor& background) {
    const QColor end = Contrast(Qt::black, background) >= Contrast(Qt::white, background) ? Qt::black : Qt::white;
    QColor shown = colour;
    for (double part = 0.05; Contrast(shown, background) < ReadableContrast && part <= 1.0; part += 0.05)
        shown = QColor::fromRgbF(colour.redF() + (end.redF() - colour.redF()) * part,
                                 colour.greenF() + (end.greenF() - colour.greenF()) * part,
                                 colour.blueF() + (end.blueF() - colour.blueF()) * part);
    return shown;
}

void ApplyColourTable(QWidget& window, const std::array<std::int32_t, 14>& table) {
    const QColor windowBack = ToQColor(table[0]);
    const QColor face = ToQColor(table[1]);
    const QColor listBack = ToQColor(table[12]);
    QPalette palette = window.palette();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Window, windowBack);
        palette.setColor(group, QPalette::WindowText, TextColourOn(windowBack));
        palette.setColor(group, QPalette::Button, face);
        palette.setColor(group, QPalette::ButtonText, TextColourOn(face));
        palette.setColor(group, QPalette::Base, listBack);
        palette.setColor(group, QPalette::AlternateBase, listBack.darker(104));
        palette.setColor(group, QPalette::Text, TextColourOn(listBack));
        palette.setColor(group, QPalette::ToolTipBase, listBack);
        palette.setColor(group, QPalette::ToolTipText, TextColourOn(listBack));
        palette.setColor(group, QPalette::Highlight, ToQColor(table[4]));
        palette.setColor(group, QPalette::HighlightedText, TextColourOn(ToQColor(table[4])));
    }
    palette.setColor(QPalette::Disabled, QPalette::Window, windowBack);
    palette.setColor(QPalette::Disabled, QPalette::Button, face);
    palette.setColor(QPalette::Disabled, QPalette::Base, listBack);
    window.setPalette(palette);
    ColourCommandButtons(window, CommandButtonColour(table));
}

QColor CommandButtonColour(const std::array<std::int32_t, 14>& table) {
    return ToQColor(table[13] != 0 ? table[13] : table[1]);
}

void ColourMessageBox(QWidget& box, const std::array<std::int32_t, 14>& table) {
    const QColor back = ToQColor(table[12]);
    const QColor face = CommandButtonColour(table);
    QPalette palette = box.palette();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Window, back);
        palette.setColor(group, QPalette::WindowText, TextColourOn(back));
        palette.setColor(group, QPalette::Button, face);
        palette.setColor(group, QPalette::ButtonText, TextColourOn(face));
    }
    box.setPalette(palette);
}

void ColourCommandButtons(QWidget& root, const QColor& face) {
    for (QPushButton* button : root.findChildren<QPushButton*>()) {
        QPalette palette = button->palette();
        for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            palette.setColor(group, QPalette::Button, face);
        for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, QPalette::ButtonText, TextColourOn(face));
        button->setPalette(palette);
    }
}

}  // namespace jv::ui
