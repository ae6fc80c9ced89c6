// The slider of one column's target on a scale that the user types.
#include "window/ColumnScaleItem.h"

#include "common/Translation.h"
#include "window/ColumnPlotItem.h"

ColumnScaleItem::ColumnScaleItem(const statistics::Summary& values) {
    SetMargin(0.08);
    SetTargetValues(PlotValue(ColumnPlotItem::InitialLimits(values).target), PlotValue(values.minimum),
                    PlotValue(values.maximum));
    SetSliderTooltip(Translate("Drag the target"));
    SetMinimumTooltip(Translate("Click to type the left end of the scale"));
    SetMaximumTooltip(Translate("Click to type the right end of the scale"));
}

void ColumnScaleItem::OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) {
    KyDragLineMinMaxRecordItem::OnMouseMove(flags, point, control);
    if (m_draggingCenter && m_listener.moved)
        m_listener.moved(GetTarget());
}

void ColumnScaleItem::EndDrag(CPoint point, CRect cell, bool apply) {
    KyDragLineMinMaxRecordItem::EndDrag(point, cell, apply);
    // A cell that was taken out of the grid during its drag has nothing to tell any more.
    if (GetReportControl() != nullptr && m_listener.released)
        m_listener.released(GetTarget());
}
