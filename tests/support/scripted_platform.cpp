#include "support/scripted_platform.h"

#include <gtest/gtest.h>

namespace brooklet::test {

BoxAnswer ScriptedPlatform::showBox(const BoxRequest& box) {
    boxes.push_back(box);
    if (answers.empty()) {
        if (box.buttons != BoxButtons::Ok)
            ADD_FAILURE() << "a question nobody scripted an answer for: " << box.text;
        return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Cancel;
    }
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

namespace {
std::optional<std::string> nextPick(std::deque<std::optional<std::string>>& picks, const char* kind) {
    if (picks.empty()) {
        ADD_FAILURE() << "a " << kind << " dialog nobody scripted a file for";
        return std::nullopt;
    }
    auto pick = picks.front();
    picks.pop_front();
    return pick;
}
} // namespace

std::optional<std::string> ScriptedPlatform::showOpenDialog(const FileDialogSettings& dialog) {
    openDialogs.push_back(dialog);
    return nextPick(openPicks, "open");
}

std::optional<std::string> ScriptedPlatform::showSaveDialog(const FileDialogSettings& dialog) {
    saveDialogs.push_back(dialog);
    return nextPick(savePicks, "save");
}

std::vector<std::string> ScriptedPlatform::boxTexts() const {
    std::vector<std::string> texts;
    for (const auto& box : boxes)
        texts.push_back(box.text);
    return texts;
}

} // namespace brooklet::test
