// The plot window's tools as numbers: the order of a zoom box's corners, where mouse points are
// held on press and on release, the new limits of a zoom, the return to the full plot and the
// read-out of a point near the pointer.
#include <gtest/gtest.h>

#include "plots/plot_tools.h"

namespace brooklet::test {
namespace {

// The frame of the plot window's surface with round scales: a hundredth of a unit of x and a
// tenth of a unit of y to the twip.
PlotFrame roundFrame() {
    PlotFrame f = PlotFrame::ofSurface(10800, 6600);
    f.XMin = 0;
    f.XMax = 100;
    f.YMin = 0;
    f.YMax = 609;
    f.XPerTwip = 0.01;
    f.YPerTwip = 0.1;
    return f;
}

TEST(OrderPair, ModeOnePutsThePairInAscendingOrderAndModeTwoInDescending) {
    float a = 5, b = 2;
    OrderPair(1, a, b);
    EXPECT_EQ(a, 2.0f);
    EXPECT_EQ(b, 5.0f);
    OrderPair(1, a, b);
    EXPECT_EQ(a, 2.0f);
    OrderPair(2, a, b);
    EXPECT_EQ(a, 5.0f);
    EXPECT_EQ(b, 2.0f);
    OrderPair(2, a, b);
    EXPECT_EQ(a, 5.0f);
    float c = 3, d = 3;
    OrderPair(2, c, d);
    EXPECT_EQ(c, 3.0f);
}

TEST(ClampPoints, APressOrMoveIsHeldInTheBoxWidthAndFromTheTopToTheBoxBottom) {
    const PlotFrame f = roundFrame();
    EXPECT_EQ(ClampPressPoint(f, {10, -40}), (PlotPoint{750, 0}));
    EXPECT_EQ(ClampPressPoint(f, {20000, 9000}), (PlotPoint{10790, 6090}));
    EXPECT_EQ(ClampPressPoint(f, {800, 300}), (PlotPoint{800, 300}));
}

TEST(ClampPoints, AReleaseIsHeldNoHigherThanTheBottomMarginFromTheTop) {
    const PlotFrame f = roundFrame();
    EXPECT_EQ(ClampReleasePoint(f, {800, 300}), (PlotPoint{800, 500}));
    EXPECT_EQ(ClampReleasePoint(f, {10, -40}), (PlotPoint{750, 500}));
    EXPECT_EQ(ClampReleasePoint(f, {20000, 9000}), (PlotPoint{10790, 6090}));
    EXPECT_EQ(ClampReleasePoint(f, {800, 501}), (PlotPoint{800, 501}));
}

TEST(ZoomToBox, TheBoxBecomesTheLimits) {
    PlotFrame f = roundFrame();
    float startX = 1750, startY = 5090;
    ZoomToBox(f, startX, startY, 2750, 4090);
    EXPECT_FLOAT_EQ(float(f.XMin), 10.0f);
    EXPECT_FLOAT_EQ(float(f.XMax), 20.0f);
    EXPECT_FLOAT_EQ(float(f.YMin), 100.0f);
    EXPECT_FLOAT_EQ(float(f.YMax), 200.0f);
}

TEST(ZoomToBox, ABoxReleasedLeftOfAndAboveItsStartIsPutInOrder) {
    PlotFrame f = roundFrame();
    float startX = 2750, startY = 4090;
    ZoomToBox(f, startX, startY, 1750, 5090);
    EXPECT_FLOAT_EQ(float(f.XMin), 10.0f);
    EXPECT_FLOAT_EQ(float(f.XMax), 20.0f);
    EXPECT_FLOAT_EQ(float(f.YMin), 100.0f);
    EXPECT_FLOAT_EQ(float(f.YMax), 200.0f);
    // The start is left at the box's lower left corner.
    EXPECT_EQ(startX, 1750.0f);
    EXPECT_EQ(startY, 5090.0f);
}

TEST(ZoomToBox, ABoxReleasedAboveTheBottomMarginLineIsCutToThatLine) {
    PlotFrame f = roundFrame();
    // Drawn from low in the box up to 100 twips from the top; the release holds it at 500.
    const PlotPoint end = ClampReleasePoint(f, {2750, 100});
    float startX = 1750, startY = 5090;
    ZoomToBox(f, startX, startY, end.x, end.y);
    EXPECT_FLOAT_EQ(float(f.YMax), 559.0f); // (6090 - 500) / 10, not (6090 - 100) / 10
    EXPECT_FLOAT_EQ(float(f.YMin), 100.0f);
}

TEST(ZoomToBox, TheMaximaAreComputedWithTheOldMinima) {
    PlotFrame f = roundFrame();
    f.XMin = 5;
    f.YMin = 50;
    float startX = 1750, startY = 5090;
    ZoomToBox(f, startX, startY, 2750, 4090);
    EXPECT_FLOAT_EQ(float(f.XMax), 25.0f); // 20 + the old 5, not + the new 15
    EXPECT_FLOAT_EQ(float(f.XMin), 15.0f);
    EXPECT_FLOAT_EQ(float(f.YMax), 250.0f);
    EXPECT_FLOAT_EQ(float(f.YMin), 150.0f);
}

TEST(ZoomToBox, NoLimitWidens) {
    PlotFrame f = roundFrame();
    f.XMax = 15;
    f.YMin = 120;
    float startX = 1750, startY = 5090;
    ZoomToBox(f, startX, startY, 2750, 4090);
    EXPECT_FLOAT_EQ(float(f.XMax), 15.0f);
    EXPECT_FLOAT_EQ(float(f.YMin), 220.0f); // 100 above the old minimum 120
    EXPECT_FLOAT_EQ(float(f.XMin), 10.0f);
}

TEST(ZoomToBox, AClickWithoutADragGivesOneValueOnEachAxis) {
    PlotFrame f = roundFrame();
    float startX = 1750, startY = 5090;
    ZoomToBox(f, startX, startY, 1750, 5090);
    EXPECT_EQ(f.XMin, f.XMax);
    EXPECT_EQ(f.YMin, f.YMax);
    EXPECT_FLOAT_EQ(float(f.XMin), 10.0f);
}

PlotView fullView() {
    PlotView view;
    view.frame = roundFrame();
    view.FirstXMin = 0;
    view.FirstXMax = 100;
    view.FirstYMin = 0;
    view.FirstYMax = 609;
    return view;
}

TEST(ZoomOut, WithUnchangedLimitsNothingIsToBeDrawn) {
    PlotView view = fullView();
    EXPECT_FALSE(ZoomOut(view));
    EXPECT_EQ(view.frame.XMax, 100.0);
}

TEST(ZoomOut, ZoomingTwiceThenZoomOutReturnsToTheFirstFullViewInOneStep) {
    PlotView view = fullView();
    float startX = 1750, startY = 5090;
    ZoomToBox(view.frame, startX, startY, 2750, 4090);
    startX = 1750, startY = 5090;
    ZoomToBox(view.frame, startX, startY, 2750, 4090);
    ASSERT_LT(view.frame.XMax, 100.0);
    EXPECT_TRUE(ZoomOut(view));
    EXPECT_EQ(view.frame.XMin, 0.0);
    EXPECT_EQ(view.frame.XMax, 100.0);
    EXPECT_EQ(view.frame.YMin, 0.0);
    EXPECT_EQ(view.frame.YMax, 609.0);
    EXPECT_FALSE(ZoomOut(view));
}

TEST(ZoomOut, OneLimitAloneThatDiffersIsEnough) {
    PlotView view = fullView();
    view.frame.YMin = -1;
    EXPECT_TRUE(ZoomOut(view));
    EXPECT_EQ(view.frame.YMin, 0.0);
}

// Two series of three points sharing the x values 1, 2, 3.
PlotData twoSeries() {
    PlotData plot;
    plot.PlotKind = OutputHydrographPlot;
    plot.newRequest(2);
    plot.PlotX.redim(2, 3);
    plot.PlotY.redim(2, 3);
    plot.PlotCount = {0, 3, 3};
    for (int p = 1; p <= 3; ++p) {
        plot.PlotX.set(1, p, float(p));
        plot.PlotX.set(2, p, float(p));
        plot.PlotY.set(1, p, 100.0f + p);
        plot.PlotY.set(2, p, 300.0f + p);
    }
    return plot;
}

TEST(PointerReadout, APointWithin25TwipsInBothDirectionsIsRead) {
    const PlotData plot = twoSeries();
    const PlotFrame f = roundFrame();
    const float x = f.ToPlotX(2), y = f.ToPlotY(102);
    EXPECT_EQ(PointerReadout(plot, f, x + 24, y - 24), "2, 102");
    EXPECT_EQ(PointerReadout(plot, f, x + 25, y), "");
    EXPECT_EQ(PointerReadout(plot, f, x, y - 25), "");
}

TEST(PointerReadout, AClickWithoutAPointNearLeavesTheTipEmpty) {
    const PlotData plot = twoSeries();
    EXPECT_EQ(PointerReadout(plot, roundFrame(), 5000, 3000), "");
}

TEST(PointerReadout, ALaterSeriesReplacesAnEarlierHit) {
    PlotData plot = twoSeries();
    plot.PlotY.set(2, 3, 103.5f);
    const PlotFrame f = roundFrame();
    EXPECT_EQ(PointerReadout(plot, f, f.ToPlotX(3), f.ToPlotY(103)), "3, 103.5");
}

TEST(PointerReadout, EverySeriesIsSearchedOverThePointCountOfTheLastSeries) {
    PlotData plot = twoSeries();
    plot.PlotCount = {0, 3, 2};
    const PlotFrame f = roundFrame();
    // The third point of series 1 is passed over, as series 2 has two points.
    EXPECT_EQ(PointerReadout(plot, f, f.ToPlotX(3), f.ToPlotY(103)), "");
    EXPECT_EQ(PointerReadout(plot, f, f.ToPlotX(2), f.ToPlotY(102)), "2, 102");
}

TEST(PointerReadout, SeriesSharingTheXOfSeriesOneUseItsValues) {
    PlotData plot = twoSeries();
    plot.PlotCount = {0, 3};
    plot.PlotX.set(2, 2, 99.0f);
    const PlotFrame f = roundFrame();
    EXPECT_EQ(PointerReadout(plot, f, f.ToPlotX(2), f.ToPlotY(302)), "2, 302");
}

} // namespace
} // namespace brooklet::test
