// What the sliders of a column's target have in common.
#pragma once

#include "plotcells/KyPlotRecordItem.h"
#include "statistics/Summary.h"
#include "window/ColumnPlotItem.h"
#include "window/PlotRank.h"

#include <functional>

/// What a slider tells; both run on the user-interface thread, with the target as it is now.
struct TargetListener {
    std::function<void(double target)> moved;    ///< during a drag
    std::function<void(double target)> released; ///< at its end, and after a click beside the handle
};

/// A slider of the library with the target of a column on the scale from minimum to maximum, which tells of every move.
template <class Cell>
class TargetSlider : public Cell, public PlotRank {
public:
    explicit TargetSlider(const statistics::Summary& values) {
        this->SetMargin(0.08);
        this->SetTargetValues(PlotValue(ColumnPlotItem::InitialLimits(values).target), PlotValue(values.minimum),
                              PlotValue(values.maximum));
    }

    void SetListener(TargetListener listener) { m_listener = std::move(listener); }

    void OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) override {
        Cell::OnMouseMove(flags, point, control);
        if (this->m_draggingCenter && m_listener.moved)
            m_listener.moved(this->GetTarget());
    }

    void EndDrag(CPoint point, CRect cell, bool apply) override {
        Cell::EndDrag(point, cell, apply);
        // A cell that was taken out of the grid during its drag has nothing to tell any more.
        if (this->GetReportControl() != nullptr && m_listener.released)
            m_listener.released(this->GetTarget());
    }

    int Compare(CXTPReportColumn*, CXTPReportRecordItem* item) override { return ComparePlots(*this, item); }
    /// Where on its scale the target is.
    double Rank() const override { return (this->GetTarget() - this->GetMin()) / (this->GetMax() - this->GetMin()); }

private:
    TargetListener m_listener;
};
