// The mouse in a report control: presses and clicks on rows, selection by dragging, hovering, cursors. What happens in
// the header is the header's affair.
//
// A press over the rows is described by Impl::press, a gesture by the mouse mode; both end in EndPress or
// CancelGesture. A derived control may capture the mouse after our handler of the press and move points into the cell
// that it drags: as long as the points stay in the pressed row, nothing is selected here, and moves go to the cell
// under the point.
#include "ReportControlImpl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "HeaderExtents.h"

#include <algorithm>

namespace {

constexpr UINT AutoScrollInterval = 50;

} // namespace

// --- What is under the pointer ---------------------------------------------------------------------------------------

CellHit CXTPReportControl::Impl::HitCell(CPoint point) const {
    CellHit hit;
    hit.rowIndex = RowAt(point);
    hit.row = rows->GetAt(hit.rowIndex);
    if (hit.row)
        hit.item = hit.row->HitTest(point, &hit.rcItem, &hit.column);
    return hit;
}

XTP_REPORTRECORDITEM_CLICKARGS CXTPReportControl::Impl::ClickArgs(const CellHit& hit, CPoint point) const {
    XTP_REPORTRECORDITEM_CLICKARGS args;
    args.pControl = &control;
    args.pRow = hit.row;
    args.pColumn = hit.column;
    args.pItem = hit.item;
    args.rcItem = hit.rcItem;
    args.ptClient = point;
    return args;
}

XTPReportMouseMode CXTPReportControl::GetMouseMode() const { return m_impl->mouseMode; }

void CXTPReportControl::SetMouseMode(XTPReportMouseMode mode) { m_impl->mouseMode = mode; }

bool CXTPReportControl::Impl::IsOverHeader(CPoint point) const {
    return control.GetHeaderRect().PtInRect(point) || control.GetGroupByRect().PtInRect(point);
}

bool CXTPReportControl::Impl::IsHeaderGesture() const {
    return mouseMode == xtpReportMousePrepareColumnDrag || mouseMode == xtpReportMouseColumnDrag ||
           mouseMode == xtpReportMouseColumnResize;
}

// --- Left button ----------------------------------------------------------------------------------------------------

void CXTPReportControl::OnLButtonDown(UINT nFlags, CPoint point) {
    const WindowGuard guard(*this);
    m_impl->toolTips.CancelToolTips();
    m_impl->CancelGesture();
    // Whoever captures the mouse now is not told about the pointer's leaving before the capture ends.
    m_impl->StopTrackingLeave();
    if (!m_impl->FinishEdit())
        return;
    if (m_hWnd && ::GetFocus() != m_hWnd)
        SetFocus();
    if (guard.IsGone())
        return;
    if (m_impl->IsOverHeader(point))
        m_impl->header->OnLButtonDown(point);
    else
        m_impl->PressRow(nFlags, point);
}

void CXTPReportControl::Impl::PressRow(UINT flags, CPoint point) {
    const WindowGuard guard(control);
    RefreshMovedRow(RowAt(point));
    const CellHit hit = HitCell(point);
    if (!hit.row)
        return;
    press = RowPress();
    if (PressExpandButton(point))
        return;
    press.cell = hit;
    press.isClick = true;
    press.lastPoint = point;
    if (hit.item) {
        XTP_REPORTRECORDITEM_CLICKARGS args = ClickArgs(hit, point);
        if (hit.item->OnLButtonDown(&args) || guard.IsGone() || !HitCell(point).IsSameCell(hit))
            return;
    }
    CaptureForPress();
    SetFocus(hit.rowIndex);
    if (guard.IsGone())
        return;
    FocusPressedColumn(point);
    if (hit.rowIndex >= rows->GetCount())
        return;
    SelectByClick(hit.rowIndex, flags);
    if (guard.IsGone())
        return;
    press.maySelect = isMultipleSelection;
    press.keepsOthers = (flags & MK_CONTROL) != 0;
    press.selected = selectedRows->GetRanges();
}

/// Keys go on from the column that the mouse pressed; the mouse itself needs no mark of it.
void CXTPReportControl::Impl::FocusPressedColumn(CPoint point) {
    CXTPReportColumn* const pressed = columns->GetVisibleAt(gridgeometry::ColumnAt(HeaderExtents(*header), point.x));
    FocusColumn(pressed ? pressed : focusedColumn, false);
}

void CXTPReportControl::Impl::CaptureForPress() {
    if (!control.m_hWnd)
        return;
    control.SetCapture();
    press.hasCapture = true;
}

void CXTPReportControl::OnLButtonUp(UINT, CPoint point) {
    if (m_impl->IsHeaderGesture()) {
        const WindowGuard guard(*this);
        m_impl->header->OnLButtonUp(point);
        if (!guard.IsGone() && !m_impl->HasCapture())
            m_impl->TrackLeave();
        return;
    }
    m_impl->ReleaseRow(point);
}

void CXTPReportControl::Impl::ReleaseRow(CPoint point) {
    const WindowGuard guard(control);
    const bool wasSelecting = mouseMode == xtpReportMouseSelectingRows;
    const RowPress released = press;
    EndPress();
    if (!HasCapture())
        TrackLeave();
    if (wasSelecting) {
        if (released.selected != selectedRows->GetRanges())
            TellSelectionChanged();
        return;
    }
    const CellHit hit = HitCell(point);
    if (hit.item) {
        XTP_REPORTRECORDITEM_CLICKARGS args = ClickArgs(hit, point);
        if (hit.item->OnLButtonUp(&args) || guard.IsGone())
            return;
    }
    if (released.isClick)
        Click(released.cell, point);
}

void CXTPReportControl::Impl::Click(const CellHit& pressed, CPoint point) {
    const WindowGuard guard(control);
    CellHit hit = HitCell(point);
    if (!hit.row || !hit.IsSameCell(pressed))
        return;
    if (hit.item) {
        XTP_REPORTRECORDITEM_CLICKARGS args = ClickArgs(hit, point);
        hit.item->OnClick(&args);
        if (guard.IsGone())
            return;
        hit = HitCell(point);
        if (!hit.IsSameCell(pressed))
            return;
    }
    control.SendItemNotify(NM_CLICK, point, hit.row, hit.item, hit.column);
}

void CXTPReportControl::OnLButtonDblClk(UINT nFlags, CPoint point) {
    const WindowGuard guard(*this);
    m_impl->toolTips.CancelToolTips();
    if (m_impl->IsOverHeader(point)) {
        m_impl->header->OnLButtonDblClk(point);
        return;
    }
    m_impl->RefreshMovedRow(m_impl->RowAt(point));
    if (m_impl->FinishEdit() && m_impl->PressExpandButton(point))
        return; // two presses
    if (guard.IsGone())
        return;
    const CellHit pressed = m_impl->HitCell(point);
    if (pressed.item) {
        XTP_REPORTRECORDITEM_CLICKARGS args = m_impl->ClickArgs(pressed, point);
        pressed.item->OnDblClick(&args);
        if (guard.IsGone())
            return;
    }
    const CellHit hit = m_impl->HitCell(point);
    if (!hit.row || !hit.IsSameCell(pressed))
        return;
    SendItemNotify(NM_DBLCLK, point, hit.row, hit.item, hit.column);
    if (guard.IsGone() || m_impl->EditPressedCell(pressed, point) || guard.IsGone())
        return;
    if (m_impl->TogglePressedRow(pressed, point))
        return;
    // A cell that is dragged wants the press, however soon it follows the last one. Unless an answer to the double
    // click has outlasted the button.
    if (::GetKeyState(VK_LBUTTON) >= 0)
        return;
    SendMessage(WM_LBUTTONDOWN, nFlags & ~static_cast<UINT>(MK_CONTROL | MK_SHIFT), MAKELPARAM(point.x, point.y));
    if (!guard.IsGone())
        m_impl->press.isClick = false;
}

// --- Selecting by dragging -------------------------------------------------------------------------------------------

void CXTPReportControl::Impl::TrackRowSelection(CPoint point, bool isCaptured) {
    press.lastPoint = point;
    if (mouseMode != xtpReportMouseSelectingRows) {
        const CRect rcReport = control.GetReportRectangle();
        const int row = RowGrid().NearestRow(topRow, point.y - rcReport.top);
        const bool isOurs = press.maySelect && press.hasCapture && isCaptured;
        if (!isOurs || row < 0 || row == press.cell.rowIndex)
            return;
        mouseMode = xtpReportMouseSelectingRows;
        control.SetTimer(ReportTimerAutoScroll, AutoScrollInterval);
    }
    SelectDraggedRows(point);
}

void CXTPReportControl::Impl::SelectDraggedRows(CPoint point) {
    const CRect rcReport = control.GetReportRectangle();
    const gridgeometry::StackedRows grid = RowGrid();
    // Rows outside the view are reached by scrolling.
    const int y = std::clamp<int>(point.y - rcReport.top, 0, std::max(rcReport.Height() - 1, 0));
    const int row = grid.NearestRow(topRow, y);
    if (row < 0 || selectedRows->GetAnchor() < 0)
        return;
    RowSelection selection = press.keepsOthers ? press.selected : RowSelection();
    const auto [first, last] = std::minmax(selectedRows->GetAnchor(), row);
    // Dragging from a row that ctrl has just deselected deselects.
    if (press.keepsOthers && !press.selected.Contains(press.cell.rowIndex))
        selection.Remove(first, last);
    else
        selection.Add(first, last);
    selectedRows->SetRanges(selection);
    SetFocus(row);
}

void CXTPReportControl::Impl::AutoScroll() {
    const CRect rcReport = control.GetReportRectangle();
    const int height = paintManager->GetRowHeight();
    const CPoint point = press.lastPoint;
    if (mouseMode == xtpReportMouseSelectingRows) {
        // The farther out the pointer, the faster.
        if (point.y < rcReport.top)
            ScrollRowsTo(std::int64_t{topRow} - 1 - (rcReport.top - point.y) / height);
        else if (point.y >= rcReport.bottom)
            ScrollRowsTo(std::int64_t{topRow} + 1 + (point.y - rcReport.bottom) / height);
        else
            return;
        SelectDraggedRows(point);
    } else if (mouseMode == xtpReportMouseColumnDrag) {
        if (point.x < rcReport.left)
            ScrollSidewaysTo(leftOffset - SidewaysStep() / 2);
        else if (point.x >= rcReport.right)
            ScrollSidewaysTo(leftOffset + SidewaysStep() / 2);
        else
            return;
        header->OnMouseMove(0, point);
    } else {
        control.KillTimer(ReportTimerAutoScroll);
    }
}

void CXTPReportControl::Impl::EndPress() {
    const bool hadCapture = press.hasCapture;
    press = RowPress();
    if (mouseMode == xtpReportMouseSelectingRows)
        mouseMode = xtpReportMouseNothing;
    if (!control.m_hWnd)
        return;
    control.KillTimer(ReportTimerAutoScroll);
    if (hadCapture && HasCapture())
        ::ReleaseCapture();
}

void CXTPReportControl::Impl::CancelGesture() {
    if (mouseMode == xtpReportMouseSelectingRows) {
        selectedRows->SetRanges(press.selected);
        EndPress();
        return;
    }
    if (IsHeaderGesture())
        header->OnCancelMode();
    // A derived control may be dragging a cell since this press: the capture stays until the button comes up.
    press.maySelect = false;
    press.isClick = false;
}

void CXTPReportControl::OnCaptureChanged(CWnd* pWnd) {
    if (pWnd != this) {
        m_impl->press.hasCapture = false;
        m_impl->CancelGesture();
    }
    CWnd::OnCaptureChanged(pWnd);
}

void CXTPReportControl::OnCancelMode() {
    m_impl->CancelGesture();
    CWnd::OnCancelMode();
}

// --- Moving ---------------------------------------------------------------------------------------------------------

void CXTPReportControl::OnMouseMove(UINT nFlags, CPoint point) {
    // Asked once: a move of a drag is worth few questions to the system.
    const bool isCaptured = m_impl->HasCapture();
    if (!isCaptured)
        m_impl->TrackLeave();
    if (m_impl->IsHeaderGesture()) {
        const XTPReportMouseMode former = m_impl->mouseMode;
        m_impl->press.lastPoint = point;
        m_impl->header->OnMouseMove(nFlags, point);
        if (m_impl->mouseMode == xtpReportMouseColumnDrag && former != xtpReportMouseColumnDrag)
            SetTimer(ReportTimerAutoScroll, AutoScrollInterval);
        return;
    }
    const WindowGuard guard(*this);
    m_impl->HoverHeader(nFlags, point);
    m_impl->TrackRowSelection(point, isCaptured);
    if (!guard.IsGone())
        m_impl->RouteMouseMove(nFlags, point, isCaptured);
}

void CXTPReportControl::Impl::HoverHeader(UINT flags, CPoint point) {
    if (IsOverHeader(point) && mouseMode != xtpReportMouseSelectingRows)
        header->OnMouseMove(flags, point);
    else
        header->OnMouseLeave();
}

void CXTPReportControl::Impl::RouteMouseMove(UINT flags, CPoint point, bool isCaptured) {
    RefreshMovedRow(RowAt(point));
    const CellHit hit = HitCell(point);
    if (!hit.item)
        return;
    const WindowGuard guard(control);
    // A virtual item stands in every row.
    const bool isDrag = (flags & MK_LBUTTON) != 0 && !control.IsVirtualMode() && isCaptured;
    draggedRow = isDrag ? hit.rowIndex : -1;
    hit.item->OnMouseMove(flags, point, &control);
    if (!guard.IsGone())
        draggedRow = -1;
}

void CXTPReportControl::OnMouseLeave() {
    m_impl->isTrackingLeave = false;
    m_impl->header->OnMouseLeave();
    CWnd::OnMouseLeave();
}

bool CXTPReportControl::Impl::HasCapture() const { return control.m_hWnd && ::GetCapture() == control.m_hWnd; }

void CXTPReportControl::Impl::TrackLeave() {
    if (!control.m_hWnd || isTrackingLeave)
        return;
    TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, control.m_hWnd, 0};
    isTrackingLeave = ::TrackMouseEvent(&track) != FALSE;
}

void CXTPReportControl::Impl::StopTrackingLeave() {
    if (!isTrackingLeave)
        return;
    TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE | TME_CANCEL, control.m_hWnd, 0};
    ::TrackMouseEvent(&track);
    isTrackingLeave = false;
}

BOOL CXTPReportControl::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    // A cell that wants the cursor chosen anew sends the message without saying where the pointer is.
    const bool isInside = (nHitTest == HTCLIENT || nHitTest == HTNOWHERE) && m_impl->ClientRect().PtInRect(point);
    if (!isInside)
        return CWnd::OnSetCursor(pWnd, nHitTest, message);
    if (m_impl->header->OnSetCursor(point))
        return TRUE;
    const CellHit hit = m_impl->HitCell(point);
    const bool isLink = hit.item && hit.item->HitTestHyperlink(point) >= 0;
    ::SetCursor(::LoadCursor(nullptr, isLink ? IDC_HAND : IDC_ARROW));
    return TRUE;
}

// --- Right button ---------------------------------------------------------------------------------------------------

void CXTPReportControl::OnRButtonDown(UINT, CPoint point) {
    const WindowGuard guard(*this);
    m_impl->toolTips.CancelToolTips();
    m_impl->CancelGesture();
    if (!m_impl->FinishEdit())
        return;
    if (m_hWnd && ::GetFocus() != m_hWnd)
        SetFocus();
    const int row = guard.IsGone() ? -1 : m_impl->RowAt(point);
    if (row < 0)
        return;
    m_impl->SetFocus(row);
    if (!guard.IsGone())
        m_impl->FocusPressedColumn(point);
    if (guard.IsGone() || row >= m_impl->rows->GetCount() || m_impl->selectedRows->Contains(row))
        return; // a menu for several rows leaves them selected
    m_impl->SelectByClick(row, 0);
}

void CXTPReportControl::OnRButtonUp(UINT nFlags, CPoint point) {
    const WindowGuard guard(*this);
    const CellHit hit = m_impl->HitCell(point);
    if (GetReportRectangle().PtInRect(point))
        SendItemNotify(NM_RCLICK, point, hit.row, hit.item, hit.column);
    if (!guard.IsGone())
        CWnd::OnRButtonUp(nFlags, point); // makes WM_CONTEXTMENU of it
}

void CXTPReportControl::OnContextMenu(CWnd* pWnd, CPoint ptScreen) {
    const WindowGuard guard(*this);
    m_impl->toolTips.CancelToolTips();
    m_impl->CancelGesture();
    CPoint point(ptScreen);
    if (ptScreen == CPoint(-1, -1)) {
        // From the keyboard: the owner's menu for the focused cell, and the header's where the owner has none.
        if (m_impl->focusedRow >= 0)
            m_impl->ShowRow(m_impl->focusedRow);
        const CellHit cell = m_impl->FocusedCell();
        const CRect rcPlace = cell.item ? cell.rcItem : cell.row ? cell.row->GetRect() : GetReportRectangle();
        if (SendItemNotify(NM_RCLICK, rcPlace.CenterPoint(), cell.row, cell.item, cell.column) || guard.IsGone())
            return;
        m_impl->OpenHeaderMenu(m_impl->ColumnForKeys());
        return;
    }
    ScreenToClient(&point);
    if (!m_impl->IsOverHeader(point)) {
        CWnd::OnContextMenu(pWnd, ptScreen);
        return;
    }
    if (m_impl->mouseMode == xtpReportMouseOverColumnDivide)
        m_impl->mouseMode = xtpReportMouseNothing; // a menu opens over a divider as well
    m_impl->header->OnContextMenu(point);
}
