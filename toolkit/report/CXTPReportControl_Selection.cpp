// Selection and focus of a report control, as the host and the user change them.
#include "ReportControlImpl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"

void CXTPReportControl::SetMultipleSelection(BOOL bMultiple) {
    if (!bMultiple)
        m_impl->CancelGesture(); // a drag over rows would go on to select several
    m_impl->isMultipleSelection = bMultiple != FALSE;
    if (bMultiple || m_impl->selectedRows->GetCount() <= 1)
        return;
    m_impl->ChangeSelection([this] {
        CXTPReportRow* focused = GetFocusedRow();
        m_impl->selectedRows->Select(focused ? focused : m_impl->selectedRows->GetAt(0));
    });
}

BOOL CXTPReportControl::IsMultipleSelection() const { return m_impl->isMultipleSelection; }

BOOL CXTPReportControl::HasFocus() const {
    if (m_impl->focusWhileDrawing)
        return *m_impl->focusWhileDrawing;
    const HWND focus = m_hWnd ? ::GetFocus() : nullptr;
    return focus && (focus == m_hWnd || ::IsChild(m_hWnd, focus));
}

CXTPReportRow* CXTPReportControl::GetFocusedRow() const { return m_impl->rows->GetAt(m_impl->focusedRow); }

void CXTPReportControl::SetFocusedRow(CXTPReportRow* pRow, BOOL bSelect) {
    if (pRow && pRow->GetControl() != this)
        return;
    const WindowGuard guard(*this);
    const boost::intrusive_ptr<CXTPReportRow> alive(pRow);
    if (!m_impl->FinishEdit() || (pRow && pRow->GetControl() != this))
        return;
    const int index = pRow ? pRow->GetIndex() : -1;
    m_impl->SetFocus(index);
    if (guard.IsGone() || index < 0)
        return;
    m_impl->ShowRow(index);
    if (bSelect)
        m_impl->SelectByClick(index, 0);
}

CXTPReportColumn* CXTPReportControl::GetFocusedColumn() const {
    CXTPReportColumn* const focused = m_impl->focusedColumn;
    if (!focused || focused->IsVisible())
        return focused;
    const CXTPReportColumns& columns = *m_impl->columns;
    CXTPReportColumn* nearest = nullptr;
    for (int i = 0; i < columns.GetCount() && (!nearest || nearest->GetIndex() < focused->GetIndex()); ++i) {
        if (columns.GetAt(i)->IsVisible())
            nearest = columns.GetAt(i);
    }
    return nearest;
}

void CXTPReportControl::SetFocusedColumn(CXTPReportColumn* pColumn) {
    if (pColumn && (pColumn->GetControl() != this || !pColumn->IsVisible()))
        return;
    const WindowGuard guard(*this);
    const boost::intrusive_ptr<CXTPReportColumn> alive(pColumn);
    if (!m_impl->FinishEdit() || (pColumn && pColumn->GetControl() != this))
        return;
    m_impl->FocusColumn(pColumn, pColumn != nullptr);
    if (!guard.IsGone() && pColumn == m_impl->focusedColumn)
        m_impl->ShowColumn(pColumn);
}

BOOL CXTPReportControl::IsColumnFocusVisible() const { return m_impl->isColumnFocusShown && GetFocusedColumn(); }

CXTPReportColumn* CXTPReportControl::Impl::ColumnForKeys() const {
    CXTPReportColumn* const focused = control.GetFocusedColumn();
    return focused ? focused : columns->GetVisibleAt(0);
}

CellHit CXTPReportControl::Impl::FocusedCell() const {
    CellHit cell;
    cell.rowIndex = focusedRow;
    cell.row = rows->GetAt(focusedRow);
    cell.column = ColumnForKeys();
    if (cell.row && cell.column && cell.row->GetRecord())
        cell.item = cell.row->GetRecord()->GetItem(cell.column);
    if (cell.item)
        cell.rcItem = cell.row->GetItemRect(cell.item);
    return cell;
}

/// Tells listeners of another column that is marked; what the mouse presses is told of as a row.
void CXTPReportControl::Impl::FocusColumn(CXTPReportColumn* column, bool isShown) {
    if (column == focusedColumn && isShown == isColumnFocusShown)
        return;
    const bool isOther = column != control.GetFocusedColumn();
    InvalidateColumnFocus();
    focusedColumn = column;
    isColumnFocusShown = isShown;
    InvalidateColumnFocus();
    if (!isOther || !isShown)
        return;
    if (control.HasFocus())
        TellAccess(EVENT_OBJECT_FOCUS, focusedRow); // whose object tells which cell
    const CellHit cell = FocusedCell();
    control.SendItemNotify(XTP_NM_REPORT_FOCUSCHANGED, CPoint(0, 0), cell.row, cell.item, focusedColumn);
}

void CXTPReportControl::Impl::InvalidateColumnFocus() const {
    const CXTPReportColumn* column = control.GetFocusedColumn();
    if (!column || !isColumnFocusShown || !control.m_hWnd)
        return;
    InvalidateRows({focusedRow, focusedRow});
    control.InvalidateRect(column->GetRect(), FALSE);
}

void CXTPReportControl::OnSelectionChanged() {
    SendItemNotify(XTP_NM_REPORT_SELCHANGED, CPoint(0, 0), GetFocusedRow(), nullptr, nullptr);
}

void CXTPReportControl::Impl::TellSelectionChanged() {
    const bool isOne = selectedRows->GetCount() == 1;
    TellAccess(isOne ? EVENT_OBJECT_SELECTION : EVENT_OBJECT_SELECTIONWITHIN,
               isOne ? selectedRows->GetRanges().RowAt(0) : -1);
    control.OnSelectionChanged();
}

void CXTPReportControl::Impl::SetFocus(int rowIndex) {
    if (rowIndex == focusedRow)
        return;
    InvalidateRows({focusedRow, focusedRow});
    focusedRow = rowIndex;
    InvalidateRows({focusedRow, focusedRow});
    if (control.HasFocus())
        TellAccess(EVENT_OBJECT_FOCUS, focusedRow);
    control.SendItemNotify(XTP_NM_REPORT_FOCUSCHANGED, CPoint(0, 0), control.GetFocusedRow(), nullptr, nullptr);
}

void CXTPReportControl::Impl::SelectByClick(int rowIndex, UINT mouseFlags) {
    const bool extends = isMultipleSelection && (mouseFlags & MK_SHIFT) != 0;
    const bool keeps = isMultipleSelection && (mouseFlags & MK_CONTROL) != 0;
    ChangeSelection([&] {
        if (extends) {
            if (selectedRows->GetAnchor() < 0)
                selectedRows->SetAnchor(rowIndex);
            selectedRows->SelectBlock(selectedRows->GetAnchor(), rowIndex, !keeps);
            return;
        }
        if (keeps)
            selectedRows->Invert(rows->GetAt(rowIndex));
        else
            selectedRows->Select(rows->GetAt(rowIndex));
        selectedRows->SetAnchor(rowIndex);
    });
}

void CXTPReportControl::Impl::MoveFocusTo(int rowIndex, bool extends, bool keepsSelection) {
    const WindowGuard guard(control);
    const int formerFocus = focusedRow;
    SetFocus(rowIndex);
    if (guard.IsGone() || rowIndex >= rows->GetCount())
        return;
    ShowRow(rowIndex);
    if (extends && isMultipleSelection) {
        if (selectedRows->GetAnchor() < 0)
            selectedRows->SetAnchor(formerFocus >= 0 ? formerFocus : rowIndex);
        SelectByClick(rowIndex, keepsSelection ? MK_SHIFT | MK_CONTROL : MK_SHIFT);
    } else if (!keepsSelection || !isMultipleSelection) {
        SelectByClick(rowIndex, 0);
    }
}

void CXTPReportControl::OnSetFocus(CWnd* pOldWnd) {
    CWnd::OnSetFocus(pOldWnd);
    m_impl->InvalidateFocusLook();
    m_impl->InvalidateColumnFocus();
    if (m_impl->focusedRow >= 0)
        m_impl->TellAccess(EVENT_OBJECT_FOCUS, m_impl->focusedRow); // the system has told of the window
}

void CXTPReportControl::OnKillFocus(CWnd* pNewWnd) {
    CWnd::OnKillFocus(pNewWnd);
    m_impl->toolTips.CancelToolTips();
    m_impl->InvalidateFocusLook();
    m_impl->InvalidateColumnFocus();
}
