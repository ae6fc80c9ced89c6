/// @file
/// The device contexts of windows: client area, whole window, painting.
#pragma once

#include "CDC.h"

/// The context of a window's client area, with client coordinates; of the screen when the window is null. The window
/// must live as long as the context.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    /// Throws CResourceException* when there is no context to be had.
    explicit CClientDC(CWnd* window);
    /// Gives the context back to the system.
    ~CClientDC() override;

protected:
    HWND m_hWnd; ///< The window; null for the screen.
};

/// The context of a whole window, its frame included, with coordinates from the window's upper left corner; of the
/// screen when the window is null. The window must live as long as the context.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
public:
    /// Throws CResourceException* when there is no context to be had.
    explicit CWindowDC(CWnd* window);
    /// Gives the context back to the system.
    ~CWindowDC() override;

protected:
    HWND m_hWnd; ///< The window; null for the screen.
};

/// The context in which a window answers WM_PAINT: BeginPaint on construction, EndPaint on destruction. It is clipped
/// to what needs painting; the background has been erased unless m_ps.fErase says otherwise. Use it in OnPaint and
/// nowhere else.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    /// The window must not be null. Throws CResourceException* when painting cannot begin.
    explicit CPaintDC(CWnd* window);
    /// Ends the painting: what was to be painted counts as done.
    ~CPaintDC() override;

    PAINTSTRUCT m_ps; ///< What BeginPaint told: m_ps.rcPaint is the rectangle to paint, in client coordinates.

protected:
    HWND m_hWnd; ///< The window that paints.
};
