// The model as a real Windows program, started through Wine: a run that leaves its printed page,
// one that leaves an error file, one that crashes and one that hangs until Stop, all in a program
// folder whose name holds blanks and letters beyond ASCII; and the converter and the reformatter.
#include "run/external_programs.h"
#include "run/file_viewer.h"
#include "session/text_file.h"
#include "support/ui_fixture.h"

#include <QAction>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileSystemWatcher>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace brooklet::test {
namespace {

// Whether Wine runs a Windows program here: the stand-in, given no orders, ends with its own code.
std::string whyWineCannotRun() {
    if (std::string(BROOKLET_WINDOWS_STAND_IN).empty())
        return "the MinGW-w64 cross compiler was not found, so there is no Windows stand-in";
    if (QStandardPaths::findExecutable("wine").isEmpty())
        return "Wine is not installed";
    QProcess probe;
    probe.setWorkingDirectory(QDir::tempPath());
    probe.start("wine", {BROOKLET_WINDOWS_STAND_IN});
    if (!probe.waitForFinished(120000))
        return "Wine did not run a Windows program within two minutes";
    if (probe.exitStatus() != QProcess::NormalExit || probe.exitCode() != 3)
        return "Wine cannot start a 64-bit Windows program on this machine (exit code " +
               std::to_string(probe.exitCode()) + ")";
    return std::string();
}

class WineTest : public UiTest {
protected:
    void SetUp() override {
        static const std::string whyNot = whyWineCannotRun();
        if (!whyNot.empty())
            GTEST_SKIP() << whyNot;
        fs::create_directories(programFolder);
        setCurrentFolder(programFolder);
        fs::copy_file(BROOKLET_WINDOWS_STAND_IN, here("flume.exe"));
        startMain();
    }
    std::string here(const std::string& name) const { return programFolder + "/" + name; }
    void orders(const std::vector<std::string>& lines) {
        writeBytes(here("stand_in_orders.txt"), crlf(lines));
    }
    void openSession() {
        writeBytes(shed,
                   crlf({"Brooklet: Version 1.0", "A WATERSHED", "", "Stream Reach:", "  R1        OUTLET"}));
        platform.openPicks.push_back(shed);
        clickMenuItem("mnuFileItem(2)");
        main->Form_Activate();
    }
    void run() { clickMenuItem("mnuRun"); }
    QString viewerText() {
        auto* viewer = context->windows.loadedAs<frmFileDisp>("frmFileDisp");
        return viewer ? control<QPlainTextEdit>(viewer, "RichTextBox1")->toPlainText()
                      : QString("(no viewer)");
    }
    // The processes whose command line names the program folder: the stand-in and its copies.
    int standInsRunning() const {
        const std::string token = fs::path(folder.path()).filename().string();
        int count = 0;
        for (const auto& entry : fs::directory_iterator("/proc")) {
            std::ifstream in(entry.path() / "cmdline", std::ios::binary);
            const std::string line((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
            if (line.find(token) != std::string::npos && line.find("flume.exe") != std::string::npos)
                ++count;
        }
        return count;
    }

    const std::string programFolder = folder.file("Mühl Bach");
    const std::string shed = programFolder + "/Schäfer Wiese.inp";
    const std::string base = programFolder + "/Schäfer Wiese.";
};

TEST_F(WineTest, ARunLeavesThePrintedPageBesideAFileWithBlanksAndAccentsInItsName) {
    orders({"lines out 3"});
    openSession();
    run();
    EXPECT_TRUE(platform.boxes.empty()) << platform.boxes[0].text;
    ASSERT_EQ(platform.programsRun.size(), 1u);
    EXPECT_EQ(platform.programsRun[0].arguments, std::vector<std::string>{"./flume.exe"});
    // The Windows program reads the name in its code page, and finds the file by it.
    EXPECT_EQ(bytesOf(here("stand_in_seen.txt")), *WindowsCodePageName(shed) + "\r\n");
    EXPECT_EQ(bytesOf(base + "out"), crlf({"RESULT LINE 1", "RESULT LINE 2", "RESULT LINE 3"}));
    EXPECT_EQ(session().ViewIndex, 4);
    EXPECT_EQ(viewerText(), "RESULT LINE 1\nRESULT LINE 2\nRESULT LINE 3\n");
}

TEST_F(WineTest, ARunWithErrorsShowsTheErrorFile) {
    orders({"lines out 1", "lines err 2"});
    openSession();
    run();
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(session().ViewIndex, 5);
    EXPECT_EQ(viewerText(), "RESULT LINE 1\nRESULT LINE 2\n");
}

// Wine's exit status after a crash is sometimes 0; its report on the error output is what counts,
// so every run of a crashing program is told as a crash with its exception's code.
TEST_F(WineTest, ACrashIsToldWithItsExceptionCodeEveryTime) {
    orders({"lines out 2", "crash"});
    openSession();
    for (int time = 1; time <= 5; ++time) {
        platform.boxes.clear();
        run();
        EXPECT_EQ(
            platform.boxTexts(),
            std::vector<std::string>{"Brooklet program file (Flume.exe) ended abnormally (Windows exception "
                                     "0xC0000005, access violation, told by Wine). Its results may be "
                                     "incomplete."})
            << "run " << time;
        EXPECT_EQ(bytesOf(base + "out"), crlf({"RESULT LINE 1", "RESULT LINE 2"}));
    }
}

TEST_F(WineTest, StopEndsAHangingProgramAndTheProgramItStarted) {
    orders({"hang"});
    openSession();
    // Stop once the hanging program has started its copy, which says so in a file.
    QFileSystemWatcher watcher({QString::fromStdString(programFolder)});
    bool stopped = false;
    QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, main, [&] {
        if (stopped || !fileExists(here("stand_in_child.txt")))
            return;
        stopped = true;
        clickMenuItem("mnuStop");
    });
    run();
    ASSERT_TRUE(stopped);
    EXPECT_EQ(platform.boxTexts(), std::vector<std::string>{"Brooklet program file (Flume.exe) was stopped "
                                                            "before its end. Its results are incomplete."});
    EXPECT_EQ(context->windows.loaded("frmFileDisp"), nullptr);
    // A killed process leaves the process table once it is gone; allow the system its moment.
    QDeadlineTimer deadline(20000);
    while (standInsRunning() > 0 && !deadline.hasExpired())
        QThread::msleep(20);
    EXPECT_EQ(standInsRunning(), 0) << "a program Wine started for the model outlived the stop";
}

// The converter and the reformatter as Windows programs: their results are read as from programs
// of this system.
TEST_F(WineTest, ConvertThroughWineLoadsTheConvertedFile) {
    fs::copy_file(BROOKLET_WINDOWS_STAND_IN, here("Flume_Converter.exe"));
    writeBytes(folder.file("converted.txt"), crlf({"Sub-Area:", "  A1"}));
    orders({"copy inp " + folder.file("converted.txt")});
    const std::string old = programFolder + "/alte Daten.dat";
    writeBytes(old, crlf({"OLD RECORD 1"}));
    platform.openPicks.push_back(old);
    clickMenuItem("mnuFileItem(6)");
    EXPECT_TRUE(platform.boxes.empty()) << platform.boxTexts()[0];
    EXPECT_EQ(session().CurrentFile, programFolder + "/alte Daten.inp");
    EXPECT_EQ(bytesOf(programFolder + "/alte Daten.inp"), crlf({"Sub-Area:", "  A1"}));
    EXPECT_EQ(bytesOf(workFile(11)), crlf({"Sub-Area:", "  A1"}));
}

TEST_F(WineTest, ImportThroughWineAddsTheReformattedCrossSections) {
    fs::copy_file(BROOKLET_WINDOWS_STAND_IN, here("Flume_HECRAS_Rating.exe"));
    writeBytes(folder.file("reformatted.txt"),
               crlf({"HEC-RAS", "REFORMATTED", "", "RIVER 1", "Stream Cross Section:", "  XS9  a"}));
    orders({"copy inp " + folder.file("reformatted.txt")});
    platform.openPicks.push_back(programFolder + "/Fluß.txt");
    writeBytes(programFolder + "/Fluß.txt", crlf({"HEC-RAS OUTPUT"}));
    clickMenuItem("mnuFileItem(7)");
    EXPECT_TRUE(platform.boxes.empty()) << platform.boxTexts()[0];
    EXPECT_EQ(session().CurrentFile, programFolder + "/Fluß.inp");
    EXPECT_EQ(bytesOf(workFile(7)), crlf({"Stream Cross Section:", "  XS9  a"}));
    EXPECT_TRUE(session().DataChanged);
}

} // namespace
} // namespace brooklet::test
