// The application's visual theme: the stored choice, and what it means for each component of the toolkit.
#pragma once

#include "../common/KyExport.h"
#include "KyPaintTheme.h"

#include <XTToolkitPro.h>

/// Reads the user's theme and translates it. Everything runs on the user-interface thread; there is no state here:
/// the theme in force is the one in the application's profile.
namespace Themes {

/// The theme stored in the application's profile (section "Settings", entry "RibbonTheme", an identifier such as
/// "Office2010Blue"); `Windows7Blue` when there is no application object or the entry is missing, empty or unknown.
KYUI_API KyPaintTheme GetProfileTheme();

// --- What a theme means for a component; pure functions of their argument, defined for every value -------------------

KYUI_API XTPPaintTheme ToXTPPaintTheme(KyPaintTheme theme);
KYUI_API XTPReportPaintTheme ToXTPReportPaintTheme(KyPaintTheme theme);
KYUI_API XTPReportColumnStyle ToXTPReportColumnStyle(KyPaintTheme theme);
KYUI_API XTPControlTheme ToXTPControlTheme(KyPaintTheme theme);
KYUI_API XTPToolTipStyle ToXTPToolTipStyle(KyPaintTheme theme);
KYUI_API XTPDockingPanePaintTheme ToXTPDockingPanePaintTheme(KyPaintTheme theme);

// --- What the toolkit's global paint theme means for controls; makes the global paint manager when there is none ----

KYUI_API XTPControlTheme GetXTPControlTheme();
KYUI_API XTPListBoxStyle GetXTPListBoxStyle();

} // namespace Themes
