// One row: where it and its cells stand, and its drawing.
#include "CXTPReportRow.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportHeader.h"
#include "CXTPReportPaintManager.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRecordItemPreview.h"
#include "CXTPReportRows.h"
#include "CXTPReportSelectedRows.h"
#include "RecordItemHeap.h"

#include "../../framework/gdi/SelectGuard.h"

#include <algorithm>

namespace {

/// The cell without its grid lines: what an item is given to draw in.
CRect InsideGridLines(const CRect& rcCell) {
    return CRect(rcCell.left, rcCell.top, std::max(rcCell.right - 1, rcCell.left), rcCell.bottom - 1);
}

CRect WholeCell(const CRect& rcRow, const CXTPReportColumn* column) {
    const CRect rcColumn = column->GetRect();
    return CRect(rcColumn.left, rcRow.top, rcColumn.right, rcRow.bottom);
}

/// Draws a cell, but nothing of it over the columns that stay while its own scrolls beneath them.
template <class Drawing>
void DrawUncovered(CDC* pDC, const CXTPReportColumn* column, const CRect& rcCell, Drawing draw) {
    const CRect rcSeen = column->GetUncoveredRect();
    if (rcSeen.left <= rcCell.left && !rcSeen.IsRectEmpty()) {
        draw();
    } else if (!rcSeen.IsRectEmpty()) {
        const SaveDCGuard saved(*pDC);
        pDC->IntersectClipRect(rcSeen.left, rcCell.top, rcSeen.right, rcCell.bottom);
        draw();
    }
}

} // namespace

CXTPReportRow::CXTPReportRow(CXTPReportRows* pRows, CXTPReportRecord* pRecord, int nIndex)
    : m_nIndex(nIndex), m_pRows(pRows), m_pRecord(pRecord) {}

void* CXTPReportRow::operator new(size_t size) { return recorditemheap::Take(size); }

void CXTPReportRow::operator delete(void* p, size_t size) { recorditemheap::Return(p, size); }

CXTPReportControl* CXTPReportRow::GetControl() const { return m_pRows ? m_pRows->GetControl() : nullptr; }

BOOL CXTPReportRow::IsSelected() const {
    const CXTPReportControl* control = GetControl();
    return control && control->GetSelectedRows()->Contains(m_nIndex);
}

void CXTPReportRow::SetSelected(BOOL bSelected) {
    const CXTPReportControl* control = GetControl();
    if (!control || !bSelected == !IsSelected())
        return;
    if (bSelected)
        control->GetSelectedRows()->Add(this);
    else
        control->GetSelectedRows()->Remove(this);
}

BOOL CXTPReportRow::IsFocused() const {
    const CXTPReportControl* control = GetControl();
    return control && control->GetFocusedRow() == this;
}

void CXTPReportRow::EnsureVisible() {
    if (CXTPReportControl* control = GetControl())
        control->EnsureVisible(this);
}

// --- Outline --------------------------------------------------------------------------------------------------------

BOOL CXTPReportRow::HasChildren() const { return m_pRows && m_pRows->HasChildren(m_nIndex); }

BOOL CXTPReportRow::IsExpanded() const { return m_pRows && m_pRows->IsExpanded(m_nIndex); }

void CXTPReportRow::SetExpanded(BOOL bExpanded) {
    if (CXTPReportControl* control = GetControl())
        control->ExpandRow(this, bExpanded);
}

CXTPReportRow* CXTPReportRow::GetParentRow() const {
    return m_pRows ? m_pRows->GetAt(m_pRows->GetParentIndex(m_nIndex)) : nullptr;
}

CXTPReportRow* CXTPReportRow::GetFirstChildRow() const {
    return m_pRows ? m_pRows->GetAt(m_pRows->GetFirstChildIndex(m_nIndex)) : nullptr;
}

CXTPReportRow* CXTPReportRow::GetNextSiblingRow() const {
    return m_pRows ? m_pRows->GetAt(m_pRows->GetNextSiblingIndex(m_nIndex)) : nullptr;
}

int CXTPReportRow::GetTreeDepth() const { return m_pRows ? m_pRows->GetTreeDepth(m_nIndex) : 0; }

int CXTPReportRow::GetGroupLevel() const { return m_pRows ? m_pRows->GetGroupLevel(m_nIndex) : 0; }

int CXTPReportRow::GetTreeIndent(const CXTPReportColumn* pColumn) const {
    const CXTPReportControl* control = GetControl();
    if (!control || !m_pRecord || !pColumn || !pColumn->IsTreeColumn() || m_pRows->IsVirtual())
        return 0;
    // A tree may be deeper than any window is wide.
    constexpr int deepest = 1000;
    return (std::min(GetTreeDepth(), deepest) + 1) * control->GetPaintManager()->GetTreeIndent();
}

CRect CXTPReportRow::GetExpandButtonRect() const {
    const CXTPReportControl* control = GetControl();
    if (!control || !m_pRecord || !HasChildren())
        return CRect();
    const CXTPReportColumns* columns = control->GetColumns();
    for (int i = 0; i < columns->GetCount(); ++i) {
        const CXTPReportColumn* column = columns->GetAt(i);
        if (!column->IsVisible() || !column->IsTreeColumn())
            continue;
        // Nobody can press what frozen columns cover.
        CRect rcButton = ButtonPlace(GetCellsRect(), column);
        rcButton.left = std::max(rcButton.left, column->GetUncoveredRect().left);
        return rcButton.left < rcButton.right ? rcButton : CRect();
    }
    return CRect();
}

/// The last step of the indentation, as far as the cell goes.
CRect CXTPReportRow::ButtonPlace(const CRect& rcCells, const CXTPReportColumn* pColumn) const {
    CRect rcButton = InsideGridLines(WholeCell(rcCells, pColumn));
    const int right = rcButton.left + GetTreeIndent(pColumn);
    const int left = right - GetControl()->GetPaintManager()->GetTreeIndent();
    rcButton.right = std::min<int>(right, rcButton.right);
    rcButton.left = std::min<int>(left, rcButton.right);
    return rcButton;
}

// --- Places ---------------------------------------------------------------------------------------------------------

CRect CXTPReportRow::GetRect() const {
    const CXTPReportControl* control = GetControl();
    return control ? control->GetRowRect(m_nIndex) : CRect();
}

CRect CXTPReportRow::CellsOf(const CRect& rcRow) const {
    const int height = GetControl()->GetPaintManager()->GetRowHeight();
    return CRect(rcRow.left, rcRow.top, rcRow.right, std::min<int>(rcRow.top + height, rcRow.bottom));
}

/// Between the cells, whose lower grid line it covers, and the line under the row.
CRect CXTPReportRow::PreviewOf(const CRect& rcRow) const {
    const CXTPReportControl* control = GetControl();
    const int left = rcRow.left + control->GetPaintManager()->GetPreviewIndent();
    const CRect rcPreview(left, CellsOf(rcRow).bottom - 1, left + control->GetPreviewWidth(), rcRow.bottom - 1);
    const bool isShown = m_pRecord && m_pRecord->GetItemPreview() && rcPreview.Width() > 0 && rcPreview.Height() > 0;
    return isShown ? rcPreview : CRect();
}

CRect CXTPReportRow::GetCellsRect() const { return GetControl() ? CellsOf(GetRect()) : CRect(); }

CRect CXTPReportRow::GetPreviewRect() const { return GetControl() ? PreviewOf(GetRect()) : CRect(); }

CRect CXTPReportRow::GetItemRect(CXTPReportRecordItem* pItem) const {
    const CXTPReportControl* control = GetControl();
    const int index = pItem && pItem->GetRecord() == m_pRecord ? pItem->GetIndex() : -1;
    const CXTPReportColumn* column = control && index >= 0 ? control->GetColumns()->Find(index) : nullptr;
    if (!column || !column->IsVisible())
        return CRect();
    return ItemPlace(GetCellsRect(), column);
}

CRect CXTPReportRow::ItemPlace(const CRect& rcCells, const CXTPReportColumn* pColumn) const {
    CRect rcItem = InsideGridLines(WholeCell(rcCells, pColumn));
    rcItem.left = std::min<int>(rcItem.left + GetTreeIndent(pColumn), rcItem.right);
    return rcItem;
}

CXTPReportRecordItem* CXTPReportRow::HitTest(CPoint ptPoint, CRect* pRectItem, CXTPReportColumn** ppColumn) const {
    const CXTPReportControl* control = GetControl();
    const CRect rcRow = GetCellsRect();
    if (!control || !m_pRecord || ptPoint.y < rcRow.top || ptPoint.y >= rcRow.bottom)
        return nullptr;
    const CXTPReportColumns* columns = control->GetColumns();
    for (int i = 0; i < columns->GetCount(); ++i) {
        CXTPReportColumn* column = columns->GetAt(i);
        const CRect rcCell = WholeCell(rcRow, column);
        if (!column->IsVisible() || ptPoint.x < rcCell.left || ptPoint.x >= rcCell.right)
            continue;
        if (ptPoint.x < rcCell.left + GetTreeIndent(column))
            return nullptr;
        CXTPReportRecordItem* item = m_pRecord->GetItem(column);
        if (item && pRectItem)
            *pRectItem = ItemPlace(rcRow, column);
        if (item && ppColumn)
            *ppColumn = column;
        return item;
    }
    return nullptr;
}

// --- Drawing --------------------------------------------------------------------------------------------------------

void CXTPReportRow::Draw(CDC* pDC, const CRect& rcRow, const CRect& rcClip) {
    CXTPReportControl* control = GetControl();
    CRect rcDirty;
    if (!control || !rcDirty.IntersectRect(&rcRow, &rcClip))
        return;
    CXTPReportPaintManager* paintManager = control->GetPaintManager();
    XTP_REPORTRECORDITEM_METRICS metrics;
    paintManager->FillRowMetrics(this, &metrics);
    pDC->FillSolidRect(&rcDirty, metrics.clrBackground);

    const CRect rcCells = CellsOf(rcRow);
    int right = rcRow.left;
    const CXTPReportColumns* columns = control->GetColumns();
    for (int i = 0; i < columns->GetCount(); ++i) {
        CXTPReportColumn* column = columns->GetAt(i);
        if (!column->IsVisible())
            continue;
        const CRect rcCell = WholeCell(rcCells, column);
        right = std::max<int>(right, rcCell.right);
        if (rcCell.right <= rcClip.left || rcCell.left >= rcClip.right)
            continue;
        DrawUncovered(pDC, column, rcCell, [&] {
            DrawTree(pDC, column, rcCells, metrics);
            DrawCell(pDC, column, rcCells);
            paintManager->DrawGridLines(pDC, rcCell);
        });
    }
    // Beyond the last column only the line under the row goes on; its end lies outside, where nothing is drawn.
    if (right < rcDirty.right)
        paintManager->DrawGridLines(pDC, CRect(right, rcCells.top, rcCells.right + 1, rcCells.bottom));
    // Cells have an edge where they are frozen; what goes over the whole row has none.
    const int edge = control->GetReportHeader()->GetFreezeEdge();
    if (edge > rcCells.left)
        paintManager->DrawFreezeLine(pDC, CRect(edge - 1, rcCells.top, edge, rcCells.bottom));
    if (rcCells.bottom < rcRow.bottom)
        DrawPreview(pDC, rcRow, rcClip, metrics.clrBackground);
    DrawFocus(pDC, rcRow);
    if (!IsFocused() || !control->HasFocus() || !control->IsColumnFocusVisible())
        return;
    const CXTPReportColumn* const focused = control->GetFocusedColumn();
    const CRect rcFocused = ItemPlace(rcCells, focused);
    DrawUncovered(pDC, focused, rcFocused, [&] { paintManager->DrawFocusedCell(pDC, rcFocused, metrics); });
}

void CXTPReportRow::DrawFocus(CDC* pDC, const CRect& rcRow) {
    CXTPReportControl* control = GetControl();
    if (control && IsFocused() && control->HasFocus())
        control->GetPaintManager()->DrawFocusedRow(pDC, rcRow);
}

void CXTPReportRow::DrawTree(CDC* pDC, const CXTPReportColumn* pColumn, const CRect& rcCells,
                             const XTP_REPORTRECORDITEM_METRICS& metrics) {
    const int indent = GetTreeIndent(pColumn);
    if (indent == 0)
        return;
    CXTPReportPaintManager* paintManager = GetControl()->GetPaintManager();
    const CRect rcCell = WholeCell(rcCells, pColumn);
    paintManager->DrawTreeLines(pDC, this, CRect(rcCell.left, rcCell.top, rcCell.left + indent, rcCell.bottom),
                                rcCell.right);
    const CRect rcButton = ButtonPlace(rcCells, pColumn);
    if (HasChildren() && rcButton.Width() == paintManager->GetTreeIndent())
        paintManager->DrawExpandButton(pDC, rcButton, IsExpanded(), metrics);
}

void CXTPReportRow::DrawCell(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcCells) {
    CXTPReportRecordItem* item = m_pRecord ? m_pRecord->GetItem(pColumn) : nullptr;
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.rcItem = ItemPlace(rcCells, pColumn);
    if (!item || args.rcItem.IsRectEmpty())
        return;
    args.pDC = pDC;
    args.pControl = GetControl();
    args.pRow = this;
    args.pColumn = pColumn;
    args.pItem = item;
    args.nTextAlign = pColumn->GetAlignment();
    item->Draw(&args);
}

void CXTPReportRow::DrawPreview(CDC* pDC, const CRect& rcRow, const CRect& rcClip, COLORREF clrBackground) {
    CXTPReportControl* control = GetControl();
    // The line under the cells gives way; the one under the row takes its place.
    const CRect rcBelow(rcRow.left, CellsOf(rcRow).bottom - 1, rcRow.right, rcRow.bottom);
    CRect rcFill;
    if (!rcFill.IntersectRect(&rcBelow, &rcClip))
        return;
    pDC->FillSolidRect(&rcFill, clrBackground);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.rcItem = PreviewOf(rcRow);
    if (!args.rcItem.IsRectEmpty()) {
        args.pDC = pDC;
        args.pControl = control;
        args.pRow = this;
        args.pItem = m_pRecord->GetItemPreview();
        args.pItem->Draw(&args);
    }
    // Its line at the right lies outside, where nothing is drawn.
    control->GetPaintManager()->DrawGridLines(pDC, CRect(rcBelow.left, rcBelow.top, rcBelow.right + 1, rcBelow.bottom));
}
