#include "run/external_programs.h"

#include "session/text_file.h"
#include "support/program_folder.h"

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

} // namespace
} // namespace brooklet::test
