// The entry window pattern on a small editor of two boxes: load, Tab and Enter, Accept and No
// Changes, and the main window's refresh afterwards.
#include "support/ui_fixture.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "options/entry_window.h"
#include "session/text_file.h"

#include <QAction>
#include <QCloseEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QWindow>

namespace brooklet::test {
namespace {

// An editor of section 3 with a number in box 1 and a text in box 2, one record of both.
class frmTwoBoxes : public EntryWindow {
public:
    explicit frmTwoBoxes(AppContext& context)
        : EntryWindow(context, {"frmTwoBoxes", "Two Boxes Editor", 9, "TB", DurationIncrementSection}) {
        addHeader("Two Boxes:");
        addRow(addLabel(1, "Number:"), {addBox(1, "Number:")});
        addRow(addLabel(2, "Text:"), {addBox(2, "Text:")});
        addButtons("No Changes", "Accept Changes");
        Form_Load();
    }
    std::vector<std::string> readLines;

protected:
    void setDefaults() override { txtInp(1)->setText("1"); }
    void readSection(const std::vector<std::string>& lines) override {
        readLines = lines;
        if (lines.size() > 1) {
            txtInp(1)->setText(fromBytes(FieldAt(lines[1], 1, 10)));
            txtInp(2)->setText(fromBytes(FieldAt(lines[1], 11, 10)));
        }
    }
    std::vector<std::string> sectionRecords() override {
        const std::string number = trim(toBytes(txtInp(1)->text()));
        const std::string text = trim(toBytes(txtInp(2)->text()));
        if (number.empty() && text.empty())
            return {};
        std::string record;
        AppendField(record, number, 10, false);
        AppendField(record, text, 10, false);
        return {"TWO BOXES:", record};
    }
    bool checkBox(int index) override {
        bool valid = true;
        if (index == 1)
            ValidNumber(false, toBytes(txtInp(1)->text()), valid);
        paintBox(index, valid);
        return valid;
    }
    int nextBox(int index) const override { return index >= 2 ? 1 : index + 1; }
};

class EntryWindowTest : public UiTest {
protected:
    void SetUp() override {
        context->windows.registerWindow("frmTwoBoxes", [](AppContext& c) { return new frmTwoBoxes(c); });
        startMain();
    }
    frmTwoBoxes* open() {
        window = static_cast<frmTwoBoxes*>(context->windows.ShowWindowAtOrigin("frmTwoBoxes"));
        window->activateWindow();
        QApplication::setActiveWindow(window);
        return window;
    }
    QLineEdit* box(int index) { return control<QLineEdit>(window, indexedName("txtInp", index)); }
    void click(const char* name) { QTest::mouseClick(control<QPushButton>(window, name), Qt::LeftButton); }
    std::string listItem(int section) {
        return toBytes(control<QListWidget>(main, "CurrentLst")->item(section - 1)->text());
    }
    bool closed() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return context->windows.loaded("frmTwoBoxes") == nullptr;
    }

    // The window system's close, as by the window's close box: the window decides.
    void closeBox() {
        QCloseEvent closing;
        QApplication::sendEvent(window->windowHandle(), &closing);
        // An accepting answer closes the window once the close box's event has gone.
        QCoreApplication::processEvents();
    }
    // Opens the window, types Text into box 2 and closes the window by its close box; the
    // question is answered with Answer.
    void closeBoxAfterTyping(const QString& text, BoxAnswer answer) {
        open();
        typeInto(2, text);
        platform.answers.push_back(answer);
        closeBox();
    }
    void typeInto(int index, const QString& text) {
        box(index)->setFocus();
        QTest::keyClicks(box(index), text);
    }

    frmTwoBoxes* window = nullptr;
};

const BoxRequest KeepChanges{
    "Keep the changes made in this window? Yes accepts them, No discards them, Cancel returns to the window.",
    "Two Boxes Editor", BoxButtons::YesNoCancel, BoxIcon::Question};

TEST_F(EntryWindowTest, TheCaptionKeepsItsFixedPartAndNamesTheCurrentFile) {
    session().CurrentFile = folder.file("shed.inp");
    open();
    EXPECT_EQ(toBytes(window->windowTitle()), "Two Boxes   Current File - " + folder.file("shed.inp"));
}

TEST_F(EntryWindowTest, OpensAtTheTopLeftOnceAndNotModally) {
    open();
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_FALSE(window->isModal());
    EXPECT_EQ(context->windows.ShowWindowAtOrigin("frmTwoBoxes"), window);
    EXPECT_TRUE(main->isVisible());
}

TEST_F(EntryWindowTest, LoadSetsTheHelpCodeAndClearsTheAcceptingFlag) {
    session().HelpShown = 4;
    open();
    EXPECT_EQ(session().HelpCode, "TB");
    EXPECT_EQ(session().HelpShown, -999);
    EXPECT_FALSE(window->accepting());
}

TEST_F(EntryWindowTest, AMissingOrEmptyWorkFileLeavesTheDefaults) {
    deleteFile(workFile(3));
    open();
    EXPECT_EQ(box(1)->text(), "1");
    EXPECT_TRUE(window->readLines.empty());
    click("cmdCancel");
    ASSERT_TRUE(closed());
    writeBytes(workFile(3), "");
    open();
    EXPECT_EQ(box(1)->text(), "1");
    EXPECT_TRUE(window->readLines.empty());
}

TEST_F(EntryWindowTest, ReadsTheWorkFileWithItsHeaderLine) {
    writeBytes(workFile(3), crlf({"TWO BOXES:", "42        word"}));
    open();
    EXPECT_EQ(window->readLines, (std::vector<std::string>{"TWO BOXES:", "42        word"}));
    EXPECT_EQ(box(1)->text(), "42");
    EXPECT_EQ(box(2)->text(), "word");
}

TEST_F(EntryWindowTest, NothingIsWrittenWhileTheUserEdits) {
    writeBytes(workFile(3), crlf({"TWO BOXES:", "42        word"}));
    open();
    box(1)->setFocus();
    QTest::keyClicks(box(1), "7");
    QTest::keyClick(box(1), Qt::Key_Tab);
    EXPECT_EQ(bytesOf(workFile(3)), crlf({"TWO BOXES:", "42        word"}));
}

TEST_F(EntryWindowTest, TabAndEnterFollowTheWindowsOrderAndARefusedBoxKeepsTheFocus) {
    open();
    box(1)->setFocus();
    QTest::keyClick(box(1), Qt::Key_Tab);
    EXPECT_EQ(window->focusMovedTo(), 2);
    EXPECT_EQ(window->focusWidget(), box(2));
    QTest::keyClick(box(2), Qt::Key_Enter);
    EXPECT_EQ(window->focusMovedTo(), 1);
    box(1)->setText("abc");
    QTest::keyClick(box(1), Qt::Key_Return);
    EXPECT_EQ(window->focusMovedTo(), 1);
    EXPECT_EQ(background(box(1)), RefusedColour);
    EXPECT_EQ(window->focusWidget(), box(1));
}

TEST_F(EntryWindowTest, AcceptWritesTheSectionSetsDataChangedAndCloses) {
    open();
    box(2)->setText("new");
    click("cmdFinished");
    EXPECT_EQ(bytesOf(workFile(3)), crlf({"TWO BOXES:", "1         new       "}));
    EXPECT_TRUE(session().DataChanged);
    EXPECT_TRUE(window->accepting());
    EXPECT_TRUE(closed());
    EXPECT_EQ(listItem(3), "X   Duration Increment:");
}

TEST_F(EntryWindowTest, ASectionWithAllFieldsEmptyLeavesAnEmptyWorkFileAndLosesItsMark) {
    writeBytes(workFile(3), crlf({"TWO BOXES:", "42        word"}));
    main->Form_Activate();
    ASSERT_EQ(listItem(3), "X   Duration Increment:");
    open();
    box(1)->clear();
    box(2)->clear();
    click("cmdFinished");
    EXPECT_TRUE(fileExists(workFile(3)));
    EXPECT_EQ(fileLength(workFile(3)), 0u);
    EXPECT_TRUE(session().DataChanged);
    EXPECT_EQ(listItem(3), "     Duration Increment:");
}

TEST_F(EntryWindowTest, NoChangesClosesWithoutWritingAndTheMainListIsRefreshed) {
    open();
    box(2)->setText("dropped");
    // Another window's accept, while this one is open, shows on the list once this one closes.
    writeBytes(workFile(9), crlf({"STORM ANALYSIS:", "          S1"}));
    click("cmdCancel");
    EXPECT_TRUE(closed());
    EXPECT_EQ(fileLength(workFile(3)), 0u);
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(listItem(9), "X   Storm Analysis:");
}

TEST_F(EntryWindowTest, AcceptHidesRunAndViewThroughTheMainWindowsActivation) {
    const std::string path = folder.file("shed.inp");
    writeBytes(path, crlf({"Brooklet: Version 1.0", "", "Duration Increment:", ""}));
    platform.openPicks.push_back(path);
    clickMenuItem("mnuFileItem(2)");
    context->windows.unload("frmFlume");
    main->Form_Activate();
    ASSERT_TRUE(control<QAction>(main, "mnuRun")->isVisible());
    open();
    click("cmdFinished");
    EXPECT_FALSE(control<QAction>(main, "mnuRun")->isVisible());
}

// ---- Keys and the close box ---------------------------------------------------------------------

TEST_F(EntryWindowTest, EscapeIsNoChanges) {
    open();
    typeInto(2, "dropped");
    QTest::keyClick(box(2), Qt::Key_Escape);
    EXPECT_TRUE(closed());
    EXPECT_EQ(fileLength(workFile(3)), 0u);
    EXPECT_FALSE(session().DataChanged);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(EntryWindowTest, CtrlEnterIsAcceptChanges) {
    open();
    typeInto(2, "kept");
    QTest::keyClick(box(2), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(closed());
    EXPECT_EQ(bytesOf(workFile(3)), crlf({"TWO BOXES:", "1         kept      "}));
    EXPECT_TRUE(session().DataChanged);
    EXPECT_TRUE(platform.boxes.empty());

    // The Enter of the number pad too.
    open();
    typeInto(1, "5");
    QTest::keyClick(box(1), Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_TRUE(closed());
    EXPECT_EQ(bytesOf(workFile(3)), crlf({"TWO BOXES:", "15        kept      "}));
}

TEST_F(EntryWindowTest, TheButtonsTellTheirKeysAndKeepTheirCaptions) {
    open();
    auto* cancel = control<QPushButton>(window, "cmdCancel");
    auto* finished = control<QPushButton>(window, "cmdFinished");
    EXPECT_EQ(cancel->text(), "No Changes");
    EXPECT_EQ(finished->text(), "Accept Changes");
    EXPECT_EQ(cancel->toolTip(), "No Changes (Esc): closes the window; nothing is written");
    EXPECT_EQ(cancel->accessibleDescription(), cancel->toolTip());
    EXPECT_EQ(finished->toolTip(), "Accept Changes (Ctrl+Enter): writes the changes and closes the window");
    EXPECT_EQ(finished->accessibleDescription(), finished->toolTip());
}

TEST_F(EntryWindowTest, TheCloseBoxWithNothingTypedAsksNothing) {
    writeBytes(workFile(3), crlf({"TWO BOXES:", "42        word"}));
    open();
    // Going through the boxes changes nothing.
    box(1)->setFocus();
    QTest::keyClick(box(1), Qt::Key_Tab);
    closeBox();
    EXPECT_TRUE(closed());
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(bytesOf(workFile(3)), crlf({"TWO BOXES:", "42        word"}));
}

TEST_F(EntryWindowTest, TheCloseBoxAfterTypingAsksAndYesAccepts) {
    closeBoxAfterTyping("kept", BoxAnswer::Yes);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], KeepChanges);
    EXPECT_TRUE(closed());
    EXPECT_EQ(bytesOf(workFile(3)), crlf({"TWO BOXES:", "1         kept      "}));
    EXPECT_TRUE(session().DataChanged);
    EXPECT_EQ(listItem(3), "X   Duration Increment:");
}

TEST_F(EntryWindowTest, TheCloseBoxAfterTypingAnsweredNoDiscards) {
    closeBoxAfterTyping("dropped", BoxAnswer::No);
    EXPECT_EQ(platform.boxTexts(), std::vector<std::string>{KeepChanges.text});
    EXPECT_TRUE(closed());
    EXPECT_EQ(fileLength(workFile(3)), 0u);
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(EntryWindowTest, TheCloseBoxAfterTypingAnsweredCancelStays) {
    closeBoxAfterTyping("typed", BoxAnswer::Cancel);
    EXPECT_EQ(platform.boxes.size(), 1u);
    EXPECT_FALSE(closed());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(box(2)->text(), "typed");
    EXPECT_EQ(fileLength(workFile(3)), 0u);
    // Asked again on the next try.
    platform.answers.push_back(BoxAnswer::No);
    closeBox();
    EXPECT_EQ(platform.boxes.size(), 2u);
    EXPECT_TRUE(closed());
}

TEST_F(EntryWindowTest, TheCloseBoxAnsweredYesWithAWorkFileThatCannotBeWrittenKeepsTheWindow) {
    open();
    typeInto(2, "kept");
    deleteFile(workFile(3));
    createFolder(workFile(3)); // a folder where the work file should be
    platform.answers.push_back(BoxAnswer::Yes);
    closeBox();
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[0], KeepChanges);
    EXPECT_EQ(platform.boxes[1].text.rfind("The work file ", 0), 0u);
    EXPECT_FALSE(closed());
    EXPECT_EQ(box(2)->text(), "kept");
}

TEST_F(EntryWindowTest, TheButtonsCloseWithoutTheQuestion) {
    open();
    typeInto(2, "dropped");
    click("cmdCancel");
    EXPECT_TRUE(closed());
    open();
    typeInto(2, "kept");
    click("cmdFinished");
    EXPECT_TRUE(closed());
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(EntryWindowTest, ANewSessionAsksAboutATypedInWindowAndNoClosesItAsNoChangesWould) {
    open();
    typeInto(2, "old session");
    platform.answers.push_back(BoxAnswer::No);
    clickMenuItem("mnuFileItem(1)");
    EXPECT_TRUE(closed());
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text,
              "Keep the changes made in the window Two Boxes Editor before it closes (Yes "
              "accepts them, No discards them, Cancel stops the command and returns to "
              "the window)?");
    EXPECT_EQ(platform.boxes[0].title, "Two Boxes Editor");
    EXPECT_EQ(fileLength(workFile(3)), 0u);
    EXPECT_FALSE(session().DataChanged);
}

} // namespace
} // namespace brooklet::test
