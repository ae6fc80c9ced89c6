// Drives a popup menu from inside the modal loop that shows it, as a user at the keyboard would.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// One item of a menu as the user saw it.
struct MenuItem {
    std::wstring text; ///< empty for a separator
    UINT id = 0;
    bool checked = false;
    bool enabled = true;
    bool separator = false;
};

/// While it lives, the next popup menu of this thread is read into `Items` and then answered: the item with the
/// identifier given is chosen by keyboard, or the menu is left with Escape. One driver at a time.
class MenuDriver {
public:
    /// @param chooseId identifier of the item to choose, 0 to leave the menu without a choice
    explicit MenuDriver(UINT chooseId = 0);
    ~MenuDriver();
    MenuDriver(const MenuDriver&) = delete;
    MenuDriver& operator=(const MenuDriver&) = delete;

    /// Whether a menu showed.
    bool Shown() const { return m_shown; }
    const std::vector<MenuItem>& Items() const { return m_items; }
    /// The item with the text; null if the menu had none.
    const MenuItem* Find(const std::wstring& text) const;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR id, DWORD);
    void Answer(HWND menuWindow);
    void Press(HWND menuWindow, UINT key);

    UINT m_chooseId;
    UINT_PTR m_timer;
    bool m_shown = false;
    std::vector<MenuItem> m_items;
};
