// frmTc and frmLandUse as the user meets them: opened from frmSubArea's calculator buttons for
// the row selected there, typed into, picked from, and returned from, with work file 11 as they
// leave it.
#include "network_window_fixture.h"

#include <QPlainTextEdit>

#include "network/land_use_window.h"
#include "network/sub_area_editor.h"
#include "network/tc_calculator.h"
#include "options/identifier_record.h"

#include <QMenu>
#include <QTableWidget>

namespace brooklet::test {
namespace {

const std::string StormG1 = tens({"", "S1", "G1", "0.", "5.", "Type II", "2", "3.5"});

class CalculatorWindowsTest : public NetworkWindowTest<frmSubArea> {
protected:
    CalculatorWindowsTest() : NetworkWindowTest("frmSubArea", SubAreaSection) {}

    // frmSubArea on the reference section, a storm of gage G1 with 3.5 of 2-year rainfall, the
    // row Name picked, then the calculator of button Index opened.
    QWidget* openCalculator(int index, const QString& name, const Lines& section = sectionOf("SUB-AREA:")) {
        // The unit words, as frmFlume sets them when a session begins.
        SetInputUnitWords(session(), session().EnglishUnits);
        writeBytes(workFile(StormSection), crlf({"STORM ANALYSIS:", StormG1, ""}));
        startWithSection(section);
        open();
        enterList(1, name);
        click(element<QPushButton>("cmdSub", index));
        calculator = context->windows.loaded(index == 0 ? "frmLandUse" : "frmTc");
        EXPECT_NE(calculator, nullptr);
        if (calculator) {
            calculator->activateWindow();
            QApplication::setActiveWindow(calculator);
        }
        return calculator;
    }
    template <typename T> T* in(const char* array, int index) {
        return control<T>(calculator, indexedName(array, index));
    }
    QLineEdit* tcBox(int index) { return in<QLineEdit>("txtInp", index); }
    QComboBox* tcList(int index) { return in<QComboBox>("cmbInp", index); }
    QPushButton* tcButton(const char* name) { return control<QPushButton>(calculator, name); }
    void typeIn(int index, const QString& text, Qt::Key key = Qt::Key_Tab) {
        tcBox(index)->setFocus(Qt::MouseFocusReason);
        tcBox(index)->clear();
        QTest::keyClicks(tcBox(index), text);
        QTest::keyClick(tcBox(index), key);
    }
    void pickIn(int index, const QString& text) {
        tcList(index)->setFocus(Qt::MouseFocusReason);
        tcList(index)->setCurrentIndex(tcList(index)->findText(text));
        QTest::keyClick(tcList(index), Qt::Key_Tab);
    }
    QStringList items(QComboBox* list) {
        QStringList texts;
        for (int i = 0; i < list->count(); ++i)
            texts << list->itemText(i);
        return texts;
    }
    bool calculatorClosed(const char* name) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return context->windows.loaded(name) == nullptr;
    }
    QTableWidget* grid() { return control<QTableWidget>(calculator, "MSFlexGrid1"); }
    int gridRowOf(const QString& name) {
        for (int row = 1; row < grid()->rowCount(); ++row)
            if (grid()->item(row, 0) && grid()->item(row, 0)->text() == name)
                return row;
        return -1;
    }
    void pressCell(int row, int col, Qt::MouseButton button = Qt::LeftButton) {
        const QModelIndex index = grid()->model()->index(row, col);
        grid()->scrollTo(index);
        QCoreApplication::processEvents();
        const QRect cell = grid()->visualRect(index);
        QTest::mouseClick(grid()->viewport(), button, {}, cell.center());
    }
    QString sum(int index) { return in<QLineEdit>("txtlbl", index)->text(); }

    QWidget* calculator = nullptr;
};

// The reference section with the records the calculators write.
Lines referenceWith(const std::string& sheet) {
    Lines section = sectionOf("SUB-AREA:");
    section[3] = sheet;
    return section;
}

// ---- frmSubArea -------------------------------------------------------------------------------

TEST_F(CalculatorWindowsTest, TheButtonsOpenTheCalculatorsOnTheRowSelected) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    EXPECT_EQ(context->watershed.CalculatorSubArea, 2);
    EXPECT_EQ(tcList(1)->currentText(), "A2");
    EXPECT_EQ(calculator->pos(), QPoint(0, 0));
    click(tcButton("cmdFinished"));
    EXPECT_TRUE(calculatorClosed("frmTc"));
    click(element<QPushButton>("cmdSub", 0));
    EXPECT_NE(context->windows.loaded("frmLandUse"), nullptr);
    EXPECT_EQ(context->windows.loaded("frmSubArea"), window);
}

// ---- frmTc ------------------------------------------------------------------------------------

TEST_F(CalculatorWindowsTest, TcShowsItsControlsAndTheRowsTravelTimes) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    EXPECT_EQ(calculator->windowTitle(), "Time of Concentratio   Current File - > Untitled <");
    EXPECT_EQ(session().HelpCode, "AR");
    EXPECT_EQ(control<QLabel>(calculator, "lblHeader")->text(), "Time of Concentration:");
    EXPECT_EQ(in<QLabel>("lblInUnit", 12)->text(), "ft");
    EXPECT_EQ(in<QLabel>("lblInUnit", 14)->text(), "len/len");
    EXPECT_EQ(in<QLabel>("lblInUnit", 22)->text(), "sq ft");
    EXPECT_EQ(in<QLabel>("lblInUnit", 24)->text(), "ft/sec");
    EXPECT_EQ(in<QLabel>("lblInUnit", 26)->text(), "hr");
    EXPECT_EQ(tcButton("cmdDelCur")->text(), "Delete Tc Details");
    EXPECT_EQ(tcButton("cmdFinished")->text(), "Return to Sub-Area");
    EXPECT_EQ(items(tcList(18)), (QStringList{" ", "Paved", "Unpaved"}));
    EXPECT_EQ(tcList(15)->count(), 11);
    // A1 has a typed time of concentration: it is no choice here.
    EXPECT_EQ(items(tcList(1)), (QStringList{"", "A2", "a2"}));
    EXPECT_EQ(tcBox(0)->text(), "3.5");
    EXPECT_TRUE(tcBox(0)->isVisible());
    EXPECT_FALSE(in<QLabel>("lblInput", 2)->isVisible());
    EXPECT_EQ(tcList(15)->currentText(), "F Grass (Dense)");
    EXPECT_EQ(tcList(18)->currentText(), "Unpaved");
    EXPECT_EQ(tcBox(26)->text(), "0.227");
    EXPECT_EQ(tcBox(25)->text(), "2.795");
    EXPECT_EQ(tcBox(27)->text(), "0.089");
    EXPECT_EQ(tcBox(24)->text(), "2.793");
    EXPECT_EQ(tcBox(28)->text(), "0.119");
    EXPECT_EQ(tcBox(29)->text(), "0.435");
}

TEST_F(CalculatorWindowsTest, ASheetLengthOf100IsAcceptedInEnglishUnitsAnd1001Refused) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    typeIn(12, "100.1");
    EXPECT_EQ(background(tcBox(12)), RefusedColour);
    EXPECT_EQ(calculator->focusWidget(), tcBox(12));
    typeIn(12, "100");
    EXPECT_EQ(background(tcBox(12)), AcceptedColour);
    EXPECT_EQ(calculator->focusWidget(), tcBox(13));
}

TEST_F(CalculatorWindowsTest, InAMetricRun305IsAcceptedAnd31RefusedWithTheEnglishCoefficients) {
    SetInputUnitWords(session(), false);
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    EXPECT_EQ(in<QLabel>("lblInUnit", 12)->text(), "m");
    typeIn(12, "31");
    EXPECT_EQ(background(tcBox(12)), RefusedColour);
    typeIn(12, "30.5");
    EXPECT_EQ(background(tcBox(12)), AcceptedColour);
    // (0.24 x 30.5)^0.8 x 0.007 / (3.5^0.5 x 0.02^0.4) = 0.0875 -> 0.088 h.
    EXPECT_EQ(tcBox(26)->text(), "0.088");
}

TEST_F(CalculatorWindowsTest, ASurfaceAndATypedManningNExcludeEachOther) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    EXPECT_EQ(tcBox(14)->text(), "0.24");
    pickIn(15, "C Cultivated < 20% residue");
    EXPECT_EQ(tcBox(14)->text(), "");
    EXPECT_EQ(tcBox(15)->text(), "C");
    typeIn(14, ".3");
    EXPECT_EQ(tcBox(15)->text(), "");
    EXPECT_EQ(tcList(15)->currentIndex(), 0);
    // The typed n gives the sheet flow time: (0.3 x 100)^0.8 x 0.007 / 0.391242 = 0.27186 -> 0.272.
    EXPECT_EQ(tcBox(26)->text(), "0.272");
}

TEST_F(CalculatorWindowsTest, SheetFlowWithoutRainfallShowsTheHintAndNoTravelTime) {
    ASSERT_NE(openCalculator(1, "a2"), nullptr);
    EXPECT_FALSE(tcBox(0)->isVisible());
    EXPECT_FALSE(in<QLabel>("lblInput", 0)->isVisible());
    EXPECT_TRUE(in<QLabel>("lblInput", 2)->isVisible());
    EXPECT_EQ(in<QLabel>("lblInput", 2)->text(),
              "2-Yr Rainfall for Sheet Flow is entered w/ Storm Analysis data");
    typeIn(12, "80");
    typeIn(13, "0.02");
    typeIn(14, "0.15");
    EXPECT_EQ(tcBox(26)->text(), "");
}

TEST_F(CalculatorWindowsTest, AChannelOfLengthAndVelocityOnlyIsTimedAndWrittenShort) {
    ASSERT_NE(openCalculator(1, "a2"), nullptr);
    EXPECT_EQ(tcBox(24)->text(), "3.2");
    // 3400 / 3.2 / 3600 = 0.295139 -> 0.295 h.
    EXPECT_EQ(tcBox(28)->text(), "0.295");
    typeIn(19, "1800");
    EXPECT_EQ(tcBox(28)->text(), "0.156");
    EXPECT_EQ(tcBox(24)->text(), "3.2");
    click(tcButton("cmdFinished"));
    Lines section = sectionOf("SUB-AREA:");
    section[9] = tens({"", "", "CHANNEL", "1800.", "3.2"});
    EXPECT_EQ(workFileBytes(), crlf(section));
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(CalculatorWindowsTest, ACalculatedVelocityWiderThanItsColumnsIsRedSaysWhyAndIsNotWritten) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    const std::string before = workFileBytes();
    typeIn(21, "0.0005");
    typeIn(23, "0.0001");
    typeIn(22, "99999999999");
    // The box took only the ten characters of its field; the velocity is shown whole.
    EXPECT_EQ(tcBox(22)->text(), "9999999999");
    const QString velocity = tcBox(24)->text();
    EXPECT_GT(velocity.size(), 10);
    EXPECT_EQ(background(tcBox(24)), RefusedColour);
    const auto* help = control<QPlainTextEdit>(calculator, "txtHelp");
    EXPECT_TRUE(help->isVisible());
    const std::string note =
        "The value " + velocity.toStdString() + " is " + std::to_string(velocity.size()) +
        " characters long, but its field in the record holds only 10; nothing is written "
        "until it is shortened.";
    EXPECT_EQ(help->toPlainText().toStdString(), note);
    // Return writes nothing while the velocity does not fit, and the window stays.
    click(tcButton("cmdFinished"));
    EXPECT_FALSE(calculatorClosed("frmTc"));
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_EQ(help->toPlainText().toStdString(), note);
    // With the wetted perimeter emptied the typed velocity stands again and fits.
    typeIn(23, "");
    typeIn(24, "3.5");
    click(tcButton("cmdFinished"));
    EXPECT_TRUE(calculatorClosed("frmTc"));
    for (const std::string& line : splitLines(workFileBytes()))
        EXPECT_LE(line.size(), 80u) << line;
}

TEST_F(CalculatorWindowsTest, TabFromTheSubAreaListGoesToTheSheetLength) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    tcList(1)->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(tcList(1), Qt::Key_Tab);
    EXPECT_EQ(calculator->focusWidget(), tcBox(12));
    // The surface stands for the Manning n: from the slope on to the surface, then shallow flow.
    pickIn(15, "F Grass (Dense)");
    typeIn(13, "0.03");
    EXPECT_EQ(calculator->focusWidget(), tcList(15));
    QTest::keyClick(tcList(15), Qt::Key_Tab);
    EXPECT_EQ(calculator->focusWidget(), tcBox(16));
}

TEST_F(CalculatorWindowsTest, TypingIsLostOnAnotherPickAndKeptForTheRowShowingAtReturn) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    typeIn(12, "50");
    pickIn(1, "a2");
    EXPECT_EQ(tcBox(12)->text(), "");
    typeIn(19, "1700");
    pickIn(1, "A2");
    EXPECT_EQ(tcBox(12)->text(), "100.");
    typeIn(12, "60");
    click(tcButton("cmdFinished"));
    EXPECT_EQ(workFileBytes(), crlf(referenceWith(tens({"", "", "SHEET", "60.", "0.02", "0.24", "F"}))));
}

TEST_F(CalculatorWindowsTest, NoChangesInTheSubAreaWindowKeepsWhatTheCalculatorWrote) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    typeIn(12, "75");
    click(tcButton("cmdFinished"));
    EXPECT_TRUE(calculatorClosed("frmTc"));
    const std::string written = crlf(referenceWith(tens({"", "", "SHEET", "75.", "0.02", "0.24", "F"})));
    EXPECT_EQ(workFileBytes(), written);
    cancel();
    EXPECT_EQ(workFileBytes(), written);
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(CalculatorWindowsTest, DeleteTcDetailsAsksThenEmptiesTheSegments) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    answer(BoxAnswer::No);
    click(tcButton("cmdDelCur"));
    EXPECT_EQ(tcBox(12)->text(), "100.");
    answer(BoxAnswer::Yes);
    click(tcButton("cmdDelCur"));
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[1], (BoxRequest{"Delete Current Sub-Area Tc Data ?", "Time of Concentration",
                                             BoxButtons::YesNo, BoxIcon::Question}));
    EXPECT_EQ(tcBox(29)->text(), "");
    EXPECT_EQ(tcList(1)->currentText(), "");
    click(tcButton("cmdFinished"));
    Lines section = sectionOf("SUB-AREA:");
    section.erase(section.begin() + 3, section.begin() + 6);
    EXPECT_EQ(workFileBytes(), crlf(section));
}

TEST_F(CalculatorWindowsTest, TheTotalIsTheDoubleSumShownInEveryDigitItHas) {
    ASSERT_NE(openCalculator(1, "T1"), nullptr);
    typeIn(16, "1464");
    typeIn(17, "0.01");
    pickIn(18, "Paved");
    typeIn(19, "360");
    typeIn(24, "1");
    // 1464 / 2.033 / 3600 = 0.20003 -> 0.2 h; 360 / 1 / 3600 = 0.1 h.
    EXPECT_EQ(tcBox(27)->text(), "0.2");
    EXPECT_EQ(tcBox(28)->text(), "0.1");
    // The double sum 0.2 + 0.1 turned straight to text: not rounded, so not 0.3.
    EXPECT_EQ(tcBox(29)->text(), "0.30000000000000004");
}

// ---- Bound to the sub-area window they were opened from ---------------------------------------

const std::string KeepChangesQuestion = "Keep the changes made in this window? Yes accepts them, No discards "
                                        "them, Cancel returns to the window.";

TEST_F(CalculatorWindowsTest, ACalculatorClosesWithTheSubAreaWindowAndNoDiscardsItsTyping) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    const std::string before = workFileBytes();
    typeIn(12, "75");
    answer(BoxAnswer::No);
    cancel();
    EXPECT_TRUE(calculatorClosed("frmTc"));
    EXPECT_TRUE(windowClosed());
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{KeepChangesQuestion, "Time of Concentration",
                                             BoxButtons::YesNoCancel, BoxIcon::Question}));
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(CalculatorWindowsTest, YesReturnsTheCalculatorsTypingBeforeTheSubAreaWindowCloses) {
    ASSERT_NE(openCalculator(0, "A2"), nullptr);
    pressCell(gridRowOf("Meadow"), 3);
    QTest::keyClick(grid(), Qt::Key_Backspace);
    QTest::keyClicks(grid(), "7");
    answer(BoxAnswer::Yes);
    cancel();
    EXPECT_TRUE(calculatorClosed("frmLandUse"));
    EXPECT_TRUE(windowClosed());
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, "Sub-Area Land Use");
    Lines expected = sectionOf("SUB-AREA:");
    expected[6] = landArea("Meadow", "B", "0.7");
    EXPECT_EQ(workFileBytes(), crlf(expected));
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(CalculatorWindowsTest, CancelToTheCalculatorsQuestionKeepsBothWindowsOpen) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    const std::string before = workFileBytes();
    typeIn(12, "75");
    answer(BoxAnswer::Cancel);
    accept();
    EXPECT_FALSE(calculatorClosed("frmTc"));
    EXPECT_FALSE(windowClosed());
    EXPECT_EQ(tcBox(12)->text(), "75");
    EXPECT_EQ(workFileBytes(), before);
}

TEST_F(CalculatorWindowsTest, TcReturnsToItsSubAreaAfterARowAboveWasDeleted) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    typeIn(12, "75");
    // In the sub-area window A1, the row above A2, is deleted.
    enterList(1, "A1");
    answer(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    click(tcButton("cmdFinished"));
    EXPECT_TRUE(calculatorClosed("frmTc"));
    Lines expected = referenceWith(tens({"", "", "SHEET", "75.", "0.02", "0.24", "F"}));
    expected.erase(expected.begin() + 1);
    EXPECT_EQ(workFileBytes(), crlf(expected));
}

TEST_F(CalculatorWindowsTest, LandUseReturnsToItsSubAreasAfterARowAboveWasDeleted) {
    ASSERT_NE(openCalculator(0, "A2"), nullptr);
    pressCell(gridRowOf("Meadow"), 3);
    QTest::keyClick(grid(), Qt::Key_Backspace);
    QTest::keyClicks(grid(), "7");
    enterList(1, "A1");
    answer(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    click(tcButton("cmdFinished"));
    EXPECT_TRUE(calculatorClosed("frmLandUse"));
    Lines expected = sectionOf("SUB-AREA:");
    expected[6] = landArea("Meadow", "B", "0.7");
    expected.erase(expected.begin() + 1);
    EXPECT_EQ(workFileBytes(), crlf(expected));
}

TEST_F(CalculatorWindowsTest, ASubAreaDeletedWhileTheCalculatorShowsItIsToldAndTakesNothing) {
    ASSERT_NE(openCalculator(1, "A2"), nullptr);
    typeIn(12, "75");
    enterList(1, "A2");
    answer(BoxAnswer::Yes);
    click(button("cmdDelCur"));
    click(tcButton("cmdFinished"));
    EXPECT_TRUE(calculatorClosed("frmTc"));
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[1], (BoxRequest{"The sub-area A2 was deleted in the Sub-Area window after this "
                                             "window opened, so what was entered for it here is not written.",
                                             "Time of Concentration", BoxButtons::Ok, BoxIcon::Exclamation}));
    Lines expected = sectionOf("SUB-AREA:");
    expected.erase(expected.begin() + 2, expected.begin() + 8);
    EXPECT_EQ(workFileBytes(), crlf(expected));
}

TEST_F(CalculatorWindowsTest, ACalculatorOfTheBaseDataWritesItAfterAnAlternateIsChosen) {
    SetInputUnitWords(session(), session().EnglishUnits);
    startWithSection(sectionOf("SUB-AREA:"));
    open();
    enterList(1, "A2");
    // frmAlternate, opened from the section list, makes alternate ALT1 the current one.
    QListWidget* sections = sectionList();
    QTest::mouseClick(sections->viewport(), Qt::LeftButton, {},
                      sections->visualItemRect(sections->item(AlternateSection - 1)).center());
    QWidget* alternates = context->windows.loaded("frmAlternate");
    ASSERT_NE(alternates, nullptr);
    auto* alternateName = control<QComboBox>(alternates, "cmbInp(1)");
    alternateName->setFocus(Qt::MouseFocusReason);
    QTest::keyClicks(alternateName, "ALT1");
    QTest::keyClick(alternateName, Qt::Key_Tab);
    ASSERT_EQ(context->CurrentAlternate, 1);
    click(element<QPushButton>("cmdSub", 1));
    calculator = context->windows.loaded("frmTc");
    ASSERT_NE(calculator, nullptr);
    EXPECT_FALSE(in<QLabel>("lblStatic", 1)->isVisible());
    typeIn(12, "75");
    click(tcButton("cmdFinished"));
    EXPECT_EQ(workFileBytes(), crlf(referenceWith(tens({"", "", "SHEET", "75.", "0.02", "0.24", "F"}))));
    EXPECT_EQ(context->watershed.AlternateSubAreaCount[1], 0);
}

// ---- frmLandUse -------------------------------------------------------------------------------

TEST_F(CalculatorWindowsTest, LandUseShowsItsControlsAndTheRowsCellsWithTheSums) {
    ASSERT_NE(openCalculator(0, "A2"), nullptr);
    EXPECT_EQ(calculator->windowTitle(), "Sub-Area Land Use   Current File - > Untitled <");
    EXPECT_EQ(control<QLabel>(calculator, "lblHeader")->text(), "Land Use Areas:");
    EXPECT_EQ(tcButton("cmdFinished")->text(), "Return to Sub-Area");
    EXPECT_EQ(tcButton("cmdDelCur")->text(), "Delete Land Use Details");
    EXPECT_FALSE(tcButton("CmdPopup")->isVisible());
    EXPECT_EQ(in<QLabel>("lblInUnit", 27)->text(), "sq mi");
    // A1 and a2 have a typed area: they are no choice here.
    EXPECT_EQ(items(tcList(1)), (QStringList{"A2"}));
    EXPECT_EQ(grid()->item(gridRowOf("Meadow"), 3)->text(), "0.5");
    EXPECT_EQ(grid()->item(gridRowOf("Woods (Good)"), 5)->text(), "0.25");
    // 0.5 x 58 + 0.25 x 70 = 46.5 over 0.75 = 62.
    EXPECT_EQ(sum(27), "0.75");
    EXPECT_EQ(sum(28), "62");
}

TEST_F(CalculatorWindowsTest, ALocalLandUseNameWiderThanItsColumnsIsNeverWrittenShifted) {
    const std::string name = "Meadow on the north slope by the creek";
    writeBytes(session().LocalLandUseFile, "\"" + name + "\",\"70\",\"80\",\"85\",\"90\"\r\n\"\"\r\n");
    ASSERT_NE(openCalculator(0, "A2"), nullptr);
    const std::string before = workFileBytes();
    const int row = gridRowOf(QString::fromStdString(name));
    ASSERT_GT(row, 0);
    pressCell(row, 1);
    QTest::keyClicks(grid(), "2");
    click(tcButton("cmdFinished"));
    // The name would push the soil group and the area out of their columns: nothing is written.
    EXPECT_FALSE(calculatorClosed("frmLandUse"));
    EXPECT_EQ(workFileBytes(), before);
    const auto* help = control<QPlainTextEdit>(calculator, "txtHelp");
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(help->toPlainText().toStdString(),
              "The value " + name +
                  " is 38 characters long, but its field in the record holds only 35; nothing is "
                  "written until it is shortened.");
}

TEST_F(CalculatorWindowsTest, TheSoilDisplayButtonShowsWhenTheSoilFileOpens) {
    folder.copyTestData("Local_Soil_HSG.txt", "Local_Soil_HSG.txt");
    ASSERT_NE(openCalculator(0, "A2"), nullptr);
    ASSERT_TRUE(tcButton("CmdPopup")->isVisible());
    click(tcButton("CmdPopup"));
    EXPECT_NE(context->windows.loaded("frmDisplaySoil"), nullptr);
}

TEST_F(CalculatorWindowsTest, TypedCellsOf15And05WithCurveNumbers80And60Show2And75) {
    ASSERT_NE(openCalculator(0, "NEW"), nullptr);
    const int row80 = gridRowOf("Residential (25% imp)");
    const int row60 = gridRowOf("Small Grain (SR + CR - Good)");
    pressCell(row80, 5);
    QTest::keyClicks(grid(), "1.5");
    pressCell(row60, 1);
    QTest::keyClicks(grid(), "0.5.");
    EXPECT_EQ(grid()->item(row60, 1)->text(), "0.5");
    EXPECT_EQ(sum(27), "2");
    EXPECT_EQ(sum(28), "75");
    // Right click, "Delete Value": the sums come back.
    pressCell(row60, 1, Qt::RightButton);
    auto* menu = control<QMenu>(calculator, "mnupopup");
    ASSERT_TRUE(menu->isVisible());
    menu->findChild<QAction*>(indexedName("mnuDelInsItem", 2))->trigger();
    EXPECT_EQ(sum(27), "1.5");
    EXPECT_EQ(sum(28), "80");
    pressCell(row80, 5, Qt::RightButton);
    menu->findChild<QAction*>(indexedName("mnuDelInsItem", 2))->trigger();
    EXPECT_EQ(sum(27), "0");
    EXPECT_EQ(sum(28), "");
}

TEST_F(CalculatorWindowsTest, ARangeRowWithoutACurveNumberForGroupATakesNoCursorThere) {
    ASSERT_NE(openCalculator(0, "A2"), nullptr);
    const int range = gridRowOf("Range (Herbaceous - Poor)");
    pressCell(range, 3);
    EXPECT_EQ(grid()->currentColumn(), 3);
    pressCell(range, 1);
    EXPECT_EQ(grid()->currentRow(), range);
    EXPECT_EQ(grid()->currentColumn(), 3);
    QTest::keyClicks(grid(), "2");
    EXPECT_EQ(grid()->item(range, 3)->text(), "2");
    EXPECT_EQ(grid()->item(range, 1) ? grid()->item(range, 1)->text() : QString(), "");
}

TEST_F(CalculatorWindowsTest, ReturningWritesTheCellsAsLandAreaRecordsDroppingUnknownNames) {
    const Lines reference = sectionOf("SUB-AREA:");
    Lines section = reference;
    section.insert(section.begin() + 8, landArea("Swamp", "C", "3."));
    ASSERT_NE(openCalculator(0, "A2", section), nullptr);
    pressCell(gridRowOf("Meadow"), 3);
    QTest::keyClick(grid(), Qt::Key_Backspace);
    QTest::keyClicks(grid(), "7");
    QTest::keyClick(grid(), Qt::Key_Tab);
    QTest::keyClicks(grid(), "1");
    click(tcButton("cmdFinished"));
    EXPECT_TRUE(calculatorClosed("frmLandUse"));
    Lines expected = reference;
    expected[6] = landArea("Meadow", "B", "0.7");
    expected.insert(expected.begin() + 7, landArea("Meadow", "C", "1."));
    EXPECT_EQ(workFileBytes(), crlf(expected));
    EXPECT_TRUE(session().DataChanged);
}

TEST_F(CalculatorWindowsTest, PickingAnotherSubAreaStoresTheCellsOfTheOneLeft) {
    ASSERT_NE(openCalculator(0, "A2"), nullptr);
    pressCell(gridRowOf("Woods (Good)"), 5);
    QTest::keyClick(grid(), Qt::Key_Backspace);
    tcList(1)->setFocus(Qt::MouseFocusReason);
    tcList(1)->setEditText("a2");
    QTest::keyClick(tcList(1), Qt::Key_Tab);
    EXPECT_EQ(grid()->item(gridRowOf("Pasture (Fair)"), 1)->text(), "2.");
    EXPECT_EQ(grid()->item(gridRowOf("Woods (Good)"), 5)->text(), "");
    EXPECT_EQ(calculator->focusWidget(), grid());
    click(tcButton("cmdFinished"));
    Lines expected = sectionOf("SUB-AREA:");
    expected[7] = landArea("Woods (Good)", "C", "0.2");
    EXPECT_EQ(workFileBytes(), crlf(expected));
}

TEST_F(CalculatorWindowsTest, DeleteLandUseDetailsAsksThenClearsTheSubAreasRecords) {
    ASSERT_NE(openCalculator(0, "a2"), nullptr);
    answer(BoxAnswer::Yes);
    click(tcButton("cmdDelCur"));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{"Delete Current Sub-Area Land Use Data ?", "Sub-area Land Use",
                                             BoxButtons::YesNo, BoxIcon::Question}));
    EXPECT_EQ(sum(27), "");
    click(tcButton("cmdFinished"));
    Lines expected = sectionOf("SUB-AREA:");
    expected.erase(expected.begin() + 10);
    EXPECT_EQ(workFileBytes(), crlf(expected));
}

TEST_F(CalculatorWindowsTest, ASubAreaWithATypedAreaOrCurveNumberIsNoLandUseChoice) {
    ASSERT_NE(openCalculator(0, "a2"), nullptr);
    EXPECT_EQ(tcList(1)->findText("A1"), -1);
    tcList(1)->setFocus(Qt::MouseFocusReason);
    tcList(1)->setEditText("ZZ");
    QTest::keyClick(tcList(1), Qt::Key_Tab);
    EXPECT_EQ(background(tcList(1)), RefusedColour);
    EXPECT_EQ(calculator->focusWidget(), tcList(1));
}

// Cells typed for another sub-area stay in the window's store when the first one shows again:
// they are typing that a command closing the window asks about.
TEST_F(CalculatorWindowsTest, CellsOfAnotherSubAreaCountAsTypingWhenTheFirstShowsAgain) {
    ASSERT_NE(openCalculator(0, "A2"), nullptr);
    const auto* editor = dynamic_cast<SessionEditor*>(calculator);
    ASSERT_NE(editor, nullptr);
    EXPECT_FALSE(editor->holdsTyping());
    const auto pick = [this](const QString& name) {
        tcList(1)->setFocus(Qt::MouseFocusReason);
        tcList(1)->setEditText(name);
        QTest::keyClick(tcList(1), Qt::Key_Tab);
    };
    pick("a2");
    pressCell(gridRowOf("Residential (25% imp)"), 5);
    QTest::keyClicks(grid(), "1.5");
    pick("A2");
    EXPECT_EQ(grid()->item(gridRowOf("Residential (25% imp)"), 5)->text(), "");
    EXPECT_TRUE(editor->holdsTyping());
}

} // namespace
} // namespace brooklet::test
