// frmReaches as the user meets it: the six lists, the lengths, base flow and split flow with
// their checks, the closed reach loss fields, the option groups, Delete with its question,
// Accept and No Changes, in both modes.
#include "network_window_fixture.h"

#include "network/reach_editor.h"
#include "options/identifier_record.h"

namespace brooklet::test {
namespace {

const std::string R1 = tens({"", "R1", "R2", "XS1", "", "1200.", "1100."}) + "YNYNYN";

class ReachEditorTest : public NetworkWindowTest<frmReaches> {
protected:
    ReachEditorTest() : NetworkWindowTest("frmReaches", ReachSection) {}

    void retype(int index, const QString& text) {
        box(index)->clear();
        enter(index, text);
    }
    void openOn(const Lines& section) {
        startWithSection(section);
        open();
    }
    // A new reach, its receiving reach, cross section and structure given, the focus then on
    // the channel length.
    void newReach(const QString& name) {
        enterList(1, name);
        enterList(2, "OUTLET");
        enterList(3, "");
        enterList(4, "");
    }
};

TEST_F(ReachEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    SetInputUnitWords(session(), true);
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), "Stream Reach   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "RC");
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Stream Reach:");
    EXPECT_EQ(label(2)->text(), "Stream Receiving      Reach Identifier");
    EXPECT_EQ(list(2)->accessibleName(), "Stream Receiving Reach Identifier");
    EXPECT_EQ(label(13)->text(), "Reach Flood Economics File Code");
    EXPECT_EQ(label(20)->text(), "Storage Available in Alluvium");
    const std::pair<int, const char*> units[] = {
        {5, "ft"}, {6, "ft"}, {7, "csm"}, {16, "cfs"}, {17, "cfs"}, {19, "in/sec"}, {20, "cu ft/ft len"}};
    for (const auto& [index, word] : units)
        EXPECT_EQ(element<QLabel>("lblInUnit", index)->text(), word) << index;
    EXPECT_EQ(button("cmdDelCur")->text(), "    Delete             Reach");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes   (Close)");
    EXPECT_EQ(button("cmdCancel")->text(), "     No Changes   (Close)");
    for (int group = 1; group <= 6; ++group)
        EXPECT_EQ(code(group, 2)->text(), "Blank");
    for (int index : {1, 2, 3, 4, 14, 15})
        EXPECT_FALSE(box(index)->isVisible()) << index;
    EXPECT_FALSE(element<QLabel>("lblStatic", 1)->isVisible());
    EXPECT_EQ(focused(), list(1));
}

TEST_F(ReachEditorTest, MetricUnitWords) {
    SetInputUnitWords(session(), false);
    open();
    EXPECT_EQ(element<QLabel>("lblInUnit", 5)->text(), "m");
    EXPECT_EQ(element<QLabel>("lblInUnit", 19)->text(), "mm/sec");
    EXPECT_EQ(element<QLabel>("lblInUnit", 20)->text(), "cu m/m len");
}

TEST_F(ReachEditorTest, AcceptedUnchangedEveryRecordKindComesBackByteForByte) {
    const Lines section = sectionOf("STREAM REACH:");
    openOn(section);
    accept();
    EXPECT_EQ(workFileBytes(), crlf(section));
    EXPECT_TRUE(session().DataChanged);
    EXPECT_TRUE(windowClosed());
}

TEST_F(ReachEditorTest, TheListsOfferReachesCrossSectionsAndStructures) {
    writeBytes(workFile(StructureSection),
               crlf({pad("STRUCTURE RATING:", 40), tens({"", "DAM9", "100."}), ""}));
    openOn(sectionOf("STREAM REACH:"));
    EXPECT_EQ(listItems(1), (Lines{"R1", "R2", "R3", "OUTLET"}));
    EXPECT_EQ(listItems(14), listItems(1));
    // The cross section list reads columns 31-40 of the continuation records, as the list
    // routine does.
    EXPECT_EQ(listItems(3), (Lines{"2.5", "R3", "0.001", "R1"}));
    EXPECT_EQ(listItems(15), listItems(3));
    EXPECT_EQ(listItems(4), (Lines{"DAM9", "DAM1"}));
}

TEST_F(ReachEditorTest, PickingAReachShowsItsRowCaseNotCounting) {
    openOn(sectionOf("STREAM REACH:"));
    enterList(1, "r1");
    EXPECT_EQ(list(2)->currentText(), "R2");
    EXPECT_EQ(list(3)->currentText(), "XS1");
    EXPECT_EQ(box(5)->text(), "1200.");
    EXPECT_EQ(box(7)->text(), "2.5");
    EXPECT_EQ(list(14)->currentText(), "R3");
    EXPECT_EQ(box(18)->text(), "0.2");
    EXPECT_EQ(box(19)->text(), "0.001     ");
    EXPECT_EQ(checkedCode(1), 0);
    EXPECT_EQ(checkedCode(6), 1);
    EXPECT_EQ(window->reachCount(), 3);
}

TEST_F(ReachEditorTest, OutletTypedAsAReachIsRefusedSilentlyInAnyCase) {
    openOn(sectionOf("STREAM REACH:"));
    for (const char* typed : {"outlet", "Outlet", "OUTLET"}) {
        enterList(1, typed);
        EXPECT_EQ(list(1)->currentText(), "") << typed;
        EXPECT_EQ(window->reachCount(), 3);
    }
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(ReachEditorTest, ASplitDrainageAreaOf0Point0009IsRefused0Point001And1AreNot) {
    open();
    newReach("N1");
    enterList(14, "R1");
    enterList(15, "");
    EXPECT_EQ(focused(), box(16));
    expectEntered(18, "0.0009", RefusedColour, 18);
    retype(18, "0.001");
    EXPECT_EQ(background(box(18)), UntouchedColour);
    EXPECT_EQ(focused(), list(1));
    retype(18, "1");
    EXPECT_EQ(background(box(18)), UntouchedColour);
    // With a split reach named, the area may not be blank.
    retype(18, "");
    EXPECT_EQ(background(box(18)), RefusedColour);
}

TEST_F(ReachEditorTest, ASplitCrossSectionAndSplitFlowsExcludeEachOther) {
    open();
    newReach("N1");
    enterList(15, "XS1");
    expectEntered(16, "10", RefusedColour, 16);
    enterList(1, "N2");
    expectEntered(16, "10", UntouchedColour, 17);
    enterList(15, "XS1");
    EXPECT_EQ(background(list(15)), RefusedColour);
    EXPECT_EQ(focused(), list(15));
}

TEST_F(ReachEditorTest, AChannelLengthOfZeroIsRefusedAValleyLengthOfZeroIsAccepted) {
    open();
    newReach("N1");
    expectEntered(5, "0", RefusedColour, 5);
    retype(5, "10");
    EXPECT_EQ(background(box(5)), UntouchedColour);
    expectEntered(6, "0", UntouchedColour, 7);
    // The code groups are passed by: from the base flow on to the split reach.
    enter(7, "");
    EXPECT_EQ(focused(), list(14));
}

TEST_F(ReachEditorTest, TypingBeforeAnyReachIsRefused) {
    open();
    expectEntered(5, "100", RefusedColour, 5);
    enterList(2, "R1");
    EXPECT_EQ(background(list(2)), RefusedColour);
}

TEST_F(ReachEditorTest, AReachLossReadAndAcceptedUnchangedGetsItsPoints) {
    openOn({ReachHeader, R1, tens({"", "", "REACH LOSS", "  2", "5"}), ""});
    enterList(1, "R1");
    accept();
    EXPECT_EQ(workFileBytes(), crlf({ReachHeader, R1, tens({"", "", "REACH LOSS", "2.", "5."}), ""}));
}

TEST_F(ReachEditorTest, TheReachLossFieldsAreClosed) {
    openOn(sectionOf("STREAM REACH:"));
    enterList(1, "R1");
    QTest::mouseClick(box(19), Qt::LeftButton, {}, QPoint(4, 4));
    EXPECT_EQ(focused(), box(18));
    QTest::mouseClick(box(20), Qt::LeftButton, {}, QPoint(4, 4));
    EXPECT_EQ(focused(), box(18));
    EXPECT_EQ(box(20)->text(), "4.        ");
}

TEST_F(ReachEditorTest, ANewReachIsWrittenWithItsRecordsAndCodes) {
    open();
    newReach("N1");
    enter(5, "500");
    enter(6, "450");
    enter(7, "1.5");
    click(code(2, 0));
    EXPECT_EQ(focused(), list(14));
    click(code(6, 1));
    enterList(14, "R9");
    accept();
    EXPECT_EQ(
        workFileBytes(),
        crlf({ReachHeader, tens({"", "N1", "OUTLET", "", "", "500.", "450."}) + " Y   N",
              tens({"", "", "BASE FLOW", "1.5"}), tens({"", "", "SPLIT FLOW", "R9", "", "", "", ""}), ""}));
    EXPECT_EQ(listItem(), "X   Stream Reach:");
}

TEST_F(ReachEditorTest, DeletingEveryReachLeavesAnEmptyWorkFile) {
    openOn({ReachHeader, R1, tens({"", "R2", "OUTLET"}) + "      ", ""});
    enterList(1, "R1");
    answer(BoxAnswer::No);
    click(button("cmdDelCur"));
    EXPECT_EQ(window->reachCount(), 2);
    answer(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[1],
              (BoxRequest{"Delete Current Reach ?", "Stream Reach", BoxButtons::YesNo, BoxIcon::Question}));
    EXPECT_EQ(window->reachCount(), 1);
    EXPECT_EQ(window->reachTable()(1, 1), "R2");
    EXPECT_EQ(list(1)->currentText(), "");
    EXPECT_EQ(box(5)->text(), "");
    EXPECT_EQ(focused(), list(1));
    enterList(1, "R2");
    answer(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    EXPECT_EQ(window->reachCount(), 0);
    acceptExpectingEmptySection();
}

TEST_F(ReachEditorTest, NoChangesWritesNothing) {
    const Lines section = sectionOf("STREAM REACH:");
    openOn(section);
    enterList(1, "R1");
    retype(5, "99");
    enterList(1, "NEW");
    cancelExpectingNothingWritten(crlf(section));
}

TEST_F(ReachEditorTest, AnEditComesThroughOpenAndSaveWithTheRestByteForByte) {
    const std::string path = folder.copyTestData("network.inp");
    platform.openPicks.push_back(path);
    clickMenuItem("mnuFileItem(2)");
    context->windows.unload("frmFlume");
    EXPECT_EQ(listItem(), "X   Stream Reach:");
    open();
    enterList(1, "R2");
    retype(5, "850");
    accept();
    clickMenuItem("mnuFileItem(14)");
    const std::string saved = bytesOf(path);
    Lines section = sectionOf("STREAM REACH:");
    section[5] = tens({"", "R2", "OUTLET", "", "DAM1", "850.", ""}) + "      ";
    EXPECT_NE(saved.find(crlf(section)), std::string::npos) << saved;
    EXPECT_NE(saved.find(crlf(sectionOf("SUB-AREA:"))), std::string::npos) << saved;
}

// ---- Alternate mode --------------------------------------------------------------------------

class ReachAlternateTest : public ReachEditorTest {
protected:
    void SetUp() override {
        ReachEditorTest::SetUp();
        WatershedTables& store = context->watershed;
        resetAlternateStore(store);
        addAlternate(store, "ALT1", "First");
        addAlternate(store, "ALT2", "Second");
        const int entry = addAlternateReach(store, 1);
        store.AlternateReaches.set(1, 1, entry, "R1");
        store.AlternateReaches.set(2, 1, entry, "OUTLET");
        store.AlternateReaches.set(19, 1, entry, "0.5");
        writeWorkFile(sectionOf("STREAM REACH:"));
        standInAlternateWindow();
    }
};

TEST_F(ReachAlternateTest, AcceptGivesTheReachesBackToTheAlternateAndRefreshesItsList) {
    const std::string before = workFileBytes();
    openOnAlternate(1, 1);
    EXPECT_EQ(element<QLabel>("lblStatic", 2)->text(), "ALT1");
    EXPECT_TRUE(element<QLabel>("lblStatic", 2)->isVisible());
    EXPECT_EQ(list(1)->currentText(), "R1");
    EXPECT_EQ(list(2)->currentText(), "OUTLET");
    newReach("R8");
    enter(5, "300");
    accept();
    EXPECT_TRUE(windowClosed());
    const WatershedTables& store = context->watershed;
    EXPECT_EQ(store.AlternateReachCount[1], 2);
    EXPECT_EQ(store.AlternateReaches(19, 1, 1), "0.5");
    EXPECT_EQ(store.AlternateReaches(1, 1, 2), "R8");
    EXPECT_EQ(store.AlternateReaches(5, 1, 2), "300");
    EXPECT_EQ(lstDispItems(2), (Lines{"R1", "R8"}));
    EXPECT_EQ(lstDispItems(1), (Lines{"stale"}));
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(ReachAlternateTest, AfterTheAlternateWindowIsGoneAcceptSaysSoAndWritesNothing) {
    const std::string before = workFileBytes();
    openOnAlternate(1, 1);
    newReach("R8");
    delete alternateWindow_.data();
    accept();
    EXPECT_TRUE(windowClosed());
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(
        platform.boxes[0],
        (BoxRequest{"The Alternate Analysis window that this window was opened from has closed, so what "
                    "was entered here cannot be written. The window closes without writing it.",
                    "Stream Reach", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(context->watershed.AlternateReachCount[1], 1);
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(ReachAlternateTest, AnAlternateWithNoReachesLeavesItsReachListEmpty) {
    openOnAlternate(2, 0);
    EXPECT_EQ(window->reachCount(), 0);
    accept();
    EXPECT_TRUE(lstDispItems(2).empty());
    EXPECT_EQ(context->watershed.AlternateReachCount[2], 0);
}

} // namespace
} // namespace brooklet::test
