// The value grid on a grid held in memory: values typed, pasted, inserted and deleted as the
// windows drive them, shown from the shared store and stored back into it.
#include "tables/value_grid.h"

#include "../editing/colour_printing.h"
#include "tables/pasted_text.h"
#include "tables/rainfall_distribution.h"
#include "tables/unit_hydrograph.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

using Texts = std::vector<std::string>;

const ValueGridRules Rising{12, true, -999};
const ValueGridRules UpToOne{10, false, 1};

class ValueGridTest : public ::testing::Test {
protected:
    explicit ValueGridTest(const ValueGridRules& rules = Rising)
        : grid(rules.Rows, FlowGridColumns), values(context, grid, rules) {}

    // Characters typed into the grid, Enter given as '\r'.
    void type(const std::string& keys) {
        for (char c : keys) {
            int key = static_cast<unsigned char>(c);
            values.key(key);
        }
    }
    // A new table in the store, shown as a new one starts: its zero in the first cell.
    void startNewTable() {
        context.TableCurrent = addTable(context);
        values.startTable("0", 1);
        values.enter();
    }
    Rgb colour(int row, int col) const { return grid.cellColour(row, col); }

    GridContext context;
    MemoryGrid grid;
    ValueGrid values;
};

TEST_F(ValueGridTest, ANewTableStartsAtZeroWithTheCursorOnTheSecondCell) {
    startNewTable();
    EXPECT_EQ(grid.cellText(0, 0), "0");
    EXPECT_EQ(values.Row, 0);
    EXPECT_EQ(values.Col, 1);
    EXPECT_EQ(values.Index, 1);
    EXPECT_EQ(colour(0, 1), CurrentColour);
    EXPECT_EQ(colour(0, 0), UntouchedColour);
}

TEST_F(ValueGridTest, ValuesFlowFiveToARowFromCellToCell) {
    startNewTable();
    type("0.1\r0.2\r0.3\r0.4\r0.5\r0.6\r");
    EXPECT_EQ(grid.rowTexts(0), (Texts{"0", "0.1", "0.2", "0.3", "0.4"}));
    EXPECT_EQ(grid.rowTexts(1), (Texts{"0.5", "0.6", "", "", ""}));
    EXPECT_EQ(values.Row, 1);
    EXPECT_EQ(values.Col, 2);
    EXPECT_EQ(values.values(), (Texts{"0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6"}));
}

TEST_F(ValueGridTest, TwentyTwoValuesTypedAreWrittenAsFourRecordsOfFiveAndOneOfTwo) {
    resetTabularTables(context, RainTableFields, 1);
    startNewTable();
    context.IdentifierTable.resizeFields(RainTableFields);
    context.IdentifierTable(1, 1) = "T1";
    context.IdentifierTable(2, 1) = "0.5";
    for (int i = 1; i <= 21; ++i)
        type(std::to_string(i) + "\r");
    values.leave();
    values.store();
    const auto lines = WriteRainfallDistributionSection(StoredValueTables(context));
    ASSERT_EQ(lines.size(), 8u);
    EXPECT_EQ(lines[2], "                    0.        1.        2.        3.        4.        ");
    EXPECT_EQ(lines[6], "                    20.       21.       ");
    EXPECT_EQ(lines[7], "");
}

TEST_F(ValueGridTest, AtTheLastCellOfTheGridARowHoldingABlankIsAdded) {
    startNewTable();
    for (int i = 1; i < 12 * 5 - 1; ++i)
        type("1\r");
    EXPECT_EQ(values.Row, 11);
    EXPECT_EQ(values.Col, 4);
    EXPECT_EQ(grid.Rows(), 13);
    EXPECT_EQ(grid.cellText(12, 0), " ");
}

TEST_F(ValueGridTest, AValueBelowTheCellBeforeTurnsRedWhenLeftAndStaysInTheData) {
    startNewTable();
    type("0.7\r0.5\r0.5\r");
    EXPECT_EQ(colour(0, 1), UntouchedColour);
    EXPECT_EQ(colour(0, 2), RefusedColour);
    EXPECT_EQ(colour(0, 3), UntouchedColour);
    EXPECT_EQ(values.values(), (Texts{"0", "0.7", "0.5", "0.5"}));
}

TEST_F(ValueGridTest, TheFirstCellCannotBeDeletedButCanBeRetyped) {
    startNewTable();
    type("0.2\r0.4\r");
    values.press(0, 0);
    EXPECT_TRUE(ValueGrid::isFirstCell(0, 0));
    // The cursor does not stop on the first cell; typing there needs the cell made current.
    EXPECT_EQ(values.Col, 1);
    values.Col = 0;
    values.deleteValue();
    EXPECT_EQ(values.values(), (Texts{"0", "0.2", "0.4"}));
    grid.setRow(0);
    grid.setCol(0);
    type("0.1");
    EXPECT_EQ(grid.cellText(0, 0), "0.1");
}

TEST_F(ValueGridTest, InsertingCopiesTheCellAndDeletingPullsTheRestBack) {
    startNewTable();
    type("1\r2\r3\r4\r5\r");
    values.press(0, 2);
    values.insertValue();
    EXPECT_EQ(values.values(), (Texts{"0", "1", "2", "2", "3", "4", "5"}));
    values.press(0, 3);
    values.deleteValue();
    values.press(0, 3);
    values.deleteValue();
    EXPECT_EQ(values.values(), (Texts{"0", "1", "2", "4", "5"}));
}

TEST_F(ValueGridTest, LeavingTheGridFinishesTheValueAndUnmarksTheCell) {
    startNewTable();
    type("0.3\r0.2");
    values.leave();
    EXPECT_EQ(values.values(), (Texts{"0", "0.3", "0.2"}));
    // The count takes in the cell the cursor moved on to; the store step leaves it out.
    EXPECT_EQ(values.Index, 4);
    EXPECT_EQ(context.MarkedRow, NoMarkedRow);
    EXPECT_EQ(colour(0, 2), RefusedColour);
    EXPECT_EQ(colour(0, 3), UntouchedColour);
}

TEST_F(ValueGridTest, ATableIsShownFromTheStoreWithASpareRowBehindAFullGrid) {
    Texts sixty;
    for (int i = 0; i < 60; ++i)
        sixty.push_back(std::to_string(i));
    LoadValueTables(context, {{{"A"}, {"0", "1", "2"}}, {{"B"}, sixty}}, RainTableFields);
    values.showTable(2);
    EXPECT_EQ(values.Index, 60);
    EXPECT_EQ(grid.Rows(), 13);
    EXPECT_EQ(values.Row, 11);
    EXPECT_EQ(values.Col, 4);
    EXPECT_EQ(values.values(), sixty);
    values.showTable(1);
    EXPECT_EQ(grid.Rows(), 12);
    EXPECT_EQ(grid.rowTexts(0), (Texts{"0", "1", "2", "", ""}));
    EXPECT_EQ(grid.rowTexts(11), Texts(5));
}

TEST_F(ValueGridTest, AGrownTableIsStoredInPlaceAndMovesTheTablesBehindIt) {
    LoadValueTables(context, {{{"A"}, {"0", "1"}}, {{"B"}, {"0", "5"}}}, RainTableFields);
    context.TableCurrent = 1;
    values.showTable(1);
    values.enter();
    values.press(0, 2);
    type("2\r3\r");
    values.leave();
    values.store();
    const auto tables = StoredValueTables(context);
    EXPECT_EQ(tables[0].Values, (Texts{"0", "1", "2", "3"}));
    EXPECT_EQ(tables[1].Values, (Texts{"0", "5"}));
    EXPECT_FALSE(context.GridBusy);
}

TEST_F(ValueGridTest, ASingleValueIsNotStored) {
    startNewTable();
    values.store();
    EXPECT_EQ(context.TableFirst[1], 0);
    EXPECT_EQ(StoredValueTables(context)[0].Values, Texts{});
}

TEST_F(ValueGridTest, PastedValuesFillTheCellsFromTheCurrentOneAsIfTyped) {
    startNewTable();
    values.paste(SplitPastedValues("0.1\t0.3\r\n0.2\t-1\r\n0.5\r\n"));
    EXPECT_EQ(values.values(), (Texts{"0", "0.1", "0.3", "0.2", "-1", "0.5"}));
    EXPECT_EQ(colour(0, 2), UntouchedColour);
    EXPECT_EQ(colour(0, 3), RefusedColour);
    EXPECT_EQ(colour(0, 4), RefusedColour);
    EXPECT_EQ(values.Row, 1);
    EXPECT_EQ(values.Col, 1);
    EXPECT_EQ(colour(1, 1), CurrentColour);
}

TEST_F(ValueGridTest, PastingOverValuesReplacesThemAndGoesOnBehindThem) {
    startNewTable();
    type("1\r2\r3\r");
    values.press(0, 2);
    values.paste({"5", "6", "7", "8"});
    EXPECT_EQ(values.values(), (Texts{"0", "1", "5", "6", "7", "8"}));
}

TEST_F(ValueGridTest, PastingNeedsATableOnShow) {
    values.startTable(" ", 0);
    values.paste({"1", "2"});
    EXPECT_EQ(values.values(), Texts{});
    EXPECT_EQ(grid.cellText(0, 1), "");
}

TEST_F(ValueGridTest, CopiedValuesPasteIntoANewTableToTheSameSeries) {
    startNewTable();
    type("0.1\r0.25\r0.5\r1\r");
    const std::string copied = ValuesAsColumn(values.values());
    EXPECT_EQ(copied, "0\r\n0.1\r\n0.25\r\n0.5\r\n1\r\n");
    startNewTable();
    Texts pasted = SplitPastedValues(copied);
    pasted.erase(pasted.begin());
    values.paste(pasted);
    EXPECT_EQ(values.values(), (Texts{"0", "0.1", "0.25", "0.5", "1"}));
}

TEST_F(ValueGridTest, TheGridsOwnCellChangeIsPassedOverWhileARoutineMovesTheCell) {
    startNewTable();
    type("1\r2\r");
    context.GridBusy = true;
    values.cellChanged(0, 1);
    EXPECT_EQ(values.Col, 3);
    context.GridBusy = false;
    values.cellChanged(0, 1);
    EXPECT_EQ(values.Col, 1);
    EXPECT_EQ(colour(0, 1), CurrentColour);
}

class UnitValueGridTest : public ValueGridTest {
protected:
    UnitValueGridTest() : ValueGridTest(UpToOne) {}
};

TEST_F(UnitValueGridTest, AValueAboveOneTurnsRedWhenLeftAndOneAndZeroPass) {
    startNewTable();
    type("0.5\r1\r1.2\r0\r0.3\r");
    EXPECT_EQ(colour(0, 1), UntouchedColour);
    EXPECT_EQ(colour(0, 2), UntouchedColour);
    EXPECT_EQ(colour(0, 3), RefusedColour);
    EXPECT_EQ(colour(0, 4), UntouchedColour);
    values.leave();
    values.store();
    EXPECT_EQ(WriteUnitHydrographSection(StoredValueTables(context)[0].Values)[1],
              "                    0.        0.5       1.        1.2       0.        ");
}

} // namespace
} // namespace brooklet
