#include "tables/storm_analysis.h"

#include "editing/field_checks.h"

namespace brooklet {
namespace {

const char* const Header = "STORM ANALYSIS:";
constexpr int HeaderWidth = 40;
constexpr int FieldWidth = 10;
constexpr int FirstFieldColumn = 11;

// The starting time and the two rainfalls are written with their point.
bool takesPoint(int column) {
    return column == 2 || column == 3 || column == 6;
}

} // namespace

std::vector<StormRecord> ReadStormSection(const std::vector<std::string>& lines) {
    std::vector<StormRecord> rows;
    for (size_t i = 1; i < lines.size(); ++i) {
        StormRecord row;
        for (int column = 0; column < StormFields; ++column)
            row[size_t(column)] = FieldAt(lines[i], FirstFieldColumn + FieldWidth * column, FieldWidth);
        rows.push_back(std::move(row));
    }
    return rows;
}

std::vector<std::string> WriteStormSection(const std::vector<StormRecord>& rows) {
    if (rows.empty())
        return {};
    std::vector<std::string> lines;
    lines.reserve(rows.size() + 1);
    std::string header;
    AppendField(header, Header, HeaderWidth, false);
    lines.push_back(header);
    for (const StormRecord& row : rows) {
        std::string line(FieldWidth, ' ');
        for (int column = 0; column < StormFields; ++column)
            AppendField(line, row[size_t(column)], FieldWidth, takesPoint(column));
        lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace brooklet
