// The land use calculator's grid and working tables on a grid held in memory: the rows and
// their colours, the cursor rule, typing with the running sums, showing and storing a
// sub-area's records, the deletions and the hand-back.
#include "network/land_use_calculator.h"

#include "editing/grid_control.h"
#include "editing/watershed_tables.h"
#include "network/standard_land_use.h"
#include "network/sub_area.h"
#include "network_records.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

const std::vector<LandUseRow> Local = {{"Parking Lot", "80", "80", "80", "80"},
                                       {"Lawn", "60", "60", "60", ""}};

class LandUseCalculatorTest : public ::testing::Test {
protected:
    LandUseCalculatorTest() : grid(1, LandUseGridCols) {
        FillLandUseGrid(grid, Local);
        CursorMoved(work, grid, 1, 1);
    }
    // The grid row of a land use name; -1 when it is not there.
    int rowOf(const std::string& name) const {
        for (int row = 1; row < grid.Rows(); ++row)
            if (grid.cellText(row, 0) == name)
                return row;
        return -1;
    }
    void type(const std::string& keys) {
        for (char key : keys)
            LandUseKey(work, grid, key);
    }
    // Clicks a cell: the cursor goes there and the rule runs.
    void pick(int row, int col) {
        MoveCursorQuietly(work, grid, row, col);
        CursorMoved(work, grid, row, col);
    }
    void load(const Lines& section) {
        ReadSubAreaSection(section, tables);
        LoadLandUseWork(work, tables);
    }

    MemoryGrid grid;
    LandUseWork work;
    WatershedTables tables;
};

TEST_F(LandUseCalculatorTest, ListsTheLocalLandUsesThenTheStandardOnesWithTheirColours) {
    ASSERT_EQ(grid.Rows(), 1 + 2 + StandardLandUseRows);
    EXPECT_EQ(grid.rowTexts(1), (Lines{"Parking Lot", "", "80", "", "80", "", "80", "", "80"}));
    EXPECT_EQ(grid.cellColour(1, 0), LocalListedColour);
    EXPECT_EQ(grid.cellColour(2, 8), LocalListedColour);
    // A local land use without a curve number still takes an area.
    EXPECT_EQ(grid.cellColour(2, 7), UntouchedColour);
    EXPECT_EQ(grid.rowTexts(3), (Lines{"Open Space (Poor)", "", "68", "", "79", "", "86", "", "89"}));
    EXPECT_EQ(grid.cellColour(3, 0), StandardListedColour);
    EXPECT_EQ(grid.cellColour(3, 2), StandardListedColour);
    EXPECT_EQ(grid.cellColour(3, 3), UntouchedColour);
    EXPECT_EQ(grid.cellColour(1, 1), CurrentColour);
}

TEST_F(LandUseCalculatorTest, AStandardRangeRowWithoutACurveNumberForGroupAWontTakeTheCursorThere) {
    const int range = rowOf("Range (Herbaceous - Poor)");
    ASSERT_GT(range, 0);
    EXPECT_EQ(grid.cellColour(range, 1), StandardListedColour);
    pick(range, 3);
    EXPECT_EQ(grid.Row(), range);
    pick(range, 1);
    EXPECT_EQ(grid.Row(), range);
    EXPECT_EQ(grid.Col(), 3);
    EXPECT_EQ(grid.cellColour(range, 3), CurrentColour);
    // The keyboard passes the cell by: from column 7 of the row above to column 3 of the row.
    pick(range - 1, 7);
    LandUseKey(work, grid, 9);
    EXPECT_EQ(grid.Row(), range);
    EXPECT_EQ(grid.Col(), 3);
}

TEST_F(LandUseCalculatorTest, CurveNumberAndFixedCellsGiveWayToAreaCells) {
    pick(2, 4);
    EXPECT_EQ(grid.Col(), 3);
    // From the left on the same row: on to the next area column.
    pick(2, 4);
    EXPECT_EQ(grid.Col(), 5);
    pick(1, 0);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 5);
    // A standard row's curve number cell is grey: back to the remembered cell.
    pick(3, 2);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.cellColour(2, 3), UntouchedColour);
    EXPECT_EQ(grid.cellColour(2, 5), CurrentColour);
}

TEST_F(LandUseCalculatorTest, TwoCellsOf15And05WithCurveNumbers80And60Show2And75) {
    type("1.5");
    EXPECT_EQ(work.Accumulated, "1.5");
    EXPECT_EQ(work.WeightedCn, "80");
    pick(2, 1);
    type(".5");
    EXPECT_EQ(work.Accumulated, "2");
    EXPECT_EQ(work.WeightedCn, "75");
}

TEST_F(LandUseCalculatorTest, DeletingAValueBringsTheSumsBackAndBlanksTheCurveNumberAtZero) {
    type("1.5");
    pick(2, 1);
    type(".5");
    DeleteCellValue(work, grid);
    EXPECT_EQ(grid.cellText(2, 1), "");
    EXPECT_EQ(work.Accumulated, "1.5");
    EXPECT_EQ(work.WeightedCn, "80");
    pick(1, 1);
    DeleteCellValue(work, grid);
    EXPECT_EQ(work.Accumulated, "0");
    EXPECT_EQ(work.WeightedCn, "");
}

TEST_F(LandUseCalculatorTest, ASecondPointIsRefusedAndBackspaceTakesTheLastCharacter) {
    type("2.5.1");
    EXPECT_EQ(grid.cellText(1, 1), "2.51");
    LandUseKey(work, grid, 8);
    EXPECT_EQ(grid.cellText(1, 1), "2.5");
    type("x-");
    EXPECT_EQ(grid.cellText(1, 1), "2.5");
    type("1234567890");
    EXPECT_EQ(grid.cellText(1, 1), "2.51234567");
}

TEST_F(LandUseCalculatorTest, TabMovesTwoColumnsOnThenToTheNextRow) {
    LandUseKey(work, grid, 9);
    EXPECT_EQ(grid.Col(), 3);
    LandUseKey(work, grid, 13);
    LandUseKey(work, grid, 39);
    EXPECT_EQ(grid.Col(), 7);
    LandUseKey(work, grid, 9);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 1);
    pick(grid.Rows() - 1, 7);
    LandUseKey(work, grid, 9);
    EXPECT_EQ(grid.Row(), grid.Rows() - 1);
    EXPECT_EQ(grid.Col(), 7);
}

TEST_F(LandUseCalculatorTest, ShowsASubAreasRecordsInTheirCellsWithTheSums) {
    load({SubAreaHeader, tens({"", "A1"}), landArea("Parking Lot", "a", "1.5"), landArea("Lawn", "B", "0.5"),
          ""});
    ShowSubAreaCells(work, grid, 1);
    EXPECT_EQ(grid.cellText(1, 1), "1.5");
    EXPECT_EQ(grid.cellText(2, 3), "0.5");
    EXPECT_EQ(work.Accumulated, "2");
    EXPECT_EQ(work.WeightedCn, "75");
}

TEST_F(LandUseCalculatorTest, ANameInNeitherTableOrOutOfOrderIsNotShownAndIsDroppedOnStoring) {
    load({SubAreaHeader, tens({"", "A1"}), landArea("Lawn", "A", "1."), landArea("Parking Lot", "A", "2."),
          landArea("Swamp", "C", "3."), landArea("Impervious", "D", "4."), ""});
    ShowSubAreaCells(work, grid, 1);
    EXPECT_EQ(grid.cellText(2, 1), "1.");
    EXPECT_EQ(grid.cellText(1, 1), "");
    EXPECT_EQ(grid.cellText(rowOf("Impervious"), 7), "");
    work.WorkRow = 1;
    StoreLandUseGrid(work, grid, tables, 0);
    ASSERT_TRUE(ReturnLandUseWork(work, tables));
    EXPECT_EQ(SubAreaSectionRecords(tables), (Lines{SubAreaHeader, tens({"", "A1"}) + std::string(55, ' '),
                                                    landArea("Lawn", "A", "1."), ""}));
}

TEST_F(LandUseCalculatorTest, StoringMoreCellsMakesRoomAndMovesTheLaterSubAreasOn) {
    load({SubAreaHeader, tens({"", "A1"}), landArea("Lawn", "A", "1."), tens({"", "A2"}),
          landArea("Impervious", "B", "2."), ""});
    ShowSubAreaCells(work, grid, 1);
    pick(1, 3);
    type("3");
    work.WorkRow = 1;
    StoreLandUseGrid(work, grid, tables, 0);
    EXPECT_EQ(work.WorkFirst[1], 1);
    EXPECT_EQ(work.WorkLast[1], 2);
    EXPECT_EQ(work.WorkFirst[2], 3);
    EXPECT_EQ(work.WorkStoreCount, 3);
    ASSERT_TRUE(ReturnLandUseWork(work, tables));
    EXPECT_EQ(SubAreaSectionRecords(tables),
              (Lines{SubAreaHeader, tens({"", "A1"}) + std::string(55, ' '),
                     landArea("Parking Lot", "B", "3."), landArea("Lawn", "A", "1."),
                     tens({"", "A2"}) + std::string(55, ' '), landArea("Impervious", "B", "2."), ""}));
}

TEST_F(LandUseCalculatorTest, DeletingASubAreasRecordsKeepsTheOthersTheirs) {
    load({SubAreaHeader, tens({"", "A1"}), landArea("Lawn", "A", "1."), landArea("Lawn", "B", "1."),
          tens({"", "A2"}), landArea("Impervious", "B", "2."), ""});
    DeleteSubAreaLandUse(work, grid, 1);
    EXPECT_EQ(work.WorkStoreCount, 2);
    ASSERT_TRUE(ReturnLandUseWork(work, tables));
    EXPECT_EQ(SubAreaSectionRecords(tables),
              (Lines{SubAreaHeader, tens({"", "A1"}) + std::string(55, ' '),
                     tens({"", "A2"}) + std::string(55, ' '), landArea("Impervious", "B", "2."), ""}));
}

// Deleting the value of 0.7 on a curve number of 80 leaves a sum of a millionth above 0 in
// single precision, so the store step keeps the sub-area's first position with no rows behind it.
// "Delete Land Use Details" then has no rows to take out, and the later sub-areas keep theirs.
TEST_F(LandUseCalculatorTest, DeletingTheDetailsOfASubAreaLeftWithNoRowsKeepsTheOthersTheirs) {
    load({SubAreaHeader, tens({"", "A1"}), landArea("Parking Lot", "A", "0.7"), tens({"", "A2"}),
          landArea("Lawn", "B", "1."), ""});
    ShowSubAreaCells(work, grid, 1);
    pick(1, 1);
    DeleteCellValue(work, grid);
    work.WorkRow = 1;
    StoreLandUseGrid(work, grid, tables, 0);
    DeleteSubAreaLandUse(work, grid, 1);
    EXPECT_EQ(work.WorkStoreCount, 2);
    EXPECT_EQ(work.WorkFirst[2], 2);
    EXPECT_EQ(work.WorkLast[2], 2);
    ASSERT_TRUE(ReturnLandUseWork(work, tables));
    EXPECT_EQ(SubAreaSectionRecords(tables),
              (Lines{SubAreaHeader, tens({"", "A1"}) + std::string(55, ' '),
                     tens({"", "A2"}) + std::string(55, ' '), landArea("Lawn", "B", "1."), ""}));
}

TEST_F(LandUseCalculatorTest, ASubAreaWithATypedAreaOrCurveNumberIsNoChoice) {
    tables.LandUseStoreCount = 0;
    ReadSubAreaSection({SubAreaHeader, tens({"", "A1", "", "", "2."}), tens({"", "A2", "", "", "", "70"}),
                        tens({"", "A3"}), ""},
                       tables);
    EXPECT_EQ(LoadLandUseWork(work, tables), (Lines{"A3"}));
    EXPECT_EQ(FindLandUseSubArea(work, " A2 "), 2);
    EXPECT_EQ(FindLandUseSubArea(work, "a2"), 0);
    // No land use row anywhere: nothing is handed back.
    EXPECT_FALSE(ReturnLandUseWork(work, tables));
}

} // namespace
} // namespace brooklet::test
