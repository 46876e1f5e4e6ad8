#include "check/watershed_records.h"

#include "base/text.h"
#include "editing/field_checks.h"

namespace brooklet {
namespace {

bool isBlank(const std::string& line) {
    return line.find_first_not_of(' ') == std::string::npos;
}

std::string keywordOf(const std::string& line) {
    return toUpper(FieldAt(line, 21, 10));
}

// The records of a section behind its header, up to its first blank line, as the editors read.
template <typename Visit> void eachRecord(const SectionText& text, Visit visit) {
    for (size_t i = 1; i < text.lines.size(); ++i) {
        if (isBlank(text.lines[i]))
            return;
        visit(text.lines[i], text.lineNumbers[i]);
    }
}

// A sub-area record, or a detail record of the sub-area read last.
void readSubAreaRecord(std::vector<SubAreaEntry>& subAreas, const std::string& line, int lineNumber) {
    if (!FieldAt(line, 11, 10).empty()) {
        SubAreaEntry entry;
        entry.id = FieldAt(line, 11, 10);
        entry.reach = FieldAt(line, 21, 10);
        entry.gage = FieldAt(line, 31, 10);
        entry.area = FieldAt(line, 41, 10);
        entry.curveNumber = FieldAt(line, 51, 10);
        entry.tc = FieldAt(line, 61, 10);
        for (int code = 0; code < 5; ++code)
            entry.codes[static_cast<size_t>(code)] = FieldAt(line, 71 + code, 1);
        entry.line = lineNumber;
        subAreas.push_back(std::move(entry));
        return;
    }
    if (subAreas.empty())
        return;
    SubAreaEntry& entry = subAreas.back();
    const std::string keyword = keywordOf(line);
    if (keyword == "LAND AREA" || keyword == "WEIGHT CN") {
        entry.landAreas.push_back(
            {FieldAt(line, 31, 35), FieldAt(line, 66, 5), FieldAt(line, 71, 10), lineNumber});
    } else if (keyword == "SHEET" || keyword == "SHALLOW" || keyword == "CHANNEL") {
        SubAreaEntry::Detail detail;
        detail.keyword = keyword;
        for (int field = 0; field < 5; ++field)
            detail.fields[static_cast<size_t>(field)] = FieldAt(line, 31 + 10 * field, 10);
        detail.line = lineNumber;
        entry.details.push_back(std::move(detail));
    }
}

// A reach record, or a continuation record of the reach read last.
void readReachRecord(std::vector<ReachEntry>& reaches, const std::string& line, int lineNumber) {
    if (!FieldAt(line, 11, 10).empty()) {
        ReachEntry entry;
        entry.id = FieldAt(line, 11, 10);
        entry.receiving = FieldAt(line, 21, 10);
        entry.crossSection = FieldAt(line, 31, 10);
        entry.structure = FieldAt(line, 41, 10);
        entry.channelLength = FieldAt(line, 51, 10);
        entry.valleyLength = FieldAt(line, 61, 10);
        for (int code = 0; code < 6; ++code)
            entry.codes[static_cast<size_t>(code)] = FieldAt(line, 71 + code, 1);
        entry.line = lineNumber;
        reaches.push_back(std::move(entry));
        return;
    }
    if (reaches.empty())
        return;
    ReachEntry& entry = reaches.back();
    const std::string keyword = keywordOf(line);
    if (keyword == "BASE FLOW") {
        entry.baseFlow = {FieldAt(line, 31, 10), lineNumber};
    } else if (keyword == "SPLIT FLOW") {
        for (int field = 0; field < 5; ++field)
            entry.split[static_cast<size_t>(field)] = FieldAt(line, 31 + 10 * field, 10);
        entry.splitLine = lineNumber;
    }
}

void readAlternates(const SectionText& text, std::vector<AlternateEntry>& alternates) {
    enum class List { None, Areas, Reaches } list = List::None;
    eachRecord(text, [&](const std::string& line, int lineNumber) {
        if (!FieldAt(line, 1, 10).empty()) {
            alternates.push_back({FieldAt(line, 1, 10), lineNumber, {}, {}});
            list = List::None;
            return;
        }
        const std::string opening = toUpper(FieldAt(line, 11, 10));
        if (opening == "AREAS" || opening == "REACHES") {
            list = opening == "AREAS" ? List::Areas : List::Reaches;
            return;
        }
        if (alternates.empty() || list == List::None)
            return;
        if (list == List::Areas)
            readSubAreaRecord(alternates.back().subAreas, line, lineNumber);
        else
            readReachRecord(alternates.back().reaches, line, lineNumber);
    });
}

void readStorms(const SectionText& text, std::vector<StormEntry>& storms) {
    // Every record behind the header is a storm record, as the storm window reads them.
    for (size_t i = 1; i < text.lines.size(); ++i) {
        const std::string& line = text.lines[i];
        if (isBlank(line))
            continue;
        storms.push_back({FieldAt(line, 11, 10), FieldAt(line, 21, 10), FieldAt(line, 31, 10),
                          FieldAt(line, 41, 10), FieldAt(line, 51, 10), FieldAt(line, 61, 10),
                          FieldAt(line, 71, 10), text.lineNumbers[i]});
    }
}

// Tables of an identifier record and rows of fixed fields: structure ratings and cross sections.
// FieldColumns are the identifier record's fields behind the identifier; a record with blank
// columns 11-20 is a row when any of RowTest's columns holds something.
void readRatingTables(const SectionText& text, std::vector<TableEntry>& tables,
                      std::initializer_list<int> fieldColumns, int rowValues, int rowTestWidth) {
    eachRecord(text, [&](const std::string& line, int lineNumber) {
        if (!FieldAt(line, 11, 10).empty()) {
            TableEntry table;
            table.id = FieldAt(line, 11, 10);
            for (int column : fieldColumns)
                table.fields.push_back(FieldAt(line, column, 10));
            table.line = lineNumber;
            tables.push_back(std::move(table));
            return;
        }
        if (tables.empty() || FieldAt(line, 21, rowTestWidth).empty())
            return;
        TableEntry::Row row;
        for (int value = 0; value < rowValues; ++value)
            row.values.push_back(FieldAt(line, 21 + 10 * value, 10));
        row.line = lineNumber;
        tables.back().rows.push_back(std::move(row));
    });
}

// The values of a value record, each non-blank field one row; blank fields leave no gap.
void readValues(TableEntry& table, const std::string& line, int lineNumber) {
    for (int field = 0; field < 5; ++field) {
        std::string value = FieldAt(line, 21 + 10 * field, 10);
        if (!value.empty())
            table.rows.push_back({{std::move(value)}, lineNumber});
    }
}

// Tables of an identifier record and value records: rain tables and input hydrographs.
void readValueTables(const SectionText& text, std::vector<TableEntry>& tables,
                     std::initializer_list<int> fieldColumns) {
    eachRecord(text, [&](const std::string& line, int lineNumber) {
        if (!FieldAt(line, 11, 10).empty()) {
            TableEntry table;
            table.id = FieldAt(line, 11, 10);
            for (int column : fieldColumns)
                table.fields.push_back(FieldAt(line, column, 10));
            table.line = lineNumber;
            tables.push_back(std::move(table));
        } else if (!tables.empty()) {
            readValues(tables.back(), line, lineNumber);
        }
    });
}

void readIdentification(const SectionText& text, IdentificationRecord& record) {
    if (text.lines.empty())
        return;
    const std::string& line = text.lines[0];
    record = {FieldAt(line, 41, 10), FieldAt(line, 51, 10), FieldAt(line, 61, 10),
              FieldAt(line, 71, 10), text.lineNumbers[0],   true};
}

void readLocalLandUses(const SectionText& text, std::vector<KnownLandUse>& landUses) {
    eachRecord(text, [&](const std::string& line, int) {
        KnownLandUse landUse;
        landUse.name = FieldAt(line, 1, 50);
        for (int group = 0; group < 4; ++group)
            landUse.curveNumbers[static_cast<size_t>(group)] = FieldAt(line, 51 + 5 * group, 5);
        if (!landUse.name.empty())
            landUses.push_back(std::move(landUse));
    });
}

} // namespace

WatershedRecords ReadWatershedRecords(const CheckInput& input) {
    WatershedRecords records;
    const auto& sections = input.sections;
    // At most one entry a line: room for them all at once.
    records.subAreas.reserve(sections[SubAreaSection].lines.size());
    records.reaches.reserve(sections[ReachSection].lines.size());
    for (int section = 1; section <= SectionCount; ++section)
        records.headerLine[section] =
            sections[section].lineNumbers.empty() ? 0 : sections[section].lineNumbers[0];
    eachRecord(sections[SubAreaSection], [&](const std::string& line, int number) {
        readSubAreaRecord(records.subAreas, line, number);
    });
    eachRecord(sections[ReachSection],
               [&](const std::string& line, int number) { readReachRecord(records.reaches, line, number); });
    readAlternates(sections[AlternateSection], records.alternates);
    readStorms(sections[StormSection], records.storms);
    readRatingTables(sections[StructureSection], records.structures, {21}, 3, 10);
    readRatingTables(sections[CrossSectionSection], records.crossSections, {21, 41, 51, 61}, 5, 50);
    readValueTables(sections[RainfallDistributionSection], records.rainTables, {31});
    readValueTables(sections[InputHydrographSection], records.inputHydrographs, {21, 31, 41, 51, 61, 71});
    eachRecord(sections[UnitHydrographSection], [&](const std::string& line, int number) {
        readValues(records.unitHydrograph, line, number);
    });
    records.unitHydrograph.line = records.headerLine[UnitHydrographSection];
    readIdentification(sections[IdentificationSection], records.identification);
    readLocalLandUses(sections[LocalLandUseSection], records.localLandUses);
    return records;
}

} // namespace brooklet
