#pragma once
// A window test: its own program folder, a scripted platform, a context with every window
// known, and the main window loaded the way the program starts.
#include <QApplication>
#include <QString>

#include <memory>

#include "app/main_window.h"
#include "editing/app_context.h"
#include "support/program_folder.h"
#include "support/scripted_platform.h"

class QAction;

namespace brooklet::test {

class UiTest : public ProgramFolderTest {
protected:
    UiTest();
    ~UiTest() override;

    // Loads frmMain in the program folder, as the program does at start.
    frmMain& startMain();
    // A control or menu item of a window, by its design name.
    template <typename T> T* control(QWidget* window, const QString& name) const {
        T* found = window->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << "no control " << name.toStdString();
        return found;
    }
    // Triggers a menu item of the main window, as a click on it does.
    void clickMenuItem(const QString& name);
    Session& session() { return context->session; }
    // An input file in the program folder, from lines; its path.
    std::string inputFile(const std::string& name, const std::vector<std::string>& lines);
    // Opens a file through File, "Open Existing Brooklet File", the dialog answered with it.
    void openFile(const std::string& path);
    // What an editor does when the user accepts: its work file and DataChanged.
    void acceptEdit(int section, const std::vector<std::string>& lines);
    // The path of a work file.
    const std::string& workFile(int number) { return context->session.WorkFilePath[number]; }

    ScriptedPlatform platform;
    std::unique_ptr<AppContext> context;
    frmMain* main = nullptr;
};

} // namespace brooklet::test
