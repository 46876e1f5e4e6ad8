#pragma once
// Where Brooklet works. The program folder holds the temp folder of the work files, the help list
// file, the user's land use and soil files and the external programs. Started in a folder that
// holds the help list file, Brooklet works there; started anywhere else (from the desktop's
// menu, say), it works in a folder of the user's own, made on the first start with the data
// files of the installation copied in, so an installation that cannot be written never stops it.
#include <optional>
#include <string>

#include "session/messages.h"

namespace brooklet {

struct ProgramFolderChoice {
    // The folder to work in; empty when none could be made.
    std::string folder;
    // What to tell the user: the folder that could not be made, or a data file that is missing.
    std::optional<BoxRequest> box;
};

// Chooses the program folder: the start folder when it holds the help list file, otherwise the
// user's folder, made if need be, with what is missing of the installed data files (the help
// list, the example watershed) copied in.
ProgramFolderChoice ChooseProgramFolder(const std::string& startFolder, const std::string& userFolder,
                                        const std::string& installedDataFolder);

// The user's program folder of this platform (its application data folder).
std::string UserProgramFolder();
// The installed data folder, share/brooklet beside the program's bin folder.
std::string InstalledDataFolder();

} // namespace brooklet
