// What the plots of a column have in common whose lower limit, target and upper limit the user drags.
#pragma once

#include "plotcells/KyPlotRecordItem.h"
#include "statistics/Limits.h"
#include "window/PlotRank.h"
#include "window/PlotTip.h"

#include <algorithm>
#include <functional>
#include <limits>

enum class LimitMark { None, Lower, Target, Upper };

/// What a plot tells while the user drags; both run on the user-interface thread.
struct LimitListener {
    std::function<void(LimitMark mark, double value)> moved; ///< the mark is now drawn at this value
    std::function<void()> abandoned;                         ///< the button went up elsewhere: nothing has changed
};

/// A value for a plot: finite, in single precision, in which plots report it, and never the number that means "no
/// value" there.
inline float PlotValue(double value) {
    constexpr double kLargest = std::numeric_limits<float>::max();
    const float narrowed = static_cast<float>(std::clamp(value, -kLargest, kLargest));
    return narrowed == KyMissingValueF ? -99.0001f : narrowed;
}

/// A plot cell of the library with its limits as a whole, which tells of every move and shows the text of its tip.
template <class Cell>
class LimitCell : public Cell, public PlotRank {
public:
    void SetListener(LimitListener listener) { m_listener = std::move(listener); }

    /// Shows the limits at the grid's next redraw.
    void SetLimits(const statistics::Limits& limits) {
        this->m_lower = PlotValue(limits.lower);
        this->m_target = PlotValue(limits.target);
        this->m_upper = PlotValue(limits.upper);
    }

    void OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) override {
        Cell::OnMouseMove(flags, point, control);
        const LimitMark mark = DraggedMark();
        if (mark == LimitMark::None || !m_listener.moved)
            return;
        const double fraction = (this->m_dragPos - this->m_margin) / (1 - 2 * this->m_margin);
        m_listener.moved(mark, fraction * (this->GetMax() - this->GetMin()) + this->GetMin());
    }

    void EndDrag(CPoint point, CRect cell, bool apply) override {
        const bool abandoned = DraggedMark() != LimitMark::None && !apply;
        Cell::EndDrag(point, cell, apply);
        if (abandoned && m_listener.abandoned)
            m_listener.abandoned();
    }

    int Compare(CXTPReportColumn*, CXTPReportRecordItem* item) override { return ComparePlots(*this, item); }

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) override {
        if (DraggedMark() != LimitMark::None)
            return -1; // the status bar tells the value then, and a tip would hide the plot
        // The tip is asked for before the move reaches the cell, and its text is that of the last move.
        Cell::OnMouseMove(0, point, nullptr);
        return PlotTip(this->GetInfoTip(), this->m_itemRect, tool);
    }

private:
    LimitMark DraggedMark() const {
        if (this->m_draggingLower)
            return LimitMark::Lower;
        if (this->m_draggingUpper)
            return LimitMark::Upper;
        return this->m_draggingCenter ? LimitMark::Target : LimitMark::None;
    }

    LimitListener m_listener;
};
