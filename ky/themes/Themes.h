/// @file
/// The application's visual theme: the stored choice, and what it means for each component of the toolkit.
#pragma once

#include "../common/KyExport.h"
#include "KyPaintTheme.h"

#include <XTToolkitPro.h>

/// Reads the user's theme and translates it. Everything runs on the user-interface thread; there is no state here:
/// the theme in force is the one in the application's profile.
/// @ingroup ky_themes
namespace Themes {

/// The theme stored in the application's profile (section "Settings", entry "RibbonTheme", an identifier such as
/// "Office2010Blue"); `Windows7Blue` when there is no application object or the entry is missing, empty or unknown.
KYUI_API KyPaintTheme GetProfileTheme();

// --- What a theme means for a component; pure functions of their argument, defined for every value -------------------

/// For command bars and the global paint manager. The three oldest themes and Office 2013 have their own, every other
/// value is the skinned Office 2007 theme.
KYUI_API XTPPaintTheme ToXTPPaintTheme(KyPaintTheme theme);
/// For report controls: the three oldest share one, Office 2013 and Windows 7 have their own, every other value is the
/// skinned one.
KYUI_API XTPReportPaintTheme ToXTPReportPaintTheme(KyPaintTheme theme);
/// For the column headers of report controls. Every value but the three oldest and Windows 7 is the skinned style,
/// Office 2013 as well.
KYUI_API XTPReportColumnStyle ToXTPReportColumnStyle(KyPaintTheme theme);
/// For dialog controls: the three oldest have the system's look, Office 2013 has its own, every other value is skinned.
KYUI_API XTPControlTheme ToXTPControlTheme(KyPaintTheme theme);
/// For tool tips, in the same three groups.
KYUI_API XTPToolTipStyle ToXTPToolTipStyle(KyPaintTheme theme);
/// For docking panes: the three oldest and Office 2013 have their own, every other value is the skinned one.
KYUI_API XTPDockingPanePaintTheme ToXTPDockingPanePaintTheme(KyPaintTheme theme);

// --- What the toolkit's global paint theme means for controls; makes the global paint manager when there is none ----

/// Skinned while the global theme is skinned (5 or 6), that of Office 2013 with it (12), else the system's look.
KYUI_API XTPControlTheme GetXTPControlTheme();
/// That of Office XP, 2007 (also for the global themes 6 and 11) or 2013 with the global theme of that name, else the
/// system's look.
KYUI_API XTPListBoxStyle GetXTPListBoxStyle();

} // namespace Themes
