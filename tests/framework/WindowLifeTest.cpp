// The life of a CWnd: creation, the two handle maps, subclassing, destruction in every order.
#include "TestApplication.h"

#include <afxpriv.h>

#include "core/HandleCounts.h"

namespace {

/// Counts what happens in a window's life.
struct Life {
    int created = 0;
    int destroyed = 0;
    int postNcDestroy = 0;
    int deleted = 0;
    std::vector<UINT> messages;
};

class CCounted : public CTestWindow {
public:
    explicit CCounted(Life& life) : m_life(life) {}
    ~CCounted() override { ++m_life.deleted; }

    int m_createAnswer = 0;
    bool m_refuse = false;
    bool m_deletesItself = false;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override { return !m_refuse && CTestWindow::PreCreateWindow(cs); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_life.messages.push_back(message);
        return CTestWindow::WindowProc(message, wParam, lParam);
    }
    int OnCreate(LPCREATESTRUCT create) {
        ++m_life.created;
        EXPECT_EQ(CTestWindow::OnCreate(create), 0);
        return m_createAnswer;
    }
    void OnDestroy() {
        ++m_life.destroyed;
        EXPECT_TRUE(::IsWindow(m_hWnd));
        CTestWindow::OnDestroy();
    }
    void PostNcDestroy() override {
        ++m_life.postNcDestroy;
        EXPECT_EQ(m_hWnd, nullptr);
        if (m_deletesItself)
            delete this;
    }
    DECLARE_MESSAGE_MAP()

    Life& m_life;
};

BEGIN_MESSAGE_MAP(CCounted, CTestWindow)
    ON_WM_CREATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

class WindowLifeTest : public WindowTest {
protected:
    Life m_life;
    const long m_before = handlecounts::Live(handlecounts::Kind::Window);
};

TEST_F(WindowLifeTest, CreatedWindowBelongsToTheObjectFromItsFirstMessage) {
    CCounted window(m_life);
    ASSERT_TRUE(window.CreateTop());
    EXPECT_EQ(m_life.created, 1);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hWnd), &window);
    EXPECT_EQ(handlecounts::Live(handlecounts::Kind::Window), m_before + 1);
    const auto position = [&](UINT message) {
        return std::find(m_life.messages.begin(), m_life.messages.end(), message) - m_life.messages.begin();
    };
    EXPECT_LT(position(WM_NCCREATE), position(WM_CREATE));
    EXPECT_LT(position(WM_NCCREATE), static_cast<std::ptrdiff_t>(m_life.messages.size()));
    EXPECT_EQ(window.SendMessage(WM_QUERYAFXWNDPROC), 1);
}

TEST_F(WindowLifeTest, DestroyWindowLeavesTheObjectWithoutAWindow) {
    CCounted window(m_life);
    ASSERT_TRUE(window.CreateTop());
    const HWND handle = window.m_hWnd;
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(m_life.destroyed, 1);
    EXPECT_EQ(m_life.postNcDestroy, 1);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_EQ(handlecounts::Live(handlecounts::Kind::Window), m_before);
    EXPECT_FALSE(window.DestroyWindow());
    ASSERT_TRUE(window.CreateTop()); // the object can hold another
    EXPECT_EQ(m_life.created, 2);
}

TEST_F(WindowLifeTest, TheDestructorDestroysALivingWindow) {
    HWND handle = nullptr;
    {
        CCounted window(m_life);
        ASSERT_TRUE(window.CreateTop());
        handle = window.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(m_life.destroyed, 0); // the derived part is gone by then
    EXPECT_EQ(handlecounts::Live(handlecounts::Kind::Window), m_before);
}

TEST_F(WindowLifeTest, AnObjectMayDeleteItselfInPostNcDestroy) {
    auto* window = new CCounted(m_life);
    window->m_deletesItself = true;
    ASSERT_TRUE(window->CreateTop());
    ::DestroyWindow(window->m_hWnd);
    EXPECT_EQ(m_life.deleted, 1);
    EXPECT_EQ(m_life.postNcDestroy, 1);
}

TEST_F(WindowLifeTest, ARefusedCreationCallsPostNcDestroyOnce) {
    CCounted window(m_life);
    window.m_createAnswer = -1;
    EXPECT_FALSE(window.CreateTop());
    EXPECT_EQ(m_life.created, 1);
    EXPECT_EQ(m_life.postNcDestroy, 1);
    EXPECT_EQ(window.m_hWnd, nullptr);

    window.m_refuse = true;
    EXPECT_FALSE(window.CreateTop());
    EXPECT_EQ(m_life.created, 1);
    EXPECT_EQ(m_life.postNcDestroy, 2);

    CCounted unknownClass(m_life);
    EXPECT_FALSE(unknownClass.CreateEx(0, _T("NoSuchWindowClass"), nullptr, WS_POPUP, CRect(), nullptr, 0));
    EXPECT_EQ(m_life.postNcDestroy, 3);
    EXPECT_EQ(handlecounts::Live(handlecounts::Kind::Window), m_before);
}

TEST_F(WindowLifeTest, ChildrenEndWithTheirParent) {
    CCounted parent(m_life);
    ASSERT_TRUE(parent.CreateTop());
    Life childLife;
    CCounted child(childLife);
    ASSERT_TRUE(child.CreateChild(parent, 5));
    parent.DestroyWindow();
    EXPECT_EQ(childLife.destroyed, 1);
    EXPECT_EQ(childLife.postNcDestroy, 1);
    EXPECT_EQ(child.m_hWnd, nullptr);
}

// A window that ends inside one of its own handlers, object and all.
class CSuicidal : public CCounted {
public:
    using CCounted::CCounted;

protected:
    LRESULT OnEnd(WPARAM, LPARAM) {
        DestroyWindow();
        return 12;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSuicidal, CCounted)
    ON_MESSAGE(WM_APP, &CSuicidal::OnEnd)
END_MESSAGE_MAP()

TEST_F(WindowLifeTest, AnObjectMayEndInItsOwnHandler) {
    auto* window = new CSuicidal(m_life);
    window->m_deletesItself = true;
    ASSERT_TRUE(window->CreateTop());
    EXPECT_EQ(::SendMessage(window->m_hWnd, WM_APP, 0, 0), 12);
    EXPECT_EQ(m_life.deleted, 1);
}

// Handle maps ---------------------------------------------------------------------------------------------------------

TEST_F(WindowLifeTest, AHandleWithoutAnObjectGetsATemporaryOne) {
    const HWND handle =
        ::CreateWindow(_T("STATIC"), _T("text"), WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    CWnd* const temporary = CWnd::FromHandle(handle);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hWnd, handle);
    EXPECT_EQ(CWnd::FromHandle(handle), temporary);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    CString text;
    temporary->GetWindowText(text);
    EXPECT_EQ(text, _T("text"));

    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(handle)); // only the object is gone
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    ::DestroyWindow(handle);
}

TEST_F(WindowLifeTest, AttachMakesTheObjectPermanentWithoutReceivingMessages) {
    const HWND handle =
        ::CreateWindow(_T("STATIC"), nullptr, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    CCounted window(m_life);
    EXPECT_FALSE(window.Attach(nullptr));
    ASSERT_TRUE(window.Attach(handle));
    EXPECT_EQ(CWnd::FromHandle(handle), &window);
    ::SendMessage(handle, WM_APP, 0, 0);
    EXPECT_TRUE(m_life.messages.empty());
    EXPECT_EQ(window.Detach(), handle);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    ASSERT_TRUE(window.Attach(handle));
    window.DestroyWindow();
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(handlecounts::Live(handlecounts::Kind::Window), m_before);
}

TEST_F(WindowLifeTest, ANullObjectHasANullHandle) {
    CWnd* none = nullptr;
    EXPECT_EQ(none->GetSafeHwnd(), nullptr);
}

// Subclassing ---------------------------------------------------------------------------------------------------------

class CUpperCase : public CWnd {
public:
    int m_preSubclass = 0;

protected:
    void PreSubclassWindow() override {
        ++m_preSubclass;
        EXPECT_NE(m_hWnd, nullptr);
    }
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
        if (nChar == L'!')
            return;
        DefWindowProc(WM_CHAR, nChar >= L'a' && nChar <= L'z' ? nChar - 32 : nChar, MAKELPARAM(nRepCnt, nFlags));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CUpperCase, CWnd)
    ON_WM_CHAR()
END_MESSAGE_MAP()

TEST_F(WindowLifeTest, ASubclassedControlIsAskedFirstAndGivenBack) {
    CTestWindow parent;
    ASSERT_TRUE(parent.CreateTop());
    const HWND handle = ::CreateWindow(_T("EDIT"), nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, parent.m_hWnd,
                                       reinterpret_cast<HMENU>(8), nullptr, nullptr);
    const LONG_PTR original = ::GetWindowLongPtr(handle, GWLP_WNDPROC);
    CUpperCase edit;
    ASSERT_TRUE(edit.SubclassDlgItem(8, &parent));
    EXPECT_EQ(edit.m_preSubclass, 1);
    ::SendMessage(handle, WM_CHAR, L'a', 1);
    ::SendMessage(handle, WM_CHAR, L'!', 1);
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, _T("A"));

    EXPECT_EQ(edit.UnsubclassWindow(), handle);
    EXPECT_EQ(::GetWindowLongPtr(handle, GWLP_WNDPROC), original);
    EXPECT_EQ(edit.m_hWnd, nullptr);
    ::SendMessage(handle, WM_CHAR, L'b', 1);
    TCHAR buffer[8];
    ::GetWindowText(handle, buffer, 8);
    EXPECT_STREQ(buffer, _T("Ab"));
    EXPECT_FALSE(edit.SubclassDlgItem(999, &parent));
}

TEST_F(WindowLifeTest, ASubclassedControlEndsWithItsParent) {
    CUpperCase edit;
    {
        CTestWindow parent;
        ASSERT_TRUE(parent.CreateTop());
        ::CreateWindow(_T("EDIT"), nullptr, WS_CHILD, 0, 0, 100, 20, parent.m_hWnd, reinterpret_cast<HMENU>(8), nullptr,
                       nullptr);
        ASSERT_TRUE(edit.SubclassDlgItem(8, &parent));
    }
    EXPECT_EQ(edit.m_hWnd, nullptr);
}

// Window classes ------------------------------------------------------------------------------------------------------

TEST_F(WindowLifeTest, EqualArgumentsShareAWindowClass) {
    const CString arrow(AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW)));
    const CString cross(AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_CROSS)));
    EXPECT_EQ(CString(AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW))), arrow);
    EXPECT_NE(arrow, cross);
    WNDCLASS info{};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), cross, &info));
    EXPECT_EQ(info.hCursor, ::LoadCursor(nullptr, IDC_CROSS));
    EXPECT_EQ(info.style, static_cast<UINT>(CS_DBLCLKS));
}

} // namespace
