// Base of the grid cells that draw a small plot and let the user drag marks on it.
#include "KyPlotRecordItem.h"

#include "../common/KeepAlive.h"
#include "../common/MissingValue.h"
#include "../common/Translation.h"
#include "PlotCellDrawing.h"
#include "PlotCellImage.h"
#include "PlotScale.h"

#include <algorithm>
#include <cmath>

namespace {

void ShowCursor(LPCTSTR id) { ::SetCursor(::LoadCursor(nullptr, id)); }

double PointerFraction(CPoint point, const CRect& rect) {
    return plotscale::PointerFraction(point.x, rect.left, rect.right);
}

double PointerFractionInCell(CPoint point, const CRect& cell) {
    return PointerFraction(point, plotcell::Deflated(cell));
}

} // namespace

/// Fractions at which the marks can be grabbed.
struct KyPlotRecordItem::Marks {
    double lower;
    double upper;
    double target;
};

KyPlotRecordItem::KyPlotRecordItem() : CXTPReportRecordItemText(_T("")) {
    SetBackgroundColor(RGB(255, 255, 255));
    SetEditable(FALSE); // nobody types a text over a plot
}

KyPlotRecordItem::~KyPlotRecordItem() = default;

// --- Properties ------------------------------------------------------------------------------------------------------

void KyPlotRecordItem::SetAllowInteraction(bool allow) { m_allowInteraction = allow; }

void KyPlotRecordItem::SetMargin(double margin) { m_margin = margin; }

double KyPlotRecordItem::GetTarget() const { return m_target; }

void KyPlotRecordItem::SetTarget(double target) { m_target = target; }

unsigned long KyPlotRecordItem::GetTargetColor() const { return m_targetColor; }

void KyPlotRecordItem::SetTargetColor(unsigned long color) { m_targetColor = color; }

bool KyPlotRecordItem::IsSupportDragTarget() const { return m_supportDragTarget; }

void KyPlotRecordItem::SetSupportDragTarget(bool support) { m_supportDragTarget = support; }

CRect KyPlotRecordItem::GetItemRect() const { return m_itemRect; }

bool KyPlotRecordItem::IsCenterDragging() const { return m_draggingCenter && m_dragMoved; }

int KyPlotRecordItem::HitTestHyperlink(CPoint) { return -1; }

// --- Dragging --------------------------------------------------------------------------------------------------------

bool KyPlotRecordItem::IsDragging() const { return m_draggingLower || m_draggingUpper || m_draggingCenter; }

double KyPlotRecordItem::FractionOf(double value) const {
    return plotscale::ToFraction(value, {GetMin(), GetMax(), m_margin});
}

/// A lower mark left of the cell and an upper mark right of it are grabbed at the cell's edges.
KyPlotRecordItem::Marks KyPlotRecordItem::ReachableMarks() const {
    Marks marks{FractionOf(m_lower), FractionOf(m_upper), FractionOf(m_target)};
    if (!IsMissing(marks.lower) && marks.lower < 0.0)
        marks.lower = 0.0;
    if (!IsMissing(marks.upper) && marks.upper > 1.0)
        marks.upper = 1.0;
    return marks;
}

std::vector<double> KyPlotRecordItem::GetMarkPositions() const {
    std::vector<double> positions;
    if (!m_allowInteraction)
        return positions;
    const Marks marks = ReachableMarks();
    for (const double mark : {marks.lower, m_supportDragTarget ? marks.target : KyMissingValue, marks.upper})
        if (!IsMissing(mark) && !std::isnan(mark))
            positions.push_back(std::clamp(mark, 0.0, 1.0));
    std::sort(positions.begin(), positions.end());
    return positions;
}

/// The flag of the mark that a press at `m_dragPos` drags, or null. On the outer side of an end that end is taken even
/// when the target is nearer; between the ends the nearest mark is, and on a tie the target.
bool* KyPlotRecordItem::ChooseDrag(const Marks& marks) {
    using plotscale::IsNear;
    const double f = m_dragPos;
    if (!IsNear(marks.lower, f) && !IsNear(marks.upper, f) && !IsNear(marks.target, f))
        return nullptr;

    const double toLower = std::fabs(marks.lower - f);
    const double toUpper = std::fabs(marks.upper - f);
    const double toTarget = std::fabs(marks.target - f);
    if (marks.lower > f && !IsMissing(marks.lower))
        return &m_draggingLower;
    if (f > marks.upper && !IsMissing(marks.upper))
        return &m_draggingUpper;
    if (toUpper > toLower && toTarget > toLower)
        return &m_draggingLower;
    if (toLower > toUpper && toTarget > toUpper)
        return &m_draggingUpper;
    return m_supportDragTarget ? &m_draggingCenter : nullptr;
}

void KyPlotRecordItem::StopDragging() {
    m_draggingLower = false;
    m_draggingUpper = false;
    m_draggingCenter = false;
}

void KyPlotRecordItem::BeginDrag(CPoint point, CRect cell) {
    if (!m_allowInteraction)
        return;
    const Marks marks = ReachableMarks();
    m_dragStartValue = m_target;
    m_dragPos = PointerFractionInCell(point, cell);
    bool* const chosen = ChooseDrag(marks);
    if (chosen == nullptr)
        return;

    StopDragging(); // one that never got its end
    *chosen = true;
    if (m_draggingLower)
        m_dragStartValue = m_lower;
    else if (m_draggingUpper)
        m_dragStartValue = m_upper;
    ShowCursor(IDC_SIZEWE);
}

void KyPlotRecordItem::OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) {
    if (!m_allowInteraction)
        return;
    m_dragMoved = false;
    const double formerPos = m_dragPos;
    m_dragPos = PointerFraction(point, m_itemRect);
    if (IsDragging()) {
        // The target is a wall that neither end can be dragged across.
        if (!IsMissing(m_target) && (m_draggingLower || m_draggingUpper)) {
            const double target = FractionOf(m_target);
            if (m_draggingLower && m_dragPos > target)
                m_dragPos = target;
            if (m_draggingUpper && m_dragPos < target)
                m_dragPos = target;
        }
        if (control != nullptr && m_dragPos != formerPos) {
            m_dragMoved = true;
            control->RedrawControl();
        }
    }
    CXTPReportRecordItem::OnMouseMove(flags, point, control);
}

void KyPlotRecordItem::EndDrag(CPoint point, CRect cell, bool apply) {
    // A slot may remove the cell's record, and it may throw; neither must leave a drag behind.
    const KeepAlive alive(*this);
    struct Stop {
        KyPlotRecordItem& item;
        ~Stop() { item.StopDragging(); }
    } const stop{*this};

    m_dragMoved = false;
    if (!apply)
        return;
    m_dragPos = PointerFractionInCell(point, cell);
    ApplyDrag(plotscale::ToValue(m_dragPos, {GetMin(), GetMax(), m_margin}));
}

/// Stores the value in the dragged position and reports it. Intended: a position that is pushed along changes without
/// being reported.
void KyPlotRecordItem::ApplyDrag(double value) {
    if (m_draggingLower) {
        if (!IsMissing(m_target) && value > m_target)
            value = m_target;
        m_lower = value;
        if (!IsMissing(m_upper) && value > m_upper)
            m_upper = value;
        m_valueChanged(static_cast<float>(value), KyMissingValueF, KyMissingValueF);
    } else if (m_draggingUpper) {
        if (!IsMissing(m_target) && value < m_target)
            value = m_target;
        m_upper = value;
        if (!IsMissing(m_lower) && m_lower > value)
            m_lower = value;
        m_valueChanged(KyMissingValueF, KyMissingValueF, static_cast<float>(value));
    } else if (m_draggingCenter) {
        m_target = value;
        if (!IsMissing(m_lower) && m_lower > value)
            m_lower = value;
        if (!IsMissing(m_upper) && value > m_upper)
            m_upper = value;
        m_valueChanged(KyMissingValueF, static_cast<float>(value), KyMissingValueF);
    }
}

void KyPlotRecordItem::CancelDrag() {
    m_dragPos = KyMissingValue;
    m_dragMoved = false;
    if (m_draggingLower)
        m_lower = m_dragStartValue;
    else if (m_draggingUpper)
        m_upper = m_dragStartValue;
    else if (m_draggingCenter)
        m_target = m_dragStartValue;
    StopDragging();

    CXTPReportControl* const control = GetReportControl();
    if (control == nullptr)
        return;
    control->RedrawControl();
    if (control->GetSafeHwnd() != nullptr)
        control->SendMessage(WM_SETCURSOR, 0, 0); // the cursor is chosen anew at once
}

BOOL KyPlotRecordItem::OnSetCursor(CPoint) {
    if (!m_allowInteraction)
        return FALSE;
    const Marks marks = ReachableMarks();
    if (IsDragging() || plotscale::IsNear(marks.lower, m_dragPos) || plotscale::IsNear(marks.upper, m_dragPos))
        ShowCursor(IDC_SIZEWE);
    else if (m_supportDragTarget && plotscale::IsNear(marks.target, m_dragPos))
        ShowCursor(IDC_HAND);
    else
        ShowCursor(IDC_ARROW);
    return TRUE;
}

bool KyPlotRecordItem::GetAllowInteraction(CPoint, bool& capture) const {
    capture = true;
    return m_allowInteraction;
}

CString KyPlotRecordItem::GetAccessibleValue(CXTPReportColumn*) {
    CString values;
    const auto add = [&values](const CString& value) { values += (values.IsEmpty() ? L"" : L" ") + value; };
    if (!IsMissing(m_lower))
        add(TranslateFormat("Plot value", "Lower value: %1%.", m_lower));
    if (!IsMissing(m_target))
        add(TranslateFormat("Plot value", "Target: %1%.", m_target));
    if (!IsMissing(m_upper))
        add(TranslateFormat("Plot value", "Upper value: %1%.", m_upper));
    return values;
}

// --- Images ----------------------------------------------------------------------------------------------------------

void* KyPlotRecordItem::CreateDIB(CXTPReportControl& control, int width, int height) {
    if (width <= 0 || height <= 0)
        return nullptr;
    try {
        CBitmap bitmap;
        CClientDC clientDC(&control);
        CDC memoryDC;
        if (!memoryDC.CreateCompatibleDC(&clientDC) || !bitmap.CreateCompatibleBitmap(&clientDC, width, height))
            return nullptr;

        const CRect rect(0, 0, width, height);
        CBitmap* const former = memoryDC.SelectObject(&bitmap);
        CBrush background(GetBackgroundColor());
        memoryDC.FillRect(&rect, &background);
        XTP_REPORTRECORDITEM_DRAWARGS args{};
        args.pDC = &memoryDC;
        args.pControl = &control;
        args.pItem = this;
        args.rcItem = rect;
        OnDrawCaption(&args, nullptr);
        memoryDC.SelectObject(former);
        return plotcellimage::Pack(bitmap).release();
    } catch (CResourceException* exception) { // no device context, no brush
        exception->Delete();
        return nullptr;
    }
}

bool KyPlotRecordItem::SaveAs(CXTPReportControl& control, const wchar_t* path, int width, int height) {
    if (path == nullptr || CXTPSplitPath(path).GetExt().CompareNoCase(_T(".bmp")) != 0)
        return false;
    // Intended: the answer is about the extension alone, not about whether there is a file now.
    const plotcellimage::GlobalBlock packed(CreateDIB(control, width, height));
    if (packed)
        plotcellimage::WriteFile(path, packed.get());
    return true;
}
