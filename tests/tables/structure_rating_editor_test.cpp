// frmStruct as the user meets it: structures typed into the combo box and picked from it, rating
// rows typed with Tab and Enter, picked and deleted with the mouse, the rising checks, Delete of
// a structure, Display Data, Accept and No Changes, with the work file compared byte for byte.
#include "grid_window_fixture.h"

#include "options/identifier_record.h"
#include "tables/structure_rating_editor.h"

#include <QLabel>
#include <QPlainTextEdit>

namespace brooklet::test {
namespace {

const std::string Header = "STRUCTURE RATING:" + std::string(23, ' ');
const BoxRequest RowQuestion{"Delete Structure Rating Row ?", "Structure Rating", BoxButtons::YesNo,
                             BoxIcon::Question};
const BoxRequest DeleteQuestion{"Delete Current Structure Data ?", "Structure Rating", BoxButtons::YesNo,
                                BoxIcon::Question};

std::string point(const std::string& elevation, const std::string& discharge, const std::string& storage) {
    return tens({"", "", elevation, discharge, storage});
}

// Two structures, the first with three rating rows.
const std::vector<std::string> TwoStructures{Header,
                                             tens({"", "DAM", "100."}),
                                             point("100.", "0.", "0."),
                                             point("102.", "50.", "10."),
                                             point("104.", "200.", "30."),
                                             tens({"", "WEIR", ""}),
                                             point("90.", "0.", "0."),
                                             ""};

class StructureRatingEditorTest : public GridWindowTest<frmStruct> {
protected:
    StructureRatingEditorTest() : GridWindowTest("frmStruct", StructureSection) {}
};

// ---- Opening and load ------------------------------------------------------------------------

TEST_F(StructureRatingEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    session().HelpShown = 3;
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_EQ(window->windowTitle(), "Structure Rating   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "SR");
    EXPECT_EQ(session().HelpShown, -999);
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Structure Rating:");
    const char* labels[] = {"Structure Identifier:", "Structure Starting Elevation:", "Structure Elevation:",
                            "Structure Discharge:", "Structure Storage:"};
    for (int index = 1; index <= 5; ++index)
        EXPECT_EQ(control<QLabel>(window, indexedName("lblInput", index))->text(), labels[index - 1]);
    EXPECT_EQ(control<QLabel>(window, "lblComment(0)")->text(),
              "Repeat the following for each structure rating point for the Structure Identifier");
    EXPECT_EQ(control<QLabel>(window, "lblComment(1)")->text(),
              "Click row in grid to edit previously entered data.  RIGHT click to delete row.");
    EXPECT_EQ(button("CmdPlot")->text(), "Display Data");
    EXPECT_FALSE(button("CmdPlot")->isEnabled());
    EXPECT_EQ(button("cmdDelCur")->text(), "Delete Structure");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes  (Close)");
    EXPECT_EQ(button("cmdCancel")->text(), "    No Changes     (Close)");
    EXPECT_FALSE(box(1)->isVisible());
    EXPECT_TRUE(list()->isEditable());
    EXPECT_EQ(list()->currentText(), "");
    EXPECT_EQ(grid()->rowCount(), 11);
    EXPECT_EQ(grid()->columnCount(), 3);
    EXPECT_EQ(gridRow(0), (Texts{"Elevation", "Discharge", "Storage"}));
    EXPECT_FALSE(control<QPlainTextEdit>(window, "txtHelp")->isVisible());
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(window->tabularTables().GridRow, 1);
    EXPECT_EQ(window->tabularTables().TableCount, 0);
}

TEST_F(StructureRatingEditorTest, ControlsCarryTheNamesAScreenReaderSpeaks) {
    open();
    EXPECT_EQ(list()->accessibleName(), "Structure Identifier:");
    EXPECT_EQ(box(3)->accessibleName(), "Structure Elevation:");
    EXPECT_EQ(grid()->accessibleName(), "Structure Rating Points");
    EXPECT_EQ(button("cmdCancel")->accessibleName(), "No Changes     (Close)");
}

TEST_F(StructureRatingEditorTest, UnitLabelsShowTheWordsOfTheInputUnits) {
    SetInputUnitWords(session(), false);
    open();
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(2)")->text(), "m");
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(3)")->text(), "m");
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(4)")->text(), "cu m/sec");
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(5)")->text(), "ha m");
}

TEST_F(StructureRatingEditorTest, TheListOffersTheSectionsStructuresAndThoseReachesName) {
    writeWorkFile(TwoStructures);
    writeBytes(workFile(ReachSection),
               crlf({"STREAM REACH:", tens({"", "R1", "R2", "", "GATE", "", "1.", "2."}),
                     tens({"", "R2", "OUTLET", "", "dam"})}));
    open();
    EXPECT_EQ(listItems(), (Texts{"DAM", "WEIR", "GATE"}));
    EXPECT_EQ(list()->currentText(), "");
    EXPECT_EQ(window->tabularTables().TableCount, 2);
    EXPECT_EQ(box(2)->text(), "");
    EXPECT_EQ(gridRow(1), (Texts{"", "", ""}));
}

// ---- The identifier ---------------------------------------------------------------------------

TEST_F(StructureRatingEditorTest, ChoosingAStructureShowsItsStartingElevationAndRows) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    EXPECT_EQ(box(2)->text(), "100.");
    EXPECT_EQ(background(box(2)), UntouchedColour);
    EXPECT_EQ(gridRow(1), (Texts{"100.", "0.", "0."}));
    EXPECT_EQ(gridRow(3), (Texts{"104.", "200.", "30."}));
    EXPECT_EQ(gridRow(4), (Texts{"", "", ""}));
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 3);
    EXPECT_EQ(window->tabularTables().GridRow, 4);
    EXPECT_EQ(window->currentEntry(), 1);
    EXPECT_EQ(box(1)->text(), "DAM");
    EXPECT_TRUE(plotButton()->isEnabled());
    EXPECT_EQ(focused(), box(2));
}

TEST_F(StructureRatingEditorTest, NamesCompareTrimmedAndWithoutCase) {
    writeWorkFile(TwoStructures);
    open();
    enterName("weir ");
    EXPECT_EQ(window->currentEntry(), 2);
    EXPECT_EQ(gridRow(1), (Texts{"90.", "0.", "0."}));
    // A single row: nothing to plot.
    EXPECT_FALSE(plotButton()->isEnabled());
    EXPECT_EQ(listItems(), (Texts{"DAM", "WEIR"}));
}

TEST_F(StructureRatingEditorTest, AbcAndAbcWithABlankNameTheSameEntry) {
    open();
    enterName("abc");
    typeAndPress(2, "5");
    enterName("ABC ");
    EXPECT_EQ(window->currentEntry(), 1);
    EXPECT_EQ(window->tabularTables().TableCount, 1);
    EXPECT_EQ(box(2)->text(), "5");
    EXPECT_EQ(listItems(), Texts{"abc"});
}

TEST_F(StructureRatingEditorTest, AnIdentifierOfMoreThanTenCharactersIsCutOnLeaving) {
    writeWorkFile({Header, tens({"", "SPILLWAY01", "7."}), ""});
    open();
    enterName("SPILLWAY01-EAST");
    EXPECT_EQ(list()->currentText(), "SPILLWAY01");
    EXPECT_EQ(box(1)->text(), "SPILLWAY01");
    // The cut text is what is compared.
    EXPECT_EQ(window->currentEntry(), 1);
    EXPECT_EQ(box(2)->text(), "7.");
    EXPECT_EQ(window->tabularTables().TableCount, 1);
}

TEST_F(StructureRatingEditorTest, ANewStructureIsTypedRowByRowAndAccepted) {
    open();
    enterName("Gate 3");
    EXPECT_EQ(listItems(), Texts{"Gate 3"});
    EXPECT_EQ(window->tabularTables().TableCount, 1);
    EXPECT_EQ(focused(), box(2));
    typeAndPress(2, "1200", Qt::Key_Return);
    EXPECT_EQ(background(box(2)), UntouchedColour);
    typeRow(3, {"1200", "0", "0"});
    EXPECT_EQ(gridRow(1), (Texts{"1200", "0", "0"}));
    // Past the last box the next row comes, with the focus in the key box.
    EXPECT_EQ(focused(), box(3));
    EXPECT_EQ(window->tabularTables().GridRow, 2);
    EXPECT_EQ(cellColour(2, 0), CurrentColour);
    EXPECT_EQ(cellColour(1, 0), UntouchedColour);
    EXPECT_FALSE(plotButton()->isEnabled());
    typeRow(3, {"1201.5", "12", "3.25"});
    EXPECT_TRUE(plotButton()->isEnabled());
    click(button("cmdFinished"));
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), crlf({Header, tens({"", "Gate 3", "1200."}), point("1200.", "0.", "0."),
                                     point("1201.5", "12.", "3.25"), ""}));
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(StructureRatingEditorTest, RowsGoInAscendingOrderOfElevation) {
    open();
    enterName("S1");
    QTest::keyClick(box(2), Qt::Key_Tab);
    typeRow(3, {"104", "30", "3"});
    typeRow(3, {"100", "0", "0"});
    typeRow(3, {"102", "10", "1"});
    EXPECT_EQ(gridRow(1), (Texts{"100", "0", "0"}));
    EXPECT_EQ(gridRow(2), (Texts{"102", "10", "1"}));
    EXPECT_EQ(gridRow(3), (Texts{"104", "30", "3"}));
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 3);
}

TEST_F(StructureRatingEditorTest, TypingTheElevationOfAnExistingRowSelectsThatRow) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    QTest::keyClick(box(2), Qt::Key_Tab);
    typeAndPress(3, "102");
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 3);
    EXPECT_EQ(window->tabularTables().GridRow, 2);
    EXPECT_EQ(box(4)->text(), "50.");
    EXPECT_EQ(box(5)->text(), "10.");
    EXPECT_EQ(cellColour(2, 1), CurrentColour);
    EXPECT_EQ(focused(), box(4));
}

TEST_F(StructureRatingEditorTest, DischargeAndStorageMustRiseStrictlyAndARefusedValueStaysInTheGrid) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    clickRow(2);
    EXPECT_EQ(focused(), box(3));
    QTest::keyClick(box(3), Qt::Key_Tab);
    box(4)->clear();
    typeAndPress(4, "200");
    // Not below the row beneath: red, and the focus stays.
    EXPECT_EQ(background(box(4)), RefusedColour);
    EXPECT_EQ(focused(), box(4));
    EXPECT_EQ(cell(2, 1), "200");
    box(4)->clear();
    typeAndPress(4, "0");
    EXPECT_EQ(background(box(4)), RefusedColour);
    box(4)->clear();
    typeAndPress(4, "60");
    EXPECT_EQ(background(box(4)), UntouchedColour);
    EXPECT_EQ(focused(), box(5));
    box(5)->clear();
    typeAndPress(5, "-1");
    EXPECT_EQ(background(box(5)), RefusedColour);
    EXPECT_EQ(cell(2, 2), "10.");
}

TEST_F(StructureRatingEditorTest, ABadElevationIsRedAndKeepsTheFocusAndABlankOneIsNotChecked) {
    open();
    enterName("S1");
    QTest::keyClick(box(2), Qt::Key_Tab);
    typeAndPress(3, "abc");
    EXPECT_EQ(background(box(3)), RefusedColour);
    EXPECT_EQ(focused(), box(3));
    EXPECT_EQ(window->tabularTables().GridRow, -999);
    box(3)->clear();
    QTest::keyClick(box(3), Qt::Key_Tab);
    // Blank: not checked, the colour stays; the focus stays in the key box while it is blank.
    EXPECT_EQ(background(box(3)), RefusedColour);
    EXPECT_EQ(focused(), box(3));
}

TEST_F(StructureRatingEditorTest, BoxesTypedWithNoStructureChosenAreRefused) {
    open();
    box(2)->setFocus();
    typeAndPress(2, "100");
    EXPECT_EQ(background(box(2)), RefusedColour);
    EXPECT_EQ(focused(), box(2));
}

TEST_F(StructureRatingEditorTest, AClickInAValueBoxWhileTheElevationIsBlankGoesToTheElevation) {
    open();
    enterName("S1");
    QTest::mouseClick(box(5), Qt::LeftButton);
    EXPECT_EQ(focused(), box(3));
}

TEST_F(StructureRatingEditorTest, LeavingABoxWithTheMouseChecksItAndLeavesItRed) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    clickRow(1);
    QTest::keyClick(box(3), Qt::Key_Tab);
    box(4)->clear();
    QTest::keyClicks(box(4), "500");
    clickRow(3);
    EXPECT_EQ(background(box(4)), UntouchedColour);
    EXPECT_EQ(cell(1, 1), "500");
    EXPECT_EQ(box(4)->text(), "200.");
    EXPECT_EQ(focused(), box(3));
}

// ---- Rows picked and deleted ------------------------------------------------------------------

TEST_F(StructureRatingEditorTest, PickingARowMarksItGreenAndLoadsItIntoTheBoxes) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    clickRow(3);
    EXPECT_EQ(window->tabularTables().GridRow, 3);
    EXPECT_EQ(box(3)->text(), "104.");
    EXPECT_EQ(box(4)->text(), "200.");
    EXPECT_EQ(box(5)->text(), "30.");
    for (int col = 0; col < 3; ++col)
        EXPECT_EQ(cellColour(3, col), CurrentColour);
    clickRow(8);
    // Beyond the rows in use: the first free row.
    EXPECT_EQ(window->tabularTables().GridRow, 4);
    EXPECT_EQ(cellColour(3, 0), UntouchedColour);
    EXPECT_EQ(cellColour(4, 0), CurrentColour);
    EXPECT_EQ(box(3)->text(), "");
}

TEST_F(StructureRatingEditorTest, ARightClickDeletesTheCurrentRowAfterAYes) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    clickRow(2);
    platform.answers.push_back(BoxAnswer::No);
    clickRow(2, Qt::RightButton);
    EXPECT_EQ(platform.boxes.back(), RowQuestion);
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 3);
    platform.answers.push_back(BoxAnswer::Yes);
    clickRow(2, Qt::RightButton);
    EXPECT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(gridRow(2), (Texts{"104.", "200.", "30."}));
    EXPECT_EQ(gridRow(3), (Texts{"", "", ""}));
    EXPECT_EQ(box(3)->text(), "104.");
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 2);
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(),
              crlf({Header, tens({"", "DAM", "100."}), point("100.", "0.", "0."),
                    point("104.", "200.", "30."), tens({"", "WEIR", ""}), point("90.", "0.", "0."), ""}));
}

TEST_F(StructureRatingEditorTest, ARightClickOnTheFreeRowAsksNothing) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    clickRow(4);
    clickRow(4, Qt::RightButton);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(StructureRatingEditorTest, DeletingTheLastRowsLeavesTheGridAtElevenRows) {
    open();
    enterName("S1");
    QTest::keyClick(box(2), Qt::Key_Tab);
    for (int i = 0; i < 12; ++i)
        typeRow(3, {QString::number(100 + i), QString::number(i), QString::number(i)});
    EXPECT_EQ(grid()->rowCount(), 14);
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 12);
    clickRow(12);
    platform.answers.push_back(BoxAnswer::Yes);
    clickRow(12, Qt::RightButton);
    EXPECT_EQ(grid()->rowCount(), 13);
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 11);
    for (int i = 0; i < 3; ++i) {
        clickRow(1);
        platform.answers.push_back(BoxAnswer::Yes);
        clickRow(1, Qt::RightButton);
    }
    EXPECT_EQ(grid()->rowCount(), 11);
    EXPECT_EQ(gridRow(1), (Texts{"103", "3", "3"}));
}

// ---- Delete, Accept, No Changes ---------------------------------------------------------------

TEST_F(StructureRatingEditorTest, DeleteOnNoChangesNothingAndGivesTheFocusToTheList) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    platform.answers.push_back(BoxAnswer::No);
    click(button("cmdDelCur"));
    EXPECT_EQ(platform.boxes, std::vector<BoxRequest>{DeleteQuestion});
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(listItems(), (Texts{"DAM", "WEIR"}));
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 3);
}

TEST_F(StructureRatingEditorTest, DeleteWithABlankListAsksNothing) {
    writeWorkFile(TwoStructures);
    open();
    click(button("cmdDelCur"));
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(StructureRatingEditorTest, DeleteLeavesAnEmptySlotAndOnlyTheOtherStructureIsWritten) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    platform.answers.push_back(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    EXPECT_EQ(listItems(), Texts{"WEIR"});
    EXPECT_EQ(list()->currentText(), "");
    EXPECT_EQ(box(1)->text(), "");
    EXPECT_EQ(box(2)->text(), "");
    EXPECT_EQ(gridRow(1), (Texts{"", "", ""}));
    EXPECT_FALSE(plotButton()->isEnabled());
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(window->tabularTables().TableCount, 2);
    // The rows of WEIR moved down over the deleted block but its first row.
    EXPECT_EQ(window->tabularTables().TableFirst[2], 2);
    EXPECT_EQ(window->tabularTables().ValueCount, 2);
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(), crlf({Header, tens({"", "WEIR", ""}), point("90.", "0.", "0."), ""}));
}

TEST_F(StructureRatingEditorTest, AfterDeleteABlankListSelectsTheEmptySlot) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    platform.answers.push_back(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    QTest::keyClick(list(), Qt::Key_Tab);
    // The empty slot is current, as an entry with no rows.
    EXPECT_EQ(window->currentEntry(), 1);
    EXPECT_EQ(focused(), box(2));
    typeAndPress(2, "7");
    EXPECT_EQ(background(box(2)), UntouchedColour);
    typeRow(3, {"1", "2", "3"});
    EXPECT_EQ(gridRow(1), (Texts{"1", "2", "3"}));
    // A slot with a blank identifier is not written.
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(), crlf({Header, tens({"", "WEIR", ""}), point("90.", "0.", "0."), ""}));
}

TEST_F(StructureRatingEditorTest, AcceptWithAllStructuresDeletedLeavesAnEmptyWorkFile) {
    writeWorkFile(TwoStructures);
    open();
    for (const char* name : {"DAM", "WEIR"}) {
        enterName(name);
        platform.answers.push_back(BoxAnswer::Yes);
        click(button("cmdDelCur"));
    }
    EXPECT_EQ(list()->count(), 0);
    click(button("cmdFinished"));
    EXPECT_TRUE(windowClosed());
    EXPECT_TRUE(fileExists(workFile(StructureSection)));
    EXPECT_EQ(workFileBytes(), "");
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(StructureRatingEditorTest, AcceptWithNoStructureEmptiesTheFileAndLeavesDataChanged) {
    writeWorkFile({Header, ""});
    open();
    click(button("cmdFinished"));
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), "");
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(StructureRatingEditorTest, AcceptWritesAStructureWithoutRowsAndDropsRecordsWithoutElevation) {
    writeWorkFile({Header, tens({"", "GATE", "95.5"}), tens({"", "DAM", ""}), tens({"", "", "", "25.", "3."}),
                   point("1200", "1", "")});
    open();
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(), crlf({Header, tens({"", "GATE", "95.5"}), tens({"", "DAM", ""}),
                                     point("1200.", "1.", ""), ""}));
}

TEST_F(StructureRatingEditorTest, AcceptWritesRedBoxesAsTheyStand) {
    open();
    enterName("S1");
    typeAndPress(2, "x1");
    EXPECT_EQ(background(box(2)), RefusedColour);
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(), crlf({Header, tens({"", "S1", "x1."}), ""}));
}

TEST_F(StructureRatingEditorTest, AcceptTakesANameTypedButNotLeft) {
    open();
    list()->setFocus();
    QTest::keyClicks(list(), "NEW");
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(), crlf({Header, tens({"", "NEW", ""}), ""}));
}

TEST_F(StructureRatingEditorTest, NoChangesLeavesTheWorkFileAndDataChangedAlone) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    QTest::keyClick(box(2), Qt::Key_Tab);
    typeRow(3, {"101", "20", "5"});
    click(button("cmdCancel"));
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), crlf(TwoStructures));
    EXPECT_FALSE(session().DataChanged);
}

// ---- Display Data -----------------------------------------------------------------------------

TEST_F(StructureRatingEditorTest, DisplayDataStoresPublishesTheEntryAndOpensThePlotWindowModally) {
    registerPlotWindow();
    writeWorkFile(TwoStructures);
    open();
    enterName("WEIR");
    QTest::keyClick(box(2), Qt::Key_Tab);
    typeRow(3, {"91", "5", "1"});
    ASSERT_TRUE(plotButton()->isEnabled());
    click(plotButton());
    EXPECT_EQ(PlotWindowStandIn::opened, 1);
    EXPECT_TRUE(PlotWindowStandIn::wasModal);
    EXPECT_EQ(PlotWindowStandIn::kind, 4);
    EXPECT_EQ(PlotWindowStandIn::entry, "2");
    EXPECT_EQ(context->plots.PlotKind, 4);
    // The rows were stored where the plot window reads them.
    const GridContext& tables = window->tabularTables();
    EXPECT_EQ(tables.TableLast[2] - tables.TableFirst[2], 1);
    EXPECT_EQ(tables.ValueStore(1, tables.TableLast[2]), "91");
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_FALSE(windowClosed());
}

TEST_F(StructureRatingEditorTest, DisplayDataWithNoStructureChosenSaysNoneSelected) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    // A blank name chooses nothing; the grid still shows the rows, and a box check enables
    // the button again.
    enterName("");
    EXPECT_FALSE(plotButton()->isEnabled());
    typeAndPress(2, "1");
    EXPECT_TRUE(plotButton()->isEnabled());
    click(plotButton());
    const BoxRequest noneSelected{"None Selected", DefaultBoxTitle, BoxButtons::Ok, BoxIcon::None};
    EXPECT_EQ(platform.boxes, std::vector<BoxRequest>{noneSelected});
    EXPECT_EQ(context->plots.PlotKind, 0);
}

TEST_F(StructureRatingEditorTest, TheButtonNeedsTwoRows) {
    open();
    enterName("S1");
    QTest::keyClick(box(2), Qt::Key_Tab);
    typeRow(3, {"1", "1", "1"});
    EXPECT_FALSE(plotButton()->isEnabled());
    typeAndPress(3, "2");
    EXPECT_TRUE(plotButton()->isEnabled());
}

// ---- Spreadsheet paste and copy ---------------------------------------------------------------

TEST_F(StructureRatingEditorTest, RowsCopiedFromASpreadsheetArePastedInOrderAsIfTyped) {
    open();
    enterName("S1");
    platform.setClipboardText("847\t39.1\t18.1\r\n846\t0\t0\r\n846.5\t13.8\t8.9\r\n");
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(gridRow(1), (Texts{"846", "0", "0"}));
    EXPECT_EQ(gridRow(2), (Texts{"846.5", "13.8", "8.9"}));
    EXPECT_EQ(gridRow(3), (Texts{"847", "39.1", "18.1"}));
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 3);
    // As after typing 846.5 and Tab: the row behind it comes into the boxes.
    EXPECT_EQ(window->tabularTables().GridRow, 3);
    EXPECT_EQ(box(3)->text(), "847");
    EXPECT_EQ(focused(), box(3));
    EXPECT_TRUE(plotButton()->isEnabled());
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(), crlf({Header, tens({"", "S1", ""}), point("846.", "0.", "0."),
                                     point("846.5", "13.8", "8.9"), point("847.", "39.1", "18.1"), ""}));
}

TEST_F(StructureRatingEditorTest, ABlankCellOfThePasteLeavesItsCellBlank) {
    open();
    enterName("S1");
    platform.setClipboardText("100\t\t5\r\n101\t7\t6");
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(gridRow(1), (Texts{"100", "", "5"}));
    EXPECT_EQ(gridRow(2), (Texts{"101", "7", "6"}));
    for (int col = 0; col < 3; ++col)
        EXPECT_EQ(cellColour(1, col), UntouchedColour);
}

TEST_F(StructureRatingEditorTest, APastedValueThatDoesNotRiseTurnsItsCellRedAndStays) {
    open();
    enterName("S1");
    platform.setClipboardText("100\t50\t1\r\n101\t40\t2\r\n");
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(gridRow(2), (Texts{"101", "40", "2"}));
    EXPECT_EQ(cellColour(2, 1), RefusedColour);
    EXPECT_EQ(cellColour(2, 2), UntouchedColour);
    EXPECT_EQ(cellColour(1, 1), UntouchedColour);
    // Nothing else in the section changes.
    EXPECT_EQ(window->tabularTables().TableCount, 1);
    EXPECT_EQ(box(2)->text(), "");
}

TEST_F(StructureRatingEditorTest, ARefusedKeyEndsThePasteAndKeepsTheFocus) {
    open();
    enterName("S1");
    platform.setClipboardText("100\t1\t1\r\nabc\t2\t2\r\n102\t3\t3\r\n");
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(gridRow(1), (Texts{"100", "1", "1"}));
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 1);
    EXPECT_EQ(box(3)->text(), "abc");
    EXPECT_EQ(background(box(3)), RefusedColour);
    EXPECT_EQ(focused(), box(3));
}

TEST_F(StructureRatingEditorTest, APastedRowWithTheElevationOfARowReplacesItsValues) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    clickRow(1);
    platform.setClipboardText("102  60  12\n103  100  20\n");
    QTest::keyClick(box(3), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(gridRow(2), (Texts{"102", "60", "12"}));
    EXPECT_EQ(gridRow(3), (Texts{"103", "100", "20"}));
    EXPECT_EQ(gridRow(4), (Texts{"104.", "200.", "30."}));
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 4);
}

TEST_F(StructureRatingEditorTest, ASingleValueIsPastedIntoTheBoxAsText) {
    open();
    enterName("S1");
    QTest::keyClick(box(2), Qt::Key_Tab);
    platform.setClipboardText("846.5");
    QTest::keyClick(box(3), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 0);
    EXPECT_EQ(box(3)->text().toStdString(), "846.5");
}

TEST_F(StructureRatingEditorTest, PastingWithNoStructureChosenPlacesNothing) {
    open();
    platform.setClipboardText("100\t1\t1\r\n");
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 0);
    EXPECT_EQ(background(box(3)), RefusedColour);
}

TEST_F(StructureRatingEditorTest, CopyPutsTheCurrentRowOrTheRowsPickedWithShiftOnTheClipboard) {
    writeWorkFile(TwoStructures);
    open();
    enterName("DAM");
    clickRow(2);
    // Ctrl+C in the box copies the box's own text, which is chosen as the box takes the focus;
    // a Shift click on the row itself chooses the row.
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      grid()->visualRect(grid()->model()->index(2, 0)).center());
    EXPECT_EQ(focused(), grid());
    QTest::keyClick(grid(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(platform.clipboardText(), "102.\t50.\t10.\r\n");
    clickRow(1);
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      grid()->visualRect(grid()->model()->index(3, 0)).center());
    // The current row stays.
    EXPECT_EQ(window->tabularTables().GridRow, 1);
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(platform.clipboardText(), "100.\t0.\t0.\r\n102.\t50.\t10.\r\n104.\t200.\t30.\r\n");
    // Copied rows pasted into another structure come out the same.
    enterName("NEW");
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(gridRow(3), (Texts{"104.", "200.", "30."}));
}

TEST_F(StructureRatingEditorTest, CtrlEnterWritesTheValueTypedInABoxAsAClickOnAcceptDoes) {
    open();
    enterName("Gate 3");
    typeAndPress(2, "1200", Qt::Key_Return);
    typeRow(3, {"1200", "0", "0"});
    typeRow(3, {"1201.5", "12"});
    // The storage typed, and the window accepted from the keyboard while the box has the focus.
    QTest::keyClicks(box(5), "3.25");
    QTest::keyClick(box(5), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), crlf({Header, tens({"", "Gate 3", "1200."}), point("1200.", "0.", "0."),
                                     point("1201.5", "12.", "3.25"), ""}));
}

TEST_F(StructureRatingEditorTest, CtrlEnterTakesANameTypedButNotLeft) {
    open();
    list()->setFocus();
    QTest::keyClicks(list(), "NEW");
    QTest::keyClick(list(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), crlf({Header, tens({"", "NEW", ""}), ""}));
}

} // namespace
} // namespace brooklet::test
