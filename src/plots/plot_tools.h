#pragma once
// The plot window's tools as numbers, in twips of the drawing surface: where a mouse point is
// held, the rectangle zoom that narrows the axis limits, the return to the full plot, and the
// read-out of the point under the pointer.
#include <string>

#include "plots/plot_geometry.h"

namespace brooklet {

// Mode 1 puts A and B in ascending order, mode 2 in descending order.
void OrderPair(int Mode, float& A, float& B);

// A mouse point on a button press or a move: x within the box's width, y from the top of the
// surface down to the box's bottom.
PlotPoint ClampPressPoint(const PlotFrame& frame, PlotPoint point);
// A mouse point on a button release: x the same, but y no higher than PlotMarginBottom from the
// top, so a box drawn to the top is cut to that line when the button comes up.
PlotPoint ClampReleasePoint(const PlotFrame& frame, PlotPoint point);

// Narrows the limits to the box from (StartX, StartY) to the release point (x, y), both already
// clamped. The corners are put in order first (the start's y below the end's, y growing
// downward); the maxima are computed with the old minima, and no limit widens.
void ZoomToBox(PlotFrame& frame, float& StartX, float& StartY, float x, float y);

// Puts back the limits of the whole data; false when they were those already, so nothing need be
// drawn again.
bool ZoomOut(PlotView& view);

// The read-out at the mouse point: "x, y" of the last point of a series lying closer than 25
// twips in both directions, a later series replacing an earlier one; empty when none lies near.
// Every series is searched over the point count of the last series, as it was drawn.
std::string PointerReadout(const PlotData& plot, const PlotFrame& frame, float mx, float my);

} // namespace brooklet
