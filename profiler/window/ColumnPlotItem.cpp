// The plot of one column of numbers.
#include "window/ColumnPlotItem.h"

#include <algorithm>
#include <limits>

namespace {

/// A value for the plot: single precision, finite, and never the number that means "no value" there.
float PlotValue(double value) {
    constexpr double kLargest = std::numeric_limits<float>::max();
    const float narrowed = static_cast<float>(std::clamp(value, -kLargest, kLargest));
    return narrowed == KyMissingValueF ? -99.0001f : narrowed;
}

} // namespace

bool ColumnPlotItem::CanShow(const statistics::Summary& numbers) {
    return numbers.count > 0 && PlotValue(numbers.minimum) < PlotValue(numbers.maximum);
}

statistics::Limits ColumnPlotItem::InitialLimits(const statistics::Summary& numbers) {
    const double deviation = numbers.standardDeviation.value_or(0);
    return {numbers.mean - deviation, numbers.median, numbers.mean + deviation};
}

ColumnPlotItem::ColumnPlotItem(const statistics::Summary& numbers) {
    const statistics::Limits limits = InitialLimits(numbers);
    SetError(PlotValue(limits.target), PlotValue(numbers.minimum), PlotValue(numbers.maximum), PlotValue(limits.lower),
             PlotValue(limits.upper), PlotValue(numbers.quantile5), PlotValue(numbers.quantile95), KyMissingValueF,
             KyMissingValueF);
    // Free ends: mean and median differ, so a bar kept symmetric about the median would jump.
    SetDistribution(DistributionTarget, true);
    // Light enough for the black whisker on it, dark enough for the bar's ends to be found with the mouse.
    SetColors(RGB(38, 84, 168), RGB(168, 200, 240));
}

ColumnPlotItem::Mark ColumnPlotItem::DraggedMark() const {
    if (m_draggingLower)
        return Mark::Lower;
    if (m_draggingUpper)
        return Mark::Upper;
    return m_draggingCenter ? Mark::Target : Mark::None;
}

void ColumnPlotItem::OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) {
    KyBarChartRecordItem::OnMouseMove(flags, point, control);
    const Mark mark = DraggedMark();
    if (mark == Mark::None || !m_listener.moved)
        return;
    const double fraction = (m_dragPos - m_margin) / (1 - 2 * m_margin);
    m_listener.moved(mark, fraction * (GetMax() - GetMin()) + GetMin());
}

void ColumnPlotItem::EndDrag(CPoint point, CRect cell, bool apply) {
    const bool abandoned = DraggedMark() != Mark::None && !apply;
    KyBarChartRecordItem::EndDrag(point, cell, apply);
    if (abandoned && m_listener.abandoned)
        m_listener.abandoned();
}

INT_PTR ColumnPlotItem::OnToolHitTest(CPoint point, TOOLINFO* tool) {
    if (DraggedMark() != Mark::None)
        return -1; // the status bar tells the value then, and a tip would hide the plot
    // The tip is asked for before the move reaches the cell, and its text is that of the last move.
    KyBarChartRecordItem::OnMouseMove(0, point, nullptr);
    const CString text = GetInfoTip();
    if (text.IsEmpty())
        return -1;
    if (tool != nullptr) {
        tool->rect = m_itemRect;
        tool->lpszText = _wcsdup(text);
    }
    return 0; // the grid numbers its cells
}
