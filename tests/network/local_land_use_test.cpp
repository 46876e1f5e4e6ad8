#include "network/local_land_use.h"

#include "session/section_table.h"
#include "session/text_file.h"
#include "support/program_folder.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

using Rows = std::vector<LandUseRow>;
using Lines = std::vector<std::string>;

std::string padded(std::string text, size_t width) {
    if (text.size() < width)
        text.resize(width, ' ');
    return text;
}

// A land use record of a sub-area: the keyword in columns 21-30, the land use in 31-65, the
// soil group in 66-70 and the area in 71-80.
std::string landArea(const std::string& name, const std::string& group = "B",
                     const std::string& area = "12.5") {
    return std::string(20, ' ') + "LAND AREA " + padded(name, 35) + padded(group, 5) + area;
}

// A land use line of the alternates, as the section build looks for it.
std::string alternateLandUse(const std::string& name) {
    return padded("LAND USE", 30) + padded(name, 35) + "C    3.";
}

// ---- reading the file ---------------------------------------------------------------------------

TEST(LandUseRecordsTest, FiveValuesMakeARecordAndTheClosingLineNone) {
    const std::string file =
        "\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"Yard\",\"\",\"61\",\"74\",\"80\"\r\n\"\"\r\n";
    const Rows expected{{"Lot", "70", "75", "80", "85"}, {"Yard", "", "61", "74", "80"}};
    for (BlankName rule :
         {BlankName::SkipLine, BlankName::SkipItem, BlankName::DropRecord, BlankName::EndReading})
        EXPECT_EQ(ReadLandUseRecords(file, rule), expected) << int(rule);
}

TEST(LandUseRecordsTest, ABlankNameMidFileIsTreatedByTheReadersRule) {
    const std::string file = "\"\",\"1\",\"2\",\"3\",\"4\"\r\n\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n";
    const LandUseRow lot{"Lot", "70", "75", "80", "85"};
    // The window's load passes over the rest of the line.
    EXPECT_EQ(ReadLandUseRecords(file, BlankName::SkipLine), Rows{lot});
    // The merge passes over the blank value alone: the next value starts a record.
    EXPECT_EQ(ReadLandUseRecords(file, BlankName::SkipItem),
              (Rows{{"1", "2", "3", "4", "Lot"}, {"70", "75", "80", "85", ""}}));
    // The section build reads the record of five and drops it.
    EXPECT_EQ(ReadLandUseRecords(file, BlankName::DropRecord), Rows{lot});
    // The calculator stops at it.
    EXPECT_TRUE(ReadLandUseRecords(file, BlankName::EndReading).empty());
}

TEST(LandUseRecordsTest, ARecordCutShortByTheEndKeepsWhatItHas) {
    EXPECT_EQ(ReadLandUseRecords("\"Lot\",\"70\",\"75\"", BlankName::SkipLine),
              (Rows{{"Lot", "70", "75", "", ""}}));
}

TEST(LandUseRecordsTest, RecordsRunOverLineEnds) {
    EXPECT_EQ(ReadLandUseRecords("\"Lot\",\"70\"\r\n\"75\",\"80\"\r\n\"85\"\r\n", BlankName::SkipLine),
              (Rows{{"Lot", "70", "75", "80", "85"}}));
}

TEST(LandUseRecordsTest, AFileInTheMergedFormReadsFiveValuesToARecord) {
    // "name",,a,b,c,d holds six values, so the records slide along the lines.
    EXPECT_EQ(ReadLandUseRecords("\"Lot\",,70,75,80,85\r\n", BlankName::SkipItem),
              (Rows{{"Lot", "", "70", "75", "80"}, {"85", "", "", "", ""}}));
}

class LocalLandUseFileTest : public ProgramFolderTest {
protected:
    LocalLandUseFileTest() { StartSession(session, currentFolder()); }
    void localFile(const std::string& bytes) { writeBytes(session.LocalLandUseFile, bytes); }
    std::string localFileBytes() const { return bytesOf(session.LocalLandUseFile); }
    void work(int number, const Lines& lines) { writeBytes(session.WorkFilePath[number], crlf(lines)); }
    std::string workBytes(int number) const { return bytesOf(session.WorkFilePath[number]); }
    Session session;
};

TEST_F(LocalLandUseFileTest, AFileThatCannotBeOpenedReadsAsEmpty) {
    EXPECT_TRUE(ReadLocalLandUseFile(session.LocalLandUseFile, BlankName::SkipLine).empty());
    localFile("\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n");
    EXPECT_EQ(ReadLocalLandUseFile(session.LocalLandUseFile, BlankName::SkipLine),
              (Rows{{"Lot", "70", "75", "80", "85"}}));
}

TEST_F(LocalLandUseFileTest, AByteOrderMarkAtTheStartIsNoPartOfTheFirstName) {
    localFile("\xEF\xBB\xBF\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n");
    EXPECT_EQ(ReadLocalLandUseFile(session.LocalLandUseFile, BlankName::SkipLine),
              (Rows{{"Lot", "70", "75", "80", "85"}}));
    // So the merge knows the name and leaves the file alone.
    work(15, {"Lot"});
    bool changed = true;
    EXPECT_TRUE(MergeLocalLandUse(session, changed).ok);
    EXPECT_FALSE(changed);
}

TEST(LocalLandUseReferenceFileTest, ReadsAndWritesBackByteForByte) {
    const std::string original = bytesOf(testDataPath("Local_Land_Use_Data.txt"));
    const Rows rows = ReadLandUseRecords(original, BlankName::SkipLine);
    ASSERT_EQ(rows, (Rows{{"Lot", "70", "75", "80", "85"},
                          {"Yard", "", "61", "74", "80"},
                          {"Orchard, old", "45.5", "66", "77", "83"}}));
    LocalTable table;
    table.reset(0);
    for (const LandUseRow& row : rows)
        table.addRow(row);
    EXPECT_EQ(joinLines(LocalLandUseFileLines(table)), original);
}

// ---- the window's writer and checks --------------------------------------------------------------

TEST(LocalLandUseFileLinesTest, WritesRowsWithANameAndACurveNumberOf30OrMore) {
    LocalTable table;
    table.reset(0);
    table.addRow(LandUseRow{"Lot", "70", "75", "80", "85"});
    table.addRow(LandUseRow{"Blank numbers", "", "", "", ""});
    table.addRow(LandUseRow{"Low", "29", "29.9", "", ""});
    table.addRow(LandUseRow{"", "70", "75", "80", "85"});
    table.addRow(LandUseRow{"Range", "", "", "", "30"});
    table.addRow(LandUseRow{"Words", "abc", "", "", ""});
    table.addRow(LandUseRow{" Padded ", "30.", "", "", ""});
    EXPECT_EQ(LocalLandUseFileLines(table),
              (Lines{"\"Lot\",\"70\",\"75\",\"80\",\"85\"", "\"Range\",\"\",\"\",\"\",\"30\"",
                     "\" Padded \",\"30.\",\"\",\"\",\"\"", "\"\""}));
}

TEST(LocalLandUseFileLinesTest, ADeletedRowIsPassedOverAndAnEmptyTableWritesTheClosingLineOnly) {
    LocalTable table;
    table.reset(0);
    EXPECT_EQ(LocalLandUseFileLines(table), Lines{"\"\""});
    table.addRow(LandUseRow{"Lot", "70", "75", "80", "85"});
    table.addRow(LandUseRow{"Yard", "40", "", "", ""});
    table.emptyRow(1);
    EXPECT_EQ(table.Count, 2);
    EXPECT_EQ(LocalLandUseFileLines(table), (Lines{"\"Yard\",\"40\",\"\",\"\",\"\"", "\"\""}));
}

TEST(CurveNumberCheckTest, ANumberFrom30To100OrBlank) {
    for (const char* good : {"30", "100", "65.5", "", "   "})
        EXPECT_TRUE(CurveNumberAccepted(2, good, "")) << good;
    for (const char* bad : {"29.99", "100.01", "-70", "7O", "abc"})
        EXPECT_FALSE(CurveNumberAccepted(2, bad, "")) << bad;
}

TEST(CurveNumberCheckTest, BoxesThreeToFiveMayNotFallBelowTheBoxBefore) {
    EXPECT_FALSE(CurveNumberAccepted(3, "60", "70"));
    EXPECT_TRUE(CurveNumberAccepted(3, "70", "70"));
    EXPECT_TRUE(CurveNumberAccepted(4, "71", "70"));
    EXPECT_FALSE(CurveNumberAccepted(5, "79.9", "80"));
    // Box 2 has no box before it to compare with.
    EXPECT_TRUE(CurveNumberAccepted(2, "40", "90"));
}

TEST(CurveNumberCheckTest, ABlankBoxCountsAsZero) {
    EXPECT_TRUE(CurveNumberAccepted(3, "61", ""));
    EXPECT_FALSE(CurveNumberAccepted(3, "", "70"));
    EXPECT_TRUE(CurveNumberAccepted(3, "", ""));
}

// ---- the merge after a load ---------------------------------------------------------------------

TEST(MergedLandUseLineTest, TheNameQuotedThenTwoCommasAndTheFourTexts) {
    EXPECT_EQ(MergedLandUseLine({"Lot", "70", "75", "80", "85"}), "\"Lot\",,70,75,80,85");
    EXPECT_EQ(MergedLandUseLine({"New", "", "", "", ""}), "\"New\",,,,,");
}

TEST_F(LocalLandUseFileTest, TheMergeKeepsEveryLineOfASavedSectionAsAName) {
    localFile("\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n");
    const Lines section{"LOCAL LAND USE:", padded("Orchard", 50) + "45.  66.  77.  83.  "};
    work(LocalLandUseSection, section);
    bool changed = false;
    MergeLocalLandUse(session, changed);
    EXPECT_TRUE(changed);
    EXPECT_EQ(localFileBytes(), crlf({"\"Lot\",,70,75,80,85", "\"LOCAL LAND USE:\",,,,,",
                                      "\"" + padded("Orchard", 50) + "45.  66.  77.  83.\",,,,,"}));
    // The work file itself is not altered.
    EXPECT_EQ(workBytes(LocalLandUseSection), crlf(section));
}

TEST_F(LocalLandUseFileTest, WithoutALocalFileTheMergeStartsFromAnEmptyTable) {
    work(LocalLandUseSection, {"LOCAL LAND USE:", "Orchard"});
    bool changed = false;
    MergeLocalLandUse(session, changed);
    EXPECT_TRUE(changed);
    EXPECT_EQ(localFileBytes(), crlf({"\"LOCAL LAND USE:\",,,,,", "\"Orchard\",,,,,"}));
}

TEST_F(LocalLandUseFileTest, NamesKnownLocallyOrAsStandardInAnyCaseAreNotAdded) {
    const std::string file = "\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n";
    localFile(file);
    work(LocalLandUseSection, {"  lot  ", "PASTURE (FAIR)", "Range (Desert Shrub - Good)", "", "   "});
    bool changed = true;
    MergeLocalLandUse(session, changed);
    EXPECT_FALSE(changed);
    // Nothing new: the file keeps its own form.
    EXPECT_EQ(localFileBytes(), file);
}

TEST_F(LocalLandUseFileTest, AMissingOrEmptyWorkFileLeavesTheLocalFileAlone) {
    bool changed = true;
    MergeLocalLandUse(session, changed);
    EXPECT_FALSE(changed);
    EXPECT_FALSE(fileExists(session.LocalLandUseFile));

    localFile("\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n");
    writeBytes(session.WorkFilePath[LocalLandUseSection], "");
    MergeLocalLandUse(session, changed);
    EXPECT_FALSE(changed);
    EXPECT_EQ(localFileBytes(), "\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n");
}

TEST_F(LocalLandUseFileTest, TheWorkFileIsReadValueByValueAndANewNameIsAddedOnce) {
    work(LocalLandUseSection, {"\"Orchard\",\"45\",,\"77\"", "orchard", "Vineyard,Orchard"});
    bool changed = false;
    MergeLocalLandUse(session, changed);
    EXPECT_EQ(localFileBytes(),
              crlf({"\"Orchard\",,,,,", "\"45\",,,,,", "\"77\",,,,,", "\"Vineyard\",,,,,"}));
}

TEST_F(LocalLandUseFileTest, ABlankNameInTheLocalFileIsPassedOverAlone) {
    localFile("\"\",\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n");
    work(LocalLandUseSection, {"New"});
    bool changed = false;
    MergeLocalLandUse(session, changed);
    EXPECT_EQ(localFileBytes(), crlf({"\"Lot\",,70,75,80,85", "\"New\",,,,,"}));
}

TEST_F(LocalLandUseFileTest, ASecondMergeReadsTheMergedFormFiveValuesToARecord) {
    localFile(crlf({"\"Lot\",,70,75,80,85"}));
    work(LocalLandUseSection, {"New"});
    bool changed = false;
    MergeLocalLandUse(session, changed);
    EXPECT_EQ(localFileBytes(), crlf({"\"Lot\",,,70,75,80", "\"85\",,,,,", "\"New\",,,,,"}));
}

// ---- the section build before a save ------------------------------------------------------------

class SectionBuildTest : public LocalLandUseFileTest {
protected:
    SectionBuildTest() {
        localFile("\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"Yard\",\"\",\"61\",\"74\",\"80\"\r\n"
                  "\"Orchard\",\"45.5\",\"66\",\"77\",\"100.25\"\r\n\"\"\r\n");
    }
};

TEST_F(SectionBuildTest, WritesTheNamedRowsInTheFilesOrderInFixedColumns) {
    work(SubAreaSection, {"Sub-Area:", "          A1        R1        0.5", landArea("Orchard"),
                          landArea("Lot", "A"), landArea("Lot", "C")});
    BuildLocalLandUseSection(session);
    EXPECT_EQ(workBytes(LocalLandUseSection),
              crlf({"LOCAL LAND USE:", padded("Lot", 50) + "70.  75.  80.  85.  ",
                    padded("Orchard", 50) + "45.5 66.  77.  100.25", ""}));
}

TEST_F(SectionBuildTest, ABlankCurveNumberStaysBlank) {
    work(SubAreaSection, {"Sub-Area:", landArea("Yard")});
    BuildLocalLandUseSection(session);
    EXPECT_EQ(workBytes(LocalLandUseSection),
              crlf({"LOCAL LAND USE:", padded("Yard", 50) + "     61.  74.  80.  ", ""}));
}

TEST_F(SectionBuildTest, ANameThatDiffersInCaseIsNotUsed) {
    const Lines carried{"LOCAL LAND USE:", padded("Pond", 50) + "98.  98.  98.  98.  "};
    work(LocalLandUseSection, carried);
    work(SubAreaSection, {"Sub-Area:", landArea("lot"), landArea("ORCHARD")});
    BuildLocalLandUseSection(session);
    EXPECT_EQ(workBytes(LocalLandUseSection), crlf(carried));
}

TEST_F(SectionBuildTest, ACarriedSectionStaysUntouchedWhenNoLocalRowIsNamed) {
    const Lines carried{"LOCAL LAND USE:", padded("Pond", 50) + "98.  98.  98.  98.  "};
    work(LocalLandUseSection, carried);
    work(SubAreaSection, {"Sub-Area:", landArea("Pond"), landArea("Meadow")});
    BuildLocalLandUseSection(session);
    EXPECT_EQ(workBytes(LocalLandUseSection), crlf(carried));
}

TEST_F(SectionBuildTest, WithoutALocalFileNothingIsRegenerated) {
    deleteFile(session.LocalLandUseFile);
    work(SubAreaSection, {"Sub-Area:", landArea("Lot")});
    BuildLocalLandUseSection(session);
    EXPECT_FALSE(fileExists(session.WorkFilePath[LocalLandUseSection]));
}

TEST_F(SectionBuildTest, OnlyTheKeywordInColumns21To29OfASubAreaLineCounts) {
    work(SubAreaSection, {"Sub-Area:", std::string(21, ' ') + "LAND AREA" + padded("", 1) + "Lot",
                          std::string(20, ' ') + "land area " + padded("Yard", 35) + "B    1.",
                          std::string(20, ' ') + "LAND AREA"});
    BuildLocalLandUseSection(session);
    EXPECT_FALSE(fileExists(session.WorkFilePath[LocalLandUseSection]));
}

TEST_F(SectionBuildTest, AlternateLinesCountWhenTheyBeginWithLandUseInCapitals) {
    work(AlternateSection, {"Alternate Analysis:", alternateLandUse("Yard"),
                            "Land Use" + std::string(22, ' ') + "Lot", "  " + alternateLandUse("Orchard")});
    BuildLocalLandUseSection(session);
    EXPECT_EQ(workBytes(LocalLandUseSection),
              crlf({"LOCAL LAND USE:", padded("Yard", 50) + "     61.  74.  80.  ", ""}));
}

TEST_F(SectionBuildTest, NamesAreComparedTrimmed) {
    localFile("\"  Lot  \",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n");
    work(SubAreaSection, {"Sub-Area:", landArea("Lot")});
    BuildLocalLandUseSection(session);
    EXPECT_EQ(workBytes(LocalLandUseSection),
              crlf({"LOCAL LAND USE:", padded("  Lot", 50) + "70.  75.  80.  85.  ", ""}));
}

TEST_F(SectionBuildTest, OfTwoRowsOfOneNameOnlyTheFirstIsMarked) {
    localFile("\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"Lot\",\"30\",\"30\",\"30\",\"30\"\r\n\"\"\r\n");
    work(SubAreaSection, {"Sub-Area:", landArea("Lot")});
    BuildLocalLandUseSection(session);
    EXPECT_EQ(workBytes(LocalLandUseSection),
              crlf({"LOCAL LAND USE:", padded("Lot", 50) + "70.  75.  80.  85.  ", ""}));
}

TEST_F(SectionBuildTest, ARecordWithABlankNameIsDroppedWhole) {
    localFile("\"\",\"Lot\",\"1\",\"2\",\"3\"\r\n\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n");
    work(SubAreaSection, {"Sub-Area:", landArea("Lot")});
    BuildLocalLandUseSection(session);
    EXPECT_EQ(workBytes(LocalLandUseSection),
              crlf({"LOCAL LAND USE:", padded("Lot", 50) + "70.  75.  80.  85.  ", ""}));
}

TEST(SectionRecordTest, ALongNameOrValuePushesWhatFollowsToTheRight) {
    const std::string name(52, 'n');
    EXPECT_EQ(LocalLandUseSectionRecord({name, "70", "1234567", "", "9"}), name + "70.  1234567     9.   ");
    EXPECT_EQ(LocalLandUseSectionRecord({"Lot", "70.5", "", "", ""}),
              padded("Lot", 50) + "70.5" + std::string(16, ' '));
}

} // namespace
} // namespace brooklet::test
