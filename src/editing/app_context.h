#pragma once
// What the program holds as a whole: the session, the platform services and the open windows.
// Windows receive it by reference; a test makes its own in its own program folder.
#include "editing/plot_data.h"
#include "editing/watershed_tables.h"
#include "session/platform.h"
#include "session/section_table.h"
#include "session/window_host.h"

namespace brooklet {

struct AppContext {
    explicit AppContext(Platform& platform) : platform(platform), windows(*this, platform) {}
    AppContext(const AppContext&) = delete;
    AppContext& operator=(const AppContext&) = delete;

    Session session;
    Platform& platform;
    WindowHost windows;
    // Index of the alternate that the sub-area and reach windows work on; 0 for the base data.
    int CurrentAlternate = 0;
    // True while an external program runs and has not been told to stop.
    bool ProgramRunning = false;
    // Whether Run and Save As first check a session that has not been checked yet. Window tests
    // of other subjects turn it off, so their boxes stay theirs.
    bool CheckBeforeRunAndSaveAs = true;
    WatershedTables watershed; // sub-area, land use, rain gage and alternate tables
    PlotData plots;            // the plot request and arrays handed to the plot window
};

} // namespace brooklet
