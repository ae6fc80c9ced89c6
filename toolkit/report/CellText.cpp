// What a cell shows as text, and the width that a column needs for its cells' texts.
#include "CellText.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportPaintManager.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRecordItemNumber.h"
#include "CXTPReportRecordItemText.h"
#include "CXTPReportRow.h"
#include "CXTPReportRows.h"

#include "../../framework/gdi/SelectGuard.h"

#include <algorithm>
#include <typeinfo>

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

namespace {

/// A cell of a kind of its own that has no text draws something else, which has no natural width.
bool IsPicture(const CXTPReportRecordItem& item, const CString& text) {
    return text.IsEmpty() && typeid(item) != typeid(CXTPReportRecordItem) &&
           !dynamic_cast<const CXTPReportRecordItemText*>(&item) &&
           !dynamic_cast<const CXTPReportRecordItemNumber*>(&item);
}

} // namespace

int CXTPReportColumn::GetBestFitWidth() const {
    return BestFitWidthBefore(std::chrono::steady_clock::now() + BestFitTime);
}

/// Looks at one cell at least, and stops at the deadline.
int CXTPReportColumn::BestFitWidthBefore(std::chrono::steady_clock::time_point deadline) const {
    CXTPReportControl* control = GetControl();
    if (!control)
        return m_nWidth;
    const CXTPReportPaintManager* paintManager = control->GetPaintManager();
    const int space = 2 * paintManager->GetCellPadding() + 1;
    int width = paintManager->GetTextWidth(m_strCaption) + (IsSorted() ? paintManager->GetSortArrowSpace() : 0) + space;
    const CXTPReportRows* rows = control->GetRows();
    // The last row may be cut off; it is seen as well.
    const int end = std::min(control->GetTopRowIndex() + control->GetFullyVisibleRowCount() + 1, rows->GetCount());
    CXTPReportColumn* column = control->GetColumns()->GetAt(GetIndex());
    for (int index = control->GetTopRowIndex(); index < end; ++index) {
        CXTPReportRow* row = rows->GetAt(index);
        CXTPReportRecordItem* item = row && row->GetRecord() ? row->GetRecord()->GetItem(this) : nullptr;
        if (!item)
            continue;
        const XTP_REPORTRECORDITEM_METRICS metrics = CellMetrics(*control, row, column, item);
        width = std::max(width, IsPicture(*item, metrics.strText) ? m_nWidth : CellTextWidth(metrics) + space);
        if (std::chrono::steady_clock::now() >= deadline)
            break;
    }
    return std::clamp(width, m_nMinWidth, m_nMaxWidth);
}
