#include "options/time_analysis.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "options/option_record.h"

namespace brooklet {
namespace {

const char* const Header = "TIME ANALYSIS:";

struct Row {
    const char* Name;
    int First;
    int Last;
};
constexpr Row Rows[] = {{"FLOW", FirstFlowBox, LastFlowBox},
                        {"ELEVATION", FirstElevationBox, LastElevationBox}};

// The first column of the level in box Index of its row: 21, 31, 41, 51.
int levelColumn(const Row& row, int box) {
    return 21 + 10 * (box - row.First);
}

} // namespace

TimeAnalysisRecord ReadTimeAnalysisSection(const std::vector<std::string>& lines) {
    TimeAnalysisRecord record;
    for (size_t i = 1; i < lines.size(); ++i) {
        const std::string name = OptionLineName(lines[i]);
        for (const Row& row : Rows)
            if (name == row.Name)
                for (int box = row.First; box <= row.Last; ++box)
                    record.box(box) = FieldAt(lines[i], levelColumn(row, box), OptionFieldWidth);
    }
    return record;
}

std::vector<std::string> WriteTimeAnalysisSection(const TimeAnalysisRecord& record) {
    // A row depends on its first box, as it stands.
    if (record.box(FirstFlowBox).empty() && record.box(FirstElevationBox).empty())
        return {};
    std::vector<std::string> lines{OptionHeaderLine(Header)};
    for (const Row& row : Rows) {
        if (record.box(row.First).empty())
            continue;
        std::string line = OptionNamedLine(row.Name);
        for (int box = row.First; box <= row.Last; ++box)
            AppendField(line, trim(record.box(box)), OptionFieldWidth, true);
        lines.push_back(line);
    }
    return lines;
}

} // namespace brooklet
