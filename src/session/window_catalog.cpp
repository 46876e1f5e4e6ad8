#include "session/window_catalog.h"

#include "session/window_host.h"

namespace brooklet {

void registerAllWindows(WindowHost& windows) {
    (void)windows;
}

} // namespace brooklet
