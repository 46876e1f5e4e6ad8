#include "network/sub_area.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"

namespace brooklet {
namespace {

constexpr int FieldWidth = 10;
constexpr int HeaderWidth = 40;
constexpr int LandUseNameWidth = 35;
constexpr int SoilGroupWidth = 5;
constexpr int FirstCodeColumn = 71;
constexpr int FirstCodeField = 7;
constexpr int LastCodeField = 11;
const char* const Header = "SUB-AREA:";

// The first column of the ten-column field n (1 from column 11, 2 from column 21, ...).
int columnOfTen(int n) {
    return 10 * n + 1;
}

bool anyGiven(const TextTable& table, int row, int first, int last) {
    for (int field = first; field <= last; ++field)
        if (!trim(table(field, row)).empty())
            return true;
    return false;
}

// The start of a detail record: twenty blanks and the keyword in columns 21-30.
std::string detailRecord(const std::string& keyword) {
    std::string record(20, ' ');
    AppendField(record, keyword, FieldWidth, false);
    return record;
}

void readFields(const std::string& line, TextTable& table, int row, int firstField,
                std::initializer_list<int> columns) {
    int field = firstField;
    for (int column : columns)
        table(field++, row) = FieldAt(line, column, FieldWidth);
}

void writeFields(std::string& record, const TextTable& table, int row, int first, int last, bool point) {
    for (int field = first; field <= last; ++field)
        AppendField(record, table(field, row), FieldWidth, point);
}

} // namespace

void ReadSubAreaSection(const std::vector<std::string>& lines, WatershedTables& tables) {
    for (size_t i = 1; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        if (trim(line).empty())
            return;
        if (!FieldAt(line, 11, FieldWidth).empty()) {
            const int row = addSubAreaRow(tables);
            for (int n = 1; n <= 6; ++n)
                tables.SubAreaTable(n, row) = FieldAt(line, columnOfTen(n), FieldWidth);
            for (int field = FirstCodeField; field <= LastCodeField; ++field)
                tables.SubAreaTable(field, row) = FieldAt(line, FirstCodeColumn + field - FirstCodeField, 1);
            continue;
        }
        const int row = tables.SubAreaCount;
        if (row < 1)
            continue;
        const std::string keyword = toUpper(FieldAt(line, 21, FieldWidth));
        TextTable& table = tables.SubAreaTable;
        if (keyword == "SHEET") {
            readFields(line, table, row, SheetFirstField, {31, 41, 51, 61});
        } else if (keyword == "SHALLOW") {
            readFields(line, table, row, ShallowFirstField, {31, 41, 61});
        } else if (keyword == "CHANNEL") {
            if (!FieldAt(line, 51, 30).empty())
                readFields(line, table, row, ChannelFirstField, {31, 41, 51, 61, 71});
            else {
                readFields(line, table, row, ChannelFirstField, {31});
                readFields(line, table, row, ChannelVelocityField, {41});
            }
        } else if (keyword == "LAND AREA" || keyword == "WEIGHT CN") {
            addLandUseRow(tables, row, FieldAt(line, 31, LandUseNameWidth), FieldAt(line, 66, SoilGroupWidth),
                          FieldAt(line, 71, FieldWidth));
        }
    }
}

std::vector<std::string> SubAreaSectionRecords(const WatershedTables& tables) {
    if (tables.SubAreaCount <= 0)
        return {};
    const TextTable& table = tables.SubAreaTable;
    std::vector<std::string> lines;
    lines.reserve(size_t(tables.SubAreaCount) * 2 + 2);
    std::string header;
    AppendField(header, Header, HeaderWidth, false);
    lines.push_back(header);
    for (int row = 1; row <= tables.SubAreaCount && row <= table.rows(); ++row) {
        std::string record(FieldWidth, ' ');
        writeFields(record, table, row, 1, 3, false);
        writeFields(record, table, row, 4, 6, true);
        for (int field = FirstCodeField; field <= LastCodeField; ++field)
            AppendField(record, table(field, row), 1, false);
        lines.push_back(record);

        if (anyGiven(table, row, SheetFirstField, SheetLastField)) {
            std::string sheet = detailRecord("SHEET");
            writeFields(sheet, table, row, 12, 14, true);
            writeFields(sheet, table, row, 15, 15, false);
            lines.push_back(sheet);
        }
        if (anyGiven(table, row, ShallowFirstField, ShallowLastField)) {
            std::string shallow = detailRecord("SHALLOW");
            writeFields(shallow, table, row, 16, 17, true);
            AppendField(shallow, "", FieldWidth, false);
            writeFields(shallow, table, row, 18, 18, false);
            lines.push_back(shallow);
        }
        if (anyGiven(table, row, ChannelFirstField, ChannelLastField)) {
            std::string channel = detailRecord("CHANNEL");
            bool longForm = true;
            for (int field = 20; field <= 23; ++field)
                longForm = longForm && !trim(table(field, row)).empty();
            writeFields(channel, table, row, ChannelFirstField, ChannelFirstField, true);
            if (longForm)
                writeFields(channel, table, row, 20, 23, true);
            else
                writeFields(channel, table, row, ChannelVelocityField, ChannelVelocityField, true);
            lines.push_back(channel);
        }
        const size_t at = size_t(row);
        const int first = at < tables.LandUseFirst.size() ? tables.LandUseFirst[at] : 0;
        const int last = at < tables.LandUseLast.size() ? tables.LandUseLast[at] : 0;
        if (first <= 0)
            continue;
        const TextTable& store = tables.LandUseStore;
        for (int position = first; position <= last && position <= store.rows(); ++position) {
            if (!(leadingNumber(store(3, position)) > 0))
                continue;
            std::string land = detailRecord("LAND AREA");
            AppendField(land, store(1, position), LandUseNameWidth, false);
            AppendField(land, store(2, position), SoilGroupWidth, false);
            AppendField(land, store(3, position), FieldWidth, true);
            lines.push_back(land);
        }
    }
    lines.emplace_back();
    return lines;
}

WriteResult WriteSubAreaSection(Session& session, const WatershedTables& tables) {
    const WriteResult written =
        writeLines(session.WorkFilePath[SubAreaSection], SubAreaSectionRecords(tables));
    session.DataChanged = true;
    return written;
}

} // namespace brooklet
