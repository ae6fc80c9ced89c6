// The keyboard in a report control: moving and selecting among rows, finding by typing, and all that the mouse does
// with columns.
#include "ReportControlImpl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "HeaderExtents.h"

#include <algorithm>
#include <optional>

namespace {

/// Letters that follow each other within this time belong to one word.
constexpr DWORD TypingPause = 1000;
constexpr int ResizeStepAt96Dpi = 8;

bool IsKeyDown(int key) { return ::GetKeyState(key) < 0; }

std::optional<gridgeometry::RowMove> MoveOf(UINT key) {
    using gridgeometry::RowMove;
    switch (key) {
    case VK_UP:
        return RowMove::Up;
    case VK_DOWN:
        return RowMove::Down;
    case VK_PRIOR:
        return RowMove::PageUp;
    case VK_NEXT:
        return RowMove::PageDown;
    case VK_HOME:
        return RowMove::Home;
    case VK_END:
        return RowMove::End;
    default:
        return std::nullopt;
    }
}

} // namespace

UINT CXTPReportControl::OnGetDlgCode() {
    // In a dialog Escape belongs to a gesture while there is one.
    const bool isInGesture = m_impl->IsHeaderGesture() || m_impl->mouseMode == xtpReportMouseSelectingRows;
    return DLGC_WANTARROWS | DLGC_WANTCHARS | (isInGesture ? DLGC_WANTALLKEYS : 0);
}

void CXTPReportControl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    m_impl->toolTips.CancelToolTips();
    const WindowGuard guard(*this);
    m_impl->isSignOurs = false;
    const bool isDone = m_impl->OutlineByKey(nChar) || m_impl->MoveByKey(nChar) || m_impl->SelectByKey(nChar) ||
                        m_impl->ColumnByKey(nChar) || m_impl->ClipboardByKey(nChar) || m_impl->CellByKey(nChar);
    if (isDone || guard.IsGone())
        return;
    if (nChar == VK_ESCAPE)
        m_impl->CancelGesture();
    CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

bool CXTPReportControl::Impl::MoveByKey(UINT key) {
    const std::optional<gridgeometry::RowMove> move = MoveOf(key);
    if (!move)
        return false;
    searchText.Empty();
    const int target = RowGrid().NextRow(*move, focusedRow, topRow);
    if (target >= 0)
        MoveFocusTo(target, IsKeyDown(VK_SHIFT), IsKeyDown(VK_CONTROL));
    return true;
}

bool CXTPReportControl::Impl::SelectByKey(UINT key) {
    const bool isCtrl = IsKeyDown(VK_CONTROL);
    if (key == VK_SPACE && (isCtrl || !IsTyping()) && focusedRow >= 0) {
        const UINT flags = (isCtrl ? MK_CONTROL : 0) | (IsKeyDown(VK_SHIFT) ? MK_SHIFT : 0);
        SelectByClick(focusedRow, flags);
        return true;
    }
    if (key == 'A' && isCtrl) {
        if (isMultipleSelection && rows->GetCount() > 0)
            ChangeSelection([this] { selectedRows->SelectBlock(0, rows->GetCount() - 1, TRUE); });
        return true;
    }
    return false;
}

// --- Clipboard ------------------------------------------------------------------------------------------------------

/// Both generations of keys: ctrl with C, X and V, and those with insert and delete.
bool CXTPReportControl::Impl::ClipboardByKey(UINT key) {
    const bool isCtrl = IsKeyDown(VK_CONTROL), isShift = IsKeyDown(VK_SHIFT);
    if (IsKeyDown(VK_MENU) || isCtrl == isShift)
        return false;
    const bool isCopy = isCtrl && (key == 'C' || key == VK_INSERT);
    const bool isCut = isCtrl ? key == 'X' : key == VK_DELETE;
    const bool isPaste = isCtrl ? key == 'V' : key == VK_INSERT;
    if (isCopy && control.CanCopy())
        control.Copy();
    else if (isCut && control.CanCut())
        control.Cut();
    else if (isPaste && control.CanPaste())
        control.Paste();
    else
        return false;
    return true;
}

// --- Columns --------------------------------------------------------------------------------------------------------

bool CXTPReportControl::Impl::ColumnByKey(UINT key) {
    const bool isCtrl = IsKeyDown(VK_CONTROL), isShift = IsKeyDown(VK_SHIFT);
    if (key == VK_LEFT || key == VK_RIGHT) {
        const int direction = key == VK_LEFT ? -1 : 1;
        if (isCtrl && isShift)
            MoveColumnByKey(direction);
        else if (isCtrl)
            ScrollSidewaysTo(leftOffset + direction * SidewaysStep());
        else
            MoveFocusSideways(direction);
        return true;
    }
    if (key == VK_F3) {
        SortByKey(ColumnForKeys(), isShift || isCtrl);
        return true;
    }
    if (key == 'G' && isCtrl) {
        GroupByKey(ColumnForKeys(), isShift);
        return true;
    }
    if ((key == VK_ADD || key == VK_OEM_PLUS) && isCtrl) {
        CancelGesture();
        BestFitAll();
        return true;
    }
    return false;
}

bool CXTPReportControl::Impl::ColumnByAltKey(UINT key) {
    switch (key) {
    case VK_LEFT:
        ResizeByKey(-1);
        return true;
    case VK_RIGHT:
        ResizeByKey(1);
        return true;
    case VK_PRIOR:
    case VK_NEXT: {
        ScrollSidewaysTo(leftOffset + (key == VK_PRIOR ? -SidewaysPage() : SidewaysPage()));
        return true;
    }
    case VK_ADD:
    case VK_OEM_PLUS:
        FitByKey(ColumnForKeys());
        return true;
    case VK_DOWN:
        CancelGesture();
        OpenHeaderMenu(ColumnForKeys());
        return true;
    default:
        return false;
    }
}

/// To the next column; through a column that is wider than the view in steps.
void CXTPReportControl::Impl::MoveFocusSideways(int direction) {
    CXTPReportColumn* const column = ColumnForKeys();
    if (!column)
        return;
    const bool isFirst = control.GetFocusedColumn() == nullptr;
    const CRect rcColumn = column->GetRect();
    const int left = column->IsFrozen() ? 0 : header->GetFreezeEdge();
    const int hidden = direction < 0 ? left - static_cast<int>(rcColumn.left) : rcColumn.right - ClientRect().right;
    CXTPReportColumn* target = column;
    if (hidden <= 0 && !isFirst) {
        CXTPReportColumn* next = columns->GetVisibleAt(VisibleIndexOf(*columns, column) + direction);
        target = next ? next : column;
    }
    const WindowGuard guard(control);
    FocusColumn(target, true);
    if (guard.IsGone() || focusedColumn != target)
        return;
    if (target != column)
        ShowColumn(target);
    else if (hidden > 0)
        ScrollSidewaysTo(leftOffset + direction * std::min(hidden, SidewaysStep()));
}

void CXTPReportControl::Impl::ShowColumn(const CXTPReportColumn* column) {
    if (!column || column->IsFrozen())
        return;
    // The columns that scroll have a view of their own, beside the frozen ones.
    const CRect rc = column->GetRect();
    const int unscrolled = leftOffset - header->GetFreezeEdge();
    const gridgeometry::ColumnExtent extent = {static_cast<int>(rc.left) + unscrolled,
                                               static_cast<int>(rc.right) + unscrolled, true};
    ScrollSidewaysTo(gridgeometry::LeftOffsetToShow(leftOffset, extent, SidewaysPage()));
}

/// The column for keys is focused, marked and in view. False when there is none, or the owner has taken it away.
bool CXTPReportControl::Impl::TakeColumn(CXTPReportColumn* column) {
    const WindowGuard guard(control);
    CancelGesture();
    if (!column)
        return false;
    FocusColumn(column, true);
    if (guard.IsGone() || focusedColumn != column)
        return false;
    ShowColumn(column);
    return true;
}

void CXTPReportControl::Impl::MoveColumnByKey(int direction) {
    CXTPReportColumn* const column = ColumnForKeys();
    if (!TakeColumn(column))
        return;
    const WindowGuard guard(control);
    header->MoveColumn(column, direction);
    if (!guard.IsGone())
        ShowColumn(focusedColumn);
}

void CXTPReportControl::Impl::ResizeByKey(int direction) {
    CXTPReportColumn* const column = ColumnForKeys();
    if (TakeColumn(column))
        header->ResizeColumn(column, direction * paintManager->ScaleForDpi(ResizeStepAt96Dpi));
}

void CXTPReportControl::Impl::SortByKey(CXTPReportColumn* column, bool addsKey) {
    if (!TakeColumn(column))
        return;
    const WindowGuard guard(control);
    header->Sort(column, addsKey);
    // The keyboard goes on from the focused row, wherever it is now.
    if (!guard.IsGone() && focusedRow >= 0)
        ShowRow(focusedRow);
}

void CXTPReportControl::Impl::FitByKey(CXTPReportColumn* column) {
    if (!TakeColumn(column) || !header->IsAllowColumnResize() || !column->IsResizable())
        return;
    header->BestFit(column);
    control.SendColumnNotify(XTP_NM_REPORT_COLUMNWIDTHCHANGED, column);
}

/// As the mouse in the group-by box, and as little without one.
void CXTPReportControl::Impl::GroupByKey(CXTPReportColumn* column, bool turns) {
    if (!isGroupByShown || !TakeColumn(column))
        return;
    const WindowGuard guard(control);
    if (turns)
        header->TurnGroup(column);
    else if (columns->GetGroupsOrder()->IndexOf(column) >= 0)
        header->Ungroup(column);
    else
        header->GroupBy(column);
    if (!guard.IsGone() && focusedRow >= 0)
        ShowRow(focusedRow);
}

void CXTPReportControl::Impl::OpenHeaderMenu(CXTPReportColumn* column) {
    if (column && !TakeColumn(column))
        return;
    const CRect rcHeader = control.GetHeaderRect();
    // The menu opens under the header that it is for.
    CPoint point(column ? column->GetRect().left : rcHeader.left, rcHeader.bottom - 1);
    point.x = std::clamp<int>(point.x, rcHeader.left, std::max<int>(rcHeader.right - 1, rcHeader.left));
    if (mouseMode == xtpReportMouseOverColumnDivide)
        mouseMode = xtpReportMouseNothing; // the pointer may rest on a divider meanwhile
    header->OnContextMenu(point);
}

void CXTPReportControl::Impl::BestFitAll() {
    if (!header->IsAllowColumnResize())
        return;
    header->BestFitAll();
    control.SendColumnNotify(XTP_NM_REPORT_COLUMNWIDTHCHANGED, nullptr);
}

// --- Cells ----------------------------------------------------------------------------------------------------------

bool CXTPReportControl::Impl::CellByKey(UINT key) {
    if (key == VK_F2)
        return EditFocusedCell();
    const bool isTip = key == VK_F1 && IsKeyDown(VK_CONTROL);
    if (!isTip && key != VK_RETURN)
        return false;
    const WindowGuard guard(control);
    if (focusedRow >= 0)
        ShowRow(focusedRow);
    const CellHit cell = FocusedCell();
    if (!cell.item)
        return true;
    if (isTip) {
        if (TakeColumn(cell.column) && rows->GetAt(cell.rowIndex) == cell.row) {
            CRect rcSeen;
            rcSeen.IntersectRect(cell.row->GetItemRect(cell.item), control.GetReportRectangle());
            toolTips.ShowToolTip(&control, rcSeen.CenterPoint());
        }
        return true;
    }
    const CPoint point = cell.rcItem.CenterPoint();
    if (cell.item->GetHyperlinksCount() > 0)
        control.SendItemNotify(XTP_NM_REPORT_HYPERLINK, point, cell.row, cell.item, cell.column, 0);
    else if (CanEdit(cell))
        EditFocusedCell();
    else
        control.SendItemNotify(NM_RETURN, point, cell.row, cell.item, cell.column);
    return true;
}

// --- Characters -----------------------------------------------------------------------------------------------------

void CXTPReportControl::OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    m_impl->toolTips.CancelToolTips();
    const WindowGuard guard(*this);
    const bool isOurs = ::GetKeyState(VK_MENU) < 0 && !IsKeyDown(VK_CONTROL) && m_impl->ColumnByAltKey(nChar);
    if (guard.IsGone())
        return;
    m_impl->isSysCharOurs = isOurs;
    // The system has to see the key as well: alt that went down for a key does not open the menu bar when it goes up.
    CWnd::OnSysKeyDown(nChar, nRepCnt, nFlags);
}

void CXTPReportControl::OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    // The system would look for a menu with that letter.
    if (!m_impl->isSysCharOurs)
        CWnd::OnSysChar(nChar, nRepCnt, nFlags);
}

void CXTPReportControl::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (std::exchange(m_impl->isSignOurs, false) && (nChar == '+' || nChar == '-' || nChar == '*'))
        return;
    if (nChar == VK_TAB && m_impl->allowsEdit) {
        m_impl->EditNextCell(IsKeyDown(VK_SHIFT) ? -1 : 1);
        return;
    }
    const bool isSpaceOfSelection = nChar == ' ' && !m_impl->IsTyping();
    const WindowGuard guard(*this);
    if (nChar >= ' ' && !isSpaceOfSelection && (m_impl->EditByTyping(nChar, nRepCnt, nFlags) || guard.IsGone()))
        return;
    if (nChar < ' ' || isSpaceOfSelection || IsKeyDown(VK_CONTROL)) {
        CWnd::OnChar(nChar, nRepCnt, nFlags);
        return;
    }
    m_impl->FindTyped(static_cast<wchar_t>(nChar));
}

bool CXTPReportControl::Impl::IsTyping() const {
    return !searchText.IsEmpty() && ::GetTickCount() - searchTime <= TypingPause;
}

void CXTPReportControl::Impl::FindTyped(wchar_t character) {
    // The rows of virtual mode share one record: what they show is known to its owner alone.
    const CXTPReportColumn* sorted = columns->GetSortOrder()->GetAt(0);
    CXTPReportColumn* column = columns->GetVisibleAt(0);
    if (sorted && sorted->IsVisible())
        column = columns->GetAt(sorted->GetIndex());
    const int count = rows->GetCount();
    if (control.IsVirtualMode() || !column || count == 0)
        return;
    if (!IsTyping())
        searchText.Empty();
    searchTime = ::GetTickCount();
    searchText += character;
    // The first letter looks behind the focused row, so that typing it again goes on; further ones narrow down.
    const int start = std::max(focusedRow, 0) + (searchText.GetLength() == 1 && focusedRow >= 0 ? 1 : 0);
    for (int i = 0; i < count; ++i) {
        const int index = static_cast<int>((std::int64_t{start} + i) % count);
        const CXTPReportRecord* record = rows->GetRecordAt(index);
        CXTPReportRecordItem* item = record ? record->GetItem(column) : nullptr;
        if (item && item->GetCaption(column).Left(searchText.GetLength()).CollateNoCase(searchText) == 0) {
            MoveFocusTo(index, false, false);
            return;
        }
    }
}
