// A grid cell that shows an interval as a bar on a scale.
#include "KyBarChartRecordItem.h"

#include "../common/MissingValue.h"
#include "../common/Translation.h"
#include "BarGeometry.h"
#include "ColorRamp.h"
#include "PlotCellDrawing.h"
#include "PlotScale.h"

#include <algorithm>

// The base cell has no run-time class of its own.
IMPLEMENT_DYNCREATE(KyBarChartRecordItem, CXTPReportRecordItemText)

namespace {

/// Everything that the parts of the bar chart are drawn with.
struct Drawing {
    CDC& dc;
    CRect rect;
    COLORREF background;
    bargeometry::Marks marks;
};

void DrawPlainBar(const Drawing& drawing, COLORREF dark, COLORREF light) {
    plotcell::FillSpan(drawing.dc, drawing.rect, bargeometry::PlainBar(plotcell::ExtentOf(drawing.rect), drawing.marks),
                       colorramp::SharedGradient(dark, light, 3)[1]);
}

void DrawGradientBar(const Drawing& drawing, bargeometry::Darkest darkest, COLORREF dark, COLORREF light) {
    const auto pieces = GradientBar(plotcell::ExtentOf(drawing.rect), drawing.marks, darkest);
    const plotspan::Span seen = plotcell::VisibleColumns(drawing.dc, drawing.rect);
    plotspan::Span bar{seen.end, seen.begin};
    for (const auto& [span, color] : pieces)
        bar = {std::min(bar.begin, span.begin), std::max(bar.end, span.end)};
    const auto colors = colorramp::SharedGradient(light, dark, bargeometry::GradientColors);
    plotspan::PixelRow row(plotspan::Clip(bar, seen.begin, seen.end), drawing.background);
    for (const auto& [span, color] : pieces)
        row.Fill(span, colors[static_cast<std::size_t>(color)]);
    plotcell::DrawRow(drawing.dc, drawing.rect, row);
}

/// A whisker end and its line, which runs from the first fraction to the second, just above the middle of the height.
void DrawWhisker(const Drawing& drawing, double end, double from, double to) {
    if (IsMissing(end))
        return;
    plotcell::DrawMark(drawing.dc, drawing.rect, end, plotcell::Black);
    const int middle = (drawing.rect.top + drawing.rect.bottom) / 2;
    const CRect line(drawing.rect.left, middle - 1, drawing.rect.right, middle);
    plotcell::FillSpan(drawing.dc, line, bargeometry::WhiskerLine(plotcell::ExtentOf(drawing.rect), from, to),
                       plotcell::Black);
}

} // namespace

KyBarChartRecordItem::KyBarChartRecordItem() = default;

KyBarChartRecordItem::~KyBarChartRecordItem() = default;

// --- Values and colours ----------------------------------------------------------------------------------------------

void KyBarChartRecordItem::SetError(float target, float min, float max, float lower, float upper, float errorLow,
                                    float errorHigh, float optimizerLow, float optimizerHigh) {
    m_target = target;
    m_scaleMin = min;
    m_scaleMax = max;
    m_lower = lower;
    m_upper = upper;
    m_errorLow = errorLow;
    m_errorHigh = errorHigh;
    m_optimizerLow = optimizerLow;
    m_optimizerHigh = optimizerHigh;
}

void KyBarChartRecordItem::RemoveError(int what) {
    switch (what) {
    case 1:
        m_target = KyMissingValue;
        break;
    case 2:
        m_scaleMin = KyMissingValueF;
        break;
    case 3:
        m_scaleMax = KyMissingValueF;
        break;
    case 4:
        m_lower = KyMissingValue;
        m_upper = KyMissingValue;
        break;
    case 5:
        // Intended: the optimizer marks stay.
        m_scaleMin = KyMissingValueF;
        m_scaleMax = KyMissingValueF;
        m_errorLow = KyMissingValueF;
        m_errorHigh = KyMissingValueF;
        m_lower = KyMissingValue;
        m_upper = KyMissingValue;
        m_target = KyMissingValue;
        break;
    default:
        break;
    }
}

void KyBarChartRecordItem::SetColors(unsigned long dark, unsigned long light) {
    m_barColor = dark;
    m_barLightColor = light;
}

void KyBarChartRecordItem::SetDistribution(EDistribution distribution, bool enabled) {
    m_distribution = distribution;
    m_distributionEnabled = enabled;
}

unsigned long KyBarChartRecordItem::GetOptimizerFacLowColor() const { return m_optimizerFacLowColor; }

void KyBarChartRecordItem::SetOptimizerFacLowColor(unsigned long color) { m_optimizerFacLowColor = color; }

unsigned long KyBarChartRecordItem::GetOptimizerFacHighColor() const { return m_optimizerFacHighColor; }

void KyBarChartRecordItem::SetOptimizerFacHighColor(unsigned long color) { m_optimizerFacHighColor = color; }

double KyBarChartRecordItem::GetMin() const { return m_scaleMin; }

double KyBarChartRecordItem::GetMax() const { return m_scaleMax; }

// --- Mouse -----------------------------------------------------------------------------------------------------------

int KyBarChartRecordItem::HitTestHyperlink(CPoint) { return plotcell::HitTestHyperlink(*this); }

CString KyBarChartRecordItem::GetInfoTip() const {
    const auto value = plotscale::ValueUnderPointer(m_dragPos, {GetMin(), GetMax(), m_margin});
    return value ? TranslateFormat("Plot value", "Value: %1%.", *value) : CString();
}

// --- Drawing ---------------------------------------------------------------------------------------------------------

void KyBarChartRecordItem::OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS*) {
    if (!plotcell::CanDraw(args))
        return;
    const plotscale::Scale scale{m_scaleMin, m_scaleMax, m_margin};
    const auto fraction = [&scale](double value) { return plotscale::ToFraction(value, scale); };

    const auto drag = m_draggingCenter  ? bargeometry::Drag::Target
                      : m_draggingLower ? bargeometry::Drag::Lower
                      : m_draggingUpper ? bargeometry::Drag::Upper
                                        : bargeometry::Drag::None;
    const auto symmetry =
        m_distribution < DistributionTarget ? bargeometry::Symmetry::Kept : bargeometry::Symmetry::Free;
    const bargeometry::Marks atRest{fraction(m_lower), fraction(m_target), fraction(m_upper)};

    CDC& dc = *args->pDC;
    const plotcell::Ground ground = plotcell::DrawGround(*args, GetBackgroundColor());
    m_itemRect = ground.rect;

    const Drawing drawing{dc, m_itemRect, ground.color, WhileDragging(atRest, drag, m_dragPos, symmetry)};
    switch (PlaceOf(drawing.marks)) {
    case bargeometry::BarPlace::Nowhere:
        break;
    case bargeometry::BarPlace::Below:
        plotcell::DrawArrows(dc, m_itemRect, plotcell::Beside::Left);
        break;
    case bargeometry::BarPlace::Above:
        plotcell::DrawArrows(dc, m_itemRect, plotcell::Beside::Right);
        break;
    case bargeometry::BarPlace::Inside:
        if (m_distributionEnabled && m_distribution != DistributionNone)
            DrawGradientBar(drawing,
                            m_distribution == DistributionCentered ? bargeometry::Darkest::AtMiddle
                                                                   : bargeometry::Darkest::AtTarget,
                            m_barColor, m_barLightColor);
        else
            DrawPlainBar(drawing, m_barColor, m_barLightColor);
        break;
    }

    const double errorLow = fraction(m_errorLow);
    const double errorHigh = fraction(m_errorHigh);
    DrawWhisker(drawing, errorLow, errorLow, drawing.marks.target);
    DrawWhisker(drawing, errorHigh, drawing.marks.target, errorHigh);
    plotcell::DrawDashedMark(dc, m_itemRect, fraction(m_optimizerLow), m_optimizerFacLowColor);
    plotcell::DrawDashedMark(dc, m_itemRect, fraction(m_optimizerHigh), m_optimizerFacHighColor);
    plotcell::DrawMark(dc, m_itemRect, fraction(m_scaleMin), plotcell::Red);
    plotcell::DrawMark(dc, m_itemRect, fraction(m_scaleMax), plotcell::Red);
    plotcell::DrawMark(dc, m_itemRect, drawing.marks.target, m_targetColor);
}
