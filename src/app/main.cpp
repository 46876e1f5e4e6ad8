// Brooklet: the editor and run controller of the watershed model. It works in its program folder,
// where the work files live in the "temp" folder: the folder it is started in when that holds the
// program's data files, otherwise a folder of the user's own.
#include <QApplication>

#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

#include "app/check_command.h"
#include "app/main_window.h"
#include "app/program_folder.h"
#include "app/window_catalog.h"
#include "base/version.h"
#include "editing/app_context.h"
#include "editing/widgets.h"
#include "session/qt_platform.h"
#include "session/text_file.h"

int main(int argc, char* argv[]) {
    if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
        std::printf("Brooklet %s\n", brooklet::ProgramVersion);
        return 0;
    }

    // "brooklet --check FILE" checks an input file without opening it, with the local land uses
    // of the program folder: the folder it is started in.
    if (argc == 3 && std::string(argv[1]) == "--check")
        return brooklet::RunCheckCommand(
            argv[2], brooklet::currentFolder() + brooklet::folderSeparator() + "Local_Land_Use_Data.txt",
            std::cout);

    QApplication app(argc, argv);
    QApplication::setApplicationName("Brooklet");
    QApplication::setApplicationVersion(brooklet::ProgramVersion);
    brooklet::installAccessibility();
    brooklet::QtPlatform platform;

    const auto folder = brooklet::ChooseProgramFolder(
        brooklet::currentFolder(), brooklet::UserProgramFolder(), brooklet::InstalledDataFolder());
    if (folder.box)
        platform.showBox(*folder.box);
    if (folder.folder.empty() || !brooklet::setCurrentFolder(folder.folder))
        return 1;

    brooklet::AppContext context(platform);
    brooklet::registerAllWindows(context.windows);
    brooklet::frmMain main(context);
    main.show();
    main.move(0, 0);
    return QApplication::exec();
}
