// MDI frames and their children, as real windows.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr UINT testCommand = 0x8100;

/// A child that counts a command of its own, when it wants it.
class Child : public CMDIChildWnd {
public:
    static int s_alive;
    Child() { ++s_alive; }
    ~Child() override { --s_alive; }
    int m_commands = 0;
    bool m_wants = true;

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override {
        if (nID == testCommand && nCode == CN_COMMAND && m_wants) {
            ++m_commands;
            return TRUE;
        }
        return CMDIChildWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
};
int Child::s_alive = 0;

class Frame : public CMDIFrameWnd {
public:
    int m_commands = 0;
    afx_msg void OnTestCommand() { ++m_commands; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Frame, CMDIFrameWnd)
    ON_COMMAND(testCommand, &Frame::OnTestCommand)
END_MESSAGE_MAP()

class MDIFrameTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_frame = new Frame;
        ASSERT_TRUE(m_frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 620, 420)));
    }
    void TearDown() override {
        if (m_frame)
            m_frame->DestroyWindow();
        EXPECT_EQ(Child::s_alive, 0) << "children are deleted with their windows";
    }
    Child* AddChild(const wchar_t* title) {
        auto* const child = new Child;
        EXPECT_TRUE(child->Create(nullptr, title, WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault,
                                  m_frame));
        return child;
    }

    Frame* m_frame = nullptr;
};

TEST_F(MDIFrameTest, TheClientFillsTheFrame) {
    ASSERT_NE(m_frame->m_hWndMDIClient, nullptr);
    wchar_t name[32] = L"";
    ::GetClassName(m_frame->m_hWndMDIClient, name, 32);
    EXPECT_STREQ(::_wcslwr(name), L"mdiclient");
    CRect frame, client;
    m_frame->GetClientRect(frame);
    ::GetWindowRect(m_frame->m_hWndMDIClient, client);
    m_frame->ScreenToClient(client);
    EXPECT_EQ(client, frame);
    m_frame->SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    m_frame->GetClientRect(frame);
    ::GetWindowRect(m_frame->m_hWndMDIClient, client);
    m_frame->ScreenToClient(client);
    EXPECT_EQ(client, frame);
}

TEST_F(MDIFrameTest, WithoutChildrenNoneIsActive) {
    BOOL maximized = TRUE;
    EXPECT_EQ(m_frame->MDIGetActive(&maximized), nullptr);
    EXPECT_FALSE(maximized);
    EXPECT_EQ(m_frame->GetActiveFrame(), m_frame);
    EXPECT_EQ(CMDIFrameWnd().MDIGetActive(), nullptr) << "nor before the frame is created";
}

TEST_F(MDIFrameTest, TheNewestChildComesUpActive) {
    Child* const first = AddChild(L"first");
    EXPECT_EQ(m_frame->MDIGetActive(), first);
    Child* const second = AddChild(L"second");
    EXPECT_EQ(m_frame->MDIGetActive(), second);
    EXPECT_EQ(m_frame->GetActiveFrame(), second);
    EXPECT_EQ(first->GetMDIFrame(), m_frame);
    CString title;
    first->GetWindowText(title);
    EXPECT_EQ(title, L"first");
}

TEST_F(MDIFrameTest, ChildrenAreActivatedByTheFrameAndByThemselves) {
    Child* const first = AddChild(L"first");
    Child* const second = AddChild(L"second");
    m_frame->MDIActivate(first);
    EXPECT_EQ(m_frame->MDIGetActive(), first);
    second->MDIActivate();
    EXPECT_EQ(m_frame->MDIGetActive(), second);
    m_frame->MDINext();
    EXPECT_EQ(m_frame->MDIGetActive(), first);
    first->ActivateFrame();
    EXPECT_EQ(m_frame->MDIGetActive(), first);
}

TEST_F(MDIFrameTest, AChildIsMaximizedAndRestored) {
    Child* const child = AddChild(L"child");
    BOOL maximized = FALSE;
    child->MDIMaximize();
    m_frame->MDIGetActive(&maximized);
    EXPECT_TRUE(maximized);
    m_frame->MDIRestore(child);
    m_frame->MDIGetActive(&maximized);
    EXPECT_FALSE(maximized);
}

TEST_F(MDIFrameTest, ClosingAChildActivatesAnother) {
    Child* const first = AddChild(L"first");
    Child* const second = AddChild(L"second");
    second->SendMessage(WM_CLOSE);
    EXPECT_EQ(Child::s_alive, 1);
    EXPECT_EQ(m_frame->MDIGetActive(), first);
    first->MDIDestroy();
    EXPECT_EQ(Child::s_alive, 0);
    EXPECT_EQ(m_frame->MDIGetActive(), nullptr);
}

TEST_F(MDIFrameTest, DestroyingTheFrameDeletesTheChildren) {
    AddChild(L"first");
    AddChild(L"second");
    m_frame->DestroyWindow();
    m_frame = nullptr;
    EXPECT_EQ(Child::s_alive, 0);
}

TEST_F(MDIFrameTest, CommandsGoToTheActiveChildBeforeTheFrame) {
    Child* const first = AddChild(L"first");
    Child* const second = AddChild(L"second");
    m_frame->SendMessage(WM_COMMAND, testCommand);
    EXPECT_EQ(second->m_commands, 1);
    EXPECT_EQ(first->m_commands, 0);
    EXPECT_EQ(m_frame->m_commands, 0);
    second->m_wants = false;
    m_frame->SendMessage(WM_COMMAND, testCommand);
    EXPECT_EQ(m_frame->m_commands, 1);
    EXPECT_EQ(first->m_commands, 0);
}

TEST_F(MDIFrameTest, AChildNeedsAnMDIFrame) {
    auto* const child = new Child;
    EXPECT_FALSE(child->Create(nullptr, L"lost"));
    EXPECT_EQ(Child::s_alive, 0) << "an object whose creation failed has deleted itself";
}

TEST(MDIFrame, ListsOpenChildrenInTheMenuWithTheWindowCommands) {
    auto* const frame = new CMDIFrameWnd;
    const HMENU bar = ::CreateMenu();
    const HMENU file = ::CreatePopupMenu();
    const HMENU window = ::CreatePopupMenu();
    ::AppendMenu(file, MF_STRING, testCommand, L"Test");
    ::AppendMenu(window, MF_STRING, ID_WINDOW_CASCADE, L"Cascade");
    ::AppendMenu(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(file), L"File");
    ::AppendMenu(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(window), L"Window");
    ASSERT_TRUE(static_cast<CWnd*>(frame)->CreateEx(0, nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 600,
                                                    400, nullptr, bar));
    for (const wchar_t* title : {L"first", L"second"})
        ASSERT_TRUE((new Child)->Create(nullptr, title, WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                                        CFrameWnd::rectDefault, frame));
    std::wstring texts;
    for (int i = 0; i < ::GetMenuItemCount(window); ++i) {
        wchar_t text[64] = L"";
        ::GetMenuString(window, i, text, 64, MF_BYPOSITION);
        texts += text;
        texts += L"|";
    }
    EXPECT_NE(texts.find(L"first"), std::wstring::npos) << texts;
    EXPECT_NE(texts.find(L"second"), std::wstring::npos) << texts;
    // The list is the system's own command: it activates the child.
    frame->SendMessage(WM_COMMAND, AFX_IDM_FIRST_MDICHILD);
    CString title;
    frame->MDIGetActive()->GetWindowText(title);
    EXPECT_EQ(title, L"first");
    frame->DestroyWindow();
    EXPECT_EQ(Child::s_alive, 0);
}

} // namespace
