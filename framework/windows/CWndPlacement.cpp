// CWndPlacement.cpp - where a window stands: coordinates, scroll bars, bars around a pane, its relations to others.
#include <afxpriv.h>

#include <afxext.h>

#include "WindowState.h"

// Coordinates ---------------------------------------------------------------------------------------------------------

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
    lpwndpl->length = sizeof(*lpwndpl);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const bool isChild = (GetStyle() & WS_CHILD) != 0;
    HWND over = pAlternateOwner->GetSafeHwnd();
    if (over == nullptr)
        over = isChild ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);

    // Children move within their parent's client area, others within the work area of the monitor.
    CRect bounds;
    CRect around;
    if (isChild) {
        ::GetClientRect(::GetParent(m_hWnd), &bounds);
        ::GetClientRect(over, &around);
        ::MapWindowPoints(over, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(&around), 2);
    } else {
        const bool usable = over != nullptr && ::IsWindowVisible(over) && !::IsIconic(over);
        MONITORINFO monitor{};
        monitor.cbSize = sizeof(monitor);
        ::GetMonitorInfo(::MonitorFromWindow(usable ? over : m_hWnd, MONITOR_DEFAULTTOPRIMARY), &monitor);
        bounds = monitor.rcWork;
        around = bounds;
        if (usable)
            ::GetWindowRect(over, &around);
    }

    CRect window;
    GetWindowRect(&window);
    int left = (around.left + around.right - window.Width()) / 2;
    int top = (around.top + around.bottom - window.Height()) / 2;
    left = std::max<int>(std::min<int>(left, bounds.right - window.Width()), bounds.left);
    top = std::max<int>(std::min<int>(top, bounds.bottom - window.Height()), bounds.top);
    SetWindowPos(nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    DWORD exStyle = GetExStyle();
    if (nAdjustType == adjustBorder)
        exStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, exStyle);
}

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlags, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch) {
    AFX_SIZEPARENTPARAMS layout{};
    layout.bStretch = bStretch;
    if (lpRectClient != nullptr)
        layout.rect = *lpRectClient;
    else
        GetClientRect(&layout.rect);
    if (nFlags != reposQuery)
        layout.hDWP = ::BeginDeferWindowPos(8);

    HWND leftOver = nullptr;
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const UINT id = static_cast<WORD>(::GetDlgCtrlID(child));
        if (id == nIDLeftOver)
            leftOver = child;
        else if (id >= nIDFirst && id <= nIDLast && FromHandlePermanent(child) != nullptr)
            ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
    }
    if (nFlags == reposQuery) {
        if (bStretch)
            *lpRectParam = layout.rect;
        else
            ::SetRect(lpRectParam, 0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy);
        return;
    }
    if (nIDLeftOver != 0 && leftOver != nullptr) {
        if (nFlags == reposExtra) {
            layout.rect.left += lpRectParam->left;
            layout.rect.top += lpRectParam->top;
            layout.rect.right -= lpRectParam->right;
            layout.rect.bottom -= lpRectParam->bottom;
        }
        FromHandle(leftOver)->CalcWindowRect(&layout.rect);
        const CRect rect(layout.rect);
        if (layout.hDWP != nullptr)
            layout.hDWP = ::DeferWindowPos(layout.hDWP, leftOver, nullptr, rect.left, rect.top, rect.Width(),
                                           rect.Height(), SWP_NOACTIVATE | SWP_NOZORDER);
    }
    if (layout.hDWP != nullptr)
        ::EndDeferWindowPos(layout.hDWP);
}

// Scrolling -----------------------------------------------------------------------------------------------------------

CScrollBar* CWnd::GetScrollBarCtrl(int) const { return nullptr; }

namespace {

/// The window and the number under which the system knows a scroll bar.
struct BarPlace {
    HWND window;
    int bar;
};

BarPlace PlaceOf(const CWnd& window, int bar) {
    if (bar != SB_CTL) {
        if (CScrollBar* control = window.GetScrollBarCtrl(bar))
            return {control->m_hWnd, SB_CTL};
    }
    return {window.m_hWnd, bar};
}

} // namespace

int CWnd::GetScrollPos(int nBar) const {
    const BarPlace place = PlaceOf(*this, nBar);
    return ::GetScrollPos(place.window, place.bar);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw) {
    const BarPlace place = PlaceOf(*this, nBar);
    return ::SetScrollPos(place.window, place.bar, nPos, bRedraw);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
    const BarPlace place = PlaceOf(*this, nBar);
    ::GetScrollRange(place.window, place.bar, lpMinPos, lpMaxPos);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw) {
    const BarPlace place = PlaceOf(*this, nBar);
    ::SetScrollRange(place.window, place.bar, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    const BarPlace place = PlaceOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(place.window, place.bar, lpScrollInfo);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    const BarPlace place = PlaceOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(place.window, place.bar, lpScrollInfo, bRedraw);
    return TRUE;
}

int CWnd::GetScrollLimit(int nBar) {
    SCROLLINFO info{};
    if (!GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE))
        return 0;
    return info.nMax - std::max(static_cast<int>(info.nPage) - 1, 0);
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow) {
    CScrollBar* const control = nBar == SB_BOTH ? nullptr : GetScrollBarCtrl(static_cast<int>(nBar));
    if (control != nullptr)
        control->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    else
        ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable) {
    if (nBar == SB_BOTH) {
        EnableScrollBarCtrl(SB_HORZ, bEnable);
        EnableScrollBarCtrl(SB_VERT, bEnable);
    } else if (CScrollBar* control = GetScrollBarCtrl(nBar)) {
        control->EnableWindow(bEnable);
        control->SetScrollRange(0, bEnable ? 1 : 0);
    }
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags) {
    const auto region = prgnUpdate == nullptr ? nullptr : static_cast<HRGN>(prgnUpdate->GetSafeHandle());
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, region, lpRectUpdate, flags);
}

// Relations -----------------------------------------------------------------------------------------------------------

namespace {

HWND FindDescendant(HWND parent, int id, bool onlyPermanent) {
    // A direct child wins over one further down.
    for (HWND child = ::GetTopWindow(parent); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (::GetDlgCtrlID(child) == id && (!onlyPermanent || CWnd::FromHandlePermanent(child) != nullptr))
            return child;
    }
    for (HWND child = ::GetTopWindow(parent); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (HWND found = FindDescendant(child, id, onlyPermanent))
            return found;
    }
    return nullptr;
}

HWND ParentOrOwner(HWND window) {
    const bool isChild = (::GetWindowLong(window, GWL_STYLE) & WS_CHILD) != 0;
    return isChild ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
}

} // namespace

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    return FromHandle(FindDescendant(m_hWnd, nID, bOnlyPerm != FALSE));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString.Empty();
    const CWnd* const control = GetDlgItem(nID);
    if (control != nullptr)
        control->GetWindowText(rString);
    return rString.GetLength();
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

CWnd* CWnd::GetTopLevelParent() const {
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    HWND top = m_hWnd;
    while (HWND next = ParentOrOwner(top))
        top = next;
    return FromHandle(top);
}

CWnd* CWnd::GetTopLevelOwner() const {
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    HWND top = m_hWnd;
    for (;;) {
        const CWnd* const object = FromHandlePermanent(top);
        const HWND next =
            object != nullptr && object->m_hWndOwner != nullptr ? object->m_hWndOwner : ParentOrOwner(top);
        if (next == nullptr)
            return FromHandle(top);
        top = next;
    }
}

CFrameWnd* CWnd::GetParentFrame() const {
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    for (HWND parent = ::GetParent(m_hWnd); parent != nullptr; parent = ::GetParent(parent)) {
        if (auto* frame = dynamic_cast<CFrameWnd*>(FromHandlePermanent(parent)))
            return frame;
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const {
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    auto* frame = dynamic_cast<CFrameWnd*>(const_cast<CWnd*>(this));
    if (frame == nullptr)
        frame = GetParentFrame();
    while (frame != nullptr) {
        CFrameWnd* const above = frame->GetParentFrame();
        if (above == nullptr)
            break;
        frame = above;
    }
    return frame;
}

CWnd* CWnd::GetParentOwner() const {
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    HWND parent = m_hWnd;
    while ((::GetWindowLong(parent, GWL_STYLE) & WS_CHILD) != 0) {
        const HWND next = ::GetParent(parent);
        if (next == nullptr)
            break;
        parent = next;
    }
    return FromHandle(parent);
}
