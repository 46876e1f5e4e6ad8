#pragma once
// The sections of rating tables, one table of rows per identifier: the structure ratings and
// the stream cross sections. Such a section is a header record, then for each identifier its
// identifier record with the identifier in columns 11-20, directly followed by one record per
// rating row with columns 1-20 blank, and one empty record at the end. Every field is written
// left-justified and blank-padded to its width; a value wider than its field is not cut and
// pushes what follows to the right. On reading, a field is the trim of its columns.
//
// The tables are the tabular tables of the grid window: the identifier table (field 1
// the identifier, then the per-identifier fields), TableFirst and TableLast, and the row store
// with one field per rating column.
#include <string>
#include <vector>

#include "editing/grid_editor.h"

namespace brooklet {

// A field of a record: its width, the table field it holds (0: blanks), and whether a number
// gets its trailing point on writing.
struct RecordField {
    int Width = 10;
    int Field = 0;
    bool AddPoint = false;
};

struct RatingLayout {
    // The header text, written blank-padded to 40 columns.
    std::string Header;
    // The identifier record, field 1 being the identifier in columns 11-20.
    std::vector<RecordField> IdentifierRecord;
    // A rating row's record.
    std::vector<RecordField> RowRecord;
    // A record with blank columns 11-20 is a rating row when something stands in these columns;
    // any other record is passed over.
    int RowMarkFirst = 21;
    int RowMarkLast = 30;

    int identifierFields() const;
    int rowFields() const;
};

// Reads the lines of a work file into the tables, which it resets first: the header line is
// passed over whatever it says, and reading ends at the first line blank after trimming. A
// rating row belongs to the identifier above it.
void ReadRatingSection(const RatingLayout& layout, const std::vector<std::string>& lines,
                       GridContext& tables);

// The lines of the section from the tables, in table order. Identifiers blank after trimming
// (deleted entries) are left out with their rows; with no identifier left, or no table at all,
// there are no lines.
std::vector<std::string> WriteRatingSection(const RatingLayout& layout, const GridContext& tables);

} // namespace brooklet
