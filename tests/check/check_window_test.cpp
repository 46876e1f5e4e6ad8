// Check Watershed in the program: the Tools menu and F7, frmCheck and its rows opening the
// editors at their entries, the check before Run and Save As, and "brooklet --check FILE".
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include <filesystem>

#include "app/check_command.h"
#include "check/check_window.h"
#include "session/text_file.h"
#include "support/ui_fixture.h"

#include "editing/grid_editor.h"
#include "tables/storm_editor.h"

namespace fs = std::filesystem;

namespace brooklet::test {
namespace {

// A record of ten-column fields from column 1.
std::string tens(std::initializer_list<std::string> fields) {
    std::string record;
    for (const std::string& field : fields)
        record += field + std::string(field.size() < 10 ? 10 - field.size() : 0, ' ');
    return record;
}

// A watershed with nothing wrong; lines 4 and 5 are its sub-areas, 8 and 9 its reaches.
std::vector<std::string> cleanWatershed() {
    return {"Brooklet: Version 1.0",
            "CHECKED WATERSHED",
            "",
            "SUB-AREA:",
            tens({"", "A1", "R1", "G1", "1.0", "70.", "0.5"}),
            tens({"", "A2", "R2", "G1", "2.0", "75.", "0.6"}),
            "",
            "STREAM REACH:",
            tens({"", "R1", "R2", "XS1", "", "1000.", "900."}),
            tens({"", "R2", "OUTLET", "", "DAM"}),
            "",
            "STORM ANALYSIS:",
            tens({"", "S1", "G1", "0.", "5.", "MINE", "2", "3."}),
            "",
            "STREAM CROSS SECTION:",
            tens({"", "XS1", "10.", "", "9.", "1.", "100."}),
            tens({"", "", "8.", "0.", "0.", "0.", "0.001"}),
            tens({"", "", "9.", "10.", "5.", "10.", "0.001"}),
            "",
            "STRUCTURE RATING:",
            tens({"", "DAM", "100."}),
            tens({"", "", "100.", "0.", "0."}),
            tens({"", "", "101.", "10.", "5."}),
            "",
            "RAINFALL DISTRIBUTION:",
            tens({"", "MINE", "", "0.5"}),
            tens({"", "", "0.", "0.4", "1."}),
            "",
            "INPUT HYDROGRAPH:",
            tens({"", "Q1", "R1", "S1", "0.", "0.5", "1.", "0."}),
            tens({"", "", "0.", "4.", "0."}),
            "",
            "ALTERNATE ANALYSIS:",
            "ALT1      Bigger A1",
            tens({"", "AREAS"}),
            tens({"", "A1", "R1", "G1", "1.5", "70.", "0.5"}),
            ""};
}

// A2 drains into a reach that does not exist: one error, on line 6.
std::vector<std::string> watershedWithAnError() {
    std::vector<std::string> lines = cleanWatershed();
    lines[5] = tens({"", "A2", "R9", "G1", "2.0", "75.", "0.6"});
    return lines;
}

// The rain table MINE is used by no storm: one warning.
std::vector<std::string> watershedWithAWarning() {
    std::vector<std::string> lines = cleanWatershed();
    lines[12] = tens({"", "S1", "G1", "0.", "5.", "Type II", "2", "3."});
    return lines;
}

class CheckWindowTest : public UiTest {
protected:
    CheckWindowTest() {
        startMain();
        context->CheckBeforeRunAndSaveAs = true;
    }
    // Opens a file as File, "Open Existing Brooklet File" does, and closes frmFlume again.
    void openFile(const std::string& path) {
        platform.openPicks.push_back(path);
        clickMenuItem("mnuFileItem(2)");
        context->windows.unload("frmFlume");
        main->Form_Activate();
    }
    void installModel() {
        fs::copy_file(BROOKLET_STAND_IN_MODEL, folder.file("flume.exe"),
                      fs::copy_options::overwrite_existing);
        fs::permissions(folder.file("flume.exe"), fs::perms::owner_all);
        writeBytes(folder.file("stand_in_orders.txt"), crlf({"lines out 3"}));
    }
    frmCheck* checkWindow() { return context->windows.loadedAs<frmCheck>("frmCheck"); }
    QTreeWidget* findingsList() { return control<QTreeWidget>(checkWindow(), "lstFindings"); }
    QStringList row(int index) {
        QStringList texts;
        QTreeWidgetItem* item = findingsList()->topLevelItem(index);
        for (int column = 0; column < item->columnCount(); ++column)
            texts << item->text(column);
        return texts;
    }
    void pressF7() {
        main->activateWindow();
        QApplication::setActiveWindow(main);
        QTest::keyClick(main, Qt::Key_F7);
    }
    // The bytes of every work file, to see that a check changes none.
    std::vector<std::string> workFileBytes() {
        std::vector<std::string> bytes;
        for (int number = 1; number <= WorkFileCount; ++number)
            bytes.push_back(bytesOf(workFile(number)));
        return bytes;
    }
    int checkBoxes() const {
        int count = 0;
        for (const BoxRequest& box : platform.boxes)
            count += box.title == "Check Watershed" ? 1 : 0;
        return count;
    }
    QWidget* focusIn(const QString& window) { return context->windows.loaded(window)->focusWidget(); }
    // Opens the editor of a finding of the given section, entry and box, as frmCheck's row does.
    void openFindingOf(int section, const std::string& entry, int box) {
        Finding finding;
        finding.section = section;
        finding.entry = entry;
        finding.box = box;
        finding.message = "Test";
        showCheckWindow(*context, {finding});
        checkWindow()->openFinding(0);
    }
};

TEST_F(CheckWindowTest, ToolsStandsBetweenViewAndRunAndShowsOnceAFileIsOpen) {
    auto* tools = main->findChild<QMenu*>("mnuTools");
    ASSERT_NE(tools, nullptr);
    EXPECT_EQ(tools->title(), "Tools");
    auto* item = control<QAction>(main, "mnuCheckWatershed");
    EXPECT_EQ(item->text(), "Check Watershed");
    EXPECT_EQ(item->shortcut(), QKeySequence(Qt::Key_F7));
    const QList<QAction*> bar = main->menuBar()->actions();
    const int view = bar.indexOf(main->findChild<QMenu*>("mnuView")->menuAction());
    const int run = bar.indexOf(control<QAction>(main, "mnuRun"));
    EXPECT_LT(view, bar.indexOf(tools->menuAction()));
    EXPECT_LT(bar.indexOf(tools->menuAction()), run);
    // Just started: no file, no Tools.
    EXPECT_FALSE(tools->menuAction()->isVisible());
    clickMenuItem("mnuFileItem(1)");
    EXPECT_TRUE(tools->menuAction()->isVisible());
    EXPECT_TRUE(item->isEnabled());
}

TEST_F(CheckWindowTest, F7ListsTheFindingsOfTheWorkFilesAndChangesNoWorkFile) {
    openFile(inputFile("shed.inp", watershedWithAnError()));
    // Unsaved changes hide Run; the check stays at hand.
    session().DataChanged = true;
    main->Form_Activate();
    EXPECT_FALSE(control<QAction>(main, "mnuRun")->isVisible());
    const std::vector<std::string> before = workFileBytes();
    pressF7();
    ASSERT_NE(checkWindow(), nullptr);
    EXPECT_TRUE(checkWindow()->isVisible());
    EXPECT_EQ(checkWindow()->windowTitle(), "Check Watershed");
    ASSERT_EQ(findingsList()->topLevelItemCount(), 1);
    EXPECT_EQ(row(0),
              QStringList({"error", "Sub-Area", "A2", "Sub-Area Reach Identifier",
                           "Sub-area A2 drains into R9, which is no stream reach, sub-area or OUTLET. "
                           "Choose an existing reach, or add reach R9 in Stream Reach."}));
    EXPECT_EQ(
        findingsList()->topLevelItem(0)->data(0, Qt::AccessibleTextRole).toString(),
        "error: Sub-Area, A2, Sub-Area Reach Identifier. Sub-area A2 drains into R9, which is no stream "
        "reach, sub-area or OUTLET. Choose an existing reach, or add reach R9 in Stream Reach.");
    EXPECT_EQ(control<QLabel>(checkWindow(), "lblSummary")->text(), "1 error");
    EXPECT_EQ(workFileBytes(), before);
    EXPECT_TRUE(session().WatershedChecked);
    EXPECT_EQ(checkBoxes(), 0);
}

TEST_F(CheckWindowTest, CheckAgainReadsTheWorkFilesAsTheyStandNow) {
    openFile(inputFile("shed.inp", watershedWithAnError()));
    clickMenuItem("mnuCheckWatershed");
    ASSERT_EQ(findingsList()->topLevelItemCount(), 1);
    std::vector<std::string> subAreas = {"SUB-AREA:", tens({"", "A1", "R1", "G1", "1.0", "70.", "0.5"}),
                                         tens({"", "A2", "R2", "G1", "2.0", "75.", "0.6"})};
    writeBytes(workFile(SubAreaSection), crlf(subAreas));
    QTest::mouseClick(control<QPushButton>(checkWindow(), "cmdCheckAgain"), Qt::LeftButton);
    EXPECT_EQ(findingsList()->topLevelItemCount(), 0);
    EXPECT_EQ(control<QLabel>(checkWindow(), "lblSummary")->text(),
              "No findings: the input is ready to run.");
}

TEST_F(CheckWindowTest, ADoubleClickOpensTheSubAreaEditorAtTheEntryWithTheFieldFocused) {
    openFile(inputFile("shed.inp", watershedWithAnError()));
    clickMenuItem("mnuCheckWatershed");
    QTreeWidget* list = findingsList();
    const QPoint where = list->visualItemRect(list->topLevelItem(0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, where);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, where);
    QWidget* editor = context->windows.loaded("frmSubArea");
    ASSERT_NE(editor, nullptr);
    EXPECT_TRUE(editor->isVisible());
    EXPECT_EQ(control<QComboBox>(editor, "cmbInp(1)")->currentText(), "A2");
    EXPECT_EQ(control<QLineEdit>(editor, "txtInp(4)")->text(), "2.0");
    EXPECT_EQ(focusIn("frmSubArea"), control<QComboBox>(editor, "cmbInp(2)"));
    EXPECT_EQ(control<QComboBox>(editor, "cmbInp(2)")->currentText(), "R9");
}

TEST_F(CheckWindowTest, EnterOnARowOpensTheReachEditorAtTheEntry) {
    std::vector<std::string> lines = cleanWatershed();
    lines[9] = tens({"", "R2", "OUTLET", "", "WEIR"});
    openFile(inputFile("shed.inp", lines));
    clickMenuItem("mnuCheckWatershed");
    QTreeWidget* list = findingsList();
    // The reach's error on line 10, then the warning that DAM is used by no reach.
    ASSERT_EQ(list->topLevelItemCount(), 2);
    EXPECT_EQ(row(1)[4],
              "Structure DAM is used by no stream reach. Name it as a reach's structure, or delete it.");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Up);
    EXPECT_EQ(list->currentItem(), list->topLevelItem(0));
    QTest::keyClick(list, Qt::Key_Return);
    QWidget* editor = context->windows.loaded("frmReaches");
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(control<QComboBox>(editor, "cmbInp(1)")->currentText(), "R2");
    EXPECT_EQ(focusIn("frmReaches"), control<QComboBox>(editor, "cmbInp(4)"));
    EXPECT_EQ(control<QComboBox>(editor, "cmbInp(4)")->currentText(), "WEIR");
}

TEST_F(CheckWindowTest, EachTabularEditorShowsTheEntryOfAFinding) {
    openFile(inputFile("shed.inp", cleanWatershed()));

    openFindingOf(StructureSection, "DAM", 2);
    QWidget* structures = context->windows.loaded("frmStruct");
    ASSERT_NE(structures, nullptr);
    EXPECT_EQ(control<QComboBox>(structures, "cmbInp(1)")->currentText(), "DAM");
    EXPECT_EQ(control<QLineEdit>(structures, "txtInp(2)")->text(), "100.");
    EXPECT_EQ(focusIn("frmStruct"), control<QLineEdit>(structures, "txtInp(2)"));

    openFindingOf(CrossSectionSection, "xs1", 3);
    QWidget* sections = context->windows.loaded("frmXsect");
    ASSERT_NE(sections, nullptr);
    EXPECT_EQ(control<QLineEdit>(sections, "txtInp(3)")->text(), "9.");
    EXPECT_EQ(focusIn("frmXsect"), control<QLineEdit>(sections, "txtInp(3)"));

    openFindingOf(RainfallDistributionSection, "MINE", 2);
    QWidget* rain = context->windows.loaded("frmRainDist");
    ASSERT_NE(rain, nullptr);
    EXPECT_EQ(control<QLineEdit>(rain, "txtInp(2)")->text(), "0.5");
    EXPECT_EQ(focusIn("frmRainDist"), control<QLineEdit>(rain, "txtInp(2)"));

    openFindingOf(InputHydrographSection, "Q1", 5);
    QWidget* hydrographs = context->windows.loaded("frmInpHyd");
    ASSERT_NE(hydrographs, nullptr);
    EXPECT_EQ(control<QLineEdit>(hydrographs, "txtInp(5)")->text(), "0.5");
    EXPECT_EQ(focusIn("frmInpHyd"), control<QLineEdit>(hydrographs, "txtInp(5)"));

    openFindingOf(AlternateSection, "ALT1", 2);
    QWidget* alternates = context->windows.loaded("frmAlternate");
    ASSERT_NE(alternates, nullptr);
    EXPECT_EQ(control<QLineEdit>(alternates, "txtInp(2)")->text(), "Bigger A1");
    EXPECT_EQ(focusIn("frmAlternate"), control<QLineEdit>(alternates, "txtInp(2)"));

    openFindingOf(StormSection, "S1|G1", 4);
    auto* storms = context->windows.loadedAs<frmStorm>("frmStorm");
    ASSERT_NE(storms, nullptr);
    EXPECT_EQ(storms->currentRow(), 1);
    EXPECT_EQ(control<QLineEdit>(storms, "txtInp(4)")->text(), "5.");
    EXPECT_EQ(focusIn("frmStorm"), control<QLineEdit>(storms, "txtInp(4)"));

    openFindingOf(IdentificationSection, "", 3);
    QWidget* identification = context->windows.loaded("frmFlume");
    ASSERT_NE(identification, nullptr);
    EXPECT_EQ(focusIn("frmFlume"), control<QLineEdit>(identification, "txtInp(3)"));
}

TEST_F(CheckWindowTest, AFindingOfAnEntryTheEditorHasNotMakesNoNewEntry) {
    openFile(inputFile("shed.inp", cleanWatershed()));
    openFindingOf(SubAreaSection, "ZZ", 2);
    QWidget* editor = context->windows.loaded("frmSubArea");
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(context->watershed.SubAreaCount, 2);
    EXPECT_EQ(control<QComboBox>(editor, "cmbInp(1)")->currentText(), "");
    openFindingOf(StructureSection, "NONE", 2);
    QWidget* structures = context->windows.loaded("frmStruct");
    EXPECT_EQ(control<QComboBox>(structures, "cmbInp(1)")->currentText(), "");
    const auto* tables = dynamic_cast<const TabularTablesHolder*>(structures);
    ASSERT_NE(tables, nullptr);
    EXPECT_EQ(tables->tabularTables().TableCount, 1);
}

TEST_F(CheckWindowTest, ASubAreaWindowWorkingOnAnAlternateShowsNoRowOfTheSection) {
    openFile(inputFile("shed.inp", cleanWatershed()));
    context->windows.ShowWindowAtOrigin("frmAlternate");
    context->CurrentAlternate = 1;
    QWidget* editor = context->windows.ShowWindowAtOrigin("frmSubArea");
    ASSERT_NE(editor, nullptr);
    openFindingOf(SubAreaSection, "A2", 4);
    EXPECT_EQ(context->windows.loaded("frmSubArea"), editor);
    EXPECT_EQ(control<QComboBox>(editor, "cmbInp(1)")->currentText(), "");
    EXPECT_EQ(context->watershed.SubAreaCount, 1); // the alternate's one sub-area
}

TEST_F(CheckWindowTest, RunWithErrorsAnsweredNoRunsNothingAndShowsTheFindings) {
    installModel();
    openFile(inputFile("shed.inp", watershedWithAnError()));
    ASSERT_TRUE(control<QAction>(main, "mnuRun")->isVisible());
    const std::vector<std::string> before = workFileBytes();
    platform.answers.push_back(BoxAnswer::No);
    clickMenuItem("mnuRun");
    EXPECT_TRUE(platform.programsRun.empty());
    EXPECT_FALSE(fileExists(folder.file("flume.fil")));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text,
              "Check Watershed found 1 error in the input, so the model cannot run correctly "
              "on it. Run the model anyway? No shows the findings.");
    EXPECT_EQ(platform.boxes[0].title, "Check Watershed");
    EXPECT_EQ(platform.boxes[0].buttons, BoxButtons::YesNo);
    EXPECT_EQ(platform.boxes[0].icon, BoxIcon::Exclamation);
    ASSERT_NE(checkWindow(), nullptr);
    EXPECT_TRUE(checkWindow()->isVisible());
    EXPECT_EQ(findingsList()->topLevelItemCount(), 1);
    EXPECT_EQ(workFileBytes(), before);
}

TEST_F(CheckWindowTest, RunWithErrorsAnsweredYesRunsTheModel) {
    installModel();
    openFile(inputFile("shed.inp", watershedWithAnError()));
    platform.answers.push_back(BoxAnswer::Yes);
    clickMenuItem("mnuRun");
    EXPECT_EQ(platform.programsRun.size(), 1u);
    EXPECT_EQ(checkWindow(), nullptr);
}

TEST_F(CheckWindowTest, RunWithoutFindingsRunsWithoutAWord) {
    installModel();
    openFile(inputFile("shed.inp", cleanWatershed()));
    clickMenuItem("mnuRun");
    EXPECT_EQ(checkBoxes(), 0);
    EXPECT_EQ(platform.programsRun.size(), 1u);
    EXPECT_FALSE(control<QPushButton>(main, "cmdCheckFindings")->isVisible());
    EXPECT_TRUE(session().WatershedChecked);
}

TEST_F(CheckWindowTest, RunWithWarningsOnlyRunsAndTheListIsOneClickAway) {
    installModel();
    openFile(inputFile("shed.inp", watershedWithAWarning()));
    clickMenuItem("mnuRun");
    EXPECT_EQ(checkBoxes(), 0);
    EXPECT_EQ(platform.programsRun.size(), 1u);
    auto* button = control<QPushButton>(main, "cmdCheckFindings");
    EXPECT_TRUE(button->isVisible());
    EXPECT_EQ(button->text(), "Check Watershed: 1 warning");
    QTest::mouseClick(button, Qt::LeftButton);
    ASSERT_NE(checkWindow(), nullptr);
    ASSERT_EQ(findingsList()->topLevelItemCount(), 1);
    EXPECT_EQ(row(0)[0], "warning");
    EXPECT_EQ(row(0)[4], "Rain table MINE is used by no storm. Name it in a storm, or delete it.");
}

TEST_F(CheckWindowTest, ACheckedSessionRunsWithoutAskingUntilANewSessionBegins) {
    installModel();
    const std::string shed = inputFile("shed.inp", watershedWithAnError());
    openFile(shed);
    clickMenuItem("mnuCheckWatershed");
    clickMenuItem("mnuRun");
    EXPECT_EQ(checkBoxes(), 0);
    EXPECT_EQ(platform.programsRun.size(), 1u);
    // Opening the file again begins a new session, not yet checked.
    openFile(shed);
    EXPECT_FALSE(session().WatershedChecked);
    platform.answers.push_back(BoxAnswer::No);
    clickMenuItem("mnuRun");
    EXPECT_EQ(checkBoxes(), 1);
    EXPECT_EQ(platform.programsRun.size(), 1u);
}

TEST_F(CheckWindowTest, SaveAsWithErrorsAnsweredNoSavesNothing) {
    openFile(inputFile("shed.inp", watershedWithAnError()));
    platform.answers.push_back(BoxAnswer::No);
    clickMenuItem("mnuFileItem(15)");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text,
              "Check Watershed found 1 error in the input, so the model cannot run correctly "
              "on it. Save it anyway? No shows the findings.");
    EXPECT_FALSE(fileExists(folder.file("other.inp")));
    ASSERT_NE(checkWindow(), nullptr);
    EXPECT_TRUE(checkWindow()->isVisible());
}

TEST_F(CheckWindowTest, SaveAsWithErrorsAnsweredYesSaves) {
    openFile(inputFile("shed.inp", watershedWithAnError()));
    platform.answers.push_back(BoxAnswer::Yes); // save anyway
    platform.savePicks.push_back(folder.file("other.inp"));
    platform.answers.push_back(BoxAnswer::Yes); // "Save: ..."
    clickMenuItem("mnuFileItem(15)");
    EXPECT_TRUE(fileExists(folder.file("other.inp")));
    EXPECT_EQ(session().CurrentFile, folder.file("other.inp"));
}

// The program itself on the command line: its output and exit code.
struct CommandResult {
    int exitCode = -1;
    QString output;
};

CommandResult runCheck(const std::string& file, const std::string& folder) {
    QProcess process;
    process.setWorkingDirectory(QString::fromStdString(folder));
    process.start(BROOKLET_PROGRAM, {"--check", QString::fromStdString(file)});
    process.waitForFinished(60000);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput())};
}

class CheckCommandTest : public ProgramFolderTest {};

TEST_F(CheckCommandTest, ExampleWatershedHasNoFindings) {
    const CommandResult result =
        runCheck(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp", folder.path());
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
}

TEST_F(CheckCommandTest, WarningsOnlyExitWithOne) {
    const std::string file = folder.file("warned.inp");
    writeBytes(file, crlf(watershedWithAWarning()));
    const CommandResult result = runCheck(file, folder.path());
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output.toStdString(),
              file +
                  ":26: warning: Rain table MINE is used by no storm. Name it in a storm, or delete it.\n");
}

TEST_F(CheckCommandTest, ErrorsExitWithTwoAndNameTheLinesOfTheFile) {
    const std::string file = folder.file("broken.inp");
    std::vector<std::string> lines = watershedWithAnError();
    lines[21] = tens({"", "", "100.", "20.", "0."});
    writeBytes(file, crlf(lines));
    const CommandResult result = runCheck(file, folder.path());
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(
        result.output.toStdString(),
        file +
            ":6: error: Sub-area A2 drains into R9, which is no stream reach, sub-area or OUTLET. Choose an "
            "existing reach, or add reach R9 in Stream Reach.\n" +
            file +
            ":23: error: Structure DAM does not rise in its Structure Discharge at point 2 (10. after 20). "
            "The model needs the values to rise from point to point; correct the table.\n");
}

TEST_F(CheckCommandTest, LandUsesOfTheLocalFileAreKnown) {
    std::vector<std::string> lines = cleanWatershed();
    lines[4] = tens({"", "A1", "R1", "G1", "", "", "0.5"});
    lines.insert(lines.begin() + 5,
                 std::string(20, ' ') + "LAND AREA Farm Pond" + std::string(26, ' ') + "B    1.0");
    const std::string file = folder.file("local.inp");
    writeBytes(file, crlf(lines));
    EXPECT_EQ(runCheck(file, folder.path()).exitCode, 2);
    writeBytes(folder.file("Local_Land_Use_Data.txt"),
               crlf({"\"Farm Pond\",\"60\",\"70\",\"80\",\"85\"", "\"\""}));
    const CommandResult result = runCheck(file, folder.path());
    EXPECT_EQ(result.exitCode, 0) << result.output.toStdString();
}

TEST_F(CheckCommandTest, AFileThatCannotBeReadIsAnError) {
    const CommandResult result = runCheck(folder.file("missing.inp"), folder.path());
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.output.toStdString(),
              folder.file("missing.inp") + ":0: error: The file could not be read.\n");
}

} // namespace
} // namespace brooklet::test
