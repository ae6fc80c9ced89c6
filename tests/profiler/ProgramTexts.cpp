// Prints what the running Column Profiler says, for tests that use it from outside: one line each for the title, the
// status bar and, while one is open, the message box.
#include <windows.h>

#include <cstdio>
#include <string>

namespace {

constexpr int kStatusBar = 0xE801;
constexpr int kBoxText = 0xFFFF;

std::wstring TextOf(HWND window) {
    wchar_t text[1000] = L"";
    ::SendMessage(window, WM_GETTEXT, 1000, reinterpret_cast<LPARAM>(text));
    return text;
}

std::wstring ClassOf(HWND window) {
    wchar_t name[100] = L"";
    ::GetClassName(window, name, 100);
    return name;
}

void Print(const char* what, const std::wstring& text) {
    char utf8[4000] = "";
    ::WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, utf8, sizeof utf8, nullptr, nullptr);
    std::printf("%s: %s\n", what, utf8);
}

BOOL CALLBACK Look(HWND window, LPARAM) {
    if (!::IsWindowVisible(window))
        return TRUE;
    if (ClassOf(window) == L"#32770") {
        Print("box", TextOf(::GetDlgItem(window, kBoxText)));
    } else if (HWND status = ::GetDlgItem(window, kStatusBar)) {
        Print("title", TextOf(window));
        Print("status", TextOf(status));
    }
    return TRUE;
}

} // namespace

int main() {
    ::EnumWindows(&Look, 0);
    return 0;
}
