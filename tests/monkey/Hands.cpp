// What a user does: valid events of mouse, keyboard and system, aimed at the places where things happen.
#include "Hands.h"

#include "PlotPeek.h"
#include "Sentinel.h"

#include "common/KyMessages.h"
#include "resource.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <shellapi.h>
#include <shlobj.h>

namespace {

void Note(const char* what, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    char text[256], name[64] = "";
    ::GetClassNameA(window, name, sizeof(name));
    std::snprintf(text, sizeof(text), "%s: %s 0x%04x 0x%llx 0x%llx", what, name, message,
                  static_cast<unsigned long long>(wParam), static_cast<unsigned long long>(lParam));
    sentinel::Note(text);
}

LPARAM PointParam(CPoint point) { return MAKELPARAM(point.x, point.y); }

/// The shipped files, dropped.
HDROP DroppedFile(const std::wstring& path) {
    const std::size_t bytes = (path.size() + 2) * sizeof(wchar_t);
    HGLOBAL memory = ::GlobalAlloc(GHND, sizeof(DROPFILES) + bytes);
    auto* header = static_cast<DROPFILES*>(::GlobalLock(memory));
    header->pFiles = sizeof(DROPFILES);
    header->fWide = TRUE;
    std::memcpy(header + 1, path.c_str(), path.size() * sizeof(wchar_t));
    ::GlobalUnlock(memory);
    return static_cast<HDROP>(memory);
}

} // namespace

void Deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    Note("event", window, message, wParam, lParam);
    MSG msg = {window, message, wParam, lParam, ::GetTickCount(), {0, 0}};
    if (!::IsWindow(window) || AfxGetThread()->PreTranslateMessage(&msg))
        return;
    ::TranslateMessage(&msg);
    ::DispatchMessage(&msg);
}

void Pump() {
    MSG message;
    for (int i = 0; i < 200; ++i) {
        const bool isThere = ::PeekMessage(&message, nullptr, 0, WM_TIMER - 1, PM_REMOVE) ||
                             ::PeekMessage(&message, nullptr, WM_TIMER + 1, 0xFFFF, PM_REMOVE);
        if (!isThere || message.message == WM_QUIT)
            return;
        const bool isMouse = (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) ||
                             (message.message >= WM_NCMOUSEMOVE && message.message <= WM_NCXBUTTONDBLCLK);
        if (isMouse || AfxGetThread()->PreTranslateMessage(&message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
}

Hands::Hands(Dice& dice, Zoo& zoo) : m_dice(dice), m_zoo(zoo) {}

void Hands::Act() {
    const int kind = m_dice.Below(1000);
    if (kind < 400)
        Mouse();
    else if (kind < 560)
        Gesture();
    else if (kind < 620)
        Wheel();
    else if (kind < 640)
        Border();
    else if (kind < 870)
        Key();
    else if (kind < 890)
        Menu();
    else if (kind < 940)
        Window();
    else if (kind < 985)
        System();
    else
        Program();
    Pump();
    m_zoo.AwaitReading();
}

void Hands::Rest() {
    if (m_button != 0) {
        const HWND target = ::GetCapture();
        const UINT message = m_button == 1 ? WM_LBUTTONUP : m_button == 2 ? WM_RBUTTONUP : WM_MBUTTONUP;
        m_button = 0;
        SetKeys();
        if (target)
            Deliver(target, message, MouseFlags(), PointParam(m_last));
    }
    m_isShift = m_isCtrl = false;
    SetKeys();
    if (const HWND capture = ::GetCapture())
        ::SendMessage(capture, WM_CANCELMODE, 0, 0);
    ::ReleaseCapture();
    Pump();
}

// --- Aiming ---------------------------------------------------------------------------------------------------------

CXTPReportControl* Hands::AnyGrid() {
    const std::vector<CXTPReportControl*> grids = m_zoo.Grids();
    if (grids.empty())
        return nullptr;
    if (ProfilerFrame* frame = m_zoo.Profiler(); frame && m_dice.OneIn(2)) {
        if (auto* grid = dynamic_cast<CXTPReportControl*>(frame->GetDlgItem(AFX_IDW_PANE_FIRST)))
            return grid;
    }
    return m_dice.From(grids);
}

CPoint Hands::Aim(CXTPReportControl& grid) {
    const CRect header = grid.GetHeaderRect();
    CRect client;
    grid.GetClientRect(&client);
    const CXTPReportColumns& columns = *grid.GetColumns();
    CXTPReportColumn* column = columns.GetVisibleAt(m_dice.Below(columns.GetVisibleColumnsCount()));
    const CRect rcColumn = column ? column->GetRect() : header;
    const CXTPReportRow* row =
        grid.GetRows()->GetAt(grid.GetTopRowIndex() + m_dice.Below(grid.GetFullyVisibleRowCount() + 1));
    const CRect rcRow = row ? row->GetRect() : client;
    switch (m_dice.Below(11)) {
    case 0:
        return rcColumn.CenterPoint();
    case 10: // the group-by box and its buttons
        return CPoint(m_dice.Below(client.right), grid.GetGroupByRect().CenterPoint().y);
    case 1: // the divider and what is near
        return CPoint(rcColumn.right + m_dice.Between(-6, 6), header.CenterPoint().y);
    case 2:
        return CPoint(m_dice.Between(-40, client.right + 40), m_dice.Between(-40, client.bottom + 40));
    case 3: // the edges of cells
        return CPoint(rcColumn.left + m_dice.Between(-1, 1), rcRow.top + m_dice.Between(-1, 1));
    case 4:
    case 5:
    case 6:
        return AimAtMark(grid);
    case 7: // below the rows, in the last pixels
        return CPoint(m_dice.Below(client.right), client.bottom - 1);
    default:
        return CPoint(rcColumn.left + m_dice.Below(rcColumn.Width()), rcRow.CenterPoint().y);
    }
}

CPoint Hands::AimAtMark(CXTPReportControl& grid) {
    const CXTPReportRow* row =
        grid.GetRows()->GetAt(grid.GetTopRowIndex() + m_dice.Below(grid.GetFullyVisibleRowCount()));
    const CXTPReportRecord* record = row ? row->GetRecord() : nullptr;
    for (int i = 0; record && i < record->GetItemCount(); ++i) {
        auto* plot = dynamic_cast<KyPlotRecordItem*>(record->GetItem(i));
        if (!plot)
            continue;
        const CRect rc = row->GetItemRect(plot);
        const double fraction = plotpeek::FractionOfMark(*plot, m_dice.Below(3));
        return CPoint(rc.left + static_cast<int>(fraction * rc.Width()) + m_dice.Between(-3, 3), rc.CenterPoint().y);
    }
    return row ? row->GetRect().CenterPoint() : grid.GetReportRectangle().CenterPoint();
}

// --- Mouse ----------------------------------------------------------------------------------------------------------

WPARAM Hands::MouseFlags() const {
    const WPARAM buttons[] = {0, MK_LBUTTON, MK_RBUTTON, MK_MBUTTON};
    return buttons[m_button] | (m_isShift ? MK_SHIFT : 0) | (m_isCtrl ? MK_CONTROL : 0);
}

void Hands::SetKeys() const {
    BYTE keys[256] = {};
    keys[VK_SHIFT] = m_isShift ? 0x80 : 0;
    keys[VK_CONTROL] = m_isCtrl ? 0x80 : 0;
    keys[VK_LBUTTON] = m_button == 1 ? 0x80 : 0;
    keys[VK_RBUTTON] = m_button == 2 ? 0x80 : 0;
    ::SetKeyboardState(keys);
}

void Hands::MoveTo(HWND window, CPoint point) {
    ::SendMessage(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    if (::IsWindow(window))
        Deliver(window, WM_MOUSEMOVE, MouseFlags(), PointParam(point));
    m_last = point;
}

void Hands::Mouse() {
    CXTPReportControl* grid = AnyGrid();
    if (!grid)
        return;
    CPoint point = Aim(*grid);
    HWND window = grid->m_hWnd;
    if (const HWND capture = ::GetCapture()) { // the mouse belongs to one window, wherever it is
        ::MapWindowPoints(window, capture, &point, 1);
        window = capture;
    }
    if (m_dice.OneIn(4)) // without moving there first
        m_last = point;
    else
        MoveTo(window, point);
    if (!::IsWindow(window) || m_dice.OneIn(2))
        return;
    if (m_button == 0) {
        m_button = m_dice.Of({1, 1, 1, 1, 2, 3});
        SetKeys();
        ::SendMessage(window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(::GetAncestor(window, GA_ROOT)),
                      MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
        const UINT downs[] = {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONDOWN};
        const UINT doubles[] = {WM_LBUTTONDBLCLK, WM_RBUTTONDBLCLK, WM_MBUTTONDBLCLK};
        const UINT message = m_dice.OneIn(6) ? doubles[m_button - 1] : downs[m_button - 1];
        Deliver(window, message, MouseFlags(), PointParam(m_last));
        return;
    }
    for (int moves = m_dice.Below(4); moves > 0 && ::IsWindow(window); --moves) {
        m_last.Offset(m_dice.Between(-60, 60), m_dice.Between(-20, 20));
        MoveTo(window, m_last);
    }
    const UINT ups[] = {WM_LBUTTONUP, WM_RBUTTONUP, WM_MBUTTONUP};
    const UINT message = ups[m_button - 1];
    m_button = 0;
    SetKeys();
    Deliver(window, message, MouseFlags(), PointParam(m_last));
    if (m_dice.OneIn(8) && ::IsWindow(window) && !::GetCapture())
        Deliver(window, WM_MOUSELEAVE, 0, 0);
}

/// A whole click or drag of the left button, as most of a user's are.
void Hands::Gesture() {
    CXTPReportControl* grid = AnyGrid();
    if (!grid || m_button != 0)
        return;
    const HWND window = grid->m_hWnd;
    const CPoint start = m_dice.OneIn(2) ? AimAtMark(*grid) : Aim(*grid);
    MoveTo(window, start);
    m_button = 1;
    SetKeys();
    if (::IsWindow(window))
        Deliver(window, WM_LBUTTONDOWN, MouseFlags(), PointParam(start));
    const CSize step(m_dice.Between(-30, 30), m_dice.OneIn(2) ? 0 : m_dice.Between(-15, 15));
    for (int moves = m_dice.Below(6); moves > 0 && ::IsWindow(window); --moves)
        MoveTo(window, m_last + step);
    if (m_dice.OneIn(12) && ::IsWindow(window))
        Deliver(window, WM_KEYDOWN, VK_ESCAPE, 1);
    if (m_dice.OneIn(12) && ::IsWindow(window))
        Deliver(window, WM_MOUSELEAVE, 0, 0);
    m_button = 0;
    SetKeys();
    if (::IsWindow(window))
        Deliver(window, WM_LBUTTONUP, MouseFlags(), PointParam(m_last));
}

void Hands::Wheel() {
    if (CXTPReportControl* grid = AnyGrid()) {
        CPoint point = Aim(*grid);
        grid->ClientToScreen(&point);
        const int delta = m_dice.Of({120, -120, 30, -30, 1200, -1200});
        Deliver(grid->m_hWnd, m_dice.OneIn(4) ? WM_MOUSEHWHEEL : WM_MOUSEWHEEL,
                MAKEWPARAM(MouseFlags(), static_cast<WORD>(delta)), PointParam(point));
    }
}

void Hands::Border() {
    CXTPReportControl* grid = AnyGrid();
    if (!grid || m_button != 0)
        return;
    const HWND frame = ::GetAncestor(grid->m_hWnd, GA_ROOT);
    const int hit = m_dice.Of({HTVSCROLL, HTHSCROLL, HTVSCROLL, HTCAPTION, HTBOTTOMRIGHT, HTMENU, HTSYSMENU});
    const HWND window = hit == HTVSCROLL || hit == HTHSCROLL ? grid->m_hWnd : frame;
    CRect rc;
    ::GetWindowRect(window, &rc);
    const CPoint point(hit == HTHSCROLL ? rc.left + m_dice.Below(rc.Width()) : rc.right - 8,
                       hit == HTHSCROLL ? rc.bottom - 8 : rc.top + m_dice.Below(rc.Height()));
    Deliver(window, WM_NCMOUSEMOVE, static_cast<WPARAM>(hit), PointParam(point));
    Deliver(window, m_dice.OneIn(8) ? WM_NCLBUTTONDBLCLK : WM_NCLBUTTONDOWN, static_cast<WPARAM>(hit),
            PointParam(point));
}

// --- Keyboard -------------------------------------------------------------------------------------------------------

void Hands::Key() {
    static constexpr UINT Keys[] = {VK_UP,     VK_DOWN,  VK_LEFT, VK_RIGHT,    VK_PRIOR, VK_NEXT,   VK_HOME,
                                    VK_END,    VK_SPACE, VK_F3,   VK_ADD,      VK_F1,    VK_F2,     VK_RETURN,
                                    VK_ESCAPE, VK_TAB,   VK_APPS, VK_OEM_PLUS, VK_F10,   VK_DELETE, 'A',
                                    'B',       'T',      '1',     VK_LEFT,     VK_RIGHT, VK_DOWN,   VK_UP};
    if (m_dice.OneIn(3)) {
        m_isShift = m_dice.OneIn(3);
        m_isCtrl = m_dice.OneIn(3);
        SetKeys();
    }
    CXTPReportControl* grid = AnyGrid();
    HWND window = ::GetFocus();
    if (grid && (!window || m_dice.OneIn(3)))
        window = grid->m_hWnd;
    if (!window)
        return;
    const UINT key = m_dice.From(Keys);
    const bool isAlt = m_dice.OneIn(5) && !m_isCtrl && key != VK_TAB && key != VK_ESCAPE && key != VK_SPACE;
    if (isAlt || key == VK_F10) {
        BYTE keys[256] = {};
        ::GetKeyboardState(keys);
        keys[VK_MENU] = isAlt ? 0x80 : 0;
        ::SetKeyboardState(keys);
        Deliver(window, WM_SYSKEYDOWN, key, isAlt ? 0x20000001 : 1);
        if (::IsWindow(window))
            Deliver(window, WM_SYSKEYUP, key, isAlt ? 0xE0000001 : 0xC0000001);
        SetKeys();
        return;
    }
    Deliver(window, WM_KEYDOWN, key, 1);
    Pump(); // the character
    if (::IsWindow(window))
        Deliver(window, WM_KEYUP, key, 0xC0000001);
}

// --- Menus, windows, system -----------------------------------------------------------------------------------------

void Hands::Menu() {
    CXTPReportControl* grid = AnyGrid();
    if (!grid)
        return;
    if (m_dice.OneIn(3)) {
        ProfilerFrame* frame = m_zoo.Profiler();
        if (frame)
            Deliver(frame->m_hWnd, WM_SYSCOMMAND, SC_KEYMENU, m_dice.Of<LPARAM>({'f', 'v', 'h', 'd', 'a', ' '}));
        return;
    }
    CPoint point = Aim(*grid);
    grid->ClientToScreen(&point);
    if (m_dice.OneIn(2))
        point = CPoint(-1, -1);
    Deliver(grid->m_hWnd, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(grid->m_hWnd), PointParam(point));
}

void Hands::Window() {
    CXTPReportControl* grid = AnyGrid();
    ProfilerFrame* frame = m_zoo.Profiler();
    if (!grid || !frame)
        return;
    sentinel::Note("event: windows");
    switch (m_dice.Below(9)) {
    case 0:
        frame->MoveWindow(m_dice.Below(200), m_dice.Below(200), m_dice.Between(0, 1200), m_dice.Between(0, 800));
        break;
    case 1:
        grid->MoveWindow(0, 0, m_dice.Between(0, 900), m_dice.Between(0, 500));
        break;
    case 2:
        frame->ShowWindow(m_dice.Of({SW_MINIMIZE, SW_MAXIMIZE, SW_RESTORE, SW_HIDE, SW_SHOW}));
        frame->ShowWindow(SW_RESTORE);
        break;
    case 3:
        grid->SetFocus();
        break;
    case 4:
        frame->SetFocus();
        break;
    case 5:
        ::ReleaseCapture();
        break;
    case 6: // another window takes the mouse away
        frame->SetCapture();
        ::ReleaseCapture();
        break;
    case 7:
        ::SendMessage(grid->m_hWnd, WM_CANCELMODE, 0, 0);
        break;
    default:
        grid->EnableWindow(FALSE);
        grid->UpdateWindow();
        grid->EnableWindow(TRUE);
        break;
    }
    if (!::GetCapture())
        m_button = 0;
}

void Hands::System() {
    // The numbers of the timers that grids and tips set, and one that nobody has.
    static constexpr WPARAM Timers[] = {0x7E51, 0x7E52, 0x7E53, 1, 2, 99};
    const std::vector<HWND> windows = m_zoo.Windows();
    if (windows.empty())
        return;
    const HWND window = m_dice.From(windows);
    switch (m_dice.Below(10)) {
    case 9: { // the window comes to a monitor of another resolution
        RECT place = {0, 0, 800, 500};
        const int dpi = m_dice.Of({96, 96, 120, 144, 192});
        Deliver(window, 0x02E0 /* WM_DPICHANGED */, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
        break;
    }
    case 0:
    case 1:
    case 2:
        Deliver(window, WM_TIMER, m_dice.From(Timers), 0);
        break;
    case 3:
        Deliver(window, WM_SYSCOLORCHANGE, 0, 0);
        break;
    case 4:
        Deliver(window, WM_SETTINGCHANGE, m_dice.Of<WPARAM>({0, SPI_SETNONCLIENTMETRICS, SPI_SETWHEELSCROLLLINES}), 0);
        break;
    case 5:
        Deliver(window, WM_KYTHEMECHANGED, static_cast<WPARAM>(m_dice.Between(-1, 12)), 0);
        break;
    case 6:
        Deliver(window, WM_FONTCHANGE, 0, 0);
        break;
    case 7:
        Deliver(window, WM_THEMECHANGED, 0, 0);
        break;
    default:
        ::UpdateWindow(window);
        break;
    }
}

// --- The program ----------------------------------------------------------------------------------------------------

void Hands::Program() {
    ProfilerFrame* frame = m_zoo.Profiler();
    if (!frame)
        return;
    const int kind = m_dice.Below(24);
    if (kind == 0) {
        sentinel::Note("event: the program is closed and started");
        m_button = 0;
        m_zoo.RestartProfiler();
    } else if (kind == 1) {
        Deliver(frame->m_hWnd, WM_COMMAND, m_dice.Of<WPARAM>({ID_FILE_OPEN, ID_FILE_STOP, ID_APP_EXIT}), 0);
    } else if (kind < 5) {
        Deliver(frame->m_hWnd, WM_COMMAND, m_dice.Of<WPARAM>({ID_HELP_KEYS, ID_APP_ABOUT, ID_VIEW_MESSAGES}), 0);
    } else if (kind < 8) {
        Deliver(frame->m_hWnd, WM_COMMAND, ID_FILE_RELOAD, 0);
    } else if (kind < 10) {
        sentinel::Note("event: a shipped file is opened");
        m_zoo.OpenShipped();
    } else if (kind < 12) {
        const std::wstring path = std::filesystem::path(PROFILER_DATA_DIR) / L"penguins.csv";
        Deliver(frame->m_hWnd, WM_DROPFILES, reinterpret_cast<WPARAM>(DroppedFile(path)), 0);
    } else {
        const int theme = m_dice.Between(ID_VIEW_THEME_FIRST, ID_VIEW_THEME_LAST);
        Deliver(frame->m_hWnd, WM_COMMAND, static_cast<WPARAM>(theme), 0);
    }
}
