// The commands that end a session never drop an editor's typing without a question: New, Open,
// ReOpen Last Session, Exit, Convert and Import ask about each editor that holds typing, Yes
// keeps it as Accept does, No discards it, Cancel stops the command with everything as it was.
#include "support/ui_fixture.h"

#include "session/input_file.h"
#include "session/text_file.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QTest>

namespace brooklet::test {
namespace {

const std::vector<std::string> Shed = {"Brooklet: Version 1.0", "A WATERSHED", "",
                                       "Duration Increment:",   "  0.1",       ""};

// The section as Accept writes it with "9" typed as the first duration.
const std::string AcceptedRecord =
    "DURATION INCREMENT:                     Hours     9.                            \r\n";

const std::string TypingQuestion =
    "Keep the changes made in the window Duration Increment before it closes "
    "(Yes accepts them, No discards them, Cancel stops the command and returns "
    "to the window)?";

// A command of the File menu and what follows a Yes: the question about unsaved data (empty
// when it asks none) and whether its dialog comes next.
struct Command {
    const char* item;
    const char* name;
    std::string savePrompt;
    bool dialog;
};

const Command Commands[] = {
    {"mnuFileItem(1)", "New", "a new Brooklet input data file ?", false},
    {"mnuFileItem(2)", "Open", "another Brooklet input data file ?", true},
    {"mnuFileItem(3)", "ReOpen", "", false},
    {"mnuFileItem(18)", "Exit", "", false},
    {"mnuFileItem(6)", "Convert", "converted old Flume data ?", true},
    {"mnuFileItem(7)", "Import", "reformatted HEC-RAS cross section data ?", true},
};

class SessionCloseTest : public UiTest {
protected:
    void SetUp() override {
        startMain();
        shed = folder.file("shed.inp");
        writeBytes(shed, crlf(Shed));
    }

    // A clean session on the file, with the duration increment editor holding "9" typed behind
    // its value.
    QLineEdit* typeIntoEditor() {
        context->windows.closeSessionWindows();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        session().DataChanged = false;
        writeBytes(shed, crlf(Shed));
        platform.openPicks.push_back(shed);
        clickMenuItem("mnuFileItem(2)");
        auto* list = control<QListWidget>(main, "CurrentLst");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(DurationIncrementSection - 1)).center());
        editor = context->windows.loaded("frmDurInc");
        if (!editor)
            return nullptr;
        auto* box = editor->findChild<QLineEdit*>("txtInp(2)");
        box->setFocus();
        QTest::keyClicks(box, "9");
        platform.boxes.clear();
        platform.openDialogs.clear();
        platform.endCount = 0;
        shownBefore = context->windows.shownNames().size();
        workFileBefore = bytesOf(workFile(DurationIncrementSection));
        return box;
    }
    bool deleted(const QPointer<QWidget>& window) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window.isNull();
    }

    std::string shed;
    QPointer<QWidget> editor;
    qsizetype shownBefore = 0;
    std::string workFileBefore;
};

TEST_F(SessionCloseTest, YesKeepsTheTypingAsAcceptDoesAndTheCommandGoesOn) {
    for (const Command& command : Commands) {
        ASSERT_NE(typeIntoEditor(), nullptr) << command.name;
        platform.answers = {BoxAnswer::Yes};
        if (!command.savePrompt.empty())
            platform.answers.push_back(BoxAnswer::Yes); // save the kept typing into the file
        if (command.item == std::string("mnuFileItem(18)"))
            platform.answers.push_back(BoxAnswer::No); // Exit's own question: leave unsaved
        if (command.dialog)
            platform.openPicks.push_back(std::nullopt);
        clickMenuItem(command.item);

        ASSERT_FALSE(platform.boxes.empty()) << command.name;
        EXPECT_EQ(platform.boxes[0], (BoxRequest{TypingQuestion, "Duration Increment",
                                                 BoxButtons::YesNoCancel, BoxIcon::Question}))
            << command.name;
        EXPECT_TRUE(platform.answers.empty()) << command.name;
        EXPECT_TRUE(deleted(editor)) << command.name;
        if (!command.savePrompt.empty()) {
            // Accepted, then saved with the rest of the session at the question that follows.
            EXPECT_EQ(platform.boxes[1].text,
                      "Save and Close current file before loading\r" + command.savePrompt)
                << command.name;
            EXPECT_NE(bytesOf(shed).find(AcceptedRecord), std::string::npos) << command.name;
        } else {
            // The session goes on with the work files: the typing stands in the editor's.
            EXPECT_EQ(bytesOf(workFile(DurationIncrementSection)), AcceptedRecord) << command.name;
        }
        EXPECT_EQ(platform.openDialogs.size(), command.dialog ? 1u : 0u) << command.name;
    }
}

TEST_F(SessionCloseTest, NoDiscardsTheTypingAndTheCommandGoesOn) {
    for (const Command& command : Commands) {
        ASSERT_NE(typeIntoEditor(), nullptr) << command.name;
        platform.answers = {BoxAnswer::No};
        if (command.dialog)
            platform.openPicks.push_back(std::nullopt);
        clickMenuItem(command.item);

        ASSERT_EQ(platform.boxes.size(), 1u) << command.name << ": nothing was changed, nothing to save";
        EXPECT_EQ(platform.boxes[0].text, TypingQuestion) << command.name;
        EXPECT_EQ(bytesOf(shed), crlf(Shed)) << command.name;
        EXPECT_FALSE(session().DataChanged) << command.name;
        EXPECT_EQ(platform.openDialogs.size(), command.dialog ? 1u : 0u) << command.name;
        if (!command.dialog) {
            // New and ReOpen begin the new session, Exit ends the program: the editor is gone
            // without writing.
            EXPECT_TRUE(deleted(editor)) << command.name;
            if (command.item != std::string("mnuFileItem(1)"))
                EXPECT_EQ(bytesOf(workFile(DurationIncrementSection)), workFileBefore) << command.name;
        }
        EXPECT_EQ(platform.endCount, command.item == std::string("mnuFileItem(18)") ? 1 : 0) << command.name;
    }
}

TEST_F(SessionCloseTest, CancelStopsTheCommandWithEverythingAsItWas) {
    for (const Command& command : Commands) {
        QLineEdit* box = typeIntoEditor();
        ASSERT_NE(box, nullptr) << command.name;
        platform.answers = {BoxAnswer::Cancel};
        clickMenuItem(command.item);

        ASSERT_EQ(platform.boxes.size(), 1u) << command.name;
        EXPECT_EQ(platform.boxes[0].text, TypingQuestion) << command.name;
        EXPECT_TRUE(platform.openDialogs.empty()) << command.name;
        EXPECT_EQ(platform.endCount, 0) << command.name;
        EXPECT_FALSE(deleted(editor)) << command.name;
        EXPECT_TRUE(editor->isVisible()) << command.name;
        EXPECT_EQ(box->text(), "9") << command.name;
        EXPECT_EQ(bytesOf(workFile(DurationIncrementSection)), workFileBefore) << command.name;
        EXPECT_EQ(session().CurrentFile, shed) << command.name;
        EXPECT_FALSE(session().DataChanged) << command.name;
        EXPECT_EQ(context->windows.shownNames().size(), shownBefore) << command.name;
    }
}

// One question a window, each titled with the window's caption, the window opened last first.
TEST_F(SessionCloseTest, EachEditorHoldingTypingIsAskedAboutOnce) {
    ASSERT_NE(typeIntoEditor(), nullptr);
    QWidget* identifier = context->windows.loaded("frmFlume");
    ASSERT_NE(identifier, nullptr);
    auto* description = identifier->findChild<QLineEdit*>("txtInp(6)");
    description->setFocus();
    QTest::keyClicks(description, "SECOND LINE");
    // The time analysis editor is open too, but holds no typing.
    context->windows.ShowWindowAtOrigin("frmTimeA");
    platform.boxes.clear();
    platform.answers = {BoxAnswer::No, BoxAnswer::No};
    clickMenuItem("mnuFileItem(1)");
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[0].title, "Duration Increment");
    EXPECT_EQ(platform.boxes[1].title, "Brooklet Identifier");
    EXPECT_NE(platform.boxes[1].text.find("the window Brooklet Identifier before"), std::string::npos);
}

// A Yes whose work file cannot be written stops the command: the window stays with its typing.
TEST_F(SessionCloseTest, TypingThatCannotBeStoredStopsTheCommand) {
    QLineEdit* box = typeIntoEditor();
    ASSERT_NE(box, nullptr);
    deleteFile(workFile(DurationIncrementSection));
    createFolder(workFile(DurationIncrementSection));
    platform.answers = {BoxAnswer::Yes};
    clickMenuItem("mnuFileItem(1)");
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_NE(platform.boxes[1].text.find("could not be written"), std::string::npos);
    EXPECT_FALSE(deleted(editor));
    EXPECT_TRUE(editor->isVisible());
    EXPECT_EQ(box->text(), "9");
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_EQ(context->windows.shownNames().size(), shownBefore);
}

} // namespace
} // namespace brooklet::test
