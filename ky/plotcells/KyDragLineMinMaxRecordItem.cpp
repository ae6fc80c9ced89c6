// A slider with the ends of its scale shown and editable.
#include "KyDragLineMinMaxRecordItem.h"

#include "../common/KeepAlive.h"
#include "../common/ParseDouble.h"
#include "../common/TolerantCompare.h"
#include "../reportgrid/KyInPlaceEdit.h"
#include "PlotCellDrawing.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNCREATE(KyDragLineMinMaxRecordItem, KyDragLineRecordItem)

namespace {

constexpr double typedMissingMark = -99.0001; // a -99 that was typed is a value
constexpr int narrowestZone = 10;             // pixels
constexpr UINT textFormat = DT_SINGLELINE | DT_VCENTER;

} // namespace

KyDragLineMinMaxRecordItem::KyDragLineMinMaxRecordItem() : KyDragLineMinMaxRecordItem(L"%g") {}

KyDragLineMinMaxRecordItem::KyDragLineMinMaxRecordItem(const wchar_t* format) : m_format(format) {}

KyDragLineMinMaxRecordItem::~KyDragLineMinMaxRecordItem() { CloseEditor(); }

void KyDragLineMinMaxRecordItem::SetFormat(const wchar_t* format) { m_format = format; }

void KyDragLineMinMaxRecordItem::SetSliderTooltip(CString tooltip) { m_sliderTooltip = tooltip; }

void KyDragLineMinMaxRecordItem::SetMinimumTooltip(CString tooltip) { m_minimumTooltip = tooltip; }

void KyDragLineMinMaxRecordItem::SetMaximumTooltip(CString tooltip) { m_maximumTooltip = tooltip; }

CString KyDragLineMinMaxRecordItem::NumberText(double value) const {
    CString text;
    if (!IsMissing(value))
        text.Format(m_format, value);
    return text;
}

// --- Drawing ---------------------------------------------------------------------------------------------------------

void KyDragLineMinMaxRecordItem::OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS*) {
    if (!plotcell::CanDraw(args))
        return;
    CDC& dc = *args->pDC;
    const CRect& cell = args->rcItem;
    const int halfHeight = cell.Height() / 2, halfWidth = cell.Width() / 2;
    plotcell::Fill(dc, cell, plotcell::BackgroundColor(*args, GetBackgroundColor()));

    m_sliderRect = CRect(cell.left, cell.top + 3, cell.right, cell.bottom - 3 - halfHeight);
    DrawSlider(*args, m_sliderRect);

    m_minTextRect = CRect(cell.left + 1, cell.top + 1 + halfHeight, cell.right - 1 - halfWidth, cell.bottom - 1);
    m_maxTextRect = m_minTextRect;
    m_maxTextRect.OffsetRect(halfWidth, 0);
    const COLORREF formerColor = dc.SetTextColor(plotcell::Black);
    const int formerMode = dc.SetBkMode(TRANSPARENT);
    const auto drawNumber = [&dc](const CString& text, CRect& extent, CRect place, UINT alignment) {
        extent = place;
        dc.DrawText(text, &extent, textFormat | DT_CALCRECT);
        dc.DrawText(text, &place, textFormat | alignment);
    };
    drawNumber(NumberText(m_rangeMin), m_minTextExtent, m_minTextRect, DT_LEFT);
    drawNumber(NumberText(m_rangeMax), m_maxTextExtent, m_maxTextRect, DT_RIGHT);
    dc.SetBkMode(formerMode);
    dc.SetTextColor(formerColor);
}

// --- Mouse -----------------------------------------------------------------------------------------------------------

CRect KyDragLineMinMaxRecordItem::MinimumZone() const {
    CRect zone = m_minTextRect;
    zone.right = zone.left + std::max<int>(m_minTextExtent.Width(), narrowestZone);
    return zone;
}

CRect KyDragLineMinMaxRecordItem::MaximumZone() const {
    CRect zone = m_maxTextRect;
    zone.left = zone.right - std::max<int>(m_maxTextExtent.Width(), narrowestZone);
    return zone;
}

BOOL KyDragLineMinMaxRecordItem::OnSetCursor(CPoint point) {
    if (MinimumZone().PtInRect(point) || MaximumZone().PtInRect(point)) {
        ::SetCursor(::LoadCursor(nullptr, IDC_IBEAM));
        return TRUE;
    }
    return m_sliderRect.PtInRect(point) ? KyDragLineRecordItem::OnSetCursor(point) : FALSE;
}

bool KyDragLineMinMaxRecordItem::GetAllowInteraction(CPoint point, bool& allow) const {
    allow = !m_minTextRect.PtInRect(point) && !m_maxTextRect.PtInRect(point);
    return true;
}

void KyDragLineMinMaxRecordItem::BeginDrag(CPoint point, CRect cell) {
    if (m_minTextRect.PtInRect(point))
        OpenEditor(point, EditMinimum);
    else if (m_maxTextRect.PtInRect(point))
        OpenEditor(point, EditMaximum);
    else
        KyDragLineRecordItem::BeginDrag(point, cell);
}

void KyDragLineMinMaxRecordItem::EndDrag(CPoint point, CRect cell, bool apply) {
    KyDragLineRecordItem::EndDrag(point, cell, apply);
}

INT_PTR KyDragLineMinMaxRecordItem::OnToolHitTest(CPoint point, TOOLINFO* toolInfo) {
    constexpr INT_PTR tool = 1;
    CXTPReportControl* const control = GetReportControl();
    const CXTPReportRow* const row = control != nullptr ? control->HitTest(point) : nullptr;
    if (row == nullptr)
        return tool;
    const CRect rect = row->GetItemRect(this);
    const auto fill = [&](const CString& text) {
        CXTPToolTipContext::FillInToolInfo(toolInfo, control->m_hWnd, rect, tool, text, CString(), CString());
    };
    if (m_minTextRect.PtInRect(point))
        fill(m_minimumTooltip);
    else if (m_maxTextRect.PtInRect(point))
        fill(m_maximumTooltip);
    else if (m_sliderRect.PtInRect(point))
        fill(m_sliderTooltip);
    return tool;
}

// --- Editing ---------------------------------------------------------------------------------------------------------

void KyDragLineMinMaxRecordItem::CloseEditor() {
    if (KyInPlaceEdit* const edit = std::exchange(m_edit, nullptr))
        edit->InternalRelease(); // which may be handling a key at this moment
}

void KyDragLineMinMaxRecordItem::OpenEditor(CPoint point, EditTarget target) {
    CXTPReportControl* control = GetReportControl();
    if (control == nullptr || control->m_hWnd == nullptr)
        return;
    const KeepAlive alive(*this);
    // What was typed for the other end is told of first, and the host may do anything then.
    if (m_edit != nullptr)
        m_edit->EndEdit(TRUE);
    control = GetReportControl();
    CXTPReportRow* const row = control != nullptr ? control->HitTest(point) : nullptr;
    if (row == nullptr)
        return;
    XTP_REPORTRECORDITEM_ARGS args;
    if (row->HitTest(point, &args.rcItem, &args.pColumn) != this)
        return;
    args.pControl = control;
    args.pRow = row;
    args.pItem = this;
    args.rcItem = target == EditMinimum ? m_minTextRect : m_maxTextRect;

    CloseEditor();
    m_edit = new KyInPlaceEdit;
    KyInPlaceEdit* const edit = m_edit;
    const KeepAlive editAlive(*edit);
    m_editTarget = target;
    // An edit control takes its alignment as it is made; not every system's looks at its style again.
    const int alignment = GetAlignment();
    SetAlignment(target == EditMaximum ? DT_RIGHT : DT_LEFT);
    const BOOL isOpen = edit->Create(&args);
    SetAlignment(alignment);
    if (!isOpen || m_edit != edit)
        return;
    if (target == EditMaximum)
        edit->ModifyStyle(0, ES_RIGHT);
    edit->SetWindowText(NumberText(target == EditMinimum ? m_rangeMin : m_rangeMax));
    edit->SendMessage(EM_SETSEL, 0, -1);
    edit->SendMessage(EM_SCROLLCARET);
}

void KyDragLineMinMaxRecordItem::OnValidateEdit(XTP_REPORTRECORDITEM_ARGS*) {
    // Nothing is being edited any more when the host hears of it: it may open the editor again.
    const int target = std::exchange(m_editTarget, EditNothing);
    if (m_edit == nullptr || m_edit->m_hWnd == nullptr)
        return;
    CString text;
    m_edit->GetWindowText(text);
    double value = 0.0;
    if (!ParseDouble(text, value))
        return;
    if (IsMissing(value))
        value = typedMissingMark;
    if (target == EditNothing)
        return;
    // Intended: the maximum is compared with the minimum as well.
    CXTPReportControl* const control = GetReportControl();
    if (TolerantEqual(value, m_rangeMin) || control == nullptr)
        return;
    KyRangeEdited edited{static_cast<float>(value), target == EditMinimum ? 1 : 0, this};
    const KeepAlive alive(*this);
    control->SendMessage(WM_KYRANGEEDITED, reinterpret_cast<WPARAM>(&edited), 0);
}
