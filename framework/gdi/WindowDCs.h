// WindowDCs.h - the device contexts of windows: client area, whole window, painting.
#pragma once

#include "CDC.h"

/// The context of a window's client area; of the screen when the window is null. Throws CResourceException* when there
/// is none to be had.
class KY_FRAMEWORK_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* window);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

/// The context of a whole window, its frame included; of the screen when the window is null. Throws
/// CResourceException* when there is none to be had.
class KY_FRAMEWORK_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* window);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

/// The context in which a window answers WM_PAINT: BeginPaint on construction, EndPaint on destruction.
class KY_FRAMEWORK_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};
