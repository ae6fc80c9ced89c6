// The menu bar of the frame, in the user's language.
#include "window/MainMenu.h"

#include "common/Translation.h"
#include "resource.h"

#include <array>

namespace {

/// Names of products, the same in every language, with the keys that choose them in the menu.
constexpr std::array<const wchar_t*, ID_VIEW_THEME_LAST - ID_VIEW_THEME_FIRST + 1> kThemeNames{
    L"Office 200&0",       L"Office &XP",          L"Office 200&3",        L"Office 2007 &Aqua",
    L"Office 2007 &Black", L"Office 2007 Bl&ue",   L"Office 2007 &Silver", L"Office 2010 Blac&k",
    L"Office 2010 B&lue",  L"Office 2010 Sil&ver", L"Office 20&13",        L"&Windows 7",
};

/// Hands a popup over to the bar.
void AppendPopup(CMenu& bar, CMenu& popup, const CString& text) {
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), text);
}

void AppendFileMenu(CMenu& bar) {
    CMenu file;
    file.CreatePopupMenu();
    file.AppendMenu(MF_STRING, ID_FILE_OPEN, Translate("Menu", "&Open...\tCtrl+O"));
    file.AppendMenu(MF_STRING, ID_FILE_RELOAD, Translate("Menu", "&Reload\tF5"));
    file.AppendMenu(MF_STRING, ID_FILE_STOP, Translate("Menu", "&Stop reading\tEsc"));
    file.AppendMenu(MF_SEPARATOR);
    file.AppendMenu(MF_STRING, ID_FILE_EXPORT_HTML, Translate("Menu", "&Export as HTML...\tCtrl+E"));
    file.AppendMenu(MF_STRING, ID_FILE_VIEW_IN_BROWSER, Translate("Menu", "Open in &browser\tCtrl+B"));
    file.AppendMenu(MF_SEPARATOR);
    file.AppendMenu(MF_STRING, ID_APP_EXIT, Translate("Menu", "E&xit\tAlt+F4"));
    AppendPopup(bar, file, Translate("Menu", "&File"));
}

void AppendEditMenu(CMenu& bar) {
    CMenu edit;
    edit.CreatePopupMenu();
    edit.AppendMenu(MF_STRING, ID_EDIT_COPY_GRID, Translate("Menu", "Copy to the &clipboard\tCtrl+Shift+C"));
    AppendPopup(bar, edit, Translate("Menu", "&Edit"));
}

void AppendViewMenu(CMenu& bar) {
    CMenu themes;
    themes.CreatePopupMenu();
    for (std::size_t i = 0; i < kThemeNames.size(); ++i)
        themes.AppendMenu(MF_STRING, ID_VIEW_THEME_FIRST + i, kThemeNames[i]);
    CMenu rows;
    rows.CreatePopupMenu();
    const CString heights[] = {Translate("Menu", "&Low (22 pixels)"), Translate("Menu", "&Medium (34 pixels)"),
                               Translate("Menu", "&High (48 pixels)")};
    for (UINT i = 0; i < std::size(heights); ++i)
        rows.AppendMenu(MF_STRING, ID_VIEW_ROW_HEIGHT_FIRST + i, heights[i]);
    CMenu view;
    view.CreatePopupMenu();
    view.AppendMenu(MF_STRING, ID_VIEW_DETAILS, Translate("Menu", "Column &details\tAlt+Enter"));
    view.AppendMenu(MF_STRING, ID_VIEW_MESSAGES, Translate("Menu", "&Messages\tCtrl+M"));
    view.AppendMenu(MF_SEPARATOR);
    view.AppendMenu(MF_STRING, ID_VIEW_FILTER, Translate("Menu", "&Filter by name\tCtrl+F"));
    view.AppendMenu(MF_STRING, ID_VIEW_GROUP_BY_TYPE, Translate("Menu", "&Group by type\tCtrl+T"));
    view.AppendMenu(MF_STRING, ID_VIEW_GROUP_BOX, Translate("Menu", "Group &box"));
    view.AppendMenu(MF_SEPARATOR);
    AppendPopup(view, rows, Translate("Menu", "&Row height"));
    AppendPopup(view, themes, Translate("Menu", "&Theme"));
    AppendPopup(bar, view, Translate("Menu", "&View"));
}

void AppendHelpMenu(CMenu& bar) {
    CMenu help;
    help.CreatePopupMenu();
    help.AppendMenu(MF_STRING, ID_HELP_KEYS, Translate("Menu", "&Keys and mouse\tF1"));
    help.AppendMenu(MF_SEPARATOR);
    help.AppendMenu(MF_STRING, ID_APP_ABOUT, Translate("Menu", "&About Column Profiler"));
    AppendPopup(bar, help, Translate("Menu", "&Help"));
}

} // namespace

void MakeMainMenu(CMenu& bar) {
    bar.CreateMenu();
    AppendFileMenu(bar);
    AppendEditMenu(bar);
    AppendViewMenu(bar);
    AppendHelpMenu(bar);
}

CString CommandDescription(UINT command) {
    if (command >= ID_VIEW_THEME_FIRST && command <= ID_VIEW_THEME_LAST)
        return Translate("Shows the grid in this theme.");
    if (command >= ID_VIEW_ROW_HEIGHT_FIRST && command <= ID_VIEW_ROW_HEIGHT_LAST)
        return Translate("Makes the rows this high; the plots use the room.");
    switch (command) {
    case ID_FILE_OPEN:
        return Translate("Opens a CSV file in place of this one.");
    case ID_FILE_RELOAD:
        return Translate("Reads the file again. Dragged limits go back to where they began.");
    case ID_FILE_STOP:
        return Translate("Gives up reading the file. The one that is open stays.");
    case ID_FILE_EXPORT_HTML:
        return Translate("Writes the table as an HTML page, with the plots as pictures in a folder beside it.");
    case ID_FILE_VIEW_IN_BROWSER:
        return Translate("Shows the table as a page in the browser, from where it can be printed.");
    case ID_EDIT_COPY_GRID:
        return Translate("Copies the whole table for word processors and spreadsheets, with the plots as pictures.");
    case ID_APP_EXIT:
        return Translate("Ends the program and keeps the layout of the grid.");
    case ID_VIEW_DETAILS:
        return Translate("Tells everything that is known of the selected column. A double click does as well.");
    case ID_VIEW_MESSAGES:
        return Translate("Shows or hides the list of what was odd about the file.");
    case ID_VIEW_FILTER:
        return Translate("Shows only the columns whose name contains what is typed.");
    case ID_VIEW_GROUP_BY_TYPE:
        return Translate("Puts the columns of one type together, under a line that tells the type.");
    case ID_VIEW_GROUP_BOX:
        return Translate("Shows or hides the box into which headers are dragged to group by their columns.");
    case ID_HELP_KEYS:
        return Translate("Tells what keys and mouse do.");
    case ID_APP_ABOUT:
        return Translate("Tells the version of the program.");
    default:
        return CString();
    }
}

CString ThemeName(int theme) {
    CString name(theme >= 0 && theme < static_cast<int>(kThemeNames.size()) ? kThemeNames[theme] : L"");
    name.Remove(L'&');
    return name;
}
