// The records of the alternate section, read into the alternate store column for column and
// written back from it, with the differences from the sub-area and reach sections that this
// section has; and the store's search and deletion of alternates' entries.
#include "tables/alternate_analysis.h"

#include "../network/network_records.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

const std::string Header = "ALTERNATE ANALYSIS:";
const std::string Reaches = "          REACHES";
const std::string Areas = "          AREAS";

WatershedTables read(const Lines& lines) {
    WatershedTables tables;
    resetAlternateStore(tables);
    ReadAlternateSection(lines, tables);
    return tables;
}

Lines roundTrip(const Lines& lines) {
    return AlternateSectionRecords(read(lines));
}

std::string alternate(const std::string& name, const std::string& description) {
    return pad(name) + pad(description, 70);
}

const std::string Reach1 = tens({"", "R1", "R2", "XS1", "ST1", "1200.", "1300."}) + "YNY N ";
const std::string Area1 = tens({"", "A1", "R1", "G1", "1.5", "75.", "0.8"}) + "YNY  ";

TEST(AlternateSection, ReadsTheAlternateAndItsEntriesColumnForColumn) {
    const WatershedTables tables = read({Header, alternate("BUILDOUT", "Future land use"), Reaches, Reach1,
                                         tens({"", "", "BASE FLOW", "2.5"}),
                                         tens({"", "", "SPLIT FLOW", "R9", "XS9", "1.", "2.", "0.4"}),
                                         tens({"", "", "REACH LOSS", "0.01", "3"}), Areas, Area1,
                                         tens({"", "", "SHEET", "100.", "0.02", "0.24", "F"}),
                                         tens({"", "", "SHALLOW", "900.", "0.03", "", "U"}),
                                         tens({"", "", "CHANNEL", "1200.", "0.005", "0.045", "18.5", "14.2"}),
                                         landArea("Meadow", "B", "0.5"), landArea("Woods", "C", "1.0"), ""});
    ASSERT_EQ(tables.AlternateCount, 1);
    EXPECT_EQ(tables.AlternateNames(1, 1), "BUILDOUT");
    EXPECT_EQ(tables.AlternateNames(2, 1), "Future land use");
    ASSERT_EQ(tables.AlternateReachCount[1], 1);
    const Lines reach = {pad("R1"),    pad("R2"),  pad("XS1"), pad("ST1"),  pad("1200."),
                         pad("1300."), pad("2.5"), "Y",        "N",         "Y",
                         "",           "N",        "",         pad("R9"),   pad("XS9"),
                         pad("1."),    pad("2."),  pad("0.4"), pad("0.01"), pad("3")};
    for (int field = 1; field <= ReachFields; ++field)
        EXPECT_EQ(tables.AlternateReaches(field, 1, 1), reach[size_t(field - 1)]) << field;
    ASSERT_EQ(tables.AlternateSubAreaCount[1], 1);
    const Lines area = {pad("A1"),    pad("R1"),    pad("G1"),    pad("1.5"),  pad("75."),  pad("0.8"),
                        "Y",          "N",          "Y",          "",          "",          pad("100."),
                        pad("0.02"),  pad("0.24"),  pad("F"),     pad("900."), pad("0.03"), pad("U"),
                        pad("1200."), pad("0.005"), pad("0.045"), pad("18.5"), pad("14.2"), ""};
    for (int field = 1; field <= 24; ++field)
        EXPECT_EQ(tables.AlternateSubAreas(field, 1, 1), area[size_t(field - 1)]) << field;
    EXPECT_EQ(alternateLandUseFirst(tables, 1, 1), 1);
    EXPECT_EQ(alternateLandUseLast(tables, 1, 1), 2);
    EXPECT_EQ(tables.LandUseStoreCount, 2);
    EXPECT_EQ(tables.AlternateLandUse(1, 2), "Woods");
    EXPECT_EQ(tables.AlternateLandUse(2, 2), "C");
    EXPECT_EQ(tables.AlternateLandUse(3, 2), "1.0");
}

TEST(AlternateSection, WritesEveryRecordInItsColumns) {
    const Lines written =
        roundTrip({Header, alternate("BUILDOUT", "Future land use"), Areas, Area1,
                   tens({"", "", "SHEET", "100", "0.02", "0.24", "F"}),
                   tens({"", "", "SHALLOW", "900", "0.03", "", "U"}),
                   tens({"", "", "CHANNEL", "1200", "0.005", "0.045", "18.5", "14.2"}),
                   landArea("Meadow", "B", "5"), Reaches, Reach1, tens({"", "", "BASE FLOW", "2"}),
                   tens({"", "", "SPLIT FLOW", "R9", "XS9", "1", "2", "0.4"}),
                   tens({"", "", "REACH LOSS", "1", "3"}), ""});
    const Lines expected = {Header,
                            alternate("BUILDOUT", "Future land use"),
                            Reaches,
                            Reach1,
                            tens({"", "", "BASE FLOW", "2."}),
                            tens({"", "", "SPLIT FLOW", "R9", "XS9", "1.", "2.", "0.4"}),
                            tens({"", "", "REACH LOSS", "1", "3"}),
                            Areas,
                            Area1,
                            tens({"", "", "SHEET", "100.", "0.02", "0.24", "F"}),
                            tens({"", "", "SHALLOW", "900.", "0.03", "U"}),
                            tens({"", "", "CHANNEL", "1200.", "0.005", "0.045", "18.5", "14.2"}),
                            landArea("Meadow", "B", "5"),
                            ""};
    EXPECT_EQ(written, expected);
}

TEST(AlternateSection, TheExampleWatershedsSectionComesBackByteForByte) {
    LineReader reader(bytesOf(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp"));
    Lines section;
    while (!reader.atEnd()) {
        std::string line = reader.readLine();
        if (line == Header || !section.empty())
            section.push_back(line);
        if (!section.empty() && line.empty())
            break;
    }
    ASSERT_GT(section.size(), 3u);
    EXPECT_EQ(roundTrip(section), section);
}

TEST(AlternateSection, TheReferenceFileComesBackWithTheSectionsOwnDifferences) {
    Lines lines = splitLines(bytesOf(testDataPath("alternates.inp")));
    Lines expected = lines;
    // Numbers get their point, the shallow surface code moves ten columns to the left, and the
    // alternate with no entries is dropped.
    expected[3] = tens({"", "R1", "R2", "XS1", "ST1", "1200.", "1300."}) + "YNY N ";
    expected[10] = tens({"", "", "SHALLOW", "900.", "0.03", "U"});
    expected[14] = tens({"", "", "CHANNEL", "800.", "2.1"});
    expected.erase(expected.begin() + 15);
    EXPECT_EQ(roundTrip(lines), expected);
}

TEST(AlternateSection, AnAlternateWithADescriptionAndNoEntriesVanishes) {
    const Lines written = roundTrip({Header, alternate("EMPTY", "Nothing changed here"),
                                     alternate("FULL", "One reach"), Reaches, Reach1, ""});
    EXPECT_EQ(written, (Lines{Header, alternate("FULL", "One reach"), Reaches, Reach1, ""}));
}

TEST(AlternateSection, WithNoAlternateHoldingEntriesNothingIsWritten) {
    const WatershedTables tables = read({Header, alternate("EMPTY", "Nothing"), alternate("ALSO", ""), ""});
    EXPECT_EQ(tables.AlternateCount, 2);
    EXPECT_TRUE(AlternateSectionRecords(tables).empty());
}

TEST(AlternateSection, RecordsBeforeAnyListOpeningAreIgnored) {
    const WatershedTables tables =
        read({Header, Reach1, alternate("ALT1", ""), Reach1, Area1, Reaches, Reach1, alternate("ALT2", ""),
              Area1, tens({"", "", "BASE FLOW", "2."}), ""});
    ASSERT_EQ(tables.AlternateCount, 2);
    EXPECT_EQ(tables.AlternateReachCount[1], 1);
    EXPECT_EQ(tables.AlternateSubAreaCount[1], 0);
    EXPECT_EQ(tables.AlternateReachCount[2], 0);
    EXPECT_EQ(tables.AlternateSubAreaCount[2], 0);
}

TEST(AlternateSection, AListOpeningClosesTheOtherListAndIsReadTrimmedInUpperCase) {
    const WatershedTables tables = read({Header, alternate("ALT1", ""), "          reaches  ", Reach1,
                                         "          Areas", Reach1, Reaches, Reach1, ""});
    EXPECT_EQ(tables.AlternateReachCount[1], 2);
    EXPECT_EQ(tables.AlternateSubAreaCount[1], 1);
    EXPECT_EQ(tables.AlternateSubAreas(1, 1, 1), pad("R1"));
}

TEST(AlternateSection, ContinuationRecordsBeforeAnyEntryAndUnknownKeywordsArePassedOver) {
    const Lines written =
        roundTrip({Header, alternate("ALT1", ""), Reaches, tens({"", "", "BASE FLOW", "2."}), Reach1,
                   tens({"", "", "BRIDGE", "2."}), Areas, tens({"", "", "SHEET", "100."}), Area1,
                   tens({"", "", "WEIGHT CN", "Meadow"}), ""});
    EXPECT_EQ(written, (Lines{Header, alternate("ALT1", ""), Reaches, Reach1, Areas, Area1, ""}));
}

TEST(AlternateSection, ReadingStopsAtTheFirstBlankLine) {
    const WatershedTables tables = read({Header, alternate("ALT1", ""), Reaches, Reach1, "   ", Reach1, ""});
    EXPECT_EQ(tables.AlternateReachCount[1], 1);
}

TEST(AlternateSection, ASplitFlowWithABlankReachIsDroppedOnWriting) {
    const Lines written = roundTrip({Header, alternate("ALT1", ""), Reaches, Reach1,
                                     tens({"", "", "SPLIT FLOW", "", "XS9", "1.", "2.", "0.4"}), ""});
    EXPECT_EQ(written, (Lines{Header, alternate("ALT1", ""), Reaches, Reach1, ""}));
}

TEST(AlternateSection, TheShallowSurfaceCodeMovesLeftAndIsGoneAfterTheNextLoad) {
    const Lines once = roundTrip({Header, alternate("ALT1", ""), Areas, Area1,
                                  tens({"", "", "SHALLOW", "900.", "0.03", "", "U"}), ""});
    EXPECT_EQ(once[4], tens({"", "", "SHALLOW", "900.", "0.03", "U"}));
    const WatershedTables again = read(once);
    EXPECT_EQ(again.AlternateSubAreas(18, 1, 1), "");
    EXPECT_EQ(AlternateSectionRecords(again)[4], tens({"", "", "SHALLOW", "900.", "0.03", ""}));
}

TEST(AlternateSection, AChannelWithALengthAloneWritesTheShortFormWithABlankVelocity) {
    const Lines written =
        roundTrip({Header, alternate("ALT1", ""), Areas, Area1, tens({"", "", "CHANNEL", "1200"}), ""});
    EXPECT_EQ(written[4], tens({"", "", "CHANNEL", "1200.", ""}));
}

TEST(AlternateSection, TheChannelFormIsChosenByColumns51To80) {
    const WatershedTables tables =
        read({Header, alternate("ALT1", ""), Areas, Area1, tens({"", "", "CHANNEL", "1200.", "3.5"}), Area1,
              tens({"", "", "CHANNEL", "1200.", "0.005", "", "", "14.2"}), ""});
    EXPECT_EQ(tables.AlternateSubAreas(24, 1, 1), pad("3.5"));
    EXPECT_EQ(tables.AlternateSubAreas(20, 1, 1), "");
    EXPECT_EQ(tables.AlternateSubAreas(20, 1, 2), pad("0.005"));
    EXPECT_EQ(tables.AlternateSubAreas(23, 1, 2), pad("14.2"));
    // Not every long field given: written in the short form, with the velocity it does not have.
    EXPECT_EQ(AlternateSectionRecords(tables)[6], tens({"", "", "CHANNEL", "1200.", ""}));
}

TEST(AlternateSection, TheDescriptionIsTrimmedAndALongerValueIsNotCut) {
    WatershedTables tables = read({Header, "ALT1      " + std::string(3, ' ') + "Wide" + std::string(80, ' '),
                                   Areas, tens({"", "A1", "", "", "1234567890"}), ""});
    EXPECT_EQ(tables.AlternateNames(2, 1), "Wide");
    tables.AlternateNames(2, 1) = std::string(75, 'D');
    tables.AlternateSubAreas.set(5, 1, 1, "12345678901");
    const Lines written = AlternateSectionRecords(tables);
    EXPECT_EQ(written[1], "ALT1      " + std::string(75, 'D'));
    EXPECT_EQ(written[3], tens({"", "A1", "", "", "1234567890", "12345678901"}) + std::string(15, ' '));
}

// ---- The store's entries --------------------------------------------------------------------

WatershedTables storeWithReaches(int alternates, const Lines& names) {
    WatershedTables tables;
    resetAlternateStore(tables);
    for (int a = 1; a <= alternates; ++a)
        addAlternate(tables, "ALT" + std::to_string(a), "");
    for (const std::string& name : names)
        tables.AlternateReaches.set(1, 1, addAlternateReach(tables, 1), name);
    return tables;
}

Lines reachNames(const WatershedTables& tables, int alternate) {
    Lines names;
    for (int row = 1; row <= tables.AlternateReachCount[size_t(alternate)]; ++row)
        names.push_back(tables.AlternateReaches(1, alternate, row));
    return names;
}

TEST(AlternateStore, AlternatesAreFoundByNameCaseNotCounting) {
    WatershedTables tables = storeWithReaches(3, {});
    EXPECT_EQ(findAlternate(tables, " alt2 "), 2);
    EXPECT_EQ(findAlternate(tables, "ALT4"), 0);
}

TEST(AlternateStore, TheLastOfTwoEntriesOfTheSameNameIsFound) {
    WatershedTables tables = storeWithReaches(1, {"R1", "r1", "R2"});
    EXPECT_EQ(findAlternateEntry(tables, 1, 2, "R1 ", true), 2);
    EXPECT_EQ(findAlternateEntry(tables, 1, 2, "R1", false), 1);
    EXPECT_EQ(findAlternateEntry(tables, 1, 2, "R3", true), 0);
}

TEST(AlternateStore, EveryReachBehindADeletedOneMovesUp) {
    WatershedTables tables = storeWithReaches(2, {"R1", "R2", "R3", "R4", "R5"});
    deleteAlternateEntry(tables, 1, 2, 1);
    EXPECT_EQ(reachNames(tables, 1), (Lines{"R2", "R3", "R4", "R5"}));
    WatershedTables enough = storeWithReaches(5, {"R1", "R2", "R3"});
    deleteAlternateEntry(enough, 1, 2, 2);
    EXPECT_EQ(reachNames(enough, 1), (Lines{"R1", "R3"}));
}

TEST(AlternateStore, DeletedSubAreaEntriesCloseTheGapWithTheirLandUse) {
    WatershedTables tables = storeWithReaches(1, {});
    for (const char* name : {"A1", "A2", "A3"})
        tables.AlternateSubAreas.set(1, 1, addAlternateSubArea(tables, 1), name);
    addAlternateLandUse(tables, 1, 3, "Meadow", "B", "2");
    deleteAlternateEntry(tables, 1, 1, 1);
    ASSERT_EQ(tables.AlternateSubAreaCount[1], 2);
    EXPECT_EQ(tables.AlternateSubAreas(1, 1, 1), "A2");
    EXPECT_EQ(tables.AlternateSubAreas(1, 1, 2), "A3");
    EXPECT_EQ(alternateLandUseFirst(tables, 1, 2), 1);
    EXPECT_EQ(alternateLandUseFirst(tables, 1, 1), 0);
}

} // namespace
} // namespace brooklet::test
