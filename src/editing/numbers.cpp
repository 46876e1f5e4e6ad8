#include "editing/numbers.h"

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace brooklet {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isSign(char c) {
    return c == '+' || c == '-';
}
bool isBlank(char c) {
    return c == ' ';
}

// Reads digits with one point and its decimals from position i into plain; with separators,
// thousands separators may stand between the whole digits. Gives the number of digits read.
size_t scanMantissa(const std::string& text, size_t& i, std::string& plain, bool separators) {
    const size_t n = text.size();
    size_t digits = 0;
    while (i < n) {
        if (isDigit(text[i])) {
            plain += text[i++];
            ++digits;
        } else if (separators && text[i] == ',' && digits > 0 && i + 1 < n && isDigit(text[i + 1])) {
            ++i;
        } else {
            break;
        }
    }
    if (i < n && text[i] == '.') {
        plain += text[i++];
        while (i < n && isDigit(text[i])) {
            plain += text[i++];
            ++digits;
        }
    }
    return digits;
}

enum class Exponent { None, Read, Broken };

// Reads an E or D exponent with its sign and digits from position i into plain, as "E".
// An exponent letter without digits is Broken and reads nothing.
Exponent scanExponent(const std::string& text, size_t& i, std::string& plain) {
    const size_t n = text.size();
    if (i >= n || (text[i] != 'e' && text[i] != 'E' && text[i] != 'd' && text[i] != 'D'))
        return Exponent::None;
    std::string exponent = "E";
    size_t j = i + 1;
    if (j < n && isSign(text[j]))
        exponent += text[j++];
    size_t digits = 0;
    while (j < n && isDigit(text[j])) {
        exponent += text[j++];
        ++digits;
    }
    if (digits == 0)
        return Exponent::Broken;
    plain += exponent;
    i = j;
    return Exponent::Read;
}

// Parses the trimmed text and, on success, gives the plain form that strtod reads:
// sign, digits, point, exponent with E.
std::optional<std::string> plainNumber(const std::string& raw) {
    const std::string text = trim(raw);
    size_t i = 0;
    const size_t n = text.size();
    char sign = 0;
    bool currency = false;
    // Leading sign and currency sign, in either order, each at most once.
    for (int k = 0; k < 2 && i < n; ++k) {
        if (isSign(text[i]) && !sign) {
            sign = text[i++];
        } else if (text[i] == '$' && !currency) {
            currency = true;
            ++i;
        }
        while (i < n && isBlank(text[i]))
            ++i;
    }
    std::string plain;
    if (sign == '-')
        plain += '-';
    if (scanMantissa(text, i, plain, true) == 0)
        return std::nullopt;
    if (scanExponent(text, i, plain) == Exponent::Broken)
        return std::nullopt;
    if (i < n && text[i] == '$' && !currency) {
        currency = true;
        ++i;
    }
    while (i < n && isBlank(text[i]))
        ++i;
    // A sign behind the number, when none stood before it.
    if (i < n && isSign(text[i]) && !sign) {
        if (text[i] == '-')
            plain.insert(plain.begin(), '-');
        ++i;
    }
    if (i != n)
        return std::nullopt;
    return plain;
}

} // namespace

bool isNumericText(const std::string& text) {
    return plainNumber(text).has_value();
}

std::optional<double> numericValue(const std::string& text) {
    const auto plain = plainNumber(text);
    if (!plain)
        return std::nullopt;
    errno = 0;
    const double value = std::strtod(plain->c_str(), nullptr);
    if (errno == ERANGE && std::isinf(value))
        return std::nullopt;
    if (!std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<float> toSingle(const std::string& text) {
    const auto value = numericValue(text);
    if (!value || std::fabs(*value) > FLT_MAX)
        return std::nullopt;
    return static_cast<float>(*value);
}

double roundHalfEven(double value) {
    const double floor = std::floor(value);
    const double fraction = value - floor;
    if (fraction > 0.5)
        return floor + 1.0;
    if (fraction < 0.5)
        return floor;
    return std::fmod(floor, 2.0) == 0.0 ? floor : floor + 1.0;
}

double roundHalfEven(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    return roundHalfEven(value * scale) / scale;
}

std::optional<int16_t> toInteger16(const std::string& text) {
    const auto value = numericValue(text);
    if (!value)
        return std::nullopt;
    const double rounded = roundHalfEven(*value);
    if (rounded < std::numeric_limits<int16_t>::min() || rounded > std::numeric_limits<int16_t>::max())
        return std::nullopt;
    return static_cast<int16_t>(rounded);
}

double leadingNumber(const std::string& text) {
    size_t i = 0;
    const size_t n = text.size();
    while (i < n && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    std::string plain;
    if (i < n && isSign(text[i]))
        plain += text[i++];
    if (scanMantissa(text, i, plain, false) == 0)
        return 0.0;
    scanExponent(text, i, plain);
    const double value = std::strtod(plain.c_str(), nullptr);
    return std::isfinite(value) ? value : 0.0;
}

std::string NumberText(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%.15g", value == 0.0 ? 0.0 : value);
    return text;
}

std::string ExactNumberText(double value) {
    char text[40];
    for (int digits = 15; digits <= 17; ++digits) {
        std::snprintf(text, sizeof text, "%.*g", digits, value == 0.0 ? 0.0 : value);
        if (std::strtod(text, nullptr) == value)
            break;
    }
    return text;
}

std::string NumberText(float value) {
    char text[40];
    for (int digits = 6; digits <= 9; ++digits) {
        std::snprintf(text, sizeof text, "%.*g", digits, double(value == 0.0f ? 0.0f : value));
        if (std::strtof(text, nullptr) == value)
            break;
    }
    return text;
}

} // namespace brooklet
