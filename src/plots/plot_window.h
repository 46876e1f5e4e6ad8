#pragma once
// frmIO_Plots: the one plot window. It shows the five kinds of plot of input data, handed over by
// the tabular editors' "Display Data" buttons, and the three kinds of model results, handed over
// by the plot selection window. All set-up happens at load; each plot begins anew. Its tools:
// rectangle zoom and the return to the full plot, the read-out of a point under the pointer, the
// toggles of points, lines and grid, copy, Save As (BMP, PNG, SVG, PDF), preview and print.
//
// Hand-over from an editor: the editor publishes the number of its current entry as the text of
// its own window's "Tag" property, sets context.plots.PlotKind and opens the window modally
// through context.windows.ShowModal("frmIO_Plots"). The plot window reads the entry, and the
// tables the editor holds (TabularTablesHolder), from the editor named for its kind: frmDimHyd,
// frmInpHyd, frmRainDist, frmStruct, frmXsect.
#include <QMainWindow>

#include "editing/widgets.h"
#include "plots/plot_geometry.h"

class QLabel;
class QAction;
class QFrame;
class QTimer;
class QToolBar;

namespace brooklet {

struct AppContext;

// Publishes an editor's current entry for the plot window, in the window's "Tag" text.
void PublishPlotEntry(QWidget* editor, int entry);

class frmIO_Plots : public QMainWindow {
    Q_OBJECT
public:
    explicit frmIO_Plots(AppContext& context, QWidget* parent = nullptr);

    // Draws at the present limits.
    void Draw();
    const PlotView& view() const { return view_; }
    const PlotDrawing& drawing() const { return drawing_; }
    // The drawing surface painted into an image of its own size.
    QImage surfaceImage() const;
    // "Copy Data": the plotted series on the clipboard as tab-separated text.
    void copyData();
    // The whole plot with titles, legend and axes as the window shows it: what copy, save and
    // print take.
    QImage graphImage() const;
    // How often the plot has been drawn since the window loaded.
    int drawCount() const { return drawCount_; }

    // Zoom state: ZoomStep 0 none, 1 button pressed, 2 dragging; points in twips.
    bool ZoomOn = false;
    int ZoomStep = 0;
    float ZoomStartX = 0, ZoomStartY = 0;
    double ZoomLastX = 0, ZoomLastY = 0;

private:
    friend class PlotSurface;
    // The editor named for the plot kind, null for a plot of model results or when it is not open.
    const QWidget* sourceEditor() const;
    int publishedEntry() const;
    // The tables of that editor, null when there are none.
    const GridContext* sourceTables() const;
    void paintSurface(QPainter& painter) const;
    void paintLegendStrip(QPainter& painter) const;
    void zoomin();
    void zoomout();
    void Pointer();
    void copy();
    void saveas();
    // Preview (Mode 2) or print (Mode 1) the plot's page through frmGraphPP.
    void ShowPlotPage(int Mode);
    void mouseDown(QPointF pixel);
    void mouseMove(QPointF pixel);
    void mouseUp(QPointF pixel, QPoint globalPixel);
    // The zoom box while it is dragged, in twips.
    bool boxShown_ = false;

    AppContext& context_;
    PlotView view_;
    PlotDrawing drawing_;
    QWidget* Graph1 = nullptr;
    QWidget* Picture1 = nullptr;
    QWidget* Picture2 = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Label3 = nullptr;
    QLabel* Label4 = nullptr;
    ControlArray<QLabel> Legend;
    ControlArray<QFrame> legline;
    QAction* plotpoints = nullptr;
    QAction* plotlines = nullptr;
    QAction* plotgrid = nullptr;
    QToolBar* Graphtools = nullptr;
    QTimer* Timer1 = nullptr;
    int drawCount_ = 0;
};

} // namespace brooklet
