// frmStorm as the user meets it: opened from the main list, typed into box by box with Enter
// and Tab, rows picked and deleted with the mouse, rows copied and pasted, and the work file
// compared byte for byte after Accept.
#include "options/option_editor_fixture.h"

#include "../editing/colour_printing.h"
#include "editing/identifier_lists.h"
#include "tables/storm_editor.h"

#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QScrollBar>
#include <QTableWidget>

namespace brooklet::test {
namespace {

using Texts = std::vector<std::string>;

const std::string Header = "STORM ANALYSIS:                         ";

// A storm record of the given fields, ten columns each behind ten blanks.
std::string stormLine(const Texts& fields) {
    std::string line(10, ' ');
    for (const std::string& f : fields)
        line += field(f);
    line.resize(80, ' ');
    return line;
}

class StormEditorTest : public OptionEditorTest<frmStorm> {
protected:
    StormEditorTest() : OptionEditorTest("frmStorm", StormSection) {}
    void SetUp() override {
        OptionEditorTest::SetUp();
        session().Units.DepthUnit = "in";
    }

    QComboBox* combo(int index) { return element<QComboBox>("cmbInp", index); }
    QTableWidget* grid() { return control<QTableWidget>(window, "MSFlexGrid1"); }
    // Box Index as the user sees it: a combo box for 1, 2 and 5, a text box for 3, 4 and 7.
    QWidget* field(int index) {
        return (index == 1 || index == 2 || index == 5) ? static_cast<QWidget*>(combo(index)) : box(index);
    }
    Rgb colourOf(int index) { return background(field(index)); }
    // Replaces the text of a field by typing, the field having the focus.
    void typeInto(int index, const QString& text) {
        QWidget* w = field(index);
        w->setFocus(Qt::MouseFocusReason);
        if (auto* list = qobject_cast<QComboBox*>(w))
            list->lineEdit()->selectAll();
        else
            box(index)->selectAll();
        QTest::keyClick(w, Qt::Key_Delete);
        QTest::keyClicks(w, text);
    }
    // Types into a field and presses Enter.
    void enterField(int index, const QString& text) {
        typeInto(index, text);
        QTest::keyClick(field(index), Qt::Key_Return);
    }
    // A whole row typed field by field with Enter, the option clicked between.
    void typeRow(const QStringList& fields, int option) {
        enterField(1, fields[0]);
        enterField(2, fields[1]);
        enterField(3, fields[2]);
        enterField(4, fields[3]);
        enterField(5, fields[4]);
        click(option);
        enterField(7, fields[5]);
    }
    void click(int option) { OptionEditorTest::click(element<QRadioButton>("Opt1", option)); }
    QRect cellRect(int row) { return grid()->visualItemRect(grid()->item(row, 0)); }
    void clickRow(int row, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(grid()->viewport(), button, {}, cellRect(row).center());
    }
    Texts gridRow(int row) {
        Texts texts;
        for (int col = 0; col < 7; ++col) {
            const QTableWidgetItem* item = grid()->item(row, col);
            texts.push_back(item ? toBytes(item->text()) : std::string());
        }
        return texts;
    }
    std::string comboText(int index) { return toBytes(combo(index)->currentText()); }
    Texts items(int index) {
        Texts texts;
        for (int i = 0; i < combo(index)->count(); ++i)
            texts.push_back(toBytes(combo(index)->itemText(i)));
        return texts;
    }
};

TEST_F(StormEditorTest, TheStormEntryOfTheMainListOpensTheWindowWithItsControls) {
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle().toStdString(), "Storm Anaylsis   Current File - > Untitled <");
    EXPECT_EQ(control<QLabel>(window, "lblHeader")->text(), "Storm Analysis:");
    EXPECT_EQ(label(2)->text(), "Rain Gage Identifier");
    EXPECT_EQ(label(6)->text(), "Gage Antecedent Runoff Condition:");
    EXPECT_EQ(element<QLabel>("lblInUnit", 3)->text(), "hr");
    EXPECT_EQ(element<QLabel>("lblInUnit", 4)->text(), "in");
    EXPECT_EQ(element<QLabel>("lblInUnit", 7)->text(), "in");
    EXPECT_EQ(element<QLabel>("lblComment", 1)->text(),
              "Click row in grid to edit previously entered data.  RIGHT click to delete row.");
    EXPECT_EQ(button("cmdFinished")->text(), "Accept Changes  (Close)");
    EXPECT_EQ(button("cmdCancel")->text(), "      No Changes    (Close)");
    EXPECT_EQ(box(6)->text(), "2");
    EXPECT_TRUE(element<QRadioButton>("Opt1", 2)->isChecked());
    EXPECT_FALSE(box(1)->isVisible());
    EXPECT_FALSE(helpBox()->isVisible());
    EXPECT_EQ(grid()->rowCount(), 11);
    EXPECT_EQ(grid()->columnCount(), 7);
    EXPECT_EQ(gridRow(0),
              (Texts{"Storm Id", "Rain Gage Id", "Start", "Rain", "Rain Table Id", "ARC", "2-Yr"}));
    EXPECT_EQ(focused(), combo(1));
    EXPECT_EQ(combo(1)->accessibleName(), "Storm Identifier:");
    EXPECT_EQ(box(4)->accessibleName(), "Gage Rainfall:");
    EXPECT_EQ(element<QRadioButton>("Opt1", 3)->accessibleDescription(), "Gage Antecedent Runoff Condition:");
}

TEST_F(StormEditorTest, TheRainTableListOffersTheTenStandardNamesFirst) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "WB-24HR", "2", ""}),
                      stormLine({"S2", "G2", "0.", "5.", "type ii", "2", ""})});
    writeBytes(workFile(RainfallDistributionSection),
               crlf({"RAINFALL DISTRIBUTION:", "          LOCAL1              0.5",
                     "                    0.        1."}));
    open();
    Texts expected(StandardRainTables.begin(), StandardRainTables.end());
    expected.push_back("LOCAL1");
    expected.push_back("WB-24HR");
    EXPECT_EQ(items(5), expected);
    EXPECT_EQ(items(1), (Texts{"S1", "S2"}));
    EXPECT_EQ(items(2), (Texts{"G1", "G2"}));
    EXPECT_EQ(comboText(5), "");
}

TEST_F(StormEditorTest, ARowTypedBoxByBoxIsWrittenColumnForColumn) {
    open();
    typeRow({"100-YR", "NORTHGAGE", "0", "6.4", "Type II", "2.9"}, 3);
    EXPECT_EQ(gridRow(1), (Texts{"100-YR", "NORTHGAGE", "0", "6.4", "Type II", "3", "2.9"}));
    EXPECT_EQ(focused(), combo(1));
    EXPECT_EQ(items(1), (Texts{"100-YR"}));
    EXPECT_EQ(items(2), (Texts{"NORTHGAGE"}));
    accept();
    EXPECT_EQ(workFileBytes(),
              crlf({Header, stormLine({"100-YR", "NORTHGAGE", "0.", "6.4", "Type II", "3", "2.9"})}));
    EXPECT_TRUE(session().DataChanged);
    EXPECT_TRUE(windowClosed());
}

TEST_F(StormEditorTest, EnterInAnEmptyStormIdentifierKeepsTheFocusThereAndTurnsItRed) {
    open();
    enterField(1, "");
    EXPECT_EQ(focused(), combo(1));
    EXPECT_EQ(colourOf(1), RefusedColour);
    EXPECT_EQ(background(box(1)), RefusedColour);
}

TEST_F(StormEditorTest, NoFieldIsTakenBeforeTheStormIdentifier) {
    open();
    enterField(3, "1");
    EXPECT_EQ(colourOf(3), RefusedColour);
    EXPECT_EQ(focused(), box(3));
}

TEST_F(StormEditorTest, AnEmptyRainTableIsRedAndNoRowIsWritten) {
    open();
    enterField(1, "S1");
    enterField(2, "G1");
    enterField(3, "0");
    enterField(4, "5");
    EXPECT_EQ(focused(), combo(5));
    enterField(5, "");
    EXPECT_EQ(colourOf(5), RefusedColour);
    EXPECT_EQ(focused(), combo(5));
    EXPECT_EQ(gridRow(1), Texts(7));
    accept();
    EXPECT_EQ(workFileBytes(), "");
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(StormEditorTest, ARainfallOfZeroIsRefusedAndAStartingTimeOfZeroAccepted) {
    open();
    enterField(1, "S1");
    enterField(3, "0");
    EXPECT_EQ(colourOf(3), AcceptedColour);
    EXPECT_EQ(focused(), box(4));
    enterField(4, "0");
    EXPECT_EQ(colourOf(4), RefusedColour);
    EXPECT_EQ(focused(), box(4));
    enterField(7, "0");
    EXPECT_EQ(colourOf(7), RefusedColour);
    enterField(4, "0.1");
    EXPECT_EQ(colourOf(4), AcceptedColour);
    EXPECT_EQ(focused(), combo(5));
}

TEST_F(StormEditorTest, TabFollowsTheTabOrderAndAppliesTheBoxItLeaves) {
    open();
    enterField(1, "S1");
    typeInto(3, "-1");
    QTest::keyClick(box(3), Qt::Key_Tab);
    EXPECT_EQ(colourOf(3), RefusedColour);
    EXPECT_EQ(focused(), box(4));
}

TEST_F(StormEditorTest, ThePairLookupIsExactSoADifferentCaseStartsANewRow) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""})});
    open();
    enterField(1, "s1");
    enterField(2, "G1");
    EXPECT_EQ(window->currentRow(), frmStorm::NoCurrentRow);
    EXPECT_EQ(box(4)->text(), "");
    enterField(3, "1");
    enterField(4, "2");
    enterField(5, "RT2");
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""}),
                                     stormLine({"s1", "G1", "1.", "2.", "RT2", "2", ""})}));
}

TEST_F(StormEditorTest, AnExistingPairIsShownAndChangesGoToItsRow) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "3", ""}),
                      stormLine({"S1", "G2", "1.", "6.", "RT1", "1", "2.5"})});
    open();
    enterField(1, "S1");
    enterField(2, "G2");
    EXPECT_EQ(window->currentRow(), 2);
    EXPECT_EQ(box(4)->text(), "6.");
    EXPECT_EQ(comboText(5), "RT1");
    EXPECT_TRUE(element<QRadioButton>("Opt1", 1)->isChecked());
    EXPECT_EQ(grid()->item(2, 0)->background().color(), QColor(0, 255, 0));
    enterField(4, "7.5");
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "3", ""}),
                                     stormLine({"S1", "G2", "1.", "7.5", "RT1", "1", "2.5"})}));
}

TEST_F(StormEditorTest, ARowWithAnEmptyRainGageIsLegalAndABlankGageBoxMatchesIt) {
    startWithSection({Header, stormLine({"S1", "", "0.", "4.", "Type II", "2", ""})});
    open();
    enterField(1, "S1");
    EXPECT_EQ(window->currentRow(), 1);
    EXPECT_EQ(box(4)->text(), "4.");
    EXPECT_EQ(comboText(5), "Type II");
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, stormLine({"S1", "", "0.", "4.", "Type II", "2", ""})}));
}

TEST_F(StormEditorTest, AnEmptyOrZeroRunoffConditionShowsTwoAndBecomesTwoWhenPickedAndApplied) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "4.", "RT", "", ""}),
                      stormLine({"S1", "G2", "0.", "4.", "RT", "0", ""})});
    open();
    click(3);
    clickRow(1);
    EXPECT_TRUE(element<QRadioButton>("Opt1", 2)->isChecked());
    EXPECT_EQ(box(6)->text(), "2");
    EXPECT_EQ(gridRow(1)[5], "");
    enterField(3, "0");
    EXPECT_EQ(gridRow(1)[5], "2");
    clickRow(2);
    EXPECT_TRUE(element<QRadioButton>("Opt1", 2)->isChecked());
    enterField(3, "0");
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, stormLine({"S1", "G1", "0.", "4.", "RT", "2", ""}),
                                     stormLine({"S1", "G2", "0.", "4.", "RT", "2", ""})}));
}

TEST_F(StormEditorTest, PickingARowShowsItInWhiteBoxesAndMarksItGreen) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "3", "2.5"}),
                      stormLine({"S2", "G2", "1.", "6.", "RT2", "1", ""})});
    open();
    clickRow(1);
    EXPECT_EQ(window->currentRow(), 1);
    EXPECT_EQ(comboText(1), "S1");
    EXPECT_EQ(box(7)->text(), "2.5");
    EXPECT_EQ(colourOf(7), UntouchedColour);
    EXPECT_TRUE(element<QRadioButton>("Opt1", 3)->isChecked());
    clickRow(2);
    EXPECT_EQ(comboText(2), "G2");
    EXPECT_EQ(grid()->item(2, 4)->background().color(), QColor(0, 255, 0));
    EXPECT_EQ(grid()->item(1, 4)->background().color(), QColor(255, 255, 255));
    // A click below the rows in use takes the first free row; what is typed there is a new row.
    clickRow(5);
    EXPECT_EQ(window->currentRow(), 3);
    EXPECT_EQ(comboText(1), "");
    typeRow({"S3", "G3", "0", "1", "RT3", ""}, 2);
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "3", "2.5"}),
                                     stormLine({"S2", "G2", "1.", "6.", "RT2", "1", ""}),
                                     stormLine({"S3", "G3", "0.", "1.", "RT3", "2", ""})}));
}

TEST_F(StormEditorTest, ARightClickAsksAndOnlyYesDeletesTheRow) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""}),
                      stormLine({"S2", "G2", "0.", "5.", "RT1", "2", ""}),
                      stormLine({"S3", "G3", "0.", "5.", "RT1", "2", ""})});
    open();
    platform.answers.push_back(BoxAnswer::No);
    clickRow(2, Qt::RightButton);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{"Delete Storm Id - Rain Gage Id combination Row ?",
                                             "Storm Analysis", BoxButtons::YesNo, BoxIcon::Question}));
    EXPECT_EQ(gridRow(2)[0], "S2");
    platform.answers.push_back(BoxAnswer::Yes);
    clickRow(2, Qt::RightButton);
    // The current row keeps its number and now points at the row that moved up.
    EXPECT_EQ(window->currentRow(), 2);
    EXPECT_EQ(gridRow(2)[0], "S3");
    EXPECT_EQ(comboText(1), "S3");
    EXPECT_EQ(gridRow(3), Texts(7));
    enterField(4, "9");
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""}),
                                     stormLine({"S3", "G3", "0.", "9.", "RT1", "2", ""})}));
}

TEST_F(StormEditorTest, ARightClickBelowTheRowsInUseAsksNothing) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""})});
    open();
    clickRow(4, Qt::RightButton);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(StormEditorTest, AcceptWithAnEmptyGridLeavesAnEmptyWorkFileAndSetsDataChanged) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""})});
    open();
    platform.answers.push_back(BoxAnswer::Yes);
    clickRow(1, Qt::RightButton);
    acceptExpectingEmptySection();
}

TEST_F(StormEditorTest, NoChangesLeavesTheWorkFileAsItWas) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""})});
    const std::string before = workFileBytes();
    open();
    clickRow(1);
    enterField(4, "8");
    cancelExpectingNothingWritten(before);
}

TEST_F(StormEditorTest, TheGridGrowsAndScrollsToARowPickedFarDown) {
    std::vector<std::string> lines{Header};
    for (int i = 1; i <= 14; ++i)
        lines.push_back(stormLine({"S" + std::to_string(i), "G", "0.", "5.", "RT", "2", ""}));
    startWithSection(lines);
    open();
    EXPECT_EQ(grid()->rowCount(), 16);
    enterField(1, "S12");
    enterField(2, "G");
    EXPECT_EQ(window->currentRow(), 12);
    EXPECT_EQ(grid()->verticalScrollBar()->value(), 4);
}

TEST_F(StormEditorTest, CtrlCCopiesTheRowsAsASpreadsheetTakesThem) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "Type II", "2", ""}),
                      stormLine({"S2", "", "1.", "6.", "RT", "3", "2.5"})});
    open();
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "S1\tG1\t0.\t5.\tType II\t2\t\r\nS2\t\t1.\t6.\tRT\t3\t2.5\r\n");
}

TEST_F(StormEditorTest, CtrlVTakesPastedRowsInAsIfTyped) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""})});
    open();
    // The first row replaces the row of its pair, the second is new, the third lacks its rain
    // table and is refused like a typed one.
    QApplication::clipboard()->setText(
        "S1\tG1\t1\t7.5\tRT9\t3\t2\r\nS2\tG2\t0\t4\tType II\t1\t\r\nS3\tG3\t0\t4\r\n");
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(colourOf(5), RefusedColour);
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, stormLine({"S1", "G1", "1.", "7.5", "RT9", "3", "2."}),
                                     stormLine({"S2", "G2", "0.", "4.", "Type II", "1", ""})}));
}

TEST_F(StormEditorTest, APastedRainfallWiderThanItsColumnsIsRedSaysWhyAndIsNeverWrittenShifted) {
    const std::vector<std::string> lines{Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""})};
    startWithSection(lines);
    open();
    EXPECT_EQ(box(4)->maxLength(), 10);
    QApplication::clipboard()->setText("S2\tG2\t0\t4.12345678901\tType II\t1\t\r\n");
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    const std::string note =
        "The value 4.12345678901 is 13 characters long, but its field in the record holds only 10; "
        "nothing is written until it is shortened.";
    EXPECT_EQ(helpBox()->toPlainText().toStdString(), note);
    // Accept writes nothing while the rainfall does not fit: the box is red and says why.
    accept();
    EXPECT_FALSE(windowClosed());
    EXPECT_EQ(box(4)->text(), "4.12345678901");
    EXPECT_EQ(colourOf(4), RefusedColour);
    EXPECT_TRUE(helpBox()->isVisible());
    EXPECT_EQ(helpBox()->toPlainText().toStdString(), note);
    EXPECT_EQ(workFileBytes(), crlf(lines));
    EXPECT_FALSE(session().DataChanged);
    // Typed anew, the rainfall takes its ten columns and the row is written.
    enterField(4, "4.1234567890123");
    EXPECT_EQ(box(4)->text(), "4.12345678");
    accept();
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(),
              crlf({Header, lines[1], stormLine({"S2", "G2", "0.", "4.12345678", "Type II", "1", ""})}));
}

TEST_F(StormEditorTest, CopiedRowsPastedIntoAnEmptyWindowComeOutTheSame) {
    const std::vector<std::string> lines{Header, stormLine({"S1", "G1", "0.", "5.", "Type II", "2", ""}),
                                         stormLine({"S2", "", "1.", "6.", "RT", "3", "2.5"})};
    startWithSection(lines);
    open();
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_C, Qt::ControlModifier);
    cancel();
    ASSERT_TRUE(windowClosed());
    writeWorkFile({});
    open();
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    accept();
    EXPECT_EQ(workFileBytes(), crlf(lines));
}

TEST_F(StormEditorTest, EnterInTheGridShowsTheRowOfItsCurrentCellAndDeleteDeletesIt) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""}),
                      stormLine({"S2", "G2", "0.", "5.", "RT1", "2", ""})});
    open();
    grid()->setFocus();
    grid()->setCurrentCell(2, 0);
    QTest::keyClick(grid(), Qt::Key_Return);
    EXPECT_EQ(comboText(1), "S2");
    platform.answers.push_back(BoxAnswer::Yes);
    QTest::keyClick(grid(), Qt::Key_Delete);
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""})}));
}

TEST_F(StormEditorTest, ANewStormOverAShownRowStartsANewRowAndLeavesTheOldOne) {
    startWithSection({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""})});
    open();
    clickRow(1);
    enterField(1, "S2");
    EXPECT_EQ(window->currentRow(), 2);
    accept();
    EXPECT_EQ(workFileBytes(), crlf({Header, stormLine({"S1", "G1", "0.", "5.", "RT1", "2", ""}),
                                     stormLine({"S2", "G1", "0.", "5.", "RT1", "2", ""})}));
}

// The storm section through the whole session: a file opened with the File menu, the window
// opened from the main list, accepted, and the file saved again.
TEST_F(StormEditorTest, TheExampleWatershedComesThroughTheWindowUnchanged) {
    const std::string path = folder.file("watershed.inp");
    writeBytes(path, bytesOf(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp"));
    const std::string original = bytesOf(path);
    platform.openPicks.push_back(path);
    clickMenuItem("mnuFileItem(2)");
    ASSERT_EQ(session().CurrentFile, path);
    const std::string before = workFileBytes();
    open();
    EXPECT_EQ(window->gridRows().size(), 4u);
    accept();
    EXPECT_EQ(workFileBytes(), before);
    clickMenuItem("mnuFileItem(14)");
    EXPECT_EQ(bytesOf(path), original);
}

TEST_F(StormEditorTest, AnEditedStormIsSavedInTheInputFileColumnForColumn) {
    const std::string path = folder.file("watershed.inp");
    writeBytes(path, bytesOf(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp"));
    platform.openPicks.push_back(path);
    clickMenuItem("mnuFileItem(2)");
    open();
    clickRow(2);
    enterField(4, "6.5");
    clickRow(5);
    typeRow({"2-YR", "NORTHGAGE", "1", "3", "Type II", "2.9"}, 1);
    accept();
    clickMenuItem("mnuFileItem(14)");
    const std::string section =
        crlf({Header, stormLine({"100-YR", "NORTHGAGE", "0.", "6.4", "WB-24HR", "2", "2.9"}),
              stormLine({"100-YR", "SOUTHGAGE", "0.", "6.5", "WB-24HR", "2", "2.8"}),
              stormLine({"10-YR", "NORTHGAGE", "0.", "4.3", "Type II", "2", "2.9"}),
              stormLine({"10-YR", "SOUTHGAGE", "0.", "4.1", "Type II", "2", "2.8"}),
              stormLine({"2-YR", "NORTHGAGE", "1.", "3.", "Type II", "1", "2.9"}), ""});
    EXPECT_NE(bytesOf(path).find(section), std::string::npos) << bytesOf(path);
}

TEST_F(StormEditorTest, CtrlEnterWritesTheValueTypedInABoxAsAClickOnAcceptDoes) {
    open();
    typeRow({"100-YR", "NORTHGAGE", "0", "6.4", "Type II", "2.9"}, 3);
    // A new rainfall typed, and the window accepted from the keyboard while the box has the focus.
    typeInto(4, "7.1");
    QTest::keyClick(box(4), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(windowClosed());
    EXPECT_EQ(workFileBytes(),
              crlf({Header, stormLine({"100-YR", "NORTHGAGE", "0.", "7.1", "Type II", "3", "2.9"})}));
}

} // namespace
} // namespace brooklet::test
