#pragma once
// Loading and saving as the windows call them: the core does the work, these show its boxes
// and open the window that follows.
namespace brooklet {

struct AppContext;

// Loads CurrentFile into the work files, shows the load's box if it has one, then opens the
// identifier editor for a named file, or brings up the main window for an untitled session.
void LoadInputFile(AppContext& context);

// Saves the work files into CurrentFile and shows the box that says so, or why it failed.
// True when the file was written.
bool SaveInputFile(AppContext& context);

} // namespace brooklet
