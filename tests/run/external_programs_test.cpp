#include "run/external_programs.h"

#include "session/text_file.h"
#include "support/program_folder.h"

#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace brooklet::test {
namespace {

class ExternalProgramsTest : public ProgramFolderTest {
protected:
    ExternalProgramsTest() {
        StartSession(session, currentFolder());
        session.CurrentFile = folder.file("my shed.inp");
    }
    Session session;
};

TEST_F(ExternalProgramsTest, TheThreeProgramsAndTheirControlFiles) {
    EXPECT_STREQ(ModelProgram.ToolName, "Brooklet program file (Flume.exe)");
    EXPECT_STREQ(ModelProgram.Program, "flume.exe");
    EXPECT_STREQ(ModelProgram.ControlFile, "flume.fil");
    EXPECT_STREQ(ConverterProgram.ToolName, "Flume Input Converter (Flume_Converter.exe)");
    EXPECT_STREQ(ConverterProgram.Program, "Flume_Converter.exe");
    EXPECT_STREQ(ConverterProgram.ControlFile, "flumeConv.fil");
    EXPECT_STREQ(ReformatterProgram.ToolName, "HEC-RAS Reformatter (Flume_HECRAS_Rating.exe)");
    EXPECT_STREQ(ReformatterProgram.Program, "Flume_HECRAS_Rating.exe");
    EXPECT_STREQ(ReformatterProgram.ControlFile, "flume_HECRAS.fil");
}

TEST_F(ExternalProgramsTest, TheControlFileHoldsTheFileAndAnEmptyLineAndIsReplaced) {
    writeBytes(folder.file("flume.fil"), "an old control file with more\r\nlines\r\nthan two\r\n");
    ASSERT_TRUE(WriteControlFile(session, "flume.fil").ok);
    EXPECT_EQ(bytesOf(folder.file("flume.fil")), folder.file("my shed.inp") + "\r\n\r\n");
}

TEST_F(ExternalProgramsTest, AProgramWithoutExeIsAcceptedWhenOnlyThatOneIsThere) {
    EXPECT_EQ(ProgramFileName(session, "flume.exe"), "flume.exe"); // neither: the name as it is
    writeBytes(folder.file("flume"), "");
    EXPECT_EQ(ProgramFileName(session, "flume.exe"), "flume");
    writeBytes(folder.file("flume.exe"), "");
    EXPECT_EQ(ProgramFileName(session, "flume.exe"), "flume.exe");
}

TEST_F(ExternalProgramsTest, AnErrorFileOfOneLineCountsAsNoErrors) {
    session.RunResultLabel = "Brooklet Printed Page File";
    writeBytes(folder.file("my shed.err"), "NO ERRORS\r\n");
    EXPECT_TRUE(JudgeRunResult(session));
    EXPECT_EQ(session.ViewIndex, 4);
}

TEST_F(ExternalProgramsTest, AnErrorFileOfTwoLinesShowsTheErrors) {
    session.RunResultLabel = "Brooklet Printed Page File";
    writeBytes(folder.file("my shed.err"), "ERROR 1\r\nERROR 2\r\n");
    EXPECT_TRUE(JudgeRunResult(session));
    EXPECT_EQ(session.ViewIndex, 5);
}

TEST_F(ExternalProgramsTest, NoErrorFileCountsAsNoErrors) {
    session.RunResultLabel = "Brooklet Printed Page File";
    EXPECT_TRUE(JudgeRunResult(session));
    EXPECT_EQ(session.ViewIndex, 4);
}

TEST_F(ExternalProgramsTest, ABlankResultLabelOpensNoViewer) {
    session.RunResultLabel = " ";
    session.ViewIndex = 1;
    EXPECT_FALSE(JudgeRunResult(session));
    EXPECT_EQ(session.ViewIndex, 1);
    writeBytes(folder.file("my shed.err"), "ERROR 1\r\nERROR 2\r\n");
    EXPECT_FALSE(JudgeRunResult(session));
    EXPECT_EQ(session.ViewIndex, 5); // chosen all the same, though nothing shows it
}

TEST_F(ExternalProgramsTest, AProgramStartsByItsNameRelativeToTheProgramFolder) {
    ProgramStart start = PlanProgramStart(session, "flume.exe");
    EXPECT_EQ(start.program, "./flume.exe");
    EXPECT_TRUE(start.arguments.empty());
    EXPECT_EQ(start.folder, folder.path() + "/");
    EXPECT_FALSE(start.wineMissing);
    writeBytes(folder.file("flume"), "");
    EXPECT_EQ(PlanProgramStart(session, "flume.exe").program, "./flume");
}

TEST_F(ExternalProgramsTest, AWindowsProgramBeginsWithMZ) {
    writeBytes(folder.file("a.exe"), "MZ\x90");
    writeBytes(folder.file("b.exe"), "\x7f"
                                     "ELF");
    writeBytes(folder.file("c.exe"), "M");
    EXPECT_TRUE(NeedsWine(folder.file("a.exe")));
    EXPECT_FALSE(NeedsWine(folder.file("b.exe")));
    EXPECT_FALSE(NeedsWine(folder.file("c.exe")));
    EXPECT_FALSE(NeedsWine(folder.file("missing.exe")));
}

// Sets PATH for one test and gives the old one back.
class PathTest : public ExternalProgramsTest {
protected:
    PathTest() : oldPath_(std::getenv("PATH") ? std::getenv("PATH") : "") {}
    ~PathTest() override { setenv("PATH", oldPath_.c_str(), 1); }
    void setPath(const std::string& path) { setenv("PATH", path.c_str(), 1); }

private:
    std::string oldPath_;
};

TEST_F(PathTest, WineIsTheFirstExecutableOfThatNameOnThePath) {
    createFolder(folder.file("one"));
    createFolder(folder.file("two"));
    writeBytes(folder.file("one/wine"), "not executable");
    fs::permissions(folder.file("one/wine"), fs::perms::owner_read | fs::perms::owner_write);
    writeBytes(folder.file("two/wine"), "#!/bin/sh\n");
    fs::permissions(folder.file("two/wine"), fs::perms::owner_all);
    setPath(folder.file("missing") + ":" + folder.file("one") + ":" + folder.file("two"));
    EXPECT_EQ(FindOnPath("wine"), folder.file("two/wine"));
    writeBytes(folder.file("flume.exe"), "MZ");
    const ProgramStart start = PlanProgramStart(session, "flume.exe");
    EXPECT_EQ(start.program, folder.file("two/wine"));
    EXPECT_EQ(start.arguments, std::vector<std::string>{"./flume.exe"});
    EXPECT_FALSE(start.wineMissing);

    setPath(folder.file("one"));
    EXPECT_EQ(FindOnPath("wine"), "");
    EXPECT_TRUE(PlanProgramStart(session, "flume.exe").wineMissing);
}

TEST_F(ExternalProgramsTest, PreparingAStartWritesTheControlFileAndDeletesTheResultsOnly) {
    session.ToolName = "Brooklet program file (Flume.exe)";
    for (const char* extension : {"inp", "out", "err", "dbg", "hyd", "ecn", "txt"})
        writeBytes(folder.file(std::string("my shed.") + extension), "x\r\n");
    EXPECT_EQ(PrepareProgramStart(session, "flume.fil"), std::nullopt);
    EXPECT_EQ(bytesOf(folder.file("flume.fil")), folder.file("my shed.inp") + "\r\n\r\n");
    for (const char* extension : {"out", "err", "dbg", "hyd", "ecn"})
        EXPECT_FALSE(fileExists(folder.file(std::string("my shed.") + extension))) << extension;
    EXPECT_TRUE(fileExists(folder.file("my shed.inp")));
    EXPECT_TRUE(fileExists(folder.file("my shed.txt")));
}

TEST(JudgeProgramEndTest, AnExitStatusOfItsOwnMeansNothing) {
    for (int status : {0, 1, 3, 4, 127, 255})
        for (bool throughWine : {false, true})
            EXPECT_EQ(JudgeProgramEnd({ProgramEnd::Finished, status}, throughWine).end, ProgramEnd::Finished)
                << status << " " << throughWine;
}

TEST(JudgeProgramEndTest, ASignalIsACrash) {
    const JudgedEnd end = JudgeProgramEnd({ProgramEnd::Crashed, 9}, false);
    EXPECT_EQ(end.end, ProgramEnd::Crashed);
    EXPECT_EQ(end.how, "signal 9");
    EXPECT_EQ(JudgeProgramEnd({ProgramEnd::Crashed, 11}, true).how, "signal 11");
}

TEST(JudgeProgramEndTest, AStopAndAFailedStartStayAsTheyCame) {
    EXPECT_EQ(JudgeProgramEnd({ProgramEnd::Stopped, 9}, true).end, ProgramEnd::Stopped);
    EXPECT_EQ(JudgeProgramEnd({ProgramEnd::NotStarted, 0}, true).end, ProgramEnd::NotStarted);
}

// Wine ends with the low byte of the Windows exception code where a Unix exit status keeps no more.
TEST(JudgeProgramEndTest, TheStatusesWineGivesForWindowsExceptionsAreCrashes) {
    struct Case {
        int status;
        const char* how;
    };
    const Case cases[] = {
        {0x05, "exit code 5 from Wine: Windows exception 0xC0000005, access violation"},
        {0xFD, "exit code 253 from Wine: Windows exception 0xC00000FD, stack overflow"},
        {0x94, "exit code 148 from Wine: Windows exception 0xC0000094, integer division by zero"},
        {0x1D, "exit code 29 from Wine: Windows exception 0xC000001D, illegal instruction"},
        {0x8E, "exit code 142 from Wine: Windows exception 0xC000008E, floating-point division by zero"},
        {0x90, "exit code 144 from Wine: Windows exception 0xC0000090, floating-point invalid operation"},
        {0x09, "exit code 9 from Wine: Windows exception 0xC0000409, stack buffer overrun"},
    };
    for (const Case& c : cases) {
        const JudgedEnd end = JudgeProgramEnd({ProgramEnd::Finished, c.status}, true);
        EXPECT_EQ(end.end, ProgramEnd::Crashed) << c.status;
        EXPECT_EQ(end.how, c.how);
        // The same status from a program of this system is its own affair.
        EXPECT_EQ(JudgeProgramEnd({ProgramEnd::Finished, c.status}, false).end, ProgramEnd::Finished)
            << c.status;
    }
}

// Where the whole status is seen, it is the exception's code itself.
TEST(JudgeProgramEndTest, AWholeWindowsExceptionCodeIsACrash) {
    const int accessViolation = static_cast<int>(0xC0000005u);
    for (bool throughWine : {false, true}) {
        const JudgedEnd end = JudgeProgramEnd({ProgramEnd::Finished, accessViolation}, throughWine);
        EXPECT_EQ(end.end, ProgramEnd::Crashed);
        EXPECT_EQ(end.how, "exit code 0xC0000005, access violation");
    }
    EXPECT_EQ(JudgeProgramEnd({ProgramEnd::Finished, static_cast<int>(0xC00000FDu)}, true).how,
              "exit code 0xC00000FD, stack overflow");
    // A crash told as such by the system keeps the exception's words.
    EXPECT_EQ(JudgeProgramEnd({ProgramEnd::Crashed, accessViolation}, false).how,
              "exit code 0xC0000005, access violation");
}

TEST_F(ExternalProgramsTest, TheQuestionBeforeAResultFileIsWrittenOverAnotherNamesItsFile) {
    const std::string inp = folder.file("old.inp");
    EXPECT_EQ(ReplaceResultFileQuestion("Flume Input Converter (Flume_Converter.exe)", inp), std::nullopt);
    writeBytes(inp, "DAYS OF WORK\r\n");
    EXPECT_EQ(
        ReplaceResultFileQuestion("Flume Input Converter (Flume_Converter.exe)", inp),
        (BoxRequest{"The file " + inp +
                        " already exists. Flume Input Converter (Flume_Converter.exe) writes its result "
                        "into that file, and what the file holds now is lost.\r\rReplace it?",
                    "BrookletSystem", BoxButtons::YesNo, BoxIcon::Exclamation}));
}

} // namespace
} // namespace brooklet::test

namespace brooklet::test {
namespace {

TEST(JudgeProgramEndTest, WinesReportOfAnUnhandledExceptionIsACrashWhateverItsStatus) {
    const std::string pageFault = "wine: Unhandled page fault on write access to 0000000000000000 at address "
                                  "000000014000F946 (thread 0238), starting debugger...\n";
    for (int status : {0, 5, 3}) {
        const JudgedEnd end = JudgeProgramEnd({ProgramEnd::Finished, status}, true, pageFault);
        EXPECT_EQ(end.end, ProgramEnd::Crashed) << status;
        EXPECT_EQ(end.how, "Windows exception 0xC0000005, access violation, told by Wine");
    }
    EXPECT_EQ(JudgeProgramEnd({ProgramEnd::Finished, 0}, true,
                              "wine: Unhandled exception 0xc0000094 in thread 24 at address 0x1400015\n")
                  .how,
              "Windows exception 0xC0000094, integer division by zero, told by Wine");
    EXPECT_EQ(
        JudgeProgramEnd({ProgramEnd::Finished, 0}, true, "wine: Unhandled stack overflow at address 0\n").how,
        "Windows exception 0xC00000FD, stack overflow, told by Wine");
}

TEST(JudgeProgramEndTest, OtherMessagesOfWineAndProgramsOfThisSystemAreNoCrash) {
    EXPECT_EQ(JudgeProgramEnd({ProgramEnd::Finished, 0}, true, "fixme:ntdll:whatever\n").end,
              ProgramEnd::Finished);
    EXPECT_EQ(JudgeProgramEnd({ProgramEnd::Finished, 0}, false, "wine: Unhandled page fault\n").end,
              ProgramEnd::Finished);
}

TEST(WindowsCodePageNameTest, WesternLettersTakeTheirPlaceInTheCodePage) {
    EXPECT_EQ(WindowsCodePageName("/tmp/plain name.inp"), "/tmp/plain name.inp");
    EXPECT_EQ(WindowsCodePageName("/tmp/M\xC3\xBChl Bach/Sch\xC3\xA4"
                                  "fer.inp"),
              "/tmp/M\xFChl Bach/Sch\xE4"
              "fer.inp");
    EXPECT_EQ(WindowsCodePageName("\xE2\x82\xAC \xC5\x92 \xC5\xB8"),
              "\x80 \x8C \x9F"); // euro, OE, Y diaeresis
}

TEST(WindowsCodePageNameTest, ALetterTheCodePageHasNotOrBytesThatAreNoUtf8GiveNothing) {
    EXPECT_EQ(WindowsCodePageName("/tmp/\xD0\x96.inp"), std::nullopt); // a Cyrillic letter
    EXPECT_EQ(WindowsCodePageName("/tmp/\xC2\x81.inp"), std::nullopt); // a control the code page leaves out
    EXPECT_EQ(WindowsCodePageName("/tmp/\xFC.inp"), std::nullopt);     // Latin-1, not UTF-8
    EXPECT_EQ(WindowsCodePageName("/tmp/\xC3"), std::nullopt);         // cut short
}

TEST(WindowsCodePageNameTest, AControlFileForAWindowsProgramNamesTheFileInItsCodePage) {
    ProgramFolder folder;
    Session session;
    StartSession(session, folder.path());
    session.CurrentFile = folder.path() + "/Sch\xC3\xA4"
                                          "fer.inp";
    ASSERT_TRUE(WriteControlFile(session, "flume.fil", true).ok);
    EXPECT_EQ(bytesOf(folder.file("flume.fil")), folder.path() + "/Sch\xE4"
                                                                 "fer.inp\r\n\r\n");
    session.CurrentFile = folder.path() + "/\xD0\x96.inp";
    const WriteResult refused = WriteControlFile(session, "flume.fil", true);
    EXPECT_FALSE(refused.ok);
    EXPECT_NE(refused.error.find("cannot be given"), std::string::npos);
}

} // namespace
} // namespace brooklet::test
