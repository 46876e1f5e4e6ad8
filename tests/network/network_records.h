#pragma once
// Records of the sub-area and reach sections for tests, built field by field, and the sections
// of the reference input file tests/data/network.inp.
#include <initializer_list>
#include <string>
#include <vector>

#include "session/text_file.h"
#include "support/program_folder.h"

namespace brooklet::test {

using Lines = std::vector<std::string>;

// A field of Width columns, left-justified and blank-padded.
inline std::string pad(std::string text, size_t width = 10) {
    if (text.size() < width)
        text.resize(width, ' ');
    return text;
}

// A record of ten-column fields from column 1.
inline std::string tens(std::initializer_list<std::string> fields) {
    std::string record;
    for (const std::string& text : fields)
        record += pad(text);
    return record;
}

// A land use record: name, soil group and area in their columns.
inline std::string landArea(const std::string& name, const std::string& soil, const std::string& area) {
    return tens({"", "", "LAND AREA"}) + pad(name, 35) + pad(soil, 5) + pad(area);
}

inline const std::string SubAreaHeader = pad("SUB-AREA:", 40);
inline const std::string ReachHeader = pad("STREAM REACH:", 40);

// The lines of a section of the reference file, from its header to its closing empty line.
inline Lines sectionOf(const std::string& header) {
    LineReader reader(bytesOf(testDataPath("network.inp")));
    Lines lines;
    bool inside = false;
    while (!reader.atEnd()) {
        std::string line = reader.readLine();
        if (line.rfind(header, 0) == 0)
            inside = true;
        if (!inside)
            continue;
        lines.push_back(line);
        if (line.empty())
            break;
    }
    return lines;
}

} // namespace brooklet::test
