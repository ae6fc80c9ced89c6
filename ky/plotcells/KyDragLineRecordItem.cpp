// A grid cell that shows one value as a slider.
//
// The ends of the scale stand twice: the base's lower and upper value are those that the mouse moves between, and
// `m_rangeMin` and `m_rangeMax` are those that are drawn.
#include "KyDragLineRecordItem.h"

#include "../common/MissingValue.h"
#include "../common/Translation.h"
#include "DragLineGeometry.h"
#include "PlotCellDrawing.h"
#include "PlotScale.h"

#include <algorithm>
#include <cmath>

// The base cell has no run-time class of its own.
IMPLEMENT_DYNCREATE(KyDragLineRecordItem, CXTPReportRecordItemText)

namespace {

constexpr COLORREF TrackColor = 0x00E7EAEA;
constexpr COLORREF TrackFrameColor = 0x00D6D6D6;

using plotcell::Deflated;

/// In single precision: what is told while the handle moves is quantised like a float.
double PointerFraction(CPoint point, const CRect& cell) {
    const CRect rect = Deflated(cell);
    return plotscale::PointerFraction(point.x, rect.left, rect.right);
}

/// Fills the part of the rectangle that lies inside the cell.
void FillInCell(CDC& dc, const CRect& cell, const CRect& rect, COLORREF color) {
    CRect visible;
    if (visible.IntersectRect(&rect, &cell))
        plotcell::Fill(dc, visible, color);
}

void DrawTrack(CDC& dc, const CRect& cell, const CRect& rect, double minFraction, double maxFraction) {
    const plotspan::Span columns = draglinegeometry::Track(plotcell::ExtentOf(rect), minFraction, maxFraction);
    const plotspan::Span rows = draglinegeometry::TrackRows(rect.top, rect.bottom);
    if (columns.IsEmpty())
        return;
    const CRect track(columns.begin, rows.begin, columns.end, rows.end);
    FillInCell(dc, cell, track, TrackFrameColor);
    FillInCell(dc, cell, Deflated(track), TrackColor);
}

void DrawHandle(CDC& dc, const CRect& cell, const CRect& rect, double fraction) {
    using draglinegeometry::HandleReach;
    const int column = draglinegeometry::HandleColumn(plotcell::ExtentOf(rect), fraction);
    const int widest = HandleReach.front();
    if (column < cell.left - widest || column > cell.right + widest)
        return;

    const COLORREF face = XTPColorManager()->GetColor(COLOR_BTNFACE);
    const COLORREF outline = XTPColorManager()->GetColor(COLOR_BTNSHADOW);
    const int top = draglinegeometry::HandleTop(rect.top, rect.bottom);
    const auto fillRows = [&](int begin, int end, int reach, COLORREF color) {
        FillInCell(dc, cell, CRect(column - reach, top + begin, column + reach + 1, top + end), color);
    };
    // The rows of full width are one rectangle with another one inside; those of the point follow one by one.
    const int point = static_cast<int>(std::ranges::count(HandleReach, widest));
    fillRows(0, point, widest, outline);
    fillRows(1, point, widest - 1, face);
    for (int row = point; row < static_cast<int>(HandleReach.size()); ++row) {
        fillRows(row, row + 1, HandleReach[row], outline);
        fillRows(row, row + 1, HandleReach[row] - 1, face);
    }
}

} // namespace

KyDragLineRecordItem::KyDragLineRecordItem() = default;

KyDragLineRecordItem::~KyDragLineRecordItem() = default;

// --- Values ----------------------------------------------------------------------------------------------------------

void KyDragLineRecordItem::SetTargetValues(double value, double min, double max) {
    m_target = value;
    m_lower = m_rangeMin = min;
    m_upper = m_rangeMax = max;
}

void KyDragLineRecordItem::SetLimitValues(const std::vector<std::pair<double, COLORREF>>& limits) { m_limits = limits; }

void KyDragLineRecordItem::ShowLimits(bool show) { m_showLimits = show; }

void KyDragLineRecordItem::SetColors(COLORREF first, COLORREF second) {
    m_colorFirst = first;
    m_colorSecond = second;
}

double KyDragLineRecordItem::GetMin() const { return m_lower; }

double KyDragLineRecordItem::GetMax() const { return m_upper; }

void KyDragLineRecordItem::SetMin(double min) { m_lower = m_rangeMin = min; }

void KyDragLineRecordItem::SetMax(double max) { m_upper = m_rangeMax = max; }

// --- Mouse -----------------------------------------------------------------------------------------------------------

int KyDragLineRecordItem::HitTestHyperlink(CPoint) { return plotcell::HitTestHyperlink(*this); }

void KyDragLineRecordItem::BeginDrag(CPoint point, CRect cell) {
    m_dragStartValue = m_target;
    const double place = plotscale::ToFraction(m_target, {GetMin(), GetMax(), m_margin});
    const double handle = IsMissing(place) ? 0.0 : std::clamp(place, 0.0, 1.0);
    const CRect rect = Deflated(cell);
    m_dragPos = plotscale::ExactPointerFraction(point.x, rect.left, rect.right);
    if (std::fabs(handle - m_dragPos) < plotscale::NearDistance)
        m_draggingCenter = true;
}

/// Intended: an end that is missing takes part as -99. A missing right end pins the handle to the left one, a missing
/// left end holds nothing back.
void KyDragLineRecordItem::HoldWithinScale() {
    const plotscale::Scale scale{GetMin(), GetMax(), m_margin};
    const double highest = plotscale::ToFraction(scale.max, scale);
    const double lowest = plotscale::ToFraction(scale.min, scale);
    if (m_dragPos > highest)
        m_dragPos = highest;
    if (m_dragPos < lowest)
        m_dragPos = lowest;
}

void KyDragLineRecordItem::OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) {
    m_dragMoved = false;
    const double formerPos = m_dragPos;
    m_dragPos = PointerFraction(point, m_itemRect);
    if (m_draggingCenter) {
        if (!IsMissing(m_target))
            HoldWithinScale();
        m_target = plotscale::ToValue(m_dragPos, {GetMin(), GetMax(), m_margin});
        if (control != nullptr && m_dragPos != formerPos) {
            m_dragMoved = true;
            control->RedrawControl();
        }
    }
    CXTPReportRecordItem::OnMouseMove(flags, point, control);
}

void KyDragLineRecordItem::EndDrag(CPoint point, CRect cell, bool) {
    m_dragMoved = false;
    m_dragPos = PointerFraction(point, cell);
    if (!IsMissing(m_target)) {
        HoldWithinScale();
        m_target = plotscale::ToValue(m_dragPos, {GetMin(), GetMax(), m_margin});
    }
    StopDragging();
}

BOOL KyDragLineRecordItem::OnSetCursor(CPoint point) {
    if (!m_allowInteraction)
        return FALSE;
    if (!m_draggingCenter) {
        const double handle = plotscale::ToFraction(m_target, {GetMin(), GetMax(), m_margin});
        const double pointer = plotscale::ExactPointerFraction(point.x, m_itemRect.left, m_itemRect.right);
        if (!plotscale::IsNear(handle, pointer))
            return FALSE;
    }
    ::SetCursor(::LoadCursor(nullptr, IDC_SIZEWE));
    return TRUE;
}

CString KyDragLineRecordItem::GetInfoTip() const {
    const auto value = plotscale::ValueUnderPointer(m_dragPos, {GetMin(), GetMax(), m_margin});
    return value ? TranslateFormat("Plot value", "Value: %1%.", *value) : CString();
}

std::vector<double> KyDragLineRecordItem::GetMarkPositions() const {
    const double handle = plotscale::ToFraction(m_target, {GetMin(), GetMax(), m_margin});
    if (!m_allowInteraction || IsMissing(handle) || std::isnan(handle))
        return {};
    return {std::clamp(handle, 0.0, 1.0)};
}

CString KyDragLineRecordItem::GetAccessibleValue(CXTPReportColumn*) {
    return IsMissing(m_target) ? CString() : TranslateFormat("Plot value", "Value: %1%.", m_target);
}

// --- Drawing ---------------------------------------------------------------------------------------------------------

void KyDragLineRecordItem::OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS*) {
    if (plotcell::CanDraw(args))
        DrawSlider(*args, args->rcItem);
}

void KyDragLineRecordItem::DrawSlider(const XTP_REPORTRECORDITEM_DRAWARGS& args, const CRect& slider) {
    const plotscale::Scale scale{m_rangeMin, m_rangeMax, m_margin};
    const auto fraction = [&scale](double value) { return plotscale::ToFraction(value, scale); };
    CDC& dc = *args.pDC;
    const CRect& cell = args.rcItem;

    m_itemRect = slider; // Unlike that of the other plots, not the place 1 pixel further inside that is drawn into.
    const CRect rect = Deflated(slider);
    FillInCell(dc, cell, rect, plotcell::BackgroundColor(args, GetBackgroundColor()));
    DrawTrack(dc, cell, rect, fraction(m_rangeMin), fraction(m_rangeMax));
    if (m_showLimits) {
        const CRect marked(rect.left, rect.top - 1, rect.right, rect.bottom);
        for (const auto& [value, color] : m_limits)
            plotcell::DrawMark(dc, marked, fraction(value), color);
    }
    const double handle = m_draggingCenter ? m_dragPos : fraction(m_target);
    if (!IsMissing(handle))
        DrawHandle(dc, cell, rect, handle);
}
