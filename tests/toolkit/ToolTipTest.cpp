// Tool tips: when they show, what they say, how they look.
#include "GridWindow.h"

namespace {

/// A grid whose tips come at once. The messages go straight to the tips, while the real pointer is elsewhere.
class ToolTipTest : public GridTest {
protected:
    ToolTipTest() {
        AddRecords(5);
        m_tips = m_grid.GetToolTipContext();
        m_tips->SetDelayTime(TTDT_INITIAL, 10);
        m_tips->SetDelayTime(TTDT_RESHOW, 10);
    }
    void Filter(UINT message, WPARAM wParam = 0, CPoint point = CPoint(0, 0)) {
        m_tips->FilterToolTipMessage(&m_grid, message, wParam, MAKELPARAM(point.x, point.y));
    }
    /// The pointer goes there, and rests.
    void Hover(CPoint point, int rest = 80) {
        Filter(WM_MOUSEMOVE, 0, point);
        Pump(rest);
    }
    CRect TipRect() const {
        CRect rc;
        m_tips->GetTipWindow()->GetWindowRect(&rc);
        return rc;
    }
    CXTPToolTipContext* m_tips;
};

TEST_F(ToolTipTest, ACellsTipShowsAfterARest) {
    Item(1, 1)->SetTooltip(_T("the tip"));
    Hover(Cell(1, 1));
    EXPECT_TRUE(m_tips->IsTipVisible());
    EXPECT_EQ(m_tips->GetTipText(), _T("the tip"));
    EXPECT_TRUE(m_tips->GetTipWindow()->IsWindowVisible());
    EXPECT_NE(::GetActiveWindow(), m_tips->GetTipWindow()->m_hWnd);
}

TEST_F(ToolTipTest, TheMessageLoopBringsTheMouseToTheTips) {
    Item(1, 1)->SetTooltip(_T("the tip"));
    PutCursor(Cell(1, 1));
    for (int i = 0; i < 100 && !m_tips->IsTipVisible(); ++i)
        Pump(20);
    EXPECT_EQ(m_tips->GetTipText(), _T("the tip"));
    ::SetCursorPos(5, 5);
    for (int i = 0; i < 100 && m_tips->IsTipVisible(); ++i)
        Pump(20);
    EXPECT_FALSE(m_tips->IsTipVisible()) << "the pointer has left";
}

TEST_F(ToolTipTest, ARequestToPrintWithoutADeviceContextDrawsNothing) {
    Item(1, 1)->SetTooltip(_T("the tip"));
    Hover(Cell(1, 1));
    EXPECT_EQ(m_tips->GetTipWindow()->SendMessage(WM_PRINTCLIENT, 0, PRF_CLIENT), 0);
    EXPECT_TRUE(m_tips->IsTipVisible());
}

TEST_F(ToolTipTest, ItStandsBelowThePointerInsideTheScreen) {
    Item(1, 1)->SetTooltip(_T("the tip"));
    Hover(Cell(1, 1));
    CPoint screen = Cell(1, 1);
    m_grid.ClientToScreen(&screen);
    EXPECT_EQ(TipRect().left, screen.x);
    EXPECT_GT(TipRect().top, screen.y);
    EXPECT_LT(TipRect().top, screen.y + 40);
}

TEST_F(ToolTipTest, ItStandsAboveThePointerWhereThereIsNoRoomBelow) {
    CRect work;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &work, 0);
    m_owner.SetWindowPos(nullptr, work.right - 200, work.bottom - 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Item(1, 1)->SetTooltip(_T("a tip that is too long to stand between the pointer and the right edge of the screen"));
    Hover(Cell(1, 1));
    CPoint screen = Cell(1, 1);
    m_grid.ClientToScreen(&screen);
    EXPECT_LT(TipRect().bottom, screen.y);
    EXPECT_EQ(TipRect().right, work.right);
}

TEST_F(ToolTipTest, BeforeTheRestThereIsNoTip) {
    Item(1, 1)->SetTooltip(_T("the tip"));
    m_tips->SetDelayTime(TTDT_INITIAL, 10000);
    Hover(Cell(1, 1));
    EXPECT_FALSE(m_tips->IsTipVisible());
    EXPECT_TRUE(m_tips->GetTipText().IsEmpty());
}

TEST_F(ToolTipTest, ACellWithoutATipEndsIt) {
    Item(1, 1)->SetTooltip(_T("the tip"));
    Hover(Cell(1, 1));
    Hover(Cell(1, 2));
    EXPECT_FALSE(m_tips->IsTipVisible());
    EXPECT_FALSE(m_tips->GetTipWindow()->IsWindowVisible());
}

TEST_F(ToolTipTest, TheNextCellsTipFollows) {
    Item(1, 1)->SetTooltip(_T("one"));
    Item(2, 1)->SetTooltip(_T("two"));
    Hover(Cell(1, 1));
    Hover(Cell(2, 1));
    EXPECT_EQ(m_tips->GetTipText(), _T("two"));
}

TEST_F(ToolTipTest, PressesKeysAndTheWheelEndItUntilThePointerIsElsewhere) {
    Item(1, 1)->SetTooltip(_T("one"));
    Item(2, 1)->SetTooltip(_T("two"));
    for (const UINT message : {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MOUSEWHEEL, WM_KEYDOWN}) {
        Hover(Cell(2, 1));
        Hover(Cell(1, 1));
        ASSERT_TRUE(m_tips->IsTipVisible()) << message;
        Filter(message);
        EXPECT_FALSE(m_tips->IsTipVisible()) << message;
        Hover(Cell(1, 1) + CSize(3, 0));
        EXPECT_FALSE(m_tips->IsTipVisible()) << message << ": still the same cell";
    }
}

TEST_F(ToolTipTest, LeavingEndsIt) {
    Item(1, 1)->SetTooltip(_T("one"));
    Hover(Cell(1, 1));
    Filter(WM_MOUSELEAVE);
    EXPECT_FALSE(m_tips->IsTipVisible());
}

TEST_F(ToolTipTest, NoTipComesWhileAButtonIsDown) {
    Item(1, 1)->SetTooltip(_T("one"));
    Filter(WM_MOUSEMOVE, MK_LBUTTON, Cell(1, 1));
    Pump(100);
    EXPECT_FALSE(m_tips->IsTipVisible());
}

TEST_F(ToolTipTest, ItEndsByItselfAfterItsTime) {
    Item(1, 1)->SetTooltip(_T("one"));
    m_tips->SetDelayTime(TTDT_AUTOPOP, 50);
    Hover(Cell(1, 1), 0);
    for (int i = 0; i < 100 && !m_tips->IsTipVisible(); ++i)
        Pump(1);
    ASSERT_TRUE(m_tips->IsTipVisible());
    Pump(200);
    EXPECT_FALSE(m_tips->IsTipVisible());
}

// --- What has a tip -------------------------------------------------------------------------------------------------

TEST_F(ToolTipTest, ATextThatIsCutOffIsItsOwnTip) {
    Item(1, 1)->SetValue(_T("a text that does not fit into its cell at all"));
    Hover(Cell(1, 1));
    EXPECT_EQ(m_tips->GetTipText(), _T("a text that does not fit into its cell at all"));
    m_columns[1]->SetWidth(1000);
    TOOLINFO tool = {};
    EXPECT_EQ(m_grid.OnToolHitTest(Cell(1, 1), &tool), -1) << "now it can be read";
}

TEST_F(ToolTipTest, HeadersHaveTheirTipOrTheCaptionThatIsCutOff) {
    m_columns[0]->SetTooltip(_T("what A means"));
    Hover(HeaderOf(0));
    EXPECT_EQ(m_tips->GetTipText(), _T("what A means"));
    m_columns[1]->SetCaption(_T("a caption that does not fit"));
    Hover(HeaderOf(1));
    EXPECT_EQ(m_tips->GetTipText(), _T("a caption that does not fit"));
    TOOLINFO tool = {};
    EXPECT_EQ(m_grid.OnToolHitTest(HeaderOf(2), &tool), -1);
}

/// A cell that says that it is a tool but has nothing to say.
class SilentItem : public ProbeItem {
public:
    using ProbeItem::ProbeItem;
    INT_PTR OnToolHitTest(CPoint, TOOLINFO* pTI) override {
        EXPECT_NE(pTI, nullptr);
        return 1;
    }
};

TEST_F(ToolTipTest, ACellWithNothingToSayHasNoTip) {
    auto* record = new CXTPReportRecord;
    for (int i = 0; i < 3; ++i)
        record->AddItem(new SilentItem(_T("a text that does not fit into its cell at all")));
    m_grid.AddRecord(record);
    m_grid.Populate();
    TOOLINFO tool = {};
    EXPECT_EQ(m_grid.OnToolHitTest(Cell(5, 1), &tool), -1);
    EXPECT_EQ(m_grid.OnToolHitTest(Cell(5, 1), nullptr), -1);
}

TEST_F(ToolTipTest, EveryCellIsAToolOfItsOwn) {
    std::vector<INT_PTR> ids;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            Item(row, column)->SetTooltip(_T("tip"));
            ids.push_back(m_grid.OnToolHitTest(Cell(row, column), nullptr));
        }
    }
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(std::unique(ids.begin(), ids.end()), ids.end());
    EXPECT_GT(ids.front(), 0);
}

/// A host that answers for its cells itself, with a text that follows the pointer.
class HostGrid : public CXTPReportControl {
public:
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override {
        CString text;
        text.Format(_T("x = %d"), static_cast<int>(point.x));
        if (pTI)
            pTI->lpszText = _tcsdup(text);
        return 7;
    }
};

TEST(HostToolTip, TheTextMayChangeWhileThePointerMovesWithinATool) {
    OwnerWindow owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), _T("owner"), WS_POPUP | WS_VISIBLE, CRect(200, 100, 600, 500), nullptr,
                   0);
    HostGrid grid;
    grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &owner, 1);
    CXTPToolTipContext* tips = grid.GetToolTipContext();
    tips->SetDelayTime(TTDT_INITIAL, 1);
    const auto move = [&](int x) {
        tips->FilterToolTipMessage(&grid, WM_MOUSEMOVE, 0, MAKELPARAM(x, 100));
        for (int i = 0; i < 50 && !tips->IsTipVisible(); ++i) {
            MSG message;
            while (::PeekMessage(&message, tips->GetTipWindow()->m_hWnd, 0, 0, PM_REMOVE))
                ::DispatchMessage(&message);
            ::Sleep(5);
        }
    };
    move(50);
    ASSERT_EQ(tips->GetTipText(), _T("x = 50"));
    CRect before;
    tips->GetTipWindow()->GetWindowRect(&before);
    move(60);
    EXPECT_TRUE(tips->IsTipVisible());
    EXPECT_EQ(tips->GetTipText(), _T("x = 60"));
    CRect after;
    tips->GetTipWindow()->GetWindowRect(&after);
    EXPECT_EQ(after.TopLeft(), before.TopLeft()) << "it stays where it is";
    grid.DestroyWindow();
    EXPECT_FALSE(tips->IsTipVisible()) << "a tip does not outlive its host";
    owner.DestroyWindow();
}

// --- Looks ----------------------------------------------------------------------------------------------------------

class TipLookTest : public ToolTipTest {
protected:
    void Show(LPCTSTR text) {
        Item(1, 1)->SetTooltip(text);
        Hover(Cell(2, 2));
        Hover(Cell(1, 1));
        ASSERT_TRUE(m_tips->IsTipVisible());
    }
    std::unique_ptr<DibCanvas> TipPicture() {
        const CRect rc = TipRect();
        auto canvas = std::make_unique<DibCanvas>(rc.Width(), rc.Height(), RGB(255, 0, 255));
        m_tips->GetTipWindow()->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas->Dc().m_hDC), PRF_CLIENT);
        return canvas;
    }
};

TEST_F(TipLookTest, LongTextsWrapAtTheMaximumWidth) {
    const LPCTSTR text = _T("a text of many words that takes more than one line when its width is bounded");
    Show(text);
    const CRect oneLine = TipRect();
    m_tips->SetMaxTipWidth(150);
    Show(text);
    const CRect margin = m_tips->GetMargin();
    EXPECT_LE(TipRect().Width(), 150 + margin.left + margin.right + 2);
    EXPECT_GE(TipRect().Height(), 2 * oneLine.Height() - margin.top - margin.bottom - 2);
    EXPECT_GT(oneLine.Width(), TipRect().Width());
}

TEST_F(TipLookTest, TheMarginIsKept) {
    Show(_T("x"));
    const CRect before = TipRect();
    CRect margin = m_tips->GetMargin();
    margin = CRect(margin.left + 10, margin.top + 7, margin.right + 10, margin.bottom + 7);
    m_tips->SetMargin(&margin);
    Show(_T("x"));
    EXPECT_EQ(TipRect().Width(), before.Width() + 20);
    EXPECT_EQ(TipRect().Height(), before.Height() + 14);
}

TEST_F(TipLookTest, StylesLookDifferent) {
    std::vector<COLORREF> fills, borders;
    for (const XTPToolTipStyle style : {xtpToolTipStandard, xtpToolTipResource, xtpToolTipOffice2013}) {
        m_tips->SetStyle(style);
        Show(_T("some text"));
        const auto picture = TipPicture();
        const CRect rc = TipRect();
        fills.push_back(picture->At(rc.Width() / 2, rc.Height() - 3));
        borders.push_back(picture->At(rc.Width() / 2, 0));
    }
    EXPECT_EQ(fills[0], ::GetSysColor(COLOR_INFOBK));
    EXPECT_EQ(fills[2], RGB(255, 255, 255));
    EXPECT_NE(fills[1], fills[0]);
    EXPECT_NE(fills[1], fills[2]);
    EXPECT_NE(borders[0], borders[2]);
}

TEST(ToolInfo, TitleTipAndDescriptionStandInLinesOfTheirOwn) {
    const auto textOf = [](const CString& tip, const CString& title, const CString& description) {
        TOOLINFO info = {};
        CXTPToolTipContext::FillInToolInfo(&info, nullptr, CRect(1, 2, 3, 4), 7, tip, title, description);
        EXPECT_EQ(info.uId, 7u);
        EXPECT_EQ(CRect(info.rect), CRect(1, 2, 3, 4));
        const CString text = info.lpszText;
        std::free(info.lpszText);
        return text;
    };
    EXPECT_EQ(textOf(_T("tip"), _T(""), _T("")), _T("tip"));
    EXPECT_EQ(textOf(_T("tip"), _T("title"), _T("more")), _T("title\ntip\nmore"));
    EXPECT_EQ(textOf(_T(""), _T("title"), _T("more")), _T("title\nmore"));
    EXPECT_EQ(textOf(_T(""), _T(""), _T("")), _T(""));
    CXTPToolTipContext::FillInToolInfo(nullptr, nullptr, CRect(), 1, _T("nowhere"));
}

} // namespace
