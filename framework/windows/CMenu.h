/// @file
/// CMenu: a menu handle, owned (created, loaded or attached) or borrowed (FromHandle).
#pragma once

#include "../core/CObject.h"
#include "../core/CString.h"

class CWnd;

/// Thin cover of a Win32 menu. The destructor destroys the menu; Detach gives it up instead, as is due when a window
/// takes the menu over. Positions are zero-based; the flags are those of the Win32 functions of the same names
/// (MF_BYPOSITION, MF_BYCOMMAND). Operations that give a BOOL say whether the system carried them out. After a change
/// to the menu bar of a window, call CWnd::DrawMenuBar.
/// @ingroup framework_windows
class KY_FRAMEWORK_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)
public:
    HMENU m_hMenu = nullptr; ///< Null when there is none; change it through Attach and Detach.

    CMenu() = default; ///< Without a menu.
    ~CMenu() override; ///< Destroys the menu; temporary objects leave theirs alone.

    /// The menu as m_hMenu has it; may be asked of a null pointer, too, and then gives null.
    HMENU GetSafeHmenu() const { return this == nullptr ? nullptr : m_hMenu; }
    operator HMENU() const { return m_hMenu; } ///< Null when there is none; the object keeps the ownership.

    /// Each of them replaces nothing: the object must not hold a menu yet.
    /// An empty menu bar. FALSE on failure or when the object holds a menu already.
    BOOL CreateMenu();
    /// An empty popup. FALSE on failure or when the object holds a menu already.
    BOOL CreatePopupMenu();
    /** @{ */
    /// Loads a menu resource from the application's resource modules. FALSE when there is none or the object holds a
    /// menu already.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);
    /** @} */
    /// A menu from a template in memory. FALSE on failure or when the object holds a menu already.
    BOOL LoadMenuIndirect(const void* lpMenuTemplate);
    /// Destroys the menu together with its popups. FALSE when there was none.
    BOOL DestroyMenu();

    /// Takes over a menu; this object is then the one that FromHandle gives for it. FALSE for null or when it holds one
    /// already.
    BOOL Attach(HMENU hMenu);
    /// Gives up the menu, which the caller then owns. Null when there was none.
    HMENU Detach();
    /// The object of a handle. One that nobody attached gets a temporary object, valid until the thread is idle next.
    /// Null for null.
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    /// Destroys the thread's temporary objects, but not their menus; the framework does so when the thread is idle.
    static void PASCAL DeleteTempMap();

    /// Adds an item at the end. With MF_POPUP `nIDNewItem` is the handle of a popup, which then belongs to this menu.
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    /// Adds an item before the one named by `nPosition`, an id or with MF_BYPOSITION a position (-1: at the end).
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    /// Replaces an item; a popup that it opened is destroyed.
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    /** @{ */
    /// Takes an item out. RemoveMenu leaves a popup alive, which then is the caller's; DeleteMenu destroys it.
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);
    BOOL DeleteMenu(UINT nPosition, UINT nFlags);
    /** @} */

    /** @{ */
    /// Checks or enables an item. Both give the state before, or -1 (UINT) when there is no such item.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    /** @} */
    /// Marks one item of a range as the chosen one and takes the mark from the others.
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);
    /// The item that a double-click chooses, shown bold; an id or, with `fByPos`, a position. -1 for none.
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);

    /// The number of items, separators included; -1 for something that is no menu.
    int GetMenuItemCount() const;
    /// 0 for a separator, -1 (UINT) for a popup or a position that does not exist.
    UINT GetMenuItemID(int nPos) const;
    /// MF_ flags of the item; -1 (UINT) when there is none. Of an item with a popup the high byte of the low word is
    /// the number of its items.
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    /// Copies the item's text, at most `nMaxCount` characters with the terminator. Returns the number of characters
    /// copied, without the terminator; 0 when there is no such item.
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    /// The item's text and its length; empty and 0 when there is no such item.
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    /** @{ */
    /// Reads or sets what fMask of the structure names, of an item by its id or, with `fByPos`, its position. The
    /// structure's size must be filled in.
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) const;
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    /** @} */
    /// The popup that the item at that position opens, as a temporary object at most; null when the item is none.
    CMenu* GetSubMenu(int nPos) const;

    /** @{ */
    /// Shows the menu as a popup at a screen position and returns when it is closed. With TPM_RETURNCMD the chosen
    /// command (0: none) is returned instead of being sent to `pWnd`, the window that gets the menu's messages and must
    /// not be null. `lpRect` has no effect; the structure's rectangle is one, in screen coordinates, that the menu
    /// avoids.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);
    /** @} */
};
