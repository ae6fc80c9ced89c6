// The looks of a report control as data: which colour each role has in each theme and column style.
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
    Highlight,
    HighlightText,
    InactiveHighlight,
    InactiveHighlightText,
    FocusFrame, ///< around the focused row; none: the system's dotted rectangle
    GridLine,
    Hyperlink,
    DisabledText,
    DropMark,

    Header, ///< the lower end of the header's gradient
    HeaderLight,
    HeaderHot,
    HeaderHotLight,
    HeaderPressed,
    HeaderPressedLight,
    HeaderDivider,
    HeaderDividerLight, ///< beside the divider where the style draws it in two tones
    HeaderFrame,        ///< around a hot or pressed column; none: no frame
    HeaderLine,         ///< under the header
    HeaderText,
    SortArrow,
    Count
};
constexpr std::size_t BodyRoles = static_cast<std::size_t>(Role::Header);
constexpr std::size_t HeaderRoles = static_cast<std::size_t>(Role::Count) - BodyRoles;

using BodyColors = std::array<LookColor, BodyRoles>;
using HeaderColors = std::array<LookColor, HeaderRoles>;

/// How the edges of a header column are drawn.
enum class HeaderEdge {
    Raised,       ///< a button: light and dark edges, swapped while pressed
    Boxed,        ///< full-height lines
    Thin,         ///< full-height lines, a frame when hot or pressed
    ShortDivider, ///< two-tone dividers that leave the ends free
    Inset         ///< full-height divider with a light line beside it
};

struct ColumnLook {
    XTPReportColumnStyle style;
    HeaderEdge edge;
    HeaderColors colors;
};

struct ThemeLook {
    XTPReportPaintTheme theme;
    XTPReportColumnStyle columnStyle; ///< the theme's own
    BodyColors body;
    /// The header's colours while the column style is the theme's own; null: those of the style.
    const HeaderColors* ownHeader;
};

/// Numbers without a look of their own get that of xtpReportThemeDefault.
const ThemeLook& LookOf(XTPReportPaintTheme theme);
/// Numbers without a look of their own get that of xtpReportColumnShaded.
const ColumnLook& LookOf(XTPReportColumnStyle style);

} // namespace reportlook
