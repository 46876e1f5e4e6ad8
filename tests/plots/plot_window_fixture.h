#pragma once
// What the tests of the plot window share: the window opened as the program opens it, and an
// output hydrograph of two storms handed over as the plot selection hands it.
#include "plots/plot_painter.h"
#include "plots/plot_window.h"
#include "support/ui_fixture.h"

namespace brooklet::test {

class PlotWindowTest : public UiTest {
protected:
    PlotWindowTest() {
        session().Units.FlowUnit = "cfs";
        session().Units.LengthUnit = "ft";
        session().Units.VolumeUnit = "ac ft";
        session().Units.OutputFlowUnit = "cfs";
        session().CurrentFile = "willow.inp";
    }
    frmIO_Plots* open() {
        return qobject_cast<frmIO_Plots*>(context->windows.ShowWindowAtOrigin("frmIO_Plots"));
    }
    // An output hydrograph of two series of three points.
    void handOverHydrographs() {
        PlotData& plot = context->plots;
        plot.PlotKind = OutputHydrographPlot;
        plot.newRequest(2);
        plot.MultiStormCount = 2;
        plot.PlotX.growPoints(3);
        plot.PlotY.growPoints(3);
        const char* storms[] = {"", "100-YR", "10-YR"};
        for (int s = 1; s <= 2; ++s) {
            auto& row = plot.PlotRequest[size_t(s)];
            row.T[2] = storms[s];
            row.T[3] = "Outlet";
            row.T[5] = "0.0";
            row.T6 = 5.0;
            row.T7 = 3;
            for (int p = 1; p <= 3; ++p)
                plot.PlotY.set(s, p, float(s * 30 * (p == 2 ? 2 : 1)));
        }
    }
    QColor pixelAt(const QImage& image, PlotPoint twips) {
        return image.pixelColor(int(twips.x / TwipsPerPixel), int(twips.y / TwipsPerPixel));
    }
};

} // namespace brooklet::test
