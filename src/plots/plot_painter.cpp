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
    return rest >= 0.5 ? whole + 1 : rest <= -0.5 ? whole - 1 : whole;
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
    const DeviceMap map(painter.deviceTransform());
    for (const SeriesStroke& series : drawing.series) {
        paintMarkers(painter, series.markers, series.shape, PlotMarkerFactor);
        painter.setPen(linePen(series.colour, 4, false));
        for (const auto& run : series.runs) {
            // The line is four pixels wide: a point within a pixel of the point last taken adds
            // nothing to it that shows.
            QPolygonF line;
            line.reserve(qsizetype(std::min<size_t>(run.size(), 1 << 16)));
            QPointF last;
            for (size_t i = 0; i < run.size(); ++i) {
                if (!finite(run[i]))
                    continue;
                const QPointF onDevice = map(run[i]);
                if (!line.isEmpty() && std::abs(onDevice.x() - last.x()) <= 1.0 &&
                    std::abs(onDevice.y() - last.y()) <= 1.0 && i + 1 < run.size())
                    continue;
                line << QPointF(run[i].x, run[i].y);
                last = onDevice;
            }
            painter.drawPolyline(line);
        }
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
