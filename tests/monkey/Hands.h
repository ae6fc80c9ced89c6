// What a user does: valid events of mouse, keyboard and system, aimed at the places where things happen.
#pragma once

#include "Zoo.h"

class Hands {
public:
    Hands(Dice& dice, Zoo& zoo);

    /// One event, and what it leaves in the queue.
    void Act();
    /// Buttons and keys go up, captures end.
    void Rest();
    bool IsButtonDown() const { return m_button != 0; }

private:
    CXTPReportControl* AnyGrid();
    CPoint Aim(CXTPReportControl& grid);
    CPoint AimAtMark(CXTPReportControl& grid);
    void Mouse();
    void Gesture();
    void MoveTo(HWND window, CPoint point);
    void Wheel();
    void Border();
    void Key();
    void Menu();
    void Window();
    void System();
    void Program();
    WPARAM MouseFlags() const;
    void SetKeys() const;

    Dice& m_dice;
    Zoo& m_zoo;
    int m_button = 0; ///< 0 none, 1 left, 2 right, 3 middle
    bool m_isShift = false, m_isCtrl = false;
    CPoint m_last;
};

/// Gives a message to its window as the message loop does.
void Deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
/// Dispatches what is in the queue, but no timers and no input of the machine that the test runs on.
void Pump();
