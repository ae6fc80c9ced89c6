/// @file
/// CWinThread: the thread that owns windows, with its message loop and idle processing.
#pragma once

#include "CCmdTarget.h"

class CException;
class CWnd;

/// The user-interface thread. While the object lives it is its thread's AfxGetThread. It starts no thread: it stands
/// for the one that it is made in.
/// @ingroup framework_application
class KY_FRAMEWORK_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    /// From now on AfxGetThread gives this object.
    CWinThread();
    /// AfxGetThread gives the thread's earlier object again, if there was one.
    ~CWinThread() override;

    /// The main window, which the program sets in InitInstance; not owned. When its window is destroyed this becomes
    /// null and the message loop ends.
    CWnd* m_pMainWnd = nullptr;
    DWORD m_nThreadID; ///< The thread that made the object.
    HANDLE m_hThread;  ///< A pseudo handle, good in the thread itself.
    MSG m_msgCur{};    ///< The message that PumpMessage took last.

    /// The main window. AfxGetMainWnd asks this.
    virtual CWnd* GetMainWnd() { return m_pMainWnd; }

    /// Sets the thread up; FALSE keeps Run from being called, as this one does.
    virtual BOOL InitInstance();
    /// The message loop: dispatches, and calls OnIdle with 0, 1, 2… while the queue is empty and OnIdle asks for more.
    /// Ends with WM_QUIT and returns what ExitInstance returns.
    virtual int Run();
    /// Called when the message loop has ended. Returns the exit code, that of WM_QUIT.
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
    /// The window that a message box disables: the main window's last active popup, else the thread's active window;
    /// may be null.
    virtual CWnd* MessageBoxOwner() const;

private:
    CWinThread* m_previous; // the thread's object before this one
    CPoint m_lastMousePosition{-1, -1};
    UINT m_lastMouseMessage = 0;
};

/// The current thread's object, the application object in most programs; null in a thread that has none.
/// @ingroup framework_application
KY_FRAMEWORK_API CWinThread* AfxGetThread();
/// The message that the current thread took from its queue last; never null.
/// @ingroup framework_application
KY_FRAMEWORK_API MSG* AfxGetCurrentMessage();
/// Waits for one message of the current thread and handles it: for loops of one's own. FALSE on WM_QUIT.
/// @ingroup framework_application
KY_FRAMEWORK_API BOOL AfxPumpMessage();
