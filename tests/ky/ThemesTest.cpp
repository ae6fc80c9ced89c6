// The theme catalogue, the stored theme, and every mapping for the values −1…13.
#include "KyTestApp.h"

#include <themes/ThemeCatalogue.h>
#include <themes/Themes.h>

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr int firstValue = -1;
using Mapped = std::array<int, 15>; // for −1, 0, …, 13

KyPaintTheme ThemeAt(size_t i) { return static_cast<KyPaintTheme>(firstValue + static_cast<int>(i)); }

template <typename Mapping>
Mapped MapAll(Mapping mapping) {
    Mapped result{};
    for (size_t i = 0; i < result.size(); ++i)
        result[i] = static_cast<int>(mapping(ThemeAt(i)));
    return result;
}

template <typename Query>
Mapped QueryForPaintThemes(Query query) {
    Mapped result{};
    for (size_t i = 0; i < result.size(); ++i) {
        CXTPPaintManager::SetTheme(static_cast<XTPPaintTheme>(firstValue + static_cast<int>(i)));
        result[i] = static_cast<int>(query());
    }
    return result;
}

class ThemesTest : public ProfileTest {};

} // namespace

TEST(ThemeCatalogue, HoldsTwelveThemesWithIdentifierAndDisplayName) {
    const wchar_t* rows[][2] = {
        {L"Office2000", L"Office 2000"},
        {L"OfficeXP", L"Office XP"},
        {L"Office2003", L"Office 2003"},
        {L"Office2007Aqua", L"Office 2007 Aqua"},
        {L"Office2007Black", L"Office 2007 Black"},
        {L"Office2007Blue", L"Office 2007 Blue"},
        {L"Office2007Silver", L"Office 2007 Silver"},
        {L"Office2010Black", L"Office 2010 Black"},
        {L"Office2010Blue", L"Office 2010 Blue"},
        {L"Office2010Silver", L"Office 2010 Silver"},
        {L"Office2013", L"Office 2013"},
        {L"Windows7Blue", L"Windows 7"},
    };
    for (int value = 0; value < 12; ++value) {
        const auto theme = static_cast<KyPaintTheme>(value);
        EXPECT_STREQ(Themes::ThemeId(theme), rows[value][0]);
        EXPECT_STREQ(Themes::ThemeDisplayName(theme), rows[value][1]);
        EXPECT_EQ(Themes::ThemeFromId(rows[value][0]), theme);
    }
}

TEST(ThemeCatalogue, HasEmptyTextsForValuesOutsideIt) {
    for (int value : {-99, -1, 12, 13, 1000}) {
        EXPECT_STREQ(Themes::ThemeId(static_cast<KyPaintTheme>(value)), L"");
        EXPECT_STREQ(Themes::ThemeDisplayName(static_cast<KyPaintTheme>(value)), L"");
    }
}

TEST(ThemeCatalogue, FallsBackToWindows7BlueForUnknownIdentifiers) {
    for (const wchar_t* id : {L"", L"Office 2010 Blue", L"office2010blue", L"Windows7Blue ", L"12"})
        EXPECT_EQ(Themes::ThemeFromId(id), KyPaintTheme::Windows7Blue) << id;
}

TEST(ThemeMappings, ToXTPPaintTheme) {
    EXPECT_EQ(MapAll(Themes::ToXTPPaintTheme), (Mapped{5, 0, 1, 2, 5, 5, 5, 5, 5, 5, 5, 12, 5, 5, 5}));
}

TEST(ThemeMappings, ToXTPReportPaintTheme) {
    EXPECT_EQ(MapAll(Themes::ToXTPReportPaintTheme), (Mapped{9, 1, 1, 1, 9, 9, 9, 9, 9, 9, 9, 4, 8, 9, 9}));
}

TEST(ThemeMappings, ToXTPReportColumnStyle) {
    EXPECT_EQ(MapAll(Themes::ToXTPReportColumnStyle), (Mapped{4, 0, 1, 3, 4, 4, 4, 4, 4, 4, 4, 4, 2, 4, 4}));
}

TEST(ThemeMappings, ToXTPControlTheme) {
    EXPECT_EQ(MapAll(Themes::ToXTPControlTheme), (Mapped{7, 0, 0, 0, 7, 7, 7, 7, 7, 7, 7, 12, 7, 7, 7}));
}

TEST(ThemeMappings, ToXTPToolTipStyle) {
    EXPECT_EQ(MapAll(Themes::ToXTPToolTipStyle), (Mapped{5, 0, 0, 0, 5, 5, 5, 5, 5, 5, 5, 8, 5, 5, 5}));
}

TEST(ThemeMappings, ToXTPDockingPanePaintTheme) {
    EXPECT_EQ(MapAll(Themes::ToXTPDockingPanePaintTheme),
              (Mapped{11, 4, 1, 2, 11, 11, 11, 11, 11, 11, 11, 19, 11, 11, 11}));
}

TEST(ThemeMappings, GetXTPControlThemeFollowsTheGlobalPaintTheme) {
    EXPECT_EQ(QueryForPaintThemes(Themes::GetXTPControlTheme), (Mapped{0, 0, 0, 0, 0, 0, 7, 7, 0, 0, 0, 0, 0, 12, 0}));
}

TEST(ThemeMappings, GetXTPListBoxStyleFollowsTheGlobalPaintTheme) {
    EXPECT_EQ(QueryForPaintThemes(Themes::GetXTPListBoxStyle), (Mapped{0, 0, 1, 0, 0, 0, 2, 2, 0, 0, 0, 0, 2, 3, 0}));
}

TEST_F(ThemesTest, AnEmptyProfileMeansWindows7Blue) {
    EXPECT_EQ(Themes::GetProfileTheme(), KyPaintTheme::Windows7Blue);
}

TEST_F(ThemesTest, TheStoredIdentifierNamesTheTheme) {
    AfxGetApp()->WriteProfileString(_T("Settings"), _T("RibbonTheme"), _T("Windows7Blue"));
    EXPECT_EQ(Themes::GetProfileTheme(), KyPaintTheme::Windows7Blue);
    AfxGetApp()->WriteProfileString(_T("Settings"), _T("RibbonTheme"), _T("Office2003"));
    EXPECT_EQ(Themes::GetProfileTheme(), KyPaintTheme::Office2003);
}

TEST_F(ThemesTest, ADisplayNameOrANumberIsNoIdentifier) {
    for (const TCHAR* text : {_T("Office 2010 Blue"), _T("8"), _T("")}) {
        AfxGetApp()->WriteProfileString(_T("Settings"), _T("RibbonTheme"), text);
        EXPECT_EQ(Themes::GetProfileTheme(), KyPaintTheme::Windows7Blue) << text;
    }
}
