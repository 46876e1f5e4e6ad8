#pragma once
// Everything that needs a person or the operating system: message boxes, file dialogs and the
// end of the program. Windows call these; tests answer them from a script.
#include <memory>
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

// The printer dialog's settings. Flags carry the options asked for on the way in and the
// user's choices on the way out.
struct PrinterDialogSettings {
    std::string DialogTitle;
    std::string FileName;
    int Flags = 0;
    bool CancelError = false;
};

// Printer dialog flags, as the dialog reports them.
constexpr int PrintSelectionFlag = 0x1;
constexpr int PrintNoPageNumbersFlag = 0x8;
constexpr int PrintHideToFileFlag = 0x100000;

// A printer chosen by the user: a fixed-pitch font, lines, pages, the end of the document.
class PrintTarget {
public:
    virtual ~PrintTarget() = default;
    virtual void setFont(const std::string& family, int points) = 0;
    virtual void printLine(const std::string& line) = 0;
    virtual void newPage() = 0;
    virtual void endDoc() = 0;
};

struct PrinterChoice {
    int Flags = 0;
    std::unique_ptr<PrintTarget> printer;
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
    // Starts the program hidden, with no arguments, in the given folder, and returns when it has
    // ended, the windows living on meanwhile. False when it could not be started.
    virtual bool runProgramAndWait(const std::string& program, const std::string& folder) = 0;
    // The printer the user chose, or nothing when the dialog was cancelled.
    virtual std::optional<PrinterChoice> showPrinterDialog(const PrinterDialogSettings& dialog) = 0;
    // Puts the text on the clipboard, in place of what it held.
    virtual void setClipboardText(const std::string& text) = 0;
};

} // namespace brooklet
