// The plot window's numbers: axis scaling, clipping, markers, the set-up of every plot kind from
// its tables or the request, the drawing laid out in twips, and the data copied for a spreadsheet.
#include <gtest/gtest.h>

#include "editing/grid_editor.h"
#include "plots/plot_geometry.h"
#include "session/section_table.h"

namespace brooklet::test {
namespace {

struct Scaled {
    double low, high, ticks;
};
Scaled scale(double low, double high) {
    double ticks = 0;
    ScaleAxis(low, high, ticks);
    return {low, high, ticks};
}

// ---- ScaleAxis -------------------------------------------------------------------------------

TEST(ScaleAxis, OnePointOrEqualValuesGiveARangeHoldingLowMinusATenthAndLowPlusNineTenths) {
    const Scaled s = scale(5.0, 5.0);
    EXPECT_NEAR(s.low, 4.9, 1e-9);
    EXPECT_NEAR(s.high, 5.9, 1e-9);
    EXPECT_NEAR(s.ticks, 10.0, 1e-9);
}

TEST(ScaleAxis, ARangeOfNothingOnANegativeValueWorksTheSameWay) {
    const Scaled s = scale(-3.0, -3.0);
    EXPECT_NEAR(s.low, -3.1, 1e-9);
    EXPECT_NEAR(s.high, -2.1, 1e-9);
    EXPECT_NEAR(s.ticks, 10.0, 1e-9);
}

TEST(ScaleAxis, ARangeThatIsAPowerOfTenStepsByATenthOfIt) {
    const Scaled s = scale(0.0, 100.0);
    EXPECT_DOUBLE_EQ(s.low, 0.0);
    EXPECT_DOUBLE_EQ(s.high, 100.0);
    EXPECT_DOUBLE_EQ(s.ticks, 10.0);
}

TEST(ScaleAxis, TwelveStepsStand) {
    const Scaled s = scale(0.0, 12.0);
    EXPECT_NEAR(s.high, 12.0, 1e-12);
    EXPECT_NEAR(s.ticks, 12.0, 1e-9);
}

TEST(ScaleAxis, ThirteenStepsAfterRoundingOutwardCoarsenTheStepOnce) {
    // 0.1 becomes 0.2, 0.2 becomes 0.25, 0.25 becomes 0.5, 0.5 becomes 1.
    Scaled s = scale(0.05, 1.25);
    EXPECT_NEAR(s.low, 0.0, 1e-12);
    EXPECT_NEAR(s.high, 1.4, 1e-12);
    EXPECT_NEAR(s.ticks, 7.0, 1e-9);
    s = scale(0.1, 2.5);
    EXPECT_NEAR(s.high, 2.5, 1e-12);
    EXPECT_NEAR(s.ticks, 10.0, 1e-9);
    s = scale(0.1, 3.1);
    EXPECT_NEAR(s.high, 3.5, 1e-12);
    EXPECT_NEAR(s.ticks, 7.0, 1e-9);
    s = scale(0.1, 6.1);
    EXPECT_NEAR(s.high, 7.0, 1e-12);
    EXPECT_NEAR(s.ticks, 7.0, 1e-9);
}

TEST(AxisLabel, RoundsToTwoDecimalsFromOneUpAndFiveBelowWithALeadingBlankUnlessNegative) {
    EXPECT_EQ(AxisLabel(2.125), " 2.12");
    EXPECT_EQ(AxisLabel(2.375), " 2.38");
    EXPECT_EQ(AxisLabel(0.1234567), " 0.12346");
    EXPECT_EQ(AxisLabel(0.0), " 0");
    EXPECT_EQ(AxisLabel(-2.5), "-2.5");
}

// ---- Clipping --------------------------------------------------------------------------------

PlotFrame frame() {
    return PlotFrame::ofSurface(10800, 6600);
}

TEST(ClipSegment, ASegmentInsideIsDrawnAsItIs) {
    float x = 1000, y = 200, px = 900, py = 100;
    EXPECT_TRUE(ClipSegment(frame(), x, y, px, py));
    EXPECT_EQ((std::vector<float>{x, y, px, py}), (std::vector<float>{1000, 200, 900, 100}));
}

TEST(ClipSegment, AnEndLeftOfTheBoxMovesToItsEdge) {
    float x = 1000, y = 200, px = 500, py = 100;
    EXPECT_TRUE(ClipSegment(frame(), x, y, px, py));
    EXPECT_FLOAT_EQ(px, 750);
    EXPECT_FLOAT_EQ(py, 150);
}

TEST(ClipSegment, AnEndAboveTheBoxMovesToItsTop) {
    float x = 1000, y = 100, px = 800, py = -100;
    EXPECT_TRUE(ClipSegment(frame(), x, y, px, py));
    EXPECT_FLOAT_EQ(py, 0);
    EXPECT_FLOAT_EQ(px, 900);
}

TEST(ClipSegment, TheNewEndOutsideIsMovedAndTheSegmentNotDrawn) {
    // (x, y) right of the box: moved to the edge, then it lies on the box and is drawn.
    float x = 11000, y = 300, px = 10000, py = 100;
    EXPECT_TRUE(ClipSegment(frame(), x, y, px, py));
    EXPECT_FLOAT_EQ(x, 10790);
    EXPECT_FLOAT_EQ(y, 100 + 200 * (790.0f / 1000.0f));
}

TEST(ClipSegment, ASegmentWithBothEndsOutsideIsNotDrawnEvenAcrossTheBox) {
    float x = 11000, y = 3000, px = 500, py = 3000;
    EXPECT_FALSE(ClipSegment(frame(), x, y, px, py));
    x = 2000, y = 7000, px = 2000, py = -100;
    EXPECT_FALSE(ClipSegment(frame(), x, y, px, py));
}

TEST(ClipSegment, AFlatSegmentKeepsItsOuterEnd) {
    float x = 1000, y = 200, px = 500, py = 200;
    EXPECT_TRUE(ClipSegment(frame(), x, y, px, py));
    EXPECT_FLOAT_EQ(px, 500);
}

TEST(Intersect, AnEdgeOnTheFirstEndLeavesTheOtherCoordinate) {
    float a = 5, b = 7;
    intersect(a, b, 5, 9, 12);
    EXPECT_FLOAT_EQ(a, 12);
    EXPECT_FLOAT_EQ(b, 7);
}

// ---- Markers ---------------------------------------------------------------------------------

TEST(DrawPt, SevenShapesAtFortyTimesTheFactor) {
    EXPECT_EQ(DrawPt(0, 0, 1, 1.2f).S, 48);
    EXPECT_EQ(DrawPt(0, 0, 1, 1.5f).S, 60);
    EXPECT_EQ(DrawPt(100, 200, 1, 1.2f).kind, MarkerShape::Circle);
    EXPECT_EQ(DrawPt(100, 200, 8, 1.2f).kind, MarkerShape::Circle);
    EXPECT_EQ(DrawPt(100, 200, 3, 1.2f).points,
              (std::vector<PlotPoint>{{52, 200}, {100, 248}, {148, 200}, {100, 152}, {52, 200}}));
    EXPECT_EQ(DrawPt(100, 200, 4, 1.2f).points,
              (std::vector<PlotPoint>{{148, 152}, {52, 152}, {100, 248}, {148, 152}}));
    EXPECT_EQ(DrawPt(100, 200, 5, 1.2f).kind, MarkerShape::Square);
    EXPECT_EQ(DrawPt(100, 200, 6, 1.2f).points.size(), 8u);
    EXPECT_EQ(DrawPt(100, 200, 7, 1.2f).points,
              (std::vector<PlotPoint>{{52, 200}, {148, 200}, {100, 152}, {100, 248}}));
    EXPECT_EQ(DrawPt(100, 200, 9, 1.2f).kind, MarkerShape::Lines);
    EXPECT_EQ(DrawPt(100, 200, 10, 1.2f).kind, MarkerShape::Polygon);
    EXPECT_EQ(DrawPt(100, 200, 11, 1.2f).kind, MarkerShape::None);
}

TEST(PlotColour, TheTableOfElevenColours) {
    EXPECT_EQ(PlotColour(0), (Rgb{0, 0, 0}));
    EXPECT_EQ(PlotColour(1), (Rgb{255, 0, 0}));
    EXPECT_EQ(PlotColour(4), (Rgb{170, 85, 0}));
    EXPECT_EQ(PlotColour(10), (Rgb{85, 85, 85}));
}

// ---- Set-up from the tables ------------------------------------------------------------------

struct Tables {
    GridContext tables;
    UnitWords units;
    Tables(std::vector<std::string> identifier, std::vector<std::vector<std::string>> rows) {
        tables.IdentifierTable.redim(7, 1);
        for (size_t i = 0; i < identifier.size(); ++i)
            tables.IdentifierTable(int(i) + 1, 1) = identifier[i];
        tables.ValueStore.redim(5, int(rows.size()));
        for (size_t r = 0; r < rows.size(); ++r)
            for (size_t c = 0; c < rows[r].size(); ++c)
                tables.ValueStore(int(c) + 1, int(r) + 1) = rows[r][c];
        tables.TableFirst = {0, 1};
        tables.TableLast = {0, int(rows.size())};
        tables.TableCount = 1;
        units.FlowUnit = "cfs";
        units.LengthUnit = "ft";
        units.SmallAreaUnit = "sq ft";
        units.VolumeUnit = "ac ft";
        units.OutputFlowUnit = "cfs";
        units.OutputAreaUnit = "sq mi";
    }
    PlotSource source() const { return {&tables, 1, &units, "C:\\work\\willow.inp"}; }
};

TEST(PreparePlot, ACrossSectionSharesItsElevationsAmongThreeSeriesWithThreeLegends) {
    Tables t({"XS-UPPER"},
             {{"872.", "0.", "0.", "0."}, {"873.", "27.", "12.", "14."}, {"874.", "92.", "28.", "18."}});
    PlotData plot;
    plot.PlotKind = CrossSectionPlot;
    PlotView view = InitialView(CrossSectionPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(plot.SeriesCount, 3);
    EXPECT_EQ(plot.PlotCount.size(), 2u);
    EXPECT_EQ(plot.xSeries(2), 1);
    EXPECT_EQ(plot.xSeries(3), 1);
    EXPECT_EQ(plot.pointCount(3), 3);
    EXPECT_EQ(plot.PlotX.get(1, 3), 874.0f);
    EXPECT_EQ(plot.PlotY.get(2, 2), 12.0f);
    EXPECT_EQ(plot.PlotY.get(3, 3), 18.0f);
    EXPECT_EQ(view.Label1, "Cross Section - XS-UPPER");
    EXPECT_EQ(view.Label2, "willow.inp");
    EXPECT_EQ(view.Label4, "E L E V A T I O N (ft)");
    EXPECT_EQ(view.Legend[1].text, "F L O W (cfs)");
    EXPECT_EQ(view.Legend[2].text, "E N D   A R E A (sq ft)");
    EXPECT_EQ(view.Legend[3].text, "T O P   W I D T H (ft)");
    for (int i = 1; i <= 3; ++i)
        EXPECT_TRUE(view.Legend[size_t(i)].visible) << i;
    EXPECT_FALSE(view.Legend[4].visible);
    EXPECT_EQ(view.frame.XMin, 872.0);
    EXPECT_EQ(view.frame.XMax, 874.0);
    EXPECT_EQ(view.frame.YMax, 92.0);

    const PlotDrawing drawing = DrawPlot(plot, view);
    // Each of several series shows its line sample in its colour.
    EXPECT_TRUE(view.Legend[1].lineVisible);
    EXPECT_TRUE(view.Legend[2].lineVisible);
    EXPECT_EQ(view.Legend[3].lineColour, 3);
    EXPECT_EQ(drawing.legendMarkers.size(), 3u);
    EXPECT_EQ(drawing.legendMarkers[2].at, (PlotPoint{840, 80}));
}

TEST(PreparePlot, AnEmptyCellEndsASeriesAndIsCountedAsZero) {
    Tables t({"MILLDAM"}, {{"870.", "0.", "0."}, {"871.", "40.", ""}, {"872.", "95.", "12."}});
    PlotData plot;
    plot.PlotKind = StructureRatingPlot;
    PlotView view = InitialView(StructureRatingPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(view.Label1, "Structure - MILLDAM");
    EXPECT_EQ(view.Label3, "F\rL\rO\rW\r \r-\r \rS\rT\rO\rR\rA\rG\rE");
    EXPECT_EQ(view.Legend[2].text, "S T O R A G E (ac ft)");
    EXPECT_EQ(plot.PlotCount[1], 3);
    EXPECT_EQ(plot.PlotY.get(2, 2), 0.0f);
    EXPECT_EQ(plot.PlotY.get(2, 3), 0.0f);
}

TEST(PreparePlot, AnInputHydrographRunsFromItsStartTimeByItsIncrement) {
    Tables t({"INFLOW-1", "", "", "2.5", "0.5"}, {{"10."}, {"30."}, {"20."}});
    PlotData plot;
    plot.PlotKind = InputHydrographPlot;
    PlotView view = InitialView(InputHydrographPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(view.Label1, "Input Hydrograph - INFLOW-1");
    EXPECT_EQ(view.Label3, "D\rI\rS\rC\rH\rA\rR\rG\rE\r\r\rc\rf\rs");
    EXPECT_EQ(view.Label4, "T I M E (hr)");
    EXPECT_FALSE(view.Legend[1].visible);
    EXPECT_EQ(plot.PlotX.get(1, 3), 3.5f);
    EXPECT_EQ(view.frame.XMin, 2.5);
    EXPECT_EQ(view.frame.XMax, 3.5);
    EXPECT_EQ(view.FirstYMax, 30.0f);
}

TEST(PreparePlot, TheUnitHydrographRunsFromZeroToOne) {
    Tables t({"UNIT"}, {{"0."}, {"0.6"}, {"1."}, {"0.3"}, {"0."}});
    PlotData plot;
    plot.PlotKind = UnitHydrographPlot;
    PlotView view = InitialView(UnitHydrographPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(view.Label1, "Dimensionless Unit Hydrograph");
    EXPECT_EQ(view.Label4, "D I M E N S I O N L E S S   T I M E");
    EXPECT_EQ(plot.PlotX.get(1, 5), 1.0f);
    EXPECT_EQ(plot.PlotX.get(1, 2), 0.25f);
}

TEST(PreparePlot, ARainfallDistributionTakesItsIncrementFromColumnTwo) {
    Tables t({"WB-24HR", "0.25"}, {{"0."}, {"0.1"}, {"0.4"}});
    PlotData plot;
    plot.PlotKind = RainfallDistributionPlot;
    PlotView view = InitialView(RainfallDistributionPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(view.Label1, "Rainfall Distribution - WB-24HR");
    EXPECT_EQ(view.Label3, "A\rC\rC\rU\rM\rU\rL\rA\rT\rE\rD\r \rR\rA\rI\rN\rF\rA\rL\rL");
    EXPECT_EQ(plot.PlotX.get(1, 3), 0.5f);
}

// ---- Set-up from the request -----------------------------------------------------------------

PlotData hydrographs(int series) {
    PlotData plot;
    plot.PlotKind = OutputHydrographPlot;
    plot.newRequest(series);
    for (int s = 1; s <= series; ++s) {
        auto& row = plot.PlotRequest[size_t(s)];
        row.T[2] = "100-YR";
        row.T[3] = "Outlet";
        row.T[5] = "  1.0";
        row.T6 = 0.5;
        row.T7 = 3;
        plot.PlotY.growPoints(3);
        plot.PlotX.growPoints(3);
        for (int p = 1; p <= 3; ++p)
            plot.PlotY.set(s, p, float(10 * s + p));
    }
    return plot;
}

TEST(PreparePlot, OneOutputHydrographShowsItsLegendButNoLineOrMarkerSample) {
    PlotData plot = hydrographs(1);
    Tables t({}, {});
    PlotView view = InitialView(OutputHydrographPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(view.Label1, "Hydrograph (Storm - 100-YR)");
    EXPECT_EQ(view.Label2, "willow.out");
    EXPECT_EQ(view.Legend[1].text, "Outlet");
    EXPECT_TRUE(view.Legend[1].visible);
    EXPECT_EQ(plot.PlotX.get(1, 3), 2.0f);
    const PlotDrawing drawing = DrawPlot(plot, view);
    EXPECT_FALSE(view.Legend[1].lineVisible);
    EXPECT_TRUE(drawing.legendMarkers.empty());
}

TEST(PreparePlot, SeveralStormsNameTheLegendsAndTheLocationTheTitle) {
    PlotData plot = hydrographs(2);
    plot.PlotRequest[2].T[2] = "10-YR";
    plot.PlotRequest[1].T[1] = plot.PlotRequest[2].T[1] = "BUILDOUT";
    plot.MultiStormCount = 2;
    Tables t({}, {});
    PlotView view = InitialView(OutputHydrographPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(view.Label1, "Hydrograph (Alternate - BUILDOUT @ Outlet)");
    EXPECT_EQ(view.Legend[1].text, "100-YR");
    EXPECT_EQ(view.Legend[2].text, "10-YR");

    plot.PlotRequest[1].T[3] = "MILLPOND";
    plot.PlotRequest[1].T[4] = "Upstream";
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(view.Label1, "Hydrograph (Alternate - BUILDOUT @ Reach - MILLPOND - Upstream)");
}

TEST(PreparePlot, PeakFlowsPlotAreaAgainstFlowWithPointsOnly) {
    PlotData plot;
    plot.PlotKind = PeakFlowPlot;
    plot.newRequest(1);
    plot.PlotRequest[1].T[3] = "Subarea";
    plot.PlotRequest[1].T7 = 2;
    plot.PlotX.growPoints(2);
    plot.PlotY.growPoints(2);
    plot.PlotX.set(1, 1, 1.12f);
    plot.PlotX.set(1, 2, 0.86f);
    plot.PlotY.set(1, 1, 210);
    plot.PlotY.set(1, 2, 186);
    plot.FlowUnitLabel = "csm";
    Tables t({}, {});
    PlotView view = InitialView(PeakFlowPlot, 10800, 6600);
    EXPECT_FALSE(view.plotlines);
    EXPECT_TRUE(view.plotpoints);
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(view.Label1, "Peak Flow");
    EXPECT_EQ(view.Label4, "DRAINAGE AREA (sq mi)");
    EXPECT_EQ(view.Label3, "D\rI\rS\rC\rH\rA\rR\rG\rE\r\r\rc\rs\rm");
    EXPECT_EQ(view.Legend[1].text, "Subarea");
    EXPECT_FLOAT_EQ(float(view.frame.XMin), 0.86f);
    const PlotDrawing drawing = DrawPlot(plot, view);
    EXPECT_TRUE(drawing.series[0].runs.empty());
    EXPECT_EQ(drawing.series[0].markers.size(), 2u);
}

TEST(PreparePlot, ATimeAnalysisSortsTheFlowsDownwardAndMarksEachDurationsLevel) {
    PlotData plot = hydrographs(1);
    plot.PlotKind = TimeAnalysisPlot;
    auto& row = plot.PlotRequest[1];
    row.T[5] = "0.0";
    row.T6 = 1.0;
    plot.PlotY.set(1, 1, 5);
    plot.PlotY.set(1, 2, 20);
    plot.PlotY.set(1, 3, 10);
    row.T[8] = "90% of Peak";
    row.T[16] = "1.5";
    row.T[12] = "2.0 Stage";
    row.T[20] = "0.5";
    Tables t({}, {});
    PlotView view = InitialView(TimeAnalysisPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(view.Label1, "Time Analysis (Storm - 100-YR)");
    EXPECT_EQ((std::vector<float>{plot.PlotY.get(1, 1), plot.PlotY.get(1, 2), plot.PlotY.get(1, 3)}),
              (std::vector<float>{20, 10, 5}));
    EXPECT_EQ(plot.PlotX.get(1, 1), 0.0f);
    const PlotDrawing drawing = DrawPlot(plot, view);
    ASSERT_EQ(drawing.levels.size(), 2u);
    // 1.5 h lies between 1 h (10) and 2 h (5): measured from the upper end, taken from the lower.
    EXPECT_EQ(view.Legend[2].text, "90% of Peak (8 cfs)");
    EXPECT_EQ(view.Legend[3].text, "2.0 Stage (15 cfs)");
    EXPECT_EQ(drawing.levels[0].colour, 2);
    EXPECT_EQ(drawing.levels[0].from.x, 750.0f);
    EXPECT_FLOAT_EQ(drawing.levels[0].to.x, view.frame.ToPlotX(1.5));
    EXPECT_TRUE(view.Legend[3].lineVisible);
}

TEST(InterpolateFlow, MirrorsTheIntervalAndKeepsTheLevelWhenNoPointLiesBeyond) {
    PlotData plot;
    plot.newRequest(1);
    plot.PlotX.growPoints(3);
    plot.PlotY.growPoints(3);
    for (int p = 1; p <= 3; ++p)
        plot.PlotX.set(1, p, float(p - 1));
    plot.PlotY.set(1, 1, 10);
    plot.PlotY.set(1, 2, 8);
    plot.PlotY.set(1, 3, 2);
    float Q = 0;
    InterpolateFlow(plot, 1, 1.25, Q);
    EXPECT_FLOAT_EQ(Q, 3.5f);
    InterpolateFlow(plot, 1, 7.0, Q);
    EXPECT_FLOAT_EQ(Q, 3.5f);
}

// ---- The drawing -----------------------------------------------------------------------------

TEST(DrawPlot, AHydrographOfOnePointStandsInARangeFromATenthBelowToNineTenthsAbove) {
    PlotData plot = hydrographs(1);
    plot.PlotRequest[1].T7 = 1;
    plot.PlotY.set(1, 1, 10);
    Tables t({}, {});
    PlotView view = InitialView(OutputHydrographPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    const PlotDrawing drawing = DrawPlot(plot, view);
    EXPECT_NEAR(view.frame.XMin, 0.9, 1e-6);
    EXPECT_NEAR(view.frame.XMax, 1.9, 1e-6);
    EXPECT_NEAR(view.frame.YMin, 9.9, 1e-6);
    EXPECT_NEAR(view.frame.YMax, 10.9, 1e-6);
    EXPECT_TRUE(drawing.series[0].runs.empty());
    EXPECT_EQ(drawing.series[0].markers.size(), 1u);
}

TEST(DrawPlot, TheAxesStandAtRoundLimitsWithTheirTicksLabelsAndDottedYTicks) {
    PlotData plot = hydrographs(1);
    plot.PlotRequest[1].T[5] = "0.0";
    plot.PlotRequest[1].T6 = 5.0; // x 0, 5, 10
    plot.PlotY.set(1, 1, 0);
    plot.PlotY.set(1, 2, 100);
    plot.PlotY.set(1, 3, 50);
    Tables t({}, {});
    PlotView view = InitialView(OutputHydrographPlot, 10800, 6600);
    view.plotgrid = true;
    PreparePlot(plot, t.source(), view);
    const PlotDrawing drawing = DrawPlot(plot, view);
    EXPECT_EQ(view.frame.XMax, 10.0);
    EXPECT_EQ(view.frame.YMax, 100.0);
    EXPECT_DOUBLE_EQ(view.frame.XPerTwip, 10.0 / (10040 * 0.95));
    // Box 4 sides, 11 x ticks with 10 grid lines, 11 y dots with 10 grid lines.
    EXPECT_EQ(drawing.axis.size(), 4u + 21u + 21u);
    std::vector<std::string> labels;
    for (const PlotText& text : drawing.labels)
        labels.push_back(text.text);
    EXPECT_EQ(labels[0], " 0");
    EXPECT_EQ(labels[10], " 10");
    EXPECT_EQ(labels[11], " 0");
    EXPECT_EQ(labels[21], " 100");
    EXPECT_NEAR(drawing.labels[10].topLeft.x, 750 + 9538 - 100, 0.01);
    EXPECT_EQ(drawing.labels[10].topLeft.y, 6190.0f);
    EXPECT_EQ(drawing.labels[11].topLeft, (PlotPoint{0, 6040}));
    // The y ticks are dots left of the axis, one at each step of 10 up from the bottom.
    std::vector<PlotLine> dots;
    for (const PlotLine& line : drawing.axis)
        if (line.from == line.to)
            dots.push_back(line);
    ASSERT_EQ(dots.size(), 11u);
    for (size_t k = 0; k < dots.size(); ++k) {
        EXPECT_EQ(dots[k].from.x, 720.0f) << k;
        EXPECT_EQ(dots[k].width, 4) << k;
        EXPECT_NEAR(dots[k].from.y, 6090 - double(k) * 6090 * 0.95 / 10, 0.01) << k;
    }
    // The series: one run of two segments, markers at the points.
    ASSERT_EQ(drawing.series[0].runs.size(), 1u);
    EXPECT_EQ(drawing.series[0].runs[0].size(), 3u);
    EXPECT_EQ(drawing.series[0].markers[0], (PlotPoint{750, 6090}));
    EXPECT_FLOAT_EQ(drawing.series[0].markers[1].y, float(6090 - 6090 * 0.95));
}

TEST(DrawPlot, ZoomedLimitsClipTheSeriesAndDropSegmentsWithBothEndsOutside) {
    PlotData plot = hydrographs(1);
    plot.PlotRequest[1].T[5] = "0.0";
    plot.PlotRequest[1].T6 = 5.0;
    plot.PlotY.set(1, 1, 0);
    plot.PlotY.set(1, 2, 100);
    plot.PlotY.set(1, 3, 0);
    Tables t({}, {});
    PlotView view = InitialView(OutputHydrographPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    view.frame.XMin = 4;
    view.frame.XMax = 6;
    view.frame.YMin = 0;
    view.frame.YMax = 10;
    const PlotDrawing drawing = DrawPlot(plot, view);
    // Every point lies outside the box but for none: no segment has an end inside.
    EXPECT_TRUE(drawing.series[0].runs.empty());
    EXPECT_TRUE(drawing.series[0].markers.empty());
}

TEST(PlotDataText, EachSeriesXAndYUnderItsLegend) {
    PlotData plot = hydrographs(2);
    plot.PlotRequest[2].T[3] = "MILLPOND";
    plot.PlotRequest[2].T[4] = "Upstream";
    plot.PlotRequest[2].T7 = 2;
    Tables t({}, {});
    PlotView view = InitialView(OutputHydrographPlot, 10800, 6600);
    PreparePlot(plot, t.source(), view);
    EXPECT_EQ(PlotDataText(plot, view),
              "Outlet (x)\tOutlet (y)\tMILLPOND - Upstream (x)\tMILLPOND - Upstream (y)\r\n"
              "1\t11\t1\t21\r\n"
              "1.5\t12\t1.5\t22\r\n"
              "2\t13\t\t\r\n");
}

} // namespace
} // namespace brooklet::test
