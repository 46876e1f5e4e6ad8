// The file commands of the main window when the disk lets them down: a work folder that is a
// file, that refuses new files or that fills up, a save killed before its rename, a file of two
// names. After each the engineer's file holds its old bytes or the new ones, never fewer, and the
// session is as it was.
#include "support/ui_fixture.h"
#include "support/write_faults.h"

#include "session/text_file.h"

#include <QAction>
#include <QPointer>

#include <filesystem>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace brooklet::test {
namespace {

namespace fs = std::filesystem;

const std::vector<std::string> Shed = {
    "Brooklet: Version 1.0", "A WATERSHED", "", "Sub-Area:", "  A1        R1", "",
    "Duration Increment:",   "  0.1",       ""};

class WorkSafetyTest : public UiTest {
protected:
    std::vector<std::string> workFiles() {
        std::vector<std::string> files;
        for (int i = 1; i <= WorkFileCount; ++i)
            files.push_back(bytesOf(workFile(i)));
        return files;
    }
    // The menu item as the user finds it: a disabled item does nothing.
    void pressMenuItem(const QString& name) { control<QAction>(main, name)->trigger(); }
    bool saveEnabled() { return control<QAction>(main, "mnuFileItem(14)")->isEnabled(); }
    std::string workFolder() { return folder.file("temp") + folderSeparator(); }
    std::string notOpened(const std::string& file, const std::string& reason) {
        return "The file " + file + " was not opened: its sections could not be written to the work folder " +
               workFolder() + " (" + reason + "). The session is as it was.";
    }

    WriteFaults faults;
};

TEST_F(WorkSafetyTest, AWorkFolderThatIsAFileIsToldAtStartAndOpenLoadsNothingAndSavesNothing) {
    writeBytes(folder.file("temp"), "a file where the work folder belongs");
    startMain();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(
        platform.boxes[0],
        (BoxRequest{"The work folder " + workFolder() +
                        " could not be made (a file of that name stands in its place). No input file can "
                        "be opened until it can be.",
                    "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));

    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[1], (BoxRequest{notOpened(shed, "Not a directory"), "BrookletSystem",
                                             BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(session().CurrentFile, UntitledFile);
    EXPECT_FALSE(session().DataChanged);
    EXPECT_FALSE(saveEnabled());
    EXPECT_EQ(context->windows.loaded("frmFlume"), nullptr);

    pressMenuItem("mnuFileItem(14)");
    EXPECT_EQ(bytesOf(shed), crlf(Shed));
    EXPECT_EQ(bytesOf(folder.file("temp")), "a file where the work folder belongs");
}

TEST_F(WorkSafetyTest, AReadOnlyWorkFolderIsToldAtStartAndKeepsTheSessionOfAFailedOpen) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    acceptEdit(11, {"Sub-Area:", "  A9        R1"});
    const auto before = workFiles();
    faults.refuseFolder(workFolder());
    platform.boxes.clear();

    // A new program in this folder says so at once.
    {
        Session other;
        const auto box = StartSession(other, folder.path());
        ASSERT_TRUE(box.has_value());
        EXPECT_EQ(box->text,
                  "The work folder " + workFolder() +
                      " cannot be written (Permission denied). No input file can be opened until it "
                      "can be.");
    }

    // Open, answered No (the changes are given up), cannot write the other file's sections.
    const std::string other = inputFile("other.inp", {"Sub-Area:", "  B1        R1", ""});
    platform.answers.push_back(BoxAnswer::No);
    openFile(other);
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[1].text, notOpened(other, "Permission denied"));
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_TRUE(session().DataChanged);
    EXPECT_EQ(workFiles(), before);
    EXPECT_TRUE(saveEnabled());
    EXPECT_EQ(bytesOf(other), crlf({"Sub-Area:", "  B1        R1", ""}));
    EXPECT_EQ(bytesOf(shed), crlf(Shed));
}

TEST_F(WorkSafetyTest, ADiskThatFillsDuringOpenDropsNoSectionSilently) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    faults.diskFullAfter(40); // the identification section and part of the sub-areas
    openFile(shed);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text, notOpened(shed, "No space left on device"));
    EXPECT_EQ(session().CurrentFile, UntitledFile);
    EXPECT_FALSE(saveEnabled());
    for (int i = 1; i <= WorkFileCount; ++i)
        EXPECT_FALSE(fileExists(workFile(i))) << i;
    pressMenuItem("mnuFileItem(14)");
    EXPECT_EQ(bytesOf(shed), crlf(Shed));
}

TEST_F(WorkSafetyTest, ADiskThatFillsDuringSaveKeepsTheFileAndTheSession) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    acceptEdit(11, {"Sub-Area:", "  A9        R1"});
    const auto before = workFiles();
    faults.diskFullAfter(30);
    clickMenuItem("mnuFileItem(14)");
    EXPECT_EQ(platform.boxes.back(),
              (BoxRequest{"The file " + shed +
                              " could not be saved (No space left on device). The file and "
                              "the data of this session are as they were.",
                          "Brooklet System", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(bytesOf(shed), crlf(Shed));
    EXPECT_FALSE(fileExists(shed + ".part"));
    EXPECT_TRUE(session().DataChanged);
    EXPECT_EQ(workFiles(), before);
}

TEST_F(WorkSafetyTest, ASaveKilledBeforeItsRenameLeavesTheOldFileAndTheNextSaveCleansUp) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    acceptEdit(11, {"Sub-Area:", "  A9        R1"});
    faults.stopBeforeRename(shed);
    clickMenuItem("mnuFileItem(14)");
    EXPECT_EQ(faults.faults(), 1);
    EXPECT_EQ(bytesOf(shed), crlf(Shed));
    EXPECT_TRUE(session().DataChanged);

    // A fresh load finds the file's last saved state; the next save takes up the sibling.
    platform.answers.push_back(BoxAnswer::No);
    openFile(shed);
    EXPECT_EQ(bytesOf(workFile(11)), crlf({"Sub-Area:", "  A1        R1"}));
    acceptEdit(11, {"Sub-Area:", "  A7        R1"});
    clickMenuItem("mnuFileItem(14)");
    EXPECT_EQ(platform.boxes.back().text, "Data Saved in file: " + shed);
    EXPECT_NE(bytesOf(shed).find("  A7        R1"), std::string::npos);
    EXPECT_FALSE(fileExists(shed + ".part"));
}

TEST_F(WorkSafetyTest, ALandUseSectionThatCannotBeWrittenStopsTheSave) {
    startMain();
    writeBytes(session().LocalLandUseFile, crlf({"\"Lot\",\"70\",\"75\",\"80\",\"85\"", "\"\""}));
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    acceptEdit(11, {"Sub-Area:", "  A1        R1", std::string(20, ' ') + "LAND AREA Lot"});
    faults.refuseFile("~CurveNum.tmp.part");
    clickMenuItem("mnuFileItem(14)");
    EXPECT_EQ(platform.boxes.back(),
              (BoxRequest{"The work file " + workFile(15) +
                              " could not be written (No space left on device). The file " + shed +
                              " was not saved; the file and the data of this session are as they were.",
                          "Brooklet System", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(bytesOf(shed), crlf(Shed));
    EXPECT_TRUE(session().DataChanged);
    EXPECT_FALSE(fileExists(workFile(15)));
}

TEST_F(WorkSafetyTest, ALocalLandUseFileThatCannotTakeTheMergedLandUsesIsTold) {
    startMain();
    createFolder(session().LocalLandUseFile); // a folder stands where the file belongs
    std::vector<std::string> lines = Shed;
    lines.insert(lines.end(), {"LOCAL LAND USE:", "Meadow", ""});
    const std::string shed = inputFile("shed.inp", lines);
    openFile(shed);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"The land uses that " + shed +
                              " brings along could not be added to the local land use file " +
                              session().LocalLandUseFile + " (Is a directory); it is as it was.",
                          "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    // The load itself stands.
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_EQ(bytesOf(workFile(15)), crlf({"LOCAL LAND USE:", "Meadow"}));
    EXPECT_NE(context->windows.loaded("frmFlume"), nullptr);
}

TEST_F(WorkSafetyTest, AFileThatStopsEarlyIsNotOpenedWhenItsNoteCannotBeWritten) {
    startMain();
    const std::string shed =
        inputFile("shed.inp", {"Sub-Area:", "  A1        R1", "", "Nonsense:", "  kept", ""});
    faults.refuseFile("~PartlyRead.tmp.part");
    openFile(shed);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text, notOpened(shed, "No space left on device"));
    EXPECT_EQ(session().CurrentFile, UntitledFile);
    pressMenuItem("mnuFileItem(14)");
    EXPECT_EQ(bytesOf(shed), crlf({"Sub-Area:", "  A1        R1", "", "Nonsense:", "  kept", ""}));
}

TEST_F(WorkSafetyTest, ImportedCrossSectionsThatCannotBeWrittenLeaveTheSessionAsItWas) {
    startMain();
    openFile(inputFile("shed.inp", Shed));
    const std::string reformatter = folder.file("Flume_HECRAS_Rating.exe");
    fs::copy_file(BROOKLET_STAND_IN_MODEL, reformatter, fs::copy_options::overwrite_existing);
    fs::permissions(reformatter, fs::perms::owner_all);
    writeBytes(folder.file("reformatted.txt"),
               crlf({"HEC-RAS", "REFORMATTED", "", "RIVER 1", "Stream Cross Section:", "  XS9  a"}));
    writeBytes(folder.file("stand_in_orders.txt"),
               crlf({"copy inp " + folder.file("reformatted.txt"), "lines err 3"}));
    faults.refuseFile("~Xsect.tmp.part");
    platform.boxes.clear();
    platform.openPicks.push_back(folder.file("river.txt"));
    clickMenuItem("mnuFileItem(7)");

    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{"The cross sections of " + folder.file("river.inp") +
                                                 " could not be added to the work file " + workFile(7) +
                                                 " (No space left on device). The session is as it was.",
                                             "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    // The session was closed before the import, and stays so: nothing to save under any name.
    EXPECT_EQ(session().CurrentFile, UntitledFile);
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(bytesOf(workFile(7)), "");
    EXPECT_FALSE(saveEnabled());
}

#ifndef _WIN32

TEST_F(WorkSafetyTest, SavingAFileOfTwoNamesUpdatesBothAndKeepsACopyAndThePermissions) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    fs::permissions(shed, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    const std::string twin = folder.file("twin.inp");
    fs::create_hard_link(shed, twin);
    openFile(shed);
    acceptEdit(11, {"Sub-Area:", "  A9        R1"});
    clickMenuItem("mnuFileItem(14)");

    EXPECT_EQ(platform.boxes.back().text, "Data Saved in file: " + shed);
    EXPECT_NE(bytesOf(shed).find("  A9        R1"), std::string::npos);
    EXPECT_EQ(bytesOf(twin), bytesOf(shed));
    EXPECT_EQ(fs::hard_link_count(shed), 2u);
    EXPECT_EQ(bytesOf(workFolder() + "shed.inp.old"), crlf(Shed));
    struct stat status {};
    ASSERT_EQ(::stat(shed.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

#endif

} // namespace
} // namespace brooklet::test
