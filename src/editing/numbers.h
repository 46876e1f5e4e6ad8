#pragma once
// The number rules every window uses: what a typed text must look like to count as a number,
// its value, the conversions to single precision and to 16-bit integers, and rounding.
#include <cstdint>
#include <optional>
#include <string>

#include "base/text.h"

namespace brooklet {

// True when the text, trimmed, is a number: an optional sign before or after it, a currency
// sign, digits with thousands separators, one decimal point and an E or D exponent.
bool isNumericText(const std::string& text);

// The value of a numeric text; nothing when the text is not numeric or beyond double range.
std::optional<double> numericValue(const std::string& text);

// The value as a single-precision real; nothing when it lies beyond that range.
std::optional<float> toSingle(const std::string& text);

// The value rounded to the nearest whole number, a half going to the even neighbour,
// as a 16-bit integer; nothing when it lies beyond that range.
std::optional<int16_t> toInteger16(const std::string& text);

// Rounds to the nearest whole number, halves to the even neighbour.
double roundHalfEven(double value);

// Rounds to the given number of decimals, halves to the even neighbour.
double roundHalfEven(double value, int decimals);

// The value of the number a text begins with, as the grids compare their cells: leading blanks,
// a sign, digits with one point and an E or D exponent; reading stops at the first character
// that cannot continue the number. A text that begins with no number is worth 0.
double leadingNumber(const std::string& text);

// A number as plain text, without leading blank: a double in up to 15 significant digits, a
// single in as few digits as give the value back.
std::string NumberText(double value);
std::string NumberText(float value);
// A double in as few digits as give the value back, up to 17: the sum 0.1 + 0.2 is
// "0.30000000000000004", where NumberText gives "0.3".
std::string ExactNumberText(double value);

} // namespace brooklet
