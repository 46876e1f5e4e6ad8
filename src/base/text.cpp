#include "base/text.h"

namespace brooklet {

std::string trim(std::string_view text) {
    size_t first = 0;
    size_t last = text.size();
    while (first < last && text[first] == ' ')
        ++first;
    while (last > first && text[last - 1] == ' ')
        --last;
    return std::string(text.substr(first, last - first));
}

std::string toUpper(std::string text) {
    for (char& c : text)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return text;
}

} // namespace brooklet
