#include "plots/plot_painter.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <unordered_set>

#include "editing/widgets.h"

namespace brooklet {
namespace {

QPen linePen(int colour, int width, bool dotted) {
    QPen pen(plotColour(colour));
    pen.setWidthF(width * TwipsPerPixel);
    // A wide line shows solid; only a line one pixel wide shows its dots.
    pen.setStyle(dotted && width <= 1 ? Qt::DotLine : Qt::SolidLine);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

bool finite(const PlotPoint& p) {
    return std::isfinite(p.x) && std::isfinite(p.y);
}

// The nearest whole number, halves away from 0, within the range of a pixel's coordinate.
int nearest(double value) {
    const double bounded = std::clamp(value, -1.0e9, 1.0e9);
    const int whole = int(bounded);
    const double rest = bounded - whole;
    // Without branches: the fraction of a point's place is as often above a half as below.
    return whole + int(rest >= 0.5) - int(rest <= -0.5);
}

// Where points land on the painter's device. The plot surface is only ever scaled and shifted,
// which is worked out here without the general mapping.
class DeviceMap {
public:
    explicit DeviceMap(const QTransform& transform)
        : transform_(transform), plain_(transform.type() <= QTransform::TxScale) {}
    QPointF operator()(const PlotPoint& p) const {
        if (plain_)
            return {transform_.m11() * p.x + transform_.dx(), transform_.m22() * p.y + transform_.dy()};
        return transform_.map(QPointF(p.x, p.y));
    }
    QPoint pixel(const PlotPoint& p) const {
        const QPointF d = (*this)(p);
        return {nearest(d.x()), nearest(d.y())};
    }
    bool plain() const { return plain_; }
    const QTransform& transform() const { return transform_; }

private:
    QTransform transform_;
    bool plain_;
};

// The device pixels a series has stamped a marker on, so a marker is stamped once on a pixel.
// Pixels beyond the device and a margin of a marker's size show nothing and count as stamped.
class StampedPixels {
public:
    StampedPixels(const QPaintDevice* device)
        : width_(device->width() + 2 * Margin), height_(device->height() + 2 * Margin) {
        if (device->width() > 0 && device->height() > 0)
            seen_.assign(size_t(width_) * size_t(height_), 0);
    }
    // True the first time a pixel is met.
    bool firstTime(QPoint pixel) {
        if (seen_.empty())
            return others_.insert((qint64(pixel.x()) << 32) ^ qint64(unsigned(pixel.y()))).second;
        const int x = pixel.x() + Margin, y = pixel.y() + Margin;
        if (x < 0 || y < 0 || x >= width_ || y >= height_)
            return false;
        char& cell = seen_[size_t(y) * size_t(width_) + size_t(x)];
        if (cell)
            return false;
        cell = 1;
        return true;
    }

private:
    static constexpr int Margin = 16;
    int width_, height_;
    std::vector<char> seen_;
    // A device that tells no size.
    std::unordered_set<qint64> others_;
};

// The distance squared from p to the segment from a to b.
double distanceSquaredToSegment(QPointF p, QPointF a, QPointF b) {
    const QPointF ab = b - a, ap = p - a;
    const double length = QPointF::dotProduct(ab, ab);
    const double along = length > 0 ? std::clamp(QPointF::dotProduct(ap, ab) / length, 0.0, 1.0) : 0.0;
    const QPointF off = ap - along * ab;
    return QPointF::dotProduct(off, off);
}

} // namespace

QPolygonF VisibleLine(const std::vector<PlotPoint>& run, const QTransform& toDevice) {
    const DeviceMap map(toDevice);
    struct Taken {
        QPointF onDevice, onPlot;
    };
    std::vector<Taken> taken;
    for (size_t i = 0; i < run.size(); ++i) {
        if (!finite(run[i]))
            continue;
        const QPointF onDevice = map(run[i]);
        if (!taken.empty() && std::abs(onDevice.x() - taken.back().onDevice.x()) <= 1.0 &&
            std::abs(onDevice.y() - taken.back().onDevice.y()) <= 1.0 && i + 1 < run.size())
            continue;
        taken.push_back({onDevice, QPointF(run[i].x, run[i].y)});
    }
    // A straight stretch spans at most this many points, so thinning stays linear.
    constexpr size_t LongestStretch = 32;
    constexpr double HalfPixelSquared = 0.25;
    QPolygonF line;
    size_t anchor = 0;
    for (size_t next = 0; next < taken.size(); ++next) {
        if (next == 0 || next + 1 == taken.size()) {
            line << taken[next].onPlot;
            continue;
        }
        // Can the line go straight from the anchor to the point after next?
        const size_t end = next + 1;
        bool straight = end - anchor <= LongestStretch;
        for (size_t k = anchor + 1; straight && k < end; ++k)
            straight = distanceSquaredToSegment(taken[k].onDevice, taken[anchor].onDevice,
                                                taken[end].onDevice) <= HalfPixelSquared;
        if (!straight) {
            line << taken[next].onPlot;
            anchor = next;
        }
    }
    return line;
}

namespace {

void paintMarker(QPainter& painter, const MarkerShape& marker) {
    auto at = [](const PlotPoint& p) { return QPointF(p.x, p.y); };
    switch (marker.kind) {
    case MarkerShape::Circle:
        painter.drawEllipse(at(marker.points[0]), marker.S, marker.S);
        break;
    case MarkerShape::Lines:
        for (size_t i = 0; i + 1 < marker.points.size(); i += 2)
            painter.drawLine(at(marker.points[i]), at(marker.points[i + 1]));
        break;
    case MarkerShape::Polygon: {
        QPolygonF polygon;
        for (const PlotPoint& p : marker.points)
            polygon << at(p);
        painter.drawPolyline(polygon);
        break;
    }
    case MarkerShape::Square:
        painter.drawRect(QRectF(at(marker.points[0]), at(marker.points[1])));
        break;
    case MarkerShape::None:
        break;
    }
}

void setMarkerPen(QPainter& painter) {
    QPen pen(Qt::black);
    pen.setWidthF(MarkerLineWidth * TwipsPerPixel);
    painter.setPen(pen);
    painter.setBrush(Qt::black);
}

// A marker drawn once into a small image, to be stamped on the pixels of a raster device: its
// centre stands at (Centre, Centre).
struct MarkerStamp {
    QImage image;
    int Centre = 0;
};

MarkerStamp prepareStamp(const QPainter& painter, int shape, float factor) {
    const MarkerShape marker = DrawPt(0.0f, 0.0f, shape, factor);
    const QTransform& transform = painter.deviceTransform();
    const double scale = std::max(std::abs(transform.m11()), std::abs(transform.m22()));
    MarkerStamp stamp;
    stamp.Centre = int(std::ceil((marker.S + MarkerLineWidth * TwipsPerPixel) * scale)) + 1;
    stamp.image = QImage(2 * stamp.Centre + 1, 2 * stamp.Centre + 1, QImage::Format_ARGB32_Premultiplied);
    stamp.image.fill(Qt::transparent);
    QPainter onStamp(&stamp.image);
    onStamp.setRenderHints(painter.renderHints());
    onStamp.translate(stamp.Centre, stamp.Centre);
    onStamp.scale(transform.m11(), transform.m22());
    setMarkerPen(onStamp);
    paintMarker(onStamp, marker);
    return stamp;
}

// Markers in the surface's fore colour, black: circles and squares filled. On a raster device
// a marker drawn once is stamped on each pixel; on others (SVG, printers) each is drawn.
void paintMarkers(QPainter& painter, const std::vector<PlotPoint>& points, int shape, float factor) {
    const DeviceMap map(painter.deviceTransform());
    const bool stamping =
        map.plain() && painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster;
    const MarkerStamp stamp = stamping ? prepareStamp(painter, shape, factor) : MarkerStamp();
    StampedPixels stamped(painter.device());
    painter.save();
    setMarkerPen(painter);
    if (stamping)
        painter.resetTransform();
    for (const PlotPoint& p : points) {
        // A marker on a pixel already stamped with the same shape changes nothing.
        const QPoint pixel = finite(p) ? map.pixel(p) : QPoint();
        if (!finite(p) || !stamped.firstTime(pixel))
            continue;
        if (stamping)
            painter.drawImage(pixel - QPoint(stamp.Centre, stamp.Centre), stamp.image);
        else
            paintMarker(painter, DrawPt(p.x, p.y, shape, factor));
    }
    painter.restore();
}

} // namespace

QColor plotColour(int index) {
    return toQColor(PlotColour(index));
}

void PaintPlot(QPainter& painter, const PlotDrawing& drawing) {
    painter.save();
    for (const PlotLine& line : drawing.axis) {
        painter.setPen(linePen(line.colour, line.width, line.dotted));
        painter.drawLine(QPointF(line.from.x, line.from.y), QPointF(line.to.x, line.to.y));
    }
    painter.setPen(plotColour(0));
    const QFontMetricsF metrics(painter.font(), painter.device());
    for (const PlotText& text : drawing.labels)
        painter.drawText(QPointF(text.topLeft.x, text.topLeft.y + metrics.ascent()), fromBytes(text.text));
    for (const SeriesStroke& series : drawing.series) {
        paintMarkers(painter, series.markers, series.shape, PlotMarkerFactor);
        painter.setPen(linePen(series.colour, 4, false));
        for (const auto& run : series.runs)
            painter.drawPolyline(VisibleLine(run, painter.deviceTransform()));
    }
    for (const PlotLine& line : drawing.levels) {
        painter.setPen(linePen(line.colour, line.width, line.dotted));
        painter.drawLine(QPointF(line.from.x, line.from.y), QPointF(line.to.x, line.to.y));
    }
    painter.restore();
}

void PaintLegendMarkers(QPainter& painter, const PlotDrawing& drawing) {
    painter.save();
    for (const auto& marker : drawing.legendMarkers)
        paintMarkers(painter, {marker.at}, marker.shape, LegendMarkerFactor);
    painter.restore();
}

} // namespace brooklet
