// Where a slider draws its track and its handle, as pure arithmetic. No window needed.
#pragma once

#include "PlotSpans.h"

#include <array>

namespace draglinegeometry {

/// The height of the track in pixels.
inline constexpr int TrackHeight = 4;

/// The track between the ends of the scale, one pixel wider than these on either side and not clipped. An end that is
/// missing lies one pixel inside the edge of the slider.
plotspan::Span Track(plotspan::Extent slider, double minFraction, double maxFraction);

/// The rows of the track in a slider from `top` to `bottom`.
plotspan::Span TrackRows(int top, int bottom);

/// The pixel column on which the handle of a fraction stands; not clipped.
int HandleColumn(plotspan::Extent slider, double fraction);

/// The handle is a tag with its point downwards: nine pixels wide and fourteen high, the row of the point included.
/// Each number is how many pixels a row reaches to either side of the handle's column.
inline constexpr std::array<int, 14> HandleReach = {4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 3, 2, 1, 0};

/// The first row of the handle in a slider from `top` to `bottom`; above the slider when that is lower than the handle.
int HandleTop(int top, int bottom);

} // namespace draglinegeometry
