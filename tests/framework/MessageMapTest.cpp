// Message maps: every entry unpacks its message as documented, and refuses a handler of another type.
#include "TestApplication.h"

#include <sstream>

namespace {

const UINT registeredMessage = ::RegisterWindowMessage(_T("KyFrameworkTests.Registered"));

/// Writes down what each handler receives.
class CRecorder : public CTestWindow {
public:
    std::string Take() {
        std::string text = m_text.str();
        m_text.str("");
        return text;
    }

protected:
    template <class... Args>
    void Note(const char* name, Args... args) {
        m_text << name;
        ((m_text << ' ' << +args), ...);
    }
    static int Id(CWnd* window) { return window == nullptr ? -1 : window->GetDlgCtrlID(); }

    BOOL OnNcCreate(LPCREATESTRUCT create) { return CWnd::OnNcCreate(create); }
    void OnSize(UINT type, int cx, int cy) { Note("size", type, cx, cy); }
    void OnMove(int x, int y) { Note("move", x, y); }
    void OnShowWindow(BOOL show, UINT status) { Note("show", show, status); }
    void OnEnable(BOOL enable) { Note("enable", enable); }
    void OnSetFocus(CWnd* old) { Note("setfocus", Id(old)); }
    void OnKillFocus(CWnd* next) { Note("killfocus", Id(next)); }
    void OnActivate(UINT state, CWnd* other, BOOL minimized) { Note("activate", state, Id(other), minimized); }
    int OnMouseActivate(CWnd* top, UINT hit, UINT message) {
        Note("mouseactivate", Id(top), hit, message);
        return MA_NOACTIVATE;
    }
    void OnCancelMode() { Note("cancelmode"); }
    void OnClose() { Note("close"); }
    void OnPaint() {
        Note("paint");
        ValidateRect(nullptr);
    }
    BOOL OnEraseBkgnd(CDC* dc) {
        Note("erase", dc->GetSafeHdc() == m_expectedDc);
        return 5;
    }
    LRESULT OnPrintClient(CDC* dc, UINT flags) {
        Note("printclient", dc->GetSafeHdc() == m_expectedDc, flags);
        return 6;
    }
    LRESULT OnNcHitTest(CPoint point) {
        Note("hittest", point.x, point.y);
        return HTNOWHERE;
    }
    void OnNcPaint() { Note("ncpaint"); }
    void OnNcCalcSize(BOOL valid, NCCALCSIZE_PARAMS* params) { Note("nccalcsize", valid, params->rgrc[0].right); }
    HBRUSH OnCtlColor(CDC* dc, CWnd* window, UINT type) {
        Note("ctlcolor", dc->GetSafeHdc() == m_expectedDc, Id(window), type);
        return static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    }
    void OnDrawItem(int id, LPDRAWITEMSTRUCT item) { Note("drawitem", id, item->itemID); }
    void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item) { Note("measureitem", id, item->itemID); }
    void OnSysColorChange() { Note("syscolor"); }
    void OnSettingChange(UINT flags, LPCTSTR section) { Note("setting", flags, section[0]); }
    LRESULT OnThemeChanged() {
        Note("theme");
        return 9;
    }
    void OnMouseMove(UINT flags, CPoint point) { Note("mousemove", flags, point.x, point.y); }
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point) {
        Note("wheel", flags, delta, point.x, point.y);
        return TRUE;
    }
    void OnMouseHWheel(UINT flags, short delta, CPoint point) { Note("hwheel", flags, delta, point.x, point.y); }
    void OnMouseLeave() { Note("leave"); }
    void OnLButtonDown(UINT flags, CPoint point) { Note("ldown", flags, point.x, point.y); }
    void OnLButtonUp(UINT flags, CPoint point) { Note("lup", flags, point.x, point.y); }
    void OnLButtonDblClk(UINT flags, CPoint point) { Note("ldbl", flags, point.x, point.y); }
    void OnRButtonDown(UINT flags, CPoint point) { Note("rdown", flags, point.x, point.y); }
    void OnRButtonUp(UINT flags, CPoint point) { Note("rup", flags, point.x, point.y); }
    void OnMButtonDown(UINT flags, CPoint point) { Note("mdown", flags, point.x, point.y); }
    void OnMButtonUp(UINT flags, CPoint point) { Note("mup", flags, point.x, point.y); }
    BOOL OnSetCursor(CWnd* window, UINT hit, UINT message) {
        Note("setcursor", Id(window), hit, message);
        return TRUE;
    }
    void OnCaptureChanged(CWnd* window) { Note("capture", Id(window)); }
    void OnContextMenu(CWnd* window, CPoint point) { Note("contextmenu", Id(window), point.x, point.y); }
    void OnDropFiles(HDROP drop) { Note("drop", reinterpret_cast<INT_PTR>(drop)); }
    void OnKeyDown(UINT key, UINT repeat, UINT flags) { Note("keydown", key, repeat, flags); }
    void OnKeyUp(UINT key, UINT repeat, UINT flags) { Note("keyup", key, repeat, flags); }
    void OnChar(UINT key, UINT repeat, UINT flags) { Note("char", key, repeat, flags); }
    void OnSysKeyDown(UINT key, UINT repeat, UINT flags) { Note("syskeydown", key, repeat, flags); }
    UINT OnGetDlgCode() {
        Note("dlgcode");
        return DLGC_WANTARROWS;
    }
    void OnHScroll(UINT code, UINT position, CScrollBar* bar) { Note("hscroll", code, position, Id(bar)); }
    void OnVScroll(UINT code, UINT position, CScrollBar* bar) { Note("vscroll", code, position, Id(bar)); }
    void OnTimer(UINT_PTR id) { Note("timer", id); }
    void OnInitMenuPopup(CMenu* menu, UINT index, BOOL system) {
        Note("initmenupopup", menu->GetMenuItemCount(), index, system);
    }
    void OnWindowPosChanged(WINDOWPOS* position) { Note("poschanged", position->cx); }
    LRESULT OnOwn(WPARAM wParam, LPARAM lParam) {
        Note("own", wParam, lParam);
        return 41;
    }
    LRESULT OnRegistered(WPARAM wParam, LPARAM lParam) {
        Note("registered", wParam, lParam);
        return 42;
    }
    DECLARE_MESSAGE_MAP()

public:
    HDC m_expectedDc = nullptr;

private:
    std::ostringstream m_text;
};

BEGIN_MESSAGE_MAP(CRecorder, CTestWindow)
    ON_WM_NCCREATE()
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_SHOWWINDOW()
    ON_WM_ENABLE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_ACTIVATE()
    ON_WM_MOUSEACTIVATE()
    ON_WM_CANCELMODE()
    ON_WM_CLOSE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_PRINTCLIENT()
    ON_WM_NCHITTEST()
    ON_WM_NCPAINT()
    ON_WM_NCCALCSIZE()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
    ON_WM_THEMECHANGED()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_MOUSEHWHEEL()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONUP()
    ON_WM_SETCURSOR()
    ON_WM_CAPTURECHANGED()
    ON_WM_CONTEXTMENU()
    ON_WM_DROPFILES()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_CHAR()
    ON_WM_SYSKEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_TIMER()
    ON_WM_INITMENUPOPUP()
    ON_WM_WINDOWPOSCHANGED()
    ON_MESSAGE(WM_APP + 1, &CRecorder::OnOwn)
    ON_REGISTERED_MESSAGE(registeredMessage, &CRecorder::OnRegistered)
END_MESSAGE_MAP()

class MessageMapTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_window.CreateTop(WS_POPUP));
        ASSERT_TRUE(m_child.CreateChild(m_window, 31));
        m_window.Take();
    }
    std::string Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        m_result = m_window.SendMessage(message, wParam, lParam);
        return m_window.Take();
    }
    LPARAM Handle(CWnd& window) { return reinterpret_cast<LPARAM>(window.m_hWnd); }

    CRecorder m_window;
    CTestWindow m_child;
    LRESULT m_result = 0;
};

TEST_F(MessageMapTest, MousePointsAreSignedClientCoordinates) {
    EXPECT_EQ(Send(WM_MOUSEMOVE, MK_CONTROL, MAKELPARAM(-3, 40)), "mousemove 8 -3 40");
    EXPECT_EQ(Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, -2)), "ldown 1 1 -2");
    EXPECT_EQ(Send(WM_LBUTTONUP, 0, MAKELPARAM(1, 2)), "lup 0 1 2");
    EXPECT_EQ(Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 6)), "ldbl 1 5 6");
    EXPECT_EQ(Send(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(7, 8)), "rdown 2 7 8");
    EXPECT_EQ(Send(WM_RBUTTONUP, 0, MAKELPARAM(7, 8)), "rup 0 7 8");
    EXPECT_EQ(Send(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(9, 10)), "mdown 16 9 10");
    EXPECT_EQ(Send(WM_MBUTTONUP, 0, MAKELPARAM(9, 10)), "mup 0 9 10");
    EXPECT_EQ(Send(WM_NCHITTEST, 0, MAKELPARAM(-9, -10)), "hittest -9 -10");
    EXPECT_EQ(m_result, HTNOWHERE);
}

TEST_F(MessageMapTest, WheelGivesFlagsSignedDistanceAndPoint) {
    EXPECT_EQ(Send(WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, static_cast<WORD>(-120)), MAKELPARAM(4, -5)),
              "wheel 4 -120 4 -5");
    EXPECT_EQ(m_result, TRUE);
    EXPECT_EQ(Send(WM_MOUSEHWHEEL, MAKEWPARAM(0, 240), MAKELPARAM(1, 2)), "hwheel 0 240 1 2");
    EXPECT_EQ(Send(WM_MOUSELEAVE), "leave");
}

TEST_F(MessageMapTest, KeysGiveCodeRepeatAndFlags) {
    EXPECT_EQ(Send(WM_KEYDOWN, VK_F2, MAKELPARAM(3, 0x4001)), "keydown 113 3 16385");
    EXPECT_EQ(Send(WM_KEYUP, VK_F2, MAKELPARAM(1, 0xC001)), "keyup 113 1 49153");
    EXPECT_EQ(Send(WM_CHAR, 0x20AC, 1), "char 8364 1 0");
    EXPECT_EQ(Send(WM_SYSKEYDOWN, VK_MENU, MAKELPARAM(1, 0x2000)), "syskeydown 18 1 8192");
    EXPECT_EQ(Send(WM_GETDLGCODE), "dlgcode");
    EXPECT_EQ(m_result, DLGC_WANTARROWS);
}

TEST_F(MessageMapTest, SizePositionAndState) {
    EXPECT_EQ(Send(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(640, 480)), "size 2 640 480");
    EXPECT_EQ(Send(WM_MOVE, 0, MAKELPARAM(-8, 9)), "move -8 9");
    EXPECT_EQ(Send(WM_SHOWWINDOW, TRUE, SW_PARENTOPENING), "show 1 3");
    EXPECT_EQ(Send(WM_ENABLE, TRUE), "enable 1");
    EXPECT_EQ(Send(WM_CLOSE), "close");
    EXPECT_EQ(Send(WM_CANCELMODE), "cancelmode");
    WINDOWPOS position{};
    position.cx = 55;
    EXPECT_EQ(Send(WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position)), "poschanged 55");
    EXPECT_EQ(Send(WM_SYSCOLORCHANGE), "syscolor");
    EXPECT_EQ(Send(WM_SETTINGCHANGE, 12, reinterpret_cast<LPARAM>(_T("Policy"))), "setting 12 80");
    EXPECT_EQ(Send(WM_THEMECHANGED), "theme");
    EXPECT_EQ(m_result, 9);
    NCCALCSIZE_PARAMS params{};
    params.rgrc[0].right = 99;
    EXPECT_EQ(Send(WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params)), "nccalcsize 1 99");
    EXPECT_EQ(Send(WM_NCPAINT, 1), "ncpaint");
}

TEST_F(MessageMapTest, WindowsInMessagesComeAsObjects) {
    EXPECT_EQ(Send(WM_SETFOCUS, Handle(m_child)), "setfocus 31");
    EXPECT_EQ(Send(WM_SETFOCUS, 0), "setfocus -1");
    EXPECT_EQ(Send(WM_KILLFOCUS, Handle(m_child)), "killfocus 31");
    EXPECT_EQ(Send(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), Handle(m_child)), "activate 2 31 1");
    EXPECT_EQ(Send(WM_MOUSEACTIVATE, Handle(m_child), MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)), "mouseactivate 31 1 513");
    EXPECT_EQ(m_result, MA_NOACTIVATE);
    EXPECT_EQ(Send(WM_SETCURSOR, Handle(m_child), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), "setcursor 31 1 512");
    EXPECT_EQ(m_result, TRUE);
    EXPECT_EQ(Send(WM_CAPTURECHANGED, 0, Handle(m_child)), "capture 31");
    EXPECT_EQ(Send(WM_CONTEXTMENU, Handle(m_child), MAKELPARAM(-1, -1)), "contextmenu 31 -1 -1");
    EXPECT_EQ(Send(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 300), Handle(m_child)), "hscroll 5 300 31");
    EXPECT_EQ(Send(WM_VSCROLL, SB_LINEDOWN), "vscroll 1 0 -1");
}

TEST_F(MessageMapTest, DrawingMessages) {
    HDC screen = ::GetDC(nullptr);
    m_window.m_expectedDc = screen;
    const auto dc = reinterpret_cast<WPARAM>(screen);
    EXPECT_EQ(Send(WM_ERASEBKGND, dc), "erase 1");
    EXPECT_EQ(m_result, 5);
    EXPECT_EQ(Send(WM_PRINTCLIENT, dc, PRF_CLIENT), "printclient 1 4");
    EXPECT_EQ(m_result, 6);
    EXPECT_EQ(Send(WM_CTLCOLOREDIT, dc, Handle(m_child)), "ctlcolor 1 31 1");
    EXPECT_EQ(reinterpret_cast<HGDIOBJ>(m_result), ::GetStockObject(BLACK_BRUSH));
    EXPECT_EQ(Send(WM_CTLCOLORSTATIC, dc, Handle(m_child)), "ctlcolor 1 31 6");
    ::ReleaseDC(nullptr, screen);
    DRAWITEMSTRUCT draw{};
    draw.itemID = 17;
    EXPECT_EQ(Send(WM_DRAWITEM, 4, reinterpret_cast<LPARAM>(&draw)), "drawitem 4 17");
    MEASUREITEMSTRUCT measure{};
    measure.itemID = 18;
    EXPECT_EQ(Send(WM_MEASUREITEM, 5, reinterpret_cast<LPARAM>(&measure)), "measureitem 5 18");
}

TEST_F(MessageMapTest, TimersFilesAndMenus) {
    EXPECT_EQ(Send(WM_TIMER, 0x123456789ull), "timer 4886718345");
    EXPECT_EQ(Send(WM_DROPFILES, 77), "drop 77");
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 1, _T("One"));
    EXPECT_EQ(Send(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), MAKELPARAM(2, TRUE)),
              "initmenupopup 1 2 1");
}

TEST_F(MessageMapTest, OwnAndRegisteredMessagesComeRaw) {
    EXPECT_EQ(Send(WM_APP + 1, 5, -6), "own 5 -6");
    EXPECT_EQ(m_result, 41);
    EXPECT_EQ(Send(registeredMessage, 7, 8), "registered 7 8");
    EXPECT_EQ(m_result, 42);
    EXPECT_EQ(Send(::RegisterWindowMessage(_T("KyFrameworkTests.Other")), 7, 8), "");
}

// Inheritance ---------------------------------------------------------------------------------------------------------

class CBaseHandler : public CTestWindow {
public:
    std::string m_called;

protected:
    LRESULT OnFirst(WPARAM, LPARAM) {
        m_called += "base-first ";
        return 0;
    }
    LRESULT OnSecond(WPARAM, LPARAM) {
        m_called += "base-second ";
        return 0;
    }
    void OnLButtonDown(UINT, CPoint) { m_called += "base-down "; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBaseHandler, CTestWindow)
    ON_MESSAGE(WM_APP + 1, &CBaseHandler::OnFirst)
    ON_MESSAGE(WM_APP + 2, &CBaseHandler::OnSecond)
END_MESSAGE_MAP()

class CDerivedHandler : public CBaseHandler {
protected:
    LRESULT OnOwnFirst(WPARAM wParam, LPARAM lParam) {
        m_called += "derived-first ";
        return CBaseHandler::OnFirst(wParam, lParam);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerivedHandler, CBaseHandler)
    ON_MESSAGE(WM_APP + 1, &CDerivedHandler::OnOwnFirst)
    ON_WM_LBUTTONDOWN() // inherited, mapped here
END_MESSAGE_MAP()

TEST_F(MessageMapTest, DerivedMapsComeFirstAndMayNameInheritedHandlers) {
    CDerivedHandler window;
    ASSERT_TRUE(window.CreateTop());
    window.SendMessage(WM_APP + 1);
    window.SendMessage(WM_APP + 2);
    window.SendMessage(WM_LBUTTONDOWN);
    EXPECT_EQ(window.m_called, "derived-first base-first base-second base-down ");
}

// A handler that is interrupted by another message before it asks for the default.
class CInterrupted : public CTestWindow {
protected:
    LRESULT OnSetText(WPARAM, LPARAM) {
        SendMessage(WM_NULL);
        EXPECT_EQ(GetCurrentMessage()->message, static_cast<UINT>(WM_SETTEXT));
        return Default();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CInterrupted, CTestWindow)
    ON_MESSAGE(WM_SETTEXT, &CInterrupted::OnSetText)
END_MESSAGE_MAP()

TEST_F(MessageMapTest, DefaultMeansTheMessageOfItsOwnHandler) {
    CInterrupted window;
    ASSERT_TRUE(window.CreateTop());
    window.SetWindowText(_T("kept"));
    CString text;
    window.GetWindowText(text);
    EXPECT_EQ(text, _T("kept"));
}

// Types ---------------------------------------------------------------------------------------------------------------

struct Handlers {
    void Right(UINT, CPoint);
    void WrongPoint(UINT, POINT*);
    void WrongFlags(int, CPoint);
    BOOL WrongAnswer(UINT, CPoint);
    void Missing(UINT);
    void Plain();
    BOOL PlainAnswering();
};

template <auto Handler>
concept FitsMouse = requires(Handlers* object, AFX_MESSAGE& message) {
    afxmsg::Mouse<Handlers>(object, Handler, message);
};
template <auto Handler>
concept FitsCommand = requires(Handlers* object, AFX_MESSAGE& message) {
    afxmsg::Command<Handlers>(object, Handler, message);
};

static_assert(FitsMouse<&Handlers::Right>);
static_assert(!FitsMouse<&Handlers::WrongPoint>);
static_assert(!FitsMouse<&Handlers::WrongFlags>);
static_assert(!FitsMouse<&Handlers::WrongAnswer>);
static_assert(!FitsMouse<&Handlers::Missing>);
static_assert(FitsCommand<&Handlers::Plain>);
static_assert(!FitsCommand<&Handlers::PlainAnswering>);

} // namespace
