// Where a bar chart cell draws its bar, as pure arithmetic on fractions of the cell width.
#include "BarGeometry.h"

#include "../common/MissingValue.h"

#include <cstdint>

namespace bargeometry {

using plotspan::Clip;
using plotspan::Extent;
using plotspan::Span;

Marks WhileDragging(const Marks& atRest, Drag drag, double dragFraction, Symmetry symmetry) {
    const bool symmetric = symmetry == Symmetry::Kept;
    Marks marks = atRest;
    switch (drag) {
    case Drag::None:
        break;
    case Drag::Target:
        marks.target = dragFraction;
        // A target that had no place before has not moved by any distance.
        if (symmetric && !IsMissing(atRest.target)) {
            const double moved = dragFraction - atRest.target;
            if (!IsMissing(atRest.lower))
                marks.lower += moved;
            if (!IsMissing(atRest.upper))
                marks.upper += moved;
        }
        break;
    case Drag::Lower:
        marks.lower = dragFraction;
        if (symmetric && !IsMissing(marks.target) && !IsMissing(marks.upper))
            marks.upper = 2.0 * marks.target - marks.lower;
        break;
    case Drag::Upper:
        marks.upper = dragFraction;
        if (symmetric && !IsMissing(marks.target) && !IsMissing(marks.lower))
            marks.lower = 2.0 * marks.target - marks.upper;
        break;
    }
    return marks;
}

BarPlace PlaceOf(const Marks& marks) {
    if (IsMissing(marks.lower) || IsMissing(marks.upper))
        return BarPlace::Nowhere;
    if (marks.upper < 0.0)
        return BarPlace::Below;
    return marks.lower > 1.0 ? BarPlace::Above : BarPlace::Inside;
}

Span PlainBar(Extent cell, const Marks& marks) {
    const double begin = marks.lower <= 0.0 ? 0.0 : marks.lower;
    const double end = marks.upper >= 1.0 ? 1.0 : marks.upper;
    return Clip({Truncate(cell.At(begin)), Truncate(cell.At(end))}, cell.left, cell.right);
}

std::vector<Piece> GradientBar(Extent cell, const Marks& marks, Darkest darkest) {
    const int left = cell.left;
    const double lower = cell.Width() * marks.lower;
    const double upper = cell.Width() * marks.upper;
    const bool atMiddle = darkest == Darkest::AtMiddle || IsMissing(marks.target);
    const double center = atMiddle ? (lower + upper) / 2.0 : cell.Width() * marks.target;

    const std::int64_t lowerPixel = Truncate(left + lower);
    const std::int64_t centerPixel = Truncate(left + center);
    const std::int64_t upperPixel = Truncate(left + upper);

    std::vector<Piece> pieces;
    pieces.reserve(2 * GradientColors);
    const auto add = [&](int begin, double end, int color) {
        const Span span{begin, Truncate(end)};
        if (span.IsEmpty() || span.end <= left)
            return;
        const Span visible = Clip(span, cell.left, cell.right);
        if (!visible.IsEmpty())
            pieces.push_back({visible, color});
    };

    const double leftStep = static_cast<double>(centerPixel - lowerPixel) / GradientColors;
    for (int i = 0; i < GradientColors; ++i) {
        const int begin = Truncate(i * leftStep + left + lower);
        add(begin, begin + leftStep + 1.0, i);
    }
    // Intended: the right half steps in single precision, so a boundary may stand one pixel off the left half's mirror.
    const float rightStep = static_cast<float>(upperPixel - centerPixel) / GradientColors;
    for (int i = 0; i < GradientColors; ++i) {
        const int begin = Truncate(static_cast<float>(i) * rightStep + static_cast<float>(left) + center);
        add(begin, static_cast<float>(begin) + rightStep + 1.0, GradientColors - 1 - i);
    }
    return pieces;
}

Span WhiskerLine(Extent cell, double fromFraction, double toFraction) {
    // A target or whisker that is not there ends no line.
    if (IsMissing(fromFraction) || IsMissing(toFraction))
        return {cell.left, cell.left};
    return Clip({Truncate(cell.At(fromFraction)), Truncate(cell.At(toFraction))}, cell.left, cell.right);
}

} // namespace bargeometry
