// frmSubArea as the user meets it: the lists of sub-areas, reaches and rain gages, the typed
// values with their checks and colours, the calculator buttons that give way to typed values,
// the option groups, Delete with its question, Accept and No Changes, in both modes.
#include "network_window_fixture.h"

#include "network/sub_area_editor.h"
#include "options/identifier_record.h"

#include <QGroupBox>

namespace brooklet::test {
namespace {

const std::string A1 = tens({"", "A1", "R1", "G1", "1.5", "75.", "0.8"}) + "YNY  ";

class SubAreaEditorTest : public NetworkWindowTest<frmSubArea> {
protected:
    SubAreaEditorTest() : NetworkWindowTest("frmSubArea", SubAreaSection) {}

    QPushButton* calculator(int index) { return element<QPushButton>("cmdSub", index); }
    WatershedTables& tables() { return context->watershed; }
    // Empties a box, types into it and leaves it with Tab.
    void retype(int index, const QString& text) {
        box(index)->clear();
        enter(index, text);
    }
    // Opens the window on a section, as the user does after loading it.
    void openOn(const Lines& section) {
        startWithSection(section);
        open();
    }
};

// ---- Controls and load -----------------------------------------------------------------------

TEST_F(SubAreaEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_EQ(window->windowTitle(), "Sub-Area   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "AR");
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Sub-Area:");
    const QStringList labels = {
        "Sub-Area Identifier",         "Sub-Area Reach Identifier",       "Sub-Area Rain Gage Identifier",
        "Sub-Area Drainage Area",      "Sub-Area Weighted Curve Number",  "Sub-Area Time of Concentration",
        "Sub-Area Peak Output Code",   "Sub-Area Hydrograph Output Code", "Sub-Area Peak Summary Output Code",
        "Sub-Area Time Analysis Code", "Sub-Area Hydrograph File Code"};
    for (int index = 1; index <= 11; ++index)
        EXPECT_EQ(label(index)->text(), labels[index - 1]) << index;
    EXPECT_EQ(element<QLabel>("lblInUnit", 6)->text(), "hr");
    EXPECT_FALSE(element<QLabel>("lblStatic", 1)->isVisible());
    EXPECT_FALSE(element<QLabel>("lblStatic", 2)->isVisible());
    EXPECT_EQ(calculator(0)->text(), "Land Use Details");
    EXPECT_EQ(calculator(1)->text(), "Tc Details");
    EXPECT_EQ(button("cmdDelCur")->text(), "Delete Sub-Area");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes  (Close)");
    EXPECT_EQ(button("cmdCancel")->text(), "  No Changes  (Close)");
    for (int group = 1; group <= 5; ++group) {
        EXPECT_EQ(code(group, 0)->text(), "Yes");
        EXPECT_EQ(code(group, 1)->text(), "No");
        EXPECT_EQ(code(group, 2)->text(), "Blank");
        EXPECT_EQ(control<QGroupBox>(window, indexedName("Frame1", group - 1))->accessibleName(),
                  labels[5 + group]);
    }
    for (int index = 1; index <= 3; ++index) {
        EXPECT_FALSE(box(index)->isVisible()) << index;
        EXPECT_EQ(list(index)->accessibleName(), labels[index - 1]);
    }
    for (int index = 4; index <= 6; ++index)
        EXPECT_EQ(box(index)->accessibleName(), labels[index - 1]);
    EXPECT_FALSE(helpBox()->isVisible());
    EXPECT_EQ(focused(), list(1));
}

TEST_F(SubAreaEditorTest, TheAreaLabelShowsTheAreaWordOfTheInputUnits) {
    SetInputUnitWords(session(), true);
    open();
    EXPECT_EQ(element<QLabel>("lblInUnit", 4)->text(), "sq mi");
    cancel();
    ASSERT_TRUE(windowClosed());
    SetInputUnitWords(session(), false);
    open();
    EXPECT_EQ(element<QLabel>("lblInUnit", 4)->text(), "sq km");
}

TEST_F(SubAreaEditorTest, AcceptedUnchangedEveryRecordKindComesBackByteForByte) {
    const Lines section = sectionOf("SUB-AREA:");
    openOn(section);
    accept();
    EXPECT_EQ(workFileBytes(), crlf(section));
    EXPECT_TRUE(session().DataChanged);
    EXPECT_TRUE(windowClosed());
}

TEST_F(SubAreaEditorTest, TheListsOfferSubAreasReachesAndRainGagesOfTheWorkFiles) {
    writeBytes(workFile(ReachSection), crlf({ReachHeader, tens({"", "R5", "OUTLET"}), ""}));
    writeBytes(workFile(StormSection),
               crlf({pad("STORM ANALYSIS:", 40), tens({"", "100-YR", "G7", "0.", "6."}), ""}));
    openOn(sectionOf("SUB-AREA:"));
    EXPECT_EQ(listItems(1), (Lines{"A1", "A2"}));
    EXPECT_EQ(listItems(2), (Lines{"R5", "OUTLET", "R1", "R2"}));
    EXPECT_EQ(listItems(3), (Lines{"G7", "G1", "G2"}));
    EXPECT_EQ(list(1)->currentText(), "");
}

TEST_F(SubAreaEditorTest, PickingASubAreaShowsItsRow) {
    openOn(sectionOf("SUB-AREA:"));
    enterList(1, "A1");
    EXPECT_EQ(box(4)->text(), "1.5");
    EXPECT_EQ(box(5)->text(), "75.");
    EXPECT_EQ(box(6)->text(), "0.8");
    EXPECT_EQ(list(2)->currentText(), "R1");
    EXPECT_EQ(list(3)->currentText(), "G1");
    EXPECT_EQ(checkedCode(1), 0);
    EXPECT_EQ(checkedCode(2), 1);
    EXPECT_EQ(checkedCode(3), 0);
    EXPECT_EQ(checkedCode(4), 2);
    EXPECT_EQ(checkedCode(5), 2);
    EXPECT_EQ(background(box(4)), UntouchedColour);
    EXPECT_EQ(background(list(1)), AcceptedColour);
    EXPECT_EQ(focused(), list(2));
}

TEST_F(SubAreaEditorTest, PressingALabelShowsItsHelp) {
    open();
    EXPECT_EQ(helpOf(control<QLabel>(window, "lblHeader")).rfind(std::string(10, ' ') + "Sub-Area \r\n", 0),
              0u);
    EXPECT_EQ(helpOf(label(5)).rfind(std::string(10, ' ') + "Sub-Area Weighted Curve Number \r\n", 0), 0u);
    EXPECT_EQ(session().HelpShown, 5);
    click(label(5));
    EXPECT_FALSE(helpBox()->isVisible());
}

// ---- Checks and colours ----------------------------------------------------------------------

TEST_F(SubAreaEditorTest, ACurveNumberOf29Point9Or100Point1IsRefused30And100AreAccepted) {
    open();
    enterList(1, "B1");
    expectEntered(5, "29.9", RefusedColour, 5);
    retype(5, "100.1");
    EXPECT_EQ(background(box(5)), RefusedColour);
    EXPECT_EQ(focused(), box(5));
    retype(5, "30");
    EXPECT_EQ(background(box(5)), AcceptedColour);
    EXPECT_EQ(focused(), box(6));
    retype(5, "100");
    EXPECT_EQ(background(box(5)), AcceptedColour);
    EXPECT_EQ(tables().SubAreaTable(5, 1), "100");
}

TEST_F(SubAreaEditorTest, AnAreaOfZeroIsRefusedABlankAreaIsAccepted) {
    open();
    enterList(1, "B1");
    enterList(2, "R1");
    enterList(3, "G1");
    EXPECT_EQ(focused(), box(4));
    press(4, Qt::Key_Tab);
    EXPECT_EQ(background(box(4)), UntouchedColour);
    EXPECT_EQ(focused(), box(5));
    expectEntered(4, "0", RefusedColour, 4);
    retype(4, "0.01");
    EXPECT_EQ(background(box(4)), AcceptedColour);
    EXPECT_EQ(focused(), box(5));
}

TEST_F(SubAreaEditorTest, TypingBeforeAnyIdentifierIsRefusedWithRed) {
    open();
    expectEntered(4, "5", RefusedColour, 4);
    press(4, Qt::Key_Return);
    EXPECT_EQ(focused(), box(4));
    enterList(2, "R1");
    EXPECT_EQ(background(list(2)), RefusedColour);
    EXPECT_EQ(focused(), list(2));
    EXPECT_EQ(tables().SubAreaCount, 0);
}

TEST_F(SubAreaEditorTest, AnIdentifierLongerThanTenCharactersIsCut) {
    open();
    enterList(1, "ABCDEFGHIJKL");
    EXPECT_EQ(list(1)->currentText(), "ABCDEFGHIJ");
    EXPECT_EQ(tables().SubAreaTable(1, 1), "ABCDEFGHIJ");
}

TEST_F(SubAreaEditorTest, SubAreasThatDifferByCaseAreDifferentRows) {
    openOn({SubAreaHeader, A1, ""});
    enterList(1, "a1");
    EXPECT_EQ(tables().SubAreaCount, 2);
    EXPECT_EQ(box(4)->text(), "");
    retype(4, "9");
    enterList(1, "A1");
    EXPECT_EQ(box(4)->text(), "1.5");
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({SubAreaHeader, A1, tens({"", "a1", "", "", "9.", "", ""}) + "     ", ""}));
    EXPECT_TRUE(windowClosed());
}

// ---- Typed values and detail records ---------------------------------------------------------

TEST_F(SubAreaEditorTest, ARowWithDetailRecordsHidesItsTypedFieldsAndShowsTheCalculatorButtons) {
    openOn(sectionOf("SUB-AREA:"));
    enterList(1, "A2");
    for (const char* name : {"txtInp(4)", "txtInp(5)", "txtInp(6)", "lblInput(4)", "lblInput(5)",
                             "lblInput(6)", "lblInUnit(4)", "lblInUnit(6)"})
        EXPECT_FALSE(control<QWidget>(window, name)->isVisible()) << name;
    EXPECT_TRUE(calculator(0)->isVisible());
    EXPECT_TRUE(calculator(1)->isVisible());
    // From the rain gage the focus passes the hidden boxes by, back to the first list.
    enterList(3, "G1");
    EXPECT_EQ(focused(), list(1));
}

TEST_F(SubAreaEditorTest, TypedValuesHideTheCalculatorButtons) {
    openOn(sectionOf("SUB-AREA:"));
    enterList(1, "A1");
    EXPECT_FALSE(calculator(0)->isVisible());
    EXPECT_FALSE(calculator(1)->isVisible());
    EXPECT_TRUE(box(4)->isVisible());
    enterList(1, "NEW");
    EXPECT_TRUE(calculator(0)->isVisible());
    EXPECT_TRUE(calculator(1)->isVisible());
    enterList(2, "R1");
    enterList(3, "G1");
    enter(4, "2");
    EXPECT_FALSE(calculator(0)->isVisible());
    press(5, Qt::Key_Tab);
    enter(6, "1.2");
    EXPECT_FALSE(calculator(1)->isVisible());
    EXPECT_EQ(focused(), list(1));
}

TEST_F(SubAreaEditorTest, EditingTheMainFieldsPassesTheDetailRecordsThrough) {
    Lines section = sectionOf("SUB-AREA:");
    openOn(section);
    enterList(1, "A2");
    enterList(2, "R7");
    click(code(1, 0));
    click(code(5, 1));
    accept();
    section[2] = tens({"", "A2", "R7", "G1", "", "", ""}) + "Y   N";
    EXPECT_EQ(workFileBytes(), crlf(section));
}

TEST_F(SubAreaEditorTest, ANewSubAreaIsWrittenWithTheCodesClicked) {
    open();
    enterList(1, "B1");
    enterList(2, "R1");
    enterList(3, "G1");
    enter(4, "3");
    enter(5, "70");
    enter(6, "1.5");
    click(code(1, 0));
    EXPECT_EQ(focused(), list(1));
    click(code(2, 1));
    EXPECT_TRUE(code(2, 1)->isChecked());
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({SubAreaHeader, tens({"", "B1", "R1", "G1", "3.", "70.", "1.5"}) + "YN   ", ""}));
    EXPECT_EQ(listItem(), "X   Sub-Area:");
}

TEST_F(SubAreaEditorTest, ALandUseRecordOfAreaZeroVanishesAtTheNextWrite) {
    openOn({SubAreaHeader, A1, landArea("Meadow", "B", "0."), landArea("Woods", "C", "2."), ""});
    accept();
    EXPECT_EQ(workFileBytes(), crlf({SubAreaHeader, A1, landArea("Woods", "C", "2."), ""}));
}

TEST_F(SubAreaEditorTest, APartlyFilledLongChannelIsWrittenShortWithAnEmptyVelocity) {
    openOn({SubAreaHeader, A1, tens({"", "", "CHANNEL", "1200.", "0.005", "", "18.5"}), ""});
    accept();
    EXPECT_EQ(workFileBytes(), crlf({SubAreaHeader, A1, tens({"", "", "CHANNEL", "1200.", ""}), ""}));
}

// ---- Calculators -----------------------------------------------------------------------------

TEST_F(SubAreaEditorTest, TheCalculatorButtonsHandOverTheRowAndOpenTheirWindowsByName) {
    openOn(sectionOf("SUB-AREA:"));
    enterList(1, "A2");
    click(calculator(0));
    EXPECT_EQ(tables().CalculatorSubArea, 2);
    EXPECT_NE(context->windows.loaded("frmLandUse"), nullptr);
    click(calculator(1));
    // Both calculators stand beside the sub-area window, which stays as it was.
    EXPECT_NE(context->windows.loaded("frmTc"), nullptr);
    EXPECT_EQ(context->windows.loaded("frmSubArea"), window);
}

// ---- Delete ----------------------------------------------------------------------------------

TEST_F(SubAreaEditorTest, DeletingASubAreaKeepsTheLandUseOfTheOthers) {
    openOn({SubAreaHeader, A1, landArea("Meadow", "B", "1."), tens({"", "A2", "R1"}) + "     ",
            tens({"", "A3", "R1"}) + "     ", landArea("Woods", "C", "2."), ""});
    enterList(1, "A1");
    answer(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"Delete Current Sub-Area ?", "Sub-Area", BoxButtons::YesNo, BoxIcon::Question}));
    EXPECT_EQ(listItems(1), (Lines{"A2", "A3"}));
    EXPECT_EQ(list(1)->currentText(), "");
    EXPECT_EQ(box(4)->text(), "");
    EXPECT_EQ(focused(), list(1));
    // A1's land use goes with it; A2 keeps none and A3 keeps its Woods.
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({SubAreaHeader, tens({"", "A2", "R1"}) + std::string(45, ' '),
                    tens({"", "A3", "R1"}) + std::string(45, ' '), landArea("Woods", "C", "2."), ""}));
}

TEST_F(SubAreaEditorTest, AWindowOpenedOnTheBaseDataKeepsWritingItAfterAnAlternateIsChosen) {
    resetAlternateStore(tables());
    const int alternate = addAlternate(tables(), "Dam", "Build a dam");
    openOn({SubAreaHeader, A1, ""});
    // The alternate window chooses an alternate while this window stays open.
    context->CurrentAlternate = alternate;
    accept();
    EXPECT_EQ(workFileBytes(), crlf({SubAreaHeader, A1, ""}));
    EXPECT_EQ(tables().AlternateSubAreaCount[size_t(alternate)], 0);
}

TEST_F(SubAreaEditorTest, DeleteAnsweredNoKeepsTheSubArea) {
    const Lines section = sectionOf("SUB-AREA:");
    openOn(section);
    enterList(1, "A1");
    answer(BoxAnswer::No);
    click(button("cmdDelCur"));
    EXPECT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(listItems(1), (Lines{"A1", "A2"}));
    EXPECT_EQ(tables().SubAreaCount, 3);
    EXPECT_EQ(focused(), list(1));
    accept();
    EXPECT_EQ(workFileBytes(), crlf(section));
}

TEST_F(SubAreaEditorTest, DeleteWithNoSubAreaNamedAsksNothing) {
    openOn(sectionOf("SUB-AREA:"));
    click(button("cmdDelCur"));
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(focused(), list(1));
}

TEST_F(SubAreaEditorTest, DeletingTheLastSubAreaLeavesAnEmptyWorkFile) {
    openOn({SubAreaHeader, A1, ""});
    enterList(1, "A1");
    answer(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    acceptExpectingEmptySection();
}

TEST_F(SubAreaEditorTest, NoChangesWritesNothing) {
    const Lines section = sectionOf("SUB-AREA:");
    openOn(section);
    enterList(1, "A1");
    retype(5, "80");
    enterList(1, "NEW");
    cancelExpectingNothingWritten(crlf(section));
}

// ---- Alternate mode --------------------------------------------------------------------------

class SubAreaAlternateTest : public SubAreaEditorTest {
protected:
    void SetUp() override {
        SubAreaEditorTest::SetUp();
        WatershedTables& store = tables();
        resetAlternateStore(store);
        addAlternate(store, "ALT1", "First");
        addAlternate(store, "ALT2", "Second");
        const int entry = addAlternateSubArea(store, 2);
        const Lines fields = {"B1", "R1", "G1", "", "", "0.6", "Y", "", "", "", ""};
        for (int field = 1; field <= 11; ++field)
            store.AlternateSubAreas.set(field, 2, entry, fields[size_t(field - 1)]);
        addAlternateLandUse(store, 2, entry, "Meadow", "B", "2.");
        writeWorkFile(sectionOf("SUB-AREA:"));
        standInAlternateWindow();
    }
};

TEST_F(SubAreaAlternateTest, ShowsTheAlternateAndThePickedEntry) {
    openOnAlternate(2, 1);
    EXPECT_TRUE(element<QLabel>("lblStatic", 1)->isVisible());
    EXPECT_EQ(element<QLabel>("lblStatic", 1)->text(), "Alternate");
    EXPECT_TRUE(element<QLabel>("lblStatic", 2)->isVisible());
    EXPECT_EQ(element<QLabel>("lblStatic", 2)->text(), "ALT2");
    EXPECT_EQ(list(1)->currentText(), "B1");
    EXPECT_EQ(list(2)->currentText(), "R1");
    EXPECT_EQ(box(6)->text(), "0.6");
    EXPECT_FALSE(box(4)->isVisible());
    EXPECT_EQ(checkedCode(1), 0);
}

TEST_F(SubAreaAlternateTest, AcceptGivesTheRowsBackToTheAlternateAndRefreshesItsList) {
    const std::string before = workFileBytes();
    openOnAlternate(2, 1);
    enterList(2, "R9");
    enterList(1, "B2");
    enterList(2, "R1");
    enterList(3, "G1");
    enter(4, "4");
    accept();
    EXPECT_TRUE(windowClosed());
    const WatershedTables& store = tables();
    EXPECT_EQ(store.AlternateSubAreaCount[2], 2);
    EXPECT_EQ(store.AlternateSubAreas(2, 2, 1), "R9");
    EXPECT_EQ(store.AlternateSubAreas(1, 2, 2), "B2");
    EXPECT_EQ(store.AlternateSubAreas(4, 2, 2), "4");
    EXPECT_EQ(alternateLandUseFirst(store, 2, 1), 1);
    EXPECT_EQ(store.AlternateLandUse(1, 1), "Meadow");
    EXPECT_EQ(alternateLandUseFirst(store, 2, 2), 0);
    EXPECT_EQ(store.AlternateSubAreaCount[1], 0);
    EXPECT_EQ(lstDispItems(1), (Lines{"B1", "B2"}));
    EXPECT_EQ(lstDispItems(2), (Lines{"stale"}));
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(SubAreaAlternateTest, AfterTheAlternateWindowIsGoneAcceptSaysSoAndWritesNothing) {
    const std::string before = workFileBytes();
    openOnAlternate(2, 1);
    enterList(1, "B2");
    delete alternateWindow_.data();
    accept();
    EXPECT_TRUE(windowClosed());
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(
        platform.boxes[0],
        (BoxRequest{"The Alternate Analysis window that this window was opened from has closed, so what "
                    "was entered here cannot be written. The window closes without writing it.",
                    "Sub-Area", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(tables().AlternateSubAreaCount[2], 1);
    EXPECT_EQ(tables().AlternateSubAreas(1, 2, 1), "B1");
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(SubAreaAlternateTest, ANewEntryStartsEmpty) {
    openOnAlternate(1, 0);
    EXPECT_EQ(list(1)->currentText(), "");
    EXPECT_EQ(tables().SubAreaCount, 0);
    enterList(1, "C1");
    accept();
    EXPECT_EQ(tables().AlternateSubAreaCount[1], 1);
    EXPECT_EQ(lstDispItems(1), (Lines{"C1"}));
}

TEST_F(SubAreaAlternateTest, WithCurrentAlternateZeroTheStoreIsNotTouched) {
    const WatershedTables before = tables();
    open();
    EXPECT_EQ(context->CurrentAlternate, 0);
    EXPECT_FALSE(element<QLabel>("lblStatic", 2)->isVisible());
    enterList(1, "A1");
    retype(5, "80");
    accept();
    EXPECT_EQ(tables().AlternateSubAreas, before.AlternateSubAreas);
    EXPECT_EQ(tables().AlternateLandUse, before.AlternateLandUse);
    EXPECT_EQ(tables().AlternateSubAreaCount, before.AlternateSubAreaCount);
    EXPECT_EQ(lstDispItems(1), (Lines{"stale"}));
}

// ---- Through the main window -----------------------------------------------------------------

TEST_F(SubAreaEditorTest, AnEditComesThroughOpenAndSaveWithTheRestByteForByte) {
    const std::string path = folder.copyTestData("network.inp");
    platform.openPicks.push_back(path);
    clickMenuItem("mnuFileItem(2)");
    context->windows.unload("frmFlume");
    EXPECT_EQ(listItem(), "X   Sub-Area:");
    open();
    enterList(1, "A1");
    retype(5, "80");
    accept();
    EXPECT_TRUE(windowClosed());
    clickMenuItem("mnuFileItem(14)");
    const std::string saved = bytesOf(path);
    Lines section = sectionOf("SUB-AREA:");
    section[1] = tens({"", "A1", "R1", "G1", "1.5", "80.", "0.8"}) + "YNY  ";
    EXPECT_NE(saved.find(crlf(section)), std::string::npos) << saved;
    EXPECT_NE(saved.find(crlf(sectionOf("STREAM REACH:"))), std::string::npos) << saved;
}

} // namespace
} // namespace brooklet::test
