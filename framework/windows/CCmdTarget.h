/// @file
/// CCmdTarget and CCmdUI: whatever commands are routed to, and the object that a command's user interface is updated
/// by.
#pragma once

#include "../core/CObject.h"
#include "../core/CString.h"
#include "../core/Geometry.h"
#include "../include/afxmsg_.h"

class CMenu;
class CWnd;

/// Base of everything that has a message map: windows, documents, the application.
/// @ingroup framework_windows
class KY_FRAMEWORK_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    /// Offers a command, notification or update to this object's message map, and in derived classes to the objects
    /// next in the route. Returns whether somebody handled it.
    ///
    /// `nCode` is CN_COMMAND, CN_UPDATE_COMMAND_UI or a control's notification code in its low word; the high word is
    /// WM_NOTIFY or a reflected message's number, and zero stands for WM_COMMAND. `pExtra` is the CCmdUI of an update
    /// and the AFX_NOTIFY of a notification. With `pHandlerInfo` nothing is called: it is filled with the handler
    /// found.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /** @{ */
    /// The wait cursor, counted in each thread: it shows from the first Begin to the last End, which puts back the
    /// cursor of before. Restore sets it again after something else (a message box) changed the cursor. Prefer
    /// CWaitCursor.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();
    /** @} */

    /** @{ */
    /// References to the object; it is made with one, which belongs to whoever made it. Taking away the last one calls
    /// OnFinalRelease. Objects that are deleted outright, as most are, need not be counted. Both return the new count.
    /// Any thread may call them.
    DWORD InternalAddRef() { return static_cast<DWORD>(::InterlockedIncrement(&m_dwRef)); }
    DWORD InternalRelease() {
        const LONG references = ::InterlockedDecrement(&m_dwRef);
        if (references == 0)
            OnFinalRelease();
        return static_cast<DWORD>(references);
    }
    /** @} */
    /// The last reference is gone. Deletes the object; an override may keep it.
    virtual void OnFinalRelease() { delete this; }

protected:
    CCmdTarget() = default; ///< For derived classes only.

    /** @{ */
    /// The message map of the class itself, and of the object's own class. DECLARE_MESSAGE_MAP and BEGIN_MESSAGE_MAP
    /// write both.
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
    /** @} */

    friend class CWnd;

private:
    LONG m_dwRef = 1;
};

/// Shows the wait cursor for its own lifetime. They may be nested.
/// @ingroup framework_windows
class KY_FRAMEWORK_API CWaitCursor {
public:
    CWaitCursor();  ///< Shows it now.
    ~CWaitCursor(); ///< The outermost one puts back the cursor of before.
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    void Restore(); ///< Shows it again after something else set another cursor.
};

/// One menu item, status bar pane or control whose state follows a command. Update handlers receive it and say what the
/// item shall look like; derived classes know other kinds of items. It lives only during the call of the handler.
/// @ingroup framework_windows
class KY_FRAMEWORK_API CCmdUI {
public:
    CCmdUI() = default;          ///< Stands for no item yet.
    virtual ~CCmdUI() = default; ///< Leaves the item as it was updated.

    UINT m_nID = 0;                  ///< The command.
    UINT m_nIndex = 0;               ///< Position of the menu item, or index of the pane.
    CMenu* m_pMenu = nullptr;        ///< The menu that holds the item; null when it is no menu item.
    CMenu* m_pSubMenu = nullptr;     ///< The popup that the item opens, if it does.
    CWnd* m_pOther = nullptr;        ///< The window to update when it is no menu item.
    BOOL m_bEnableChanged = FALSE;   ///< Enable was called.
    BOOL m_bContinueRouting = FALSE; ///< ContinueRouting was called.
    UINT m_nIndexMax = 0;            ///< How many items are iterated over.
    CMenu* m_pParentMenu = nullptr;  ///< The menu that holds m_pMenu, if it is a popup.

    /// Enables or disables the item, and tells DoUpdate that the handler decided about it. Disabling a control that has
    /// the focus moves the focus on. An item that opens a popup stays as it is.
    virtual void Enable(BOOL bOn = TRUE);
    /// 0 unchecked, 1 checked, 2 undetermined (which menus show as checked). Controls other than buttons, and items
    /// that open a popup, stay as they are.
    virtual void SetCheck(int nCheck = 1);
    /// As SetCheck, with the mark of a choice of one among several.
    virtual void SetRadio(BOOL bOn = TRUE);
    /// The item's whole text; what follows a tab is the key that a menu shows. An item that opens a popup keeps its
    /// own.
    virtual void SetText(LPCTSTR lpszText);

    /// The update goes on to the next object in the route as if this handler did not exist.
    void ContinueRouting() { m_bContinueRouting = TRUE; }

    /// Routes the update to `pTarget`. When no handler called Enable and `bDisableIfNoHndler` is set, the item becomes
    /// enabled or disabled according to whether the command has a handler. Returns whether an update handler was found.
    /// Items without an id (0 or 0xFFFF) are left alone and count as handled.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};
