#include "network/local_soil.h"

#include "editing/grid_control.h"
#include "editing/numbers.h"
#include "network/delimited_values.h"
#include "session/text_file.h"

#include <algorithm>

namespace brooklet {
namespace {

const char SoilGroupLetters[] = {'A', 'B', 'C', 'D'};

} // namespace

std::vector<SoilRow> ReadLocalSoilFile(const std::string& Path) {
    const auto bytes = readFileBytes(Path);
    return bytes ? ReadLocalSoilRecords(*bytes) : std::vector<SoilRow>();
}

std::vector<SoilRow> ReadLocalSoilRecords(const std::string& bytes) {
    std::vector<SoilRow> soils;
    DelimitedReader reader(bytes);
    while (!reader.atEnd()) {
        const std::string identifier = trim(reader.readItem());
        if (identifier.empty())
            continue;
        SoilRow soil;
        soil[0] = identifier;
        const std::string groups = toUpper(reader.readItem());
        for (size_t group = 0; group < std::size(SoilGroupLetters); ++group)
            if (groups.find(SoilGroupLetters[group]) != std::string::npos)
                soil[group + 1] = std::string(1, SoilGroupLetters[group]);
        soils.push_back(std::move(soil));
    }
    return soils;
}

std::string SoilGroups(const SoilRow& soil) {
    std::string joined;
    for (size_t field = 1; field < soil.size(); ++field) {
        const std::string group = trim(soil[field]);
        if (group.empty())
            continue;
        if (!joined.empty())
            joined += '/';
        joined += group;
    }
    return joined;
}

std::vector<std::string> LocalSoilFileLines(const LocalTable& table) {
    std::vector<std::string> lines;
    for (int row = 1; row <= table.Count; ++row) {
        const SoilRow soil = table.row(row);
        const std::string groups = SoilGroups(soil);
        if (!groups.empty() && !trim(soil[0]).empty())
            lines.push_back(QuotedRecord({soil[0], groups}));
    }
    lines.push_back(ClosingRecord);
    return lines;
}

std::vector<std::pair<std::string, std::string>> ReadSoilDisplay(const std::string& Path) {
    const auto bytes = readFileBytes(Path);
    return bytes ? ReadSoilDisplayRecords(*bytes) : std::vector<std::pair<std::string, std::string>>();
}

std::vector<std::pair<std::string, std::string>> ReadSoilDisplayRecords(const std::string& bytes) {
    std::vector<std::pair<std::string, std::string>> soils;
    DelimitedReader reader(bytes);
    while (!reader.atEnd()) {
        std::string identifier = reader.readItem();
        if (trim(identifier).empty())
            continue;
        std::string groups = reader.readItem();
        soils.emplace_back(std::move(identifier), std::move(groups));
    }
    std::stable_sort(soils.begin(), soils.end(),
                     [](const auto& a, const auto& b) { return toUpper(a.first) < toUpper(b.first); });
    return soils;
}

int FindSoilRow(const GridControl& Grid, int FirstRow, int LastRow, const std::string& Text) {
    if (Text.empty())
        return 0;
    const std::string wanted = toUpper(Text);
    for (int row = FirstRow; row <= LastRow; ++row)
        if (toUpper(Grid.cellText(row, 0).substr(0, wanted.size())) == wanted)
            return row;
    return 0;
}

bool LocalSoilFileOpens(const std::string& Path) {
    return readFileBytes(Path).has_value();
}

} // namespace brooklet
