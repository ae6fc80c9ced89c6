// Keys that go through the message queue to whoever has the keyboard, as the user's do.
#pragma once

#include <afxwin.h>

/// Dispatches what is in the queue, as a message loop with PreTranslateMessage does.
inline void DispatchQueue() {
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (CWnd::WalkPreTranslateTree(nullptr, &message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
}

/// Presses and releases a key; the characters that it makes follow.
inline void TypeKey(UINT key) {
    const LPARAM scan = static_cast<LPARAM>(::MapVirtualKey(key, MAPVK_VK_TO_VSC)) << 16;
    ::PostMessage(::GetFocus(), WM_KEYDOWN, key, scan | 1);
    DispatchQueue();
    if (const HWND focus = ::GetFocus())
        ::PostMessage(focus, WM_KEYUP, key, static_cast<LPARAM>(scan | 0xC0000001));
    DispatchQueue();
}

/// The characters of a text, one after the other.
inline void TypeText(const wchar_t* text) {
    for (; *text; ++text) {
        ::PostMessage(::GetFocus(), WM_CHAR, *text, 1);
        DispatchQueue();
    }
}

/// Keys that are down as long as this lives, as GetKeyState tells them.
class HeldKey {
public:
    explicit HeldKey(int key) {
        ::GetKeyboardState(m_former);
        BYTE state[256];
        ::GetKeyboardState(state);
        state[key] = 0x80;
        ::SetKeyboardState(state);
    }
    ~HeldKey() { ::SetKeyboardState(m_former); }
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

private:
    BYTE m_former[256];
};
