// The window that lists what was odd about the open file.
#include "window/MessagesWindow.h"

#include "common/Translation.h"
#include "window/DpiScale.h"

namespace {

// Pixels at 96 DPI.
constexpr int kWidth = 620;
constexpr int kHeight = 220;
constexpr int kGap = 24;
constexpr UINT kTextId = 1;

} // namespace

BEGIN_MESSAGE_MAP(MessagesWindow, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_CLOSE()
    ON_WM_CTLCOLOR()
    ON_MESSAGE(WM_DPICHANGED, &MessagesWindow::OnDpiChanged)
END_MESSAGE_MAP()

BOOL MessagesWindow::CreateFor(CWnd* owner) {
    const CString windowClass =
        AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return CreateEx(WS_EX_TOOLWINDOW, windowClass, Translate("Messages"),
                    WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN, 0, 0, 0, 0,
                    owner->GetSafeHwnd(), nullptr);
}

int MessagesWindow::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1)
        return -1;
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL;
    if (!m_text.Create(style, CRect(0, 0, 0, 0), this, kTextId))
        return -1;
    UseDpi(DpiOf(m_hWnd));
    m_text.LimitText(0); // as much as there is memory
    return 0;
}

void MessagesWindow::UseDpi(int dpi) {
    const LOGFONT logFont = MessageFont(dpi);
    CFont font;
    font.CreateFontIndirect(&logFont);
    m_text.SetFont(&font);
    m_font.DeleteObject();
    m_font.Attach(font.Detach());
    m_text.SetMargins(ScaledToDpi(8, dpi), ScaledToDpi(8, dpi));
}

LRESULT MessagesWindow::OnDpiChanged(WPARAM resolution, LPARAM suggested) {
    if (!IsDpi(LOWORD(resolution)))
        return 0;
    UseDpi(LOWORD(resolution));
    const auto* place = reinterpret_cast<const RECT*>(suggested);
    SetWindowPos(nullptr, place->left, place->top, place->right - place->left, place->bottom - place->top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

void MessagesWindow::SetMessages(const CString& fileName, const std::vector<CString>& messages) {
    CString text;
    for (const CString& message : messages)
        text += message + L"\r\n";
    if (messages.empty())
        text = Translate("There is nothing to tell about this file.");
    m_text.SetWindowText(text);
    SetWindowText(fileName.IsEmpty() ? Translate("Messages")
                                     : TranslateFormat("Window title", "Messages about %1%", fileName.GetString()));
}

void MessagesWindow::Open() {
    if (!m_placed)
        Place();
    ShowWindow(SW_SHOW);
    m_text.SetFocus();
    m_text.SetSel(0, 0);
}

void MessagesWindow::Place() {
    CRect owner;
    GetWindow(GW_OWNER)->GetWindowRect(&owner);
    const int dpi = DpiOf(GetWindow(GW_OWNER)->GetSafeHwnd());
    const int width = ScaledToDpi(kWidth, dpi);
    const int height = ScaledToDpi(kHeight, dpi);
    const int gap = ScaledToDpi(kGap, dpi);
    SetWindowPos(nullptr, owner.right - width - gap, owner.bottom - height - 2 * gap, width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    m_placed = true;
}

BOOL MessagesWindow::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE) {
        OnClose();
        return TRUE;
    }
    if (message->message == WM_KEYDOWN && message->wParam == 'A' && ::GetKeyState(VK_CONTROL) < 0) {
        m_text.SetSel(0, -1);
        return TRUE;
    }
    return CWnd::PreTranslateMessage(message);
}

void MessagesWindow::OnSize(UINT type, int width, int height) {
    CWnd::OnSize(type, width, height);
    if (m_text.GetSafeHwnd() != nullptr)
        m_text.MoveWindow(0, 0, width, height);
}

void MessagesWindow::OnSetFocus(CWnd*) { m_text.SetFocus(); }

HBRUSH MessagesWindow::OnCtlColor(CDC* dc, CWnd*, UINT) {
    // Text to read, not a field that is switched off.
    if (dc != nullptr) {
        dc->SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
        dc->SetBkColor(::GetSysColor(COLOR_WINDOW));
    }
    return ::GetSysColorBrush(COLOR_WINDOW);
}

void MessagesWindow::OnClose() {
    // The owner comes to the front before this window goes; otherwise the system may choose another program's.
    GetWindow(GW_OWNER)->SetActiveWindow();
    ShowWindow(SW_HIDE);
}
