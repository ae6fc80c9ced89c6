/// @file
/// Theme and style identifiers of the toolkit's components. The numbers are part of the interface: hosts store and
/// compute with them.
#pragma once

/// @addtogroup toolkit_common
/// @{

/// Theme of the command bars and of the global paint manager.
enum XTPPaintTheme : int {
    xtpThemeOffice2000 = 0, ///< in force when nobody has chosen any
    xtpThemeOfficeXP = 1,   ///< flat, system colours
    xtpThemeOffice2003 = 2, ///< gradients in the colours of the desktop theme
    xtpThemeOffice2007 = 5, ///< skinned by an INI resource
    xtpThemeRibbon = 6,     ///< the ribbon variant of the skinned theme
    xtpThemeOffice2013 = 12 ///< flat and white
};

/// Theme of dialog controls.
enum XTPControlTheme : int {
    xtpControlThemeDefault = 0,    ///< the system's look
    xtpControlThemeResource = 7,   ///< skinned by an INI resource
    xtpControlThemeOffice2013 = 12 ///< flat and white
};

/// Look of list boxes.
enum XTPListBoxStyle : int {
    xtpListBoxStandard = 0,   ///< the system's look
    xtpListBoxOfficeXP = 1,   ///< flat selection
    xtpListBoxOffice2007 = 2, ///< skinned selection
    xtpListBoxOffice2013 = 3  ///< flat and white
};

/// Look of tool tips. Styles 6 and 7 are chosen by hosts that draw markup or HTML in their tips.
enum XTPToolTipStyle : int {
    xtpToolTipStandard = 0,  ///< the system's colours, square corners
    xtpToolTipResource = 5,  ///< skinned: a gradient, rounded corners
    xtpToolTipMarkup = 6,    ///< for tips that the host draws as markup
    xtpToolTipHTML = 7,      ///< for tips that the host draws as HTML
    xtpToolTipOffice2013 = 8 ///< flat and white
};

/// Theme of docking panes.
enum XTPDockingPanePaintTheme : int {
    xtpPaneThemeOfficeXP = 1,   ///< flat captions
    xtpPaneThemeOffice2003 = 2, ///< captions with gradients
    xtpPaneThemeOffice2000 = 4, ///< raised captions
    xtpPaneThemeResource = 11,  ///< skinned by an INI resource
    xtpPaneThemeOffice2013 = 19 ///< flat and white
};

/// Theme of report controls.
enum XTPReportPaintTheme : int {
    xtpReportThemeDefault = 0,    ///< system colours
    xtpReportThemeOfficeXP = 1,   ///< system colours, flat header
    xtpReportThemeOffice2013 = 4, ///< flat and white
    xtpReportThemeWindows7 = 8,   ///< as lists of the Explorer
    xtpReportThemeResource = 9    ///< skinned
};

/// Look of a report control's column headers.
enum XTPReportColumnStyle : int {
    xtpReportColumnShaded = 0,     ///< raised buttons
    xtpReportColumnFlat = 1,       ///< boxes between lines
    xtpReportColumnExplorer = 2,   ///< thin lines, a frame under the pointer
    xtpReportColumnOffice2003 = 3, ///< a gradient with short dividers
    xtpReportColumnResource = 4    ///< skinned
};

/// @}
