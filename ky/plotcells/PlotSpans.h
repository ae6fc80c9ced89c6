// Horizontal extents in plot cells, in whole pixels. No window needed.
#pragma once

#include "../common/Truncation.h"

#include <vector>

namespace plotspan {

/// Pixels from `begin` up to, not including, `end`.
struct Span {
    int begin;
    int end;

    constexpr bool IsEmpty() const { return begin >= end; }
    bool operator==(const Span&) const = default;
};

/// The part of the span inside [left, right).
constexpr Span Clip(Span span, int left, int right) {
    return {span.begin < left ? left : span.begin, span.end > right ? right : span.end};
}

/// The left and right edge of the rectangle that a plot is drawn into.
struct Extent {
    int left;
    int right;

    constexpr double Width() const { return static_cast<double>(right) - left; }
    /// The exact place of a fraction of the width.
    constexpr double At(double fraction) const { return left + Width() * fraction; }
    constexpr Span Whole() const { return {left, right}; }
};

/// The two pixels wide bar that marks a fraction, unclipped.
constexpr Span MarkAt(Extent extent, double fraction) {
    const double x = extent.At(fraction);
    return {Truncate(x - 1.0), Truncate(x + 1.0)};
}

/// The vertical dashes of a dashed bar between `top` and `bottom`: 3 pixels every 6, the last one cut at the bottom.
std::vector<Span> Dashes(int top, int bottom);

} // namespace plotspan
