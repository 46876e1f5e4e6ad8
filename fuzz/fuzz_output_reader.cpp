// The model output reader on any bytes, for every plot kind it serves and the plot set-up behind
// it: no crash, no hang, and plot arrays that never outgrow the report.
#include <cstdint>
#include <string>

#include "plots/output_reader.h"
#include "plots/plot_geometry.h"

namespace {

void readAs(const std::string& bytes, int kind, const char* location, const char* second) {
    brooklet::PlotData plot;
    plot.PlotKind = static_cast<int16_t>(kind);
    plot.newRequest(3);
    const char* places[] = {"", location, "Reach", "Outlet"};
    for (int r = 1; r <= 3; ++r) {
        auto& T = plot.PlotRequest[size_t(r)].T;
        T[2] = "100-YR";
        T[3] = kind == brooklet::PeakFlowPlot ? (r == 1 ? "Subarea" : places[r]) : places[r];
        T[4] = r == 1 ? second : "";
    }
    plot.FlowUnitLabel = "csm";
    bool Found = false;
    brooklet::ReadOutputText(bytes, plot, Found);
    // Every point stands on at least ten columns of the report.
    if (size_t(plot.PlotY.pointUpper()) > bytes.size() / 10 + 2 ||
        plot.PlotX.pointUpper() != plot.PlotY.pointUpper())
        __builtin_trap();
    if (kind == brooklet::TimeAnalysisPlot)
        plot.PlotRequest[1].T[5] = "0.0";
    brooklet::PlotView view = brooklet::InitialView(kind, 10800, 6600);
    brooklet::PreparePlot(plot, brooklet::PlotSource{}, view);
    brooklet::DrawPlot(plot, view);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    for (int kind : {brooklet::OutputHydrographPlot, brooklet::PeakFlowPlot, brooklet::TimeAnalysisPlot}) {
        readAs(bytes, kind, "OUTLET", "");
        readAs(bytes, kind, "MILLPOND", "UPSTREAM");
    }
    return 0;
}
