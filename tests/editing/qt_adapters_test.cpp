#include "editing/app_context.h"
#include "editing/grid_editor.h"
#include "editing/identifier_lists.h"
#include "editing/qt_grid.h"
#include "editing/qt_lists.h"
#include "session/text_file.h"
#include "support/program_folder.h"
#include "support/scripted_platform.h"

#include "colour_printing.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

using Texts = std::vector<std::string>;

Texts comboItems(const QComboBox& combo) {
    Texts items;
    for (int i = 0; i < combo.count(); ++i)
        items.push_back(toBytes(combo.itemText(i)));
    return items;
}

class QtListsTest : public ProgramFolderTest {
protected:
    QtListsTest() { StartSession(session, currentFolder()); }
    Session session;
};

TEST_F(QtListsTest, AComboBoxIsFilledFromTheWorkFilesByteForByte) {
    writeBytes(session.WorkFilePath[StructureSection],
               crlf({"STRUCTURE RATING:", "          Dam\xE9      100.", "          DAM\xE9", ""}));
    writeBytes(session.WorkFilePath[ReachSection],
               crlf({"STREAM REACH:", "          R1        R2        X1        Culvert   100.", ""}));
    QComboBox combo;
    combo.setEditable(true);
    combo.addItem("Kept");
    QtComboList list(&combo);
    FillStructureList(session, list);
    EXPECT_EQ(comboItems(combo), (Texts{"Kept", "Dam\xE9", "Culvert"}));

    combo.setEditText("Culvert");
    RemoveCurrentFromList(list);
    EXPECT_EQ(comboItems(combo), (Texts{"Kept", "Dam\xE9"}));
    AddUnique(list, " kept ");
    EXPECT_EQ(combo.count(), 2);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.List(3), "");
}

TEST_F(QtListsTest, AListBoxShowsTheEntriesOfAnAlternate) {
    WatershedTables tables;
    const int alternate = addAlternate(tables, "Dam", "");
    for (const char* name : {"A1", "A2"})
        tables.AlternateSubAreas.set(1, alternate, addAlternateSubArea(tables, alternate), name);
    QListWidget box;
    box.addItem("stale");
    QtListWidgetList list(&box);
    fillAlternateEntries(tables, alternate, 1, list);
    ASSERT_EQ(box.count(), 2);
    EXPECT_EQ(box.item(0)->text(), "A1");
    EXPECT_EQ(box.item(1)->text(), "A2");
    EXPECT_EQ(list.Text(), "");
    box.setCurrentRow(1);
    EXPECT_EQ(list.Text(), "A2");
    RemoveCurrentFromList(list);
    EXPECT_EQ(box.count(), 1);
    fillAlternateEntries(tables, alternate, 2, list);
    EXPECT_EQ(box.count(), 0);
}

// A value grid on a table widget, fed by real key presses.
class QtFlowGrid : public ::testing::Test {
protected:
    QtFlowGrid() : table(12, 5), grid(&table) {
        table.resize(400, 200);
        context.GridCheckOrder = true;
        context.GridHighLimit = -999;
        context.GridVisibleRows = 9;
        grid.setCellText(0, 0, "0");
        Index = 1;
        feeder = new GridKeyFeeder(&table, [this](int& key) {
            keys.push_back(key);
            HandleGridKey(context, key, grid, Row, Col, Index, Typing, 0, 0);
        });
        Row = 0;
        Col = 1;
        MoveGridCursor(context, grid, Row, Col, Index, Valid, Typing);
    }
    Rgb colour(int row, int col) const { return fromQColor(table.item(row, col)->background().color()); }

    QTableWidget table;
    QtGrid grid;
    GridKeyFeeder* feeder = nullptr;
    GridContext context;
    std::vector<int> keys;
    int Row = 0, Col = 0, Index = 0;
    bool Typing = false, Valid = true;
};

TEST_F(QtFlowGrid, TypedKeysReachTheRoutinesAsCharacterCodes) {
    EXPECT_EQ(table.currentRow(), 0);
    EXPECT_EQ(table.currentColumn(), 1);
    EXPECT_EQ(grid.CellBackColor(), CurrentColour);
    QTest::keyClicks(&table, "12");
    QTest::keyClick(&table, Qt::Key_Backspace);
    QTest::keyClicks(&table, "5");
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_EQ(keys, (std::vector<int>{'1', '2', 8, '5', 13}));
    EXPECT_EQ(table.item(0, 1)->text(), "15");
    EXPECT_EQ(colour(0, 1), UntouchedColour);
    EXPECT_EQ(colour(0, 2), CurrentColour);
    EXPECT_EQ(table.currentColumn(), 2);
    EXPECT_EQ(Index, 3);
    QTest::keyClicks(&table, "7'");
    QTest::keyClick(&table, Qt::Key_Tab);
    EXPECT_EQ(keys.back(), 9);
    EXPECT_EQ(table.item(0, 2)->text(), "7");
    // 7 is below 15: the cell turned red when the cursor left it.
    EXPECT_EQ(colour(0, 2), RefusedColour);
    EXPECT_EQ(table.currentColumn(), 3);
}

TEST_F(QtFlowGrid, KeysWithoutACharacterCodeStayWithTheTable) {
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_TRUE(keys.empty());
    EXPECT_EQ(table.currentRow(), 1);
}

TEST(QtGrid, RowsCellsAndTheTopRow) {
    QTableWidget table(3, 3);
    table.resize(300, 120);
    table.show();
    QtGrid grid(&table);
    grid.AddItem("a\tb", 1);
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.cellText(1, 0), "a");
    EXPECT_EQ(grid.cellText(1, 1), "b");
    EXPECT_EQ(grid.cellText(1, 2), "");
    EXPECT_EQ(grid.cellColour(1, 2), UntouchedColour);
    grid.setCellColour(1, 2, RefusedColour);
    EXPECT_EQ(grid.cellColour(1, 2), RefusedColour);
    grid.RemoveItem(0);
    EXPECT_EQ(grid.cellText(0, 0), "a");
    grid.setRows(40);
    EXPECT_EQ(grid.Rows(), 40);
    grid.setRow(5);
    grid.setCol(2);
    EXPECT_EQ(grid.Row(), 5);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_TRUE(table.selectedItems().isEmpty());
    QApplication::processEvents();
    grid.setTopRow(12);
    EXPECT_EQ(grid.TopRow(), 12);
    // Moving the current cell does not scroll: the routines own the top row.
    grid.setRow(30);
    EXPECT_EQ(grid.TopRow(), 12);
    QTest::mousePress(table.viewport(), Qt::LeftButton, {}, QPoint(5, table.rowViewportPosition(14) + 2));
    EXPECT_EQ(grid.MouseRow(), 14);
}

TEST(QtGrid, TheAdapterMayOutliveItsTable) {
    auto* table = new QTableWidget(2, 2);
    {
        QtGrid grid(table);
        delete table;
    }
    QTableWidget kept(2, 2);
    { QtGrid grid(&kept); }
    QTest::mousePress(kept.viewport(), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(kept.viewport()->children().size(), 0);
}

TEST(QtBoxes, BoxesOfARowGridTakeTextAndColour) {
    QLineEdit elevation, discharge;
    ControlArray<QLineEdit> boxes;
    boxes.add(3, &elevation);
    boxes.add(4, &discharge);
    QtBoxes rowBoxes(boxes);
    MemoryGrid grid(3, 3);
    grid.setCellText(1, 0, " 100 ");
    grid.setCellText(1, 1, "12.5");
    setBackground(&discharge, RefusedColour);
    GridContext context;
    context.GridBoxBase = 3;
    context.GridRow = 1;
    LoadRowIntoBoxes(context, rowBoxes, grid);
    EXPECT_EQ(elevation.text(), "100");
    EXPECT_EQ(discharge.text(), "12.5");
    EXPECT_EQ(background(&discharge), UntouchedColour);
}

TEST(AppContextTables, TheContextHoldsTheWatershedTables) {
    ProgramFolder folder;
    ScriptedPlatform platform;
    AppContext context(platform);
    EXPECT_EQ(context.watershed.SubAreaCount, 0);
    EXPECT_EQ(context.watershed.AlternateCount, 0);
    EXPECT_EQ(context.CurrentAlternate, 0);
}

} // namespace
} // namespace brooklet::test
