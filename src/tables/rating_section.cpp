#include "tables/rating_section.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"

#include <algorithm>

namespace brooklet {
namespace {

constexpr int HeaderWidth = 40;
constexpr int IdentifierColumn = 11;
constexpr int IdentifierWidth = 10;

int fieldCount(const std::vector<RecordField>& record) {
    int count = 0;
    for (const RecordField& field : record)
        count = std::max(count, field.Field);
    return count;
}

// Each field of the record that goes to a table field, with its first column.
template <typename Visit> void walkFields(const std::vector<RecordField>& record, Visit visit) {
    int column = 1;
    for (const RecordField& field : record) {
        if (field.Field > 0)
            visit(field, column);
        column += field.Width;
    }
}

template <typename Text> std::string writeRecord(const std::vector<RecordField>& record, Text text) {
    std::string line;
    for (const RecordField& field : record)
        AppendField(line, field.Field > 0 ? text(field.Field) : std::string(), field.Width, field.AddPoint);
    return line;
}

} // namespace

int RatingLayout::identifierFields() const {
    return fieldCount(IdentifierRecord);
}

int RatingLayout::rowFields() const {
    return fieldCount(RowRecord);
}

void ReadRatingSection(const RatingLayout& layout, const std::vector<std::string>& lines,
                       GridContext& tables) {
    resetTabularTables(tables, layout.identifierFields(), layout.rowFields(), " ");
    const int markWidth = layout.RowMarkLast - layout.RowMarkFirst + 1;
    for (size_t i = 1; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        if (trim(line).empty())
            break;
        if (!FieldAt(line, IdentifierColumn, IdentifierWidth).empty()) {
            const int table = addTable(tables);
            walkFields(layout.IdentifierRecord, [&](const RecordField& field, int column) {
                tables.IdentifierTable(field.Field, table) = FieldAt(line, column, field.Width);
            });
        } else if (!FieldAt(line, layout.RowMarkFirst, markWidth).empty()) {
            // A row above every identifier belongs to table 0, which is never written.
            const int row = ++tables.ValueCount;
            tables.ValueStore.ensureRows(row);
            const size_t table = size_t(tables.TableCount);
            if (tables.TableFirst[table] == 0)
                tables.TableFirst[table] = row;
            tables.TableLast[table] = row;
            walkFields(layout.RowRecord, [&](const RecordField& field, int column) {
                tables.ValueStore(field.Field, row) = FieldAt(line, column, field.Width);
            });
        }
    }
}

std::vector<std::string> WriteRatingSection(const RatingLayout& layout, const GridContext& tables) {
    std::vector<std::string> lines;
    const int count = std::min(tables.TableCount, tables.IdentifierTable.rows());
    for (int table = 1; table <= count; ++table) {
        if (trim(tables.IdentifierTable(1, table)).empty())
            continue;
        if (lines.empty()) {
            lines.emplace_back();
            AppendField(lines.back(), layout.Header, HeaderWidth, false);
        }
        lines.push_back(writeRecord(layout.IdentifierRecord,
                                    [&](int field) { return tables.IdentifierTable(field, table); }));
        const int first = table < int(tables.TableFirst.size()) ? tables.TableFirst[size_t(table)] : 0;
        if (first < 1)
            continue;
        const int last = std::min(tables.TableLast[size_t(table)], tables.ValueStore.rows());
        for (int row = first; row <= last; ++row)
            lines.push_back(
                writeRecord(layout.RowRecord, [&](int field) { return tables.ValueStore(field, row); }));
    }
    if (!lines.empty())
        lines.emplace_back();
    return lines;
}

} // namespace brooklet
