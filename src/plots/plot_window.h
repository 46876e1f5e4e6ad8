#pragma once
// frmIO_Plots: the one plot window. It shows the five kinds of plot of input data, handed over by
// the tabular editors' "Display Data" buttons, and the three kinds of model results, handed over
// by the plot selection window. All set-up happens at load; each plot begins anew.
//
// Hand-over from an editor: the editor publishes the number of its current entry as the text of
// its own window's "Tag" property, sets context.plots.PlotKind and opens the window modally
// through context.windows.ShowModal("frmIO_Plots"). The plot window reads the entry from the editor named for its
// kind: frmDimHyd, frmInpHyd, frmRainDist, frmStruct, frmXsect.
#include <QMainWindow>

#include "editing/widgets.h"
#include "plots/plot_geometry.h"

class QLabel;
class QAction;
class QFrame;

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

private:
    int publishedEntry() const;
    void paintSurface(QPainter& painter) const;
    void paintLegendStrip(QPainter& painter) const;

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
};

} // namespace brooklet
