// Every write is checked: a file whose write fails holds its old bytes or the new ones, never
// fewer; files of several names are written in place; permissions are kept; a load whose work
// files cannot all be written changes nothing.
#include "session/input_file.h"
#include "session/text_file.h"

#include "support/program_folder.h"
#include "support/write_faults.h"

#include <filesystem>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace brooklet::test {
namespace {

namespace fs = std::filesystem;

const std::string Old = crlf({"Sub-Area:", "  A1        R1", ""});
const std::string New = crlf({"Sub-Area:", "  A1        R1", "  A2        R1", "  A3        R1", ""});

class FileWritingTest : public ProgramFolderTest {
protected:
    std::string file = folder.file("shed.inp");
    WriteFaults faults;
};

TEST_F(FileWritingTest, AFullDiskLeavesTheOldBytesAndNoSibling) {
    writeBytes(file, Old);
    faults.diskFullAfter(10);
    const WriteResult written = writeFileAtomically(file, New, WriteOptions{true, {}});
    EXPECT_FALSE(written.ok);
    EXPECT_EQ(written.error, "No space left on device");
    EXPECT_EQ(bytesOf(file), Old);
    EXPECT_FALSE(fileExists(file + ".part"));
}

TEST_F(FileWritingTest, AWriteStoppedBeforeTheRenameLeavesTheOldFileAndTheNextWriteTakesUpTheSibling) {
    writeBytes(file, Old);
    faults.stopBeforeRename(file);
    EXPECT_FALSE(writeFileAtomically(file, New).ok);
    EXPECT_EQ(bytesOf(file), Old);
    EXPECT_EQ(bytesOf(file + ".part"), New); // what a killed program leaves

    WriteFaults none; // a new program, whose writes run to their end
    EXPECT_TRUE(writeFileAtomically(file, New).ok);
    EXPECT_EQ(bytesOf(file), New);
    EXPECT_FALSE(fileExists(file + ".part"));
}

#ifndef _WIN32

mode_t modeOf(const std::string& path) {
    struct stat status {};
    ::stat(path.c_str(), &status);
    return status.st_mode & 07777;
}

nlink_t linksOf(const std::string& path) {
    struct stat status {};
    ::stat(path.c_str(), &status);
    return status.st_nlink;
}

TEST_F(FileWritingTest, AWriteKeepsThePermissionsOfTheFile) {
    writeBytes(file, Old);
    ::chmod(file.c_str(), 0640);
    EXPECT_TRUE(writeFileAtomically(file, New, WriteOptions{true, {}}).ok);
    EXPECT_EQ(bytesOf(file), New);
    EXPECT_EQ(modeOf(file), mode_t(0640));
}

TEST_F(FileWritingTest, AFileOfTwoNamesIsWrittenInPlaceAfterACopyOfItIsKept) {
    writeBytes(file, Old);
    ::chmod(file.c_str(), 0640);
    const std::string other = folder.file("same.inp");
    fs::create_hard_link(file, other);
    const std::string keep = folder.file("keep") + "/";
    createFolder(keep);

    EXPECT_TRUE(writeFileAtomically(file, New, WriteOptions{true, keep}).ok);
    EXPECT_EQ(bytesOf(file), New);
    EXPECT_EQ(bytesOf(other), New);
    EXPECT_EQ(linksOf(file), nlink_t(2));
    EXPECT_EQ(modeOf(other), mode_t(0640));
    EXPECT_EQ(bytesOf(keep + "shed.inp.old"), Old);

    // Shorter data leave nothing of the longer behind.
    EXPECT_TRUE(writeFileAtomically(file, Old, WriteOptions{true, keep}).ok);
    EXPECT_EQ(bytesOf(other), Old);
    EXPECT_EQ(bytesOf(keep + "shed.inp.old"), New);
}

TEST_F(FileWritingTest, AFileOfTwoNamesThatFillsTheDiskGetsItsOldBytesBack) {
    writeBytes(file, Old);
    const std::string other = folder.file("same.inp");
    fs::create_hard_link(file, other);
    const std::string keep = folder.file("keep") + "/";
    createFolder(keep);
    faults.diskFullAfter(Old.size() + 5); // the copy, then five bytes of the new data

    const WriteResult written =
        writeFileAtomically(file, std::vector<std::string_view>{"12345", New}, WriteOptions{true, keep});
    EXPECT_FALSE(written.ok);
    EXPECT_EQ(written.error, "No space left on device");
    EXPECT_EQ(bytesOf(file), Old);
    EXPECT_EQ(bytesOf(other), Old);
}

TEST_F(FileWritingTest, AFileOfTwoNamesIsNotTouchedWhenNoCopyCanBeKept) {
    writeBytes(file, Old);
    fs::create_hard_link(file, folder.file("same.inp"));
    const WriteResult written =
        writeFileAtomically(file, New, WriteOptions{true, folder.file("no such") + "/"});
    EXPECT_FALSE(written.ok);
    EXPECT_EQ(written.error.rfind(
                  "a copy of it could not be kept as " + folder.file("no such") + "/shed.inp.old", 0),
              0u);
    EXPECT_EQ(bytesOf(file), Old);
    EXPECT_EQ(bytesOf(folder.file("same.inp")), Old);
}

#endif

TEST_F(FileWritingTest, AFolderThatRefusesNewFilesIsFoundOut) {
    const std::string work = folder.file("work") + "/";
    createFolder(work);
    EXPECT_TRUE(checkFolderWritable(work).ok);
    faults.refuseFolder(work);
    EXPECT_EQ(checkFolderWritable(work).error, "Permission denied");
    faults.restoreFolders();
    writeBytes(folder.file("plain"), "x");
    EXPECT_EQ(checkFolderWritable(folder.file("plain") + "/").error, "Not a directory");
    EXPECT_TRUE(fs::is_empty(work));
}

TEST_F(FileWritingTest, AFileSetTakesItsPlacesOnlyWhenEveryFileWasWritten) {
    writeBytes(folder.file("a"), "old a");
    writeBytes(folder.file("b"), "old b");
    {
        FileSet files;
        EXPECT_TRUE(files.add(folder.file("a"), {"new a"}).ok);
        faults.diskFullAfter(0);
        EXPECT_FALSE(files.add(folder.file("b"), {"new b"}).ok);
    }
    EXPECT_EQ(bytesOf(folder.file("a")), "old a");
    EXPECT_EQ(bytesOf(folder.file("b")), "old b");
    EXPECT_FALSE(fileExists(folder.file("a.part")));
    EXPECT_FALSE(fileExists(folder.file("b.part")));

    faults.diskFullAfter(100);
    FileSet files;
    EXPECT_TRUE(files.add(folder.file("a"), {"first"}).ok);
    EXPECT_TRUE(files.add(folder.file("a"), {"new a"}).ok); // the second write of a path wins
    EXPECT_TRUE(files.add(folder.file("b"), {"new b"}).ok);
    EXPECT_EQ(bytesOf(folder.file("a")), "old a");
    EXPECT_TRUE(files.place().ok);
    EXPECT_EQ(bytesOf(folder.file("a")), "new a");
    EXPECT_EQ(bytesOf(folder.file("b")), "new b");
}

// --- the load

class LoadFaultTest : public FileWritingTest {
protected:
    LoadFaultTest() { StartSession(session, currentFolder()); }
    std::vector<std::string> workFiles() const {
        std::vector<std::string> files;
        for (int i = 1; i <= WorkFileCount; ++i)
            files.push_back(bytesOf(session.WorkFilePath[i]));
        return files;
    }
    Session session;
};

TEST_F(LoadFaultTest, ADiskThatFillsInTheMiddleOfALoadFailsItWholeAndKeepsTheWorkFiles) {
    writeBytes(session.WorkFilePath[11], crlf({"Sub-Area:", "  EARLIER"}));
    writeBytes(session.WorkFilePath[16], crlf({folder.file("earlier.inp")}));
    const auto before = workFiles();
    const std::string shed = crlf(
        {"Brooklet: Version 1.0", "RUN", "", "Sub-Area:", "  A1        R1", "", "Stream Reach:", "  R1", ""});
    writeBytes(file, shed);
    session.CurrentFile = file;
    faults.diskFullAfter(40); // the identification section and the header of the sub-areas

    const LoadResult result = LoadInputFile(session);
    EXPECT_TRUE(result.failed);
    ASSERT_TRUE(result.box.has_value());
    EXPECT_EQ(*result.box,
              (BoxRequest{"The file " + file +
                              " was not opened: its sections could not be written to the work folder " +
                              session.WorkFolder + " (No space left on device). The session is as it was.",
                          "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(workFiles(), before);
    EXPECT_EQ(bytesOf(file), shed);
    for (const auto& entry : fs::directory_iterator(session.WorkFolder))
        EXPECT_EQ(entry.path().extension(), ".tmp") << entry.path();
}

TEST_F(LoadFaultTest, ALoadThatStopsEarlyFailsWhenItsNoteCannotBeWritten) {
    writeBytes(file, crlf({"Sub-Area:", "  A1", "", "Nonsense:", ""}));
    session.CurrentFile = file;
    faults.refuseFile("~PartlyRead.tmp.part");
    const LoadResult result = LoadInputFile(session);
    EXPECT_TRUE(result.failed);
    EXPECT_EQ(result.stoppedAtLine, 0);
    EXPECT_FALSE(fileExists(session.WorkFilePath[11]));
    EXPECT_FALSE(fileExists(session.WorkFilePath[16]));
}

TEST_F(LoadFaultTest, ReformattedCrossSectionsThatCannotBeWrittenLeaveTheWorkFile) {
    writeBytes(session.WorkFilePath[7], crlf({"Stream Cross Section:", "  XS1  a"}));
    session.CurrentFile = folder.file("river.inp");
    writeBytes(session.CurrentFile, crlf({"l1", "l2", "l3", "l4", "Stream Cross Section:", "  XS9  a"}));
    faults.diskFullAfter(3);
    const WriteResult appended = AppendReformattedSections(session);
    EXPECT_FALSE(appended.ok);
    EXPECT_EQ(appended.error, "No space left on device");
    EXPECT_EQ(bytesOf(session.WorkFilePath[7]), crlf({"Stream Cross Section:", "  XS1  a"}));
}

TEST_F(LoadFaultTest, ASaveWhoseFileNameWorkFileCannotBeWrittenSaysSoBesideTheSavedWords) {
    writeBytes(session.WorkFilePath[11], crlf({"Sub-Area:", "  A1"}));
    session.CurrentFile = file;
    session.DataChanged = true;
    faults.refuseFile("~filename.tmp.part");
    const SaveResult result = SaveInputFile(session);
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.box.text,
              "Data Saved in file: " + file + "\r\rThe work file " + session.WorkFilePath[16] +
                  " could not be written (No space left on device): ReOpen Last Session will "
                  "not find this file.");
    EXPECT_EQ(bytesOf(file), crlf({"Sub-Area:", "  A1", ""}));
    EXPECT_FALSE(session.DataChanged);
}

TEST_F(LoadFaultTest, AStartInAFolderWhoseWorkFolderIsAFileSaysSo) {
    const std::string start = folder.file("elsewhere");
    createFolder(start);
    writeBytes(start + "/temp", "not a folder");
    Session other;
    const auto box = StartSession(other, start);
    ASSERT_TRUE(box.has_value());
    EXPECT_EQ(*box, (BoxRequest{"The work folder " + start +
                                    "/temp/ could not be made (a file of that name stands "
                                    "in its place). No input file can be opened until it can be.",
                                "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(bytesOf(start + "/temp"), "not a folder");
    // Readers of the work folder find every section empty.
    EXPECT_TRUE(readLines(other.WorkFilePath[11]).empty());
    EXPECT_FALSE(StartSession(session, currentFolder()).has_value());
}

} // namespace
} // namespace brooklet::test
