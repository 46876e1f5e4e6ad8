#include "network/local_soil.h"

#include "editing/grid_control.h"
#include "session/section_table.h"
#include "session/text_file.h"
#include "support/program_folder.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

using Soils = std::vector<SoilRow>;
using Lines = std::vector<std::string>;
using Pairs = std::vector<std::pair<std::string, std::string>>;

class LocalSoilTest : public ProgramFolderTest {
protected:
    LocalSoilTest() { StartSession(session, currentFolder()); }
    void soilFile(const std::string& bytes) { writeBytes(session.LocalSoilFile, bytes); }
    Session session;
};

TEST_F(LocalSoilTest, ReadsIdentifiersTrimmedAndTheirGroupsByLetter) {
    soilFile("\"  Sandy loam \",\"A/D\"\r\n\"Clay\",\"d\"\r\n\"Silt\",\"b/c\"\r\n\"\"\r\n");
    EXPECT_EQ(
        ReadLocalSoilFile(session.LocalSoilFile),
        (Soils{{"Sandy loam", "A", "", "", "D"}, {"Clay", "", "", "", "D"}, {"Silt", "", "B", "C", ""}}));
}

TEST_F(LocalSoilTest, AByteOrderMarkAtTheStartIsNoPartOfTheFirstSoil) {
    soilFile("\xEF\xBB\xBF\"Sandy loam\",\"A/D\"\r\n\"\"\r\n");
    EXPECT_EQ(ReadLocalSoilFile(session.LocalSoilFile), (Soils{{"Sandy loam", "A", "", "", "D"}}));
    EXPECT_EQ(ReadSoilDisplay(session.LocalSoilFile), (Pairs{{"Sandy loam", "A/D"}}));
}

TEST_F(LocalSoilTest, AHandEditedDSlashAComesBackAsASlashD) {
    soilFile("\"Peat\",\"D/A\"\r\n\"\"\r\n");
    const Soils soils = ReadLocalSoilFile(session.LocalSoilFile);
    ASSERT_EQ(soils, (Soils{{"Peat", "A", "", "", "D"}}));
    EXPECT_EQ(SoilGroups(soils[0]), "A/D");
}

TEST_F(LocalSoilTest, BlankValuesArePassedOverAndAMissingFileReadsAsEmpty) {
    EXPECT_TRUE(ReadLocalSoilFile(session.LocalSoilFile).empty());
    soilFile("");
    EXPECT_TRUE(ReadLocalSoilFile(session.LocalSoilFile).empty());
    soilFile("\"\",\"  \",\"Loam\",\"B\"\r\n\"Muck\"");
    EXPECT_EQ(ReadLocalSoilFile(session.LocalSoilFile),
              (Soils{{"Loam", "", "B", "", ""}, {"Muck", "", "", "", ""}}));
}

TEST(LocalSoilReferenceFileTest, ReadsAndWritesBackByteForByte) {
    const std::string original = bytesOf(testDataPath("Local_Soil_HSG.txt"));
    const Soils soils = ReadLocalSoilRecords(original);
    ASSERT_EQ(soils, (Soils{{"Sandy loam", "A", "", "", "D"},
                            {"Clay", "", "", "", "D"},
                            {"Silt loam", "", "B", "C", ""}}));
    LocalTable table;
    table.reset(-999);
    for (const SoilRow& soil : soils)
        table.addRow(soil);
    EXPECT_EQ(joinLines(LocalSoilFileLines(table)), original);
    EXPECT_EQ(ReadSoilDisplayRecords(original),
              (Pairs{{"Clay", "D"}, {"Sandy loam", "A/D"}, {"Silt loam", "B/C"}}));
}

TEST(SoilGroupsTest, JoinsTheTrimmedGroupsWithSlashes) {
    EXPECT_EQ(SoilGroups({"x", "A", "B", "C", "D"}), "A/B/C/D");
    EXPECT_EQ(SoilGroups({"x", "", " B ", "", ""}), "B");
    EXPECT_EQ(SoilGroups({"x", "", "", "", ""}), "");
}

TEST(LocalSoilFileLinesTest, WritesSoilsWithAGroupAndTheClosingLine) {
    LocalTable table;
    table.reset(-999);
    table.addRow(SoilRow{"Sandy loam", "A", "", "", "D"});
    table.addRow(SoilRow{"No group", "", "", "", ""});
    table.addRow(SoilRow{"Clay", "", "", "C", "D"});
    table.addRow(SoilRow{"", "A", "", "", ""});
    EXPECT_EQ(LocalSoilFileLines(table), (Lines{"\"Sandy loam\",\"A/D\"", "\"Clay\",\"C/D\"", "\"\""}));
    table.emptyRow(1);
    table.emptyRow(3);
    EXPECT_EQ(LocalSoilFileLines(table), Lines{"\"\""});
}

TEST_F(LocalSoilTest, TheDisplayListsPairsSortedCaseNotCounting) {
    soilFile(
        "\"silt\",\"B\"\r\n\"Clay\",\"D\"\r\n\"  \"\r\n\"clay loam\",\"c/d\"\r\n\"Adobe\",\"D\"\r\n\"\"\r\n");
    EXPECT_EQ(ReadSoilDisplay(session.LocalSoilFile),
              (Pairs{{"Adobe", "D"}, {"Clay", "D"}, {"clay loam", "c/d"}, {"silt", "B"}}));
}

TEST_F(LocalSoilTest, TheDisplaysOrderIsNotTheOrderOfCodesWhereCaseCounts) {
    soilFile("\"peat\",\"D\"\r\n\"Muck\",\"D\"\r\n\"adobe\",\"D\"\r\n\"Loam\",\"B\"\r\n\"\"\r\n");
    // With case counting the capitals would come first: Loam, Muck, adobe, peat.
    EXPECT_EQ(ReadSoilDisplay(session.LocalSoilFile),
              (Pairs{{"adobe", "D"}, {"Loam", "B"}, {"Muck", "D"}, {"peat", "D"}}));
}

TEST_F(LocalSoilTest, TheDisplayOfAMissingOrEmptyFileIsEmpty) {
    EXPECT_TRUE(ReadSoilDisplay(session.LocalSoilFile).empty());
    soilFile("");
    EXPECT_TRUE(ReadSoilDisplay(session.LocalSoilFile).empty());
}

TEST_F(LocalSoilTest, TheSoilDisplayIsOfferedOnlyWhileTheFileOpens) {
    EXPECT_FALSE(LocalSoilFileOpens(session.LocalSoilFile));
    soilFile("");
    EXPECT_TRUE(LocalSoilFileOpens(session.LocalSoilFile));
}

TEST(FindSoilRowTest, TheFirstRowThatBeginsWithTheTextInEitherCase) {
    MemoryGrid grid(5, 2);
    const char* names[] = {"", "Adobe", "Clay", "clay loam", "Silt"};
    for (int row = 1; row < 5; ++row)
        grid.setCellText(row, 0, names[row]);
    EXPECT_EQ(FindSoilRow(grid, 1, 4, "cla"), 2);
    EXPECT_EQ(FindSoilRow(grid, 1, 4, "CLAY L"), 3);
    EXPECT_EQ(FindSoilRow(grid, 1, 4, "s"), 4);
    EXPECT_EQ(FindSoilRow(grid, 1, 4, "Silty"), 0);
    EXPECT_EQ(FindSoilRow(grid, 1, 4, "Loam"), 0);
    EXPECT_EQ(FindSoilRow(grid, 1, 4, ""), 0);
    EXPECT_EQ(FindSoilRow(grid, 1, 3, "Silt"), 0);
}

} // namespace
} // namespace brooklet::test
