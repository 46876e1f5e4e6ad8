#pragma once
// Plain text helpers that every layer uses, from the session core up.
#include <string>
#include <string_view>

namespace brooklet {

// Trims blanks on both sides (only the blank character, as the file format counts it).
std::string trim(std::string_view text);

// Upper case of ASCII letters; other bytes stay as they are.
std::string toUpper(std::string text);

} // namespace brooklet
