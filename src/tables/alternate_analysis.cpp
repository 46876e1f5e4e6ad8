#include "tables/alternate_analysis.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"

#include <initializer_list>

namespace brooklet {
namespace {

constexpr int FieldWidth = 10;
constexpr int DescriptionWidth = 70;
constexpr int LandUseNameWidth = 35;
constexpr int SoilGroupWidth = 5;
constexpr int FirstCodeColumn = 71;
const char* const Header = "ALTERNATE ANALYSIS:";
const char* const ReachesOpening = "          REACHES";
const char* const AreasOpening = "          AREAS";

enum class OpenList { None, Reaches, Areas };

// The store's texts of one alternate's entries, by field.
class Entry {
public:
    Entry(TextArray3D& store, int alternate, int row) : store_(store), alternate_(alternate), row_(row) {}
    // Ten-column fields from First on, one field a column, as they stand in the record.
    void read(const std::string& line, int field, std::initializer_list<int> columns) {
        for (int column : columns)
            store_.set(field++, alternate_, row_, FieldAsItStands(line, column, FieldWidth));
    }
    // One-column codes from column 71 on, trimmed.
    void readCodes(const std::string& line, int first, int last) {
        for (int field = first; field <= last; ++field)
            store_.set(field, alternate_, row_, FieldAt(line, FirstCodeColumn + field - first, 1));
    }

private:
    TextArray3D& store_;
    int alternate_;
    int row_;
};

void readReachRecord(const std::string& line, WatershedTables& tables, int alternate) {
    if (!FieldAt(line, 11, FieldWidth).empty()) {
        Entry entry(tables.AlternateReaches, alternate, addAlternateReach(tables, alternate));
        entry.read(line, 1, {11, 21, 31, 41, 51, 61});
        entry.readCodes(line, 8, 13);
        return;
    }
    const int row = tables.AlternateReachCount[size_t(alternate)];
    if (row < 1)
        return;
    Entry entry(tables.AlternateReaches, alternate, row);
    const std::string keyword = toUpper(FieldAt(line, 21, FieldWidth));
    if (keyword == "BASE FLOW")
        entry.read(line, 7, {31});
    else if (keyword == "SPLIT FLOW")
        entry.read(line, 14, {31, 41, 51, 61, 71});
    else if (keyword == "REACH LOSS")
        entry.read(line, 19, {31, 41});
}

void readSubAreaRecord(const std::string& line, WatershedTables& tables, int alternate) {
    if (!FieldAt(line, 11, FieldWidth).empty()) {
        Entry entry(tables.AlternateSubAreas, alternate, addAlternateSubArea(tables, alternate));
        entry.read(line, 1, {11, 21, 31, 41, 51, 61});
        entry.readCodes(line, 7, 11);
        return;
    }
    const int row = tables.AlternateSubAreaCount[size_t(alternate)];
    if (row < 1)
        return;
    Entry entry(tables.AlternateSubAreas, alternate, row);
    const std::string keyword = toUpper(FieldAt(line, 21, FieldWidth));
    if (keyword == "SHEET") {
        entry.read(line, 12, {31, 41, 51, 61});
    } else if (keyword == "SHALLOW") {
        entry.read(line, 16, {31, 41, 61});
    } else if (keyword == "CHANNEL") {
        if (!FieldAt(line, 51, 30).empty()) {
            entry.read(line, 19, {31, 41, 51, 61, 71});
        } else {
            entry.read(line, 19, {31});
            entry.read(line, 24, {41});
        }
    } else if (keyword == "LAND AREA") {
        addAlternateLandUse(tables, alternate, row, FieldAt(line, 31, LandUseNameWidth),
                            FieldAt(line, 66, SoilGroupWidth), FieldAt(line, 71, FieldWidth));
    }
}

// Twenty blanks and the keyword in columns 21-30.
std::string keywordRecord(const std::string& keyword) {
    std::string record(20, ' ');
    AppendField(record, keyword, FieldWidth, false);
    return record;
}

bool given(const TextArray3D& store, int field, int alternate, int row) {
    return !trim(store(field, alternate, row)).empty();
}

void writeFields(std::string& record, const TextArray3D& store, int alternate, int row, int first, int last,
                 bool point) {
    for (int field = first; field <= last; ++field)
        AppendField(record, store(field, alternate, row), FieldWidth, point);
}

void writeCodes(std::string& record, const TextArray3D& store, int alternate, int row, int first, int last) {
    for (int field = first; field <= last; ++field)
        AppendField(record, store(field, alternate, row), 1, false);
}

void writeReach(std::vector<std::string>& lines, const TextArray3D& store, int alternate, int row) {
    std::string record(FieldWidth, ' ');
    writeFields(record, store, alternate, row, 1, 4, false);
    writeFields(record, store, alternate, row, 5, 6, true);
    writeCodes(record, store, alternate, row, 8, 13);
    lines.push_back(record);
    if (given(store, 7, alternate, row)) {
        std::string base = keywordRecord("BASE FLOW");
        writeFields(base, store, alternate, row, 7, 7, true);
        lines.push_back(base);
    }
    if (given(store, 14, alternate, row)) {
        std::string split = keywordRecord("SPLIT FLOW");
        writeFields(split, store, alternate, row, 14, 15, false);
        writeFields(split, store, alternate, row, 16, 18, true);
        lines.push_back(split);
    }
    if (given(store, 19, alternate, row) || given(store, 20, alternate, row)) {
        std::string loss = keywordRecord("REACH LOSS");
        writeFields(loss, store, alternate, row, 19, 20, false);
        lines.push_back(loss);
    }
}

void writeSubArea(std::vector<std::string>& lines, const WatershedTables& tables, int alternate, int row) {
    const TextArray3D& store = tables.AlternateSubAreas;
    std::string record(FieldWidth, ' ');
    writeFields(record, store, alternate, row, 1, 3, false);
    writeFields(record, store, alternate, row, 4, 6, true);
    writeCodes(record, store, alternate, row, 7, 11);
    lines.push_back(record);
    if (given(store, 12, alternate, row)) {
        std::string sheet = keywordRecord("SHEET");
        writeFields(sheet, store, alternate, row, 12, 14, true);
        writeFields(sheet, store, alternate, row, 15, 15, false);
        lines.push_back(sheet);
    }
    if (given(store, 16, alternate, row)) {
        std::string shallow = keywordRecord("SHALLOW");
        writeFields(shallow, store, alternate, row, 16, 17, true);
        writeFields(shallow, store, alternate, row, 18, 18, false);
        lines.push_back(shallow);
    }
    bool channel = false;
    bool longForm = true;
    for (int field = 19; field <= 24; ++field)
        channel = channel || given(store, field, alternate, row);
    for (int field = 20; field <= 23; ++field)
        longForm = longForm && given(store, field, alternate, row);
    if (channel) {
        std::string record = keywordRecord("CHANNEL");
        writeFields(record, store, alternate, row, 19, 19, true);
        if (longForm)
            writeFields(record, store, alternate, row, 20, 23, true);
        else
            writeFields(record, store, alternate, row, 24, 24, true);
        lines.push_back(record);
    }
    const int first = alternateLandUseFirst(tables, alternate, row);
    const int last = alternateLandUseLast(tables, alternate, row);
    if (first <= 0)
        return;
    const TextTable& landUse = tables.AlternateLandUse;
    for (int position = first; position <= last && position <= landUse.rows(); ++position) {
        std::string land = keywordRecord("LAND AREA");
        AppendField(land, landUse(1, position), LandUseNameWidth, false);
        AppendField(land, landUse(2, position), SoilGroupWidth, false);
        AppendField(land, landUse(3, position), FieldWidth, false);
        lines.push_back(land);
    }
}

int reachCount(const WatershedTables& tables, int alternate) {
    return tables.AlternateReachCount[size_t(alternate)];
}

int subAreaCount(const WatershedTables& tables, int alternate) {
    return tables.AlternateSubAreaCount[size_t(alternate)];
}

} // namespace

void ReadAlternateSection(const std::vector<std::string>& lines, WatershedTables& tables) {
    int alternate = 0;
    OpenList open = OpenList::None;
    for (size_t i = 1; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        if (trim(line).empty())
            return;
        if (!FieldAt(line, 1, FieldWidth).empty()) {
            alternate =
                addAlternate(tables, FieldAt(line, 1, FieldWidth), FieldAt(line, 11, DescriptionWidth));
            open = OpenList::None;
            continue;
        }
        const std::string list = toUpper(FieldAt(line, 11, FieldWidth));
        if (list == "AREAS" || list == "REACHES") {
            open = list == "AREAS" ? OpenList::Areas : OpenList::Reaches;
            continue;
        }
        if (alternate < 1 || open == OpenList::None)
            continue;
        if (open == OpenList::Reaches)
            readReachRecord(line, tables, alternate);
        else
            readSubAreaRecord(line, tables, alternate);
    }
}

std::vector<std::string> AlternateSectionRecords(const WatershedTables& tables) {
    std::vector<std::string> lines;
    for (int alternate = 1; alternate <= tables.AlternateCount; ++alternate) {
        const int reaches = reachCount(tables, alternate);
        const int subAreas = subAreaCount(tables, alternate);
        if (reaches <= 0 && subAreas <= 0)
            continue;
        if (lines.empty())
            lines.emplace_back(Header);
        std::string record;
        AppendField(record, tables.AlternateNames(1, alternate), FieldWidth, false);
        AppendField(record, tables.AlternateNames(2, alternate), DescriptionWidth, false);
        lines.push_back(record);
        if (reaches > 0) {
            lines.emplace_back(ReachesOpening);
            for (int row = 1; row <= reaches; ++row)
                writeReach(lines, tables.AlternateReaches, alternate, row);
        }
        if (subAreas > 0) {
            lines.emplace_back(AreasOpening);
            for (int row = 1; row <= subAreas; ++row)
                writeSubArea(lines, tables, alternate, row);
        }
    }
    if (!lines.empty())
        lines.emplace_back();
    return lines;
}

} // namespace brooklet
