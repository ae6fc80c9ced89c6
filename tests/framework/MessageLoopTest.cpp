// The message loop: idle calls, what counts as idle, timers, capture, the walk before dispatching, and exceptions.
#include "TestApplication.h"

#include <afxpriv.h>

#include <gmock/gmock.h>

#include <stdexcept>

namespace {

/// Ends its message loop after a script of its own.
class CLoopApp : public CTestApplication {
public:
    std::vector<LONG> m_idleCounts;
    int m_exitCode = 0;
    bool m_exited = false;
    int m_wantIdle = 3; ///< Idle calls up to this count ask for more.
    std::function<void()> m_whenIdle;

    BOOL OnIdle(LONG count) override {
        m_idleCounts.push_back(count);
        CTestApplication::OnIdle(count);
        if (count < m_wantIdle)
            return TRUE;
        if (m_whenIdle)
            m_whenIdle();
        return FALSE;
    }
    int ExitInstance() override {
        m_exited = true;
        return m_exitCode = CTestApplication::ExitInstance();
    }
};

class CLoopWindow : public CTestWindow {
public:
    std::vector<UINT_PTR> m_timers;
    int m_idleUpdates = 0;
    std::string* m_log = nullptr;
    std::string m_name;
    UINT m_takes = 0; ///< The message that PreTranslateMessage takes.

    BOOL PreTranslateMessage(MSG* message) override {
        if (m_log != nullptr && message->message == WM_APP + 5)
            *m_log += m_name + " ";
        return message->message == m_takes || CTestWindow::PreTranslateMessage(message);
    }

protected:
    void OnTimer(UINT_PTR id) {
        m_timers.push_back(id);
        KillTimer(id);
    }
    LRESULT OnIdleUpdate(WPARAM wParam, LPARAM) {
        EXPECT_EQ(wParam, static_cast<WPARAM>(TRUE));
        ++m_idleUpdates;
        return 0;
    }
    LRESULT OnLog(WPARAM, LPARAM) {
        if (m_log != nullptr)
            *m_log += m_name + "! ";
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CLoopWindow, CTestWindow)
    ON_WM_TIMER()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CLoopWindow::OnIdleUpdate)
    ON_MESSAGE(WM_APP + 5, &CLoopWindow::OnLog)
END_MESSAGE_MAP()

class MessageLoopTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_window.CreateTop(WS_POPUP | WS_VISIBLE));
        DrainMessages();
        m_app.m_pMainWnd = &m_window;
    }
    void TearDown() override {
        m_app.m_pMainWnd = nullptr;
        m_window.DestroyWindow();
        ForgetQuit();
    }

    CLoopApp m_app;
    CLoopWindow m_window;
};

TEST_F(MessageLoopTest, IdleCountsRiseWhileMoreIsWantedAndTheLoopEndsWithTheMainWindow) {
    m_app.m_whenIdle = [this] { m_window.PostMessage(WM_CLOSE); };
    EXPECT_EQ(m_app.Run(), 0);
    ASSERT_GE(m_app.m_idleCounts.size(), 4u);
    EXPECT_EQ((std::vector<LONG>(m_app.m_idleCounts.begin(), m_app.m_idleCounts.begin() + 4)),
              (std::vector<LONG>{0, 1, 2, 3}));
    EXPECT_TRUE(m_app.m_exited);
    EXPECT_EQ(m_app.m_pMainWnd, nullptr);
    EXPECT_EQ(m_window.m_hWnd, nullptr);
}

TEST_F(MessageLoopTest, TheExitCodeIsThatOfTheQuitMessage) {
    m_app.m_whenIdle = [] { AfxPostQuitMessage(23); };
    EXPECT_EQ(m_app.Run(), 23);
    EXPECT_EQ(m_app.m_exitCode, 23);
}

TEST_F(MessageLoopTest, IdleStartsAnewAfterAMessage) {
    int rounds = 0;
    m_app.m_whenIdle = [&] {
        if (++rounds == 1)
            m_window.PostMessage(WM_APP);
        else
            AfxPostQuitMessage(0);
    };
    m_app.Run();
    EXPECT_EQ(m_app.m_idleCounts, (std::vector<LONG>{0, 1, 2, 3, 0, 1, 2, 3}));
}

TEST_F(MessageLoopTest, PaintingCaretAndRestingMouseBringNothingNew) {
    MSG message{};
    message.message = WM_PAINT;
    EXPECT_FALSE(m_app.IsIdleMessage(&message));
    message.message = 0x0118;
    EXPECT_FALSE(m_app.IsIdleMessage(&message));
    message.message = WM_MOUSEMOVE;
    message.pt = {10, 10};
    EXPECT_TRUE(m_app.IsIdleMessage(&message));
    EXPECT_FALSE(m_app.IsIdleMessage(&message));
    message.pt = {11, 10};
    EXPECT_TRUE(m_app.IsIdleMessage(&message));
    message.message = WM_KEYDOWN;
    EXPECT_TRUE(m_app.IsIdleMessage(&message));
}

TEST_F(MessageLoopTest, TheFirstIdleCallUpdatesTheMainWindowAndItsPermanentDescendants) {
    CLoopWindow child;
    CLoopWindow grandchild;
    ASSERT_TRUE(child.CreateChild(m_window, 1));
    ASSERT_TRUE(grandchild.CreateChild(child, 2));
    m_app.OnIdle(0);
    EXPECT_EQ(m_window.m_idleUpdates, 1);
    EXPECT_EQ(child.m_idleUpdates, 1);
    EXPECT_EQ(grandchild.m_idleUpdates, 1);
    m_window.ShowWindow(SW_HIDE);
    m_app.OnIdle(0);
    EXPECT_EQ(child.m_idleUpdates, 1); // hidden windows wait
}

TEST_F(MessageLoopTest, TheSecondIdleCallEndsTemporaryObjects) {
    // A temporary object that survives would be found again under the handle, with what was put into it.
    const HWND handle = ::GetDesktopWindow();
    CWnd* const temporary = CWnd::FromHandle(handle);
    temporary->SetOwner(&m_window);
    m_app.OnIdle(0);
    EXPECT_EQ(CWnd::FromHandle(handle)->GetOwner(), &m_window);
    m_app.OnIdle(1);
    EXPECT_NE(CWnd::FromHandle(handle)->GetOwner(), &m_window);
}

TEST_F(MessageLoopTest, TimersReachTheirWindow) {
    EXPECT_NE(m_window.SetTimer(7, 10), 0u);
    const DWORD start = ::GetTickCount();
    while (m_window.m_timers.empty() && ::GetTickCount() - start < 5000)
        AfxPumpMessage();
    EXPECT_EQ(m_window.m_timers, std::vector<UINT_PTR>{7});
}

TEST_F(MessageLoopTest, CaptureGoesToTheWindowAndBack) {
    EXPECT_EQ(m_window.SetCapture(), nullptr);
    EXPECT_EQ(CWnd::GetCapture(), &m_window);
    CLoopWindow other;
    ASSERT_TRUE(other.CreateChild(m_window, 3));
    EXPECT_EQ(other.SetCapture(), &m_window);
    ::ReleaseCapture();
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
}

TEST_F(MessageLoopTest, MessagesAreOfferedFromTheirWindowUpToTheMainWindow) {
    std::string log;
    CLoopWindow child;
    CLoopWindow grandchild;
    m_window.m_name = "main";
    child.m_name = "child";
    grandchild.m_name = "grandchild";
    ASSERT_TRUE(child.CreateChild(m_window, 1));
    ASSERT_TRUE(grandchild.CreateChild(child, 2));
    m_window.m_log = child.m_log = grandchild.m_log = &log;

    grandchild.PostMessage(WM_APP + 5);
    DrainMessages();
    EXPECT_EQ(log, "grandchild child main grandchild! ");
    log.clear();
    child.m_takes = WM_APP + 5;
    grandchild.PostMessage(WM_APP + 5);
    DrainMessages();
    EXPECT_EQ(log, "grandchild child ");
}

TEST_F(MessageLoopTest, TheMainWindowAlsoSeesMessagesOfOtherTopLevelWindows) {
    std::string log;
    CLoopWindow other;
    m_window.m_name = "main";
    other.m_name = "other";
    ASSERT_TRUE(other.CreateTop(WS_POPUP));
    m_window.m_log = other.m_log = &log;
    other.PostMessage(WM_APP + 5);
    DrainMessages();
    EXPECT_EQ(log, "other main other! ");
}

TEST_F(MessageLoopTest, AWindowThatTheMainWindowOwnsIsOfferedItsMessagesOnce) {
    std::string log;
    CLoopWindow owned;
    m_window.m_name = "main";
    owned.m_name = "owned";
    ASSERT_TRUE(owned.CreateEx(0, nullptr, nullptr, WS_POPUP, CRect(0, 0, 10, 10), &m_window, 0));
    m_window.m_log = owned.m_log = &log;
    owned.PostMessage(WM_APP + 5);
    DrainMessages();
    EXPECT_EQ(log, "owned main owned! ");
}

TEST_F(MessageLoopTest, BelongsToItsThread) {
    EXPECT_EQ(AfxGetThread(), &m_app);
    EXPECT_EQ(AfxGetApp(), &m_app);
    EXPECT_EQ(AfxGetMainWnd(), &m_window);
    EXPECT_EQ(AfxGetModuleState()->m_pCurrentWinApp, &m_app);
    EXPECT_EQ(AfxGetModuleState()->m_hCurrentInstanceHandle, ::GetModuleHandle(nullptr));
    EXPECT_STREQ(AfxGetModuleState()->m_lpszCurrentAppName, _T("Framework Tests"));
    EXPECT_STREQ(m_app.m_pszExeName, _T("framework_tests"));
}

TEST_F(MessageLoopTest, MessageBoxesGoThroughTheApplication) {
    m_app.m_answer = IDNO;
    EXPECT_EQ(AfxMessageBox(_T("Really?"), MB_YESNO), IDNO);
    EXPECT_THAT(m_app.m_messageBoxes, testing::ElementsAre(L"Really?"));
}

// Exceptions ----------------------------------------------------------------------------------------------------------

enum class Throws { Nothing, Framework, Memory, Standard, Other, User };

class CThrowing : public CTestWindow {
public:
    Throws m_throws = Throws::Nothing;
    int m_paints = 0;

    void Throw() {
        switch (m_throws) {
        case Throws::Nothing:
            break;
        case Throws::Framework:
            AfxThrowInvalidArgException();
        case Throws::Memory:
            throw std::bad_alloc();
        case Throws::Standard:
            throw std::runtime_error("out of ideas");
        case Throws::Other:
            throw 5;
        case Throws::User:
            AfxThrowUserException();
        }
    }

protected:
    int OnCreate(LPCREATESTRUCT) {
        Throw();
        return 0;
    }
    void OnPaint() {
        ++m_paints;
        if (m_throws == Throws::Nothing)
            ValidateRect(nullptr);
        Throw();
    }
    LRESULT OnOwn(WPARAM, LPARAM) {
        Throw();
        return 1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CThrowing, CTestWindow)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_MESSAGE(WM_APP, &CThrowing::OnOwn)
END_MESSAGE_MAP()

class ExceptionEndTest : public WindowTest {
protected:
    void SetUp() override { ASSERT_TRUE(m_window.CreateTop(WS_POPUP)); }
    CThrowing m_window;
};

TEST_F(ExceptionEndTest, EndsInTheApplicationAndItsAnswerIsTheMessagesResult) {
    m_window.m_throws = Throws::Framework;
    EXPECT_EQ(m_window.SendMessage(WM_APP, 3, 4), 77);
    ASSERT_EQ(m_app.m_exceptions.size(), 1u);
    EXPECT_EQ(m_app.m_exceptionMessage.hwnd, m_window.m_hWnd);
    EXPECT_EQ(m_app.m_exceptionMessage.message, static_cast<UINT>(WM_APP));
    EXPECT_EQ(m_app.m_exceptionMessage.wParam, 3u);
    m_window.m_throws = Throws::Nothing;
    EXPECT_EQ(m_window.SendMessage(WM_APP), 1); // nothing is left of it
}

TEST_F(ExceptionEndTest, ALackOfMemoryComesAsTheExceptionThatExistsFromTheStart) {
    m_window.m_throws = Throws::Memory;
    EXPECT_EQ(m_window.SendMessage(WM_APP), 77);
    EXPECT_THAT(m_app.m_exceptions, testing::ElementsAre(L"Memory has run out."));
}

TEST_F(ExceptionEndTest, ExceptionsOfOtherTypesComeWithTheirOwnMessage) {
    m_window.m_throws = Throws::Standard;
    EXPECT_EQ(m_window.SendMessage(WM_APP), 77);
    m_window.m_throws = Throws::Other;
    EXPECT_EQ(m_window.SendMessage(WM_APP), 77);
    EXPECT_THAT(m_app.m_exceptions, testing::ElementsAre(L"out of ideas", L""));
}

TEST_F(ExceptionEndTest, ByDefaultAThrowingCreationFails) {
    m_app.m_handleExceptionsAsDefault = true;
    CThrowing other;
    other.m_throws = Throws::Framework;
    EXPECT_FALSE(other.CreateTop());
    EXPECT_EQ(other.m_hWnd, nullptr);
    EXPECT_TRUE(m_app.m_messageBoxes.empty());
}

TEST_F(ExceptionEndTest, AThrowingPreSubclassWindowRefusesTheWindow) {
    class CRefusing : public CTestWindow {
    public:
        int m_postNcDestroy = 0;

    protected:
        void PreSubclassWindow() override { throw std::runtime_error("not mine"); }
        void PostNcDestroy() override { ++m_postNcDestroy; }
    };
    CRefusing refusing;
    EXPECT_FALSE(refusing.CreateTop());
    EXPECT_EQ(refusing.m_hWnd, nullptr);
    EXPECT_EQ(refusing.m_postNcDestroy, 1);
    EXPECT_THAT(m_app.m_exceptions, testing::ElementsAre(L"not mine"));
    CTestWindow next; // creation works as before
    EXPECT_TRUE(next.CreateTop());
}

TEST_F(ExceptionEndTest, ByDefaultAThrowingPaintIsNotPaintedAgain) {
    m_app.m_handleExceptionsAsDefault = true;
    m_window.ShowWindow(SW_SHOWNOACTIVATE);
    m_window.Invalidate();
    m_window.m_throws = Throws::Framework;
    m_window.UpdateWindow();
    EXPECT_GE(m_window.m_paints, 1);
    EXPECT_FALSE(m_window.GetUpdateRect(nullptr));
}

TEST_F(ExceptionEndTest, ByDefaultTheUserIsToldUnlessHeWasAlready) {
    m_app.m_handleExceptionsAsDefault = true;
    m_window.m_throws = Throws::Standard;
    EXPECT_EQ(m_window.SendMessage(WM_APP), 0);
    EXPECT_THAT(m_app.m_messageBoxes, testing::ElementsAre(L"out of ideas"));
    m_window.m_throws = Throws::User;
    m_window.SendMessage(WM_APP);
    EXPECT_EQ(m_app.m_messageBoxes.size(), 1u);
}

} // namespace
