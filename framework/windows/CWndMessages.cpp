// CWndMessages.cpp - how a message finds its handler: maps, commands, reflection, and the walk before dispatching.
#include <afxpriv.h>

#include "WindowState.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
    ON_WM_PARENTNOTIFY()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

// Messages ------------------------------------------------------------------------------------------------------------

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC super = *GetSuperWndProcAddr();
    if (super != nullptr)
        return ::CallWindowProc(super, m_hWnd, message, wParam, lParam);
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG& message = WindowState::Current().lastMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

const MSG* CWnd::GetCurrentMessage() { return &WindowState::Current().lastMessage; }

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT result = 0;
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        result = 1;
    } else if (message == WM_NOTIFY) {
        if (!OnNotify(wParam, lParam, &result))
            return FALSE;
    } else if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) {
        // The messages of the different kinds of controls become one, with the kind as a parameter.
        const AFX_CTLCOLOR color{reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam),
                                 message - WM_CTLCOLORMSGBOX};
        return OnWndMsg(WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&color), pResult);
    } else {
        AFX_MESSAGE toHandle;
        toHandle.message = message;
        toHandle.wParam = wParam;
        toHandle.lParam = lParam;
        if (!DispatchToMap(toHandle))
            return FALSE;
        result = toHandle.result;
    }
    if (pResult != nullptr)
        *pResult = result;
    return TRUE;
}

BOOL CWnd::DispatchToMap(AFX_MESSAGE& message) {
    const bool registered = message.message >= AFX_REGISTERED_MESSAGE;
    const UINT wanted = registered ? AFX_REGISTERED_MESSAGE : message.message;
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nMessage != 0; ++entry) {
            if (entry->nMessage == wanted && entry->nCode == 0 &&
                (!registered || *entry->pnRegistered == message.message))
                return entry->pfnThunk(this, message); // the object may be gone after this
        }
    }
    return FALSE;
}

// Commands and notifications ------------------------------------------------------------------------------------------

namespace {

/// Finds out whether a command is enabled now.
class CEnabledQuery : public CCmdUI {
public:
    BOOL m_bEnabled = TRUE;
    void Enable(BOOL bOn) override {
        m_bEnabled = bOn;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}
};

} // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    if (control != nullptr) {
        if (ReflectLastMsg(control))
            return TRUE;
        return id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
    }
    if (id == 0)
        return FALSE;
    // A menu or accelerator may have been disabled since the user saw it.
    CEnabledQuery query;
    query.m_nID = id;
    OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &query, nullptr);
    if (!query.m_bEnabled)
        return TRUE;
    return OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    auto* const header = reinterpret_cast<NMHDR*>(lParam);
    if (ReflectLastMsg(header->hwndFrom, pResult))
        return TRUE;
    AFX_NOTIFY notify{pResult, header};
    // The low word carries the code without its sign, as the map entries do.
    const auto id = static_cast<UINT>(header->idFrom);
    return OnCmdMsg(id, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* const child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG& message = WindowState::Current().lastMessage;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    case WM_COMPAREITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);
    case WM_COMMAND: {
        const auto code = static_cast<int>(MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND));
        if (!CCmdTarget::OnCmdMsg(0, code, nullptr, nullptr))
            return FALSE;
        if (pResult != nullptr)
            *pResult = TRUE;
        return TRUE;
    }
    case WM_NOTIFY: {
        LRESULT ignored = 0;
        AFX_NOTIFY notify{pResult != nullptr ? pResult : &ignored, reinterpret_cast<NMHDR*>(lParam)};
        const auto code = static_cast<int>(MAKELONG(notify.pNMHDR->code, WM_REFLECT_BASE + WM_NOTIFY));
        return CCmdTarget::OnCmdMsg(0, code, &notify, nullptr);
    }
    default:
        break;
    }
    if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) {
        const AFX_CTLCOLOR color{reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam),
                                 message - WM_CTLCOLORMSGBOX};
        LRESULT brush = 0;
        // A control that answers no brush leaves the colours to its parent.
        if (!CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&color), &brush) || brush == 0)
            return FALSE;
        if (pResult != nullptr)
            *pResult = brush;
        return TRUE;
    }
    return FALSE;
}

// What the parent hands back ------------------------------------------------------------------------------------------

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    const UINT what = LOWORD(message);
    if ((what == WM_CREATE || what == WM_DESTROY) && ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        return;
    Default();
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT brush = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&brush))
        return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType != ODT_MENU && ReflectLastMsg(lpDrawItemStruct->hwndItem))
        return;
    Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType != ODT_MENU) {
        CWnd* const child = GetDescendantWindow(static_cast<int>(lpMeasureItemStruct->CtlID), TRUE);
        if (child != nullptr && child->SendChildNotifyLastMsg())
            return;
    }
    Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT order = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &order))
        return static_cast<int>(order);
    return static_cast<int>(Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

// Only top-level windows hear of these from the system; their descendants hear of them from here.
void CWnd::OnSysColorChange() {
    if ((GetStyle() & WS_CHILD) == 0)
        SendMessageToDescendants(WM_SYSCOLORCHANGE, 0, 0, TRUE, TRUE);
    Default();
}

void CWnd::OnSettingChange(UINT uFlags, LPCTSTR lpszSection) {
    if ((GetStyle() & WS_CHILD) == 0)
        SendMessageToDescendants(WM_SETTINGCHANGE, uFlags, reinterpret_cast<LPARAM>(lpszSection), TRUE, TRUE);
    Default();
}

// Before dispatching --------------------------------------------------------------------------------------------------

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND window = pMsg->hwnd; window != nullptr; window = ::GetParent(window)) {
        CWnd* const object = FromHandlePermanent(window);
        if (object != nullptr && object->PreTranslateMessage(pMsg))
            return TRUE;
        if (window == hWndStop)
            break;
    }
    return FALSE;
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
}

void CWnd::SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    for (HWND child = ::GetTopWindow(hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!bOnlyPerm)
            ::SendMessage(child, message, wParam, lParam);
        else if (CWnd* object = FromHandlePermanent(child))
            AfxCallWndProc(object, child, message, wParam, lParam);
        if (bDeep && ::GetTopWindow(child) != nullptr)
            SendMessageToDescendants(child, message, wParam, lParam, bDeep, bOnlyPerm);
    }
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CCmdUI item;
        item.m_nID = static_cast<WORD>(::GetDlgCtrlID(child));
        item.m_pOther = FromHandle(child);
        // The control itself first, then this window without its route, then the target.
        const auto reflected = static_cast<int>(MAKELONG(0xFFFF, WM_COMMAND + WM_REFLECT_BASE));
        CWnd* const object = FromHandlePermanent(child);
        if (object != nullptr && object->CCmdTarget::OnCmdMsg(0, reflected, &item, nullptr))
            continue;
        if (CCmdTarget::OnCmdMsg(item.m_nID, CN_UPDATE_COMMAND_UI, &item, nullptr))
            continue;
        // Only push buttons are disabled for want of a handler; other controls rarely have one.
        const bool isButton = (::SendMessage(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
        const LONG type = ::GetWindowLong(child, GWL_STYLE) & BS_TYPEMASK;
        const bool isPushButton = isButton && type != BS_AUTOCHECKBOX && type != BS_AUTO3STATE &&
                                  type != BS_AUTORADIOBUTTON && type != BS_GROUPBOX;
        item.DoUpdate(pTarget, bDisableIfNoHndler && isPushButton);
    }
}
