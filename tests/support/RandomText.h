#pragma once
#include <random>
#include <string>

namespace jv::test {

// A text of random length below maxLength: any bytes on odd rounds, else
// characters drawn from alphabet (text that looks nearly right).
inline std::string RandomText(std::mt19937& random, int round, unsigned maxLength, const std::string& alphabet) {
    std::string text(random() % maxLength, '\0');
    for (char& c : text)
        c = round % 2 ? static_cast<char>(random() % 256) : alphabet[random() % alphabet.size()];
    return text;
}

}  // namespace jv::test
