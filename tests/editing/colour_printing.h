#pragma once
// Colours in test failure messages by their three components.
#include <ostream>

#include "editing/colours.h"

namespace brooklet {

inline void PrintTo(const Rgb& colour, std::ostream* out) {
    *out << "Rgb(" << int(colour.red) << ", " << int(colour.green) << ", " << int(colour.blue) << ")";
}

} // namespace brooklet
