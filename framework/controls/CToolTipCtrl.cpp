// CToolTipCtrl.cpp - tool tip windows.
#include <afxcmn.h>

#include "../windows/WindowState.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    LoadCommonControls(ICC_BAR_CLASSES | ICC_TAB_CLASSES);
    const BOOL created =
        CWnd::CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                       CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd->GetSafeHwnd(), nullptr);
    if (created)
        SetOwner(pParentWnd);
    return created;
}

void CToolTipCtrl::Describe(TOOLINFO& info, CWnd* pWnd, UINT_PTR nIDTool) const {
    info = {};
    info.cbSize = TTTOOLINFO_V1_SIZE; // the newer, longer form needs a manifest
    const HWND window = pWnd->GetSafeHwnd();
    if (nIDTool != 0) {
        info.hwnd = window;
        info.uId = nIDTool;
        return;
    }
    info.uFlags = TTF_IDISHWND;
    info.hwnd = ::GetParent(window) != nullptr ? ::GetParent(window) : window;
    info.uId = reinterpret_cast<UINT_PTR>(window);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    TOOLINFO info;
    Describe(info, pWnd, nIDTool);
    if (lpRectTool != nullptr)
        info.rect = *lpRectTool;
    info.lpszText = const_cast<LPTSTR>(lpszText);
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&info)));
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    CString text;
    return text.LoadString(nIDText) && AddTool(pWnd, text.GetString(), lpRectTool, nIDTool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO info;
    Describe(info, pWnd, nIDTool);
    SendMessage(TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&info));
}

BOOL CToolTipCtrl::GetToolInfo(TOOLINFO& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const {
    Describe(ToolInfo, pWnd, nIDTool);
    return static_cast<BOOL>(SendMessage(TTM_GETTOOLINFO, 0, reinterpret_cast<LPARAM>(&ToolInfo)));
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFO info;
    Describe(info, pWnd, nIDTool);
    info.rect = *lpRect;
    SendMessage(TTM_NEWTOOLRECT, 0, reinterpret_cast<LPARAM>(&info));
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const {
    constexpr int longest = 1024;
    TOOLINFO info;
    Describe(info, pWnd, nIDTool);
    info.lpszText = str.GetBuffer(longest);
    info.lpszText[0] = _T('\0');
    SendMessage(TTM_GETTEXT, longest, reinterpret_cast<LPARAM>(&info));
    str.ReleaseBuffer();
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO info;
    Describe(info, pWnd, nIDTool);
    info.lpszText = const_cast<LPTSTR>(lpszText);
    SendMessage(TTM_UPDATETIPTEXT, 0, reinterpret_cast<LPARAM>(&info));
}

COLORREF CToolTipCtrl::SetTipBkColor(COLORREF clr) {
    const auto before = static_cast<COLORREF>(SendMessage(TTM_GETTIPBKCOLOR));
    SendMessage(TTM_SETTIPBKCOLOR, clr);
    return before;
}

COLORREF CToolTipCtrl::SetTipTextColor(COLORREF clr) {
    const auto before = static_cast<COLORREF>(SendMessage(TTM_GETTIPTEXTCOLOR));
    SendMessage(TTM_SETTIPTEXTCOLOR, clr);
    return before;
}
