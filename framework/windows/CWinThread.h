// CWinThread: the thread that owns windows, with its message loop and idle processing.
#pragma once

#include "CCmdTarget.h"

class CException;
class CWnd;

/// The user-interface thread. While the object lives it is its thread's AfxGetThread.
class KY_FRAMEWORK_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr; ///< When its window is destroyed this becomes null and the message loop ends.
    DWORD m_nThreadID;
    HANDLE m_hThread; ///< A pseudo handle, good in the thread itself.
    MSG m_msgCur{};   ///< The message that PumpMessage took last.

    /// The main window. AfxGetMainWnd asks this.
    virtual CWnd* GetMainWnd() { return m_pMainWnd; }

    /// Sets the thread up; FALSE keeps Run from being called.
    virtual BOOL InitInstance();
    /// The message loop: dispatches, and calls OnIdle with 0, 1, 2… while the queue is empty and OnIdle asks for more.
    /// Ends with WM_QUIT and returns what ExitInstance returns.
    virtual int Run();
    /// Returns the exit code.
    virtual int ExitInstance();

    /// Sees each message before it is dispatched: offers it to the windows from its target up to the main window, and
    /// to the main window itself if that is not among them. TRUE takes it.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Waits for a message and handles it. FALSE on WM_QUIT.
    virtual BOOL PumpMessage();
    /// Call 0 brings the command interface up to date (WM_IDLEUPDATECMDUI to the main window, the other frames and
    /// their permanent descendants); call 1 destroys the temporary objects. Returns whether to call again.
    virtual BOOL OnIdle(LONG lCount);
    /// Whether idle processing starts anew after this message. Not after painting, caret timers and mouse messages
    /// that bring nothing new.
    virtual BOOL IsIdleMessage(MSG* pMsg);

    /// The end of every exception that leaves a message handler; it is deleted afterwards. The answer is the message's
    /// result. This one fails WM_CREATE (-1), validates the window after WM_PAINT, and tells the user otherwise, unless
    /// the exception is a CUserException. An exception that is no CException comes as one with its what() as message.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);

    /// A message box, for AfxMessageBox. A host may override it to show something else.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);

protected:
    virtual CWnd* MessageBoxOwner() const;

private:
    CWinThread* m_previous; // the thread's object before this one
    CPoint m_lastMousePosition{-1, -1};
    UINT m_lastMouseMessage = 0;
};

KY_FRAMEWORK_API CWinThread* AfxGetThread();
KY_FRAMEWORK_API MSG* AfxGetCurrentMessage();
/// Takes and handles one message of the current thread: for loops of our own. FALSE on WM_QUIT.
KY_FRAMEWORK_API BOOL AfxPumpMessage();
