#include "options/global_output.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "options/option_record.h"

namespace brooklet {
namespace {

constexpr int SubAreaCodeColumn = 41;
constexpr int ReachCodeColumn = 51;
const char* const Header = "GLOBAL OUTPUT:";

// The code in one column, read as "Y" in any case.
bool codeAt(const std::string& line, int column) {
    return toUpper(FieldAt(line, column, 1)) == "Y";
}

template <size_t N> void appendCodes(std::string& line, const std::array<bool, N>& codes) {
    for (bool yes : codes)
        AppendField(line, yes ? "Y" : "N", 1, false);
}

} // namespace

GlobalOutputRecord ReadGlobalOutputSection(const std::vector<std::string>& lines) {
    GlobalOutputRecord record;
    if (lines.size() < 2)
        return record;
    const std::string& line = lines[1];
    for (int index = 1; index <= 3; ++index)
        record.box(index) = FieldAt(line, 1 + 10 * index, OptionFieldWidth);
    for (int k = 0; k < SubAreaCodeCount; ++k)
        record.SubAreaCodes[static_cast<size_t>(k)] = codeAt(line, SubAreaCodeColumn + k);
    for (int k = 0; k < ReachCodeCount; ++k)
        record.ReachCodes[static_cast<size_t>(k)] = codeAt(line, ReachCodeColumn + k);
    return record;
}

std::vector<std::string> WriteGlobalOutputSection(const GlobalOutputRecord& record) {
    bool empty = true;
    for (const std::string& box : record.Boxes)
        empty = empty && trim(box).empty();
    for (bool yes : record.SubAreaCodes)
        empty = empty && !yes;
    for (bool yes : record.ReachCodes)
        empty = empty && !yes;
    if (empty)
        return {};

    std::string line;
    AppendField(line, "", OptionFieldWidth, false);
    AppendField(line, trim(record.box(1)), OptionFieldWidth, false);
    AppendField(line, trim(record.box(2)), OptionFieldWidth, true);
    AppendField(line, trim(record.box(3)), OptionFieldWidth, true);
    appendCodes(line, record.SubAreaCodes);
    AppendField(line, "", ReachCodeColumn - SubAreaCodeColumn - SubAreaCodeCount, false);
    appendCodes(line, record.ReachCodes);
    return {OptionHeaderLine(Header), line};
}

} // namespace brooklet
