#pragma once
// The grid cell editor. A grid by itself only shows texts on coloured cells; these routines make
// an editor of it in two styles:
// - a flow grid holds one long series of values, five to a row, typed straight into a moving
//   green cell; deleting or inserting a cell shifts everything behind it;
// - a row grid holds records, one per row, kept in ascending order of a key column and edited
//   through the window's boxes; the marked row is green.
// Both keep several tables, one per identifier, in one value store. Each grid window holds its
// own set of the variables and tables below and fills it in on load, so windows open at the
// same time never write into each other's tables.
#include <string>
#include <vector>

#include "editing/grid_control.h"
#include "editing/text_table.h"

namespace brooklet {

// Character codes of the keys a flow grid handles.
constexpr int BackspaceKey = 8;
constexpr int TabKey = 9;
constexpr int EnterKey = 13;
constexpr int ApostropheKey = 39;
constexpr int PointKey = 46;
constexpr int FirstDigitKey = 48;
constexpr int LastDigitKey = 57;

// Values a flow grid row holds.
constexpr int FlowGridColumns = 5;
// MarkedRow when no cell or row is marked.
constexpr int NoMarkedRow = -999;

struct GridContext {
    // The grid variables.
    int MarkedRow = NoMarkedRow;
    int MarkedCol = 0;
    // True while a routine moves the cell: the windows' cell-change handlers then do nothing.
    bool GridBusy = false;
    // Row grid: current row, rows holding data, first data row (the row above holds the heads),
    // first data column, the sort key and its value, the second key (negative column: none),
    // and the index of the edit box of column 0.
    int GridRow = 0;
    int GridRowsUsed = 0;
    int GridFirstRow = 1;
    int GridFirstCol = 0;
    int GridKeyCol = 0;
    std::string GridKeyText;
    int GridSecondKeyCol = -999;
    std::string GridSecondKeyText;
    int GridBoxBase = 0;
    // Flow grid: values must not fall along the series; the largest value allowed (0 or less:
    // no upper limit).
    bool GridCheckOrder = false;
    float GridHighLimit = 0.0f;
    // Rows the grid shows at a time, for scrolling.
    int GridVisibleRows = 9;
    // Flow grid: the columns of a value's field in the record. A key that would make the cell
    // longer is not taken, and a longer (pasted) value is refused like a bad number.
    int GridCellWidth = 10;
    // Set when a key moved the cursor on to a new row.
    bool GridGrew = false;

    // The tabular tables: one entry per identifier (its identifier and fields), the first
    // and last position of each table in ValueStore (0 and 0 for none), indexed from 1.
    TextTable IdentifierTable{1, 1};
    std::vector<int> TableFirst{0, 0};
    std::vector<int> TableLast{0, 0};
    // The table on show, and the one to be shown next.
    int TableCurrent = 0;
    int TableNext = 0;
    int TableCount = 0;
    // Positions in use in ValueStore.
    int ValueCount = 0;
    // One field a position for flow grids; one field per column for row grids.
    TextTable ValueStore{1, 1};
};

// A window that holds tabular tables of its own: the plot window opened from it draws from them.
class TabularTablesHolder {
public:
    virtual const GridContext& tabularTables() const = 0;

protected:
    ~TabularTablesHolder() = default;
};

// The tables at a window's load: no table, one empty identifier entry, and one store position
// holding valueFill in each of its fields.
void resetTabularTables(GridContext& context, int identifierFields, int valueFields,
                        const std::string& valueFill = std::string());
// A new table behind the others, with no values. Gives its number.
int addTable(GridContext& context);
// The table whose identifier (field 1), trimmed and in upper case, equals the text so treated;
// among equal names the last one wins; 0 when none does. A blank text finds a deleted table.
int findTable(const GridContext& context, const std::string& text);
// Takes table t out of the store: the values behind its block move down over all of the block
// but its first position, which stays behind unused, and the tables behind it follow; the table
// keeps its place in the identifier table with no values and its fields from the second on
// emptied. Its identifier empties at the next store of the window's boxes.
void deleteTable(GridContext& context, int t);

// Flow grid. Row, Col, Index (the values in the grid), Typing and Valid are the window's own
// variables. Keys are character codes; a key that moves on is set to 0.
void HandleGridKey(GridContext& context, int& Key, GridControl& Grid, int& Row, int& Col, int& Index,
                   bool& Typing, int WrapCol, int Step);
void MoveGridCursor(GridContext& context, GridControl& Grid, int& Row, int& Col, int& Index, bool& Valid,
                    bool& Typing);
void CheckGridCell(GridContext& context, GridControl& Grid, int Row, int Col, int Index, bool& Valid);
void DeleteGridCell(GridContext& context, GridControl& Grid, int& Row, int& Col, int& Index, bool& Valid,
                    bool& Typing);
void InsertGridCell(GridContext& context, GridControl& Grid, int& Row, int& Col, int& Index, bool& Valid,
                    bool& Typing);
// Puts the first Count values of the grid back into table TableCurrent.
void StoreFlowGrid(GridContext& context, GridControl& Grid, int Count);

// Row grid.
void SelectGridRow(GridContext& context, GridControl& Grid, GridBoxes& Boxes, bool Load);
void MarkGridRow(GridContext& context, GridControl& Grid);
void UnmarkGridRow(GridContext& context, GridControl& Grid);
void PutRowInOrder(GridContext& context, GridControl& Grid);
void DeleteGridRow(GridContext& context, GridControl& Grid, GridBoxes& Boxes);
void ClearRowGrid(GridContext& context, GridControl& Grid);
void LoadRowIntoBoxes(GridContext& context, GridBoxes& Boxes, GridControl& Grid);
// Puts the rows in use back into table TableCurrent, then shows TableNext. A table that shrinks,
// to no rows too, keeps its place in the store.
void StoreRowGrid(GridContext& context, GridControl& Grid);
// Shows table t in a cleared row grid: each of its rows whose first field is not blank goes
// into the next grid row, the grid growing so that one free row always lies below the rows in
// use; the current row becomes that free row.
void loadTableIntoRowGrid(GridContext& context, GridControl& Grid, int t);

} // namespace brooklet
