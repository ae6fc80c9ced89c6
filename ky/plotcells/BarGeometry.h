// Where a bar chart cell draws its bar, as pure arithmetic on fractions of the cell width. No window needed.
#pragma once

#include "PlotSpans.h"

#include <vector>

namespace bargeometry {

/// Fractions of the cell width; the missing-value mark for what is not there.
struct Marks {
    double lower;
    double target;
    double upper;

    bool operator==(const Marks&) const = default;
};

/// Which mark the pointer drags.
enum class Drag { None, Lower, Target, Upper };

/// Whether the bar keeps its symmetry about the target while one of its marks is dragged.
enum class Symmetry { Kept, Free };

/// The marks as they are drawn during a drag. A dragged mark stands at `dragFraction`. With the symmetry kept, a
/// dragged target takes the whole bar along, and a dragged end is mirrored about the target by the other end.
Marks WhileDragging(const Marks& atRest, Drag drag, double dragFraction, Symmetry symmetry);

/// What there is to draw of a bar.
enum class BarPlace {
    Nowhere, ///< an end is missing
    Below,   ///< the bar lies wholly left of the cell
    Above,   ///< the bar lies wholly right of the cell
    Inside
};

BarPlace PlaceOf(const Marks& marks);

/// Extent of a bar in one colour, clipped to the cell; may be empty.
plotspan::Span PlainBar(plotspan::Extent cell, const Marks& marks);

/// How many colours a two-sided gradient bar goes through, from its ends to its darkest place.
inline constexpr int GradientColors = 20;

/// One piece of a gradient bar: its extent, clipped to the cell and never empty, and the index of its colour.
struct Piece {
    plotspan::Span span;
    int color;

    bool operator==(const Piece&) const = default;
};

/// Where a gradient bar is darkest.
enum class Darkest { AtMiddle, AtTarget };

/// The pieces of a two-sided gradient in drawing order; neighbours overlap, the later one covers.
/// The darkest place is the bar's middle when there is no target.
std::vector<Piece> GradientBar(plotspan::Extent cell, const Marks& marks, Darkest darkest);

/// The line from an error whisker to the target, clipped to the cell; empty when the two stand the wrong way round.
plotspan::Span WhiskerLine(plotspan::Extent cell, double fromFraction, double toFraction);

} // namespace bargeometry
