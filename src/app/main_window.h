#pragma once
// frmMain: the program's one permanent window, with the File, View, Run, Plots and Help menus
// and the section list from which every editor window opens.
#include <QMainWindow>

#include <optional>
#include <string>

#include "check/findings.h"
#include "editing/widgets.h"
#include "session/platform.h"

class QAction;
class QActionGroup;
class QGroupBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QMenu;
class QPushButton;

namespace brooklet {

struct AppContext;

// The editor window of each listed section, by section number 1 to 14.
QString editorWindowName(int section);

class frmMain : public QMainWindow {
    Q_OBJECT
public:
    explicit frmMain(AppContext& context, QWidget* parent = nullptr);

    // The activation step, run each time the window becomes the active window.
    void Form_Activate();
    void RefreshSectionList();
    // Section number picked last in the section list.
    int pickedSection() const { return pickedSection_; }
    FileDialogSettings& CmnDialog1() { return dialog_; }

    void PromptBeforeLoading(std::string& OldName, const std::string& Prompt, bool& Cancelled);
    // What became of the session's unsaved changes when a command was about to replace them.
    enum class UnsavedChanges { None, Saved, Discarded, Kept };
    // Asks, when there are unsaved changes, whether to save them first (Save As for a session
    // without a name). Kept when the user cancelled or the save did not happen: the command
    // must then leave the session alone.
    UnsavedChanges askAboutUnsavedChanges(const std::string& Prompt);
    void CloseInputFile();
    void SaveInputFileAs();

    // Shows the open dialog in LastFolder with the given filter, file name and title. The chosen
    // file's folder becomes LastFolder and the current folder returns to the program folder.
    // Nothing when the user cancelled.
    std::optional<std::string> chooseFileToOpen(const std::string& filter, const std::string& fileName,
                                                const std::string& title);
    // Shows the save dialog for an input file; a name typed without an extension gets ".inp".
    std::optional<std::string> chooseInputFileToSave();
    void setFileItemEnabled(int index, bool enabled) { fileItems_(index)->setEnabled(enabled); }

    // The File menu's commands by item index.
    void fileCommand(int index);
    // Opens the input file at Path as "Open Existing Brooklet File" does once a file is chosen:
    // the program started with a file to open, or the desktop handing it one. False when the
    // file could not be loaded; the session is then as it was.
    bool openFile(const std::string& Path);
    // Tools, "Check Watershed" (F7): the whole input checked, the findings listed in frmCheck.
    void checkWatershed();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void buildMenus();
    void beginFileCommand();
    void endFileCommand();
    void newFile();
    void openExistingFile();
    // The steps of Open once a file is chosen.
    void loadChosenFile(const std::string& Path);
    void reopenLastSession();
    void saveFile();
    void saveFileAs();
    void exitProgram();
    void openSection(int section);
    void setCaptionToCurrentFile();
    QAction* fileItem(int index) const { return fileItems_(index); }
    // Run: the model, after the check of a session not yet checked.
    void runModel();
    // Tools shows while a file is open, named or untitled after New.
    void updateToolsMenu();
    // The warnings a check before Run or Save As let pass stay one click away in the status
    // bar; nothing shows after a check without them.
    void showFindingsButton(const Findings& findings);

    AppContext& context_;
    FileDialogSettings dialog_;
    int pickedSection_ = 0;
    bool cancelled_ = false;

    QGroupBox* Frame1 = nullptr;
    QGroupBox* Frame2 = nullptr;
    QLabel* lblDisclaimer = nullptr;
    QLabel* lblFlume = nullptr;
    QListWidget* CurrentLst = nullptr;
    QPushButton* cmdHelp = nullptr;
    QMenu* mnuFile = nullptr;
    QMenu* mnuView = nullptr;
    QMenu* mnuHelp = nullptr;
    QAction* mnuRun = nullptr;
    QAction* mnuPlots = nullptr;
    QAction* mnuStop = nullptr; // shown while an external program runs
    QMenu* mnuTools = nullptr;
    QAction* mnuCheckWatershed = nullptr;
    QPushButton* cmdCheckFindings = nullptr;
    Findings passedFindings_; // the warnings of the last check before Run or Save As
    // The commands that change the session or start a program: disabled while a program runs.
    QActionGroup* sessionCommands_ = nullptr;
    ControlArray<QAction> fileItems_;
    ControlArray<QAction> viewItems_;
    ControlArray<QAction> helpItems_;
};

} // namespace brooklet
