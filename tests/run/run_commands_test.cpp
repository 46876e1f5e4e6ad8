#include "run/file_viewer.h"
#include "run/run_commands.h"
#include "session/text_file.h"
#include "support/ui_fixture.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTimer>

#include <filesystem>

namespace fs = std::filesystem;

namespace brooklet::test {
namespace {

// Window tests of the external programs, with the stand-in program in the program folder.
class RunFixture : public UiTest {
protected:
    // A path in the program folder.
    std::string here(const std::string& name) const { return programFolder + "/" + name; }
    // Puts the stand-in program into the program folder under the given name.
    void installProgram(const std::string& name) {
        fs::copy_file(BROOKLET_STAND_IN_MODEL, here(name), fs::copy_options::overwrite_existing);
        fs::permissions(here(name), fs::perms::owner_all);
    }
    void orders(const std::vector<std::string>& lines) {
        writeBytes(here("stand_in_orders.txt"), crlf(lines));
    }
    // Opens a named, saved session on an input file.
    std::string openSession(const std::string& path) {
        writeBytes(path,
                   crlf({"Brooklet: Version 1.0", "A WATERSHED", "", "Stream Reach:", "  R1        OUTLET"}));
        platform.openPicks.push_back(path);
        clickMenuItem("mnuFileItem(2)");
        main->Form_Activate();
        return path;
    }
    void run() { clickMenuItem("mnuRun"); }
    frmFileDisp* viewer() { return context->windows.loadedAs<frmFileDisp>("frmFileDisp"); }
    bool menuShown(const char* name) { return control<QAction>(main, name)->isVisible(); }

    std::string programFolder = folder.path();
};

class RunCommandsTest : public RunFixture {
protected:
    RunCommandsTest() { startMain(); }
};

TEST_F(RunCommandsTest, ARunWithAOneLineErrorFileShowsThePrintedPageFile) {
    installProgram("flume.exe");
    orders({"lines out 3", "lines err 1"});
    const std::string shed = openSession(folder.file("shed.inp"));
    ASSERT_TRUE(menuShown("mnuRun"));
    run();
    EXPECT_EQ(bytesOf(folder.file("flume.fil")), shed + "\r\n\r\n");
    EXPECT_EQ(bytesOf(folder.file("stand_in_seen.txt")), shed + "\r\n");
    ASSERT_EQ(platform.programsRun.size(), 1u);
    EXPECT_EQ(platform.programsRun[0].program, "./flume.exe");
    EXPECT_TRUE(platform.programsRun[0].arguments.empty());
    EXPECT_EQ(platform.programsRun[0].folder, folder.path() + "/");
    EXPECT_EQ(session().ToolName, "Brooklet program file (Flume.exe)");
    EXPECT_EQ(session().RunResultLabel, "Brooklet Printed Page File");
    EXPECT_EQ(session().ViewIndex, 4);
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(control<QLabel>(viewer(), "lblWindow")->text(), "Brooklet Printed Page File");
    EXPECT_EQ(control<QPlainTextEdit>(viewer(), "RichTextBox1")->toPlainText(),
              "RESULT LINE 1\nRESULT LINE 2\nRESULT LINE 3\n");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr); // the hourglass is gone
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(RunCommandsTest, AfterARunPlotsShowsWhenTheMainWindowIsActivatedAgain) {
    installProgram("flume.exe");
    orders({"lines out 3"});
    openSession(folder.file("shed.inp"));
    EXPECT_FALSE(menuShown("mnuPlots"));
    run();
    main->Form_Activate();
    EXPECT_TRUE(menuShown("mnuPlots"));
    EXPECT_TRUE(control<QAction>(main, "mnuViewItem(4)")->isEnabled());
}

TEST_F(RunCommandsTest, AnErrorFileOfTwoLinesOpensTheViewerOnIt) {
    installProgram("flume.exe");
    orders({"lines out 30", "lines err 2"});
    openSession(folder.file("shed.inp"));
    run();
    EXPECT_EQ(session().ViewIndex, 5);
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(control<QLabel>(viewer(), "lblWindow")->text(), "Brooklet Error File");
    EXPECT_EQ(viewer()->windowTitle().toStdString(),
              "File Display   Current File - " + folder.file("shed.err"));
}

TEST_F(RunCommandsTest, AMissingModelSaysNotFound) {
    orders({"lines out 3"});
    openSession(folder.file("shed.inp"));
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{"Brooklet program file (Flume.exe) - NOT FOUND",
                                             "BrookletSystem", BoxButtons::Ok, BoxIcon::None}));
    EXPECT_EQ(viewer(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(fileExists(folder.file("flume.fil"))); // written before the start
}

TEST_F(RunCommandsTest, AControlFileThatCannotBeWrittenStartsNothing) {
    installProgram("flume.exe");
    orders({"lines out 3"});
    openSession(folder.file("shed.inp"));
    createFolder(folder.file("flume.fil")); // a folder stands where the control file belongs
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"The control file " + folder.file("flume.fil") +
                              " could not be written (Is a directory). Brooklet program file (Flume.exe) "
                              "was not started.",
                          "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_TRUE(platform.programsRun.empty());
    EXPECT_FALSE(fileExists(folder.file("stand_in_seen.txt")));
    EXPECT_FALSE(fileExists(folder.file("shed.out")));
    EXPECT_EQ(viewer(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// The program folder's name is not valid UTF-8: the bytes of a Latin-1 "é".
class ByteNamedFolderTest : public RunFixture {
protected:
    ByteNamedFolderTest() {
        programFolder = folder.file("caf\xe9 sheds");
        createFolder(programFolder);
        for (const auto& entry : fs::directory_iterator(folder.path()))
            if (entry.is_regular_file())
                fs::copy_file(entry.path(), fs::path(programFolder) / entry.path().filename());
        setCurrentFolder(programFolder);
        startMain();
    }
};

TEST_F(ByteNamedFolderTest, TheModelRunsAndItsResultsShow) {
    installProgram("flume.exe");
    orders({"lines out 3", "lines err 1"});
    const std::string shed = openSession(here("shed.inp"));
    ASSERT_EQ(session().ProgramFolder, programFolder + "/");
    run();
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(bytesOf(here("flume.fil")), shed + "\r\n\r\n");
    EXPECT_EQ(bytesOf(here("stand_in_seen.txt")), shed + "\r\n");
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(viewer()->shownPath(), here("shed.out"));
    EXPECT_EQ(control<QPlainTextEdit>(viewer(), "RichTextBox1")->toPlainText(),
              "RESULT LINE 1\nRESULT LINE 2\nRESULT LINE 3\n");
}

TEST_F(ByteNamedFolderTest, TheConverterRunsAndItsFileLoads) {
    installProgram("Flume_Converter.exe");
    writeBytes(here("converted.txt"), crlf({"Brooklet: Version 1.0", "CONVERTED", "", "Sub-Area:", "  A1"}));
    orders({"copy inp " + here("converted.txt")});
    writeBytes(here("old.dat"), "OLD FORMAT\r\n");
    platform.openPicks.push_back(here("old.dat"));
    clickMenuItem("mnuFileItem(6)");
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(session().CurrentFile, here("old.inp"));
    EXPECT_EQ(bytesOf(workFile(11)), crlf({"Sub-Area:", "  A1"}));
}

TEST_F(RunCommandsTest, AProgramWithoutExeInItsNameRunsToo) {
    installProgram("flume");
    orders({"lines out 3"});
    openSession(folder.file("shed.inp"));
    run();
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_TRUE(fileExists(folder.file("shed.out")));
}

TEST_F(RunCommandsTest, APathWithBlanksTravelsInTheControlFile) {
    installProgram("flume.exe");
    orders({"lines out 3"});
    createFolder(folder.file("my sheds"));
    const std::string shed = openSession(folder.file("my sheds/willow brook.inp"));
    run();
    EXPECT_EQ(bytesOf(folder.file("stand_in_seen.txt")), shed + "\r\n");
    EXPECT_TRUE(fileExists(folder.file("my sheds/willow brook.out")));
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(viewer()->shownPath(), folder.file("my sheds/willow brook.out"));
}

// Counts its paint events, to see that windows repaint while a program runs.
class PaintProbe : public QWidget {
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paints; }
};

TEST_F(RunCommandsTest, TheWindowsLiveAndRepaintDuringALongRun) {
    installProgram("flume.exe");
    const std::string release = folder.file("release");
    orders({"wait-for " + release, "lines out 3"});
    openSession(folder.file("shed.inp"));
    PaintProbe probe;
    probe.show();
    const int paintsBefore = probe.paints;
    int ticks = 0;
    QTimer ticker;
    // While the model waits, the events go on: ask for a repaint, and let the model end once
    // one has come through.
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        ++ticks;
        if (probe.paints > paintsBefore && !fileExists(release))
            writeBytes(release, "");
        probe.update();
    });
    ticker.start(10);
    run();
    ticker.stop();
    EXPECT_GT(ticks, 0);
    EXPECT_GT(probe.paints, paintsBefore);
    EXPECT_TRUE(fileExists(release)); // the run ended only after the windows had repainted
    EXPECT_TRUE(fileExists(folder.file("shed.out")));
}

TEST_F(RunCommandsTest, ConvertLoadsTheConvertedFileWithoutAQuestion) {
    installProgram("Flume_Converter.exe");
    writeBytes(folder.file("converted.txt"),
               crlf({"Brooklet: Version 1.0", "CONVERTED", "", "Sub-Area:", "  A1"}));
    orders({"copy inp " + folder.file("converted.txt")});
    const std::string old = folder.file("old.dat");
    writeBytes(old, "OLD FORMAT\r\n");
    writeBytes(workFile(8), crlf({"Stream Reach:", "  UNSAVED"}));
    session().DataChanged = true;
    session().CurrentFile = folder.file("earlier.inp");
    platform.openPicks.push_back(old);
    clickMenuItem("mnuFileItem(6)");

    ASSERT_EQ(platform.openDialogs.size(), 1u);
    const FileDialogSettings& dialog = platform.openDialogs[0];
    EXPECT_EQ(dialog.Filter, "Data Files (*.dat)|*.dat|All files (*.*)|*.*");
    EXPECT_EQ(dialog.FilterIndex, 1);
    EXPECT_EQ(dialog.FileName, "*.dat");
    EXPECT_EQ(dialog.DialogTitle, "Open old Flume file");
    EXPECT_TRUE(dialog.CancelError);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(bytesOf(folder.file("flumeConv.fil")), old + "\r\n\r\n");
    EXPECT_EQ(session().ToolName, "Flume Input Converter (Flume_Converter.exe)");
    EXPECT_EQ(session().CurrentFile, folder.file("old.inp"));
    EXPECT_FALSE(session().DataChanged);
    EXPECT_FALSE(fileExists(workFile(8)));
    EXPECT_EQ(bytesOf(workFile(11)), crlf({"Sub-Area:", "  A1"}));
    EXPECT_TRUE(control<QAction>(main, "mnuFileItem(14)")->isEnabled());
    EXPECT_TRUE(control<QAction>(main, "mnuFileItem(15)")->isEnabled());
    EXPECT_EQ(context->windows.shownNames().last(), "frmFlume");
    EXPECT_EQ(main->windowTitle().toStdString(),
              "Brooklet Editor 2001   Current File - " + folder.file("old.inp"));
    EXPECT_EQ(viewer(), nullptr); // no result label was set
}

TEST_F(RunCommandsTest, ConvertWithAResultLabelLeftByARunOpensTheViewer) {
    installProgram("Flume_Converter.exe");
    writeBytes(folder.file("converted.txt"), crlf({"Sub-Area:", "  A1"}));
    orders({"copy inp " + folder.file("converted.txt"), "lines err 2"});
    session().RunResultLabel = "Brooklet Printed Page File";
    platform.openPicks.push_back(folder.file("old.dat"));
    clickMenuItem("mnuFileItem(6)");
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(session().ViewIndex, 5);
}

TEST_F(RunCommandsTest, AConverterThatLeftNoFileLeadsToTheNotFoundBox) {
    installProgram("Flume_Converter.exe");
    orders({});
    platform.openPicks.push_back(folder.file("old.dat"));
    clickMenuItem("mnuFileItem(6)");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text, "Error --- File " + folder.file("old.inp") + " Not Found");
    EXPECT_EQ(session().CurrentFile, "> Untitled <");
}

TEST_F(RunCommandsTest, AMissingConverterSaysNotFoundAndKeepsTheChosenFile) {
    platform.openPicks.push_back(folder.file("old.dat"));
    clickMenuItem("mnuFileItem(6)");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text, "Flume Input Converter (Flume_Converter.exe) - NOT FOUND");
    EXPECT_EQ(session().CurrentFile, folder.file("old.dat"));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(RunCommandsTest, CancellingTheConvertDialogEndsTheCommandWithTheCaption) {
    platform.openPicks.push_back(std::nullopt);
    clickMenuItem("mnuFileItem(6)");
    EXPECT_TRUE(platform.programsRun.empty());
    EXPECT_TRUE(control<QGroupBox>(main, "Frame2")->isVisible());
    EXPECT_EQ(main->windowTitle(), "Brooklet Editor 2001   Current File - > Untitled <");
}

class ImportTest : public RunCommandsTest {
protected:
    void reformatterWrites(const std::vector<std::string>& lines) {
        installProgram("Flume_HECRAS_Rating.exe");
        writeBytes(folder.file("reformatted.txt"), crlf(lines));
        orders({"copy inp " + folder.file("reformatted.txt"), "lines err 3"});
    }
    const std::vector<std::string> reformatted = {
        "HEC-RAS", "REFORMATTED", "", "RIVER 1", "Stream Cross Section:", "  XS9  a", "  XS9  b"};
};

TEST_F(ImportTest, CrossSectionsJoinTheOpenSessionUnderItsOwnName) {
    reformatterWrites(reformatted);
    const std::string shed = openSession(folder.file("shed.inp"));
    writeBytes(workFile(7), crlf({"Stream Cross Section:", "  XS1  a"}));
    session().DataChanged = true;
    platform.answers.push_back(BoxAnswer::No);
    platform.openPicks.push_back(folder.file("river.txt"));
    clickMenuItem("mnuFileItem(7)");

    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"Save and Close current file before loading\rreformatted HEC-RAS cross "
                          "section data ?",
                          "BrookletSystem", BoxButtons::YesNoCancel, BoxIcon::None}));
    ASSERT_EQ(platform.openDialogs.size(), 2u);
    const FileDialogSettings& dialog = platform.openDialogs[1];
    EXPECT_EQ(dialog.Filter, "Text Files (*.txt)|*.txt|All files (*.*)|*.*");
    EXPECT_EQ(dialog.FileName, "*.txt");
    EXPECT_EQ(dialog.DialogTitle, "Open HEC-RAS file");
    EXPECT_EQ(bytesOf(folder.file("flume_HECRAS.fil")), folder.file("river.txt") + "\r\n\r\n");
    EXPECT_EQ(session().ToolName, "HEC-RAS Reformatter (Flume_HECRAS_Rating.exe)");
    EXPECT_EQ(bytesOf(workFile(7)), crlf({"Stream Cross Section:", "  XS1  a", "  XS9  a", "  XS9  b"}));
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  R1        OUTLET"}));
    EXPECT_TRUE(session().DataChanged);
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_EQ(context->windows.shownNames().last(), "frmFlume");
    EXPECT_EQ(viewer(), nullptr); // the result label is one blank during an import
}

TEST_F(ImportTest, IntoAFreshSessionTheFileTakesTheReformattersName) {
    reformatterWrites(reformatted);
    writeBytes(workFile(8), crlf({"Stream Reach:", "  R1"}));
    platform.openPicks.push_back(folder.file("river.txt"));
    clickMenuItem("mnuFileItem(7)");
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(fileLength(workFile(8)), 0u); // the session before was closed
    EXPECT_EQ(bytesOf(workFile(7)), crlf({"Stream Cross Section:", "  XS9  a", "  XS9  b"}));
    EXPECT_EQ(session().CurrentFile, folder.file("river.inp"));
    EXPECT_TRUE(session().DataChanged);
    main->Form_Activate();
    EXPECT_FALSE(menuShown("mnuRun"));
}

TEST_F(ImportTest, CancellingTheQuestionStopsTheImport) {
    reformatterWrites(reformatted);
    openSession(folder.file("shed.inp"));
    session().DataChanged = true;
    platform.answers.push_back(BoxAnswer::Cancel);
    clickMenuItem("mnuFileItem(7)");
    EXPECT_EQ(platform.openDialogs.size(), 1u);
    EXPECT_TRUE(platform.programsRun.empty());
}

TEST_F(ImportTest, AMissingReformatterSaysNotFoundAndKeepsTheSession) {
    const std::string shed = openSession(folder.file("shed.inp"));
    session().DataChanged = true;
    platform.answers.push_back(BoxAnswer::No);
    platform.openPicks.push_back(folder.file("river.txt"));
    clickMenuItem("mnuFileItem(7)");
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[1].text, "HEC-RAS Reformatter (Flume_HECRAS_Rating.exe) - NOT FOUND");
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  R1        OUTLET"}));
}

} // namespace
} // namespace brooklet::test
