// Frames: layout around bars, status bar panes and messages, menus and accelerators from resources, views.
#include "TestApplication.h"

#include <afxext.h>
#include <afxpriv.h>

#include "windows_resource.h"

namespace {

class CFrameTestView : public CView {
    DECLARE_DYNCREATE(CFrameTestView)
public:
    int m_initialUpdates = 0;
    int m_draws = 0;
    std::vector<BOOL> m_activations;

    void OnInitialUpdate() override {
        ++m_initialUpdates;
        CView::OnInitialUpdate();
    }

protected:
    void OnDraw(CDC* dc) override {
        ++m_draws;
        dc->FillSolidRect(CRect(0, 0, 10, 10), RGB(255, 0, 0));
    }
    void OnActivateView(BOOL activate, CView* activated, CView* deactivated) override {
        m_activations.push_back(activate);
        CView::OnActivateView(activate, activated, deactivated);
    }
};

IMPLEMENT_DYNCREATE(CFrameTestView, CView)

/// A bar of a fixed thickness at any side.
class CStrip : public CControlBar {
public:
    explicit CStrip(int thickness) : m_thickness(thickness) {}
    int m_updates = 0;

    BOOL Create(CWnd* parent, DWORD side, UINT id) {
        SetBarStyle(side);
        return CWnd::Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(), parent, id);
    }
    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override {
        CSize size = CControlBar::CalcFixedLayout(stretch, horizontal);
        (horizontal ? size.cy : size.cx) = m_thickness;
        return size;
    }
    void OnUpdateCmdUI(CFrameWnd* target, BOOL) override { ++m_updates; }

private:
    int m_thickness;
};

class CTestFrame : public CFrameWnd {
public:
    int m_saves = 0;
    CString m_position = _T("1:1");

    void RecalcLayout(BOOL notify = TRUE) override {
        ++m_layouts;
        CFrameWnd::RecalcLayout(notify);
    }
    int m_layouts = 0;

protected:
    void OnSave() { ++m_saves; }
    void OnUpdatePosition(CCmdUI* item) {
        item->Enable();
        item->SetText(m_position);
    }
    void OnUpdateSave(CCmdUI* item) { item->Enable(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestFrame, CFrameWnd)
    ON_COMMAND(ID_FILE_SAVE, &CTestFrame::OnSave)
    ON_UPDATE_COMMAND_UI(ID_FILE_SAVE, &CTestFrame::OnUpdateSave)
    ON_UPDATE_COMMAND_UI(IDS_POSITION, &CTestFrame::OnUpdatePosition)
END_MESSAGE_MAP()

class FrameTest : public WindowTest {
protected:
    void SetUp() override {
        m_frame = new CTestFrame;
        // A popup without a border: the client area is the whole window.
        ASSERT_TRUE(m_frame->Create(nullptr, _T("Frame"), WS_POPUP, CRect(0, 0, 400, 300)));
    }
    void TearDown() override {
        if (m_frame != nullptr)
            m_frame->DestroyWindow();
        WindowTest::TearDown();
    }
    CRect RectOf(const CWnd& window) const {
        CRect rect;
        window.GetWindowRect(&rect);
        m_frame->ScreenToClient(&rect);
        return rect;
    }
    CString ShownText(CStatusBar& bar, int pane) {
        CString text;
        const int length = LOWORD(bar.SendMessage(SB_GETTEXTLENGTH, pane));
        bar.SendMessage(SB_GETTEXT, pane, reinterpret_cast<LPARAM>(text.GetBuffer(length + 1)));
        text.ReleaseBuffer();
        return text;
    }

    CTestFrame* m_frame = nullptr;
};

TEST_F(FrameTest, BarsTakeTheirSidesAndThePaneTheRest) {
    CStrip top(20);
    CStrip left(30);
    CStrip bottom(25);
    CTestWindow pane;
    ASSERT_TRUE(top.Create(m_frame, CBRS_ALIGN_TOP, AFX_IDW_CONTROLBAR_FIRST + 5));
    ASSERT_TRUE(left.Create(m_frame, CBRS_ALIGN_LEFT, AFX_IDW_CONTROLBAR_FIRST + 6));
    ASSERT_TRUE(bottom.Create(m_frame, CBRS_ALIGN_BOTTOM, AFX_IDW_CONTROLBAR_FIRST + 7));
    ASSERT_TRUE(pane.CreateChild(*m_frame, AFX_IDW_PANE_FIRST));
    m_frame->RecalcLayout();
    // Each takes its strip of what those before it left.
    EXPECT_EQ(RectOf(top), CRect(0, 0, 400, 20));
    EXPECT_EQ(RectOf(left), CRect(0, 20, 30, 300));
    EXPECT_EQ(RectOf(bottom), CRect(30, 275, 400, 300));
    EXPECT_EQ(RectOf(pane), CRect(30, 20, 400, 275));

    m_frame->SetWindowPos(nullptr, 0, 0, 500, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(RectOf(pane), CRect(30, 20, 500, 175));
    m_frame->ShowControlBar(&left, FALSE, FALSE);
    EXPECT_EQ(RectOf(pane), CRect(0, 20, 500, 175));
}

TEST_F(FrameTest, QueryingTheLayoutMovesNothing) {
    CStrip top(20);
    CTestWindow pane;
    ASSERT_TRUE(top.Create(m_frame, CBRS_ALIGN_TOP, AFX_IDW_CONTROLBAR_FIRST));
    ASSERT_TRUE(pane.CreateChild(*m_frame, AFX_IDW_PANE_FIRST, CRect(1, 2, 3, 4)));
    CRect left;
    m_frame->RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &left);
    EXPECT_EQ(left, CRect(0, 20, 400, 300));
    EXPECT_EQ(RectOf(pane), CRect(1, 2, 3, 4));
    const CRect smaller(0, 0, 100, 100);
    m_frame->RepositionBars(0, 0xFFFF, 0, CWnd::reposQuery, &left, &smaller);
    EXPECT_EQ(left, CRect(0, 20, 100, 100));
}

// Status bar ----------------------------------------------------------------------------------------------------------

class StatusBarTest : public FrameTest {
protected:
    void SetUp() override {
        FrameTest::SetUp();
        ASSERT_TRUE(m_bar.Create(m_frame));
        static const UINT indicators[] = {ID_SEPARATOR, IDS_POSITION, IDS_UNHANDLED};
        ASSERT_TRUE(m_bar.SetIndicators(indicators, 3));
        m_frame->RecalcLayout();
    }
    CStatusBar m_bar;
};

TEST_F(StatusBarTest, StandsAtTheBottomAcrossTheFrame) {
    const CRect rect = RectOf(m_bar);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.right, 400);
    EXPECT_EQ(rect.bottom, 300);
    EXPECT_EQ(rect.Height(), m_bar.CalcFixedLayout(TRUE, TRUE).cy);
    EXPECT_GT(rect.Height(), 12);
    EXPECT_EQ(m_frame->GetMessageBar(), &m_bar);
}

TEST_F(StatusBarTest, PanesHaveTheIdsTextsAndStylesOfTheirIndicators) {
    EXPECT_EQ(m_bar.GetCount(), 3);
    EXPECT_EQ(m_bar.GetItemID(1), static_cast<UINT>(IDS_POSITION));
    EXPECT_EQ(m_bar.CommandToIndex(IDS_UNHANDLED), 2);
    EXPECT_EQ(m_bar.CommandToIndex(12345), -1);
    EXPECT_EQ(m_bar.GetPaneText(1), _T("Position"));
    UINT id = 0;
    UINT style = 0;
    int width = 0;
    m_bar.GetPaneInfo(0, id, style, width);
    EXPECT_EQ(style, SBPS_STRETCH | SBPS_NOBORDERS);
    m_bar.GetPaneInfo(1, id, style, width);
    EXPECT_EQ(style, SBPS_NORMAL);
    EXPECT_GT(width, 20);
    EXPECT_FALSE(m_bar.SetPaneText(3, _T("x")));
}

TEST_F(StatusBarTest, TheStretchingPaneTakesWhatTheOthersLeave) {
    m_bar.SetPaneInfo(1, IDS_POSITION, SBPS_NORMAL, 60);
    m_bar.SetPaneInfo(2, IDS_UNHANDLED, SBPS_NORMAL, 40);
    CRect first;
    CRect second;
    CRect third;
    const auto read = [&] {
        m_bar.GetItemRect(0, &first);
        m_bar.GetItemRect(1, &second);
        m_bar.GetItemRect(2, &third);
    };
    read();
    EXPECT_EQ(second.Width() - third.Width(), 20);
    EXPECT_LE(first.right, second.left);
    EXPECT_LE(third.right, 400);
    EXPECT_GE(third.right, 395);
    const int before = first.Width();
    m_frame->SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    const int secondWidth = second.Width();
    read();
    EXPECT_EQ(first.Width(), before + 100);
    EXPECT_EQ(second.Width(), secondWidth);
}

TEST_F(StatusBarTest, PaneTextsShowUnlessTheirPaneIsDisabled) {
    EXPECT_TRUE(m_bar.SetPaneText(1, _T("12:7")));
    EXPECT_EQ(ShownText(m_bar, 1), _T("12:7"));
    m_bar.SetPaneStyle(1, SBPS_DISABLED);
    EXPECT_EQ(ShownText(m_bar, 1), _T(""));
    EXPECT_EQ(m_bar.GetPaneText(1), _T("12:7"));
    m_bar.SetPaneStyle(1, SBPS_NORMAL);
    EXPECT_EQ(ShownText(m_bar, 1), _T("12:7"));
}

TEST_F(StatusBarTest, IdleUpdatesFillThePanes) {
    m_bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(ShownText(m_bar, 1), _T("1:1"));
    EXPECT_EQ(ShownText(m_bar, 2), _T("")); // nobody handles it: disabled
    EXPECT_EQ(m_bar.GetPaneStyle(2) & SBPS_DISABLED, SBPS_DISABLED);
    m_frame->m_position = _T("2:9");
    m_bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(ShownText(m_bar, 1), _T("2:9"));
}

TEST_F(StatusBarTest, MessagesShowInTheFirstPane) {
    m_frame->SetMessageText(_T("Reading"));
    EXPECT_EQ(ShownText(m_bar, 0), _T("Reading"));
    m_frame->SetMessageText(ID_FILE_SAVE);
    EXPECT_EQ(ShownText(m_bar, 0), _T("Saves the file")); // up to the line feed
    EXPECT_EQ(m_frame->SendMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE), ID_FILE_SAVE);
    EXPECT_EQ(ShownText(m_bar, 0), _T("Ready"));
    CString text;
    m_bar.GetWindowText(text);
    EXPECT_EQ(text, _T("Ready"));
}

TEST_F(StatusBarTest, MenuItemsExplainThemselvesInTheBar) {
    m_frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(ID_FILE_SAVE, MF_HILITE), 1);
    EXPECT_EQ(ShownText(m_bar, 0), _T("Saves the file"));
    m_frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(0, MF_SEPARATOR), 1);
    EXPECT_EQ(ShownText(m_bar, 0), _T(""));
    m_frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    EXPECT_EQ(ShownText(m_bar, 0), _T("Ready"));
}

TEST_F(StatusBarTest, ItsMenuCommandShowsAndHidesIt) {
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_VIEW_STATUS_BAR, _T("Status bar"));
    const auto open = [&] {
        m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
        return (menu.GetMenuState(0, MF_BYPOSITION) & MF_CHECKED) != 0;
    };
    EXPECT_TRUE(open());
    m_frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_FALSE(m_bar.IsVisible());
    EXPECT_FALSE(open());
}

TEST_F(StatusBarTest, AMenuThatIsNoMoreIsNotUpdated) {
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    m_frame->SendMessage(WM_INITMENUPOPUP, 0x7FFF, 0);
    m_frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_FALSE(m_bar.IsVisible()) << "the frame goes on";
}

TEST_F(StatusBarTest, ASizableFrameGetsAGrip) {
    EXPECT_EQ(m_bar.GetStyle() & SBARS_SIZEGRIP, 0u);
    auto* sizable = new CTestFrame;
    ASSERT_TRUE(sizable->Create(nullptr, _T("Sizable")));
    CStatusBar bar;
    ASSERT_TRUE(bar.Create(sizable));
    EXPECT_NE(bar.GetStyle() & SBARS_SIZEGRIP, 0u);
    sizable->DestroyWindow();
}

// Resources -----------------------------------------------------------------------------------------------------------

/// A child that remembers what it hears of resolutions.
class DpiChild : public CWnd {
public:
    std::vector<std::pair<int, LPARAM>> heard;

protected:
    LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam) {
        heard.emplace_back(LOWORD(wParam), lParam);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DpiChild, CWnd)
    ON_MESSAGE(WM_DPICHANGED, &DpiChild::OnDpiChanged)
END_MESSAGE_MAP()

TEST_F(FrameTest, OnAMonitorOfAnotherResolutionItTakesTheSuggestedPlaceAndTellsItsDescendants) {
    DpiChild outer, inner;
    outer.CreateEx(0, AfxRegisterWndClass(0), nullptr, WS_CHILD, CRect(0, 0, 50, 50), m_frame, AFX_IDW_PANE_FIRST);
    inner.CreateEx(0, AfxRegisterWndClass(0), nullptr, WS_CHILD, CRect(0, 0, 20, 20), &outer, 1);
    const CRect suggested(30, 40, 630, 490);
    const int layouts = m_frame->m_layouts;
    m_frame->SendMessage(WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
    CRect place;
    m_frame->GetWindowRect(&place);
    EXPECT_EQ(place, suggested);
    EXPECT_EQ(RectOf(outer), CRect(0, 0, 600, 450)) << "laid out";
    EXPECT_GT(m_frame->m_layouts, layouts);
    const std::vector<std::pair<int, LPARAM>> once = {{144, 0}};
    EXPECT_EQ(outer.heard, once) << "without a place, which is the frame's alone";
    EXPECT_EQ(inner.heard, once);
    m_frame->SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96), 0);
    m_frame->GetWindowRect(&place);
    EXPECT_EQ(place, suggested) << "a frame inside another stays where it is";
    EXPECT_EQ(outer.heard, once);
    inner.DestroyWindow();
    outer.DestroyWindow();
}

TEST_F(FrameTest, TheStatusBarHasTheFontOfTheMonitor) {
    CStatusBar bar;
    ASSERT_TRUE(bar.Create(m_frame));
    const auto fontHeight = [&bar] {
        LOGFONT font{};
        ::GetObject(reinterpret_cast<HFONT>(bar.SendMessage(WM_GETFONT)), sizeof(font), &font);
        return std::abs(font.lfHeight);
    };
    const CRect suggested(0, 0, 400, 300);
    const auto goTo = [&](int dpi) {
        m_frame->SendMessage(WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
    };
    goTo(96);
    const int height = RectOf(bar).Height(), letters = fontHeight();
    goTo(192);
    EXPECT_EQ(fontHeight(), 2 * letters);
    EXPECT_GT(RectOf(bar).Height(), height + letters / 2);
    EXPECT_EQ(RectOf(bar).bottom, 300);
    goTo(96);
    EXPECT_EQ(fontHeight(), letters);
    EXPECT_EQ(RectOf(bar).Height(), height);
    bar.DestroyWindow();
}

TEST_F(FrameTest, LoadFrameTakesMenuTitleAndAcceleratorsOfOneId) {
    auto* frame = new CTestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
    CString title;
    frame->GetWindowText(title);
    EXPECT_EQ(title, _T("Test frame"));
    EXPECT_EQ(frame->GetTitle(), _T("Test frame"));
    ASSERT_NE(frame->GetMenu(), nullptr);
    EXPECT_EQ(frame->GetMenu()->GetSubMenu(0)->GetMenuItemID(0), static_cast<UINT>(ID_FILE_SAVE));
    ASSERT_NE(frame->m_hAccelTable, nullptr);
    EXPECT_EQ(frame->GetStyle() & 0xFFFF & (FWS_ADDTOTITLE | FWS_PREFIXTITLE), 0u);

    // F9 without modifiers, so that the state of the real keyboard does not matter.
    MSG key{frame->m_hWnd, WM_KEYDOWN, VK_F9, 1, 0, {}};
    EXPECT_TRUE(frame->PreTranslateMessage(&key));
    EXPECT_EQ(frame->m_saves, 1);
    key.wParam = VK_F8;
    EXPECT_FALSE(frame->PreTranslateMessage(&key));
    frame->DestroyWindow();
}

TEST_F(FrameTest, AFrameWithoutItsMenuResourceIsNotCreated) {
    auto* frame = new CTestFrame; // deletes itself
    EXPECT_FALSE(frame->Create(nullptr, _T("x"), WS_POPUP, CRect(0, 0, 9, 9), nullptr, _T("NoSuchMenu")));
}

TEST_F(FrameTest, ClosingTheFrameEndsIt) {
    m_app.m_pMainWnd = m_frame;
    m_frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(m_app.m_pMainWnd, nullptr);
    MSG message{};
    EXPECT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    m_frame = nullptr;
}

TEST_F(FrameTest, TheExitCommandClosesTheMainWindow) {
    m_app.m_pMainWnd = m_frame;
    m_frame->SendMessage(WM_COMMAND, ID_APP_EXIT);
    EXPECT_EQ(m_app.m_pMainWnd, nullptr);
    m_frame = nullptr;
}

// Views ---------------------------------------------------------------------------------------------------------------

class ViewTest : public FrameTest {
protected:
    void SetUp() override {
        m_frame = new CTestFrame;
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(CFrameTestView);
        ASSERT_TRUE(
            m_frame->Create(nullptr, _T("Frame"), WS_POPUP, CRect(0, 0, 400, 300), nullptr, nullptr, 0, &context));
        m_view = dynamic_cast<CFrameTestView*>(m_frame->GetDlgItem(AFX_IDW_PANE_FIRST));
        ASSERT_NE(m_view, nullptr);
    }
    CFrameTestView* m_view = nullptr;
};

TEST_F(ViewTest, FillsTheFrameAndKnowsIt) {
    EXPECT_EQ(RectOf(*m_view), CRect(0, 0, 400, 300));
    EXPECT_EQ(m_view->GetParentFrame(), m_frame);
    EXPECT_EQ(m_view->GetTopLevelFrame(), m_frame);
    EXPECT_EQ(m_view->GetTopLevelParent(), m_frame);
    EXPECT_NE(m_view->GetExStyle() & WS_EX_CLIENTEDGE, 0u);
}

TEST_F(ViewTest, IsInitialisedAndActivatedWhenTheFrameFirstShows) {
    EXPECT_EQ(m_frame->GetActiveView(), nullptr);
    m_frame->InitialUpdateFrame(nullptr, TRUE);
    EXPECT_EQ(m_view->m_initialUpdates, 1);
    EXPECT_EQ(m_frame->GetActiveView(), m_view);
    EXPECT_TRUE(m_frame->IsWindowVisible());
    m_frame->UpdateWindow();
    m_view->UpdateWindow();
    EXPECT_GE(m_view->m_draws, 1);
    CClientDC dc(m_view);
    EXPECT_EQ(dc.GetPixel(5, 5), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(15, 15), ::GetSysColor(COLOR_WINDOW)); // where it draws nothing
}

TEST_F(ViewTest, HearsOfActivationAndItsEnd) {
    m_frame->SetActiveView(m_view);
    m_frame->SetActiveView(m_view);
    m_frame->SetActiveView(nullptr);
    EXPECT_EQ(m_view->m_activations, (std::vector<BOOL>{TRUE, FALSE}));
}

TEST_F(ViewTest, AViewThatEndsIsNoLongerActive) {
    m_frame->SetActiveView(m_view);
    m_view->DestroyWindow();
    EXPECT_EQ(m_frame->GetActiveView(), nullptr);
}

} // namespace
