#pragma once
// Everything that needs a person or the operating system: message boxes, file dialogs and the
// end of the program. Windows call these; tests answer them from a script.
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

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
    // A save dialog asks before it returns a file that exists, as any save dialog does.
    bool ConfirmOverwrite = false;
    // Added, with its point, to a file name typed without an extension ("inp").
    std::string DefaultExtension;
    // A name typed without an extension takes the extension of the filter chosen in the dialog
    // when its pattern names one ("*.bmp"), before DefaultExtension applies.
    bool FilterExtension = false;
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

// Flags of the page-range print dialog beyond those above.
constexpr int PrintPageNumbersFlag = 0x2;
constexpr int PrintNoSelectionFlag = 0x4;
constexpr int PrintCollateFlag = 0x10;
constexpr int PrintToFileFlag = 0x20;

// A picture as pixels, row by row from the top, each 0xAARRGGBB: what the clipboard holds and
// the printer paints.
struct Bitmap {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
    std::uint32_t pixel(int x, int y) const { return pixels[static_cast<size_t>(y) * width + x]; }
};

// A printer chosen by the user: a fixed-pitch font, lines, pictures, pages, the end of the
// document.
class PrintTarget {
public:
    virtual ~PrintTarget() = default;
    virtual void setFont(const std::string& family, int points) = 0;
    virtual void printLine(const std::string& line) = 0;
    virtual void newPage() = 0;
    virtual void endDoc() = 0;
    // Paints the picture at the place, in its own size in pixels.
    virtual void drawBitmap(const Bitmap& /*picture*/, int /*x*/, int /*y*/) {}
};

// The printer the program prints on until the user chooses another, and its settings:
// orientation 1 portrait, 2 landscape; duplex 1 one-sided, 2 long edge, 3 short edge.
struct PresentPrinter {
    std::string DeviceName;
    int Copies = 1;
    int Orientation = 1;
    int Duplex = 1;
};

// What the page-range print dialog is given and hands back: the flags, the page bounds and
// range, and the printer shown, with its settings, then chosen.
struct PrintRangeRecord {
    int Flags = 0;
    int FromPage = 0;
    int ToPage = 0;
    int MinPage = 0;
    int MaxPage = 0;
    PresentPrinter printer;
};

struct PrinterChoice {
    int Flags = 0;
    std::unique_ptr<PrintTarget> printer;
};

// How a program started by the platform ended.
enum class ProgramEnd {
    NotStarted, // it could not be started
    Finished,   // it ended by itself, whatever its exit code
    Crashed,    // it was ended by a signal or crashed
    Stopped,    // it was stopped on the user's command
};

// How a program ended and the number the system gave with it: the exit status of a program that
// finished, the signal that ended a program that crashed (on Windows, its exit code).
struct ProgramExit {
    ProgramEnd end = ProgramEnd::NotStarted;
    int code = 0;
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
    // Starts the program hidden, with the arguments, in the given folder, and returns when it has
    // ended, the windows living on meanwhile. The program is a path relative to the folder
    // ("./flume.exe") or the full path of a program. The folder is taken byte for byte, whatever
    // its encoding. One program runs at a time, in a process group of its own.
    // The environment entries ("NAME=value") are set for the program on top of the program's own.
    // Its error output goes to the file ErrorFile, replacing it, or nowhere when that is empty.
    virtual ProgramExit runProgramAndWait(const std::string& program,
                                          const std::vector<std::string>& arguments,
                                          const std::string& folder,
                                          const std::vector<std::string>& environment,
                                          const std::string& ErrorFile) = 0;
    // Ends the program that runs now, if any, with every program it started that still runs in
    // its process group; its wait then ends with ProgramEnd::Stopped.
    virtual void stopProgram() = 0;
    // The printer the user chose, or nothing when the dialog was cancelled.
    virtual std::optional<PrinterChoice> showPrinterDialog(const PrinterDialogSettings& dialog) = 0;

    // The page-range print dialog: false when the user cancelled or the dialog failed; the
    // record then is as it was.
    virtual bool showPrintRangeDialog(PrintRangeRecord& /*record*/) { return false; }
    // The present printer and its settings, and the names of all printers of the system.
    virtual PresentPrinter presentPrinter() { return {}; }
    virtual std::vector<std::string> printerNames() { return {}; }
    virtual void makePrinterPresent(const std::string& /*name*/) {}
    // Settings of the present printer; false when the printer refuses the value.
    virtual bool setPrinterCopies(int /*copies*/) { return false; }
    virtual bool setPrinterOrientation(int /*orientation*/) { return false; }
    virtual bool setPrinterDuplex(int /*duplex*/) { return false; }
    // A document on the present printer; nothing when there is no printer.
    virtual std::unique_ptr<PrintTarget> openPresentPrinter() { return nullptr; }

    // The clipboard's picture.
    virtual void clearClipboard() {}
    virtual void setClipboardBitmap(const Bitmap& /*picture*/) {}
    virtual std::optional<Bitmap> clipboardBitmap() { return std::nullopt; }

    // The text on the clipboard, and putting text there. Kept in memory unless the platform
    // has a clipboard of its own.
    virtual std::string clipboardText() const { return clipboard_; }
    virtual void setClipboardText(const std::string& text) { clipboard_ = text; }

    // The boxes and dialogs open now, one inside another. A screen reader reaches the main
    // window's menus past a window's open dialog, so a session may end under one.
    int openDialogCount() const { return static_cast<int>(openDialogs_.size()); }
    // Closes every box and dialog open now, the newest first, as Cancel does: each hands its
    // caller what Cancel gives.
    void cancelOpenDialogs();
    // Runs each time the last open box or dialog has closed.
    void setWhenDialogsClosed(std::function<void()> handler) { whenDialogsClosed_ = std::move(handler); }

protected:
    // An implementation holds one while a box or dialog of its is open; Cancel closes that
    // dialog as the user's Cancel would, and the dialog then hands back what Cancel gives.
    class OpenDialog {
    public:
        OpenDialog(Platform& platform, std::function<void()> cancel);
        ~OpenDialog();
        OpenDialog(const OpenDialog&) = delete;
        OpenDialog& operator=(const OpenDialog&) = delete;
        bool cancelled() const { return cancelled_; }

    private:
        friend class Platform;
        Platform& platform_;
        std::function<void()> cancel_;
        bool cancelled_ = false;
    };

private:
    std::string clipboard_;
    std::vector<OpenDialog*> openDialogs_;
    std::function<void()> whenDialogsClosed_;
};

} // namespace brooklet
