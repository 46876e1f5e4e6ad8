#pragma once
// The plot window's drawing as numbers: the set-up that turns the plot request or the tabular
// tables into series, titles and legends (PreparePlot), the axis scaling (ScaleAxis), and the
// drawing routine (Draw) that lays out the axes, the clipped series lines, the point markers and
// the time levels in twips, y growing downward from the top of the plotting box. The window
// paints the result on any surface.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "editing/colours.h"
#include "editing/numbers.h"
#include "editing/plot_data.h"

namespace brooklet {

struct GridContext;
struct UnitWords;

// The plot colours: 0 black for the box, ticks and grid, 1 to 10 the series.
Rgb PlotColour(int index);

// MaxOf gives b if b > a, else a; MinOf gives b if b < a, else a; on single precision.
float MaxOf(float a, float b);
float MinOf(float a, float b);

// Widens Low and High to round values and gives the number of steps between them: a step of
// 1, 2, 2.5 or 5 times a power of ten, coarsened once when more than 12 steps come.
void ScaleAxis(double& Low, double& High, double& Ticks);

// An axis label: rounded to 2 decimals from 1 up, to 5 below, as plain number text with one
// leading blank when it is not negative.
std::string AxisLabel(double V);

// The plotting box and the axis limits.
struct PlotFrame {
    int16_t PlotLeft = 750;
    int16_t PlotMarginBottom = 500;
    int16_t PlotRight = 0;  // drawing surface width - 10
    int16_t PlotHeight = 0; // drawing surface height - 10
    double PlotBottom = 0;  // PlotHeight - PlotMarginBottom; the box's top is 0
    double XMin = 0, XMax = 0, YMin = 0, YMax = 0;
    double XPerTwip = 1, YPerTwip = 1;

    // The frame of a drawing surface of the given size in twips.
    static PlotFrame ofSurface(int width, int height);
    float ToPlotX(double v) const { return float((v - XMin) / XPerTwip + PlotLeft); }
    float ToPlotY(double v) const { return float(PlotBottom - (v - YMin) / YPerTwip); }
    // ToPlotX and ToPlotY for the points of whole series: a multiplication by the reciprocal
    // instead of a division, the same to the last bit of single precision but for a value on a
    // rounding edge.
    struct SeriesMap {
        double XMin, XScale, Left, YMin, YScale, Bottom;
        float x(double v) const { return float((v - XMin) * XScale + Left); }
        float y(double v) const { return float(Bottom - (v - YMin) * YScale); }
    };
    SeriesMap seriesMap() const {
        return {XMin, 1.0 / XPerTwip, double(PlotLeft), YMin, 1.0 / YPerTwip, PlotBottom};
    }
    bool withinWidth(float x) const { return x >= PlotLeft && x <= PlotRight; }
    bool withinHeight(float y) const { return y >= 0 && y <= PlotBottom; }
};

// Moves (A1, B1) along the line to (A2, B2) until A1 reaches Edge.
void intersect(float& A1, float& B1, float A2, float B2, float Edge);
// Clips the segment from (px, py) to (x, y) in place; true when it is to be drawn: when (x, y)
// ends inside the box. A segment with both ends outside is not drawn, even if it crosses the box.
bool ClipSegment(const PlotFrame& frame, float& x, float& y, float& px, float& py);

struct PlotPoint {
    float x = 0, y = 0;
    bool operator==(const PlotPoint& o) const { return x == o.x && y == o.y; }
};

// A point marker (DrawPt): shapes 1 and 8 a filled circle, 2 and 9 a cross, 3 and 10 a diamond,
// 4 a triangle point down, 5 a square, 6 an eight-armed star, 7 a plus sign; others nothing.
struct MarkerShape {
    enum Kind { None, Circle, Lines, Polygon, Square } kind = None;
    int S = 0; // the half size: 40 times the factor, as a 16-bit integer
    // Circle: the centre. Lines: pairs of ends. Polygon: the corners, closed. Square: two corners.
    std::vector<PlotPoint> points;
};
MarkerShape DrawPt(float x, float y, int Shape, float Factor);
// Marker pen width, in pixels of the screen.
constexpr int MarkerLineWidth = 3;

struct PlotLine {
    PlotPoint from, to;
    int colour = 0;
    int width = 4; // pixels of the screen; a wide line shows solid
    bool dotted = false;
};
struct PlotText {
    PlotPoint topLeft;
    std::string text;
};
// One series: its colour, the runs of connected segments drawn (each a polyline) and the points
// whose markers show.
struct SeriesStroke {
    int colour = 0;
    int shape = 0;
    std::vector<std::vector<PlotPoint>> runs;
    std::vector<PlotPoint> markers;
};

// A legend entry: its text and whether it shows; the colour of its line sample and whether that
// shows.
struct LegendEntry {
    std::string text;
    bool visible = false;
    bool lineVisible = false;
    int lineColour = 0;
};

// What the plot window shows: its captions, legends, toggles and limits.
struct PlotView {
    std::string Label1;                 // title
    std::string Label2;                 // file name
    std::string Label3;                 // y caption, one character a line
    std::string Label4;                 // x caption
    std::array<LegendEntry, 11> Legend; // 1..10
    std::string FlowUnitPlotLabel;      // the output flow unit, for the time levels
    bool plotpoints = true, plotlines = true, plotgrid = false;
    PlotFrame frame;
    float FirstXMin = 0, FirstXMax = 0, FirstYMin = 0, FirstYMax = 0;
};

// The view of a plot window at its load: lines and points on, grid off; a peak flow plot starts
// with points only, since a drainage area order is not a line.
PlotView InitialView(int PlotKind, int surfaceWidth, int surfaceHeight);

// Everything Draw lays out: on the drawing surface the box, ticks, grid, labels, series and time
// levels; in the legend strip the marker samples.
struct PlotDrawing {
    std::vector<PlotLine> axis;
    std::vector<PlotText> labels;
    std::vector<SeriesStroke> series;
    std::vector<PlotLine> levels;
    struct LegendMarker {
        PlotPoint at;
        int shape = 0;
    };
    std::vector<LegendMarker> legendMarkers;
};

// The legend marker strip: each sample's place and factor.
constexpr float LegendMarkerFactor = 1.5f;
constexpr float PlotMarkerFactor = 1.2f;

// Where the set-up of a plot takes its input besides the plot data.
struct PlotSource {
    const GridContext* tables = nullptr; // kinds 1 to 5
    int Entry = 1;                       // the entry of the identifier table on show
    const UnitWords* units = nullptr;
    std::string CurrentFile;
};

// PreparePlot: series, titles, captions and legends, the limits of the whole data; the window
// then draws. Kinds 1 to 5 read the tabular tables; 6 to 8 the arrays the reader filled.
void PreparePlot(PlotData& plot, const PlotSource& source, PlotView& view);

// Draw: the axes at the present limits (widened to round values), then the series as the toggles
// say, then for kind 8 the time levels.
PlotDrawing DrawPlot(const PlotData& plot, PlotView& view);

// x values Start, Start + Increment, ... for points 1..Count of a series; widens the limits.
void FillTimeAxis(PlotData& plot, int Series, int Count, double Start, double Increment, double& XMinOut,
                  double& XMaxOut);
// The flow at duration D on series Series, as the time levels need it; Q stays as it was when
// no point lies beyond D.
void InterpolateFlow(const PlotData& plot, int Series, double D, float& Q);

// The plotted series as tab-separated text for a spreadsheet: a header of each series' legend (or
// the title), then a line per point with each series' x and y.
std::string PlotDataText(const PlotData& plot, const PlotView& view);

} // namespace brooklet
