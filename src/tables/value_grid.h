#pragma once
// The value grid of the rainfall distribution, input hydrograph and unit hydrograph windows:
// a table's values five to a grid row, typed straight into a moving green cell and flowing
// from cell to cell. Value n stands in row (n - 1) div 5, column (n - 1) mod 5; the first
// value is the table's zero, and the cursor does not stop on it. The window owns one of these
// beside its grid and hands it the grid's keys, clicks and cell changes; the values go to the
// window's value store with the store step.
#include <string>
#include <vector>

#include "editing/grid_editor.h"

namespace brooklet {

// The grid variables a window sets at load.
struct ValueGridRules {
    int Rows;            // rows of the grid at design
    bool CheckOrder;     // values must not fall
    float HighLimit;     // largest value allowed; 0 or less: no upper limit
    int VisibleRows = 9; // rows on show, for scrolling
};

class ValueGrid {
public:
    ValueGrid(GridContext& context, GridControl& grid, const ValueGridRules& rules);

    // The window's own variables: the current cell, the values in the grid (counting the cell
    // the cursor stands on behind the last value once it has moved there), the entry mode and
    // the last check.
    int Row = 0;
    int Col = 0;
    int Index = 0;
    bool Typing = false;
    bool Valid = true;

    // Every cell empty and white, the grid at its design rows, no cell marked.
    void clear();
    // A table starting afresh: the grid cleared, FirstCell in the first cell, the cursor on
    // row 0, column 1, and Values values in the grid.
    void startTable(const std::string& FirstCell, int Values);
    // Shows table t of the store: each value in its cell, rows added as needed and a spare row
    // behind a last value in the grid's last row; the cursor stays on the last value.
    void showTable(int t);
    // The grid is entered: the cursor goes to row 0, column 1 and marks it.
    void enter();

    // A key of the grid by its character code; afterwards a last cell on the cursor gets a
    // further row holding " ".
    void key(int& Key);
    // The grid's own cell change; nothing while a routine moves the cell.
    void cellChanged(int row, int col);
    // A mouse button pressed on a cell makes it current.
    void press(int row, int col);
    // A click on the first cell: the cursor passes over the table's zero, but a click stops
    // there, so that the zero can be retyped.
    void pickFirstCell();
    // The grid loses the focus: an Enter finishes the value being typed, and the marked cell is
    // unmarked, keeping its red when its value is refused.
    void leave();

    // The first cell holds the table's zero: the menu offers no deletion there.
    static bool isFirstCell(int row, int col) { return row == 0 && col == 0; }
    // "Insert Point" and "Delete Point" on the current cell, when values are in the grid; a
    // deletion never takes the first cell.
    void insertValue();
    void deleteValue();

    // The store step: with more than one value in the grid, they go to table TableCurrent.
    void store();

    // Values pasted from the current cell on, each typed over its cell and finished with
    // Enter, so each is checked and coloured as if typed. Nothing when no table is on show.
    void paste(const std::vector<std::string>& values);
    // The values in the grid in their order; blank cells leave no gap.
    std::vector<std::string> values() const;

private:
    GridContext& context_;
    GridControl& grid_;
    int designRows_;
};

} // namespace brooklet
