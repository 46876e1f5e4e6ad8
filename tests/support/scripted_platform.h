#pragma once
// The platform of window tests: answers boxes and file dialogs from queues the test fills, and
// records every box and dialog shown so a test can assert their exact words.
#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "session/platform.h"
#include "session/qt_platform.h"

namespace brooklet::test {

class ScriptedPlatform : public Platform {
public:
    BoxAnswer showBox(const BoxRequest& box) override;
    std::optional<std::string> showOpenDialog(const FileDialogSettings& dialog) override;
    std::optional<std::string> showSaveDialog(const FileDialogSettings& dialog) override;
    void endProgram() override { ++endCount; }
    // Programs really run, as the program runs them; the start is recorded.
    ProgramExit runProgramAndWait(const std::string& program, const std::vector<std::string>& arguments,
                                  const std::string& folder, const std::vector<std::string>& environment,
                                  const std::string& ErrorFile) override;
    void stopProgram() override {
        ++stopCount;
        runner_.stop();
    }
    std::optional<PrinterChoice> showPrinterDialog(const PrinterDialogSettings& dialog) override;
    bool showPrintRangeDialog(PrintRangeRecord& record) override;
    PresentPrinter presentPrinter() override { return present; }
    std::vector<std::string> printerNames() override { return printers; }
    void makePrinterPresent(const std::string& name) override;
    bool setPrinterCopies(int copies) override;
    bool setPrinterOrientation(int orientation) override;
    bool setPrinterDuplex(int duplex) override;
    std::unique_ptr<PrintTarget> openPresentPrinter() override;
    void clearClipboard() override;
    void setClipboardBitmap(const Bitmap& picture) override;
    std::optional<Bitmap> clipboardBitmap() override { return clipboard; }
    void setClipboardText(const std::string& text) override {
        clipboardTexts.push_back(text);
        Platform::setClipboardText(text);
    }

    // Answers for boxes with a choice, in order. A box with only OK needs none.
    std::deque<BoxAnswer> answers;
    // Files chosen in the open and save dialogs; nothing for Cancel.
    std::deque<std::optional<std::string>> openPicks;
    std::deque<std::optional<std::string>> savePicks;
    // The filter chosen in each save dialog, from 1; the dialog's own FilterIndex when none.
    std::deque<int> saveFilterPicks;

    // The flags the printer dialog returns, in order; nothing for Cancel.
    std::deque<std::optional<int>> printerAnswers;

    // What the page-range print dialog hands back, in order: the record as the user leaves it,
    // or nothing for Cancel. Each record shown is kept as it came in.
    std::deque<std::optional<PrintRangeRecord>> printRangeAnswers;
    std::vector<PrintRangeRecord> printRangeDialogs;
    // The printers of the system and the present one; the settings it refuses.
    std::vector<std::string> printers = {"Office Laser", "Plotter"};
    PresentPrinter present = {"Office Laser", 1, 1, 1};
    bool refusesCopies = false;
    bool refusesOrientation = false;
    bool refusesDuplex = false;
    // Every name made present, in order.
    std::vector<std::string> printersMadePresent;

    // The clipboard, and how often it was cleared and given a picture.
    std::optional<Bitmap> clipboard;
    int clipboardClears = 0;
    int clipboardSets = 0;

    // What one print job put on paper.
    struct PrintedBitmap {
        Bitmap picture;
        int x = 0;
        int y = 0;
    };
    struct PrintJob {
        std::string font;
        int points = 0;
        std::vector<std::vector<std::string>> pages{1};
        std::vector<PrintedBitmap> bitmaps;
        std::string printer; // the present printer's name, for jobs on the present printer
        bool ended = false;
    };
    std::vector<PrintJob> printJobs;
    std::vector<PrinterDialogSettings> printerDialogs;
    // Every program started: its program, arguments, folder and environment entries.
    struct ProgramRun {
        std::string program;
        std::vector<std::string> arguments;
        std::string folder;
        std::vector<std::string> environment;
    };
    std::vector<ProgramRun> programsRun;
    int stopCount = 0;

    std::vector<BoxRequest> boxes;
    // Called with each box as it shows, before it is answered: a test looks at the windows then.
    std::function<void(const BoxRequest&)> onBox;
    std::vector<FileDialogSettings> openDialogs;
    std::vector<FileDialogSettings> saveDialogs;
    int endCount = 0;
    // Every text put on the clipboard, in order.
    std::vector<std::string> clipboardTexts;

    // The texts of all boxes shown so far.
    std::vector<std::string> boxTexts() const;

    // Steps that run while the next box or dialog is open, inside the dialog's own event loop,
    // as the events of a real dialog run: a test reaches other windows then, as a screen reader
    // can. A dialog closed meanwhile hands back Cancel and takes no scripted answer. Asker is
    // the window that asks: a real dialog is its child, so its deletion while the dialog is
    // still open is a failure.
    void whileNextDialogOpen(QWidget* asker, std::function<void()> steps);
    // The dialogs closed as Cancel while steps ran.
    int dialogsCancelled = 0;

private:
    // Runs the steps, if any, while the dialog is open; true when it was closed as Cancel.
    bool holdOpen(OpenDialog& open);

    ProgramRunner runner_;
    QPointer<QWidget> asker_;
    std::function<void()> steps_;
};

} // namespace brooklet::test
