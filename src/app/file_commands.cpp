#include "app/file_commands.h"

#include "app/main_window.h"
#include "editing/app_context.h"
#include "network/local_land_use.h"
#include "run/external_programs.h"
#include "run/run_commands.h"
#include "session/input_file.h"
#include "session/text_file.h"

#include <optional>
#include <string>

namespace brooklet {

bool LoadInputFile(AppContext& context) {
    Session& session = context.session;
    if (session.CurrentFile.empty())
        return true;
    const LoadResult result = brooklet::LoadInputFile(session);
    if (result.failed) {
        // Nothing of the file is in the work files: no save may be made from it under its name.
        context.platform.showBox(*result.box);
        session.CurrentFile = UntitledFile;
        context.windows.ShowWindowAtOrigin("frmMain");
        return false;
    }
    std::optional<BoxRequest> mergeFailed;
    if (!session.isUntitled()) {
        // The land uses the file brings along stay known to the local land use file.
        bool changed = false;
        if (const WriteResult merged = MergeLocalLandUse(session, changed); !merged.ok)
            mergeFailed =
                BoxRequest{"The land uses that " + session.CurrentFile +
                               " brings along could not be added to the local land use file " +
                               session.LocalLandUseFile + " (" + merged.error + "); it is as it was.",
                           DefaultBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation};
    }
    if (result.box)
        context.platform.showBox(*result.box);
    if (mergeFailed)
        context.platform.showBox(*mergeFailed);
    context.windows.ShowWindowAtOrigin(session.isUntitled() ? "frmMain" : "frmFlume");
    return true;
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
    if (const WriteResult built = BuildLocalLandUseSection(session); !built.ok) {
        context.platform.showBox(
            {"The work file " + landUseWorkFile + " could not be written (" + built.error + "). The file " +
                 session.CurrentFile +
                 " was not saved; the file and the data of this session are as they were.",
             SystemBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation});
        return false;
    }
    SaveResult result = brooklet::SaveInputFile(session);
    if (!result.ok) {
        WriteResult restored;
        if (landUseBefore)
            restored = writeFileAtomically(landUseWorkFile, *landUseBefore);
        else if (deleteFile(landUseWorkFile); fileExists(landUseWorkFile))
            restored = {false, "it could not be deleted"};
        if (!restored.ok)
            result.box.text += " Only the section \"LOCAL LAND USE:\" could not be put back as it was (" +
                               restored.error + ").";
    }
    context.platform.showBox(result.box);
    return result.ok;
}

namespace {

// Runs the program of Convert or Import on the file the user chose, once the user has agreed to
// lose a file that stands where the program writes its result. The session is named after the
// chosen file only while the program runs, so that the control file names it. True when the
// program ran to its end and left ResultFile; the session is then still named after the chosen
// file. Otherwise a box has said why and the session, its name and its work files are as they
// were before the command.
bool runOnChosenFile(AppContext& context, const ExternalProgram& program, const std::string& chosen,
                     const std::string& ResultFile) {
    Session& session = context.session;
    session.ToolName = program.ToolName;
    if (const auto question = ReplaceResultFileQuestion(session.ToolName, ResultFile))
        if (context.platform.showBox(*question) != BoxAnswer::Yes)
            return false;
    const std::string oldName = session.CurrentFile;
    session.CurrentFile = chosen;
    bool ran = StartProgramAndWait(context, program.ControlFile, program.Program);
    if (ran && !fileExists(ResultFile)) {
        // What the program left says why it wrote nothing.
        ShowRunResult(context);
        context.platform.showBox(ResultFileNotFoundBox(ResultFile));
        ran = false;
    }
    if (!ran) {
        session.CurrentFile = oldName;
        setCurrentFolder(session.ProgramFolder);
        // The menus follow the session's own file again.
        context.windows.runMainActivation();
    }
    return ran;
}

} // namespace

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
    const std::string converted = BaseName(*chosen) + "inp";
    // The session closes only once the converter has written the converted file.
    if (!runOnChosenFile(context, ConverterProgram, *chosen, converted))
        return;

    main.CloseInputFile();
    main.RefreshSectionList();
    session.CurrentFile = *chosen;
    ShowRunResult(context);
    session.DataChanged = false;
    if (!session.isUntitled()) {
        session.CurrentFile = converted;
        if (!LoadInputFile(context))
            return;
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
    // The question of PromptBeforeLoading. The session it would close closes only once the
    // reformatter has written its file, so an import that fails leaves the session as it was.
    session.RunResultLabel = " ";
    const auto unsaved = main.askAboutUnsavedChanges("reformatted HEC-RAS cross section data ?");
    if (unsaved == frmMain::UnsavedChanges::Kept)
        return;
    // No goes on with the session as it stands: the cross sections join it under its own name.
    const bool joinSession = unsaved == frmMain::UnsavedChanges::Discarded;
    main.CmnDialog1().FilterIndex = 1;
    const auto chosen =
        main.chooseFileToOpen("Text Files (*.txt)|*.txt|All files (*.*)|*.*", "*.txt", "Open HEC-RAS file");
    if (!chosen)
        return;
    const std::string reformatted = BaseName(*chosen) + "inp";
    const std::string oldName = session.CurrentFile;
    if (!runOnChosenFile(context, ReformatterProgram, *chosen, reformatted))
        return;
    ShowRunResult(context); // judges the error file; no viewer opens, as the result label is one blank

    if (joinSession) {
        // No window may go on showing the session without the cross sections.
        context.windows.closeSessionWindows();
    } else {
        main.CloseInputFile();
    }
    session.CurrentFile = reformatted;
    if (const WriteResult appended = AppendReformattedSections(session); !appended.ok) {
        context.platform.showBox({"The cross sections of " + session.CurrentFile +
                                      " could not be added to the work file " +
                                      session.WorkFilePath[CrossSectionSection] + " (" + appended.error +
                                      "). The session is as it was.",
                                  DefaultBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation});
        session.CurrentFile = joinSession ? oldName : UntitledFile;
        return;
    }
    session.DataChanged = true;
    context.windows.ShowWindowAtOrigin("frmFlume");
    if (joinSession)
        session.CurrentFile = oldName;
}

} // namespace brooklet
