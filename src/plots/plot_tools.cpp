#include "plots/plot_tools.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brooklet {

void OrderPair(int Mode, float& A, float& B) {
    if ((Mode == 1 && A > B) || (Mode == 2 && A < B))
        std::swap(A, B);
}

PlotPoint ClampPressPoint(const PlotFrame& frame, PlotPoint point) {
    const float bottom = float(frame.PlotHeight - frame.PlotMarginBottom);
    return {
        std::clamp(point.x, float(frame.PlotLeft), std::max(float(frame.PlotLeft), float(frame.PlotRight))),
        std::clamp(point.y, 0.0f, std::max(0.0f, bottom))};
}

PlotPoint ClampReleasePoint(const PlotFrame& frame, PlotPoint point) {
    const float top = frame.PlotMarginBottom;
    const float bottom = float(frame.PlotHeight - frame.PlotMarginBottom);
    return {ClampPressPoint(frame, point).x, std::clamp(point.y, top, std::max(top, bottom))};
}

void ZoomToBox(PlotFrame& f, float& StartX, float& StartY, float x, float y) {
    OrderPair(1, StartX, x);
    OrderPair(2, StartY, y);
    f.XMax = MinOf(float(f.XMax), float((x - f.PlotLeft) * f.XPerTwip + f.XMin));
    f.YMax = MinOf(float(f.YMax), float((f.PlotBottom - y) * f.YPerTwip + f.YMin));
    f.XMin = MaxOf(float(f.XMin), float((StartX - f.PlotLeft) * f.XPerTwip + f.XMin));
    f.YMin = MaxOf(float(f.YMin), float((f.PlotBottom - StartY) * f.YPerTwip + f.YMin));
}

bool ZoomOut(PlotView& view) {
    PlotFrame& f = view.frame;
    if (float(f.XMin) == view.FirstXMin && float(f.XMax) == view.FirstXMax &&
        float(f.YMin) == view.FirstYMin && float(f.YMax) == view.FirstYMax)
        return false;
    f.XMin = view.FirstXMin;
    f.XMax = view.FirstXMax;
    f.YMin = view.FirstYMin;
    f.YMax = view.FirstYMax;
    return true;
}

std::string PointerReadout(const PlotData& plot, const PlotFrame& frame, float mx, float my) {
    std::string tip;
    const int count = plot.pointCount(plot.SeriesCount);
    for (int i = 1; i <= plot.SeriesCount; ++i) {
        const int xs = plot.xSeries(i);
        for (int p = 1; p <= count; ++p) {
            const float X = plot.PlotX.get(xs, p), Y = plot.PlotY.get(i, p);
            if (std::fabs(frame.ToPlotX(X) - mx) < 25 && std::fabs(frame.ToPlotY(Y) - my) < 25) {
                tip = NumberText(X) + ", " + NumberText(Y);
                break;
            }
        }
    }
    return tip;
}

} // namespace brooklet
