// The slider of one column's target.
#pragma once

#include "plotcells/KyDragLineRecordItem.h"
#include "window/TargetSlider.h"

#include <functional>

/// The target of a column as a slider on the scale from minimum to maximum, with marks at the median (gold) and the two
/// other quartiles.
class ColumnTargetItem : public TargetSlider<KyDragLineRecordItem> {
public:
    /// @param valueText  turns a value of the column into text
    ColumnTargetItem(const statistics::Summary& values, std::function<CString(double)> valueText);

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) override;
    CString GetInfoTip() const override;

private:
    std::function<CString(double)> m_valueText;
};
