// The catalogue of themes. No window needed.
#include "ThemeCatalogue.h"

#include <cwchar>

namespace Themes {
namespace {

struct ThemeEntry {
    KyPaintTheme theme;
    const wchar_t* id;
    const wchar_t* displayName;
};

// Scans stop at the row with an empty identifier; no count is kept.
constexpr ThemeEntry themeTable[] = {
    {KyPaintTheme::Office2000, L"Office2000", L"Office 2000"},
    {KyPaintTheme::OfficeXP, L"OfficeXP", L"Office XP"},
    {KyPaintTheme::Office2003, L"Office2003", L"Office 2003"},
    {KyPaintTheme::Office2007Aqua, L"Office2007Aqua", L"Office 2007 Aqua"},
    {KyPaintTheme::Office2007Black, L"Office2007Black", L"Office 2007 Black"},
    {KyPaintTheme::Office2007Blue, L"Office2007Blue", L"Office 2007 Blue"},
    {KyPaintTheme::Office2007Silver, L"Office2007Silver", L"Office 2007 Silver"},
    {KyPaintTheme::Office2010Black, L"Office2010Black", L"Office 2010 Black"},
    {KyPaintTheme::Office2010Blue, L"Office2010Blue", L"Office 2010 Blue"},
    {KyPaintTheme::Office2010Silver, L"Office2010Silver", L"Office 2010 Silver"},
    {KyPaintTheme::Office2013, L"Office2013", L"Office 2013"},
    {KyPaintTheme::Windows7Blue, L"Windows7Blue", L"Windows 7"},
    {static_cast<KyPaintTheme>(12), L"", L""},
};

// The row that satisfies the predicate, or the terminating one.
template <typename Predicate>
const ThemeEntry& FindEntry(Predicate matches) {
    const ThemeEntry* entry = themeTable;
    while (*entry->id && !matches(*entry))
        ++entry;
    return *entry;
}

const ThemeEntry& EntryOf(KyPaintTheme theme) {
    return FindEntry([theme](const ThemeEntry& entry) { return entry.theme == theme; });
}

} // namespace

KyPaintTheme ThemeFromId(const wchar_t* id) {
    const ThemeEntry& entry = FindEntry([id](const ThemeEntry& row) { return std::wcscmp(row.id, id) == 0; });
    return *entry.id ? entry.theme : KyPaintTheme::Windows7Blue;
}

const wchar_t* ThemeId(KyPaintTheme theme) { return EntryOf(theme).id; }

const wchar_t* ThemeDisplayName(KyPaintTheme theme) { return EntryOf(theme).displayName; }

} // namespace Themes
