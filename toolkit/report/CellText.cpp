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
#include "../common/BackBuffer.h"

#include <algorithm>
#include <typeinfo>

namespace {

XTP_REPORTRECORDITEM_DRAWARGS CellArgs(CXTPReportControl& control, CXTPReportRow* row, CXTPReportColumn* column,
                                       CXTPReportRecordItem* item) {
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pControl = &control;
    args.pRow = row;
    args.rcItem = row->GetItemRect(item);
    args.pColumn = column;
    args.pItem = item;
    args.nTextAlign = column->GetAlignment();
    return args;
}

bool IsOneColor(CDC& dib, CSize size) {
    ::GdiFlush();
    DIBSECTION section = {};
    ::GetObject(::GetCurrentObject(dib, OBJ_BITMAP), sizeof(section), &section);
    const auto* line = static_cast<const COLORREF*>(section.dsBm.bmBits);
    const COLORREF first = line[0];
    for (int y = 0; y < size.cy; ++y, line += section.dsBm.bmWidth)
        if (std::any_of(line, line + size.cx, [first](COLORREF pixel) { return (pixel ^ first) << 8 != 0; }))
            return false;
    return true;
}

/// Whether a cell without a text draws something else. Its kind does not tell, so it has to draw.
bool DrawsPicture(XTP_REPORTRECORDITEM_DRAWARGS args, COLORREF background) {
    const std::type_info& kind = typeid(*args.pItem);
    if (kind == typeid(CXTPReportRecordItem) || kind == typeid(CXTPReportRecordItemText) ||
        kind == typeid(CXTPReportRecordItemNumber))
        return false;
    BackBuffer buffer;
    args.pDC = buffer.Prepare(args.rcItem.Size());
    if (!args.pDC)
        return false;
    // The cell draws where it stands in the control, and is seen at the picture's corner.
    args.pDC->SetViewportOrg(-args.rcItem.left, -args.rcItem.top);
    args.pDC->FillSolidRect(&args.rcItem, background);
    args.pItem->Draw(&args);
    return !IsOneColor(*args.pDC, args.rcItem.Size());
}

} // namespace

XTP_REPORTRECORDITEM_METRICS CellMetrics(CXTPReportControl& control, CXTPReportRow* row, CXTPReportColumn* column,
                                         CXTPReportRecordItem* item) {
    XTP_REPORTRECORDITEM_DRAWARGS args = CellArgs(control, row, column, item);
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
    return BestFitWidthBefore(std::chrono::steady_clock::now() + BestFitTime);
}

/// Looks at one cell at least, and stops at the deadline.
int CXTPReportColumn::BestFitWidthBefore(std::chrono::steady_clock::time_point deadline) const {
    CXTPReportControl* control = GetControl();
    if (!control)
        return m_nWidth;
    const CXTPReportPaintManager* paintManager = control->GetPaintManager();
    const int space = 2 * paintManager->GetCellPadding() + 1;
    int width = paintManager->GetTextWidth(m_strCaption) + paintManager->GetSortMarkSpace(this) + space;
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
        if (!metrics.strText.IsEmpty())
            width = std::max(width, CellTextWidth(metrics) + row->GetTreeIndent(this) + space);
        else if (width < m_nWidth && DrawsPicture(CellArgs(*control, row, column, item), metrics.clrBackground))
            width = m_nWidth; // a picture has no natural width
        if (std::chrono::steady_clock::now() >= deadline)
            break;
    }
    return std::clamp(width, m_nMinWidth, m_nMaxWidth);
}
