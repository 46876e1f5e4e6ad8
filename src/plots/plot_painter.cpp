#include "plots/plot_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

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

// The device pixel of a point, to pass over what would land where the last one did.
qint64 devicePixel(const QTransform& transform, const PlotPoint& p) {
    const QPointF d = transform.map(QPointF(p.x, p.y));
    return (qint64(std::lround(d.x())) << 32) ^ qint64(std::lround(d.y()) & 0xffffffff);
}

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

// Markers in the surface's fore colour, black: circles and squares filled.
void paintMarkers(QPainter& painter, const std::vector<PlotPoint>& points, int shape, float factor) {
    QPen pen(Qt::black);
    pen.setWidthF(MarkerLineWidth * TwipsPerPixel);
    painter.setPen(pen);
    painter.setBrush(Qt::black);
    const QTransform transform = painter.deviceTransform();
    std::unordered_set<qint64> stamped;
    for (const PlotPoint& p : points) {
        // A marker on a pixel already stamped with the same shape changes nothing.
        if (!finite(p) || !stamped.insert(devicePixel(transform, p)).second)
            continue;
        paintMarker(painter, DrawPt(p.x, p.y, shape, factor));
    }
    painter.setBrush(Qt::NoBrush);
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
    const QTransform transform = painter.deviceTransform();
    for (const SeriesStroke& series : drawing.series) {
        paintMarkers(painter, series.markers, series.shape, PlotMarkerFactor);
        painter.setPen(linePen(series.colour, 4, false));
        for (const auto& run : series.runs) {
            // Points that fall on the pixel of the point before add nothing to the line.
            QPolygonF line;
            qint64 last = 0;
            for (size_t i = 0; i < run.size(); ++i) {
                if (!finite(run[i]))
                    continue;
                const qint64 pixel = devicePixel(transform, run[i]);
                if (!line.isEmpty() && pixel == last && i + 1 < run.size())
                    continue;
                line << QPointF(run[i].x, run[i].y);
                last = pixel;
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
