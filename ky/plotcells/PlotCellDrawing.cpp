// What all plot cells draw alike: background, marks, arrows.
#include "PlotCellDrawing.h"

#include "../common/MissingValue.h"

namespace plotcell {

using plotspan::Extent;
using plotspan::PixelRow;
using plotspan::Span;

bool CanDraw(const XTP_REPORTRECORDITEM_DRAWARGS* args) {
    return args != nullptr && args->pDC != nullptr && args->pControl != nullptr &&
           args->pControl->IsKindOf(RUNTIME_CLASS(CXTPReportControl));
}

Extent ExtentOf(const CRect& rect) { return {rect.left, rect.right}; }

CRect Deflated(CRect rect) {
    rect.InflateRect(-1, -1);
    return rect;
}

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

Ground DrawGround(const XTP_REPORTRECORDITEM_DRAWARGS& args, COLORREF itemColor) {
    const Ground ground{Deflated(args.rcItem), BackgroundColor(args, itemColor)};
    Fill(*args.pDC, ground.rect, ground.color);
    return ground;
}

void Fill(CDC& dc, const CRect& rect, COLORREF color) {
    if (rect.left < rect.right && rect.top < rect.bottom)
        dc.FillSolidRect(&rect, color);
}

void FillSpan(CDC& dc, const CRect& rect, Span span, COLORREF color) {
    const Span visible = Clip(span, rect.left, rect.right);
    Fill(dc, CRect(visible.begin, rect.top, visible.end, rect.bottom), color);
}

Span VisibleColumns(const CDC& dc, const CRect& rect) {
    CRect clip;
    if (dc.GetClipBox(&clip) == ERROR)
        return {rect.left, rect.right};
    return plotspan::Clip({rect.left, rect.right}, clip.left, clip.right);
}

void DrawRow(CDC& dc, const CRect& rect, const PixelRow& row) {
    const Span columns = row.Columns();
    if (columns.IsEmpty() || rect.top >= rect.bottom)
        return;
    const int width = columns.end - columns.begin;
    std::vector<std::uint32_t> pixels(row.Colors());
    for (std::uint32_t& pixel : pixels) // a bitmap has blue in its lowest byte
        pixel = (pixel & 0xFFu) << 16 | (pixel & 0xFF00u) | (pixel >> 16 & 0xFFu);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(info.bmiHeader), width, 1, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    if (::StretchDIBits(dc, columns.begin, rect.top, width, rect.Height(), 0, 0, width, 1, pixels.data(), &info,
                        DIB_RGB_COLORS, SRCCOPY) > 0)
        return;
    // A device that shows no bitmaps, or no memory: colour by colour.
    const std::vector<std::uint32_t>& colors = row.Colors();
    for (int begin = 0, end = 0; begin < width; begin = end) {
        while (end < width && colors[end] == colors[begin])
            ++end;
        Fill(dc, CRect(columns.begin + begin, rect.top, columns.begin + end, rect.bottom), colors[begin]);
    }
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
    constexpr UINT format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;
    const bool isLeft = side == Beside::Left;
    CRect place(rect);
    dc.SetTextColor(Blue);
    // Text is not held within a rectangle that has no inside.
    if (place.left < place.right && place.top < place.bottom)
        dc.DrawText(isLeft ? L"<<<" : L">>>", 3, &place, format | (isLeft ? DT_LEFT : DT_RIGHT));
    dc.SetTextColor(Black);
}

int HitTestHyperlink(const CXTPReportRecordItem& item) { return item.GetHyperlinksCount() > 0 ? 0 : -1; }

} // namespace plotcell
