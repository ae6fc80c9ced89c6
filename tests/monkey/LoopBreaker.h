// Ends the modal loops that events begin: menus, message boxes, file dialogs, dragged borders and scroll bars.
#pragma once

#include "Dice.h"

#include <windows.h>

/// While it lives, a timer looks after the thread. The monkey's own pump leaves timers alone, so when this one rings, a
/// loop of the system's is running, and is used a little and then closed: by a choice or Escape in a menu, by a button
/// of a dialog, by the release of the mouse. What does not end by that is cancelled.
class LoopBreaker {
public:
    explicit LoopBreaker(std::uint64_t seed);
    ~LoopBreaker();
    LoopBreaker(const LoopBreaker&) = delete;
    LoopBreaker& operator=(const LoopBreaker&) = delete;

    int LoopsEnded() const { return m_loops; }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    void OnTick();
    void UseMenu();
    void CloseDialog(HWND dialog);
    void ReleaseMouse();

    Dice m_dice; ///< its own: how often the timer rings is a matter of time
    UINT_PTR m_timer;
    long long m_event = -1; ///< the event in which the timer rang last
    int m_ticks = 0;        ///< how often in this event
    int m_loops = 0;
};
