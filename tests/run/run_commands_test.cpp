#include "run/file_viewer.h"
#include "run/run_commands.h"
#include "session/text_file.h"
#include "support/ui_fixture.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSocketNotifier>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <map>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

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

    // What a command that fails or is refused leaves as it found it.
    struct SessionSnapshot {
        std::string CurrentFile;
        bool DataChanged = false;
        std::string caption;
        bool saveEnabled = false;
        bool saveAsEnabled = false;
        std::vector<std::optional<std::string>> workFiles; // 1 to 16
    };
    SessionSnapshot snapshot() {
        SessionSnapshot state{session().CurrentFile,
                              session().DataChanged,
                              main->windowTitle().toStdString(),
                              control<QAction>(main, "mnuFileItem(14)")->isEnabled(),
                              control<QAction>(main, "mnuFileItem(15)")->isEnabled(),
                              {}};
        for (int number = 1; number <= WorkFileCount; ++number)
            state.workFiles.push_back(readFileBytes(workFile(number)));
        return state;
    }
    void expectSessionAsBefore(const SessionSnapshot& before) {
        const SessionSnapshot now = snapshot();
        EXPECT_EQ(now.CurrentFile, before.CurrentFile);
        EXPECT_EQ(now.DataChanged, before.DataChanged);
        EXPECT_EQ(now.caption, before.caption);
        EXPECT_EQ(now.saveEnabled, before.saveEnabled);
        EXPECT_EQ(now.saveAsEnabled, before.saveAsEnabled);
        for (int number = 1; number <= WorkFileCount; ++number)
            EXPECT_EQ(now.workFiles[number - 1], before.workFiles[number - 1]) << "work file " << number;
    }
    // Opens a session on a file and keeps unsaved changes in it: a reach accepted but not saved.
    std::string openSessionWithUnsavedChanges(const std::string& path) {
        openSession(path);
        writeBytes(workFile(8), crlf({"Stream Reach:", "  UNSAVED"}));
        session().DataChanged = true;
        main->Form_Activate();
        return path;
    }
    // An old input file of fourteen lines, as an engineer keeps it.
    std::string oldDataFile() {
        std::vector<std::string> lines;
        for (int i = 1; i <= 14; ++i)
            lines.push_back("OLD RECORD " + std::to_string(i));
        writeBytes(folder.file("old.dat"), crlf(lines));
        return folder.file("old.dat");
    }

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

TEST_F(RunCommandsTest, AModelThatIsNoProgramIsToldByNameWithWhatToDo) {
    writeBytes(folder.file("flume.exe"), "a page of notes saved under the model's name\r\n");
    fs::permissions(folder.file("flume.exe"), fs::perms::owner_all);
    const std::string shed = openSession(folder.file("shed.inp"));
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(
        platform.boxes[0],
        (BoxRequest{"Brooklet program file (Flume.exe) could not be started: the file " +
                        folder.file("flume.exe") +
                        " is not a program this system can run. Put the program itself in the program folder "
                        "under that name.",
                    "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(viewer(), nullptr);
    EXPECT_EQ(bytesOf(shed),
              crlf({"Brooklet: Version 1.0", "A WATERSHED", "", "Stream Reach:", "  R1        OUTLET"}));
    EXPECT_FALSE(session().DataChanged);
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

// What the main window's menus offer at one moment.
struct MenuState {
    std::map<std::string, bool> enabled;
    bool stopShown = false;
};

class RunStateTest : public RunCommandsTest {
protected:
    MenuState menuState() {
        MenuState state;
        for (const char* name : {"mnuFileItem(1)", "mnuFileItem(2)", "mnuFileItem(3)", "mnuFileItem(6)",
                                 "mnuFileItem(7)", "mnuFileItem(10)", "mnuFileItem(11)", "mnuFileItem(14)",
                                 "mnuFileItem(15)", "mnuFileItem(18)", "mnuRun", "mnuStop"})
            state.enabled[name] = control<QAction>(main, name)->isEnabled();
        state.stopShown = menuShown("mnuStop");
        return state;
    }
    // Runs the model, doing the given step once the program runs, from the event loop that waits.
    void runAndWhileRunning(std::function<void()> step) {
        QTimer::singleShot(0, main, std::move(step));
        run();
    }
    // A model that runs until the test lets it end by creating the release file.
    void installWaitingModel() {
        installProgram("flume.exe");
        orders({"wait-for " + release, "lines out 3", "lines err 1"});
    }
    const std::string release = folder.file("release");
};

TEST_F(RunStateTest, WhileAProgramRunsTheCommandsThatChangeTheSessionAreDisabled) {
    installWaitingModel();
    openSession(folder.file("shed.inp"));
    const MenuState before = menuState();
    EXPECT_FALSE(before.stopShown);
    MenuState during;
    runAndWhileRunning([&] {
        during = menuState();
        writeBytes(release, "");
    });
    for (const char* name :
         {"mnuFileItem(1)", "mnuFileItem(2)", "mnuFileItem(3)", "mnuFileItem(6)", "mnuFileItem(7)",
          "mnuFileItem(10)", "mnuFileItem(11)", "mnuFileItem(14)", "mnuFileItem(15)", "mnuRun"})
        EXPECT_FALSE(during.enabled[name]) << name;
    EXPECT_TRUE(during.enabled["mnuFileItem(18)"]); // Exit stays
    EXPECT_TRUE(during.stopShown);
    EXPECT_TRUE(during.enabled["mnuStop"]);
    // Afterwards every item is as it was before.
    const MenuState after = menuState();
    EXPECT_EQ(after.enabled, before.enabled);
    EXPECT_FALSE(after.stopShown);
    EXPECT_NE(viewer(), nullptr);
}

TEST_F(RunStateTest, AfterTheRunSaveStaysDisabledInASessionThatHadItDisabled) {
    installWaitingModel();
    openSession(folder.file("shed.inp"));
    main->setFileItemEnabled(14, false);
    runAndWhileRunning([&] { writeBytes(release, ""); });
    EXPECT_FALSE(control<QAction>(main, "mnuFileItem(14)")->isEnabled());
    EXPECT_TRUE(control<QAction>(main, "mnuFileItem(15)")->isEnabled());
}

TEST_F(RunStateTest, StopEndsTheProgramAndSaysSo) {
    installWaitingModel();
    writeBytes(folder.file("shed.err"), crlf({"OLD ERROR 1", "OLD ERROR 2"}));
    openSession(folder.file("shed.inp"));
    runAndWhileRunning([&] { clickMenuItem("mnuStop"); });
    EXPECT_EQ(platform.stopCount, 1);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"Brooklet program file (Flume.exe) was stopped before its end. Its results are "
                          "incomplete.",
                          "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_EQ(viewer(), nullptr); // nothing is judged
    EXPECT_FALSE(fileExists(folder.file("shed.out")));
    EXPECT_FALSE(fileExists(folder.file("shed.err"))); // the old errors went before the start
    EXPECT_FALSE(menuShown("mnuStop"));
    EXPECT_TRUE(control<QAction>(main, "mnuRun")->isEnabled());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// The model starts a program of its own, which would outlive it; it tells its process number
// through a named pipe and holds the pipe open for as long as it lives.
TEST_F(RunStateTest, StopEndsTheProgramsTheModelStartedToo) {
    const std::string fifo = folder.file("child.fifo");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    const int pipe = ::open(fifo.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(pipe, 0);
    installProgram("flume.exe");
    orders({"spawn-child " + fifo, "wait-for " + release, "lines out 3"});
    openSession(folder.file("shed.inp"));
    // Stop once the child runs, that is once its number has come through the pipe.
    std::string childNumber;
    QSocketNotifier childTold(pipe, QSocketNotifier::Read);
    QObject::connect(&childTold, &QSocketNotifier::activated, main, [&] {
        char buffer[32];
        const ssize_t got = ::read(pipe, buffer, sizeof buffer);
        if (got <= 0)
            return;
        childNumber.append(buffer, static_cast<size_t>(got));
        if (childNumber.back() != '\n')
            return;
        childTold.setEnabled(false);
        clickMenuItem("mnuStop");
    });
    run();
    ASSERT_FALSE(childNumber.empty());
    EXPECT_EQ(platform.boxTexts(), std::vector<std::string>{"Brooklet program file (Flume.exe) was stopped "
                                                            "before its end. Its results are incomplete."});
    EXPECT_FALSE(menuShown("mnuStop"));
    EXPECT_EQ(viewer(), nullptr);
    // The pipe ends when the last program holding it is gone: a read then finds its end.
    pollfd end{pipe, POLLIN, 0};
    const int ready = ::poll(&end, 1, 20000);
    char rest[32];
    const ssize_t read = ready == 1 ? ::read(pipe, rest, sizeof rest) : -1;
    ::close(pipe);
    const bool childGone = ready == 1 && read == 0;
    if (!childGone) // it still holds the pipe, so the number is still its own: it goes now
        ::kill(static_cast<pid_t>(std::stol(childNumber)), SIGKILL);
    EXPECT_TRUE(childGone) << "the child outlived the stop";
}

TEST_F(RunStateTest, ExitDuringARunAnsweredYesStopsTheProgramAndEnds) {
    installWaitingModel();
    openSession(folder.file("shed.inp"));
    platform.answers.push_back(BoxAnswer::Yes);
    runAndWhileRunning([&] { clickMenuItem("mnuFileItem(18)"); });
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"Brooklet program file (Flume.exe) is running. Stop it and exit?", "BrookletSystem",
                          BoxButtons::YesNo, BoxIcon::Question}));
    EXPECT_EQ(platform.stopCount, 1);
    EXPECT_EQ(platform.endCount, 1);
    EXPECT_EQ(viewer(), nullptr);
    EXPECT_FALSE(fileExists(folder.file("shed.out")));
}

TEST_F(RunStateTest, ExitDuringARunAnsweredNoKeepsBrookletAndTheRun) {
    installWaitingModel();
    openSession(folder.file("shed.inp"));
    platform.answers.push_back(BoxAnswer::No);
    runAndWhileRunning([&] {
        clickMenuItem("mnuFileItem(18)");
        writeBytes(release, "");
    });
    EXPECT_EQ(platform.boxTexts(),
              std::vector<std::string>{"Brooklet program file (Flume.exe) is running. Stop it and exit?"});
    EXPECT_EQ(platform.stopCount, 0);
    EXPECT_EQ(platform.endCount, 0);
    ASSERT_NE(viewer(), nullptr); // the run went on to its end
    EXPECT_EQ(session().ViewIndex, 4);
    EXPECT_TRUE(main->isVisible());
}

TEST_F(RunStateTest, TheCloseBoxDuringARunAsksAndNoKeepsTheWindowOpen) {
    installWaitingModel();
    openSession(folder.file("shed.inp"));
    platform.answers.push_back(BoxAnswer::No);
    bool closed = true;
    runAndWhileRunning([&] {
        closed = main->close();
        writeBytes(release, "");
    });
    EXPECT_FALSE(closed);
    EXPECT_TRUE(main->isVisible());
    EXPECT_EQ(platform.boxTexts(),
              std::vector<std::string>{"Brooklet program file (Flume.exe) is running. Stop it and exit?"});
    EXPECT_NE(viewer(), nullptr);
}

TEST_F(RunStateTest, TheCloseBoxDuringARunAnsweredYesStopsTheProgramAndCloses) {
    installWaitingModel();
    openSession(folder.file("shed.inp"));
    platform.answers.push_back(BoxAnswer::Yes);
    bool closed = false;
    runAndWhileRunning([&] { closed = main->close(); });
    EXPECT_TRUE(closed);
    EXPECT_FALSE(main->isVisible());
    EXPECT_EQ(platform.stopCount, 1);
    EXPECT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(viewer(), nullptr);
}

TEST_F(RunStateTest, AStoppedConvertLeavesTheSessionAsItWas) {
    installProgram("Flume_Converter.exe");
    writeBytes(folder.file("converted.txt"), crlf({"Sub-Area:", "  A1"}));
    orders({"wait-for " + release, "copy inp " + folder.file("converted.txt")});
    const std::string shed = openSessionWithUnsavedChanges(folder.file("shed.inp"));
    const std::string old = oldDataFile();
    const SessionSnapshot before = snapshot();
    const auto windowsShown = context->windows.shownNames().size();
    platform.answers.push_back(BoxAnswer::No); // the unsaved changes need not be saved first
    platform.openPicks.push_back(old);
    QTimer::singleShot(0, main, [&] { clickMenuItem("mnuStop"); });
    clickMenuItem("mnuFileItem(6)");
    EXPECT_EQ(
        platform.boxTexts(),
        (std::vector<std::string>{"Save and Close current file before loading\rconverted old Flume data ?",
                                  "Flume Input Converter (Flume_Converter.exe) was stopped before its end. "
                                  "Its results are incomplete."}));
    EXPECT_EQ(platform.stopCount, 1);
    EXPECT_FALSE(fileExists(folder.file("old.inp")));
    EXPECT_EQ(bytesOf(old),
              crlf({"OLD RECORD 1", "OLD RECORD 2", "OLD RECORD 3", "OLD RECORD 4", "OLD RECORD 5",
                    "OLD RECORD 6", "OLD RECORD 7", "OLD RECORD 8", "OLD RECORD 9", "OLD RECORD 10",
                    "OLD RECORD 11", "OLD RECORD 12", "OLD RECORD 13", "OLD RECORD 14"}));
    expectSessionAsBefore(before);
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_TRUE(session().DataChanged);
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  UNSAVED"}));
    EXPECT_EQ(main->windowTitle().toStdString(), "Brooklet Editor 2001   Current File - " + shed);
    EXPECT_EQ(context->windows.shownNames().size(), windowsShown); // frmFlume did not open
}

TEST_F(RunCommandsTest, ACrashIsToldAndTheErrorFileStillDecides) {
    installProgram("flume.exe");
    orders({"lines out 3", "lines err 2", "crash", "lines dbg 3"});
    openSession(folder.file("shed.inp"));
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0],
              (BoxRequest{"Brooklet program file (Flume.exe) ended abnormally (signal 9). Its results may be "
                          "incomplete.",
                          "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_FALSE(fileExists(folder.file("shed.dbg"))); // the program did end at the crash
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(session().ViewIndex, 5);
    EXPECT_EQ(control<QLabel>(viewer(), "lblWindow")->text(), "Brooklet Error File");
}

TEST_F(RunCommandsTest, ACrashWithoutErrorsShowsThePrintedPageFile) {
    installProgram("flume.exe");
    orders({"lines out 3", "crash"});
    openSession(folder.file("shed.inp"));
    run();
    EXPECT_EQ(platform.boxTexts(), std::vector<std::string>{"Brooklet program file (Flume.exe) ended "
                                                            "abnormally (signal 9). Its results may be "
                                                            "incomplete."});
    EXPECT_EQ(session().ViewIndex, 4);
    ASSERT_NE(viewer(), nullptr);
}

TEST_F(RunCommandsTest, ResultsOfAnEarlierRunAreDeletedBeforeTheStart) {
    installProgram("flume.exe");
    orders({"lines out 2"});
    openSession(folder.file("shed.inp"));
    for (const char* extension : {"out", "err", "dbg", "hyd", "ecn"})
        writeBytes(folder.file(std::string("shed.") + extension), crlf({"EARLIER RUN", "EARLIER RUN"}));
    writeBytes(folder.file("shed.keep"), "NOT A RESULT\r\n");
    run();
    EXPECT_EQ(bytesOf(folder.file("shed.out")), crlf({"RESULT LINE 1", "RESULT LINE 2"}));
    for (const char* extension : {"err", "dbg", "hyd", "ecn"})
        EXPECT_FALSE(fileExists(folder.file(std::string("shed.") + extension))) << extension;
    EXPECT_EQ(bytesOf(folder.file("shed.keep")), "NOT A RESULT\r\n");
    EXPECT_EQ(bytesOf(folder.file("shed.inp")).substr(0, 21), "Brooklet: Version 1.0");
    // The earlier errors are not this run's: the printed page file shows.
    EXPECT_EQ(session().ViewIndex, 4);
    main->Form_Activate();
    EXPECT_FALSE(control<QAction>(main, "mnuViewItem(5)")->isEnabled());
}

TEST_F(RunCommandsTest, AResultFileThatCannotBeDeletedStartsNothing) {
    installProgram("flume.exe");
    orders({"lines out 3"});
    openSession(folder.file("shed.inp"));
    createFolder(folder.file("shed.hyd/inside")); // a folder with content stands where a result was
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{"The file " + folder.file("shed.hyd") +
                                                 " of an earlier run could not be deleted. Brooklet program "
                                                 "file (Flume.exe) was not started.",
                                             "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_TRUE(platform.programsRun.empty());
    EXPECT_EQ(viewer(), nullptr);
}

TEST_F(RunCommandsTest, AnUntitledSessionIsNeverRun) {
    installProgram("flume.exe");
    orders({"lines out 3"});
    clickMenuItem("mnuFileItem(1)");
    platform.savePicks.push_back(std::nullopt); // Save As, cancelled
    clickMenuItem("mnuFileItem(15)");
    EXPECT_FALSE(menuShown("mnuRun"));
    EXPECT_FALSE(control<QMenu>(main, "mnuView")->menuAction()->isVisible());
    main->Form_Activate();
    EXPECT_FALSE(menuShown("mnuRun"));
    RunModel(*context); // even when asked directly
    EXPECT_TRUE(platform.programsRun.empty());
    EXPECT_FALSE(fileExists(folder.file("flume.fil")));
    EXPECT_FALSE(fileExists(folder.file("> Untitled <")));
    EXPECT_FALSE(fileExists(folder.file("> Untitled <.out")));
    EXPECT_TRUE(platform.boxes.empty());
}

// A Windows program on this system: the program file begins with "MZ".
class WindowsProgramTest : public RunCommandsTest {
protected:
    WindowsProgramTest() : oldPath(qgetenv("PATH")) {
        writeBytes(folder.file("flume.exe"), "MZ a Windows program\r\n");
        createFolder(bin);
        qputenv("PATH", QByteArray::fromStdString(bin));
    }
    ~WindowsProgramTest() override { qputenv("PATH", oldPath); }
    const QByteArray oldPath;
    const std::string bin = folder.file("bin");
};

TEST_F(WindowsProgramTest, StartsThroughWineFromThePath) {
    // A stand-in Wine: notes its arguments and the folder it runs in, and leaves a printed page.
    const std::string wine = bin + "/wine";
    writeBytes(wine, "#!/bin/sh\nprintf '%s\\n' \"$@\" > wine_seen.txt\npwd >> wine_seen.txt\n"
                     "printf 'PAGE\\r\\n' > \"" +
                         folder.file("shed.out") + "\"\n");
    fs::permissions(wine, fs::perms::owner_all);
    const std::string shed = openSession(folder.file("shed.inp"));
    run();
    EXPECT_TRUE(platform.boxes.empty());
    ASSERT_EQ(platform.programsRun.size(), 1u);
    EXPECT_EQ(platform.programsRun[0].program, wine);
    EXPECT_EQ(platform.programsRun[0].arguments, std::vector<std::string>{"./flume.exe"});
    EXPECT_EQ(bytesOf(folder.file("wine_seen.txt")), "./flume.exe\n" + folder.path() + "\n");
    EXPECT_EQ(bytesOf(folder.file("flume.fil")), shed + "\r\n\r\n");
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(control<QPlainTextEdit>(viewer(), "RichTextBox1")->toPlainText(), "PAGE\n");
}

TEST_F(WindowsProgramTest, WithoutWineTheBoxSaysTheProgramNeedsIt) {
    openSession(folder.file("shed.inp"));
    writeBytes(folder.file("shed.out"), crlf({"EARLIER", "RUN"}));
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(
        platform.boxes[0],
        (BoxRequest{"Brooklet program file (Flume.exe) is a Windows program and needs Wine to run on this "
                    "system; Wine was not found on the PATH.",
                    "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    EXPECT_TRUE(platform.programsRun.empty());
    EXPECT_FALSE(fileExists(folder.file("flume.fil")));
    EXPECT_TRUE(fileExists(folder.file("shed.out"))); // nothing ran, so nothing was cleared away
    EXPECT_EQ(viewer(), nullptr);
}

// Wine ends with the low byte of the Windows exception that ended the program: 5 for an access
// violation (0xC0000005). The stand-in plays Wine and ends so.
TEST_F(WindowsProgramTest, AProgramThatCrashesUnderWineIsToldAsACrashWithItsExitCode) {
    fs::copy_file(BROOKLET_STAND_IN_MODEL, bin + "/wine");
    fs::permissions(bin + "/wine", fs::perms::owner_all);
    orders({"lines out 3", "lines err 2", "exit 5"});
    openSession(folder.file("shed.inp"));
    run();
    ASSERT_EQ(platform.programsRun.size(), 1u);
    EXPECT_EQ(platform.programsRun[0].program, bin + "/wine");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(
        platform.boxes[0],
        (BoxRequest{"Brooklet program file (Flume.exe) ended abnormally (exit code 5 from Wine: Windows "
                    "exception 0xC0000005, access violation). Its results may be incomplete.",
                    "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    // The error file decides, as after any run.
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(session().ViewIndex, 5);
}

TEST_F(RunCommandsTest, TheExitStatusOfAProgramOfThisSystemMeansNothing) {
    installProgram("flume.exe");
    orders({"lines out 3", "exit 5"});
    openSession(folder.file("shed.inp"));
    run();
    EXPECT_TRUE(platform.boxes.empty());
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(session().ViewIndex, 4);
}

TEST_F(RunCommandsTest, ConvertAsksAboutUnsavedChangesAndLoadsTheConvertedFile) {
    installProgram("Flume_Converter.exe");
    writeBytes(folder.file("converted.txt"),
               crlf({"Brooklet: Version 1.0", "CONVERTED", "", "Sub-Area:", "  A1"}));
    orders({"copy inp " + folder.file("converted.txt")});
    const std::string old = folder.file("old.dat");
    writeBytes(old, "OLD FORMAT\r\n");
    writeBytes(workFile(8), crlf({"Stream Reach:", "  UNSAVED"}));
    session().DataChanged = true;
    session().CurrentFile = folder.file("earlier.inp");
    // Cancel keeps the session: no file is asked for.
    platform.answers.push_back(BoxAnswer::Cancel);
    clickMenuItem("mnuFileItem(6)");
    EXPECT_TRUE(platform.openDialogs.empty());
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  UNSAVED"}));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text,
              "Save and Close current file before loading\rconverted old Flume data ?");
    platform.boxes.clear();
    platform.answers.push_back(BoxAnswer::No);
    platform.openPicks.push_back(old);
    clickMenuItem("mnuFileItem(6)");

    ASSERT_EQ(platform.openDialogs.size(), 1u);
    const FileDialogSettings& dialog = platform.openDialogs[0];
    EXPECT_EQ(dialog.Filter, "Data Files (*.dat)|*.dat|All files (*.*)|*.*");
    EXPECT_EQ(dialog.FilterIndex, 1);
    EXPECT_EQ(dialog.FileName, "*.dat");
    EXPECT_EQ(dialog.DialogTitle, "Open old Flume file");
    EXPECT_TRUE(dialog.CancelError);
    EXPECT_EQ(platform.boxes.size(), 1u); // the question, answered No
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

TEST_F(RunCommandsTest, AConverterThatLeftNoFileSaysSoAndKeepsTheSession) {
    installProgram("Flume_Converter.exe");
    orders({});
    const std::string shed = openSession(folder.file("shed.inp"));
    const SessionSnapshot before = snapshot();
    platform.openPicks.push_back(oldDataFile());
    clickMenuItem("mnuFileItem(6)");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{"Error --- File " + folder.file("old.inp") + " Not Found",
                                             "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}));
    expectSessionAsBefore(before);
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  R1        OUTLET"}));
}

TEST_F(RunCommandsTest, AMissingConverterSaysNotFoundAndKeepsTheSession) {
    const std::string shed = openSession(folder.file("shed.inp"));
    const SessionSnapshot before = snapshot();
    const std::string old = oldDataFile();
    const std::string oldBytes = bytesOf(old);
    platform.openPicks.push_back(old);
    clickMenuItem("mnuFileItem(6)");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text, "Flume Input Converter (Flume_Converter.exe) - NOT FOUND");
    expectSessionAsBefore(before);
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_EQ(main->windowTitle().toStdString(), "Brooklet Editor 2001   Current File - " + shed);
    EXPECT_EQ(bytesOf(old), oldBytes);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// A Convert whose converter did not start once made the old data file the session's file, and a
// later "Save and Close" wrote the session over it.
TEST_F(RunCommandsTest, AfterAFailedConvertSaveAndCloseWritesTheSessionsOwnFile) {
    const std::string shed = openSession(folder.file("shed.inp"));
    const std::string old = oldDataFile();
    const std::string oldBytes = bytesOf(old);
    platform.openPicks.push_back(old);
    clickMenuItem("mnuFileItem(6)"); // no converter in the program folder
    EXPECT_EQ(session().CurrentFile, shed);
    // An edit accepted afterwards, then another file is opened and the session saved first.
    writeBytes(workFile(8), crlf({"Stream Reach:", "  R2        OUTLET"}));
    session().DataChanged = true;
    main->Form_Activate();
    writeBytes(folder.file("other.inp"), crlf({"Brooklet: Version 1.0", "OTHER"}));
    platform.answers.push_back(BoxAnswer::Yes);
    platform.openPicks.push_back(folder.file("other.inp"));
    clickMenuItem("mnuFileItem(2)");
    EXPECT_EQ(bytesOf(old), oldBytes);
    const std::string saved = bytesOf(shed);
    EXPECT_NE(saved.find("Stream Reach:\r\n  R2        OUTLET\r\n"), std::string::npos) << saved;
    EXPECT_EQ(session().CurrentFile, folder.file("other.inp"));
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

TEST_F(RunCommandsTest, ConvertAsksBeforeItsResultReplacesAnExistingInputFile) {
    installProgram("Flume_Converter.exe");
    writeBytes(folder.file("converted.txt"),
               crlf({"Brooklet: Version 1.0", "CONVERTED", "", "Sub-Area:", "  A1"}));
    orders({"copy inp " + folder.file("converted.txt")});
    const std::string shed = openSession(folder.file("shed.inp"));
    const std::string old = oldDataFile();
    const std::string oldBytes = bytesOf(old);
    const std::string inp = folder.file("old.inp");
    writeBytes(inp, crlf({"Brooklet: Version 1.0", "DAYS OF WORK", "", "Sub-Area:", "  KEEP"}));
    const SessionSnapshot before = snapshot();
    const BoxRequest question{
        "The file " + inp +
            " already exists. Flume Input Converter (Flume_Converter.exe) writes its result "
            "into that file, and what the file holds now is lost.\r\rReplace it?",
        "BrookletSystem", BoxButtons::YesNo, BoxIcon::Exclamation};

    // No: nothing runs and nothing changes.
    platform.answers.push_back(BoxAnswer::No);
    platform.openPicks.push_back(old);
    clickMenuItem("mnuFileItem(6)");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], question);
    EXPECT_TRUE(platform.programsRun.empty());
    EXPECT_FALSE(fileExists(folder.file("flumeConv.fil")));
    EXPECT_EQ(bytesOf(inp), crlf({"Brooklet: Version 1.0", "DAYS OF WORK", "", "Sub-Area:", "  KEEP"}));
    EXPECT_EQ(bytesOf(old), oldBytes);
    expectSessionAsBefore(before);
    EXPECT_EQ(session().CurrentFile, shed);

    // Yes: the converter writes its file, which becomes the session.
    platform.boxes.clear();
    platform.answers.push_back(BoxAnswer::Yes);
    platform.openPicks.push_back(old);
    clickMenuItem("mnuFileItem(6)");
    EXPECT_EQ(platform.boxes, std::vector<BoxRequest>{question});
    EXPECT_EQ(bytesOf(inp), crlf({"Brooklet: Version 1.0", "CONVERTED", "", "Sub-Area:", "  A1"}));
    EXPECT_EQ(session().CurrentFile, inp);
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(bytesOf(workFile(11)), crlf({"Sub-Area:", "  A1"}));
    EXPECT_EQ(fileLength(workFile(8)), 0u);
    EXPECT_EQ(main->windowTitle().toStdString(), "Brooklet Editor 2001   Current File - " + inp);
}

TEST_F(ImportTest, ImportAsksBeforeTheReformattersFileReplacesAnExistingOne) {
    reformatterWrites(reformatted);
    const std::string shed = openSessionWithUnsavedChanges(folder.file("shed.inp"));
    const std::string inp = folder.file("river.inp");
    writeBytes(inp, crlf({"Brooklet: Version 1.0", "RIVER STUDY", "", "Stream Reach:", "  KEEP"}));
    const SessionSnapshot before = snapshot();
    platform.answers = {BoxAnswer::No, BoxAnswer::No}; // the session goes on; the file is not replaced
    platform.openPicks.push_back(folder.file("river.txt"));
    clickMenuItem("mnuFileItem(7)");
    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(
        platform.boxes[1],
        (BoxRequest{"The file " + inp +
                        " already exists. HEC-RAS Reformatter (Flume_HECRAS_Rating.exe) writes its result "
                        "into that file, and what the file holds now is lost.\r\rReplace it?",
                    "BrookletSystem", BoxButtons::YesNo, BoxIcon::Exclamation}));
    EXPECT_TRUE(platform.programsRun.empty());
    EXPECT_FALSE(fileExists(folder.file("flume_HECRAS.fil")));
    EXPECT_EQ(bytesOf(inp), crlf({"Brooklet: Version 1.0", "RIVER STUDY", "", "Stream Reach:", "  KEEP"}));
    expectSessionAsBefore(before);
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_EQ(fileLength(workFile(7)), 0u);

    platform.boxes.clear();
    platform.answers = {BoxAnswer::No, BoxAnswer::Yes};
    platform.openPicks.push_back(folder.file("river.txt"));
    clickMenuItem("mnuFileItem(7)");
    EXPECT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(bytesOf(inp), crlf(reformatted));
    EXPECT_EQ(bytesOf(workFile(7)), crlf({"Stream Cross Section:", "  XS9  a", "  XS9  b"}));
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_TRUE(session().DataChanged);
}

// Without unsaved changes the import begins a session of its own; a stopped one begins nothing.
TEST_F(ImportTest, AStoppedImportLeavesTheSessionAsItWas) {
    installProgram("Flume_HECRAS_Rating.exe");
    const std::string release = folder.file("release");
    writeBytes(folder.file("reformatted.txt"), crlf(reformatted));
    orders({"wait-for " + release, "copy inp " + folder.file("reformatted.txt")});
    const std::string shed = openSession(folder.file("shed.inp"));
    const SessionSnapshot before = snapshot();
    platform.openPicks.push_back(folder.file("river.txt"));
    QTimer::singleShot(0, main, [&] { clickMenuItem("mnuStop"); });
    clickMenuItem("mnuFileItem(7)");
    EXPECT_EQ(platform.boxTexts(),
              std::vector<std::string>{"HEC-RAS Reformatter (Flume_HECRAS_Rating.exe) was "
                                       "stopped before its end. Its results are "
                                       "incomplete."});
    expectSessionAsBefore(before);
    EXPECT_EQ(session().CurrentFile, shed);
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(bytesOf(workFile(8)), crlf({"Stream Reach:", "  R1        OUTLET"}));
    EXPECT_TRUE(control<QAction>(main, "mnuFileItem(14)")->isEnabled());
    EXPECT_FALSE(fileExists(folder.file("river.inp")));
}

TEST_F(ImportTest, AReformatterThatLeftNoFileSaysSoAndKeepsTheSession) {
    installProgram("Flume_HECRAS_Rating.exe");
    orders({});
    const std::string shed = openSession(folder.file("shed.inp"));
    const SessionSnapshot before = snapshot();
    platform.openPicks.push_back(folder.file("river.txt"));
    clickMenuItem("mnuFileItem(7)");
    EXPECT_EQ(platform.boxes,
              (std::vector<BoxRequest>{{"Error --- File " + folder.file("river.inp") + " Not Found",
                                        "BrookletSystem", BoxButtons::Ok, BoxIcon::Exclamation}}));
    expectSessionAsBefore(before);
    EXPECT_EQ(session().CurrentFile, shed);
}

} // namespace
} // namespace brooklet::test
