#include "app/check_command.h"

#include <ostream>

#include "check/check_watershed.h"
#include "check/check_window.h"
#include "editing/app_context.h"
#include "network/local_land_use.h"
#include "network/standard_land_use.h"
#include "session/text_file.h"

namespace brooklet {

void addInstalledLandUses(const std::string& localLandUseFile, CheckInput& input) {
    const StandardLandUseTable& standard = StandardLandUse();
    for (int row = 1; row <= StandardLandUseRows; ++row)
        addKnownLandUse(input, {standard(row, 0),
                                {standard(row, 1), standard(row, 2), standard(row, 3), standard(row, 4)}});
    for (const LandUseRow& row : ReadLocalLandUseFile(localLandUseFile, BlankName::EndReading))
        addKnownLandUse(input, {row[0], {row[1], row[2], row[3], row[4]}});
}

Findings CheckSessionWatershed(AppContext& context) {
    CheckInput input = ReadWorkFilesForCheck(context.session);
    addInstalledLandUses(context.session.LocalLandUseFile, input);
    context.session.WatershedChecked = true;
    return CheckWatershed(input);
}

void showCheckWindow(AppContext& context, const Findings& findings) {
    if (auto* window = qobject_cast<frmCheck*>(context.windows.ShowWindowAtOrigin("frmCheck")))
        window->showFindings(findings);
}

CommandCheck CheckBeforeCommand(AppContext& context, CheckedCommand command) {
    CommandCheck result;
    if (!context.CheckBeforeRunAndSaveAs || context.session.WatershedChecked)
        return result;
    result.findings = CheckSessionWatershed(context);
    if (errorCount(result.findings) == 0)
        return result;
    const std::string question = command == CheckedCommand::Run ? "Run the model anyway?" : "Save it anyway?";
    const BoxAnswer answer =
        context.platform.showBox({"Check Watershed found " + findingsSummary(result.findings) +
                                      " in the input, so the model cannot run correctly on it. " + question +
                                      " No shows the findings.",
                                  "Check Watershed", BoxButtons::YesNo, BoxIcon::Exclamation});
    if (answer != BoxAnswer::Yes) {
        result.goOn = false;
        showCheckWindow(context, result.findings);
    }
    return result;
}

int RunCheckCommand(const std::string& file, const std::string& localLandUseFile, std::ostream& out) {
    auto bytes = readFileBytes(file);
    if (!bytes) {
        out << file << ":0: error: The file could not be read.\n";
        return 2;
    }
    CheckInput input = CutInputFileForCheck(*bytes);
    addInstalledLandUses(localLandUseFile, input);
    const Findings findings = CheckWatershed(input);
    for (const Finding& finding : findings)
        out << findingLine(file, finding) << '\n';
    return checkExitCode(findings);
}

} // namespace brooklet
