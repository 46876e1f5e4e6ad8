#include "network/local_table.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

TEST(LocalTableTest, ResetGivesOneEmptyRowAndNoRowInUse) {
    LocalTable table;
    table.addRow("Lot");
    table.Selected = 1;
    table.reset(-999);
    EXPECT_EQ(table.Count, 0);
    EXPECT_EQ(table.Selected, 0);
    EXPECT_EQ(table.Previous, -999);
    EXPECT_EQ(table.Rows.rows(), 1);
    EXPECT_EQ(table.Rows(1, 1), "");
}

TEST(LocalTableTest, ARowAddedKeepsTheOthers) {
    LocalTable table;
    table.reset(0);
    EXPECT_EQ(table.addRow(FiveTexts{"Lot", "70", "75", "80", "85"}), 1);
    EXPECT_EQ(table.addRow("Yard"), 2);
    EXPECT_EQ(table.row(1), (FiveTexts{"Lot", "70", "75", "80", "85"}));
    EXPECT_EQ(table.row(2), (FiveTexts{"Yard", "", "", "", ""}));
}

TEST(LocalTableTest, FindsTheLastRowOfATrimmedNameCaseCounting) {
    LocalTable table;
    table.reset(0);
    table.addRow("Lot");
    table.addRow("lot");
    table.addRow(" Lot ");
    EXPECT_EQ(table.findLast("Lot"), 3);
    EXPECT_EQ(table.findLast("lot  "), 2);
    EXPECT_EQ(table.findLast("LOT"), 0);
}

TEST(LocalTableTest, ADeletedRowKeepsItsSlot) {
    LocalTable table;
    table.reset(0);
    table.addRow(FiveTexts{"Lot", "70", "75", "80", "85"});
    table.addRow("Yard");
    table.emptyRow(1);
    table.emptyRow(0);
    table.emptyRow(3);
    EXPECT_EQ(table.Count, 2);
    EXPECT_EQ(table.row(1), FiveTexts{});
    EXPECT_EQ(table.findLast(""), 1);
    EXPECT_EQ(table.findLast("Yard"), 2);
}

TEST(CutNameTest, ANameWhoseTrimIsTooLongIsCutToItsTrimmedStart) {
    EXPECT_EQ(CutName(std::string(35, 'x'), 35), std::string(35, 'x'));
    EXPECT_EQ(CutName("  " + std::string(36, 'y') + "  ", 35), std::string(35, 'y'));
    EXPECT_EQ(CutName("  Lot  ", 35), "  Lot  ");
    EXPECT_EQ(CutName(" " + std::string(30, 't'), 25), std::string(25, 't'));
}

} // namespace
} // namespace brooklet::test
