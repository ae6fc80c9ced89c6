// Learning that a window was destroyed while code of the host ran.
#pragma once

#include <afxwin.h>

/// Remembers a window, so that a handler can ask, after it has called code of the host, whether the window still is
/// there. The object that had it is not touched: the host may have deleted it.
class WindowLife {
public:
    explicit WindowLife(const CWnd& window) : m_handle(window.m_hWnd) {}

    /// False for an object that had no window to begin with.
    bool HasEnded() const { return m_handle != nullptr && !::IsWindow(m_handle); }

private:
    HWND m_handle;
};
