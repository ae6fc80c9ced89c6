// Puts the mouse pointer somewhere and waits until the system agrees.
#pragma once

#include <windows.h>

/// Moves the pointer to the screen point and waits until `GetCursorPos` says so for good. Under Wine the new place is
/// first told at once, then for about a tenth of a second the old one again, and then the new one: it has to hold.
/// @return false when the pointer did not get there within some seconds
inline bool PutPointer(POINT screen) {
    ::SetCursorPos(screen.x, screen.y);
    constexpr int interval = 20, needed = 150, limit = 5000;
    int held = 0;
    for (int waited = 0; waited < limit && held < needed; waited += interval) {
        ::Sleep(interval);
        POINT now{};
        ::GetCursorPos(&now);
        held = now.x == screen.x && now.y == screen.y ? held + interval : 0;
    }
    return held >= needed;
}
