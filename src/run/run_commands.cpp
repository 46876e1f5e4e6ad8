#include "run/run_commands.h"

#include "run/external_programs.h"
#include "run/file_viewer.h"
#include "session/app_context.h"
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

} // namespace

bool RunProgramUnderHourglass(AppContext& context, const ExternalProgram& program) {
    Hourglass hourglass;
    context.session.ToolName = program.ToolName;
    if (RunExternalProgram(context, program.ControlFile, program.Program))
        return true;
    showNotFound(context);
    return false;
}

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
    RunProgramUnderHourglass(context, ModelProgram);
}

} // namespace brooklet
