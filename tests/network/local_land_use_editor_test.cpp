// frmLocalLanduse as the user meets it: opened from the File menu, names typed into the list,
// curve numbers typed and tabbed through, entries deleted through the question, accepted and
// cancelled, with the local land use file, colours, focus and the list checked after each step.
#include "local_window_fixture.h"

#include "editing/help_view.h"
#include "network/local_land_use_editor.h"
#include "session/text_file.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QWindow>

#include <filesystem>

namespace brooklet::test {
namespace {

const std::string LotAndYard =
    "\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"Yard\",\"\",\"61\",\"74\",\"80\"\r\n\"\"\r\n";
const BoxRequest DeleteQuestion{"Delete Current Local Land Use Data ?", "Local Land Use", BoxButtons::YesNo,
                                BoxIcon::Question};

class LocalLandUseEditorTest : public LocalWindowTest<frmLocalLanduse> {
protected:
    LocalLandUseEditorTest() : LocalWindowTest("frmLocalLanduse") {}

    Texts boxTexts() {
        Texts texts;
        for (int index = 1; index <= 5; ++index)
            texts.push_back(toBytes(box(index)->text()));
        return texts;
    }
    // Types into a box that has the focus, then presses the key.
    void typeAndPress(int index, const QString& text, Qt::Key key = Qt::Key_Tab) {
        EXPECT_EQ(focused(), box(index)) << "box " << index << " has not the focus";
        QTest::keyClicks(box(index), text);
        QTest::keyClick(box(index), key);
    }
    void localFile(const std::string& bytes) { writeBytes(session().LocalLandUseFile, bytes); }
    std::string localFileBytes() { return bytesOf(session().LocalLandUseFile); }
};

// ---- Opening and load --------------------------------------------------------------------------

TEST_F(LocalLandUseEditorTest, TheFileMenuOpensTheWindowOnTheLocalLandUseFile) {
    clickMenuItem("mnuFileItem(10)");
    window = context->windows.loadedAs<frmLocalLanduse>("frmLocalLanduse");
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_EQ(toBytes(window->windowTitle()),
              "Local Land Use   Current File - " + session().LocalLandUseFile);
    EXPECT_EQ(context->windows.ShowWindowAtOrigin("frmLocalLanduse"), window);
}

TEST_F(LocalLandUseEditorTest, ShowsEveryControlWithItsCaptionAndInitialState) {
    session().HelpCode = "XX";
    session().HelpShown = 2;
    open();
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Local Land Use Definitions:");
    const char* captions[] = {"Curve Number Identifier", "Curve Number \"A\"", "Curve Number \"B\"",
                              "Curve Number \"C\"", "Curve Number \"D\""};
    for (int index = 1; index <= 5; ++index)
        EXPECT_EQ(control<QLabel>(window, indexedName("lblInput", index))->text(), captions[index - 1]);
    EXPECT_EQ(button("cmdDelCur")->text(), "Delete Curve Number Identifier");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes  (Close)");
    EXPECT_EQ(button("cmdCancel")->text(), "      No Changes   (Close)");
    EXPECT_TRUE(list()->isEditable());
    EXPECT_EQ(list()->count(), 0);
    EXPECT_EQ(list()->currentText(), "");
    EXPECT_FALSE(box(1)->isVisible());
    for (int index = 2; index <= 5; ++index) {
        EXPECT_TRUE(box(index)->isVisible());
        EXPECT_EQ(box(index)->text(), "");
        EXPECT_EQ(background(box(index)), UntouchedColour);
    }
    EXPECT_FALSE(control<QPlainTextEdit>(window, "txtHelp")->isVisible());
    EXPECT_EQ(session().HelpCode, "LL");
    EXPECT_EQ(session().HelpShown, -999);
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(window->LocalLandUse.Count, 0);
}

TEST_F(LocalLandUseEditorTest, ControlsCarryTheNamesAScreenReaderSpeaks) {
    open();
    EXPECT_EQ(list()->accessibleName(), "Curve Number Identifier");
    EXPECT_EQ(box(4)->accessibleName(), "Curve Number \"C\"");
    EXPECT_EQ(button("cmdFinished")->accessibleName(), "Accept Changes  (Close)");
    EXPECT_EQ(button("cmdCancel")->accessibleName(), "No Changes   (Close)");
}

TEST_F(LocalLandUseEditorTest, TheFileIsReadIntoTheListAndTheTable) {
    localFile("\"\",\"1\",\"2\"\r\n" + LotAndYard);
    open();
    EXPECT_EQ(listItems(), (Texts{"Lot", "Yard"}));
    EXPECT_EQ(list()->currentText(), "");
    EXPECT_EQ(window->LocalLandUse.Count, 2);
    EXPECT_EQ(window->LocalLandUse.row(2), (FiveTexts{"Yard", "", "61", "74", "80"}));
}

TEST_F(LocalLandUseEditorTest, PickingAnEntryShowsItsCurveNumbersInWhite) {
    localFile(LotAndYard);
    open();
    enterName("Yard");
    EXPECT_EQ(boxTexts(), (Texts{"Yard", "", "61", "74", "80"}));
    for (int index = 2; index <= 5; ++index)
        EXPECT_EQ(background(box(index)), UntouchedColour);
    EXPECT_EQ(background(list()), UntouchedColour);
    EXPECT_EQ(focused(), box(2));
    EXPECT_EQ(window->LocalLandUse.Selected, 2);
}

TEST_F(LocalLandUseEditorTest, ACurveNumberTakesFiveCharactersTypedAndAWiderOneOfTheFileIsNotCut) {
    localFile("\"Lot\",\"70.125\",\"75\",\"80\",\"85\"\r\n\"\"\r\n");
    open();
    enterName("Lot");
    EXPECT_EQ(boxTexts(), (Texts{"Lot", "70.125", "75", "80", "85"}));
    typeAndPress(2, "");
    typeAndPress(3, "");
    box(3)->selectAll();
    QTest::keyClicks(box(3), "76.12345");
    EXPECT_EQ(box(3)->text(), "76.12");
    accept();
    EXPECT_EQ(localFileBytes(), "\"Lot\",\"70.125\",\"76.12\",\"80\",\"85\"\r\n\"\"\r\n");
}

TEST_F(LocalLandUseEditorTest, EntriesReadFromTheFileAreComparedWithCaseCounting) {
    localFile("\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"lot\",\"40\",\"50\",\"60\",\"70\"\r\n\"\"\r\n");
    open();
    EXPECT_EQ(listItems(), (Texts{"Lot", "lot"}));
    enterName("lot");
    EXPECT_EQ(boxTexts(), (Texts{"lot", "40", "50", "60", "70"}));
    // An empty list in between, so the boxes of "lot" aren't stored under the next name.
    enterName("");
    enterName("Lot");
    EXPECT_EQ(boxTexts(), (Texts{"Lot", "70", "75", "80", "85"}));
    accept();
    EXPECT_EQ(localFileBytes(),
              "\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"lot\",\"40\",\"50\",\"60\",\"70\"\r\n\"\"\r\n");
}

// ---- New entries, checks and focus -------------------------------------------------------------

TEST_F(LocalLandUseEditorTest, ANewEntryIsTypedTabbedThroughAndAccepted) {
    open();
    enterName("Orchard");
    EXPECT_EQ(listItems(), Texts{"Orchard"});
    EXPECT_EQ(list()->currentText(), "Orchard");
    EXPECT_EQ(focused(), box(2));
    typeAndPress(2, "45");
    typeAndPress(3, "66", Qt::Key_Return);
    typeAndPress(4, "77");
    typeAndPress(5, "83");
    for (int index = 2; index <= 5; ++index)
        EXPECT_EQ(background(box(index)), UntouchedColour) << index;
    // Past the last box the focus goes back to the list.
    EXPECT_EQ(focused(), list());
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(localFileBytes(), "\"Orchard\",\"45\",\"66\",\"77\",\"83\"\r\n\"\"\r\n");
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(LocalLandUseEditorTest, TabInTheListChecksTheNameOnlyAndEnterLeavesTheList) {
    open();
    list()->setFocus();
    QTest::keyClicks(list(), "Lot");
    QTest::keyClick(list(), Qt::Key_Tab);
    // No row is selected yet: the name is refused and the focus stays; nothing is added.
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(listItems(), Texts{});
    EXPECT_EQ(window->LocalLandUse.Count, 0);
    EXPECT_EQ(background(box(1)), RefusedColour);
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(listItems(), Texts{"Lot"});
    EXPECT_EQ(window->LocalLandUse.Count, 1);
    EXPECT_EQ(focused(), box(2));
}

TEST_F(LocalLandUseEditorTest, TabInTheListLeavesItWhenTheFocusGoes) {
    localFile(LotAndYard);
    open();
    enterName("Lot");
    list()->setFocus();
    list()->setEditText("Pasture");
    QTest::keyClick(list(), Qt::Key_Tab);
    // The name of the row selected passes its check; the focus goes on, and with it the list
    // is left: the shadow box takes the list's text.
    EXPECT_EQ(focused(), box(2));
    EXPECT_EQ(box(1)->text(), "Pasture");
}

TEST_F(LocalLandUseEditorTest, BIsBelowAAndTurnsRedWhileAnEqualBIsAccepted) {
    open();
    enterName("Lot");
    typeAndPress(2, "70");
    typeAndPress(3, "60");
    EXPECT_EQ(background(box(3)), RefusedColour);
    EXPECT_EQ(focused(), box(3));
    EXPECT_EQ(window->focusMovedTo(), 3);
    box(3)->clear();
    typeAndPress(3, "70");
    EXPECT_EQ(background(box(3)), UntouchedColour);
    EXPECT_EQ(focused(), box(4));
}

TEST_F(LocalLandUseEditorTest, ABlankBoxCountsAsZero) {
    open();
    enterName("Range");
    QTest::keyClick(box(2), Qt::Key_Tab);
    EXPECT_EQ(background(box(2)), UntouchedColour);
    typeAndPress(3, "62");
    EXPECT_EQ(background(box(3)), UntouchedColour);
    // A blank C below B is refused.
    QTest::keyClick(box(4), Qt::Key_Tab);
    EXPECT_EQ(background(box(4)), RefusedColour);
    EXPECT_EQ(focused(), box(4));
}

TEST_F(LocalLandUseEditorTest, CurveNumbersOutsideThirtyToHundredAreRefused) {
    open();
    enterName("Lot");
    typeAndPress(2, "29.5");
    EXPECT_EQ(background(box(2)), RefusedColour);
    box(2)->clear();
    typeAndPress(2, "100");
    EXPECT_EQ(background(box(2)), UntouchedColour);
    typeAndPress(3, "101");
    EXPECT_EQ(background(box(3)), RefusedColour);
    box(3)->clear();
    typeAndPress(3, "x");
    EXPECT_EQ(background(box(3)), RefusedColour);
}

TEST_F(LocalLandUseEditorTest, ACurveNumberTypedBeforeAnIdentifierExistsIsRefused) {
    open();
    box(2)->setFocus();
    typeAndPress(2, "70");
    EXPECT_EQ(background(box(2)), RefusedColour);
    EXPECT_EQ(focused(), box(2));
    // Leaving the box with the mouse checks it too.
    box(3)->setFocus();
    QTest::keyClicks(box(3), "75");
    click(box(4));
    EXPECT_EQ(background(box(3)), RefusedColour);
}

TEST_F(LocalLandUseEditorTest, EnterOnAnEmptyListIsRefusedAndKeepsTheFocus) {
    open();
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(background(box(1)), RefusedColour);
    EXPECT_EQ(list()->count(), 0);
    EXPECT_EQ(window->LocalLandUse.Count, 0);
}

TEST_F(LocalLandUseEditorTest, ALongNameIsCutTo35Characters) {
    open();
    const QString name = QString(35, 'n') + "xyz";
    enterName(name);
    EXPECT_EQ(box(1)->text(), QString(35, 'n'));
    typeAndPress(2, "50");
    accept();
    // The row took the list's whole text when it was added, and the cut name of the shadow box
    // when the boxes were stored on Accept.
    EXPECT_EQ(localFileBytes(), "\"" + std::string(35, 'n') + "\",\"50\",\"\",\"\",\"\"\r\n\"\"\r\n");
}

TEST_F(LocalLandUseEditorTest, AnEntryWithAllFourCurveNumbersBlankDisappearsOnAccepting) {
    localFile(LotAndYard);
    open();
    enterName("Yard");
    for (int index = 3; index <= 5; ++index)
        box(index)->clear();
    enterName("Empty");
    accept();
    EXPECT_EQ(localFileBytes(), "\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n");
}

TEST_F(LocalLandUseEditorTest, ClickingFromTheListIntoABoxLeavesTheList) {
    open();
    list()->setFocus();
    QTest::keyClicks(list(), "Meadowland");
    click(box(2));
    EXPECT_EQ(listItems(), Texts{"Meadowland"});
    EXPECT_EQ(window->LocalLandUse.Selected, 1);
    EXPECT_EQ(focused(), box(2));
    typeAndPress(2, "35");
    EXPECT_EQ(background(box(2)), UntouchedColour);
    accept();
    EXPECT_EQ(localFileBytes(), "\"Meadowland\",\"35\",\"\",\"\",\"\"\r\n\"\"\r\n");
}

TEST_F(LocalLandUseEditorTest, ANameTypedOverAShownEntryTakesTheBoxesAlong) {
    localFile(LotAndYard);
    open();
    enterName("Lot");
    box(5)->setText("90");
    // The boxes are stored under the name in the list before it is looked up, so the entry
    // shown goes on under the new name.
    enterName("Parking");
    EXPECT_EQ(boxTexts(), (Texts{"Parking", "70", "75", "80", "90"}));
    EXPECT_EQ(listItems(), (Texts{"Lot", "Yard"}));
    accept();
    EXPECT_EQ(localFileBytes(),
              "\"Parking\",\"70\",\"75\",\"80\",\"90\"\r\n\"Yard\",\"\",\"61\",\"74\",\"80\"\r\n\"\"\r\n");
}

TEST_F(LocalLandUseEditorTest, TheListTakesTheColourOfTheShadowBox) {
    open();
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(background(box(1)), RefusedColour);
    list()->setEditText("Lot");
    QTest::keyClick(list(), Qt::Key_Return);
    // The list was left before the name was checked again, and only once.
    EXPECT_EQ(background(list()), RefusedColour);
    EXPECT_EQ(background(box(1)), UntouchedColour);
}

// ---- Deleting ----------------------------------------------------------------------------------

TEST_F(LocalLandUseEditorTest, DeletingAnEntryAsksAndEmptiesIt) {
    localFile(LotAndYard);
    open();
    enterName("Lot");
    platform.answers.push_back(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], DeleteQuestion);
    EXPECT_EQ(listItems(), Texts{"Yard"});
    EXPECT_EQ(list()->currentText(), "");
    EXPECT_EQ(boxTexts(), (Texts{"", "", "", "", ""}));
    EXPECT_EQ(focused(), list());
    // The slot stays while the window is open.
    EXPECT_EQ(window->LocalLandUse.Count, 2);
    EXPECT_EQ(window->LocalLandUse.row(1), FiveTexts{});
    accept();
    EXPECT_EQ(localFileBytes(), "\"Yard\",\"\",\"61\",\"74\",\"80\"\r\n\"\"\r\n");
}

TEST_F(LocalLandUseEditorTest, NoToTheQuestionKeepsTheEntry) {
    localFile(LotAndYard);
    open();
    enterName("Yard");
    platform.answers.push_back(BoxAnswer::No);
    click(button("cmdDelCur"));
    EXPECT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(listItems(), (Texts{"Lot", "Yard"}));
    EXPECT_EQ(boxTexts(), (Texts{"Yard", "", "61", "74", "80"}));
    EXPECT_EQ(focused(), list());
    accept();
    EXPECT_EQ(localFileBytes(), LotAndYard);
}

TEST_F(LocalLandUseEditorTest, DeletingWithAnEmptyListAsksNothing) {
    localFile(LotAndYard);
    open();
    list()->setEditText("   ");
    click(button("cmdDelCur"));
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(listItems(), (Texts{"Lot", "Yard"}));
    EXPECT_EQ(focused(), list());
}

// ---- Closing ------------------------------------------------------------------------------------

TEST_F(LocalLandUseEditorTest, NoChangesWritesNothing) {
    localFile(LotAndYard);
    open();
    enterName("Lot");
    box(2)->setText("99");
    click(button("cmdCancel"));
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(localFileBytes(), LotAndYard);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(LocalLandUseEditorTest, AcceptingWithoutAFileWritesTheClosingLine) {
    open();
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(localFileBytes(), "\"\"\r\n");
}

TEST_F(LocalLandUseEditorTest, AcceptLeavesTheDataChangedFlagAlone) {
    session().DataChanged = true;
    open();
    accept();
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(LocalLandUseEditorTest, AFileThatCannotBeWrittenIsToldAndTheWindowKeepsTheTyping) {
    // A folder standing in the file's place: no write can replace it, not even as root.
    const std::string file = session().LocalLandUseFile;
    ASSERT_TRUE(createFolder(file));
    open();
    enterName("Lawn");
    typeAndPress(2, "70");
    accept();
    EXPECT_FALSE(windowClosed());
    EXPECT_TRUE(folderExists(file));
    ASSERT_EQ(platform.boxes.size(), 1u);
    const BoxRequest& told = platform.boxes[0];
    EXPECT_EQ(told.text.rfind("The file " + file + " could not be written (", 0), 0u) << told.text;
    const std::string ending = "). The file is as it was before; the window stays open.";
    ASSERT_GE(told.text.size(), ending.size());
    EXPECT_EQ(told.text.substr(told.text.size() - ending.size()), ending);
    EXPECT_EQ(told.title, "BrookletSystem");
    EXPECT_EQ(told.buttons, BoxButtons::Ok);
    EXPECT_EQ(told.icon, BoxIcon::Exclamation);
    EXPECT_EQ(list()->currentText(), "Lawn");
    EXPECT_EQ(box(2)->text(), "70");
    // Once the file can be written again, Accept writes what was typed.
    std::filesystem::remove(file);
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(localFileBytes(), "\"Lawn\",\"70\",\"\",\"\",\"\"\r\n\"\"\r\n");
}

TEST_F(LocalLandUseEditorTest, ALabelClickTogglesItsHelp) {
    writeBytes(session().HelpListFile, "LL3|Curve Number \"B\" - Group B.|30 to 100||\r\n");
    open();
    auto* help = control<QPlainTextEdit>(window, "txtHelp");
    click(control<QLabel>(window, "lblInput(3)"));
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(helpBoxText(help),
              std::string(10, ' ') +
                  "Curve Number \"B\" \r\nGroup B.\r\n          Range - 30 to 100\r\n\r\n");
    click(control<QLabel>(window, "lblInput(3)"));
    EXPECT_FALSE(help->isVisible());
}

// ---- Keys and the close box ---------------------------------------------------------------------

TEST_F(LocalLandUseEditorTest, EscapeIsNoChangesAndCtrlEnterAcceptsWhatTheListHolds) {
    localFile(LotAndYard);
    open();
    enterName("Lot");
    typeAndPress(2, "72");
    QTest::keyClick(box(3), Qt::Key_Escape);
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(localFileBytes(), LotAndYard);

    open();
    list()->setFocus();
    QTest::keyClicks(list(), "Pasture");
    QTest::keyClick(list(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(windowClosed());
    EXPECT_TRUE(platform.boxes.empty());
    // Pasture has no curve number, so it is not written; the file is written all the same.
    EXPECT_EQ(localFileBytes(), LotAndYard);
}

TEST_F(LocalLandUseEditorTest, TheCloseBoxAfterTypingAsksAndYesWritesTheFile) {
    open();
    enterName("Orchard");
    typeAndPress(2, "45");
    platform.answers.push_back(BoxAnswer::Yes);
    QCloseEvent closing;
    QApplication::sendEvent(window->windowHandle(), &closing);
    QCoreApplication::processEvents();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{
                  "Keep the changes made in this window? Yes accepts them, No discards them, Cancel returns "
                  "to the window.",
                  "Local Land Use", BoxButtons::YesNoCancel, BoxIcon::Question}));
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(localFileBytes(), "\"Orchard\",\"45\",\"\",\"\",\"\"\r\n\"\"\r\n");
}

TEST_F(LocalLandUseEditorTest, TheCloseBoxWithNothingTypedAsksNothing) {
    localFile(LotAndYard);
    open();
    QCloseEvent closing;
    QApplication::sendEvent(window->windowHandle(), &closing);
    EXPECT_TRUE(windowClosed());
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(LocalLandUseEditorTest, TheHeaderShowsTheWindowsEntryOfTheShippedHelp) {
    open();
    auto* help = control<QPlainTextEdit>(window, "txtHelp");
    click(control<QLabel>(window, "lblHeader"));
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(helpBoxText(help).rfind(
                  std::string(10, ' ') + "Local Land Use Definitions \r\nYour own land uses", 0),
              0u);
    EXPECT_EQ(session().HelpShown, 0);
    click(control<QLabel>(window, "lblHeader"));
    EXPECT_FALSE(help->isVisible());
}

} // namespace
} // namespace brooklet::test
