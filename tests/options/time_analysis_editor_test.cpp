// frmTimeA as the user meets it: the two rows of four boxes, their range checks, the row that
// closes up behind a blank box, the focus that keeps holes out of a row, and Accept.
#include "option_editor_fixture.h"

#include "options/identifier_record.h"
#include "options/time_analysis_editor.h"

namespace brooklet::test {
namespace {

const std::string Header = field("TIME ANALYSIS:", 40);

std::string row(const std::string& name, std::vector<std::string> levels) {
    levels.resize(4);
    std::string line = field("") + field(name);
    for (const std::string& level : levels)
        line += field(level);
    return line;
}

class TimeAnalysisEditorTest : public OptionEditorTest<frmTimeA> {
protected:
    TimeAnalysisEditorTest() : OptionEditorTest("frmTimeA", 12) {}
    std::vector<QString> texts(int first, int last) {
        std::vector<QString> result;
        for (int index = first; index <= last; ++index)
            result.push_back(box(index)->text());
        return result;
    }
};

// ---- Opening and load ------------------------------------------------------------------------

TEST_F(TimeAnalysisEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_EQ(window->windowTitle(), "Time Analysis   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "TA");
    EXPECT_EQ(label(0)->text(), "Flow");
    EXPECT_EQ(label(1)->text(), "Maximum Flow %:");
    EXPECT_EQ(label(4)->text(), "Elevation");
    EXPECT_EQ(label(5)->text(), "Elevation Increment:");
    EXPECT_EQ(button("cmdCancel")->text(), "  No Changes   (Close)");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes   (Close)");
    for (int index = 1; index <= 8; ++index) {
        EXPECT_EQ(box(index)->text(), "") << index;
        EXPECT_EQ(background(box(index)), UntouchedColour) << index;
    }
    EXPECT_EQ(box(1)->accessibleName(), "Maximum Flow %: 1");
    EXPECT_EQ(box(8)->accessibleName(), "Elevation Increment: 4");
    EXPECT_EQ(focused(), box(1));
}

TEST_F(TimeAnalysisEditorTest, TheElevationBoxesShowTheLengthWordOfTheInputUnits) {
    // The identifier editor sets the words: English first, then metric.
    context->windows.ShowWindowAtOrigin("frmFlume");
    open();
    for (int index = 5; index <= 8; ++index)
        EXPECT_EQ(element<QLabel>("lblInUnit", index)->text(), "ft") << index;
    cancel();
    ASSERT_TRUE(windowClosed());
    SetInputUnitWords(session(), false);
    open();
    for (int index = 5; index <= 8; ++index)
        EXPECT_EQ(element<QLabel>("lblInUnit", index)->text(), "m") << index;
}

TEST_F(TimeAnalysisEditorTest, ReadsTheFlowAndElevationLinesIntoTheirRows) {
    writeWorkFile({Header, row("ELEVATION", {"0.5", "1."}), row("FLOW", {"10.", "25.", "50.", "90."})});
    open();
    EXPECT_EQ(texts(1, 4), (std::vector<QString>{"10.", "25.", "50.", "90."}));
    EXPECT_EQ(texts(5, 8), (std::vector<QString>{"0.5", "1.", "", ""}));
}

TEST_F(TimeAnalysisEditorTest, ALineWhoseNameIsNotExactlyFlowIsPassedOver) {
    writeWorkFile({Header, row("Flow", {"10."}), row("ELEVATION", {"3."})});
    open();
    EXPECT_EQ(box(1)->text(), "");
    EXPECT_EQ(box(5)->text(), "3.");
}

// ---- Checks ------------------------------------------------------------------------------------

TEST_F(TimeAnalysisEditorTest, AHundredPassesForAPercentageAndJustAboveOrBelowTheRangeDoNot) {
    open();
    expectEntered(1, "100", AcceptedColour, 2);
    expectEntered(2, "100.01", RefusedColour, 2);
    box(2)->clear();
    enter(2, "0.0009");
    EXPECT_EQ(background(box(2)), RefusedColour);
    EXPECT_EQ(window->focusMovedTo(), 2);
    box(2)->clear();
    expectEntered(2, "0.001", AcceptedColour, 3);
}

TEST_F(TimeAnalysisEditorTest, AnElevationIncrementMustBeAboveZero) {
    open();
    expectEntered(5, "0", RefusedColour, 5);
    box(5)->clear();
    expectEntered(5, "0.1", AcceptedColour, 6);
    expectEntered(6, "abc", RefusedColour, 6);
}

TEST_F(TimeAnalysisEditorTest, ARefusedFirstBoxKeepsTheFocus) {
    open();
    enter(1, "-5");
    EXPECT_EQ(window->focusMovedTo(), 1);
    EXPECT_EQ(focused(), box(1));
}

// ---- Closing up --------------------------------------------------------------------------------

TEST_F(TimeAnalysisEditorTest, ABlankMiddleBoxLeftWithTabClosesUpTheRow) {
    open();
    enter(1, "10");
    enter(2, "20");
    enter(3, "200");
    ASSERT_EQ(background(box(3)), RefusedColour);
    box(3)->clear();
    enter(3, "30");
    enter(4, "40");
    // The second box is emptied with the mouse and left with Tab.
    box(2)->setFocus(Qt::MouseFocusReason);
    box(2)->selectAll();
    QTest::keyClick(box(2), Qt::Key_Delete);
    press(2, Qt::Key_Tab);
    EXPECT_EQ(texts(1, 4), (std::vector<QString>{"10", "30", "40", ""}));
    EXPECT_EQ(background(box(2)), AcceptedColour);
    EXPECT_EQ(background(box(3)), AcceptedColour);
    EXPECT_EQ(background(box(4)), UntouchedColour);
    EXPECT_EQ(focused(), box(3));
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, row("FLOW", {"10.", "30.", "40."})}));
}

TEST_F(TimeAnalysisEditorTest, ClosingUpCarriesTheColourOfEachBoxAlong) {
    writeWorkFile({Header, row("ELEVATION", {"1.", "2.", "3.", "4."})});
    open();
    setBackground(box(8), RefusedColour);
    box(6)->setFocus(Qt::MouseFocusReason);
    box(6)->clear();
    press(6, Qt::Key_Return);
    EXPECT_EQ(texts(5, 8), (std::vector<QString>{"1.", "3.", "4.", ""}));
    // The box left takes the colour of its check; the red of the last box moves up with its text.
    EXPECT_EQ(background(box(6)), AcceptedColour);
    EXPECT_EQ(background(box(7)), RefusedColour);
    EXPECT_EQ(background(box(8)), UntouchedColour);
    EXPECT_EQ(texts(1, 4), (std::vector<QString>{"", "", "", ""}));
}

TEST_F(TimeAnalysisEditorTest, ABlankLastBoxOfARowOnlyEmptiesItself) {
    writeWorkFile({Header, row("FLOW", {"10.", "20.", "30.", "40."})});
    open();
    box(4)->setFocus(Qt::MouseFocusReason);
    box(4)->setText("  ");
    press(4, Qt::Key_Tab);
    EXPECT_EQ(texts(1, 4), (std::vector<QString>{"10.", "20.", "30.", ""}));
    EXPECT_EQ(focused(), box(5));
}

// ---- Focus -------------------------------------------------------------------------------------

TEST_F(TimeAnalysisEditorTest, TheFocusGoesThroughBothRowsAndFromTheLastBoxBackToTheFirst) {
    open();
    for (int index = 1; index <= 8; ++index) {
        enter(index, QString::number(index * 10));
        EXPECT_EQ(window->focusMovedTo(), index == 8 ? 1 : index + 1) << index;
    }
    EXPECT_EQ(focused(), box(1));
}

TEST_F(TimeAnalysisEditorTest, TabInABlankFirstFlowBoxGoesOnToTheElevations) {
    open();
    press(1, Qt::Key_Tab);
    EXPECT_EQ(window->focusMovedTo(), 2);
    EXPECT_EQ(focused(), box(5));
}

TEST_F(TimeAnalysisEditorTest, ABoxBehindABlankOneHandsTheFocusToTheOtherRow) {
    open();
    enter(1, "10");
    click(box(3));
    EXPECT_EQ(focused(), box(5));
    box(4)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(focused(), box(5));
    enter(5, "1");
    EXPECT_EQ(focused(), box(6));
    press(6, Qt::Key_Tab);
    // Box 6 left blank sends the focus to box 7, which hands it on to the flows.
    EXPECT_EQ(window->focusMovedTo(), 7);
    EXPECT_EQ(focused(), box(1));
    click(box(2));
    EXPECT_EQ(focused(), box(2));
}

TEST_F(TimeAnalysisEditorTest, TheFirstBoxOfEachRowTakesTheFocusAlways) {
    open();
    click(box(5));
    EXPECT_EQ(focused(), box(5));
    click(box(1));
    EXPECT_EQ(focused(), box(1));
}

// ---- Accept ------------------------------------------------------------------------------------

TEST_F(TimeAnalysisEditorTest, AcceptWritesBothLinesColumnForColumn) {
    open();
    enter(1, "10");
    enter(2, "25");
    enter(3, "50.5");
    enter(4, "100");
    enter(5, "0.5");
    enter(6, "1");
    accept();
    EXPECT_EQ(workFileBytes(), "TIME ANALYSIS:                          \r\n"
                               "          FLOW      10.       25.       50.5      100.      \r\n"
                               "          ELEVATION 0.5       1.                            \r\n");
    EXPECT_TRUE(session().DataChanged);
    EXPECT_TRUE(windowClosed());
}

TEST_F(TimeAnalysisEditorTest, AThirdBoxFilledWhileTheFirstIsBlankWritesNoFlowLine) {
    open();
    enter(1, "10");
    enter(2, "20");
    enter(3, "30");
    enter(5, "2");
    // The first box is emptied with the mouse, without Tab, so its row does not close up.
    box(1)->setFocus(Qt::MouseFocusReason);
    box(1)->selectAll();
    QTest::keyClick(box(1), Qt::Key_Backspace);
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, row("ELEVATION", {"2."})}));
}

TEST_F(TimeAnalysisEditorTest, BothFirstBoxesEmptyWriteNothingAndTheXGoes) {
    startWithSection({Header, row("FLOW", {"10."})});
    open();
    box(1)->clear();
    acceptExpectingEmptySection();
}

TEST_F(TimeAnalysisEditorTest, AcceptWritesRedValuesAsTheyStand) {
    open();
    enter(1, "150");
    ASSERT_EQ(background(box(1)), RefusedColour);
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, row("FLOW", {"150."})}));
}

TEST_F(TimeAnalysisEditorTest, NoChangesWritesNothing) {
    writeWorkFile({Header, row("FLOW", {"10."})});
    const std::string before = workFileBytes();
    open();
    enter(2, "20");
    cancelExpectingNothingWritten(before);
}

// ---- Help --------------------------------------------------------------------------------------

TEST_F(TimeAnalysisEditorTest, TheFourLabelsShowTheirEntriesOfTheShippedHelp) {
    open();
    EXPECT_EQ(helpOf(label(0)).rfind("          Time Analysis \r\n", 0), 0u);
    EXPECT_EQ(session().HelpShown, 0);
    EXPECT_EQ(helpOf(label(1)).rfind("          Maximum Flow % \r\n", 0), 0u);
    EXPECT_EQ(helpOf(label(4)).rfind("          Elevation \r\n", 0), 0u);
    EXPECT_NE(helpOf(label(5)).find("Range - greater than 0, in ft"), std::string::npos);
    click(label(5));
    EXPECT_FALSE(helpBox()->isVisible());
}

TEST_F(TimeAnalysisEditorTest, F1InABoxShowsTheHelpOfItsRow) {
    open();
    box(7)->setFocus(Qt::MouseFocusReason);
    press(7, Qt::Key_F1);
    EXPECT_EQ(session().HelpShown, 5);
    enter(1, "5");
    press(2, Qt::Key_F1);
    EXPECT_EQ(session().HelpShown, 1);
}

} // namespace
} // namespace brooklet::test
