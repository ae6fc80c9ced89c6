// What the user does to the strip of column headers: sort, resize, move.
//
// A gesture is the control's mouse mode plus the column it concerns. It begins with a press, which captures the mouse,
// and ends in EndGesture, whatever way it takes; losing the capture, Escape and a right click come in through
// OnCancelMode. What a gesture changes is worked out from the place of the press, never from the move before.
#include "CXTPReportHeader.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "HeaderExtents.h"

#include "../common/ObjectReference.h"

#include <cstdlib>

namespace {

bool IsKeyDown(int key) { return ::GetKeyState(key) < 0; }

bool IsBeyondDragThreshold(CPoint from, CPoint to) {
    return std::abs(to.x - from.x) > ::GetSystemMetrics(SM_CXDRAG) ||
           std::abs(to.y - from.y) > ::GetSystemMetrics(SM_CYDRAG);
}

} // namespace

int VisibleIndexOf(const CXTPReportColumns& columns, const CXTPReportColumn* column) {
    int visibleIndex = 0;
    for (int i = 0; i < columns.GetCount(); ++i) {
        if (!columns.GetAt(i)->IsVisible())
            continue;
        if (columns.GetAt(i) == column)
            return visibleIndex;
        ++visibleIndex;
    }
    return -1;
}

// --- Gestures -------------------------------------------------------------------------------------------------------

bool CXTPReportHeader::IsInGesture() const {
    const XTPReportMouseMode mode = m_pControl->GetMouseMode();
    return mode == xtpReportMousePrepareColumnDrag || mode == xtpReportMouseColumnDrag ||
           mode == xtpReportMouseColumnResize;
}

void CXTPReportHeader::BeginGesture(CXTPReportColumn* pColumn, CPoint ptPoint, XTPReportMouseMode mode) {
    m_pPressedColumn = pColumn;
    m_bPressedInside = mode == xtpReportMousePrepareColumnDrag;
    m_ptPress = m_ptDrag = ptPoint;
    m_resizeStart = pColumn->GetSetWidth();
    m_nResizeStartWidth = pColumn->GetWidth();
    m_nDropPos = -1;
    m_pControl->SetMouseMode(mode);
    if (m_pControl->GetSafeHwnd())
        m_pControl->SetCapture();
    RedrawColumn(pColumn);
}

void CXTPReportHeader::EndGesture() {
    if (!IsInGesture())
        return;
    const CRect rcDrag = GetDragRect();
    RedrawColumn(m_pPressedColumn);
    // The mode goes first: releasing the capture sends WM_CAPTURECHANGED, which must find nothing left to cancel.
    m_pControl->SetMouseMode(xtpReportMouseNothing);
    m_pPressedColumn = nullptr;
    m_bPressedInside = false;
    m_nDropPos = -1;
    if (!m_pControl->GetSafeHwnd())
        return;
    if (::GetCapture() == m_pControl->m_hWnd)
        ::ReleaseCapture();
    m_pControl->InvalidateRect(&rcDrag, FALSE);
}

void CXTPReportHeader::OnCancelMode() {
    if (m_pControl->GetMouseMode() == xtpReportMouseColumnResize && m_pPressedColumn)
        m_pPressedColumn->RestoreWidth(m_resizeStart);
    EndGesture();
}

void CXTPReportHeader::OnColumnRemoved(const CXTPReportColumn* pColumn) {
    if (m_pHotColumn == pColumn)
        m_pHotColumn = nullptr;
    if (m_pPressedColumn == pColumn)
        EndGesture();
}

void CXTPReportHeader::OnContextMenu(CPoint) { OnCancelMode(); }

// --- Buttons --------------------------------------------------------------------------------------------------------

void CXTPReportHeader::OnLButtonDown(CPoint ptPoint) {
    OnCancelMode();
    if (CXTPReportColumn* divided = HitTestDivider(ptPoint))
        BeginGesture(divided, ptPoint, xtpReportMouseColumnResize);
    else if (CXTPReportColumn* column = HitTest(ptPoint))
        BeginGesture(column, ptPoint, xtpReportMousePrepareColumnDrag);
}

void CXTPReportHeader::OnLButtonUp(CPoint ptPoint) {
    if (!IsInGesture() || !m_pPressedColumn)
        return;
    const XTPReportMouseMode mode = m_pControl->GetMouseMode();
    CXTPReportColumn* column = m_pPressedColumn;
    const int dropPos = m_nDropPos;
    const bool isResized = column->GetWidth() != m_nResizeStartWidth;
    EndGesture();
    if (mode == xtpReportMousePrepareColumnDrag && HitTest(ptPoint) == column)
        Sort(column, IsKeyDown(VK_CONTROL) || IsKeyDown(VK_SHIFT));
    else if (mode == xtpReportMouseColumnDrag)
        DropColumn(column, dropPos);
    else if (mode == xtpReportMouseColumnResize && isResized)
        m_pControl->SendColumnNotify(XTP_NM_REPORT_COLUMNWIDTHCHANGED, column);
}

void CXTPReportHeader::OnLButtonDblClk(CPoint ptPoint) {
    CXTPReportColumn* divided = HitTestDivider(ptPoint);
    if (!divided) {
        OnLButtonDown(ptPoint); // the second of two quick clicks is a click like the first
        return;
    }
    OnCancelMode();
    BestFit(divided);
    m_pControl->SendColumnNotify(XTP_NM_REPORT_COLUMNWIDTHCHANGED, divided);
}

void CXTPReportHeader::Sort(CXTPReportColumn* pColumn, BOOL bAddKey) {
    if (!pColumn || !m_bAllowColumnSort || !pColumn->IsSortable())
        return;
    CXTPReportColumnOrder* order = m_pColumns->GetSortOrder();
    const bool isSorted = order->IndexOf(pColumn) >= 0;
    const BOOL increasing = !isSorted || !pColumn->IsSortIncreasing();
    if (!bAddKey)
        m_pColumns->SetSortColumn(pColumn, increasing);
    else if (isSorted)
        pColumn->SetSortIncreasing(increasing);
    else
        order->Add(pColumn, increasing);
    const CWaitCursor wait; // millions of rows take a moment
    // What is being edited takes effect first, and its hooks may put another header in this one's place, or worse.
    CXTPReportControl* const control = m_pControl;
    const boost::intrusive_ptr<CXTPReportColumn> alive(pColumn);
    const HWND hWnd = control->m_hWnd;
    control->Populate();
    if ((!hWnd || ::IsWindow(hWnd)) && pColumn->GetControl() == control)
        control->SendColumnNotify(XTP_NM_REPORT_SORTORDERCHANGED, pColumn);
}

void CXTPReportHeader::DropColumn(CXTPReportColumn* pColumn, int nDropPos) {
    if (nDropPos < 0 || !gridgeometry::DropMoves(VisibleIndexOf(*m_pColumns, pColumn), nDropPos))
        return;
    const CXTPReportColumn* next = m_pColumns->GetVisibleAt(nDropPos);
    const CXTPReportColumn* last = m_pColumns->GetVisibleAt(m_pColumns->GetVisibleColumnsCount() - 1);
    const int oldOrder = m_pColumns->IndexOf(pColumn);
    const int place = next ? m_pColumns->IndexOf(next) : m_pColumns->IndexOf(last) + 1;
    // The columns behind it move up by one when the column is taken out in front of them.
    m_pColumns->ChangeColumnOrder(place > oldOrder ? place - 1 : place, oldOrder);
    m_pControl->SendColumnNotify(XTP_NM_REPORT_COLUMNORDERCHANGED, pColumn);
}

void CXTPReportHeader::MoveColumn(CXTPReportColumn* pColumn, int nLeftRight) {
    const int place = VisibleIndexOf(*m_pColumns, pColumn);
    const int neighbour = place + nLeftRight;
    if (place < 0 || neighbour < 0 || neighbour >= m_pColumns->GetVisibleColumnsCount())
        return;
    if (m_bAllowColumnReorder && pColumn->IsAllowDragging())
        DropColumn(pColumn, nLeftRight < 0 ? neighbour : neighbour + 1);
}

void CXTPReportHeader::ResizeColumn(CXTPReportColumn* pColumn, int nPixels) {
    if (!pColumn || !m_bAllowColumnResize || !pColumn->IsResizable())
        return;
    const int former = pColumn->GetWidth();
    pColumn->SetWidth(former + nPixels);
    if (pColumn->GetWidth() != former)
        m_pControl->SendColumnNotify(XTP_NM_REPORT_COLUMNWIDTHCHANGED, pColumn);
}

// --- Moves ----------------------------------------------------------------------------------------------------------

void CXTPReportHeader::OnMouseMove(UINT, CPoint ptPoint) {
    if (!m_pPressedColumn) {
        TrackHover(ptPoint);
        return;
    }
    switch (m_pControl->GetMouseMode()) {
    case xtpReportMouseColumnResize:
        m_pPressedColumn->SetWidth(m_nResizeStartWidth + ptPoint.x - m_ptPress.x);
        break;
    case xtpReportMousePrepareColumnDrag:
        TrackPress(ptPoint);
        break;
    case xtpReportMouseColumnDrag:
        TrackDrag(ptPoint);
        break;
    default:
        TrackHover(ptPoint);
        break;
    }
}

void CXTPReportHeader::TrackPress(CPoint ptPoint) {
    if (m_bAllowColumnReorder && m_pPressedColumn->IsAllowDragging() && IsBeyondDragThreshold(m_ptPress, ptPoint)) {
        m_pControl->SetMouseMode(xtpReportMouseColumnDrag);
        SetHotColumn(nullptr);
        TrackDrag(ptPoint);
        return;
    }
    const bool isInside = HitTest(ptPoint) == m_pPressedColumn;
    if (isInside != m_bPressedInside) {
        m_bPressedInside = isInside;
        RedrawColumn(m_pPressedColumn);
    }
}

void CXTPReportHeader::TrackDrag(CPoint ptPoint) {
    const CRect rcBefore = GetDragRect();
    m_ptDrag = ptPoint;
    // Dropping outside changes nothing; a margin of one header height forgives an unsteady hand.
    CRect rcTarget = m_pControl->GetHeaderRect();
    rcTarget.InflateRect(0, rcTarget.Height());
    m_nDropPos = rcTarget.PtInRect(ptPoint) ? gridgeometry::DropPosition(HeaderExtents(*this), ptPoint.x) : -1;
    if (m_pControl->GetSafeHwnd()) {
        m_pControl->InvalidateRect(&rcBefore, FALSE);
        m_pControl->InvalidateRect(GetDragRect(), FALSE);
        OnSetCursor(ptPoint); // no WM_SETCURSOR comes while the mouse is captured
    }
}

void CXTPReportHeader::TrackHover(CPoint ptPoint) {
    const bool isOverDivider = HitTestDivider(ptPoint) != nullptr;
    const XTPReportMouseMode mode = m_pControl->GetMouseMode();
    if (isOverDivider && mode == xtpReportMouseNothing)
        m_pControl->SetMouseMode(xtpReportMouseOverColumnDivide);
    else if (!isOverDivider && mode == xtpReportMouseOverColumnDivide)
        m_pControl->SetMouseMode(xtpReportMouseNothing);
    SetHotColumn(isOverDivider ? nullptr : HitTest(ptPoint));
}

void CXTPReportHeader::OnMouseLeave() {
    SetHotColumn(nullptr);
    if (m_pControl->GetMouseMode() == xtpReportMouseOverColumnDivide)
        m_pControl->SetMouseMode(xtpReportMouseNothing);
}

BOOL CXTPReportHeader::OnSetCursor(CPoint ptPoint) {
    const XTPReportMouseMode mode = m_pControl->GetMouseMode();
    LPCTSTR cursor = nullptr;
    if (mode == xtpReportMouseColumnDrag)
        cursor = m_nDropPos >= 0 ? IDC_ARROW : IDC_NO;
    else if (mode == xtpReportMouseColumnResize || (!IsInGesture() && HitTestDivider(ptPoint)))
        cursor = IDC_SIZEWE;
    if (!cursor)
        return FALSE;
    ::SetCursor(::LoadCursor(nullptr, cursor));
    return TRUE;
}

void CXTPReportHeader::SetHotColumn(CXTPReportColumn* pColumn) {
    if (pColumn == m_pHotColumn)
        return;
    RedrawColumn(m_pHotColumn);
    m_pHotColumn = pColumn;
    RedrawColumn(pColumn);
}

void CXTPReportHeader::RedrawColumn(const CXTPReportColumn* pColumn) const {
    if (pColumn && m_pControl->GetSafeHwnd())
        m_pControl->InvalidateRect(pColumn->GetRect(), FALSE);
}
