#pragma once
#include "session/platform.h"

#include <QStringList>

namespace brooklet {

// Splits a filter of description and pattern pairs into the filters of a Qt file dialog.
QStringList qtFileFilters(const std::string& filter);

class QtPlatform : public Platform {
public:
    BoxAnswer showBox(const BoxRequest& box) override;
    std::optional<std::string> showOpenDialog(const FileDialogSettings& dialog) override;
    std::optional<std::string> showSaveDialog(const FileDialogSettings& dialog) override;
    void endProgram() override;
};

} // namespace brooklet
