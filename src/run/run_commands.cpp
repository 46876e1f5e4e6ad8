#include "run/run_commands.h"

#include "run/external_programs.h"
#include "run/file_viewer.h"
#include "session/app_context.h"
#include "session/file_commands.h"
#include "session/input_file.h"
#include "session/main_window.h"
#include "session/text_file.h"

#include <QApplication>

namespace brooklet {
namespace {

// The hourglass for as long as a program runs.
class Hourglass {
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

void showNotFound(AppContext& context) {
    context.platform.showBox(
        {context.session.ToolName + " - NOT FOUND", DefaultBoxTitle, BoxButtons::Ok, BoxIcon::None});
}

// Runs one of the three programs under the hourglass; says so when it is not there.
bool runUnderHourglass(AppContext& context, const ExternalProgram& program) {
    Hourglass hourglass;
    context.session.ToolName = program.ToolName;
    if (RunExternalProgram(context, program.ControlFile, program.Program))
        return true;
    showNotFound(context);
    return false;
}

} // namespace

int CallShell(AppContext& context, const std::string& Command, int WindowStyle) {
    (void)WindowStyle; // programs are always started hidden
    return context.platform.runProgramAndWait(Command, context.session.ProgramFolder) ? -1 : 0;
}

bool RunExternalProgram(AppContext& context, const std::string& ControlFile, const std::string& Program) {
    Session& session = context.session;
    WriteControlFile(session, ControlFile);
    if (CallShell(context, ProgramPath(session, Program), 0) != -1)
        return false;
    if (JudgeRunResult(session))
        ShowFileViewer(context);
    return true;
}

void RunModel(AppContext& context) {
    context.session.RunResultLabel = "Brooklet Printed Page File";
    runUnderHourglass(context, ModelProgram);
}

void ConvertOldData(AppContext& context, frmMain& main) {
    Session& session = context.session;
    main.CmnDialog1().FilterIndex = 1;
    const auto chosen =
        main.chooseFileToOpen("Data Files (*.dat)|*.dat|All files (*.*)|*.*", "*.dat", "Open old Flume file");
    if (!chosen)
        return;

    main.CloseInputFile();
    main.RefreshSectionList();
    session.CurrentFile = *chosen;
    if (!runUnderHourglass(context, ConverterProgram)) {
        setCurrentFolder(session.ProgramFolder);
        return;
    }
    session.DataChanged = false;
    if (!session.isUntitled()) {
        session.CurrentFile = BaseName(*chosen) + "inp";
        LoadInputFile(context);
        main.setFileItemEnabled(14, true);
        main.setFileItemEnabled(15, true);
        session.DataChanged = false;
        context.windows.ShowWindowAtOrigin("frmFlume");
    }
}

void ImportHecRas(AppContext& context, frmMain& main) {
    Session& session = context.session;
    std::string oldName;
    bool cancelled = false;
    main.PromptBeforeLoading(oldName, "reformatted HEC-RAS cross section data ?", cancelled);
    if (cancelled)
        return;
    main.CmnDialog1().FilterIndex = 1;
    const auto chosen =
        main.chooseFileToOpen("Text Files (*.txt)|*.txt|All files (*.*)|*.*", "*.txt", "Open HEC-RAS file");
    if (!chosen)
        return;

    session.CurrentFile = *chosen;
    if (!runUnderHourglass(context, ReformatterProgram)) {
        // Nothing was imported: a session kept open goes on under its own name.
        if (oldName != " ")
            session.CurrentFile = oldName;
        return;
    }
    session.DataChanged = true;
    session.CurrentFile = BaseName(session.CurrentFile) + "inp";
    AppendReformattedSections(session);
    context.windows.ShowWindowAtOrigin("frmFlume");
    if (oldName != " ")
        session.CurrentFile = oldName;
}

} // namespace brooklet
