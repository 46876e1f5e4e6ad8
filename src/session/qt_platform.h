#pragma once
#include "session/platform.h"

#include <QStringList>

namespace brooklet {

// Starts a program hidden and waits for its end in a local event loop, so windows repaint and
// menus stay live; the processor is not kept busy. False when it could not be started.
bool runHiddenAndWait(const std::string& program, const std::string& folder);

// Splits a filter of description and pattern pairs into the filters of a Qt file dialog.
QStringList qtFileFilters(const std::string& filter);

class QtPlatform : public Platform {
public:
    BoxAnswer showBox(const BoxRequest& box) override;
    std::optional<std::string> showOpenDialog(const FileDialogSettings& dialog) override;
    std::optional<std::string> showSaveDialog(const FileDialogSettings& dialog) override;
    void endProgram() override;
    bool runProgramAndWait(const std::string& program, const std::string& folder) override;
    std::optional<PrinterChoice> showPrinterDialog(const PrinterDialogSettings& dialog) override;
    void setClipboardText(const std::string& text) override;
};

} // namespace brooklet
