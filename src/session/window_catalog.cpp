#include "session/window_catalog.h"

#include "editing/help_windows.h"
#include "options/identifier_editor.h"
#include "run/file_viewer.h"
#include "session/window_host.h"

namespace brooklet {

void registerAllWindows(WindowHost& windows) {
    windows.registerWindow("frmFlume", [](AppContext& context) { return new frmFlume(context); });
    windows.registerWindow("frmAbout", [](AppContext& context) { return new frmAbout(context); });
    windows.registerWindow("frmDiagram", [](AppContext& context) { return new frmDiagram(context); });
    windows.registerWindow("frmOverview", [](AppContext& context) { return new frmOverview(context); });
    windows.registerWindow("frmHelpFac", [](AppContext& context) { return new frmHelpFac(context); });
    windows.registerWindow("frmGettingStarted", [](AppContext& context) { return new frmGettingStarted(context); });
    windows.registerWindow("frmFileDisp", [](AppContext& context) { return new frmFileDisp(context); });
}

} // namespace brooklet
