#pragma once
#include <string>

class QWidget;

namespace jv::ui {

// Where the main window opens and how its place is kept between runs.

// Sizes and places the window before it is first shown: at the place kept in
// window.cfg in the program folder, made to fit the available area of the
// screen it lies on; without a kept place on any screen (no file, a broken
// one, a screen gone), at its default size, made to fit the primary screen's
// available area, centred there.
void PlaceWindow(QWidget& window, const std::string& programFolder);

// Keeps the window's size and place (its size before it was maximised, and
// that it was) in window.cfg, written through a temporary file and a rename.
// False when it cannot be written.
bool KeepWindowPlace(const QWidget& window, const std::string& programFolder);

}  // namespace jv::ui
