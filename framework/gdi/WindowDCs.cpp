// WindowDCs.cpp - the device contexts of windows.
#include "gdi/WindowDCs.h"

#include "core/CException.h"
#include "windows/CWnd.h"

IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace {

/// Hands the window's context to its object, or gives it back to the window and throws.
void TakeOver(CDC& object, HWND window, HDC dc) {
    if (object.Attach(dc))
        return;
    if (dc)
        ::ReleaseDC(window, dc);
    AfxThrowResourceException();
}

} // namespace

CWnd* CDC::GetWindow() const { return CWnd::FromHandle(::WindowFromDC(m_hDC)); }

int CDC::ExcludeUpdateRgn(CWnd* window) { return ::ExcludeUpdateRgn(m_hDC, window->m_hWnd); }

CClientDC::CClientDC(CWnd* window) : m_hWnd(window->GetSafeHwnd()) { TakeOver(*this, m_hWnd, ::GetDC(m_hWnd)); }

CClientDC::~CClientDC() { ::ReleaseDC(m_hWnd, Detach()); }

CWindowDC::CWindowDC(CWnd* window) : m_hWnd(window->GetSafeHwnd()) { TakeOver(*this, m_hWnd, ::GetWindowDC(m_hWnd)); }

CWindowDC::~CWindowDC() { ::ReleaseDC(m_hWnd, Detach()); }

CPaintDC::CPaintDC(CWnd* window) : m_ps{}, m_hWnd(window->m_hWnd) {
    const HDC dc = ::BeginPaint(m_hWnd, &m_ps);
    if (Attach(dc))
        return;
    if (dc)
        ::EndPaint(m_hWnd, &m_ps);
    AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
    // The context is the system's again before it ends the painting.
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}
