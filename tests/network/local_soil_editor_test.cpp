// frmLocalSoil and frmDisplaySoil as the user meets them: soils typed into the list, groups
// ticked, soils deleted through the question and accepted; the sorted display with its find box.
#include "local_window_fixture.h"

#include "editing/qt_grid.h"
#include "network/local_soil_editor.h"
#include "session/text_file.h"

#include <QCheckBox>
#include <QLabel>
#include <QTableWidget>

#include <filesystem>

namespace brooklet::test {
namespace {

const std::string ThreeSoils =
    "\"Sandy loam\",\"A/D\"\r\n\"Clay\",\"D\"\r\n\"Silt loam\",\"B/C\"\r\n\"\"\r\n";

class LocalSoilEditorTest : public LocalWindowTest<frmLocalSoil> {
protected:
    LocalSoilEditorTest() : LocalWindowTest("frmLocalSoil") {}

    QCheckBox* check(int group) { return control<QCheckBox>(window, indexedName("Check1", group)); }
    // The groups ticked, as letters.
    std::string ticked() {
        std::string letters;
        for (int group = 2; group <= 5; ++group)
            if (check(group)->isChecked())
                letters += char('A' + group - 2);
        return letters;
    }
    void soilFile(const std::string& bytes) { writeBytes(session().LocalSoilFile, bytes); }
    std::string soilFileBytes() { return bytesOf(session().LocalSoilFile); }
};

TEST_F(LocalSoilEditorTest, TheFileMenuOpensTheWindow) {
    clickMenuItem("mnuFileItem(11)");
    window = context->windows.loadedAs<frmLocalSoil>("frmLocalSoil");
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_EQ(window->windowTitle(), "Local Soil / HSG");
}

TEST_F(LocalSoilEditorTest, ShowsEveryControlWithItsCaption) {
    open();
    EXPECT_EQ(control<QLabel>(window, "lblInput(1)")->text(), "Local Soil Identifier");
    EXPECT_EQ(control<QLabel>(window, "lblInput(7)")->text(), "Hydrologic Soil Groups (HSG)");
    const char* letters[] = {"A", "B", "C", "D"};
    for (int group = 2; group <= 5; ++group) {
        EXPECT_EQ(control<QLabel>(window, indexedName("lblStatic", group))->text(), letters[group - 2]);
        EXPECT_FALSE(check(group)->isChecked());
        EXPECT_EQ(check(group)->accessibleName(), letters[group - 2]);
    }
    EXPECT_EQ(control<QLabel>(window, "lblComment(1)")->text(),
              "Check all HSGs that apply to the Local Soil Identifier");
    EXPECT_EQ(button("cmdDelCur")->text(), "Delete Soil");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes (Close)");
    EXPECT_EQ(button("cmdCancel")->text(), "    No Changes   (Close)");
    EXPECT_EQ(list()->accessibleName(), "Local Soil Identifier");
    EXPECT_FALSE(control<QLineEdit>(window, "txtInp(1)")->isVisible());
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(window->LocalSoil.Previous, -999);
}

TEST_F(LocalSoilEditorTest, TheFileIsReadIntoTheListOnceForEachNameInAnyCase) {
    soilFile("\"Clay\",\"D\"\r\n\"clay\",\"C\"\r\n\"  \"\r\n\"Loam\",\"b\"\r\n\"\"\r\n");
    open();
    EXPECT_EQ(listItems(), (Texts{"Clay", "Loam"}));
    EXPECT_EQ(list()->currentText(), "");
    EXPECT_EQ(window->LocalSoil.Count, 3);
    enterName("clay");
    EXPECT_EQ(ticked(), "C");
    accept();
    EXPECT_EQ(soilFileBytes(), "\"Clay\",\"D\"\r\n\"clay\",\"C\"\r\n\"Loam\",\"B\"\r\n\"\"\r\n");
}

TEST_F(LocalSoilEditorTest, ASoilWithDSlashAIsShownWithAAndDTickedAndComesBackAsASlashD) {
    soilFile("\"Peat\",\"D/A\"\r\n\"\"\r\n");
    open();
    enterName("Peat");
    EXPECT_EQ(ticked(), "AD");
    EXPECT_EQ(box(1)->text(), "Peat");
    // Tab or Enter sends the focus back to the list: it is the one field.
    EXPECT_EQ(focused(), list());
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(soilFileBytes(), "\"Peat\",\"A/D\"\r\n\"\"\r\n");
}

TEST_F(LocalSoilEditorTest, ASoilWhoseBoxesAreAllClearedVanishesOnAccepting) {
    soilFile(ThreeSoils);
    open();
    enterName("Sandy loam");
    EXPECT_EQ(ticked(), "AD");
    click(check(2));
    click(check(5));
    EXPECT_EQ(ticked(), "");
    accept();
    EXPECT_EQ(soilFileBytes(), "\"Clay\",\"D\"\r\n\"Silt loam\",\"B/C\"\r\n\"\"\r\n");
}

TEST_F(LocalSoilEditorTest, ANewSoilIsTypedTickedAndAccepted) {
    soilFile(ThreeSoils);
    open();
    enterName("Muck");
    EXPECT_EQ(listItems(), (Texts{"Sandy loam", "Clay", "Silt loam", "Muck"}));
    EXPECT_EQ(ticked(), "");
    click(check(3));
    click(check(4));
    accept();
    EXPECT_EQ(
        soilFileBytes(),
        "\"Sandy loam\",\"A/D\"\r\n\"Clay\",\"D\"\r\n\"Silt loam\",\"B/C\"\r\n\"Muck\",\"B/C\"\r\n\"\"\r\n");
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(LocalSoilEditorTest, AFileThatCannotBeWrittenIsToldAndTheWindowKeepsTheTicks) {
    // A folder standing in the file's place: no write can replace it, not even as root.
    const std::string file = session().LocalSoilFile;
    ASSERT_TRUE(createFolder(file));
    open();
    enterName("Muck");
    click(check(3));
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
    EXPECT_EQ(told.icon, BoxIcon::Exclamation);
    EXPECT_EQ(list()->currentText(), "Muck");
    EXPECT_EQ(ticked(), "B");
    // Once the file can be written again, Accept writes what was ticked.
    std::filesystem::remove(file);
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(soilFileBytes(), "\"Muck\",\"B\"\r\n\"\"\r\n");
}

TEST_F(LocalSoilEditorTest, TicksAreStoredWhenAnotherSoilIsPicked) {
    soilFile(ThreeSoils);
    open();
    enterName("Clay");
    click(check(4));
    // Tab in the list checks the name only and keeps the focus there; Enter leaves the list.
    list()->setFocus();
    list()->setEditText("Silt loam");
    QTest::keyClick(list(), Qt::Key_Tab);
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(ticked(), "CD");
    EXPECT_EQ(box(1)->text(), "Clay");
    EXPECT_EQ(window->LocalSoil.row(2), (FiveTexts{"Clay", "", "", "", "D"}));
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(ticked(), "BC");
    EXPECT_EQ(window->LocalSoil.row(2), (FiveTexts{"Clay", "", "", "C", "D"}));
    click(button("cmdCancel"));
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(soilFileBytes(), ThreeSoils);
}

TEST_F(LocalSoilEditorTest, ALongIdentifierIsCutTo25Characters) {
    open();
    enterName(QString(25, 's') + "ilt");
    EXPECT_EQ(box(1)->text(), QString(25, 's'));
}

TEST_F(LocalSoilEditorTest, DeletingASoilAsksUnderTheDefaultTitle) {
    soilFile(ThreeSoils);
    open();
    enterName("Clay");
    platform.answers.push_back(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{"Delete Current Local Soil Data ?", "BrookletSystem",
                                             BoxButtons::YesNo, BoxIcon::Question}));
    EXPECT_EQ(listItems(), (Texts{"Sandy loam", "Silt loam"}));
    EXPECT_EQ(list()->currentText(), "");
    EXPECT_EQ(ticked(), "");
    EXPECT_EQ(focused(), list());
    EXPECT_EQ(window->LocalSoil.Selected, 0);
    accept();
    EXPECT_EQ(soilFileBytes(), "\"Sandy loam\",\"A/D\"\r\n\"Silt loam\",\"B/C\"\r\n\"\"\r\n");
}

TEST_F(LocalSoilEditorTest, NoToTheQuestionKeepsTheSoilAndAnEmptyListAsksNothing) {
    soilFile(ThreeSoils);
    open();
    click(button("cmdDelCur"));
    EXPECT_TRUE(platform.boxes.empty());
    enterName("Clay");
    platform.answers.push_back(BoxAnswer::No);
    click(button("cmdDelCur"));
    EXPECT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(ticked(), "D");
    EXPECT_EQ(listItems().size(), 3u);
    EXPECT_EQ(focused(), list());
}

TEST_F(LocalSoilEditorTest, WithoutAFileTheListIsEmptyAndAcceptWritesTheClosingLine) {
    open();
    EXPECT_EQ(list()->count(), 0);
    accept();
    EXPECT_EQ(soilFileBytes(), "\"\"\r\n");
}

// ---- frmDisplaySoil ----------------------------------------------------------------------------

class DisplaySoilTest : public WindowTest {
protected:
    void soilFile(const std::string& bytes) { writeBytes(session().LocalSoilFile, bytes); }
    frmDisplaySoil* open() {
        window = openWindow<frmDisplaySoil>("frmDisplaySoil");
        if (window)
            table = control<QTableWidget>(window, "MSFlexGrid1");
        return window;
    }
    QLineEdit* findBox() { return control<QLineEdit>(window, "txtInp(1)"); }
    std::string cell(int row, int col) {
        const QTableWidgetItem* item = table->item(row, col);
        return item ? toBytes(item->text()) : std::string();
    }
    Rgb colour(int row, int col) {
        const QTableWidgetItem* item = table->item(row, col);
        return item && item->background().style() != Qt::NoBrush ? fromQColor(item->background().color())
                                                                 : UntouchedColour;
    }
    // The rows painted green.
    std::vector<int> markedRows() {
        std::vector<int> rows;
        for (int row = 0; row < table->rowCount(); ++row)
            if (colour(row, 0) == CurrentColour && colour(row, 1) == CurrentColour)
                rows.push_back(row);
        return rows;
    }

    frmDisplaySoil* window = nullptr;
    QTableWidget* table = nullptr;
};

TEST_F(DisplaySoilTest, ShowsTheSoilsSortedCaseNotCountingWithTheFindBoxFocused) {
    soilFile(
        "\"silt\",\"B\"\r\n\"Clay\",\"D\"\r\n\"  \"\r\n\"clay loam\",\"C/D\"\r\n\"Adobe\",\"D\"\r\n\"\"\r\n");
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), "Display Local Soil/HSG");
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_EQ(table->columnCount(), 2);
    EXPECT_EQ(table->columnWidth(0), 133);
    EXPECT_EQ(table->columnWidth(1), 60);
    ASSERT_EQ(table->rowCount(), 5);
    EXPECT_EQ(cell(0, 0), "Local Soil Identifier");
    EXPECT_EQ(cell(0, 1), "HSG");
    const Texts names{"Adobe", "Clay", "clay loam", "silt"};
    const Texts groups{"D", "D", "C/D", "B"};
    for (int row = 1; row <= 4; ++row) {
        EXPECT_EQ(cell(row, 0), names[row - 1]);
        EXPECT_EQ(cell(row, 1), groups[row - 1]);
    }
    EXPECT_TRUE(markedRows().empty());
    EXPECT_EQ(window->gridState().GridRowsUsed, 4);
    EXPECT_EQ(control<QLabel>(window, "lblInput(1)")->text(), "Find in Soil List");
    EXPECT_EQ(findBox()->accessibleName(), "Find in Soil List");
    EXPECT_EQ(control<QPushButton>(window, "cmdCancel")->text(), "  Close   ");
    EXPECT_FALSE(control<QLineEdit>(window, "txtDum(1)")->isVisible());
    EXPECT_FALSE(control<QLineEdit>(window, "txtDum(2)")->isVisible());
    EXPECT_EQ(focused(), findBox());
}

TEST_F(DisplaySoilTest, TheSortIgnoresCaseWhereCaseWouldChangeTheOrder) {
    soilFile("\"peat\",\"D\"\r\n\"Muck\",\"D\"\r\n\"adobe\",\"D\"\r\n\"Loam\",\"B\"\r\n\"\"\r\n");
    open();
    ASSERT_EQ(table->rowCount(), 5);
    // With case counting the capitals would come first: Loam, Muck, adobe, peat.
    const Texts names{"adobe", "Loam", "Muck", "peat"};
    for (int row = 1; row <= 4; ++row)
        EXPECT_EQ(cell(row, 0), names[row - 1]) << row;
    QTest::keyClicks(findBox(), "m");
    EXPECT_EQ(markedRows(), std::vector<int>{3});
}

TEST_F(DisplaySoilTest, TheFindBoxStopsAtTheFirstSoilInSortedOrderThatBeginsWithTheText) {
    soilFile("\"silt\",\"B\"\r\n\"Clay\",\"D\"\r\n\"clay loam\",\"C/D\"\r\n\"Adobe\",\"D\"\r\n\"\"\r\n");
    open();
    QTest::keyClicks(findBox(), "CL");
    EXPECT_EQ(markedRows(), std::vector<int>{2});
    // A blank inside the text comes only by pasting, as a trailing one can't be typed.
    findBox()->setText("clay l");
    EXPECT_EQ(markedRows(), std::vector<int>{3});
    EXPECT_EQ(window->gridState().MarkedRow, 3);
    // No hit leaves the mark where it was.
    QTest::keyClicks(findBox(), "x");
    EXPECT_EQ(markedRows(), std::vector<int>{3});
    findBox()->clear();
    QTest::keyClicks(findBox(), "S");
    EXPECT_EQ(markedRows(), std::vector<int>{4});
}

TEST_F(DisplaySoilTest, ABlankCannotBeTypedAtEitherEnd) {
    soilFile(ThreeSoils);
    open();
    QTest::keyClicks(findBox(), " Sandy ");
    EXPECT_EQ(findBox()->text(), "Sandy");
    EXPECT_EQ(markedRows(), std::vector<int>{2});
    // So the blank of "Sandy loam" is lost as it is typed.
    QTest::keyClicks(findBox(), " l");
    EXPECT_EQ(findBox()->text(), "Sandyl");
    EXPECT_EQ(markedRows(), std::vector<int>{2});
}

TEST_F(DisplaySoilTest, TheHitRowBecomesTheTopRow) {
    std::string bytes;
    for (int i = 0; i < 60; ++i)
        bytes += "\"Soil" + std::string(1, char('A' + i / 10)) + std::to_string(i % 10) + "\",\"B\"\r\n";
    soilFile(bytes + "\"\"\r\n");
    open();
    window->resize(300, 200);
    QTest::keyClicks(findBox(), "soile5");
    EXPECT_EQ(markedRows(), std::vector<int>{46});
    QtGrid grid(table);
    EXPECT_EQ(grid.TopRow(), 46);
}

TEST_F(DisplaySoilTest, WithoutTheFileTheGridHoldsOnlyItsHeads) {
    open();
    EXPECT_EQ(table->rowCount(), 1);
    QTest::keyClicks(findBox(), "a");
    EXPECT_TRUE(markedRows().empty());
    click(control<QPushButton>(window, "cmdCancel"));
    EXPECT_TRUE(closed("frmDisplaySoil"));
}

} // namespace
} // namespace brooklet::test
