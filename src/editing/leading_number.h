#pragma once
// The value of the number a text begins with, as the grids compare their cells: leading blanks,
// a sign, digits with one point and an E or D exponent; reading stops at the first character
// that cannot continue the number. A text that begins with no number is worth 0.
#include <string>

namespace brooklet {

double leadingNumber(const std::string& text);

} // namespace brooklet
