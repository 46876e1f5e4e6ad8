// frmVerification as the user meets it: the labelled check boxes in their three columns,
// clicked and toggled from the keyboard, and the section they write.
#include "option_editor_fixture.h"

#include "options/verification_editor.h"

#include <QCheckBox>

namespace brooklet::test {
namespace {

const std::string Header = field("VERIFICATION:", 40);
const std::string DataPrep = field("") + field("DATA PREP");
const std::string Processing = field("") + field("PROCESSING");

// The fields of checks First to Last, "Y " for those set.
std::string fields(int first, int last, std::initializer_list<int> set) {
    std::string text;
    for (int index = first; index <= last; ++index)
        text += std::find(set.begin(), set.end(), index) != set.end() ? "Y " : "  ";
    return text;
}

bool isCheck(int index) {
    return (index >= 1 && index <= 15) || (index >= 21 && index <= 29) || (index >= 31 && index <= 41);
}

class VerificationEditorTest : public OptionEditorTest<frmVerification> {
protected:
    VerificationEditorTest() : OptionEditorTest("frmVerification", 14) {}
    QCheckBox* check(int index) { return element<QCheckBox>("Check1", index); }
    std::vector<int> checked() {
        std::vector<int> set;
        for (int index = 1; index <= 41; ++index)
            if (auto* box = window->findChild<QCheckBox*>(indexedName("Check1", index));
                box && box->isChecked())
                set.push_back(index);
        return set;
    }
};

// ---- Opening and load ------------------------------------------------------------------------

TEST_F(VerificationEditorTest, ShowsALabelledCheckForEveryTraceAndNoneForTheReservedPlaces) {
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_EQ(window->windowTitle(), "Verification   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "VE");
    EXPECT_EQ(window->design().Section, 14);
    for (int index = 0; index <= 42; ++index) {
        auto* box = window->findChild<QCheckBox*>(indexedName("Check1", index));
        auto* text = window->findChild<QLabel*>(indexedName("lblInput", index));
        if (!isCheck(index)) {
            EXPECT_EQ(box, nullptr) << index;
            EXPECT_EQ(text, nullptr) << index;
            continue;
        }
        ASSERT_NE(box, nullptr) << index;
        ASSERT_NE(text, nullptr) << index;
        EXPECT_EQ(box->accessibleName(), text->text()) << index;
        EXPECT_FALSE(box->isChecked()) << index;
        EXPECT_TRUE(box->isVisible()) << index;
    }
    // Every label is the title of its help entry (see the help test below), some with two
    // blanks inside.
    EXPECT_EQ(label(1)->text(), "Alternates Read");
    EXPECT_EQ(label(2)->text(), "Dimensionless Unit  Hydrograph Read");
    EXPECT_EQ(label(15)->text(), "Verification  Read");
    EXPECT_EQ(label(21)->text(), "Storms and Rain Gage Combinations");
    EXPECT_EQ(label(27)->text(), "Array Indexes / Reference Identifiers");
    EXPECT_EQ(label(33)->text(), "Watershed  Analysis Steps");
    EXPECT_EQ(label(41)->text(), "Flow Duration Computations");
    for (int head = 1; head <= 3; ++head)
        EXPECT_EQ(element<QLabel>("lblStatic", head)->text(), "Yes") << head;
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Verification:");
    EXPECT_EQ(button("cmdCancel")->text(), "  No Changes  (Close)");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes   (Close)");
    EXPECT_EQ(focused(), check(1));
}

TEST_F(VerificationEditorTest, EachColumnStandsUnderItsYesAndBesideItsLabels) {
    open();
    const int columns[3][2] = {{1, 15}, {21, 29}, {31, 41}};
    for (int head = 1; head <= 3; ++head) {
        const QRect yes = element<QLabel>("lblStatic", head)->geometry();
        const auto [first, last] = columns[head - 1];
        for (int index = first; index <= last; ++index) {
            const QRect box = check(index)->geometry();
            EXPECT_TRUE(box.left() < yes.right() && box.right() > yes.left()) << index;
            EXPECT_GT(box.top(), yes.top()) << index;
            EXPECT_LT(label(index)->geometry().right(), box.left()) << index;
        }
    }
}

TEST_F(VerificationEditorTest, ReadsBothLinesIntoTheChecks) {
    writeWorkFile(
        {Header, DataPrep + fields(1, 30, {2, 14, 22, 29}), Processing + fields(31, 41, {31, 40}), ""});
    open();
    EXPECT_EQ(checked(), (std::vector<int>{2, 14, 22, 29, 31, 40}));
}

TEST_F(VerificationEditorTest, NamesAndYesAreReadInAnyCase) {
    writeWorkFile({Header, "          Data Prep y y", "          processing    y"});
    open();
    EXPECT_EQ(checked(), (std::vector<int>{1, 2, 33}));
}

// ---- Checks and Accept -------------------------------------------------------------------------

TEST_F(VerificationEditorTest, AcceptWritesTheChecksInTheirColumnsAndAnEmptyLine) {
    open();
    for (int index : {1, 15, 21, 29, 31, 41})
        click(check(index));
    accept();
    EXPECT_EQ(workFileBytes(),
              "VERIFICATION:                           \r\n"
              "          DATA PREP Y                           Y           Y               Y   \r\n"
              "          PROCESSINGY                   Y \r\n"
              "\r\n");
    EXPECT_TRUE(session().DataChanged);
    EXPECT_TRUE(windowClosed());
}

TEST_F(VerificationEditorTest, OnlyProcessingChecksWriteNoDataPrepLine) {
    open();
    click(check(36));
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, Processing + fields(31, 41, {36}), ""}));
}

TEST_F(VerificationEditorTest, OnlyDataPrepChecksWriteNoProcessingLine) {
    open();
    click(check(22));
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, DataPrep + fields(1, 30, {22}), ""}));
}

TEST_F(VerificationEditorTest, AYesAtAReservedPlaceIsDroppedAndItsColumnKept) {
    writeWorkFile({Header, DataPrep + fields(1, 30, {15, 16, 20, 21, 30})});
    open();
    EXPECT_EQ(checked(), (std::vector<int>{15, 21}));
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, DataPrep + fields(1, 30, {15, 21}), ""}));
}

TEST_F(VerificationEditorTest, AClickClearsACheckAgainAndNoCheckWritesNothing) {
    startWithSection({Header, DataPrep + fields(1, 30, {5}), ""});
    open();
    click(check(5));
    EXPECT_FALSE(check(5)->isChecked());
    acceptExpectingEmptySection();
}

TEST_F(VerificationEditorTest, TheChecksAreSetFromTheKeyboard) {
    open();
    QTest::keyClick(check(1), Qt::Key_Space);
    QTest::keyClick(check(1), Qt::Key_Tab);
    QTest::keyClick(window->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(checked(), (std::vector<int>{1, 2}));
}

TEST_F(VerificationEditorTest, NoChangesWritesNothing) {
    open();
    click(check(9));
    cancelExpectingNothingWritten("");
}

// ---- Help --------------------------------------------------------------------------------------

TEST_F(VerificationEditorTest, EveryLabelShowsItsEntryOfTheShippedHelp) {
    open();
    for (int index = 1; index <= 41; ++index) {
        if (!isCheck(index))
            continue;
        // The entry's title is the label with its runs of blanks taken as one.
        const std::string title = toBytes(label(index)->text().simplified());
        EXPECT_EQ(helpOf(label(index)).rfind(std::string(10, ' ') + title + " \r\n", 0), 0u) << index;
        EXPECT_EQ(session().HelpShown, index) << index;
    }
    click(label(41));
    EXPECT_FALSE(helpBox()->isVisible());
}

TEST_F(VerificationEditorTest, TheHeaderShowsTheWindowsEntry) {
    open();
    EXPECT_EQ(
        helpOf(control<QLabel>(window, "lblHeader")).rfind(std::string(10, ' ') + "Verification \r\n", 0),
        0u);
    EXPECT_TRUE(helpBox()->isVisible());
    EXPECT_EQ(session().HelpShown, 0);
    click(control<QLabel>(window, "lblHeader"));
    EXPECT_FALSE(helpBox()->isVisible());
}

} // namespace
} // namespace brooklet::test
