// Where a slider draws its track and its handle, as pure arithmetic.
#include "DragLineGeometry.h"

#include "../common/MissingValue.h"

namespace draglinegeometry {
namespace {

/// The sum of two pixel numbers, held at the ends of int: positions far off the scale are saturated already.
int Sum(int a, int b) { return Truncate(static_cast<double>(a) + b); }

} // namespace

plotspan::Span Track(plotspan::Extent slider, double minFraction, double maxFraction) {
    const auto place = [&slider](double fraction) { return Truncate(slider.Width() * fraction); };
    return {IsMissing(minFraction) ? slider.left + 1 : Sum(slider.left - 1, place(minFraction)),
            IsMissing(maxFraction) ? slider.right - 1 : Sum(slider.left + 1, place(maxFraction))};
}

plotspan::Span TrackRows(int top, int bottom) {
    const int begin = (top + bottom) / 2 - 3;
    return {begin, begin + TrackHeight};
}

int HandleColumn(plotspan::Extent slider, double fraction) {
    return Sum(slider.left, Truncate(slider.Width() * fraction));
}

int HandleTop(int top, int bottom) {
    constexpr int height = static_cast<int>(HandleReach.size()) - 1;
    return (top + (bottom - height)) / 2;
}

} // namespace draglinegeometry
