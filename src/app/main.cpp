// Brooklet: the editor and run controller of the watershed model. It works in its program folder,
// where the work files live in the "temp" folder: the folder it is started in when that holds the
// program's data files, otherwise a folder of the user's own.
//   brooklet [FILE]       starts, and opens FILE when one is given
//   brooklet --check FILE prints the findings of Check Watershed on FILE
//   brooklet --self-test  starts as from the desktop's menu, opens the example watershed and
//                         tells whether that worked, then ends
//   brooklet --version    prints the version
#include <QApplication>

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
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

namespace {

using namespace brooklet;

// The platform of the self-test: a box is written to the error output, not shown, so the test
// never waits for a person.
class ReportingPlatform : public QtPlatform {
public:
    BoxAnswer showBox(const BoxRequest& box) override {
        std::fprintf(stderr, "%s\n", box.text.c_str());
        return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Cancel;
    }
};

// Opens the example watershed of the program folder (or of the installation) through the main
// window, as a user would, and tells what came of it. 0 when every section of it was read. The
// test works in work files and a land use file of its own, removed afterwards, so the work files
// of the user's last session and the user's own land uses stay as they were.
int selfTest(frmMain& main, Session& session) {
    const std::string own = session.WorkFolder + "self-test" + folderSeparator();
    std::error_code error;
    std::filesystem::remove_all(own, error);
    if (!createFolder(own)) {
        std::printf("FAILED: the folder %s could not be made\n", own.c_str());
        return 1;
    }
    session.WorkFolder = own;
    for (int number = 1; number <= WorkFileCount; ++number)
        session.WorkFilePath[number] = own + workFileName(number);
    session.LocalLandUseFile = own + "Local_Land_Use_Data.txt";
    session.LocalSoilFile = own + "Local_Soil_HSG.txt";

    std::string example = session.ProgramFolder + "examples" + folderSeparator() + "watershed.inp";
    if (!fileExists(example))
        example =
            InstalledDataFolder() + folderSeparator() + "examples" + folderSeparator() + "watershed.inp";
    const bool opened = main.openFile(example);
    int sections = 0;
    for (int section = 1; section <= SectionCount; ++section)
        sections += fileLength(session.WorkFilePath[section]) > 0 ? 1 : 0;
    const bool noted = readFirstLine(session.WorkFilePath[FileNameWorkFile]) == example;
    std::printf("Brooklet %s\nProgram folder: %s\nExample watershed: %s\nSections with data: %d\n%s\n",
                ProgramVersion, session.ProgramFolder.c_str(), example.c_str(), sections,
                opened && noted && sections > 0 ? "The example watershed was opened." : "FAILED");
    std::filesystem::remove_all(own, error);
    return opened && noted && sections > 0 ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[]) {
    const std::string first = argc > 1 ? argv[1] : "";
    if (argc == 2 && first == "--version") {
        std::printf("Brooklet %s\n", ProgramVersion);
        return 0;
    }
    // "brooklet --check FILE" checks an input file without opening it, with the local land uses
    // of the program folder: the folder it is started in.
    if (argc == 3 && first == "--check")
        return RunCheckCommand(argv[2], currentFolder() + folderSeparator() + "Local_Land_Use_Data.txt",
                               std::cout);
    const bool testing = argc == 2 && first == "--self-test";
    // A file to open is named relative to the folder the program was started in.
    std::error_code error;
    const std::string fileToOpen =
        argc == 2 && !testing ? std::filesystem::absolute(first, error).lexically_normal().string() : "";

    QApplication app(argc, argv);
    QApplication::setApplicationName("Brooklet");
    QApplication::setApplicationVersion(ProgramVersion);
    installAccessibility();
    const std::unique_ptr<QtPlatform> platformOwned =
        testing ? std::make_unique<ReportingPlatform>() : std::make_unique<QtPlatform>();
    QtPlatform& platform = *platformOwned;

    const auto folder = ChooseProgramFolder(currentFolder(), UserProgramFolder(), InstalledDataFolder());
    if (folder.box)
        platform.showBox(*folder.box);
    if (folder.folder.empty() || !setCurrentFolder(folder.folder))
        return 1;

    AppContext context(platform);
    registerAllWindows(context.windows);
    frmMain main(context);
    main.show();
    main.move(0, 0);
    if (testing)
        return selfTest(main, context.session);
    if (!fileToOpen.empty())
        main.openFile(fileToOpen);
    return QApplication::exec();
}
