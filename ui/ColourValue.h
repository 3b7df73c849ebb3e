#pragma once
#include <QColor>
#include <cstdint>

namespace jv::ui {

// The program keeps colours as 0x00BBGGRR values (red in the low byte).
inline QColor ToQColor(std::int32_t value) {
    const auto v = static_cast<std::uint32_t>(value);
    return QColor(static_cast<int>(v & 0xFF), static_cast<int>((v >> 8) & 0xFF),
                  static_cast<int>((v >> 16) & 0xFF));
}

inline std::int32_t FromQColor(const QColor& c) {
    return c.red() | (c.green() << 8) | (c.blue() << 16);
}

// White, colour 15 of the 16-colour palette: the light edge of the framed squares.
inline QColor PaletteWhite() { return QColor(255, 255, 255); }

}  // namespace jv::ui
