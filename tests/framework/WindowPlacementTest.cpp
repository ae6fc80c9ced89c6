// Where windows stand and how they relate: coordinates, styles, scroll bars, parents and owners.
#include "TestApplication.h"

namespace {

class PlacementTest : public WindowTest {
protected:
    void SetUp() override { ASSERT_TRUE(m_window.CreateTop(WS_POPUP, CRect(100, 50, 400, 250))); }
    CTestWindow m_window;
};

TEST_F(PlacementTest, RectanglesMoveBetweenClientAndScreen) {
    CRect rect(10, 20, 30, 40);
    m_window.ClientToScreen(&rect);
    EXPECT_EQ(rect, CRect(110, 70, 130, 90));
    m_window.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
    CPoint point(1, 2);
    m_window.ClientToScreen(&point);
    EXPECT_EQ(point, CPoint(101, 52));
    CTestWindow child;
    ASSERT_TRUE(child.CreateChild(m_window, 1, CRect(5, 6, 50, 60)));
    CRect mapped(0, 0, 10, 10);
    child.MapWindowPoints(&m_window, &mapped);
    EXPECT_EQ(mapped, CRect(5, 6, 15, 16));
    child.MoveWindow(CRect(7, 8, 27, 38));
    CRect client;
    child.GetClientRect(&client);
    EXPECT_EQ(client, CRect(0, 0, 20, 30));
}

TEST_F(PlacementTest, TextsOfAnyLengthComeBack) {
    CString text;
    for (int i = 0; i < 500; ++i)
        text += _T("word ");
    m_window.SetWindowText(text);
    CString read;
    m_window.GetWindowText(read);
    EXPECT_EQ(read, text);
    m_window.SetWindowText(_T(""));
    m_window.GetWindowText(read);
    EXPECT_TRUE(read.IsEmpty());
}

TEST_F(PlacementTest, ModifyStyleSaysWhetherItChangedAnything) {
    EXPECT_TRUE(m_window.ModifyStyle(0, WS_HSCROLL));
    EXPECT_FALSE(m_window.ModifyStyle(0, WS_HSCROLL));
    EXPECT_NE(m_window.GetStyle() & WS_HSCROLL, 0u);
    EXPECT_TRUE(m_window.ModifyStyle(WS_HSCROLL, WS_VSCROLL, SWP_FRAMECHANGED));
    EXPECT_EQ(m_window.GetStyle() & (WS_HSCROLL | WS_VSCROLL), static_cast<DWORD>(WS_VSCROLL));
    EXPECT_TRUE(m_window.ModifyStyleEx(0, WS_EX_TOOLWINDOW));
    EXPECT_NE(m_window.GetExStyle() & WS_EX_TOOLWINDOW, 0u);
}

TEST_F(PlacementTest, ScrollInfoGoesToTheBarAndBack) {
    ASSERT_TRUE(m_window.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED));
    SCROLLINFO info{};
    info.fMask = SIF_ALL;
    info.nMin = 0;
    info.nMax = 99;
    info.nPage = 20;
    info.nPos = 30;
    EXPECT_TRUE(m_window.SetScrollInfo(SB_VERT, &info, FALSE));
    SCROLLINFO read{};
    ASSERT_TRUE(m_window.GetScrollInfo(SB_VERT, &read));
    EXPECT_EQ(read.nMax, 99);
    EXPECT_EQ(read.nPage, 20u);
    EXPECT_EQ(read.nPos, 30);
    EXPECT_EQ(m_window.GetScrollLimit(SB_VERT), 80); // the last position that fills the page
    EXPECT_EQ(m_window.SetScrollPos(SB_VERT, 40), 30);
    EXPECT_EQ(m_window.GetScrollPos(SB_VERT), 40);
}

// A window whose scroll bar is a control beside it.
class CWithBar : public CTestWindow {
public:
    CScrollBar m_bar;
    CScrollBar* GetScrollBarCtrl(int bar) const override {
        return bar == SB_HORZ ? const_cast<CScrollBar*>(&m_bar) : nullptr;
    }
};

TEST_F(PlacementTest, AScrollBarControlStandsInForTheWindowsBar) {
    CWithBar window;
    ASSERT_TRUE(window.CreateChild(m_window, 2));
    ASSERT_TRUE(window.m_bar.Create(WS_CHILD | SBS_HORZ, CRect(0, 0, 80, 16), &window, 3));
    window.SetScrollRange(SB_HORZ, 0, 50, FALSE);
    window.SetScrollPos(SB_HORZ, 17, FALSE);
    EXPECT_EQ(window.m_bar.GetScrollPos(), 17);
    EXPECT_EQ(window.GetScrollPos(SB_HORZ), 17);
    int low = -1;
    int high = -1;
    window.m_bar.GetScrollRange(&low, &high);
    EXPECT_EQ(low, 0);
    EXPECT_EQ(high, 50);
}

TEST_F(PlacementTest, ChildrenAreFoundByIdAlsoFurtherDown) {
    CTestWindow child;
    CTestWindow grandchild;
    ASSERT_TRUE(child.CreateChild(m_window, 11));
    ASSERT_TRUE(grandchild.CreateChild(child, 12));
    EXPECT_EQ(m_window.GetDlgItem(11), &child);
    EXPECT_EQ(m_window.GetDlgItem(12), nullptr);
    EXPECT_EQ(m_window.GetDescendantWindow(12), &grandchild);
    EXPECT_EQ(m_window.GetDescendantWindow(13), nullptr);
    EXPECT_EQ(grandchild.GetParent(), &child);
    EXPECT_TRUE(m_window.IsChild(&grandchild));
    EXPECT_EQ(grandchild.GetDlgCtrlID(), 12);
    EXPECT_EQ(grandchild.GetTopLevelParent(), &m_window);
    EXPECT_EQ(grandchild.GetParentOwner(), &m_window);
    EXPECT_EQ(grandchild.GetParentFrame(), nullptr);
}

TEST_F(PlacementTest, AnOwnerOfOnesOwnComesBeforeTheParent) {
    CTestWindow child;
    CTestWindow other;
    ASSERT_TRUE(child.CreateChild(m_window, 11));
    ASSERT_TRUE(other.CreateTop());
    EXPECT_EQ(child.GetOwner(), &m_window);
    child.SetOwner(&other);
    EXPECT_EQ(child.GetOwner(), &other);
    EXPECT_EQ(child.GetTopLevelOwner(), &other);
    EXPECT_EQ(child.GetTopLevelParent(), &m_window);
    child.SetOwner(nullptr);
    EXPECT_EQ(child.GetOwner(), &m_window);
}

TEST_F(PlacementTest, CentringStaysInsideTheWorkArea) {
    CTestWindow child;
    ASSERT_TRUE(child.CreateChild(m_window, 4, CRect(0, 0, 100, 50)));
    child.CenterWindow();
    CRect rect;
    child.GetWindowRect(&rect);
    m_window.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(100, 75, 200, 125)); // the client area is 300 by 200

    CTestWindow owner;
    CTestWindow popup;
    ASSERT_TRUE(owner.CreateTop(WS_POPUP | WS_VISIBLE, CRect(-150, -100, -50, -60)));
    ASSERT_TRUE(popup.CreateTop(WS_POPUP, CRect(10, 10, 60, 50)));
    popup.CenterWindow(&owner);
    popup.GetWindowRect(&rect);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfo(::MonitorFromWindow(owner.m_hWnd, MONITOR_DEFAULTTOPRIMARY), &monitor);
    EXPECT_EQ(rect.TopLeft(), CRect(monitor.rcWork).TopLeft());
    EXPECT_EQ(rect.Size(), CSize(50, 40));
}

TEST_F(PlacementTest, MessagesToDescendantsMayBeKeptToPermanentOnes) {
    class CCounter : public CTestWindow {
    public:
        int m_count = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            m_count += message == WM_APP;
            return CTestWindow::WindowProc(message, wParam, lParam);
        }
    };
    CCounter child;
    CCounter grandchild;
    ASSERT_TRUE(child.CreateChild(m_window, 1));
    ASSERT_TRUE(grandchild.CreateChild(child, 2));
    m_window.SendMessageToDescendants(WM_APP, 0, 0, FALSE);
    EXPECT_EQ(child.m_count, 1);
    EXPECT_EQ(grandchild.m_count, 0);
    m_window.SendMessageToDescendants(WM_APP, 0, 0, TRUE, TRUE);
    EXPECT_EQ(child.m_count, 2);
    EXPECT_EQ(grandchild.m_count, 1);
}

TEST_F(PlacementTest, PaintingContextsCoverTheirWindows) {
    m_window.ShowWindow(SW_SHOWNOACTIVATE);
    {
        CClientDC dc(&m_window);
        EXPECT_EQ(dc.GetWindow(), &m_window);
        dc.FillSolidRect(CRect(0, 0, 5, 5), RGB(0, 128, 255));
        EXPECT_EQ(dc.GetPixel(2, 2), RGB(0, 128, 255));
    }
    CDC* const borrowed = m_window.GetDC();
    ASSERT_NE(borrowed, nullptr);
    EXPECT_EQ(m_window.ReleaseDC(borrowed), 1);
}

TEST_F(PlacementTest, FontsAreTheObjectsThatWereSet) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &m_window, 1));
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(100, _T("Arial")));
    edit.SetFont(&font);
    EXPECT_EQ(edit.GetFont(), &font);
    edit.SetFont(nullptr);
    EXPECT_EQ(edit.GetFont(), nullptr);
}

TEST_F(PlacementTest, InvalidatedPartsAreThoseThatWereNamed) {
    m_window.ShowWindow(SW_SHOWNOACTIVATE);
    m_window.ValidateRect(nullptr);
    EXPECT_FALSE(m_window.GetUpdateRect(nullptr));
    m_window.InvalidateRect(CRect(10, 10, 30, 20));
    CRect damaged;
    EXPECT_TRUE(m_window.GetUpdateRect(&damaged));
    EXPECT_EQ(damaged, CRect(10, 10, 30, 20));
    CRgn region;
    region.CreateRectRgn(0, 0, 1, 1);
    m_window.GetUpdateRgn(&region);
    CRect box;
    region.GetRgnBox(&box);
    EXPECT_EQ(box, damaged);
}

} // namespace
