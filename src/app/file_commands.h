#pragma once
// Loading, saving and the commands that bring a file in through an external program, as the
// File menu runs them. Every load and every save of the program goes through here: the core
// does the work, these close the windows of an old session, keep the local land use file in
// step with the data, show the boxes and open the window that follows.
namespace brooklet {

struct AppContext;
class frmMain;

// Loads CurrentFile into the work files (its caller has closed the windows of the session
// before), merges the file's land uses into the local land use file, shows the load's box if it has one, then
// opens the identifier editor for a named file, or brings up the main window for an untitled session.
// A load whose work files could not be written says why, leaves the session untitled with its work
// files as they were, brings up the main window and gives False.
bool LoadInputFile(AppContext& context);

// Regenerates the section "LOCAL LAND USE:", saves the work files into CurrentFile and shows
// the box that says so, or why it failed. A file whose load stopped early is written only when
// the user answers Yes to the question that says so; an untitled session writes nothing. True
// when the file was written; otherwise the file and the work files are as they were.
bool SaveInputFile(AppContext& context);

// File menu item 6: the converter on an old input file, whose result is then loaded.
void ConvertOldData(AppContext& context, frmMain& main);
// File menu item 7: the reformatter on a HEC-RAS file, whose cross sections join the session.
void ImportHecRas(AppContext& context, frmMain& main);

} // namespace brooklet
