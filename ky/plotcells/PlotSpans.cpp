// Horizontal extents in plot cells, in whole pixels.
#include "PlotSpans.h"

namespace plotspan {

std::vector<Span> Dashes(int top, int bottom) {
    constexpr int length = 3;
    constexpr int period = 6;
    std::vector<Span> dashes;
    for (int y = top; y < bottom; y += period)
        dashes.push_back(Clip({y, y + length}, top, bottom));
    return dashes;
}

} // namespace plotspan
