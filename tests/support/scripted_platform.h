#pragma once
// The platform of window tests: answers boxes and file dialogs from queues the test fills, and
// records every box and dialog shown so a test can assert their exact words.
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "session/platform.h"

#include <utility>

namespace brooklet::test {

class ScriptedPlatform : public Platform {
public:
    BoxAnswer showBox(const BoxRequest& box) override;
    std::optional<std::string> showOpenDialog(const FileDialogSettings& dialog) override;
    std::optional<std::string> showSaveDialog(const FileDialogSettings& dialog) override;
    void endProgram() override { ++endCount; }
    // Programs really run, as the program runs them; the start is recorded.
    bool runProgramAndWait(const std::string& program, const std::string& folder) override;
    std::optional<PrinterChoice> showPrinterDialog(const PrinterDialogSettings& dialog) override;
    void setClipboardText(const std::string& text) override { clipboardTexts.push_back(text); }

    // Answers for boxes with a choice, in order. A box with only OK needs none.
    std::deque<BoxAnswer> answers;
    // Files chosen in the open and save dialogs; nothing for Cancel.
    std::deque<std::optional<std::string>> openPicks;
    std::deque<std::optional<std::string>> savePicks;

    // The flags the printer dialog returns, in order; nothing for Cancel.
    std::deque<std::optional<int>> printerAnswers;

    // What one print job put on paper.
    struct PrintJob {
        std::string font;
        int points = 0;
        std::vector<std::vector<std::string>> pages{1};
        bool ended = false;
    };
    std::vector<PrintJob> printJobs;
    std::vector<PrinterDialogSettings> printerDialogs;
    // Program and folder of every program started.
    std::vector<std::pair<std::string, std::string>> programsRun;

    std::vector<BoxRequest> boxes;
    std::vector<FileDialogSettings> openDialogs;
    std::vector<FileDialogSettings> saveDialogs;
    int endCount = 0;
    // Every text put on the clipboard, in order.
    std::vector<std::string> clipboardTexts;

    // The texts of all boxes shown so far.
    std::vector<std::string> boxTexts() const;
};

} // namespace brooklet::test
