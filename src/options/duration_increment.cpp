#include "options/duration_increment.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"

namespace brooklet {
namespace {

constexpr int HeaderWidth = 40;
constexpr int FieldWidth = 10;
const char* const Header = "DURATION INCREMENT:";

// The first column of the duration in box Index: 51, 61, 71.
int durationColumn(int box) {
    return 31 + 10 * box;
}

} // namespace

DurationIncrementRecord ReadDurationIncrementSection(const std::vector<std::string>& lines) {
    DurationIncrementRecord record;
    if (lines.empty())
        return record;
    const std::string& line = lines.front();
    record.Days = toUpper(FieldAt(line, 41, FieldWidth)) == "DAYS";
    for (int box = FirstDurationBox; box <= LastDurationBox; ++box)
        record.duration(box) = FieldAt(line, durationColumn(box), FieldWidth);
    return record;
}

std::vector<std::string> WriteDurationIncrementSection(const DurationIncrementRecord& record) {
    bool allBlank = true;
    for (const std::string& duration : record.Durations)
        allBlank = allBlank && trim(duration).empty();
    if (allBlank)
        return {};
    std::string line;
    AppendField(line, Header, HeaderWidth, false);
    AppendField(line, record.Days ? "Days" : "Hours", FieldWidth, false);
    for (const std::string& duration : record.Durations)
        AppendField(line, trim(duration), FieldWidth, true);
    return {line};
}

std::string DurationUnitWord(bool days) {
    return days ? "days" : "hr";
}

} // namespace brooklet
