#pragma once
// Text that a spreadsheet puts on the clipboard, and text for it: values copied from a column,
// a row or a block of cells, rows of cells joined by tabs, lines ended by CR LF, LF or a CR.
#include <string>
#include <vector>

namespace brooklet {

// The values of pasted text in reading order, row by row: every run of characters between
// tabs, blanks and line ends is one value; empty cells leave no gap.
std::vector<std::string> SplitPastedValues(const std::string& text);

// The rows of pasted text: each line that is not blank, cut at its tabs into trimmed cells.
// Blanks stay inside a cell, as names may hold them.
std::vector<std::vector<std::string>> SplitPastedRows(const std::string& text);

// Rows as a spreadsheet takes them: the cells of a row joined by tabs, each row ended by CR LF.
std::string RowsAsText(const std::vector<std::vector<std::string>>& rows);
// Values as one column: each value on its own line.
std::string ValuesAsColumn(const std::vector<std::string>& values);

} // namespace brooklet
