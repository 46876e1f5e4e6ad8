// The two calculators of the sub-area window on any bytes, read as the sub-area section: the time
// of concentration calculator takes each sub-area's flow path segments and rain gage into its
// boxes and computes every segment, and the land use calculator shows each sub-area's land use
// records in its grid (the local land uses read from the same bytes), takes the user's actions
// spelled by the sub-area's identifier, and stores the grid back. No field may crash or hang
// them; a computed box holds a number or nothing; the working store grows by no more than the
// cells of the grid for each store.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "editing/field_checks.h"
#include "editing/grid_control.h"
#include "editing/numbers.h"
#include "editing/watershed_tables.h"
#include "network/land_use_calculator.h"
#include "network/sub_area.h"
#include "network/time_of_concentration.h"
#include "session/text_file.h"

namespace {

using namespace brooklet;

// Sub-areas worked through in one input: enough for every shape of a small section.
constexpr int MostSubAreas = 60;

// A computed box of the time of concentration calculator: empty, or a number as the program
// writes numbers.
void checkResult(const std::string& text) {
    for (char c : text)
        if (!(c >= '0' && c <= '9') && c != '.' && c != '-' && c != '+' && c != 'E' && c != 'e')
            __builtin_trap();
}

// A sum of the land use calculator: the same, but a value read from the files (an area, or a
// curve number of the local land use file, which has no width) may lie beyond the range of a
// number, and the sums then show it as the number text does ("inf").
void checkSum(const std::string& text) {
    if (text != "inf" && text != "-inf" && text != "nan" && text != "-nan")
        checkResult(text);
}

// The rain gage table as the storm section's scan builds it, from the same lines: the gage in
// columns 21-30 and its 2-year rainfall in columns 71-80.
void fillRainfall(const std::vector<std::string>& lines, RainfallTable& Rainfall) {
    for (const std::string& line : lines) {
        const size_t row = size_t(++Rainfall.RainfallCount);
        Rainfall.RainfallIds.resize(row + 1);
        Rainfall.Rainfall2Yr.resize(row + 1);
        Rainfall.RainfallIds[row] = FieldAt(line, 21, 10);
        Rainfall.Rainfall2Yr[row] = float(leadingNumber(FieldAt(line, 71, 10)));
    }
}

void timeOfConcentration(WatershedTables& tables) {
    if (tables.SubAreaCount <= 0)
        return;
    TextTable TcTable = BuildTcTable(tables);
    const std::vector<int> rowIds = tables.SubAreaRowIds;
    for (int row = 1; row <= std::min(tables.SubAreaCount, MostSubAreas); ++row) {
        TcBoxes boxes;
        for (int index = 12; index <= 24; ++index)
            boxes[size_t(index)] = TcTable(index, row);
        if (const auto rainfall = RainfallOfGage(tables, tables.SubAreaTable(3, row)))
            boxes[RainfallBox] = *rainfall;
        for (int index = 12; index <= 24; ++index) {
            TcValueAccepted(index, boxes[size_t(index)], true);
            TcValueAccepted(index, boxes[size_t(index)], false);
            ComputeTcSegment(boxes, index);
            for (int result = ShallowVelocityBox; result <= TotalTimeBox; ++result)
                checkResult(boxes[size_t(result)]);
        }
        for (int index = 12; index <= 24; ++index)
            TcTable(index, row) = boxes[size_t(index)];
    }
    ReturnTcTable(TcTable, rowIds, tables);
}

void landUse(WatershedTables& tables, const std::string& bytes) {
    MemoryGrid grid(1, LandUseGridCols);
    FillLandUseGrid(grid, ReadLandUseRecords(bytes, BlankName::EndReading));
    LandUseWork work;
    LoadLandUseWork(work, tables);
    const int cells = 4 * grid.Rows();
    for (int row = 1; row <= std::min(tables.SubAreaCount, MostSubAreas); ++row) {
        const int before = work.WorkStoreCount;
        ClearLandUseGrid(work, grid);
        work.WorkRow = short(row);
        ShowSubAreaCells(work, grid, row);
        MoveCursorQuietly(work, grid, 1, 1);
        CursorMoved(work, grid, 1, 1);
        // The identifier's characters as the user's actions: "X" deletes the value of the
        // remembered cell, "S" stores the grid, "D" deletes the sub-area's land use details, "P"
        // picks the cell the next two characters point to; any other character is a key typed.
        const std::string actions = tables.SubAreaTable(1, row);
        for (size_t i = 0; i < actions.size(); ++i) {
            const auto action = static_cast<unsigned char>(actions[i]);
            if (action == 'X') {
                DeleteCellValue(work, grid);
            } else if (action == 'S') {
                StoreLandUseGrid(work, grid, tables, 0);
            } else if (action == 'D') {
                DeleteSubAreaLandUse(work, grid, row);
            } else if (action == 'P' && i + 2 < actions.size()) {
                const int pickRow = static_cast<unsigned char>(actions[++i]) % grid.Rows();
                const int pickCol = static_cast<unsigned char>(actions[++i]) % LandUseGridCols;
                MoveCursorQuietly(work, grid, pickRow, pickCol);
                CursorMoved(work, grid, pickRow, pickCol);
            } else {
                LandUseKey(work, grid, action);
            }
        }
        checkSum(work.Accumulated);
        checkSum(work.WeightedCn);
        StoreLandUseGrid(work, grid, tables, 0);
        if (work.WorkStoreCount > before + 8 * cells)
            __builtin_trap();
    }
    DeleteCellValue(work, grid);
    DeleteSubAreaLandUse(work, grid, 1);
    ReturnLandUseWork(work, tables);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::vector<std::string> lines = splitLines(bytes);
    WatershedTables tables;
    ReadSubAreaSection(lines, tables);
    fillRainfall(lines, tables.Rainfall);
    timeOfConcentration(tables);
    landUse(tables, bytes);
    // What the calculators hand back is written as the section.
    SubAreaSectionRecords(tables);
    return 0;
}
