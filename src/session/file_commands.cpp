#include "session/file_commands.h"

#include "session/app_context.h"
#include "session/input_file.h"

namespace brooklet {

void LoadInputFile(AppContext& context) {
    if (context.session.CurrentFile.empty()) return;
    const LoadResult result = brooklet::LoadInputFile(context.session);
    if (result.box) context.platform.showBox(*result.box);
    context.windows.ShowWindowAtOrigin(context.session.isUntitled() ? "frmMain" : "frmFlume");
}

bool SaveInputFile(AppContext& context) {
    const SaveResult result = brooklet::SaveInputFile(context.session);
    context.platform.showBox(result.box);
    return result.ok;
}

} // namespace brooklet
