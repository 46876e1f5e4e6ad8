#pragma once
// Paints a laid-out plot on any QPainter whose coordinates are twips: the screen, an image, an
// SVG file or a printer page alike.
#include <QColor>
#include <QPolygonF>
#include <QTransform>

#include "plots/plot_geometry.h"

class QPainter;

namespace brooklet {

// Twips per pixel of the screen: line widths are told in pixels of the screen.
constexpr double TwipsPerPixel = 15.0;

QColor plotColour(int index);

// The axes, labels, series and time levels of the drawing surface.
void PaintPlot(QPainter& painter, const PlotDrawing& drawing);
// The points of a series run that show in a line four pixels wide on a device reached by
// toDevice: a point within a pixel of the point last taken adds nothing, and nor do points that
// lie within half a pixel of the straight line between the points kept on either side of them.
// The first and last points always stay.
QPolygonF VisibleLine(const std::vector<PlotPoint>& run, const QTransform& toDevice);
// The marker samples of the legend strip.
void PaintLegendMarkers(QPainter& painter, const PlotDrawing& drawing);

} // namespace brooklet
