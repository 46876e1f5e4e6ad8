#pragma once
// Run, "Convert old Data" and "Import HEC-RAS": each writes its control file, starts its
// program from the program folder and waits for it, then reads what the program left.
#include <string>

namespace brooklet {

struct AppContext;
class frmMain;

// Starts Command hidden (WindowStyle 0) and waits for its end with the windows alive.
// -1 when the program ran and has ended; 0 when it could not be started.
int CallShell(AppContext& context, const std::string& Command, int WindowStyle = 1);

// Writes the control file, runs the program and opens the viewer on its result when Run asked
// for one. False when the program could not be started.
bool RunExternalProgram(AppContext& context, const std::string& ControlFile, const std::string& Program);

// The Run menu: the model on the saved input file.
void RunModel(AppContext& context);
// File menu item 6: the converter on an old input file, whose result is then loaded.
void ConvertOldData(AppContext& context, frmMain& main);
// File menu item 7: the reformatter on a HEC-RAS file, whose cross sections join the session.
void ImportHecRas(AppContext& context, frmMain& main);

} // namespace brooklet
