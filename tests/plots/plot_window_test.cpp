// frmIO_Plots as the user meets it: handed a plot by an editor or by the plot selection, drawn
// into its surface, toggled, and its data copied for a spreadsheet.
#include <QAction>
#include <QFrame>
#include <QImage>
#include <QLabel>

#include "plot_window_fixture.h"

#include "editing/grid_editor.h"

namespace brooklet::test {
namespace {

// Stands in for a table editor: a window that holds tables of its own.
class EditorStandIn : public QWidget, public TabularTablesHolder {
public:
    const GridContext& tabularTables() const override { return tables; }
    GridContext tables;
};

TEST_F(PlotWindowTest, AStructureFromTheEditorsTablesShowsFlowAndStorageAgainstElevation) {
    auto* editor = new EditorStandIn;
    GridContext& tables = editor->tables;
    tables.IdentifierTable.redim(2, 2);
    tables.IdentifierTable(1, 2) = "MILLDAM";
    tables.ValueStore.redim(3, 3);
    const char* rows[3][3] = {{"870.", "0.", "0."}, {"871.", "40.", "3."}, {"872.", "95.", "12."}};
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c)
            tables.ValueStore(c + 1, r + 1) = rows[r][c];
    tables.TableFirst = {0, 0, 1};
    tables.TableLast = {0, 0, 3};
    context->windows.adopt("frmStruct", editor);
    PublishPlotEntry(editor, 2);
    context->plots.PlotKind = StructureRatingPlot;

    frmIO_Plots* window = open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), "Input / Output Plots");
    EXPECT_EQ(control<QLabel>(window, "Label1")->text(), "Structure - MILLDAM");
    EXPECT_EQ(control<QLabel>(window, "Label2")->text(), "willow.inp");
    EXPECT_EQ(control<QLabel>(window, "Label4")->text(), "E L E V A T I O N (ft)");
    EXPECT_TRUE(control<QLabel>(window, "Label3")->text().startsWith("F\nL\nO\nW"));
    EXPECT_EQ(control<QLabel>(window, "Legend(1)")->text(), "F L O W (cfs)");
    EXPECT_EQ(control<QLabel>(window, "Legend(2)")->text(), "S T O R A G E (ac ft)");
    EXPECT_FALSE(control<QLabel>(window, "Legend(3)")->isVisibleTo(window));
    EXPECT_TRUE(control<QFrame>(window, "legline(2)")->isVisibleTo(window));
    EXPECT_EQ(background(control<QFrame>(window, "legline(2)")), (Rgb{0, 255, 0}));
    EXPECT_EQ(window->view().frame.XMin, 870.0);
    delete editor;
}

TEST_F(PlotWindowTest, TheSurfaceImageShowsMarkersInBlackAndEachSeriesInItsColour) {
    handOverHydrographs();
    frmIO_Plots* window = open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(control<QLabel>(window, "Label1")->text(), "Hydrograph (@ Outlet)");
    EXPECT_EQ(control<QLabel>(window, "Label2")->text(), "willow.out");
    EXPECT_EQ(control<QLabel>(window, "Legend(2)")->text(), "10-YR");
    const QImage image = window->surfaceImage();
    EXPECT_EQ(image.size(), QSize(720, 440));
    const PlotDrawing& drawing = window->drawing();
    // The marker of series 2 at its last point, black, under the end of the line coming to it.
    const PlotPoint last = drawing.series[1].markers[2];
    EXPECT_EQ(pixelAt(image, {last.x + 32, last.y + 32}), QColor(Qt::black));
    EXPECT_EQ(pixelAt(image, last), plotColour(2));
    // Midway along the first segment of each series, the series' colour.
    for (int s = 0; s < 2; ++s) {
        const auto& run = drawing.series[size_t(s)].runs[0];
        const PlotPoint middle{(run[0].x + run[1].x) / 2, (run[0].y + run[1].y) / 2};
        EXPECT_EQ(pixelAt(image, middle), plotColour(s + 1)) << s;
    }
    // Outside the box and the labels the surface stays white.
    EXPECT_EQ(image.pixelColor(715, 5), QColor(Qt::white));
    // The box's left side is drawn.
    EXPECT_EQ(image.pixelColor(50, 200), QColor(Qt::black));
}

TEST_F(PlotWindowTest, TheToggleMenusRedrawAtThePresentLimits) {
    handOverHydrographs();
    frmIO_Plots* window = open();
    const size_t axisLines = window->drawing().axis.size();
    control<QAction>(window, "plotgrid")->trigger();
    EXPECT_GT(window->drawing().axis.size(), axisLines);
    control<QAction>(window, "plotlines")->trigger();
    EXPECT_TRUE(window->drawing().series[0].runs.empty());
    EXPECT_FALSE(control<QFrame>(window, "legline(1)")->isVisibleTo(window));
    control<QAction>(window, "plotpoints")->trigger();
    EXPECT_TRUE(window->drawing().series[0].markers.empty());
}

TEST_F(PlotWindowTest, APeakFlowPlotOpensWithPointsOnly) {
    PlotData& plot = context->plots;
    plot.PlotKind = PeakFlowPlot;
    plot.newRequest(1);
    plot.PlotRequest[1].T[3] = "Outlet";
    plot.PlotRequest[1].T7 = 1;
    plot.PlotX.set(1, 1, 4.5f);
    plot.PlotY.set(1, 1, 400);
    frmIO_Plots* window = open();
    EXPECT_FALSE(control<QAction>(window, "plotlines")->isChecked());
    EXPECT_TRUE(control<QAction>(window, "plotpoints")->isChecked());
    EXPECT_FALSE(control<QAction>(window, "plotgrid")->isChecked());
    EXPECT_EQ(control<QLabel>(window, "Legend(1)")->text(), "Outlet");
}

TEST_F(PlotWindowTest, CopyDataPutsTheSeriesOnTheClipboardForASpreadsheet) {
    handOverHydrographs();
    frmIO_Plots* window = open();
    control<QAction>(window, "copydata")->trigger();
    ASSERT_EQ(platform.clipboardTexts.size(), 1u);
    EXPECT_EQ(platform.clipboardTexts[0], "100-YR (x)\t100-YR (y)\t10-YR (x)\t10-YR (y)\r\n"
                                          "0\t30\t0\t60\r\n"
                                          "5\t60\t5\t120\r\n"
                                          "10\t30\t10\t60\r\n");
}

TEST_F(PlotWindowTest, ExitClosesTheWindow) {
    handOverHydrographs();
    open();
    control<QAction>(context->windows.loaded("frmIO_Plots"), "menuexit")->trigger();
    QApplication::processEvents();
    EXPECT_TRUE(context->windows.loaded("frmIO_Plots") == nullptr ||
                !context->windows.loaded("frmIO_Plots")->isVisible());
}

} // namespace
} // namespace brooklet::test
