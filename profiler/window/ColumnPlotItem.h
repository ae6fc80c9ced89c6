// The plot of one column of numbers.
#pragma once

#include "plotcells/KyBarChartRecordItem.h"
#include "statistics/Summary.h"
#include "window/LimitCell.h"

/// A bar from mean - standard deviation to mean + standard deviation on the scale from minimum to maximum, with
/// whiskers at the 5 % and the 95 % quantile and the median as target. Its ends and the target are limits that the user
/// drags. Shows the value under the pointer as its tool tip.
class ColumnPlotItem : public LimitCell<KyBarChartRecordItem> {
public:
    /// Needs numbers that are not all the same: see `CanShow`.
    explicit ColumnPlotItem(const statistics::Summary& numbers);

    /// Whether there is a scale to draw on.
    static bool CanShow(const statistics::Summary& numbers);

    /// How much of the scale lies between the limits.
    double Rank() const override { return (m_upper - m_lower) / (GetMax() - GetMin()); }

    /// The limits that the plots of a column start with.
    static statistics::Limits InitialLimits(const statistics::Summary& numbers);
};
