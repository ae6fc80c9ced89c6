// Marks of plot cells moved by keyboard.
#include "PlotCellProbes.h"

#include <cmath>

namespace {

/// Three rows with plot cells of 30, 50, 70 on the scale 0…100; the middle one's plot has the focus.
class PlotKeysTest : public ::testing::Test {
protected:
    PlotKeysTest() {
        for (auto*& cell : cells) {
            cell = host.AddRow(new ProbeCell);
            cell->SetValues(30, 50, 70);
        }
        host.Show();
        host.grid.SetFocus();
        host.grid.SetFocusedRow(host.grid.GetRows()->GetAt(1));
        host.grid.SetFocusedColumn(host.grid.GetColumns()->GetAt(1));
        host.grid.UpdateWindow();
    }
    ~PlotKeysTest() override { ::SetKeyboardState(m_none); }

    /// As the message loop hands it over.
    void Key(UINT key, int modifier = 0) {
        BYTE keys[256] = {};
        if (modifier)
            keys[modifier] = 0x80;
        ::SetKeyboardState(keys);
        MSG msg{};
        msg.hwnd = host.grid.m_hWnd;
        msg.message = WM_KEYDOWN;
        msg.wParam = key;
        if (!host.grid.PreTranslateMessage(&msg))
            host.grid.SendMessage(WM_KEYDOWN, key);
        ::SetKeyboardState(m_none);
    }
    bool IsDragged() const { return host.grid.m_pDragItem != nullptr; }
    /// The value of the pixel that is so many to the right of a value's.
    double ValueAt(double value, int pixels) {
        const int width = host.CellRect(1).Width() - 2;
        return (std::lround(value / 100 * width) + pixels) * 100.0 / width;
    }

    PlotGridHost host;
    ProbeCell* cells[3] = {};
    BYTE m_none[256] = {};
};

TEST_F(PlotKeysTest, TheMarksOfACellAreKnown) {
    EXPECT_EQ(cells[1]->GetMarkPositions(), (std::vector<double>{0.3, 0.5, 0.7}));
    cells[1]->SetSupportDragTarget(false);
    EXPECT_EQ(cells[1]->GetMarkPositions(), (std::vector<double>{0.3, 0.7}));
    cells[1]->SetValues(-99, -99, 150);
    EXPECT_EQ(cells[1]->GetMarkPositions(), std::vector<double>{1.0}) << "taken hold of at the edge";
    cells[1]->SetAllowInteraction(false);
    EXPECT_TRUE(cells[1]->GetMarkPositions().empty());
}

TEST_F(PlotKeysTest, F2TakesTheFirstMarkAndArrowsMoveItByAPixel) {
    Reports reports(*cells[1]);
    Key(VK_F2);
    ASSERT_EQ(host.grid.m_pDragItem, cells[1]);
    EXPECT_TRUE(cells[1]->m_draggingLower);
    Key(VK_RIGHT);
    Key(VK_RIGHT);
    Key(VK_LEFT);
    EXPECT_NEAR(cells[1]->m_dragPos * 100, ValueAt(30, 1), 1e-3) << "as the mouse would";
    EXPECT_EQ(cells[1]->m_lower, 30.0) << "the value waits for the end";
    Key(VK_RIGHT, VK_CONTROL);
    Key(VK_RETURN);
    EXPECT_FALSE(IsDragged());
    ASSERT_EQ(reports.all.size(), 1u);
    EXPECT_NEAR(reports.all[0][0], ValueAt(30, 11), 1e-3);
    EXPECT_EQ(host.grid.GetFocusedRow(), host.grid.GetRows()->GetAt(1)) << "the keys were the mark's";
    EXPECT_EQ(host.grid.GetFocusedColumn(), host.grid.GetColumns()->GetAt(1));
}

TEST_F(PlotKeysTest, TabGoesFromMarkToMark) {
    Key(VK_F2);
    Key(VK_TAB);
    EXPECT_TRUE(cells[1]->m_draggingCenter);
    Key(VK_TAB);
    EXPECT_TRUE(cells[1]->m_draggingUpper);
    Key(VK_TAB);
    EXPECT_TRUE(cells[1]->m_draggingLower) << "round again";
    Key(VK_TAB, VK_SHIFT);
    EXPECT_TRUE(cells[1]->m_draggingUpper);
    EXPECT_EQ(cells[1]->m_lower, 30.0) << "marks that were not moved keep their values exactly";
    EXPECT_EQ(cells[1]->m_target, 50.0);
    Key(VK_LEFT);
    Key(VK_TAB);
    EXPECT_NEAR(cells[1]->m_upper, ValueAt(70, -1), 1e-3) << "one that was moved has its new value";
}

TEST_F(PlotKeysTest, HomeAndEndGoAsFarAsTheMouseCould) {
    Reports reports(*cells[1]);
    Key(VK_F2);
    Key(VK_HOME);
    Key(VK_RETURN);
    EXPECT_NEAR(cells[1]->m_lower, 0.0, 1e-6);
    Key(VK_F2);
    Key(VK_END);
    Key(VK_RETURN);
    EXPECT_NEAR(cells[1]->m_lower, 50.0, 1e-3) << "an end stops at the target";
    EXPECT_EQ(reports.all.size(), 2u);
}

TEST_F(PlotKeysTest, EscapePutsTheMarkBack) {
    Reports reports(*cells[1]);
    Key(VK_F2);
    Key(VK_RIGHT, VK_CONTROL);
    Key(VK_ESCAPE);
    EXPECT_FALSE(IsDragged());
    EXPECT_EQ(cells[1]->m_lower, 30.0);
    EXPECT_EQ(host.grid.cancelled, 1);
    EXPECT_TRUE(reports.all.empty());
    Key(VK_RIGHT);
    EXPECT_FALSE(cells[1]->m_draggingLower) << "arrows are the grid's again";
}

TEST_F(PlotKeysTest, OtherKeysApplyAndGoOn) {
    Reports reports(*cells[1]);
    Key(VK_F2);
    Key(VK_RIGHT);
    Key(VK_DOWN);
    EXPECT_EQ(reports.all.size(), 1u);
    EXPECT_EQ(host.grid.GetFocusedRow(), host.grid.GetRows()->GetAt(2));
    EXPECT_FALSE(IsDragged());
}

TEST_F(PlotKeysTest, APressAndAnotherWindowApply) {
    Reports reports(*cells[1]);
    Key(VK_F2);
    Key(VK_RIGHT);
    const CPoint name = host.CellRect(0, 0).CenterPoint();
    host.grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(name.x, name.y));
    host.grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(name.x, name.y));
    EXPECT_EQ(reports.all.size(), 1u);
    host.grid.SetFocusedRow(host.grid.GetRows()->GetAt(1));
    host.grid.SetFocusedColumn(host.grid.GetColumns()->GetAt(1));
    Key(VK_F2);
    Key(VK_RIGHT);
    host.frame.SetFocus();
    EXPECT_EQ(reports.all.size(), 2u);
    EXPECT_FALSE(IsDragged());
}

TEST_F(PlotKeysTest, ThePointerHasNoPartInIt) {
    Reports reports(*cells[1]);
    Key(VK_F2);
    const CPoint elsewhere = host.CellRect(1).CenterPoint();
    host.grid.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(elsewhere.x, elsewhere.y));
    host.grid.SendMessage(WM_MOUSELEAVE);
    EXPECT_TRUE(IsDragged());
    Key(VK_RETURN);
    EXPECT_TRUE(reports.all.empty());
    EXPECT_EQ(cells[1]->m_lower, 30.0);
}

TEST_F(PlotKeysTest, ACellThatIsScrolledOrRemovedMeanwhileIsFollowed) {
    for (int i = 0; i < 40; ++i)
        host.AddRow(new ProbeCell);
    host.Show();
    Key(VK_F2);
    host.grid.SetLeftOffset(0);
    host.grid.GetColumns()->GetAt(0)->SetWidth(60);
    host.Draw();
    Key(VK_RIGHT);
    EXPECT_NEAR(cells[1]->m_dragPos * 100, ValueAt(30, 1), 1e-3);
    host.grid.GetRecords()->RemoveAll();
    host.grid.Populate();
    Key(VK_RIGHT);
    EXPECT_FALSE(IsDragged());
}

TEST_F(PlotKeysTest, WithoutMarksF2IsTheGrids) {
    cells[1]->SetValues(-99, -99, -99);
    Key(VK_F2);
    EXPECT_FALSE(IsDragged());
    host.grid.SetFocusedColumn(host.grid.GetColumns()->GetAt(0));
    Key(VK_F2);
    EXPECT_FALSE(IsDragged());
}

TEST_F(PlotKeysTest, ADialogLeavesTheKeysToAMark) {
    EXPECT_FALSE(host.grid.SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS);
    Key(VK_F2);
    EXPECT_TRUE(host.grid.SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS);
}

TEST_F(PlotKeysTest, ASliderIsMovedAsWell) {
    auto* line = host.AddRow(new KyDragLineRecordItem);
    line->SetTargetValues(25, 0, 100);
    line->SetMargin(0);
    host.Show();
    host.grid.SetFocusedRow(host.grid.GetRows()->GetAt(3));
    Key(VK_F2);
    Key(VK_RIGHT);
    Key(VK_RETURN);
    EXPECT_NEAR(line->GetTarget(), ValueAt(25, 1), 1e-3);
    Key(VK_F2);
    Key(VK_RIGHT);
    Key(VK_ESCAPE);
    EXPECT_NEAR(line->GetTarget(), ValueAt(25, 1), 1e-3);
    line->SetTarget(-99);
    EXPECT_TRUE(line->GetMarkPositions().empty());
}

} // namespace
