// What every contender of the grid benchmark does alike.
#include "Contender.h"

void Contender::Repaint() {
    Window().Invalidate(FALSE);
    Show();
}

void Contender::Show() {
    Window().UpdateWindow();
    ::GdiFlush();
}

void Contender::Pump() {
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
}
