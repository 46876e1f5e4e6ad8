#include "network/standard_land_use.h"

#include "session/section_table.h"
#include "session/text_file.h"
#include "support/program_folder.h"

#include <set>

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

using Row = std::vector<std::string>;

Row rowOf(const StandardLandUseTable& table, int row) {
    Row texts;
    for (int column = 0; column < LandUseColumns; ++column)
        texts.push_back(table(row, column));
    return texts;
}

class StandardLandUseTest : public ::testing::Test {
protected:
    StandardLandUseTest() { LoadStandardLandUse(table); }
    StandardLandUseTable table;
};

TEST_F(StandardLandUseTest, IsEmptyUntilLoaded) {
    StandardLandUseTable empty;
    EXPECT_FALSE(empty.loaded());
    EXPECT_EQ(empty(1, 0), "");
    EXPECT_TRUE(table.loaded());
}

TEST_F(StandardLandUseTest, HoldsEightyOneRowsInTheOrderOfTheCalculatorsGrid) {
    EXPECT_EQ(rowOf(table, 1), (Row{"Open Space (Poor)", "68", "79", "86", "89"}));
    EXPECT_EQ(rowOf(table, 2), (Row{"Open Space (Fair)", "49", "69", "79", "84"}));
    EXPECT_EQ(rowOf(table, 6), (Row{"Roads (Paved w/ditch)", "83", "89", "92", "93"}));
    EXPECT_EQ(rowOf(table, 11), (Row{"Urban (85% imp)", "89", "92", "94", "95"}));
    EXPECT_EQ(rowOf(table, 19), (Row{"Urban (Newly graded)", "77", "86", "91", "94"}));
    EXPECT_EQ(rowOf(table, 31), (Row{"Row Crop (C & T - Poor)", "66", "74", "80", "82"}));
    EXPECT_EQ(rowOf(table, 46), (Row{"Small Grain (C & T + CR - Good)", "58", "69", "77", "80"}));
    EXPECT_EQ(rowOf(table, 56), (Row{"Meadow", "30", "58", "71", "78"}));
    EXPECT_EQ(rowOf(table, 66), (Row{"Farmstead", "59", "74", "82", "86"}));
    EXPECT_EQ(rowOf(table, 73), (Row{"Range (Pinyon-Juniper - Poor)", "", "75", "85", "89"}));
    EXPECT_EQ(rowOf(table, 79), (Row{"Range (Desert Shrub - Poor)", "63", "77", "85", "88"}));
    EXPECT_EQ(rowOf(table, 81), (Row{"Range (Desert Shrub - Good)", "49", "68", "79", "84"}));
}

TEST_F(StandardLandUseTest, RoadsPavedAndImperviousAre98InAllGroupsAndArtificialDesert96) {
    for (int row : {4, 5})
        for (int column = 1; column <= 4; ++column)
            EXPECT_EQ(table(row, column), "98") << row << "," << column;
    EXPECT_EQ(table(4, 0), "Impervious");
    EXPECT_EQ(table(5, 0), "Roads (Paved)");
    EXPECT_EQ(rowOf(table, 10), (Row{"Urban Desert (Artificial)", "96", "96", "96", "96"}));
}

TEST_F(StandardLandUseTest, RowsWithTheSameNumbersAreTwoLandUsesByName) {
    EXPECT_EQ(rowOf(table, 3), (Row{"Open Space (Good)", "39", "61", "74", "80"}));
    EXPECT_EQ(rowOf(table, 55), (Row{"Pasture (Good)", "39", "61", "74", "80"}));
    std::set<std::string> names;
    for (int row = 1; row <= StandardLandUseRows; ++row)
        names.insert(table(row, 0));
    EXPECT_EQ(names.size(), size_t(StandardLandUseRows));
}

TEST_F(StandardLandUseTest, OnlyTheTwelveRangeRowsOfHerbaceousToSagebrushLackGroupA) {
    for (int row = 1; row <= StandardLandUseRows; ++row) {
        const bool blankA = row >= 67 && row <= 78;
        EXPECT_EQ(table(row, 1).empty(), blankA) << row;
        for (int column = 2; column <= 4; ++column)
            EXPECT_FALSE(table(row, column).empty()) << row << "," << column;
    }
    EXPECT_EQ(rowOf(table, 67), (Row{"Range (Herbaceous - Poor)", "", "80", "87", "93"}));
    EXPECT_EQ(rowOf(table, 78), (Row{"Range (Sagebrush - Good)", "", "35", "47", "55"}));
}

TEST_F(StandardLandUseTest, NamesFitTheLandUseFieldAndNumbersAreWholeNumbers) {
    for (int row = 1; row <= StandardLandUseRows; ++row) {
        EXPECT_LE(table(row, 0).size(), 35u) << row;
        for (int column = 1; column <= 4; ++column)
            EXPECT_EQ(table(row, column).find_first_not_of("0123456789"), std::string::npos) << row;
    }
}

TEST_F(StandardLandUseTest, CurveNumbersDoNotFallFromGroupAToGroupD) {
    for (int row = 1; row <= StandardLandUseRows; ++row)
        for (int column = 2; column <= 4; ++column)
            if (!table(row, column - 1).empty()) {
                EXPECT_LE(std::stoi(table(row, column - 1)), std::stoi(table(row, column))) << row;
            }
}

TEST(StandardLandUseOfTheProgram, IsFilledOnFirstUseAndStaysTheSameTable) {
    const StandardLandUseTable& table = StandardLandUse();
    EXPECT_TRUE(table.loaded());
    EXPECT_EQ(table(53, 0), "Pasture (Poor)");
    EXPECT_EQ(table(81, 4), "84");
    EXPECT_EQ(&StandardLandUse(), &table);
}

} // namespace
} // namespace brooklet::test
