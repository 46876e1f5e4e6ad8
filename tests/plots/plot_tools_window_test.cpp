// The tools of frmIO_Plots as the user meets them: the menus and the toolbar, a zoom box drawn
// with the mouse on the plot, the return to the full plot, the read-out of a point in the tool
// tip, the toggles, copy, Save As in four formats read back, preview and print.
#include <QAction>
#include <QDomDocument>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include "plot_window_fixture.h"

namespace brooklet::test {
namespace {

class PlotToolsTest : public PlotWindowTest {
protected:
    PlotToolsTest() {
        handOverHydrographs();
        window = open();
        pic = control<QWidget>(window, "Picture1");
    }
    void tool(const QString& key) { QTest::mouseClick(control<QWidget>(window, key), Qt::LeftButton); }
    // Presses the left button on the plot at one point, moves through the others and lets go at
    // the last; points in pixels of the surface.
    void drag(const std::vector<QPoint>& points) {
        QTest::mousePress(pic, Qt::LeftButton, Qt::NoModifier, points.front());
        for (size_t i = 1; i < points.size(); ++i)
            QTest::mouseMove(pic, points[i]);
        QTest::mouseRelease(pic, Qt::LeftButton, Qt::NoModifier, points.back());
    }
    void expectLimits(double xMin, double xMax, double yMin, double yMax) {
        const PlotFrame& f = window->view().frame;
        EXPECT_NEAR(f.XMin, xMin, 1e-6);
        EXPECT_NEAR(f.XMax, xMax, 1e-6);
        EXPECT_NEAR(f.YMin, yMin, 1e-6);
        EXPECT_NEAR(f.YMax, yMax, 1e-6);
    }
    // Saves through File, Save As with the name typed and the filter chosen.
    void saveAs(const std::string& name, int filter = 2) {
        platform.savePicks.push_back(folder.file(name));
        platform.saveFilterPicks.push_back(filter);
        control<QAction>(window, "saveas")->trigger();
    }
    QSize graphSize() { return control<QWidget>(window, "Graph1")->size(); }
    QImage savedImage(const std::string& name, const char* format) {
        QImage image;
        EXPECT_TRUE(image.loadFromData(QByteArray::fromStdString(bytesOf(folder.file(name))), format))
            << name;
        return image;
    }

    frmIO_Plots* window = nullptr;
    QWidget* pic = nullptr;
};

TEST_F(PlotToolsTest, TheMenusCarryTheirNamesAndCaptions) {
    const std::vector<std::pair<const char*, const char*>> items = {{"saveas", "&Save As"},
                                                                    {"preview", "&Print Preview"},
                                                                    {"print", "P&rint"},
                                                                    {"menuexit", "E&xit"},
                                                                    {"copy", "&Copy"},
                                                                    {"zoomin", "&Zoom In"},
                                                                    {"zoomout", "Zoom &Out"},
                                                                    {"Pointer", "&Pointer"},
                                                                    {"plotpoints", "Plot Points"},
                                                                    {"plotlines", "Plot Lines"},
                                                                    {"plotgrid", "Plot Grid"},
                                                                    {"contents", "&Contents"},
                                                                    {"index", "&Index"},
                                                                    {"about", "&About"}};
    for (const auto& [name, caption] : items)
        EXPECT_EQ(control<QAction>(window, name)->text(), caption) << name;
    QStringList menus;
    for (QAction* menu : window->menuBar()->actions())
        menus << menu->text();
    EXPECT_EQ(menus, QStringList({"&File", "&Edit", "&Help"}));
    QStringList edit;
    for (QAction* item : control<QMenu>(window, "editfile")->actions())
        edit << (item->isSeparator() ? item->objectName() : item->text());
    EXPECT_EQ(edit, QStringList({"&Copy", "Copy &Data", "&Zoom In", "Zoom &Out", "&Pointer", "blank",
                                 "Plot Points", "Plot Lines", "Plot Grid"}));
}

TEST_F(PlotToolsTest, TheToolbarButtonsByKeyDoWhatTheMenuItemsDo) {
    QToolBar* bar = control<QToolBar>(window, "Graphtools");
    QStringList keys;
    for (QAction* action : bar->actions())
        keys << bar->widgetForAction(action)->objectName();
    EXPECT_EQ(keys, QStringList({"SaveAs", "Preview", "Print", "Copy", "ZoomIn", "ZoomOut", "Pointer"}));
    EXPECT_EQ(control<QWidget>(window, "SaveAs")->accessibleName(), "Save As");
    tool("ZoomIn");
    EXPECT_TRUE(window->ZoomOn);
    EXPECT_EQ(window->ZoomStep, 0);
    EXPECT_EQ(pic->cursor().shape(), Qt::BitmapCursor);
    tool("Pointer");
    EXPECT_FALSE(window->ZoomOn);
    EXPECT_EQ(pic->cursor().shape(), Qt::ArrowCursor);
    tool("Copy");
    EXPECT_EQ(platform.clipboardSets, 1);
}

// The hydrograph runs 0 to 10 across and 30 to 120 up; the surface's box stands from 750 to
// 10790 twips across and 0 to 6090 down, 15 twips a pixel.
TEST_F(PlotToolsTest, AZoomBoxDrawnWithTheMouseBecomesTheLimitsWidenedToRoundValues) {
    expectLimits(0, 10, 30, 120);
    tool("ZoomIn");
    QTest::mousePress(pic, Qt::LeftButton, Qt::NoModifier, {200, 300});
    EXPECT_EQ(window->ZoomStep, 1);
    EXPECT_EQ(window->ZoomStartX, 3000.0f);
    EXPECT_EQ(window->ZoomStartY, 4500.0f);
    QTest::mouseMove(pic, {300, 200});
    EXPECT_EQ(window->ZoomStep, 2);
    QTest::mouseMove(pic, {400, 100});
    EXPECT_EQ(window->ZoomLastX, 6000.0);
    EXPECT_EQ(window->ZoomLastY, 1500.0);
    QTest::mouseRelease(pic, Qt::LeftButton, Qt::NoModifier, {400, 100});
    // 2.36 to 5.50 across and 54.7 to 101.4 up, widened to steps of 0.5 and 5.
    expectLimits(2, 6, 50, 105);
    EXPECT_FALSE(window->ZoomOn);
    EXPECT_EQ(window->ZoomStep, 0);
    EXPECT_EQ(pic->cursor().shape(), Qt::ArrowCursor);
}

// Black pixels of one row of the surface as it shows, from x0 to x1.
int blackInRow(QWidget* surface, int y, int x0, int x1) {
    const QImage shown = surface->grab().toImage();
    int black = 0;
    for (int x = x0; x <= x1; ++x)
        black += shown.pixelColor(x, y) == QColor(Qt::black);
    return black;
}

TEST_F(PlotToolsTest, TheRubberBoxShowsWhileDraggedAndGoesAtRelease) {
    const int before = blackInRow(pic, 150, 200, 400);
    const int beforeAt200 = blackInRow(pic, 200, 210, 290);
    tool("ZoomIn");
    QTest::mousePress(pic, Qt::LeftButton, Qt::NoModifier, {200, 300});
    QTest::mouseMove(pic, {300, 200});
    // The first move only starts the drag; the box shows from the next.
    EXPECT_EQ(blackInRow(pic, 200, 210, 290), beforeAt200);
    QTest::mouseMove(pic, {400, 150});
    // Its top side is a dotted line across the 200 pixels.
    EXPECT_GT(blackInRow(pic, 150, 200, 400), before + 50);
    QTest::mouseRelease(pic, Qt::LeftButton, Qt::NoModifier, {400, 150});
    pic->repaint();
    EXPECT_LT(blackInRow(pic, 150, 200, 400), 50);
}

TEST_F(PlotToolsTest, AZoomBoxReleasedLeftOfAndAboveItsStartIsPutInOrder) {
    tool("ZoomIn");
    drag({{400, 100}, {300, 200}, {200, 300}});
    expectLimits(2, 6, 50, 105);
}

TEST_F(PlotToolsTest, AZoomBoxReachingAboveTheBottomMarginIsCutToThatLineAtRelease) {
    tool("ZoomIn");
    QTest::mousePress(pic, Qt::LeftButton, Qt::NoModifier, {200, 300});
    QTest::mouseMove(pic, {300, 100});
    QTest::mouseMove(pic, {400, 5});
    // The box is drawn up to 75 twips from the top ...
    EXPECT_EQ(window->ZoomLastY, 75.0);
    QTest::mouseRelease(pic, Qt::LeftButton, Qt::NoModifier, {400, 5});
    // ... but taken from 500: up to 116.96, widened to 120 (from 75 it would be 130).
    expectLimits(2, 6, 50, 120);
}

TEST_F(PlotToolsTest, ZoomPointsOutsideTheBoxAreHeldAtItsEdges) {
    tool("ZoomIn");
    drag({{10, 300}, {300, 350}, {800, 500}});
    // From the box's left side to its right side, from its bottom up to 4500 twips.
    const PlotFrame& f = window->view().frame;
    EXPECT_NEAR(f.XMin, 0, 1e-6);
    EXPECT_NEAR(f.XMax, 10, 1e-6);
    EXPECT_NEAR(f.YMin, 30, 1e-6);
    EXPECT_NEAR(f.YMax, 55, 1e-6); // 54.7, widened
}

TEST_F(PlotToolsTest, ZoomOutWithUnchangedLimitsDoesNotRedraw) {
    const int draws = window->drawCount();
    tool("ZoomOut");
    EXPECT_EQ(window->drawCount(), draws);
    expectLimits(0, 10, 30, 120);
}

TEST_F(PlotToolsTest, ZoomingTwiceThenZoomOutReturnsToTheFirstFullViewInOneStep) {
    tool("ZoomIn");
    drag({{200, 300}, {300, 200}, {400, 100}});
    tool("ZoomIn");
    drag({{100, 300}, {300, 200}, {500, 100}});
    ASSERT_LT(window->view().frame.XMax - window->view().frame.XMin, 4.0);
    const int draws = window->drawCount();
    control<QAction>(window, "zoomout")->trigger();
    EXPECT_EQ(window->drawCount(), draws + 1);
    expectLimits(0, 10, 30, 120);
    tool("ZoomOut");
    EXPECT_EQ(window->drawCount(), draws + 1);
}

TEST_F(PlotToolsTest, AClickNearAPointShowsItsValuesInTheTipForFiveSeconds) {
    // The second point of the first storm, (5, 60), stands at pixel (367.9, 277.4).
    QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, {368, 277});
    EXPECT_EQ(pic->toolTip(), "5, 60");
    QTimer* timer = control<QTimer>(window, "Timer1");
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 5000);
    // The first point of the second storm, (0, 60), at the box's left side.
    QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, {51, 278});
    EXPECT_EQ(pic->toolTip(), "0, 60");
    // Zooming is not reading: limits stay.
    expectLimits(0, 10, 30, 120);
}

TEST_F(PlotToolsTest, AClickWithoutAPointNearLeavesTheTipEmptyAndNoTimerRuns) {
    QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, {368, 277});
    ASSERT_EQ(pic->toolTip(), "5, 60");
    QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, {600, 200});
    EXPECT_EQ(pic->toolTip(), "");
    EXPECT_FALSE(control<QTimer>(window, "Timer1")->isActive());
}

TEST_F(PlotToolsTest, ThePointsHigherThanTheBottomMarginCannotBeRead) {
    // The peak of the second storm, (5, 120), stands 305 twips from the top; a click there is
    // held at 500.
    QTest::mouseClick(pic, Qt::LeftButton, Qt::NoModifier, {368, 20});
    EXPECT_EQ(pic->toolTip(), "");
}

TEST_F(PlotToolsTest, TheTogglesReverseTheirMarksAndRedrawAtTheZoomedLimits) {
    tool("ZoomIn");
    drag({{200, 300}, {300, 200}, {400, 100}});
    for (const char* name : {"plotgrid", "plotlines", "plotpoints"}) {
        QAction* toggle = control<QAction>(window, name);
        const bool was = toggle->isChecked();
        const int draws = window->drawCount();
        toggle->trigger();
        EXPECT_NE(toggle->isChecked(), was) << name;
        EXPECT_EQ(window->drawCount(), draws + 1) << name;
        expectLimits(2, 6, 50, 105);
    }
    EXPECT_TRUE(control<QAction>(window, "plotgrid")->isChecked());
    EXPECT_TRUE(window->drawing().series[0].runs.empty());
    EXPECT_TRUE(window->drawing().series[0].markers.empty());
}

TEST_F(PlotToolsTest, CopyPutsTheWholePlotWithTitlesLegendAndAxesOnTheClipboard) {
    control<QAction>(window, "copy")->trigger();
    EXPECT_EQ(platform.clipboardClears, 1);
    EXPECT_EQ(platform.clipboardSets, 1);
    ASSERT_TRUE(platform.clipboard.has_value());
    const QImage picture = toQImage(*platform.clipboard);
    EXPECT_EQ(picture.size(), graphSize());
    EXPECT_GT(picture.width(), pic->width());
    // The box's left side, at its place on the plot.
    const QPoint side = pic->mapTo(control<QWidget>(window, "Graph1"), QPoint(50, 200));
    EXPECT_EQ(picture.pixelColor(side), QColor(Qt::black));
    // The title is in it: its label's area holds dark pixels of the text.
    QLabel* title = control<QLabel>(window, "Label1");
    const QRect area = title->geometry();
    bool dark = false;
    for (int y = area.top(); y <= area.bottom() && !dark; ++y)
        for (int x = area.left(); x <= area.right() && !dark; ++x)
            dark = picture.pixelColor(x, y).lightness() < 100;
    EXPECT_TRUE(dark);
}

TEST_F(PlotToolsTest, SaveAsOffersBitmapsFirstThenPngSvgAndPdf) {
    platform.savePicks.push_back(std::nullopt);
    tool("SaveAs");
    ASSERT_EQ(platform.saveDialogs.size(), 1u);
    const FileDialogSettings& dialog = platform.saveDialogs[0];
    EXPECT_EQ(dialog.Filter, "All Files (*.*)|*.*|Bitmap Files (*.bmp)|*.bmp|PNG Files (*.png)|*.png|"
                             "SVG Files (*.svg)|*.svg|PDF Files (*.pdf)|*.pdf");
    EXPECT_EQ(dialog.FilterIndex, 2);
    EXPECT_TRUE(dialog.ConfirmOverwrite);
    // The copy is made before the dialog, as on every Save As.
    EXPECT_EQ(platform.clipboardSets, 1);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(PlotToolsTest, ANameTypedUnderTheBitmapFilterIsSavedAsABitmapOfThePlot) {
    saveAs("peak");
    const std::string bytes = bytesOf(folder.file("peak.bmp"));
    ASSERT_EQ(bytes.substr(0, 2), "BM");
    const QImage image = savedImage("peak.bmp", "BMP");
    EXPECT_EQ(image.size(), graphSize());
    EXPECT_EQ(image.pixelColor(pic->mapTo(control<QWidget>(window, "Graph1"), QPoint(50, 200))),
              QColor(Qt::black));
}

TEST_F(PlotToolsTest, ThePngFilterOrATypedExtensionGivesAPngFile) {
    saveAs("chosen", 3);
    EXPECT_EQ(savedImage("chosen.png", "PNG").size(), graphSize());
    saveAs("typed.png", 2);
    EXPECT_EQ(bytesOf(folder.file("typed.png")).substr(1, 3), "PNG");
    EXPECT_EQ(savedImage("typed.png", "PNG").size(), graphSize());
}

TEST_F(PlotToolsTest, AnyOtherNameUnderAllFilesIsABitmapUnderThatName) {
    saveAs("plot.dat", 1);
    EXPECT_EQ(bytesOf(folder.file("plot.dat")).substr(0, 2), "BM");
}

TEST_F(PlotToolsTest, AnSvgFileKeepsTheTitleAndTickLabelsAsText) {
    saveAs("plot", 4);
    const std::string svg = bytesOf(folder.file("plot.svg"));
    QDomDocument document;
    ASSERT_TRUE(document.setContent(QByteArray::fromStdString(svg)));
    QStringList texts;
    const QDomNodeList nodes = document.elementsByTagName("text");
    for (int i = 0; i < nodes.size(); ++i)
        texts << nodes.at(i).toElement().text().trimmed();
    for (const char* text :
         {"Hydrograph (@ Outlet)", "willow.out", "0", "5", "10", "30", "90", "120", "100-YR", "10-YR"})
        EXPECT_TRUE(texts.contains(text)) << text << ": " << texts.join('|').toStdString();
    // Lines are shapes, not a picture of pixels.
    EXPECT_NE(svg.find("<polyline"), std::string::npos);
    EXPECT_NE(svg.find("<circle"), std::string::npos);
    EXPECT_EQ(svg.find("<image"), std::string::npos);
}

TEST_F(PlotToolsTest, APdfFileIsOnePageWithTheLabelsInAFont) {
    saveAs("plot.pdf");
    const std::string pdf = bytesOf(folder.file("plot.pdf"));
    ASSERT_EQ(pdf.substr(0, 5), "%PDF-");
    int pages = 0;
    for (size_t at = pdf.find("/Type /Page"); at != std::string::npos; at = pdf.find("/Type /Page", at + 1))
        pages += pdf.compare(at, 12, "/Type /Pages") != 0;
    EXPECT_EQ(pages, 1);
    EXPECT_NE(pdf.find("/Font"), std::string::npos);
    EXPECT_EQ(pdf.find("/Subtype /Image"), std::string::npos);
}

TEST_F(PlotToolsTest, AFileThatCannotBeWrittenSaysSo) {
    const std::string path = folder.file("missing folder/plot.bmp");
    platform.savePicks.push_back(path);
    control<QAction>(window, "saveas")->trigger();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text.rfind("The plot could not be saved as " + path + " (", 0), 0u);
    EXPECT_EQ(platform.boxes[0].title, "Brooklet System");
}

TEST_F(PlotToolsTest, PrintPutsThePlotOnThePresentPrinterAtTheTopLeft) {
    tool("Print");
    ASSERT_EQ(platform.printJobs.size(), 1u);
    const auto& job = platform.printJobs[0];
    EXPECT_EQ(job.printer, "Office Laser");
    ASSERT_EQ(job.bitmaps.size(), 1u);
    EXPECT_EQ(QSize(job.bitmaps[0].picture.width, job.bitmaps[0].picture.height), graphSize());
    EXPECT_EQ(job.bitmaps[0].x, 0);
    EXPECT_EQ(job.bitmaps[0].y, 0);
    EXPECT_TRUE(job.ended);
    // The page window was made unseen and is gone.
    EXPECT_EQ(window->findChild<QWidget*>("frmGraphPP"), nullptr);
}

// A help window that closes itself once shown, noting whether it was modal.
class HelpStandIn : public QWidget {
public:
    static inline bool wasModal = false;

protected:
    void showEvent(QShowEvent*) override {
        wasModal = isModal();
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    }
};

TEST_F(PlotToolsTest, HelpOpensOverTheWindowModally) {
    for (const char* name : {"frmOverview", "frmHelpFac", "frmAbout"})
        context->windows.registerWindow(name, [](AppContext&) { return new HelpStandIn; });
    HelpStandIn::wasModal = false;
    control<QAction>(window, "about")->trigger();
    EXPECT_TRUE(HelpStandIn::wasModal);
    control<QAction>(window, "contents")->trigger();
    control<QAction>(window, "index")->trigger();
    const QStringList shown = context->windows.shownNames();
    EXPECT_EQ(shown.mid(shown.size() - 3), QStringList({"frmAbout", "frmOverview", "frmHelpFac"}));
}

// Notes what the preview window shows when it opens, then closes it as the user would.
class PreviewWatcher : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* page = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && page && page->objectName() == "frmGraphPP") {
            caption = page->windowTitle();
            size = page->size();
            modal = page->isModal();
            if (auto* picture = page->findChild<QLabel*>("GraphicsPicture")) {
                pictureGeometry = picture->geometry();
                picture_ = picture->pixmap().toImage();
            }
            QMetaObject::invokeMethod(page->findChild<QAction*>("mnuExit"), &QAction::trigger,
                                      Qt::QueuedConnection);
        }
        return false;
    }
    QString caption;
    QSize size;
    bool modal = false;
    QRect pictureGeometry;
    QImage picture_;
};

TEST_F(PlotToolsTest, PrintPreviewShowsThePageModallyAsItWillPrint) {
    PreviewWatcher watcher;
    qApp->installEventFilter(&watcher);
    tool("Preview");
    qApp->removeEventFilter(&watcher);
    EXPECT_EQ(watcher.caption, "Input / Output Plots Print ");
    EXPECT_TRUE(watcher.modal);
    EXPECT_EQ(watcher.pictureGeometry, QRect(QPoint(0, 0), graphSize()));
    EXPECT_EQ(watcher.size, graphSize() + QSize(8, 22));
    ASSERT_TRUE(platform.clipboard.has_value());
    EXPECT_EQ(watcher.picture_.convertToFormat(QImage::Format_ARGB32), toQImage(*platform.clipboard));
    EXPECT_TRUE(context->windows.shownNames().contains("frmGraphPP"));
    // Exit unloaded it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(context->windows.loaded("frmGraphPP"), nullptr);
    EXPECT_TRUE(platform.printJobs.empty());
}

} // namespace
} // namespace brooklet::test
