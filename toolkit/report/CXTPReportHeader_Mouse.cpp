// What the user does to the strip of column headers and the group-by box: sort, resize, move, group.
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

void CXTPReportHeader::BeginGesture(const Part& part, CPoint ptPoint, XTPReportMouseMode mode) {
    m_pressed = part;
    m_bPressedInside = mode == xtpReportMousePrepareColumnDrag;
    m_ptPress = m_ptDrag = ptPoint;
    m_nResizeStartWidth = part.pColumn->GetWidth();
    m_widthsBefore.clear();
    for (int i = 0; mode == xtpReportMouseColumnResize && i < m_pColumns->GetCount(); ++i) {
        CXTPReportColumn* const column = m_pColumns->GetAt(i);
        if (column == part.pColumn || m_bAutoColumnSizing)
            m_widthsBefore.push_back({column, column->GetSetWidth()});
    }
    m_drop = DropPlace();
    m_pControl->SetMouseMode(mode);
    if (m_pControl->GetSafeHwnd())
        m_pControl->SetCapture();
    Redraw(part);
}

void CXTPReportHeader::EndGesture() {
    if (!IsInGesture())
        return;
    const CRect rcDrag = GetDragRect();
    Redraw(m_pressed);
    // The mode goes first: releasing the capture sends WM_CAPTURECHANGED, which must find nothing left to cancel.
    m_pControl->SetMouseMode(xtpReportMouseNothing);
    m_pressed = Part();
    m_bPressedInside = false;
    m_drop = DropPlace();
    if (!m_pControl->GetSafeHwnd())
        return;
    if (::GetCapture() == m_pControl->m_hWnd)
        ::ReleaseCapture();
    m_pControl->InvalidateRect(&rcDrag, FALSE);
}

void CXTPReportHeader::OnCancelMode() {
    if (m_pControl->GetMouseMode() == xtpReportMouseColumnResize && m_pressed.pColumn) {
        for (const WidthBefore& before : m_widthsBefore) {
            if (m_pColumns->IndexOf(before.pColumn) >= 0)
                before.pColumn->RestoreWidth(before.width);
        }
    }
    EndGesture();
}

void CXTPReportHeader::OnColumnRemoved(const CXTPReportColumn* pColumn) {
    if (m_hot.pColumn == pColumn)
        m_hot = Part();
    if (m_pressed.pColumn == pColumn)
        EndGesture();
}

void CXTPReportHeader::OnContextMenu(CPoint) { OnCancelMode(); }

// --- Buttons --------------------------------------------------------------------------------------------------------

void CXTPReportHeader::OnLButtonDown(CPoint ptPoint) {
    OnCancelMode();
    const Part part = PartAt(ptPoint);
    if (CXTPReportColumn* divided = HitTestDivider(ptPoint))
        BeginGesture({divided, false}, ptPoint, xtpReportMouseColumnResize);
    else if (part.pColumn)
        BeginGesture(part, ptPoint, xtpReportMousePrepareColumnDrag);
}

void CXTPReportHeader::OnLButtonUp(CPoint ptPoint) {
    if (!IsInGesture() || !m_pressed.pColumn)
        return;
    const XTPReportMouseMode mode = m_pControl->GetMouseMode();
    const Part pressed = m_pressed;
    const DropPlace drop = m_drop;
    const bool isResized = pressed.pColumn->GetWidth() != m_nResizeStartWidth;
    EndGesture();
    if (mode == xtpReportMouseColumnDrag) {
        Drop(pressed, drop);
    } else if (mode == xtpReportMouseColumnResize && isResized) {
        m_pControl->SendColumnNotify(XTP_NM_REPORT_COLUMNWIDTHCHANGED, pressed.pColumn);
    } else if (mode == xtpReportMousePrepareColumnDrag && PartAt(ptPoint) == pressed) {
        if (pressed.isGroup)
            TurnGroup(pressed.pColumn);
        else
            Sort(pressed.pColumn, IsKeyDown(VK_CONTROL) || IsKeyDown(VK_SHIFT));
    }
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
    RepopulateAndTell(XTP_NM_REPORT_SORTORDERCHANGED, pColumn);
}

/// What the user has changed about a column shows in the rows, and then the owner hears of it.
void CXTPReportHeader::RepopulateAndTell(UINT nCode, CXTPReportColumn* pColumn) {
    const CWaitCursor wait; // millions of rows take a moment
    // What is being edited takes effect first, and its hooks may put another header in this one's place, or worse.
    CXTPReportControl* const control = m_pControl;
    const boost::intrusive_ptr<CXTPReportColumn> alive(pColumn);
    const HWND hWnd = control->m_hWnd;
    control->Populate();
    if ((!hWnd || ::IsWindow(hWnd)) && pColumn->GetControl() == control)
        control->SendColumnNotify(nCode, pColumn);
}

void CXTPReportHeader::Drop(const Part& part, const DropPlace& place) {
    if (place.group >= 0)
        GroupBy(part.pColumn, place.group);
    else if (part.isGroup)
        Ungroup(part.pColumn);
    else
        DropColumn(part.pColumn, place.column);
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
    MoveDivider(pColumn, former + nPixels);
    if (pColumn->GetWidth() != former)
        m_pControl->SendColumnNotify(XTP_NM_REPORT_COLUMNWIDTHCHANGED, pColumn);
}

// --- Moves ----------------------------------------------------------------------------------------------------------

CXTPReportHeader::Part CXTPReportHeader::PartAt(CPoint ptPoint) const {
    CXTPReportColumn* const grouped = HitTestGroup(ptPoint);
    return grouped ? Part{grouped, true} : Part{HitTest(ptPoint), false};
}

CRect CXTPReportHeader::RectOf(const Part& part) const {
    return part.isGroup ? GetGroupRect(part.pColumn) : part.pColumn->GetRect();
}

void CXTPReportHeader::OnMouseMove(UINT, CPoint ptPoint) {
    if (!m_pressed.pColumn) {
        TrackHover(ptPoint);
        return;
    }
    switch (m_pControl->GetMouseMode()) {
    case xtpReportMouseColumnResize:
        MoveDivider(m_pressed.pColumn, m_nResizeStartWidth + ptPoint.x - m_ptPress.x);
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

bool CXTPReportHeader::MayDrag(const Part& part) const {
    const bool mayGroup = m_pControl->IsGroupByVisible() && part.pColumn->IsGroupable();
    const bool mayMove = m_bAllowColumnReorder && part.pColumn->IsAllowDragging();
    return mayGroup || (mayMove && !part.isGroup);
}

void CXTPReportHeader::TrackPress(CPoint ptPoint) {
    if (MayDrag(m_pressed) && IsBeyondDragThreshold(m_ptPress, ptPoint)) {
        m_pControl->SetMouseMode(xtpReportMouseColumnDrag);
        SetHot(Part());
        TrackDrag(ptPoint);
        return;
    }
    const bool isInside = PartAt(ptPoint) == m_pressed;
    if (isInside != m_bPressedInside) {
        m_bPressedInside = isInside;
        Redraw(m_pressed);
    }
}

/// Where what is dragged would land. Dropping outside changes nothing; a margin of one header height forgives an
/// unsteady hand.
CXTPReportHeader::DropPlace CXTPReportHeader::DropPlaceAt(CPoint ptPoint) const {
    DropPlace place;
    CRect rcHeader = m_pControl->GetHeaderRect(), rcBox = m_pControl->GetGroupByRect();
    if (!rcBox.IsRectEmpty()) {
        rcBox.top -= rcHeader.Height();
        if (rcBox.PtInRect(ptPoint)) {
            if (m_pressed.pColumn->IsGroupable())
                place.group = gridgeometry::DropPosition(GroupExtents(*this), ptPoint.x);
            return place;
        }
    }
    if (m_pressed.isGroup || !m_bAllowColumnReorder || !m_pressed.pColumn->IsAllowDragging())
        return place;
    rcHeader.InflateRect(0, rcHeader.Height());
    if (rcHeader.PtInRect(ptPoint))
        place.column = gridgeometry::DropPosition(HeaderExtents(*this), ptPoint.x);
    return place;
}

void CXTPReportHeader::TrackDrag(CPoint ptPoint) {
    const CRect rcBefore = GetDragRect();
    m_ptDrag = ptPoint;
    m_drop = DropPlaceAt(ptPoint);
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
    SetHot(isOverDivider ? Part() : PartAt(ptPoint));
}

void CXTPReportHeader::OnMouseLeave() {
    SetHot(Part());
    if (m_pControl->GetMouseMode() == xtpReportMouseOverColumnDivide)
        m_pControl->SetMouseMode(xtpReportMouseNothing);
}

BOOL CXTPReportHeader::OnSetCursor(CPoint ptPoint) {
    const XTPReportMouseMode mode = m_pControl->GetMouseMode();
    LPCTSTR cursor = nullptr;
    if (mode == xtpReportMouseColumnDrag)
        // A button that is dropped anywhere else leaves the groups.
        cursor = m_drop.IsSomewhere() || m_pressed.isGroup ? IDC_ARROW : IDC_NO;
    else if (mode == xtpReportMouseColumnResize || (!IsInGesture() && HitTestDivider(ptPoint)))
        cursor = IDC_SIZEWE;
    if (!cursor)
        return FALSE;
    ::SetCursor(::LoadCursor(nullptr, cursor));
    return TRUE;
}

void CXTPReportHeader::SetHot(const Part& part) {
    if (part == m_hot)
        return;
    Redraw(m_hot);
    m_hot = part;
    Redraw(part);
}

void CXTPReportHeader::Redraw(const Part& part) const {
    if (part.pColumn && m_pControl->GetSafeHwnd())
        m_pControl->InvalidateRect(RectOf(part), FALSE);
}
