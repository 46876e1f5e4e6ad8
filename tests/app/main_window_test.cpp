#include "support/ui_fixture.h"

#include "session/input_file.h"
#include "session/text_file.h"
#include "session/view_menu.h"

#include <QAccessible>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace brooklet::test {
namespace {

class MainWindowTest : public UiTest {
protected:
    QAction* item(const QString& name) { return control<QAction>(main, name); }
    QAction* fileItem(int index) { return item(indexedName("mnuFileItem", index)); }
    QAction* viewItem(int index) { return item(indexedName("mnuViewItem", index)); }
    bool menuShown(const char* name) {
        if (auto* menu = main->findChild<QMenu*>(name))
            return menu->menuAction()->isVisible();
        return item(name)->isVisible();
    }
    QStringList listItems() {
        QStringList items;
        auto* list = control<QListWidget>(main, "CurrentLst");
        for (int i = 0; i < list->count(); ++i)
            items << list->item(i)->text();
        return items;
    }
    std::string caption() { return toBytes(main->windowTitle()); }
    // The window system's word that frmMain is the active window again.
    void activate() {
        QEvent activation(QEvent::WindowActivate);
        QApplication::sendEvent(main, &activation);
    }
    // Makes frmMain the active window, so that its keys reach it.
    void makeActive() {
        main->activateWindow();
        QApplication::setActiveWindow(main);
    }
};

const std::vector<std::string> Shed = {
    "Brooklet: Version 1.0", "A WATERSHED",        "", "Sub-Area:", "  A1        R1", "",
    "Stream Reach:",         "  R1        OUTLET", ""};

TEST_F(MainWindowTest, StartsUntitledShowingTheDisclaimer) {
    startMain();
    EXPECT_EQ(main->windowTitle(), "Brooklet System Controller /  Editor ");
    EXPECT_EQ(main->pos(), QPoint(0, 0));
    EXPECT_EQ(session().CurrentFile, "> Untitled <");
    EXPECT_FALSE(session().DataChanged);
    EXPECT_TRUE(control<QGroupBox>(main, "Frame1")->isVisible());
    EXPECT_TRUE(control<QPushButton>(main, "cmdHelp")->isVisible());
    EXPECT_FALSE(control<QGroupBox>(main, "Frame2")->isVisible());
    EXPECT_EQ(control<QPushButton>(main, "cmdHelp")->text(), " New User ?    Click Here");
    EXPECT_EQ(control<QLabel>(main, "lblFlume")->text(), "Brooklet System Controller / Editor");
    EXPECT_EQ(control<QLabel>(main, "Text1")->text(), "Disclaimer");
    EXPECT_TRUE(
        control<QLabel>(main, "lblDisclaimer")->text().startsWith("Although the Brooklet system software"));
    EXPECT_TRUE(control<QLabel>(main, "lblDisclaimer")->text().endsWith("in connection therewith."));
    EXPECT_EQ(control<QLabel>(main, "Text2(0)")->text(), "(X indicates some data entered for section)");
    EXPECT_EQ(control<QLabel>(main, "Text2(1)")->text(), "Click Data Section Name to Enter Data");
    EXPECT_FALSE(fileItem(14)->isEnabled());
    EXPECT_FALSE(fileItem(15)->isEnabled());
    EXPECT_FALSE(menuShown("mnuRun"));
    EXPECT_FALSE(menuShown("mnuView"));
    EXPECT_FALSE(menuShown("mnuPlots"));
    EXPECT_TRUE(menuShown("mnuFile"));
    EXPECT_TRUE(menuShown("mnuHelp"));
    EXPECT_TRUE(folderExists(folder.file("temp")));
}

TEST_F(MainWindowTest, MenusCarryTheirCaptionsAtTheirIndexes) {
    startMain();
    const std::map<int, QString> file = {{1, "New Brooklet File"},
                                         {2, "Open Existing Brooklet File"},
                                         {3, "ReOpen Last Session"},
                                         {6, "Convert old Data"},
                                         {7, "Import HEC-RAS"},
                                         {10, "Local Land Use"},
                                         {11, "Local Soil / HSG"},
                                         {14, "Save"},
                                         {15, "Save As"},
                                         {18, "Exit"}};
    for (int i = 1; i <= 18; ++i) {
        auto caption = file.find(i);
        if (caption == file.end())
            EXPECT_TRUE(fileItem(i)->isSeparator()) << i;
        else
            EXPECT_EQ(fileItem(i)->text(), caption->second) << i;
    }
    const std::map<int, QString> view = {{0, "Schematic"},     {1, "Input File"}, {4, "Printed Page File"},
                                         {5, "Error File"},    {6, "Debug File"}, {7, "Hydrograph File"},
                                         {8, "FloodEcon File"}};
    for (int i = 0; i <= 8; ++i) {
        auto caption = view.find(i);
        if (caption == view.end())
            EXPECT_TRUE(viewItem(i)->isSeparator()) << i;
        else
            EXPECT_EQ(viewItem(i)->text(), caption->second) << i;
    }
    const std::map<int, QString> help = {{1, "Brooklet System Diagram"},
                                         {3, "Overview"},
                                         {4, "Help Facilities"},
                                         {5, "Getting Started"},
                                         {8, "About Controller /  Editor"}};
    for (int i = 1; i <= 8; ++i) {
        QAction* action = item(indexedName("mnuHelpItem", i));
        auto caption = help.find(i);
        if (caption == help.end())
            EXPECT_TRUE(action->isSeparator()) << i;
        else
            EXPECT_EQ(action->text(), caption->second) << i;
    }
    QStringList bar;
    for (QAction* action : main->menuBar()->actions())
        bar << action->text().trimmed();
    // "Stop" shows only while a program runs; Tools while a file is open.
    EXPECT_EQ(bar, (QStringList{"File", "", "View", "Tools", "", "Run", "Stop", "Plots", "", "Help"}));
    EXPECT_FALSE(control<QAction>(main, "mnuStop")->isVisible());
    for (const char* spacer : {"mnuSpace1", "mnuspace4", "mnuspace5"})
        EXPECT_TRUE(control<QMenu>(main, spacer)->actions().isEmpty()) << spacer;
}

TEST_F(MainWindowTest, FileCommandsAndRunHaveTheStandardKeysWithTheirCaptions) {
    startMain();
    const std::map<int, QKeySequence::StandardKey> keys = {{1, QKeySequence::New},
                                                           {2, QKeySequence::Open},
                                                           {14, QKeySequence::Save},
                                                           {15, QKeySequence::SaveAs},
                                                           {18, QKeySequence::Quit}};
    for (const auto& [index, key] : keys) {
        EXPECT_FALSE(fileItem(index)->shortcut().isEmpty()) << index;
        const QList<QKeySequence> standard = QKeySequence::keyBindings(key);
        if (!standard.isEmpty()) {
            EXPECT_EQ(fileItem(index)->shortcuts(), standard) << index;
        }
    }
    EXPECT_EQ(fileItem(15)->text(), "Save As");
    EXPECT_EQ(fileItem(18)->text(), "Exit");
    EXPECT_EQ(item("mnuRun")->shortcut(), QKeySequence(Qt::Key_F5));
    EXPECT_EQ(item("mnuRun")->text(), "Run");
    // The keys work from the main window: New opens the identifier editor.
    makeActive();
    QTest::keySequence(main, fileItem(1)->shortcut());
    EXPECT_EQ(context->windows.shownNames(), QStringList{"frmFlume"});
    EXPECT_EQ(session().CurrentFile, "> Untitled <");
}

TEST_F(MainWindowTest, F5RunsWhenRunIsShownAndOnlyThen) {
    startMain();
    QSignalSpy runs(item("mnuRun"), &QAction::triggered);
    makeActive();
    QTest::keyClick(main, Qt::Key_F5);
    EXPECT_EQ(runs.count(), 0);
    openFile(inputFile("shed.inp", Shed));
    activate();
    ASSERT_TRUE(menuShown("mnuRun"));
    makeActive();
    QTest::keyClick(main, Qt::Key_F5);
    EXPECT_EQ(runs.count(), 1);
}

TEST_F(MainWindowTest, StartingCreatesTheMissingWorkFolderWithoutABox) {
    ASSERT_FALSE(folderExists(folder.file("temp")));
    startMain();
    EXPECT_TRUE(folderExists(folder.file("temp")));
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(MainWindowTest, TheSectionListKeepsItsRowWhenAnEditorHasClosed) {
    startMain();
    auto* list = control<QListWidget>(main, "CurrentLst");
    list->setFocus();
    list->setCurrentRow(2);
    QTest::keyClick(list, Qt::Key_Return);
    QWidget* editor = context->windows.loaded("frmDurInc");
    ASSERT_NE(editor, nullptr);
    QTest::mouseClick(control<QPushButton>(editor, "cmdCancel"), Qt::LeftButton);
    activate();
    EXPECT_EQ(list->currentRow(), 2);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(main->pickedSection(), 4);
    EXPECT_EQ(context->windows.shownNames(), (QStringList{"frmDurInc", "frmGlobal"}));
}

TEST_F(MainWindowTest, EveryWindowIsAWindowToTheAccessibilityLayer) {
    startMain();
    auto role = [](QWidget* window) {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(window);
        return spoken ? spoken->role() : QAccessible::NoRole;
    };
    EXPECT_EQ(role(main), QAccessible::Window);
    const QStringList names = context->windows.registeredNames();
    ASSERT_GE(names.size(), 10);
    for (const QString& name : names) {
        QWidget* window = context->windows.ShowWindowAtOrigin(name);
        ASSERT_NE(window, nullptr) << name.toStdString();
        const QAccessible::Role spoken = role(window);
        EXPECT_TRUE(spoken == QAccessible::Window || spoken == QAccessible::Dialog)
            << name.toStdString() << " is spoken of as role " << spoken;
    }
}

TEST_F(MainWindowTest, EveryControlHasAnAccessibleName) {
    startMain();
    for (QWidget* widget : main->centralWidget()->findChildren<QWidget*>()) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"))
            continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
    EXPECT_EQ(control<QListWidget>(main, "CurrentLst")->accessibleName(),
              "Click Data Section Name to Enter Data");
    EXPECT_EQ(control<QPushButton>(main, "cmdHelp")->accessibleName(), "New User ?    Click Here");
}

TEST_F(MainWindowTest, TheListShowsFourteenSectionsAndCreatesTheirWorkFiles) {
    startMain();
    const QStringList expected = {"     Alternate Analysis:",
                                  "     Dimensionless Unit Hydrograph:",
                                  "     Duration Increment:",
                                  "     Global Output:",
                                  "     Input Hydrograph:",
                                  "     Rainfall Distribution:",
                                  "     Stream Cross Section:",
                                  "     Stream Reach:",
                                  "     Storm Analysis:",
                                  "     Structure Rating:",
                                  "     Sub-Area:",
                                  "     Time Analysis:",
                                  "     Brooklet: Version 1.0",
                                  "     Verification:"};
    EXPECT_EQ(listItems(), expected);
    for (int i = 1; i <= 14; ++i) {
        EXPECT_TRUE(fileExists(workFile(i))) << i;
        EXPECT_EQ(fileLength(workFile(i)), 0u) << i;
    }
    EXPECT_FALSE(fileExists(workFile(15)));
}

TEST_F(MainWindowTest, TheXPrefixComesOnlyWithTheNextRefresh) {
    startMain();
    writeBytes(workFile(8), crlf({"Stream Reach:", "  R1"}));
    EXPECT_EQ(listItems()[7], "     Stream Reach:");
    activate();
    EXPECT_EQ(listItems()[7], "X   Stream Reach:");
    EXPECT_EQ(listItems()[6], "     Stream Cross Section:");
}

TEST_F(MainWindowTest, AClickOnASectionOpensItsEditor) {
    startMain();
    context->CurrentAlternate = 3;
    auto* list = control<QListWidget>(main, "CurrentLst");
    const QRect row = list->visualItemRect(list->item(3));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(main->pickedSection(), 4);
    EXPECT_EQ(context->CurrentAlternate, 0);
    EXPECT_EQ(context->windows.shownNames(), QStringList{"frmGlobal"});
    ASSERT_NE(context->windows.loaded("frmGlobal"), nullptr);
    EXPECT_TRUE(context->windows.loaded("frmGlobal")->isVisible());

    const QStringList editors = {"frmAlternate", "frmDimHyd", "frmDurInc",  "frmGlobal",      "frmInpHyd",
                                 "frmRainDist",  "frmXsect",  "frmReaches", "frmStorm",       "frmStruct",
                                 "frmSubArea",   "frmTimeA",  "frmFlume",   "frmVerification"};
    for (int section = 1; section <= 14; ++section)
        EXPECT_EQ(editorWindowName(section), editors[section - 1]);
}

TEST_F(MainWindowTest, AClickOnASectionWhoseWindowIsMissingShowsNothing) {
    // A catalog that knows one editor only.
    context = std::make_unique<AppContext>(platform);
    context->windows.registerWindow("frmDurInc", [](AppContext&) { return new QWidget; });
    startMain();
    const QWidgetList start = QApplication::topLevelWidgets();
    const QSet<QWidget*> before(start.begin(), start.end());
    auto* list = control<QListWidget>(main, "CurrentLst");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(10)).center());
    EXPECT_EQ(main->pickedSection(), 11);
    EXPECT_TRUE(context->windows.shownNames().isEmpty());
    EXPECT_EQ(context->windows.loaded("frmSubArea"), nullptr);
    const QWidgetList after = QApplication::topLevelWidgets();
    EXPECT_EQ(QSet<QWidget*>(after.begin(), after.end()), before);
    EXPECT_TRUE(platform.boxes.empty());
    // A known one opens, and is recorded.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(2)).center());
    EXPECT_EQ(context->windows.shownNames(), QStringList{"frmDurInc"});
}

TEST_F(MainWindowTest, EnterOnASectionOpensItsEditorWithoutAMouse) {
    startMain();
    auto* list = control<QListWidget>(main, "CurrentLst");
    list->setCurrentRow(2);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(main->pickedSection(), 3);
    EXPECT_EQ(context->windows.shownNames().last(), "frmDurInc");
}

TEST_F(MainWindowTest, NewAsksAboutUnsavedChangesThenClosesTheFileAndOpensTheIdentifierEditor) {
    startMain();
    acceptEdit(8, {"Stream Reach:", "  R1"});
    // Cancel keeps the session and its changes.
    platform.answers.push_back(BoxAnswer::Cancel);
    clickMenuItem("mnuFileItem(1)");
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  R1"}));
    EXPECT_TRUE(context->windows.shownNames().isEmpty());
    // No discards them.
    platform.answers.push_back(BoxAnswer::No);
    clickMenuItem("mnuFileItem(1)");
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[1],
              (BoxRequest{"Save and Close current file before loading\ra new Brooklet input data file ?",
                          "BrookletSystem", BoxButtons::YesNoCancel, BoxIcon::None}));
    EXPECT_FALSE(fileExists(workFile(8)));
    EXPECT_TRUE(session().DataChanged); // a new file after an edit leaves it as it was
    EXPECT_EQ(session().CurrentFile, "> Untitled <");
    EXPECT_FALSE(fileItem(14)->isEnabled());
    EXPECT_TRUE(fileItem(15)->isEnabled());
    EXPECT_EQ(caption(), "Brooklet Editor 2001   Current File - > Untitled <");
    EXPECT_FALSE(control<QGroupBox>(main, "Frame1")->isVisible());
    EXPECT_FALSE(control<QPushButton>(main, "cmdHelp")->isVisible());
    EXPECT_TRUE(control<QGroupBox>(main, "Frame2")->isVisible());
    EXPECT_EQ(context->windows.shownNames().last(), "frmFlume");
}

TEST_F(MainWindowTest, OpenLoadsTheFileIntoTheWorkFiles) {
    startMain();
    const std::string path = inputFile("shed.inp", Shed);
    openFile(path);
    ASSERT_EQ(platform.openDialogs.size(), 1u);
    const FileDialogSettings& dialog = platform.openDialogs[0];
    EXPECT_EQ(dialog.Filter, "Input Files (*.inp)|*.inp|All files (*.*)|*.*");
    EXPECT_EQ(dialog.FileName, "*.inp");
    EXPECT_EQ(dialog.DialogTitle, "Open Brooklet file");
    EXPECT_TRUE(dialog.CancelError);
    EXPECT_EQ(dialog.InitDir, folder.path() + "/");
    EXPECT_TRUE(platform.boxes.empty());

    EXPECT_EQ(session().CurrentFile, path);
    EXPECT_EQ(session().LastFolder, folder.path() + "/");
    EXPECT_EQ(session().OutputPath, folder.file("shed.out"));
    EXPECT_EQ(bytesOf(workFile(11)), crlf({"Sub-Area:", "  A1        R1"}));
    EXPECT_EQ(bytesOf(workFile(16)), crlf({path}));
    EXPECT_TRUE(fileItem(14)->isEnabled());
    EXPECT_TRUE(fileItem(15)->isEnabled());
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(caption(), "Brooklet Editor 2001   Current File - " + path);
    EXPECT_EQ(context->windows.shownNames().last(), "frmFlume");

    main->Form_Activate();
    EXPECT_TRUE(menuShown("mnuRun"));
    EXPECT_TRUE(menuShown("mnuView"));
    EXPECT_FALSE(menuShown("mnuPlots"));
    EXPECT_EQ(listItems()[10], "X   Sub-Area:");
    EXPECT_EQ(listItems()[0], "     Alternate Analysis:");
}

TEST_F(MainWindowTest, CancellingTheOpenDialogEndsTheCommandWithoutACaption) {
    startMain();
    platform.openPicks.push_back(std::nullopt);
    clickMenuItem("mnuFileItem(2)");
    EXPECT_EQ(main->windowTitle(), "Brooklet System Controller /  Editor ");
    EXPECT_FALSE(control<QGroupBox>(main, "Frame2")->isVisible());
    EXPECT_FALSE(control<QGroupBox>(main, "Frame1")->isVisible());
    EXPECT_EQ(session().CurrentFile, "> Untitled <");
}

TEST_F(MainWindowTest, OpeningAMissingFileSaysSoAndLeavesAnUntitledSession) {
    startMain();
    openFile(folder.file("gone.inp"));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{"Error --- File " + folder.file("gone.inp") + " Not Found",
                                             "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(session().CurrentFile, "> Untitled <");
    const QStringList shown = context->windows.shownNames();
    ASSERT_GE(shown.size(), 2);
    EXPECT_EQ(shown[shown.size() - 2], "frmMain");
    EXPECT_EQ(shown.last(), "frmFlume");
}

TEST_F(MainWindowTest, ALoadStoppingAtItsFirstLineShowsTheBoxAndThenTheIdentifierEditor) {
    startMain();
    const std::string path = inputFile("prose.inp", {"This is my watershed", "", "Sub-Area:", "  A1"});
    bool identifierOpenAtTheBox = true;
    platform.onBox = [this, &identifierOpenAtTheBox](const BoxRequest&) {
        identifierOpenAtTheBox = context->windows.loaded("frmFlume") != nullptr;
    };
    openFile(path);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{"Section Header: THIS IS MY WATERSHED not found! ",
                                             "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_FALSE(identifierOpenAtTheBox);
    EXPECT_EQ(context->windows.shownNames().last(), "frmFlume");
    ASSERT_NE(context->windows.loaded("frmFlume"), nullptr);
    EXPECT_TRUE(context->windows.loaded("frmFlume")->isVisible());
    EXPECT_EQ(session().CurrentFile, path);
    EXPECT_EQ(fileLength(workFile(11)), 0u);
}

TEST_F(MainWindowTest, OpenWithUnsavedChangesAsksAndCancelKeepsEverything) {
    startMain();
    openFile(inputFile("shed.inp", Shed));
    acceptEdit(8, {"Stream Reach:", "  R9"});
    platform.answers.push_back(BoxAnswer::Cancel);
    clickMenuItem("mnuFileItem(2)");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"Save and Close current file before loading\ranother Brooklet input "
                          "data file ?",
                          "BrookletSystem", BoxButtons::YesNoCancel, BoxIcon::None}));
    EXPECT_EQ(platform.openDialogs.size(), 1u); // only the first open
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  R9"}));
    EXPECT_TRUE(session().DataChanged);
    EXPECT_EQ(session().RunResultLabel, " ");
}

TEST_F(MainWindowTest, OpenAnsweredNoStillReplacesTheWorkFiles) {
    startMain();
    openFile(inputFile("shed.inp", Shed));
    acceptEdit(8, {"Stream Reach:", "  R9"});
    const std::string other = inputFile("other.inp", {"Storm Analysis:", "  S1"});
    platform.answers.push_back(BoxAnswer::No);
    openFile(other);
    EXPECT_FALSE(fileExists(workFile(8)));
    EXPECT_EQ(bytesOf(workFile(9)), crlf({"Storm Analysis:", "  S1"}));
    EXPECT_EQ(bytesOf(folder.file("shed.inp")), crlf(Shed)); // not saved
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(session().CurrentFile, other);
}

TEST_F(MainWindowTest, OpenAnsweredYesSavesTheOldFileFirst) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    main->Form_Activate(); // the list refresh gives every listed section its work file
    acceptEdit(8, {"Stream Reach:", "  R9"});
    platform.answers.push_back(BoxAnswer::Yes);
    openFile(inputFile("other.inp", {"Storm Analysis:", "  S1"}));
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[1],
              (BoxRequest{"Data Saved in file: " + shed, "Brooklet System", BoxButtons::Ok, BoxIcon::None}));
    EXPECT_EQ(bytesOf(shed), crlf({"Brooklet: Version 1.0",
                                   "A WATERSHED",
                                   "",
                                   "Sub-Area:",
                                   "  A1        R1",
                                   "",
                                   "Stream Reach:",
                                   "  R9",
                                   "",
                                   /* eleven empty sections: */ "",
                                   "",
                                   "",
                                   "",
                                   "",
                                   "",
                                   "",
                                   "",
                                   "",
                                   "",
                                   ""}));
}

TEST_F(MainWindowTest, AnUntitledSessionWithChangesIsAskedAboutAndSavedUnderANewName) {
    startMain();
    clickMenuItem("mnuFileItem(1)");
    acceptEdit(8, {"Stream Reach:", "  R9"});
    const std::string shed = inputFile("shed.inp", Shed);
    // Yes asks for a name; cancelling that dialog keeps the session and opens nothing.
    platform.answers.push_back(BoxAnswer::Yes);
    platform.savePicks.push_back(std::nullopt);
    clickMenuItem("mnuFileItem(2)");
    EXPECT_TRUE(platform.openDialogs.empty());
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  R9"}));
    // Yes with a name saves the changes there, then the other file opens.
    platform.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    platform.savePicks.push_back(folder.file("kept"));
    openFile(shed);
    EXPECT_NE(bytesOf(folder.file("kept.inp")).find("Stream Reach:\r\n  R9\r\n"), std::string::npos);
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  R1        OUTLET"}));
    EXPECT_EQ(platform.boxes[0].text,
              "Save and Close current file before loading\ranother Brooklet input data file ?");
}

TEST_F(MainWindowTest, ReOpenLastSessionGoesOnWithTheWorkFilesAsTheyWere) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    createFolder(folder.file("temp"));
    writeBytes(workFile(16), crlf({shed}));
    writeBytes(workFile(8), crlf({"Stream Reach:", "  UNSAVED"}));
    session().DataChanged = true;
    clickMenuItem("mnuFileItem(3)");
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_EQ(session().OutputPath, folder.file("shed.out"));
    EXPECT_FALSE(session().DataChanged);
    EXPECT_TRUE(fileItem(14)->isEnabled());
    EXPECT_TRUE(fileItem(15)->isEnabled());
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  UNSAVED"})); // the input file is not read
    EXPECT_EQ(caption(), "Brooklet Editor 2001   Current File - " + shed);
    EXPECT_EQ(context->windows.shownNames().last(), "frmFlume");
}

TEST_F(MainWindowTest, ReOpenAfterAnExitAnsweredNoFindsNoFileName) {
    {
        startMain();
        openFile(inputFile("shed.inp", Shed));
        acceptEdit(8, {"Stream Reach:", "  R9"});
        platform.answers.push_back(BoxAnswer::No);
        clickMenuItem("mnuFileItem(18)");
        EXPECT_EQ(platform.endCount, 1);
        EXPECT_FALSE(fileExists(workFile(16)));
        delete main;
        main = nullptr;
    }
    // The next session of the program.
    context = std::make_unique<AppContext>(platform);
    startMain();
    clickMenuItem("mnuFileItem(3)");
    EXPECT_EQ(session().CurrentFile, "> Untitled <");
    EXPECT_FALSE(fileItem(14)->isEnabled());
    EXPECT_TRUE(fileItem(15)->isEnabled());
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  R9"}));
    main->Form_Activate();
    EXPECT_EQ(listItems()[7], "X   Stream Reach:");
    EXPECT_FALSE(menuShown("mnuRun"));
}

TEST_F(MainWindowTest, SaveWritesTheFileDeletesResultsAndShowsRun) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    writeBytes(folder.file("shed.out"), crlf({"PAGE 1", "PAGE 2"}));
    writeBytes(folder.file("shed.err"), crlf({"ERROR"}));
    acceptEdit(8, {"Stream Reach:", "  R9"});
    main->Form_Activate();
    EXPECT_FALSE(menuShown("mnuRun"));
    EXPECT_FALSE(menuShown("mnuView"));

    clickMenuItem("mnuFileItem(14)");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"Data Saved in file: " + shed, "Brooklet System", BoxButtons::Ok, BoxIcon::None}));
    EXPECT_FALSE(session().DataChanged);
    EXPECT_FALSE(fileExists(folder.file("shed.out")));
    EXPECT_FALSE(fileExists(folder.file("shed.err")));
    EXPECT_TRUE(menuShown("mnuRun"));
    EXPECT_TRUE(menuShown("mnuView"));
    EXPECT_TRUE(viewItem(0)->isEnabled()); // the reach section has a record
    EXPECT_TRUE(viewItem(1)->isEnabled());
    EXPECT_FALSE(viewItem(4)->isEnabled());
    EXPECT_NE(bytesOf(shed).find("  R9\r\n"), std::string::npos);
}

TEST_F(MainWindowTest, ASaveThatFailsSaysWhyAndKeepsRunHidden) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    acceptEdit(8, {"Stream Reach:", "  R9"});
    deleteFile(shed);
    createFolder(shed); // a folder now stands where the file was
    clickMenuItem("mnuFileItem(14)");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, "Brooklet System");
    EXPECT_NE(platform.boxes[0].text.find("could not be saved"), std::string::npos);
    EXPECT_TRUE(session().DataChanged);
    EXPECT_FALSE(menuShown("mnuRun"));
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  R9"}));
}

TEST_F(MainWindowTest, SaveAsAsksAndSavesUnderTheNewName) {
    startMain();
    clickMenuItem("mnuFileItem(1)");
    acceptEdit(8, {"Stream Reach:", "  R1"});
    main->Form_Activate();
    EXPECT_FALSE(menuShown("mnuRun")); // an untitled session cannot run
    createFolder(folder.file("sheds"));
    const std::string target = folder.file("sheds/new.inp");
    platform.savePicks.push_back(target);
    platform.answers.push_back(BoxAnswer::Yes);
    clickMenuItem("mnuFileItem(15)");

    ASSERT_EQ(platform.saveDialogs.size(), 1u);
    const FileDialogSettings& dialog = platform.saveDialogs[0];
    EXPECT_EQ(dialog.DialogTitle, "Save Brooklet file");
    EXPECT_EQ(dialog.Filter, "Input File (*.inp)|*.inp|All files (*.*)|*.*\"*.dat");
    EXPECT_EQ(dialog.FilterIndex, 1);
    EXPECT_TRUE(dialog.CancelError);
    EXPECT_EQ(dialog.InitDir, folder.path() + "/");
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"Save: " + target, "Brooklet System", BoxButtons::YesNo, BoxIcon::Question}));
    EXPECT_EQ(platform.boxes[1].text, "Data Saved in file: " + target);
    EXPECT_EQ(session().CurrentFile, target);
    EXPECT_EQ(session().LastFolder, folder.file("sheds") + "/");
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(caption(), "Brooklet Editor 2001   Current File - " + target);
    EXPECT_TRUE(fileItem(14)->isEnabled());
    EXPECT_TRUE(menuShown("mnuRun"));
    EXPECT_EQ(bytesOf(workFile(16)), crlf({target}));
    EXPECT_NE(bytesOf(target).find("Stream Reach:\r\n  R1\r\n"), std::string::npos);
    EXPECT_EQ(session().OutputPath, ""); // known only from the next open
    main->Form_Activate();
    EXPECT_FALSE(menuShown("mnuPlots"));
}

TEST_F(MainWindowTest, SavingANewSessionWithNothingEnteredGivesFourteenBlankLines) {
    startMain();
    clickMenuItem("mnuFileItem(1)");
    main->Form_Activate();
    platform.savePicks.push_back(folder.file("empty.inp"));
    platform.answers.push_back(BoxAnswer::Yes);
    clickMenuItem("mnuFileItem(15)");
    EXPECT_EQ(bytesOf(folder.file("empty.inp")), crlf(std::vector<std::string>(14)));
}

TEST_F(MainWindowTest, SaveAsOffersTheCurrentFileName) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    platform.savePicks.push_back(std::nullopt);
    clickMenuItem("mnuFileItem(15)");
    ASSERT_EQ(platform.saveDialogs.size(), 1u);
    EXPECT_EQ(platform.saveDialogs[0].FileName, "shed.inp");
    EXPECT_EQ(platform.saveDialogs[0].InitDir, session().LastFolder);
    EXPECT_TRUE(platform.boxes.empty()); // cancelled: nothing asked, nothing changed
    EXPECT_EQ(session().CurrentFile, shed);
}

TEST_F(MainWindowTest, SaveAsAnsweredNoKeepsTheFileButEnablesSaveAndRewritesTheFileName) {
    startMain();
    clickMenuItem("mnuFileItem(1)");
    acceptEdit(8, {"Stream Reach:", "  R1"});
    platform.savePicks.push_back(folder.file("new.inp"));
    platform.answers.push_back(BoxAnswer::No);
    clickMenuItem("mnuFileItem(15)");
    EXPECT_EQ(session().CurrentFile, "> Untitled <");
    EXPECT_TRUE(session().DataChanged);
    EXPECT_FALSE(fileExists(folder.file("new.inp")));
    EXPECT_TRUE(fileItem(14)->isEnabled());
    EXPECT_EQ(bytesOf(workFile(16)), crlf({"> Untitled <"}));
    EXPECT_FALSE(menuShown("mnuRun"));
}

TEST_F(MainWindowTest, ExitWithNoChangesEndsAndKeepsTheSession) {
    startMain();
    openFile(inputFile("shed.inp", Shed));
    clickMenuItem("mnuFileItem(18)");
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(platform.endCount, 1);
    EXPECT_TRUE(fileExists(workFile(16)));
}

TEST_F(MainWindowTest, ExitAsTheFirstCommandHidesTheDisclaimerAndEnds) {
    startMain();
    clickMenuItem("mnuFileItem(18)");
    EXPECT_FALSE(control<QGroupBox>(main, "Frame1")->isVisible());
    EXPECT_FALSE(control<QPushButton>(main, "cmdHelp")->isVisible());
    EXPECT_EQ(platform.endCount, 1);
}

TEST_F(MainWindowTest, ExitWithChangesAsksAndSavesWhereTheDialogSays) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    acceptEdit(8, {"Stream Reach:", "  R9"});
    platform.answers.push_back(BoxAnswer::Yes);
    platform.savePicks.push_back(folder.file("final.inp"));
    clickMenuItem("mnuFileItem(18)");
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"Changes have been made to the Brooklet input file - Do you want to "
                          "save it?",
                          "Brooklet System", BoxButtons::YesNo, BoxIcon::Question}));
    EXPECT_EQ(platform.boxes[1].text, "Data Saved in file: " + folder.file("final.inp"));
    ASSERT_EQ(platform.saveDialogs.size(), 1u);
    EXPECT_EQ(platform.saveDialogs[0].InitDir, session().LastFolder);
    EXPECT_NE(bytesOf(folder.file("final.inp")).find("  R9"), std::string::npos);
    EXPECT_EQ(bytesOf(shed), crlf(Shed));
    EXPECT_EQ(platform.endCount, 1);
}

TEST_F(MainWindowTest, ExitWithChangesAndACancelledDialogEndsWithoutSaving) {
    startMain();
    const std::string shed = inputFile("shed.inp", Shed);
    openFile(shed);
    acceptEdit(8, {"Stream Reach:", "  R9"});
    platform.answers.push_back(BoxAnswer::Yes);
    platform.savePicks.push_back(std::nullopt);
    clickMenuItem("mnuFileItem(18)");
    EXPECT_EQ(platform.endCount, 1);
    EXPECT_EQ(bytesOf(shed), crlf(Shed));
    EXPECT_TRUE(fileExists(workFile(16)));
}

TEST_F(MainWindowTest, ActivationAfterAnEditHidesRunAndViewAtOnce) {
    startMain();
    openFile(inputFile("shed.inp", Shed));
    main->Form_Activate();
    ASSERT_TRUE(menuShown("mnuRun"));
    ASSERT_TRUE(menuShown("mnuView"));
    acceptEdit(11, {"Sub-Area:", "  A2"});
    main->Form_Activate();
    EXPECT_FALSE(menuShown("mnuRun"));
    EXPECT_FALSE(menuShown("mnuView"));
}

TEST_F(MainWindowTest, PlotsShowsWhenThePrintedPageFileExists) {
    startMain();
    openFile(inputFile("shed.inp", Shed));
    writeBytes(folder.file("shed.out"), crlf({"ONE LINE"}));
    main->Form_Activate();
    EXPECT_TRUE(menuShown("mnuPlots"));
    EXPECT_FALSE(viewItem(4)->isEnabled()); // one line is not enough to view
    deleteFile(folder.file("shed.out"));
    main->Form_Activate();
    EXPECT_FALSE(menuShown("mnuPlots"));
}

TEST_F(MainWindowTest, TheViewMenuEnablesTheResultFilesOfTwoLinesOrMore) {
    startMain();
    openFile(inputFile("shed.inp", Shed));
    writeBytes(folder.file("shed.out"), crlf({"1", "2"}));
    writeBytes(folder.file("shed.err"), crlf({"1"}));
    writeBytes(folder.file("shed.dbg"), "1\r\n2");
    writeBytes(folder.file("shed.ecn"), crlf({"1", "2", "3"}));
    main->Form_Activate();
    EXPECT_TRUE(viewItem(4)->isEnabled());
    EXPECT_FALSE(viewItem(5)->isEnabled());
    EXPECT_TRUE(viewItem(6)->isEnabled());
    EXPECT_FALSE(viewItem(7)->isEnabled());
    EXPECT_TRUE(viewItem(8)->isEnabled());
    EXPECT_TRUE(viewItem(1)->isEnabled());
    EXPECT_TRUE(viewItem(0)->isEnabled());
}

TEST_F(MainWindowTest, UpdateViewMenuWithUnsavedDataStopsAfterTheSchematic) {
    startMain();
    openFile(inputFile("shed.inp", Shed));
    main->Form_Activate();
    session().DataChanged = true;
    writeBytes(workFile(8), crlf({"Stream Reach:"})); // a header and no record
    UpdateViewMenu(context->session, main);
    EXPECT_FALSE(viewItem(0)->isEnabled());
    EXPECT_FALSE(viewItem(1)->isEnabled());
    EXPECT_TRUE(menuShown("mnuView")); // visibility left as it was
}

TEST_F(MainWindowTest, ViewItemsSetTheViewIndex) {
    startMain();
    openFile(inputFile("shed.inp", Shed));
    writeBytes(folder.file("shed.hyd"), crlf({"1", "2"}));
    main->Form_Activate();
    clickMenuItem("mnuViewItem(7)");
    EXPECT_EQ(session().ViewIndex, 7);
    EXPECT_EQ(context->windows.shownNames().last(), "frmFileDisp");
    context->windows.registerWindow("frmTopoModel", [](AppContext&) { return new QWidget; });
    clickMenuItem("mnuViewItem(0)");
    EXPECT_EQ(context->windows.shownNames().last(), "frmTopoModel");
}

TEST_F(MainWindowTest, HelpItemsAndTheNewUserButtonOpenTheHelpWindows) {
    startMain();
    clickMenuItem("mnuHelpItem(1)");
    clickMenuItem("mnuHelpItem(3)");
    clickMenuItem("mnuHelpItem(4)");
    clickMenuItem("mnuHelpItem(5)");
    clickMenuItem("mnuHelpItem(8)");
    EXPECT_EQ(context->windows.shownNames(),
              (QStringList{"frmDiagram", "frmOverview", "frmHelpFac", "frmGettingStarted", "frmAbout"}));
    QTest::mouseClick(control<QPushButton>(main, "cmdHelp"), Qt::LeftButton);
    EXPECT_EQ(context->windows.shownNames().mid(5),
              (QStringList{"frmGettingStarted", "frmHelpFac", "frmOverview"}));
}

TEST_F(MainWindowTest, LocalLandUseAndSoilItemsOpenTheirWindows) {
    startMain();
    clickMenuItem("mnuFileItem(10)");
    clickMenuItem("mnuFileItem(11)");
    EXPECT_EQ(context->windows.shownNames(), (QStringList{"frmLocalLanduse", "frmLocalSoil"}));
}

TEST_F(MainWindowTest, TheCloseBoxUnloadsTheSchematicWithoutAQuestion) {
    context->windows.registerWindow("frmTopoModel", [](AppContext&) { return new QWidget; });
    startMain();
    QPointer<QWidget> schematic = context->windows.ShowWindowAtOrigin("frmTopoModel");
    ASSERT_TRUE(schematic);
    session().DataChanged = true;
    EXPECT_TRUE(main->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(schematic.isNull());
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(MainWindowTest, AWindowIsOpenedOnceAtTheTopLeft) {
    int made = 0;
    context->windows.registerWindow("frmProbe", [&made](AppContext&) {
        ++made;
        auto* window = new QWidget;
        window->move(200, 200);
        return window;
    });
    startMain();
    QWidget* first = context->windows.ShowWindowAtOrigin("frmProbe");
    first->showMinimized();
    QWidget* second = context->windows.ShowWindowAtOrigin("frmProbe");
    EXPECT_EQ(first, second);
    EXPECT_EQ(made, 1);
    EXPECT_EQ(second->pos(), QPoint(0, 0));
    EXPECT_FALSE(second->isMinimized());
    EXPECT_TRUE(second->isVisible());
}

} // namespace
} // namespace brooklet::test
