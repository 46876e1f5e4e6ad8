#include "tables/storm_analysis.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

const std::string Header = "STORM ANALYSIS:                         ";

TEST(StormSection, EachFieldIsTheTrimOfItsTenColumnsAndValuesStayText) {
    const auto rows = ReadStormSection(
        {Header, "          100-YR    NORTHGAGE 0.        6.4       WB-24HR   2         2.9       ",
         "            Type 1   G2        1.5E1"});
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0], (StormRecord{"100-YR", "NORTHGAGE", "0.", "6.4", "WB-24HR", "2", "2.9"}));
    EXPECT_EQ(rows[1], (StormRecord{"Type 1", "G2", "1.5E1", "", "", "", ""}));
}

TEST(StormSection, RecordsAreWrittenInTenColumnFieldsWithPointsOnTimesAndRainfalls) {
    const auto lines = WriteStormSection({{"100-YR", "NORTHGAGE", "0", "6.4", "WB-24HR", "2", "3"},
                                          {"10-YR", "", "", "4", "Type II", "", ""}});
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], Header);
    EXPECT_EQ(lines[1], "          100-YR    NORTHGAGE 0.        6.4       WB-24HR   2         3.        ");
    EXPECT_EQ(lines[2], "          10-YR                         4.        Type II                       ");
}

TEST(StormSection, AWrittenSectionReadsBackTheSame) {
    const std::vector<StormRecord> rows{{"S1", "G1", "0.", "5.2", "RT1", "3", "3.1"},
                                        {"S1", "G2", "1.", "5.", "Type II", "2", ""}};
    EXPECT_EQ(ReadStormSection(WriteStormSection(rows)), rows);
}

TEST(StormSection, NoRowsWriteNoLineAtAll) {
    EXPECT_TRUE(WriteStormSection({}).empty());
    EXPECT_TRUE(ReadStormSection({Header}).empty());
    EXPECT_TRUE(ReadStormSection({}).empty());
}

// The section's split at load never hands the window an empty record; if one stood there, it
// would make an empty row and be written back as a record of blanks.
TEST(StormSection, AnEmptyRecordWouldMakeAnEmptyRowWrittenBackAsBlanks) {
    const auto rows = ReadStormSection({Header, ""});
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0], StormRecord{});
    EXPECT_EQ(WriteStormSection(rows), (std::vector<std::string>{Header, std::string(80, ' ')}));
}

TEST(StormSection, AValueLongerThanItsFieldIsNotCut) {
    const auto lines = WriteStormSection({{"S1", "G1", "12345678901", "1", "T", "2", ""}});
    EXPECT_EQ(lines[1], "          S1        G1        123456789011.        T         2                   ");
}

} // namespace
} // namespace brooklet
