#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace jv {

// The program's text and number conversions, in one place.

// A whole number written with at least as many digits as the pattern has
// zeros, e.g. Format(5, "00") is "05" and Format(-3, "00") is "-03".
std::string Format(long long n, std::string_view zeros);
// A number as text with a blank before a non-negative number: Str(5) is " 5".
std::string Str(long long n);
// The leading decimal number of a text (blanks skipped, an optional sign and
// a fraction allowed); 0 when the text starts with none.
double Val(std::string_view text);
// Val rounded half to even to a 32-bit whole number (saturating).
std::int32_t ValInt(std::string_view text);
// Rounding half to even: 2.5 -> 2, 3.5 -> 4, -2.5 -> -2; beyond +-9e18
// (infinity too) it saturates there, and NaN gives 0.
long long RoundHalfEven(double x);
// Blanks removed from both ends.
std::string Trim(std::string_view text);
// Lower-case ASCII.
std::string Lower(std::string_view text);
// Upper-case ASCII.
std::string Upper(std::string_view text);

}  // namespace jv
