#include "run/run_commands.h"

#include "editing/app_context.h"
#include "run/external_programs.h"
#include "run/file_viewer.h"
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

// A box of the run commands about the program of ToolName.
void tell(AppContext& context, const std::string& text, BoxIcon icon = BoxIcon::Exclamation) {
    context.platform.showBox({context.session.ToolName + text, DefaultBoxTitle, BoxButtons::Ok, icon});
}

} // namespace

ProgramExit CallShell(AppContext& context, const ProgramStart& Command) {
    Hourglass hourglass;
    context.ProgramRunning = true;
    context.windows.runMainActivation();
    const ProgramExit exit = context.platform.runProgramAndWait(
        Command.program, Command.arguments, Command.folder, Command.environment, Command.errorFile);
    context.ProgramRunning = false;
    context.windows.runMainActivation();
    return exit;
}

bool StartProgramAndWait(AppContext& context, const std::string& ControlFile, const std::string& Program) {
    Session& session = context.session;
    const ProgramStart start = PlanProgramStart(session, Program);
    if (start.wineMissing) {
        tell(context, " is a Windows program and needs Wine to run on this system; Wine was not found on "
                      "the PATH.");
        return false;
    }
    if (const auto refused = PrepareProgramStart(session, ControlFile, start.throughWine)) {
        context.platform.showBox(*refused);
        return false;
    }
    const ProgramExit exit = CallShell(context, start);
    std::string wineMessages;
    if (!start.errorFile.empty()) {
        wineMessages = readFileBytes(start.errorFile).value_or(std::string());
        deleteFile(start.errorFile);
    }
    const JudgedEnd end = JudgeProgramEnd(exit, start.throughWine, wineMessages);
    switch (end.end) {
    case ProgramEnd::NotStarted: {
        // A file of the program's name that would not start is no program: the box names it.
        const std::string file = session.ProgramFolder + ProgramFileName(session, Program);
        if (fileExists(file))
            tell(context, " could not be started: the file " + file +
                              " is not a program this system can run. Put the program itself in the program "
                              "folder under that name.");
        else
            tell(context, " - NOT FOUND", BoxIcon::None);
        return false;
    }
    case ProgramEnd::Stopped:
        return false; // the Stop command has said so
    case ProgramEnd::Crashed:
        tell(context, " ended abnormally (" + end.how + "). Its results may be incomplete.");
        return true;
    case ProgramEnd::Finished:
        break;
    }
    return true;
}

void ShowRunResult(AppContext& context) {
    if (JudgeRunResult(context.session))
        ShowFileViewer(context);
}

bool RunExternalProgram(AppContext& context, const std::string& ControlFile, const std::string& Program) {
    if (!StartProgramAndWait(context, ControlFile, Program))
        return false;
    ShowRunResult(context);
    return true;
}

void RunModel(AppContext& context) {
    Session& session = context.session;
    // The model reads the saved file: a session without one, or with unsaved changes, has none
    // to give it.
    if (session.CurrentFile.empty() || session.isUntitled() || session.DataChanged)
        return;
    session.RunResultLabel = "Brooklet Printed Page File";
    RunProgramUnderHourglass(context, ModelProgram);
}

bool RunProgramUnderHourglass(AppContext& context, const ExternalProgram& program) {
    context.session.ToolName = program.ToolName;
    return RunExternalProgram(context, program.ControlFile, program.Program);
}

void StopRunningProgram(AppContext& context) {
    if (!context.ProgramRunning)
        return;
    context.ProgramRunning = false;
    context.platform.stopProgram();
    tell(context, " was stopped before its end. Its results are incomplete.");
}

bool StopProgramBeforeExit(AppContext& context) {
    if (!context.ProgramRunning)
        return true;
    const BoxAnswer answer =
        context.platform.showBox({context.session.ToolName + " is running. Stop it and exit?",
                                  DefaultBoxTitle, BoxButtons::YesNo, BoxIcon::Question});
    if (answer != BoxAnswer::Yes)
        return false;
    context.ProgramRunning = false;
    context.platform.stopProgram();
    return true;
}

} // namespace brooklet
