// The painter of a laid-out plot on the two kinds of device: a raster image, where markers are
// stamped once a pixel and dense lines thinned to what shows, and a recording device, where
// every marker is drawn as a shape.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPicture>

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

} // namespace
} // namespace brooklet::test
