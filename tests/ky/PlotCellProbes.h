// Plot cells opened to the tests, and the surroundings that they are tested in.
#pragma once

#include "KyTestApp.h"

#include <plotcells/KyBarChartRecordItem.h>
#include <plotcells/KyDragLineRecordItem.h>
#include <plotcells/KyHistogramRecordItem.h>
#include <plotcells/KyPlotRecordItem.h>
#include <plotcells/KyPlotRecordReportControl.h>

#include <gtest/gtest.h>

#include <array>
#include <vector>

/// A plot cell on the scale 0…100 without margin, so that a fraction reads as a value of a hundredth. It draws nothing
/// but its background.
class ProbeCell : public KyPlotRecordItem {
public:
    ProbeCell() {
        ++Alive();
        SetMargin(0.0);
    }
    ~ProbeCell() override { --Alive(); }

    /// How many probes exist now.
    static int& Alive() {
        static int count = 0;
        return count;
    }

    double GetMin() const override { return min; }
    double GetMax() const override { return max; }
    CString GetInfoTip() const override { return CString(); }
    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS*) override {
        ++drawings;
        lastArgs = *args;
        m_itemRect = args->rcItem;
        m_itemRect.InflateRect(-1, -1);
    }

    void SetValues(double lower, double target, double upper) {
        m_lower = lower;
        m_target = target;
        m_upper = upper;
    }

    double min = 0.0;
    double max = 100.0;
    int drawings = 0;
    XTP_REPORTRECORDITEM_DRAWARGS lastArgs{};

    using KyPlotRecordItem::m_allowInteraction;
    using KyPlotRecordItem::m_draggingCenter;
    using KyPlotRecordItem::m_draggingLower;
    using KyPlotRecordItem::m_draggingUpper;
    using KyPlotRecordItem::m_dragMoved;
    using KyPlotRecordItem::m_dragPos;
    using KyPlotRecordItem::m_dragStartValue;
    using KyPlotRecordItem::m_itemRect;
    using KyPlotRecordItem::m_lower;
    using KyPlotRecordItem::m_margin;
    using KyPlotRecordItem::m_supportDragTarget;
    using KyPlotRecordItem::m_target;
    using KyPlotRecordItem::m_targetColor;
    using KyPlotRecordItem::m_upper;
};

/// A bar chart cell with its members and its drawing opened.
class ProbeBar : public KyBarChartRecordItem {
public:
    using KyBarChartRecordItem::m_barColor;
    using KyBarChartRecordItem::m_barLightColor;
    using KyBarChartRecordItem::m_distribution;
    using KyBarChartRecordItem::m_distributionEnabled;
    using KyBarChartRecordItem::m_dragPos;
    using KyBarChartRecordItem::m_errorHigh;
    using KyBarChartRecordItem::m_errorLow;
    using KyBarChartRecordItem::m_lower;
    using KyBarChartRecordItem::m_optimizerFacHighColor;
    using KyBarChartRecordItem::m_optimizerFacLowColor;
    using KyBarChartRecordItem::m_optimizerHigh;
    using KyBarChartRecordItem::m_optimizerLow;
    using KyBarChartRecordItem::m_scaleMax;
    using KyBarChartRecordItem::m_scaleMin;
    using KyBarChartRecordItem::m_target;
    using KyBarChartRecordItem::m_upper;
    using KyBarChartRecordItem::OnDrawCaption;
};

/// Everything that a cell's signal reported, as (lower, target, upper).
class Reports {
public:
    explicit Reports(KyPlotRecordItem& cell) {
        cell.m_valueChanged.connect([this](float lower, float target, float upper) {
            all.push_back({lower, target, upper});
        });
    }

    std::vector<std::array<float, 3>> all;
};

/// A plot grid that notes what happens to it.
class ProbePlotGrid : public KyPlotRecordReportControl {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_SETCURSOR)
            setCursors.push_back({wParam, lParam});
        return KyPlotRecordReportControl::WindowProc(message, wParam, lParam);
    }

    struct SetCursorMessage {
        WPARAM wParam;
        LPARAM lParam;
    };
    std::vector<SetCursorMessage> setCursors;
    int cancelled = 0;
    using KyPlotRecordReportControl::m_pDragItem;
    using KyPlotRecordReportControl::m_rcDragItem;

protected:
    void OnPlotRecordItemDragCancelled() override { ++cancelled; }
};

/// A visible frame with a plot grid: columns "Name" (100 px wide) and "Plot" (402 px), and as many rows as asked for.
class PlotGridHost {
public:
    PlotGridHost() {
        frame.CreateEx(0, AfxRegisterWndClass(0), _T("host"), WS_POPUP | WS_VISIBLE, CRect(20, 30, 660, 430), nullptr,
                       0);
        grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 640, 400), &frame, 100);
        grid.AddColumn(new CXTPReportColumn(0, _T("Name"), 100, FALSE));
        grid.AddColumn(new CXTPReportColumn(1, _T("Plot"), 402, FALSE));
    }
    ~PlotGridHost() {
        grid.DestroyWindow();
        frame.DestroyWindow();
    }
    PlotGridHost(const PlotGridHost&) = delete;
    PlotGridHost& operator=(const PlotGridHost&) = delete;

    /// Adds a row with a text and the given plot cell, which the grid then owns.
    template <class Cell>
    Cell* AddRow(Cell* cell) {
        auto* record = new CXTPReportRecord;
        record->AddItem(new CXTPReportRecordItemText(_T("row")));
        record->AddItem(cell);
        grid.AddRecord(record);
        return cell;
    }

    /// Shows the rows and draws them, so that the cells know their rectangles.
    void Show() {
        grid.Populate();
        Draw();
    }
    void Draw() {
        grid.RedrawControl();
        grid.UpdateWindow();
    }

    CRect CellRect(int row, int item = 1) {
        CXTPReportRow* const at = grid.GetRows()->GetAt(row);
        return at->GetItemRect(at->GetRecord()->GetItem(item));
    }

    CWnd frame;
    ProbePlotGrid grid;
};

/// The standard cursor, as `GetCursor` gives it.
inline HCURSOR StandardCursor(LPCTSTR id) { return ::LoadCursor(nullptr, id); }
