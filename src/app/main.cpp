// Brooklet: the editor and run controller of the watershed model. It must be started with its
// program folder as the current folder; the work files live in its "temp" folder.
#include <QApplication>

#include <iostream>
#include <string>

#include "app/check_command.h"
#include "app/main_window.h"
#include "app/window_catalog.h"
#include "editing/widgets.h"
#include "session/app_context.h"
#include "session/qt_platform.h"
#include "session/text_file.h"

int main(int argc, char* argv[]) {
    // "brooklet --check FILE" checks an input file without opening it, with the local land uses
    // of the program folder, which is the current folder.
    if (argc == 3 && std::string(argv[1]) == "--check")
        return brooklet::RunCheckCommand(
            argv[2], brooklet::currentFolder() + brooklet::folderSeparator() + "Local_Land_Use_Data.txt",
            std::cout);
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
