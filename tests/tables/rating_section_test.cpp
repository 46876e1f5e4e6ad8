// The structure rating and cross section records read into the shared tables and written back,
// compared byte for byte.
#include "tables/cross_section.h"
#include "tables/structure_rating.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

using Lines = std::vector<std::string>;

const std::string StructureHeader = "STRUCTURE RATING:                       ";
const std::string CrossSectionHeader = "STREAM CROSS SECTION:                   ";

GridContext read(const RatingLayout& layout, const Lines& lines) {
    GridContext tables;
    ReadRatingSection(layout, lines, tables);
    return tables;
}

Lines roundTrip(const RatingLayout& layout, const Lines& lines) {
    return WriteRatingSection(layout, read(layout, lines));
}

// ---- Structure rating ----------------------------------------------------------------------------

TEST(StructureRatingSection, ReadsIdentifiersAndRowsIntoTheTables) {
    const GridContext tables = read(
        StructureRatingLayout,
        {"ANY HEADER", "          S1        100.", "                    100.      0.        0.",
         "                    101.5     12.       3.", "          S2", "                    50        7"});
    ASSERT_EQ(tables.TableCount, 2);
    EXPECT_EQ(tables.ValueCount, 3);
    EXPECT_EQ(tables.IdentifierTable(1, 1), "S1");
    EXPECT_EQ(tables.IdentifierTable(2, 1), "100.");
    EXPECT_EQ(tables.IdentifierTable(1, 2), "S2");
    EXPECT_EQ(tables.IdentifierTable(2, 2), "");
    EXPECT_EQ(tables.TableFirst[1], 1);
    EXPECT_EQ(tables.TableLast[1], 2);
    EXPECT_EQ(tables.TableFirst[2], 3);
    EXPECT_EQ(tables.TableLast[2], 3);
    EXPECT_EQ(tables.ValueStore(1, 2), "101.5");
    EXPECT_EQ(tables.ValueStore(2, 2), "12.");
    EXPECT_EQ(tables.ValueStore(3, 2), "3.");
    EXPECT_EQ(tables.ValueStore(1, 3), "50");
    EXPECT_EQ(tables.ValueStore(3, 3), "");
    EXPECT_EQ(tables.TableCurrent, 0);
}

TEST(StructureRatingSection, BeforeAnyRecordTheStoreHoldsOneRowOfSingleBlanks) {
    const GridContext tables = read(StructureRatingLayout, {StructureHeader});
    EXPECT_EQ(tables.TableCount, 0);
    EXPECT_EQ(tables.ValueCount, 0);
    ASSERT_EQ(tables.ValueStore.rows(), 1);
    EXPECT_EQ(tables.ValueStore.fields(), 3);
    EXPECT_EQ(tables.ValueStore(1, 1), " ");
    EXPECT_EQ(tables.ValueStore(3, 1), " ");
    EXPECT_EQ(tables.IdentifierTable.fields(), 2);
}

TEST(StructureRatingSection, WritesEveryFieldInItsColumnsWithItsPoint) {
    const Lines lines{StructureHeader, "          S1        100.      ",
                      "                    100.      0.        0.        ",
                      "                    101.5     12.       3.        ", ""};
    EXPECT_EQ(roundTrip(StructureRatingLayout, lines), lines);
    EXPECT_EQ(roundTrip(StructureRatingLayout,
                        {"x", "          S1        100", "                    100       7         9"}),
              (Lines{StructureHeader, "          S1        100.      ",
                     "                    100.      7.        9.        ", ""}));
}

TEST(StructureRatingSection, AStructureWithoutRatingPointsIsWrittenBackAlone) {
    const Lines lines{StructureHeader, "          GATE      95.5      ", "          WEIR      97.       ",
                      "                    97.       0.        0.        ", ""};
    EXPECT_EQ(roundTrip(StructureRatingLayout, lines), lines);
}

TEST(StructureRatingSection, APointRecordWithBlankElevationIsLostWhateverElseItHolds) {
    EXPECT_EQ(roundTrip(StructureRatingLayout,
                        {StructureHeader, "          S1", "                              25.       3.",
                         "                    101.      30.       4."}),
              (Lines{StructureHeader, "          S1                  ",
                     "                    101.      30.       4.        ", ""}));
}

TEST(StructureRatingSection, ABlankStartingElevationStaysBlankAndAValueGetsItsPoint) {
    EXPECT_EQ(
        roundTrip(StructureRatingLayout, {StructureHeader, "          S1", "          S2        1200"}),
        (Lines{StructureHeader, "          S1                  ", "          S2        1200.     ", ""}));
}

TEST(StructureRatingSection, AValueOfTenCharactersGetsNoPointAndFillsItsField) {
    EXPECT_EQ(roundTrip(StructureRatingLayout, {StructureHeader, "          S1        1234567890",
                                                "                    123456789012345"}),
              (Lines{StructureHeader, "          S1        1234567890",
                     "                    1234567890"
                     "12345.    "
                     "          ",
                     ""}));
}

TEST(StructureRatingSection, AValueWiderThanItsFieldPushesTheRestToTheRight) {
    GridContext tables =
        read(StructureRatingLayout, {StructureHeader, "          S1", "                    1."});
    tables.ValueStore(1, 1) = "12345678901";
    tables.ValueStore(2, 1) = "5";
    EXPECT_EQ(WriteStructureRatingSection(tables)[2], "                    12345678901"
                                                      "5.        "
                                                      "          ");
}

TEST(StructureRatingSection, ReadingEndsAtTheFirstBlankLine) {
    const GridContext tables =
        read(StructureRatingLayout, {StructureHeader, "          S1", "   ", "          S2"});
    EXPECT_EQ(tables.TableCount, 1);
}

TEST(StructureRatingSection, DeletedStructuresAreLeftOutAndNoneLeftWritesNothing) {
    GridContext tables =
        read(StructureRatingLayout, {StructureHeader, "          S1        1.",
                                     "                    1.        2.        3.", "          S2        5."});
    tables.IdentifierTable(1, 1) = " ";
    EXPECT_EQ(WriteStructureRatingSection(tables),
              (Lines{StructureHeader, "          S2        5.        ", ""}));
    tables.IdentifierTable(1, 2).clear();
    EXPECT_EQ(WriteStructureRatingSection(tables), Lines{});
    EXPECT_EQ(WriteStructureRatingSection(read(StructureRatingLayout, {})), Lines{});
}

TEST(StructureRatingSection, RowsAboveEveryIdentifierAreNeverWritten) {
    EXPECT_EQ(roundTrip(StructureRatingLayout,
                        {StructureHeader, "                    9.        9.        9.", "          S1"}),
              (Lines{StructureHeader, "          S1                  ", ""}));
}

TEST(StructureRatingSection, LinesEndingInCarriageReturnsOrShortLinesReadAsBlankFields) {
    const GridContext tables =
        read(StructureRatingLayout, {StructureHeader, "          S", "                    7"});
    EXPECT_EQ(tables.IdentifierTable(1, 1), "S");
    EXPECT_EQ(tables.ValueStore(1, 1), "7");
    EXPECT_EQ(tables.ValueStore(2, 1), "");
}

// ---- Cross section -------------------------------------------------------------------------------

TEST(CrossSectionSection, ReadsFiveFieldsAndFiveRowColumnsAndNeverColumnsThirtyOneToForty) {
    const GridContext tables =
        read(CrossSectionLayout,
             {CrossSectionHeader, "          X1        100.      IGNORED   90.       MILL.     1200.",
              "                    90.       0.        0.        0.        .001"});
    ASSERT_EQ(tables.TableCount, 1);
    EXPECT_EQ(tables.IdentifierTable(1, 1), "X1");
    EXPECT_EQ(tables.IdentifierTable(2, 1), "100.");
    EXPECT_EQ(tables.IdentifierTable(3, 1), "90.");
    EXPECT_EQ(tables.IdentifierTable(4, 1), "MILL.");
    EXPECT_EQ(tables.IdentifierTable(5, 1), "1200.");
    EXPECT_EQ(tables.ValueStore(5, 1), ".001");
    EXPECT_EQ(
        WriteCrossSectionSection(tables),
        (Lines{CrossSectionHeader, "          X1        100.                90.       MILL.     1200.     ",
               "                    90.       0.        0.        0.        .001      ", ""}));
}

// Ten blank columns, for building records of ten-column fields.
const std::string Ten(10, ' ');

TEST(CrossSectionSection, AStreamIdentifierOfFourLettersGetsAPointAndOneOfTenStaysAsItIs) {
    EXPECT_EQ(roundTrip(CrossSectionLayout, {CrossSectionHeader, Ten + "X1" + std::string(38, ' ') + "MILL",
                                             Ten + "X2" + std::string(38, ' ') + "MILLSTREAM"}),
              (Lines{CrossSectionHeader, Ten + "X1        " + Ten + Ten + Ten + "MILL.     " + Ten,
                     Ten + "X2        " + Ten + Ten + Ten + "MILLSTREAM" + Ten, ""}));
}

TEST(CrossSectionSection, ARowWithABlankElevationButOtherValuesIsStillARowOnReading) {
    const Lines lines{CrossSectionHeader, Ten + "X1        100.      " + Ten + "90.       " + Ten + Ten,
                      Ten + Ten + Ten + "5.        6.        " + Ten + Ten, ""};
    const GridContext tables = read(CrossSectionLayout, lines);
    EXPECT_EQ(tables.ValueCount, 1);
    EXPECT_EQ(tables.TableFirst[1], 1);
    EXPECT_EQ(tables.ValueStore(2, 1), "5.");
    EXPECT_EQ(WriteCrossSectionSection(tables), lines);
    // A record blank in cols 21-70 is no row.
    EXPECT_EQ(
        read(CrossSectionLayout, {CrossSectionHeader, "          X1", Ten + Ten + std::string(50, ' ') + "x"})
            .ValueCount,
        0);
}

TEST(CrossSectionSection, AllCrossSectionsDeletedWritesNothing) {
    GridContext tables = read(CrossSectionLayout, {CrossSectionHeader, "          X1"});
    tables.IdentifierTable(1, 1).clear();
    EXPECT_EQ(WriteCrossSectionSection(tables), Lines{});
}

} // namespace
} // namespace brooklet
