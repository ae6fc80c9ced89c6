// The tool tips of a report control: of headers, of cells, and of texts that are cut off.
#include "ReportControlImpl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"

#include "CellText.h"
#include <cstdlib>

namespace {

/// Tool numbers of header columns; those of cells begin above.
constexpr INT_PTR FirstHeaderTool = 1;
constexpr INT_PTR FirstCellTool = INT_PTR{1} << 24;

/// The text of a cell that does not fit into it; empty when there is nothing to add to what one sees.
CString CutOffText(CXTPReportControl& control, const CellHit& hit) {
    const XTP_REPORTRECORDITEM_METRICS metrics = CellMetrics(control, hit.row, hit.column, hit.item);
    const int room = hit.rcItem.Width() - 2 * control.GetPaintManager()->GetCellPadding();
    return CellTextWidth(metrics) > room ? metrics.strText : CString();
}

} // namespace

INT_PTR CXTPReportControl::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    if (const CXTPReportColumn* column = m_impl->header->HitTest(point)) {
        CXTPReportPaintManager* paintManager = GetPaintManager();
        CString text = column->GetTooltip();
        const int room = column->GetWidth() - 2 * paintManager->GetCellPadding() -
                         (column->IsSorted() ? paintManager->GetSortArrowSpace() : 0);
        if (text.IsEmpty() && paintManager->GetTextWidth(column->GetCaption()) > room)
            text = column->GetCaption();
        if (text.IsEmpty())
            return -1;
        const INT_PTR headerId = FirstHeaderTool + column->GetIndex();
        CXTPToolTipContext::FillInToolInfo(pTI, m_hWnd, column->GetRect(), headerId, text);
        return headerId;
    }
    m_impl->RefreshMovedRow(m_impl->RowAt(point));
    const CellHit hit = m_impl->HitCell(point);
    if (!hit.item)
        return -1;
    // A number of the cell's own choice would not tell one cell from the next.
    const INT_PTR id = FirstCellTool + ((INT_PTR{hit.rowIndex} << 20) | hit.column->GetIndex());
    TOOLINFO ofItem = {};
    ofItem.cbSize = sizeof(ofItem);
    const bool isTool = hit.item->OnToolHitTest(point, &ofItem) != -1;
    const CString itemText = isTool ? ofItem.lpszText : nullptr;
    std::free(ofItem.lpszText);
    const CString text = isTool ? itemText : CutOffText(m_impl->control, hit);
    if (text.IsEmpty())
        return -1;
    CXTPToolTipContext::FillInToolInfo(pTI, m_hWnd, isTool ? CRect(ofItem.rect) : hit.rcItem, id, text);
    return id;
}

BOOL CXTPReportControl::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == m_hWnd) {
        const WindowGuard guard(*this);
        m_impl->toolTips.FilterToolTipMessage(this, pMsg->message, pMsg->wParam, pMsg->lParam);
        if (guard.IsGone())
            return TRUE;
    }
    return CWnd::PreTranslateMessage(pMsg);
}
