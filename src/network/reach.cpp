#include "network/reach.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "editing/watershed_tables.h"

namespace brooklet {
namespace {

constexpr int FieldWidth = 10;
constexpr int HeaderWidth = 40;
constexpr int FirstCodeColumn = 71;
const char* const Header = "STREAM REACH:";

bool anyGiven(const TextTable& table, int row, int first, int last) {
    for (int field = first; field <= last; ++field)
        if (!trim(table(field, row)).empty())
            return true;
    return false;
}

// Twenty blanks and the keyword in columns 21-30.
std::string continuation(const std::string& keyword) {
    std::string record(20, ' ');
    AppendField(record, keyword, FieldWidth, false);
    return record;
}

void writeFields(std::string& record, const TextTable& table, int row, int first, int last, bool point) {
    for (int field = first; field <= last; ++field)
        AppendField(record, table(field, row), FieldWidth, point);
}

} // namespace

void ReadReachSection(const std::vector<std::string>& lines, TextTable& ReachTable, int& ReachCount) {
    ReachTable.redim(ReachFields, 1);
    ReachCount = 0;
    for (size_t i = 1; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        if (trim(line).empty())
            return;
        if (!FieldAt(line, 11, FieldWidth).empty()) {
            const int row = ++ReachCount;
            ReachTable.ensureRows(row);
            for (int n = 1; n <= 6; ++n)
                ReachTable(n, row) = FieldAt(line, 10 * n + 1, FieldWidth);
            for (int field = FirstReachCodeField; field <= LastReachCodeField; ++field)
                ReachTable(field, row) = FieldAt(line, FirstCodeColumn + field - FirstReachCodeField, 1);
            continue;
        }
        const int row = ReachCount;
        if (row < 1)
            continue;
        const std::string keyword = toUpper(FieldAt(line, 21, FieldWidth));
        if (keyword == "BASE FLOW") {
            ReachTable(BaseFlowField, row) = FieldAt(line, 31, FieldWidth);
        } else if (keyword == "SPLIT FLOW") {
            for (int field = FirstSplitField; field <= LastSplitField; ++field)
                ReachTable(field, row) = FieldAt(line, 31 + 10 * (field - FirstSplitField), FieldWidth);
        } else if (keyword == "REACH LOSS") {
            ReachTable(FirstLossField, row) = FieldAsItStands(line, 31, FieldWidth);
            ReachTable(LastLossField, row) = FieldAsItStands(line, 41, FieldWidth);
        }
    }
}

std::vector<std::string> ReachSectionRecords(const TextTable& ReachTable, int ReachCount) {
    const int rows = std::min(ReachCount, ReachTable.rows());
    bool named = false;
    for (int row = 1; row <= rows && !named; ++row)
        named = !trim(ReachTable(1, row)).empty();
    if (!named)
        return {};
    std::vector<std::string> lines;
    lines.reserve(size_t(rows) + 2);
    std::string header;
    AppendField(header, Header, HeaderWidth, false);
    lines.push_back(header);
    for (int row = 1; row <= rows; ++row) {
        std::string record(FieldWidth, ' ');
        writeFields(record, ReachTable, row, 1, 4, false);
        writeFields(record, ReachTable, row, 5, 6, true);
        for (int field = FirstReachCodeField; field <= LastReachCodeField; ++field)
            AppendField(record, ReachTable(field, row), 1, false);
        lines.push_back(record);
        if (!trim(ReachTable(BaseFlowField, row)).empty()) {
            std::string base = continuation("BASE FLOW ");
            writeFields(base, ReachTable, row, BaseFlowField, BaseFlowField, true);
            lines.push_back(base);
        }
        if (anyGiven(ReachTable, row, FirstSplitField, LastSplitField)) {
            std::string split = continuation("SPLIT FLOW");
            writeFields(split, ReachTable, row, 14, 15, false);
            writeFields(split, ReachTable, row, 16, 18, true);
            lines.push_back(split);
        }
        if (anyGiven(ReachTable, row, FirstLossField, LastLossField)) {
            std::string loss = continuation("REACH LOSS");
            writeFields(loss, ReachTable, row, FirstLossField, LastLossField, true);
            lines.push_back(loss);
        }
    }
    lines.emplace_back();
    return lines;
}

} // namespace brooklet
