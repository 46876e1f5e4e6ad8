#pragma once
// What the sections of value tables share: the rainfall distributions, the input hydrographs
// and the dimensionless unit hydrograph. A table is a run of values written five to a record:
//   value       cols 1-20 blank, then up to five values of ten columns from col 21, each with
//               its point; the last record of a table holds what is left and is not filled up
// A named table starts with its identifier record, whose fields stand at fixed columns. On
// reading, a record with blank cols 11-20 and anything in cols 21-70 is a value record; each
// of its fields that is not blank adds one value, so a blank field leaves no gap.
#include <string>
#include <vector>

#include "editing/grid_editor.h"

namespace brooklet {

// A table as its records hold it: the fields of its identifier record, and its values.
struct ValueTable {
    std::vector<std::string> Fields;
    std::vector<std::string> Values;

    bool operator==(const ValueTable& other) const {
        return Fields == other.Fields && Values == other.Values;
    }
};

// Where a field of an identifier record stands, and whether it is written with its point.
struct IdentifierField {
    int Column;
    bool Point;
};

// How a section of named tables is written.
struct NamedTableLayout {
    const char* Header;
    int HeaderWidth;
    std::vector<IdentifierField> Fields;
    // A table whose last value is above 0 is closed by a further value "0.".
    bool Closes;
};

// A header line: the text blank-padded to Width.
std::string HeaderLine(const char* header, int width);

// Adds the non-blank fields of a value record to Values.
void ReadValueRecord(const std::string& record, std::vector<std::string>& values);
// Whether a record's cols 21-70 hold anything.
bool HasValueFields(const std::string& record);
// Values in records of five; with Closes, "0." behind a last value above 0, in the last record
// when it has room, else in a record of its own that starts with ClosingIndent.
void AppendValueRecords(std::vector<std::string>& lines, const std::vector<std::string>& values, bool Closes,
                        const std::string& ClosingIndent = std::string());

// Reads a section of named tables: the header line is passed over, reading stops at the end
// or at the first blank line; a record with cols 11-20 not blank starts a table. Values
// before the first table belong to none and are passed over.
std::vector<ValueTable> ReadNamedValueTables(const std::vector<std::string>& lines,
                                             const NamedTableLayout& layout);
// Writes the tables of two values or more, each its identifier record and its values, behind
// the header, and one empty record behind them; no line at all when no table has two values.
std::vector<std::string> WriteNamedValueTables(const std::vector<ValueTable>& tables,
                                               const NamedTableLayout& layout);

// The tables at a window's load: each table an entry of the identifier table with its fields,
// its values one after another in the value store.
void LoadValueTables(GridContext& context, const std::vector<ValueTable>& tables, int identifierFields);
// Each entry of the identifier table with its values from the store, for Accept.
std::vector<ValueTable> StoredValueTables(const GridContext& context);

} // namespace brooklet
