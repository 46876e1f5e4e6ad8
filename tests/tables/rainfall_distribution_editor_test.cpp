// frmRainDist as the user meets it: rain tables typed into the combo box, their points typed
// straight into the grid and moved through with the keys, inserted and deleted through the
// pop-up menu, pasted and copied, a table deleted, Display Data, and Accept with the work file
// compared byte for byte.
#include "value_window_fixture.h"

#include "tables/rainfall_distribution_editor.h"

#include <QLabel>
#include <QPlainTextEdit>

namespace brooklet::test {
namespace {

const std::string Header = "RAINFALL DISTRIBUTION:" + std::string(28, ' ');
const BoxRequest DeleteQuestion{"Delete Current rainfall distribution ?", "Rainfall Distribution",
                                BoxButtons::YesNo, BoxIcon::Question};

std::string identifier(const std::string& name, const std::string& increment) {
    return tens({"", name, "", increment});
}

const std::vector<std::string> TwoTables{Header,
                                         identifier("A", "0.5"),
                                         valueRecord({"0.", "0.2", "0.6", "1."}),
                                         identifier("B", "1."),
                                         valueRecord({"0.1", "0.5", "1."}),
                                         ""};

class RainfallDistributionEditorTest : public ValueWindowTest<frmRainDist> {
protected:
    RainfallDistributionEditorTest() : ValueWindowTest("frmRainDist", RainfallDistributionSection) {}

    // A new table: its name with Enter, its time increment with Enter; the grid then has the focus.
    void newTable(const QString& name, const QString& increment) {
        enterName(name);
        typeAndPress(2, increment, Qt::Key_Return);
        EXPECT_EQ(focused(), grid());
    }
};

TEST_F(RainfallDistributionEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), "Rainfall Distribution   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "RD");
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Rainfall Distribution:");
    EXPECT_EQ(control<QLabel>(window, "lblInput(1)")->text(), "Rain Table Identifier");
    EXPECT_EQ(control<QLabel>(window, "lblInput(2)")->text(), "Rain Table Time Increment");
    EXPECT_EQ(control<QLabel>(window, "lblInput(3)")->text(), "Mass Rainfall Points");
    EXPECT_EQ(control<QLabel>(window, "Label3")->text(), "@ Rain Table Time Increment");
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(2)")->text(), "hr");
    EXPECT_EQ(grid()->rowCount(), 12);
    EXPECT_EQ(grid()->columnCount(), 5);
    EXPECT_EQ(popUp()->title(), "Insert/Delete");
    EXPECT_EQ(menuItem(1)->text(), "Insert Point");
    EXPECT_EQ(menuItem(2)->text(), "Delete Point");
    EXPECT_FALSE(popUp()->isVisible());
    EXPECT_EQ(button("CmdPlot")->text(), "Display Data");
    EXPECT_FALSE(button("CmdPlot")->isEnabled());
    EXPECT_EQ(button("cmdDelCur")->text(), "Delete Distribution");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes (Close)");
    EXPECT_EQ(button("cmdCancel")->text(), "   No Changes  (Close)");
    EXPECT_EQ(focused(), list());
}

TEST_F(RainfallDistributionEditorTest, ANewTableStartsAtZeroWithTheCursorOnTheSecondCell) {
    open();
    newTable("T1", "0.5");
    EXPECT_EQ(cell(0, 0), "0");
    EXPECT_EQ(currentCell(), std::make_pair(0, 1));
    EXPECT_EQ(cellColour(0, 1), CurrentColour);
}

TEST_F(RainfallDistributionEditorTest, TwentyTwoValuesAreWrittenAsFourRecordsOfFiveAndOneOfTwo) {
    open();
    newTable("T1", "0.5");
    for (int value = 1; value <= 21; ++value)
        typeValues({QString::number(value)});
    accept();
    EXPECT_EQ(
        workFileBytes(),
        crlf({Header, identifier("T1", "0.5"), valueRecord({"0.", "1.", "2.", "3.", "4."}),
              valueRecord({"5.", "6.", "7.", "8.", "9."}), valueRecord({"10.", "11.", "12.", "13.", "14."}),
              valueRecord({"15.", "16.", "17.", "18.", "19."}),
              // The last record is not filled up with blank fields.
              std::string(20, ' ') + "20.       21.       ", ""}));
    EXPECT_TRUE(windowClosed());
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(RainfallDistributionEditorTest, ATimeIncrementOfZeroIsRefusedOnEnterButWritten) {
    open();
    enterName("T1");
    typeAndPress(2, "0", Qt::Key_Return);
    EXPECT_EQ(background(box(2)), RefusedColour);
    EXPECT_EQ(focused(), box(2));
    QTest::keyClick(box(2), Qt::Key_Tab);
    EXPECT_EQ(focused(), box(2));
    clickCell(0, 1);
    typeValues({"0.5", "1"});
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, identifier("T1", "0."), valueRecord({"0.", "0.5", "1."}), ""}));
}

TEST_F(RainfallDistributionEditorTest, ATableOfOneValueIsDroppedWithItsIdentifier) {
    writeWorkFile(TwoTables);
    open();
    newTable("SHORT", "0.25");
    accept();
    EXPECT_EQ(workFileBytes(), crlf(TwoTables));
}

TEST_F(RainfallDistributionEditorTest, AFirstValueReadFromTheFileNeedNotBeZeroAndStays) {
    writeWorkFile(TwoTables);
    open();
    enterName("B");
    EXPECT_EQ(box(2)->text(), "1.");
    EXPECT_EQ(gridRow(0), (Texts{"0.1", "0.5", "1.", "", ""}));
    EXPECT_TRUE(button("CmdPlot")->isEnabled());
    accept();
    EXPECT_EQ(workFileBytes(), crlf(TwoTables));
}

TEST_F(RainfallDistributionEditorTest, TheFirstCellCannotBeDeletedThroughTheMenuButCanBeRetyped) {
    open();
    newTable("T1", "0.5");
    typeValues({"0.4", "1"});
    clickCell(0, 0, Qt::RightButton);
    ASSERT_TRUE(popUp()->isVisible());
    EXPECT_FALSE(menuItem(2)->isEnabled());
    EXPECT_TRUE(menuItem(1)->isEnabled());
    QTest::keyClick(popUp(), Qt::Key_Escape);
    EXPECT_FALSE(popUp()->isVisible());
    EXPECT_TRUE(menuItem(2)->isEnabled());
    clickCell(0, 0);
    EXPECT_EQ(currentCell(), std::make_pair(0, 0));
    typeValues({"0.1"});
    EXPECT_EQ(gridRow(0), (Texts{"0.1", "0.4", "1", "", ""}));
    EXPECT_EQ(currentCell(), std::make_pair(0, 1));
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({Header, identifier("T1", "0.5"), valueRecord({"0.1", "0.4", "1."}), ""}));
}

TEST_F(RainfallDistributionEditorTest, AnEqualValueIsAcceptedALowerOrHigherOneTurnsRedWhenLeft) {
    open();
    newTable("T1", "0.5");
    typeValues({"0.2", "0.2", "0.1", "0.6"});
    EXPECT_EQ(cellColour(0, 1), UntouchedColour);
    EXPECT_EQ(cellColour(0, 2), UntouchedColour);
    EXPECT_EQ(cellColour(0, 3), RefusedColour);
    // Above the cell after it: 0.2 retyped as 0.7 before 0.1.
    clickCell(0, 2);
    typeValues({"0.7"});
    EXPECT_EQ(cellColour(0, 2), RefusedColour);
    EXPECT_EQ(cell(0, 2), "0.7");
}

TEST_F(RainfallDistributionEditorTest, OnlyDigitsThePointAndBackspaceEnterACell) {
    open();
    newTable("T1", "0.5");
    QTest::keyClicks(grid(), "-1e5x.2");
    EXPECT_EQ(cell(0, 1), "15.2");
    QTest::keyClick(grid(), Qt::Key_Backspace);
    EXPECT_EQ(cell(0, 1), "15.");
}

TEST_F(RainfallDistributionEditorTest, ABlankFieldInAValueRecordClosesUp) {
    writeWorkFile({Header, identifier("A", "0.5"), valueRecord({"0.", "0.1", "", "0.3", "0.4"}),
                   valueRecord({"0.5", "1."}), ""});
    open();
    enterName("A");
    EXPECT_EQ(rows(2), (Texts{"0.", "0.1", "0.3", "0.4", "0.5", "1.", "", "", "", ""}));
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({Header, identifier("A", "0.5"), valueRecord({"0.", "0.1", "0.3", "0.4", "0.5"}),
                    valueRecord({"1."}), ""}));
}

TEST_F(RainfallDistributionEditorTest, TheKeysMoveTheCursorAndAValueIsTypedOverTheCellReached) {
    open();
    newTable("T1", "0.5");
    typeValues({"0.1", "0.2", "0.3", "0.4", "0.5"});
    EXPECT_EQ(currentCell(), std::make_pair(1, 1));
    QTest::keyClick(grid(), Qt::Key_Up);
    EXPECT_EQ(currentCell(), std::make_pair(0, 1));
    EXPECT_EQ(cellColour(0, 1), CurrentColour);
    EXPECT_EQ(cellColour(1, 1), UntouchedColour);
    QTest::keyClick(grid(), Qt::Key_Right);
    EXPECT_EQ(currentCell(), std::make_pair(0, 2));
    typeValues({"0.15"});
    EXPECT_EQ(currentCell(), std::make_pair(0, 3));
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({Header, identifier("T1", "0.5"), valueRecord({"0.", "0.1", "0.15", "0.3", "0.4"}),
                    valueRecord({"0.5"}), ""}));
}

TEST_F(RainfallDistributionEditorTest, PointsAreInsertedAndDeletedThroughThePopUpMenu) {
    open();
    newTable("T1", "0.5");
    typeValues({"0.1", "0.3", "1"});
    chooseFromMenu(0, 2, 1);
    EXPECT_EQ(gridRow(0), (Texts{"0", "0.1", "0.3", "0.3", "1"}));
    clickCell(0, 2);
    typeValues({"0.2"});
    chooseFromMenu(0, 1, 2);
    EXPECT_EQ(gridRow(0), (Texts{"0", "0.2", "0.3", "1", ""}));
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({Header, identifier("T1", "0.5"), valueRecord({"0.", "0.2", "0.3", "1."}), ""}));
}

TEST_F(RainfallDistributionEditorTest, DeletingATableAsksThenLeavesOnlyTheOthers) {
    writeWorkFile(TwoTables);
    open();
    enterName("A");
    platform.answers.push_back(BoxAnswer::No);
    click(button("cmdDelCur"));
    ASSERT_FALSE(platform.boxes.empty());
    EXPECT_EQ(platform.boxes.back(), DeleteQuestion);
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(cell(0, 1), "0.2");
    platform.answers.push_back(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    EXPECT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(listItems(), (Texts{"B"}));
    EXPECT_EQ(list()->currentText(), "");
    EXPECT_EQ(cell(0, 0), " ");
    EXPECT_EQ(cell(0, 1), "");
    EXPECT_EQ(box(2)->text(), "");
    EXPECT_FALSE(button("CmdPlot")->isEnabled());
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, identifier("B", "1."), valueRecord({"0.1", "0.5", "1."}), ""}));
}

TEST_F(RainfallDistributionEditorTest, DisplayDataHandsTheTableToThePlotWindowAsKindThree) {
    registerPlotWindow();
    writeWorkFile(TwoTables);
    open();
    enterName("B");
    clickCell(0, 3);
    typeValues({"2"});
    click(plotButton());
    EXPECT_EQ(PlotWindowStandIn::opened, 1);
    EXPECT_EQ(PlotWindowStandIn::kind, 3);
    EXPECT_EQ(PlotWindowStandIn::entry, "2");
    EXPECT_TRUE(PlotWindowStandIn::wasModal);
    // The store step ran first: the plot window reads the value typed.
    EXPECT_EQ(StoredValueTables(window->tabularTables())[1].Values, (Texts{"0.1", "0.5", "1.", "2"}));
}

TEST_F(RainfallDistributionEditorTest, DisplayDataWithNoTableSaysNoneSelected) {
    registerPlotWindow();
    open();
    window->displayData();
    ASSERT_FALSE(platform.boxes.empty());
    EXPECT_EQ(platform.boxes.back(),
              (BoxRequest{"None Selected", DefaultBoxTitle, BoxButtons::Ok, BoxIcon::None}));
    EXPECT_EQ(PlotWindowStandIn::opened, 0);
}

TEST_F(RainfallDistributionEditorTest, PastedValuesAreTypedFromTheCurrentCellAndCopiedAsAColumn) {
    open();
    newTable("T1", "0.5");
    platform.setClipboardText("0.1\t0.3\r\n0.2\r\n1\r\n");
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(gridRow(0), (Texts{"0", "0.1", "0.3", "0.2", "1"}));
    EXPECT_EQ(cellColour(0, 3), RefusedColour);
    QTest::keyClick(grid(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(platform.clipboardTexts.back(), "0\r\n0.1\r\n0.3\r\n0.2\r\n1\r\n");
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({Header, identifier("T1", "0.5"), valueRecord({"0.", "0.1", "0.3", "0.2", "1."}), ""}));
}

TEST_F(RainfallDistributionEditorTest, ACellTakesNoMoreDigitsThanItsColumnsHold) {
    open();
    newTable("T1", "0.5");
    typeValues({"0.123456789012", "1"});
    EXPECT_EQ(gridRow(0), (Texts{"0", "0.12345678", "1", "", ""}));
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({Header, identifier("T1", "0.5"), valueRecord({"0.", "0.12345678", "1."}), ""}));
}

TEST_F(RainfallDistributionEditorTest, APastedValueWiderThanItsColumnsIsRedSaysWhyAndIsNeverWrittenShifted) {
    writeWorkFile(TwoTables);
    open();
    enterName("A");
    clickCell(0, 2);
    platform.setClipboardText("0.300000000001\t0.7\r\n");
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(gridRow(0), (Texts{"0.", "0.2", "0.300000000001", "0.7", ""}));
    EXPECT_EQ(cellColour(0, 2), RefusedColour);
    const auto* help = control<QPlainTextEdit>(window, "txtHelp");
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(help->toPlainText().toStdString(),
              "The value 0.300000000001 is 14 characters long, but its field in the record holds only 10; "
              "nothing is written until it is shortened.");
    // Accept writes nothing while the value does not fit: the window and the work file stay.
    accept();
    EXPECT_FALSE(windowClosed());
    EXPECT_EQ(workFileBytes(), crlf(TwoTables));
    EXPECT_FALSE(session().DataChanged);
    // Retyped shorter, the value goes in its ten columns.
    clickCell(0, 2);
    typeValues({"0.3"});
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), crlf({Header, identifier("A", "0.5"), valueRecord({"0.", "0.2", "0.3", "0.7"}),
                                     identifier("B", "1."), valueRecord({"0.1", "0.5", "1."}), ""}));
}

TEST_F(RainfallDistributionEditorTest, NoChangesLeavesTheWorkFileAsItWas) {
    writeWorkFile(TwoTables);
    open();
    enterName("A");
    clickCell(1, 0);
    typeValues({"2"});
    click(button("cmdCancel"));
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), crlf(TwoTables));
}

} // namespace
} // namespace brooklet::test
