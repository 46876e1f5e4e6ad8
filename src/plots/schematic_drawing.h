#pragma once
// The one routine that draws the schematic: on the screen, into an image for the clipboard and
// the printer, and into SVG and PDF files. Lines, pictures and labels are vectors and text, so a
// file drawn by it keeps every label as text at any size.
#include <QColor>
#include <QRectF>

#include "editing/colours.h"
#include "plots/schematic.h"

class QPainter;

namespace brooklet {

// The window's light orange, and the white of copies and prints.
constexpr Rgb SchematicBackground{255, 192, 128};
constexpr Rgb CopyBackground{255, 255, 255};
// The grey of the diversions.
constexpr Rgb DiversionColour{96, 96, 96};

// Draws the shown elements of the schematic at the given scale onto a device of the scale's
// size in pixels: background, links, diversions, pictures, labels and legend. The legend's words
// follow the width of the window in twips.
void drawSchematic(QPainter& painter, const Schematic& schematic, const SurfaceScale& scale, Rgb background,
                   double windowWidthTwips);

// The picture of an element kind (1 to 4) or of the diversion (5), in the rectangle.
void drawElementPicture(QPainter& painter, int picture, const QRectF& rect);

} // namespace brooklet
