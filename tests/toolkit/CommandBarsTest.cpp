// Popup menus, and the MDI frame that has command bars.
#include "ToolkitTestApp.h"

#include "../support/MenuDriver.h"

namespace {

constexpr UINT flags = TPM_RIGHTBUTTON | TPM_NONOTIFY | TPM_RETURNCMD;

class PopupMenuTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_window.CreateEx(0, nullptr, L"menus", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 300, 200, nullptr,
                                      nullptr));
        ASSERT_TRUE(m_menu.CreatePopupMenu());
        m_menu.AppendMenu(MF_STRING, 2, L"First");
        m_menu.AppendMenu(MF_STRING | MF_CHECKED, 3, L"Second");
        m_menu.AppendMenu(MF_SEPARATOR);
        m_menu.AppendMenu(MF_STRING, 1, L"Restore");
    }
    void TearDown() override { m_window.DestroyWindow(); }

    CWnd m_window;
    CMenu m_menu;
};

TEST_F(PopupMenuTest, ReturnsTheChosenCommand) {
    const MenuDriver driver(3);
    EXPECT_EQ(CXTPCommandBars::TrackPopupMenu(&m_menu, flags, 100, 100, &m_window), 3);
    EXPECT_TRUE(driver.Shown());
    ASSERT_EQ(driver.Items().size(), 4U);
    EXPECT_TRUE(driver.Find(L"Second")->checked);
}

TEST_F(PopupMenuTest, ReturnsZeroWhenTheUserLeavesIt) {
    const MenuDriver driver;
    EXPECT_EQ(CXTPCommandBars::TrackPopupMenu(&m_menu, flags, 100, 100, &m_window), 0);
    EXPECT_TRUE(driver.Shown());
}

TEST_F(PopupMenuTest, ShowsNothingWithoutMenuOrWindow) {
    const MenuDriver driver(3);
    CMenu none;
    CWnd noWindow;
    EXPECT_EQ(CXTPCommandBars::TrackPopupMenu(nullptr, flags, 100, 100, &m_window), 0);
    EXPECT_EQ(CXTPCommandBars::TrackPopupMenu(&none, flags, 100, 100, &m_window), 0);
    EXPECT_EQ(CXTPCommandBars::TrackPopupMenu(&m_menu, flags, 100, 100, nullptr), 0);
    EXPECT_EQ(CXTPCommandBars::TrackPopupMenu(&m_menu, flags, 100, 100, &noWindow), 0);
    EXPECT_FALSE(driver.Shown());
}

/// Notes the last command that it got.
class CommandWindow : public CWnd {
public:
    UINT m_command = 0;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        m_command = LOWORD(wParam);
        return TRUE;
    }
};

TEST_F(PopupMenuTest, SendsTheCommandToTheOwnerWhenItIsNotToBeReturned) {
    CommandWindow owner;
    ASSERT_TRUE(
        owner.CreateEx(0, nullptr, L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 300, 200, nullptr, nullptr));
    const MenuDriver driver(2);
    EXPECT_NE(CXTPCommandBars::TrackPopupMenu(&m_menu, TPM_RIGHTBUTTON, 100, 100, &m_window, nullptr, &owner), 0);
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessage(&message);
    EXPECT_EQ(owner.m_command, 2U);
    owner.DestroyWindow();
}

/// Notes where a popup menu stands while it is open, then leaves it.
class MenuPlace {
public:
    MenuPlace() {
        s_place = this;
        m_timer = ::SetTimer(nullptr, 0, 10, &OnTimer);
    }
    ~MenuPlace() { ::KillTimer(nullptr, m_timer); }
    CRect m_rect;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        const HWND menu = ::FindWindow(L"#32768", nullptr);
        if (!menu || !::IsWindowVisible(menu))
            return;
        ::GetWindowRect(menu, s_place->m_rect);
        ::EndMenu();
    }
    static MenuPlace* s_place;
    UINT_PTR m_timer;
};
MenuPlace* MenuPlace::s_place = nullptr;

TEST_F(PopupMenuTest, StandsWhereTheSystemPutsAMenuThatKeepsARectangleFree) {
    CRect ours, systems;
    {
        MenuPlace place;
        CXTPCommandBars::TrackPopupMenu(&m_menu, flags | TPM_VERTICAL, 100, 100, &m_window, CRect(60, 90, 260, 140));
        ours = place.m_rect;
    }
    {
        MenuPlace place;
        TPMPARAMS exclusion = {sizeof(TPMPARAMS), {60, 90, 260, 140}};
        ::TrackPopupMenuEx(m_menu, flags | TPM_VERTICAL, 100, 100, m_window, &exclusion);
        systems = place.m_rect;
    }
    EXPECT_FALSE(ours.IsRectEmpty());
    EXPECT_EQ(ours, systems);
}

// --- The frame -------------------------------------------------------------------------------------------------------

TEST(MDIFrameWithCommandBars, HasThemOnceTheyAreInitialised) {
    auto* const frame = new CXTPMDIFrameWnd;
    ASSERT_TRUE(frame->Create(nullptr, L"frame"));
    EXPECT_EQ(frame->GetCommandBars(), nullptr);
    EXPECT_TRUE(frame->InitCommandBars());
    ASSERT_NE(frame->GetCommandBars(), nullptr);
    EXPECT_EQ(frame->GetCommandBars()->GetSite(), frame);
    EXPECT_TRUE(frame->IsKindOf(RUNTIME_CLASS(CMDIFrameWnd)));
    frame->DestroyWindow();
}

} // namespace
