// The looks of a report control as data: colours and metrics of each theme and column style.
#pragma once

#include "../common/LookColor.h"
#include "../common/XTPThemes.h"

#include <array>
#include <cstddef>

namespace reportlook {

/// What a colour is for. The first roles belong to the body of the grid and come from the theme; those from `Header` on
/// belong to the header and come from the column style.
enum class Role {
    Window,
    WindowText,
    AlternateRow,   ///< every second row, when that is asked for
    DisabledWindow, ///< behind the rows of a disabled control
    DisabledText,
    Highlight,
    HighlightText,
    InactiveHighlight,
    InactiveHighlightText,
    FocusFrame, ///< around the focused row; none: the system's dotted rectangle
    GridLine,
    Hyperlink,
    PreviewText, ///< below the cells of a row
    DropMark,
    GroupRow, ///< behind the caption of a group; none: that of the other rows
    GroupRowText,
    GroupRowLine,     ///< under the row of a group
    TreeLine,         ///< from a record to those below it; none: no lines
    ExpandButton,     ///< the frame of a box, or a whole triangle
    ExpandButtonFill, ///< inside of a box
    ExpandButtonSign, ///< plus and minus
    GroupBy,          ///< background of the group-by box
    GroupByText,      ///< on it, and the lines between its buttons
    FreezeLine,       ///< at the edge of frozen columns

    Header, ///< the lower end of the header's gradient
    HeaderLight,
    HeaderSorted, ///< of a column by which the rows are sorted
    HeaderSortedLight,
    HeaderHot,
    HeaderHotLight,
    HeaderPressed,
    HeaderPressedLight,
    HeaderDivider,
    HeaderDividerLight, ///< beside the divider where the style draws it in two tones
    HeaderFrame,        ///< around or under a hot or pressed column; none: no frame
    HeaderLine,         ///< under the header
    HeaderText,
    SortArrow,
    Count
};
constexpr std::size_t BodyRoles = static_cast<std::size_t>(Role::Header);
constexpr std::size_t HeaderRoles = static_cast<std::size_t>(Role::Count) - BodyRoles;

using BodyColors = std::array<LookColor, BodyRoles>;
using HeaderColors = std::array<LookColor, HeaderRoles>;

enum class ExpandButton {
    Box,     ///< with a plus or a minus
    Triangle ///< points to the right while collapsed, to the lower right while expanded
};

/// Lengths at 96 DPI, and shapes.
struct BodyMetrics {
    int cellPadding;   ///< between the edge of a cell or column header and its text
    int rowSpacing;    ///< above and below the text of a row
    int headerSpacing; ///< above and below a caption
    int dropMarkWidth; ///< of the bar between two columns
    int dropMarkArrow; ///< height of the arrows at its ends; 0: none
    int treeIndent;    ///< from a record to those below it; the room of an expand button as well
    ExpandButton button;
};

/// How the edges of a header column are drawn.
enum class HeaderEdge {
    Raised,       ///< a button: light and dark edges, sunk while pressed
    Boxed,        ///< full-height dividers, a frame around the column when hot or pressed
    Thin,         ///< full-height dividers, side lines when hot or pressed
    ShortDivider, ///< two-tone dividers that leave the ends free, a line under the column when hot or pressed
    Inset         ///< full-height divider with a light line beside it, a frame when hot or pressed
};
/// How the header is filled between its two tones.
enum class HeaderFill {
    Gradient, ///< evenly from top to bottom
    Glass     ///< a light upper part above a darker lower one
};
enum class ArrowShape {
    Filled,
    Etched, ///< edges of light and shadow
    Chevron ///< two strokes
};
enum class ArrowPlace { BesideCaption, AboveCaption };

struct ColumnLook {
    XTPReportColumnStyle style;
    HeaderEdge edge;
    HeaderFill fill;
    ArrowShape arrow;
    ArrowPlace arrowPlace;
    int arrowHeight;   ///< pixels at 96 DPI
    int dividerMargin; ///< free above and below a short divider, pixels at 96 DPI
    int pressedOffset; ///< a pressed caption moves right and down by so many pixels
    HeaderColors colors;
};

struct ThemeLook {
    XTPReportPaintTheme theme;
    XTPReportColumnStyle columnStyle; ///< the theme's own
    BodyMetrics metrics;
    BodyColors body;
    /// The header while the column style is the theme's own; null: that of the style.
    const ColumnLook* ownHeader;
};

/// Where the colours and metrics of a control come from; all of it lasts as long as the program.
struct Look {
    const BodyColors* body;
    const BodyMetrics* metrics;
    const ColumnLook* header;
};

/// While the system shows high contrast, its colours replace those of every theme and style; the metrics stay.
enum class Contrast { Ordinary, High };

/// Themes without a look of their own get that of xtpReportThemeDefault, column styles without one that of
/// xtpReportColumnShaded.
Look LookOf(XTPReportPaintTheme theme, XTPReportColumnStyle style, Contrast contrast);
/// The column style that belongs to the theme.
XTPReportColumnStyle OwnColumnStyle(XTPReportPaintTheme theme);

} // namespace reportlook
