// frmDurInc as the user meets it: opened from the main list, typed into, tabbed through, its
// options clicked, accepted and cancelled, with the work file compared byte for byte.
#include "option_editor_fixture.h"

#include "options/duration_increment_editor.h"

namespace brooklet::test {
namespace {

const std::string Header = field("DURATION INCREMENT:", 40);

std::string record(const std::string& unit, const std::string& first, const std::string& second,
                   const std::string& third) {
    return Header + field(unit) + field(first) + field(second) + field(third);
}

class DurationIncrementEditorTest : public OptionEditorTest<frmDurInc> {
protected:
    DurationIncrementEditorTest() : OptionEditorTest("frmDurInc", 3) {}
    QLabel* unitLabel(int index) { return element<QLabel>("lblUnits", index); }
    std::vector<QString> unitWords() {
        return {unitLabel(2)->text(), unitLabel(3)->text(), unitLabel(4)->text()};
    }
};

const std::vector<QString> Hours = {"hr", "hr", "hr"};
const std::vector<QString> Days = {"days", "days", "days"};

// ---- Opening and load ------------------------------------------------------------------------

TEST_F(DurationIncrementEditorTest, TheMainListOpensTheWindowAtTheTopLeft) {
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_EQ(window->windowTitle(), "Duration Increment   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "DI");
    EXPECT_EQ(window->design().Section, 3);
}

TEST_F(DurationIncrementEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    open();
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Duration Increment:");
    EXPECT_EQ(label(1)->text(), "Duration Units:");
    EXPECT_EQ(label(2)->text(), "1st Duration:");
    EXPECT_EQ(label(3)->text(), "2nd Duration:");
    EXPECT_EQ(label(4)->text(), "3rd Duration:");
    EXPECT_EQ(option("opt1", 0)->text(), "Hours");
    EXPECT_EQ(option("opt1", 1)->text(), "Days");
    EXPECT_TRUE(option("opt1", 0)->isChecked());
    EXPECT_FALSE(option("opt1", 1)->isChecked());
    EXPECT_EQ(button("cmdCancel")->text(), "   No Changes  (Close)");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes (Close)");
    for (int index : {2, 3, 4}) {
        EXPECT_EQ(box(index)->text(), "") << index;
        EXPECT_EQ(background(box(index)), UntouchedColour) << index;
    }
    EXPECT_EQ(unitWords(), Hours);
    EXPECT_FALSE(helpBox()->isVisible());
    EXPECT_EQ(focused(), box(2));
}

TEST_F(DurationIncrementEditorTest, ControlsCarryTheNamesAScreenReaderSpeaks) {
    open();
    EXPECT_EQ(box(2)->accessibleName(), "1st Duration:");
    EXPECT_EQ(box(4)->accessibleName(), "3rd Duration:");
    EXPECT_EQ(option("opt1", 1)->accessibleName(), "Days");
}

TEST_F(DurationIncrementEditorTest, ReadsTheRecordIntoTheControls) {
    writeWorkFile({record("Hours", "1.", "6.", "24.")});
    open();
    EXPECT_TRUE(option("opt1", 0)->isChecked());
    EXPECT_EQ(box(2)->text(), "1.");
    EXPECT_EQ(box(3)->text(), "6.");
    EXPECT_EQ(box(4)->text(), "24.");
}

TEST_F(DurationIncrementEditorTest, DaysInAnyCaseIsReadAsDaysButTheLabelsKeepHours) {
    writeWorkFile({record("days", "2.", "", "")});
    open();
    EXPECT_TRUE(option("opt1", 1)->isChecked());
    EXPECT_EQ(unitWords(), Hours);
}

TEST_F(DurationIncrementEditorTest, AnyOtherUnitIsReadAsHours) {
    writeWorkFile({record("Day", "2.", "", "")});
    open();
    EXPECT_TRUE(option("opt1", 0)->isChecked());
}

// ---- Options -----------------------------------------------------------------------------------

TEST_F(DurationIncrementEditorTest, AClickOnAnOptionPutsItsWordOnTheThreeLabels) {
    open();
    click(option("opt1", 1));
    EXPECT_TRUE(option("opt1", 1)->isChecked());
    EXPECT_FALSE(option("opt1", 0)->isChecked());
    EXPECT_EQ(unitWords(), Days);
    click(option("opt1", 0));
    EXPECT_EQ(unitWords(), Hours);
}

TEST_F(DurationIncrementEditorTest, OptionsReachedByTheKeyboardHandTheFocusToTheFirstDuration) {
    open();
    type(4, "3");
    option("opt1", 1)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(focused(), box(2));
    option("opt1", 0)->setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(focused(), box(2));
    click(option("opt1", 1));
    EXPECT_EQ(focused(), option("opt1", 1));
}

// ---- Tab and Enter -----------------------------------------------------------------------------

TEST_F(DurationIncrementEditorTest, GoodDurationsTurnCyanAndTheFocusGoesRoundTheThreeBoxes) {
    open();
    expectEntered(2, "1", AcceptedColour, 3);
    type(3, "0");
    press(3, Qt::Key_Return);
    EXPECT_EQ(background(box(3)), AcceptedColour);
    EXPECT_EQ(focused(), box(4));
    enter(4, "24.5");
    EXPECT_EQ(background(box(4)), AcceptedColour);
    EXPECT_EQ(window->focusMovedTo(), 2);
    EXPECT_EQ(focused(), box(2));
}

TEST_F(DurationIncrementEditorTest, ANegativeOrNonNumericDurationTurnsRedAndKeepsTheFocus) {
    open();
    enter(3, "-1");
    EXPECT_EQ(background(box(3)), RefusedColour);
    EXPECT_EQ(window->focusMovedTo(), 3);
    EXPECT_EQ(focused(), box(3));
    box(3)->clear();
    enter(3, "six");
    EXPECT_EQ(background(box(3)), RefusedColour);
    enter(2, "x");
    EXPECT_EQ(window->focusMovedTo(), 2);
    EXPECT_EQ(focused(), box(2));
}

TEST_F(DurationIncrementEditorTest, ABlankBoxPassesItsCheck) {
    open();
    box(2)->setFocus();
    press(2, Qt::Key_Tab);
    EXPECT_EQ(background(box(2)), AcceptedColour);
    EXPECT_EQ(focused(), box(3));
}

TEST_F(DurationIncrementEditorTest, LeavingABoxWithTheMouseChecksNothing) {
    open();
    type(2, "-4");
    click(box(3));
    EXPECT_EQ(background(box(2)), UntouchedColour);
}

// ---- Accept and No Changes ---------------------------------------------------------------------

TEST_F(DurationIncrementEditorTest, AcceptWritesTheLineColumnForColumn) {
    open();
    enter(2, "1");
    enter(3, "6.5");
    enter(4, "24");
    accept();
    EXPECT_EQ(workFileBytes(),
              "DURATION INCREMENT:                     Hours     1.        6.5       24.       \r\n");
    EXPECT_TRUE(session().DataChanged);
    EXPECT_TRUE(windowClosed());
}

TEST_F(DurationIncrementEditorTest, ADurationInDaysIsWrittenAsDaysAndReadBackWithHoursOnTheLabels) {
    open();
    click(option("opt1", 1));
    enter(2, "3");
    accept();
    EXPECT_EQ(workFileBytes(), crlf({record("Days", "3.", "", "")}));
    ASSERT_TRUE(windowClosed());
    open();
    EXPECT_TRUE(option("opt1", 1)->isChecked());
    EXPECT_EQ(unitWords(), Hours);
    click(option("opt1", 1));
    EXPECT_EQ(unitWords(), Days);
}

TEST_F(DurationIncrementEditorTest, AcceptWritesARedValueAsItStands) {
    open();
    enter(2, "-2");
    ASSERT_EQ(background(box(2)), RefusedColour);
    accept();
    EXPECT_EQ(workFileBytes(), crlf({record("Hours", "-2.", "", "")}));
}

TEST_F(DurationIncrementEditorTest, ABoxTakesNoMoreCharactersThanItsColumnsSoNoColumnShifts) {
    open();
    EXPECT_EQ(box(3)->maxLength(), 10);
    type(3, "12345678901");
    EXPECT_EQ(box(3)->text(), "1234567890");
    type(4, "5");
    accept();
    EXPECT_EQ(workFileBytes(), crlf({record("Hours", "", "1234567890", "5.")}));
    EXPECT_TRUE(windowClosed());
}

TEST_F(DurationIncrementEditorTest, AcceptWithTheThreeBoxesBlankWritesNothingAndTheXGoes) {
    startWithSection({record("Days", "1.", "", "")});
    open();
    click(option("opt1", 1));
    box(2)->setText("   ");
    acceptExpectingEmptySection();
}

TEST_F(DurationIncrementEditorTest, NoChangesWritesNothing) {
    writeWorkFile({record("Hours", "1.", "", "")});
    const std::string before = workFileBytes();
    open();
    click(option("opt1", 1));
    enter(2, "9");
    cancelExpectingNothingWritten(before);
}

// ---- Help --------------------------------------------------------------------------------------

TEST_F(DurationIncrementEditorTest, EveryLabelShowsItsEntryOfTheShippedHelp) {
    open();
    EXPECT_EQ(helpOf(control<QLabel>(window, "lblHeader")).rfind("          Duration Increment \r\n", 0), 0u);
    EXPECT_EQ(session().HelpShown, 0);
    const char* titles[] = {"", "Duration Units", "1st Duration", "2nd Duration", "3rd Duration"};
    for (int index = 1; index <= 4; ++index) {
        const std::string text = helpOf(label(index));
        EXPECT_EQ(text.rfind(std::string(10, ' ') + titles[index] + " \r\n", 0), 0u) << index;
        EXPECT_EQ(session().HelpShown, index);
    }
    click(label(4));
    EXPECT_FALSE(helpBox()->isVisible());
}

} // namespace
} // namespace brooklet::test
