#include "editing/grid_editor.h"

#include "colour_printing.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

using Texts = std::vector<std::string>;

// A value grid window in miniature: the grid, the shared variables, and the window's own cell,
// value count and entry mode, driven key by key as the window drives them.
class FlowWindow {
public:
    explicit FlowWindow(const Texts& values, int rows = 12) : grid(rows, FlowGridColumns) {
        context.GridCheckOrder = true;
        context.GridHighLimit = -999;
        context.GridVisibleRows = 9;
        for (size_t i = 0; i < values.size(); ++i)
            grid.setCellText(int(i) / FlowGridColumns, int(i) % FlowGridColumns, values[i]);
        Index = static_cast<int>(values.size());
    }

    // A key of the grid; gives the key as the routine leaves it.
    int key(int code) {
        HandleGridKey(context, code, grid, Row, Col, Index, Typing, WrapCol, Step);
        return code;
    }
    void type(const std::string& keys) {
        for (char c : keys)
            key(static_cast<unsigned char>(c));
    }
    int enter() { return key(EnterKey); }
    // A click on a cell: the grid's current cell follows and the cursor marks it.
    void click(int row, int col) {
        grid.setRow(row);
        grid.setCol(col);
        Row = row;
        Col = col;
        MoveGridCursor(context, grid, Row, Col, Index, Valid, Typing);
    }
    // The texts of the first n cells of the series.
    Texts series(int n) const {
        Texts texts;
        for (int i = 0; i < n; ++i)
            texts.push_back(grid.cellText(i / FlowGridColumns, i % FlowGridColumns));
        return texts;
    }
    Rgb colour(int row, int col) const { return grid.cellColour(row, col); }

    GridContext context;
    MemoryGrid grid;
    int Row = 0, Col = 0, Index = 0;
    bool Typing = false, Valid = true;
    int WrapCol = 0, Step = 0;
};

// A new table as the distribution window starts one: "0" in the first cell, one value.
FlowWindow newTable() {
    FlowWindow window({"0"});
    window.click(0, 1);
    return window;
}

TEST(FlowGrid, TypingTwoDigitsAndEnterInANewCellKeepsTwelveAndMovesOn) {
    FlowWindow window = newTable();
    EXPECT_EQ(window.colour(0, 1), CurrentColour);
    EXPECT_EQ(window.context.MarkedRow, 0);
    EXPECT_EQ(window.context.MarkedCol, 1);
    window.type("12");
    EXPECT_TRUE(window.Typing);
    EXPECT_EQ(window.grid.cellText(0, 1), "12");
    EXPECT_EQ(window.enter(), 0);
    EXPECT_EQ(window.grid.cellText(0, 1), "12");
    EXPECT_EQ(window.colour(0, 1), UntouchedColour);
    EXPECT_EQ(window.Row, 0);
    EXPECT_EQ(window.Col, 2);
    EXPECT_EQ(window.grid.Row(), 0);
    EXPECT_EQ(window.grid.Col(), 2);
    EXPECT_EQ(window.colour(0, 2), CurrentColour);
    EXPECT_EQ(window.Index, 3);
    EXPECT_FALSE(window.Typing);
    EXPECT_FALSE(window.context.GridBusy);

    window.context.TableCurrent = addTable(window.context);
    StoreFlowGrid(window.context, window.grid, window.Index);
    EXPECT_EQ(window.context.TableFirst[1], 1);
    EXPECT_EQ(window.context.TableLast[1], 2);
    EXPECT_EQ(window.context.ValueCount, 3);
    EXPECT_EQ(window.context.ValueStore(1), "0");
    EXPECT_EQ(window.context.ValueStore(2), "12");
    EXPECT_EQ(window.context.ValueStore(3), "");
}

TEST(FlowGrid, ACellTakesNoKeyBeyondTheColumnsOfItsField) {
    FlowWindow window = newTable();
    window.type("1234567.8901");
    EXPECT_EQ(window.grid.cellText(0, 1), "1234567.89");
    // Backspace still works on a full cell, and a key then fills it again.
    window.key(BackspaceKey);
    window.type("5");
    EXPECT_EQ(window.grid.cellText(0, 1), "1234567.85");
    window.enter();
    EXPECT_EQ(window.colour(0, 1), UntouchedColour);
}

TEST(FlowGrid, AValueWiderThanItsFieldIsRedWhenTheCursorLeavesIt) {
    FlowWindow window({"0", "0.5", "1"});
    window.click(0, 1);
    window.grid.setCellText(0, 1, "0.500000000001");
    window.click(0, 2);
    EXPECT_EQ(window.colour(0, 1), RefusedColour);
    window.click(0, 1);
    window.grid.setCellText(0, 1, "0.5");
    window.click(0, 2);
    EXPECT_EQ(window.colour(0, 1), UntouchedColour);
}

TEST(FlowGrid, TheFirstKeyInTheNextCellOverwritesIt) {
    FlowWindow window({"0", "5", "7", "9"});
    window.click(0, 1);
    window.type("6");
    EXPECT_EQ(window.grid.cellText(0, 1), "6");
    window.enter();
    EXPECT_EQ(window.Col, 2);
    window.type("8");
    EXPECT_EQ(window.grid.cellText(0, 2), "8");
    window.enter();
    EXPECT_EQ(window.series(5), (Texts{"0", "6", "8", "9", ""}));
    EXPECT_EQ(window.colour(0, 1), UntouchedColour);
    EXPECT_EQ(window.colour(0, 2), UntouchedColour);
    EXPECT_EQ(window.colour(0, 3), CurrentColour);
    EXPECT_EQ(window.Index, 4);
}

TEST(FlowGrid, BackspaceCutsTheTrimmedTextOnlyWhileTyping) {
    FlowWindow window({"0", "7"});
    window.click(0, 1);
    window.key(BackspaceKey);
    EXPECT_EQ(window.grid.cellText(0, 1), "7");
    window.type("125");
    window.key(BackspaceKey);
    EXPECT_EQ(window.grid.cellText(0, 1), "12");
    window.grid.setCellText(0, 1, " 12 ");
    window.key(BackspaceKey);
    EXPECT_EQ(window.grid.cellText(0, 1), "1");
    window.key(BackspaceKey);
    window.key(BackspaceKey);
    EXPECT_EQ(window.grid.cellText(0, 1), "");
}

TEST(FlowGrid, OtherKeysAreIgnoredAndTheApostropheMovesOnLikeEnter) {
    FlowWindow window = newTable();
    for (int other : std::initializer_list<int>{'a', '-', 'E', '+', ',', 27})
        EXPECT_EQ(window.key(other), other);
    EXPECT_EQ(window.grid.cellText(0, 1), "");
    window.type("3");
    EXPECT_EQ(window.key(ApostropheKey), 0);
    EXPECT_EQ(window.Col, 2);
    window.type("4");
    EXPECT_EQ(window.key(TabKey), 0);
    EXPECT_EQ(window.Col, 3);
    EXPECT_EQ(window.series(4), (Texts{"0", "3", "4", ""}));
}

TEST(FlowGrid, EnterOnABlankCellInsideTheSeriesDeletesTheCell) {
    FlowWindow window({"0", "1", "2", "3", "4"});
    window.click(0, 2);
    window.type("5");
    window.key(BackspaceKey);
    EXPECT_EQ(window.grid.cellText(0, 2), "");
    window.enter();
    EXPECT_EQ(window.series(6), (Texts{"0", "1", "3", "4", "", ""}));
    EXPECT_EQ(window.Index, 4);
    EXPECT_EQ(window.Row, 0);
    EXPECT_EQ(window.Col, 2);
    EXPECT_EQ(window.colour(0, 2), CurrentColour);
    EXPECT_EQ(window.colour(0, 4), UntouchedColour);
}

TEST(FlowGrid, EnterAtTheLastCellOfTheLastRowAddsARow) {
    FlowWindow window({"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}, 2);
    window.click(1, 4);
    EXPECT_EQ(window.grid.Rows(), 2);
    EXPECT_FALSE(window.context.GridGrew);
    window.enter();
    EXPECT_EQ(window.grid.Rows(), 3);
    EXPECT_TRUE(window.context.GridGrew);
    EXPECT_EQ(window.Row, 2);
    EXPECT_EQ(window.Col, 0);
    EXPECT_EQ(window.Index, 11);
    EXPECT_EQ(window.colour(2, 0), CurrentColour);
    EXPECT_EQ(window.colour(1, 4), UntouchedColour);
}

TEST(FlowGrid, EnterAtARowEndMovesToTheWrapColumnOfTheNextRow) {
    FlowWindow window({"0", "1", "2", "3", "4", "5"});
    window.click(0, 4);
    window.enter();
    EXPECT_EQ(window.Row, 1);
    EXPECT_EQ(window.Col, 0);
    EXPECT_TRUE(window.context.GridGrew);
    EXPECT_EQ(window.grid.Rows(), 12);
}

TEST(FlowGrid, AValueBelowTheOneBeforeTurnsRedWhenLeftAndStaysInTheData) {
    FlowWindow window = newTable();
    window.type("0.7");
    window.enter();
    window.type("0.5");
    EXPECT_EQ(window.colour(0, 2), CurrentColour);
    window.enter();
    EXPECT_EQ(window.colour(0, 2), RefusedColour);
    EXPECT_EQ(window.colour(0, 1), UntouchedColour);
    EXPECT_EQ(window.grid.cellText(0, 2), "0.5");
    EXPECT_EQ(window.Index, 4);

    window.context.TableCurrent = addTable(window.context);
    StoreFlowGrid(window.context, window.grid, window.Index);
    EXPECT_EQ(window.context.TableFirst[1], 1);
    EXPECT_EQ(window.context.TableLast[1], 3);
    EXPECT_EQ(window.context.ValueStore(3), "0.5");
}

TEST(FlowGrid, AValueAboveTheOneAfterTurnsRedAndEqualNeighboursPass) {
    FlowWindow window({"0", "0.2", "0.4", "0.6"});
    window.click(0, 2);
    window.type("0.9");
    window.click(0, 1);
    EXPECT_FALSE(window.Valid);
    EXPECT_EQ(window.colour(0, 2), RefusedColour);
    EXPECT_EQ(window.colour(0, 1), CurrentColour);

    window.click(0, 2);
    window.type("0.6");
    window.click(0, 3);
    EXPECT_TRUE(window.Valid);
    EXPECT_EQ(window.colour(0, 2), UntouchedColour);
    window.type("0.2");
    window.click(0, 1);
    EXPECT_FALSE(window.Valid);
    EXPECT_EQ(window.colour(0, 3), RefusedColour);
}

TEST(FlowGrid, AFallingValuePassesWithoutTheOrderCheck) {
    FlowWindow window({"0", "10", "20"});
    window.context.GridCheckOrder = false;
    window.click(0, 2);
    window.type("5");
    window.enter();
    EXPECT_EQ(window.colour(0, 2), UntouchedColour);
}

TEST(FlowGrid, TheHighLimitRefusesLargerValues) {
    FlowWindow window({"0"});
    window.context.GridCheckOrder = false;
    window.context.GridHighLimit = 1;
    window.click(0, 1);
    window.type("1.5");
    window.enter();
    EXPECT_EQ(window.colour(0, 1), RefusedColour);
    window.type("1");
    window.enter();
    EXPECT_EQ(window.colour(0, 2), UntouchedColour);
    window.type("0.25");
    window.enter();
    EXPECT_EQ(window.colour(0, 3), UntouchedColour);

    FlowWindow unlimited({"0"});
    unlimited.context.GridHighLimit = -999;
    unlimited.click(0, 1);
    unlimited.type("1000");
    unlimited.enter();
    EXPECT_EQ(unlimited.colour(0, 1), UntouchedColour);
}

TEST(FlowGrid, InsertingInTheMiddleCopiesTheCellAndShiftsTheRest) {
    FlowWindow window({"0", "1", "2", "3"});
    window.click(0, 2);
    InsertGridCell(window.context, window.grid, window.Row, window.Col, window.Index, window.Valid,
                   window.Typing);
    EXPECT_EQ(window.series(6), (Texts{"0", "1", "2", "2", "3", ""}));
    EXPECT_EQ(window.Index, 5);
    EXPECT_EQ(window.Row, 0);
    EXPECT_EQ(window.Col, 2);
    EXPECT_EQ(window.grid.Col(), 2);
    EXPECT_TRUE(window.context.GridBusy);
    window.type("1.5");
    window.enter();
    EXPECT_EQ(window.series(6), (Texts{"0", "1", "1.5", "2", "3", ""}));
    EXPECT_EQ(window.colour(0, 2), UntouchedColour);
    EXPECT_FALSE(window.context.GridBusy);

    window.context.TableCurrent = addTable(window.context);
    StoreFlowGrid(window.context, window.grid, window.Index);
    EXPECT_EQ(window.context.TableLast[1], 5);
    for (int i = 1; i <= 5; ++i)
        EXPECT_EQ(window.context.ValueStore(i), (Texts{"0", "1", "1.5", "2", "3"})[size_t(i - 1)]);
}

TEST(FlowGrid, InsertingAtAFullGridAddsARow) {
    FlowWindow window({"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}, 2);
    window.context.GridCheckOrder = false;
    window.click(0, 1);
    InsertGridCell(window.context, window.grid, window.Row, window.Col, window.Index, window.Valid,
                   window.Typing);
    EXPECT_GE(window.grid.Rows(), 3);
    EXPECT_EQ(window.series(11), (Texts{"0", "1", "1", "2", "3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ(window.Index, 11);
}

TEST(FlowGrid, DeletingInTheMiddlePullsTextsAndColoursBackAcrossARow) {
    FlowWindow window({"0", "1", "2", "3", "4", "5", "6"});
    window.context.GridCheckOrder = false;
    window.grid.setCellColour(1, 0, RefusedColour);
    window.click(0, 3);
    DeleteGridCell(window.context, window.grid, window.Row, window.Col, window.Index, window.Valid,
                   window.Typing);
    EXPECT_EQ(window.series(8), (Texts{"0", "1", "2", "4", "5", "6", "", ""}));
    EXPECT_EQ(window.colour(0, 3), CurrentColour);
    EXPECT_EQ(window.colour(0, 4), RefusedColour);
    EXPECT_EQ(window.colour(1, 0), UntouchedColour);
    EXPECT_EQ(window.colour(1, 1), UntouchedColour);
    EXPECT_EQ(window.Index, 6);
    EXPECT_EQ(window.Row, 0);
    EXPECT_EQ(window.Col, 3);
}

TEST(FlowGrid, DeletingTheLastValueEmptiesItsCell) {
    FlowWindow window({"0", "1", "2"});
    window.click(0, 2);
    DeleteGridCell(window.context, window.grid, window.Row, window.Col, window.Index, window.Valid,
                   window.Typing);
    EXPECT_EQ(window.series(3), (Texts{"0", "1", ""}));
    EXPECT_EQ(window.colour(0, 2), UntouchedColour);
    EXPECT_EQ(window.Index, 2);
}

TEST(FlowGrid, TheCursorDoesNotGoBeyondTheCellAfterTheLastValue) {
    FlowWindow window({"0", "12"});
    window.click(3, 3);
    EXPECT_EQ(window.Row, 0);
    EXPECT_EQ(window.Col, 2);
    EXPECT_EQ(window.Index, 3);
    EXPECT_EQ(window.colour(3, 3), UntouchedColour);
    EXPECT_EQ(window.colour(0, 2), CurrentColour);
    // Now the blank cell behind the series is counted: the cursor stays on it.
    window.click(2, 0);
    EXPECT_EQ(window.Row, 0);
    EXPECT_EQ(window.Col, 2);
    EXPECT_EQ(window.Index, 3);
}

TEST(FlowGrid, WithNoValueTheCursorGoesToTheSecondCellAndNeverStopsOnTheFirst) {
    FlowWindow empty({});
    empty.click(4, 3);
    EXPECT_EQ(empty.Row, 0);
    EXPECT_EQ(empty.Col, 1);
    FlowWindow window({"0", "1"});
    window.click(0, 0);
    EXPECT_EQ(window.Col, 1);
    EXPECT_EQ(window.colour(0, 0), UntouchedColour);
}

TEST(FlowGrid, TheTopRowFollowsTheCursorDown) {
    Texts values;
    for (int i = 0; i < 25; ++i)
        values.push_back(std::to_string(i));
    FlowWindow window(values);
    window.context.GridVisibleRows = 3;
    window.click(4, 4);
    EXPECT_EQ(window.grid.TopRow(), 1);
    window.enter();
    EXPECT_EQ(window.Row, 5);
    EXPECT_EQ(window.grid.TopRow(), 2);
}

TEST(FlowGrid, WithANegativeCountEnterMovesOnByTheStepWithoutDeleting) {
    FlowWindow window({});
    window.Index = -1;
    window.Step = 1;
    window.WrapCol = 1;
    window.Row = 0;
    window.Col = 1;
    window.enter();
    EXPECT_EQ(window.Col, 3);
    EXPECT_EQ(window.Row, 0);
    window.enter();
    EXPECT_EQ(window.Row, 1);
    EXPECT_EQ(window.Col, 1);
    EXPECT_EQ(window.Index, -1);
    EXPECT_TRUE(window.context.GridGrew);
}

// Stores a table's values behind the others, as a window's load does.
int loadTable(GridContext& context, const Texts& values) {
    const int table = addTable(context);
    for (const auto& value : values) {
        context.ValueStore.ensureRows(++context.ValueCount);
        context.ValueStore(context.ValueCount) = value;
        if (context.TableFirst[size_t(table)] == 0)
            context.TableFirst[size_t(table)] = context.ValueCount;
        context.TableLast[size_t(table)] = context.ValueCount;
    }
    return table;
}

Texts storeTexts(const GridContext& context) {
    Texts texts;
    for (int position = 1; position <= context.ValueCount; ++position)
        texts.push_back(context.ValueStore(position));
    return texts;
}

void showValues(MemoryGrid& grid, const Texts& values) {
    for (int i = 0; i < 60; ++i)
        grid.setCellText(i / 5, i % 5, i < int(values.size()) ? values[size_t(i)] : std::string());
}

TEST(StoreFlowGrid, AGrowingTableMovesEveryLaterTableWhichKeepsItsOrder) {
    GridContext context;
    loadTable(context, {"a1", "a2", "a3"});
    loadTable(context, {"b1", "b2", "b3"});
    loadTable(context, {"c1", "c2"});
    MemoryGrid grid(12, 5);
    showValues(grid, {"a1", "a2", "a3", "a4", "a5"});
    context.TableCurrent = 1;
    StoreFlowGrid(context, grid, 5);
    EXPECT_EQ(context.ValueCount, 10);
    EXPECT_EQ(storeTexts(context), (Texts{"a1", "a2", "a3", "a4", "a5", "b1", "b2", "b3", "c1", "c2"}));
    EXPECT_EQ(context.TableFirst, (std::vector<int>{0, 1, 6, 9}));
    EXPECT_EQ(context.TableLast, (std::vector<int>{0, 5, 8, 10}));
    // The grid's current cell is the last value.
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.Col(), 4);
    EXPECT_TRUE(context.GridBusy);
}

TEST(StoreFlowGrid, TablesBeforeTheGrowingOneStayWhereTheyAre) {
    GridContext context;
    loadTable(context, {"a1", "a2"});
    loadTable(context, {"b1", "b2"});
    loadTable(context, {"c1", "c2"});
    MemoryGrid grid(12, 5);
    showValues(grid, {"b1", "b2", "b3", ""});
    context.TableCurrent = 2;
    StoreFlowGrid(context, grid, 4);
    EXPECT_EQ(storeTexts(context), (Texts{"a1", "a2", "b1", "b2", "b3", "", "c1", "c2"}));
    EXPECT_EQ(context.TableFirst, (std::vector<int>{0, 1, 3, 7}));
    // The blank cell behind the last value is no value.
    EXPECT_EQ(context.TableLast, (std::vector<int>{0, 2, 5, 8}));
}

TEST(StoreFlowGrid, AShrinkingTableKeepsItsPlaceAndLeavesTheFreedPositionsUnused) {
    GridContext context;
    loadTable(context, {"v1", "v2", "v3", "v4", "v5", "v6", "v7", "v8", "v9", "v10"});
    loadTable(context, {"w1", "w2"});
    MemoryGrid grid(12, 5);
    showValues(grid, {"n1", "n2", "n3", "n4"});
    context.TableCurrent = 1;
    StoreFlowGrid(context, grid, 4);
    EXPECT_EQ(context.TableFirst[1], 1);
    EXPECT_EQ(context.TableLast[1], 4);
    EXPECT_EQ(context.TableFirst[2], 11);
    EXPECT_EQ(context.TableLast[2], 12);
    EXPECT_EQ(context.ValueCount, 12);
    EXPECT_EQ(storeTexts(context),
              (Texts{"n1", "n2", "n3", "n4", "v5", "v6", "v7", "v8", "v9", "v10", "w1", "w2"}));
}

TEST(StoreFlowGrid, ANewTableGoesBehindAllOthers) {
    GridContext context;
    loadTable(context, {"a1", "a2"});
    const int table = addTable(context);
    loadTable(context, {"c1", "c2"});
    MemoryGrid grid(12, 5);
    showValues(grid, {"0", "5", "9"});
    context.TableCurrent = table;
    StoreFlowGrid(context, grid, 3);
    EXPECT_EQ(context.TableFirst[size_t(table)], 5);
    EXPECT_EQ(context.TableLast[size_t(table)], 7);
    EXPECT_EQ(storeTexts(context), (Texts{"a1", "a2", "c1", "c2", "0", "5", "9"}));
}

TEST(StoreFlowGrid, ASingleValueGetsNoPlaceAndNoTableStoresNothing) {
    GridContext context;
    resetTabularTables(context, 2, 1);
    const int table = addTable(context);
    MemoryGrid grid(12, 5);
    showValues(grid, {"0"});
    context.TableCurrent = table;
    StoreFlowGrid(context, grid, 1);
    EXPECT_EQ(context.TableFirst[size_t(table)], 0);
    EXPECT_EQ(context.TableLast[size_t(table)], 0);
    EXPECT_EQ(context.ValueCount, 0);
    context.TableCurrent = 0;
    showValues(grid, {"0", "1"});
    StoreFlowGrid(context, grid, 2);
    EXPECT_EQ(context.ValueCount, 0);
}

// The row grid of a rating window: heads in row 0, rows from 1, columns from 0, sorted on
// column 0, boxes 3 to 5 for the three columns.
class RowWindow {
public:
    RowWindow() : grid(11, 3) {
        context.GridFirstRow = 1;
        context.GridFirstCol = 0;
        context.GridKeyCol = 0;
        context.GridSecondKeyCol = -999;
        context.GridBoxBase = 3;
        context.GridRow = 1;
        context.MarkedRow = NoMarkedRow;
        grid.setCellText(0, 0, "Elevation");
        grid.setCellText(0, 1, "Discharge");
        grid.setCellText(0, 2, "Storage");
    }
    // The key box left with a value: the row is found or made, then marked and loaded.
    void key(const std::string& text) {
        context.GridKeyText = text;
        PutRowInOrder(context, grid);
        SelectGridRow(context, grid, boxes, true);
    }
    // The other boxes go into the current row.
    void fill(const std::string& discharge, const std::string& storage) {
        grid.setCellText(context.GridRow, 1, discharge);
        grid.setCellText(context.GridRow, 2, storage);
    }
    // The next row, as Tab past the last box gives it.
    void nextRow() {
        context.GridRow += 1;
        SelectGridRow(context, grid, boxes, true);
    }
    Texts boxTexts() { return {boxes.boxes[3].text, boxes.boxes[4].text, boxes.boxes[5].text}; }

    GridContext context;
    MemoryGrid grid;
    MemoryBoxes boxes;
};

TEST(RowGrid, RowsArePlacedInAscendingOrderOfTheirKey) {
    RowWindow window;
    window.key("100");
    EXPECT_EQ(window.context.GridRowsUsed, 1);
    EXPECT_EQ(window.context.GridRow, 1);
    EXPECT_EQ(window.grid.rowTexts(1), (Texts{"100", "", ""}));
    EXPECT_EQ(window.context.MarkedRow, 1);
    EXPECT_EQ(window.grid.cellColour(1, 2), CurrentColour);
    EXPECT_EQ(window.boxTexts(), (Texts{"100", "", ""}));
    window.fill("10", "5");
    window.nextRow();
    EXPECT_EQ(window.context.MarkedRow, 2);
    EXPECT_EQ(window.grid.cellColour(1, 0), UntouchedColour);
    EXPECT_EQ(window.grid.cellColour(2, 0), CurrentColour);

    window.key("90");
    EXPECT_EQ(window.context.GridRowsUsed, 2);
    EXPECT_EQ(window.context.GridRow, 1);
    EXPECT_EQ(window.grid.rowTexts(1), (Texts{"90", "", ""}));
    EXPECT_EQ(window.grid.rowTexts(2), (Texts{"100", "10", "5"}));
    EXPECT_EQ(window.grid.cellColour(1, 1), CurrentColour);
    EXPECT_EQ(window.grid.cellColour(2, 1), UntouchedColour);
    window.fill("4", "2");

    window.key("150");
    EXPECT_EQ(window.context.GridRowsUsed, 3);
    EXPECT_EQ(window.context.GridRow, 3);
    EXPECT_EQ(window.grid.rowTexts(3), (Texts{"150", "", ""}));
    window.fill("20", "9");

    window.key("95.5");
    EXPECT_EQ(window.context.GridRowsUsed, 4);
    EXPECT_EQ(window.context.GridRow, 2);
    EXPECT_EQ(window.grid.rowTexts(1)[0], "90");
    EXPECT_EQ(window.grid.rowTexts(2)[0], "95.5");
    EXPECT_EQ(window.grid.rowTexts(3)[0], "100");
    EXPECT_EQ(window.grid.rowTexts(4)[0], "150");
}

TEST(RowGrid, TheKeyOfAnExistingRowSelectsThatRow) {
    RowWindow window;
    window.key("90");
    window.fill("4", "2");
    window.nextRow();
    window.key("100");
    window.fill("10", "5");
    window.nextRow();
    window.key("100.0");
    EXPECT_EQ(window.context.GridRowsUsed, 2);
    EXPECT_EQ(window.context.GridRow, 2);
    EXPECT_EQ(window.grid.Row(), 2);
    EXPECT_EQ(window.boxTexts(), (Texts{"100.0", "10", "5"}));
    EXPECT_EQ(window.grid.cellColour(2, 0), CurrentColour);
    EXPECT_EQ(window.grid.cellColour(3, 0), UntouchedColour);
}

TEST(RowGrid, ASecondKeyTellsRowsOfEqualKeyApart) {
    RowWindow window;
    window.context.GridSecondKeyCol = 1;
    window.grid.setCellText(1, 0, "1");
    window.grid.setCellText(1, 1, "Storm A");
    window.grid.setCellText(2, 0, "2");
    window.grid.setCellText(2, 1, "Storm B");
    window.context.GridRowsUsed = 2;
    window.context.GridSecondKeyText = " storm b ";
    window.key("2");
    EXPECT_EQ(window.context.GridRow, 2);
    EXPECT_EQ(window.context.GridRowsUsed, 2);
    window.context.GridSecondKeyText = "Storm C";
    window.key("1");
    EXPECT_EQ(window.context.GridRow, 2);
    EXPECT_EQ(window.context.GridRowsUsed, 3);
    EXPECT_EQ(window.grid.rowTexts(2), (Texts{"1", "", ""}));
    EXPECT_EQ(window.grid.rowTexts(3), (Texts{"2", "Storm B", ""}));
}

TEST(RowGrid, SelectingBeyondTheRowsInUseTakesTheFirstFreeRow) {
    RowWindow window;
    window.key("1");
    window.context.GridRow = 7;
    SelectGridRow(window.context, window.grid, window.boxes, false);
    EXPECT_EQ(window.context.GridRow, 2);
    EXPECT_EQ(window.context.MarkedRow, 2);
    EXPECT_EQ(window.grid.Row(), 2);
}

TEST(RowGrid, UnmarkingWhitensTheRowAndPutsTheGridOnTheMouseRow) {
    RowWindow window;
    window.context.GridFirstCol = 1;
    window.grid.setCellColour(2, 0, RefusedColour);
    window.context.MarkedRow = 2;
    MarkGridRow(window.context, window.grid);
    EXPECT_EQ(window.grid.cellColour(2, 0), RefusedColour);
    EXPECT_EQ(window.grid.cellColour(2, 1), CurrentColour);
    EXPECT_EQ(window.grid.cellColour(2, 2), CurrentColour);
    window.grid.setMouseRow(4);
    UnmarkGridRow(window.context, window.grid);
    EXPECT_EQ(window.grid.cellColour(2, 1), UntouchedColour);
    EXPECT_EQ(window.grid.cellColour(2, 0), RefusedColour);
    EXPECT_EQ(window.grid.Row(), 4);
    EXPECT_EQ(window.context.MarkedRow, NoMarkedRow);
    window.grid.setRow(1);
    UnmarkGridRow(window.context, window.grid);
    EXPECT_EQ(window.grid.Row(), 1);
}

TEST(RowGrid, LoadingARowTrimsItsCellsIntoWhiteBoxes) {
    RowWindow window;
    window.grid.setCellText(3, 0, " 101 ");
    window.grid.setCellText(3, 2, "7.");
    window.boxes.setBoxColour(4, RefusedColour);
    window.context.GridRow = 3;
    LoadRowIntoBoxes(window.context, window.boxes, window.grid);
    EXPECT_EQ(window.boxTexts(), (Texts{"101", "", "7."}));
    EXPECT_EQ(window.boxes.boxes[4].colour, UntouchedColour);
    EXPECT_EQ(window.grid.Row(), 3);
}

TEST(RowGrid, DeletingARowMovesTheLaterRowsUp) {
    RowWindow window;
    for (const char* key : {"1", "2", "3"}) {
        window.key(key);
        window.fill(std::string("q") + key, std::string("s") + key);
        window.nextRow();
    }
    window.context.GridRow = 2;
    SelectGridRow(window.context, window.grid, window.boxes, true);
    DeleteGridRow(window.context, window.grid, window.boxes);
    EXPECT_EQ(window.context.GridRowsUsed, 2);
    EXPECT_EQ(window.grid.rowTexts(1), (Texts{"1", "q1", "s1"}));
    EXPECT_EQ(window.grid.rowTexts(2), (Texts{"3", "q3", "s3"}));
    EXPECT_EQ(window.grid.rowTexts(3), (Texts{"", "", ""}));
    EXPECT_EQ(window.boxTexts(), (Texts{"3", "q3", "s3"}));
    // The last row in use is emptied in place.
    DeleteGridRow(window.context, window.grid, window.boxes);
    EXPECT_EQ(window.context.GridRowsUsed, 1);
    EXPECT_EQ(window.grid.rowTexts(2), (Texts{"", "", ""}));
    EXPECT_EQ(window.boxTexts(), (Texts{"", "", ""}));
}

TEST(RowGrid, ClearingEmptiesTheRowsInUseAndTheMark) {
    RowWindow window;
    window.key("1");
    window.fill("a", "b");
    window.nextRow();
    window.key("2");
    ClearRowGrid(window.context, window.grid);
    EXPECT_EQ(window.context.GridRowsUsed, 0);
    EXPECT_EQ(window.context.MarkedRow, NoMarkedRow);
    EXPECT_EQ(window.grid.rowTexts(1), (Texts{"", "", ""}));
    EXPECT_EQ(window.grid.rowTexts(2), (Texts{"", "", ""}));
    EXPECT_EQ(window.grid.cellColour(2, 0), UntouchedColour);
    EXPECT_EQ(window.grid.rowTexts(0), (Texts{"Elevation", "Discharge", "Storage"}));
}

Texts storeRow(const GridContext& context, int position) {
    Texts texts;
    for (int field = 1; field <= context.ValueStore.fields(); ++field)
        texts.push_back(context.ValueStore(field, position));
    return texts;
}

// Two tables of Rows rows of three fields, one behind the other; field f of row r of table t
// holds t r f as digits. Gives the two tables.
std::pair<int, int> twoFilledTables(GridContext& context, int rows) {
    resetTabularTables(context, 2, 3, " ");
    const std::pair<int, int> tables{addTable(context), addTable(context)};
    for (int table : {tables.first, tables.second}) {
        for (int row = 1; row <= rows; ++row) {
            context.ValueStore.ensureRows(++context.ValueCount);
            for (int field = 1; field <= 3; ++field)
                context.ValueStore(field, context.ValueCount) =
                    std::to_string(table * 100 + row * 10 + field);
            if (context.TableFirst[size_t(table)] == 0)
                context.TableFirst[size_t(table)] = context.ValueCount;
            context.TableLast[size_t(table)] = context.ValueCount;
        }
    }
    return tables;
}

TEST(StoreRowGrid, RowsGoToTheStoreAndTheNextTableComesOnShow) {
    RowWindow window;
    resetTabularTables(window.context, 2, 3, " ");
    const int first = addTable(window.context);
    const int second = addTable(window.context);
    for (const char* key : {"100", "101", "102"}) {
        window.key(key);
        window.fill(std::string("q") + key, "");
        window.nextRow();
    }
    window.context.TableCurrent = first;
    window.context.TableNext = second;
    window.context.GridBusy = true;
    StoreRowGrid(window.context, window.grid);
    EXPECT_EQ(window.context.TableFirst[1], 1);
    EXPECT_EQ(window.context.TableLast[1], 3);
    EXPECT_EQ(window.context.ValueCount, 3);
    EXPECT_EQ(storeRow(window.context, 1), (Texts{"100", "q100", ""}));
    EXPECT_EQ(storeRow(window.context, 3), (Texts{"102", "q102", ""}));
    EXPECT_EQ(window.context.TableCurrent, second);
    EXPECT_FALSE(window.context.GridBusy);
}

TEST(StoreRowGrid, AShrunkTableBlanksTheRowsItLeftAndAGrownOneMovesTheLaterTables) {
    RowWindow window;
    GridContext& context = window.context;
    const auto [rating, other] = twoFilledTables(context, 3);
    window.key("5");
    window.fill("6", "7");
    window.nextRow();
    window.key("8");
    window.fill("9", "10");
    context.TableCurrent = rating;
    context.TableNext = rating;
    StoreRowGrid(context, window.grid);
    EXPECT_EQ(context.TableLast[size_t(rating)], 2);
    EXPECT_EQ(storeRow(context, 1), (Texts{"5", "6", "7"}));
    EXPECT_EQ(storeRow(context, 2), (Texts{"8", "9", "10"}));
    EXPECT_EQ(storeRow(context, 3), (Texts{" ", " ", " "}));
    EXPECT_EQ(context.TableFirst[size_t(other)], 4);

    for (const char* key : {"11", "12", "13"}) {
        window.nextRow();
        window.key(key);
    }
    StoreRowGrid(context, window.grid);
    // The growth is counted from the two rows the table now has: everything behind them,
    // the blanked row included, moves up by three.
    EXPECT_EQ(context.ValueCount, 9);
    EXPECT_EQ(context.TableFirst[size_t(rating)], 1);
    EXPECT_EQ(context.TableLast[size_t(rating)], 5);
    EXPECT_EQ(storeRow(context, 3), (Texts{"11", "", ""}));
    EXPECT_EQ(storeRow(context, 5), (Texts{"13", "", ""}));
    EXPECT_EQ(storeRow(context, 6), (Texts{" ", " ", " "}));
    EXPECT_EQ(context.TableFirst[size_t(other)], 7);
    EXPECT_EQ(context.TableLast[size_t(other)], 9);
    EXPECT_EQ(storeRow(context, 7), (Texts{"211", "212", "213"}));
    EXPECT_EQ(storeRow(context, 9), (Texts{"231", "232", "233"}));
}

TEST(StoreRowGrid, ATableEmptiedOfAllItsRowsKeepsItsPlaceAsAFlowGridTableDoes) {
    RowWindow window;
    GridContext& context = window.context;
    const auto [rating, other] = twoFilledTables(context, 2);
    context.TableCurrent = rating;
    context.TableNext = rating;
    context.GridRowsUsed = 0;
    StoreRowGrid(context, window.grid);
    EXPECT_EQ(context.TableFirst[size_t(rating)], 1);
    EXPECT_EQ(context.TableLast[size_t(rating)], 0);
    EXPECT_EQ(storeRow(context, 1), (Texts{" ", " ", " "}));
    EXPECT_EQ(storeRow(context, 2), (Texts{" ", " ", " "}));
    EXPECT_EQ(context.TableFirst[size_t(other)], 3);
    EXPECT_EQ(context.ValueCount, 4);

    // The same as a flow grid's table emptied of its values.
    GridContext flow;
    resetTabularTables(flow, 1, 1, " ");
    const int series = addTable(flow);
    flow.ValueStore.ensureRows(2);
    flow.ValueCount = 2;
    flow.TableFirst[size_t(series)] = 1;
    flow.TableLast[size_t(series)] = 2;
    flow.TableCurrent = series;
    MemoryGrid empty(2, 5);
    StoreFlowGrid(flow, empty, 0);
    EXPECT_EQ(flow.TableFirst[size_t(series)], context.TableFirst[size_t(rating)]);
    EXPECT_EQ(flow.TableLast[size_t(series)], context.TableLast[size_t(rating)]);

    // Rows typed again take the same place; the table behind makes room for them.
    window.key("5");
    window.fill("6", "7");
    StoreRowGrid(context, window.grid);
    EXPECT_EQ(context.TableFirst[size_t(rating)], 1);
    EXPECT_EQ(context.TableLast[size_t(rating)], 1);
    EXPECT_EQ(storeRow(context, 1), (Texts{"5", "6", "7"}));
    EXPECT_EQ(context.TableFirst[size_t(other)], 4);
    EXPECT_EQ(storeRow(context, 4), (Texts{"211", "212", "213"}));
}

TEST(StoreRowGrid, NothingIsStoredForNoTable) {
    RowWindow window;
    resetTabularTables(window.context, 2, 3, " ");
    window.key("1");
    window.context.TableCurrent = 0;
    window.context.TableNext = 4;
    StoreRowGrid(window.context, window.grid);
    EXPECT_EQ(window.context.ValueCount, 0);
    EXPECT_EQ(storeRow(window.context, 1), (Texts{" ", " ", " "}));
    EXPECT_EQ(window.context.TableCurrent, 4);
}

// Three tables of rows in the store: A with rows 1-3, B with none, C with rows 4-5.
GridContext threeTables() {
    GridContext context;
    resetTabularTables(context, 2, 3, " ");
    const char* names[] = {"A", "B", "C"};
    for (const char* name : names)
        context.IdentifierTable(1, addTable(context)) = name;
    context.IdentifierTable(2, 1) = "100.";
    context.ValueCount = 5;
    context.ValueStore.ensureRows(5);
    for (int row = 1; row <= 5; ++row)
        context.ValueStore(1, row) = std::to_string(row);
    context.TableFirst[1] = 1;
    context.TableLast[1] = 3;
    context.TableFirst[3] = 4;
    context.TableLast[3] = 5;
    return context;
}

TEST(Tables, FindingComparesTrimmedUpperCaseAndTheLastMatchWins) {
    GridContext context = threeTables();
    EXPECT_EQ(findTable(context, "abc"), 0);
    EXPECT_EQ(findTable(context, "b "), 2);
    context.IdentifierTable(1, 3) = "ABC ";
    context.IdentifierTable(1, 1) = "abc";
    EXPECT_EQ(findTable(context, " Abc"), 3);
    EXPECT_EQ(findTable(context, ""), 0);
    context.IdentifierTable(1, 2) = " ";
    EXPECT_EQ(findTable(context, ""), 2);
}

TEST(Tables, DeletingATableMovesTheLaterRowsDownAndLeavesItsFirstRowBehind) {
    GridContext context = threeTables();
    deleteTable(context, 1);
    // n = 3 - 1 = 2: rows 4 and 5 move down to 2 and 3; row 1 stays, referred to by nobody.
    EXPECT_EQ(context.ValueCount, 3);
    EXPECT_EQ(context.TableFirst[1], 0);
    EXPECT_EQ(context.TableLast[1], 0);
    EXPECT_EQ(context.IdentifierTable(2, 1), "");
    EXPECT_EQ(context.IdentifierTable(1, 1), "A");
    EXPECT_EQ(context.TableFirst[3], 2);
    EXPECT_EQ(context.TableLast[3], 3);
    EXPECT_EQ(context.ValueStore(1, 1), "1");
    EXPECT_EQ(context.ValueStore(1, 2), "4");
    EXPECT_EQ(context.ValueStore(1, 3), "5");
    EXPECT_EQ(context.TableCount, 3);
}

TEST(Tables, DeletingATableOfNoRowsOrOneRowMovesNothing) {
    GridContext context = threeTables();
    deleteTable(context, 2);
    EXPECT_EQ(context.ValueCount, 5);
    EXPECT_EQ(context.TableFirst[3], 4);
    context.TableLast[3] = 4;
    deleteTable(context, 3);
    EXPECT_EQ(context.ValueCount, 5);
    EXPECT_EQ(context.TableFirst[3], 0);
    deleteTable(context, 9);
    deleteTable(context, 0);
    EXPECT_EQ(context.TableFirst[1], 1);
}

TEST(Tables, ATableComesIntoTheRowGridWithAFreeRowBelowItsRows) {
    RowWindow window;
    window.context = threeTables();
    window.context.GridFirstRow = 1;
    window.context.GridBoxBase = 3;
    window.context.ValueStore(2, 2) = "q2";
    window.context.ValueStore(1, 3) = " ";
    window.key("7");
    loadTableIntoRowGrid(window.context, window.grid, 1);
    EXPECT_EQ(window.grid.rowTexts(1), (Texts{"1", " ", " "}));
    EXPECT_EQ(window.grid.rowTexts(2), (Texts{"2", "q2", ""}));
    // The row with a blank first field stays out.
    EXPECT_EQ(window.grid.rowTexts(3), (Texts{"", "", ""}));
    EXPECT_EQ(window.context.GridRowsUsed, 2);
    EXPECT_EQ(window.context.GridRow, 3);
    EXPECT_EQ(window.context.MarkedRow, NoMarkedRow);
    loadTableIntoRowGrid(window.context, window.grid, 2);
    EXPECT_EQ(window.context.GridRowsUsed, 0);
    EXPECT_EQ(window.context.GridRow, 1);
    EXPECT_EQ(window.grid.rowTexts(1), (Texts{"", "", ""}));
}

TEST(Tables, AFullGridGrowsSoThatOneFreeRowStaysBelow) {
    RowWindow window;
    GridContext& context = window.context;
    resetTabularTables(context, 2, 3, " ");
    addTable(context);
    context.ValueCount = 12;
    context.ValueStore.ensureRows(12);
    for (int row = 1; row <= 12; ++row)
        context.ValueStore(1, row) = std::to_string(100 + row);
    context.TableFirst[1] = 1;
    context.TableLast[1] = 12;
    loadTableIntoRowGrid(context, window.grid, 1);
    EXPECT_EQ(window.grid.Rows(), 14);
    EXPECT_EQ(window.grid.cellText(12, 0), "112");
    EXPECT_EQ(window.grid.cellText(13, 0), "");
    EXPECT_EQ(context.GridRow, 13);
}

} // namespace
} // namespace brooklet
