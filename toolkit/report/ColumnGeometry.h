// How columns share a view: which of them stay while the others scroll, how they divide its width, and where the
// buttons of a group-by box stand. Arithmetic only, no window needed; all lengths are pixels.
#pragma once

#include "GridGeometry.h"

#include <vector>

namespace gridgeometry {

/// How many columns from the left stay while the others scroll beneath them, of `asked` that should. While everything
/// fits nothing scrolls, and all of them do. Else they leave a quarter of the view to the others, whose every part can
/// be scrolled to that way: the columns from the right that would take it scroll with the others.
int FrozenCount(const std::vector<int>& widths, int asked, int viewWidth);

/// The first `frozen` columns side by side from `x` on, the others behind them and moved left by `offset`, so that they
/// may lie beneath the frozen ones.
std::vector<ColumnExtent> LayOutFrozenColumns(const std::vector<int>& widths, int frozen, int x, int offset);

/// What can be seen of them and taken hold of: the others cut off at the edge of the frozen ones. A column beneath them
/// has no width and no divider.
std::vector<ColumnExtent> CutAtFrozen(std::vector<ColumnExtent> columns, int frozen);

/// A column in a view whose width is divided among columns.
struct SharedColumn {
    int width = 0; ///< its share, in proportion to those of the others; else the width that it keeps
    int least = 0; ///< the limits of its width, `least` at most `most`
    int most = 0;
    bool shares = true; ///< gets wider and narrower with the view
};

/// The widths with which the columns fill the view. Those that share divide what the others leave in proportion to
/// their shares, as far as their limits allow. The sum is the width of the view, unless the least widths do not fit (it
/// is their sum then) or the largest do not fill it. What fills the view stays as it is.
std::vector<int> ShareWidth(const std::vector<SharedColumn>& columns, int viewWidth);

/// The least width of all columns together, those that do not share with their width.
int LeastWidth(const std::vector<SharedColumn>& columns);

/// By how many pixels of `delta` the divider between two columns can be moved to the right (negative: to the left) when
/// one gets what the other loses, within the limits of both.
int MovableBy(const SharedColumn& left, const SharedColumn& right, int delta);

/// Buttons of these widths side by side with gaps between them, from `left` on. When they do not fit in front of
/// `right` all get narrower in proportion.
std::vector<ColumnExtent> LayOutButtons(const std::vector<int>& widths, int left, int right, int gap);

/// Where the mark of a place among the buttons stands: in the middle of the gap in front of the button there, or behind
/// the last one. The first button of an empty box would stand at `left`.
int ButtonMarkX(const std::vector<ColumnExtent>& buttons, int position, int left, int gap);

} // namespace gridgeometry
