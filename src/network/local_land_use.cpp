#include "network/local_land_use.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "network/delimited_values.h"
#include "network/standard_land_use.h"
#include "session/section_table.h"
#include "session/text_file.h"

#include <unordered_map>
#include <unordered_set>

namespace brooklet {
namespace {

constexpr int SectionNameWidth = 50;
// A row is kept on Accept when one of its curve numbers reaches this.
constexpr double SmallestKeptCurveNumber = 30.0;

bool isBlankText(const std::string& text) {
    return trim(text).empty();
}

// The key under which the merge compares names: trimmed, in upper case.
std::string mergeKey(const std::string& name) {
    return toUpper(trim(name));
}

// The name of a land use record, columns 31-65, trimmed.
std::string recordedLandUse(const std::string& line) {
    return FieldAt(line, 31, 35);
}

bool isAlternateLandUseLine(std::string_view line) {
    return line.compare(0, 8, "LAND USE") == 0;
}

bool isSubAreaLandUseLine(std::string_view line) {
    return line.size() >= 29 && line.compare(20, 9, "LAND AREA") == 0;
}

} // namespace

std::vector<LandUseRow> ReadLandUseRecords(const std::string& bytes, BlankName blankName) {
    std::vector<LandUseRow> rows;
    DelimitedReader reader(bytes);
    while (!reader.atEnd()) {
        LandUseRow row;
        row[0] = reader.readItem();
        if (isBlankText(row[0])) {
            if (blankName == BlankName::EndReading)
                break;
            if (blankName == BlankName::SkipLine)
                reader.skipLine();
            if (blankName != BlankName::DropRecord)
                continue;
        }
        for (size_t value = 1; value < row.size() && !reader.atEnd(); ++value)
            row[value] = reader.readItem();
        if (!isBlankText(row[0]))
            rows.push_back(std::move(row));
    }
    return rows;
}

std::vector<LandUseRow> ReadLocalLandUseFile(const std::string& Path, BlankName blankName) {
    const auto bytes = readFileBytes(Path);
    if (!bytes)
        return {};
    return ReadLandUseRecords(*bytes, blankName);
}

std::vector<std::string> LocalLandUseFileLines(const LocalTable& table) {
    std::vector<std::string> lines;
    for (int row = 1; row <= table.Count; ++row) {
        const LandUseRow values = table.row(row);
        if (isBlankText(values[0]))
            continue;
        bool curveNumber = false;
        for (size_t group = 1; group < values.size(); ++group)
            if (leadingNumber(values[group]) >= SmallestKeptCurveNumber)
                curveNumber = true;
        if (curveNumber)
            lines.push_back(QuotedRecord({values.begin(), values.end()}));
    }
    lines.push_back(ClosingRecord);
    return lines;
}

bool CurveNumberAccepted(int Index, const std::string& Text, const std::string& PreviousBoxText) {
    bool valid = true;
    ValidRealRange(true, 30, 100, Text, valid);
    if (Index >= 3 && leadingNumber(Text) < leadingNumber(PreviousBoxText))
        valid = false;
    return valid;
}

std::string MergedLandUseLine(const LandUseRow& row) {
    std::string line = "\"" + row[0] + "\",";
    for (size_t value = 1; value < row.size(); ++value)
        line += "," + row[value];
    return line;
}

WriteResult MergeLocalLandUse(const Session& session, bool& Changed) {
    Changed = false;
    std::vector<LandUseRow> table = ReadLocalLandUseFile(session.LocalLandUseFile, BlankName::SkipItem);

    const auto section = readFileBytes(session.WorkFilePath[LocalLandUseSection]);
    if (!section)
        return {};

    // Every name known so far, in the form the comparison takes.
    std::unordered_set<std::string> known;
    for (const LandUseRow& row : table)
        known.insert(mergeKey(row[0]));
    for (int row = 1; row <= StandardLandUseRows; ++row)
        known.insert(mergeKey(StandardLandUse()(row, 0)));

    DelimitedReader reader(*section);
    while (!reader.atEnd()) {
        std::string item = reader.readItem();
        if (isBlankText(item) || !known.insert(mergeKey(item)).second)
            continue;
        Changed = true;
        LandUseRow added;
        added[0] = std::move(item);
        table.push_back(std::move(added));
    }
    if (!Changed)
        return {};

    std::vector<std::string> lines;
    lines.reserve(table.size());
    for (const LandUseRow& row : table)
        lines.push_back(MergedLandUseLine(row));
    const WriteResult written = writeLines(session.LocalLandUseFile, lines, LocalFileWriting(session));
    Changed = written.ok;
    return written;
}

std::string LocalLandUseSectionRecord(const LandUseRow& row) {
    std::string record;
    AppendField(record, row[0], SectionNameWidth, false);
    for (size_t value = 1; value < row.size(); ++value)
        AppendField(record, row[value], SectionValueWidth, true);
    return record;
}

WriteResult BuildLocalLandUseSection(const Session& session) {
    const std::vector<LandUseRow> table =
        ReadLocalLandUseFile(session.LocalLandUseFile, BlankName::DropRecord);
    if (table.empty())
        return {}; // no local land use for any record to name
    std::vector<bool> used(table.size(), false);

    // The first row of each trimmed name: a record marks only the first row it matches.
    std::unordered_map<std::string, size_t> firstRow;
    for (size_t row = 0; row < table.size(); ++row)
        firstRow.emplace(trim(table[row][0]), row);
    bool anyUsed = false;
    auto markUsed = [&](std::string_view line) {
        const auto found = firstRow.find(recordedLandUse(std::string(line)));
        if (found == firstRow.end())
            return;
        used[found->second] = true;
        anyUsed = true;
    };
    auto markUsedBy = [&](int section, bool (*isLandUseLine)(std::string_view)) {
        LineReader reader(readFileBytes(session.WorkFilePath[section]).value_or(std::string()));
        while (!reader.atEnd()) {
            const std::string_view line = reader.nextLine();
            if (isLandUseLine(line))
                markUsed(line);
        }
    };
    markUsedBy(AlternateSection, isAlternateLandUseLine);
    markUsedBy(SubAreaSection, isSubAreaLandUseLine);
    if (!anyUsed)
        return {};

    std::vector<std::string> lines{"LOCAL LAND USE:"};
    for (size_t row = 0; row < table.size(); ++row)
        if (used[row])
            lines.push_back(LocalLandUseSectionRecord(table[row]));
    lines.emplace_back();
    return writeLines(session.WorkFilePath[LocalLandUseSection], lines);
}

} // namespace brooklet
