// The painter of a laid-out plot on the two kinds of device: a raster image, where markers are
// stamped once a pixel and dense lines thinned to what shows, and a recording device, where
// every marker is drawn as a shape.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPicture>

#include <algorithm>
#include <cmath>

#include "plots/plot_painter.h"

namespace brooklet::test {
namespace {

constexpr int Width = 200, Height = 120;

QImage painted(const PlotDrawing& drawing) {
    QImage image(Width, Height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
    PaintPlot(painter, drawing);
    return image;
}

// The drawing recorded, then played into an image.
QImage recordedAndPlayed(const PlotDrawing& drawing) {
    QPicture picture;
    {
        QPainter recorder(&picture);
        recorder.scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
        PaintPlot(recorder, drawing);
    }
    QImage image(Width, Height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    picture.play(&painter);
    return image;
}

QColor at(const QImage& image, PlotPoint twips) {
    return image.pixelColor(int(twips.x / TwipsPerPixel), int(twips.y / TwipsPerPixel));
}

// Markers of shape Shape at the points, no line.
PlotDrawing markers(int shape, std::vector<PlotPoint> points) {
    PlotDrawing drawing;
    SeriesStroke series;
    series.colour = 1;
    series.shape = shape;
    series.markers = std::move(points);
    drawing.series.push_back(series);
    return drawing;
}

TEST(PlotPainter, AMarkerShowsBlackAtItsPointOnAnImageAndOnARecording) {
    // Ten thousand markers on one pixel, one elsewhere, and some far beyond the device.
    std::vector<PlotPoint> points(10'000, PlotPoint{600, 600});
    points.push_back({2250, 1200});
    points.push_back({-1.0e7f, 5.0e6f});
    points.push_back({1.0e30f, -1.0e30f});
    for (int shape : {1, 5}) {
        const PlotDrawing drawing = markers(shape, points);
        for (const QImage& image : {painted(drawing), recordedAndPlayed(drawing)}) {
            EXPECT_EQ(at(image, {600, 600}), QColor(Qt::black)) << shape;
            EXPECT_EQ(at(image, {2250, 1200}), QColor(Qt::black)) << shape;
            EXPECT_EQ(at(image, {1500, 600}), QColor(Qt::white)) << shape;
        }
    }
}

TEST(PlotPainter, AStampedMarkerCoversWhatTheDrawnOneCovers) {
    for (int shape = 1; shape <= 7; ++shape) {
        const PlotDrawing drawing = markers(shape, {{1500, 900}});
        const QImage stamped = painted(drawing);
        const QImage drawn = recordedAndPlayed(drawing);
        int stampedBlack = 0, drawnBlack = 0;
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < Width; ++x) {
                stampedBlack += stamped.pixelColor(x, y) == QColor(Qt::black);
                drawnBlack += drawn.pixelColor(x, y) == QColor(Qt::black);
            }
        EXPECT_GT(stampedBlack, 0) << shape;
        // The same shape, at most a pixel's rounding of its place apart.
        EXPECT_NEAR(stampedBlack, drawnBlack, drawnBlack / 3 + 2) << shape;
    }
}

TEST(PlotPainter, ADenseRunIsDrawnWholeInItsColourToItsLastPoint) {
    PlotDrawing drawing;
    SeriesStroke series;
    series.colour = 2;
    std::vector<PlotPoint> run;
    // A hundred thousand points along a diagonal, most on pixels already taken.
    for (int i = 0; i <= 100'000; ++i)
        run.push_back({300.0f + 0.024f * float(i), 300.0f + 0.012f * float(i)});
    series.runs.push_back(run);
    drawing.series.push_back(series);
    const QImage image = painted(drawing);
    for (double share : {0.0, 0.25, 0.5, 0.75, 1.0})
        EXPECT_EQ(at(image, {300.0f + float(2400 * share), 300.0f + float(1200 * share)}), plotColour(2))
            << share;
    EXPECT_EQ(at(image, {300, 1500}), QColor(Qt::white));
}

// One run, coloured 2.
PlotDrawing line(std::vector<PlotPoint> run) {
    PlotDrawing drawing;
    SeriesStroke series;
    series.colour = 2;
    series.runs.push_back(std::move(run));
    drawing.series.push_back(series);
    return drawing;
}

TEST(PlotPainter, AStraightDenseRunIsDrawnWithFewPointsFromItsFirstToItsLast) {
    std::vector<PlotPoint> run;
    for (int i = 0; i <= 100'000; ++i)
        run.push_back({300.0f + 0.024f * float(i), 300.0f + 0.012f * float(i)});
    const QTransform toPixels = QTransform::fromScale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
    const QPolygonF shown = VisibleLine(run, toPixels);
    ASSERT_GE(shown.size(), 2);
    // A line 160 pixels long: a point for each straight stretch of at most 32 pixels taken.
    EXPECT_LE(shown.size(), 12);
    EXPECT_EQ(shown.front(), QPointF(300, 300));
    EXPECT_EQ(shown.back(), QPointF(run.back().x, run.back().y));
}

TEST(PlotPainter, ASharpPeakKeepsItsTipAndAGentleBendItsCorner) {
    // Up from (1500, 1500) to the tip (1500, 300) and back along the same line, then to the right:
    // every point lies on one straight line but the tip must show.
    std::vector<PlotPoint> run;
    for (int i = 0; i <= 1000; ++i)
        run.push_back({1500.0f, 1500.0f - 1.2f * float(i)});
    for (int i = 1; i <= 1000; ++i)
        run.push_back({1500.0f, 300.0f + 1.2f * float(i)});
    for (int i = 1; i <= 1000; ++i)
        run.push_back({1500.0f + float(i), 1500.0f});
    const QImage image = painted(line(run));
    EXPECT_EQ(at(image, {1500, 300}), plotColour(2));
    EXPECT_EQ(at(image, {1500, 900}), plotColour(2));
    EXPECT_EQ(at(image, {2490, 1500}), plotColour(2));
    EXPECT_EQ(at(image, {1500, 150}), QColor(Qt::white));
    EXPECT_EQ(at(image, {2000, 900}), QColor(Qt::white));
    const QPolygonF shown = VisibleLine(run, QTransform::fromScale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel));
    // Within a pixel of the tip and of the corner.
    auto within = [&shown](QPointF place) {
        return std::any_of(shown.begin(), shown.end(), [place](QPointF p) {
            return std::abs(p.x() - place.x()) <= TwipsPerPixel &&
                   std::abs(p.y() - place.y()) <= TwipsPerPixel;
        });
    };
    EXPECT_TRUE(within({1500, 300}));
    EXPECT_TRUE(within({1500, 1500}));
}

TEST(PlotPainter, APointOffTheLineByMoreThanHalfAPixelStays) {
    const QTransform toPixels = QTransform::fromScale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
    // The middle point is 0.4 pixel off the straight line: left out; 0.6 pixel off: kept.
    EXPECT_EQ(VisibleLine({{0, 0}, {150, 6}, {300, 0}}, toPixels).size(), 2);
    EXPECT_EQ(VisibleLine({{0, 0}, {150, 9}, {300, 0}}, toPixels).size(), 3);
}

} // namespace
} // namespace brooklet::test
