// Brooklet: the editor and run controller of the watershed model. It must be started with its
// program folder as the current folder; the work files live in its "temp" folder.
#include <QApplication>

#include "app/main_window.h"
#include "app/window_catalog.h"
#include "editing/widgets.h"
#include "session/app_context.h"
#include "session/qt_platform.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Brooklet");
    brooklet::installAccessibility();
    brooklet::QtPlatform platform;
    brooklet::AppContext context(platform);
    brooklet::registerAllWindows(context.windows);
    brooklet::frmMain main(context);
    main.show();
    main.move(0, 0);
    return QApplication::exec();
}
