// CMenu: a menu handle, owned (created, loaded or attached) or borrowed (FromHandle).
#pragma once

#include "../core/CObject.h"
#include "../core/CString.h"

class CWnd;

/// Thin cover of a Win32 menu. The destructor destroys the menu; Detach gives it up instead. Positions are zero-based;
/// the flags are those of the Win32 functions of the same names (MF_BYPOSITION, MF_BYCOMMAND).
class KY_FRAMEWORK_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)
public:
    HMENU m_hMenu = nullptr;

    CMenu() = default;
    ~CMenu() override;

    /// Also answers, with null, when called through a null pointer.
    HMENU GetSafeHmenu() const { return this == nullptr ? nullptr : m_hMenu; }
    operator HMENU() const { return m_hMenu; }

    /// Each of them replaces nothing: the object must not hold a menu yet.
    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);
    BOOL LoadMenuIndirect(const void* lpMenuTemplate);
    /// Destroys the menu together with its popups.
    BOOL DestroyMenu();

    /// Takes over a menu; this object is then the one that FromHandle gives for it.
    BOOL Attach(HMENU hMenu);
    HMENU Detach();
    /// The object of a handle. One that nobody attached gets a temporary object, valid until the next idle time.
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    static void PASCAL DeleteTempMap();

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    /// RemoveMenu leaves a popup alive, DeleteMenu destroys it.
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);
    BOOL DeleteMenu(UINT nPosition, UINT nFlags);

    /// Both give the state before, or -1 (UINT) when there is no such item.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);

    /// -1 (UINT) for something that is no menu.
    int GetMenuItemCount() const;
    /// 0 for a separator, -1 (UINT) for a popup or a position that does not exist.
    UINT GetMenuItemID(int nPos) const;
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    /// Returns the number of characters copied, without the terminator.
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) const;
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    /// A temporary object; null when the item is no popup.
    CMenu* GetSubMenu(int nPos) const;

    /// Shows the menu as a popup at a screen position. With TPM_RETURNCMD the chosen command (0: none) is returned
    /// instead of being sent to `pWnd`.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);
};
