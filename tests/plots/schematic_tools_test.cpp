#include "schematic_fixture.h"

#include <QAction>
#include <QToolBar>

namespace brooklet::test {
namespace {

class SchematicToolsTest : public SchematicTest {
protected:
    SchematicToolsTest() {
        saveSmallNetwork();
        window = open();
        pic = surface(window);
    }
    void tool(const QString& key) {
        QToolBar* bar = control<QToolBar>(window, "GraphToolBar");
        QAction* action = control<QAction>(window, key);
        QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
    }
    const SurfaceScale& scale() { return window->schematic().scale(); }
    Schematic& schematic() { return window->schematic(); }
    DrawingPoint unitsOf(QPoint pixel) { return scale().toUnits(pixel.x(), pixel.y()); }
    // Presses the left button at one point, moves through the others and lets go at the last.
    void drag(const std::vector<QPoint>& points) {
        QTest::mousePress(pic, Qt::LeftButton, Qt::NoModifier, points.front());
        for (size_t i = 1; i < points.size(); ++i)
            QTest::mouseMove(pic, points[i]);
        QTest::mouseRelease(pic, Qt::LeftButton, Qt::NoModifier, points.back());
    }

    frmTopoModel* window = nullptr;
    QWidget* pic = nullptr;
};

TEST_F(SchematicToolsTest, TheToolsSetTheirState) {
    tool("ZoomIn");
    EXPECT_EQ(window->ZoomArmed, -1);
    EXPECT_EQ(window->ZoomMode, 1);
    EXPECT_EQ(pic->cursor().shape(), Qt::BitmapCursor);
    tool("ZoomOut");
    EXPECT_EQ(window->ZoomMode, 2);
    tool("Pan");
    EXPECT_EQ(window->PanOn, 1);
    EXPECT_EQ(window->ZoomMode, 0);
    EXPECT_EQ(window->ZoomArmed, 0);
    EXPECT_EQ(pic->cursor().shape(), Qt::CrossCursor);
    tool("Drag");
    EXPECT_EQ(window->DragOn, 1);
    EXPECT_EQ(window->PanOn, 0);
    EXPECT_EQ(pic->cursor().shape(), Qt::OpenHandCursor);
    tool("Pointer");
    EXPECT_EQ(window->ZoomMode, 0);
    EXPECT_EQ(pic->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(SchematicToolsTest, AZoomInClickNarrowsTheViewToSixTenthsAboutThePoint) {
    const double shownWidth = scale().ScaleWidth, shownHeight = scale().ScaleHeight;
    tool("ZoomIn");
    const QPoint click(200, 150);
    const DrawingPoint point = unitsOf(click);
    QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, click);
    EXPECT_NEAR(schematic().ViewRight - schematic().ViewLeft, 0.6 * shownWidth, 1e-9);
    EXPECT_NEAR((schematic().ViewLeft + schematic().ViewRight) / 2, point.x, 1e-9);
    EXPECT_NEAR(schematic().ViewBottom - schematic().ViewTop, std::round(0.6 * shownHeight), 1e-9);
    // ApplyView then adds its tenth on either side.
    EXPECT_NEAR(scale().ScaleWidth, 1.2 * 0.6 * shownWidth, 1e-9);
    EXPECT_NEAR(scale().ScaleLeft, point.x - 0.6 * 0.6 * shownWidth, 1e-9);
    EXPECT_EQ(window->ZoomArmed, -1);
}

TEST_F(SchematicToolsTest, AZoomBoxBecomesTheView) {
    tool("ZoomIn");
    const DrawingPoint from = unitsOf({300, 250}), to = unitsOf({100, 50});
    ASSERT_GT(from.x - to.x, 20);
    // Drawn up and to the left: the corners are put in order.
    drag({{300, 250}, {200, 150}, {100, 50}});
    EXPECT_DOUBLE_EQ(schematic().ViewLeft, to.x);
    EXPECT_DOUBLE_EQ(schematic().ViewRight, from.x);
    EXPECT_NEAR(schematic().ViewBottom - schematic().ViewTop, std::round(from.y - to.y), 1e-9);
    EXPECT_FALSE(window->zoomBox());
}

TEST_F(SchematicToolsTest, TheZoomBoxIsShownWhileTheMouseMoves) {
    tool("ZoomIn");
    QTest::mousePress(pic, Qt::LeftButton, Qt::NoModifier, {100, 100});
    QTest::mouseMove(pic, {180, 160});
    ASSERT_TRUE(window->zoomBox());
    EXPECT_EQ(window->zoomBox()->first, unitsOf({100, 100}));
    EXPECT_EQ(window->zoomBox()->second, unitsOf({180, 160}));
    EXPECT_EQ(window->ZoomArmed, 0);
    QTest::mouseRelease(pic, Qt::LeftButton, Qt::NoModifier, {180, 160});
}

TEST_F(SchematicToolsTest, ZoomOutWidensTheViewAboutThePoint) {
    const double shownWidth = scale().ScaleWidth;
    tool("ZoomOut");
    const DrawingPoint point = unitsOf({250, 200});
    QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, {250, 200});
    EXPECT_NEAR(schematic().ViewRight - schematic().ViewLeft, std::min(1.2 * shownWidth, 10000.0), 1e-9);
    EXPECT_NEAR((schematic().ViewLeft + schematic().ViewRight) / 2, point.x, 1e-9);
}

TEST_F(SchematicToolsTest, RepeatedZoomingStopsAtTheViewsLimits) {
    tool("ZoomIn");
    for (int i = 0; i < 30; ++i)
        QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, {200, 200});
    EXPECT_DOUBLE_EQ(schematic().ViewRight - schematic().ViewLeft, 100);
    EXPECT_DOUBLE_EQ(schematic().ViewBottom - schematic().ViewTop, 100);
    EXPECT_DOUBLE_EQ(scale().ScaleWidth, 120);
    tool("ZoomOut");
    for (int i = 0; i < 40; ++i)
        QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, {200, 200});
    EXPECT_DOUBLE_EQ(schematic().ViewRight - schematic().ViewLeft, 10000);
    EXPECT_DOUBLE_EQ(scale().ScaleWidth, 12000);
    // The bottom of the shown part is a whole number of units.
    EXPECT_NEAR(scale().ScaleHeight, 12000, 0.5);
}

TEST_F(SchematicToolsTest, PanBringsTheClickedPointToTheCentre) {
    const double width = scale().ScaleWidth;
    tool("Pan");
    const DrawingPoint point = unitsOf({60, 90});
    QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, {60, 90});
    EXPECT_NEAR((schematic().ViewLeft + schematic().ViewRight) / 2, point.x, 1e-9);
    EXPECT_NEAR(scale().ScaleLeft + scale().ScaleWidth / 2, point.x, 1e-9);
    EXPECT_NEAR((schematic().ViewTop + schematic().ViewBottom) / 2, point.y, 1e-9);
    EXPECT_DOUBLE_EQ(scale().ScaleWidth, width);
}

TEST_F(SchematicToolsTest, TheDrawingFollowsADrag) {
    tool("Drag");
    const SurfaceScale before = scale();
    const DrawingPoint grabbed = unitsOf({100, 100});
    drag({{100, 100}, {120, 110}, {150, 130}});
    // Within a tenth of a pixel: the bottom of the shown part is held to a whole unit.
    const double x = before.unitsPerPixelX() / 10, y = before.unitsPerPixelY() / 10;
    EXPECT_NEAR(scale().ScaleLeft, before.ScaleLeft - 50 * before.unitsPerPixelX(), x);
    EXPECT_NEAR(scale().ScaleTop, before.ScaleTop - 30 * before.unitsPerPixelY(), y);
    EXPECT_DOUBLE_EQ(scale().ScaleWidth, before.ScaleWidth);
    // The point taken up lies under the mouse where it was let go.
    EXPECT_NEAR(unitsOf({150, 130}).x, grabbed.x, x);
    EXPECT_NEAR(unitsOf({150, 130}).y, grabbed.y, y);
}

TEST_F(SchematicToolsTest, ADragStartsAnewAtEachButtonDownWithoutAJump) {
    tool("Drag");
    drag({{100, 100}, {150, 130}});
    const SurfaceScale between = scale();
    // A new drag of ten pixels, far from where the last one let go.
    drag({{300, 300}, {310, 300}});
    EXPECT_NEAR(scale().ScaleLeft, between.ScaleLeft - 10 * between.unitsPerPixelX(), 1e-9);
    EXPECT_NEAR(scale().ScaleTop, between.ScaleTop, between.unitsPerPixelY() / 10);
}

TEST_F(SchematicToolsTest, FrameAllReturnsToTheWholeNetwork) {
    const SurfaceScale framed = scale();
    tool("ZoomIn");
    QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, {50, 50});
    ASSERT_NE(scale().ScaleWidth, framed.ScaleWidth);
    tool("Frame");
    // Frame measures the pictures at the present scale, so the view holds every picture.
    for (int i = 1; i <= schematic().ElementCount(); ++i) {
        const NetworkElement& element = schematic().network().element(i);
        EXPECT_GE(element.Left, scale().ScaleLeft);
        EXPECT_LE(element.Left + schematic().pictureWidth(), scale().ScaleLeft + scale().ScaleWidth);
        EXPECT_GE(element.Top, scale().ScaleTop);
    }
}

TEST_F(SchematicToolsTest, LabelsAndLegendToggleAndRedraw) {
    EXPECT_TRUE(schematic().Labels);
    control<QAction>(window, "mnuLabels")->trigger();
    EXPECT_FALSE(control<QAction>(window, "mnuLabels")->isChecked());
    EXPECT_FALSE(schematic().Labels);
    control<QAction>(window, "mnuLegend")->trigger();
    EXPECT_FALSE(schematic().Legend);
    control<QAction>(window, "mnuLegend")->trigger();
    EXPECT_TRUE(schematic().Legend);
}

TEST_F(SchematicToolsTest, CopyPutsTheSchematicOnWhiteOnTheClipboardAndKeepsTheScreensColour) {
    const SurfaceScale before = scale();
    control<QAction>(window, "mnuCopy")->trigger();
    EXPECT_EQ(platform.clipboardClears, 1);
    ASSERT_EQ(platform.clipboardSets, 1);
    ASSERT_TRUE(platform.clipboard);
    EXPECT_EQ(platform.clipboard->width, pic->width());
    EXPECT_EQ(platform.clipboard->height, pic->height());
    EXPECT_EQ(platform.clipboard->pixel(pic->width() / 2, pic->height() - 2), 0xFFFFFFFFu);
    // The outlet's picture is part of what is copied.
    const NetworkElement& outlet = schematic().network().element(1);
    const QPoint centre = pixelOf(window, outlet.Left, outlet.Top) + QPoint(4, 16);
    EXPECT_NE(platform.clipboard->pixel(centre.x(), centre.y()), 0xFFFFFFFFu);
    EXPECT_EQ(window->backgroundColour(), SchematicBackground);
    EXPECT_EQ(pic->grab().toImage().pixelColor(pic->width() / 2, pic->height() - 2), QColor(255, 192, 128));
    EXPECT_DOUBLE_EQ(scale().ScaleWidth, before.ScaleWidth);
    EXPECT_DOUBLE_EQ(scale().ScaleLeft, before.ScaleLeft);
}

TEST_F(SchematicToolsTest, AResizeLaysTheSchematicOutAgainForTheNewSize) {
    window->resize(700, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(scale().pixelWidth, pic->width());
    EXPECT_EQ(scale().pixelHeight, pic->height());
    EXPECT_EQ(pic->y(), control<QToolBar>(window, "GraphToolBar")->geometry().bottom() + 1);
}

} // namespace
} // namespace brooklet::test

namespace brooklet::test {
namespace {

TEST_F(SchematicToolsTest, PrintAsksThroughThePrintDialogAndPrintsTheCopyOnWhite) {
    PrintRangeRecord accepted;
    accepted.Flags = 6;
    accepted.printer = platform.present;
    platform.printRangeAnswers.push_back(accepted);
    control<QAction>(window, "mnuPrint")->trigger();
    ASSERT_EQ(platform.printRangeDialogs.size(), 1u);
    EXPECT_EQ(platform.printRangeDialogs[0].Flags, 6);
    EXPECT_EQ(platform.printRangeDialogs[0].MinPage, 1);
    EXPECT_EQ(platform.printRangeDialogs[0].MaxPage, 1);
    ASSERT_EQ(platform.printJobs.size(), 1u);
    const ScriptedPlatform::PrintJob& job = platform.printJobs[0];
    EXPECT_EQ(job.printer, "Office Laser");
    EXPECT_EQ(job.pages, (std::vector<std::vector<std::string>>{{" "}}));
    ASSERT_EQ(job.bitmaps.size(), 1u);
    EXPECT_EQ(job.bitmaps[0].x, 0);
    EXPECT_EQ(job.bitmaps[0].y, 0);
    EXPECT_EQ(job.bitmaps[0].picture.width, pic->width());
    EXPECT_EQ(job.bitmaps[0].picture.pixel(pic->width() / 2, pic->height() - 2), 0xFFFFFFFFu);
    EXPECT_TRUE(job.ended);
    EXPECT_EQ(platform.clipboardClears, 2);
    EXPECT_EQ(window->backgroundColour(), SchematicBackground);
}

TEST_F(SchematicToolsTest, ACancelledPrintDoesNothing) {
    platform.printRangeAnswers.push_back(std::nullopt);
    control<QAction>(window, "mnuPrint")->trigger();
    EXPECT_TRUE(platform.printJobs.empty());
    EXPECT_EQ(platform.clipboardClears, 0);
    EXPECT_FALSE(platform.clipboard);
}

} // namespace
} // namespace brooklet::test
