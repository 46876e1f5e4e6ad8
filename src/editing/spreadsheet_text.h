#pragma once
// Rows of numbers as spreadsheets put them on the clipboard and take them from it: one line a
// row, the cells of a line separated by tabs (a spreadsheet's own copy) or by blanks (text typed
// or copied from a plain file).
#include <string>
#include <vector>

namespace brooklet {

using SpreadsheetRows = std::vector<std::vector<std::string>>;

// The rows of the text. Lines end at CR LF, LF or a CR alone; a line end at the end of the text
// starts no further row. A line holding a tab is cut at every tab, so an empty cell between two
// tabs stays a blank cell; a line without a tab is cut at every run of blanks. Cells are
// trimmed; a line whose cells are all blank is no row.
SpreadsheetRows SplitSpreadsheetText(const std::string& text);

// The rows as a spreadsheet takes them: cells joined by tabs, each row ended by CR LF.
std::string JoinSpreadsheetRows(const SpreadsheetRows& rows);

} // namespace brooklet
