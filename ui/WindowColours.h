#pragma once
#include <QColor>
#include <array>
#include <cstdint>

class QWidget;

namespace jv::ui {

// Colours the window from the colour table: entry 0 the window's
// background, 1 the buttons and panels, 12 the lists and the event log.
// Text is dark on a light colour and light on a dark one.
void ApplyColourTable(QWidget& window, const std::array<std::int32_t, 14>& table);

// Near black or white, whichever reads better on the background.
QColor TextColourOn(const QColor& background);

}  // namespace jv::ui
