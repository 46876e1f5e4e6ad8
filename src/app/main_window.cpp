#include "app/main_window.h"

#include "app/check_command.h"
#include "app/file_commands.h"
#include "check/check_window.h"
#include "editing/app_context.h"
#include "editing/help_windows.h"
#include "network/standard_land_use.h"
#include "run/file_viewer.h"
#include "run/run_commands.h"
#include "session/input_file.h"
#include "session/text_file.h"
#include "session/view_menu.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

namespace brooklet {
namespace {

const char* const DesignCaption = "Brooklet System Controller /  Editor ";

// Builds the items of a menu array; indexes without a caption are separators.
void addMenuItems(QMenu* menu, const QString& arrayName, int first, int last,
                  const std::map<int, QString>& captions, ControlArray<QAction>& items) {
    for (int index = first; index <= last; ++index) {
        QAction* action = nullptr;
        auto caption = captions.find(index);
        if (caption == captions.end()) {
            action = menu->addSeparator();
        } else {
            action = menu->addAction(caption->second);
        }
        action->setObjectName(indexedName(arrayName, index));
        items.add(index, action);
    }
}

// Gives a menu item the platform's keys for a standard command; Fallback where the platform has
// none, so that every such command has a key.
void setStandardKeys(QAction* action, QKeySequence::StandardKey key, const QKeySequence& fallback) {
    QList<QKeySequence> keys = QKeySequence::keyBindings(key);
    if (keys.isEmpty() && !fallback.isEmpty())
        keys << fallback;
    action->setShortcuts(keys);
}

} // namespace

QString editorWindowName(int section) {
    return fromBytes(sectionEditor(section));
}

frmMain::frmMain(AppContext& context, QWidget* parent) : QMainWindow(parent), context_(context) {
    setObjectName("frmMain");
    setWindowTitle(DesignCaption);
    buildControls();
    buildMenus();
    context_.windows.adopt("frmMain", this);
    context_.windows.setMainActivation([this] { Form_Activate(); });

    Session& session = context_.session;
    session.ToolName.clear();
    session.EnglishUnits = true;
    if (const auto box = StartSession(session, currentFolder()))
        context_.platform.showBox(*box);
    StandardLandUse(); // the built-in curve numbers, ready before the first window needs them
    move(0, 0);
    Form_Activate();
}

void frmMain::buildControls() {
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);

    lblFlume = new QLabel("Brooklet System Controller / Editor", central);
    nameControl(lblFlume, "lblFlume", lblFlume->text());
    QFont titleFont = lblFlume->font();
    titleFont.setPointSize(titleFont.pointSize() + 6);
    titleFont.setBold(true);
    lblFlume->setFont(titleFont);
    lblFlume->setAlignment(Qt::AlignCenter);
    layout->addWidget(lblFlume);

    Frame1 = new QGroupBox(central);
    nameControl(Frame1, "Frame1", "Disclaimer");
    auto* frame1Layout = new QVBoxLayout(Frame1);
    auto* text1 = new QLabel("Disclaimer", Frame1);
    nameControl(text1, "Text1", text1->text());
    text1->setAlignment(Qt::AlignCenter);
    lblDisclaimer = new QLabel(DisclaimerText, Frame1);
    nameControl(lblDisclaimer, "lblDisclaimer", lblDisclaimer->text());
    lblDisclaimer->setWordWrap(true);
    frame1Layout->addWidget(text1);
    frame1Layout->addWidget(lblDisclaimer);
    layout->addWidget(Frame1);

    cmdHelp = new QPushButton(" New User ?    Click Here", central);
    nameControl(cmdHelp, "cmdHelp", cmdHelp->text());
    layout->addWidget(cmdHelp, 0, Qt::AlignHCenter);
    connect(cmdHelp, &QPushButton::clicked, this, [this] {
        for (const char* name : {"frmGettingStarted", "frmHelpFac", "frmOverview"})
            context_.windows.ShowWindowAtOrigin(name);
    });

    Frame2 = new QGroupBox(central);
    nameControl(Frame2, "Frame2", "Sections");
    auto* frame2Layout = new QVBoxLayout(Frame2);
    auto* marks = new QLabel("(X indicates some data entered for section)", Frame2);
    nameControl(marks, indexedName("Text2", 0), marks->text());
    CurrentLst = new QListWidget(Frame2);
    nameControl(CurrentLst, "CurrentLst", "Click Data Section Name to Enter Data");
    QFont fixed("Monospace");
    fixed.setStyleHint(QFont::TypeWriter);
    CurrentLst->setFont(fixed);
    auto* clickHint = new QLabel("Click Data Section Name to Enter Data", Frame2);
    nameControl(clickHint, indexedName("Text2", 1), clickHint->text());
    frame2Layout->addWidget(marks);
    frame2Layout->addWidget(CurrentLst);
    frame2Layout->addWidget(clickHint);
    layout->addWidget(Frame2);
    Frame2->hide();

    cmdCheckFindings = new QPushButton(this);
    nameControl(cmdCheckFindings, "cmdCheckFindings", "Check Watershed findings");
    cmdCheckFindings->setFlat(true);
    cmdCheckFindings->hide();
    statusBar()->addWidget(cmdCheckFindings);
    connect(cmdCheckFindings, &QPushButton::clicked, this,
            [this] { showCheckWindow(context_, passedFindings_); });

    connect(CurrentLst, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { openSection(CurrentLst->row(item) + 1); });
    CurrentLst->installEventFilter(this);
    setCentralWidget(central);
    resize(560, 520);
}

void frmMain::buildMenus() {
    QMenuBar* bar = menuBar();
    mnuFile = bar->addMenu("File");
    mnuFile->setObjectName("mnuFile");
    addMenuItems(mnuFile, "mnuFileItem", 1, 18,
                 {{1, "New Brooklet File"},
                  {2, "Open Existing Brooklet File"},
                  {3, "ReOpen Last Session"},
                  {6, "Convert old Data"},
                  {7, "Import HEC-RAS"},
                  {10, "Local Land Use"},
                  {11, "Local Soil / HSG"},
                  {14, "Save"},
                  {15, "Save As"},
                  {18, "Exit"}},
                 fileItems_);
    for (const auto& [index, action] : fileItems_.all())
        if (!action->isSeparator())
            connect(action, &QAction::triggered, this, [this, index = index] { fileCommand(index); });
    fileItem(14)->setEnabled(false);
    fileItem(15)->setEnabled(false);
    // The platform's standard keys, shown in the menu beside the captions.
    setStandardKeys(fileItem(1), QKeySequence::New, {});
    setStandardKeys(fileItem(2), QKeySequence::Open, {});
    setStandardKeys(fileItem(14), QKeySequence::Save, {});
    setStandardKeys(fileItem(15), QKeySequence::SaveAs, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    setStandardKeys(fileItem(18), QKeySequence::Quit, QKeySequence(Qt::CTRL | Qt::Key_Q));

    auto spacer = [bar](const char* name) {
        QMenu* menu = bar->addMenu("    ");
        menu->setObjectName(name);
        menu->setEnabled(false);
    };
    spacer("mnuSpace1");

    mnuView = bar->addMenu("View");
    mnuView->setObjectName("mnuView");
    addMenuItems(mnuView, "mnuViewItem", 0, 8,
                 {{0, "Schematic"},
                  {1, "Input File"},
                  {4, "Printed Page File"},
                  {5, "Error File"},
                  {6, "Debug File"},
                  {7, "Hydrograph File"},
                  {8, "FloodEcon File"}},
                 viewItems_);
    connect(viewItems_(0), &QAction::triggered, this,
            [this] { context_.windows.ShowWindowAtOrigin("frmTopoModel"); });
    for (int index : {1, 4, 5, 6, 7, 8})
        connect(viewItems_(index), &QAction::triggered, this, [this, index] {
            context_.session.ViewIndex = static_cast<short>(index);
            ShowFileViewer(context_);
        });

    // Tools stands between View and Run: Run itself runs the model, and Check Watershed must be
    // at hand while Run is hidden by unsaved changes.
    mnuTools = bar->addMenu("Tools");
    mnuTools->setObjectName("mnuTools");
    mnuCheckWatershed = mnuTools->addAction("Check Watershed");
    mnuCheckWatershed->setObjectName("mnuCheckWatershed");
    mnuCheckWatershed->setShortcut(Qt::Key_F7);
    addAction(mnuCheckWatershed); // F7 works with the menu closed
    connect(mnuCheckWatershed, &QAction::triggered, this, &frmMain::checkWatershed);

    spacer("mnuspace4");
    mnuRun = bar->addAction("Run");
    mnuRun->setObjectName("mnuRun");
    mnuRun->setShortcut(Qt::Key_F5);
    connect(mnuRun, &QAction::triggered, this, &frmMain::runModel);
    mnuStop = bar->addAction("Stop");
    mnuStop->setObjectName("mnuStop");
    mnuStop->setVisible(false);
    connect(mnuStop, &QAction::triggered, this, [this] { StopRunningProgram(context_); });
    sessionCommands_ = new QActionGroup(this);
    sessionCommands_->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    for (int index : {1, 2, 3, 6, 7, 10, 11, 14, 15})
        sessionCommands_->addAction(fileItem(index));
    sessionCommands_->addAction(mnuRun);
    mnuPlots = bar->addAction("Plots");
    mnuPlots->setObjectName("mnuPlots");
    connect(mnuPlots, &QAction::triggered, this,
            [this] { context_.windows.ShowWindowAtOrigin("frmGraphicsOutput"); });
    spacer("mnuspace5");

    mnuHelp = bar->addMenu("Help");
    mnuHelp->setObjectName("mnuHelp");
    addMenuItems(mnuHelp, "mnuHelpItem", 1, 8,
                 {{1, "Brooklet System Diagram"},
                  {3, "Overview"},
                  {4, "Help Facilities"},
                  {5, "Getting Started"},
                  {8, "About Controller /  Editor"}},
                 helpItems_);
    const std::map<int, const char*> helpWindows = {
        {1, "frmDiagram"}, {3, "frmOverview"}, {4, "frmHelpFac"}, {5, "frmGettingStarted"}, {8, "frmAbout"}};
    for (const auto& [index, window] : helpWindows)
        connect(helpItems_(index), &QAction::triggered, this,
                [this, window = window] { context_.windows.ShowWindowAtOrigin(window); });
}

bool frmMain::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        Form_Activate();
    return QMainWindow::event(event);
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    // Enter or Space on a list entry opens its section, so the list works without a mouse.
    if (watched == CurrentLst && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) &&
            CurrentLst->currentRow() >= 0) {
            openSection(CurrentLst->currentRow() + 1);
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!StopProgramBeforeExit(context_)) {
        event->ignore();
        return;
    }
    context_.windows.unload("frmTopoModel");
    event->accept();
}

void frmMain::Form_Activate() {
    const Session& session = context_.session;
    // A group remembers each item's own state, which comes back when the program has ended.
    sessionCommands_->setEnabled(!context_.ProgramRunning);
    mnuStop->setVisible(context_.ProgramRunning);
    mnuPlots->setVisible(false);
    if (!session.DataChanged && !session.CurrentFile.empty() && !session.isUntitled()) {
        mnuRun->setVisible(true);
        UpdateViewMenu(context_.session, this);
        if (fileExists(session.OutputPath))
            mnuPlots->setVisible(true);
    } else {
        mnuRun->setVisible(false);
        mnuView->menuAction()->setVisible(false);
    }
    updateToolsMenu();
    RefreshSectionList();
}

void frmMain::updateToolsMenu() {
    // Save As is enabled from the first New, Open or ReOpen on: a file is open.
    const bool fileOpen = fileItem(15)->isEnabled();
    mnuTools->menuAction()->setVisible(fileOpen);
    mnuCheckWatershed->setEnabled(fileOpen);
}

void frmMain::checkWatershed() {
    if (!mnuCheckWatershed->isEnabled())
        return;
    showFindingsButton({});
    showCheckWindow(context_, CheckSessionWatershed(context_));
}

void frmMain::runModel() {
    const CommandCheck check = CheckBeforeCommand(context_, CheckedCommand::Run);
    showFindingsButton(check.findings);
    if (check.goOn)
        RunModel(context_);
}

void frmMain::showFindingsButton(const Findings& findings) {
    passedFindings_ = findings;
    const bool warningsOnly = !findings.empty() && errorCount(findings) == 0;
    cmdCheckFindings->setText(fromBytes("Check Watershed: " + findingsSummary(findings)));
    cmdCheckFindings->setVisible(warningsOnly);
}

void frmMain::RefreshSectionList() {
    const Session& session = context_.session;
    // The row the keyboard stands on stays across the refresh, so the arrows and Enter go on
    // from it when an editor has closed.
    const int current = CurrentLst->currentRow();
    CurrentLst->clear();
    for (int i = 1; i <= 14; ++i) {
        // Opening for appending creates an empty work file for a section that has none.
        touchFile(session.WorkFilePath[i]);
        const std::string prefix = fileLength(session.WorkFilePath[i]) > 0 ? "X   " : "     ";
        CurrentLst->addItem(fromBytes(prefix + session.SectionTable[i]));
    }
    if (current >= 0)
        CurrentLst->setCurrentRow(current);
    // All fourteen sections in sight at once.
    CurrentLst->setMinimumHeight(CurrentLst->sizeHintForRow(0) * 14 + 2 * CurrentLst->frameWidth() + 4);
}

void frmMain::openSection(int section) {
    if (section < 1 || section > 14)
        return;
    pickedSection_ = section;
    context_.CurrentAlternate = 0;
    context_.windows.ShowWindowAtOrigin(editorWindowName(section));
}

void frmMain::fileCommand(int index) {
    switch (index) {
    case 1:
        newFile();
        break;
    case 2:
        openExistingFile();
        break;
    case 3:
        reopenLastSession();
        break;
    case 6:
        beginFileCommand();
        ConvertOldData(context_, *this);
        context_.session.WatershedChecked = false;
        endFileCommand();
        break;
    case 7:
        beginFileCommand();
        ImportHecRas(context_, *this);
        context_.session.WatershedChecked = false;
        endFileCommand();
        break;
    case 10:
        beginFileCommand();
        context_.windows.ShowWindowAtOrigin("frmLocalLanduse");
        endFileCommand();
        break;
    case 11:
        beginFileCommand();
        context_.windows.ShowWindowAtOrigin("frmLocalSoil");
        endFileCommand();
        break;
    case 14:
        saveFile();
        break;
    case 15:
        saveFileAs();
        break;
    case 18:
        exitProgram();
        break;
    default:
        break;
    }
}

void frmMain::beginFileCommand() {
    Frame1->hide();
    cmdHelp->hide();
    dialog_.InitDir = currentFolder();
}

void frmMain::endFileCommand() {
    if (!context_.session.CurrentFile.empty())
        setCaptionToCurrentFile();
    Frame2->show();
    updateToolsMenu();
}

void frmMain::setCaptionToCurrentFile() {
    const Session& session = context_.session;
    setWindowTitle(pathToQt(session.EditorTitle + "   Current File - " + session.CurrentFile));
}

void frmMain::newFile() {
    // Typing of open editors is settled first, so a Yes reaches the question about saving.
    if (!context_.windows.askAboutTypingInSessionWindows())
        return;
    beginFileCommand();
    // Unsaved changes live only in the work files that a new file clears: ask first.
    if (askAboutUnsavedChanges("a new Brooklet input data file ?") != UnsavedChanges::Kept) {
        CloseInputFile();
        context_.windows.ShowWindowAtOrigin("frmFlume");
    }
    endFileCommand();
}

std::optional<std::string> frmMain::chooseFileToOpen(const std::string& filter, const std::string& fileName,
                                                     const std::string& title) {
    Session& session = context_.session;
    dialog_.Filter = filter;
    dialog_.FileName = fileName;
    dialog_.DialogTitle = title;
    dialog_.CancelError = true;
    dialog_.InitDir = session.LastFolder;
    const auto chosen = context_.platform.showOpenDialog(dialog_);
    if (!chosen)
        return std::nullopt;
    dialog_.FileName = *chosen;
    session.LastFolder = DirectoryPart(*chosen);
    setCurrentFolder(session.ProgramFolder);
    return chosen;
}

void frmMain::openExistingFile() {
    if (!context_.windows.askAboutTypingInSessionWindows())
        return;
    beginFileCommand();
    std::string oldName;
    PromptBeforeLoading(oldName, "another Brooklet input data file ?", cancelled_);
    if (!cancelled_) {
        const auto chosen = chooseFileToOpen(
            std::string("Input Files (*.inp)|*.inp|") + "All files (*.*)|*.*", "*.inp", "Open Brooklet file");
        if (!chosen)
            return;
        loadChosenFile(*chosen);
    }
    endFileCommand();
}

void frmMain::loadChosenFile(const std::string& Path) {
    Session& session = context_.session;
    context_.windows.closeSessionWindows();
    const std::string nameBefore = session.CurrentFile;
    const std::string outputBefore = session.OutputPath;
    session.CurrentFile = Path;
    session.OutputPath = BaseName(session.CurrentFile) + "out";
    if (LoadInputFile(context_)) {
        session.WatershedChecked = false;
        fileItem(14)->setEnabled(true);
        fileItem(15)->setEnabled(true);
        session.DataChanged = false;
        context_.windows.ShowWindowAtOrigin("frmFlume");
    } else {
        // Nothing of the file was loaded: the session goes on as it was before the command.
        session.CurrentFile = nameBefore;
        session.OutputPath = outputBefore;
    }
}

bool frmMain::openFile(const std::string& Path) {
    if (!context_.windows.askAboutTypingInSessionWindows())
        return false;
    beginFileCommand();
    std::string oldName;
    PromptBeforeLoading(oldName, "another Brooklet input data file ?", cancelled_);
    if (!cancelled_) {
        context_.session.LastFolder = DirectoryPart(Path);
        loadChosenFile(Path);
    }
    endFileCommand();
    return !cancelled_ && context_.session.CurrentFile == Path;
}

void frmMain::reopenLastSession() {
    if (!context_.windows.askAboutTypingInSessionWindows())
        return;
    beginFileCommand();
    context_.windows.closeSessionWindows();
    Session& session = context_.session;
    if (auto line = readFirstLine(session.WorkFilePath[FileNameWorkFile]))
        session.CurrentFile = *line;
    if (session.CurrentFile.empty())
        session.CurrentFile = UntitledFile;
    if (!session.isUntitled()) {
        fileItem(14)->setEnabled(true);
        session.OutputPath = BaseName(session.CurrentFile) + "out";
    }
    fileItem(15)->setEnabled(true);
    session.DataChanged = false;
    session.WatershedChecked = false;
    context_.windows.ShowWindowAtOrigin("frmFlume");
    endFileCommand();
}

void frmMain::saveFile() {
    // A session without a name has no file to save into: Save asks for one.
    if (context_.session.isUntitled()) {
        saveFileAs();
        return;
    }
    beginFileCommand();
    // A save that failed leaves the data unsaved, and the model may not run on it.
    if (SaveInputFile(context_))
        mnuRun->setVisible(true);
    UpdateViewMenu(context_.session, this);
    endFileCommand();
}

void frmMain::saveFileAs() {
    beginFileCommand();
    const CommandCheck check = CheckBeforeCommand(context_, CheckedCommand::SaveAs);
    showFindingsButton(check.findings);
    if (!check.goOn) {
        endFileCommand();
        return;
    }
    dialog_.DialogTitle = "Save Brooklet file";
    SaveInputFileAs();
    // A session still without a file (the dialog was cancelled) has nothing to run or view.
    if (!context_.session.isUntitled()) {
        if (!context_.session.DataChanged)
            mnuRun->setVisible(true);
        UpdateViewMenu(context_.session, this);
    }
    endFileCommand();
}

std::optional<std::string> frmMain::chooseInputFileToSave() {
    dialog_.DefaultExtension = "inp";
    auto chosen = context_.platform.showSaveDialog(dialog_);
    if (chosen) {
        *chosen = WithDefaultExtension(*chosen, dialog_.DefaultExtension);
        dialog_.FileName = *chosen;
    }
    return chosen;
}

void frmMain::SaveInputFileAs() {
    Session& session = context_.session;
    if (!session.isUntitled()) {
        const auto separator = session.CurrentFile.rfind(folderSeparator());
        if (separator != std::string::npos) {
            dialog_.InitDir = session.CurrentFile.substr(0, separator + 1);
            dialog_.FileName = session.CurrentFile.substr(separator + 1);
        }
    }
    dialog_.Filter = std::string("Input File (*.inp)|*.inp|") + "All files (*.*)|*.*\"*.dat";
    dialog_.FilterIndex = 1;
    dialog_.CancelError = true;
    dialog_.InitDir = session.LastFolder;
    // The "Save:" question below is this command's confirmation.
    dialog_.ConfirmOverwrite = false;
    const auto chosen = chooseInputFileToSave();
    if (!chosen)
        return;
    session.LastFolder = DirectoryPart(*chosen);
    setCurrentFolder(session.ProgramFolder);

    const BoxAnswer answer =
        context_.platform.showBox({"Save: " + *chosen, SystemBoxTitle, BoxButtons::YesNo, BoxIcon::Question});
    if (answer != BoxAnswer::No) {
        const std::string oldName = session.CurrentFile;
        session.CurrentFile = *chosen;
        setCaptionToCurrentFile();
        if (SaveInputFile(context_)) {
            session.DataChanged = false;
        } else {
            // Nothing was written under the new name: the session keeps its old one.
            session.CurrentFile = oldName;
            setCaptionToCurrentFile();
        }
    }
    fileItem(14)->setEnabled(true);
    WriteFileNameWorkFile(session);
}

void frmMain::exitProgram() {
    beginFileCommand();
    if (!StopProgramBeforeExit(context_))
        return;
    // Typing that the user keeps becomes a change of the input file, which the next question
    // offers to save.
    if (!context_.windows.askAboutTypingInSessionWindows())
        return;
    Session& session = context_.session;
    if (session.DataChanged) {
        const BoxAnswer answer = context_.platform.showBox(
            {"Changes have been made to the Brooklet input file - Do you want to save it?", SystemBoxTitle,
             BoxButtons::YesNo, BoxIcon::Question});
        if (answer == BoxAnswer::No) {
            // "ReOpen Last Session" is to find nothing; the work files themselves stay.
            deleteFile(session.WorkFilePath[FileNameWorkFile]);
        } else {
            dialog_.InitDir = session.LastFolder;
            // Whatever an earlier command left in the dialog, this one saves the input file, and
            // an existing file is replaced only when the user confirms it.
            dialog_.DialogTitle = "Save Brooklet file";
            dialog_.ConfirmOverwrite = true;
            const auto chosen = chooseInputFileToSave();
            if (chosen) {
                session.LastFolder = DirectoryPart(*chosen);
                if (!chosen->empty()) {
                    const std::string oldName = session.CurrentFile;
                    session.CurrentFile = *chosen;
                    // A file that could not be written keeps the program open under its old
                    // name, so nothing is lost.
                    if (!SaveInputFile(context_)) {
                        session.CurrentFile = oldName;
                        return;
                    }
                }
            }
        }
    }
    // Windows inside a dialog of their own close only once it has returned to them.
    context_.windows.closeSessionWindows();
    context_.platform.endProgram();
}

frmMain::UnsavedChanges frmMain::askAboutUnsavedChanges(const std::string& Prompt) {
    Session& session = context_.session;
    if (!session.DataChanged)
        return UnsavedChanges::None;
    const BoxAnswer answer =
        context_.platform.showBox({"Save and Close current file before loading\r" + Prompt, DefaultBoxTitle,
                                   BoxButtons::YesNoCancel, BoxIcon::None});
    if (answer == BoxAnswer::Cancel)
        return UnsavedChanges::Kept;
    if (answer == BoxAnswer::No)
        return UnsavedChanges::Discarded;
    // A session without a name is saved under the name the user gives. A save that did not
    // happen stops the command: the session stays as it was.
    if (session.isUntitled())
        SaveInputFileAs();
    else
        SaveInputFile(context_);
    return session.DataChanged || session.isUntitled() ? UnsavedChanges::Kept : UnsavedChanges::Saved;
}

void frmMain::PromptBeforeLoading(std::string& OldName, const std::string& Prompt, bool& Cancelled) {
    OldName = context_.session.CurrentFile;
    Cancelled = false;
    context_.session.RunResultLabel = " ";
    switch (askAboutUnsavedChanges(Prompt)) {
    case UnsavedChanges::Kept:
        Cancelled = true;
        return;
    case UnsavedChanges::Discarded:
        return;
    case UnsavedChanges::None:
    case UnsavedChanges::Saved:
        break;
    }
    CloseInputFile();
    OldName = " ";
}

void frmMain::CloseInputFile() {
    context_.windows.closeSessionWindows();
    context_.session.CurrentFile = UntitledFile;
    context_.session.WatershedChecked = false;
    showFindingsButton({});
    fileItem(14)->setEnabled(false);
    fileItem(15)->setEnabled(true);
    ClearWorkFiles(context_.session);
}

} // namespace brooklet
