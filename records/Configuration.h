#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Game.h"

namespace jv {

// The default symbol pictures (User, Computer, Home, King) and piece
// colours: QBColor(2) green, QBColor(4) dark red, QBColor(8) grey,
// QBColor(0) black.
inline constexpr std::array<const char*, 4> DefaultPictures{"player00.ico", "player10.ico", "home0.ico",
                                                            "king0.ico"};
inline constexpr std::array<std::int32_t, 4> DefaultPieceColours{32768, 128, 8421504, 0};

// Reads the configuration file into the game's settings; a file that cannot
// be read whole is rewritten with the defaults.
void ReadConfiguration(Game& g, const std::string& name);
// Takes the settings of a configuration file's text, all of them or, when it
// cannot be read whole, none (then it returns false).
bool ReadConfigurationText(Game& g, std::string_view text);
void WriteDefaultConfiguration(Game& g, const std::string& name);
// Writes the current settings; on failure shows the message and returns false.
bool WriteConfiguration(Game& g, const std::string& name);

// True when a file of that name exists (false for "" or a name ending in a
// folder separator).
bool FileExists(const std::string& name);

}  // namespace jv
