// The slider of one column's target on a scale that the user types.
#pragma once

#include "plotcells/KyDragLineMinMaxRecordItem.h"
#include "statistics/Summary.h"
#include "window/ColumnTargetItem.h"

/// The target of a column of numbers as a slider. Its scale begins as that from minimum to maximum; a click on one of
/// the ends edits it, and the grid decides about what was typed.
class ColumnScaleItem : public KyDragLineMinMaxRecordItem {
public:
    explicit ColumnScaleItem(const statistics::Summary& values);

    void SetListener(ColumnTargetItem::Listener listener) { m_listener = std::move(listener); }

    void OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) override;
    void EndDrag(CPoint point, CRect cell, bool apply) override;

private:
    ColumnTargetItem::Listener m_listener;
};
