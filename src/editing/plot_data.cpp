#include "editing/plot_data.h"

#include <algorithm>

namespace brooklet {

void PlotArray::redim(int seriesUpper, int pointUpper) {
    seriesUpper_ = std::max(seriesUpper, -1);
    pointUpper_ = std::max(pointUpper, -1);
    stride_ = size_t(pointUpper_ + 1);
    values_.assign(size_t(seriesUpper_ + 1) * stride_, 0.0f);
}

void PlotArray::growPoints(int pointUpper) {
    if (pointUpper <= pointUpper_)
        return;
    if (size_t(pointUpper) + 1 > stride_) {
        // The room doubles, so a long series grows in linear time.
        const size_t stride = std::max(size_t(pointUpper) + 1, stride_ * 2);
        std::vector<float> values(size_t(seriesUpper_ + 1) * stride, 0.0f);
        for (int series = 0; series <= seriesUpper_; ++series)
            std::copy_n(values_.begin() + std::ptrdiff_t(size_t(series) * stride_), pointUpper_ + 1,
                        values.begin() + std::ptrdiff_t(size_t(series) * stride));
        values_.swap(values);
        stride_ = stride;
    }
    pointUpper_ = pointUpper;
}

void PlotArray::swap(int series, int a, int b) {
    if (inside(series, a) && inside(series, b))
        std::swap(values_[index(series, a)], values_[index(series, b)]);
}

void PlotData::newRequest(int seriesCount) {
    SeriesCount = static_cast<int16_t>(seriesCount);
    PlotRequest.assign(size_t(std::max(seriesCount, 0) + 1), PlotRequestRow());
    PlotX.redim(seriesCount, 1);
    PlotY.redim(seriesCount, 1);
    PlotCount.assign(size_t(std::max(seriesCount, 0) + 1), 0);
}

int PlotData::pointCount(int i) const {
    const int x = xSeries(i);
    return x >= 0 && x < int(PlotCount.size()) ? PlotCount[size_t(x)] : 0;
}

} // namespace brooklet
