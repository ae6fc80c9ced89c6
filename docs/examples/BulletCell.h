// A bullet bar in a grid cell: a measure before bands of quality, and a target that the user drags.
#pragma once

#include <plotcells/KyPlotRecordItem.h>

#include <algorithm>

class BulletCell : public KyPlotRecordItem {
public:
    /// The scale runs from 0 to `max`; what lies below `fair` is poor, what lies above `good` is good.
    BulletCell(double measure, double target, double fair, double good, double max)
        : m_measure(measure), m_fair(fair), m_good(good), m_max(max) {
        SetTarget(target);
        SetTargetColor(RGB(200, 30, 40));
        SetMargin(0.02);
    }

    double GetMeasure() const { return m_measure; }

    double GetMin() const override { return 0; }
    double GetMax() const override { return m_max; }

    CString GetInfoTip() const override {
        CString text;
        text.Format(_T("%g of %g, target %g"), m_measure, m_max, m_target);
        return text;
    }

    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override {
        m_itemRect = args->rcItem; // the base compares the pointer with it
        m_itemRect.DeflateRect(1, 1);
        CDC& dc = *args->pDC;
        // Metrics know of the selection; a picture for a file is drawn without any.
        dc.FillSolidRect(m_itemRect, metrics ? metrics->clrBackground : GetBackgroundColor());

        const int height = m_itemRect.Height();
        FillSpan(dc, ToFraction(GetMin()), ToFraction(m_fair), height * 3 / 4, RGB(176, 182, 190));
        FillSpan(dc, ToFraction(m_fair), ToFraction(m_good), height * 3 / 4, RGB(204, 209, 215));
        FillSpan(dc, ToFraction(m_good), ToFraction(GetMax()), height * 3 / 4, RGB(230, 233, 237));
        FillSpan(dc, ToFraction(GetMin()), ToFraction(m_measure), height / 4, RGB(38, 84, 140));

        // While the target is dragged, its mark stands where the pointer is; the value changes at the release.
        if (IsMissing(m_target))
            return;
        const int thickness = args->pControl->GetPaintManager()->ScaleForDpi(3);
        const int x = PixelOf(m_draggingCenter ? m_dragPos : ToFraction(m_target)) - thickness / 2;
        dc.FillSolidRect(x, m_itemRect.top + height / 8, thickness, height * 3 / 4, GetTargetColor());
    }

    /// A click on the header sorts by the measure.
    int Compare(CXTPReportColumn* column, CXTPReportRecordItem* other) override {
        const auto* bullet = dynamic_cast<const BulletCell*>(other);
        if (!bullet)
            return KyPlotRecordItem::Compare(column, other);
        return m_measure < bullet->m_measure ? -1 : m_measure > bullet->m_measure ? 1 : 0;
    }

    /// The grid shows this text when the pointer rests on the cell, and frees it.
    INT_PTR OnToolHitTest(CPoint, TOOLINFO* tool) override {
        tool->rect = m_itemRect;
        tool->lpszText = _tcsdup(GetInfoTip());
        return 0;
    }

private:
    /// 0 at the left edge of the cell, 1 at the right one; the margin stays free at either end.
    double ToFraction(double value) const {
        return (value - GetMin()) / (GetMax() - GetMin()) * (1 - 2 * m_margin) + m_margin;
    }

    int PixelOf(double fraction) const {
        return m_itemRect.left + static_cast<int>(m_itemRect.Width() * std::clamp(fraction, 0.0, 1.0));
    }

    /// A bar of the given height in the middle of the cell.
    void FillSpan(CDC& dc, double from, double to, int height, COLORREF color) const {
        const int left = PixelOf(from);
        dc.FillSolidRect(left, m_itemRect.top + (m_itemRect.Height() - height) / 2, PixelOf(to) - left, height, color);
    }

    double m_measure, m_fair, m_good, m_max;
};
