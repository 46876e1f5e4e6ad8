#pragma once
#include "session/platform.h"

#include <QStringList>

class QProcess;

namespace brooklet {

// Starts a program hidden and waits for its end in a local event loop, so windows repaint and
// menus stay live; the processor is not kept busy.
class ProgramRunner {
public:
    ProgramEnd runHiddenAndWait(const std::string& program, const std::vector<std::string>& arguments,
                                const std::string& folder);
    // Kills the program that runs now, if any.
    void stop();

private:
    QProcess* process_ = nullptr;
    bool stopped_ = false;
};

// Splits a filter of description and pattern pairs into the filters of a Qt file dialog.
QStringList qtFileFilters(const std::string& filter);

class QtPlatform : public Platform {
public:
    BoxAnswer showBox(const BoxRequest& box) override;
    std::optional<std::string> showOpenDialog(const FileDialogSettings& dialog) override;
    std::optional<std::string> showSaveDialog(const FileDialogSettings& dialog) override;
    void endProgram() override;
    ProgramEnd runProgramAndWait(const std::string& program, const std::vector<std::string>& arguments,
                                 const std::string& folder) override;
    void stopProgram() override { runner_.stop(); }
    std::optional<PrinterChoice> showPrinterDialog(const PrinterDialogSettings& dialog) override;

private:
    ProgramRunner runner_;
};

} // namespace brooklet
