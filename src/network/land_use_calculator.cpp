#include "network/land_use_calculator.h"

#include "editing/grid_control.h"
#include "editing/numbers.h"
#include "editing/watershed_tables.h"
#include "network/standard_land_use.h"

#include <algorithm>

namespace brooklet {
namespace {

constexpr int AreaTextLength = 10;
const char* const AreaHeads[] = {"A Area", "CN", "B Area", "CN", "C Area", "CN", "D Area", "CN"};

float cellValue(const GridControl& grid, int row, int col) {
    return float(leadingNumber(grid.cellText(row, col)));
}

bool isAreaCol(int col) {
    return col >= 1 && col <= LastAreaCol && col % 2 == 1;
}

// The cursor does not stay on a fixed or grey cell, nor on the grid's last cell.
bool refusesCursor(const GridControl& grid, int row, int col) {
    return row < 1 || col < 1 || row >= grid.Rows() || col >= grid.Cols() ||
           grid.cellColour(row, col) == StandardListedColour ||
           (row == grid.Rows() - 1 && col == grid.Cols() - 1);
}

// Where Tab, Enter or the apostrophe lead from a cell: two columns on, past the last area column
// to the first of the next row, and on the last row nowhere.
bool nextAreaCell(const GridControl& grid, int& row, int& col) {
    if (col < LastAreaCol) {
        col += 2;
        return true;
    }
    if (row >= grid.Rows() - 1)
        return false;
    ++row;
    col = 1;
    return true;
}

// Every other sub-area's land use position at or above Position moves up by Step.
void shiftPositions(std::vector<int>& first, std::vector<int>& last, int except, int position, int step) {
    for (size_t row = 1; row < first.size(); ++row) {
        if (int(row) == except)
            continue;
        if (first[row] >= position)
            first[row] += step;
        if (last[row] >= position)
            last[row] += step;
    }
}

// In the alternate store: the land use rows from Position up move up by one, and every other
// alternate's positions at or above it follow them.
void makeRoomInAlternates(WatershedTables& tables, int CurrentAlternate, int position) {
    TextTable& rows = tables.AlternateLandUse;
    if (rows.rows() >= position) {
        const int oldEnd = rows.rows();
        rows.resizeRows(oldEnd + 1);
        rows.moveRowsUp(position, oldEnd, 1);
        rows.fillRow(position, std::string());
    }
    for (int alternate = 1; alternate <= tables.AlternateCount; ++alternate) {
        if (alternate == CurrentAlternate)
            continue;
        for (int entry = 1; entry <= tables.AlternateSubAreaCount[size_t(alternate)]; ++entry)
            for (int field : {AlternateLandUseFirstField, AlternateLandUseLastField}) {
                const int index = int(leadingNumber(tables.AlternateSubAreas(field, alternate, entry)));
                if (index >= position)
                    tables.AlternateSubAreas.set(field, alternate, entry, std::to_string(index + 1));
            }
    }
}

} // namespace

std::string ColumnLetter(int col) {
    static const char* const letters[] = {"", "A", " ", "B", " ", "C", " ", "D"};
    return col >= 1 && col <= LastAreaCol ? letters[col] : std::string();
}

void FillLandUseGrid(GridControl& grid, const std::vector<LandUseRow>& local) {
    grid.setRows(1 + int(local.size()) + StandardLandUseRows);
    grid.setCellText(0, 0, "Land Use");
    for (int col = 1; col < LandUseGridCols; ++col)
        grid.setCellText(0, col, AreaHeads[col - 1]);
    int row = 1;
    for (const LandUseRow& use : local) {
        grid.setCellText(row, 0, use[0]);
        grid.setCellColour(row, 0, LocalListedColour);
        for (int group = 1; group <= 4; ++group) {
            grid.setCellText(row, 2 * group, use[size_t(group)]);
            grid.setCellColour(row, 2 * group, LocalListedColour);
        }
        ++row;
    }
    const StandardLandUseTable& standard = StandardLandUse();
    for (int entry = 1; entry <= StandardLandUseRows; ++entry, ++row) {
        grid.setCellText(row, 0, standard(entry, 0));
        grid.setCellColour(row, 0, StandardListedColour);
        for (int group = 1; group <= 4; ++group) {
            grid.setCellText(row, 2 * group, standard(entry, group));
            grid.setCellColour(row, 2 * group, StandardListedColour);
            if (leadingNumber(standard(entry, group)) == 0)
                grid.setCellColour(row, 2 * group - 1, StandardListedColour);
        }
    }
}

std::vector<std::string> LoadLandUseWork(LandUseWork& work, const WatershedTables& tables) {
    std::vector<std::string> choices;
    const int count = tables.SubAreaCount;
    if (count <= 0)
        return choices;
    work.LandUseIds.assign(size_t(count) + 1, std::string());
    work.WorkFirst.assign(size_t(count) + 1, 0);
    work.WorkLast.assign(size_t(count) + 1, 0);
    work.RowIds.assign(size_t(count) + 1, 0);
    work.WorkStoreCount = tables.LandUseStoreCount;
    if (work.WorkStoreCount > 0) {
        work.WorkStore = tables.LandUseStore;
        work.WorkStore.ensureRows(work.WorkStoreCount);
    }
    for (int row = 1; row <= count; ++row) {
        work.LandUseIds[size_t(row)] = tables.SubAreaTable(1, row);
        if (trim(tables.SubAreaTable(4, row)).empty() && trim(tables.SubAreaTable(5, row)).empty())
            choices.push_back(tables.SubAreaTable(1, row));
        if (size_t(row) < tables.LandUseFirst.size()) {
            work.WorkFirst[size_t(row)] = tables.LandUseFirst[size_t(row)];
            work.WorkLast[size_t(row)] = tables.LandUseLast[size_t(row)];
        }
        if (size_t(row) < tables.SubAreaRowIds.size())
            work.RowIds[size_t(row)] = tables.SubAreaRowIds[size_t(row)];
    }
    return choices;
}

int FindLandUseSubArea(const LandUseWork& work, const std::string& name) {
    const std::string wanted = trim(name);
    for (int row = int(work.LandUseIds.size()) - 1; row >= 1; --row)
        if (trim(work.LandUseIds[size_t(row)]) == wanted)
            return row;
    return 0;
}

void AddToSums(LandUseWork& work, const GridControl& grid) {
    const double accumulated = roundHalfEven(leadingNumber(work.Accumulated) + work.AreaDelta, 5);
    work.Accumulated = NumberText(accumulated);
    if (work.AreaDelta != 0)
        work.CellCn = cellValue(grid, grid.Row(), grid.Col() + 1);
    work.SumAreaTimesCn = float(double(work.SumAreaTimesCn) + work.AreaDelta * double(work.CellCn));
    if (accumulated > 0 && work.SumAreaTimesCn > 0)
        work.WeightedCn = NumberText(roundHalfEven(double(work.SumAreaTimesCn) / accumulated, 1));
    else
        work.WeightedCn.clear();
}

void MoveCursorQuietly(LandUseWork& work, GridControl& grid, int row, int col) {
    const bool repainting = work.Repainting;
    work.Repainting = true;
    grid.setRow(row);
    grid.setCol(col);
    work.Repainting = repainting;
}

void ShowSubAreaCells(LandUseWork& work, GridControl& grid, int row) {
    if (row < 1 || size_t(row) >= work.WorkFirst.size() || work.WorkFirst[size_t(row)] <= 0)
        return;
    const int lastRow = grid.Rows() - 1;
    int gridRow = 1;
    for (int index = work.WorkFirst[size_t(row)]; index <= work.WorkLast[size_t(row)]; ++index) {
        if (index > work.WorkStore.rows())
            break;
        const std::string name = trim(work.WorkStore(1, index));
        // The scan only goes forward; at the last row it gives up for this record.
        while (gridRow < lastRow && trim(grid.cellText(gridRow, 0)) != name)
            ++gridRow;
        if (trim(grid.cellText(gridRow, 0)) != name)
            continue;
        const size_t place = std::string("A B C D").find(toUpper(trim(work.WorkStore(2, index))));
        if (place == std::string::npos)
            continue;
        const int col = int(place) + 1;
        MoveCursorQuietly(work, grid, gridRow, col);
        const float old = cellValue(grid, gridRow, col);
        grid.setCellText(gridRow, col, work.WorkStore(3, index));
        work.AreaDelta = leadingNumber(work.WorkStore(3, index)) - double(old);
        AddToSums(work, grid);
    }
}

void ClearLandUseGrid(LandUseWork& work, GridControl& grid) {
    for (int row = 1; row < grid.Rows(); ++row)
        for (int col = 1; col <= LastAreaCol; col += 2)
            grid.setCellText(row, col, std::string());
    work.Accumulated.clear();
    work.WeightedCn.clear();
    work.SumAreaTimesCn = 0;
}

void StoreLandUseGrid(LandUseWork& work, const GridControl& grid, WatershedTables& tables,
                      int CurrentAlternate) {
    const int row = work.WorkRow;
    if (row < 1 || size_t(row) >= work.WorkFirst.size())
        return;
    int& first = work.WorkFirst[size_t(row)];
    int& last = work.WorkLast[size_t(row)];
    if (!(work.SumAreaTimesCn > 0)) {
        first = 0;
        last = 0;
        return;
    }
    int m = first - 1;
    for (int gridRow = 1; gridRow < grid.Rows(); ++gridRow)
        for (int col = 1; col <= LastAreaCol; col += 2) {
            const std::string text = grid.cellText(gridRow, col);
            if (trim(text).empty())
                continue;
            if (m >= 0) {
                ++m;
                if (m > work.WorkStoreCount || m > last) {
                    const int oldEnd = work.WorkStoreCount;
                    work.WorkStoreCount = m > oldEnd ? m : oldEnd + 1;
                    ++last;
                    work.WorkStore.ensureRows(work.WorkStoreCount);
                    if (m <= oldEnd) {
                        work.WorkStore.moveRowsUp(m, oldEnd, 1);
                        shiftPositions(work.WorkFirst, work.WorkLast, row, m, 1);
                        if (CurrentAlternate > 0)
                            makeRoomInAlternates(tables, CurrentAlternate, m);
                    }
                }
            } else {
                m = ++work.WorkStoreCount;
                work.WorkStore.ensureRows(m);
                first = m;
                last = m;
            }
            work.WorkStore(1, m) = grid.cellText(gridRow, 0);
            work.WorkStore(2, m) = ColumnLetter(col);
            work.WorkStore(3, m) = text;
        }
    last = m;
}

void CursorMoved(LandUseWork& work, GridControl& grid, int row, int col) {
    if (work.Repainting)
        return;
    if (refusesCursor(grid, row, col)) {
        MoveCursorQuietly(work, grid, work.CellRow, work.CellCol);
        return;
    }
    if (col % 2 == 0) {
        const bool fromTheLeft = row == work.CellRow && work.CellCol < col;
        col = std::clamp(fromTheLeft ? col + 1 : col - 1, 1, LastAreaCol);
    }
    MoveCursorQuietly(work, grid, row, col);
    grid.setCellColour(work.CellRow, work.CellCol, UntouchedColour);
    grid.setCellColour(row, col, CurrentColour);
    work.CellRow = row;
    work.CellCol = col;
    work.LastCellValue = cellValue(grid, row, col);
}

void LandUseKey(LandUseWork& work, GridControl& grid, int key) {
    const int row = grid.Row();
    const int col = grid.Col();
    if (key == 9 || key == 13 || key == 39) {
        // A cell the cursor does not enter is passed over, so the keyboard gets past the rows
        // that lack a curve number.
        int toRow = row, toCol = col;
        bool moves = nextAreaCell(grid, toRow, toCol);
        while (moves && refusesCursor(grid, toRow, toCol))
            moves = nextAreaCell(grid, toRow, toCol);
        if (moves)
            CursorMoved(work, grid, toRow, toCol);
    } else if (isAreaCol(col)) {
        std::string text = grid.cellText(row, col);
        if (key == 8) {
            if (!text.empty())
                text.pop_back();
        } else if (key == '.') {
            if (text.find('.') == std::string::npos)
                text += '.';
        } else if (key >= '0' && key <= '9') {
            text += char(key);
        }
        grid.setCellText(row, col, text.substr(0, AreaTextLength));
    }
    const float value = cellValue(grid, grid.Row(), grid.Col());
    work.AreaDelta = double(value) - double(work.LastCellValue);
    if (work.AreaDelta != 0)
        AddToSums(work, grid);
    work.LastCellValue = value;
}

void DeleteCellValue(LandUseWork& work, GridControl& grid) {
    MoveCursorQuietly(work, grid, work.CellRow, work.CellCol);
    grid.setCellText(work.CellRow, work.CellCol, std::string());
    work.AreaDelta = -double(work.LastCellValue);
    work.LastCellValue = 0;
    AddToSums(work, grid);
}

void DeleteSubAreaLandUse(LandUseWork& work, GridControl& grid, int row) {
    if (row >= 1 && size_t(row) < work.WorkFirst.size() && work.WorkFirst[size_t(row)] > 0) {
        const int first = work.WorkFirst[size_t(row)];
        // A sub-area can keep its first position with no rows behind it (last one below first):
        // a store step finds no cell left while the sum, in single precision, stays a trace
        // above 0. It then has no rows to take out.
        const int s = std::max(work.WorkLast[size_t(row)] - first, 0);
        for (int k = first + 1; k <= work.WorkStoreCount - s; ++k)
            work.WorkStore.copyRow(k + s, k);
        work.WorkStoreCount -= s;
        // The rows behind keep their owners: their positions follow them down.
        shiftPositions(work.WorkFirst, work.WorkLast, row, work.WorkLast[size_t(row)] + 1, -s);
        work.WorkFirst[size_t(row)] = 0;
        work.WorkLast[size_t(row)] = 0;
    }
    ClearLandUseGrid(work, grid);
}

bool ReturnLandUseWork(const LandUseWork& work, WatershedTables& tables) {
    if (tables.SubAreaCount <= 0 || work.WorkStoreCount <= 0)
        return false;
    tables.LandUseFirst.resize(size_t(tables.SubAreaCount) + 1, 0);
    tables.LandUseLast.resize(size_t(tables.SubAreaCount) + 1, 0);
    const std::vector<int> rows = subAreaRowsOf(tables, work.RowIds);
    for (size_t workRow = 1; workRow < rows.size() && workRow < work.WorkFirst.size(); ++workRow) {
        const size_t row = size_t(rows[workRow]);
        if (row == 0)
            continue;
        tables.LandUseFirst[row] = work.WorkFirst[workRow];
        tables.LandUseLast[row] = work.WorkLast[workRow];
    }
    tables.LandUseStoreCount = work.WorkStoreCount;
    tables.LandUseStore = work.WorkStore;
    tables.LandUseStore.ensureRows(work.WorkStoreCount);
    return true;
}

} // namespace brooklet
