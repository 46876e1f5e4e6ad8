#include "session/input_file.h"

#include "support/program_folder.h"

#include <algorithm>
#include <filesystem>

namespace brooklet::test {
namespace {

class InputFileTest : public ProgramFolderTest {
protected:
    InputFileTest() { StartSession(session, currentFolder()); }

    LoadResult load(const std::string& bytes, const std::string& name = "shed.inp") {
        session.CurrentFile = folder.file(name);
        writeBytes(session.CurrentFile, bytes);
        return LoadInputFile(session);
    }
    std::string work(int number) const { return bytesOf(session.WorkFilePath[number]); }
    bool exists(int number) const { return fileExists(session.WorkFilePath[number]); }
    // The work files that exist, by number.
    std::vector<int> existing() const {
        std::vector<int> numbers;
        for (int i = 1; i <= 16; ++i)
            if (exists(i))
                numbers.push_back(i);
        return numbers;
    }

    Session session;
};

TEST_F(InputFileTest, CutsAFileIntoOneWorkFilePerSection) {
    const auto result = load(crlf({"Brooklet: Version 1.0", "RUN ONE", "", "Sub-Area:", "  A1  R1",
                                   "  A2  R1", "", "Stream Reach:", "  R1  OUTLET", ""}));
    EXPECT_FALSE(result.box.has_value());
    EXPECT_EQ(work(13), crlf({"Brooklet: Version 1.0", "RUN ONE"}));
    EXPECT_EQ(work(11), crlf({"Sub-Area:", "  A1  R1", "  A2  R1"}));
    EXPECT_EQ(work(8), crlf({"Stream Reach:", "  R1  OUTLET"}));
    EXPECT_EQ(work(16), crlf({session.CurrentFile}));
    EXPECT_EQ(existing(), (std::vector<int>{8, 11, 13, 16}));
}

TEST_F(InputFileTest, AFileOfBlankLinesGivesOnlyTheFileNameWorkFile) {
    const auto result = load(crlf({"", "   ", "", ""}));
    EXPECT_FALSE(result.box.has_value());
    EXPECT_EQ(existing(), std::vector<int>{16});
    EXPECT_EQ(session.CurrentFile, folder.file("shed.inp"));
}

TEST_F(InputFileTest, ALastSectionWithNoBlankLineBehindItIsComplete) {
    load("Sub-Area:\r\n  A1  R1\r\n  A2  R1");
    EXPECT_EQ(work(11), crlf({"Sub-Area:", "  A1  R1", "  A2  R1"}));
    load("Sub-Area:");
    EXPECT_EQ(work(11), crlf({"Sub-Area:"}));
}

TEST_F(InputFileTest, AHeaderInLowerCaseIsRecognisedAndKeptAsWritten) {
    load(crlf({"stream reach:", "  R1"}));
    EXPECT_EQ(work(8), crlf({"stream reach:", "  R1"}));
}

TEST_F(InputFileTest, TextFromColumn41IsIgnoredForRecognitionAndKept) {
    const std::string line = "Brooklet: Version 1.0                   ENGLISH   NOPLOT";
    ASSERT_EQ(line.find("ENGLISH"), 40u);
    load(crlf({line, "TITLE"}));
    EXPECT_EQ(work(13), crlf({line, "TITLE"}));
}

TEST_F(InputFileTest, AHeaderFollowedByAnotherWordIsNotAHeader) {
    const auto result = load(crlf({"SUB-AREA: EXTRA", "  A1"}));
    ASSERT_TRUE(result.box.has_value());
    EXPECT_EQ(result.box->text, "Section Header: SUB-AREA: EXTRA not found! ");
}

TEST_F(InputFileTest, AHeaderWithinASectionIsCopiedAsARecord) {
    load(crlf({"Sub-Area:", "  A1", "Stream Reach:", "  R1", "", "Storm Analysis:", "  S1"}));
    EXPECT_EQ(work(11), crlf({"Sub-Area:", "  A1", "Stream Reach:", "  R1"}));
    EXPECT_FALSE(exists(8));
    EXPECT_EQ(work(9), crlf({"Storm Analysis:", "  S1"}));
}

TEST_F(InputFileTest, TheShortOldIdentificationHeaderBecomesExactlyTheNewOne) {
    load(crlf({"FLUME: BETA TEST", "TITLE"}));
    EXPECT_EQ(work(13), crlf({"Brooklet: Version 1.0", "TITLE"}));
}

TEST_F(InputFileTest, AnOldHeaderIsOverwrittenInPlaceKeepingColumn22On) {
    const std::string old = "FLUME: VERSION 2001                     METRIC";
    load(crlf({old, "TITLE"}));
    std::string renewed = old;
    renewed.replace(0, 21, "Brooklet: Version 1.0");
    EXPECT_EQ(work(13), crlf({renewed, "TITLE"}));
    EXPECT_EQ(renewed.substr(40), "METRIC");
    load(crlf({"flume: beta test" + std::string(24, ' ') + "x", "TITLE"}));
    EXPECT_EQ(work(13), crlf({"Brooklet: Version 1.0" + std::string(19, ' ') + "x", "TITLE"}));
}

TEST_F(InputFileTest, AnOldHeaderSetInByBlanksLeavesNothingOfItBehindTheNewOne) {
    const std::string options = "  RUN OPTIONS";
    load(crlf({"   FLUME: VERSION 2001" + std::string(18, ' ') + options, "TITLE", "", "Sub-Area:", "  A1"}));
    EXPECT_EQ(work(13), crlf({"Brooklet: Version 1.0" + std::string(19, ' ') + options, "TITLE"}));
    // Saved and read again, the whole file reads.
    session.CurrentFile = folder.file("saved.inp");
    ASSERT_TRUE(SaveInputFile(session).ok);
    EXPECT_EQ(LoadInputFile(session).stoppedAtLine, 0);
    EXPECT_EQ(work(11), crlf({"Sub-Area:", "  A1"}));
}

TEST_F(InputFileTest, TwoSectionsWithOneHeaderTheLastWins) {
    load(crlf({"Stream Reach:", "  R1", "  R2", "", "STREAM REACH:", "  R9", ""}));
    EXPECT_EQ(work(8), crlf({"STREAM REACH:", "  R9"}));
}

TEST_F(InputFileTest, AFirstLineOfProseStopsTheLoadAtOnce) {
    const auto result = load(crlf({"This is my watershed", "", "Sub-Area:", "  A1", ""}));
    ASSERT_TRUE(result.box.has_value());
    EXPECT_EQ(*result.box, (BoxRequest{"Section Header: THIS IS MY WATERSHED not found! ", "BrookletSystem",
                                       BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(existing(), std::vector<int>{16});
    EXPECT_EQ(session.CurrentFile, folder.file("shed.inp"));
}

TEST_F(InputFileTest, AnUnknownHeaderKeepsTheSectionsReadBeforeIt) {
    const auto result =
        load(crlf({"Sub-Area:", "  A1", "", "Nonsense:", "  x", "", "Stream Reach:", "  R1"}));
    ASSERT_TRUE(result.box.has_value());
    EXPECT_EQ(result.box->text, "Section Header: NONSENSE: not found! ");
    EXPECT_EQ(existing(), (std::vector<int>{11, 16}));
}

TEST_F(InputFileTest, ALoadThatStopsNotesTheLineForThatFileOnly) {
    const auto result = load(crlf({"Sub-Area:", "  A1", "", "", "Nonsense:", "  x"}));
    EXPECT_EQ(result.stoppedAtLine, 5);
    EXPECT_EQ(PartlyReadLine(session, folder.file("shed.inp")), 5);
    EXPECT_EQ(PartlyReadLine(session, folder.file("other.inp")), std::nullopt);
    // A whole load forgets it, as does a save into that file.
    EXPECT_EQ(load(crlf({"Sub-Area:", "  A1"})).stoppedAtLine, 0);
    EXPECT_EQ(PartlyReadLine(session, folder.file("shed.inp")), std::nullopt);
    load(crlf({"Nonsense:"}));
    EXPECT_EQ(PartlyReadLine(session, folder.file("shed.inp")), 1);
    ASSERT_TRUE(SaveInputFile(session).ok);
    EXPECT_EQ(PartlyReadLine(session, folder.file("shed.inp")), std::nullopt);
}

TEST_F(InputFileTest, AByteOrderMarkIsNotPartOfTheFirstHeader) {
    const auto result = load("\xEF\xBB\xBF" + crlf({"Sub-Area:", "  A1", "", "Stream Reach:", "  R1"}));
    EXPECT_FALSE(result.box.has_value());
    EXPECT_EQ(work(11), crlf({"Sub-Area:", "  A1"}));
    EXPECT_EQ(work(8), crlf({"Stream Reach:", "  R1"}));
    // Work files written by another editor with a mark read the same way.
    writeBytes(session.WorkFilePath[11], "\xEF\xBB\xBF" + crlf({"Sub-Area:", "  A2"}));
    EXPECT_EQ(readLines(session.WorkFilePath[11]), (std::vector<std::string>{"Sub-Area:", "  A2"}));
    EXPECT_EQ(readFirstLine(session.WorkFilePath[11]), "Sub-Area:");
}

TEST_F(InputFileTest, AWriteGoesThroughSymbolicLinksAndKeepsPermissions) {
    namespace fs = std::filesystem;
    const std::string target = folder.file("real.inp");
    writeBytes(target, "old\r\n");
    fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    fs::create_symlink("real.inp", folder.file("relative.inp"));
    fs::create_symlink(folder.file("relative.inp"), folder.file("chain.inp"));
    ASSERT_TRUE(writeFileAtomically(folder.file("chain.inp"), "new\r\n").ok);
    EXPECT_TRUE(fs::is_symlink(folder.file("chain.inp")));
    EXPECT_TRUE(fs::is_symlink(folder.file("relative.inp")));
    EXPECT_EQ(bytesOf(target), "new\r\n");
    EXPECT_EQ(fs::status(target).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    // A loop of links ends, and writes nothing it was not asked to.
    fs::create_symlink(folder.file("loop2"), folder.file("loop1"));
    fs::create_symlink(folder.file("loop1"), folder.file("loop2"));
    EXPECT_FALSE(writeFileAtomically(folder.file("loop1"), "x").ok);
}

TEST_F(InputFileTest, AReadOnlyFileIsRefusedAndLeftAsItIs) {
    namespace fs = std::filesystem;
    const std::string target = folder.file("locked.inp");
    writeBytes(target, "kept\r\n");
    fs::permissions(target, fs::perms::owner_read);
    const WriteResult result = writeFileAtomically(target, "lost\r\n");
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.error, "it is read-only");
    EXPECT_EQ(bytesOf(target), "kept\r\n");
    EXPECT_FALSE(fileExists(target + ".part"));
}

TEST_F(InputFileTest, OnlyColumns1To40AreUpperCasedIntoTheBoxHeader) {
    const auto result = load(crlf({std::string("abc") + std::string(45, ' ') + "tail"}));
    ASSERT_TRUE(result.box.has_value());
    EXPECT_EQ(result.box->text, "Section Header: ABC not found! ");
}

TEST_F(InputFileTest, AMissingFileMakesTheSessionUntitled) {
    writeBytes(session.WorkFilePath[8], "Stream Reach:\r\n");
    session.CurrentFile = folder.file("gone.inp");
    const auto result = LoadInputFile(session);
    ASSERT_TRUE(result.box.has_value());
    EXPECT_EQ(*result.box, (BoxRequest{"Error --- File " + folder.file("gone.inp") + " Not Found",
                                       "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(session.CurrentFile, "> Untitled <");
    EXPECT_TRUE(existing().empty()); // the folder was cleared first
}

TEST_F(InputFileTest, AnEmptyFileNameLoadsNothing) {
    writeBytes(session.WorkFilePath[8], "Stream Reach:\r\n");
    session.CurrentFile = "";
    const auto result = LoadInputFile(session);
    EXPECT_FALSE(result.box.has_value());
    EXPECT_EQ(existing(), std::vector<int>{8});
}

TEST_F(InputFileTest, ALoadClearsTheWorkFilesOfTheSessionBefore) {
    writeBytes(session.WorkFilePath[1], "Alternate Analysis:\r\n  ALT\r\n");
    writeBytes(session.WorkFilePath[15], "LOCAL LAND USE:\r\n");
    load(crlf({"Sub-Area:", "  A1"}));
    EXPECT_EQ(existing(), (std::vector<int>{11, 16}));
}

TEST_F(InputFileTest, LineEndsOfEveryKindAreRead) {
    load("Sub-Area:\n  A1\r\n  A2\r  A3\n\nStream Reach:\r\n  R1");
    EXPECT_EQ(work(11), crlf({"Sub-Area:", "  A1", "  A2", "  A3"}));
    EXPECT_EQ(work(8), crlf({"Stream Reach:", "  R1"}));
}

TEST_F(InputFileTest, ARunOfCrLfRecordsBrokenByOtherLineEndsIsWrittenWithCrLfThroughout) {
    load("\xEF\xBB\xBFSub-Area:\r\n  A1\r\n  A2\n  A3\r\n  A4\r  A5\r\n   \r\nStream Reach:\r\n  R1\r\n  R2");
    EXPECT_EQ(work(11), crlf({"Sub-Area:", "  A1", "  A2", "  A3", "  A4", "  A5"}));
    EXPECT_EQ(work(8), crlf({"Stream Reach:", "  R1", "  R2"}));
}

TEST_F(InputFileTest, ARecordWithTabsOnlyIsNotBlank) {
    // Only the blank character makes a line blank.
    load(crlf({"Sub-Area:", "\t", "  A1"}));
    EXPECT_EQ(work(11), crlf({"Sub-Area:", "\t", "  A1"}));
}

// --- saving

class SaveTest : public InputFileTest {};

TEST_F(SaveTest, JoinsTheWorkFilesInTheInputFilesOrderWithABlankLineBehindEach) {
    for (int i = 1; i <= 15; ++i)
        writeBytes(session.WorkFilePath[i], crlf({session.SectionTable[i], "  record " + std::to_string(i)}));
    session.CurrentFile = folder.file("out.inp");
    const auto result = SaveInputFile(session);
    EXPECT_TRUE(result.ok);
    std::vector<std::string> expected;
    for (int section : {13, 11, 8, 1, 9, 7, 10, 5, 2, 6, 15, 3, 4, 12, 14}) {
        expected.push_back(session.SectionTable[section]);
        expected.push_back("  record " + std::to_string(section));
        expected.push_back("");
    }
    EXPECT_EQ(bytesOf(session.CurrentFile), crlf(expected));
}

TEST_F(SaveTest, SavingANewSessionGivesOneBlankLinePerExistingWorkFile) {
    // The section list refresh creates work files 1 to 14 empty; there is no work file 15.
    for (int i = 1; i <= 14; ++i)
        writeBytes(session.WorkFilePath[i], "");
    session.CurrentFile = folder.file("new.inp");
    ASSERT_TRUE(SaveInputFile(session).ok);
    EXPECT_EQ(bytesOf(session.CurrentFile), crlf(std::vector<std::string>(14)));
}

TEST_F(SaveTest, AMissingWorkFileIsLeftOutWithoutItsBlankLine) {
    writeBytes(session.WorkFilePath[11], crlf({"Sub-Area:", "  A1"}));
    writeBytes(session.WorkFilePath[8], "");
    session.CurrentFile = folder.file("out.inp");
    SaveInputFile(session);
    EXPECT_EQ(bytesOf(session.CurrentFile), crlf({"Sub-Area:", "  A1", "", ""}));
}

TEST_F(SaveTest, BlankLinesInsideAWorkFileAreDropped) {
    writeBytes(session.WorkFilePath[11], crlf({"Sub-Area:", "  A1", "   ", "", "  A2"}));
    session.CurrentFile = folder.file("out.inp");
    SaveInputFile(session);
    EXPECT_EQ(bytesOf(session.CurrentFile), crlf({"Sub-Area:", "  A1", "  A2", ""}));
}

TEST_F(SaveTest, WorkFileLinesOfEveryEndAreSavedWithCrLfAndAByteOrderMarkIsLeftOut) {
    writeBytes(session.WorkFilePath[11], "\xEF\xBB\xBFSub-Area:\r\n  A1\n  A2\r  A3\r\n\r\n  A4\r\n  A5");
    writeBytes(session.WorkFilePath[8], "Stream Reach:\n  R1\n");
    session.CurrentFile = folder.file("out.inp");
    SaveInputFile(session);
    EXPECT_EQ(bytesOf(session.CurrentFile),
              crlf({"Sub-Area:", "  A1", "  A2", "  A3", "  A4", "  A5", "", "Stream Reach:", "  R1", ""}));
}

TEST_F(SaveTest, ASaveWritesTheFileNameClearsDataChangedAndSaysSo) {
    session.CurrentFile = folder.file("out.inp");
    session.DataChanged = true;
    const auto result = SaveInputFile(session);
    EXPECT_EQ(result.box, (BoxRequest{"Data Saved in file: " + folder.file("out.inp"), "Brooklet System",
                                      BoxButtons::Ok, BoxIcon::None}));
    EXPECT_FALSE(session.DataChanged);
    EXPECT_EQ(bytesOf(session.WorkFilePath[16]), crlf({folder.file("out.inp")}));
}

TEST_F(SaveTest, ASaveDeletesTheResultFilesOfItsNameEvenWhenNothingChanged) {
    session.CurrentFile = folder.file("shed.inp");
    for (const char* extension : {"out", "hyd", "ecn", "err", "dbg"})
        writeBytes(folder.file(std::string("shed.") + extension), "result\r\n");
    writeBytes(folder.file("other.out"), "result\r\n");
    SaveInputFile(session);
    for (const char* extension : {"out", "hyd", "ecn", "err", "dbg"})
        EXPECT_FALSE(fileExists(folder.file(std::string("shed.") + extension))) << extension;
    EXPECT_TRUE(fileExists(folder.file("other.out")));
    EXPECT_TRUE(fileExists(folder.file("shed.inp")));
}

TEST_F(SaveTest, AFileThatCannotBeWrittenLeavesEverythingAsItWas) {
    const std::string target = folder.file("no such folder/shed.inp");
    writeBytes(session.WorkFilePath[11], crlf({"Sub-Area:", "  A1"}));
    writeBytes(session.WorkFilePath[16], crlf({"/earlier.inp"}));
    session.CurrentFile = target;
    session.DataChanged = true;
    const auto result = SaveInputFile(session);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.box.title, "Brooklet System");
    EXPECT_EQ(result.box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(result.box.text,
              "The file " + target +
                  " could not be saved (No such file or directory). The file and the data of this "
                  "session are as they were.");
    EXPECT_TRUE(session.DataChanged);
    EXPECT_EQ(bytesOf(session.WorkFilePath[16]), crlf({"/earlier.inp"}));
    EXPECT_EQ(bytesOf(session.WorkFilePath[11]), crlf({"Sub-Area:", "  A1"}));
}

TEST_F(SaveTest, AFolderInPlaceOfTheFileCannotBeWritten) {
    // Works whatever the rights: a folder stands where the file should go.
    createFolder(folder.file("shed.inp"));
    session.CurrentFile = folder.file("shed.inp");
    session.DataChanged = true;
    writeBytes(folder.file("shed.out"), "result\r\n");
    const auto result = SaveInputFile(session);
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(session.DataChanged);
    EXPECT_TRUE(folderExists(folder.file("shed.inp")));
    EXPECT_TRUE(fileExists(folder.file("shed.out")));
    EXPECT_FALSE(fileExists(folder.file("shed.inp.part")));
}

// --- round trips

TEST_F(SaveTest, ACanonicalFileRoundTripsByteForByte) {
    const std::string original = bytesOf(testDataPath("canonical.inp"));
    ASSERT_FALSE(original.empty());
    load(original);
    const std::vector<int> expected = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    EXPECT_EQ(existing(), expected);
    session.CurrentFile = folder.file("saved.inp");
    ASSERT_TRUE(SaveInputFile(session).ok);
    EXPECT_EQ(bytesOf(session.CurrentFile), original);
}

TEST_F(SaveTest, AnUnorderedFileIsSavedInOrderAndReadsBackToTheSameWorkFiles) {
    load(bytesOf(testDataPath("unordered.inp")));
    std::vector<std::string> first;
    for (int i = 1; i <= 15; ++i)
        first.push_back(work(i));
    session.CurrentFile = folder.file("saved.inp");
    ASSERT_TRUE(SaveInputFile(session).ok);

    // The saved file is the canonical one, with the headers spelled as the unordered file had them.
    std::string expected = bytesOf(testDataPath("canonical.inp"));
    auto respell = [&expected](const std::string& from, const std::string& to) {
        expected.replace(expected.find(from), from.size(), to);
    };
    respell("Brooklet: Version 1.0   ", "BROOKLET: VERSION 1.0   ");
    respell("Sub-Area:", "sub-area:");
    respell("LOCAL LAND USE:", "Local Land Use:");
    respell("Global Output:", "GLOBAL OUTPUT:");
    respell("Time Analysis:", "time analysis:");
    EXPECT_EQ(bytesOf(session.CurrentFile), expected);

    load(bytesOf(session.CurrentFile), "saved.inp");
    for (int i = 1; i <= 15; ++i)
        EXPECT_EQ(work(i), first[i - 1]) << i;
}

TEST_F(SaveTest, TheExampleWatershedRoundTripsByteForByte) {
    const std::string original = bytesOf(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp");
    ASSERT_FALSE(original.empty());
    EXPECT_FALSE(load(original).box.has_value());
    // The list refresh gives every listed section its work file, as in a session.
    for (int i = 1; i <= 14; ++i)
        touchFile(session.WorkFilePath[i]);
    session.CurrentFile = folder.file("saved.inp");
    ASSERT_TRUE(SaveInputFile(session).ok);
    EXPECT_EQ(bytesOf(session.CurrentFile), original);
}

// --- the reformatter's cross sections

class ReformattedTest : public InputFileTest {
protected:
    void reformatterWrote(const std::vector<std::string>& lines) {
        session.CurrentFile = folder.file("river.inp");
        writeBytes(session.CurrentFile, crlf(lines));
    }
};

TEST_F(ReformattedTest, HeaderAndRecordsStartAnEmptySection) {
    reformatterWrote({"l1", "l2", "l3", "l4", "Stream Cross Section:", "  XS9  a", "  XS9  b"});
    AppendReformattedSections(session);
    EXPECT_EQ(work(7), crlf({"Stream Cross Section:", "  XS9  a", "  XS9  b"}));
}

TEST_F(ReformattedTest, RecordsAreAddedBehindExistingRecords) {
    writeBytes(session.WorkFilePath[7], crlf({"Stream Cross Section:", "  XS1  a"}));
    reformatterWrote({"l1", "l2", "l3", "l4", "STREAM CROSS SECTION:", "  XS9  a"});
    AppendReformattedSections(session);
    EXPECT_EQ(work(7), crlf({"Stream Cross Section:", "  XS1  a", "  XS9  a"}));
}

TEST_F(ReformattedTest, AWorkFileWithOnlyItsHeaderGetsTheHeaderAgain) {
    // Only a record behind the first line counts as data already there.
    writeBytes(session.WorkFilePath[7], crlf({"Stream Cross Section:"}));
    reformatterWrote({"l1", "l2", "l3", "l4", "Stream Cross Section:", "  XS9  a"});
    AppendReformattedSections(session);
    EXPECT_EQ(work(7), crlf({"Stream Cross Section:", "Stream Cross Section:", "  XS9  a"}));
}

TEST_F(ReformattedTest, AnEmptyOrMissingFileAddsNothing) {
    writeBytes(session.WorkFilePath[7], crlf({"Stream Cross Section:", "  XS1  a"}));
    reformatterWrote({});
    AppendReformattedSections(session);
    session.CurrentFile = folder.file("missing.inp");
    AppendReformattedSections(session);
    EXPECT_EQ(work(7), crlf({"Stream Cross Section:", "  XS1  a"}));
}

} // namespace
} // namespace brooklet::test
