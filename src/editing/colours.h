#pragma once
// The colours a field or grid cell takes by the result of its check, the same in every window.
#include <cstdint>

namespace brooklet {

struct Rgb {
    uint8_t red, green, blue;
    constexpr bool operator==(const Rgb& o) const {
        return red == o.red && green == o.green && blue == o.blue;
    }
    constexpr bool operator!=(const Rgb& o) const { return !(*this == o); }
};

constexpr Rgb UntouchedColour{255, 255, 255}; // white: nothing checked yet
constexpr Rgb AcceptedColour{0, 255, 255};    // cyan: passed its check
constexpr Rgb RefusedColour{255, 0, 0};       // pure red: failed its check
constexpr Rgb CurrentColour{0, 255, 0};       // green: the current cell or row

} // namespace brooklet
