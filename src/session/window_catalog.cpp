#include "session/window_catalog.h"

#include "run/file_viewer.h"
#include "session/window_host.h"

namespace brooklet {

void registerAllWindows(WindowHost& windows) {
    windows.registerWindow("frmFileDisp", [](AppContext& context) { return new frmFileDisp(context); });
}

} // namespace brooklet
