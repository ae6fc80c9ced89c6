// What a cell shows as text, and the width that a column needs for its cells' texts.
#include "CellText.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportPaintManager.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRow.h"
#include "CXTPReportRows.h"

#include "../../framework/gdi/SelectGuard.h"

#include <algorithm>

XTP_REPORTRECORDITEM_METRICS CellMetrics(CXTPReportControl& control, CXTPReportRow* row, CXTPReportColumn* column,
                                         CXTPReportRecordItem* item) {
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pControl = &control;
    args.pRow = row;
    args.rcItem = row->GetItemRect(item);
    args.pColumn = column;
    args.pItem = item;
    XTP_REPORTRECORDITEM_METRICS metrics;
    control.GetPaintManager()->FillRowMetrics(row, &metrics);
    if (CXTPReportRecord* record = row->GetRecord())
        record->GetItemMetrics(&args, &metrics);
    item->GetItemMetrics(&args, &metrics);
    return metrics;
}

int CellTextWidth(const XTP_REPORTRECORDITEM_METRICS& metrics) {
    CClientDC dc(nullptr);
    const SelectGuard select(dc, metrics.pFont);
    return dc.GetTextExtent(metrics.strText).cx;
}

int CXTPReportColumn::GetBestFitWidth() const {
    CXTPReportControl* control = GetControl();
    if (!control)
        return m_nWidth;
    const CXTPReportPaintManager* paintManager = control->GetPaintManager();
    int width = paintManager->GetTextWidth(m_strCaption) + (IsSorted() ? paintManager->GetSortArrowSpace() : 0);
    const CXTPReportRows* rows = control->GetRows();
    // The last row may be cut off; it is seen as well.
    const int end = std::min(control->GetTopRowIndex() + control->GetFullyVisibleRowCount() + 1, rows->GetCount());
    CXTPReportColumn* column = control->GetColumns()->GetAt(GetIndex());
    for (int index = control->GetTopRowIndex(); index < end; ++index) {
        CXTPReportRow* row = rows->GetAt(index);
        CXTPReportRecordItem* item = row && row->GetRecord() ? row->GetRecord()->GetItem(this) : nullptr;
        if (item)
            width = std::max(width, CellTextWidth(CellMetrics(*control, row, column, item)));
    }
    return std::clamp(width + 2 * paintManager->GetCellPadding() + 1, m_nMinWidth, m_nMaxWidth);
}
