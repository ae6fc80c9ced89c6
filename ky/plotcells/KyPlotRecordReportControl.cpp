// The report grid in which plot cells can be dragged.
//
// The toolkit's handlers, the cells' signals and overrides of the host may do anything, even destroy the grid: after
// each of them a handler looks whether the window is gone, and then touches nothing more.
#include "KyPlotRecordReportControl.h"

#include "../common/KeepAlive.h"
#include "../common/WindowLife.h"
#include "KyPlotRecordItem.h"

#include <algorithm>
#include <cmath>
#include <utility>

IMPLEMENT_DYNCREATE(KyPlotRecordReportControl, KyReportControl)

BEGIN_MESSAGE_MAP(KyPlotRecordReportControl, KyReportControl)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_SETCURSOR()
    ON_WM_MOUSELEAVE()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_GETDLGCODE()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

KyPlotRecordReportControl::KyPlotRecordReportControl() = default;

KyPlotRecordReportControl::~KyPlotRecordReportControl() { RouteDragTo(nullptr); }

// --- The routed drag -------------------------------------------------------------------------------------------------

/// Routes a drag to the cell, or to none. The cell stays in memory while it is routed to: the host may remove its
/// record at any time, also during the drag.
void KyPlotRecordReportControl::RouteDragTo(KyPlotRecordItem* item) {
    if (item != nullptr)
        item->InternalAddRef();
    KyPlotRecordItem* const former = std::exchange(m_pDragItem, item);
    m_keyDrag = KeyDrag();
    if (former != nullptr)
        former->InternalRelease();
}

/// Ends the routing to a cell that the host has taken out of the grid.
void KyPlotRecordReportControl::ForgetRemovedDragItem() {
    if (m_pDragItem == nullptr || m_pDragItem->GetReportControl() == this)
        return;
    const KeepAlive alive(*m_pDragItem);
    KyPlotRecordItem* const removed = m_pDragItem;
    RouteDragTo(nullptr);
    removed->EndDrag(CPoint(), m_rcDragItem, false);
}

/// A point outside the dragged cell becomes one at the cell's vertical middle, at or between its left and right edge,
/// so that the toolkit keeps delivering moves to the cell.
CPoint KyPlotRecordReportControl::PulledIntoDragItem(CPoint point) const {
    const CRect rect = m_pDragItem->GetItemRect();
    if (rect.PtInRect(point))
        return point;
    return CPoint(point.x < rect.left ? rect.left : std::min(point.x, rect.right), (rect.top + rect.bottom) / 2);
}

CPoint KyPlotRecordReportControl::CursorPosition() const {
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    return point;
}

void KyPlotRecordReportControl::OnPlotRecordItemDragCancelled() {}

// --- Mouse -----------------------------------------------------------------------------------------------------------

void KyPlotRecordReportControl::OnLButtonDown(UINT flags, CPoint point) {
    const WindowLife life(*this);
    EndKeyDrag(true);
    if (life.HasEnded())
        return;
    KyReportControl::OnLButtonDown(flags, point);
    if (life.HasEnded())
        return;
    ForgetRemovedDragItem();
    if (life.HasEnded())
        return;
    CXTPReportRow* const row = HitTest(point);
    if (row == nullptr)
        return;
    CRect cell;
    CXTPReportColumn* column = nullptr;
    auto* const item = dynamic_cast<KyPlotRecordItem*>(row->HitTest(point, &cell, &column));
    if (item == nullptr)
        return;

    bool capture = false;
    if (!item->GetAllowInteraction(point, capture)) {
        ::SetCursor(::LoadCursor(nullptr, IDC_NO));
        return;
    }
    const KeepAlive alive(*item);
    if (capture) {
        SetCapture();
        // A drag that was left routed to another cell ends there, unapplied.
        if (m_pDragItem != nullptr && m_pDragItem != item) {
            const KeepAlive formerAlive(*m_pDragItem);
            m_pDragItem->EndDrag(point, m_rcDragItem, false);
        }
        if (life.HasEnded())
            return;
        RouteDragTo(item);
        m_rcDragItem = cell;
    }
    item->BeginDrag(point, cell);
}

void KyPlotRecordReportControl::OnMouseMove(UINT flags, CPoint point) {
    const WindowLife life(*this);
    ForgetRemovedDragItem();
    if (life.HasEnded())
        return;
    if (IsDraggedByKeys())
        return; // the pointer that rests somewhere has no part in it
    if (m_pDragItem != nullptr)
        point = PulledIntoDragItem(point);
    KyReportControl::OnMouseMove(flags, point);
}

void KyPlotRecordReportControl::OnLButtonUp(UINT flags, CPoint point) {
    const WindowLife life(*this);
    ForgetRemovedDragItem();
    if (life.HasEnded())
        return;
    if (m_pDragItem != nullptr)
        point = PulledIntoDragItem(point);
    {
        const struct End { // the mouse is free again also when a handler of the release throws
            ~End() { ::ReleaseCapture(); }
        } end;
        KyReportControl::OnLButtonUp(flags, point);
    }
    if (life.HasEnded())
        return;
    ForgetRemovedDragItem();
    if (life.HasEnded())
        return;

    // Intended: a release over no row or no item leaves the drag routed until the next release, Escape or leave.
    CXTPReportRow* const row = HitTest(point);
    if (row == nullptr) {
        GetSelectedRows()->Clear();
        return;
    }
    CRect cell;
    CXTPReportColumn* column = nullptr;
    CXTPReportRecordItem* const item = row->HitTest(point, &cell, &column);
    if (item == nullptr || m_pDragItem == nullptr)
        return;

    // The routing ends first: a slot of the cell's signal may run a message loop, in which the pointer leaves the grid.
    const KeepAlive alive(*m_pDragItem);
    KyPlotRecordItem* const dragged = m_pDragItem;
    RouteDragTo(nullptr);
    if (item == dragged)
        dragged->EndDrag(point, cell, true);
    else
        dragged->EndDrag(point, m_rcDragItem, false);
    if (!life.HasEnded())
        RedrawControl();
}

void KyPlotRecordReportControl::OnMouseLeave() {
    const WindowLife life(*this);
    ForgetRemovedDragItem();
    if (life.HasEnded())
        return;
    if (m_pDragItem != nullptr && !IsDraggedByKeys()) {
        const KeepAlive alive(*m_pDragItem);
        KyPlotRecordItem* const dragged = m_pDragItem;
        RouteDragTo(nullptr);
        dragged->EndDrag(CursorPosition(), dragged->GetItemRect(), true);
        if (life.HasEnded())
            return;
        RedrawControl();
    }
    KyReportControl::OnMouseLeave();
}

BOOL KyPlotRecordReportControl::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message) {
    const WindowLife life(*this);
    const CPoint point = CursorPosition();
    if (CXTPReportRow* const row = HitTest(point)) {
        auto* const item = dynamic_cast<KyPlotRecordItem*>(row->HitTest(point, nullptr, nullptr));
        if (item != nullptr && (item->OnSetCursor(point) || life.HasEnded()))
            return TRUE;
    }
    return KyReportControl::OnSetCursor(wnd, hitTest, message);
}

// --- Marks by keyboard -----------------------------------------------------------------------------------------------

/// Takes hold of a mark of the focused cell, the first one again after the last. False when it has none.
bool KyPlotRecordReportControl::BeginKeyDrag(int mark) {
    CXTPReportRow* const row = GetFocusedRow();
    CXTPReportColumn* const column = GetFocusedColumn();
    if (row == nullptr || column == nullptr || row->GetRecord() == nullptr || IsVirtualMode())
        return false;
    auto* const item = dynamic_cast<KyPlotRecordItem*>(row->GetRecord()->GetItem(column));
    const std::vector<double> marks = item != nullptr ? item->GetMarkPositions() : std::vector<double>();
    if (marks.empty())
        return false;

    const WindowLife life(*this);
    const KeepAlive alive(*item);
    EnsureVisible(row);
    UpdateWindow(); // the cell knows its place from its last drawing
    if (life.HasEnded() || item->GetReportControl() != this || GetFocusedRow() != row)
        return true;
    const int count = static_cast<int>(marks.size());
    m_rcDragItem = row->GetItemRect(item);
    m_keyDrag.mark = (mark + count) % count;
    const CRect plot = item->GetItemRect();
    // Inside the cell as the mouse sees it: without a pixel at each side.
    m_keyDrag.point = CPoint(m_rcDragItem.left + 1 +
                                 static_cast<int>(std::lround(marks[m_keyDrag.mark] * (m_rcDragItem.Width() - 2))),
                             (plot.top + plot.bottom) / 2);
    const KeyDrag begun = m_keyDrag;
    RouteDragTo(item);
    m_keyDrag = begun;
    item->BeginDrag(m_keyDrag.point, m_rcDragItem);
    if (!life.HasEnded() && IsDraggedByKeys())
        GetToolTipContext()->ShowToolTip(this, m_keyDrag.point);
    return true;
}

/// False when the key goes on to the grid.
bool KyPlotRecordReportControl::DragByKey(UINT key) {
    const WindowLife life(*this);
    ForgetRemovedDragItem();
    if (life.HasEnded() || !IsDraggedByKeys())
        return life.HasEnded();
    FollowKeyDragCell();
    if (life.HasEnded() || !IsDraggedByKeys())
        return true;
    const int step = ::GetKeyState(VK_CONTROL) < 0 ? 10 : 1;
    switch (key) {
    case VK_LEFT:
        MoveKeyDrag(m_keyDrag.point.x - step);
        return true;
    case VK_RIGHT:
        MoveKeyDrag(m_keyDrag.point.x + step);
        return true;
    case VK_HOME:
        MoveKeyDrag(m_rcDragItem.left);
        return true;
    case VK_END:
        MoveKeyDrag(m_rcDragItem.right);
        return true;
    case VK_TAB: {
        const int next = m_keyDrag.mark + (::GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
        EndKeyDrag(true);
        if (!life.HasEnded())
            BeginKeyDrag(next);
        return true;
    }
    case VK_ESCAPE:
        EndKeyDrag(false);
        return true;
    case VK_SHIFT:
    case VK_CONTROL:
    case VK_MENU:
        return true;
    default:
        EndKeyDrag(true);
        return life.HasEnded() || key == VK_RETURN || key == VK_F2;
    }
}

/// The grid may have been scrolled, or its columns changed, since the last key.
void KyPlotRecordReportControl::FollowKeyDragCell() {
    const CXTPReportRow* const row = GetFocusedRow();
    const CRect now = row != nullptr ? row->GetItemRect(m_pDragItem) : CRect(0, 0, 0, 0);
    if (now.IsRectEmpty() || now == m_rcDragItem)
        return;
    m_keyDrag.point += now.TopLeft() - m_rcDragItem.TopLeft();
    m_rcDragItem = now;
    UpdateWindow(); // the cell learns of its place
}

void KyPlotRecordReportControl::MoveKeyDrag(int x) {
    m_keyDrag.point.x =
        std::clamp<int>(x, m_rcDragItem.left + 1, std::max<int>(m_rcDragItem.right - 1, m_rcDragItem.left + 1));
    m_keyDrag.hasMoved = true;
    const WindowLife life(*this);
    const KeepAlive alive(*m_pDragItem);
    m_pDragItem->OnMouseMove(MK_LBUTTON, m_keyDrag.point, this);
    if (!life.HasEnded() && IsDraggedByKeys())
        GetToolTipContext()->ShowToolTip(this, m_keyDrag.point);
}

/// A mark that was not moved keeps its value to the last digit.
void KyPlotRecordReportControl::EndKeyDrag(bool apply) {
    if (!IsDraggedByKeys() || m_pDragItem == nullptr)
        return;
    const WindowLife life(*this);
    const KeepAlive alive(*m_pDragItem);
    KyPlotRecordItem* const dragged = m_pDragItem;
    const KeyDrag drag = m_keyDrag;
    RouteDragTo(nullptr);
    if (apply && drag.hasMoved)
        dragged->EndDrag(drag.point, m_rcDragItem, true);
    else
        dragged->CancelDrag();
    if (life.HasEnded())
        return;
    GetToolTipContext()->CancelToolTips();
    RedrawControl();
}

void KyPlotRecordReportControl::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    const WindowLife life(*this);
    if (IsDraggedByKeys() ? DragByKey(key) : key == VK_F2 && BeginKeyDrag(0))
        return;
    if (!life.HasEnded())
        KyReportControl::OnKeyDown(key, repeat, flags);
}

/// The Tab that went on to another mark does not also edit the next cell.
void KyPlotRecordReportControl::OnChar(UINT key, UINT repeat, UINT flags) {
    if (!IsDraggedByKeys())
        KyReportControl::OnChar(key, repeat, flags);
}

UINT KyPlotRecordReportControl::OnGetDlgCode() {
    return KyReportControl::OnGetDlgCode() | (IsDraggedByKeys() ? DLGC_WANTALLKEYS : 0);
}

void KyPlotRecordReportControl::OnKillFocus(CWnd* newWnd) {
    const WindowLife life(*this);
    EndKeyDrag(true);
    if (!life.HasEnded())
        KyReportControl::OnKillFocus(newWnd);
}

// --- Keyboard and commands -------------------------------------------------------------------------------------------

BOOL KyPlotRecordReportControl::PreTranslateMessage(MSG* msg) {
    // Intended: only wParam is looked at, so any message that carries 27 there cancels a routed drag.
    if (msg->wParam == VK_ESCAPE && m_pDragItem != nullptr) {
        const KeepAlive alive(*m_pDragItem);
        const WindowLife life(*this);
        m_pDragItem->CancelDrag();
        if (life.HasEnded())
            return TRUE;
        OnPlotRecordItemDragCancelled();
        if (life.HasEnded())
            return TRUE; // there is no window left that the message could go to
        RouteDragTo(nullptr);
    }
    return KyReportControl::PreTranslateMessage(msg);
}

BOOL KyPlotRecordReportControl::CanCut() { return FALSE; }

BOOL KyPlotRecordReportControl::CanPaste() { return FALSE; }
