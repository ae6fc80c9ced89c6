// The monkey opens no windows of other programs: what Column Profiler hands to the shell, such as a page for the
// browser, goes nowhere.
#include <windows.h>

#include <shellapi.h>

namespace {

HINSTANCE WINAPI OpenNothing(HWND, LPCWSTR, LPCWSTR, LPCWSTR, LPCWSTR, INT) {
    constexpr INT_PTR opened = 33; // the smallest number that is no error
    return reinterpret_cast<HINSTANCE>(opened);
}

} // namespace

// Calls of imported functions go through a pointer with such a name. The linker takes this one and not the system's.
extern "C" {
decltype(&::ShellExecuteW) __imp_ShellExecuteW = OpenNothing;
}
