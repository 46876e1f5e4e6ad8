// frmFlume as the user meets it: opened by the File commands, typed into, tabbed through,
// clicked, accepted and cancelled, with the work file, colours, focus, unit words and help box
// checked after each step.
#include "support/ui_fixture.h"

#include "editing/help_view.h"
#include "options/identifier_editor.h"
#include "session/text_file.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

namespace brooklet::test {
namespace {

const std::string Header = "Brooklet: Version 1.0                   "; // 40 columns

std::string field(std::string text) {
    text.resize(10, ' ');
    return text;
}

// Line 1 of the section from its four fields.
std::string firstLine(const std::string& input, const std::string& output, const std::string& minimum,
                      const std::string& screen) {
    return Header + field(input) + field(output) + field(minimum) + field(screen);
}

// A small help list with one entry for each label of the window, so a test can state the whole
// text of the box.
const std::string HelpList =
    "FL|Brooklet Identifier - Identification of the run.||\r\n"
    "FL1|Input Units Code - Units of the input.|English or Metric|\r\n"
    "FL3|Minimum Hydrograph Value - Smallest flow.|0 or more cfs|0 or more cu m/sec|\r\n"
    "FL4|Screen Output Code - Never shown.|x|\r\n"
    "FL5|Watershed Description - Two lines.|1 to 80 characters||\r\n";

std::string helpEntry(const std::string& title, const std::string& description, const std::string& range) {
    return std::string(10, ' ') + title + " \r\n" + description +
           (range.empty() ? "" : "\r\n          Range - " + range) + "\r\n\r\n";
}

class IdentifierEditorTest : public UiTest {
protected:
    void SetUp() override { startMain(); }

    // Opens the window as the section list does, and makes it the active window.
    frmFlume* open() {
        window = qobject_cast<frmFlume*>(context->windows.ShowWindowAtOrigin("frmFlume"));
        EXPECT_NE(window, nullptr);
        if (window)
            activate(window);
        return window;
    }
    static void activate(QWidget* w) {
        w->show();
        w->activateWindow();
        QApplication::setActiveWindow(w);
    }
    // The window closed by itself; its deletion is left to the event loop.
    bool windowClosed() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return context->windows.loaded("frmFlume") == nullptr;
    }

    QLineEdit* box(int index) { return control<QLineEdit>(window, indexedName("txtInp", index)); }
    QRadioButton* option(const char* array, int index) {
        return control<QRadioButton>(window, indexedName(array, index));
    }
    HelpLabel* label(int index) { return control<HelpLabel>(window, indexedName("lblInput", index)); }
    QLabel* unitLabel() { return control<QLabel>(window, "lblInUnit(3)"); }
    QPlainTextEdit* helpBox() { return control<QPlainTextEdit>(window, "txtHelp"); }
    QPushButton* button(const char* name) { return control<QPushButton>(window, name); }

    // Types into a box as the user does, the box having the focus.
    void type(int index, const QString& text) {
        box(index)->setFocus();
        QTest::keyClicks(box(index), text);
    }
    void press(int index, Qt::Key key) { QTest::keyClick(box(index), key); }
    void click(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(4, 4)); }
    void accept() { click(button("cmdFinished")); }
    void cancel() { click(button("cmdCancel")); }

    void writeWorkFile(const std::vector<std::string>& lines) { writeBytes(workFile(13), crlf(lines)); }
    std::string workFileBytes() { return bytesOf(workFile(13)); }
    void useHelpList(const std::string& text) { writeBytes(session().HelpListFile, text); }
    std::string listItem(int section) {
        return toBytes(control<QListWidget>(main, "CurrentLst")->item(section - 1)->text());
    }

    frmFlume* window = nullptr;
};

// ---- Opening -----------------------------------------------------------------------------------

TEST_F(IdentifierEditorTest, NewBrookletFileOpensTheWindow) {
    clickMenuItem("mnuFileItem(1)");
    auto* opened = context->windows.loadedAs<frmFlume>("frmFlume");
    ASSERT_NE(opened, nullptr);
    EXPECT_TRUE(opened->isVisible());
    EXPECT_EQ(opened->pos(), QPoint(0, 0));
    EXPECT_EQ(opened->windowTitle(), "Brooklet Identif   Current File - > Untitled <");
}

TEST_F(IdentifierEditorTest, OpenExistingFileOpensTheWindowOnTheFilesIdentification) {
    const std::string path = folder.file("shed.inp");
    writeBytes(path,
               crlf({firstLine("1", "0", "3.5", "1"), "Upper Brook", "", "Sub-Area:", "  A1        R1", ""}));
    platform.openPicks.push_back(path);
    clickMenuItem("mnuFileItem(2)");
    window = context->windows.loadedAs<frmFlume>("frmFlume");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(toBytes(window->windowTitle()), "Brooklet Identif   Current File - " + path);
    EXPECT_TRUE(option("opt1", 1)->isChecked());
    EXPECT_TRUE(option("opt2", 0)->isChecked());
    EXPECT_EQ(box(3)->text(), "3.5");
    EXPECT_TRUE(option("opt4", 1)->isChecked());
    EXPECT_EQ(box(5)->text(), "Upper Brook");
    EXPECT_FALSE(session().EnglishUnits);
    EXPECT_EQ(session().Units.FlowUnit, "cu m/sec");
}

TEST_F(IdentifierEditorTest, ReOpenLastSessionOpensTheWindowOnTheWorkFile) {
    writeWorkFile({firstLine("0", "1", "", "0"), "Left from last time"});
    clickMenuItem("mnuFileItem(3)");
    window = context->windows.loadedAs<frmFlume>("frmFlume");
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(option("opt2", 1)->isChecked());
    EXPECT_EQ(box(5)->text(), "Left from last time");
    EXPECT_EQ(session().Units.OutputFlowUnit, "cms");
}

TEST_F(IdentifierEditorTest, ASecondOpeningBringsTheSameWindowForward) {
    frmFlume* first = open();
    type(3, "7");
    EXPECT_EQ(context->windows.ShowWindowAtOrigin("frmFlume"), first);
    EXPECT_EQ(box(3)->text(), "7");
}

// ---- Controls and load -------------------------------------------------------------------------

TEST_F(IdentifierEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    open();
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Brooklet Identifier:");
    EXPECT_EQ(label(1)->text(), "Input Units Code:  ");
    EXPECT_EQ(label(2)->text(), "Output Units Code:");
    EXPECT_EQ(label(3)->text(), "Minimum Hydrograph Value:  ");
    EXPECT_EQ(label(4)->text(), "Screen Output Code:  ");
    EXPECT_EQ(label(5)->text(), "Watershed Description:");
    EXPECT_EQ(option("opt1", 0)->text(), "English");
    EXPECT_EQ(option("opt1", 1)->text(), "Metric");
    EXPECT_EQ(option("opt2", 0)->text(), "English");
    EXPECT_EQ(option("opt2", 1)->text(), "Metric");
    EXPECT_EQ(option("opt4", 0)->text(), "Screen Output");
    EXPECT_EQ(option("opt4", 1)->text(), "No Screen Output");
    EXPECT_EQ(button("cmdCancel")->text(), "    No Changes   (Close)");
    EXPECT_EQ(button("cmdFinished")->text(), " Accept Changes   (Close)");
    for (const char* array : {"opt1", "opt2", "opt4"}) {
        EXPECT_TRUE(option(array, 0)->isChecked()) << array;
        EXPECT_FALSE(option(array, 1)->isChecked()) << array;
    }
    for (int index : {3, 5, 6}) {
        EXPECT_TRUE(box(index)->isVisible()) << index;
        EXPECT_EQ(box(index)->text(), "") << index;
        EXPECT_EQ(background(box(index)), UntouchedColour) << index;
    }
    for (int index : {1, 2, 4})
        EXPECT_FALSE(box(index)->isVisible()) << index;
    EXPECT_EQ(unitLabel()->text(), "cfs");
    EXPECT_FALSE(helpBox()->isVisible());
    EXPECT_EQ(window->focusWidget(), box(3));
}

TEST_F(IdentifierEditorTest, FieldsCarryTheNamesAScreenReaderSpeaks) {
    open();
    EXPECT_EQ(box(3)->accessibleName(), "Minimum Hydrograph Value:");
    EXPECT_EQ(box(5)->accessibleName(), "Watershed Description:");
    EXPECT_EQ(box(6)->accessibleName(), "Watershed Description: second line");
    EXPECT_EQ(option("opt4", 1)->accessibleName(), "No Screen Output");
    EXPECT_EQ(button("cmdFinished")->accessibleName(), "Accept Changes   (Close)");
}

TEST_F(IdentifierEditorTest, EachOptionIsSpokenWithTheLabelOfItsGroup) {
    open();
    const std::pair<const char*, QString> groups[] = {
        {"opt1", "Input Units Code:"}, {"opt2", "Output Units Code:"}, {"opt4", "Screen Output Code:"}};
    for (const auto& [array, label] : groups) {
        for (int index : {0, 1}) {
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(option(array, index));
            ASSERT_NE(spoken, nullptr);
            QAccessibleInterface* group = spoken->parent();
            ASSERT_NE(group, nullptr) << array;
            EXPECT_EQ(group->role(), QAccessible::Grouping) << array;
            EXPECT_EQ(group->text(QAccessible::Name), label) << array;
        }
    }
    EXPECT_EQ(QAccessible::queryAccessibleInterface(option("opt1", 0))->text(QAccessible::Name), "English");
}

TEST_F(IdentifierEditorTest, LoadSetsTheHelpCodeAndTheUnitWords) {
    session().HelpCode = "XX";
    session().HelpShown = 3;
    open();
    EXPECT_EQ(session().HelpCode, "FL");
    EXPECT_EQ(session().HelpShown, -999);
    EXPECT_TRUE(session().EnglishUnits);
    EXPECT_EQ(session().Units.FlowUnit, "cfs");
    EXPECT_EQ(session().Units.AreaUnit, "sq mi");
    EXPECT_EQ(session().Units.OutputFlowUnit, "cfs");
}

TEST_F(IdentifierEditorTest, AMissingWorkFileLeavesTheDefaults) {
    deleteFile(workFile(13));
    open();
    EXPECT_TRUE(option("opt1", 0)->isChecked());
    EXPECT_EQ(box(3)->text(), "");
    EXPECT_FALSE(fileExists(workFile(13)) && fileLength(workFile(13)) > 0);
}

TEST_F(IdentifierEditorTest, AnEmptyWorkFileLeavesTheDefaults) {
    writeBytes(workFile(13), "");
    open();
    EXPECT_TRUE(option("opt1", 0)->isChecked());
    EXPECT_TRUE(option("opt2", 0)->isChecked());
    EXPECT_TRUE(option("opt4", 0)->isChecked());
    EXPECT_EQ(box(5)->text(), "");
}

TEST_F(IdentifierEditorTest, AFirstLineShorterThan41CharactersGivesDefaultsForAllOptions) {
    writeWorkFile({"Brooklet: Version 1.0", "A description"});
    open();
    EXPECT_TRUE(option("opt1", 0)->isChecked());
    EXPECT_TRUE(option("opt2", 0)->isChecked());
    EXPECT_TRUE(option("opt4", 0)->isChecked());
    EXPECT_EQ(box(5)->text(), "A description");
}

TEST_F(IdentifierEditorTest, ReadsAMetricRecordIntoTheControls) {
    writeWorkFile({firstLine("1", "1", "0.25", "1"), "  Upper Brook  ", "Design storms"});
    open();
    EXPECT_TRUE(option("opt1", 1)->isChecked());
    EXPECT_TRUE(option("opt2", 1)->isChecked());
    EXPECT_EQ(box(3)->text(), "0.25");
    EXPECT_TRUE(option("opt4", 1)->isChecked());
    EXPECT_EQ(box(5)->text(), "Upper Brook");
    EXPECT_EQ(box(6)->text(), "Design storms");
    EXPECT_EQ(unitLabel()->text(), "cu m/sec");
    EXPECT_FALSE(session().EnglishUnits);
    EXPECT_EQ(session().Units.LengthUnit, "m");
    EXPECT_EQ(session().Units.OutputUnitFlowUnit, "m^3/sec/sq km");
}

// ---- Tab and Enter -----------------------------------------------------------------------------

TEST_F(IdentifierEditorTest, AGoodMinimumTurnsCyanAndTabMovesToTheDescription) {
    open();
    type(3, "12.5");
    press(3, Qt::Key_Tab);
    EXPECT_EQ(background(box(3)), AcceptedColour);
    EXPECT_EQ(box(3)->text(), "12.5");
    EXPECT_EQ(window->focusMovedTo(), 5);
    EXPECT_EQ(window->focusWidget(), box(5));
    EXPECT_EQ(QApplication::focusWidget(), box(5));
}

TEST_F(IdentifierEditorTest, ANegativeMinimumTurnsRedAndTheFocusStays) {
    open();
    type(3, "-1");
    press(3, Qt::Key_Return);
    EXPECT_EQ(background(box(3)), RefusedColour);
    EXPECT_EQ(window->focusMovedTo(), 3);
    EXPECT_EQ(window->focusWidget(), box(3));
    EXPECT_EQ(box(3)->text(), "-1");
}

TEST_F(IdentifierEditorTest, TextThatIsNoNumberIsRefusedAndZeroIsAccepted) {
    open();
    type(3, "12a");
    press(3, Qt::Key_Tab);
    EXPECT_EQ(background(box(3)), RefusedColour);
    box(3)->clear();
    type(3, "0");
    press(3, Qt::Key_Enter);
    EXPECT_EQ(background(box(3)), AcceptedColour);
    EXPECT_EQ(window->focusWidget(), box(5));
}

TEST_F(IdentifierEditorTest, TheKeyIsEaten) {
    open();
    QSignalSpy returns(box(5), &QLineEdit::returnPressed);
    type(5, "Upper Brook");
    press(5, Qt::Key_Return);
    EXPECT_EQ(returns.count(), 0);
    EXPECT_EQ(box(5)->text(), "Upper Brook");
    EXPECT_EQ(window->focusWidget(), box(6));
}

TEST_F(IdentifierEditorTest, FocusGoesFromTheDescriptionLinesOnInTheWindowsOrder) {
    open();
    type(5, "Upper Brook");
    press(5, Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), box(6));
    press(6, Qt::Key_Tab);
    EXPECT_EQ(window->focusMovedTo(), 3);
    EXPECT_EQ(window->focusWidget(), box(3));
    EXPECT_EQ(background(box(6)), UntouchedColour);
}

TEST_F(IdentifierEditorTest, ABlankFirstDescriptionLineTurnsRedAndKeepsTheFocus) {
    open();
    box(5)->setFocus();
    press(5, Qt::Key_Tab);
    EXPECT_EQ(background(box(5)), RefusedColour);
    EXPECT_EQ(window->focusMovedTo(), 5);
    EXPECT_EQ(window->focusWidget(), box(5));
}

TEST_F(IdentifierEditorTest, OtherBlankBoxesKeepTheirColourAndPassTheFocusOn) {
    open();
    box(3)->setFocus();
    press(3, Qt::Key_Return);
    EXPECT_EQ(background(box(3)), UntouchedColour);
    EXPECT_EQ(window->focusWidget(), box(5));
    type(3, "x");
    press(3, Qt::Key_Tab);
    EXPECT_EQ(background(box(3)), RefusedColour);
    box(3)->setText("   ");
    press(3, Qt::Key_Tab);
    // A blank box is not checked, so the red stays until the box holds something good.
    EXPECT_EQ(background(box(3)), RefusedColour);
}

TEST_F(IdentifierEditorTest, EightyOneCharactersAreCutToEightyOnTab) {
    open();
    const QString long81 = QString(80, 'a') + "b";
    type(5, long81);
    press(5, Qt::Key_Tab);
    EXPECT_EQ(box(5)->text(), QString(80, 'a'));
    EXPECT_EQ(background(box(5)), AcceptedColour);
}

TEST_F(IdentifierEditorTest, EightyOneCharactersAreWrittenWholeWhenAcceptedWithoutTab) {
    open();
    const std::string long81 = std::string(80, 'a') + "b";
    type(5, QString::fromStdString(long81));
    accept();
    EXPECT_EQ(workFileBytes(), crlf({firstLine("0", "0", "", "0"), long81}));
}

TEST_F(IdentifierEditorTest, TabTrimsADescriptionLine) {
    open();
    type(6, "   Second line  ");
    press(6, Qt::Key_Tab);
    EXPECT_EQ(box(6)->text(), "Second line");
}

TEST_F(IdentifierEditorTest, LeavingABoxWithTheMouseChecksNothing) {
    open();
    type(3, "-5");
    click(box(5));
    EXPECT_EQ(background(box(3)), UntouchedColour);
    type(5, "x");
    click(box(6));
    EXPECT_EQ(background(box(5)), UntouchedColour);
}

// ---- Options -----------------------------------------------------------------------------------

TEST_F(IdentifierEditorTest, ClickingAnInputUnitOptionShowsItsFlowWordOnly) {
    open();
    click(option("opt1", 1));
    EXPECT_TRUE(option("opt1", 1)->isChecked());
    EXPECT_FALSE(option("opt1", 0)->isChecked());
    EXPECT_EQ(unitLabel()->text(), "cu m/sec");
    // The words themselves change only on Accept.
    EXPECT_TRUE(session().EnglishUnits);
    EXPECT_EQ(session().Units.FlowUnit, "cfs");
    click(option("opt1", 0));
    EXPECT_EQ(unitLabel()->text(), "cfs");
}

TEST_F(IdentifierEditorTest, OutputAndScreenOptionsAreChosenInTheirOwnGroups) {
    open();
    click(option("opt2", 1));
    click(option("opt4", 1));
    EXPECT_TRUE(option("opt2", 1)->isChecked());
    EXPECT_TRUE(option("opt4", 1)->isChecked());
    EXPECT_TRUE(option("opt1", 0)->isChecked());
    EXPECT_EQ(unitLabel()->text(), "cfs");
}

TEST_F(IdentifierEditorTest, OptionsReachedByTheKeyboardHandTheFocusOn) {
    open();
    option("opt1", 1)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(window->focusWidget(), box(3));
    option("opt4", 0)->setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(window->focusWidget(), box(5));
    option("opt2", 1)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(window->focusWidget(), option("opt2", 1));
}

TEST_F(IdentifierEditorTest, AnOptionClickedWithTheMouseKeepsTheFocus) {
    open();
    click(option("opt4", 1));
    EXPECT_EQ(window->focusWidget(), option("opt4", 1));
}

// ---- Accept and No Changes ---------------------------------------------------------------------

TEST_F(IdentifierEditorTest, AcceptWritesTheSectionColumnForColumn) {
    open();
    click(option("opt1", 1));
    click(option("opt4", 1));
    type(3, "5");
    press(3, Qt::Key_Tab);
    type(5, "Upper Brook at the mill");
    press(5, Qt::Key_Tab);
    type(6, "100-year design run");
    accept();
    EXPECT_EQ(workFileBytes(),
              "Brooklet: Version 1.0                   1         0         5.        1         \r\n"
              "Upper Brook at the mill\r\n"
              "100-year design run\r\n");
    EXPECT_TRUE(session().DataChanged);
    EXPECT_TRUE(windowClosed());
}

TEST_F(IdentifierEditorTest, AcceptWithTheBoxesAllBlankStillWritesLineOne) {
    open();
    accept();
    EXPECT_EQ(workFileBytes(), crlf({firstLine("0", "0", "", "0")}));
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(IdentifierEditorTest, AcceptWritesARedValueAsItStands) {
    open();
    type(3, "-2");
    press(3, Qt::Key_Tab);
    ASSERT_EQ(background(box(3)), RefusedColour);
    accept();
    EXPECT_EQ(workFileBytes(), crlf({firstLine("0", "0", "-2.", "0")}));
}

TEST_F(IdentifierEditorTest, AcceptRewritesAnOldHeaderInTheCurrentForm) {
    const std::string path = folder.file("old.inp");
    const std::string oldHeader = "FLUME: VERSION 2001" + std::string(21, ' ');
    writeBytes(path, crlf({oldHeader + field("0") + field("1") + field("1.5") + "0", "Old file", ""}));
    platform.openPicks.push_back(path);
    clickMenuItem("mnuFileItem(2)");
    window = context->windows.loadedAs<frmFlume>("frmFlume");
    ASSERT_NE(window, nullptr);
    accept();
    EXPECT_EQ(workFileBytes(), crlf({firstLine("0", "1", "1.5", "0"), "Old file"}));
}

TEST_F(IdentifierEditorTest, MetricInputWithEnglishOutputSetsWordsOfBothSystems) {
    open();
    click(option("opt1", 1));
    accept();
    EXPECT_FALSE(session().EnglishUnits);
    EXPECT_EQ(session().Units.FlowUnit, "cu m/sec");
    EXPECT_EQ(session().Units.OutputFlowUnit, "cfs");
    EXPECT_EQ(session().Units.AreaUnit, "sq km");
    EXPECT_EQ(session().Units.OutputAreaUnit, "sq mi");
}

TEST_F(IdentifierEditorTest, NoChangesWritesNothingAndLeavesTheWords) {
    writeWorkFile({firstLine("0", "0", "2.", "0"), "Kept"});
    const std::string before = workFileBytes();
    open();
    click(option("opt1", 1));
    type(3, "9");
    cancel();
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_FALSE(session().DataChanged);
    EXPECT_TRUE(session().EnglishUnits);
    EXPECT_EQ(session().Units.FlowUnit, "cfs");
    EXPECT_TRUE(windowClosed());
}

TEST_F(IdentifierEditorTest, NoChangesLeavesDataChangedTrueWhenItWas) {
    session().DataChanged = true;
    open();
    cancel();
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(IdentifierEditorTest, TheMainListMarksTheSectionAfterAccept) {
    open();
    EXPECT_EQ(listItem(13), "     Brooklet: Version 1.0");
    accept();
    EXPECT_EQ(listItem(13), "X   Brooklet: Version 1.0");
}

TEST_F(IdentifierEditorTest, AcceptedValuesComeBackOnTheNextOpening) {
    open();
    click(option("opt2", 1));
    type(3, "0.5");
    type(5, "Round trip");
    accept();
    ASSERT_TRUE(windowClosed());
    open();
    EXPECT_TRUE(option("opt1", 0)->isChecked());
    EXPECT_TRUE(option("opt2", 1)->isChecked());
    EXPECT_EQ(box(3)->text(), "0.5");
    EXPECT_EQ(box(5)->text(), "Round trip");
    EXPECT_EQ(background(box(3)), UntouchedColour);
}

TEST_F(IdentifierEditorTest, AWorkFileThatCannotBeWrittenIsLeftAsItWasAndTheWindowStays) {
    open();
    // A folder in the place of the work file cannot be replaced by a file.
    deleteFile(workFile(13));
    ASSERT_TRUE(createFolder(workFile(13)));
    type(5, "Kept in the window");
    accept();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, "BrookletSystem");
    EXPECT_NE(platform.boxes[0].text.find("could not be written"), std::string::npos);
    EXPECT_FALSE(session().DataChanged);
    EXPECT_FALSE(window->accepting());
    EXPECT_FALSE(windowClosed());
    EXPECT_TRUE(folderExists(workFile(13)));
    EXPECT_EQ(box(5)->text(), "Kept in the window");
}

// ---- Help --------------------------------------------------------------------------------------

TEST_F(IdentifierEditorTest, ClickingALabelShowsItsHelpAndASecondClickHidesIt) {
    useHelpList(HelpList);
    open();
    click(label(3));
    EXPECT_TRUE(helpBox()->isVisible());
    EXPECT_EQ(helpBoxText(helpBox()),
              helpEntry("Minimum Hydrograph Value", "Smallest flow.", "0 or more cfs"));
    EXPECT_EQ(session().HelpShown, 3);
    click(label(3));
    EXPECT_FALSE(helpBox()->isVisible());
    EXPECT_EQ(helpBox()->toPlainText(), "");
    EXPECT_EQ(session().HelpShown, -999);
}

TEST_F(IdentifierEditorTest, ClickingAnotherLabelReplacesTheHelp) {
    useHelpList(HelpList);
    open();
    click(label(1));
    click(label(5));
    EXPECT_TRUE(helpBox()->isVisible());
    EXPECT_EQ(helpBoxText(helpBox()), helpEntry("Watershed Description", "Two lines.", "1 to 80 characters"));
}

TEST_F(IdentifierEditorTest, TheHeaderShowsTheWindowsEntryAndHidesItAgain) {
    useHelpList(HelpList);
    open();
    auto* header = control<HelpLabel>(window, "lblHeader");
    click(header);
    EXPECT_TRUE(helpBox()->isVisible());
    EXPECT_EQ(session().HelpShown, 0);
    EXPECT_EQ(helpBoxText(helpBox()), helpEntry("Brooklet Identifier", "Identification of the run.", ""));
    click(header);
    EXPECT_FALSE(helpBox()->isVisible());
}

TEST_F(IdentifierEditorTest, TheScreenOutputLabelShowsNoHelp) {
    useHelpList(HelpList);
    open();
    click(label(4));
    EXPECT_FALSE(helpBox()->isVisible());
    click(label(3));
    click(label(4));
    // The help shown stays as it was.
    EXPECT_TRUE(helpBox()->isVisible());
    EXPECT_EQ(session().HelpShown, 3);
}

TEST_F(IdentifierEditorTest, HelpShowsTheMetricRangeForAMetricFile) {
    useHelpList(HelpList);
    writeWorkFile({firstLine("1", "0", "", "0")});
    open();
    click(label(3));
    EXPECT_EQ(helpBoxText(helpBox()),
              helpEntry("Minimum Hydrograph Value", "Smallest flow.", "0 or more cu m/sec"));
    click(label(5));
    // An empty metric range shows the English one.
    EXPECT_EQ(helpBoxText(helpBox()), helpEntry("Watershed Description", "Two lines.", "1 to 80 characters"));
}

TEST_F(IdentifierEditorTest, TheShippedHelpShowsRangesInBothUnitSystems) {
    open();
    click(label(3));
    EXPECT_NE(helpBoxText(helpBox()).find("          Minimum Hydrograph Value \r\n"), std::string::npos);
    EXPECT_NE(helpBoxText(helpBox()).find("Range - 0 or greater, in cfs"), std::string::npos);
    cancel();
    ASSERT_TRUE(windowClosed());
    writeWorkFile({firstLine("1", "1", "", "0")});
    open();
    click(label(3));
    EXPECT_NE(helpBoxText(helpBox()).find("Range - 0 or greater, in cu m/sec"), std::string::npos);
}

TEST_F(IdentifierEditorTest, AMissingHelpListGivesAnEmptyBoxThatOpensAllTheSame) {
    deleteFile(session().HelpListFile);
    open();
    click(label(3));
    EXPECT_TRUE(helpBox()->isVisible());
    EXPECT_EQ(helpBox()->toPlainText(), "");
}

TEST_F(IdentifierEditorTest, F1InABoxTogglesTheHelpOfItsLabel) {
    useHelpList(HelpList);
    open();
    box(6)->setFocus();
    press(6, Qt::Key_F1);
    EXPECT_EQ(helpBoxText(helpBox()), helpEntry("Watershed Description", "Two lines.", "1 to 80 characters"));
    press(6, Qt::Key_F1);
    EXPECT_FALSE(helpBox()->isVisible());
}

} // namespace
} // namespace brooklet::test
