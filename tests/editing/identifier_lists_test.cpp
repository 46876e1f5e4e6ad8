#include "editing/identifier_lists.h"
#include "session/section_table.h"
#include "session/text_file.h"
#include "support/program_folder.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

using Items = std::vector<std::string>;

// A record of ten-column fields from column 1: the last field is written as it stands.
std::string tens(const std::vector<std::string>& fields) {
    std::string record;
    for (size_t i = 0; i < fields.size(); ++i) {
        record += fields[i];
        if (i + 1 < fields.size())
            record.append(10 - std::min<size_t>(fields[i].size(), 10), ' ');
    }
    return record;
}

class IdentifierListsTest : public ProgramFolderTest {
protected:
    IdentifierListsTest() { StartSession(session, currentFolder()); }
    void workFile(int number, const std::vector<std::string>& lines) {
        writeBytes(session.WorkFilePath[size_t(number)], crlf(lines));
    }
    Session session;
    StringList list;
};

TEST(AddUnique, TrimsAndIgnoresCaseAndKeepsTheFirstSpelling) {
    StringList list;
    AddUnique(list, "  Reach1  ");
    AddUnique(list, "REACH1");
    AddUnique(list, " reach1");
    AddUnique(list, "R2 ");
    EXPECT_EQ(list.items, (Items{"Reach1", "R2"}));
}

TEST(AddUnique, ComparesWithTheTrimOfItemsAlreadyInTheList) {
    StringList list(Items{"  abc  ", std::string(10, ' ')});
    AddUnique(list, "ABC");
    AddUnique(list, "");
    EXPECT_EQ(list.items, (Items{"  abc  ", std::string(10, ' ')}));
    AddUnique(list, "abd");
    EXPECT_EQ(list.items.back(), "abd");
}

TEST(RemoveCurrentFromList, RemovesTheFirstItemExactlyEqualToTheText) {
    StringList combo(Items{"a", "A", "B", "A"});
    combo.text = "A";
    RemoveCurrentFromList(combo);
    EXPECT_EQ(combo.items, (Items{"a", "B", "A"}));
    combo.text = "b";
    RemoveCurrentFromList(combo);
    EXPECT_EQ(combo.items, (Items{"a", "B", "A"}));
    combo.text = "A ";
    RemoveCurrentFromList(combo);
    EXPECT_EQ(combo.items, (Items{"a", "B", "A"}));
}

TEST_F(IdentifierListsTest, FindSubAreaFieldTakesTheFirstExactMatch) {
    workFile(SubAreaSection, {tens({"SUB-AREA:", "A1", "", "HEADER"}), tens({"", "a1", "R1", "G-LOWER"}),
                              tens({"", "A1", "R1", "G1", "1.5"}), tens({"", "", "LAND AREA", "Meadow"}),
                              tens({"", "A1", "R2", "G2"}), ""});
    std::string result = "untouched";
    FindSubAreaField(session, "A1", result);
    EXPECT_EQ(result, "G1");
    result = "untouched";
    FindSubAreaField(session, "B7", result);
    EXPECT_EQ(result, "untouched");
}

TEST_F(IdentifierListsTest, FindSubAreaFieldOnAMissingFileLeavesTheResult) {
    std::string result = "kept";
    FindSubAreaField(session, "A1", result);
    EXPECT_EQ(result, "kept");
}

TEST_F(IdentifierListsTest, AlternateListWithBlankOnAMissingFileIsOneItemOfTenBlanks) {
    FillAlternateList(session, list, true);
    EXPECT_EQ(list.items, (Items{"          "}));
}

TEST_F(IdentifierListsTest, AlternateListTakesColumnsOneToTenOfEveryLine) {
    workFile(AlternateSection, {"ALTERNATE ANALYSIS:", tens({"Dam", "Build a dam"}), "          REACHES",
                                tens({"", "R1", "R2"}), tens({"DAM", "again, other case"}),
                                tens({"Levee", ""}), "", tens({"After", "behind the blank line"})});
    FillAlternateList(session, list, false);
    EXPECT_EQ(list.items, (Items{"Dam", "Levee", "After"}));
    list.Clear();
    FillAlternateList(session, list, true);
    EXPECT_EQ(list.items, (Items{"Dam", "Levee", "After", "          "}));
}

TEST_F(IdentifierListsTest, ListsAreNotClearedAndAddThroughAddUnique) {
    workFile(InputHydrographSection,
             {tens({"INPUT HYDR", "OGRAPH:"}), tens({"", "Hyd1", "R1", "Storm1"}),
              tens({"", "", "", "10.", "20."}), tens({"", "HYD2", "R2", "Storm2"}), ""});
    list.items = {"hyd1", "Other"};
    FillInputHydrographList(session, list);
    EXPECT_EQ(list.items, (Items{"hyd1", "Other", "HYD2"}));
}

TEST_F(IdentifierListsTest, TheHeaderLineIsNeverScanned) {
    // "STREAM REACH:" holds "ACH:" in columns 11-20.
    workFile(ReachSection, {"STREAM REACH:                           ", tens({"", "R1", "R2"}), ""});
    workFile(CrossSectionSection, {"STREAM CROSS SECTION:                   ", tens({"", "X1", "1.0"}), ""});
    FillReachList(session, list, false);
    EXPECT_EQ(list.items, (Items{"R1", "R2"}));
    list.Clear();
    FillCrossSectionList(session, list);
    EXPECT_EQ(list.items, (Items{"X1"}));
}

TEST_F(IdentifierListsTest, MissingWorkFilesAddNothing) {
    FillReachList(session, list, true);
    FillInputHydrographList(session, list);
    FillHydrographNameList(session, list);
    FillRainTableList(session, false, list);
    FillStructureList(session, list);
    FillAreaReachList(session, list);
    FillCrossSectionList(session, list);
    RainfallTable rainfall;
    FillStormRainList(session, rainfall, list);
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(rainfall.RainfallCount, 0);
}

class ReachListTest : public IdentifierListsTest {
protected:
    ReachListTest() {
        workFile(InputHydrographSection, {"INPUT HYDROGRAPH:", tens({"", "Hyd1", "Upper", "Storm1"}),
                                          tens({"", "", "Skipped", "10.", "20."}), ""});
        workFile(ReachSection, {"STREAM REACH:", tens({"", "Upper", "Middle", "X1", "", "1200."}),
                                tens({"", "", "BASE FLOW", "2.5"}),
                                tens({"", "", "split flow", "Side", "X2", "10.", "20.", "0.5"}),
                                tens({"", "", "REACH LOSS", "0.001", "2."}),
                                tens({"", "middle", "OUTLET", "", "S1", "800."}), ""});
        workFile(SubAreaSection,
                 {"SUB-AREA:", tens({"", "A1", "Upper", "G1", "1.5"}), tens({"", "", "LAND AREA", "Meadow"}),
                  tens({"", "A2", "Lower", "G1", "2."}), ""});
        workFile(AlternateSection,
                 {"ALTERNATE ANALYSIS:", tens({"Alt1", "Before any list"}), tens({"", "Early", "X"}),
                  "          REACHES", tens({"", "AltReach", "Outlet", "X1"}),
                  tens({"", "", "BASE FLOW", "1."}), "          AREAS",
                  tens({"", "AltArea", "AltReach", "G1"}), tens({"Alt2", "Areas first"}), "          AREAS",
                  "          REACHES", tens({"", "Lower", "X"}), tens({"", "Alt2Reach", "X"}),
                  tens({"Alt3", "No list opening"}), tens({"", "NotAReach", "X"}), "", "          REACHES",
                  tens({"", "PastTheEnd", "X"})});
    }
};

TEST_F(ReachListTest, GathersEveryReachInOrderOfFirstAppearance) {
    FillReachList(session, list, false);
    EXPECT_EQ(list.items, (Items{"Upper", "Middle", "Side", "OUTLET", "Lower", "AltReach", "Alt2Reach"}));
}

TEST_F(ReachListTest, OutletStaysWithoutNoOutletAndGoesWithIt) {
    FillReachList(session, list, false);
    EXPECT_NE(std::find(list.items.begin(), list.items.end(), "OUTLET"), list.items.end());
    list.Clear();
    FillReachList(session, list, true);
    EXPECT_EQ(list.items, (Items{"Upper", "Middle", "Side", "Lower", "AltReach", "Alt2Reach"}));
}

TEST_F(ReachListTest, OutletsOfOtherCaseMergeIntoOneItemWhichNoOutletRemoves) {
    workFile(SubAreaSection, {"SUB-AREA:", tens({"", "A1", "outlet", "G1"}), ""});
    FillReachList(session, list, true);
    EXPECT_EQ(std::count_if(list.items.begin(), list.items.end(),
                            [](const std::string& item) { return item == "OUTLET" || item == "outlet"; }),
              0);
}

TEST_F(ReachListTest, TheOutletWalkPassesOverTheItemBehindARemovedOne) {
    // Two outlet items side by side can only come from the caller: the walk by position passes
    // over the second.
    list.items = {"OUTLET", "Outlet", "x"};
    FillReachList(session, list, true);
    EXPECT_EQ(list.items[0], "Outlet");
    EXPECT_EQ(std::count(list.items.begin(), list.items.end(), "OUTLET"), 0);
}

TEST_F(ReachListTest, AreaReachListTakesSubAreasAndTheAreaListsOfAlternates) {
    FillAreaReachList(session, list);
    EXPECT_EQ(list.items, (Items{"A1", "A2", "AltArea"}));
}

TEST_F(IdentifierListsTest, AlternateWalkEndsAtTheEndOfTheFileBehindAListOpening) {
    workFile(AlternateSection, {"ALTERNATE ANALYSIS:", tens({"Alt1", "x"}), "          REACHES"});
    FillReachList(session, list, false);
    EXPECT_EQ(list.ListCount(), 0);
    FillAreaReachList(session, list);
    EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(IdentifierListsTest, AreaWalkTakesTheNamesUnderAreas) {
    workFile(SubAreaSection, {"SUB-AREA:", tens({"", "Base", "R1"}), ""});
    workFile(AlternateSection,
             {"ALTERNATE ANALYSIS:", tens({"Alt1", "reaches, then areas"}), "          REACHES",
              tens({"", "R9", "R1"}), "          AREAS", tens({"", "A9", "R9"}),
              tens({"", "", "LAND AREA", "Meadow"}), tens({"", "base", "R9"}), tens({"Alt2", "areas only"}),
              "          areas", tens({"", "B9", "R9"}), ""});
    FillAreaReachList(session, list);
    EXPECT_EQ(list.items, (Items{"Base", "A9", "B9"}));
}

TEST_F(IdentifierListsTest, HydrographNamesComeFromInputHydrographsThenStorms) {
    workFile(InputHydrographSection, {"INPUT HYDROGRAPH:", tens({"", "Hyd1", "R1", "Storm1"}),
                                      tens({"", "Hyd2", "R1", ""}), tens({"", "", "", "STORM9"}), ""});
    workFile(StormSection, {"STORM ANALYSIS:", tens({"", "storm1", "G1", "0.", "5.", "Type II", "2", "3.5"}),
                            tens({"", "Storm2", "G2"})});
    FillHydrographNameList(session, list);
    EXPECT_EQ(list.items, (Items{"Storm1", "Storm2"}));
}

TEST_F(IdentifierListsTest, StormRainListBuildsTheRainGageTable) {
    workFile(StormSection,
             {"STORM ANALYSIS:", tens({"", "S1", "Gage1", "0.", "5.", "Type II", "2", "3.5"}),
              tens({"", "S2", "GAGE1", "0.", "4.", "Type II", "2", "2.8"}),
              tens({"", "S3", "Gage1", "0.", "6.", "Type II", "2", ""}),
              tens({"", "S3", "Gage2", "0.", "6.", "Type II", "2", ""}),
              tens({"", "S4", "Gage1", "0.", "6.", "Type II", "2", "3.75"}), tens({"", "S5", "", "0."})});
    workFile(SubAreaSection, {"SUB-AREA:", tens({"", "A1", "R1", "gage2"}), tens({"", "A2", "R1", "Gage3"}),
                              tens({"", "SHEET", "R1", "Sheet-G"}), tens({"", "Sheet", "R1", "Other-G"}),
                              tens({"", "", "LAND AREA", "Meadow"}), ""});
    RainfallTable rainfall;
    FillStormRainList(session, rainfall, list);
    EXPECT_EQ(list.items, (Items{"Gage1", "Gage2", "Gage3", "Other-G"}));
    // Names compare exactly; a later line of a gage with a rainfall gives it to the gage's first
    // row; a later line with a blank rainfall adds a row of its own; a blank gage has its row.
    ASSERT_EQ(rainfall.RainfallCount, 5);
    EXPECT_EQ(rainfall.RainfallIds, (Items{"", "Gage1", "GAGE1", "Gage1", "Gage2", ""}));
    EXPECT_EQ(rainfall.Rainfall2Yr, (std::vector<float>{0.0f, 3.75f, 2.8f, 0.0f, 0.0f, 0.0f}));
}

TEST_F(IdentifierListsTest, StormRainListKeepsTheRainfallOfAStormWithABlankGage) {
    workFile(StormSection, {"STORM ANALYSIS:", tens({"", "S1", "", "0.", "5.", "Type II", "2", "3.2"}),
                            tens({"", "S2", "North", "0.", "5.", "Type II", "2", "2.9"}),
                            tens({"", "S3", "", "0.", "5.", "Type II", "2", "3.4"})});
    workFile(SubAreaSection, {"SUB-AREA:", tens({"", "A1", "R1", ""}), ""});
    RainfallTable rainfall;
    FillStormRainList(session, rainfall, list);
    // A blank gage is no item of the list, but it has its row in the table, which the later
    // storm with a blank gage updates; a sub-area that names no gage finds it there.
    EXPECT_EQ(list.items, (Items{"North"}));
    ASSERT_EQ(rainfall.RainfallCount, 2);
    EXPECT_EQ(rainfall.RainfallIds[1], "");
    EXPECT_FLOAT_EQ(rainfall.Rainfall2Yr[1], 3.4f);
    EXPECT_EQ(rainfall.RainfallIds[2], "North");
    EXPECT_FLOAT_EQ(rainfall.Rainfall2Yr[2], 2.9f);
}

TEST_F(IdentifierListsTest, StormRainListAddsARowForARepeatedGageWithABlankRainfall) {
    workFile(StormSection, {"STORM ANALYSIS:", tens({"", "S1", "G1", "0.", "5.", "Type II", "2", ""}),
                            tens({"", "S2", "G1", "0.", "5.", "Type II", "2", ""}),
                            tens({"", "S3", "G1", "0.", "5.", "Type II", "2", "2.5"})});
    RainfallTable rainfall;
    FillStormRainList(session, rainfall, list);
    EXPECT_EQ(list.items, (Items{"G1"}));
    ASSERT_EQ(rainfall.RainfallCount, 2);
    EXPECT_EQ(rainfall.RainfallIds, (Items{"", "G1", "G1"}));
    EXPECT_EQ(rainfall.Rainfall2Yr, (std::vector<float>{0.0f, 2.5f, 0.0f}));
}

TEST_F(IdentifierListsTest, StormRainListResetsTheRainGageTable) {
    RainfallTable rainfall;
    rainfall.RainfallIds = {"", "Old", "Older"};
    rainfall.Rainfall2Yr = {0, 1, 2};
    rainfall.RainfallCount = 2;
    workFile(StormSection, {"STORM ANALYSIS:", tens({"", "S1", "New", "0.", "5.", "Type II", "2", "4"})});
    FillStormRainList(session, rainfall, list);
    ASSERT_EQ(rainfall.RainfallCount, 1);
    EXPECT_EQ(rainfall.RainfallIds[1], "New");
    EXPECT_FLOAT_EQ(rainfall.Rainfall2Yr[1], 4.0f);
}

TEST_F(IdentifierListsTest, RainTableListWithAndWithoutTheStandardNames) {
    workFile(RainfallDistributionSection, {"RAINFALL DISTRIBUTION:", tens({"", "MyTable", "", "0.1"}),
                                           tens({"", "", "0.", "0.1", "0.3"}), tens({"", "type ii"}), ""});
    workFile(StormSection, {"STORM ANALYSIS:", tens({"", "S1", "G1", "0.", "5.", "TYPE II", "2"}),
                            tens({"", "S2", "G1", "0.", "5.", "Local", "2"}),
                            tens({"", "S3", "G1", "0.", "5.", "MYTABLE", "2"}),
                            tens({"", "S4", "G1", "0.", "5.", "typeii(48)", "2"})});
    FillRainTableList(session, true, list);
    EXPECT_EQ(list.items, (Items{"Type I", "Type IA", "Type II", "Type III", "Type I(48)", "TypeII(48)",
                                 "Type NM60", "Type NM65", "Type NM70", "Type NM75", "MyTable", "Local"}));
    list.Clear();
    FillRainTableList(session, false, list);
    // "TYPE II" of the storm section is a standard name in other case; "type ii" of the
    // distribution section is a name of that section.
    EXPECT_EQ(list.items, (Items{"MyTable", "type ii", "Local"}));
}

TEST_F(IdentifierListsTest, StructureListTakesRatingsThenStructuresOfReaches) {
    workFile(StructureSection, {"STRUCTURE RATING:", tens({"", "Dam1", "100."}),
                                tens({"", "", "100.", "0.", "0."}), tens({"", "Dam2"}), ""});
    workFile(ReachSection, {"STREAM REACH:", tens({"", "R1", "R2", "X1", "DAM1", "100."}),
                            tens({"", "R2", "R3", "X1", "Culvert", "100."}),
                            tens({"", "SPLIT FLOW", "R3", "X1", "Weir", "100."}),
                            tens({"", "Base Flow", "R3", "X1", "Weir2", "100."}),
                            tens({"", "", "REACH LOSS", "0.1", "Weir3"}), ""});
    FillStructureList(session, list);
    EXPECT_EQ(list.items, (Items{"Dam1", "Dam2", "Culvert"}));
}

TEST_F(IdentifierListsTest, CrossSectionListReadsTheReachSectionAsItsRuleSays) {
    workFile(CrossSectionSection, {"STREAM CROSS SECTION:", tens({"", "X1", "100.", "90."}),
                                   tens({"", "", "0.", "100."}), tens({"", "x1"}), tens({"", "X2"}), ""});
    workFile(ReachSection,
             {"STREAM REACH:", tens({"", "R1", "R2", "XR", "", "100."}),
              tens({"", "split flow", "R3", "XS31", "XS41"}),
              tens({"", "", "SPLIT FLOW", "Side", "X9", "10."}), tens({"", "", "BASE FLOW", "2.5"}), ""});
    FillCrossSectionList(session, list);
    EXPECT_EQ(list.items, (Items{"X1", "X2", "XS41", "Side", "2.5"}));
}

} // namespace
} // namespace brooklet::test
