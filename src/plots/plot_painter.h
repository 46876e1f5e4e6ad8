#pragma once
// Paints a laid-out plot on any QPainter whose coordinates are twips: the screen, an image, an
// SVG file or a printer page alike.
#include <QColor>

#include "plots/plot_geometry.h"

class QPainter;

namespace brooklet {

// Twips per pixel of the screen: line widths are told in pixels of the screen.
constexpr double TwipsPerPixel = 15.0;

QColor plotColour(int index);

// The axes, labels, series and time levels of the drawing surface.
void PaintPlot(QPainter& painter, const PlotDrawing& drawing);
// The marker samples of the legend strip.
void PaintLegendMarkers(QPainter& painter, const PlotDrawing& drawing);

} // namespace brooklet
