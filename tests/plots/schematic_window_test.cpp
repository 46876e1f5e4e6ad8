#include "plots/schematic_drawing.h"
#include "schematic_fixture.h"

#include <QAction>
#include <QHelpEvent>
#include <QMenuBar>
#include <QToolBar>

namespace brooklet::test {
namespace {

TEST_F(SchematicTest, OpensFromTheViewMenuOnTheSavedFile) {
    saveSmallNetwork();
    writeBytes(workFile(8), crlf({"STREAM REACH:", reach("UNSAVED", "OUTLET")}));
    main->Form_Activate();
    clickMenuItem("mnuViewItem(0)");
    auto* window = context->windows.loadedAs<frmTopoModel>("frmTopoModel");
    ASSERT_NE(window, nullptr);
    window->Form_Activate();
    EXPECT_EQ(window->windowTitle(), "Brooklet Watershed Schematic");
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    const Network& network = window->schematic().network();
    ASSERT_EQ(network.count(), 6);
    EXPECT_EQ(network.element(2).Name, "R1");
    EXPECT_EQ(window->schematic().ElementCount(), 6);
    EXPECT_EQ(window->size(), main->size());
}

TEST_F(SchematicTest, MenusAndToolsHaveTheirDesignNames) {
    saveSmallNetwork();
    frmTopoModel* window = open();
    EXPECT_EQ(item(window, "mnuPrint")->text(), "&Print");
    EXPECT_EQ(item(window, "mnuExit")->text(), "E&xit");
    EXPECT_EQ(item(window, "mnuCopy")->text(), "&Copy");
    EXPECT_EQ(item(window, "mnuSaveAs")->text(), "Save &As...");
    for (const char* name : {"mnuLabels", "mnuLegend", "mnuSubAreas"})
        EXPECT_TRUE(item(window, name)->isChecked()) << name;
    QStringList keys;
    for (QAction* tool : control<QToolBar>(window, "GraphToolBar")->actions())
        keys << tool->objectName();
    EXPECT_EQ(keys, QStringList({"Frame", "ZoomIn", "ZoomOut", "Pan", "Drag", "Pointer"}));
    EXPECT_EQ(surface(window)->accessibleName(), "Watershed schematic");
}

TEST_F(SchematicTest, AWindowWithoutAFileNameUnloadsItself) {
    session().CurrentFile = "";
    QPointer<frmTopoModel> window = open();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window.isNull());
    EXPECT_EQ(context->windows.loaded("frmTopoModel"), nullptr);
}

TEST_F(SchematicTest, ANameThatOccursTwiceShowsPlotErrorAndClosesTheWindow) {
    saveFile({reach("R1", "OUTLET"), reach("R2", "R1")}, {subArea("R1", "R2")});
    QPointer<frmTopoModel> window = open();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0], (BoxRequest{"Element R2 occurs more than once in the list.", "Plot Error",
                                             BoxButtons::Ok, BoxIcon::Critical}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window.isNull());
}

TEST_F(SchematicTest, AFileWithoutReachesDrawsNothingAndSaysNothing) {
    file = folder.file("plain.inp");
    writeBytes(file, crlf({"Brooklet: Version 1.0", "NO NETWORK", ""}));
    session().CurrentFile = file;
    frmTopoModel* window = open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->schematic().ElementCount(), 0);
    EXPECT_TRUE(platform.boxes.empty());
    const QImage image = window->surfaceImage(SchematicBackground);
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() / 2), QColor(255, 192, 128));
}

TEST_F(SchematicTest, EachActivationReadsTheSavedFileAgain) {
    saveSmallNetwork();
    frmTopoModel* window = open();
    EXPECT_EQ(window->schematic().network().count(), 6);
    saveFile({reach("R1", "OUTLET")});
    window->Form_Activate();
    EXPECT_EQ(window->schematic().network().count(), 2);
}

// The pixels of the sub-area picture's green on the surface, the legend hidden.
int subAreaPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == QColor(90, 180, 80) ? 1 : 0;
    return count;
}

TEST_F(SchematicTest, SubAreasToggledOffHideAndTheTreeClosesUp) {
    saveSmallNetwork();
    frmTopoModel* window = open();
    item(window, "mnuLegend")->trigger();
    const double r2Before = window->schematic().network().element(3).Left;
    // What is drawn: both sub-areas' pictures, and their labels as text.
    EXPECT_GT(subAreaPixels(window->surfaceImage(SchematicBackground)), 0);
    const QByteArray drawnBefore = window->exportBytes(folder.file("before.svg"));
    EXPECT_TRUE(drawnBefore.contains(">S1</text>"));
    EXPECT_TRUE(drawnBefore.contains(">S2</text>"));
    item(window, "mnuSubAreas")->trigger();
    EXPECT_FALSE(item(window, "mnuSubAreas")->isChecked());
    EXPECT_EQ(window->schematic().ElementCount(), 4);
    EXPECT_EQ(window->schematic().network().element(1).Weight, 2);
    EXPECT_EQ(window->schematic().network().element(3).Left, r2Before);
    EXPECT_EQ(window->schematic().network().element(4).Left, 550);
    // Neither picture nor label of a sub-area is drawn any more, not even where the view takes
    // in the places they had; the reaches still are.
    Schematic& schematic = window->schematic();
    schematic.ViewLeft -= 2000;
    schematic.ViewRight += 2000;
    schematic.ViewTop -= 2000;
    schematic.ViewBottom += 2000;
    window->ApplyView();
    EXPECT_EQ(subAreaPixels(window->surfaceImage(SchematicBackground)), 0);
    const QByteArray drawnAfter = window->exportBytes(folder.file("after.svg"));
    EXPECT_FALSE(drawnAfter.contains(">S1</text>"));
    EXPECT_FALSE(drawnAfter.contains(">S2</text>"));
    EXPECT_TRUE(drawnAfter.contains(">R2</text>"));
    EXPECT_TRUE(drawnAfter.contains(">DAM</text>"));
    for (int i : {5, 6}) {
        const NetworkElement& subArea = window->schematic().network().element(i);
        EXPECT_EQ(window->tipAt(pixelOf(window, subArea.Left, subArea.Top) + QPoint(5, 5)), "")
            << subArea.Name;
    }
    // A new activation reads the file again with sub-areas shown.
    window->Form_Activate();
    EXPECT_TRUE(item(window, "mnuSubAreas")->isChecked());
    EXPECT_EQ(window->schematic().ElementCount(), 6);
}

TEST_F(SchematicTest, AnElementsTipIsItsNameAndABlank) {
    saveSmallNetwork();
    frmTopoModel* window = open();
    const NetworkElement& dam = window->schematic().network().element(4);
    EXPECT_EQ(dam.Name, "DAM");
    const QPoint over = pixelOf(window, dam.Left, dam.Top) + QPoint(5, 5);
    EXPECT_EQ(window->tipAt(over), "DAM ");
    QHelpEvent help(QEvent::ToolTip, over, surface(window)->mapToGlobal(over));
    EXPECT_TRUE(QCoreApplication::sendEvent(surface(window), &help));
}

TEST_F(SchematicTest, PicturesKeepTheirSizeInPixels) {
    saveSmallNetwork();
    frmTopoModel* window = open();
    const Schematic& schematic = window->schematic();
    EXPECT_DOUBLE_EQ(schematic.pictureWidth() / schematic.scale().unitsPerPixelX(), 32);
    const NetworkElement& outlet = schematic.network().element(1);
    // The outlet's picture is drawn where its place falls on the surface.
    const QImage image = window->surfaceImage(SchematicBackground);
    const QPoint centre = pixelOf(window, outlet.Left, outlet.Top) + QPoint(4, 16);
    EXPECT_NE(image.pixelColor(centre), QColor(255, 192, 128));
}

TEST_F(SchematicTest, ExitUnloadsTheWindow) {
    saveSmallNetwork();
    QPointer<frmTopoModel> window = open();
    item(window, "mnuExit")->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window.isNull());
}

TEST_F(SchematicTest, ClosingTheMainWindowUnloadsTheSchematic) {
    saveSmallNetwork();
    QPointer<frmTopoModel> window = open();
    main->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window.isNull());
}

} // namespace
} // namespace brooklet::test
