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
ProgramEnd CallShell(AppContext& context, const ProgramStart& Command);

// Writes the control file, runs the program, says so when it did not start or crashed, and
// opens the viewer on its result when Run asked for one. True when the program ran to its end,
// crashed or not, so that what it left is to be read; false when it did not start or was
// stopped.
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
