#include "plots/plot_geometry.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>

#include "editing/grid_editor.h"
#include "editing/numbers.h"
#include "session/section_table.h"

namespace brooklet {
namespace {

constexpr std::array<Rgb, 11> ColourTable = {{{0, 0, 0},
                                              {255, 0, 0},
                                              {0, 255, 0},
                                              {0, 0, 255},
                                              {170, 85, 0},
                                              {85, 170, 0},
                                              {0, 170, 85},
                                              {0, 85, 170},
                                              {170, 0, 85},
                                              {85, 0, 170},
                                              {85, 85, 85}}};

// The greatest number of steps an axis is drawn with; beyond it the limits are not usable.
constexpr double MostTicks = 1000.0;

int roundToInt16(double value) {
    return int(std::clamp(roundHalfEven(value), -32768.0, 32767.0));
}

// A path without its folder.
std::string withoutFolder(const std::string& path) {
    const auto separator = path.find_last_of("\\/");
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

bool isBlankText(const std::string& text) {
    return trim(text).empty();
}

const std::string& cellOf(const TextTable& table, int field, int row) {
    static const std::string empty;
    if (field < 1 || field > table.fields() || row < 1 || row > table.rows())
        return empty;
    return table(field, row);
}

// The caption stacked one character a line, so it reads downward.
std::string stacked(const std::string& caption) {
    std::string text;
    for (size_t i = 0; i < caption.size(); ++i) {
        if (i > 0)
            text += '\r';
        text += caption[i];
    }
    return text;
}

// Titles and legends of output hydrographs and time analyses.
std::string outputTitle(const PlotData& plot, PlotView& view, std::string title) {
    const auto& rows = plot.PlotRequest;
    auto rowT = [&](int row, int column) -> std::string {
        return row >= 1 && size_t(row) < rows.size() ? rows[size_t(row)].T[size_t(column)] : std::string();
    };
    auto legend = [&](int count, int column) {
        for (int i = 1; i <= std::min(count, 10); ++i)
            view.Legend[size_t(i)].text = trim(rowT(i, column));
    };
    if (plot.MultiStormCount != 1)
        legend(plot.MultiStormCount, 2);
    else
        title += "Storm - " + trim(rowT(1, 2)) + " ";
    if (plot.MultiAlternateCount != 1)
        legend(plot.MultiAlternateCount, 1);
    else if (!isBlankText(rowT(1, 1)))
        title += "Alternate - " + trim(rowT(1, 1)) + " ";
    if (plot.MultiStormCount > 1 || plot.MultiAlternateCount > 1) {
        if (trim(rowT(1, 3)) == "Outlet")
            title += "@ Outlet";
        else if (!isBlankText(rowT(1, 4)))
            title += "@ Reach - " + rowT(1, 3) + " - " + rowT(1, 4);
        else
            title += "@ Sub-Area - " + rowT(1, 3);
    } else {
        for (int i = 1; i <= std::min<int>(plot.SeriesCount, 10); ++i) {
            std::string text = trim(rowT(i, 3));
            if (!isBlankText(rowT(i, 4)))
                text += " - " + trim(rowT(i, 4));
            view.Legend[size_t(i)].text = text;
        }
    }
    return trim(title) + ")";
}

} // namespace

Rgb PlotColour(int index) {
    return ColourTable[size_t(std::clamp(index, 0, 10))];
}

float MaxOf(float a, float b) {
    return b > a ? b : a;
}
float MinOf(float a, float b) {
    return b < a ? b : a;
}

void ScaleAxis(double& Low, double& High, double& Ticks) {
    if (Low == High) {
        Low = Low - 0.1;
        High = Low + 1;
    }
    const double Range = High - Low;
    const double E = std::floor(std::log(Range) / std::log(10.0));
    const double N = Range / std::pow(10.0, E);
    double Step = 1.0;
    if (N <= 6.0)
        Step = 0.5;
    if (N <= 3.0)
        Step = 0.25;
    if (N <= 2.4)
        Step = 0.2;
    if (N <= 1.2)
        Step = 0.1;
    Step = Step * std::pow(10.0, E);
    double NewLow = Low, NewHigh = High;
    for (int pass = 1; pass <= 2; ++pass) {
        if (pass == 2) {
            const double M = Step / std::pow(10.0, std::floor(std::log(Step) / std::log(10.0)));
            Step = M > 1.2 && M <= 2.4 ? Step * 1.25 : Step * 2;
        }
        NewLow = roundHalfEven(Low / Step) * Step;
        if (Low < NewLow)
            NewLow = NewLow - Step;
        NewHigh = roundHalfEven(High / Step) * Step;
        if (High > NewHigh)
            NewHigh = NewHigh + Step;
        Ticks = (NewHigh - NewLow) / Step;
        if (Ticks <= 12)
            break;
    }
    Low = NewLow;
    High = NewHigh;
}

std::string AxisLabel(double V) {
    const double rounded = V >= 1 ? roundHalfEven(V, 2) : roundHalfEven(V, 5);
    const std::string text = NumberText(rounded);
    return rounded < 0 ? text : " " + text;
}

PlotFrame PlotFrame::ofSurface(int width, int height) {
    PlotFrame frame;
    frame.PlotRight = int16_t(std::clamp(width - 10, -32768, 32767));
    frame.PlotHeight = int16_t(std::clamp(height - 10, -32768, 32767));
    frame.PlotBottom = double(frame.PlotHeight) - frame.PlotMarginBottom;
    return frame;
}

PlotView InitialView(int PlotKind, int surfaceWidth, int surfaceHeight) {
    PlotView view;
    view.frame = PlotFrame::ofSurface(surfaceWidth, surfaceHeight);
    view.plotlines = PlotKind != PeakFlowPlot;
    return view;
}

void intersect(float& A1, float& B1, float A2, float B2, float Edge) {
    const float R = A1 == A2 ? 0.0f : (Edge - A1) / (A2 - A1);
    A1 = Edge;
    B1 = B1 + (B2 - B1) * R;
}

bool ClipSegment(const PlotFrame& f, float& x, float& y, float& px, float& py) {
    const float left = f.PlotLeft, right = f.PlotRight, bottom = float(f.PlotBottom);
    if (f.withinWidth(x) && !f.withinWidth(px)) {
        if (px < left && y != py)
            intersect(px, py, x, y, left);
        if (px > right && y != py)
            intersect(px, py, x, y, right);
    }
    if (f.withinWidth(px) && !f.withinWidth(x)) {
        if (x < left && y != py)
            intersect(x, y, px, py, left);
        if (x > right && y != py)
            intersect(x, y, px, py, right);
    }
    if (f.withinHeight(y) && !f.withinHeight(py)) {
        if (py < 0 && x != px)
            intersect(py, px, y, x, 0);
        if (py > bottom && x != px)
            intersect(py, px, y, x, bottom);
    }
    if (f.withinHeight(py) && !f.withinHeight(y)) {
        if (y < 0 && x != px)
            intersect(y, x, py, px, 0);
        if (y > bottom && x != px)
            intersect(y, x, py, px, bottom);
    }
    return f.withinWidth(x) && f.withinHeight(y);
}

MarkerShape DrawPt(float x, float y, int Shape, float Factor) {
    MarkerShape marker;
    const int S = roundToInt16(40.0 * double(Factor));
    marker.S = S;
    const float s = float(S);
    switch (Shape) {
    case 1:
    case 8:
        marker.kind = MarkerShape::Circle;
        marker.points = {{x, y}};
        break;
    case 2:
    case 9:
        marker.kind = MarkerShape::Lines;
        marker.points = {{x - s, y - s}, {x + s, y + s}, {x - s, y + s}, {x + s, y - s}};
        break;
    case 3:
    case 10:
        marker.kind = MarkerShape::Polygon;
        marker.points = {{x - s, y}, {x, y + s}, {x + s, y}, {x, y - s}, {x - s, y}};
        break;
    case 4:
        marker.kind = MarkerShape::Polygon;
        marker.points = {{x + s, y - s}, {x - s, y - s}, {x, y + s}, {x + s, y - s}};
        break;
    case 5:
        marker.kind = MarkerShape::Square;
        marker.points = {{x - s, y - s}, {x + s, y + s}};
        break;
    case 6:
        marker.kind = MarkerShape::Lines;
        marker.points = {{x - s, y - s}, {x + s, y + s}, {x - s, y + s}, {x + s, y - s},
                         {x - s, y},     {x + s, y},     {x, y - s},     {x, y + s}};
        break;
    case 7:
        marker.kind = MarkerShape::Lines;
        marker.points = {{x - s, y}, {x + s, y}, {x, y - s}, {x, y + s}};
        break;
    default:
        break;
    }
    return marker;
}

namespace {

// Points of a series read as PlotArray::get reads them, straight from the array.
class StoredPoints {
public:
    StoredPoints(const PlotArray& values, int series, int count)
        : stored_(values.seriesData(series)),
          storedCount_(stored_ ? std::min(count, values.pointUpper()) : 0) {}
    float operator[](int p) const { return p >= 0 && p <= storedCount_ ? stored_[p] : 0.0f; }

private:
    const float* stored_;
    int storedCount_;
};

// Widens Min and Max to the plotted values of series 1 to lastSeries, in single precision.
void widenToValues(const PlotData& plot, const PlotArray& values, int lastSeries, double& Min, double& Max) {
    float low = float(Min), high = float(Max);
    for (int s = 1; s <= lastSeries; ++s) {
        const int count = plot.pointCount(s);
        const StoredPoints points(values, s, count);
        for (int p = 1; p <= count; ++p) {
            low = MinOf(low, points[p]);
            high = MaxOf(high, points[p]);
        }
    }
    Min = low;
    Max = high;
}

} // namespace

void FillTimeAxis(PlotData& plot, int Series, int Count, double Start, double Increment, double& XMinOut,
                  double& XMaxOut) {
    if (Count > plot.PlotX.pointUpper())
        plot.PlotX.growPoints(Count);
    // The step count is kept as a real, which holds every whole number of points exactly, so
    // the loop converts no integer (a conversion that would chain each point to the one before).
    if (float* times = plot.PlotX.seriesData(Series)) {
        double steps = 0;
        for (int i = 1; i <= Count; ++i, steps += 1)
            times[i] = float(Start + Increment * steps);
    }
    XMinOut = MinOf(float(XMinOut), plot.PlotX.get(Series, 1));
    XMaxOut = MaxOf(float(XMaxOut), plot.PlotX.get(Series, Count));
}

void InterpolateFlow(const PlotData& plot, int Series, double D, float& Q) {
    for (int i = 2; i <= plot.PlotY.pointUpper(); ++i) {
        const float upper = plot.PlotX.get(Series, i);
        if (D < upper) {
            const float lower = plot.PlotX.get(Series, i - 1);
            // Measured from the upper end of the interval, taken from the lower: the mirror image.
            const double R = upper == lower ? 0.0 : (upper - D) / (upper - lower);
            Q = float((plot.PlotY.get(Series, i) - plot.PlotY.get(Series, i - 1)) * R +
                      plot.PlotY.get(Series, i - 1));
            return;
        }
    }
}

void PreparePlot(PlotData& plot, const PlotSource& source, PlotView& view) {
    static const UnitWords noUnits;
    static const GridContext noTables;
    const UnitWords& units = source.units ? *source.units : noUnits;
    const GridContext& tables = source.tables ? *source.tables : noTables;
    const int kind = plot.PlotKind;
    const bool fromTables = kind >= UnitHydrographPlot && kind <= CrossSectionPlot;

    view.Legend[1].text.clear();
    view.Label2 = withoutFolder(kind >= OutputHydrographPlot ? BaseName(source.CurrentFile) + "out"
                                                             : source.CurrentFile);
    std::string yCaption;
    if (kind == UnitHydrographPlot || kind == InputHydrographPlot || kind >= OutputHydrographPlot)
        yCaption = "DISCHARGE";
    if (kind == InputHydrographPlot)
        yCaption += "\r" + units.FlowUnit;
    if (kind == OutputHydrographPlot || kind == TimeAnalysisPlot)
        yCaption += "\r" + units.OutputFlowUnit;
    if (kind == PeakFlowPlot)
        yCaption += "\r" + plot.FlowUnitLabel;

    // The entry of the tabular tables on show, its identifier and rows.
    const int entry = kind == UnitHydrographPlot ? 1 : source.Entry;
    const std::string identifier = trim(cellOf(tables.IdentifierTable, 1, entry));
    auto tableRow = [](const std::vector<int>& list, int index) {
        return index >= 0 && size_t(index) < list.size() ? list[size_t(index)] : 0;
    };
    const int first = tableRow(tables.TableFirst, entry);
    const int last = tableRow(tables.TableLast, entry);
    const int Count = last - first + 1;
    const std::string elevation = "E L E V A T I O N (" + units.LengthUnit + ")";
    const std::string flow = "F L O W (" + units.FlowUnit + ")";
    switch (kind) {
    case UnitHydrographPlot:
        view.Label1 = "Dimensionless Unit Hydrograph";
        view.Label4 = "D I M E N S I O N L E S S   T I M E";
        plot.SeriesCount = 1;
        break;
    case InputHydrographPlot:
        view.Label1 = "Input Hydrograph - " + identifier;
        view.Label4 = "T I M E (hr)";
        plot.SeriesCount = 1;
        break;
    case RainfallDistributionPlot:
        view.Label1 = "Rainfall Distribution - " + identifier;
        view.Label4 = "T I M E (hr)";
        yCaption = "ACCUMULATED RAINFALL";
        plot.SeriesCount = 1;
        break;
    case StructureRatingPlot:
        view.Label1 = "Structure - " + identifier;
        view.Label4 = elevation;
        yCaption = "FLOW - STORAGE";
        view.Legend[1].text = flow;
        view.Legend[2].text = "S T O R A G E (" + units.VolumeUnit + ")";
        plot.SeriesCount = 2;
        break;
    case CrossSectionPlot:
        view.Label1 = "Cross Section - " + identifier;
        view.Label4 = elevation;
        yCaption = "FLOW - END AREA - TOP WIDTH";
        view.Legend[1].text = flow;
        view.Legend[2].text = "E N D   A R E A (" + units.SmallAreaUnit + ")";
        view.Legend[3].text = "T O P   W I D T H (" + units.LengthUnit + ")";
        plot.SeriesCount = 3;
        break;
    case OutputHydrographPlot:
        view.Label1 = outputTitle(plot, view, "Hydrograph (");
        view.Label4 = "T I M E (hr)";
        break;
    case PeakFlowPlot:
        view.Label1 = "Peak Flow";
        view.Label4 = "DRAINAGE AREA (" + units.OutputAreaUnit + ")";
        for (int i = 1; i <= std::min<int>(plot.SeriesCount, 10); ++i)
            view.Legend[size_t(i)].text =
                size_t(i) < plot.PlotRequest.size() ? plot.PlotRequest[size_t(i)].T[3] : std::string();
        break;
    case TimeAnalysisPlot:
        view.Label1 = outputTitle(plot, view, "Time Analysis (");
        view.Label4 = "T I M E (hr)";
        break;
    default:
        break;
    }
    view.Label3 = stacked(yCaption);
    view.FlowUnitPlotLabel = units.OutputFlowUnit;

    const int series = std::max<int>(plot.SeriesCount, 0);
    plot.PlotCount.assign(size_t(series) + 1, 0);
    if (fromTables) {
        plot.PlotY.redim(series, std::max(Count, 0));
        for (int s = 1; s <= series; ++s) {
            for (int row = first; row <= last; ++row) {
                ++plot.PlotCount[size_t(s)];
                const std::string& cell = kind >= StructureRatingPlot ? cellOf(tables.ValueStore, s + 1, row)
                                                                      : cellOf(tables.ValueStore, 1, row);
                // An empty cell ends the series; it is counted, and plots as 0.
                if (cell.empty())
                    break;
                plot.PlotY.set(s, plot.PlotCount[size_t(s)], float(leadingNumber(cell)));
            }
        }
        plot.PlotCount.resize(2, 0);
    } else {
        for (int s = 1; s <= series; ++s)
            plot.PlotCount[size_t(s)] =
                size_t(s) < plot.PlotRequest.size() ? plot.PlotRequest[size_t(s)].T7 : 0;
        if (kind == TimeAnalysisPlot && series >= 1) {
            // The flows in descending order against a time axis from 0: the flow duration curve.
            std::vector<float> flows;
            for (int p = 1; p <= plot.PlotCount[1]; ++p)
                flows.push_back(plot.PlotY.get(1, p));
            std::sort(flows.begin(), flows.end(), std::greater<float>());
            for (size_t p = 0; p < flows.size(); ++p)
                plot.PlotY.set(1, int(p) + 1, flows[p]);
        }
    }

    double YMin = plot.PlotY.get(1, 1), YMax = YMin;
    widenToValues(plot, plot.PlotY, series, YMin, YMax);

    double XMin = 0, XMax = 0;
    if (kind >= UnitHydrographPlot && kind <= RainfallDistributionPlot)
        plot.PlotX.redim(1, std::max(plot.PlotCount[1], 0));
    if (kind == StructureRatingPlot || kind == CrossSectionPlot) {
        plot.PlotCount[1] = std::max(Count, 0);
        plot.PlotX.redim(1, plot.PlotCount[1]);
        for (int p = 1; p <= plot.PlotCount[1]; ++p)
            plot.PlotX.set(1, p, float(leadingNumber(cellOf(tables.ValueStore, 1, first + p - 1))));
    }
    if (kind == StructureRatingPlot || kind == CrossSectionPlot || kind == PeakFlowPlot) {
        XMin = XMax = plot.PlotX.get(1, 1);
        widenToValues(plot, plot.PlotX, kind == PeakFlowPlot ? series : std::min(series, 1), XMin, XMax);
    } else {
        for (int s = 1; s <= series; ++s) {
            double start = 0, increment = 0;
            const PlotRequestRow* row =
                size_t(s) < plot.PlotRequest.size() ? &plot.PlotRequest[size_t(s)] : nullptr;
            switch (kind) {
            case UnitHydrographPlot:
                increment = last - first == 0 ? 0.0 : 1.0 / (last - first);
                break;
            case InputHydrographPlot: {
                const std::string& startText = cellOf(tables.IdentifierTable, 4, entry);
                start = isBlankText(startText) ? 0.0 : leadingNumber(startText);
                increment = leadingNumber(cellOf(tables.IdentifierTable, 5, entry));
                break;
            }
            case RainfallDistributionPlot:
                increment = leadingNumber(cellOf(tables.IdentifierTable, 2, entry));
                break;
            default:
                if (row) {
                    start = leadingNumber(row->T[5]);
                    increment = row->T6;
                }
                break;
            }
            if (s == 1)
                XMin = XMax = float(start);
            FillTimeAxis(plot, s, plot.pointCount(s), start, increment, XMin, XMax);
        }
    }

    if (kind > RainfallDistributionPlot)
        for (int i = 1; i <= std::min(series, 10); ++i)
            view.Legend[size_t(i)].visible = true;
    view.frame.XMin = XMin;
    view.frame.XMax = XMax;
    view.frame.YMin = YMin;
    view.frame.YMax = YMax;
    view.FirstXMin = float(XMin);
    view.FirstXMax = float(XMax);
    view.FirstYMin = float(YMin);
    view.FirstYMax = float(YMax);
}

namespace {

// DrawAxis2: the box, the ticks with their labels and the grid; widens the limits.
void drawAxes(PlotView& view, PlotDrawing& drawing) {
    PlotFrame& f = view.frame;
    const float left = f.PlotLeft, right = f.PlotRight, bottom = float(f.PlotBottom);
    for (const auto& [from, to] :
         std::vector<std::pair<PlotPoint, PlotPoint>>{{{right, 0}, {left, 0}},
                                                      {{left, 0}, {left, bottom}},
                                                      {{left, bottom}, {right, bottom}},
                                                      {{right, bottom}, {right, 0}}})
        drawing.axis.push_back({from, to, 0, 4, true});
    auto grid = [&](PlotPoint from, PlotPoint to) { drawing.axis.push_back({from, to, 0, 1, true}); };

    double Ticks = 0;
    ScaleAxis(f.XMin, f.XMax, Ticks);
    f.XPerTwip = (f.XMax - f.XMin) / ((f.PlotRight - f.PlotLeft) * 0.95);
    if (std::isfinite(Ticks) && Ticks > 0 && Ticks <= MostTicks) {
        float V = float(f.XMin), P = left;
        for (int i = 0; i <= roundToInt16(Ticks); ++i) {
            drawing.axis.push_back({{P, bottom + 30}, {P, bottom - 30}, 0, 4, true});
            if (view.plotgrid && i >= 1)
                grid({P, 0}, {P, bottom});
            drawing.labels.push_back({{P - 100, bottom + 100}, AxisLabel(V)});
            V = V + float((f.XMax - f.XMin) / Ticks);
            P = P + float((f.PlotRight - f.PlotLeft) * 0.95 / Ticks);
        }
    }
    ScaleAxis(f.YMin, f.YMax, Ticks);
    f.YPerTwip = (f.YMax - f.YMin) / ((f.PlotHeight - f.PlotMarginBottom) * 0.95);
    if (std::isfinite(Ticks) && Ticks > 0 && Ticks <= MostTicks) {
        float V = float(f.YMin), P = bottom;
        for (int i = 0; i <= roundToInt16(Ticks); ++i) {
            // A line of no length left of the axis: it shows as a dot of the line's width.
            drawing.axis.push_back({{left - 30, P}, {left - 30, P}, 0, 4, true});
            if (view.plotgrid && i >= 1)
                grid({left, P}, {right, P});
            drawing.labels.push_back({{0, P - 50}, AxisLabel(V)});
            V = V + float((f.YMax - f.YMin) / Ticks);
            P = P - float((f.PlotHeight - f.PlotMarginBottom) * 0.95 / Ticks);
        }
    }
}

// DrawTimeLevels: each duration of the model's table marked by the flow reached for that long.
void drawTimeLevels(const PlotData& plot, PlotView& view, PlotDrawing& drawing) {
    if (plot.PlotRequest.size() < 2)
        return;
    const auto& T = plot.PlotRequest[1].T;
    int L = 1;
    float Q = 0.0f;
    for (int c = 16; c <= 23; ++c) {
        if (isBlankText(T[size_t(c)]))
            continue;
        const double D = leadingNumber(T[size_t(c)]);
        if (!(D > 0))
            continue;
        InterpolateFlow(plot, 1, D, Q);
        ++L;
        LegendEntry& legend = view.Legend[size_t(std::min(L, 10))];
        legend.text = trim(T[size_t(c - 8)]) + " (" + NumberText(roundHalfEven(double(Q))) + " " +
                      view.FlowUnitPlotLabel + ")";
        legend.visible = true;
        legend.lineColour = L;
        legend.lineVisible = true;
        const float y = view.frame.ToPlotY(Q);
        drawing.levels.push_back({{float(view.frame.PlotLeft), y}, {view.frame.ToPlotX(D), y}, L, 4, false});
    }
}

} // namespace

PlotDrawing DrawPlot(const PlotData& plot, PlotView& view) {
    PlotDrawing drawing;
    PlotFrame& f = view.frame;
    f.PlotBottom = double(f.PlotHeight) - f.PlotMarginBottom;
    drawAxes(view, drawing);
    const PlotFrame frame = f;
    const PlotFrame::SeriesMap toPlot = frame.seriesMap();
    for (int i = 1; i <= plot.SeriesCount; ++i) {
        const int xs = plot.xSeries(i);
        LegendEntry& legend = view.Legend[size_t(std::min(i, 10))];
        if (xs == i)
            legend.lineVisible = false;
        const int count = plot.pointCount(i);
        SeriesStroke stroke;
        stroke.colour = std::min(i, 10);
        stroke.shape = i;
        // Room for every point at once: the markers, and the first run, which is most often the
        // only one.
        if (view.plotpoints)
            stroke.markers.reserve(size_t(std::max(count, 0)));
        const StoredPoints xValues(plot.PlotX, xs, count), yValues(plot.PlotY, i, count);
        float px = 0, py = 0;
        bool joined = false; // the last segment drawn ends at (px, py)
        for (int p = 1; p <= count; ++p) {
            float x = toPlot.x(xValues[p]);
            float y = toPlot.y(yValues[p]);
            const bool inside = frame.withinWidth(x) && frame.withinHeight(y);
            if (view.plotpoints && inside)
                stroke.markers.push_back({x, y});
            if (view.plotlines && p >= 2) {
                const float startX = px, startY = py;
                // A segment with both ends in the box is drawn as it is, as the clipping finds.
                const bool bothInside = inside && frame.withinWidth(px) && frame.withinHeight(py);
                if (bothInside || ClipSegment(frame, x, y, px, py)) {
                    if (!joined || px != startX || py != startY) {
                        stroke.runs.emplace_back();
                        if (stroke.runs.size() == 1)
                            stroke.runs.back().reserve(size_t(count - p + 2));
                        stroke.runs.back().push_back({px, py});
                    }
                    stroke.runs.back().push_back({x, y});
                    joined = true;
                } else {
                    joined = false;
                }
            }
            px = x;
            py = y;
        }
        drawing.series.push_back(std::move(stroke));
        if (count >= 1 && plot.SeriesCount >= 2) {
            if (view.plotlines) {
                legend.lineColour = std::min(i, 10);
                legend.lineVisible = true;
            }
            if (view.plotpoints)
                drawing.legendMarkers.push_back({{360.0f * float(i - 1) + 120.0f, 80.0f}, i});
        }
    }
    if (plot.PlotKind == TimeAnalysisPlot && view.plotlines)
        drawTimeLevels(plot, view, drawing);
    return drawing;
}

std::string PlotDataText(const PlotData& plot, const PlotView& view) {
    std::string text;
    int most = 0;
    for (int i = 1; i <= plot.SeriesCount; ++i) {
        const std::string& legend = view.Legend[size_t(std::min(i, 10))].text;
        const std::string name = trim(legend).empty() ? view.Label1 : trim(legend);
        text += (i > 1 ? "\t" : "") + name + " (x)\t" + name + " (y)";
        most = std::max(most, plot.pointCount(i));
    }
    text += "\r\n";
    for (int p = 1; p <= most; ++p) {
        for (int i = 1; i <= plot.SeriesCount; ++i) {
            if (i > 1)
                text += '\t';
            if (p <= plot.pointCount(i))
                text +=
                    NumberText(plot.PlotX.get(plot.xSeries(i), p)) + "\t" + NumberText(plot.PlotY.get(i, p));
            else
                text += '\t';
        }
        text += "\r\n";
    }
    return text;
}

} // namespace brooklet
