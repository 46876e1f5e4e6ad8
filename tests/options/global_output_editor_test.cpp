// frmGlobal as the user meets it: three boxes with their checks, the Yes/No pairs for
// sub-areas and reaches, and the section they write.
#include "option_editor_fixture.h"

#include <QAccessible>

#include "options/global_output_editor.h"
#include "options/identifier_record.h"

namespace brooklet::test {
namespace {

const std::string Header = field("GLOBAL OUTPUT:", 40);

class GlobalOutputEditorTest : public OptionEditorTest<frmGlobal> {
protected:
    GlobalOutputEditorTest() : OptionEditorTest("frmGlobal", 4) {}
    // The codes the pairs of one column show, "Y" for Yes and "N" for No.
    std::string codes(const char* array, int pairs) {
        std::string shown;
        for (int k = 0; k < pairs; ++k) {
            const bool yes = option(array, 2 * k)->isChecked();
            const bool no = option(array, 2 * k + 1)->isChecked();
            shown += yes && !no ? "Y" : !yes && no ? "N" : "?";
        }
        return shown;
    }
};

// ---- Opening and load ------------------------------------------------------------------------

TEST_F(GlobalOutputEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    SetInputUnitWords(session(), true);
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_EQ(window->windowTitle(), "Global Output   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "GO");
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Global Output:");
    const char* captions[] = {"",
                              "Hydrograph Print Precision:",
                              "Minimum Hydrograph Display Flow:",
                              "Print Time Increment:",
                              "Default Peak Output Code:",
                              "Default Hydrograph Output Code:",
                              "Default Peak Summary Output Code:",
                              "Default Time Analysis Output Code:",
                              "Default Hydrograph File Code:",
                              "Default Flood Economics File Code:"};
    for (int index = 1; index <= 9; ++index)
        EXPECT_EQ(label(index)->text(), captions[index]) << index;
    EXPECT_EQ(element<QLabel>("lblInUnit", 2)->text(), "cfs");
    EXPECT_EQ(element<QLabel>("lblInUnit", 3)->text(), "hr");
    EXPECT_EQ(element<QLabel>("lblStatic", 1)->text(), "Sub-Area");
    EXPECT_EQ(element<QLabel>("lblStatic", 2)->text(), "Reach");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes   (Close)");
    EXPECT_EQ(button("cmdCancel")->text(), "  No Changes  (Close)");
    for (int index = 0; index <= 11; ++index) {
        EXPECT_EQ(option("Opt2", index)->text(), index % 2 == 0 ? "Yes" : "No") << index;
        if (index <= 9) {
            EXPECT_EQ(option("Opt1", index)->text(), index % 2 == 0 ? "Yes" : "No") << index;
        }
    }
    EXPECT_EQ(window->findChild<QRadioButton*>("Opt1(10)"), nullptr);
    EXPECT_EQ(codes("Opt1", 5), "NNNNN");
    EXPECT_EQ(codes("Opt2", 6), "NNNNNN");
    for (int index = 1; index <= 3; ++index) {
        EXPECT_EQ(box(index)->text(), "") << index;
        EXPECT_EQ(background(box(index)), UntouchedColour) << index;
    }
    EXPECT_EQ(focused(), box(1));
}

TEST_F(GlobalOutputEditorTest, ControlsCarryTheNamesAScreenReaderSpeaks) {
    open();
    EXPECT_EQ(box(2)->accessibleName(), "Minimum Hydrograph Display Flow:");
    EXPECT_EQ(option("Opt1", 2)->accessibleName(), "Yes");
    EXPECT_EQ(option("Opt1", 2)->accessibleDescription(), "Sub-Area Default Hydrograph Output Code");
    EXPECT_EQ(option("Opt2", 11)->accessibleDescription(), "Reach Default Flood Economics File Code");
    // Each pair is a group named for the column and the code.
    QAccessibleInterface* group = QAccessible::queryAccessibleInterface(option("Opt1", 2))->parent();
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->role(), QAccessible::Grouping);
    EXPECT_EQ(group->text(QAccessible::Name), "Sub-Area Default Hydrograph Output Code");
    group = QAccessible::queryAccessibleInterface(option("Opt2", 11))->parent();
    EXPECT_EQ(group->text(QAccessible::Name), "Reach Default Flood Economics File Code");
}

TEST_F(GlobalOutputEditorTest, TheMinimumFlowShowsTheFlowWordOfTheInputUnits) {
    SetInputUnitWords(session(), false);
    open();
    EXPECT_EQ(element<QLabel>("lblInUnit", 2)->text(), "cu m/sec");
}

TEST_F(GlobalOutputEditorTest, ReadsTheSecondLineIntoTheControls) {
    writeWorkFile({Header, "          2         1.        0.5       YNYNN     YNYYNN"});
    open();
    EXPECT_EQ(box(1)->text(), "2");
    EXPECT_EQ(box(2)->text(), "1.");
    EXPECT_EQ(box(3)->text(), "0.5");
    EXPECT_EQ(codes("Opt1", 5), "YNYNN");
    EXPECT_EQ(codes("Opt2", 6), "YNYYNN");
}

TEST_F(GlobalOutputEditorTest, ALowerCaseYInACodeColumnCountsAsYes) {
    writeWorkFile({Header, field("", 40) + "yNnNy     nynyNy"});
    open();
    EXPECT_EQ(codes("Opt1", 5), "YNNNY");
    EXPECT_EQ(codes("Opt2", 6), "NYNYNY");
}

// ---- Checks and focus --------------------------------------------------------------------------

TEST_F(GlobalOutputEditorTest, GoodValuesTurnCyanAndTheFocusGoesRoundTheThreeBoxes) {
    open();
    expectEntered(1, "3", AcceptedColour, 2);
    expectEntered(2, "0", AcceptedColour, 3);
    type(3, "0.01");
    press(3, Qt::Key_Enter);
    EXPECT_EQ(background(box(3)), AcceptedColour);
    EXPECT_EQ(window->focusMovedTo(), 1);
    EXPECT_EQ(focused(), box(1));
}

TEST_F(GlobalOutputEditorTest, PrecisionFourTurnsRedOnTabButIsWrittenOnAccept) {
    open();
    enter(1, "4");
    EXPECT_EQ(background(box(1)), RefusedColour);
    EXPECT_EQ(window->focusMovedTo(), 1);
    EXPECT_EQ(focused(), box(1));
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, field("") + field("4") + field("", 20) + "NNNNN     NNNNNN"}));
}

TEST_F(GlobalOutputEditorTest, ANegativeFlowAndATooSmallTimeIncrementAreRefused) {
    open();
    enter(1, "-1");
    EXPECT_EQ(background(box(1)), RefusedColour);
    expectEntered(2, "-0.5", RefusedColour, 2);
    expectEntered(3, "0.009", RefusedColour, 3);
}

TEST_F(GlobalOutputEditorTest, BlankBoxesPassTheirChecks) {
    open();
    for (int index = 1; index <= 3; ++index) {
        box(index)->setFocus();
        press(index, Qt::Key_Tab);
        EXPECT_EQ(background(box(index)), AcceptedColour) << index;
    }
}

TEST_F(GlobalOutputEditorTest, SubAreaOptionsReachedByTheKeyboardHandTheFocusToTheFirstBox) {
    open();
    box(3)->setFocus();
    option("Opt1", 7)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(focused(), box(1));
    option("Opt2", 7)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(focused(), option("Opt2", 7));
    click(option("Opt1", 4));
    EXPECT_EQ(focused(), option("Opt1", 4));
}

// ---- Options and Accept ------------------------------------------------------------------------

TEST_F(GlobalOutputEditorTest, EachPairIsChosenOnItsOwn) {
    open();
    click(option("Opt1", 0));
    click(option("Opt2", 2));
    click(option("Opt2", 10));
    EXPECT_EQ(codes("Opt1", 5), "YNNNN");
    EXPECT_EQ(codes("Opt2", 6), "NYNNNY");
    click(option("Opt2", 11));
    EXPECT_EQ(codes("Opt2", 6), "NYNNNN");
}

TEST_F(GlobalOutputEditorTest, AcceptWritesBothLinesColumnForColumn) {
    open();
    enter(1, "2");
    enter(2, "1");
    enter(3, "0.5");
    for (int index : {0, 4})
        click(option("Opt1", index));
    for (int index : {0, 4, 6})
        click(option("Opt2", index));
    accept();
    EXPECT_EQ(workFileBytes(), "GLOBAL OUTPUT:                          \r\n"
                               "          2         1.        0.5       YNYNN     YNYYNN\r\n");
    EXPECT_TRUE(session().DataChanged);
    EXPECT_TRUE(windowClosed());
}

TEST_F(GlobalOutputEditorTest, OneReachCodeAtYesWithTheBoxesBlankWritesTheSection) {
    open();
    click(option("Opt2", 10));
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, field("", 40) + "NNNNN     NNNNNY"}));
}

TEST_F(GlobalOutputEditorTest, AllOptionsAtNoAndAllBoxesBlankLeaveTheSectionEmptyAndTheXGoes) {
    startWithSection({Header, "          2         1.        0.5       YNNNN     NNNNNN"});
    open();
    click(option("Opt1", 1));
    for (int index = 1; index <= 3; ++index)
        box(index)->clear();
    acceptExpectingEmptySection();
}

TEST_F(GlobalOutputEditorTest, NoChangesWritesNothing) {
    open();
    click(option("Opt1", 0));
    enter(1, "1");
    cancelExpectingNothingWritten("");
}

TEST_F(GlobalOutputEditorTest, AcceptedCodesComeBackOnTheNextOpening) {
    open();
    click(option("Opt1", 8));
    click(option("Opt2", 6));
    enter(3, "0.25");
    reopen();
    EXPECT_EQ(codes("Opt1", 5), "NNNNY");
    EXPECT_EQ(codes("Opt2", 6), "NNNYNN");
    EXPECT_EQ(box(3)->text(), "0.25");
}

// ---- Help --------------------------------------------------------------------------------------

TEST_F(GlobalOutputEditorTest, EveryLabelShowsItsEntryOfTheShippedHelp) {
    SetInputUnitWords(session(), true);
    open();
    EXPECT_EQ(helpOf(control<QLabel>(window, "lblHeader")).rfind("          Global Output \r\n", 0), 0u);
    for (int index = 1; index <= 9; ++index) {
        const std::string title = toBytes(label(index)->text()).substr(0, label(index)->text().size() - 1);
        EXPECT_EQ(helpOf(label(index)).rfind(std::string(10, ' ') + title + " \r\n", 0), 0u) << index;
        EXPECT_EQ(session().HelpShown, index);
    }
    click(label(2));
    EXPECT_NE(helpBoxText(helpBox()).find("Range - 0 or greater, in cfs"), std::string::npos);
}

} // namespace
} // namespace brooklet::test
