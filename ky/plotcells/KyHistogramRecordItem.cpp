// A grid cell that shows a histogram as a strip of coloured bins.
#include "KyHistogramRecordItem.h"

#include "../common/MissingValue.h"
#include "../common/Translation.h"
#include "ColorRamp.h"
#include "HistogramGeometry.h"
#include "PlotCellDrawing.h"
#include "PlotScale.h"

// The base cell has no run-time class of its own.
IMPLEMENT_DYNCREATE(KyHistogramRecordItem, CXTPReportRecordItemText)

namespace {

/// Intended: the target mark is gold whatever the cell's target colour is.
constexpr COLORREF Gold = RGB(255, 215, 0);

} // namespace

/// What the bins are drawn with: where, and the fractions from which to which they reach.
struct KyHistogramRecordItem::Drawing {
    CDC& dc;
    plotcell::Ground ground;
    double min;
    double max;
};

KyHistogramRecordItem::KyHistogramRecordItem() = default;

KyHistogramRecordItem::~KyHistogramRecordItem() = default;

// --- Values and colours ----------------------------------------------------------------------------------------------

void KyHistogramRecordItem::SetError(double target, double lower, double upper, std::vector<double>& bins, double min,
                                     double max) {
    m_target = target;
    m_lower = lower;
    m_upper = upper;
    m_bins = bins;
    m_largestCount = histogramgeometry::LargestCount(m_bins);
    m_histMin = min;
    m_histMax = max;
}

void KyHistogramRecordItem::SetColors(unsigned long full, unsigned long empty) {
    m_fullColor = full;
    m_emptyColor = empty;
}

double KyHistogramRecordItem::GetMin() const {
    if (!IsMissing(m_lower))
        return m_lower;
    return !IsMissing(m_target) && !IsMissing(m_upper) ? 2.0 * m_target - m_upper : m_histMin;
}

double KyHistogramRecordItem::GetMax() const {
    if (!IsMissing(m_upper))
        return m_upper;
    return !IsMissing(m_target) && !IsMissing(m_lower) ? 2.0 * m_target - m_lower : m_histMax;
}

// --- Mouse -----------------------------------------------------------------------------------------------------------

int KyHistogramRecordItem::HitTestHyperlink(CPoint) { return plotcell::HitTestHyperlink(*this); }

CString KyHistogramRecordItem::GetInfoTip() const {
    const auto value = plotscale::ValueUnderPointer(m_dragPos, {GetMin(), GetMax(), m_margin});
    if (!value)
        return CString();
    CString tip = TranslateFormat("Plot value", "Value: %1%", *value);
    if (!m_bins.empty()) {
        const auto bin = static_cast<std::size_t>(static_cast<double>(m_bins.size() - 1) * m_dragPos);
        tip += TranslateFormat("Histogram bin", ", count: %1%.", m_bins[bin]);
    }
    return tip;
}

// --- Drawing ---------------------------------------------------------------------------------------------------------

void KyHistogramRecordItem::OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS*) {
    if (!plotcell::CanDraw(args))
        return;
    const plotscale::Scale scale{GetMin(), GetMax(), m_margin};
    const auto fraction = [&scale](double value) { return plotscale::ToFraction(value, scale); };

    CDC& dc = *args->pDC;
    const plotcell::Ground ground = plotcell::DrawGround(*args, GetBackgroundColor());
    m_itemRect = ground.rect;
    if (m_bins.empty())
        return;
    if (scale.min == scale.max) {
        plotcell::FillSpan(dc, ground.rect,
                           histogramgeometry::WholeScale(plotcell::ExtentOf(ground.rect), scale.margin), m_fullColor);
        return;
    }

    const Drawing drawing{dc, ground, fraction(m_histMin), fraction(m_histMax)};
    if (!IsMissing(drawing.min) && !IsMissing(drawing.max))
        DrawBins(drawing);
    plotcell::DrawMark(dc, ground.rect, m_draggingLower ? m_dragPos : fraction(m_lower), plotcell::Red);
    plotcell::DrawMark(dc, ground.rect, m_draggingCenter ? m_dragPos : fraction(m_target), Gold);
    plotcell::DrawMark(dc, ground.rect, m_draggingUpper ? m_dragPos : fraction(m_upper), plotcell::Red);
}

void KyHistogramRecordItem::DrawBins(const Drawing& drawing) const {
    const auto& [dc, ground, min, max] = drawing;
    if (max < 0.0)
        plotcell::DrawArrows(dc, ground.rect, plotcell::Beside::Left);
    else if (min > 1.0)
        plotcell::DrawArrows(dc, ground.rect, plotcell::Beside::Right);

    const plotspan::Extent extent = plotcell::ExtentOf(ground.rect);
    if (m_bins.size() == 1) {
        plotcell::FillSpan(dc, ground.rect, histogramgeometry::SingleBin(extent, min, max), m_fullColor);
        return;
    }
    const histogramgeometry::BinPlaces places(extent, min, max, m_bins.size());
    const plotspan::Span seen = plotcell::VisibleColumns(dc, ground.rect);
    plotspan::PixelRow row(plotspan::Clip(places.Strip(), seen.begin, seen.end), ground.color);
    histogramgeometry::PaintBins(
        row, places, m_bins, m_largestCount,
        colorramp::SharedGradient(m_emptyColor, m_fullColor, histogramgeometry::GradientColors), ground.color);
    plotcell::DrawRow(dc, ground.rect, row);
}
