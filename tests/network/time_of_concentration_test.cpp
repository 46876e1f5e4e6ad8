// The time of concentration arithmetic against hand computations of the travel time formulas,
// the segments' completeness, the sum, the field limits, and the working copy of the segments.
#include "network/time_of_concentration.h"

#include "editing/numbers.h"
#include "editing/watershed_tables.h"
#include "network/sub_area.h"
#include "network_records.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

TcBoxes boxesWith(std::initializer_list<std::pair<int, std::string>> texts) {
    TcBoxes boxes;
    for (const auto& [index, text] : texts)
        boxes[size_t(index)] = text;
    return boxes;
}

// Sheet flow, surface F (n .24 held single precision), 100 ft, P 3.5 in, S 0.02:
// n L = 23.99999946; ^0.8 = 12.710686; x 0.007 = 0.0889748; P^0.5 = 1.870829; S^0.4 = 0.2091279;
// 0.0889748 / (1.870829 x 0.2091279) = 0.227416 -> 0.227 h.
TEST(TcArithmetic, SheetFlowByTheSurfacesManningN) {
    EXPECT_DOUBLE_EQ(SheetTravelTime(0.24f, 100, 3.5, 0.02), 0.227);
    TcBoxes boxes = boxesWith({{0, "3.5"}, {12, "100."}, {13, "0.02"}, {15, "F Grass (Dense)"}});
    ComputeTcSegment(boxes, 12);
    EXPECT_EQ(boxes[SheetTimeBox], "0.227");
    EXPECT_EQ(boxes[TotalTimeBox], "0.227");
}

// A metric run keeps the English coefficients: typed n .15, 30.5 m, P 60 mm, S 0.05:
// (0.15 x 30.5)^0.8 = 3.375304; x 0.007 = 0.0236271; 60^0.5 x 0.05^0.4 = 7.745967 x 0.3017088
// = 2.337026; 0.0236271 / 2.337026 = 0.010110 -> 0.01 h.
TEST(TcArithmetic, SheetFlowByATypedManningNInAMetricRun) {
    TcBoxes boxes = boxesWith({{0, "60"}, {12, "30.5"}, {13, ".05"}, {14, ".15"}, {15, " "}});
    ComputeTcSegment(boxes, 14);
    EXPECT_EQ(boxes[SheetTimeBox], "0.01");
}

// Shallow unpaved, 900 ft at S 0.03: V = 16.1345 x 0.1732051 = 2.794577 -> 2.795 ft/s;
// 900 / 2.795 / 3600 = 0.0894454 -> 0.089 h.
TEST(TcArithmetic, ShallowFlowUnpaved) {
    EXPECT_DOUBLE_EQ(ShallowVelocity(false, 0.03), 2.795);
    TcBoxes boxes = boxesWith({{16, "900."}, {17, "0.03"}, {18, "Unpaved"}});
    ComputeTcSegment(boxes, 18);
    EXPECT_EQ(boxes[ShallowVelocityBox], "2.795");
    EXPECT_EQ(boxes[ShallowTimeBox], "0.089");
    EXPECT_EQ(boxes[TotalTimeBox], "0.089");
}

// Shallow paved, 500 m at S 0.01: V = 20.3282 x 0.1 = 2.03282 -> 2.033; 500 / 2.033 / 3600 =
// 0.0683172 -> 0.068 h.
TEST(TcArithmetic, ShallowFlowPaved) {
    TcBoxes boxes = boxesWith({{16, "500"}, {17, "0.01"}, {18, "P"}});
    ComputeTcSegment(boxes, 16);
    EXPECT_EQ(boxes[ShallowVelocityBox], "2.033");
    EXPECT_EQ(boxes[ShallowTimeBox], "0.068");
}

// Channel by its geometry: A 18.5, P 14.2, S 0.005, n 0.045: (18.5 / 14.2)^(2/3) = 1.192858;
// x 1.49 x 0.0707107 / 0.045 = 2.792850 -> 2.793 ft/s; 1200 / 2.793 / 3600 = 0.119346 -> 0.119 h.
TEST(TcArithmetic, ChannelByItsGeometryOverwritesATypedVelocity) {
    EXPECT_DOUBLE_EQ(ChannelVelocity(18.5, 14.2, 0.005, 0.045), 2.793);
    TcBoxes boxes =
        boxesWith({{19, "1200."}, {20, "0.005"}, {21, "0.045"}, {22, "18.5"}, {23, "14.2"}, {24, "9"}});
    ComputeTcSegment(boxes, 23);
    EXPECT_EQ(boxes[24], "2.793");
    EXPECT_EQ(boxes[ChannelTimeBox], "0.119");
}

// Channel by its velocity only: 3400 ft at 3.2 ft/s: 3400 / 3.2 / 3600 = 0.295139 -> 0.295 h.
TEST(TcArithmetic, ChannelByVelocityOnlyKeepsTheVelocity) {
    TcBoxes boxes = boxesWith({{19, "3400."}, {20, "0.005"}, {24, "3.2"}});
    ComputeTcSegment(boxes, 19);
    EXPECT_EQ(boxes[24], "3.2");
    EXPECT_EQ(boxes[ChannelTimeBox], "0.295");
}

TEST(TcArithmetic, AnExactHalfRoundsToTheEvenDigit) {
    // 9 / 1 / 3600 = 0.0025 -> 0.002; 63 / 1 / 3600 = 0.0175 -> 0.018.
    EXPECT_DOUBLE_EQ(TravelTime(9, 1), 0.002);
    EXPECT_DOUBLE_EQ(TravelTime(63, 1), 0.018);
}

TEST(TcArithmetic, TheTotalIsTheUnroundedSumOfTheSegmentsThere) {
    TcBoxes boxes = boxesWith({{26, "0.1"}, {27, "0.2"}, {19, "3600"}, {24, "1"}});
    ComputeTcSegment(boxes, 24);
    EXPECT_EQ(boxes[ChannelTimeBox], "1");
    EXPECT_EQ(boxes[TotalTimeBox], "1.3");
    // 0.1 + 0.049 is turned to text as the double sum, in every digit it has: not rounded to
    // three decimals, nor to the fifteen digits that would show 0.149.
    boxes = boxesWith({{26, "0.1"}, {16, "720"}, {17, "0.04"}, {18, "P"}, {25, ""}});
    ComputeTcSegment(boxes, 17);
    EXPECT_EQ(boxes[ShallowVelocityBox], "4.066");
    EXPECT_EQ(boxes[ShallowTimeBox], "0.049");
    EXPECT_EQ(boxes[TotalTimeBox], "0.14900000000000002");
}

TEST(TcArithmetic, AnIncompleteSegmentEmptiesItsTimeAndTheTotal) {
    TcBoxes boxes = boxesWith({{0, "3.5"}, {12, "100."}, {13, ""}, {15, "F"}, {26, "0.5"}, {29, "0.5"}});
    ComputeTcSegment(boxes, 12);
    EXPECT_EQ(boxes[SheetTimeBox], "");
    EXPECT_EQ(boxes[TotalTimeBox], "");
    boxes = boxesWith({{16, "900"}, {17, "0.03"}, {18, " "}, {25, "2"}, {27, "1"}});
    ComputeTcSegment(boxes, 16);
    EXPECT_EQ(boxes[ShallowVelocityBox], "");
    EXPECT_EQ(boxes[ShallowTimeBox], "");
}

TEST(TcArithmetic, SheetFlowWithoutRainfallHasNoTravelTime) {
    TcBoxes boxes = boxesWith({{0, "0"}, {12, "100."}, {13, "0.02"}, {14, "0.24"}});
    ComputeTcSegment(boxes, 13);
    EXPECT_EQ(boxes[SheetTimeBox], "");
    boxes[0] = "";
    ComputeTcSegment(boxes, 13);
    EXPECT_EQ(boxes[SheetTimeBox], "");
}

TEST(TcArithmetic, ASlopeOfZeroFromTheWorkFileLeavesTheTimeEmpty) {
    TcBoxes boxes = boxesWith({{16, "900"}, {17, "0"}, {18, "U"}});
    ComputeTcSegment(boxes, 16);
    EXPECT_EQ(boxes[ShallowVelocityBox], "0");
    EXPECT_EQ(boxes[ShallowTimeBox], "");
}

TEST(TcChecks, TheSheetLengthLimitFollowsTheUnits) {
    EXPECT_TRUE(TcValueAccepted(12, "100", true));
    EXPECT_FALSE(TcValueAccepted(12, "100.1", true));
    EXPECT_TRUE(TcValueAccepted(12, "30.5", false));
    EXPECT_FALSE(TcValueAccepted(12, "31", false));
    EXPECT_TRUE(TcValueAccepted(12, "", false));
}

TEST(TcChecks, ManningNAndPositiveValues) {
    EXPECT_TRUE(TcValueAccepted(14, "0.0005", true));
    EXPECT_FALSE(TcValueAccepted(14, "0.0004", true));
    EXPECT_TRUE(TcValueAccepted(21, "1", true));
    EXPECT_FALSE(TcValueAccepted(21, "1.01", true));
    EXPECT_FALSE(TcValueAccepted(13, "0", true));
    EXPECT_TRUE(TcValueAccepted(24, "0.01", false));
    EXPECT_FALSE(TcValueAccepted(19, "x", true));
}

TEST(TcTable, TakesTheSegmentsWithTheSurfacesAsTheListsShowThemAndGivesTheLettersBack) {
    WatershedTables tables;
    ReadSubAreaSection({SubAreaHeader, tens({"", "A1", "R1", "G1"}),
                        tens({"", "", "SHEET", "100.", "0.02", "", "F"}),
                        tens({"", "", "SHALLOW", "900.", "0.03", "", "U"}), tens({"", "A2", "R1", "G1"}),
                        tens({"", "", "SHEET", "50.", "0.02", "0.3", ""}), ""},
                       tables);
    TextTable TcTable = BuildTcTable(tables);
    ASSERT_EQ(TcTable.rows(), 2);
    EXPECT_EQ(TcTable(1, 1), "A1");
    EXPECT_EQ(TcTable(15, 1), "F Grass (Dense)");
    EXPECT_EQ(TcTable(18, 1), "Unpaved");
    EXPECT_EQ(TcTable(15, 2), " ");
    EXPECT_EQ(TcTable(14, 2), "0.3");
    TcTable(12, 2) = "60.";
    ReturnTcTable(TcTable, tables.SubAreaRowIds, tables);
    EXPECT_EQ(tables.SubAreaTable(15, 1), "F");
    EXPECT_EQ(tables.SubAreaTable(18, 1), "U");
    EXPECT_EQ(tables.SubAreaTable(12, 2), "60.");
    EXPECT_EQ(SubAreaSectionRecords(tables)[5], tens({"", "", "SHEET", "60.", "0.02", "0.3", " "}));
}

TEST(TcTable, TheRainfallOfAGageIsFoundTrimmedAndInUpperCase) {
    WatershedTables tables;
    EXPECT_EQ(RainfallOfGage(tables, "G1"), std::nullopt);
    tables.Rainfall.RainfallIds = {"", "g2", " G1 "};
    tables.Rainfall.Rainfall2Yr = {0.0f, 2.5f, 3.1f};
    tables.Rainfall.RainfallCount = 2;
    EXPECT_EQ(RainfallOfGage(tables, "g1"), std::optional<std::string>("3.1"));
    EXPECT_EQ(RainfallOfGage(tables, "G3"), std::optional<std::string>(""));
}

} // namespace
} // namespace brooklet::test
