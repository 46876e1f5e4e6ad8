// The file commands never lose the user's data: a save that fails stops the command that
// asked for it, a window of an old session never outlives it, a partly read file is not
// overwritten without a question, and result files are found by the file's own name only.
#include "support/ui_fixture.h"

#include "session/input_file.h"
#include "session/text_file.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QTest>

#include <filesystem>

namespace brooklet::test {
namespace {

namespace fs = std::filesystem;

const std::vector<std::string> Shed = {
    "Brooklet: Version 1.0", "A WATERSHED", "", "Sub-Area:", "  A1        R1", "",
    "Duration Increment:",   "  0.1",       ""};

class SessionSafetyTest : public UiTest {
protected:
    void SetUp() override { startMain(); }

    // Makes a file impossible to write: a folder stands in its place.
    void blockWriting(const std::string& path) {
        deleteFile(path);
        createFolder(path);
    }
    // Every work file of the session, by number.
    std::vector<std::string> workFiles() {
        std::vector<std::string> files;
        for (int i = 1; i <= WorkFileCount; ++i)
            files.push_back(bytesOf(workFile(i)));
        return files;
    }
    // Opens an editor from the section list, as a click does.
    QWidget* openSection(int section) {
        auto* list = control<QListWidget>(main, "CurrentLst");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(section - 1)).center());
        return context->windows.loaded(editorWindowName(section));
    }
    bool deleted(const QPointer<QWidget>& window) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window.isNull();
    }
};

// A failed save stops every command that asked for it: here Open and Import HEC-RAS.
TEST_F(SessionSafetyTest, OpenAnsweredYesWithASaveThatFailsKeepsTheSessionAsItWas) {
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    acceptEdit(11, {"Sub-Area:", "  A9        R1"});
    blockWriting(shed);
    const auto before = workFiles();
    platform.boxes.clear();

    for (const char* command : {"mnuFileItem(2)", "mnuFileItem(7)"}) {
        platform.answers.push_back(BoxAnswer::Yes);
        clickMenuItem(command);
        EXPECT_TRUE(platform.openDialogs.size() == 1u) << command << ": no file is asked for";
        EXPECT_EQ(workFiles(), before) << command;
        EXPECT_EQ(session().CurrentFile, shed) << command;
        EXPECT_TRUE(session().DataChanged) << command;
    }
    ASSERT_EQ(platform.boxes.size(), 4u);
    EXPECT_EQ(platform.boxes[0].text,
              "Save and Close current file before loading\ranother Brooklet input data file ?");
    EXPECT_NE(platform.boxes[1].text.find("could not be saved"), std::string::npos);
    EXPECT_EQ(platform.boxes[2].text,
              "Save and Close current file before loading\rreformatted HEC-RAS cross section data ?");
    EXPECT_NE(platform.boxes[3].text.find("could not be saved"), std::string::npos);
    EXPECT_TRUE(control<QAction>(main, "mnuFileItem(14)")->isEnabled());
}

TEST_F(SessionSafetyTest, ExitAnsweredYesWithASaveThatFailsKeepsTheNameAndStaysOpen) {
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    acceptEdit(11, {"Sub-Area:", "  A9        R1"});
    platform.answers.push_back(BoxAnswer::Yes);
    platform.savePicks.push_back(folder.file("no such folder/elsewhere.inp"));
    clickMenuItem("mnuFileItem(18)");
    EXPECT_EQ(platform.endCount, 0);
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_TRUE(session().DataChanged);
    EXPECT_EQ(bytesOf(workFile(16)), crlf({shed}));
    EXPECT_NE(platform.boxes.back().text.find("could not be saved"), std::string::npos);
}

TEST_F(SessionSafetyTest, ExitsSaveDialogHasItsOwnTitleAndAsksBeforeReplacingAFile) {
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed); // leaves the title "Open Brooklet file" in the shared dialog
    acceptEdit(11, {"Sub-Area:", "  A9        R1"});
    const std::string other = inputFile("other.inp", {"Sub-Area:", "  KEEP", ""});
    platform.answers = {BoxAnswer::Yes, BoxAnswer::No};
    platform.savePicks.push_back(folder.file("other")); // typed without its extension
    clickMenuItem("mnuFileItem(18)");

    ASSERT_EQ(platform.saveDialogs.size(), 1u);
    EXPECT_EQ(platform.saveDialogs[0].DialogTitle, "Save Brooklet file");
    EXPECT_TRUE(platform.saveDialogs[0].ConfirmOverwrite);
    EXPECT_EQ(platform.saveDialogs[0].DefaultExtension, "inp");
    ASSERT_EQ(platform.boxes.size(), 2u); // the question of Exit, then the dialog's own
    EXPECT_EQ(platform.boxes[1].text, other + " already exists.\nDo you want to replace it?");
    // Not replaced: the dialog was left with no file, which ends the program unsaved.
    EXPECT_EQ(bytesOf(other), crlf({"Sub-Area:", "  KEEP", ""}));
    EXPECT_EQ(platform.endCount, 1);
}

TEST_F(SessionSafetyTest, EveryCommandThatBeginsASessionClosesTheEditorsOfTheOldOne) {
    const std::string shed = inputFile("shed.inp", Shed);
    const std::string second = inputFile("second.inp", {"Duration Increment:", "  0.5", ""});
    writeBytes(workFile(16), crlf({second}));
    const auto beginnings = std::vector<std::function<void()>>{
        [&] { clickMenuItem("mnuFileItem(1)"); },
        [&] { openFile(second); },
        [&] { clickMenuItem("mnuFileItem(3)"); },
    };
    for (size_t i = 0; i < beginnings.size(); ++i) {
        openFile(shed);
        QPointer<QWidget> editor = openSection(DurationIncrementSection);
        ASSERT_FALSE(editor.isNull());
        auto* box = editor->findChild<QLineEdit*>("txtInp(2)");
        ASSERT_NE(box, nullptr);
        box->setFocus();
        QTest::keyClicks(box, "9");
        QPointer<QWidget> identifier = context->windows.loaded("frmFlume");
        // The typing is discarded at the question; the command goes on.
        platform.answers.push_back(BoxAnswer::No);
        beginnings[i]();
        EXPECT_TRUE(platform.answers.empty()) << "command " << i << " asked nothing about the typing";
        EXPECT_TRUE(deleted(editor)) << "command " << i;
        EXPECT_EQ(context->windows.loaded(editorWindowName(DurationIncrementSection)), nullptr) << i;
        // frmFlume opens anew on the new session.
        EXPECT_TRUE(deleted(identifier)) << "command " << i;
        ASSERT_NE(context->windows.loaded("frmFlume"), nullptr) << i;
        EXPECT_TRUE(context->windows.loaded("frmFlume")->isVisible()) << i;
        EXPECT_EQ(bytesOf(shed), crlf(Shed));
    }
    // The old editor never wrote its data into a new session.
    EXPECT_EQ(bytesOf(second), crlf({"Duration Increment:", "  0.5", ""}));
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(SessionSafetyTest, HelpWindowsStayOpenWhenANewSessionBegins) {
    QPointer<QWidget> about = context->windows.ShowWindowAtOrigin("frmAbout");
    clickMenuItem("mnuFileItem(1)");
    EXPECT_FALSE(deleted(about));
    EXPECT_TRUE(about->isVisible());
}

TEST_F(SessionSafetyTest, APartlyReadFileIsOverwrittenOnlyWhenTheUserSaysSo) {
    const std::vector<std::string> lines = {"Sub-Area:", "  A1        R1", "", "Nonsense:", "  lost?", ""};
    const std::string shed = inputFile("shed.inp", lines);
    openFile(shed);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text, "Section Header: NONSENSE: not found! ");

    const std::string question = "The file " + shed +
                                 " was read only up to line 4, where a section header was not found. Saving "
                                 "replaces the whole file with the sections read before that line, and the "
                                 "rest of the file is lost.\r\rSave it anyway?";
    platform.answers.push_back(BoxAnswer::No);
    clickMenuItem("mnuFileItem(14)");
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[1],
              (BoxRequest{question, "Brooklet System", BoxButtons::YesNo, BoxIcon::Exclamation}));
    EXPECT_EQ(bytesOf(shed), crlf(lines));

    // The next session that goes on from these work files knows it too.
    clickMenuItem("mnuFileItem(3)");
    platform.answers.push_back(BoxAnswer::No);
    clickMenuItem("mnuFileItem(14)");
    EXPECT_EQ(platform.boxes.back().text, question);
    EXPECT_EQ(bytesOf(shed), crlf(lines));

    // Saved under another name, no question; and Yes writes the file, after which it is whole.
    platform.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    clickMenuItem("mnuFileItem(14)");
    EXPECT_EQ(bytesOf(shed).find("Nonsense"), std::string::npos);
    const size_t boxes = platform.boxes.size();
    clickMenuItem("mnuFileItem(14)");
    EXPECT_EQ(platform.boxes.size(), boxes + 1); // only "Data Saved in file: "
    EXPECT_EQ(platform.boxes.back().text, "Data Saved in file: " + shed);
}

TEST_F(SessionSafetyTest, ANameWithoutExtensionInAFolderWithAPointKeepsTheParentsResults) {
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    acceptEdit(11, {"Sub-Area:", "  A9        R1"});
    createFolder(folder.file("my.projects"));
    for (const char* extension : {"out", "err", "dbg", "hyd", "ecn"})
        writeBytes(folder.file(std::string("my.") + extension), "earlier results\r\n");
    writeBytes(folder.file("my.projects/shed.out"), "results of this file\r\n");
    platform.savePicks.push_back(folder.file("my.projects/shed"));
    platform.answers.push_back(BoxAnswer::Yes);
    clickMenuItem("mnuFileItem(15)");

    EXPECT_EQ(session().CurrentFile, folder.file("my.projects/shed.inp"));
    EXPECT_EQ(platform.boxes[platform.boxes.size() - 2].text, "Save: " + folder.file("my.projects/shed.inp"));
    EXPECT_TRUE(fileExists(folder.file("my.projects/shed.inp")));
    EXPECT_FALSE(fileExists(folder.file("my.projects/shed.out")));
    for (const char* extension : {"out", "err", "dbg", "hyd", "ecn"})
        EXPECT_EQ(bytesOf(folder.file(std::string("my.") + extension)), "earlier results\r\n") << extension;
}

TEST_F(SessionSafetyTest, SaveInAnUntitledSessionAsksForANameAndNeverWritesTheUntitledMarker) {
    clickMenuItem("mnuFileItem(1)");
    acceptEdit(11, {"Sub-Area:", "  A1        R1"});
    // Save As answered No leaves the session untitled with Save enabled.
    platform.savePicks.push_back(folder.file("first.inp"));
    platform.answers.push_back(BoxAnswer::No);
    clickMenuItem("mnuFileItem(15)");
    ASSERT_EQ(session().CurrentFile, UntitledFile);

    platform.savePicks.push_back(folder.file("named.inp"));
    platform.answers.push_back(BoxAnswer::Yes);
    clickMenuItem("mnuFileItem(14)");
    EXPECT_EQ(platform.saveDialogs.size(), 2u);
    EXPECT_EQ(session().CurrentFile, folder.file("named.inp"));
    EXPECT_NE(bytesOf(folder.file("named.inp")).find("  A1        R1"), std::string::npos);
    EXPECT_FALSE(fileExists(UntitledFile));
    EXPECT_FALSE(fileExists(folder.file(UntitledFile)));
}

TEST_F(SessionSafetyTest, ASaveGoesThroughALinkAndRefusesAReadOnlyFile) {
    const std::string shed = inputFile("shed.inp", Shed);
    const std::string link = folder.file("link.inp");
    fs::create_symlink(shed, link);
    openFile(link);
    acceptEdit(11, {"Sub-Area:", "  A9        R1"});
    clickMenuItem("mnuFileItem(14)");
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_NE(bytesOf(shed).find("  A9        R1"), std::string::npos);

    acceptEdit(11, {"Sub-Area:", "  A8        R1"});
    const std::string before = bytesOf(shed);
    fs::permissions(shed, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    clickMenuItem("mnuFileItem(14)");
    EXPECT_EQ(platform.boxes.back().text, "The file " + link +
                                              " could not be saved (it is read-only). The file and the data "
                                              "of this session are as they were.");
    EXPECT_EQ(bytesOf(shed), before);
    EXPECT_TRUE(session().DataChanged);
    EXPECT_EQ(bytesOf(workFile(11)), crlf({"Sub-Area:", "  A8        R1"}));
}

TEST_F(SessionSafetyTest, AFileThatStartsWithAByteOrderMarkLoads) {
    const std::string shed = folder.file("marked.inp");
    writeBytes(shed, "\xEF\xBB\xBF" + crlf(Shed));
    openFile(shed);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(bytesOf(workFile(13)), crlf({"Brooklet: Version 1.0", "A WATERSHED"}));
    EXPECT_EQ(bytesOf(workFile(11)), crlf({"Sub-Area:", "  A1        R1"}));
}

} // namespace
} // namespace brooklet::test
