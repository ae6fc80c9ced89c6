// WinMain.cpp - the entry point of programs whose application object does everything; the whole of kyframework_main.
#include <afxwin.h>

namespace {

/// What follows the program's name on the command line.
LPTSTR Arguments() {
    LPTSTR rest = ::GetCommandLine();
    bool quoted = false;
    for (; *rest != _T('\0') && (quoted || *rest > _T(' ')); ++rest) {
        if (*rest == _T('"'))
            quoted = !quoted;
    }
    while (*rest != _T('\0') && *rest <= _T(' '))
        ++rest;
    return rest;
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR, int show) {
    return AfxWinMain(instance, previous, Arguments(), show);
}

// Programs linked with -municode.
extern "C" int WINAPI wWinMain(HINSTANCE instance, HINSTANCE previous, LPWSTR, int show) {
    return AfxWinMain(instance, previous, Arguments(), show);
}
