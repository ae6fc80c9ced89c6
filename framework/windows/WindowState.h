// WindowState.h - what the framework knows about one thread's windows; private to the framework.
#pragma once

#include "../core/HandleMap.h"
#include "CMenu.h"
#include "CWnd.h"

class CWinThread;

struct WindowState {
    WindowState();

    HandleMap<HWND, CWnd> windows;
    HandleMap<HMENU, CMenu> menus;
    CWnd* beingCreated = nullptr; ///< Becomes the object of the next window that the thread creates.
    HHOOK creationHook = nullptr;
    MSG lastMessage{}; ///< The message being handled, for Default.
    CWinThread* thread = nullptr;
    int waitCursors = 0;
    HCURSOR cursorBeforeWait = nullptr;

    /// The state of the current thread; made at the first use.
    static WindowState& Current();

    /// The object of a handle; a temporary one when no object holds it. Null for null.
    CWnd* WindowOf(HWND handle);
    CMenu* MenuOf(HMENU handle);

    /// Puts the framework's procedure before the window's own, which `window` remembers.
    static void TakeOverProcedure(CWnd& window);
    /// Calls the object's WindowProc.
    static LRESULT Deliver(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam) {
        return window.WindowProc(message, wParam, lParam);
    }
    /// Gives the object being created the window that is coming into being.
    void AdoptCreatedWindow(HWND handle);
};

/// Loads the common controls' window classes.
void LoadCommonControls(DWORD classes);

/// The text up to the first line feed: string resources hold further texts after it.
CString FirstLine(const CString& text);
