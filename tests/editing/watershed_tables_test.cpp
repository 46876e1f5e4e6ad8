#include "editing/watershed_tables.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

using Texts = std::vector<std::string>;

// A sub-area row with its identifier, reach and rain gage.
int subArea(WatershedTables& tables, const std::string& name, const std::string& reach) {
    const int row = addSubAreaRow(tables);
    tables.SubAreaTable(1, row) = name;
    tables.SubAreaTable(2, row) = reach;
    tables.SubAreaTable(3, row) = "G1";
    return row;
}

TEST(SubAreaTables, ResetLeavesOneEmptyRowAndKeepsTheLandUseCount) {
    WatershedTables tables;
    const int row = subArea(tables, "A1", "R1");
    addLandUseRow(tables, row, "Meadow", "B", "10.");
    addLandUseRow(tables, row, "Woods", "C", "5.");
    resetSubAreaTables(tables);
    EXPECT_EQ(tables.SubAreaCount, 0);
    EXPECT_EQ(tables.SubAreaTable.rows(), 1);
    EXPECT_EQ(tables.SubAreaTable(1, 1), "");
    EXPECT_EQ(tables.LandUseStore.rows(), 1);
    EXPECT_EQ(tables.LandUseStoreCount, 2);
    // A later land use record follows the old count; the rows below it belong to nobody.
    const int again = subArea(tables, "A1", "R1");
    EXPECT_EQ(addLandUseRow(tables, again, "Meadow", "B", "10."), 3);
    EXPECT_EQ(tables.LandUseStore(1, 1), "");
    EXPECT_EQ(tables.LandUseStore(1, 2), "");
    EXPECT_EQ(tables.LandUseStore(1, 3), "Meadow");
    EXPECT_EQ(tables.LandUseFirst[size_t(again)], 3);
    EXPECT_EQ(tables.LandUseLast[size_t(again)], 3);
}

TEST(SubAreaTables, LandUseRecordsSetTheFirstOnceAndTheLastEachTime) {
    WatershedTables tables;
    const int first = subArea(tables, "A1", "R1");
    const int second = subArea(tables, "A2", "R1");
    EXPECT_EQ(tables.LandUseFirst[size_t(second)], 0);
    addLandUseRow(tables, first, "Meadow", "B", "10.");
    addLandUseRow(tables, first, "Woods", "C", "5.");
    addLandUseRow(tables, second, "Pasture", "A", "2.");
    EXPECT_EQ(tables.LandUseFirst, (std::vector<int>{0, 1, 3}));
    EXPECT_EQ(tables.LandUseLast, (std::vector<int>{0, 2, 3}));
    EXPECT_EQ(tables.LandUseStore(2, 2), "C");
    EXPECT_EQ(tables.LandUseStore(3, 3), "2.");
    EXPECT_EQ(tables.SubAreaCount, 2);
}

TEST(SubAreaTables, DeletingARowKeepsTheLandUseOfEveryOtherSubArea) {
    WatershedTables tables;
    const int deleted = subArea(tables, "A1", "R1");
    subArea(tables, "A2", "R2");
    const int third = subArea(tables, "A3", "R3");
    addLandUseRow(tables, deleted, "Meadow", "B", "10.");
    addLandUseRow(tables, third, "Woods", "C", "5.");
    deleteSubAreaRow(tables, deleted);
    EXPECT_EQ(tables.SubAreaCount, 2);
    EXPECT_EQ(tables.SubAreaTable.rows(), 2);
    EXPECT_EQ(tables.SubAreaTable(1, 1), "A2");
    EXPECT_EQ(tables.SubAreaTable(2, 1), "R2");
    EXPECT_EQ(tables.SubAreaTable(1, 2), "A3");
    // A2 still has no land use, and A3 still has Woods; the deleted row's Meadow goes with it.
    EXPECT_EQ(tables.LandUseFirst, (std::vector<int>{0, 0, 2}));
    EXPECT_EQ(tables.LandUseLast, (std::vector<int>{0, 0, 2}));
    EXPECT_EQ(tables.LandUseStoreCount, 2);
    EXPECT_EQ(tables.LandUseStore(1, 2), "Woods");
}

TEST(SubAreaTables, DeletingTheOnlyRowLeavesTheTablesTheirSize) {
    WatershedTables tables;
    subArea(tables, "A1", "R1");
    deleteSubAreaRow(tables, 1);
    EXPECT_EQ(tables.SubAreaCount, 0);
    EXPECT_EQ(tables.SubAreaTable.rows(), 1);
}

TEST(SubAreaTables, EveryRowKeepsItsIdentityThroughDeletionsAndNoNewRowTakesAnOldOne) {
    WatershedTables tables;
    subArea(tables, "A1", "R1");
    subArea(tables, "A2", "R2");
    subArea(tables, "A3", "R3");
    const std::vector<int> ids = tables.SubAreaRowIds;
    ASSERT_EQ(ids.size(), 4u);
    EXPECT_EQ(subAreaRowsOf(tables, ids), (std::vector<int>{0, 1, 2, 3}));
    deleteSubAreaRow(tables, 1);
    EXPECT_EQ(subAreaRowsOf(tables, ids), (std::vector<int>{0, 0, 1, 2}));
    EXPECT_EQ(subAreaRowOf(tables, ids[3]), 2);
    EXPECT_EQ(subAreaRowOf(tables, ids[1]), 0);
    // Tables loaded anew hold none of the rows a calculator was opened on.
    resetSubAreaTables(tables);
    subArea(tables, "A2", "R2");
    EXPECT_EQ(subAreaRowsOf(tables, ids), (std::vector<int>{0, 0, 0, 0}));
}

// An alternate store of two alternates: the first with two sub-areas (one with land use) and a
// reach, the second with nothing.
WatershedTables twoAlternates() {
    WatershedTables tables;
    resetAlternateStore(tables);
    const int dam = addAlternate(tables, "Dam", "Build a dam");
    addAlternate(tables, "Levee", "No entries");
    const int a1 = addAlternateSubArea(tables, dam);
    tables.AlternateSubAreas.set(1, dam, a1, "A1");
    tables.AlternateSubAreas.set(4, dam, a1, "1.5");
    addAlternateLandUse(tables, dam, a1, "Meadow", "B", "10.");
    addAlternateLandUse(tables, dam, a1, "Woods", "C", "5.");
    const int a2 = addAlternateSubArea(tables, dam);
    tables.AlternateSubAreas.set(1, dam, a2, "A2");
    const int r1 = addAlternateReach(tables, dam);
    tables.AlternateReaches.set(1, dam, r1, "R1");
    tables.AlternateReaches.set(2, dam, r1, "OUTLET");
    return tables;
}

TEST(AlternateStore, EntriesStartWithNoLandUseAndLandUseRowsAreShared) {
    WatershedTables tables = twoAlternates();
    EXPECT_EQ(tables.AlternateCount, 2);
    EXPECT_EQ(tables.AlternateNames(1, 2), "Levee");
    EXPECT_EQ(tables.AlternateNames(2, 1), "Build a dam");
    EXPECT_EQ(tables.AlternateSubAreaCount[1], 2);
    EXPECT_EQ(tables.AlternateReachCount[1], 1);
    EXPECT_EQ(tables.AlternateSubAreaCount[2], 0);
    EXPECT_EQ(tables.AlternateSubAreas(26, 1, 1), "1");
    EXPECT_EQ(tables.AlternateSubAreas(27, 1, 1), "2");
    EXPECT_EQ(tables.AlternateSubAreas(26, 1, 2), "0");
    EXPECT_EQ(tables.AlternateSubAreas(27, 1, 2), "0");
    EXPECT_EQ(tables.LandUseStoreCount, 2);
    EXPECT_EQ(tables.AlternateLandUse(1, 2), "Woods");
}

TEST(AlternateStore, WhenOneAlternateOutgrowsTheRowBoundEveryAlternateGetsIt) {
    WatershedTables tables = twoAlternates();
    EXPECT_EQ(tables.AlternateSubAreas.n3(), 2);
    for (int i = 0; i < 5; ++i)
        addAlternateSubArea(tables, 2);
    tables.AlternateSubAreas.set(1, 2, 5, "L5");
    EXPECT_EQ(tables.AlternateSubAreas.n1(), 27);
    EXPECT_EQ(tables.AlternateSubAreas.n2(), 2);
    EXPECT_EQ(tables.AlternateSubAreas.n3(), 5);
    EXPECT_EQ(tables.AlternateSubAreas(1, 2, 5), "L5");
    // The first alternate's rows keep their values and reach the new bound, empty.
    EXPECT_EQ(tables.AlternateSubAreas(1, 1, 1), "A1");
    EXPECT_EQ(tables.AlternateSubAreas(4, 1, 1), "1.5");
    EXPECT_EQ(tables.AlternateSubAreas(1, 1, 5), "");
    EXPECT_EQ(tables.AlternateReaches.n3(), 1);
}

TEST(AlternateStore, RedimPreserveKeepsWhatLiesWithinBothBounds) {
    TextArray3D store(3, 2, 2);
    store.set(1, 1, 1, "a");
    store.set(3, 2, 2, "b");
    store.set(2, 2, 1, "c");
    RedimPreserve3D(store, 2, 3, 4);
    EXPECT_EQ(store(1, 1, 1), "a");
    EXPECT_EQ(store(3, 2, 2), "");
    EXPECT_EQ(store(2, 2, 1), "c");
    EXPECT_EQ(store(2, 3, 4), "");
    RedimPreserve3D(store, 2, 3, 1);
    RedimPreserve3D(store, 2, 3, 2);
    EXPECT_EQ(store(2, 2, 1), "c");
    store.set(1, 1, 2, "d");
    EXPECT_EQ(store(1, 1, 2), "d");
    // Beyond the bounds nothing is held.
    store.set(1, 1, 3, "lost");
    EXPECT_EQ(store(1, 1, 3), "");
}

TEST(AlternateStore, ACurrentAlternateOfZeroLeavesTheStoreUntouched) {
    WatershedTables tables = twoAlternates();
    const WatershedTables before = tables;
    subArea(tables, "Base1", "R1");
    addLandUseRow(tables, 1, "Lawn", "A", "3.");
    EXPECT_FALSE(storeSubAreasInAlternate(tables, 0));
    EXPECT_FALSE(loadSubAreasFromAlternate(tables, 0));
    TextTable reaches(ReachFields, 1);
    int reachCount = 7;
    EXPECT_FALSE(loadReachesFromAlternate(tables, 0, reaches, reachCount));
    EXPECT_FALSE(storeReachesInAlternate(tables, 0, reaches, 1));
    EXPECT_EQ(reachCount, 7);
    EXPECT_EQ(tables.AlternateSubAreas, before.AlternateSubAreas);
    EXPECT_EQ(tables.AlternateReaches, before.AlternateReaches);
    EXPECT_EQ(tables.AlternateLandUse, before.AlternateLandUse);
    EXPECT_EQ(tables.AlternateNames, before.AlternateNames);
    EXPECT_EQ(tables.AlternateSubAreaCount, before.AlternateSubAreaCount);
    EXPECT_EQ(tables.AlternateReachCount, before.AlternateReachCount);
    EXPECT_EQ(tables.AlternateCount, 2);
    // The sub-area tables keep what the window holds.
    EXPECT_EQ(tables.SubAreaCount, 1);
    EXPECT_EQ(tables.SubAreaTable(1, 1), "Base1");
}

TEST(AlternateStore, TheSubAreaWindowWorksOnTheAlternatesRowsAndLandUse) {
    WatershedTables tables = twoAlternates();
    ASSERT_TRUE(loadSubAreasFromAlternate(tables, 1));
    EXPECT_EQ(tables.SubAreaCount, 2);
    EXPECT_EQ(tables.SubAreaTable(1, 1), "A1");
    EXPECT_EQ(tables.SubAreaTable(4, 1), "1.5");
    EXPECT_EQ(tables.SubAreaTable(1, 2), "A2");
    EXPECT_EQ(tables.LandUseFirst, (std::vector<int>{0, 1, 0}));
    EXPECT_EQ(tables.LandUseLast, (std::vector<int>{0, 2, 0}));
    EXPECT_EQ(tables.LandUseStore(1, 1), "Meadow");
    EXPECT_EQ(tables.LandUseStore(3, 2), "5.");

    // A third sub-area with land use of its own, as the calculator adds it.
    const int row = subArea(tables, "A3", "R1");
    addLandUseRow(tables, row, "Orchard", "D", "1.");
    ASSERT_TRUE(storeSubAreasInAlternate(tables, 1));
    EXPECT_EQ(tables.AlternateSubAreaCount[1], 3);
    EXPECT_EQ(tables.AlternateSubAreas.n3(), 3);
    EXPECT_EQ(tables.AlternateSubAreas(1, 1, 3), "A3");
    EXPECT_EQ(tables.AlternateSubAreas(3, 1, 3), "G1");
    EXPECT_EQ(tables.AlternateSubAreas(26, 1, 3), "3");
    EXPECT_EQ(tables.AlternateSubAreas(27, 1, 3), "3");
    EXPECT_EQ(tables.AlternateLandUse(1, 3), "Orchard");
    EXPECT_EQ(tables.AlternateLandUse(1, 1), "Meadow");
    EXPECT_EQ(tables.AlternateSubAreaCount[2], 0);
}

TEST(AlternateStore, TheReachWindowWorksOnTheAlternatesReaches) {
    WatershedTables tables = twoAlternates();
    TextTable reaches;
    int reachCount = 0;
    ASSERT_TRUE(loadReachesFromAlternate(tables, 1, reaches, reachCount));
    EXPECT_EQ(reachCount, 1);
    EXPECT_EQ(reaches(1, 1), "R1");
    EXPECT_EQ(reaches(2, 1), "OUTLET");
    reaches.resizeRows(3);
    reaches(1, 2) = "R2";
    reaches(1, 3) = "R3";
    ASSERT_TRUE(storeReachesInAlternate(tables, 2, reaches, 3));
    EXPECT_EQ(tables.AlternateReachCount[2], 3);
    EXPECT_EQ(tables.AlternateReaches.n3(), 3);
    EXPECT_EQ(tables.AlternateReaches(1, 2, 3), "R3");
    EXPECT_EQ(tables.AlternateReaches(1, 1, 1), "R1");

    ASSERT_TRUE(loadReachesFromAlternate(tables, 1, reaches, reachCount));
    EXPECT_EQ(reaches.rows(), 1);
    TextTable none;
    reachCount = 9;
    WatershedTables empty = twoAlternates();
    ASSERT_TRUE(loadReachesFromAlternate(empty, 2, none, reachCount));
    EXPECT_EQ(reachCount, 0);
    EXPECT_EQ(none.rows(), 1);
}

TEST(AlternateStore, AnAlternateWithNoReachesLeavesTheReachListEmpty) {
    WatershedTables tables = twoAlternates();
    StringList reaches(Texts{"stale"});
    fillAlternateEntries(tables, 2, 2, reaches);
    EXPECT_EQ(reaches.ListCount(), 0);
    fillAlternateEntries(tables, 1, 2, reaches);
    EXPECT_EQ(reaches.items, (Texts{"R1"}));
    StringList areas;
    fillAlternateEntries(tables, 1, 1, areas);
    EXPECT_EQ(areas.items, (Texts{"A1", "A2"}));
    fillAlternateEntries(tables, 0, 1, areas);
    EXPECT_EQ(areas.ListCount(), 0);
}

TEST(AlternateStore, DeletingAnAlternateMovesTheLaterOnesDown) {
    WatershedTables tables = twoAlternates();
    const int third = addAlternate(tables, "Pond", "Third");
    addAlternateReach(tables, third);
    tables.AlternateReaches.set(1, third, 1, "P1");
    deleteAlternate(tables, 1);
    EXPECT_EQ(tables.AlternateCount, 2);
    EXPECT_EQ(tables.AlternateNames(1, 1), "Levee");
    EXPECT_EQ(tables.AlternateNames(1, 2), "Pond");
    EXPECT_EQ(tables.AlternateSubAreaCount, (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(tables.AlternateReachCount, (std::vector<int>{0, 0, 1}));
    EXPECT_EQ(tables.AlternateReaches(1, 2, 1), "P1");
    EXPECT_EQ(tables.AlternateSubAreas(1, 1, 1), "");
    EXPECT_EQ(tables.AlternateSubAreas.n2(), 2);
    // The row bound stays; the land use rows stay, belonging to nobody.
    EXPECT_EQ(tables.AlternateSubAreas.n3(), 2);
    EXPECT_EQ(tables.LandUseStoreCount, 2);
    EXPECT_EQ(tables.AlternateLandUse(1, 1), "Meadow");

    deleteAlternate(tables, 2);
    deleteAlternate(tables, 1);
    EXPECT_EQ(tables.AlternateCount, 0);
    EXPECT_EQ(tables.AlternateNames.rows(), 1);
    EXPECT_EQ(tables.AlternateNames(1, 1), "");
    EXPECT_EQ(tables.AlternateSubAreas.n2(), 1);
    EXPECT_EQ(tables.AlternateSubAreas.n3(), 1);
}

TEST(AlternateStore, ResetEmptiesTheStoreAndTheLandUseCount) {
    WatershedTables tables = twoAlternates();
    resetAlternateStore(tables);
    EXPECT_EQ(tables.AlternateCount, 0);
    EXPECT_EQ(tables.LandUseStoreCount, 0);
    EXPECT_EQ(tables.AlternateSubAreas, TextArray3D(27, 1, 1));
    EXPECT_EQ(tables.AlternateLandUse, TextTable(3, 1));
    EXPECT_EQ(tables.AlternateSubAreaCount, (std::vector<int>{0, 0}));
}

} // namespace
} // namespace brooklet
