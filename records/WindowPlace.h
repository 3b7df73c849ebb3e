#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace jv {

// The window's size and place, kept in "window.cfg" beside the configuration
// file: one line "x y width height maximised", the last 1 or 0.

inline constexpr const char* WindowFile = "window.cfg";

struct WindowPlace {
    int X = 0, Y = 0, Width = 0, Height = 0;
    bool Maximised = false;
    friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

// The place a text holds; nothing when its first line is not five whole
// numbers within a screen's reach, with a size of at least 100 by 100.
std::optional<WindowPlace> ReadWindowPlaceText(std::string_view text);

// The text of a place, its line ended by CR LF.
std::string WindowPlaceText(const WindowPlace& place);

}  // namespace jv
