// Layout and scrolling of a report control: places of header and rows, scroll bars, wheel.
#include "ReportControlImpl.h"

#include "CXTPReportColumn.h"

#include "../../framework/windows/WindowDpi.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

/// A scroll bar shows a moved thumb at the latest after this time. Redrawing a bar costs more than drawing a page of
/// rows, so that many steps of a fast scroll share one redraw.
constexpr UINT ThumbDelay = 20;
/// After this time a layout is tried again for which there was no memory.
constexpr UINT LayoutDelay = 50;
/// Above this many rows the vertical bar counts in larger units; sums of two positions stay within an int.
constexpr int MaxBarRange = 1 << 29;
constexpr int SidewaysStepAt96Dpi = 40;

} // namespace

// --- Places ---------------------------------------------------------------------------------------------------------

CRect CXTPReportControl::Impl::ClientRect() const {
    CRect rc;
    if (control.m_hWnd)
        control.GetClientRect(&rc);
    return rc;
}

CRect CXTPReportControl::GetHeaderRect() const {
    const int top = m_impl->GroupByHeight();
    return CRect(0, top, m_impl->ClientRect().right, top + m_impl->paintManager->GetHeaderHeight());
}

CRect CXTPReportControl::GetGroupByRect() const {
    return CRect(0, 0, m_impl->ClientRect().right, m_impl->GroupByHeight());
}

CRect CXTPReportControl::GetReportRectangle() const {
    const CRect rcClient = m_impl->ClientRect();
    const int top = m_impl->GroupByHeight() + m_impl->paintManager->GetHeaderHeight();
    return CRect(0, top, rcClient.right, std::max<int>(rcClient.bottom, top));
}

gridgeometry::StackedRows CXTPReportControl::Impl::RowGrid() const {
    const int viewHeight = control.GetReportRectangle().Height();
    const bool isOneHeight = !previews.HasPreviews() || previews.Heights().Count() != rows->GetCount();
    return isOneHeight ? gridgeometry::StackedRows(rows->GetCount(), paintManager->GetRowHeight(), viewHeight)
                       : gridgeometry::StackedRows(previews.Heights(), viewHeight);
}

CRect CXTPReportControl::GetRowRect(int nRowIndex) const {
    const gridgeometry::StackedRows grid = m_impl->RowGrid();
    if (nRowIndex < 0 || nRowIndex >= grid.Count())
        return CRect();
    const CRect rcReport = GetReportRectangle();
    return CRect(rcReport.left, rcReport.top + grid.RowTop(m_impl->topRow, nRowIndex), rcReport.right,
                 rcReport.top + grid.RowTop(m_impl->topRow, nRowIndex + 1));
}

int CXTPReportControl::Impl::RowAt(CPoint point) const {
    const CRect rcReport = control.GetReportRectangle();
    return rcReport.PtInRect(point) ? RowGrid().RowAt(topRow, point.y - rcReport.top) : -1;
}

CXTPReportRow* CXTPReportControl::HitTest(CPoint pt) const { return m_impl->rows->GetAt(m_impl->RowAt(pt)); }

int CXTPReportControl::GetTopRowIndex() const { return m_impl->topRow; }
int CXTPReportControl::GetLeftOffset() const { return m_impl->leftOffset; }
int CXTPReportControl::GetFullyVisibleRowCount() const { return m_impl->RowGrid().FullyVisibleCount(m_impl->topRow); }

// --- Layout ---------------------------------------------------------------------------------------------------------

void CXTPReportControl::AdjustLayout() {
    m_impl->LayOut();
    RedrawControl();
}

void CXTPReportControl::Impl::LayOut() {
    // Showing or hiding a bar sends WM_SIZE from within.
    if (isLayingOut)
        return;
    isLayingOut = true;
    const struct End { // also when a handler throws
        bool& isLayingOut;
        ~End() { isLayingOut = false; }
    } end{isLayingOut};
    try {
        LayOutParts();
    } catch (const std::bad_alloc&) {
        // What has changed has changed: its caller must not take it for undone.
        if (control.m_hWnd)
            control.SetTimer(ReportTimerLayout, LayoutDelay);
    }
}

void CXTPReportControl::Impl::LayOutParts() {
    WrapPreviews();
    FitBars();
    header->FitColumns(ClientRect().Width());
    topRow = RowGrid().ClampTopRow(chosenTopRow);
    leftOffset = gridgeometry::ClampLeftOffset(chosenLeftOffset.At(paintManager->GetDpi()), header->GetTotalWidth(),
                                               ClientRect().Width());
    header->AdjustLayout(control.GetHeaderRect());
    UpdateThumbs();
    movedRows.Clear();
    if (openEdit)
        openEdit->FollowCell();
}

void CXTPReportControl::Impl::FitBars() {
    if (!control.m_hWnd)
        return;
    // A bar that is there already has taken its room from the client area.
    const int dpi = windowdpi::OfWindow(control.m_hWnd);
    const int barWidth = windowdpi::SystemMetric(SM_CXVSCROLL, dpi);
    const int barHeight = windowdpi::SystemMetric(SM_CYHSCROLL, dpi);
    const DWORD style = control.GetStyle();
    CRect rcView = ClientRect();
    rcView.right += style & WS_VSCROLL ? barWidth : 0;
    rcView.bottom += style & WS_HSCROLL ? barHeight : 0;
    const int viewHeight = std::max<int>(rcView.Height() - control.GetHeaderRect().bottom, 0);
    // A single row stays where it is, however low the view: the system hides a bar that has nowhere to go.
    const std::int64_t scrolledHeight = rows->GetCount() > 1 ? RowGrid().TotalHeight() : 0;
    const gridgeometry::ScrollBars bars = gridgeometry::FitScrollBars(
        rcView.Width(), viewHeight, header->GetLeastWidth(), scrolledHeight, barWidth, barHeight);
    barV.isShown = (style & WS_VSCROLL) != 0;
    barH.isShown = (style & WS_HSCROLL) != 0;
    if (bars.vertical != barV.isShown)
        control.ShowScrollBar(SB_VERT, bars.vertical);
    if (bars.horizontal != barH.isShown)
        control.ShowScrollBar(SB_HORZ, bars.horizontal);
    barV.isShown = bars.vertical;
    barH.isShown = bars.horizontal;
}

void CXTPReportControl::Impl::UpdateThumbs() {
    if (!control.m_hWnd)
        return;
    const gridgeometry::StackedRows grid = RowGrid();
    barScaleV = 0;
    while ((grid.Count() >> barScaleV) > MaxBarRange)
        ++barScaleV;
    // With MaxTopRow as the largest position that the thumb can reach, whatever the scale. The page is the last one, so
    // that the thumb keeps its size while rows of several heights pass.
    const int page = std::max((grid.Count() - grid.MaxTopRow()) >> barScaleV, 1);
    UpdateBar(SB_VERT, barV, {barV.isShown, (grid.MaxTopRow() >> barScaleV) + page - 1, page, topRow >> barScaleV});
    const int viewWidth = ClientRect().Width();
    UpdateBar(SB_HORZ, barH, {barH.isShown, std::max(header->GetTotalWidth() - 1, 0), viewWidth, leftOffset});
}

void CXTPReportControl::Impl::UpdateBar(int bar, BarState& state, const BarState& wanted) {
    if (!wanted.isShown || (state.last == wanted.last && state.page == wanted.page && state.pos == wanted.pos))
        return;
    SCROLLINFO info = {};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = wanted.last;
    info.nPage = static_cast<UINT>(wanted.page);
    info.nPos = wanted.pos;
    control.SetScrollInfo(bar, &info, FALSE);
    state = wanted;
    if (!barV.isThumbStale && !barH.isThumbStale)
        control.SetTimer(ReportTimerThumbs, ThumbDelay);
    state.isThumbStale = true;
}

void CXTPReportControl::Impl::RedrawStaleThumbs() {
    control.KillTimer(ReportTimerThumbs);
    const auto redraw = [this](int bar, BarState& state) {
        if (state.isThumbStale && state.isShown)
            control.SetScrollPos(bar, state.pos, TRUE);
        state.isThumbStale = false;
    };
    redraw(SB_VERT, barV);
    redraw(SB_HORZ, barH);
}

// --- Scrolling ------------------------------------------------------------------------------------------------------

void CXTPReportControl::SetTopRow(int nIndex) {
    if (m_impl->FinishEdit())
        m_impl->ScrollRowsTo(nIndex);
}

void CXTPReportControl::SetLeftOffset(int nOffset) {
    if (m_impl->FinishEdit())
        m_impl->ScrollSidewaysTo(nOffset);
}

void CXTPReportControl::EnsureVisible(CXTPReportRow* pRow) {
    if (pRow && pRow->GetControl() == this)
        m_impl->ShowRow(pRow->GetIndex());
}

void CXTPReportControl::Impl::ShowRow(int rowIndex) {
    if (control.GetReportRectangle().Height() == 0)
        wantedRow = rowIndex;
    else
        ScrollRowsTo(RowGrid().TopRowToShow(topRow, rowIndex));
}

void CXTPReportControl::Impl::ScrollRowsTo(std::int64_t top) {
    const int former = topRow;
    chosenTopRow = topRow = RowGrid().ClampTopRow(top);
    if (topRow == former)
        return;
    toolTips.CancelToolTips();
    UpdateThumbs();
    if (openEdit)
        openEdit->FollowCell();
    if (control.m_hWnd)
        MoveRowPixels(former);
}

void CXTPReportControl::Impl::MoveRowPixels(int formerTop) {
    const CRect rcReport = control.GetReportRectangle();
    const gridgeometry::StackedRows grid = RowGrid();
    const gridgeometry::IndexRange before = grid.VisibleRows(formerTop);
    const gridgeometry::IndexRange now = grid.VisibleRows(topRow);
    const int first = std::max(before.first, now.first);
    const int last = std::min(before.last, now.last);
    // While the mouse is captured a cell may be dragged, which needs to know its place at once; the picture of a
    // dragged column must not be moved along with the rows.
    const bool isCaptured = ::GetCapture() == control.m_hWnd;
    if (first > last || isCaptured) {
        control.InvalidateRect(&rcReport, FALSE);
        if (isCaptured)
            control.UpdateWindow();
        return;
    }
    const int dy = grid.RowTop(topRow, formerTop); // less than a page, as some rows stay
    control.ScrollWindowEx(0, dy, &rcReport, &rcReport, nullptr, nullptr, SW_INVALIDATE);
    movedRows.Add(first, last);
    // The row that has come under the pointer may be pressed next.
    CPoint cursor;
    ::GetCursorPos(&cursor);
    control.ScreenToClient(&cursor);
    RefreshMovedRow(RowAt(cursor));
}

void CXTPReportControl::Impl::ScrollSidewaysTo(int offset) {
    const int former = leftOffset;
    leftOffset = gridgeometry::ClampLeftOffset(offset, header->GetTotalWidth(), ClientRect().Width());
    if (leftOffset == former)
        return;
    chosenLeftOffset = {leftOffset, paintManager->GetDpi()};
    toolTips.CancelToolTips();
    header->AdjustLayout(control.GetHeaderRect());
    UpdateThumbs();
    if (openEdit)
        openEdit->FollowCell();
    // All cells change their place, and items compare the pointer with where they stand: they have to draw.
    control.RedrawControl();
}

int CXTPReportControl::Impl::SidewaysStep() const { return paintManager->ScaleForDpi(SidewaysStepAt96Dpi); }

int CXTPReportControl::Impl::SidewaysPage() const {
    return std::max<int>(control.GetHeaderRect().right - header->GetFreezeEdge(), 1);
}

// --- Scroll bars ----------------------------------------------------------------------------------------------------

int CXTPReportControl::Impl::ScrollTarget(int bar, UINT code, UINT pos, int current, int line, int page,
                                          int maximum) const {
    const auto bounded = [maximum](std::int64_t target) {
        return static_cast<int>(std::clamp<std::int64_t>(target, 0, maximum));
    };
    switch (code) {
    case SB_LINEUP:
        return bounded(std::int64_t{current} - line);
    case SB_LINEDOWN:
        return bounded(std::int64_t{current} + line);
    case SB_PAGEUP:
        return bounded(std::int64_t{current} - page);
    case SB_PAGEDOWN:
        return bounded(std::int64_t{current} + page);
    case SB_TOP:
        return 0;
    case SB_BOTTOM:
        return maximum;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: {
        // The message carries 16 bits of the position; the bar knows them all while its thumb is dragged.
        SCROLLINFO info = {};
        control.GetScrollInfo(bar, &info, SIF_TRACKPOS);
        const std::int64_t thumb = LOWORD(info.nTrackPos) == pos ? info.nTrackPos : static_cast<int>(pos);
        return bounded(bar == SB_VERT ? thumb << barScaleV : thumb);
    }
    default:
        return current;
    }
}

void CXTPReportControl::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (pScrollBar) {
        CWnd::OnVScroll(nSBCode, nPos, pScrollBar);
        return;
    }
    if (!m_impl->FinishEdit())
        return;
    const gridgeometry::StackedRows grid = m_impl->RowGrid();
    const int top = m_impl->topRow;
    const int page = nSBCode == SB_PAGEUP ? static_cast<int>(top - grid.PageAbove(top)) : grid.FullyVisibleCount(top);
    m_impl->ScrollRowsTo(m_impl->ScrollTarget(SB_VERT, nSBCode, nPos, top, 1, page, grid.MaxTopRow()));
}

void CXTPReportControl::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (pScrollBar) {
        CWnd::OnHScroll(nSBCode, nPos, pScrollBar);
        return;
    }
    if (!m_impl->FinishEdit())
        return;
    const int viewWidth = m_impl->ClientRect().Width();
    const int maximum = gridgeometry::MaxLeftOffset(m_impl->header->GetTotalWidth(), viewWidth);
    m_impl->ScrollSidewaysTo(m_impl->ScrollTarget(SB_HORZ, nSBCode, nPos, m_impl->leftOffset, m_impl->SidewaysStep(),
                                                  m_impl->SidewaysPage(), maximum));
}

// --- Wheel ----------------------------------------------------------------------------------------------------------

BOOL CXTPReportControl::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
    if (!m_impl->FinishEdit())
        return TRUE;
    if (nFlags & MK_SHIFT) {
        m_impl->ScrollSidewaysTo(m_impl->leftOffset + m_impl->wheelH.Turn(zDelta, 1) * m_impl->SidewaysStep());
        return TRUE;
    }
    const gridgeometry::StackedRows grid = m_impl->RowGrid();
    if (grid.MaxTopRow() == 0)
        return CWnd::OnMouseWheel(nFlags, zDelta, pt); // a parent may have something to scroll
    UINT lines = 3;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int perNotch = static_cast<int>(std::min<UINT>(lines, static_cast<UINT>(GetFullyVisibleRowCount())));
    m_impl->ScrollRowsTo(std::int64_t{m_impl->topRow} + m_impl->wheelV.Turn(zDelta, perNotch));
    return TRUE;
}

void CXTPReportControl::OnMouseHWheel(UINT, short zDelta, CPoint) {
    if (!m_impl->FinishEdit())
        return;
    // Tilting to the right is positive, turning away from the user is as well.
    m_impl->ScrollSidewaysTo(m_impl->leftOffset - m_impl->wheelH.Turn(zDelta, 1) * m_impl->SidewaysStep());
}

// --- Size and time --------------------------------------------------------------------------------------------------

void CXTPReportControl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    AdjustLayout(); // also when it is minimised: where the user has scrolled to is remembered
    // A row that was shown before there was room for any comes into view now.
    if (m_impl->wantedRow >= 0 && GetReportRectangle().Height() > 0) {
        m_impl->ShowRow(m_impl->wantedRow);
        m_impl->wantedRow = -1;
    }
}

void CXTPReportControl::OnTimer(UINT_PTR nIDEvent) {
    switch (nIDEvent) {
    case ReportTimerAutoScroll:
        m_impl->AutoScroll();
        break;
    case ReportTimerThumbs:
        m_impl->RedrawStaleThumbs();
        break;
    case ReportTimerLayout:
        KillTimer(ReportTimerLayout);
        AdjustLayout();
        break;
    case ReportTimerDamage:
        m_impl->RenewDamage();
        break;
    default:
        CWnd::OnTimer(nIDEvent);
        break;
    }
}
