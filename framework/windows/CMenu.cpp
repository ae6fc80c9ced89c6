// CMenu.cpp - menu handles and their objects.
#include <afxwin.h>

#include "../core/HandleCounts.h"
#include "WindowState.h"

#include <new>

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::~CMenu() { DestroyMenu(); }

BOOL CMenu::Attach(HMENU hMenu) {
    if (hMenu == nullptr || m_hMenu != nullptr)
        return FALSE;
    try {
        WindowState::Current().menus.SetPermanent(hMenu, this);
    } catch (const std::bad_alloc&) {
        return FALSE;
    }
    m_hMenu = hMenu;
    handlecounts::Add(handlecounts::Kind::Menu);
    return TRUE;
}

HMENU CMenu::Detach() {
    WindowState& state = WindowState::Current();
    if (m_hMenu != nullptr && state.menus.FindPermanent(m_hMenu) == this) {
        state.menus.RemovePermanent(m_hMenu, this);
        handlecounts::Remove(handlecounts::Kind::Menu);
    }
    return std::exchange(m_hMenu, nullptr);
}

CMenu* CMenu::FromHandle(HMENU hMenu) { return WindowState::Current().MenuOf(hMenu); }
void CMenu::DeleteTempMap() { WindowState::Current().menus.DeleteTemporary(); }

namespace {

/// Hands a new menu to its object, and destroys it when the object cannot take it.
BOOL AttachNew(CMenu& object, HMENU menu) {
    if (object.Attach(menu))
        return TRUE;
    ::DestroyMenu(menu);
    return FALSE;
}

} // namespace

BOOL CMenu::CreateMenu() { return AttachNew(*this, ::CreateMenu()); }
BOOL CMenu::CreatePopupMenu() { return AttachNew(*this, ::CreatePopupMenu()); }

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return AttachNew(*this, ::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCE(nIDResource)); }
BOOL CMenu::LoadMenuIndirect(const void* lpMenuTemplate) {
    return AttachNew(*this, ::LoadMenuIndirect(lpMenuTemplate));
}

BOOL CMenu::DestroyMenu() {
    const HMENU menu = Detach();
    return menu != nullptr && ::DestroyMenu(menu);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem) {
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem) {
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem) {
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck) { return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck); }

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
}

BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}

BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos) { return ::SetMenuDefaultItem(m_hMenu, uItem, fByPos); }

int CMenu::GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
UINT CMenu::GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const {
    return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    const int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    rString.Empty();
    if (length <= 0)
        return 0;
    const int copied = ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(length + 1), length + 1, nFlags);
    rString.ReleaseBuffer(copied);
    return copied;
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos) const {
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos) {
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

CMenu* CMenu::GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, pWnd->GetSafeHwnd(), lptpm);
}
