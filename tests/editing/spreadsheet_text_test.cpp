// Spreadsheet text cut into rows and cells, and rows joined back, with the texts spreadsheets
// and plain files really give.
#include "editing/spreadsheet_text.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

TEST(SpreadsheetText, TabsAndCarriageReturnLineFeedsFromASpreadsheet) {
    EXPECT_EQ(SplitSpreadsheetText("846\t0\t0\r\n846.5\t13.8\t8.9\r\n"),
              (SpreadsheetRows{{"846", "0", "0"}, {"846.5", "13.8", "8.9"}}));
}

TEST(SpreadsheetText, ATrailingNewlineStartsNoRowAndNoTrailingNewlineLosesNone) {
    EXPECT_EQ(SplitSpreadsheetText("1\t2\n3\t4"), (SpreadsheetRows{{"1", "2"}, {"3", "4"}}));
    EXPECT_EQ(SplitSpreadsheetText("1\t2\n"), (SpreadsheetRows{{"1", "2"}}));
    EXPECT_EQ(SplitSpreadsheetText("1\t2\r"), (SpreadsheetRows{{"1", "2"}}));
}

TEST(SpreadsheetText, ABlankCellBetweenTabsStaysAndTrailingEmptyCellsToo) {
    EXPECT_EQ(SplitSpreadsheetText("100\t\t5\r\n101\t7\t\r\n"),
              (SpreadsheetRows{{"100", "", "5"}, {"101", "7", ""}}));
}

TEST(SpreadsheetText, BlanksSeparateCellsOfALineWithoutTabs) {
    EXPECT_EQ(SplitSpreadsheetText("  846.0     0.        0.\n  846.5   13.8  8.9  "),
              (SpreadsheetRows{{"846.0", "0.", "0."}, {"846.5", "13.8", "8.9"}}));
}

TEST(SpreadsheetText, CellsOfTabbedLinesAreTrimmedAndBlankLinesAreNoRows) {
    EXPECT_EQ(SplitSpreadsheetText(" 1 \t 2\r\n\r\n\t\t\r\n3\t4"), (SpreadsheetRows{{"1", "2"}, {"3", "4"}}));
    EXPECT_EQ(SplitSpreadsheetText(""), SpreadsheetRows{});
    EXPECT_EQ(SplitSpreadsheetText("\r\n \r\n"), SpreadsheetRows{});
}

TEST(SpreadsheetText, RowsAreJoinedWithTabsAndCarriageReturnLineFeeds) {
    EXPECT_EQ(JoinSpreadsheetRows({{"100.", "", "5."}, {"101.", "7.", "6."}}),
              "100.\t\t5.\r\n101.\t7.\t6.\r\n");
    EXPECT_EQ(JoinSpreadsheetRows({}), "");
    const std::string text = "1\t\t3\r\n4\t5\t6\r\n";
    EXPECT_EQ(JoinSpreadsheetRows(SplitSpreadsheetText(text)), text);
}

} // namespace
} // namespace brooklet
