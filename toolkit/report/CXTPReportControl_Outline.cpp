// The outline and the filter of a report control: expanding and collapsing rows, by the host, the mouse and the
// keyboard.
#include "ReportControlImpl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportGroupRow.h"

#include <algorithm>

namespace {

bool IsKeyDown(int key) { return ::GetKeyState(key) < 0; }

} // namespace

// --- By the host ----------------------------------------------------------------------------------------------------

void CXTPReportControl::ExpandRow(CXTPReportRow* pRow, BOOL bExpand) {
    const boost::intrusive_ptr<CXTPReportRow> alive(pRow);
    if (!pRow || pRow->GetControl() != this || !m_impl->FinishEdit() || pRow->GetControl() != this)
        return;
    m_impl->ExpandRow(pRow->GetIndex(), bExpand != FALSE);
}

void CXTPReportControl::Impl::ExpandRow(int rowIndex, bool expand) {
    if (!rows->HasChildren(rowIndex) || (rows->IsExpanded(rowIndex) != FALSE) == expand)
        return;
    const WindowGuard guard(control);
    CancelGesture();
    const boost::intrusive_ptr<CXTPReportRow> row(rows->GetAt(rowIndex));
    const std::int64_t formerlySelected = selectedRows->GetRanges().Count();
    const bool takesFocus = !expand && focusedRow > rowIndex && focusedRow < rows->GetBranchEnd(rowIndex);
    if (takesFocus)
        focusedRow = rowIndex; // in front of the change, which would hand it to the row below
    rows->SetExpanded(rowIndex, expand);
    const bool isOtherSelection = selectedRows->GetRanges().Count() != formerlySelected;
    if (takesFocus && isOtherSelection && selectedRows->GetCount() == 0) {
        selectedRows->SelectBlock(rowIndex, rowIndex);
        selectedRows->SetAnchor(rowIndex);
    }
    TellAccess(EVENT_OBJECT_STATECHANGE, rowIndex);
    if (takesFocus) {
        if (control.HasFocus())
            TellAccess(EVENT_OBJECT_FOCUS, focusedRow);
        control.SendItemNotify(XTP_NM_REPORT_FOCUSCHANGED, CPoint(0, 0), control.GetFocusedRow(), nullptr, nullptr);
    }
    if (!guard.IsGone() && isOtherSelection)
        TellSelectionChanged();
    if (!guard.IsGone() && row && row->GetControl() == &control)
        control.SendItemNotify(XTP_NM_REPORT_ROWEXPANDED, CPoint(0, 0), row.get(), nullptr, nullptr);
}

void CXTPReportControl::ExpandAll() { m_impl->ExpandAll(true); }

void CXTPReportControl::CollapseAll() { m_impl->ExpandAll(false); }

void CXTPReportControl::Impl::ExpandAll(bool expand) {
    if (!FinishEdit() || !rows->IsOutline())
        return;
    CancelGesture();
    RemakeRows([&] { rows->SetAllExpanded(expand); });
}

// --- Filter ---------------------------------------------------------------------------------------------------------

void CXTPReportControl::SetFilterText(LPCTSTR strText) { m_impl->filter.SetText(strText); }

CString CXTPReportControl::GetFilterText() const { return m_impl->filter.Text(); }

// --- Texts ----------------------------------------------------------------------------------------------------------

CString CXTPReportControl::GetGroupCaption(const CXTPReportColumn* pColumn, const CString& strValue,
                                           int nRecords) const {
    CString strCount;
    strCount.Format(_T(" (%d)"), nRecords);
    return (pColumn ? pColumn->GetCaption() : CString()) + _T(": ") +
           (strValue.IsEmpty() ? GetText(xtpReportTextNoValue) : strValue) + strCount;
}

CString CXTPReportControl::GetText(XTPReportText text) const {
    switch (text) {
    case xtpReportTextSort:
        return _T("Sort");
    case xtpReportTextJump:
        return _T("Jump");
    case xtpReportTextEdit:
        return _T("Edit");
    case xtpReportTextOpen:
        return _T("Open");
    case xtpReportTextExpand:
        return _T("Expand");
    case xtpReportTextCollapse:
        return _T("Collapse");
    case xtpReportTextNoValue:
        return _T("(none)");
    case xtpReportTextFilterCue:
        return _T("Filter");
    case xtpReportTextSortRank:
        return _T("Sort order: %1 of %2");
    }
    return CString();
}

// --- By the user ----------------------------------------------------------------------------------------------------

/// Rows below a record can be shown by the user where a column shows that there are some.
bool CXTPReportControl::Impl::CanExpand(int rowIndex) const {
    const CXTPReportRow* const row = rows->HasChildren(rowIndex) ? rows->GetAt(rowIndex) : nullptr;
    return row && !row->GetExpandButtonRect().IsRectNull();
}

/// What has come into view by an expansion is shown as far as the row stays in view.
void CXTPReportControl::Impl::ExpandRowByUser(int rowIndex, bool expand) {
    const WindowGuard guard(control);
    if (!FinishEdit() || !CanExpand(rowIndex))
        return;
    const boost::intrusive_ptr<CXTPReportRow> row(rows->GetAt(rowIndex));
    ExpandRow(rowIndex, expand);
    if (guard.IsGone() || !row || row->GetControl() != &control)
        return;
    if (expand)
        ShowRow(std::min(rows->GetBranchEnd(row->GetIndex()) - 1,
                         row->GetIndex() + std::max(control.GetFullyVisibleRowCount() - 1, 0)));
    ShowRow(row->GetIndex());
}

void CXTPReportControl::Impl::ExpandBranchByUser(int rowIndex) {
    const WindowGuard guard(control);
    if (!FinishEdit() || !CanExpand(rowIndex))
        return;
    CancelGesture();
    const bool wasExpanded = rows->IsExpanded(rowIndex) != FALSE;
    RemakeRows([&] { rows->ExpandBranch(rowIndex); });
    TellAccess(EVENT_OBJECT_STATECHANGE, rowIndex);
    if (!wasExpanded)
        control.SendItemNotify(XTP_NM_REPORT_ROWEXPANDED, CPoint(0, 0), rows->GetAt(rowIndex), nullptr, nullptr);
}

bool CXTPReportControl::Impl::PressExpandButton(CPoint point) {
    const int rowIndex = RowAt(point);
    const CXTPReportRow* const row = rows->HasChildren(rowIndex) ? rows->GetAt(rowIndex) : nullptr;
    if (!row || !row->GetExpandButtonRect().PtInRect(point))
        return false;
    ExpandRowByUser(rowIndex, !rows->IsExpanded(rowIndex));
    return true;
}

/// A double click expands or collapses the row of a group, and a record where it shows its place in the tree: cells of
/// other columns may have a use of their own for the second press.
bool CXTPReportControl::Impl::TogglePressedRow(const CellHit& pressed, CPoint point) {
    const CellHit hit = HitCell(point);
    const bool isTree = !hit.item || hit.column->IsTreeColumn();
    if (!hit.IsSameCell(pressed) || !isTree || !CanExpand(hit.rowIndex))
        return false;
    ExpandRowByUser(hit.rowIndex, !rows->IsExpanded(hit.rowIndex));
    return true;
}

/// Left and right in a tree: only on the row of a group and in a tree column, elsewhere they move among the columns.
bool CXTPReportControl::Impl::OutlineByKey(UINT key) {
    if (IsKeyDown(VK_CONTROL) || IsKeyDown(VK_SHIFT) || focusedRow < 0)
        return false;
    const bool isGroup = rows->GetGroupAt(focusedRow) != nullptr;
    if (key == VK_RETURN && isGroup) {
        ExpandRowByUser(focusedRow, !rows->IsExpanded(focusedRow));
        return true;
    }
    if (key == VK_ADD || key == VK_SUBTRACT || key == VK_MULTIPLY)
        return OutlineBySign(key);
    const CXTPReportColumn* const column = ColumnForKeys();
    if ((key != VK_LEFT && key != VK_RIGHT) || !rows->IsOutline() || !(isGroup || (column && column->IsTreeColumn())))
        return false;
    const bool isExpanded = rows->IsExpanded(focusedRow) != FALSE;
    const int next = key == VK_LEFT ? rows->GetParentIndex(focusedRow) : rows->GetFirstChildIndex(focusedRow);
    if (isExpanded == (key == VK_LEFT) && CanExpand(focusedRow))
        ExpandRowByUser(focusedRow, key == VK_RIGHT);
    else if (next >= 0)
        MoveFocusTo(next, false, false);
    else
        return isGroup; // there is no column to go to either
    return true;
}

/// The signs of the number pad. They are typed where a cell can be edited.
bool CXTPReportControl::Impl::OutlineBySign(UINT key) {
    if (!CanExpand(focusedRow) || CanEdit(FocusedCell()) || IsTyping())
        return false;
    isSignOurs = true;
    if (key == VK_MULTIPLY)
        ExpandBranchByUser(focusedRow);
    else
        ExpandRowByUser(focusedRow, key == VK_ADD);
    return true;
}
