#pragma once
// Run, "Convert old Data" and "Import HEC-RAS": each writes its control file, starts its
// program from the program folder and waits for it, then reads what the program left.
#include <string>

namespace brooklet {

struct AppContext;
struct ExternalProgram;

// Starts Command hidden (WindowStyle 0) and waits for its end with the windows alive.
// -1 when the program ran and has ended; 0 when it could not be started.
int CallShell(AppContext& context, const std::string& Command, int WindowStyle = 1);

// Writes the control file, runs the program and opens the viewer on its result when Run asked
// for one. False when the program could not be started.
bool RunExternalProgram(AppContext& context, const std::string& ControlFile, const std::string& Program);

// The Run menu: the model on the saved input file.
void RunModel(AppContext& context);
// Runs one of the three programs under the hourglass; says so when it is not there. False
// when it could not be started.
bool RunProgramUnderHourglass(AppContext& context, const ExternalProgram& program);

} // namespace brooklet
