// Drives a popup menu from a timer, which the menu's modal loop dispatches.
#include "MenuDriver.h"

namespace {

constexpr UINT getMenuHandle = 0x01E1; // MN_GETHMENU
constexpr const wchar_t* menuClass = L"#32768";

MenuDriver* activeDriver = nullptr;

// A popup menu window that this process shows, null while there is none.
HWND FindOwnMenu() {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, menuClass, nullptr))) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == GetCurrentProcessId() && IsWindowVisible(window))
            return window;
    }
    return nullptr;
}

std::vector<MenuItem> ReadMenu(HMENU menu) {
    std::vector<MenuItem> items;
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        wchar_t text[256] = L"";
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_STRING;
        info.dwTypeData = text;
        info.cch = 256;
        GetMenuItemInfoW(menu, i, TRUE, &info);
        items.push_back({text, info.wID, (info.fState & MFS_CHECKED) != 0, (info.fState & MFS_DISABLED) == 0,
                         (info.fType & MFT_SEPARATOR) != 0});
    }
    return items;
}

} // namespace

MenuDriver::MenuDriver(UINT chooseId) : m_chooseId(chooseId) {
    activeDriver = this;
    m_timer = SetTimer(nullptr, 0, 10, &MenuDriver::OnTimer);
}

MenuDriver::~MenuDriver() {
    if (m_timer)
        KillTimer(nullptr, m_timer);
    activeDriver = nullptr;
}

const MenuItem* MenuDriver::Find(const std::wstring& text) const {
    for (const MenuItem& item : m_items)
        if (item.text == text)
            return &item;
    return nullptr;
}

void CALLBACK MenuDriver::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    MenuDriver* driver = activeDriver;
    HWND window = driver ? FindOwnMenu() : nullptr;
    if (!window)
        return;
    KillTimer(nullptr, driver->m_timer);
    driver->m_timer = 0;
    driver->m_shown = true;
    driver->Answer(window);
}

void MenuDriver::Answer(HWND menuWindow) {
    const HMENU menu = reinterpret_cast<HMENU>(SendMessageW(menuWindow, getMenuHandle, 0, 0));
    m_items = ReadMenu(menu);
    // The arrow key skips separators but not disabled items.
    int downs = 0;
    for (const MenuItem& item : m_items) {
        downs += item.separator ? 0 : 1;
        if (m_chooseId && item.id == m_chooseId && !item.separator) {
            for (int i = 0; i < downs; ++i)
                Press(menuWindow, VK_DOWN);
            Press(menuWindow, VK_RETURN);
            return;
        }
    }
    Press(menuWindow, VK_ESCAPE);
}

void MenuDriver::Press(HWND menuWindow, UINT key) {
    PostMessageW(menuWindow, WM_KEYDOWN, key, 1);
    PostMessageW(menuWindow, WM_KEYUP, key, 0xC0000001);
}
