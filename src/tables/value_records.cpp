#include "tables/value_records.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"

namespace brooklet {
namespace {

constexpr int FieldWidth = 10;
constexpr int FirstValueColumn = 21;
constexpr int ValuesPerRecord = 5;
const char* const ClosingValue = "0.";

std::string valueRecordStart() {
    return std::string(FirstValueColumn - 1, ' ');
}

bool isBlank(const std::string& text) {
    return trim(text).empty();
}

std::string identifierRecord(const ValueTable& table, const NamedTableLayout& layout) {
    std::string line;
    for (size_t i = 0; i < layout.Fields.size(); ++i) {
        const IdentifierField& field = layout.Fields[i];
        if (line.size() < size_t(field.Column - 1))
            line.resize(size_t(field.Column - 1), ' ');
        AppendField(line, i < table.Fields.size() ? table.Fields[i] : std::string(), FieldWidth, field.Point);
    }
    return line;
}

} // namespace

std::string HeaderLine(const char* header, int width) {
    std::string line;
    AppendField(line, header, width, false);
    return line;
}

bool HasValueFields(const std::string& record) {
    return !FieldAt(record, FirstValueColumn, ValuesPerRecord * FieldWidth).empty();
}

void ReadValueRecord(const std::string& record, std::vector<std::string>& values) {
    for (int field = 0; field < ValuesPerRecord; ++field) {
        std::string value = FieldAt(record, FirstValueColumn + FieldWidth * field, FieldWidth);
        if (!value.empty())
            values.push_back(std::move(value));
    }
}

void AppendValueRecords(std::vector<std::string>& lines, const std::vector<std::string>& values, bool Closes,
                        const std::string& ClosingIndent) {
    std::string line;
    for (size_t i = 0; i < values.size(); ++i) {
        if (i % ValuesPerRecord == 0)
            line = valueRecordStart();
        AppendField(line, values[i], FieldWidth, true);
        if (i % ValuesPerRecord == ValuesPerRecord - 1 || i + 1 == values.size())
            lines.push_back(line);
    }
    if (!Closes || values.empty() || !(leadingNumber(trim(values.back())) > 0))
        return;
    if (values.size() % ValuesPerRecord != 0) {
        AppendField(lines.back(), ClosingValue, FieldWidth, true);
        return;
    }
    line = ClosingIndent + valueRecordStart();
    AppendField(line, ClosingValue, FieldWidth, true);
    lines.push_back(line);
}

std::vector<ValueTable> ReadNamedValueTables(const std::vector<std::string>& lines,
                                             const NamedTableLayout& layout) {
    std::vector<ValueTable> tables;
    for (size_t i = 1; i < lines.size() && !isBlank(lines[i]); ++i) {
        const std::string& record = lines[i];
        if (!FieldAt(record, 11, FieldWidth).empty()) {
            ValueTable table;
            for (const IdentifierField& field : layout.Fields)
                table.Fields.push_back(FieldAt(record, field.Column, FieldWidth));
            tables.push_back(std::move(table));
        } else if (!tables.empty()) {
            ReadValueRecord(record, tables.back().Values);
        }
    }
    return tables;
}

std::vector<std::string> WriteNamedValueTables(const std::vector<ValueTable>& tables,
                                               const NamedTableLayout& layout) {
    std::vector<std::string> lines;
    for (const ValueTable& table : tables) {
        // A table of no value or a single one is left out, and its identifier with it.
        if (table.Values.size() < 2)
            continue;
        if (lines.empty())
            lines.push_back(HeaderLine(layout.Header, layout.HeaderWidth));
        lines.push_back(identifierRecord(table, layout));
        AppendValueRecords(lines, table.Values, layout.Closes);
    }
    if (!lines.empty())
        lines.emplace_back();
    return lines;
}

void LoadValueTables(GridContext& context, const std::vector<ValueTable>& tables, int identifierFields) {
    resetTabularTables(context, identifierFields, 1);
    size_t values = 0;
    for (const ValueTable& table : tables)
        values += table.Values.size();
    context.ValueStore.ensureRows(int(values));
    for (const ValueTable& table : tables) {
        const int t = addTable(context);
        for (int field = 1; field <= identifierFields && size_t(field) <= table.Fields.size(); ++field)
            context.IdentifierTable(field, t) = table.Fields[size_t(field - 1)];
        for (const std::string& value : table.Values) {
            const int position = ++context.ValueCount;
            if (context.TableFirst[size_t(t)] == 0)
                context.TableFirst[size_t(t)] = position;
            context.ValueStore(position) = value;
            context.TableLast[size_t(t)] = position;
        }
    }
}

std::vector<ValueTable> StoredValueTables(const GridContext& context) {
    std::vector<ValueTable> tables(size_t(std::max(context.TableCount, 0)));
    for (int t = 1; t <= context.TableCount; ++t) {
        ValueTable& table = tables[size_t(t - 1)];
        for (int field = 1; field <= context.IdentifierTable.fields(); ++field)
            table.Fields.push_back(context.IdentifierTable(field, t));
        const int first = context.TableFirst[size_t(t)];
        const int last = context.TableLast[size_t(t)];
        if (first > 0)
            for (int position = first; position <= last; ++position)
                table.Values.push_back(context.ValueStore(position));
    }
    return tables;
}

} // namespace brooklet
