#include "app/window_catalog.h"

#include "app/check_command.h"
#include "check/check_window.h"
#include "editing/help_windows.h"
#include "network/land_use_window.h"
#include "network/local_land_use_editor.h"
#include "network/local_soil_editor.h"
#include "network/reach_editor.h"
#include "network/sub_area_editor.h"
#include "network/tc_calculator.h"
#include "options/duration_increment_editor.h"
#include "options/global_output_editor.h"
#include "options/identifier_editor.h"
#include "options/time_analysis_editor.h"
#include "options/verification_editor.h"
#include "plots/graphics_output_window.h"
#include "plots/plot_window.h"
#include "plots/schematic_window.h"
#include "run/file_viewer.h"
#include "session/window_host.h"
#include "tables/alternate_editor.h"
#include "tables/cross_section_editor.h"
#include "tables/input_hydrograph_editor.h"
#include "tables/rainfall_distribution_editor.h"
#include "tables/storm_editor.h"
#include "tables/structure_rating_editor.h"
#include "tables/unit_hydrograph_editor.h"

namespace brooklet {

void registerAllWindows(WindowHost& windows) {
    windows.registerWindow("frmFlume", [](AppContext& context) { return new frmFlume(context); });
    windows.registerWindow("frmDurInc", [](AppContext& context) { return new frmDurInc(context); });
    windows.registerWindow("frmTimeA", [](AppContext& context) { return new frmTimeA(context); });
    windows.registerWindow("frmGlobal", [](AppContext& context) { return new frmGlobal(context); });
    windows.registerWindow("frmVerification",
                           [](AppContext& context) { return new frmVerification(context); });
    // Help texts hold nothing of a session; they stay open when a new one begins.
    const auto help = WindowHost::Kind::Help;
    windows.registerWindow(
        "frmAbout", [](AppContext& context) { return new frmAbout(context); }, help);
    windows.registerWindow(
        "frmDiagram", [](AppContext& context) { return new frmDiagram(context); }, help);
    for (const QString& name : TextHelpWindow::names())
        windows.registerWindow(
            name, [name](AppContext&) { return new TextHelpWindow(name); }, help);
    windows.registerWindow("frmFileDisp", [](AppContext& context) { return new frmFileDisp(context); });
    windows.registerWindow("frmLocalLanduse",
                           [](AppContext& context) { return new frmLocalLanduse(context); });
    windows.registerWindow("frmLocalSoil", [](AppContext& context) { return new frmLocalSoil(context); });
    windows.registerWindow("frmDisplaySoil", [](AppContext& context) { return new frmDisplaySoil(context); });
    windows.registerWindow("frmSubArea", [](AppContext& context) { return new frmSubArea(context); });
    windows.registerWindow("frmTc", [](AppContext& context) { return new frmTc(context); });
    windows.registerWindow("frmLandUse", [](AppContext& context) { return new frmLandUse(context); });
    windows.registerWindow("frmReaches", [](AppContext& context) { return new frmReaches(context); });
    windows.registerWindow("frmStorm", [](AppContext& context) { return new frmStorm(context); });
    windows.registerWindow("frmIO_Plots", [](AppContext& context) { return new frmIO_Plots(context); });
    windows.registerWindow("frmStruct", [](AppContext& context) { return new frmStruct(context); });
    windows.registerWindow("frmXsect", [](AppContext& context) { return new frmXsect(context); });
    windows.registerWindow("frmRainDist", [](AppContext& context) { return new frmRainDist(context); });
    windows.registerWindow("frmInpHyd", [](AppContext& context) { return new frmInpHyd(context); });
    windows.registerWindow("frmDimHyd", [](AppContext& context) { return new frmDimHyd(context); });
    windows.registerWindow("frmAlternate", [](AppContext& context) { return new frmAlternate(context); });
    windows.registerWindow("frmTopoModel", [](AppContext& context) { return new frmTopoModel(context); });
    windows.registerWindow("frmCheck", [](AppContext& context) {
        return new frmCheck(context, [&context] { return CheckSessionWatershed(context); });
    });
    windows.registerWindow("frmGraphicsOutput",
                           [](AppContext& context) { return new frmGraphicsOutput(context); });
}

} // namespace brooklet
