#include "options/global_output.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

const std::string Header = "GLOBAL OUTPUT:                          "; // 40 columns
const std::string Blank10(10, ' ');

TEST(GlobalOutput, NoSecondLineGivesBlankBoxesAndEveryCodeNo) {
    for (const std::vector<std::string>& lines :
         {std::vector<std::string>{}, std::vector<std::string>{Header}}) {
        const GlobalOutputRecord record = ReadGlobalOutputSection(lines);
        for (const std::string& box : record.Boxes)
            EXPECT_EQ(box, "");
        for (bool yes : record.SubAreaCodes)
            EXPECT_FALSE(yes);
        for (bool yes : record.ReachCodes)
            EXPECT_FALSE(yes);
    }
}

TEST(GlobalOutput, ReadsTheBoxesAndCodesFromTheirColumns) {
    const GlobalOutputRecord record = ReadGlobalOutputSection(
        {Header, Blank10 + "2         " + "  1.      " + "0.5       " + "YNYNN" + "     " + "NYNYNY"});
    EXPECT_EQ(record.box(1), "2");
    EXPECT_EQ(record.box(2), "1.");
    EXPECT_EQ(record.box(3), "0.5");
    EXPECT_EQ(record.SubAreaCodes, (std::array<bool, 5>{true, false, true, false, false}));
    EXPECT_EQ(record.ReachCodes, (std::array<bool, 6>{false, true, false, true, false, true}));
}

TEST(GlobalOutput, ALowerCaseYCountsAsYesAndAnythingElseAsNo) {
    const GlobalOutputRecord record =
        ReadGlobalOutputSection({Header, std::string(40, ' ') + "yX 1Y" + "YYYYY" + "y n  y"});
    EXPECT_EQ(record.SubAreaCodes, (std::array<bool, 5>{true, false, false, false, true}));
    EXPECT_EQ(record.ReachCodes, (std::array<bool, 6>{true, false, false, false, false, true}));
}

TEST(GlobalOutput, AShortSecondLineLeavesTheRestAtNo) {
    const GlobalOutputRecord record =
        ReadGlobalOutputSection({Header, Blank10 + "1         " + "          " + "   "});
    EXPECT_EQ(record.box(1), "1");
    EXPECT_EQ(record.box(3), "");
    for (bool yes : record.ReachCodes)
        EXPECT_FALSE(yes);
}

TEST(GlobalOutput, WritesBothLinesColumnForColumn) {
    GlobalOutputRecord record;
    record.Boxes = {"2", "1", " 0.5 "};
    record.SubAreaCodes = {true, false, true, false, false};
    record.ReachCodes = {true, false, true, true, false, false};
    const std::vector<std::string> lines = WriteGlobalOutputSection(record);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], Header);
    EXPECT_EQ(lines[1], "          2         1.        0.5       YNYNN     YNYYNN");
    EXPECT_EQ(lines[1].size(), 56u);
}

TEST(GlobalOutput, ThePrecisionGetsNoPoint) {
    GlobalOutputRecord record;
    record.box(1) = "3";
    EXPECT_EQ(WriteGlobalOutputSection(record)[1], Blank10 + "3" + std::string(29, ' ') + "NNNNN     NNNNNN");
}

TEST(GlobalOutput, OneCodeAtYesIsEnoughForTheSection) {
    GlobalOutputRecord record;
    record.ReachCodes[5] = true;
    EXPECT_EQ(WriteGlobalOutputSection(record),
              (std::vector<std::string>{Header, std::string(40, ' ') + "NNNNN     NNNNNY"}));
}

TEST(GlobalOutput, AllCodesAtNoAndAllBoxesBlankWriteNothing) {
    GlobalOutputRecord record;
    record.box(2) = "   ";
    EXPECT_TRUE(WriteGlobalOutputSection(record).empty());
}

TEST(GlobalOutput, ARecordReadAndWrittenAgainIsTheSameRecord) {
    const std::vector<std::string> lines = {Header,
                                            "          2         1.        0.5       YNYNN     YNYYNN"};
    EXPECT_EQ(WriteGlobalOutputSection(ReadGlobalOutputSection(lines)), lines);
}

} // namespace
} // namespace brooklet
