// Commands: routes, ranges, updates of menus and controls, notifications and their reflection.
#include "TestApplication.h"

#include <afxpriv.h>

namespace {

constexpr UINT idPlain = 0x8001;
constexpr UINT idRangeFirst = 0x8010;
constexpr UINT idRangeLast = 0x8013;
constexpr UINT idPassedOn = 0x8020;
constexpr UINT idOfTheApplication = 0x8030;
constexpr UINT idDisabled = 0x8040;
constexpr UINT idContinues = 0x8050;
constexpr UINT idUnknown = 0x8060;

class CCommandApp : public CTestApplication {
public:
    std::string m_called;

protected:
    void OnApplication() { m_called += "app "; }
    void OnPassedOn() { m_called += "app-passed "; }
    void OnUpdateContinues(CCmdUI* item) {
        m_called += "app-update ";
        item->SetText(_T("from the application"));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCommandApp, CTestApplication)
    ON_COMMAND(idOfTheApplication, &CCommandApp::OnApplication)
    ON_COMMAND(idPassedOn, &CCommandApp::OnPassedOn)
    ON_UPDATE_COMMAND_UI(idContinues, &CCommandApp::OnUpdateContinues)
END_MESSAGE_MAP()

class CCommandView : public CView {
    DECLARE_DYNCREATE(CCommandView)
public:
    std::string m_called;

protected:
    void OnDraw(CDC*) override {}
    void OnRange(UINT id) { m_called += "view-" + std::to_string(id - idRangeFirst) + " "; }
    void OnUpdateRange(CCmdUI* item) {
        item->SetCheck(item->m_nID == idRangeFirst + 1 ? 1 : 0);
        item->Enable(item->m_nID != idRangeFirst + 2);
    }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CCommandView, CView)
BEGIN_MESSAGE_MAP(CCommandView, CView)
    ON_COMMAND_RANGE(idRangeFirst, idRangeLast, &CCommandView::OnRange)
    ON_UPDATE_COMMAND_UI_RANGE(idRangeFirst, idRangeLast, &CCommandView::OnUpdateRange)
END_MESSAGE_MAP()

class CCommandFrame : public CFrameWnd {
public:
    std::string m_called;
    bool m_enabled = false;

    CCommandView* View() { return static_cast<CCommandView*>(GetActiveView()); }

protected:
    void OnPlain() { m_called += "frame "; }
    void OnRangeInFrame(UINT) { m_called += "frame-range "; }
    BOOL OnPassedOn(UINT id) {
        m_called += "frame-passed ";
        return FALSE;
    }
    void OnDisabled() { m_called += "disabled "; }
    void OnUpdateDisabled(CCmdUI* item) { item->Enable(m_enabled); }
    void OnUpdateContinues(CCmdUI* item) {
        m_called += "frame-update ";
        item->ContinueRouting();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCommandFrame, CFrameWnd)
    ON_COMMAND(idPlain, &CCommandFrame::OnPlain)
    ON_COMMAND_RANGE(idRangeFirst, idRangeLast, &CCommandFrame::OnRangeInFrame)
    ON_COMMAND_EX(idPassedOn, &CCommandFrame::OnPassedOn)
    ON_COMMAND(idDisabled, &CCommandFrame::OnDisabled)
    ON_UPDATE_COMMAND_UI(idDisabled, &CCommandFrame::OnUpdateDisabled)
    ON_UPDATE_COMMAND_UI(idContinues, &CCommandFrame::OnUpdateContinues)
END_MESSAGE_MAP()

class CommandTest : public testing::Test {
protected:
    void SetUp() override {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(CCommandView);
        m_frame = new CCommandFrame; // ends with its window
        ASSERT_TRUE(m_frame->Create(nullptr, _T("Commands"), WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300), nullptr,
                                    nullptr, 0, &context));
        m_frame->SetActiveView(static_cast<CView*>(m_frame->GetDlgItem(AFX_IDW_PANE_FIRST)));
        ASSERT_NE(m_frame->View(), nullptr);
    }
    void TearDown() override { m_frame->DestroyWindow(); }

    CCommandApp m_app;
    CCommandFrame* m_frame = nullptr;
};

TEST_F(CommandTest, TheRouteIsViewThenFrameThenApplication) {
    EXPECT_EQ(m_frame->SendMessage(WM_COMMAND, idRangeFirst + 3), 1);
    EXPECT_EQ(m_frame->View()->m_called, "view-3 ");
    EXPECT_EQ(m_frame->m_called, ""); // the view had it
    m_frame->SendMessage(WM_COMMAND, idPlain);
    EXPECT_EQ(m_frame->m_called, "frame ");
    m_frame->SendMessage(WM_COMMAND, idOfTheApplication);
    EXPECT_EQ(m_app.m_called, "app ");
    EXPECT_EQ(m_frame->SendMessage(WM_COMMAND, idUnknown), 0);
}

TEST_F(CommandTest, AnExHandlerMayPassTheCommandOn) {
    m_frame->SendMessage(WM_COMMAND, idPassedOn);
    EXPECT_EQ(m_frame->m_called, "frame-passed ");
    EXPECT_EQ(m_app.m_called, "app-passed ");
}

TEST_F(CommandTest, WithoutAViewTheFrameHasTheCommandsFirst) {
    m_frame->SetActiveView(nullptr);
    m_frame->SendMessage(WM_COMMAND, idRangeFirst);
    EXPECT_EQ(m_frame->m_called, "frame-range ");
}

TEST_F(CommandTest, ADisabledCommandIsNotCarriedOut) {
    EXPECT_EQ(m_frame->SendMessage(WM_COMMAND, idDisabled), 1);
    EXPECT_EQ(m_frame->m_called, "");
    m_frame->m_enabled = true;
    m_frame->SendMessage(WM_COMMAND, idDisabled);
    EXPECT_EQ(m_frame->m_called, "disabled ");
}

TEST_F(CommandTest, AskingForAHandlerDoesNotCallIt) {
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(m_frame->OnCmdMsg(idOfTheApplication, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &m_app);
    EXPECT_TRUE(m_frame->OnCmdMsg(idRangeFirst, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, m_frame->View());
    EXPECT_FALSE(m_frame->OnCmdMsg(idUnknown, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(m_app.m_called + m_frame->View()->m_called, "");
}

// Menus ---------------------------------------------------------------------------------------------------------------

class MenuUpdateTest : public CommandTest {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        m_menu.CreatePopupMenu();
        m_sub.CreatePopupMenu();
        m_sub.AppendMenu(MF_STRING, idUnknown, _T("Inner"));
    }
    void Open() {
        m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(m_menu.m_hMenu), MAKELPARAM(0, FALSE));
    }
    bool IsGrayed(UINT id) const { return (m_menu.GetMenuState(id, MF_BYCOMMAND) & MF_GRAYED) != 0; }
    bool IsChecked(UINT id) const { return (m_menu.GetMenuState(id, MF_BYCOMMAND) & MF_CHECKED) != 0; }

    CMenu m_menu;
    CMenu m_sub;
};

TEST_F(MenuUpdateTest, ItemsFollowTheirUpdateHandlers) {
    for (UINT id = idRangeFirst; id <= idRangeLast; ++id)
        m_menu.AppendMenu(MF_STRING, id, _T("Item"));
    Open();
    EXPECT_FALSE(IsChecked(idRangeFirst));
    EXPECT_TRUE(IsChecked(idRangeFirst + 1));
    EXPECT_FALSE(IsGrayed(idRangeFirst + 1));
    EXPECT_TRUE(IsGrayed(idRangeFirst + 2));
}

TEST_F(MenuUpdateTest, ItemsWithoutAHandlerAreDisabled) {
    m_menu.AppendMenu(MF_STRING, idPlain, _T("Known"));
    m_menu.AppendMenu(MF_STRING, idUnknown, _T("Unknown"));
    m_menu.AppendMenu(MF_STRING, SC_CLOSE, _T("System command"));
    m_menu.EnableMenuItem(idPlain, MF_BYCOMMAND | MF_GRAYED);
    Open();
    EXPECT_FALSE(IsGrayed(idPlain)); // having a handler enables
    EXPECT_TRUE(IsGrayed(idUnknown));
    EXPECT_FALSE(IsGrayed(SC_CLOSE));
}

TEST_F(MenuUpdateTest, WithoutAutomaticEnablingTheyStay) {
    m_frame->m_bAutoMenuEnable = FALSE;
    m_menu.AppendMenu(MF_STRING, idUnknown, _T("Unknown"));
    Open();
    EXPECT_FALSE(IsGrayed(idUnknown));
}

TEST_F(MenuUpdateTest, PopupsAndSeparatorsAreNeverDisabled) {
    m_menu.AppendMenu(MF_SEPARATOR);
    m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(m_sub.m_hMenu), _T("Sub"));
    Open();
    EXPECT_EQ(m_menu.GetMenuState(1, MF_BYPOSITION) & MF_GRAYED, 0u);
    m_menu.RemoveMenu(1, MF_BYPOSITION);
}

TEST_F(MenuUpdateTest, AnUpdateGoesOnWhenItsHandlerSaysSo) {
    m_menu.AppendMenu(MF_STRING, idContinues, _T("Item"));
    Open();
    EXPECT_EQ(m_frame->m_called, "frame-update ");
    EXPECT_EQ(m_app.m_called, "app-update ");
    CString text;
    m_menu.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_EQ(text, _T("from the application"));
}

TEST_F(MenuUpdateTest, SystemMenusAreLeftAlone) {
    m_menu.AppendMenu(MF_STRING, idUnknown, _T("Unknown"));
    m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(m_menu.m_hMenu), MAKELPARAM(0, TRUE));
    EXPECT_FALSE(IsGrayed(idUnknown));
}

TEST_F(MenuUpdateTest, ARadioMarkIsNoCheckMark) {
    m_menu.AppendMenu(MF_STRING, 5, _T("Choice"));
    CCmdUI item;
    item.m_nID = 5;
    item.m_pMenu = &m_menu;
    item.SetRadio();
    MENUITEMINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE;
    ASSERT_TRUE(m_menu.GetMenuItemInfo(0, &info, TRUE));
    EXPECT_TRUE(info.fType & MFT_RADIOCHECK);
    EXPECT_TRUE(info.fState & MFS_CHECKED);
}

// Controls ------------------------------------------------------------------------------------------------------------

class CReflectingButton : public CButton {
public:
    int m_clicks = 0;
    BOOL m_takes = TRUE;
    int m_updates = 0;

protected:
    BOOL OnClicked() {
        ++m_clicks;
        return m_takes;
    }
    void OnUpdate(CCmdUI* item) {
        ++m_updates;
        item->SetText(_T("updated itself"));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CReflectingButton, CButton)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CReflectingButton::OnClicked)
    ON_UPDATE_COMMAND_UI_REFLECT(&CReflectingButton::OnUpdate)
END_MESSAGE_MAP()

class CReflectingEdit : public CEdit {
public:
    int m_changes = 0;
    CBrush m_brush{RGB(1, 2, 3)};
    bool m_coloured = true;

protected:
    void OnChange() { ++m_changes; }
    HBRUSH CtlColor(CDC*, UINT type) {
        EXPECT_EQ(type, static_cast<UINT>(CTLCOLOR_EDIT));
        return m_coloured ? static_cast<HBRUSH>(m_brush) : nullptr;
    }
    void OnNotifyMe(NMHDR* header, LRESULT* result) { *result = static_cast<LRESULT>(header->idFrom) + 100; }
    BOOL OnNotifyBoth(NMHDR*, LRESULT*) {
        ++m_changes;
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()
};

constexpr UINT codeForControl = static_cast<UINT>(NM_FIRST - 50);
constexpr UINT codeForBoth = static_cast<UINT>(NM_FIRST - 51);
constexpr UINT codeForParent = static_cast<UINT>(NM_FIRST - 52);

BEGIN_MESSAGE_MAP(CReflectingEdit, CEdit)
    ON_CONTROL_REFLECT(EN_CHANGE, &CReflectingEdit::OnChange)
    ON_WM_CTLCOLOR_REFLECT()
    ON_NOTIFY_REFLECT(codeForControl, &CReflectingEdit::OnNotifyMe)
    ON_NOTIFY_REFLECT_EX(codeForBoth, &CReflectingEdit::OnNotifyBoth)
END_MESSAGE_MAP()

class CReflectingBar : public CScrollBar {
public:
    UINT m_code = 99;
    UINT m_position = 0;

protected:
    void HScroll(UINT code, UINT position) {
        m_code = code;
        m_position = position;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CReflectingBar, CScrollBar)
    ON_WM_HSCROLL_REFLECT()
END_MESSAGE_MAP()

class CDrawnButton : public CButton {
public:
    UINT m_drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override { m_drawn = item->CtlID; }
};

class CControlParent : public CTestWindow {
public:
    std::string m_called;

protected:
    void OnButton() { m_called += "clicked "; }
    void OnEdit() { m_called += "changed "; }
    void OnOther(UINT id) { m_called += "other-" + std::to_string(id) + " "; }
    void OnNotifyParent(NMHDR* header, LRESULT* result) {
        m_called += "notify-" + std::to_string(header->idFrom) + " ";
        *result = 5;
    }
    BOOL OnNotifyEx(UINT id, NMHDR*, LRESULT*) {
        m_called += "notifyex-" + std::to_string(id) + " ";
        return TRUE;
    }
    HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type) {
        m_called += "ctlcolor ";
        return CTestWindow::OnCtlColor(dc, control, type);
    }
    void OnUpdateButton(CCmdUI* item) { item->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CControlParent, CTestWindow)
    ON_BN_CLICKED(1, &CControlParent::OnButton)
    ON_EN_CHANGE(2, &CControlParent::OnEdit)
    ON_CONTROL_RANGE(BN_CLICKED, 10, 12, &CControlParent::OnOther)
    ON_NOTIFY(codeForParent, 2, &CControlParent::OnNotifyParent)
    ON_NOTIFY(codeForControl, 2, &CControlParent::OnNotifyParent)
    ON_NOTIFY_EX(codeForBoth, 2, &CControlParent::OnNotifyEx)
    ON_WM_CTLCOLOR()
    ON_UPDATE_COMMAND_UI(11, &CControlParent::OnUpdateButton)
END_MESSAGE_MAP()

class ReflectionTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_parent.CreateTop());
        ASSERT_TRUE(m_button.Create(_T("B"), WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &m_parent, 1));
        ASSERT_TRUE(m_edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 20, 50, 40), &m_parent, 2));
        m_parent.m_called.clear();
        m_edit.m_changes = 0;
    }
    LRESULT Notify(UINT code) {
        NMHDR header{m_edit.m_hWnd, 2, code};
        return m_parent.SendMessage(WM_NOTIFY, 2, reinterpret_cast<LPARAM>(&header));
    }

    CControlParent m_parent;
    CReflectingButton m_button;
    CReflectingEdit m_edit;
};

TEST_F(ReflectionTest, AReflectedNotificationReachesTheParentOnlyIfTheControlPassesItOn) {
    m_button.SendMessage(BM_CLICK);
    EXPECT_EQ(m_button.m_clicks, 1);
    EXPECT_EQ(m_parent.m_called, "");
    m_button.m_takes = FALSE;
    m_button.SendMessage(BM_CLICK);
    EXPECT_EQ(m_button.m_clicks, 2);
    EXPECT_EQ(m_parent.m_called, "clicked ");
}

TEST_F(ReflectionTest, AReflectedNotificationWithoutAnswerEndsInTheControl) {
    m_edit.ReplaceSel(_T("x"));
    EXPECT_EQ(m_edit.m_changes, 1);
    EXPECT_EQ(m_parent.m_called, "");
}

TEST_F(ReflectionTest, NotifyMessagesCarryTheirCodesAndResults) {
    EXPECT_EQ(Notify(codeForControl), 102);
    EXPECT_EQ(m_parent.m_called, "");
    EXPECT_EQ(Notify(codeForParent), 5);
    EXPECT_EQ(m_parent.m_called, "notify-2 ");
    m_parent.m_called.clear();
    Notify(codeForBoth);
    EXPECT_EQ(m_edit.m_changes, 1);
    EXPECT_EQ(m_parent.m_called, "notifyex-2 ");
}

TEST_F(ReflectionTest, AControlColoursItselfUnlessItAnswersNoBrush) {
    HDC screen = ::GetDC(nullptr);
    const auto ask = [&] {
        return reinterpret_cast<HBRUSH>(m_parent.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(screen),
                                                             reinterpret_cast<LPARAM>(m_edit.m_hWnd)));
    };
    EXPECT_EQ(ask(), static_cast<HBRUSH>(m_edit.m_brush));
    m_edit.m_coloured = false;
    EXPECT_EQ(ask(), reinterpret_cast<HBRUSH>(::DefWindowProc(m_parent.m_hWnd, WM_CTLCOLOREDIT,
                                                              reinterpret_cast<WPARAM>(screen),
                                                              reinterpret_cast<LPARAM>(m_edit.m_hWnd))));
    ::ReleaseDC(nullptr, screen);
}

TEST_F(ReflectionTest, ScrollBarsHearOfTheirOwnScrolling) {
    CReflectingBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | SBS_HORZ, CRect(0, 50, 100, 66), &m_parent, 6));
    m_parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 44), reinterpret_cast<LPARAM>(bar.m_hWnd));
    EXPECT_EQ(bar.m_code, static_cast<UINT>(SB_THUMBPOSITION));
    EXPECT_EQ(bar.m_position, 44u);
}

TEST_F(ReflectionTest, OwnerDrawnControlsDrawThemselves) {
    CDrawnButton drawn;
    ASSERT_TRUE(drawn.Create(_T("D"), WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(0, 60, 50, 80), &m_parent, 7));
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_BUTTON;
    item.CtlID = 7;
    item.hwndItem = drawn.m_hWnd;
    m_parent.SendMessage(WM_DRAWITEM, 7, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(drawn.m_drawn, 7u);
}

TEST_F(ReflectionTest, ControlRangesGetTheControlsId) {
    CButton other;
    ASSERT_TRUE(other.Create(_T("O"), WS_CHILD | WS_VISIBLE, CRect(60, 0, 90, 20), &m_parent, 11));
    other.SendMessage(BM_CLICK);
    EXPECT_EQ(m_parent.m_called, "other-11 ");
}

TEST_F(ReflectionTest, UpdatingDialogControlsAsksTheControlThenTheWindowThenTheTarget) {
    CButton ofTheWindow;
    CButton unhandled;
    CButton check;
    CStatic label;
    const CRect rect(0, 0, 10, 10);
    ASSERT_TRUE(ofTheWindow.Create(_T("W"), WS_CHILD | WS_VISIBLE, rect, &m_parent, 11));
    ASSERT_TRUE(unhandled.Create(_T("U"), WS_CHILD | WS_VISIBLE, rect, &m_parent, 40));
    ASSERT_TRUE(check.Create(_T("C"), WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX, rect, &m_parent, 41));
    ASSERT_TRUE(label.Create(_T("L"), WS_CHILD | WS_VISIBLE, rect, &m_parent, 42));
    m_parent.UpdateDialogControls(&m_app, TRUE);
    CString text;
    m_button.GetWindowText(text);
    EXPECT_EQ(text, _T("updated itself"));
    EXPECT_EQ(m_button.m_updates, 1);
    EXPECT_FALSE(ofTheWindow.IsWindowEnabled());
    EXPECT_FALSE(unhandled.IsWindowEnabled());
    EXPECT_TRUE(check.IsWindowEnabled()); // only push buttons are disabled for want of a handler
    EXPECT_TRUE(label.IsWindowEnabled());
}

} // namespace
