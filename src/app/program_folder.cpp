#include "app/program_folder.h"

#include "editing/widgets.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <filesystem>
#include <fstream>
#include <system_error>

namespace brooklet {
namespace {

namespace fs = std::filesystem;

const char* const HelpListName = "BrookletHelp.lst";
const char* const BoxTitle = "Brooklet System";

bool holdsHelpList(const fs::path& folder) {
    std::error_code error;
    return fs::is_regular_file(folder / HelpListName, error);
}

// Copies a file of the installation into the user's folder unless the user has one already:
// what the user changed or kept there is never replaced.
void copyIfMissing(const fs::path& from, const fs::path& to) {
    std::error_code error;
    if (fs::exists(to, error) || !fs::is_regular_file(from, error))
        return;
    fs::create_directories(to.parent_path(), error);
    fs::copy_file(from, to, error);
}

// The box for a help list file that is there but cannot be read (no right to read it, or a
// folder standing in its place), with what to do.
std::optional<BoxRequest> unreadableHelpList(const fs::path& folder) {
    const fs::path file = folder / HelpListName;
    std::error_code error;
    if (!fs::exists(file, error) ||
        (fs::is_regular_file(file, error) && std::ifstream(file, std::ios::binary)))
        return std::nullopt;
    return BoxRequest{
        "The help list file " + file.string() +
            " cannot be read, so the help boxes of the entry windows stay empty. Give your user "
            "the right to read it, or copy it anew from Brooklet's installation.",
        BoxTitle, BoxButtons::Ok, BoxIcon::Exclamation};
}

} // namespace

ProgramFolderChoice ChooseProgramFolder(const std::string& startFolder, const std::string& userFolder,
                                        const std::string& installedDataFolder) {
    if (holdsHelpList(startFolder))
        return {startFolder, unreadableHelpList(startFolder)};

    const fs::path user(userFolder);
    std::error_code error;
    fs::create_directories(user / "temp", error);
    if (error || !fs::is_directory(user / "temp")) {
        const std::string reason = error ? error.message() : "it is not a folder";
        return {std::string(),
                BoxRequest{"Brooklet could not make its program folder " + userFolder + " (" + reason +
                               "). Make sure that folder can be written, or start Brooklet in a folder "
                               "that holds the file " +
                               HelpListName + ".",
                           BoxTitle, BoxButtons::Ok, BoxIcon::Critical}};
    }

    const fs::path installed(installedDataFolder);
    copyIfMissing(installed / HelpListName, user / HelpListName);
    for (const char* example : {"watershed.inp", "watershed.out", "README.txt"})
        copyIfMissing(installed / "examples" / example, user / "examples" / example);

    ProgramFolderChoice choice{userFolder, unreadableHelpList(user)};
    if (!choice.box && !holdsHelpList(user))
        choice.box = BoxRequest{"The help list file " + (user / HelpListName).string() +
                                    " is missing, so the help boxes of the entry windows stay empty. Copy " +
                                    HelpListName + " of Brooklet's installation (" + installedDataFolder +
                                    ") into that folder.",
                                BoxTitle, BoxButtons::Ok, BoxIcon::Exclamation};
    return choice;
}

std::string UserProgramFolder() {
    return pathFromQt(
        QDir::toNativeSeparators(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
}

std::string InstalledDataFolder() {
    return pathFromQt(QDir::toNativeSeparators(
        QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/brooklet")));
}

} // namespace brooklet
