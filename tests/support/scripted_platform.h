#pragma once
// The platform of window tests: answers boxes and file dialogs from queues the test fills, and
// records every box and dialog shown so a test can assert their exact words.
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "session/platform.h"

namespace brooklet::test {

class ScriptedPlatform : public Platform {
public:
    BoxAnswer showBox(const BoxRequest& box) override;
    std::optional<std::string> showOpenDialog(const FileDialogSettings& dialog) override;
    std::optional<std::string> showSaveDialog(const FileDialogSettings& dialog) override;
    void endProgram() override { ++endCount; }

    // Answers for boxes with a choice, in order. A box with only OK needs none.
    std::deque<BoxAnswer> answers;
    // Files chosen in the open and save dialogs; nothing for Cancel.
    std::deque<std::optional<std::string>> openPicks;
    std::deque<std::optional<std::string>> savePicks;

    std::vector<BoxRequest> boxes;
    std::vector<FileDialogSettings> openDialogs;
    std::vector<FileDialogSettings> saveDialogs;
    int endCount = 0;

    // The texts of all boxes shown so far.
    std::vector<std::string> boxTexts() const;
};

} // namespace brooklet::test
