#pragma once
#include <QColor>
#include <array>
#include <cstdint>

class QWidget;

namespace jv::ui {

// Colours the window from the colour table: entry 0 the window's
// background, 1 the buttons and panels, 12 the lists and the event log, and
// the command buttons in their own colour (CommandButtonColour).
// Text is dark on a light colour and light on a dark one.
void ApplyColourTable(QWidget& window, const std::array<std::int32_t, 14>& table);

// The contrast of two colours, from 1 (the same) to 21 (black on white), as
// the web's accessibility guidelines compute it; text reads well from 4.5.
double Contrast(const QColor& a, const QColor& b);
constexpr double ReadableContrast = 4.5;

// Near black or white, whichever reads better on the background.
QColor TextColourOn(const QColor& background);

// The colour itself when it reads well on the background, else the colour
// taken towards black or white (whichever the background allows) until it
// does: a scheme's green stays green, only darker.
QColor ReadableOn(const QColor& colour, const QColor& background);

// The colour of the command buttons: entry 13 of the colour table, set in
// the options dialog ("Adjust command button colours"), or the scheme's
// button colour (entry 1) while entry 13 is 0.
QColor CommandButtonColour(const std::array<std::int32_t, 14>& table);

// Colours a message box from the colour table: the lists' colour (entry 12)
// behind readable text, and the command buttons' colour.
void ColourMessageBox(QWidget& box, const std::array<std::int32_t, 14>& table);

// Gives every push button under root that colour, with readable text.
void ColourCommandButtons(QWidget& root, const QColor& face);

}  // namespace jv::ui
