// The plot of one column of numbers.
#pragma once

#include "plotcells/KyBarChartRecordItem.h"
#include "statistics/Limits.h"
#include "statistics/Summary.h"

#include <functional>

/// A bar from mean - standard deviation to mean + standard deviation on the scale from minimum to maximum, with
/// whiskers at the 5 % and the 95 % quantile and the median as target. Its ends and the target are limits that the user
/// drags. Shows the value under the pointer as its tool tip.
class ColumnPlotItem : public KyBarChartRecordItem {
public:
    enum class Mark { None, Lower, Target, Upper };

    /// What the plot tells while the user drags; both run on the user-interface thread.
    struct Listener {
        std::function<void(Mark mark, double value)> moved; ///< the mark is now drawn at this value
        std::function<void()> abandoned;                    ///< the button went up elsewhere: nothing has changed
    };

    /// Needs numbers that are not all the same: see `CanShow`.
    explicit ColumnPlotItem(const statistics::Summary& numbers);

    /// Whether there is a scale to draw on.
    static bool CanShow(const statistics::Summary& numbers);

    /// The limits that the plot starts with.
    static statistics::Limits InitialLimits(const statistics::Summary& numbers);

    void SetListener(Listener listener) { m_listener = std::move(listener); }

    void OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) override;
    void EndDrag(CPoint point, CRect cell, bool apply) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) override;

private:
    Mark DraggedMark() const;

    Listener m_listener;
};
