#include "core/VbText.h"

#include <cctype>
#include <cmath>
#include <limits>

namespace jv {

std::string Format(long long n, std::string_view zeros) {
    const bool negative = n < 0;
    std::string digits = std::to_string(negative ? -n : n);
    if (digits.size() < zeros.size()) digits.insert(0, zeros.size() - digits.size(), '0');
    return negative ? "-" + digits : digits;
}

std::string Str(long long n) {
    return n < 0 ? std::to_string(n) : " " + std::to_string(n);
}

double Val(std::string_view text) {
    std::size_t i = 0;
    auto skipBlanks = [&] {
        while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
    };
    skipBlanks();
    double sign = 1;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
        sign = text[i] == '-' ? -1 : 1;
        ++i;
    }
    double value = 0;
    bool digits = false;
    for (; i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])); ++i) {
        value = value * 10 + (text[i] - '0');
        digits = true;
    }
    if (i < text.size() && text[i] == '.') {
        double scale = 0.1;
        for (++i; i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])); ++i) {
            value += (text[i] - '0') * scale;
            scale /= 10;
            digits = true;
        }
    }
    return digits ? sign * value : 0;
}

long long RoundHalfEven(double x) {
    // Infinity (Val of a number of more than 308 digits) is too large like
    // any other and saturates below; only NaN has no whole number.
    if (std::isnan(x)) return 0;
    const double r = std::nearbyint(x);   // the default rounding mode is half to even
    constexpr double limit = 9.0e18;
    if (r > limit) return static_cast<long long>(limit);
    if (r < -limit) return static_cast<long long>(-limit);
    return static_cast<long long>(r);
}

std::int32_t ValInt(std::string_view text) {
    const long long n = RoundHalfEven(Val(text));
    constexpr long long lo = std::numeric_limits<std::int32_t>::min();
    constexpr long long hi = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(n < lo ? lo : n > hi ? hi : n);
}

std::string Trim(std::string_view text) {
    std::size_t b = 0, e = text.size();
    while (b < e && text[b] == ' ') ++b;
    while (e > b && text[e - 1] == ' ') --e;
    return std::string(text.substr(b, e - b));
}

std::string Lower(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

std::string Upper(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return out;
}

}  // namespace jv
