// The grid that routes the mouse to its plot cells, driven by messages.
#include "PlotCellProbes.h"

#include "../support/PointerPlace.h"

#include <memory>

namespace {

/// Three rows with plot cells of 30, 50, 70 on the scale 0…100. A cell is 402 pixels wide or as wide as its column came
/// out; `At` finds a value in it.
class PlotGridTest : public ::testing::Test {
protected:
    PlotGridTest() {
        for (auto*& cell : cells) {
            cell = host.AddRow(new ProbeCell);
            cell->SetValues(30, 50, 70);
        }
        host.Show();
    }

    /// The point of the client area where the value stands in the row's plot cell.
    CPoint At(int row, double value) {
        CRect rect = host.CellRect(row);
        rect.InflateRect(-1, -1);
        return CPoint(rect.left + static_cast<int>(rect.Width() * value / 100.0 + 0.5), rect.CenterPoint().y);
    }
    CPoint BelowTheLastRow() { return CPoint(At(2, 50).x, host.CellRect(2).bottom + 40); }

    void Send(UINT message, CPoint point, WPARAM keys = 0) {
        host.grid.SendMessage(message, keys, MAKELPARAM(point.x, point.y));
    }
    void Press(CPoint point) { Send(WM_LBUTTONDOWN, point, MK_LBUTTON); }
    void Move(CPoint point) { Send(WM_MOUSEMOVE, point, MK_LBUTTON); }
    void Release(CPoint point) { Send(WM_LBUTTONUP, point); }
    void PutCursor(CPoint point) {
        host.grid.ClientToScreen(&point);
        EXPECT_TRUE(PutPointer(point));
    }
    BOOL PreTranslate(UINT message, WPARAM wParam) {
        MSG msg{};
        msg.hwnd = host.grid.m_hWnd;
        msg.message = message;
        msg.wParam = wParam;
        return host.grid.PreTranslateMessage(&msg);
    }
    ProbeCell* Routed() const { return static_cast<ProbeCell*>(host.grid.m_pDragItem); }
    bool HasCapture() const { return ::GetCapture() == host.grid.m_hWnd; }

    PlotGridHost host;
    ProbeCell* cells[3] = {};
};

} // namespace

TEST(PlotRecordReportControl, IsCreatedByItsRunTimeClass) {
    std::unique_ptr<CObject> object(RUNTIME_CLASS(KyPlotRecordReportControl)->CreateObject());
    ASSERT_TRUE(object);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(KyReportControl)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CXTPReportControl)));
    EXPECT_EQ(RUNTIME_CLASS(KyPlotRecordReportControl)->m_pfnGetBaseClass(), RUNTIME_CLASS(KyReportControl));
}

TEST(PlotRecordReportControl, StartsWithNoDragRouted) {
    const ProbePlotGrid grid;
    EXPECT_EQ(grid.m_pDragItem, nullptr);
    EXPECT_EQ(grid.m_rcDragItem, CRect(0, 0, 0, 0));
}

// --- Press -----------------------------------------------------------------------------------------------------------

TEST_F(PlotGridTest, APressOnAMarkRoutesTheDrag) {
    Press(At(1, 50));
    EXPECT_EQ(Routed(), cells[1]);
    EXPECT_EQ(host.grid.m_rcDragItem, host.CellRect(1));
    EXPECT_TRUE(cells[1]->m_draggingCenter);
    EXPECT_TRUE(HasCapture());
    EXPECT_TRUE(host.grid.GetRows()->GetAt(1)->IsSelected()); // the toolkit had its turn first
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_SIZEWE));
    Release(At(1, 50));
}

TEST_F(PlotGridTest, APressBesideTheMarksIsRoutedAsWell) {
    Press(At(1, 10));
    EXPECT_EQ(Routed(), cells[1]);
    EXPECT_FALSE(cells[1]->m_draggingLower || cells[1]->m_draggingCenter || cells[1]->m_draggingUpper);
    Release(At(1, 10));
    EXPECT_EQ(Routed(), nullptr);
    EXPECT_EQ(cells[1]->m_lower, 30.0);
}

TEST_F(PlotGridTest, APressOnAnotherKindOfCellRoutesNothing) {
    Press(host.CellRect(1, 0).CenterPoint());
    EXPECT_EQ(Routed(), nullptr);
    Release(host.CellRect(1, 0).CenterPoint());
}

TEST_F(PlotGridTest, APressBelowTheRowsRoutesNothing) {
    Press(BelowTheLastRow());
    EXPECT_EQ(Routed(), nullptr);
    Release(BelowTheLastRow());
}

TEST_F(PlotGridTest, ACellWithoutInteractionShowsTheNotAllowedCursor) {
    cells[1]->SetAllowInteraction(false);
    Reports reports(*cells[1]);
    Press(At(1, 50));
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_NO));
    EXPECT_EQ(Routed(), nullptr);
    Move(At(1, 60));
    Release(At(1, 60));
    EXPECT_EQ(cells[1]->m_target, 50.0);
    EXPECT_TRUE(reports.all.empty());
}

TEST_F(PlotGridTest, ACellThatWantsNoCaptureBeginsItsDragUnrouted) {
    class ClickCell : public ProbeCell {
    public:
        bool GetAllowInteraction(CPoint, bool& capture) const override {
            capture = false;
            return true;
        }
    };
    auto* cell = host.AddRow(new ClickCell);
    cell->SetValues(30, 50, 70);
    host.Show();
    Press(At(3, 50));
    EXPECT_EQ(Routed(), nullptr);
    EXPECT_TRUE(cell->m_draggingCenter);
    Release(At(3, 50));
    EXPECT_TRUE(cell->m_draggingCenter); // ended only by what the cell itself does
}

// --- Move ------------------------------------------------------------------------------------------------------------

TEST_F(PlotGridTest, AMoveReachesTheCellUnderIt) {
    Move(At(2, 25));
    const CRect rect = cells[2]->GetItemRect();
    EXPECT_EQ(cells[2]->m_dragPos,
              static_cast<double>(static_cast<float>(At(2, 25).x - rect.left) / static_cast<float>(rect.Width())));
    EXPECT_EQ(cells[1]->m_dragPos, -99.0);
}

TEST_F(PlotGridTest, FarAboveTheGridTheMarkStillFollows) {
    Press(At(1, 50));
    Move(CPoint(At(1, 65).x, -300));
    EXPECT_NEAR(cells[1]->m_dragPos, 0.65, 0.005);
    EXPECT_TRUE(cells[1]->IsCenterDragging());
    Release(At(1, 65));
}

TEST_F(PlotGridTest, ARoutedPointIsPulledIntoTheDrawnRectangle) {
    Press(At(1, 50));
    const int width = cells[1]->GetItemRect().Width();
    Move(CPoint(-200, -300));
    EXPECT_EQ(cells[1]->m_dragPos, 0.0);
    Move(CPoint(2000, 390));
    EXPECT_EQ(cells[1]->m_dragPos, 1.0);
    // Also at the cell's own height.
    Move(CPoint(cells[1]->GetItemRect().left - 30, cells[1]->GetItemRect().CenterPoint().y));
    EXPECT_EQ(cells[1]->m_dragPos, 0.0);
    Move(CPoint(cells[1]->GetItemRect().right + 30, cells[1]->GetItemRect().CenterPoint().y));
    EXPECT_EQ(cells[1]->m_dragPos, 1.0);
    // The right edge itself is outside the rectangle and becomes the right edge at the middle height.
    Move(CPoint(cells[1]->GetItemRect().right, cells[1]->GetItemRect().top));
    EXPECT_EQ(cells[1]->m_dragPos, 1.0);
    // Inside, the point is taken as it is.
    Move(CPoint(cells[1]->GetItemRect().right - 1, cells[1]->GetItemRect().top));
    EXPECT_EQ(cells[1]->m_dragPos, static_cast<double>(static_cast<float>(width - 1) / static_cast<float>(width)));
    Release(At(1, 50));
}

TEST_F(PlotGridTest, OverAnotherRowTheDraggedCellFollows) {
    Press(At(1, 30));
    Move(At(2, 40));
    EXPECT_NEAR(cells[1]->m_dragPos, 0.40, 0.005);
    EXPECT_EQ(cells[2]->m_dragPos, -99.0);
    Release(At(1, 40));
}

TEST_F(PlotGridTest, EachMoveIsDrawn) {
    Press(At(1, 50));
    host.grid.UpdateWindow();
    const int drawn = cells[1]->drawings;
    Move(At(1, 55));
    host.grid.UpdateWindow();
    EXPECT_GT(cells[1]->drawings, drawn);
    Release(At(1, 55));
}

// --- Release ---------------------------------------------------------------------------------------------------------

TEST_F(PlotGridTest, AReleaseOverTheSameCellApplies) {
    Reports reports(*cells[1]);
    Press(At(1, 50));
    Move(At(1, 60));
    Release(At(1, 60));
    ASSERT_EQ(reports.all.size(), 1u);
    EXPECT_EQ(reports.all[0][0], -99.0f);
    EXPECT_NEAR(reports.all[0][1], 60.0f, 0.5f);
    EXPECT_EQ(reports.all[0][2], -99.0f);
    EXPECT_NEAR(cells[1]->m_target, 60.0, 0.5);
    EXPECT_EQ(Routed(), nullptr);
    EXPECT_FALSE(HasCapture());
}

TEST_F(PlotGridTest, TheReleasedStateIsDrawn) {
    Press(At(1, 50));
    host.grid.UpdateWindow();
    const int drawn = cells[1]->drawings;
    Release(At(1, 50));
    host.grid.UpdateWindow();
    EXPECT_GT(cells[1]->drawings, drawn);
}

TEST_F(PlotGridTest, AReleaseOverAnotherRowIsPulledBackAndApplies) {
    Reports reports(*cells[0]);
    Press(At(0, 70));
    Move(At(2, 80));
    Release(At(2, 80));
    ASSERT_EQ(reports.all.size(), 1u);
    EXPECT_NEAR(cells[0]->m_upper, 80.0, 0.5);
    EXPECT_EQ(cells[2]->m_upper, 70.0);
}

TEST_F(PlotGridTest, AReleaseOutsideTheGridIsPulledBackAndApplies) {
    Reports reports(*cells[1]);
    Press(At(1, 30));
    Release(CPoint(-500, -500));
    ASSERT_EQ(reports.all.size(), 1u);
    EXPECT_EQ(cells[1]->m_lower, 0.0 - 0.0);
    EXPECT_EQ(Routed(), nullptr);
}

TEST_F(PlotGridTest, AReleaseOverAnotherItemEndsTheDragUnapplied) {
    Reports reports(*cells[0]);
    Press(At(0, 50));
    // The rectangle that the cell was drawn into lies over the next row: as after scrolling.
    cells[0]->m_itemRect = host.CellRect(1);
    Release(At(1, 60));
    EXPECT_TRUE(reports.all.empty());
    EXPECT_EQ(cells[0]->m_target, 50.0);
    EXPECT_FALSE(cells[0]->m_draggingCenter);
    EXPECT_EQ(Routed(), nullptr);
}

TEST_F(PlotGridTest, AReleaseOverNoRowKeepsTheDragRoutedUntilTheNext) {
    Reports reports(*cells[0]);
    Press(At(0, 50));
    const CRect drawn = cells[0]->GetItemRect();
    cells[0]->m_itemRect.MoveToY(BelowTheLastRow().y);
    host.grid.GetSelectedRows()->Add(host.grid.GetRows()->GetAt(2));
    Release(BelowTheLastRow());
    EXPECT_EQ(Routed(), cells[0]);
    EXPECT_TRUE(cells[0]->m_draggingCenter);
    EXPECT_EQ(host.grid.GetSelectedRows()->GetCount(), 0);
    EXPECT_FALSE(HasCapture());
    EXPECT_TRUE(reports.all.empty());

    cells[0]->m_itemRect = drawn;
    Release(At(0, 60));
    EXPECT_EQ(Routed(), nullptr);
    ASSERT_EQ(reports.all.size(), 1u);
    EXPECT_NEAR(cells[0]->m_target, 60.0, 0.5);
}

TEST_F(PlotGridTest, AReleaseOverARowButNoItemKeepsTheDragRouted) {
    Press(At(0, 50));
    const CPoint rightOfTheColumns(host.CellRect(0).right + 30, host.CellRect(0).CenterPoint().y);
    CXTPReportRow* const row = host.grid.HitTest(rightOfTheColumns);
    ASSERT_NE(row, nullptr); // a row goes on beside its columns
    cells[0]->m_itemRect.MoveToX(rightOfTheColumns.x);
    Release(CPoint(rightOfTheColumns.x + 1, rightOfTheColumns.y));
    EXPECT_EQ(Routed(), cells[0]);
    EXPECT_TRUE(cells[0]->m_draggingCenter);
    PreTranslate(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(Routed(), nullptr);
}

TEST_F(PlotGridTest, AReleaseAlwaysReleasesTheCapture) {
    host.grid.SetCapture(); // without a press that the toolkit would know of
    Release(At(1, 10));
    EXPECT_FALSE(HasCapture());
    host.grid.SetCapture();
    Release(BelowTheLastRow());
    EXPECT_FALSE(HasCapture());
}

TEST_F(PlotGridTest, AReleaseBelowTheLastRowClearsTheSelection) {
    Press(At(1, 10));
    Release(At(1, 10));
    EXPECT_EQ(host.grid.GetSelectedRows()->GetCount(), 1);
    Release(BelowTheLastRow());
    EXPECT_EQ(host.grid.GetSelectedRows()->GetCount(), 0);
}

TEST_F(PlotGridTest, APressOnAnotherCellEndsADragThatWasLeftRouted) {
    Press(At(0, 50));
    cells[0]->m_itemRect.MoveToY(BelowTheLastRow().y);
    Release(BelowTheLastRow());
    ASSERT_EQ(Routed(), cells[0]);
    Press(At(2, 50));
    EXPECT_EQ(Routed(), cells[2]);
    EXPECT_FALSE(cells[0]->m_draggingCenter);
    EXPECT_EQ(cells[0]->m_target, 50.0);
    Release(At(2, 50));
}

// --- Leave -----------------------------------------------------------------------------------------------------------

TEST_F(PlotGridTest, LeavingAppliesTheDragAtThePointersPlaceWithoutPulling) {
    Reports reports(*cells[1]);
    Press(At(1, 50));
    const CRect rect = cells[1]->GetItemRect();
    const CPoint outside(rect.right + 30, rect.bottom + 60);
    PutCursor(outside);
    host.grid.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(Routed(), nullptr);
    ASSERT_EQ(reports.all.size(), 1u);
    // The drawn rectangle is deflated once more by the end of a drag.
    const float fraction = static_cast<float>(outside.x - (rect.left + 1)) / static_cast<float>(rect.Width() - 2);
    EXPECT_EQ(cells[1]->m_dragPos, static_cast<double>(fraction));
    EXPECT_EQ(cells[1]->m_target, static_cast<double>(fraction) * 100.0);
    EXPECT_EQ(reports.all[0][1], static_cast<float>(cells[1]->m_target));
    Release(At(1, 50));
}

TEST_F(PlotGridTest, LeavingWithoutADragChangesNothing) {
    Reports reports(*cells[1]);
    host.grid.SendMessage(WM_MOUSELEAVE);
    EXPECT_TRUE(reports.all.empty());
}

TEST_F(PlotGridTest, LeavingWhileASlotRunsDoesNotEndTheDragTwice) {
    Reports reports(*cells[1]);
    cells[1]->m_valueChanged.connect([this](float, float, float) { host.grid.SendMessage(WM_MOUSELEAVE); });
    Press(At(1, 50));
    Release(At(1, 60));
    EXPECT_EQ(reports.all.size(), 1u);
}

// --- Escape ----------------------------------------------------------------------------------------------------------

TEST_F(PlotGridTest, EscapeRestoresTheValueAndTellsOnce) {
    Reports reports(*cells[1]);
    Press(At(1, 30));
    Move(At(1, 40));
    PreTranslate(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(host.grid.cancelled, 1);
    EXPECT_EQ(Routed(), nullptr);
    EXPECT_EQ(cells[1]->m_lower, 30.0);
    EXPECT_EQ(cells[1]->m_dragPos, -99.0);
    PreTranslate(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(host.grid.cancelled, 1);
    Release(At(1, 40));
    EXPECT_TRUE(reports.all.empty());
    EXPECT_EQ(cells[1]->m_lower, 30.0);
}

TEST_F(PlotGridTest, AnyMessageWithTheNumberOfEscapeCancels) {
    for (const UINT message : {WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_SYSKEYDOWN, WM_TIMER, WM_MOUSEMOVE, WM_APP}) {
        Press(At(1, 50));
        ASSERT_NE(Routed(), nullptr);
        const int before = host.grid.cancelled;
        PreTranslate(message, 27);
        EXPECT_EQ(host.grid.cancelled, before + 1) << message;
        EXPECT_EQ(Routed(), nullptr) << message;
        Release(At(1, 10));
    }
}

TEST_F(PlotGridTest, OtherKeysDoNotCancel) {
    Press(At(1, 50));
    PreTranslate(WM_KEYDOWN, VK_SPACE);
    PreTranslate(WM_KEYDOWN, VK_SHIFT);
    EXPECT_EQ(host.grid.cancelled, 0);
    EXPECT_EQ(Routed(), cells[1]);
    Release(At(1, 50));
}

TEST_F(PlotGridTest, EscapeWithoutADragIsNotTold) {
    PreTranslate(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(host.grid.cancelled, 0);
}

// --- Cursor ----------------------------------------------------------------------------------------------------------

TEST_F(PlotGridTest, ThePlotCellUnderThePointerChoosesTheCursor) {
    PutCursor(At(1, 50));
    Move(At(1, 50));
    const auto wparam = reinterpret_cast<WPARAM>(host.grid.m_hWnd);
    EXPECT_EQ(host.grid.SendMessage(WM_SETCURSOR, wparam, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), TRUE);
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_HAND));

    PutCursor(At(1, 30));
    Move(At(1, 30));
    host.grid.SendMessage(WM_SETCURSOR, wparam, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_SIZEWE));

    PutCursor(At(1, 10));
    Move(At(1, 10));
    host.grid.SendMessage(WM_SETCURSOR, wparam, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_ARROW));
}

TEST_F(PlotGridTest, WithoutAPlotCellUnderItTheCursorIsTheToolkits) {
    // The pointer is over the text cell; the plot cell, near whose mark it was last, is not asked.
    Move(At(1, 30));
    PutCursor(host.CellRect(1, 0).CenterPoint());
    ::SetCursor(StandardCursor(IDC_SIZEWE));
    const auto wparam = reinterpret_cast<WPARAM>(host.grid.m_hWnd);
    host.grid.SendMessage(WM_SETCURSOR, wparam, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_ARROW));
}

TEST_F(PlotGridTest, EscapeChoosesTheCursorAtOnce) {
    PutCursor(At(1, 90));
    Press(At(1, 50));
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_SIZEWE));
    PreTranslate(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_ARROW));
    Release(At(1, 50));
}

// --- Commands, lifetime ----------------------------------------------------------------------------------------------

TEST_F(PlotGridTest, CutAndPasteAreOffWhateverIsSelected) {
    EXPECT_FALSE(host.grid.CanCut());
    EXPECT_FALSE(host.grid.CanPaste());
    host.grid.SelectAll();
    EXPECT_FALSE(host.grid.CanCut());
    EXPECT_FALSE(host.grid.CanPaste());
}

TEST_F(PlotGridTest, ACellRemovedDuringItsDragIsForgotten) {
    const int alive = ProbeCell::Alive();
    Press(At(1, 50));
    host.grid.GetRecords()->RemoveAt(1);
    host.grid.Populate();
    Move(CPoint(50, 60));
    EXPECT_EQ(Routed(), nullptr);
    EXPECT_EQ(ProbeCell::Alive(), alive - 1);
    Release(CPoint(50, 60));
    PreTranslate(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(host.grid.cancelled, 0);
}

TEST_F(PlotGridTest, AnEmptiedGridForgetsItsDrag) {
    Press(At(1, 50));
    host.grid.ResetContent();
    Release(CPoint(50, 60));
    EXPECT_EQ(Routed(), nullptr);
    host.grid.SendMessage(WM_MOUSELEAVE);
}

TEST(PlotRecordReportControl, DestroyedDuringADragItLeavesNothingBehind) {
    const int alive = ProbeCell::Alive();
    {
        PlotGridHost host;
        auto* cell = host.AddRow(new ProbeCell);
        cell->SetValues(30, 50, 70);
        host.Show();
        const CRect rect = host.CellRect(0);
        const CPoint press(rect.CenterPoint());
        host.grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(press.x, press.y));
        EXPECT_EQ(host.grid.m_pDragItem, cell);
    }
    EXPECT_EQ(ProbeCell::Alive(), alive);
}
