// AfxWndProc.cpp - the window procedure of all windows that belong to objects, and how windows get there.
#include <afxpriv.h>

#include <exception>
#include <new>

#include "WindowState.h"

namespace {

/// An exception of a type of its own, as the application object gets to see it.
class CForeignException : public CException {
public:
    explicit CForeignException(CString message) : m_message(std::move(message)) {}

    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext) const override {
        if (helpContext != nullptr)
            *helpContext = 0;
        if (error == nullptr || maxError == 0)
            return FALSE;
        ::lstrcpyn(error, m_message, static_cast<int>(maxError));
        return !m_message.IsEmpty();
    }

private:
    CString m_message;
};

/// Makes a message the one being handled for the scope's lifetime.
class CurrentMessage {
public:
    CurrentMessage(WindowState& state, const MSG& message) : m_state(state), m_outer(state.lastMessage) {
        state.lastMessage = message;
    }
    ~CurrentMessage() { m_state.lastMessage = m_outer; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

private:
    WindowState& m_state;
    const MSG m_outer;
};

LRESULT EndException(CException* exception, const MSG& message) {
    LRESULT result = 0;
    if (CWinThread* thread = AfxGetThread())
        result = thread->ProcessWndProcException(exception, &message);
    else if (message.message == WM_CREATE)
        result = -1;
    else if (message.message == WM_PAINT)
        ::ValidateRect(message.hwnd, nullptr);
    exception->Delete();
    return result;
}

/// The application object learns of a lack of memory through an exception object that exists from the start.
LRESULT EndLackOfMemory(const MSG& message) {
    try {
        AfxThrowMemoryException();
    } catch (CException* exception) {
        return EndException(exception, message);
    }
}

/// Calls `handle`; an exception that it leaves ends here and gives the result.
template <class Handle>
LRESULT Guarded(const MSG& message, Handle handle) {
    try {
        return handle();
    } catch (CException* exception) {
        return EndException(exception, message);
    } catch (const std::bad_alloc&) {
        return EndLackOfMemory(message);
    } catch (const std::exception& exception) {
        return EndException(new CForeignException(CString(exception.what())), message);
    } catch (...) {
        return EndException(new CForeignException(CString()), message);
    }
}

/// Gives the window to the object being created. False when the object's PreSubclassWindow threw; the object is then
/// without a window again.
bool Adopt(WindowState& state, HWND handle) {
    CWnd* const window = state.beingCreated;
    const MSG message{handle, WM_NCCREATE, 0, 0, 0, {}};
    bool adopted = false;
    Guarded(message, [&] {
        state.AdoptCreatedWindow(handle);
        adopted = true;
        return LRESULT();
    });
    if (!adopted) {
        window->Detach();
        state.beingCreated = window; // whoever creates it sees that it came to nothing
    }
    return adopted;
}

// The creation hook sees every window of the thread; the input method makes windows of its own in between.
bool IsInputMethodWindow(HWND handle) {
    TCHAR name[16];
    return ::GetClassName(handle, name, 16) != 0 &&
           (::lstrcmpi(name, _T("IME")) == 0 || _tcsnicmp(name, _T("MSCTFIME"), 8) == 0);
}

LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam) {
    WindowState& state = WindowState::Current();
    const auto handle = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && state.beingCreated != nullptr && !IsInputMethodWindow(handle) &&
        !Adopt(state, handle))
        return 1; // refuses the window
    return ::CallNextHookEx(state.creationHook, code, wParam, lParam);
}

} // namespace

LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    const MSG message{hWnd, nMsg, wParam, lParam, 0, {}};
    const CurrentMessage current(WindowState::Current(), message);
    return Guarded(message, [&] { return WindowState::Deliver(*pWnd, nMsg, wParam, lParam); });
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    if (nMsg == WM_QUERYAFXWNDPROC)
        return 1;
    CWnd* const window = CWnd::FromHandlePermanent(hWnd);
    if (window == nullptr)
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(window, hWnd, nMsg, wParam, lParam);
}

void AfxHookWindowCreate(CWnd* pWnd) {
    WindowState& state = WindowState::Current();
    if (state.beingCreated == pWnd)
        return;
    if (state.creationHook == nullptr)
        state.creationHook = ::SetWindowsHookEx(WH_CBT, &CreationHook, nullptr, ::GetCurrentThreadId());
    if (state.creationHook == nullptr)
        AfxThrowMemoryException();
    state.beingCreated = pWnd;
}

BOOL AfxUnhookWindowCreate() {
    WindowState& state = WindowState::Current();
    if (state.creationHook != nullptr) {
        ::UnhookWindowsHookEx(state.creationHook);
        state.creationHook = nullptr;
    }
    if (state.beingCreated == nullptr)
        return TRUE;
    state.beingCreated = nullptr;
    return FALSE;
}

BOOL AfxRegisterClass(WNDCLASS* lpWndClass) {
    WNDCLASS existing;
    if (::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &existing))
        return TRUE;
    return ::RegisterClass(lpWndClass) != 0;
}

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    static thread_local TCHAR name[96];
    const HINSTANCE instance = AfxGetInstanceHandle();
    // The name is made of the arguments, so that equal windows share their class.
    ::wsprintf(name, _T("Afx:%Ix:%x:%Ix:%Ix:%Ix"), reinterpret_cast<UINT_PTR>(instance), nClassStyle,
               reinterpret_cast<UINT_PTR>(hCursor), reinterpret_cast<UINT_PTR>(hbrBackground),
               reinterpret_cast<UINT_PTR>(hIcon));
    WNDCLASS windowClass{};
    windowClass.style = nClassStyle;
    windowClass.lpfnWndProc = &::DefWindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = hCursor;
    windowClass.hbrBackground = hbrBackground;
    windowClass.hIcon = hIcon;
    windowClass.lpszClassName = name;
    if (!AfxRegisterClass(&windowClass))
        AfxThrowResourceException();
    return name;
}
