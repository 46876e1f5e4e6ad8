// frmInpHyd as the user meets it: a hydrograph's seven fields typed with Tab, its flows typed
// into the grid, the checks of the fields, the closing zero the writer adds, Display Data, and
// Accept with the work file compared byte for byte.
#include "value_window_fixture.h"

#include "tables/input_hydrograph_editor.h"

#include <QLabel>

namespace brooklet::test {
namespace {

const std::string Header = "INPUT HYDROGRAPH:" + std::string(23, ' ');

std::string identifier(std::initializer_list<std::string> fields) {
    std::vector<std::string> all{""};
    all.insert(all.end(), fields);
    std::string record;
    for (const std::string& field : all)
        record += tens({field});
    return record;
}

const std::string Quarry = identifier({"QUARRY", "EASTFORK", "100-YR", "0.", "0.5", "0.35", "2."});

class InputHydrographEditorTest : public ValueWindowTest<frmInpHyd> {
protected:
    InputHydrographEditorTest() : ValueWindowTest("frmInpHyd", InputHydrographSection) {}

    QComboBox* combo(int index) { return control<QComboBox>(window, indexedName("cmbInp", index)); }
    // Types into combo box Index, then presses the key.
    void typeIntoCombo(int index, const QString& text, Qt::Key key = Qt::Key_Tab) {
        EXPECT_EQ(focused(), combo(index)) << "combo box " << index << " has not the focus";
        QTest::keyClicks(combo(index), text);
        QTest::keyClick(combo(index), key);
    }
    // QUARRY with its six fields typed; the grid then has the focus.
    void newHydrograph() {
        enterName("QUARRY");
        typeIntoCombo(2, "EASTFORK");
        typeIntoCombo(3, "100-YR");
        typeRow(4, {"0", "0.5", "0.35", "2"});
        EXPECT_EQ(focused(), grid());
    }
};

TEST_F(InputHydrographEditorTest, ShowsEveryControlWithItsCaptionAndUnits) {
    session().Units.AreaUnit = "sq km";
    session().Units.FlowUnit = "cu m/sec";
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), "Input Hydrograph   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "IH");
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Input Hydrograph:");
    EXPECT_EQ(control<QLabel>(window, "lblInput(8)")->text(), "Input Hydrograph Flows");
    EXPECT_EQ(control<QLabel>(window, "Label2(1)")->text(), "@ Input Hydrograph Time Increment");
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(5)")->text(), "hr");
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(6)")->text(), "sq km");
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(7)")->text(), "cu m/sec");
    EXPECT_EQ(control<QLabel>(window, "lblInUnit(8)")->text(), "cu m/sec");
    EXPECT_EQ(grid()->rowCount(), 10);
    EXPECT_EQ(button("cmdDelCur")->text(), "   Delete    Hydrograph");
    EXPECT_EQ(button("cmdCancel")->text(), "    No Changes   (Close)");
    EXPECT_FALSE(button("CmdPlot")->isEnabled());
}

TEST_F(InputHydrographEditorTest, ALastFlowOf12Point5IsWrittenWithOneMoreValueZero) {
    open();
    newHydrograph();
    EXPECT_EQ(currentCell(), std::make_pair(0, 1));
    typeValues({"4", "12.5"});
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, Quarry, valueRecord({"0.", "4.", "12.5", "0."}), ""}));
}

TEST_F(InputHydrographEditorTest, WithFiveFlowsEndingAboveZeroTheZeroStandsAloneInANewRecord) {
    open();
    newHydrograph();
    typeValues({"4", "11", "24", "41"});
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, Quarry, valueRecord({"0.", "4.", "11.", "24.", "41."}),
                                     valueRecord({"0."}), ""}));
}

TEST_F(InputHydrographEditorTest, AHydrographEndingInZeroGetsNothingAdded) {
    open();
    newHydrograph();
    typeValues({"4", "0"});
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, Quarry, valueRecord({"0.", "4.", "0."}), ""}));
}

TEST_F(InputHydrographEditorTest, ABlankStormIdentifierIsAcceptedABlankReachIsNot) {
    open();
    enterName("QUARRY");
    // Ten blanks and more: the text cut to its first ten characters is blank.
    typeIntoCombo(2, "          X");
    EXPECT_EQ(background(combo(2)), RefusedColour);
    EXPECT_EQ(focused(), combo(2));
    combo(2)->setEditText(QString());
    typeIntoCombo(2, "EASTFORK");
    EXPECT_EQ(background(combo(2)), UntouchedColour);
    typeIntoCombo(3, "          X");
    EXPECT_EQ(background(combo(3)), UntouchedColour);
    EXPECT_EQ(focused(), box(4));
}

TEST_F(InputHydrographEditorTest, ATimeIncrementOfZeroTurnsTheBoxRedAndLeavesItRed) {
    open();
    enterName("QUARRY");
    typeIntoCombo(2, "EASTFORK");
    typeIntoCombo(3, "");
    typeAndPress(4, "0");
    typeAndPress(5, "0");
    EXPECT_EQ(background(box(5)), RefusedColour);
    EXPECT_EQ(focused(), box(5));
    // Leaving it with the mouse checks it again: still red.
    box(6)->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(background(box(5)), RefusedColour);
}

TEST_F(InputHydrographEditorTest, ADrainageAreaOfZeroIsAccepted) {
    open();
    enterName("QUARRY");
    typeIntoCombo(2, "EASTFORK");
    typeIntoCombo(3, "");
    typeRow(4, {"0", "0.5", "0"});
    EXPECT_EQ(background(box(6)), UntouchedColour);
    EXPECT_EQ(focused(), box(7));
}

TEST_F(InputHydrographEditorTest, AHydrographWithASingleValueIsNotWritten) {
    writeWorkFile({Header, Quarry, valueRecord({"0.", "4.", "0."}), ""});
    open();
    enterName("SPRING");
    typeIntoCombo(2, "EASTFORK");
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, Quarry, valueRecord({"0.", "4.", "0."}), ""}));
}

TEST_F(InputHydrographEditorTest, AHydrographIsShownWithItsFieldsAndHandedToThePlotAsKindTwo) {
    registerPlotWindow();
    writeWorkFile({Header, Quarry, valueRecord({"0.", "4.", "11.", "0."}), ""});
    open();
    enterName("quarry");
    EXPECT_EQ(combo(2)->currentText(), "EASTFORK");
    EXPECT_EQ(combo(3)->currentText(), "100-YR");
    EXPECT_EQ(box(5)->text(), "0.5");
    EXPECT_EQ(box(7)->text(), "2.");
    EXPECT_EQ(gridRow(0), (Texts{"0.", "4.", "11.", "0.", ""}));
    EXPECT_TRUE(plotButton()->isEnabled());
    click(plotButton());
    EXPECT_EQ(PlotWindowStandIn::kind, 2);
    EXPECT_EQ(PlotWindowStandIn::entry, "1");
}

TEST_F(InputHydrographEditorTest, DeletingAHydrographEmptiesItsFieldsAndLeavesTheWorkFileEmpty) {
    writeWorkFile({Header, Quarry, valueRecord({"0.", "4.", "0."}), ""});
    open();
    enterName("QUARRY");
    platform.answers.push_back(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    ASSERT_FALSE(platform.boxes.empty());
    EXPECT_EQ(platform.boxes.back(), (BoxRequest{"Delete Current input hydrograph ?", "Input Hydrograph",
                                                 BoxButtons::YesNo, BoxIcon::Question}));
    for (int index = 4; index <= 7; ++index)
        EXPECT_EQ(box(index)->text(), "") << index;
    EXPECT_EQ(combo(2)->currentText(), "");
    accept();
    EXPECT_EQ(workFileBytes(), "");
}

TEST_F(InputHydrographEditorTest, CtrlEnterWritesTheReachTypedInItsListAsAClickOnAcceptDoes) {
    writeWorkFile({Header, Quarry, valueRecord({"0.", "4.", "0."}), ""});
    open();
    enterName("QUARRY");
    EXPECT_EQ(focused(), combo(2));
    combo(2)->setEditText(QString());
    // A new reach typed, and the window accepted from the keyboard while the list has the focus.
    QTest::keyClicks(combo(2), "WESTFORK");
    QTest::keyClick(combo(2), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(),
              crlf({Header, identifier({"QUARRY", "WESTFORK", "100-YR", "0.", "0.5", "0.35", "2."}),
                    valueRecord({"0.", "4.", "0."}), ""}));
}

} // namespace
} // namespace brooklet::test
