#pragma once
// Check Watershed as the program runs it: on the work files of the session with the land uses of
// the installation (the standard table and the local land use file), before Run and Save As of a
// session not yet checked, and on an input file from the command line.
#include <iosfwd>
#include <string>

#include "check/check_input.h"
#include "check/findings.h"

namespace brooklet {

struct AppContext;
struct Session;

// The standard land uses and those of the local land use file become known to the check.
void addInstalledLandUses(const std::string& localLandUseFile, CheckInput& input);

// Checks the session's work files and notes that the session has been checked.
Findings CheckSessionWatershed(AppContext& context);

// Opens frmCheck (or brings it forward) on these findings.
void showCheckWindow(AppContext& context, const Findings& findings);

// The command a check goes before.
enum class CheckedCommand { Run, SaveAs };

struct CommandCheck {
    bool goOn = true;  // false when the user chose not to go on with errors
    Findings findings; // what the check found; empty when no check ran
};

// Before Run or Save As: a session checked already goes on without a word. Otherwise the check
// runs; with errors a box asks whether to go on anyway, and No opens the findings.
CommandCheck CheckBeforeCommand(AppContext& context, CheckedCommand command);

// "brooklet --check FILE": prints each finding as "file:line: severity: message" and gives the
// exit code, 0 with no findings, 1 with warnings only, 2 with errors. LocalLandUseFile names the
// installation's local land uses.
int RunCheckCommand(const std::string& file, const std::string& localLandUseFile, std::ostream& out);

} // namespace brooklet
