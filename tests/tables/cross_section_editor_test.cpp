// frmXsect: what it does unlike the structure rating window. Its own fields and records, the
// stream combo box, the checks of the five rating columns, a new cross section, Delete and
// Display Data, with the work file compared byte for byte.
#include "grid_window_fixture.h"

#include "options/identifier_record.h"
#include "tables/cross_section_editor.h"

#include <QLabel>
#include <QScrollBar>

namespace brooklet::test {
namespace {

const std::string Header = "STREAM CROSS SECTION:" + std::string(19, ' ');
const std::string Ten(10, ' ');

std::string section(const std::string& name, const std::string& bankfull, const std::string& low,
                    const std::string& stream, const std::string& station) {
    return tens({"", name, bankfull, "", low, stream, station});
}
std::string point(std::initializer_list<std::string> values) {
    std::string record = Ten + Ten;
    for (const std::string& value : values)
        record += tens({value});
    return record;
}

const std::vector<std::string> TwoSections{Header,
                                           section("X1", "100.", "90.", "MILL.", "1200."),
                                           point({"90.", "0.", "0.", "0.", ".001"}),
                                           point({"95.", "100.", "40.", "20.", ".002"}),
                                           point({"100.", "400.", "120.", "40.", ""}),
                                           section("X2", "80.", "", "CREEK.", ""),
                                           point({"70.", "0.", "0.", "10.", ""}),
                                           ""};

class CrossSectionEditorTest : public GridWindowTest<frmXsect> {
protected:
    CrossSectionEditorTest() : GridWindowTest("frmXsect", CrossSectionSection) {}
    QComboBox* streams() { return control<QComboBox>(window, "cmbInp(4)"); }
    // Chooses a cross section and goes on to the rating row boxes.
    void chooseAndGoToRows(const QString& name) {
        enterName(name);
        box(6)->setFocus(Qt::OtherFocusReason);
    }
};

TEST_F(CrossSectionEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), "Stream Cross Section   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "XS");
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Stream Cross Section:");
    const char* labels[] = {"Cross Section Identifier", "Bankfull Elevation",
                            "Low Ground Elevation",     "Stream Identifier",
                            "Stream Station",           "Cross Section Elevation",
                            "Cross Section Discharge",  "Cross Section End Area",
                            "Cross Section Top Width",  "Cross Section Friction Slope"};
    for (int index = 1; index <= 10; ++index)
        EXPECT_EQ(control<QLabel>(window, indexedName("lblInput", index))->text(), labels[index - 1]);
    EXPECT_EQ(
        control<QLabel>(window, "lblComment(0)")->text(),
        "Repeat following variables for each cross section rating point in the Cross Section Identifier");
    EXPECT_EQ(control<QLabel>(window, "lblComment(1)")->text(),
              "Click row in grid to edit previously entered data. RIGHT click to delete row.");
    EXPECT_EQ(button("cmdDelCur")->text(), "      Delete       Cross Section");
    EXPECT_EQ(button("cmdCancel")->text(), "    No Changes  (Close)");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes  (Close)");
    EXPECT_FALSE(plotButton()->isEnabled());
    EXPECT_FALSE(box(4)->isVisible());
    EXPECT_TRUE(streams()->isEditable());
    EXPECT_EQ(grid()->rowCount(), 11);
    EXPECT_EQ(gridRow(0), (Texts{"Elevation", "Discharge", "End Area", "Top Width", "Friction Slope"}));
    EXPECT_EQ(grid()->rowHeight(0), 30);
    EXPECT_EQ(focused(), list());
}

TEST_F(CrossSectionEditorTest, UnitLabelsShowTheWordsOfTheInputUnits) {
    SetInputUnitWords(session(), true);
    open();
    for (int index : {2, 3, 5, 6, 9})
        EXPECT_EQ(control<QLabel>(window, indexedName("lblInUnit", index))->text(), "ft") << index;
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(7)")->text(), "cfs");
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(8)")->text(), "sq ft");
}

TEST_F(CrossSectionEditorTest, ChoosingACrossSectionFillsBoxesOneToFiveAndTheStreamList) {
    writeWorkFile(TwoSections);
    writeBytes(workFile(ReachSection),
               crlf({"STREAM REACH:", tens({"", "R1", "R2"}), tens({"", "", "", "X9"})}));
    open();
    EXPECT_EQ(listItems(), (Texts{"X1", "X2", "X9"}));
    enterName("x1");
    EXPECT_EQ(box(2)->text(), "100.");
    EXPECT_EQ(box(3)->text(), "90.");
    EXPECT_EQ(box(4)->text(), "MILL.");
    EXPECT_EQ(streams()->currentText(), "MILL.");
    EXPECT_EQ(box(5)->text(), "1200.");
    EXPECT_EQ(gridRow(2), (Texts{"95.", "100.", "40.", "20.", ".002"}));
    EXPECT_TRUE(plotButton()->isEnabled());
    EXPECT_EQ(background(list()), UntouchedColour);
}

TEST_F(CrossSectionEditorTest, TheStreamListOffersTheStreamsOfThisSectionAndTakesANewOne) {
    writeWorkFile(TwoSections);
    open();
    enterName("NEW");
    QTest::keyClick(box(2), Qt::Key_Tab);
    QTest::keyClick(box(3), Qt::Key_Tab);
    EXPECT_EQ(focused(), streams());
    Texts items;
    for (int i = 0; i < streams()->count(); ++i)
        items.push_back(toBytes(streams()->itemText(i)));
    EXPECT_EQ(items, (Texts{"MILL.", "CREEK."}));
    QTest::keyClicks(streams(), "BROOKSIDE-NORTH");
    QTest::keyClick(streams(), Qt::Key_Tab);
    EXPECT_EQ(streams()->currentText(), "BROOKSIDE-");
    EXPECT_EQ(box(4)->text(), "BROOKSIDE-");
    EXPECT_EQ(window->tabularTables().IdentifierTable(4, 3), "BROOKSIDE-");
    EXPECT_EQ(focused(), box(5));
}

TEST_F(CrossSectionEditorTest, AStreamOfFourLettersIsWrittenWithAPointAndOneOfTenAsItIs) {
    open();
    enterName("A");
    QTest::keyClick(box(2), Qt::Key_Tab);
    QTest::keyClick(box(3), Qt::Key_Tab);
    QTest::keyClicks(streams(), "MILL");
    QTest::keyClick(streams(), Qt::Key_Tab);
    enterName("B");
    QTest::keyClick(box(2), Qt::Key_Tab);
    QTest::keyClick(box(3), Qt::Key_Tab);
    QTest::keyClicks(streams(), "MILLSTREAM");
    QTest::keyClick(streams(), Qt::Key_Tab);
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(),
              crlf({Header, section("A", "", "", "MILL.", ""), section("B", "", "", "MILLSTREAM", ""), ""}));
}

TEST_F(CrossSectionEditorTest, ABlankBankfullElevationIsNotMarkedButATypedWrongOneIs) {
    open();
    enterName("A");
    QTest::keyClick(box(2), Qt::Key_Tab);
    EXPECT_EQ(background(box(2)), UntouchedColour);
    EXPECT_EQ(focused(), box(3));
    QTest::keyClick(box(3), Qt::Key_Tab);
    QTest::keyClick(streams(), Qt::Key_Tab);
    typeAndPress(5, "-5");
    EXPECT_EQ(background(box(5)), RefusedColour);
    EXPECT_EQ(focused(), box(5));
}

TEST_F(CrossSectionEditorTest, FrictionSlopeZeroIsRefusedAndBlankIsAcceptedOnEveryRow) {
    open();
    enterName("A");
    box(6)->setFocus();
    typeRow(6, {"90", "0", "0", "0"});
    typeAndPress(10, "0");
    EXPECT_EQ(background(box(10)), RefusedColour);
    EXPECT_EQ(focused(), box(10));
    box(10)->clear();
    typeAndPress(10, "");
    EXPECT_EQ(background(box(10)), UntouchedColour);
    typeRow(6, {"95", "10", "5", "8", ""});
    EXPECT_EQ(background(box(10)), UntouchedColour);
    EXPECT_EQ(gridRow(2), (Texts{"95", "10", "5", "8", ""}));
}

TEST_F(CrossSectionEditorTest, TopWidthMayStayBlankOnRowOneOnly) {
    open();
    enterName("A");
    box(6)->setFocus();
    typeRow(6, {"90", "", "", "", ""});
    EXPECT_EQ(window->tabularTables().GridRow, 2);
    EXPECT_EQ(background(box(9)), UntouchedColour);
    typeRow(6, {"95", "", ""});
    // Discharge and end area left blank are never marked.
    EXPECT_EQ(background(box(7)), UntouchedColour);
    EXPECT_EQ(background(box(8)), UntouchedColour);
    typeAndPress(9, "");
    EXPECT_EQ(background(box(9)), RefusedColour);
    EXPECT_EQ(focused(), box(9));
}

TEST_F(CrossSectionEditorTest, RowOneIsComparedWithTheRowBelowAndTheLastRowWithTheRowAbove) {
    writeWorkFile(TwoSections);
    open();
    chooseAndGoToRows("X1");
    clickRow(1);
    QTest::keyClick(box(6), Qt::Key_Tab);
    box(7)->clear();
    typeAndPress(7, "100");
    EXPECT_EQ(background(box(7)), RefusedColour);
    box(7)->clear();
    typeAndPress(7, "99");
    EXPECT_EQ(background(box(7)), UntouchedColour);
    clickRow(3);
    QTest::keyClick(box(6), Qt::Key_Tab);
    box(7)->clear();
    typeAndPress(7, "100");
    EXPECT_EQ(background(box(7)), RefusedColour);
    box(7)->clear();
    typeAndPress(7, "100000");
    EXPECT_EQ(background(box(7)), UntouchedColour);
    // The friction slope is not compared.
    QTest::keyClick(box(8), Qt::Key_Tab);
    QTest::keyClick(box(9), Qt::Key_Tab);
    typeAndPress(10, ".0001");
    EXPECT_EQ(background(box(10)), UntouchedColour);
}

TEST_F(CrossSectionEditorTest, ARatingRecordWithABlankElevationIsDroppedOnlyWhenItsCrossSectionIsStored) {
    const std::vector<std::string> lines{Header,
                                         section("X1", "100.", "", "", ""),
                                         point({"90.", "0.", "0.", "0.", ""}),
                                         point({"", "5.", "6.", "", ""}),
                                         section("X2", "", "", "", ""),
                                         point({"", "7.", "", "", ""}),
                                         ""};
    writeWorkFile(lines);
    open();
    enterName("X1");
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 1);
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(),
              crlf({Header, section("X1", "100.", "", "", ""), point({"90.", "0.", "0.", "0.", ""}),
                    section("X2", "", "", "", ""), point({"", "7.", "", "", ""}), ""}));
}

TEST_F(CrossSectionEditorTest, ANewIdentifierEmptiesBoxesTwoToNineAndLeavesTheFrictionSlope) {
    writeWorkFile(TwoSections);
    open();
    enterName("X1");
    clickRow(2);
    EXPECT_EQ(box(10)->text(), ".002");
    enterName("X3");
    for (int index = 2; index <= 9; ++index)
        EXPECT_EQ(box(index)->text(), "") << index;
    EXPECT_EQ(streams()->currentText(), "");
    EXPECT_EQ(box(10)->text(), ".002");
    EXPECT_EQ(window->tabularTables().TableCount, 3);
}

TEST_F(CrossSectionEditorTest, DeleteAsksItsQuestionAndEmptiesTheStreamToo) {
    writeWorkFile(TwoSections);
    open();
    enterName("X1");
    platform.answers.push_back(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    EXPECT_EQ(platform.boxes.back(), (BoxRequest{"Delete Current Cross Section ?", "Stream Cross Section",
                                                 BoxButtons::YesNo, BoxIcon::Question}));
    for (int index = 1; index <= 5; ++index)
        EXPECT_EQ(box(index)->text(), "") << index;
    EXPECT_EQ(streams()->currentText(), "");
    EXPECT_EQ(window->tabularTables().IdentifierTable(4, 1), "");
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(), crlf({Header, section("X2", "80.", "", "CREEK.", ""),
                                     point({"70.", "0.", "0.", "10.", ""}), ""}));
}

TEST_F(CrossSectionEditorTest, ARowIsDeletedAfterItsOwnQuestion) {
    writeWorkFile(TwoSections);
    open();
    enterName("X1");
    clickRow(1);
    platform.answers.push_back(BoxAnswer::Yes);
    clickRow(1, Qt::RightButton);
    EXPECT_EQ(platform.boxes.back(), (BoxRequest{"Delete Cross Section Rating Row ?", "Stream Cross Section",
                                                 BoxButtons::YesNo, BoxIcon::Question}));
    EXPECT_EQ(gridRow(1), (Texts{"95.", "100.", "40.", "20.", ".002"}));
    EXPECT_EQ(window->tabularTables().GridRowsUsed, 2);
}

TEST_F(CrossSectionEditorTest, DisplayDataHandsOverPlotKindFive) {
    registerPlotWindow();
    writeWorkFile(TwoSections);
    open();
    enterName("X1");
    click(plotButton());
    EXPECT_EQ(PlotWindowStandIn::kind, 5);
    EXPECT_EQ(PlotWindowStandIn::entry, "1");
}

TEST_F(CrossSectionEditorTest, MovingOnPastTheLastBoxScrollsALongTable) {
    open();
    enterName("A");
    box(6)->setFocus();
    for (int i = 0; i < 10; ++i)
        typeRow(
            6, {QString::number(90 + i), QString::number(i), QString::number(i), QString::number(i), ".001"});
    EXPECT_EQ(window->tabularTables().GridRow, 11);
    EXPECT_EQ(grid()->verticalScrollBar()->value(), 3);
}

TEST_F(CrossSectionEditorTest, AcceptUnchangedWritesTheSectionBack) {
    writeWorkFile(TwoSections);
    open();
    enterName("X2");
    enterName("X1");
    click(button("cmdFinished"));
    EXPECT_EQ(workFileBytes(), crlf(TwoSections));
}

TEST_F(CrossSectionEditorTest, PastedRowsAreCheckedByTheCrossSectionRules) {
    open();
    enterName("A");
    // Blank-separated text; the second row has no top width and a friction slope of 0.
    platform.setClipboardText("90 0 0 0 .001\r\n95\t10\t5\t\t0\r\n");
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(gridRow(1), (Texts{"90", "0", "0", "0", ".001"}));
    // A refused friction slope does not reach the grid, as when typed: its cell turns red.
    EXPECT_EQ(gridRow(2), (Texts{"95", "10", "5", "", ""}));
    EXPECT_EQ(cellColour(2, 3), RefusedColour);
    EXPECT_EQ(cellColour(2, 4), RefusedColour);
    EXPECT_EQ(cellColour(2, 1), UntouchedColour);
}

TEST_F(CrossSectionEditorTest, CtrlEnterWritesTheValueTypedInABoxAsAClickOnAcceptDoes) {
    writeWorkFile(TwoSections);
    open();
    chooseAndGoToRows("X2");
    typeRow(6, {"75", "50", "20", "12"});
    // The friction slope typed, and the window accepted from the keyboard while the box has the
    // focus.
    QTest::keyClicks(box(10), ".004");
    QTest::keyClick(box(10), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(windowClosed());
    std::vector<std::string> expected = TwoSections;
    expected.insert(expected.end() - 1, point({"75.", "50.", "20.", "12.", ".004"}));
    EXPECT_EQ(workFileBytes(), crlf(expected));
}

} // namespace
} // namespace brooklet::test
