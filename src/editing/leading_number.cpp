#include "editing/leading_number.h"

#include <cmath>
#include <cstdlib>

namespace brooklet {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

double leadingNumber(const std::string& text) {
    size_t i = 0;
    const size_t n = text.size();
    while (i < n && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    std::string plain;
    if (i < n && (text[i] == '+' || text[i] == '-'))
        plain += text[i++];
    size_t digits = 0;
    while (i < n && isDigit(text[i])) {
        plain += text[i++];
        ++digits;
    }
    if (i < n && text[i] == '.') {
        plain += text[i++];
        while (i < n && isDigit(text[i])) {
            plain += text[i++];
            ++digits;
        }
    }
    if (digits == 0)
        return 0.0;
    if (i < n && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        std::string exponent = "E";
        size_t j = i + 1;
        if (j < n && (text[j] == '+' || text[j] == '-'))
            exponent += text[j++];
        size_t exponentDigits = 0;
        while (j < n && isDigit(text[j])) {
            exponent += text[j++];
            ++exponentDigits;
        }
        if (exponentDigits > 0)
            plain += exponent;
    }
    const double value = std::strtod(plain.c_str(), nullptr);
    return std::isfinite(value) ? value : 0.0;
}

} // namespace brooklet
