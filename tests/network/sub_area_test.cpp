// The records of the sub-area section: read into the sub-area tables column for column and
// written back from them, with the differences between reader and writer that the section has.
#include "network/sub_area.h"

#include "editing/field_checks.h"

#include "network_records.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

WatershedTables read(const Lines& lines) {
    WatershedTables tables;
    ReadSubAreaSection(lines, tables);
    return tables;
}

Lines roundTrip(const Lines& lines) {
    return SubAreaSectionRecords(read(lines));
}

const std::string A1 = tens({"", "A1", "R1", "G1", "1.5", "75.", "0.8"}) + "YNY  ";

TEST(SubAreaSection, ReadsTheSubAreaRecordColumnForColumn) {
    const WatershedTables tables = read({SubAreaHeader, A1, ""});
    ASSERT_EQ(tables.SubAreaCount, 1);
    const Lines expected = {"A1", "R1", "G1", "1.5", "75.", "0.8", "Y", "N", "Y", "", ""};
    for (int field = 1; field <= 11; ++field)
        EXPECT_EQ(tables.SubAreaTable(field, 1), expected[size_t(field - 1)]) << field;
    EXPECT_EQ(tables.LandUseFirst[1], 0);
    EXPECT_EQ(tables.LandUseLast[1], 0);
}

TEST(SubAreaSection, ReadsTheDetailRecordsIntoTheirFields) {
    const WatershedTables tables =
        read({SubAreaHeader, A1, tens({"", "", "SHEET", "100.", "0.02", "0.24", "F"}),
              tens({"", "", "SHALLOW", "900.", "0.03", "X", "U"}),
              tens({"", "", "CHANNEL", "1200.", "0.005", "0.045", "18.5", "14.2"}),
              landArea("Meadow", "B", "0.5"), ""});
    const Lines expected = {"100.",  "0.02",  "0.24",  "F",    "900.", "0.03", "U",
                            "1200.", "0.005", "0.045", "18.5", "14.2", ""};
    for (int field = 12; field <= 24; ++field)
        EXPECT_EQ(tables.SubAreaTable(field, 1), expected[size_t(field - 12)]) << field;
    EXPECT_EQ(tables.LandUseStoreCount, 1);
    EXPECT_EQ(tables.LandUseStore(1, 1), "Meadow");
    EXPECT_EQ(tables.LandUseStore(2, 1), "B");
    EXPECT_EQ(tables.LandUseStore(3, 1), "0.5");
    EXPECT_EQ(tables.LandUseFirst[1], 1);
    EXPECT_EQ(tables.LandUseLast[1], 1);
}

TEST(SubAreaSection, TheWriterTellsAWatchOfEveryValueWiderThanItsColumns) {
    WatershedTables tables = read({SubAreaHeader, A1, landArea("Meadow", "B", "0.5"), ""});
    {
        FieldFitWatch watch;
        SubAreaSectionRecords(tables);
        EXPECT_TRUE(watch.allFit());
    }
    tables.SubAreaTable(4, 1) = "12345678901";
    tables.LandUseStore(1, 1) = "Meadow of more than thirty-five characters";
    FieldFitWatch watch;
    SubAreaSectionRecords(tables);
    EXPECT_EQ(watch.overflows(), 2);
    EXPECT_EQ(watch.firstValue(), "12345678901");
    EXPECT_EQ(watch.firstWidth(), 10);
}

TEST(SubAreaSection, EveryRecordKindAndBothChannelFormsComeBackByteForByte) {
    const Lines section = sectionOf("SUB-AREA:");
    ASSERT_EQ(section.size(), 12u);
    EXPECT_EQ(roundTrip(section), section);
}

TEST(SubAreaSection, AChannelWithValuesOnlyInColumns31To50ComesBackUnchanged) {
    const Lines section = {SubAreaHeader, A1, tens({"", "", "CHANNEL", "3400.", "3.2"}), ""};
    const WatershedTables tables = read(section);
    EXPECT_EQ(tables.SubAreaTable(19, 1), "3400.");
    EXPECT_EQ(tables.SubAreaTable(24, 1), "3.2");
    EXPECT_EQ(tables.SubAreaTable(20, 1), "");
    EXPECT_EQ(SubAreaSectionRecords(tables), section);
}

TEST(SubAreaSection, AChannelPartlyFilledInColumns51To80IsReadLongAndWrittenShort) {
    // Columns 41-50 are the slope in the long form; with the end area missing the record goes out
    // short: the length stays, the velocity, never read, is empty.
    const WatershedTables tables =
        read({SubAreaHeader, A1, tens({"", "", "CHANNEL", "1200.", "0.005", "0.045", "", "14.2"}), ""});
    EXPECT_EQ(tables.SubAreaTable(20, 1), "0.005");
    EXPECT_EQ(tables.SubAreaTable(21, 1), "0.045");
    EXPECT_EQ(tables.SubAreaTable(23, 1), "14.2");
    EXPECT_EQ(tables.SubAreaTable(24, 1), "");
    EXPECT_EQ(SubAreaSectionRecords(tables),
              (Lines{SubAreaHeader, A1, tens({"", "", "CHANNEL", "1200.", ""}), ""}));
}

TEST(SubAreaSection, ALongChannelLosesAStoredVelocity) {
    WatershedTables tables = read({SubAreaHeader, A1, ""});
    for (int field = 19; field <= 24; ++field)
        tables.SubAreaTable(field, 1) = std::to_string(field);
    EXPECT_EQ(SubAreaSectionRecords(tables)[2], tens({"", "", "CHANNEL", "19.", "20.", "21.", "22.", "23."}));
}

TEST(SubAreaSection, WeightCnIsReadAsALandUseRecordAndWrittenAsLandArea) {
    const Lines lines = roundTrip(
        {SubAreaHeader, A1, tens({"", "", "WEIGHT CN"}) + pad("Meadow", 35) + pad("B", 5) + "3", ""});
    EXPECT_EQ(lines, (Lines{SubAreaHeader, A1, landArea("Meadow", "B", "3."), ""}));
}

TEST(SubAreaSection, KeywordsAreComparedTrimmedAndInUpperCase) {
    const WatershedTables tables =
        read({SubAreaHeader, A1, tens({"", "", " sheet", "100."}),
              tens({"", "", "Land Area"}) + pad("Meadow", 35) + pad("B", 5) + "3", ""});
    EXPECT_EQ(tables.SubAreaTable(12, 1), "100.");
    EXPECT_EQ(tables.LandUseStoreCount, 1);
}

TEST(SubAreaSection, AnUnknownKeywordIsDroppedOnRewrite) {
    EXPECT_EQ(roundTrip({SubAreaHeader, A1, tens({"", "", "SHEETS", "100."}), tens({"", "", "", "5."}), ""}),
              (Lines{SubAreaHeader, A1, ""}));
}

TEST(SubAreaSection, ALandUseRecordOfAreaZeroVanishesAtTheNextWrite) {
    EXPECT_EQ(roundTrip({SubAreaHeader, A1, landArea("Meadow", "B", "0."), landArea("Woods", "C", "2."),
                         landArea("Brush", "D", ""), landArea("Pasture", "A", "-1"), ""}),
              (Lines{SubAreaHeader, A1, landArea("Woods", "C", "2."), ""}));
}

TEST(SubAreaSection, ReadingStopsAtTheFirstBlankLine) {
    const WatershedTables tables =
        read({SubAreaHeader, A1, "     ", tens({"", "A2", "R1"}), tens({"", "", "SHEET", "100."})});
    EXPECT_EQ(tables.SubAreaCount, 1);
    EXPECT_EQ(tables.SubAreaTable(12, 1), "");
}

TEST(SubAreaSection, TheFirstLineIsTheHeaderWhateverItHolds) {
    EXPECT_EQ(read({A1}).SubAreaCount, 0);
}

TEST(SubAreaSection, DetailRecordsBeforeAnySubAreaArePassedOver) {
    const WatershedTables tables =
        read({SubAreaHeader, tens({"", "", "SHEET", "100."}), landArea("Meadow", "B", "1."), A1, ""});
    EXPECT_EQ(tables.SubAreaCount, 1);
    EXPECT_EQ(tables.SubAreaTable(12, 1), "");
    EXPECT_EQ(tables.LandUseStoreCount, 0);
}

TEST(SubAreaSection, NoSubAreaWritesNothingNotEvenTheHeader) {
    EXPECT_TRUE(SubAreaSectionRecords(read({SubAreaHeader, ""})).empty());
    EXPECT_TRUE(SubAreaSectionRecords(WatershedTables()).empty());
}

TEST(SubAreaSection, ADetailRecordIsWrittenWhenAnyOfItsFieldsIsGiven) {
    WatershedTables tables = read({SubAreaHeader, A1, ""});
    tables.SubAreaTable(15, 1) = "F";
    tables.SubAreaTable(18, 1) = "U";
    tables.SubAreaTable(24, 1) = "2";
    EXPECT_EQ(SubAreaSectionRecords(tables),
              (Lines{SubAreaHeader, A1, tens({"", "", "SHEET", "", "", "", "F"}),
                     tens({"", "", "SHALLOW", "", "", "", "U"}), tens({"", "", "CHANNEL", "", "2."}), ""}));
}

TEST(SubAreaSection, NumbersGetTheirPointAndIdentifiersNone) {
    WatershedTables tables;
    const int row = addSubAreaRow(tables);
    const Lines fields = {"12", "7", "3", "2", "70", "1", "y", " ", "", "N", "Y"};
    for (int field = 1; field <= 11; ++field)
        tables.SubAreaTable(field, row) = fields[size_t(field - 1)];
    EXPECT_EQ(SubAreaSectionRecords(tables)[1], tens({"", "12", "7", "3", "2.", "70.", "1."}) + "y  NY");
}

TEST(SubAreaSection, AValueLongerThanItsFieldIsNotCutAndPushesTheRestRight) {
    WatershedTables tables;
    const int row = addSubAreaRow(tables);
    tables.SubAreaTable(1, row) = "LONGNAME123";
    tables.SubAreaTable(2, row) = "R1";
    EXPECT_EQ(SubAreaSectionRecords(tables)[1], pad("") + "LONGNAME123" + pad("R1") + std::string(45, ' '));
}

TEST(SubAreaSection, WriteSubAreaSectionRewritesWorkFile11AndSetsDataChanged) {
    ProgramFolder folder;
    Session session;
    session.WorkFilePath[SubAreaSection] = folder.file("~SubArea.tmp");
    const Lines section = sectionOf("SUB-AREA:");
    EXPECT_TRUE(WriteSubAreaSection(session, read(section)).ok);
    EXPECT_EQ(bytesOf(session.WorkFilePath[SubAreaSection]), crlf(section));
    EXPECT_TRUE(session.DataChanged);
}

TEST(SubAreaSection, WriteSubAreaSectionWithNoSubAreaEmptiesTheFile) {
    ProgramFolder folder;
    Session session;
    session.WorkFilePath[SubAreaSection] = folder.file("~SubArea.tmp");
    writeBytes(session.WorkFilePath[SubAreaSection], crlf({SubAreaHeader, A1, ""}));
    EXPECT_TRUE(WriteSubAreaSection(session, WatershedTables()).ok);
    EXPECT_EQ(bytesOf(session.WorkFilePath[SubAreaSection]), "");
    EXPECT_TRUE(session.DataChanged);
}

TEST(SubAreaSection, WriteSubAreaSectionSetsDataChangedAlsoWhenTheFileCannotBeWritten) {
    ProgramFolder folder;
    Session session;
    session.WorkFilePath[SubAreaSection] = folder.file("missing/~SubArea.tmp");
    EXPECT_FALSE(WriteSubAreaSection(session, read({SubAreaHeader, A1, ""})).ok);
    EXPECT_TRUE(session.DataChanged);
}

} // namespace
} // namespace brooklet::test
