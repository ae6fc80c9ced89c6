// CWnd.cpp - the life of a window: handles, creation, subclassing, destruction; and its plain operations.
#include <afxwin.h>

#include "../core/HandleCounts.h"
#include "WindowState.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

namespace {

// The four that stand for places in the window order hold no window.
bool IsPlaceInOrder(const CWnd* window) {
    return window == &CWnd::wndTop || window == &CWnd::wndBottom || window == &CWnd::wndTopMost ||
           window == &CWnd::wndNoTopMost;
}

} // namespace

CWnd::~CWnd() {
    if (m_hWnd != nullptr && !IsPlaceInOrder(this))
        DestroyWindow();
}

// Handles and objects -------------------------------------------------------------------------------------------------

CWnd* CWnd::FromHandle(HWND hWnd) { return WindowState::Current().WindowOf(hWnd); }
CWnd* CWnd::FromHandlePermanent(HWND hWnd) { return WindowState::Current().windows.FindPermanent(hWnd); }
void CWnd::DeleteTempMap() { WindowState::Current().windows.DeleteTemporary(); }

BOOL CWnd::Attach(HWND hWndNew) {
    ASSERT(m_hWnd == nullptr);
    ASSERT(FromHandlePermanent(hWndNew) == nullptr);
    if (hWndNew == nullptr)
        return FALSE;
    WindowState::Current().windows.SetPermanent(hWndNew, this);
    m_hWnd = hWndNew;
    handlecounts::Add(handlecounts::Kind::Window);
    return TRUE;
}

HWND CWnd::Detach() {
    if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this) {
        WindowState::Current().windows.RemovePermanent(m_hWnd, this);
        handlecounts::Remove(handlecounts::Kind::Window);
    }
    return std::exchange(m_hWnd, nullptr);
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    WindowState::TakeOverProcedure(*this);
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    return SubclassWindow(::GetDlgItem(pParent->GetSafeHwnd(), static_cast<int>(nID)));
}

HWND CWnd::UnsubclassWindow() {
    if (m_hWnd == nullptr)
        return nullptr;
    WNDPROC* const super = GetSuperWndProcAddr();
    if (*super != nullptr)
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    return Detach();
}

// Creation and destruction --------------------------------------------------------------------------------------------

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                  UINT nID, CCreateContext* pContext) {
    ASSERT(pParentWnd != nullptr);
    ASSERT((dwStyle & WS_POPUP) == 0);
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                    CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    CREATESTRUCT create{};
    create.dwExStyle = dwExStyle;
    create.lpszClass = lpszClassName;
    create.lpszName = lpszWindowName;
    create.style = static_cast<LONG>(dwStyle);
    create.x = x;
    create.y = y;
    create.cx = nWidth;
    create.cy = nHeight;
    create.hwndParent = hWndParent;
    create.hMenu = nIDorHMenu;
    create.hInstance = AfxGetInstanceHandle();
    create.lpCreateParams = lpParam;
    if (!PreCreateWindow(create)) {
        PostNcDestroy();
        return FALSE;
    }

    AfxHookWindowCreate(this);
    const HWND created = ::CreateWindowEx(create.dwExStyle, create.lpszClass, create.lpszName,
                                          static_cast<DWORD>(create.style), create.x, create.y, create.cx, create.cy,
                                          create.hwndParent, create.hMenu, create.hInstance, create.lpCreateParams);
    // A window that failed after it was hooked has ended in OnNcDestroy, which has called PostNcDestroy; the object may
    // be gone by now.
    const BOOL hooked = AfxUnhookWindowCreate();
    if (!hooked)
        PostNcDestroy();
    return created != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr)
        return FALSE;
    const HWND handle = m_hWnd;
    const CWnd* const permanent = FromHandlePermanent(handle);
    const BOOL destroyed = ::DestroyWindow(handle);
    // A window whose messages come here has let go of this object, which may be gone. One that was only attached has
    // not.
    if (permanent != nullptr && FromHandlePermanent(handle) == permanent && !::IsWindow(handle))
        Detach();
    return destroyed;
}

void CWnd::OnDestroy() { Default(); }

void CWnd::OnNcDestroy() {
    CWinThread* const thread = AfxGetThread();
    if (thread != nullptr && thread->m_pMainWnd == this) {
        thread->m_pMainWnd = nullptr;
        AfxPostQuitMessage(0);
    }
    const LONG_PTR procedure = ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC);
    Default();
    // Somebody who put a procedure of their own before ours during the default handling stays.
    const WNDPROC super = *GetSuperWndProcAddr();
    if (super != nullptr && ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == procedure)
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(super));
    Detach();
    PostNcDestroy();
}

// Text, style, state --------------------------------------------------------------------------------------------------

void CWnd::GetWindowText(CString& rString) const {
    const int length = ::GetWindowTextLength(m_hWnd);
    const int copied = ::GetWindowText(m_hWnd, rString.GetBuffer(length + 1), length + 1);
    rString.ReleaseBuffer(copied);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    const HGDIOBJ font = pFont == nullptr ? nullptr : pFont->GetSafeHandle();
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), bRedraw);
}

CFont* CWnd::GetFont() const { return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT))); }

namespace {

BOOL ModifyLong(HWND window, int index, DWORD remove, DWORD add, UINT flags) {
    const auto before = static_cast<DWORD>(::GetWindowLong(window, index));
    const DWORD after = (before & ~remove) | add;
    if (before == after)
        return FALSE;
    ::SetWindowLong(window, index, static_cast<LONG>(after));
    if (flags != 0)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}

} // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyLong(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyLong(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

// Drawing -------------------------------------------------------------------------------------------------------------

namespace {

HRGN HandleOf(CRgn* region) { return region == nullptr ? nullptr : static_cast<HRGN>(region->GetSafeHandle()); }

} // namespace

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint) { return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint)); }
CDC* CWnd::GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
CDC* CWnd::GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return CDC::FromHandle(::GetDCEx(m_hWnd, HandleOf(prgnClip), flags));
}

int CWnd::ReleaseDC(CDC* pDC) { return ::ReleaseDC(m_hWnd, pDC->GetSafeHdc()); }
void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) { ::InvalidateRgn(m_hWnd, HandleOf(pRgn), bErase); }
void CWnd::ValidateRgn(CRgn* pRgn) { ::ValidateRgn(m_hWnd, HandleOf(pRgn)); }
int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase) { return ::GetUpdateRgn(m_hWnd, HandleOf(pRgn), bErase); }

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    return ::RedrawWindow(m_hWnd, lpRectUpdate, HandleOf(prgnUpdate), flags);
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const {
    SendMessage(WM_PRINT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const {
    SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), static_cast<LPARAM>(dwFlags));
}

// Menus and messages to the user --------------------------------------------------------------------------------------

CMenu* CWnd::GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }
BOOL CWnd::SetMenu(CMenu* pMenu) { return ::SetMenu(m_hWnd, pMenu->GetSafeHmenu()); }
CMenu* CWnd::GetSystemMenu(BOOL bRevert) const { return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert)); }

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return ::MessageBox(m_hWnd, lpszText, lpszCaption == nullptr ? AfxGetAppName() : lpszCaption, nType);
}
