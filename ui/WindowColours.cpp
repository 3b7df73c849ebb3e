#include "ui/WindowColours.h"

#include <QPalette>
#include <QPushButton>
#include <QWidget>

#include "ui/ColourValue.h"

namespace jv::ui {

QColor TextColourOn(const QColor& background) {
    const double luminance =
        0.299 * background.redF() + 0.587 * background.greenF() + 0.114 * background.blueF();
    return luminance > 0.5 ? QColor(20, 20, 20) : QColor(245, 245, 245);
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
