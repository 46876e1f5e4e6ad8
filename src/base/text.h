#pragma once
// Plain text helpers that every layer uses, from the session core up.
#include <string>

namespace brooklet {

// Trims blanks on both sides (only the blank character, as the file format counts it).
std::string trim(const std::string& text);

// Upper case of ASCII letters; other bytes stay as they are.
std::string toUpper(std::string text);

} // namespace brooklet
