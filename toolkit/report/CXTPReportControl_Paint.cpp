// The drawing of a report control: which parts are damaged, and how they come to the screen.
#include "ReportControlImpl.h"

#include "../../framework/gdi/SelectGuard.h"

#include <vector>

namespace {

/// Beyond this many rectangles the damage is painted as one.
constexpr DWORD MaxDamageRects = 24;

/// So many requests before a painting go to the system. Those after them wait for the painting, at most this long.
constexpr int MaxRequests = 64;
constexpr UINT DamageDelay = 50;

/// The rectangles that are to be painted, in client coordinates; their bounds alone when there are very many. Asked of
/// the device context, which knows them: asking the window for its damage takes the system longer than drawing a row.
std::vector<CRect> DamageOf(const CPaintDC& dc, CPoint origin) {
    CRect rcBounds;
    switch (::GetClipBox(dc, &rcBounds)) {
    case ERROR:
    case NULLREGION:
        return {};
    case COMPLEXREGION:
        break;
    default:
        return {rcBounds};
    }
    CRgn region;
    region.CreateRectRgn(0, 0, 0, 0);
    // Pixels of the screen, which a mirrored window counts the other way round.
    if ((::GetLayout(dc) & LAYOUT_RTL) != 0 || ::GetRandomRgn(dc, region, SYSRGN) < 1)
        return {rcBounds};
    std::vector<BYTE> bytes(::GetRegionData(region, 0, nullptr));
    auto* data = reinterpret_cast<RGNDATA*>(bytes.data());
    if (bytes.empty() || !::GetRegionData(region, static_cast<DWORD>(bytes.size()), data) ||
        data->rdh.nCount > MaxDamageRects)
        return {rcBounds};
    const RECT* rects = reinterpret_cast<const RECT*>(data->Buffer);
    std::vector<CRect> damage(rects, rects + data->rdh.nCount);
    for (CRect& rc : damage)
        rc.OffsetRect(-origin.x, -origin.y);
    return damage;
}

/// Holds, for the length of one drawing, whether the control has the focus: every selected cell asks, and the system
/// takes longer for the answer than the cell for its picture.
class DrawingFocus {
public:
    DrawingFocus(std::optional<bool>& held, bool hasFocus) : m_held(held), m_former(held) { m_held = hasFocus; }
    ~DrawingFocus() { m_held = m_former; }
    DrawingFocus(const DrawingFocus&) = delete;
    DrawingFocus& operator=(const DrawingFocus&) = delete;

private:
    std::optional<bool>& m_held;
    std::optional<bool> m_former;
};

} // namespace

// --- Asking for a redraw --------------------------------------------------------------------------------------------

void CXTPReportControl::RedrawControl() {
    if (m_hWnd)
        m_impl->AskForRedraw();
}

void CXTPReportControl::Impl::AskForRedraw() {
    // A cell that is dragged follows the mouse at the cost of its row; what else may have changed shows a little later.
    if (draggedRow >= 0 && RedrawLater()) {
        damage.isRestOwed = true;
        InvalidateRows({draggedRow, draggedRow});
        return;
    }
    // While the owner has switched redrawing off, a request has no effect.
    if ((control.GetStyle() & WS_VISIBLE) == 0) {
        damage.requests = 0;
        return;
    }
    if (damage.requests < MaxRequests) {
        ++damage.requests;
        control.Invalidate(FALSE);
        return;
    }
    // Should the window have been declared valid since, the timer makes up for it.
    if (!RedrawLater())
        control.Invalidate(FALSE);
}

bool CXTPReportControl::Impl::RedrawLater() {
    if (!damage.isTimerSet)
        damage.isTimerSet = control.SetTimer(ReportTimerDamage, DamageDelay) != 0;
    return damage.isTimerSet;
}

void CXTPReportControl::Impl::RenewDamage() {
    control.KillTimer(ReportTimerDamage);
    const bool isOwed = damage.isRestOwed || damage.requests == MaxRequests;
    damage = WholeDamage();
    if (isOwed)
        control.Invalidate(FALSE);
}

void CXTPReportControl::RedrawRow(const CXTPReportRow* pRow) {
    if (pRow && pRow->GetControl() == this && m_hWnd)
        m_impl->AskForRedraw(pRow->GetIndex());
}

void CXTPReportControl::Impl::AskForRedraw(int rowIndex) {
    // Very many rows are as good as all: the last request that goes to the system is one for everything.
    if (damage.requests >= MaxRequests - 1)
        AskForRedraw();
    else if (InvalidateRows({rowIndex, rowIndex}) && (control.GetStyle() & WS_VISIBLE) != 0)
        ++damage.requests;
}

bool CXTPReportControl::Impl::InvalidateRows(gridgeometry::IndexRange range) const {
    if (!control.m_hWnd)
        return false;
    const CRect rcReport = control.GetReportRectangle();
    const gridgeometry::StackedRows grid = RowGrid();
    const gridgeometry::IndexRange visible = grid.VisibleRows(topRow);
    const int first = std::max(range.first, visible.first);
    const int last = std::min(range.last, visible.last);
    if (first > last)
        return false;
    CRect rcRows(rcReport);
    rcRows.top = rcReport.top + grid.RowTop(topRow, first);
    rcRows.bottom = rcReport.top + grid.RowTop(topRow, last + 1);
    rcRows.IntersectRect(&rcRows, &rcReport);
    control.InvalidateRect(&rcRows, FALSE);
    return true;
}

void CXTPReportControl::Impl::InvalidateFocusLook() const {
    InvalidateRows({focusedRow, focusedRow});
    const gridgeometry::IndexRange visible = RowGrid().VisibleRows(topRow);
    for (int row = visible.first; row <= visible.last; ++row) {
        if (selectedRows->Contains(row))
            InvalidateRows({row, row});
    }
}

void CXTPReportControl::Impl::RefreshMovedRow(int rowIndex) {
    if (rowIndex < 0 || !movedRows.Contains(rowIndex) || !control.m_hWnd)
        return;
    InvalidateRows({rowIndex, rowIndex});
    control.UpdateWindow();
}

// --- Messages -------------------------------------------------------------------------------------------------------

BOOL CXTPReportControl::OnEraseBkgnd(CDC*) { return TRUE; } // painting leaves no gap

void CXTPReportControl::OnPaint() {
    m_impl->damage.requests = 0;
    CPaintDC dc(this);
    CPoint origin(0, 0);
    ClientToScreen(&origin);
    for (const CRect& rc : DamageOf(dc, origin))
        m_impl->PaintRect(dc, rc);
}

LRESULT CXTPReportControl::OnPrintClient(CDC* pDC, UINT) {
    if (pDC)
        DoDraw(pDC, m_impl->ClientRect());
    return 0;
}

void CXTPReportControl::Impl::PaintRect(CDC& dc, const CRect& rc) {
    const CRect rcClient = ClientRect();
    CDC* memory = buffer.Prepare(rcClient.Size());
    if (!memory) {
        control.DoDraw(&dc, rc);
        return;
    }
    control.DoDraw(memory, rc);
    buffer.Present(dc, rc);
    // Rows of which every cell has drawn itself are where their items believe they are.
    if (rc.left > rcClient.left || rc.right < rcClient.right)
        return;
    const CRect rcReport = control.GetReportRectangle();
    const gridgeometry::IndexRange drawn =
        RowGrid().RowsInBand(topRow, rc.top - rcReport.top, rc.bottom - rcReport.top);
    if (!drawn.IsEmpty())
        movedRows.Remove(drawn.first, drawn.last);
}

// --- Drawing --------------------------------------------------------------------------------------------------------

void CXTPReportControl::DoDraw(CDC* pDC, const CRect& rcDirty) {
    CRect rcDraw;
    if (!rcDraw.IntersectRect(&rcDirty, m_impl->ClientRect()))
        return;
    const SaveDCGuard saved(*pDC);
    const DrawingFocus focus(m_impl->focusWhileDrawing, HasFocus());
    pDC->IntersectClipRect(&rcDraw);
    pDC->SelectObject(m_impl->paintManager->GetTextFont()); // most cells find their font selected already
    m_impl->DrawRows(pDC, rcDraw);
    const CRect rcHeader = GetHeaderRect();
    if (rcHeader.top < rcDraw.bottom && rcHeader.bottom > rcDraw.top)
        m_impl->header->Draw(pDC, rcHeader);
    const CRect rcGroupBy = GetGroupByRect();
    if (rcGroupBy.top < rcDraw.bottom && rcGroupBy.bottom > rcDraw.top)
        m_impl->header->DrawGroupBy(pDC, rcGroupBy);
    m_impl->header->DrawDrag(pDC);
}

void CXTPReportControl::Impl::DrawRows(CDC* dc, const CRect& rcDirty) {
    const CRect rcReport = control.GetReportRectangle();
    CRect rcDraw;
    if (!rcDraw.IntersectRect(&rcDirty, &rcReport))
        return;
    const gridgeometry::StackedRows grid = RowGrid();
    const gridgeometry::IndexRange dirty =
        grid.RowsInBand(topRow, rcDraw.top - rcReport.top, rcDraw.bottom - rcReport.top);
    for (int index = dirty.first; index <= dirty.last; ++index) {
        const int top = rcReport.top + grid.RowTop(topRow, index);
        const CRect rcRow(rcReport.left, top, rcReport.right, rcReport.top + grid.RowTop(topRow, index + 1));
        if (CXTPReportRow* row = rows->GetAt(index))
            row->Draw(dc, rcRow, rcDraw);
    }
    CRect rcBelow(rcReport);
    rcBelow.top += grid.RowTop(topRow, grid.Count());
    if (rcBelow.IntersectRect(&rcBelow, &rcDraw))
        paintManager->FillBackground(dc, rcBelow);
    if (grid.Count() == 0)
        paintManager->DrawNoItemText(dc, rcReport);
}
