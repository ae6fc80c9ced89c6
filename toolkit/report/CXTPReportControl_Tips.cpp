// The tool tips of a report control: of headers, of cells, and of texts that are cut off.
#include "ReportControlImpl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"

#include "CellText.h"
#include <cstdlib>

namespace {

/// Tool numbers of header columns; those of buttons in the group-by box, and of cells, begin above.
constexpr INT_PTR FirstHeaderTool = 1;
constexpr INT_PTR FirstGroupTool = INT_PTR{1} << 23;
constexpr INT_PTR FirstCellTool = INT_PTR{1} << 24;

/// The text of a cell that does not fit into it; empty when there is nothing to add to what one sees.
CString CutOffText(CXTPReportControl& control, const CellHit& hit) {
    const XTP_REPORTRECORDITEM_METRICS metrics = CellMetrics(control, hit.row, hit.column, hit.item);
    const int room = hit.rcItem.Width() - 2 * control.GetPaintManager()->GetCellPadding();
    return CellTextWidth(metrics) > room ? metrics.strText : CString();
}

/// The rank of a column by which rows are sorted together with others; empty for all else.
CString SortRankText(const CXTPReportColumn& column) {
    const int count = column.GetColumns()->GetSortOrder()->GetCount();
    if (!column.IsSorted() || count < 2)
        return CString();
    CString text = column.GetControl()->GetText(xtpReportTextSortRank), number;
    number.Format(_T("%d"), column.GetSortRank());
    text.Replace(_T("%1"), number);
    number.Format(_T("%d"), count);
    text.Replace(_T("%2"), number);
    return text;
}

CString HeaderTip(const CXTPReportColumn& column, const CXTPReportPaintManager& paintManager) {
    CString tip = column.GetTooltip();
    const CString rank = SortRankText(column);
    const int room = column.GetWidth() - 2 * paintManager.GetCellPadding() - paintManager.GetSortMarkSpace(&column);
    if (tip.IsEmpty() && (!rank.IsEmpty() || paintManager.GetTextWidth(column.GetCaption()) > room))
        tip = column.GetCaption();
    if (!tip.IsEmpty() && !rank.IsEmpty())
        tip += _T("\r\n");
    return tip + rank;
}

} // namespace

INT_PTR CXTPReportControl::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const CXTPReportPaintManager& paintManager = *GetPaintManager();
    if (const CXTPReportColumn* column = m_impl->header->HitTest(point)) {
        const CString text = HeaderTip(*column, paintManager);
        if (text.IsEmpty())
            return -1;
        const INT_PTR headerId = FirstHeaderTool + column->GetIndex();
        CXTPToolTipContext::FillInToolInfo(pTI, m_hWnd, column->GetUncoveredRect(), headerId, text);
        return headerId;
    }
    if (const CXTPReportColumn* column = m_impl->header->HitTestGroup(point)) {
        const CRect rcButton = m_impl->header->GetGroupRect(column);
        const bool isCutOff = rcButton.Width() < paintManager.GetGroupByButtonWidth(column);
        const CString text = column->GetTooltip().IsEmpty() && isCutOff ? column->GetCaption() : column->GetTooltip();
        if (text.IsEmpty())
            return -1;
        const INT_PTR groupId = FirstGroupTool + column->GetIndex();
        CXTPToolTipContext::FillInToolInfo(pTI, m_hWnd, rcButton, groupId, text);
        return groupId;
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
