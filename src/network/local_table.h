#pragma once
// The table behind the local land use window and the local soil window: rows of five texts,
// indexed from 1, with the row the user has selected and the row selected before it. A deleted
// entry keeps its slot with its fields emptied, so the count does not fall while the window is
// open; the file writer passes such a row over, and the gap closes with the next load.
#include <array>
#include <string>

#include "editing/text_table.h"
#include "session/text_file.h"

namespace brooklet {

struct Session;

// How the local land use and soil files are written: they are the engineer's own, so their data
// reach the disk before a write counts as done, and a file of several names is written in place,
// a copy of the old one kept in the work folder.
WriteOptions LocalFileWriting(const Session& session);

constexpr int LocalTableFields = 5;

// Five texts: a name, then four further values.
using FiveTexts = std::array<std::string, LocalTableFields>;

struct LocalTable {
    TextTable Rows{LocalTableFields, 1};
    int Count = 0;
    // The row selected, 0 when none, and the row selected when the list was last left.
    int Selected = 0;
    int Previous = 0;

    // The state at a window's load: one empty row, no row in use, none selected.
    void reset(int previousAtLoad);
    // A new row behind the others with Name in field 1; the table keeps its contents. Gives it.
    int addRow(const std::string& Name);
    // A new row holding the five texts. Gives it.
    int addRow(const FiveTexts& texts);
    // The last row whose trimmed field 1 equals the trimmed Name, case counting; 0 when none.
    int findLast(const std::string& Name) const;
    // Empties the five fields of a row in use; nothing for any other row.
    void emptyRow(int row);
    // The five fields of a row.
    FiveTexts row(int row) const;
};

// A name box's check: a text whose trim is longer than Length is cut to the first Length
// characters of its trim; a shorter one stays as typed.
std::string CutName(const std::string& Text, size_t Length);

} // namespace brooklet
