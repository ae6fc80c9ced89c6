// What all plot cells draw alike: background, marks, arrows.
#include "PlotCellDrawing.h"

#include "../common/MissingValue.h"

namespace plotcell {

using plotspan::Extent;
using plotspan::Span;

bool CanDraw(const XTP_REPORTRECORDITEM_DRAWARGS* args) {
    return args != nullptr && args->pDC != nullptr && args->pControl != nullptr &&
           args->pControl->IsKindOf(RUNTIME_CLASS(CXTPReportControl));
}

Extent ExtentOf(const CRect& rect) { return {rect.left, rect.right}; }

COLORREF BackgroundColor(const XTP_REPORTRECORDITEM_DRAWARGS& args, COLORREF itemColor) {
    const bool selected = args.pRow != nullptr && args.pRow->IsSelected();
    if (!selected || args.pDC->IsPrinting())
        return itemColor;
    const CXTPReportPaintManager* paintManager = args.pControl->GetPaintManager();
    if (paintManager == nullptr)
        return itemColor;
    // The colour object answers with its second, standard value when no custom one is set.
    const COLORREF highlight = paintManager->m_clrHighlight;
    return highlight != CXTPPaintManagerColor::Unset ? highlight : itemColor;
}

void Fill(CDC& dc, const CRect& rect, COLORREF color) {
    if (rect.left < rect.right && rect.top < rect.bottom)
        dc.FillSolidRect(&rect, color);
}

void FillSpan(CDC& dc, const CRect& rect, Span span, COLORREF color) {
    const Span visible = Clip(span, rect.left, rect.right);
    Fill(dc, CRect(visible.begin, rect.top, visible.end, rect.bottom), color);
}

void DrawMark(CDC& dc, const CRect& rect, double fraction, COLORREF color) {
    if (!IsMissing(fraction))
        FillSpan(dc, rect, MarkAt(ExtentOf(rect), fraction), color);
}

void DrawDashedMark(CDC& dc, const CRect& rect, double fraction, COLORREF color) {
    if (IsMissing(fraction))
        return;
    const Span bar = MarkAt(ExtentOf(rect), fraction);
    for (const Span& dash : plotspan::Dashes(rect.top, rect.bottom))
        FillSpan(dc, CRect(rect.left, dash.begin, rect.right, dash.end), bar, color);
}

void DrawArrows(CDC& dc, const CRect& rect, Beside side) {
    CRect place(rect);
    dc.SetTextColor(Blue);
    constexpr UINT format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;
    if (side == Beside::Left)
        dc.DrawText(L"<<<", 3, &place, format | DT_LEFT);
    else
        dc.DrawText(L">>>", 3, &place, format | DT_RIGHT);
    dc.SetTextColor(Black);
}

int HitTestHyperlink(const CXTPReportRecordItem& item) { return item.GetHyperlinksCount() > 0 ? 0 : -1; }

} // namespace plotcell
