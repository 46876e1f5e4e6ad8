#pragma once
// Run, "Convert old Data" and "Import HEC-RAS": each writes its control file, starts its
// program from the program folder and waits for it, then reads what the program left.
#include <string>

#include "session/platform.h"

namespace brooklet {

struct AppContext;
struct ExternalProgram;
struct ProgramStart;

// Starts the program hidden under the hourglass and waits for its end with the windows alive.
// Meanwhile AppContext::ProgramRunning is set and the main window, told at the start and at the
// end, disables the commands that would change the session or start another program.
ProgramExit CallShell(AppContext& context, const ProgramStart& Command);

// Writes the control file and runs the program, saying so when it did not start, crashed or was
// stopped. True when the program ran to its end, crashed or not, so that what it left is to be
// read; false when it did not start or was stopped.
bool StartProgramAndWait(AppContext& context, const std::string& ControlFile, const std::string& Program);
// After a program ran to its end: opens the viewer on its result when RunResultLabel asks for one,
// on the error file when that holds errors.
void ShowRunResult(AppContext& context);

// StartProgramAndWait, then ShowRunResult when the program ran to its end; true then.
bool RunExternalProgram(AppContext& context, const std::string& ControlFile, const std::string& Program);

// The Run menu: the model on the saved input file. Nothing for a session without a saved file.
void RunModel(AppContext& context);
// Runs one of the three programs; true when it ran to its end.
bool RunProgramUnderHourglass(AppContext& context, const ExternalProgram& program);

// The Run menu's "Stop": ends the program that runs and says so.
void StopRunningProgram(AppContext& context);
// Before Brooklet closes: while a program runs, asks whether to stop it and stops it on Yes.
// False when the user keeps Brooklet open.
bool StopProgramBeforeExit(AppContext& context);

} // namespace brooklet
