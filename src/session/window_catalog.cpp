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
    for (const QString& name : TextHelpWindow::names())
        windows.registerWindow(name, [name](AppContext&) { return new TextHelpWindow(name); });
    windows.registerWindow("frmFileDisp", [](AppContext& context) { return new frmFileDisp(context); });
}

} // namespace brooklet
