// The slider of one column's target.
#pragma once

#include "plotcells/KyDragLineRecordItem.h"
#include "statistics/Summary.h"

#include <functional>

/// The target of a column as a slider on the scale from minimum to maximum, with marks at the median (gold) and the two
/// other quartiles. Tells of every move.
class ColumnTargetItem : public KyDragLineRecordItem {
public:
    /// What the slider tells; both run on the user-interface thread, with the target as it is now.
    struct Listener {
        std::function<void(double target)> moved;    ///< during a drag
        std::function<void(double target)> released; ///< at its end, and after a click beside the handle
    };

    /// @param valueText  turns a value of the column into text
    ColumnTargetItem(const statistics::Summary& values, std::function<CString(double)> valueText);

    void SetListener(Listener listener) { m_listener = std::move(listener); }

    void OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) override;
    void EndDrag(CPoint point, CRect cell, bool apply) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) override;
    CString GetInfoTip() const override;

private:
    Listener m_listener;
    std::function<CString(double)> m_valueText;
};
