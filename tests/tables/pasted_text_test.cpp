#include "tables/pasted_text.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

using Texts = std::vector<std::string>;

TEST(PastedValues, AColumnFromASpreadsheetIsReadTopDown) {
    EXPECT_EQ(SplitPastedValues("0\r\n0.25\r\n0.5\r\n"), (Texts{"0", "0.25", "0.5"}));
}

TEST(PastedValues, ARowIsCutAtItsTabs) {
    EXPECT_EQ(SplitPastedValues("1\t2\t3.5"), (Texts{"1", "2", "3.5"}));
}

TEST(PastedValues, ABlockIsReadRowByRow) {
    EXPECT_EQ(SplitPastedValues("1\t2\r\n3\t4\r\n5\t6\r\n"), (Texts{"1", "2", "3", "4", "5", "6"}));
}

TEST(PastedValues, BlanksLineFeedsAndLoneCarriageReturnsSeparateToo) {
    EXPECT_EQ(SplitPastedValues("  1  2\n3\r4 \t\t 5"), (Texts{"1", "2", "3", "4", "5"}));
}

TEST(PastedValues, EmptyCellsLeaveNoGap) {
    EXPECT_EQ(SplitPastedValues("1\t\t2\r\n\r\n\t3\r\n"), (Texts{"1", "2", "3"}));
}

TEST(PastedValues, ValuesAreTakenAsTheyStandEvenWhenTheyAreNoNumbers) {
    EXPECT_EQ(SplitPastedValues("1,250.5\tabc\t-2"), (Texts{"1,250.5", "abc", "-2"}));
}

TEST(PastedValues, NothingOrOnlySeparatorsGiveNoValue) {
    EXPECT_TRUE(SplitPastedValues("").empty());
    EXPECT_TRUE(SplitPastedValues(" \t\r\n\r").empty());
}

TEST(PastedRows, LinesAreCutAtTabsOnlyAndCellsTrimmed) {
    const auto rows = SplitPastedRows("S1\tG1\t0\t5.2\tType II\t2\t3.1\r\n S2 \t\t1\r\n");
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0], (Texts{"S1", "G1", "0", "5.2", "Type II", "2", "3.1"}));
    EXPECT_EQ(rows[1], (Texts{"S2", "", "1"}));
}

TEST(PastedRows, BlankLinesArePassedOverAndEveryLineEndCounts) {
    const auto rows = SplitPastedRows("A\r\n\r\n  \nB\rC");
    EXPECT_EQ(rows, (std::vector<Texts>{{"A"}, {"B"}, {"C"}}));
}

TEST(CopiedText, ValuesGoOutAsOneColumnAndRowsWithTabs) {
    EXPECT_EQ(ValuesAsColumn({"0", "0.5", "1."}), "0\r\n0.5\r\n1.\r\n");
    EXPECT_EQ(RowsAsText({{"S1", "", "Type II"}, {"S2"}}), "S1\t\tType II\r\nS2\r\n");
    EXPECT_EQ(ValuesAsColumn({}), "");
}

TEST(CopiedText, CopiedRowsAndValuesPasteBackTheSame) {
    const std::vector<Texts> rows{{"S1", "G1", "0.", "5.2", "Type II", "2", "3.1"},
                                  {"S2", "", "1", "", "RT", "", ""}};
    EXPECT_EQ(SplitPastedRows(RowsAsText(rows)), rows);
    const Texts values{"0", "0.1", "0.25", "1."};
    EXPECT_EQ(SplitPastedValues(ValuesAsColumn(values)), values);
}

} // namespace
} // namespace brooklet
