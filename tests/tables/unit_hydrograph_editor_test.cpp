// frmDimHyd as the user meets it: the one table of values from 0 to 1 typed straight into the
// grid, the closing zero, Delete with its question, Display Data, and Accept with the work file
// compared byte for byte.
#include "value_window_fixture.h"

#include "tables/unit_hydrograph_editor.h"

#include <QLabel>

namespace brooklet::test {
namespace {

const std::string Header = "DIMENSIONLESS UNIT HYDROGRAPH:" + std::string(10, ' ');
const BoxRequest DeleteQuestion{"Delete dimensionless unit hydrograph data ?",
                                "Dimensionless Unit Hydrograph", BoxButtons::YesNo, BoxIcon::Question};

class UnitHydrographEditorTest : public ValueWindowTest<frmDimHyd> {
protected:
    UnitHydrographEditorTest() : ValueWindowTest("frmDimHyd", UnitHydrographSection) {}
};

TEST_F(UnitHydrographEditorTest, WithAnEmptyWorkFileItOpensWithZeroInTheFirstCellAndTheCursorOnTheSecond) {
    writeWorkFile({});
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), "Unit Hydrograph   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "DH");
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Dimensionless Unit Hydrograph:");
    EXPECT_EQ(control<QLabel>(window, "lblInput(1)")->text(), "Dimensionless Hydrograph Points:");
    EXPECT_EQ(button("cmdDelAll")->text(), "      Delete         DimHyd");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes  (Close)");
    EXPECT_EQ(grid()->rowCount(), 10);
    EXPECT_EQ(cell(0, 0), "0");
    EXPECT_EQ(currentCell(), std::make_pair(0, 1));
    EXPECT_EQ(cellColour(0, 1), CurrentColour);
    EXPECT_EQ(focused(), grid());
    EXPECT_FALSE(plotButton()->isEnabled());
    EXPECT_FALSE(button("cmdDelAll")->isEnabled());
}

TEST_F(UnitHydrographEditorTest, AValueAboveOneTurnsRedWhenLeftOneAndZeroAreAccepted) {
    open();
    typeValues({"0.5", "1", "1.2", "0"});
    EXPECT_EQ(cellColour(0, 1), UntouchedColour);
    EXPECT_EQ(cellColour(0, 2), UntouchedColour);
    EXPECT_EQ(cellColour(0, 3), RefusedColour);
    EXPECT_EQ(cellColour(0, 4), UntouchedColour);
    EXPECT_TRUE(plotButton()->isEnabled());
}

TEST_F(UnitHydrographEditorTest, ALastValueOf0Point05IsFollowedByZero) {
    open();
    typeValues({"1", "0.4", "0.05"});
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, valueRecord({"0.", "1.", "0.4", "0.05", "0."})}));
    EXPECT_TRUE(windowClosed());
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(UnitHydrographEditorTest, FiveValuesEndingAboveZeroGiveASecondRecordWithZeroInColumn22) {
    open();
    typeValues({"0.5", "1", "0.6", "0.2"});
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, valueRecord({"0.", "0.5", "1.", "0.6", "0.2"}),
                                     std::string(21, ' ') + "0.        "}));
}

TEST_F(UnitHydrographEditorTest, DeleteOnNoLeavesTheGridAsItWasWithTheValuesInTheStore) {
    open();
    typeValues({"1", "0.3"});
    platform.answers.push_back(BoxAnswer::No);
    EXPECT_TRUE(button("cmdDelAll")->isEnabled());
    click(button("cmdDelAll"));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes.back(), DeleteQuestion);
    EXPECT_EQ(gridRow(0), (Texts{"0", "1", "0.3", "", ""}));
    EXPECT_EQ(StoredValueTables(window->tabularTables())[0].Values, (Texts{"0", "1", "0.3"}));
    platform.answers.push_back(BoxAnswer::Yes);
    click(button("cmdDelAll"));
    EXPECT_EQ(gridRow(0), (Texts{"0", "", "", "", ""}));
    EXPECT_FALSE(button("cmdDelAll")->isEnabled());
    accept();
    EXPECT_EQ(workFileBytes(), "");
}

TEST_F(UnitHydrographEditorTest, TheTableIsReadAndWrittenBackAsItWas) {
    const std::vector<std::string> lines{Header, valueRecord({"0.", "0.05", "", "0.31", "1."}),
                                         valueRecord({"0.4", "0."})};
    writeWorkFile(lines);
    open();
    EXPECT_EQ(rows(2), (Texts{"0.", "0.05", "0.31", "1.", "0.4", "0.", "", "", "", ""}));
    EXPECT_EQ(currentCell(), std::make_pair(0, 1));
    EXPECT_TRUE(button("cmdDelAll")->isEnabled());
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({Header, valueRecord({"0.", "0.05", "0.31", "1.", "0.4"}), valueRecord({"0."})}));
}

TEST_F(UnitHydrographEditorTest, OneOrTwoValuesLeaveTheWorkFileEmpty) {
    writeWorkFile({Header, valueRecord({"0.", "1.", "0."})});
    open();
    chooseFromMenu(0, 2, 2);
    chooseFromMenu(0, 1, 2);
    EXPECT_EQ(gridRow(0), (Texts{"0.", "", "", "", ""}));
    typeValues({"1"});
    accept();
    EXPECT_EQ(workFileBytes(), "");
}

TEST_F(UnitHydrographEditorTest, DisplayDataHandsTheTableToThePlotAsKindOneOrSaysNoDataEntered) {
    registerPlotWindow();
    open();
    window->displayData();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes.back(),
              (BoxRequest{" No Data Entered", DefaultBoxTitle, BoxButtons::Ok, BoxIcon::None}));
    typeValues({"1", "0.5"});
    click(plotButton());
    EXPECT_EQ(PlotWindowStandIn::kind, 1);
    EXPECT_EQ(PlotWindowStandIn::entry, "1");
    EXPECT_EQ(StoredValueTables(window->tabularTables())[0].Values, (Texts{"0", "1", "0.5"}));
}

} // namespace
} // namespace brooklet::test
