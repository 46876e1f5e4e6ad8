// The records of the stream reach section: read into the reach table column for column and
// written back, with the differences between reader and writer that the section has.
#include "network/reach.h"

#include "editing/watershed_tables.h"
#include "network_records.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

struct Reaches {
    TextTable table;
    int count = 0;
};

Reaches read(const Lines& lines) {
    Reaches reaches;
    ReadReachSection(lines, reaches.table, reaches.count);
    return reaches;
}

Lines roundTrip(const Lines& lines) {
    const Reaches reaches = read(lines);
    return ReachSectionRecords(reaches.table, reaches.count);
}

const std::string R1 = tens({"", "R1", "R2", "XS1", "", "1200.", "1100."}) + "YNYNYN";

TEST(ReachSection, ReadsTheReachRecordColumnForColumn) {
    const Reaches reaches = read({ReachHeader, R1, ""});
    ASSERT_EQ(reaches.count, 1);
    const Lines expected = {"R1", "R2", "XS1", "", "1200.", "1100.", "", "Y", "N", "Y", "N", "Y", "N"};
    for (int field = 1; field <= 13; ++field)
        EXPECT_EQ(reaches.table(field, 1), expected[size_t(field - 1)]) << field;
    EXPECT_EQ(reaches.table.fields(), ReachFields);
}

TEST(ReachSection, ReadsTheContinuationRecordsIntoTheirFields) {
    const Reaches reaches = read({ReachHeader, R1, tens({"", "", "BASE FLOW", " 2.5"}),
                                  tens({"", "", "SPLIT FLOW", "R3", "XS2", "10.", "50.", "0.2"}),
                                  tens({"", "", "REACH LOSS", " 0.001", "4"}), ""});
    EXPECT_EQ(reaches.table(7, 1), "2.5");
    const Lines split = {"R3", "XS2", "10.", "50.", "0.2"};
    for (int field = 14; field <= 18; ++field)
        EXPECT_EQ(reaches.table(field, 1), split[size_t(field - 14)]) << field;
    // The reach loss fields as they stand in the record.
    EXPECT_EQ(reaches.table(19, 1), " 0.001    ");
    EXPECT_EQ(reaches.table(20, 1), "4         ");
}

TEST(ReachSection, EveryRecordKindComesBackByteForByte) {
    const Lines section = sectionOf("STREAM REACH:");
    ASSERT_EQ(section.size(), 9u);
    EXPECT_EQ(roundTrip(section), section);
}

TEST(ReachSection, AReachLossReadAndWrittenUnchangedGetsItsPoints) {
    EXPECT_EQ(roundTrip({ReachHeader, R1, tens({"", "", "REACH LOSS", "  2", "5"}), ""}),
              (Lines{ReachHeader, R1, tens({"", "", "REACH LOSS", "2.", "5."}), ""}));
}

TEST(ReachSection, TheKeywordsAreWrittenInColumns21To30) {
    Reaches reaches = read({ReachHeader, R1, ""});
    reaches.table(7, 1) = "3";
    reaches.table(18, 1) = "1";
    reaches.table(20, 1) = "7";
    const Lines lines = ReachSectionRecords(reaches.table, reaches.count);
    EXPECT_EQ(lines, (Lines{ReachHeader, R1, pad("", 20) + "BASE FLOW " + pad("3."),
                            pad("", 20) + "SPLIT FLOW" + pad("") + pad("") + pad("") + pad("") + pad("1."),
                            pad("", 20) + "REACH LOSS" + pad("") + pad("7."), ""}));
}

TEST(ReachSection, PointsGoToLengthsAndFlowsNotToIdentifiers) {
    TextTable table(ReachFields, 1);
    const Lines fields = {"12", "7", "3", "44", "5", "6", "",   "y",  " ",
                          "",   "N", "Y", "n",  "9", "8", "16", "17", "1"};
    for (int field = 1; field <= 18; ++field)
        table(field, 1) = fields[size_t(field - 1)];
    EXPECT_EQ(ReachSectionRecords(table, 1),
              (Lines{ReachHeader, tens({"", "12", "7", "3", "44", "5.", "6."}) + "y  NYn",
                     tens({"", "", "SPLIT FLOW", "9", "8", "16.", "17.", "1."}), ""}));
}

TEST(ReachSection, KeywordsAreComparedTrimmedAndInUpperCaseOthersAreDropped) {
    EXPECT_EQ(
        roundTrip({ReachHeader, R1, tens({"", "", " base flow", "3."}), tens({"", "", "LOSS", "5."}), ""}),
        (Lines{ReachHeader, R1, tens({"", "", "BASE FLOW", "3."}), ""}));
}

TEST(ReachSection, ReadingStopsAtTheFirstBlankLine) {
    EXPECT_EQ(read({ReachHeader, R1, "", tens({"", "R2"})}).count, 1);
}

TEST(ReachSection, ContinuationRecordsBeforeAnyReachArePassedOver) {
    const Reaches reaches = read({ReachHeader, tens({"", "", "BASE FLOW", "3."}), R1, ""});
    EXPECT_EQ(reaches.count, 1);
    EXPECT_EQ(reaches.table(7, 1), "");
}

TEST(ReachSection, NoReachOrNoNamedReachWritesNothing) {
    EXPECT_TRUE(ReachSectionRecords(TextTable(ReachFields, 1), 0).empty());
    TextTable unnamed(ReachFields, 2);
    unnamed(2, 1) = "R2";
    unnamed(5, 2) = "100";
    EXPECT_TRUE(ReachSectionRecords(unnamed, 2).empty());
}

TEST(ReachSection, EveryRowIsWrittenOnceOneRowIsNamed) {
    TextTable table(ReachFields, 2);
    table(5, 1) = "100";
    table(1, 2) = "R2";
    EXPECT_EQ(ReachSectionRecords(table, 2),
              (Lines{ReachHeader, tens({"", "", "", "", "", "100.", ""}) + "      ",
                     tens({"", "R2", "", "", "", "", ""}) + "      ", ""}));
}

} // namespace
} // namespace brooklet::test
