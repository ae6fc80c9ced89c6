// CWinThread.cpp - the message loop, idle processing, and the end of exceptions.
#include <afxpriv.h>

#include "WindowState.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

CWinThread::CWinThread() : m_nThreadID(::GetCurrentThreadId()), m_hThread(::GetCurrentThread()) {
    m_previous = std::exchange(WindowState::Current().thread, this);
}

CWinThread::~CWinThread() {
    WindowState& state = WindowState::Current();
    if (state.thread == this)
        state.thread = m_previous;
}

BOOL CWinThread::InitInstance() { return FALSE; }
int CWinThread::ExitInstance() { return static_cast<int>(m_msgCur.wParam); }

int CWinThread::Run() {
    bool idle = true;
    LONG idleCount = 0;
    MSG message;
    for (;;) {
        while (idle && !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++) != FALSE;
        do {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_msgCur)) {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::PumpMessage() {
    if (!::GetMessage(&m_msgCur, nullptr, 0, 0))
        return FALSE;
    if (!PreTranslateMessage(&m_msgCur)) {
        ::TranslateMessage(&m_msgCur);
        ::DispatchMessage(&m_msgCur);
    }
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == nullptr)
        return FALSE;
    CWnd* const main = GetMainWnd();
    if (CWnd::WalkPreTranslateTree(main->GetSafeHwnd(), pMsg))
        return TRUE;
    // A window that does not belong to the main window still gets its accelerators.
    const CWnd* const target = CWnd::FromHandle(pMsg->hwnd);
    if (main != nullptr && target->GetTopLevelParent() != main)
        return main->PreTranslateMessage(pMsg);
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    constexpr UINT caretTimer = 0x0118;
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        // A window that appears under a resting mouse gets a move that brings nothing new.
        if (m_lastMousePosition == pMsg->pt && m_lastMouseMessage == pMsg->message)
            return FALSE;
        m_lastMousePosition = pMsg->pt;
        m_lastMouseMessage = pMsg->message;
        return TRUE;
    }
    return pMsg->message != WM_PAINT && pMsg->message != caretTimer;
}

namespace {

void UpdateCommandInterface(CWnd& window) {
    if (!window.IsWindowVisible())
        return;
    AfxCallWndProc(&window, window.m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
    window.SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
}

struct OtherFrames {
    const CWnd* main;
};

BOOL CALLBACK UpdateOtherFrame(HWND handle, LPARAM parameter) {
    const CWnd* const main = reinterpret_cast<const OtherFrames*>(parameter)->main;
    CWnd* const window = CWnd::FromHandlePermanent(handle);
    if (window != nullptr && window != main && dynamic_cast<CFrameWnd*>(window) != nullptr)
        UpdateCommandInterface(*window);
    return TRUE;
}

} // namespace

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount <= 0) {
        CWnd* const main = m_pMainWnd;
        if (main != nullptr && main->m_hWnd != nullptr)
            UpdateCommandInterface(*main);
        const OtherFrames others{main};
        ::EnumThreadWindows(m_nThreadID, &UpdateOtherFrame, reinterpret_cast<LPARAM>(&others));
    } else {
        CWnd::DeleteTempMap();
        CMenu::DeleteTempMap();
        CDC::DeleteTempMap();
        CGdiObject::DeleteTempMap();
    }
    return lCount < 1;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    if (pMsg->message == WM_CREATE)
        return -1;
    if (pMsg->message == WM_PAINT) {
        ::ValidateRect(pMsg->hwnd, nullptr);
        return 0;
    }
    if (dynamic_cast<CUserException*>(e) != nullptr)
        return 0;
    TCHAR text[512];
    if (!e->GetErrorMessage(text, 512)) {
        const UINT id = pMsg->message == WM_COMMAND ? AFX_IDP_COMMAND_FAILURE : AFX_IDP_INTERNAL_FAILURE;
        if (AfxLoadString(id, text, 512) == 0)
            ::lstrcpyn(text, _T("The command could not be carried out."), 512);
    }
    DoMessageBox(text, MB_ICONEXCLAMATION | MB_OK, 0);
    return 0;
}

CWnd* CWinThread::MessageBoxOwner() const {
    CWnd* owner = m_pMainWnd != nullptr && m_pMainWnd->m_hWnd != nullptr ? m_pMainWnd->GetLastActivePopup() : nullptr;
    return owner != nullptr ? owner : CWnd::GetActiveWindow();
}

int CWinThread::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
    if ((nType & MB_ICONMASK) == 0) {
        switch (nType & MB_TYPEMASK) {
        case MB_OK:
        case MB_OKCANCEL:
        case MB_YESNO:
        case MB_YESNOCANCEL:
            nType |= MB_ICONEXCLAMATION;
            break;
        default:
            break; // questions about trying again have no picture of their own
        }
    }
    return ::MessageBox(MessageBoxOwner()->GetSafeHwnd(), lpszPrompt, AfxGetAppName(), nType);
}

CWinThread* AfxGetThread() { return WindowState::Current().thread; }

namespace {

// The message taken by a thread that has no object.
thread_local MSG t_message;

} // namespace

MSG* AfxGetCurrentMessage() {
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? &thread->m_msgCur : &t_message;
}

BOOL AfxPumpMessage() {
    if (CWinThread* thread = AfxGetThread())
        return thread->PumpMessage();
    if (!::GetMessage(&t_message, nullptr, 0, 0))
        return FALSE;
    ::TranslateMessage(&t_message);
    ::DispatchMessage(&t_message);
    return TRUE;
}
