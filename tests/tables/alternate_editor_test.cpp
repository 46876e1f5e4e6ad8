// frmAlternate as the user meets it: opened from the main list, alternates chosen by typing
// their names, entries handed over to the sub-area and reach windows by clicks in the two lists,
// entries and alternates deleted after their questions, and the work file written at Accept.
#include "../network/network_records.h"
#include "../options/option_editor_fixture.h"

#include "editing/watershed_tables.h"
#include "network/reach_editor.h"
#include "network/sub_area_editor.h"
#include "tables/alternate_editor.h"

#include <QComboBox>

namespace brooklet::test {
namespace {

const std::string Header = "ALTERNATE ANALYSIS:";
const std::string Reaches = "          REACHES";
const std::string Areas = "          AREAS";

std::string alternateRecord(const std::string& name, const std::string& description) {
    return pad(name) + pad(description, 70);
}
std::string reach(const std::string& name, const std::string& receiving) {
    return tens({"", name, receiving, "XS1", "", "2650.", "2800."}) + "      ";
}
std::string area(const std::string& name, const std::string& tc) {
    return tens({"", name, "R1", "G1", "0.95", "84.", tc}) + "     ";
}

const Lines TwoAlternates = {Header,
                             alternateRecord("BUILDOUT", "Future build-out"),
                             Reaches,
                             reach("MILLRUN", "LOWERMAIN"),
                             Areas,
                             area("LOWER-1", "0.61"),
                             area("LOWER-2", "0.40"),
                             alternateRecord("DRY", "Areas only"),
                             Areas,
                             area("UP-1", "0.5"),
                             ""};

class AlternateEditorTest : public OptionEditorTest<frmAlternate> {
protected:
    AlternateEditorTest() : OptionEditorTest("frmAlternate", AlternateSection) {}

    QComboBox* combo() { return element<QComboBox>("cmbInp", 1); }
    QListWidget* lstDisp(int kind) { return element<QListWidget>("lstDisp", kind); }
    Lines comboItems() {
        Lines items;
        for (int i = 0; i < combo()->count(); ++i)
            items.push_back(toBytes(combo()->itemText(i)));
        return items;
    }
    Lines items(int kind) {
        Lines texts;
        for (int i = 0; i < lstDisp(kind)->count(); ++i)
            texts.push_back(toBytes(lstDisp(kind)->item(i)->text()));
        return texts;
    }
    // Types a name into the emptied combo box and leaves it with the key.
    void choose(const QString& name, Qt::Key key = Qt::Key_Tab) {
        combo()->setFocus(Qt::MouseFocusReason);
        combo()->setEditText(QString());
        QTest::keyClicks(combo(), name);
        QTest::keyClick(combo(), key);
    }
    // A click on entry Row of a list, or below its entries for -1.
    void clickList(int kind, int row, Qt::MouseButton button = Qt::LeftButton) {
        QListWidget* list = lstDisp(kind);
        const QPoint at = row >= 0 ? list->visualItemRect(list->item(row)).center()
                                   : QPoint(5, list->viewport()->height() - 3);
        QTest::mouseClick(list->viewport(), button, {}, at);
    }
    template <typename Editor> Editor* opened(const char* name) {
        auto* editor = context->windows.loadedAs<Editor>(name);
        EXPECT_NE(editor, nullptr) << name;
        return editor;
    }
    void answer(BoxAnswer reply) { platform.answers.push_back(reply); }
    const WatershedTables& store() { return context->watershed; }
};

TEST_F(AlternateEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    writeWorkFile(TwoAlternates);
    session().CurrentFile = "C:\\models\\valley.inp";
    open();
    EXPECT_EQ(window->windowTitle(), "Alternate Anaylsis   Current File - C:\\models\\valley.inp");
    EXPECT_EQ(session().HelpCode, "AA");
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Alternate Analysis:");
    EXPECT_EQ(label(1)->text(), "Alternate Identifier");
    EXPECT_EQ(label(2)->text(), "Alternate Description");
    EXPECT_EQ(element<QLabel>("LblStatic", 0)->text(), "Items changed with this Alternate");
    EXPECT_EQ(element<QLabel>("LblStatic", 1)->text(), "Sub-Areas");
    EXPECT_EQ(element<QLabel>("LblStatic", 2)->text(), "Reaches");
    EXPECT_EQ(element<QLabel>("Label4", 0)->text(),
              "Click in appropriate box on right to add, edit or delete  a Sub-Area or Reach for current "
              "alternate. ");
    EXPECT_EQ(button("cmdDelCur")->text(), "Delete Current     Alternate");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes (Close)");
    EXPECT_EQ(button("cmdCancel")->text(), "     No Changes        (Close)");
    EXPECT_FALSE(helpBox()->isVisible());
    EXPECT_FALSE(box(1)->isVisible());
    EXPECT_EQ(comboItems(), (Lines{"BUILDOUT", "DRY"}));
    EXPECT_EQ(combo()->currentText(), "");
    EXPECT_EQ(box(2)->text(), "");
    EXPECT_TRUE(items(1).empty());
    EXPECT_TRUE(items(2).empty());
    EXPECT_EQ(focused(), combo());
}

TEST_F(AlternateEditorTest, ChoosingAnAlternateShowsItsDescriptionAndBothLists) {
    writeWorkFile(TwoAlternates);
    open();
    choose("BUILDOUT");
    EXPECT_EQ(box(2)->text(), "Future build-out");
    EXPECT_EQ(items(1), (Lines{pad("LOWER-1"), pad("LOWER-2")}));
    EXPECT_EQ(items(2), (Lines{pad("MILLRUN")}));
    EXPECT_EQ(focused(), box(2));
    EXPECT_EQ(background(combo()), UntouchedColour);
    EXPECT_EQ(context->CurrentAlternate, 1);
}

TEST_F(AlternateEditorTest, TypingTheNameOfAnAlternateInAnotherCaseSelectsIt) {
    writeWorkFile(TwoAlternates);
    open();
    choose("dry", Qt::Key_Return);
    EXPECT_EQ(window->currentAlternate(), 2);
    EXPECT_EQ(box(2)->text(), "Areas only");
    EXPECT_EQ(items(1), (Lines{pad("UP-1")}));
    EXPECT_EQ(comboItems(), (Lines{"BUILDOUT", "DRY"}));
    EXPECT_EQ(store().AlternateCount, 2);
}

TEST_F(AlternateEditorTest, AnAlternateWithNoReachesLeavesTheReachListEmpty) {
    writeWorkFile(TwoAlternates);
    open();
    choose("BUILDOUT");
    choose("DRY");
    EXPECT_TRUE(items(2).empty());
    // The reach window opened on it and accepted with no reach leaves the list empty too.
    clickList(2, -1);
    auto* reaches = opened<frmReaches>("frmReaches");
    ASSERT_NE(reaches, nullptr);
    EXPECT_EQ(reaches->reachCount(), 0);
    click(control<QPushButton>(reaches, "cmdFinished"));
    EXPECT_TRUE(items(2).empty());
    EXPECT_EQ(store().AlternateReachCount[2], 0);
}

TEST_F(AlternateEditorTest, AnAlternateWithADescriptionAndNoEntriesVanishesAtAccept) {
    writeWorkFile(TwoAlternates);
    const std::string before = workFileBytes();
    open();
    choose("NEWALT");
    EXPECT_EQ(comboItems(), (Lines{"BUILDOUT", "DRY", "NEWALT"}));
    EXPECT_TRUE(items(1).empty());
    QTest::keyClicks(box(2), "Nothing changed yet");
    QTest::keyClick(box(2), Qt::Key_Return);
    EXPECT_EQ(focused(), combo());
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(AlternateEditorTest, WithNoAlternateHoldingEntriesAcceptEmptiesTheFileAndChangesNothingElse) {
    open();
    choose("EMPTY");
    QTest::keyClicks(box(2), "No entries");
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), "");
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(AlternateEditorTest, AcceptEmptyingAFileThatHadEntriesSetsDataChanged) {
    writeWorkFile({Header, alternateRecord("EMPTY", "No entries"), Reaches, reach("R1", "R2"), ""});
    open();
    choose("EMPTY");
    answer(BoxAnswer::Yes);
    clickList(2, 0, Qt::MiddleButton);
    EXPECT_TRUE(items(2).empty());
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), "");
    // The section now differs from the input file, which a save has to bring in line.
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(AlternateEditorTest, DeletingEveryAlternateSetsDataChanged) {
    writeWorkFile(TwoAlternates);
    open();
    for (const char* name : {"BUILDOUT", "DRY"}) {
        choose(name);
        answer(BoxAnswer::Yes);
        click(button("cmdDelCur"));
    }
    EXPECT_EQ(store().AlternateCount, 0);
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), "");
    EXPECT_TRUE(session().DataChanged);
    EXPECT_EQ(listItem(), "     " + session().SectionTable[AlternateSection]);
}

TEST_F(AlternateEditorTest, RecordsBeforeAnyListOpeningAreIgnored) {
    writeWorkFile(
        {Header, alternateRecord("ALT1", ""), reach("STRAY", "R2"), Reaches, reach("R1", "R2"), ""});
    open();
    choose("ALT1");
    EXPECT_TRUE(items(1).empty());
    EXPECT_EQ(items(2), (Lines{pad("R1")}));
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, alternateRecord("ALT1", ""), Reaches, reach("R1", "R2"), ""}));
}

TEST_F(AlternateEditorTest, ASplitFlowWithABlankReachIsDroppedAtAccept) {
    writeWorkFile({Header, alternateRecord("ALT1", ""), Reaches, reach("R1", "R2"),
                   tens({"", "", "SPLIT FLOW", "", "XS9", "1.", "2.", "0.4"}), ""});
    open();
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, alternateRecord("ALT1", ""), Reaches, reach("R1", "R2"), ""}));
}

TEST_F(AlternateEditorTest, TheShallowSurfaceCodeComesBackTenColumnsLeftThenBlank) {
    writeWorkFile({Header, alternateRecord("ALT1", ""), Areas, area("A1", ""),
                   tens({"", "", "SHALLOW", "900.", "0.03", "", "U"}), ""});
    open();
    reopen();
    const Lines once = {Header,
                        alternateRecord("ALT1", ""),
                        Areas,
                        area("A1", ""),
                        tens({"", "", "SHALLOW", "900.", "0.03", "U"}),
                        ""};
    EXPECT_EQ(workFileBytes(), crlf(once));
    accept();
    const Lines twice = {Header,
                         alternateRecord("ALT1", ""),
                         Areas,
                         area("A1", ""),
                         tens({"", "", "SHALLOW", "900.", "0.03", ""}),
                         ""};
    EXPECT_EQ(workFileBytes(), crlf(twice));
}

TEST_F(AlternateEditorTest, AChannelWithALengthAloneWritesTheShortFormWithABlankVelocity) {
    writeWorkFile(
        {Header, alternateRecord("ALT1", ""), Areas, area("A1", ""), tens({"", "", "CHANNEL", "1200"}), ""});
    open();
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, alternateRecord("ALT1", ""), Areas, area("A1", ""),
                                     tens({"", "", "CHANNEL", "1200.", ""}), ""}));
}

TEST_F(AlternateEditorTest, ALeftClickOnOneOfTwoEntriesOfTheSameNamePicksTheLast) {
    writeWorkFile(
        {Header, alternateRecord("ALT1", ""), Areas, area("TWIN", "0.61"), area("twin", "0.77"), ""});
    open();
    choose("ALT1");
    clickList(1, 0);
    EXPECT_EQ(store().AlternatePickedRow, 2);
    auto* subAreas = opened<frmSubArea>("frmSubArea");
    ASSERT_NE(subAreas, nullptr);
    EXPECT_EQ(toBytes(control<QLineEdit>(subAreas, "txtInp(6)")->text()), pad("0.77"));
    EXPECT_EQ(control<QLabel>(subAreas, "lblStatic(2)")->text(), "ALT1");
    EXPECT_TRUE(items(1).size() == 2 && lstDisp(1)->selectedItems().isEmpty());
}

TEST_F(AlternateEditorTest, AClickBelowTheEntriesStartsANewEntry) {
    writeWorkFile(TwoAlternates);
    open();
    choose("DRY");
    clickList(1, -1);
    EXPECT_EQ(store().AlternatePickedRow, 0);
    auto* subAreas = opened<frmSubArea>("frmSubArea");
    ASSERT_NE(subAreas, nullptr);
    EXPECT_EQ(control<QComboBox>(subAreas, "cmbInp(1)")->currentText(), "");
}

TEST_F(AlternateEditorTest, TheRightButtonOnAListHasNoEffect) {
    writeWorkFile(TwoAlternates);
    open();
    choose("BUILDOUT");
    clickList(1, 0, Qt::RightButton);
    clickList(2, 0, Qt::RightButton);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(context->windows.loaded("frmSubArea"), nullptr);
    EXPECT_EQ(context->windows.loaded("frmReaches"), nullptr);
    EXPECT_EQ(items(1), (Lines{pad("LOWER-1"), pad("LOWER-2")}));
    EXPECT_EQ(store().AlternateSubAreaCount[1], 2);
    EXPECT_TRUE(lstDisp(1)->selectedItems().isEmpty());
}

TEST_F(AlternateEditorTest, ClicksInTheListsDoNothingWhileNoAlternateIsShown) {
    writeWorkFile(TwoAlternates);
    open();
    clickList(1, -1);
    clickList(2, -1, Qt::MiddleButton);
    EXPECT_EQ(context->windows.loaded("frmSubArea"), nullptr);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(AlternateEditorTest, TheMiddleButtonDeletesAnEntryAfterItsQuestion) {
    writeWorkFile(TwoAlternates);
    open();
    choose("BUILDOUT");
    answer(BoxAnswer::No);
    clickList(1, 0, Qt::MiddleButton);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text, "Delete LOWER-1 from Current Alternate ?");
    EXPECT_EQ(platform.boxes[0].title, "Alternate Analysis");
    EXPECT_EQ(platform.boxes[0].buttons, BoxButtons::YesNo);
    EXPECT_EQ(platform.boxes[0].icon, BoxIcon::Question);
    EXPECT_EQ(items(1).size(), 2u);
    answer(BoxAnswer::Yes);
    clickList(1, 0, Qt::MiddleButton);
    EXPECT_EQ(items(1), (Lines{pad("LOWER-2")}));
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, alternateRecord("BUILDOUT", "Future build-out"), Reaches,
                                     reach("MILLRUN", "LOWERMAIN"), Areas, area("LOWER-2", "0.40"),
                                     alternateRecord("DRY", "Areas only"), Areas, area("UP-1", "0.5"), ""}));
}

TEST_F(AlternateEditorTest, TheKeyboardEditsAddsAndDeletesEntries) {
    writeWorkFile(TwoAlternates);
    open();
    choose("BUILDOUT");
    lstDisp(1)->setFocus(Qt::TabFocusReason);
    lstDisp(1)->setCurrentRow(1);
    answer(BoxAnswer::Yes);
    QTest::keyClick(lstDisp(1), Qt::Key_Delete);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text, "Delete LOWER-2 from Current Alternate ?");
    EXPECT_EQ(items(1), (Lines{pad("LOWER-1")}));
    lstDisp(2)->setCurrentRow(0);
    QTest::keyClick(lstDisp(2), Qt::Key_Return);
    EXPECT_EQ(store().AlternatePickedRow, 1);
    EXPECT_NE(context->windows.loaded("frmReaches"), nullptr);
}

TEST_F(AlternateEditorTest, DeleteRemovesTheCurrentAlternateAfterItsQuestion) {
    writeWorkFile(TwoAlternates);
    open();
    click(button("cmdDelCur"));
    EXPECT_TRUE(platform.boxes.empty());
    choose("BUILDOUT");
    answer(BoxAnswer::No);
    click(button("cmdDelCur"));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text, "Delete Current Alternate Data ?");
    EXPECT_EQ(platform.boxes[0].title, "Alternate Analysis");
    EXPECT_EQ(platform.boxes[0].buttons, BoxButtons::YesNo);
    EXPECT_EQ(store().AlternateCount, 2);
    answer(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    EXPECT_EQ(comboItems(), (Lines{"DRY"}));
    EXPECT_EQ(combo()->currentText(), "");
    EXPECT_EQ(box(2)->text(), "");
    EXPECT_TRUE(items(1).empty() && items(2).empty());
    EXPECT_EQ(store().AlternateCount, 1);
    EXPECT_EQ(focused(), combo());
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({Header, alternateRecord("DRY", "Areas only"), Areas, area("UP-1", "0.5"), ""}));
}

TEST_F(AlternateEditorTest, TheDescriptionIsRefusedWhileNoAlternateIsShownAndCutTo70) {
    open();
    type(2, "Lonely");
    press(2, Qt::Key_Return);
    EXPECT_EQ(background(box(2)), RefusedColour);
    EXPECT_EQ(focused(), combo());
    choose("ALT1");
    type(2, QString(75, 'd'));
    press(2, Qt::Key_Return);
    EXPECT_EQ(box(2)->text(), QString(70, 'd'));
    EXPECT_EQ(background(box(2)), UntouchedColour);
    choose("ALT1234567890");
    EXPECT_EQ(combo()->currentText(), "ALT1234567");
    EXPECT_EQ(comboItems(), (Lines{"ALT1", "ALT1234567"}));
}

TEST_F(AlternateEditorTest, NoChangesLeavesTheWorkFileButTheStoreKeepsTheSubWindowsWork) {
    writeWorkFile(TwoAlternates);
    const std::string before = workFileBytes();
    open();
    choose("DRY");
    clickList(2, -1);
    auto* reaches = opened<frmReaches>("frmReaches");
    ASSERT_NE(reaches, nullptr);
    auto* reachList = control<QComboBox>(reaches, "cmbInp(1)");
    reachList->setFocus(Qt::MouseFocusReason);
    QTest::keyClicks(reachList, "R7");
    QTest::keyClick(reachList, Qt::Key_Tab);
    click(control<QPushButton>(reaches, "cmdFinished"));
    EXPECT_EQ(items(2), (Lines{"R7"}));
    session().DataChanged = false;
    cancel();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(store().AlternateReachCount[2], 1);
}

TEST_F(AlternateEditorTest, WithCurrentAlternateZeroTheSubAreaWindowLeavesTheStoreAlone) {
    writeWorkFile(TwoAlternates);
    open();
    choose("BUILDOUT");
    cancel();
    EXPECT_TRUE(windowClosed());
    const WatershedTables before = store();
    // The main list sets CurrentAlternate to 0 before the sub-area window opens.
    QListWidget* list = sectionList();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(SubAreaSection - 1)).center());
    EXPECT_EQ(context->CurrentAlternate, 0);
    auto* subAreas = opened<frmSubArea>("frmSubArea");
    ASSERT_NE(subAreas, nullptr);
    auto* name = control<QComboBox>(subAreas, "cmbInp(1)");
    name->setFocus(Qt::MouseFocusReason);
    QTest::keyClicks(name, "BASE-1");
    QTest::keyClick(name, Qt::Key_Tab);
    click(control<QPushButton>(subAreas, "cmdFinished"));
    EXPECT_NE(bytesOf(workFile(SubAreaSection)).find("BASE-1"), std::string::npos);
    EXPECT_EQ(store().AlternateCount, before.AlternateCount);
    EXPECT_EQ(store().AlternateNames, before.AlternateNames);
    EXPECT_EQ(store().AlternateSubAreas, before.AlternateSubAreas);
    EXPECT_EQ(store().AlternateReaches, before.AlternateReaches);
    EXPECT_EQ(store().AlternateSubAreaCount, before.AlternateSubAreaCount);
    EXPECT_EQ(store().AlternateReachCount, before.AlternateReachCount);
    EXPECT_EQ(store().AlternateLandUse, before.AlternateLandUse);
}

// ---- The sub-area and reach windows belong to the alternate window -----------------------------

const std::string KeepChangesQuestion = "Keep the changes made in this window? Yes accepts them, No discards "
                                        "them, Cancel returns to the window.";

class AlternateChildrenTest : public AlternateEditorTest {
protected:
    // BUILDOUT chosen, its first sub-area entry handed to frmSubArea, and a new sub-area typed
    // there.
    frmSubArea* subAreaWindowWithTyping() {
        writeWorkFile(TwoAlternates);
        open();
        choose("BUILDOUT");
        clickList(1, 0);
        auto* subAreas = opened<frmSubArea>("frmSubArea");
        if (!subAreas)
            return nullptr;
        auto* name = control<QComboBox>(subAreas, "cmbInp(1)");
        name->setFocus(Qt::MouseFocusReason);
        name->setEditText(QString());
        QTest::keyClicks(name, "NEW-1");
        QTest::keyClick(name, Qt::Key_Tab);
        return subAreas;
    }
    bool closed(const char* name) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return context->windows.loaded(name) == nullptr;
    }
};

TEST_F(AlternateChildrenTest, DeletingAnAlternateFirstAsksItsSubAreaWindowToClose) {
    ASSERT_NE(subAreaWindowWithTyping(), nullptr);
    answer(BoxAnswer::No);
    answer(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{KeepChangesQuestion, "Sub-Area", BoxButtons::YesNoCancel, BoxIcon::Question}));
    EXPECT_EQ(platform.boxes[1].text, "Delete Current Alternate Data ?");
    EXPECT_TRUE(closed("frmSubArea"));
    EXPECT_EQ(store().AlternateCount, 1);
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({Header, alternateRecord("DRY", "Areas only"), Areas, area("UP-1", "0.5"), ""}));
}

TEST_F(AlternateChildrenTest, CancelInTheSubAreaWindowKeepsTheAlternateAndTheWindow) {
    frmSubArea* subAreas = subAreaWindowWithTyping();
    ASSERT_NE(subAreas, nullptr);
    answer(BoxAnswer::Cancel);
    click(button("cmdDelCur"));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, "Sub-Area");
    EXPECT_FALSE(closed("frmSubArea"));
    EXPECT_EQ(control<QComboBox>(subAreas, "cmbInp(1)")->currentText(), "NEW-1");
    EXPECT_EQ(store().AlternateCount, 2);
    EXPECT_EQ(comboItems(), (Lines{"BUILDOUT", "DRY"}));
}

TEST_F(AlternateChildrenTest, DeletingAnEntryFirstAsksTheSubAreaWindowToClose) {
    ASSERT_NE(subAreaWindowWithTyping(), nullptr);
    answer(BoxAnswer::No);
    answer(BoxAnswer::Yes);
    clickList(1, 1, Qt::MiddleButton);
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[0].title, "Sub-Area");
    EXPECT_EQ(platform.boxes[1].text, "Delete LOWER-2 from Current Alternate ?");
    EXPECT_TRUE(closed("frmSubArea"));
    accept();
    Lines expected = TwoAlternates;
    expected.erase(expected.begin() + 6);
    EXPECT_EQ(workFileBytes(), crlf(expected));
}

TEST_F(AlternateChildrenTest, TheReachWindowClosesWithTheAlternateWindowAndYesKeepsItsEntry) {
    writeWorkFile(TwoAlternates);
    writeBytes(workFile(ReachSection), crlf(sectionOf("STREAM REACH:")));
    open();
    choose("DRY");
    clickList(2, -1);
    auto* reaches = opened<frmReaches>("frmReaches");
    ASSERT_NE(reaches, nullptr);
    auto* reachList = control<QComboBox>(reaches, "cmbInp(1)");
    reachList->setFocus(Qt::MouseFocusReason);
    QTest::keyClicks(reachList, "R7");
    QTest::keyClick(reachList, Qt::Key_Tab);
    answer(BoxAnswer::Yes);
    accept();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{KeepChangesQuestion, "Stream Reach", BoxButtons::YesNoCancel, BoxIcon::Question}));
    EXPECT_TRUE(closed("frmReaches"));
    EXPECT_TRUE(windowClosed());
    Lines expected = TwoAlternates;
    expected.insert(expected.begin() + 8, {Reaches, tens({"", "R7", "", "", "", "", ""}) + "      "});
    EXPECT_EQ(workFileBytes(), crlf(expected));
    // The reach of an alternate goes to the alternate section only.
    EXPECT_EQ(bytesOf(workFile(ReachSection)), crlf(sectionOf("STREAM REACH:")));
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(AlternateChildrenTest, NoChangesClosesTheSubAreaWindowWhichNoDiscards) {
    ASSERT_NE(subAreaWindowWithTyping(), nullptr);
    const std::string before = workFileBytes();
    answer(BoxAnswer::No);
    cancel();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, "Sub-Area");
    EXPECT_TRUE(closed("frmSubArea"));
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(AlternateEditorTest, TheHelpCodeReturnsWhenTheWindowIsActivatedAgain) {
    open();
    session().HelpCode = "AR";
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(window, &activate);
    EXPECT_EQ(session().HelpCode, "AA");
}

// ---- The whole road ---------------------------------------------------------------------------

class AlternateRoadTest : public AlternateEditorTest {
protected:
    // The example watershed, opened through File, "Open Existing Brooklet File".
    void openFile(const std::string& path) {
        platform.openPicks.push_back(path);
        clickMenuItem("mnuFileItem(2)");
        EXPECT_EQ(session().CurrentFile, path);
        context->windows.unload("frmFlume");
    }
    // Types into a list of the sub-area or reach window and leaves it with Tab.
    void enterList(QWidget* editor, int index, const QString& text) {
        auto* list = control<QComboBox>(editor, indexedName("cmbInp", index));
        list->setFocus(Qt::MouseFocusReason);
        list->setEditText(QString());
        QTest::keyClicks(list, text);
        QTest::keyClick(list, Qt::Key_Tab);
    }
    void enterBox(QWidget* editor, int index, const QString& text) {
        auto* field = control<QLineEdit>(editor, indexedName("txtInp", index));
        field->setFocus(Qt::MouseFocusReason);
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Tab);
    }
};

TEST_F(AlternateRoadTest, AnAlternateAddedThroughTheWindowsIsSavedAndComesBack) {
    const std::string path = folder.file("watershed.inp");
    writeBytes(path, bytesOf(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp"));
    std::string expected = bytesOf(path);
    openFile(path);
    open();
    choose("WIDEN");
    QTest::keyClicks(box(2), "Lower valley channel widened");
    QTest::keyClick(box(2), Qt::Key_Return);

    clickList(1, -1);
    auto* subAreas = opened<frmSubArea>("frmSubArea");
    ASSERT_NE(subAreas, nullptr);
    enterList(subAreas, 1, "LOWER-1");
    enterList(subAreas, 2, "LOWERMAIN");
    enterList(subAreas, 3, "SOUTHGAGE");
    enterBox(subAreas, 4, "0.95");
    enterBox(subAreas, 5, "80");
    enterBox(subAreas, 6, "0.5");
    click(control<QPushButton>(subAreas, "cmdFinished"));
    EXPECT_EQ(items(1), (Lines{"LOWER-1"}));

    clickList(2, -1);
    auto* reaches = opened<frmReaches>("frmReaches");
    ASSERT_NE(reaches, nullptr);
    enterList(reaches, 1, "MILLRUN");
    enterList(reaches, 2, "LOWERMAIN");
    enterList(reaches, 3, "XS-LOWER");
    enterBox(reaches, 5, "2400");
    enterBox(reaches, 6, "2800");
    click(control<QPushButton>(reaches, "cmdFinished"));
    EXPECT_EQ(items(2), (Lines{"MILLRUN"}));

    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_TRUE(session().DataChanged);
    clickMenuItem("mnuFileItem(14)");
    EXPECT_FALSE(session().DataChanged);

    const std::string buildout =
        "          LOWER-2   LOWERMAIN SOUTHGAGE 0.58      86.       0.40      YYYNY\r\n";
    const size_t at = expected.find(buildout);
    ASSERT_NE(at, std::string::npos);
    expected.insert(
        at + buildout.size(),
        crlf({alternateRecord("WIDEN", "Lower valley channel widened"), Reaches,
              tens({"", "MILLRUN", "LOWERMAIN", "XS-LOWER", "", "2400.", "2800."}) + std::string(6, ' '),
              Areas,
              tens({"", "LOWER-1", "LOWERMAIN", "SOUTHGAGE", "0.95", "80.", "0.5"}) + std::string(5, ' ')}));
    EXPECT_EQ(bytesOf(path), expected);

    openFile(path);
    open();
    EXPECT_EQ(comboItems(), (Lines{"BUILDOUT", "WIDEN"}));
    choose("WIDEN");
    EXPECT_EQ(box(2)->text(), "Lower valley channel widened");
    EXPECT_EQ(items(1), (Lines{pad("LOWER-1")}));
    EXPECT_EQ(items(2), (Lines{pad("MILLRUN")}));
    choose("BUILDOUT");
    EXPECT_EQ(items(1), (Lines{pad("LOWER-1"), pad("LOWER-2")}));
    EXPECT_EQ(items(2), (Lines{pad("MILLRUN")}));
}

} // namespace
} // namespace brooklet::test
