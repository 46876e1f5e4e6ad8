#include "options/duration_increment.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "options/option_record.h"

namespace brooklet {
namespace {

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
    record.Days = toUpper(FieldAt(line, 41, OptionFieldWidth)) == "DAYS";
    for (int box = FirstDurationBox; box <= LastDurationBox; ++box)
        record.duration(box) = FieldAt(line, durationColumn(box), OptionFieldWidth);
    return record;
}

std::vector<std::string> WriteDurationIncrementSection(const DurationIncrementRecord& record) {
    bool allBlank = true;
    for (const std::string& duration : record.Durations)
        allBlank = allBlank && trim(duration).empty();
    if (allBlank)
        return {};
    std::string line = OptionHeaderLine(Header);
    AppendField(line, record.Days ? "Days" : "Hours", OptionFieldWidth, false);
    for (const std::string& duration : record.Durations)
        AppendField(line, trim(duration), OptionFieldWidth, true);
    return {line};
}

std::string DurationUnitWord(bool days) {
    return days ? "days" : "hr";
}

} // namespace brooklet
