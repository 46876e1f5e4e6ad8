#pragma once
// What the records of the run-wide option sections share: a header line whose text stands in
// columns 1-40, and fields of ten columns.
#include <string>

#include "editing/field_checks.h"

namespace brooklet {

constexpr int OptionHeaderWidth = 40;
constexpr int OptionFieldWidth = 10;

// A section's header line: the header text blank-padded to 40 columns.
inline std::string OptionHeaderLine(const std::string& header) {
    std::string line;
    AppendField(line, header, OptionHeaderWidth, false);
    return line;
}

// The start of a line that goes by its name: cols 1-10 blank, the name in cols 11-20.
inline std::string OptionNamedLine(const std::string& name) {
    std::string line;
    AppendField(line, "", OptionFieldWidth, false);
    AppendField(line, name, OptionFieldWidth, false);
    return line;
}

// The name of such a line, the trim of its cols 11-20.
inline std::string OptionLineName(const std::string& line) {
    return FieldAt(line, 11, OptionFieldWidth);
}

} // namespace brooklet
