// WindowState.cpp - the per-thread state of windows and menus.
#include "WindowState.h"

#include <afxwin.h>

namespace {

void ReleaseWindow(CWnd& window) { window.m_hWnd = nullptr; }
void ReleaseMenu(CMenu& menu) { menu.m_hMenu = nullptr; }

thread_local WindowState* t_state = nullptr;

// Objects with static storage (the application object) outlive the thread-local ones of their thread, so the state is
// made anew when one of them asks for it that late.
struct StateOwner {
    ~StateOwner() {
        delete t_state;
        t_state = nullptr;
    }
};
thread_local StateOwner t_owner;

} // namespace

WindowState::WindowState() : windows(&ReleaseWindow), menus(&ReleaseMenu) {}

WindowState& WindowState::Current() {
    if (t_state == nullptr) {
        [[maybe_unused]] StateOwner* const made = &t_owner;
        t_state = new WindowState;
    }
    return *t_state;
}

CWnd* WindowState::WindowOf(HWND handle) {
    if (handle == nullptr)
        return nullptr;
    if (CWnd* permanent = windows.FindPermanent(handle))
        return permanent;
    if (CWnd* temporary = windows.FindTemporary(handle))
        return temporary;
    return windows.AddTemporary(handle, std::unique_ptr<CWnd>(new CWnd(handle)));
}

CMenu* WindowState::MenuOf(HMENU handle) {
    if (handle == nullptr)
        return nullptr;
    if (CMenu* permanent = menus.FindPermanent(handle))
        return permanent;
    if (CMenu* temporary = menus.FindTemporary(handle))
        return temporary;
    auto made = std::make_unique<CMenu>();
    made->m_hMenu = handle;
    return menus.AddTemporary(handle, std::move(made));
}

void WindowState::TakeOverProcedure(CWnd& window) {
    WNDPROC* const super = window.GetSuperWndProcAddr();
    const auto before = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(window.m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (before != &AfxWndProc)
        *super = before;
}

void WindowState::AdoptCreatedWindow(HWND handle) {
    CWnd* const window = std::exchange(beingCreated, nullptr);
    window->Attach(handle);
    window->PreSubclassWindow();
    TakeOverProcedure(*window);
}

void LoadCommonControls(DWORD classes) {
    INITCOMMONCONTROLSEX controls{sizeof(controls), classes};
    ::InitCommonControlsEx(&controls);
}

CString FirstLine(const CString& text) {
    const int end = text.Find(_T('\n'));
    return end < 0 ? text : text.Left(end);
}

CWnd* afxmsg::WindowOf(HWND hWnd) { return CWnd::FromHandle(hWnd); }
CScrollBar* afxmsg::ScrollBarOf(HWND hWnd) { return static_cast<CScrollBar*>(CWnd::FromHandle(hWnd)); }
CMenu* afxmsg::MenuOf(HMENU hMenu) { return CMenu::FromHandle(hMenu); }
CDC* afxmsg::DeviceContextOf(WPARAM wParam) { return CDC::FromHandle(reinterpret_cast<HDC>(wParam)); }
