#include "support/scripted_platform.h"

#include "session/qt_platform.h"
#include "session/section_table.h"
#include "session/text_file.h"

#include <QEventLoop>

#include <gtest/gtest.h>

#include <utility>

namespace brooklet::test {

void ScriptedPlatform::whileNextDialogOpen(QWidget* asker, std::function<void()> steps) {
    asker_ = asker;
    steps_ = std::move(steps);
}

bool ScriptedPlatform::holdOpen(OpenDialog& open) {
    if (steps_) {
        auto steps = std::exchange(steps_, nullptr);
        const QPointer<QWidget> asker = std::exchange(asker_, nullptr);
        QEventLoop loop;
        QMetaObject::invokeMethod(
            &loop,
            [&] {
                steps();
                loop.quit();
            },
            Qt::QueuedConnection);
        loop.exec();
        if (!asker)
            ADD_FAILURE() << "the window that asked was deleted while its dialog was open";
    }
    if (open.cancelled())
        ++dialogsCancelled;
    return open.cancelled();
}

BoxAnswer ScriptedPlatform::showBox(const BoxRequest& box) {
    boxes.push_back(box);
    if (onBox)
        onBox(box);
    OpenDialog open(*this, nullptr);
    if (holdOpen(open))
        return BoxAnswer::Cancel;
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
    OpenDialog open(*this, nullptr);
    if (holdOpen(open))
        return std::nullopt;
    return nextPick(openPicks, "open");
}

std::optional<std::string> ScriptedPlatform::showSaveDialog(const FileDialogSettings& dialog) {
    saveDialogs.push_back(dialog);
    OpenDialog open(*this, nullptr);
    if (holdOpen(open))
        return std::nullopt;
    auto pick = nextPick(savePicks, "save");
    int filter = dialog.FilterIndex;
    if (!saveFilterPicks.empty()) {
        filter = saveFilterPicks.front();
        saveFilterPicks.pop_front();
    }
    if (pick && dialog.FilterExtension)
        *pick = WithDefaultExtension(*pick, FilterPatternExtension(dialog.Filter, filter));
    // A save dialog that confirms overwrites asks, as the platform's dialog does, before it
    // returns a file that exists; No leaves the dialog with no file.
    if (pick && dialog.ConfirmOverwrite) {
        const std::string file = WithDefaultExtension(*pick, dialog.DefaultExtension);
        if (fileExists(file) &&
            showBox({file + " already exists.\nDo you want to replace it?", dialog.DialogTitle,
                     BoxButtons::YesNo, BoxIcon::Exclamation}) != BoxAnswer::Yes)
            return std::nullopt;
    }
    return pick;
}

ProgramExit ScriptedPlatform::runProgramAndWait(const std::string& program,
                                                const std::vector<std::string>& arguments,
                                                const std::string& folder,
                                                const std::vector<std::string>& environment,
                                                const std::string& ErrorFile) {
    programsRun.push_back({program, arguments, folder, environment});
    return runner_.runHiddenAndWait(program, arguments, folder, environment, ErrorFile);
}

namespace {
// Prints into a job of the scripted platform.
class RecordingPrinter : public PrintTarget {
public:
    RecordingPrinter(std::vector<ScriptedPlatform::PrintJob>& jobs, size_t job) : jobs_(jobs), job_(job) {}
    void setFont(const std::string& family, int points) override {
        jobs_[job_].font = family;
        jobs_[job_].points = points;
    }
    void printLine(const std::string& line) override { jobs_[job_].pages.back().push_back(line); }
    void newPage() override { jobs_[job_].pages.emplace_back(); }
    void endDoc() override { jobs_[job_].ended = true; }
    void drawBitmap(const Bitmap& picture, int x, int y) override {
        jobs_[job_].bitmaps.push_back({picture, x, y});
    }

private:
    std::vector<ScriptedPlatform::PrintJob>& jobs_;
    size_t job_;
};
} // namespace

std::optional<PrinterChoice> ScriptedPlatform::showPrinterDialog(const PrinterDialogSettings& dialog) {
    printerDialogs.push_back(dialog);
    OpenDialog open(*this, nullptr);
    if (holdOpen(open))
        return std::nullopt;
    if (printerAnswers.empty()) {
        ADD_FAILURE() << "a printer dialog nobody scripted an answer for";
        return std::nullopt;
    }
    const auto flags = printerAnswers.front();
    printerAnswers.pop_front();
    if (!flags)
        return std::nullopt;
    printJobs.emplace_back();
    PrinterChoice choice;
    choice.Flags = *flags;
    choice.printer = std::make_unique<RecordingPrinter>(printJobs, printJobs.size() - 1);
    return choice;
}

bool ScriptedPlatform::showPrintRangeDialog(PrintRangeRecord& record) {
    printRangeDialogs.push_back(record);
    OpenDialog open(*this, nullptr);
    if (holdOpen(open))
        return false;
    if (printRangeAnswers.empty()) {
        ADD_FAILURE() << "a print dialog nobody scripted an answer for";
        return false;
    }
    const auto answer = printRangeAnswers.front();
    printRangeAnswers.pop_front();
    if (!answer)
        return false;
    record = *answer;
    return true;
}

void ScriptedPlatform::makePrinterPresent(const std::string& name) {
    printersMadePresent.push_back(name);
    present.DeviceName = name;
}

bool ScriptedPlatform::setPrinterCopies(int copies) {
    if (refusesCopies)
        return false;
    present.Copies = copies;
    return true;
}

bool ScriptedPlatform::setPrinterOrientation(int orientation) {
    if (refusesOrientation)
        return false;
    present.Orientation = orientation;
    return true;
}

bool ScriptedPlatform::setPrinterDuplex(int duplex) {
    if (refusesDuplex)
        return false;
    present.Duplex = duplex;
    return true;
}

std::unique_ptr<PrintTarget> ScriptedPlatform::openPresentPrinter() {
    printJobs.emplace_back();
    printJobs.back().printer = present.DeviceName;
    return std::make_unique<RecordingPrinter>(printJobs, printJobs.size() - 1);
}

void ScriptedPlatform::clearClipboard() {
    ++clipboardClears;
    clipboard.reset();
}

void ScriptedPlatform::setClipboardBitmap(const Bitmap& picture) {
    ++clipboardSets;
    clipboard = picture;
}

std::vector<std::string> ScriptedPlatform::boxTexts() const {
    std::vector<std::string> texts;
    for (const auto& box : boxes)
        texts.push_back(box.text);
    return texts;
}

} // namespace brooklet::test
