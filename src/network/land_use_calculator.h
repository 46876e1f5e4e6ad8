#pragma once
// The land use calculator's grid and working tables. The grid lists the local land uses, then
// the standard ones, each with its four curve numbers; the user types into the area cells of
// soil groups A to D. The accumulated area and the area-weighted curve number,
// sum(area x CN) / sum(area), are kept incrementally as cells change. The entered cells go back
// to the sub-area's land use records, found again in the grid by a scan that only goes forward.
//
// Grid columns: 0 the name, 1, 3, 5, 7 the areas of groups A, B, C, D, 2, 4, 6, 8 their curve
// numbers. Row 0 holds the heads.
#include <string>
#include <vector>

#include "editing/colours.h"
#include "editing/text_table.h"
#include "network/local_land_use.h"

namespace brooklet {

class GridControl;
struct WatershedTables;

constexpr int LandUseGridCols = 9;
constexpr int LastAreaCol = 7;
// The name and curve number cells of local land uses.
constexpr Rgb LocalListedColour{191, 205, 219};
// The name and curve number cells of standard land uses, and the area cells that have no curve
// number: the cursor does not enter these.
constexpr Rgb StandardListedColour{200, 200, 200};
// The soil group of area column c (1 to 7).
std::string ColumnLetter(int col);

// The working copy of the sub-areas' land use records and the state of the grid.
struct LandUseWork {
    // Per sub-area (index from 1): its identifier and the first and last position of its rows.
    std::vector<std::string> LandUseIds{std::string()};
    std::vector<int> WorkFirst{0};
    std::vector<int> WorkLast{0};
    // Per sub-area: the identity of its row in the sub-area tables when the copy was made.
    std::vector<int> RowIds{0};
    // Name, soil group and area a row, rows 1 to WorkStoreCount.
    TextTable WorkStore{3, 1};
    int WorkStoreCount = 0;
    // The sub-area whose cells the grid shows; 0 for none.
    short WorkRow = 0;
    double AreaDelta = 0;
    float SumAreaTimesCn = 0;
    float LastCellValue = 0;
    float CellCn = 0;
    // Set while the routines move the cursor themselves: the cursor rule stands aside.
    bool Repainting = false;
    // The remembered cell.
    int CellRow = 1;
    int CellCol = 1;
    // The displays: accumulated area and weighted curve number.
    std::string Accumulated;
    std::string WeightedCn;
};

// The grid's rows: the local land uses (the name and four curve numbers of each), then the 81
// standard ones, with their colours; the area cells empty.
void FillLandUseGrid(GridControl& grid, const std::vector<LandUseRow>& local);

// The working tables from the sub-area tables; the list of sub-areas whose area and curve
// number fields are both blank.
std::vector<std::string> LoadLandUseWork(LandUseWork& work, const WatershedTables& tables);
// The last sub-area whose trimmed identifier is Name; 0 for none.
int FindLandUseSubArea(const LandUseWork& work, const std::string& name);

// The current cell's change (AreaDelta) enters the sums and the displays.
void AddToSums(LandUseWork& work, const GridControl& grid);
// The sub-area's records go into their cells, which enter the sums.
void ShowSubAreaCells(LandUseWork& work, GridControl& grid, int row);
// Empties every area cell and the sums.
void ClearLandUseGrid(LandUseWork& work, GridControl& grid);
// The entered cells become the records of sub-area WorkRow. In alternate mode (CurrentAlternate
// above 0) the land use positions of the other alternates follow the rows made room for.
void StoreLandUseGrid(LandUseWork& work, const GridControl& grid, WatershedTables& tables,
                      int CurrentAlternate);

// The cursor has moved to a cell (by the mouse or a key): a fixed or grey cell, or the last cell
// of the grid, sends it back to the remembered cell; a curve number cell gives way to an area
// cell; the new cell turns green and is remembered. Nothing while Repainting is set.
void CursorMoved(LandUseWork& work, GridControl& grid, int row, int col);
// Moves the cursor to a cell without the rule.
void MoveCursorQuietly(LandUseWork& work, GridControl& grid, int row, int col);
// A key typed in the grid by its character code: Tab, Enter and the apostrophe move on, Backspace
// takes the last character, digits and one point are added; the sums follow the cell.
void LandUseKey(LandUseWork& work, GridControl& grid, int key);
// "Delete Value": the remembered cell is emptied and the sums follow.
void DeleteCellValue(LandUseWork& work, GridControl& grid);
// "Delete Land Use Details" for a sub-area: its records leave the working store and the grid is
// cleared.
void DeleteSubAreaLandUse(LandUseWork& work, GridControl& grid, int row);
// "Return to Sub-Area": when any working row exists, the sub-area tables take the working
// tables, each sub-area's positions going to the row that has its identity now (a sub-area
// deleted since takes nothing, one added since keeps its own). True when they did, and the work
// file is to be rewritten.
bool ReturnLandUseWork(const LandUseWork& work, WatershedTables& tables);

} // namespace brooklet
