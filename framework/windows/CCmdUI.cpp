// CCmdUI.cpp - brings one menu item or control in line with its command.
#include <afxwin.h>

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE;
    m_bEnableChanged = FALSE;
    const BOOL updated = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO handler{};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &handler));
    }
    return updated;
}

void CCmdUI::Enable(BOOL bOn) {
    if (m_pMenu != nullptr) {
        // An item that opens a popup updates as the popup's first item and must stay reachable.
        if (m_pSubMenu != nullptr)
            return;
        m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
    } else if (m_pOther != nullptr) {
        if (!bOn && ::GetFocus() == m_pOther->m_hWnd)
            m_pOther->GetParent()->SendMessage(WM_NEXTDLGCTL);
        m_pOther->EnableWindow(bOn);
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
    } else if (m_pOther != nullptr && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0) {
        m_pOther->SendMessage(BM_SETCHECK, nCheck);
    }
}

void CCmdUI::SetRadio(BOOL bOn) {
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu == nullptr || m_pSubMenu != nullptr)
        return;
    MENUITEMINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    if (!m_pMenu->GetMenuItemInfo(m_nIndex, &info, TRUE))
        return;
    info.fType |= MFT_RADIOCHECK;
    m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu != nullptr)
            return;
        MENUITEMINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(lpszText);
        m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
    } else if (m_pOther != nullptr) {
        CString shown;
        m_pOther->GetWindowText(shown);
        if (shown != lpszText)
            m_pOther->SetWindowText(lpszText);
    }
}
