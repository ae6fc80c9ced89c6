// The slider of one column's target.
#include "window/ColumnTargetItem.h"

#include "common/Translation.h"
#include "window/PlotTip.h"

ColumnTargetItem::ColumnTargetItem(const statistics::Summary& values, std::function<CString(double)> valueText)
    : TargetSlider(values), m_valueText(std::move(valueText)) {
    constexpr COLORREF kQuartile = RGB(38, 84, 168);
    constexpr COLORREF kMedian = RGB(228, 168, 0);
    SetLimitValues({{PlotValue(values.quantile25), kQuartile},
                    {PlotValue(values.median), kMedian},
                    {PlotValue(values.quantile75), kQuartile}});
    ShowLimits(true);
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
    return PlotTip(GetInfoTip(), m_itemRect, tool);
}
