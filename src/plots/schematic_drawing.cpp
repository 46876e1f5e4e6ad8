#include "plots/schematic_drawing.h"

#include "editing/widgets.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

namespace brooklet {
namespace {

// The pictures are drawn in a box of 32 by 32.
QPolygonF scaled(const QRectF& rect, std::initializer_list<QPointF> points) {
    QPolygonF polygon;
    for (const QPointF& point : points)
        polygon << QPointF(rect.left() + point.x() * rect.width() / 32,
                           rect.top() + point.y() * rect.height() / 32);
    return polygon;
}

QFont labelFont() {
    QFont font("Arial");
    font.setPixelSize(11);
    return font;
}

QPointF toPixels(const SurfaceScale& scale, const DrawingPoint& point) {
    return {scale.toPixelX(point.x), scale.toPixelY(point.y)};
}

// The legend's pictures are half the size of the elements'.
constexpr int LegendPicturePixels = PicturePixels / 2;

// The legend in its own scale of 0 to 100 both ways, over the right of the surface.
void drawLegend(QPainter& painter, const SurfaceScale& scale, double windowWidthTwips) {
    SurfaceScale legend = scale;
    legend.ScaleLeft = legend.ScaleTop = 0;
    legend.ScaleWidth = legend.ScaleHeight = 100;
    const std::vector<std::string> texts = LegendTexts(windowWidthTwips);
    const QFontMetricsF metrics(painter.font());
    double textWidth = 0;
    for (const std::string& text : texts)
        textWidth = std::max(textWidth, metrics.horizontalAdvance(fromBytes(text)));
    const QPointF first = toPixels(legend, {81, 5});
    const QPointF last = toPixels(legend, {83, 25});
    const QRectF box(first.x() - 4, first.y() - 4, last.x() - first.x() + textWidth + 8,
                     last.y() - first.y() + LegendPicturePixels + 8);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::white);
    painter.drawRect(box);
    for (int i = 1; i <= 5; ++i) {
        const QPointF picture = toPixels(legend, {81, 5.0 * i});
        const QPointF label = toPixels(legend, {83, 5.0 * i});
        drawElementPicture(painter, i, QRectF(picture, QSizeF(LegendPicturePixels, LegendPicturePixels)));
        painter.setPen(Qt::black);
        const double x = std::max(label.x(), picture.x() + LegendPicturePixels);
        painter.drawText(QPointF(x, label.y() + (LegendPicturePixels + metrics.ascent()) / 2),
                         fromBytes(texts[static_cast<size_t>(i - 1)]));
    }
}

// On a surface of pixels each picture is drawn once and then copied; SVG, PDF and the printer
// get the shapes themselves.
const QImage& cachedPicture(int picture) {
    static QImage pictures[DiversionPicture + 1];
    QImage& image = pictures[picture];
    if (image.isNull()) {
        image = QImage(PicturePixels, PicturePixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, true);
        drawElementPicture(painter, picture, QRectF(0, 0, PicturePixels, PicturePixels));
    }
    return image;
}

} // namespace

void drawElementPicture(QPainter& painter, int picture, const QRectF& rect) {
    painter.save();
    switch (picture) {
    case ChannelReachKind: // a channel in section, water in it
        painter.setPen(QPen(QColor(40, 40, 40), 1));
        painter.setBrush(QColor(222, 200, 160));
        painter.drawPolygon(scaled(rect, {{1, 6}, {31, 6}, {31, 30}, {1, 30}}));
        painter.setBrush(QColor(60, 120, 220));
        painter.drawPolygon(scaled(rect, {{5, 12}, {27, 12}, {20, 26}, {12, 26}}));
        break;
    case StructureReachKind: // a dam holding water back
        painter.setPen(QPen(QColor(40, 40, 40), 1));
        painter.setBrush(QColor(60, 120, 220));
        painter.drawPolygon(scaled(rect, {{1, 10}, {14, 10}, {14, 30}, {1, 30}}));
        painter.setBrush(QColor(150, 150, 150));
        painter.drawPolygon(scaled(rect, {{12, 4}, {18, 4}, {31, 30}, {12, 30}}));
        break;
    case OutletKind: // a dark circle with a downward arrow
        painter.setPen(QPen(QColor(0, 0, 90), 1));
        painter.setBrush(QColor(0, 40, 140));
        painter.drawEllipse(QRectF(rect.left() + rect.width() / 32, rect.top() + rect.height() / 32,
                                   rect.width() * 30 / 32, rect.height() * 30 / 32));
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawPolygon(
            scaled(rect, {{13, 6}, {19, 6}, {19, 17}, {24, 17}, {16, 27}, {8, 17}, {13, 17}}));
        break;
    case SubAreaKind: // a patch of land
        painter.setPen(QPen(QColor(20, 90, 20), 1));
        painter.setBrush(QColor(90, 180, 80));
        painter.drawPolygon(scaled(rect, {{3, 10}, {12, 3}, {24, 5}, {30, 14}, {27, 27}, {14, 30}, {4, 23}}));
        break;
    case DiversionPicture: { // a dotted shaft with its head
        QPen pen(toQColor(DiversionColour), 2, Qt::DotLine);
        painter.setPen(pen);
        painter.drawLine(scaled(rect, {{2, 16}})[0], scaled(rect, {{22, 16}})[0]);
        painter.setPen(QPen(toQColor(DiversionColour), 1));
        painter.setBrush(toQColor(DiversionColour));
        painter.drawPolygon(scaled(rect, {{20, 9}, {31, 16}, {20, 23}}));
        break;
    }
    default:
        break;
    }
    painter.restore();
}

void drawSchematic(QPainter& painter, const Schematic& schematic, const SurfaceScale& scale, Rgb background,
                   double windowWidthTwips) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setFont(labelFont());
    const QRectF surface(0, 0, scale.pixelWidth, scale.pixelHeight);
    painter.fillRect(surface, toQColor(background));

    painter.setPen(QPen(Qt::black, 1));
    for (const DrawingLine& link : schematic.DrawLinks())
        painter.drawLine(toPixels(scale, link.from), toPixels(scale, link.to));

    const QColor grey = toQColor(DiversionColour);
    for (const DiversionArrow& arrow : schematic.DrawDiversions()) {
        painter.setPen(QPen(grey, 1, Qt::DotLine));
        painter.drawLine(toPixels(scale, arrow.shaft.from), toPixels(scale, arrow.shaft.to));
        painter.setPen(QPen(grey, 1));
        painter.setBrush(grey);
        const QPointF head[3] = {toPixels(scale, arrow.head[0]), toPixels(scale, arrow.head[1]),
                                 toPixels(scale, arrow.head[2])};
        painter.drawPolygon(head, 3);
    }
    painter.setBrush(Qt::NoBrush);

    // Pictures and labels keep their size in pixels; those wholly off the surface are passed
    // over (a label reaches at most a few hundred pixels to the right).
    const QRectF reach = surface.adjusted(-400, -PicturePixels, 0, 0);
    const Network& network = schematic.network();
    const bool pixels = painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster;
    for (int i = 1; i <= schematic.ElementCount(); ++i) {
        const NetworkElement& element = network.element(i);
        const QPointF place = toPixels(scale, {element.Left, element.Top});
        if (!reach.contains(place))
            continue;
        if (pixels && element.Kind >= ChannelReachKind && element.Kind <= SubAreaKind)
            painter.drawImage(place, cachedPicture(element.Kind));
        else
            drawElementPicture(painter, element.Kind, QRectF(place, QSizeF(PicturePixels, PicturePixels)));
    }
    if (schematic.Labels) {
        painter.setPen(Qt::black);
        const double ascent = QFontMetricsF(painter.font()).ascent();
        for (int i = 1; i <= schematic.ElementCount(); ++i) {
            const QPointF place = toPixels(scale, schematic.labelPlace(i));
            if (!reach.contains(place))
                continue;
            painter.drawText(QPointF(place.x(), place.y() + ascent), fromBytes(network.element(i).Name));
        }
    }
    if (schematic.Legend)
        drawLegend(painter, scale, windowWidthTwips);
    painter.restore();
}

} // namespace brooklet
