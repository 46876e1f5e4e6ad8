#pragma once
// The three external programs: the model, the converter of old input files and the HEC-RAS
// reformatter. Each is told its data file through a two-line control file in the program
// folder and judged afterwards by the files it leaves beside that data file.
#include <optional>
#include <string>
#include <vector>

#include "session/messages.h"
#include "session/platform.h"
#include "session/section_table.h"
#include "session/text_file.h"

namespace brooklet {

struct ExternalProgram {
    const char* ToolName;
    const char* Program;     // in the program folder
    const char* ControlFile; // in the program folder
};

extern const ExternalProgram ModelProgram;
extern const ExternalProgram ConverterProgram;
extern const ExternalProgram ReformatterProgram;

// Writes the control file: CurrentFile, then an empty line. For a Windows program the name is
// written in the Windows code page it reads names in; false in `ok` when that is not possible.
WriteResult WriteControlFile(const Session& session, const std::string& ControlFile,
                             bool forWindowsProgram = false);

// A name, given in UTF-8 as this system keeps names, in the Western European Windows code page
// (1252) that a Windows program started through Wine reads it in; nothing when the name holds a
// letter that code page has not, or is not UTF-8.
std::optional<std::string> WindowsCodePageName(const std::string& name);

// Makes ready for a start of the program ToolName: writes the control file and deletes the
// result files of CurrentFile, so that results of an earlier run never pass for this one. The
// box to show, when either failed and the program must not start.
std::optional<BoxRequest> PrepareProgramStart(const Session& session, const std::string& ControlFile,
                                              bool forWindowsProgram = false);

// The program's file name in the program folder. Where programs carry no ".exe", the same name
// without it is taken when only that one is there.
std::string ProgramFileName(const Session& session, const std::string& Program);

// True when the file is a Windows program (it begins with "MZ") and this system is not Windows.
bool NeedsWine(const std::string& path);

// The full path of an executable file of that name in a folder of the PATH; empty when none.
std::string FindOnPath(const std::string& name);

// How a program of the program folder is started: named relative to the folder and run in it,
// a Windows program through Wine on other systems.
struct ProgramStart {
    std::string program;
    std::vector<std::string> arguments;
    std::string folder;
    std::vector<std::string> environment; // entries "NAME=value" set for the program
    std::string errorFile;                // where its error output goes; empty for nowhere
    bool throughWine = false;             // a Windows program started through Wine
    bool wineMissing = false;             // a Windows program and no Wine on the PATH: it cannot start
};
ProgramStart PlanProgramStart(const Session& session, const std::string& Program);

// How a program's end counts: Finished or Crashed, Stopped and NotStarted as they came. A crash
// carries in `how` the words that say what ended the program, for the box that tells it.
struct JudgedEnd {
    ProgramEnd end = ProgramEnd::NotStarted;
    std::string how;
};

// Judges how a program ended. A program ended by a signal crashed. A Windows program that dies of
// an exception ends with the exception's code as its exit status (0xC0000005 for an access
// violation), which counts as a crash wherever the whole status is seen; run through Wine on a
// system that keeps only the low eight bits of an exit status, Wine's status is that code's low
// byte (5), which counts as a crash only for a program run through Wine. Any other exit status
// means nothing.
// Wine's exit status after an unhandled exception is not to be relied on (it is sometimes 0), but
// Wine always reports one on its error output ("wine: Unhandled page fault ..."): for a program
// run through Wine, WineMessages holds that output, and such a report is a crash with the code
// of its exception.
JudgedEnd JudgeProgramEnd(const ProgramExit& exit, bool throughWine,
                          const std::string& WineMessages = std::string());

// The question to ask before a program writes its result into ResultFile, with ToolName naming
// the program; nothing when no file of that name exists.
std::optional<BoxRequest> ReplaceResultFileQuestion(const std::string& ToolName,
                                                    const std::string& ResultFile);

// The box for a file that a program was to leave and did not: the load's words for a missing file.
BoxRequest ResultFileNotFoundBox(const std::string& ResultFile);

// After a program has ended: chooses the file the viewer shows by the error file's length (one
// line or none counts as no errors) and tells whether the viewer is to open.
bool JudgeRunResult(Session& session);

} // namespace brooklet
