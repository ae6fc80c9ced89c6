// Tests of the device contexts of windows.
#include "core/HandleCounts.h"

namespace {

/// A plain popup window of the system, 60 x 40 pixels of client area at (100, 120) on the screen.
class WindowDC : public testing::Test {
protected:
    void SetUp() override {
        m_handle = ::CreateWindowExW(WS_EX_NOACTIVATE, L"Static", L"", WS_POPUP | WS_VISIBLE | WS_BORDER, 100, 120, 62,
                                     42, nullptr, nullptr, nullptr, nullptr);
        ASSERT_NE(m_handle, nullptr);
        ::UpdateWindow(m_handle);
        m_window = CWnd::FromHandle(m_handle);
        m_contexts = handlecounts::Live(handlecounts::Kind::DeviceContext);
    }

    void TearDown() override {
        EXPECT_EQ(handlecounts::Live(handlecounts::Kind::DeviceContext), m_contexts);
        ::DestroyWindow(m_handle);
    }

    HWND m_handle = nullptr;
    CWnd* m_window = nullptr;
    long m_contexts = 0;
};

} // namespace

TEST_F(WindowDC, AClientContextCoversTheClientArea) {
    CClientDC dc(m_window);
    EXPECT_EQ(::WindowFromDC(dc), m_handle);
    EXPECT_EQ(dc.GetWindow()->m_hWnd, m_handle);
    POINT origin{};
    ::GetDCOrgEx(dc, &origin);
    EXPECT_EQ(CPoint(origin), CPoint(101, 121));
    CRect box;
    dc.GetClipBox(box);
    EXPECT_EQ(box, CRect(0, 0, 60, 40));
}

TEST_F(WindowDC, AWindowContextCoversTheFrame) {
    CWindowDC dc(m_window);
    POINT origin{};
    ::GetDCOrgEx(dc, &origin);
    EXPECT_EQ(CPoint(origin), CPoint(100, 120));
    CRect box;
    dc.GetClipBox(box);
    EXPECT_EQ(box, CRect(0, 0, 62, 42));
}

TEST_F(WindowDC, WithoutAWindowTheContextIsTheScreens) {
    CClientDC dc(nullptr);
    EXPECT_EQ(dc.GetDeviceCaps(HORZRES), ::GetSystemMetrics(SM_CXSCREEN));
    CWindowDC whole(nullptr);
    EXPECT_EQ(whole.GetDeviceCaps(VERTRES), ::GetSystemMetrics(SM_CYSCREEN));
}

TEST_F(WindowDC, APaintContextCoversTheInvalidPartAndValidatesIt) {
    const CRect invalid(5, 6, 25, 16);
    ::InvalidateRect(m_handle, invalid, FALSE);
    {
        CPaintDC dc(m_window);
        EXPECT_EQ(CRect(dc.m_ps.rcPaint), invalid);
        EXPECT_EQ(dc.m_ps.hdc, dc.m_hDC);
        CRect box;
        dc.GetClipBox(box);
        EXPECT_EQ(box, invalid);
    }
    EXPECT_FALSE(::GetUpdateRect(m_handle, nullptr, FALSE));
}

TEST_F(WindowDC, TheUpdateRegionCanBeLeftOut) {
    ::InvalidateRect(m_handle, CRect(0, 0, 10, 40), FALSE);
    {
        CClientDC dc(m_window);
        EXPECT_NE(dc.ExcludeUpdateRgn(m_window), ERROR);
        EXPECT_FALSE(dc.PtVisible(5, 5));
        EXPECT_TRUE(dc.PtVisible(15, 5));
    }
    ::ValidateRect(m_handle, nullptr);
}

TEST_F(WindowDC, AWindowThatIsNoneHasNoContext) {
    CWnd gone;
    gone.m_hWnd = reinterpret_cast<HWND>(0x7FFF0);
    EXPECT_THROW(CClientDC dc(&gone), CResourceException*);
    gone.m_hWnd = nullptr;
}
