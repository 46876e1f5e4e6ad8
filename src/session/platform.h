#pragma once
// Everything that needs a person or the operating system: message boxes, file dialogs and the
// end of the program. Windows call these; tests answer them from a script.
#include <optional>
#include <string>

#include "session/messages.h"

namespace brooklet {

// The settings of the shared common file dialog. They stay as the last command left them, so
// a later command that sets only some of them shows the rest as they were.
struct FileDialogSettings {
    std::string DialogTitle;
    // Pairs of description and pattern, separated by "|", as "Input Files (*.inp)|*.inp".
    std::string Filter;
    int FilterIndex = 1;
    std::string FileName;
    std::string InitDir;
    bool CancelError = false;
};

class Platform {
public:
    virtual ~Platform() = default;
    virtual BoxAnswer showBox(const BoxRequest& box) = 0;
    // The chosen file, or nothing when the user cancelled.
    virtual std::optional<std::string> showOpenDialog(const FileDialogSettings& dialog) = 0;
    virtual std::optional<std::string> showSaveDialog(const FileDialogSettings& dialog) = 0;
    // Ends the program at once, closing every window.
    virtual void endProgram() = 0;
};

} // namespace brooklet
