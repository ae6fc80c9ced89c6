// The slider of one column's target.
#include "window/ColumnTargetItem.h"

#include "common/Translation.h"
#include "window/ColumnPlotItem.h"

ColumnTargetItem::ColumnTargetItem(const statistics::Summary& values, std::function<CString(double)> valueText)
    : m_valueText(std::move(valueText)) {
    constexpr COLORREF kQuartile = RGB(38, 84, 168);
    constexpr COLORREF kMedian = RGB(228, 168, 0);
    SetMargin(0.08);
    SetTargetValues(PlotValue(ColumnPlotItem::InitialLimits(values).target), PlotValue(values.minimum),
                    PlotValue(values.maximum));
    SetLimitValues({{PlotValue(values.quantile25), kQuartile},
                    {PlotValue(values.median), kMedian},
                    {PlotValue(values.quantile75), kQuartile}});
    ShowLimits(true);
}

void ColumnTargetItem::OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) {
    KyDragLineRecordItem::OnMouseMove(flags, point, control);
    if (m_draggingCenter && m_listener.moved)
        m_listener.moved(GetTarget());
}

void ColumnTargetItem::EndDrag(CPoint point, CRect cell, bool apply) {
    KyDragLineRecordItem::EndDrag(point, cell, apply);
    // A cell that was taken out of the grid during its drag has nothing to tell any more.
    if (GetReportControl() != nullptr && m_listener.released)
        m_listener.released(GetTarget());
}

CString ColumnTargetItem::GetInfoTip() const {
    const double place = (m_dragPos - m_margin) / (1 - 2 * m_margin);
    if (!(place >= 0 && place <= 1))
        return CString();
    return TranslateFormat("Target tip", "%1% (target: %2%)",
                           m_valueText(place * (GetMax() - GetMin()) + GetMin()).GetString(),
                           m_valueText(GetTarget()).GetString());
}

INT_PTR ColumnTargetItem::OnToolHitTest(CPoint point, TOOLINFO* tool) {
    if (m_draggingCenter)
        return -1; // the status bar tells the value then
    // The tip is asked for before the move reaches the cell, and its text is that of the last move.
    KyDragLineRecordItem::OnMouseMove(0, point, nullptr);
    const CString text = GetInfoTip();
    if (text.IsEmpty())
        return -1;
    if (tool != nullptr) {
        tool->rect = m_itemRect;
        tool->lpszText = _wcsdup(text);
    }
    return 0; // the grid numbers its cells
}
