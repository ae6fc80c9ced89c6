// Theme and style identifiers of the toolkit's components. The numbers are part of the interface: hosts store and
// compute with them.
#pragma once

/// Theme of the command bars and of the global paint manager.
enum XTPPaintTheme : int {
    xtpThemeOffice2000 = 0,
    xtpThemeOfficeXP = 1,
    xtpThemeOffice2003 = 2,
    xtpThemeOffice2007 = 5, ///< skinned by an INI resource
    xtpThemeRibbon = 6,     ///< the ribbon variant of the skinned theme
    xtpThemeOffice2013 = 12
};

/// Theme of dialog controls.
enum XTPControlTheme : int {
    xtpControlThemeDefault = 0,
    xtpControlThemeResource = 7, ///< skinned by an INI resource
    xtpControlThemeOffice2013 = 12
};

/// Look of list boxes.
enum XTPListBoxStyle : int {
    xtpListBoxStandard = 0,
    xtpListBoxOfficeXP = 1,
    xtpListBoxOffice2007 = 2,
    xtpListBoxOffice2013 = 3
};

/// Look of tool tips. Styles 6 and 7 are chosen by hosts that draw markup or HTML in their tips.
enum XTPToolTipStyle : int {
    xtpToolTipStandard = 0,
    xtpToolTipResource = 5,
    xtpToolTipMarkup = 6,
    xtpToolTipHTML = 7,
    xtpToolTipOffice2013 = 8
};

/// Theme of docking panes.
enum XTPDockingPanePaintTheme : int {
    xtpPaneThemeOfficeXP = 1,
    xtpPaneThemeOffice2003 = 2,
    xtpPaneThemeOffice2000 = 4,
    xtpPaneThemeResource = 11,
    xtpPaneThemeOffice2013 = 19
};

/// Theme of report controls.
enum XTPReportPaintTheme : int {
    xtpReportThemeDefault = 0,
    xtpReportThemeOfficeXP = 1,
    xtpReportThemeOffice2013 = 4,
    xtpReportThemeWindows7 = 8,
    xtpReportThemeResource = 9
};

/// Look of a report control's column headers.
enum XTPReportColumnStyle : int {
    xtpReportColumnShaded = 0,
    xtpReportColumnFlat = 1,
    xtpReportColumnExplorer = 2,
    xtpReportColumnOffice2003 = 3,
    xtpReportColumnResource = 4
};
