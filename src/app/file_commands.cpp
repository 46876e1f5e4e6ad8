#include "app/file_commands.h"

#include "app/main_window.h"
#include "network/local_land_use.h"
#include "run/external_programs.h"
#include "run/run_commands.h"
#include "session/app_context.h"
#include "session/input_file.h"
#include "session/text_file.h"

#include <string>

namespace brooklet {

void LoadInputFile(AppContext& context) {
    Session& session = context.session;
    if (session.CurrentFile.empty())
        return;
    const LoadResult result = brooklet::LoadInputFile(session);
    if (!session.isUntitled()) {
        // The land uses the file brings along stay known to the local land use file.
        bool changed = false;
        MergeLocalLandUse(session, changed);
    }
    if (result.box)
        context.platform.showBox(*result.box);
    context.windows.ShowWindowAtOrigin(session.isUntitled() ? "frmMain" : "frmFlume");
}

namespace {

// A file whose load stopped early is overwritten with the sections read before that line only
// when the user says so.
bool mayOverwritePartlyReadFile(AppContext& context) {
    const Session& session = context.session;
    const auto line = PartlyReadLine(session, session.CurrentFile);
    if (!line)
        return true;
    const BoxAnswer answer = context.platform.showBox(
        {"The file " + session.CurrentFile + " was read only up to line " + std::to_string(*line) +
             ", where a section header was not found. Saving replaces the whole file with the sections "
             "read before that line, and the rest of the file is lost.\r\rSave it anyway?",
         SystemBoxTitle, BoxButtons::YesNo, BoxIcon::Exclamation});
    return answer == BoxAnswer::Yes;
}

} // namespace

bool SaveInputFile(AppContext& context) {
    Session& session = context.session;
    // A session without a name has no file to write.
    if (session.isUntitled() || session.CurrentFile.empty())
        return false;
    if (!mayOverwritePartlyReadFile(context))
        return false;
    // The saved file carries the local land uses that its land use records name. A save that
    // fails puts the section back as it was, so the work files are untouched.
    const std::string& landUseWorkFile = session.WorkFilePath[LocalLandUseSection];
    const auto landUseBefore = readFileBytes(landUseWorkFile);
    BuildLocalLandUseSection(session);
    const SaveResult result = brooklet::SaveInputFile(session);
    if (!result.ok) {
        if (landUseBefore)
            writeFileAtomically(landUseWorkFile, *landUseBefore);
        else
            deleteFile(landUseWorkFile);
    }
    context.platform.showBox(result.box);
    return result.ok;
}

void ConvertOldData(AppContext& context, frmMain& main) {
    Session& session = context.session;
    // Typing of open editors is settled first, so a Yes reaches the question about saving.
    if (!context.windows.askAboutTypingInSessionWindows())
        return;
    // The converted file replaces the work files, where unsaved changes live: ask first.
    if (main.askAboutUnsavedChanges("converted old Flume data ?") == frmMain::UnsavedChanges::Kept)
        return;
    main.CmnDialog1().FilterIndex = 1;
    const auto chosen =
        main.chooseFileToOpen("Data Files (*.dat)|*.dat|All files (*.*)|*.*", "*.dat", "Open old Flume file");
    if (!chosen)
        return;

    main.CloseInputFile();
    main.RefreshSectionList();
    session.CurrentFile = *chosen;
    if (!RunProgramUnderHourglass(context, ConverterProgram)) {
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
    if (!context.windows.askAboutTypingInSessionWindows())
        return;
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
    if (!RunProgramUnderHourglass(context, ReformatterProgram)) {
        // Nothing was imported: a session kept open goes on under its own name.
        if (oldName != " ")
            session.CurrentFile = oldName;
        return;
    }
    // The cross sections join the session: no window may go on showing the session before them.
    context.windows.closeSessionWindows();
    session.DataChanged = true;
    session.CurrentFile = BaseName(session.CurrentFile) + "inp";
    AppendReformattedSections(session);
    context.windows.ShowWindowAtOrigin("frmFlume");
    if (oldName != " ")
        session.CurrentFile = oldName;
}

} // namespace brooklet
