#include "session/section_table.h"
#include "session/text_file.h"
#include "support/program_folder.h"

#include <filesystem>

namespace brooklet::test {
namespace {

using SectionTableTest = ProgramFolderTest;

TEST_F(SectionTableTest, StartCreatesTheWorkFolderSilently) {
    ASSERT_FALSE(folderExists(folder.file("temp")));
    Session session;
    StartSession(session, currentFolder());
    EXPECT_TRUE(folderExists(folder.file("temp")));
    EXPECT_EQ(session.WorkFolder, folder.file("temp") + "/");
    EXPECT_EQ(session.ProgramFolder, folder.path() + "/");
    EXPECT_EQ(session.LastFolder, session.ProgramFolder);
}

TEST_F(SectionTableTest, StartSetsTheSessionVariables) {
    Session session;
    session.CurrentFile = "x";
    session.DataChanged = true;
    session.ToolName = "tool";
    StartSession(session, currentFolder());
    EXPECT_EQ(session.CurrentFile, "> Untitled <");
    EXPECT_FALSE(session.DataChanged);
    EXPECT_EQ(session.ToolName, "");
    EXPECT_EQ(session.EditorTitle, "Brooklet Editor 2001");
    EXPECT_TRUE(session.EnglishUnits);
    EXPECT_EQ(session.ViewIndex, 0);
    EXPECT_EQ(session.OutputPath, "");
    EXPECT_EQ(session.LocalLandUseFile, folder.file("Local_Land_Use_Data.txt"));
    EXPECT_EQ(session.LocalSoilFile, folder.file("Local_Soil_HSG.txt"));
    EXPECT_EQ(session.HelpListFile, folder.file("BrookletHelp.lst"));
}

TEST_F(SectionTableTest, TablesHoldTheSectionsWorkFilesAndExtensions) {
    Session session;
    StartSession(session, currentFolder());
    const char* headers[] = {"Alternate Analysis:",
                             "Dimensionless Unit Hydrograph:",
                             "Duration Increment:",
                             "Global Output:",
                             "Input Hydrograph:",
                             "Rainfall Distribution:",
                             "Stream Cross Section:",
                             "Stream Reach:",
                             "Storm Analysis:",
                             "Structure Rating:",
                             "Sub-Area:",
                             "Time Analysis:",
                             "Brooklet: Version 1.0",
                             "Verification:",
                             "Local Land Use:"};
    const char* files[] = {"~Alter.tmp",   "~Unit_Hyd.tmp", "~DurInc.tmp",   "~Global.tmp",
                           "~InpHyd.tmp",  "~RainDist.tmp", "~Xsect.tmp",    "~Reach.tmp",
                           "~Storm.tmp",   "~Struct.tmp",   "~SubArea.tmp",  "~TimeA.tmp",
                           "~Flumeid.tmp", "~Verif.tmp",    "~CurveNum.tmp", "~filename.tmp"};
    for (int i = 1; i <= 15; ++i)
        EXPECT_EQ(session.SectionTable[i], headers[i - 1]) << i;
    for (int i = 1; i <= 16; ++i)
        EXPECT_EQ(session.WorkFilePath[i], session.WorkFolder + files[i - 1]) << i;
    const char* extensions[] = {"inp", "", "", "out", "err", "dbg", "hyd", "ecn"};
    for (int i = 1; i <= 8; ++i)
        EXPECT_EQ(session.ResultExtension[i], extensions[i - 1]) << i;
}

TEST_F(SectionTableTest, StartLeavesTheWorkFilesOfAnEarlierSessionAlone) {
    createFolder(folder.file("temp"));
    writeBytes(folder.file("temp/~Reach.tmp"), "Stream Reach:\r\n");
    writeBytes(folder.file("temp/~filename.tmp"), "/x/a.inp\r\n");
    Session session;
    StartSession(session, currentFolder());
    EXPECT_EQ(bytesOf(folder.file("temp/~Reach.tmp")), "Stream Reach:\r\n");
    EXPECT_EQ(bytesOf(folder.file("temp/~filename.tmp")), "/x/a.inp\r\n");
}

TEST_F(SectionTableTest, ClearingRemovesEveryWorkFileAndNothingElse) {
    Session session;
    StartSession(session, currentFolder());
    writeBytes(session.WorkFilePath[8], "Stream Reach:\r\n");
    writeBytes(session.WorkFilePath[16], "/x/a.inp\r\n");
    writeBytes(session.WorkFolder + "notes.txt", "keep");
    ClearWorkFiles(session);
    EXPECT_FALSE(fileExists(session.WorkFilePath[8]));
    EXPECT_FALSE(fileExists(session.WorkFilePath[16]));
    EXPECT_TRUE(fileExists(session.WorkFolder + "notes.txt"));
    ClearWorkFiles(session); // nothing left to match: silent
}

TEST(BaseName, CutsBehindTheLastPointKeepingIt) {
    EXPECT_EQ(BaseName("/data/b.inp"), "/data/b.");
    EXPECT_EQ(BaseName("/data/b.v2.inp"), "/data/b.v2.");
}

TEST(BaseName, APointInAFolderNameIsNoExtension) {
    // Results of "/data/my.projects/shed" are "shed.out" in that folder, never "/data/my.out".
    EXPECT_EQ(BaseName("/data/run.1/watershed"), "/data/run.1/watershed.");
    EXPECT_EQ(BaseName("my.projects/shed"), "my.projects/shed.");
    EXPECT_EQ(BaseName("/data/run.1/shed.inp"), "/data/run.1/shed.");
}

TEST(WithDefaultExtension, IsAddedOnlyToANameWithoutExtension) {
    EXPECT_EQ(WithDefaultExtension("/data/my.projects/shed", "inp"), "/data/my.projects/shed.inp");
    EXPECT_EQ(WithDefaultExtension("/data/shed.dat", "inp"), "/data/shed.dat");
    EXPECT_EQ(WithDefaultExtension("/data/shed", ""), "/data/shed");
}

TEST(FilterPatternExtension, IsTheExtensionOfTheChosenFiltersSinglePattern) {
    const std::string filter = "All Files (*.*)|*.*|Bitmap Files (*.bmp)|*.bmp|Pictures|*.png;*.jpg";
    EXPECT_EQ(FilterPatternExtension(filter, 2), "bmp");
    EXPECT_EQ(FilterPatternExtension(filter, 1), "");
    EXPECT_EQ(FilterPatternExtension(filter, 3), "");
    EXPECT_EQ(FilterPatternExtension(filter, 4), "");
    EXPECT_EQ(FilterPatternExtension(filter, 0), "");
    EXPECT_EQ(FilterPatternExtension("", 1), "");
    EXPECT_EQ(FilterPatternExtension("Broken|", 1), "");
}

TEST(BaseName, ANameWithNoPointGetsOne) {
    EXPECT_EQ(BaseName("/data/watershed"), "/data/watershed.");
    EXPECT_EQ(BaseName(""), ".");
}

TEST(DirectoryPart, KeepsTheLastSeparator) {
    EXPECT_EQ(DirectoryPart("/data/sheds/a.inp"), "/data/sheds/");
    EXPECT_EQ(DirectoryPart("  /data/a.inp  "), "/data/");
}

TEST(DirectoryPart, APathWithNoSeparatorIsReturnedUnchanged) {
    EXPECT_EQ(DirectoryPart(" a.inp "), " a.inp ");
}

} // namespace
} // namespace brooklet::test
