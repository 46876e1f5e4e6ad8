#include "options/verification.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "options/option_record.h"

namespace brooklet {
namespace {

constexpr int CheckWidth = 2;
constexpr int FirstCheckColumn = 21;
const char* const Header = "VERIFICATION:";

struct Group {
    const char* Name;
    int First;          // the check in col 21
    int Last;           // the last check written
    int LastReadColumn; // the last column a field is read from
};
constexpr Group Groups[] = {{"DATA PREP", 1, 30, 80}, {"PROCESSING", 31, 41, 43}};

} // namespace

bool IsVerificationCheck(int index) {
    return (index >= 1 && index <= 15) || (index >= 21 && index <= 29) ||
           (index >= 31 && index <= LastVerificationCheck);
}

VerificationRecord ReadVerificationSection(const std::vector<std::string>& lines) {
    VerificationRecord record;
    for (size_t n = 1; n < lines.size(); ++n) {
        const std::string& line = lines[n];
        const std::string name = toUpper(OptionLineName(line));
        for (const Group& group : Groups) {
            if (name != group.Name)
                continue;
            int index = group.First;
            for (int column = FirstCheckColumn; column <= group.LastReadColumn;
                 column += CheckWidth, ++index) {
                // A "Y" at a place that carries no check is passed over.
                if (IsVerificationCheck(index) && toUpper(FieldAt(line, column, 1)) == "Y")
                    record.Checks[static_cast<size_t>(index)] = true;
            }
        }
    }
    return record;
}

std::vector<std::string> WriteVerificationSection(const VerificationRecord& record) {
    // Only the places that carry a check are written; the reserved ones stay blank.
    auto isSet = [&record](int index) {
        return IsVerificationCheck(index) && record.Checks[static_cast<size_t>(index)];
    };
    bool anySet = false;
    for (int index = 1; index <= LastVerificationCheck; ++index)
        anySet = anySet || isSet(index);
    if (!anySet)
        return {};
    std::vector<std::string> lines{OptionHeaderLine(Header)};
    for (const Group& group : Groups) {
        std::string line = OptionNamedLine(group.Name);
        for (int index = group.First; index <= group.Last; ++index)
            AppendField(line, isSet(index) ? "Y" : "", CheckWidth, false);
        if (!trim(line.substr(FirstCheckColumn - 1)).empty())
            lines.push_back(line);
    }
    lines.emplace_back();
    return lines;
}

} // namespace brooklet
