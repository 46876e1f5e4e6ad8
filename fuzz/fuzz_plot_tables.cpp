// The plot set-up of the five plots of input data on any bytes: the bytes are read as each of the
// sections that fill the tabular tables (the dimensionless unit hydrograph, the input
// hydrographs, the rainfall distributions, the structure ratings and the cross sections), and
// every entry, and one on either side, is set up and drawn as its editor's "Display Data" would.
// No set-up may crash, hang or grow without bound: a series never has more points than the value
// store has positions, and the axes never more ticks than the drawing allows.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "plots/plot_geometry.h"
#include "session/section_table.h"
#include "session/text_file.h"
#include "tables/cross_section.h"
#include "tables/input_hydrograph.h"
#include "tables/rainfall_distribution.h"
#include "tables/structure_rating.h"
#include "tables/unit_hydrograph.h"
#include "tables/value_records.h"

namespace {

using namespace brooklet;

// Entries set up for each kind: enough to reach every table of a small section.
constexpr int MostEntries = 40;

void plotEveryEntry(int kind, const GridContext& tables) {
    UnitWords units;
    units.FlowUnit = "cfs";
    units.LengthUnit = "ft";
    units.VolumeUnit = "ac-ft";
    units.SmallAreaUnit = "sq ft";
    const int lastEntry = std::min(tables.TableCount + 1, MostEntries);
    for (int entry = -1; entry <= lastEntry; ++entry) {
        PlotData plot;
        plot.PlotKind = static_cast<int16_t>(kind);
        plot.newRequest(1);
        PlotView view = InitialView(kind, 10800, 6600);
        PreparePlot(plot, PlotSource{&tables, entry, &units, "C:\\shed\\fuzz.inp"}, view);
        const int positions = std::max(tables.ValueCount, tables.ValueStore.rows()) + 1;
        for (int s = 0; s < int(plot.PlotCount.size()); ++s)
            if (plot.PlotCount[size_t(s)] > positions)
                __builtin_trap();
        if (plot.PlotY.pointUpper() > positions || plot.PlotX.pointUpper() > positions)
            __builtin_trap();
        const PlotDrawing drawing = DrawPlot(plot, view);
        // Two thousand ticks at most on each axis, each with its label and grid line.
        if (drawing.labels.size() > 2 * 1002 || drawing.axis.size() > 4 + 4 * 1002)
            __builtin_trap();
        PlotDataText(plot, view);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::vector<std::string> lines = splitLines(std::string(reinterpret_cast<const char*>(data), size));
    {
        GridContext tables;
        LoadValueTables(tables, {{{}, ReadUnitHydrographSection(lines)}}, 1);
        plotEveryEntry(UnitHydrographPlot, tables);
    }
    {
        GridContext tables;
        LoadValueTables(tables, ReadInputHydrographSection(lines), InputHydrographFields);
        plotEveryEntry(InputHydrographPlot, tables);
    }
    {
        GridContext tables;
        LoadValueTables(tables, ReadRainfallDistributionSection(lines), RainTableFields);
        plotEveryEntry(RainfallDistributionPlot, tables);
    }
    {
        GridContext tables;
        ReadStructureRatingSection(lines, tables);
        plotEveryEntry(StructureRatingPlot, tables);
    }
    {
        GridContext tables;
        ReadCrossSectionSection(lines, tables);
        plotEveryEntry(CrossSectionPlot, tables);
    }
    return 0;
}
