// The catalogue of themes: for each its stored identifier and its display name. Internal to the library.
#pragma once

#include "KyPaintTheme.h"

namespace Themes {

/// The theme with exactly this identifier (case matters); `Windows7Blue` if there is none.
KyPaintTheme ThemeFromId(const wchar_t* id);
/// The identifier under which the theme is stored in the profile; empty for a value that is no theme.
const wchar_t* ThemeId(KyPaintTheme theme);
/// The name that users see; empty for a value that is no theme.
const wchar_t* ThemeDisplayName(KyPaintTheme theme);

} // namespace Themes
