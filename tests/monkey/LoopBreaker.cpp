// Ends the modal loops that events begin: menus, message boxes, file dialogs, dragged borders and scroll bars.
#include "LoopBreaker.h"

#include "Sentinel.h"

#include <cwchar>

namespace {

constexpr UINT Interval = 10;
LoopBreaker* g_breaker = nullptr;

/// A dialog of the system that this thread shows; null when there is none.
HWND ShownDialog() {
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            wchar_t name[16] = L"";
            ::GetClassNameW(window, name, 16);
            // One without a mode of ours has nobody waiting for it.
            const bool isModal = std::wcscmp(name, L"#32770") == 0 && ::IsWindowVisible(window) &&
                                 ::GetWindow(window, GW_OWNER) && !::IsWindowEnabled(::GetWindow(window, GW_OWNER));
            if (isModal)
                *reinterpret_cast<HWND*>(result) = window;
            return !isModal;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

void PressKey(HWND window, UINT key) {
    ::PostMessageW(window, WM_KEYDOWN, key, 1);
    ::PostMessageW(window, WM_KEYUP, key, 0xC0000001);
}

} // namespace

LoopBreaker::LoopBreaker(std::uint64_t seed) : m_dice(seed) {
    g_breaker = this;
    m_timer = ::SetTimer(nullptr, 0, Interval, &LoopBreaker::OnTimer);
}

LoopBreaker::~LoopBreaker() {
    ::KillTimer(nullptr, m_timer);
    g_breaker = nullptr;
}

void CALLBACK LoopBreaker::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (g_breaker)
        g_breaker->OnTick();
}

void LoopBreaker::OnTick() {
    const long long event = sentinel::EventsNoted();
    m_ticks = event == m_event ? m_ticks + 1 : 0;
    if (m_ticks == 0) {
        ++m_loops;
        m_dice.StartEvent(static_cast<std::uint64_t>(event));
    }
    m_event = event;
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
    constexpr DWORD Menu = GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE;
    if (info.flags & Menu)
        UseMenu();
    else if (const HWND dialog = ShownDialog())
        CloseDialog(dialog);
    else
        ReleaseMouse();
}

void LoopBreaker::UseMenu() {
    if (m_ticks % 8 == 0) {
        const HWND menu = ::FindWindowW(L"#32768", nullptr);
        const HWND target = menu ? menu : ::GetActiveWindow();
        for (int downs = m_dice.Below(12); downs > 0; --downs)
            PressKey(target, VK_DOWN);
        PressKey(target, m_dice.Of<UINT>({VK_RETURN, VK_ESCAPE, VK_RIGHT}));
        if (m_dice.OneIn(2))
            PressKey(target, VK_RETURN);
    } else if (m_ticks % 8 == 6) {
        ::EndMenu();
    }
}

void LoopBreaker::CloseDialog(HWND dialog) {
    if (m_ticks % 8 == 0)
        ::PostMessageW(dialog, WM_COMMAND, m_dice.Of<WPARAM>({IDOK, IDCANCEL}), 0);
    else if (m_ticks % 8 == 4)
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    else if (m_ticks % 32 == 30)
        ::PostMessageW(dialog, WM_CLOSE, 0, 0);
}

void LoopBreaker::ReleaseMouse() {
    const HWND capture = ::GetCapture();
    const HWND target = capture ? capture : ::GetFocus();
    if (m_ticks % 8 == 0 && target) {
        ::PostMessageW(target, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(m_dice.Below(900), m_dice.Below(600)));
        ::PostMessageW(target, WM_LBUTTONUP, 0, MAKELPARAM(m_dice.Below(900), m_dice.Below(600)));
    } else if (m_ticks % 8 == 2) {
        PressKey(target, VK_ESCAPE);
    } else if (m_ticks % 8 == 4 && capture) {
        ::ReleaseCapture();
    } else if (m_ticks % 8 == 6 && ::GetActiveWindow()) {
        ::SendMessageW(::GetActiveWindow(), WM_CANCELMODE, 0, 0);
    }
}
