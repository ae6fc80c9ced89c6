// Translation of the application's theme into the themes of the toolkit's components.
#include "Themes.h"

#include "ThemeCatalogue.h"

namespace Themes {
namespace {

XTPPaintTheme CurrentPaintTheme() {
    if (!CXTPPaintManager::s_pInstance)
        CXTPPaintManager::SetTheme(xtpThemeOffice2000);
    return CXTPPaintManager::s_pInstance->GetCurrentTheme();
}

} // namespace

KyPaintTheme GetProfileTheme() {
    CWinApp* app = AfxGetApp();
    if (!app)
        return KyPaintTheme::Windows7Blue;
    return ThemeFromId(app->GetProfileString(_T("Settings"), _T("RibbonTheme")));
}

XTPPaintTheme ToXTPPaintTheme(KyPaintTheme theme) {
    switch (theme) {
    case KyPaintTheme::Office2000:
        return xtpThemeOffice2000;
    case KyPaintTheme::OfficeXP:
        return xtpThemeOfficeXP;
    case KyPaintTheme::Office2003:
        return xtpThemeOffice2003;
    case KyPaintTheme::Office2013:
        return xtpThemeOffice2013;
    default:
        return xtpThemeOffice2007;
    }
}

XTPReportPaintTheme ToXTPReportPaintTheme(KyPaintTheme theme) {
    switch (theme) {
    case KyPaintTheme::Office2000:
    case KyPaintTheme::OfficeXP:
    case KyPaintTheme::Office2003:
        return xtpReportThemeOfficeXP;
    case KyPaintTheme::Office2013:
        return xtpReportThemeOffice2013;
    case KyPaintTheme::Windows7Blue:
        return xtpReportThemeWindows7;
    default:
        return xtpReportThemeResource;
    }
}

XTPReportColumnStyle ToXTPReportColumnStyle(KyPaintTheme theme) {
    switch (theme) {
    case KyPaintTheme::Office2000:
        return xtpReportColumnShaded;
    case KyPaintTheme::OfficeXP:
        return xtpReportColumnFlat;
    case KyPaintTheme::Office2003:
        return xtpReportColumnOffice2003;
    case KyPaintTheme::Windows7Blue:
        return xtpReportColumnExplorer;
    default:
        return xtpReportColumnResource;
    }
}

XTPControlTheme ToXTPControlTheme(KyPaintTheme theme) {
    switch (theme) {
    case KyPaintTheme::Office2000:
    case KyPaintTheme::OfficeXP:
    case KyPaintTheme::Office2003:
        return xtpControlThemeDefault;
    case KyPaintTheme::Office2013:
        return xtpControlThemeOffice2013;
    default:
        return xtpControlThemeResource;
    }
}

XTPToolTipStyle ToXTPToolTipStyle(KyPaintTheme theme) {
    switch (theme) {
    case KyPaintTheme::Office2000:
    case KyPaintTheme::OfficeXP:
    case KyPaintTheme::Office2003:
        return xtpToolTipStandard;
    case KyPaintTheme::Office2013:
        return xtpToolTipOffice2013;
    default:
        return xtpToolTipResource;
    }
}

XTPDockingPanePaintTheme ToXTPDockingPanePaintTheme(KyPaintTheme theme) {
    switch (theme) {
    case KyPaintTheme::Office2000:
        return xtpPaneThemeOffice2000;
    case KyPaintTheme::OfficeXP:
        return xtpPaneThemeOfficeXP;
    case KyPaintTheme::Office2003:
        return xtpPaneThemeOffice2003;
    case KyPaintTheme::Office2013:
        return xtpPaneThemeOffice2013;
    default:
        return xtpPaneThemeResource;
    }
}

XTPControlTheme GetXTPControlTheme() {
    switch (static_cast<int>(CurrentPaintTheme())) {
    case xtpThemeOffice2007:
    case xtpThemeRibbon:
        return xtpControlThemeResource;
    case xtpThemeOffice2013:
        return xtpControlThemeOffice2013;
    default:
        return xtpControlThemeDefault;
    }
}

XTPListBoxStyle GetXTPListBoxStyle() {
    constexpr int visualStudioTheme = 11; // drawn with the skinned list box as well
    switch (static_cast<int>(CurrentPaintTheme())) {
    case xtpThemeOfficeXP:
        return xtpListBoxOfficeXP;
    case xtpThemeOffice2007:
    case xtpThemeRibbon:
    case visualStudioTheme:
        return xtpListBoxOffice2007;
    case xtpThemeOffice2013:
        return xtpListBoxOffice2013;
    default:
        return xtpListBoxStandard;
    }
}

} // namespace Themes
