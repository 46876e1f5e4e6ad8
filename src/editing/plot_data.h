#pragma once
// The plot request and the plot arrays, shared by the windows that hand a plot over (the tabular
// editors and the plot selection window), the model output reader that fills them and the plot
// window that draws them.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace brooklet {

// The kinds of plot.
enum PlotKindNumber : int16_t {
    UnitHydrographPlot = 1,
    InputHydrographPlot = 2,
    RainfallDistributionPlot = 3,
    StructureRatingPlot = 4,
    CrossSectionPlot = 5,
    OutputHydrographPlot = 6,
    PeakFlowPlot = 7,
    TimeAnalysisPlot = 8,
};

// Values by series and point, both counted from 0, as single-precision reals. The point bound
// grows on demand and keeps the values; a cell outside the bounds reads as 0 and takes nothing,
// so a reader of outside bytes can never write past the arrays.
class PlotArray {
public:
    // New bounds, every value 0.
    void redim(int seriesUpper, int pointUpper);
    // Raises the point bound to at least pointUpper, keeping the values.
    void growPoints(int pointUpper);
    int seriesUpper() const { return seriesUpper_; }
    int pointUpper() const { return pointUpper_; }

    float get(int series, int point) const {
        return inside(series, point) ? values_[index(series, point)] : 0.0f;
    }
    void set(int series, int point, float value) {
        if (inside(series, point))
            values_[index(series, point)] = value;
    }
    void swap(int series, int a, int b);
    // The values of a series from point 0 to the point bound, for loops over long series; null
    // for a series outside the bounds.
    const float* seriesData(int series) const {
        return inside(series, 0) ? values_.data() + index(series, 0) : nullptr;
    }
    float* seriesData(int series) { return inside(series, 0) ? values_.data() + index(series, 0) : nullptr; }

private:
    bool inside(int series, int point) const {
        return series >= 0 && series <= seriesUpper_ && point >= 0 && point <= pointUpper_;
    }
    size_t index(int series, int point) const { return size_t(series) * stride_ + size_t(point); }

    int seriesUpper_ = -1;
    int pointUpper_ = -1;
    size_t stride_ = 0;
    std::vector<float> values_;
};

// One row of the plot request: the texts T1 to T23 by their column number (T[0], T[6] and T[7]
// hold nothing), the time increment T6 and the count of points read T7.
//   T1 alternate, T2 storm, T3 location ("Outlet", a sub-area or reach; "Subarea", "Reach" or
//   "Outlet" for peak flows), T4 the second location field ("Upstream" or "Downstream" for a
//   reach), T5 the start time as printed, T8-T11 and T12-T15 the headings of the percent-of-peak
//   and stage durations, T16-T19 and T20-T23 their durations.
struct PlotRequestRow {
    std::array<std::string, 24> T;
    double T6 = 0.0;
    int32_t T7 = 0;
};

struct PlotData {
    int16_t PlotKind = 0;
    // Rows of PlotRequest in use; row 0 is not used.
    int16_t SeriesCount = 0;
    // How many storms and how many alternates the series of an output hydrograph differ in.
    int16_t MultiStormCount = 1;
    int16_t MultiAlternateCount = 1;
    std::vector<PlotRequestRow> PlotRequest;
    PlotArray PlotX;
    PlotArray PlotY;
    // Points of each series, index 0..SeriesCount; cut to the single entry 1 when all series
    // share the x values of series 1.
    std::vector<int32_t> PlotCount;
    // The flow unit of a peak flow plot; "csm" and "m^3/sec/sq km" divide flows by the area.
    std::string FlowUnitLabel;

    // A new request of rows 0..seriesCount, all blank, and the arrays at their least size.
    void newRequest(int seriesCount);
    // The series whose x values series i uses, and so its point count.
    int xSeries(int i) const { return i > int(PlotCount.size()) - 1 ? 1 : i; }
    int pointCount(int i) const;
};

} // namespace brooklet
