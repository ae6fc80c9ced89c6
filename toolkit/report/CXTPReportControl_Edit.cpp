// Editing in a report control: which cells may be edited, what begins it, and what ends it. The editor itself is
// CXTPReportInplaceEdit.
#include "ReportControlImpl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "HeaderExtents.h"

namespace {

/// So many rows are looked at for the next cell that can be edited.
constexpr int SearchedRows = 10'000;

bool IsOrStandsBelow(const CXTPReportRecord* record, const CXTPReportRecord* other) {
    while (record && record != other)
        record = record->GetParentRecord();
    return record != nullptr;
}

} // namespace

CRect CellRect(const CXTPReportRow& row, const CXTPReportColumn& column) {
    const CRect rcRow = row.GetCellsRect(), rcColumn = column.GetRect();
    if (!row.GetControl() || !column.IsVisible())
        return CRect();
    const int right = std::max<int>(rcColumn.right - 1, rcColumn.left);
    const int left = std::min<int>(rcColumn.left + row.GetTreeIndent(&column), right);
    return CRect(left, rcRow.top, right, rcRow.bottom - 1);
}

// --- What the host decides ------------------------------------------------------------------------------------------

void CXTPReportControl::AllowEdit(BOOL bAllow) {
    m_impl->allowsEdit = bAllow != FALSE;
    if (!bAllow)
        m_impl->FinishEdit();
}

BOOL CXTPReportControl::IsAllowEdit() const { return m_impl->allowsEdit; }

void CXTPReportControl::EditItem(const XTP_REPORTRECORDITEM_ARGS* pItemArgs) {
    if (!pItemArgs)
        m_impl->FinishEdit();
    else if (pItemArgs->pRow && pItemArgs->pRow->GetControl() == this)
        m_impl->EditCell(pItemArgs->pRow->GetIndex(), pItemArgs->pColumn);
}

CXTPReportRecordItem* CXTPReportControl::GetActiveItem() const {
    return m_impl->openEdit ? m_impl->openEdit->GetItem() : nullptr;
}

CXTPReportInplaceEdit* CXTPReportControl::GetInplaceEdit() const {
    return m_impl->openEdit ? m_impl->openEdit : m_impl->ownEdit.get();
}

void CXTPReportControl::SetInplaceEdit(CXTPReportInplaceEdit* pEdit) {
    if (!pEdit || pEdit == m_impl->ownEdit)
        return;
    boost::intrusive_ptr<CXTPReportInplaceEdit> taken(pEdit, false);
    if (m_impl->FinishEdit())
        m_impl->ownEdit.swap(taken);
}

bool CXTPReportControl::Impl::CanEdit(const CellHit& cell) const {
    return allowsEdit && cell.item && cell.column && cell.column->IsEditable() && cell.item->IsEditable() &&
           control.m_hWnd && control.IsWindowEnabled();
}

// --- Begin ----------------------------------------------------------------------------------------------------------

CellHit CXTPReportControl::Impl::CellAt(int rowIndex, CXTPReportColumn* column) const {
    CellHit cell;
    cell.rowIndex = rowIndex;
    cell.row = rows->GetAt(rowIndex);
    cell.column = column;
    const bool isShown = column && column->GetControl() == &control && column->IsVisible();
    if (!isShown || !cell.row || !cell.row->GetRecord())
        return cell;
    cell.item = cell.row->GetRecord()->GetItem(column);
    if (cell.item)
        cell.rcItem = CellRect(*cell.row, *column);
    return cell;
}

/// The owner does not refuse.
bool CXTPReportControl::Impl::MayEdit(const CellHit& cell) {
    XTP_NM_REPORTREQUESTEDIT request = {};
    request.pRow = cell.row;
    request.pItem = cell.item;
    request.pColumn = cell.column;
    request.nHyperlink = -1;
    request.pt = cell.rcItem.CenterPoint();
    control.SendNotify(XTP_NM_REPORT_REQUESTEDIT, &request.hdr);
    return !request.bCancel;
}

/// False when the cell is not being edited afterwards, also when the control is gone.
bool CXTPReportControl::Impl::EditCell(int rowIndex, CXTPReportColumn* column) {
    const WindowGuard guard(control);
    const boost::intrusive_ptr<CXTPReportColumn> columnAlive(column);
    if (!FinishEdit())
        return false;
    CellHit cell = CellAt(rowIndex, column);
    if (!CanEdit(cell))
        return false;
    const boost::intrusive_ptr<CXTPReportRecordItem> itemAlive(cell.item);
    CancelGesture();
    if (rowIndex != focusedRow)
        MoveFocusTo(rowIndex, false, false);
    else
        ShowRow(rowIndex);
    if (guard.IsGone() || column->GetControl() != &control)
        return false; // the owner has heard of the focus
    FocusColumn(column, isColumnFocusShown);
    if (guard.IsGone())
        return false;
    ShowColumn(column->GetControl() == &control ? column : nullptr);
    // The owner may have changed the content when it was told of the focus, and may do so again when it is asked.
    const auto isSame = [&] {
        cell = CellAt(focusedRow, column);
        return cell.item == itemAlive.get() && CanEdit(cell);
    };
    if (!isSame() || !MayEdit(cell) || guard.IsGone() || !isSame())
        return false;
    XTP_REPORTRECORDITEM_ARGS args;
    args.pControl = &control;
    args.pRow = cell.row;
    args.pColumn = cell.column;
    args.pItem = cell.item;
    args.rcItem = cell.rcItem;
    const boost::intrusive_ptr<CXTPReportInplaceEdit> edit(ownEdit);
    return edit->Create(&args) && !guard.IsGone();
}

bool CXTPReportControl::Impl::EditFocusedCell() {
    const CellHit cell = FocusedCell();
    return CanEdit(cell) && EditCell(cell.rowIndex, cell.column);
}

bool CXTPReportControl::Impl::EditPressedCell(const CellHit& pressed, CPoint point) {
    const CellHit cell = HitCell(point);
    return cell.IsSameCell(pressed) && CanEdit(cell) && EditCell(cell.rowIndex, cell.column);
}

/// The character opens the editor and replaces the text in it. Characters that come before the editor has the keyboard,
/// as those of an input method do, follow the first one.
bool CXTPReportControl::Impl::EditByTyping(UINT character, UINT repeat, UINT flags) {
    const bool isAltGr = ::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_MENU) < 0;
    if (::GetKeyState(VK_CONTROL) < 0 && !isAltGr)
        return false;
    const WindowGuard guard(control);
    if (!openEdit && !EditFocusedCell())
        return false;
    if (!guard.IsGone() && openEdit)
        openEdit->SendMessage(WM_CHAR, character, MAKELPARAM(repeat, flags));
    return true;
}

// --- The next cell --------------------------------------------------------------------------------------------------

CellHit CXTPReportControl::Impl::NextEditableCell(int direction) const {
    const int columnCount = columns->GetVisibleColumnsCount();
    const CXTPReportColumn* const from = ColumnForKeys();
    int index = from ? VisibleIndexOf(*columns, from) + direction : 0;
    const int end = std::min(SearchedRows, rows->GetCount());
    int rowIndex = std::max(focusedRow, 0);
    for (int searched = 0; searched < end; ++searched) {
        for (; index >= 0 && index < columnCount; index += direction) {
            const CellHit cell = CellAt(rowIndex, columns->GetVisibleAt(index));
            if (CanEdit(cell))
                return cell;
        }
        rowIndex += direction;
        index = direction < 0 ? columnCount - 1 : 0;
        if (rowIndex < 0 || rowIndex >= rows->GetCount())
            break;
    }
    return CellHit();
}

void CXTPReportControl::Impl::EditNextCell(int direction) {
    if (!FinishEdit())
        return;
    const CellHit next = NextEditableCell(direction);
    if (next.item)
        EditCell(next.rowIndex, next.column);
}

// --- End ------------------------------------------------------------------------------------------------------------

bool CXTPReportControl::Impl::FinishEdit() {
    const WindowGuard guard(control);
    if (openEdit)
        openEdit->EndEdit(TRUE);
    return !guard.IsGone();
}

BOOL CXTPReportControl::OnColumnLeaving(const CXTPReportColumn* pColumn) {
    const bool isEdited = m_impl->openEdit && (!pColumn || m_impl->openEdit->GetColumn() == pColumn);
    return !isEdited || m_impl->FinishEdit();
}

BOOL CXTPReportControl::OnRecordLeaving(const CXTPReportRecord* pRecord) {
    const CXTPReportRecordItem* const item = GetActiveItem();
    if (!item || (pRecord && !IsOrStandsBelow(item->GetRecord(), pRecord)))
        return TRUE;
    const WindowGuard guard(*this);
    m_impl->openEdit->EndEdit(FALSE);
    return !guard.IsGone();
}

void CXTPReportControl::SendEditNotify(UINT nCode, const XTP_REPORTRECORDITEM_ARGS& args) {
    // What has left the control is of no use to the owner.
    const bool hasRow = args.pRow && args.pRow->GetControl() == this;
    const bool hasColumn = args.pColumn && args.pColumn->GetControl() == this;
    const bool hasItem = args.pItem && args.pItem->GetReportControl() == this;
    SendItemNotify(nCode, args.rcItem.CenterPoint(), hasRow ? args.pRow : nullptr, hasItem ? args.pItem : nullptr,
                   hasColumn ? args.pColumn : nullptr);
}
