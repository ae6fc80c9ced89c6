// CWndModal.cpp - modal loops, and the exchange of data with controls.
#include <afxpriv.h>

// Modal loops ---------------------------------------------------------------------------------------------------------

int CWnd::RunModalLoop(DWORD dwFlags) {
    const bool showOnIdle = (dwFlags & MLF_SHOWONIDLE) != 0 && !IsWindowVisible();
    bool toShow = showOnIdle;
    const auto show = [&] {
        if (std::exchange(toShow, false)) {
            ShowWindow(SW_SHOWNORMAL);
            UpdateWindow();
        }
    };
    const HWND parent = ::GetParent(m_hWnd);
    CWinThread* const thread = AfxGetThread();
    m_modalRunning = TRUE;
    m_modalResult = -1;
    bool idle = true;
    LONG idleCount = 0;
    MSG message;
    for (;;) {
        while (idle && !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            show();
            if (parent != nullptr && idleCount == 0)
                ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
            idle = SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, idleCount++) != 0;
        }
        do {
            if (!AfxPumpMessage()) {
                ::PostQuitMessage(static_cast<int>(AfxGetCurrentMessage()->wParam)); // it is for the loop outside
                m_modalRunning = FALSE;
                return -1;
            }
            const MSG& taken = *AfxGetCurrentMessage();
            if (taken.message == WM_SYSKEYDOWN)
                show(); // a menu opens
            if (!ContinueModal() || m_hWnd == nullptr) {
                m_modalRunning = FALSE;
                return m_modalResult;
            }
            if (thread == nullptr || thread->IsIdleMessage(AfxGetCurrentMessage())) {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE));
    }
}

void CWnd::EndModalLoop(int nResult) {
    m_modalResult = nResult;
    if (!std::exchange(m_modalRunning, FALSE))
        return;
    PostMessage(WM_NULL); // wakes the loop
}

// Data exchange -------------------------------------------------------------------------------------------------------

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange exchange(this, bSaveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* refused) {
        refused->Delete(); // the user has been told
    }
    return FALSE;
}
