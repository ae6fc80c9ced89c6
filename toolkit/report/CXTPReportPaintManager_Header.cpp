// The drawing of a report control's header: column backgrounds and edges, captions, sort arrows, the drop mark.
#include "CXTPReportPaintManager.h"

#include "CXTPReportColumn.h"
#include "CXTPReportControl.h"
#include "ReportLook.h"

#include "../common/TextStateGuard.h"

#include <algorithm>

namespace {

using reportlook::HeaderEdge;

// Lengths at 96 DPI.
constexpr int ArrowHeight = 4;
constexpr int ArrowGap = 5; // between caption and arrow
constexpr int DropMarkSize = 4;
constexpr int FocusBarHeight = 2;

void FillVertical(CDC* pDC, const CRect& rc, COLORREF top, COLORREF bottom) {
    if (rc.Width() <= 0 || rc.Height() <= 0)
        return;
    if (top == bottom) {
        pDC->FillSolidRect(&rc, top);
        return;
    }
    const auto vertex = [](LONG x, LONG y, COLORREF color) {
        return TRIVERTEX{x,
                         y,
                         static_cast<COLOR16>(GetRValue(color) << 8),
                         static_cast<COLOR16>(GetGValue(color) << 8),
                         static_cast<COLOR16>(GetBValue(color) << 8),
                         0};
    };
    TRIVERTEX corners[] = {vertex(rc.left, rc.top, top), vertex(rc.right, rc.bottom, bottom)};
    GRADIENT_RECT whole = {0, 1};
    pDC->GradientFill(corners, 2, &whole, 1, GRADIENT_FILL_RECT_V);
}

/// A line or rectangle in a colour that a look may leave out.
void FillIfSet(CDC* pDC, int left, int top, int right, int bottom, COLORREF color) {
    if (color != CXTPPaintManagerColor::Unset && left < right && top < bottom)
        pDC->FillSolidRect(left, top, right - left, bottom - top, color);
}

/// A triangle of `size` lines, each two pixels longer than the one before, beginning at the tip.
void DrawTriangle(CDC* pDC, int xTip, int yTip, int size, int yStep, COLORREF color) {
    for (int i = 0; i < size; ++i)
        pDC->FillSolidRect(xTip - i, yTip + i * yStep, 2 * i + 1, 1, color);
}

} // namespace

void CXTPReportPaintManager::DrawHeaderBackground(CDC* pDC, const CRect& rcHeader) {
    CRect rcFill(rcHeader);
    rcFill.bottom -= 1;
    FillVertical(pDC, rcFill, m_clrHeaderLight, m_clrHeader);
    FillIfSet(pDC, rcHeader.left, rcHeader.bottom - 1, rcHeader.right, rcHeader.bottom, m_clrHeaderLine);
    if (reportlook::LookOf(m_columnStyle).edge == HeaderEdge::Raised)
        FillIfSet(pDC, rcHeader.left, rcHeader.top, rcHeader.right, rcHeader.top + 1, m_clrHeaderDividerLight);
}

void CXTPReportPaintManager::DrawColumnBackground(CDC* pDC, CXTPReportColumn*, const CRect& rcColumn, BOOL bHot,
                                                  BOOL bPressed) {
    CRect rcFill(rcColumn);
    rcFill.bottom -= 1;
    if (bPressed)
        FillVertical(pDC, rcFill, m_clrHeaderPressedLight, m_clrHeaderPressed);
    else if (bHot)
        FillVertical(pDC, rcFill, m_clrHeaderHotLight, m_clrHeaderHot);
    else
        FillVertical(pDC, rcFill, m_clrHeaderLight, m_clrHeader);
    FillIfSet(pDC, rcColumn.left, rcColumn.bottom - 1, rcColumn.right, rcColumn.bottom, m_clrHeaderLine);
    DrawColumnEdges(pDC, rcColumn, bHot, bPressed);
}

void CXTPReportPaintManager::DrawColumnEdges(CDC* pDC, const CRect& rcColumn, BOOL bHot, BOOL bPressed) const {
    const int left = rcColumn.left, top = rcColumn.top, right = rcColumn.right, line = rcColumn.bottom - 1;
    const COLORREF frame = bHot || bPressed ? COLORREF(m_clrHeaderFrame) : CXTPPaintManagerColor::Unset;
    switch (reportlook::LookOf(m_columnStyle).edge) {
    case HeaderEdge::Raised: {
        CRect rcEdge(left, top, right, line);
        const COLORREF light = bPressed ? m_clrHeaderDivider : m_clrHeaderDividerLight;
        const COLORREF dark = bPressed ? m_clrHeaderDividerLight : m_clrHeaderDivider;
        pDC->Draw3dRect(&rcEdge, light, dark);
        break;
    }
    case HeaderEdge::Boxed:
        FillIfSet(pDC, right - 1, top, right, line, m_clrHeaderDivider);
        if (frame != CXTPPaintManagerColor::Unset)
            pDC->Draw3dRect(left, top, right - 1 - left, line - top, frame, frame);
        break;
    case HeaderEdge::Thin:
        FillIfSet(pDC, right - 1, top, right, line, m_clrHeaderDivider);
        FillIfSet(pDC, left, top, left + 1, line, frame);
        FillIfSet(pDC, right - 1, top, right, line, frame);
        FillIfSet(pDC, left, line, right, line + 1, frame);
        break;
    case HeaderEdge::ShortDivider: {
        const int gap = ScaleForDpi(4);
        FillIfSet(pDC, right - 2, top + gap, right - 1, line - gap, m_clrHeaderDivider);
        FillIfSet(pDC, right - 1, top + gap + 1, right, line - gap + 1, m_clrHeaderDividerLight);
        break;
    }
    case HeaderEdge::Inset:
        FillIfSet(pDC, left, top, left + 1, line, m_clrHeaderDividerLight);
        FillIfSet(pDC, right - 1, top, right, line, m_clrHeaderDivider);
        FillIfSet(pDC, left, line, right, line + 1, frame);
        break;
    }
}

int CXTPReportPaintManager::GetSortArrowSpace() const { return ScaleForDpi(2 * ArrowHeight - 1 + ArrowGap); }

void CXTPReportPaintManager::DrawColumnCaption(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn) {
    CRect rcText(rcColumn);
    rcText.DeflateRect(m_nCellPadding, 0, m_nCellPadding + 1, 1);
    if (pColumn->IsSorted() && rcText.Width() > GetSortArrowSpace()) {
        // The arrow has its own room at the right, so that no caption runs into it.
        CRect rcArrow(rcText);
        rcArrow.left = rcArrow.right - (GetSortArrowSpace() - ScaleForDpi(ArrowGap));
        DrawSortArrow(pDC, rcArrow, pColumn->IsSortedIncreasing());
        rcText.right -= GetSortArrowSpace();
    }
    TextStateGuard state(*pDC);
    state.UseFont(&m_fontText);
    pDC->SetBkMode(TRANSPARENT);
    const CXTPReportControl* control = pColumn->GetControl();
    const bool isEnabled = !control || !control->GetSafeHwnd() || control->IsWindowEnabled();
    pDC->SetTextColor(isEnabled ? m_clrHeaderText : m_clrDisabledText);
    DrawTextLine(pDC, pColumn->GetCaption(), rcText, pColumn->GetHeaderAlignment());
}

void CXTPReportPaintManager::DrawSortArrow(CDC* pDC, const CRect& rcArrow, BOOL bIncreasing) {
    const int size = ScaleForDpi(ArrowHeight);
    const int xTip = rcArrow.right - size;
    const int top = rcArrow.top + (rcArrow.Height() - size) / 2;
    if (bIncreasing)
        DrawTriangle(pDC, xTip, top, size, 1, m_clrSortArrow);
    else
        DrawTriangle(pDC, xTip, top + size - 1, size, -1, m_clrSortArrow);
}

void CXTPReportPaintManager::DrawDropMarker(CDC* pDC, int x, const CRect& rcHeader) {
    const int size = ScaleForDpi(DropMarkSize);
    pDC->FillSolidRect(x - 1, rcHeader.top, 2, rcHeader.Height(), m_clrDropMark);
    for (int i = 0; i < size; ++i) {
        const int half = size - i;
        pDC->FillSolidRect(x - half, rcHeader.top + i, 2 * half, 1, m_clrDropMark);
        pDC->FillSolidRect(x - half, rcHeader.bottom - 1 - i, 2 * half, 1, m_clrDropMark);
    }
}

void CXTPReportPaintManager::DrawFocusedColumn(CDC* pDC, const CRect& rcColumn) {
    // A bar above the line under the header: it neither touches the caption nor the edges that styles draw.
    const int gap = ScaleForDpi(2);
    CRect rcBar(rcColumn.left + gap, rcColumn.bottom - 1 - ScaleForDpi(FocusBarHeight), rcColumn.right - 1 - gap,
                rcColumn.bottom - 1);
    if (rcBar.Width() > 0)
        pDC->FillSolidRect(&rcBar, m_clrHeaderText);
}
