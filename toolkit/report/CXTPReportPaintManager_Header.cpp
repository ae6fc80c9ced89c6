// The drawing of a report control's header: column backgrounds and edges, captions, sort arrows, the drop mark, and the
// group-by box.
#include "CXTPReportPaintManager.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "ReportLook.h"

#include "../../framework/gdi/SelectGuard.h"
#include "../common/TextStateGuard.h"

#include <algorithm>

namespace {

using reportlook::ArrowPlace;
using reportlook::ArrowShape;
using reportlook::HeaderEdge;
using reportlook::HeaderFill;

// Lengths at 96 DPI.
constexpr int ArrowGap = 5; // between caption and arrow
constexpr int ArrowTop = 1; // above an arrow that stands over the caption
constexpr int HotLine = 2;  // under a hot column
constexpr int FocusBarHeight = 2;
constexpr int RankGap = 1; // between arrow and rank
constexpr int GroupByMargin = 8;
constexpr int GroupButtonGap = 14;
constexpr int LeastGroupButton = 40;
constexpr int GlassEdge = 45; // where the upper part of a glass header ends, percent of its height

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

/// One of the arrows, standing on its tip at (xTip, yTip); `yStep` −1 turns it round. It has `lines` lines.
struct Arrow {
    CDC* pDC;
    int xTip;
    int yTip;
    int lines;
    int yStep;

    int Y(int line) const { return yTip + line * yStep; }

    void DrawFilled(COLORREF color) const {
        for (int i = 0; i < lines; ++i)
            pDC->FillSolidRect(xTip - i, Y(i), 2 * i + 1, 1, color);
    }
    /// Two strokes of `width` pixels.
    void DrawChevron(COLORREF color, int width) const {
        for (int i = 0; i < lines; ++i) {
            pDC->FillSolidRect(xTip - i, Y(i), std::min(width, i + 1), 1, color);
            pDC->FillSolidRect(xTip + i + 1 - std::min(width, i + 1), Y(i), std::min(width, i + 1), 1, color);
        }
    }
    /// An outline half as wide as high on each side, cut into the surface: its lower right side lies in the light.
    void DrawEtched(COLORREF light, COLORREF shadow) const {
        DrawOutline(1, light);
        DrawOutline(0, shadow);
    }

private:
    void DrawOutline(int offset, COLORREF color) const {
        for (int i = 0; i < lines; ++i) {
            const int half = i / 2;
            pDC->FillSolidRect(xTip - half + offset, Y(i) + offset, 1, 1, color);
            pDC->FillSolidRect(xTip + half + 1 + offset, Y(i) + offset, 1, 1, color);
        }
        const int half = (lines - 1) / 2;
        pDC->FillSolidRect(xTip - half + offset, Y(lines - 1) + offset, 2 * half + 2, 1, color);
    }
};

} // namespace

// --- Backgrounds ----------------------------------------------------------------------------------------------------

void CXTPReportPaintManager::FillHeader(CDC* pDC, const CRect& rc, COLORREF clrLight, COLORREF clrDark) const {
    if (GetLook().header->fill == HeaderFill::Gradient || clrLight == clrDark) {
        FillVertical(pDC, rc, clrLight, clrDark);
        return;
    }
    CRect rcUpper(rc), rcLower(rc);
    rcUpper.bottom = rcLower.top = rc.top + rc.Height() * GlassEdge / 100;
    FillVertical(pDC, rcUpper, clrLight, LookColor::Mix(clrLight, clrDark, 25));
    FillVertical(pDC, rcLower, clrDark, LookColor::Mix(clrDark, clrLight, 30));
}

/// A column or a button, but for the line at the bottom.
void CXTPReportPaintManager::FillHeaderPart(CDC* pDC, const CRect& rcPart, BOOL bHot, BOOL bPressed,
                                            BOOL bSorted) const {
    CRect rcFill(rcPart);
    rcFill.bottom -= 1;
    if (bPressed)
        FillHeader(pDC, rcFill, m_clrHeaderPressedLight, m_clrHeaderPressed);
    else if (bHot)
        FillHeader(pDC, rcFill, m_clrHeaderHotLight, m_clrHeaderHot);
    else if (bSorted)
        FillHeader(pDC, rcFill, m_clrHeaderSortedLight, m_clrHeaderSorted);
    else
        FillHeader(pDC, rcFill, m_clrHeaderLight, m_clrHeader);
}

void CXTPReportPaintManager::DrawHeaderBackground(CDC* pDC, const CRect& rcHeader) {
    CRect rcFill(rcHeader);
    rcFill.bottom -= 1;
    FillHeader(pDC, rcFill, m_clrHeaderLight, m_clrHeader);
    FillIfSet(pDC, rcHeader.left, rcHeader.bottom - 1, rcHeader.right, rcHeader.bottom, m_clrHeaderLine);
    if (GetLook().header->edge == HeaderEdge::Raised)
        FillIfSet(pDC, rcHeader.left, rcHeader.top, rcHeader.right, rcHeader.top + 1, m_clrHeaderDividerLight);
}

void CXTPReportPaintManager::DrawColumnBackground(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn, BOOL bHot,
                                                  BOOL bPressed) {
    FillHeaderPart(pDC, rcColumn, bHot, bPressed, pColumn && pColumn->IsSorted());
    FillIfSet(pDC, rcColumn.left, rcColumn.bottom - 1, rcColumn.right, rcColumn.bottom, m_clrHeaderLine);
    DrawColumnEdges(pDC, pColumn, rcColumn, bHot, bPressed);
}

void CXTPReportPaintManager::DrawColumnEdges(CDC* pDC, const CXTPReportColumn* pColumn, const CRect& rcColumn,
                                             BOOL bHot, BOOL bPressed) const {
    const reportlook::ColumnLook& look = *GetLook().header;
    const int left = rcColumn.left, top = rcColumn.top, right = rcColumn.right, line = rcColumn.bottom - 1;
    const COLORREF frame = bHot || bPressed ? COLORREF(m_clrHeaderFrame) : CXTPPaintManagerColor::Unset;
    const bool hasDivider = !pColumn || !pColumn->IsDividerHidden();
    const COLORREF divider = hasDivider ? COLORREF(m_clrHeaderDivider) : CXTPPaintManagerColor::Unset;
    switch (look.edge) {
    case HeaderEdge::Raised: {
        if (bPressed) {
            pDC->Draw3dRect(left, top, right - left, line - top, m_clrHeaderDivider, m_clrHeaderDivider);
            break;
        }
        FillIfSet(pDC, left, top, right, top + 1, m_clrHeaderDividerLight);
        FillIfSet(pDC, left, top, left + 1, line, m_clrHeaderDividerLight);
        FillIfSet(pDC, left + 1, line - 1, right - 1, line, m_clrHeaderDivider);
        FillIfSet(pDC, right - 2, top + 1, right - 1, line, m_clrHeaderDivider);
        FillIfSet(pDC, right - 1, top, right, line, m_clrHeaderLine);
        break;
    }
    case HeaderEdge::Boxed:
        FillIfSet(pDC, right - 1, top, right, line, divider);
        if (frame != CXTPPaintManagerColor::Unset)
            pDC->Draw3dRect(left, top, right - 1 - left, line - top, frame, frame);
        break;
    case HeaderEdge::Thin:
        FillIfSet(pDC, right - 1, top, right, line, divider);
        FillIfSet(pDC, left, top, left + 1, line, frame);
        FillIfSet(pDC, right - 1, top, right, line, frame);
        FillIfSet(pDC, left, line, right, line + 1, frame);
        break;
    case HeaderEdge::ShortDivider: {
        const int gap = ScaleForDpi(look.dividerMargin);
        FillIfSet(pDC, right - 2, top + gap, right - 1, line - gap, divider);
        if (hasDivider)
            FillIfSet(pDC, right - 1, top + gap + 1, right, line - gap + 1, m_clrHeaderDividerLight);
        FillIfSet(pDC, left, line + 1 - ScaleForDpi(HotLine), right, line + 1, frame);
        break;
    }
    case HeaderEdge::Inset:
        FillIfSet(pDC, left, top, left + 1, line, m_clrHeaderDividerLight);
        FillIfSet(pDC, right - 1, top, right, line, divider);
        if (frame != CXTPPaintManagerColor::Unset) {
            FillIfSet(pDC, left, top, right - 1, top + 1, frame);
            FillIfSet(pDC, left, top, left + 1, line, frame);
            FillIfSet(pDC, right - 1, top, right, line, frame);
            FillIfSet(pDC, left, line, right, line + 1, frame);
        }
        break;
    }
}

// --- Captions and arrows --------------------------------------------------------------------------------------------

CSize CXTPReportPaintManager::GetArrowSize() const {
    const reportlook::ColumnLook& look = *GetLook().header;
    const int height = ScaleForDpi(look.arrowHeight);
    // Etched arrows are about as wide as high, the others grow by two pixels a line.
    return CSize(look.arrow == ArrowShape::Etched ? (height - 1) / 2 * 2 + 3 : 2 * height - 1, height);
}

int CXTPReportPaintManager::GetSortArrowSpace() const {
    if (GetLook().header->arrowPlace == ArrowPlace::AboveCaption)
        return 0;
    return GetArrowSize().cx + ScaleForDpi(ArrowGap);
}

int CXTPReportPaintManager::GetRankSpace(int nRank) const {
    if (nRank == 0)
        return 0;
    CString rank;
    rank.Format(_T("%d"), nRank);
    CClientDC dc(nullptr);
    const SelectGuard select(dc, m_fontRank);
    // The arrow that stands above the caption leaves the right end to the rank alone.
    const bool isAlone = GetLook().header->arrowPlace == ArrowPlace::AboveCaption;
    return dc.GetTextExtent(rank).cx + ScaleForDpi(isAlone ? ArrowGap : RankGap);
}

int CXTPReportPaintManager::GetSortMarkSpace(const CXTPReportColumn* pColumn) const {
    const int rank = pColumn->GetSortRank();
    const bool isOneOfSeveral = rank > 0 && pColumn->GetColumns()->GetSortOrder()->GetCount() > 1;
    return rank == 0 ? 0 : GetSortArrowSpace() + GetRankSpace(isOneOfSeveral ? rank : 0);
}

int CXTPReportPaintManager::GetPressedOffset() const { return ScaleForDpi(GetLook().header->pressedOffset); }

void CXTPReportPaintManager::DrawColumnCaption(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn) {
    const int rank = pColumn->GetSortRank();
    const bool isOneOfSeveral = rank > 0 && pColumn->GetColumns()->GetSortOrder()->GetCount() > 1;
    DrawCaption(pDC, pColumn, rcColumn, {rank > 0, pColumn->IsSortIncreasing() != FALSE, isOneOfSeveral ? rank : 0});
}

void CXTPReportPaintManager::DrawCaption(CDC* pDC, const CXTPReportColumn* pColumn, const CRect& rcColumn,
                                         const SortMark& mark) {
    CRect rcText(rcColumn);
    rcText.DeflateRect(m_nCellPadding, 0, m_nCellPadding + 1, 1);
    const CXTPReportControl* control = pColumn->GetControl();
    const bool isEnabled = !control || !control->GetSafeHwnd() || control->IsWindowEnabled();
    TextStateGuard state(*pDC);
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(isEnabled ? m_clrHeaderText : m_clrDisabledText);
    const bool isArrowAbove = GetLook().header->arrowPlace == ArrowPlace::AboveCaption;
    const int markSpace = mark.isShown ? GetSortArrowSpace() + GetRankSpace(mark.rank) : 0;
    // Arrow and rank have their own room at the right, so that no caption runs into them.
    const bool hasRoom = mark.isShown && rcText.Width() > markSpace;
    if (hasRoom && mark.rank > 0) {
        CString rank;
        rank.Format(_T("%d"), mark.rank);
        state.UseFont(&m_fontRank);
        DrawTextLine(pDC, rank, rcText, DT_RIGHT);
    }
    if (mark.isShown && isArrowAbove) {
        const CSize arrow = GetArrowSize();
        const int top = rcColumn.top + ScaleForDpi(ArrowTop);
        const int left = rcColumn.left + (rcColumn.Width() - arrow.cx) / 2;
        if (rcText.Width() >= arrow.cx)
            DrawSortArrow(pDC, CRect(CPoint(left, top), arrow), mark.isIncreasing);
    } else if (hasRoom) {
        const int right = rcText.right - GetRankSpace(mark.rank);
        DrawSortArrow(pDC, CRect(right - GetArrowSize().cx, rcText.top, right, rcText.bottom), mark.isIncreasing);
    }
    if (hasRoom)
        rcText.right -= markSpace;
    state.UseFont(&m_fontText);
    DrawTextLine(pDC, pColumn->GetCaption(), rcText, pColumn->GetHeaderAlignment());
}

void CXTPReportPaintManager::DrawSortArrow(CDC* pDC, const CRect& rcArrow, BOOL bIncreasing) {
    const CSize size = GetArrowSize();
    const int top = rcArrow.top + (rcArrow.Height() - size.cy) / 2;
    const Arrow arrow = {pDC, rcArrow.left + (size.cx - 1) / 2, bIncreasing ? top : static_cast<int>(top + size.cy) - 1,
                         size.cy, bIncreasing ? 1 : -1};
    const bool isEnabled = !m_pControl || !m_pControl->GetSafeHwnd() || m_pControl->IsWindowEnabled();
    const COLORREF color = isEnabled ? m_clrSortArrow : m_clrDisabledText;
    switch (GetLook().header->arrow) {
    case ArrowShape::Filled:
        arrow.DrawFilled(color);
        break;
    case ArrowShape::Etched:
        arrow.DrawEtched(m_clrHeaderDividerLight, color);
        break;
    case ArrowShape::Chevron:
        arrow.DrawChevron(color, ScaleForDpi(2));
        break;
    }
}

// --- The drop mark --------------------------------------------------------------------------------------------------

void CXTPReportPaintManager::DrawDropMarker(CDC* pDC, int x, const CRect& rcHeader) {
    const reportlook::BodyMetrics& metrics = *GetLook().metrics;
    const int width = ScaleForDpi(metrics.dropMarkWidth), arrow = ScaleForDpi(metrics.dropMarkArrow);
    // In front of the first column the mark stands wholly inside, like its arrows in the middle of the bar.
    const int left = std::max<int>(x - width / 2, rcHeader.left);
    pDC->FillSolidRect(left, rcHeader.top, width, rcHeader.Height(), m_clrDropMark);
    for (int i = 0; i < arrow; ++i) {
        const int beside = arrow - 1 - i;
        pDC->FillSolidRect(left - beside, rcHeader.top + i, width + 2 * beside, 1, m_clrDropMark);
        pDC->FillSolidRect(left - beside, rcHeader.bottom - 1 - i, width + 2 * beside, 1, m_clrDropMark);
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

// --- The group-by box, and the edge of frozen columns ---------------------------------------------------------------

int CXTPReportPaintManager::GetGroupByMargin() const { return ScaleForDpi(GroupByMargin); }

int CXTPReportPaintManager::GetGroupByButtonGap() const { return ScaleForDpi(GroupButtonGap); }

int CXTPReportPaintManager::GetGroupByHeight() const { return GetHeaderHeight() + 2 * GetGroupByMargin(); }

int CXTPReportPaintManager::GetGroupByButtonWidth(const CXTPReportColumn* pColumn) const {
    const int width = GetTextWidth(pColumn->GetCaption()) + GetSortArrowSpace() + 2 * m_nCellPadding + 1;
    return std::max(width, ScaleForDpi(LeastGroupButton));
}

void CXTPReportPaintManager::DrawGroupByBackground(CDC* pDC, const CRect& rcGroupBy) {
    pDC->FillSolidRect(&rcGroupBy, m_clrGroupBy);
    FillIfSet(pDC, rcGroupBy.left, rcGroupBy.bottom - 1, rcGroupBy.right, rcGroupBy.bottom, m_clrHeaderLine);
}

void CXTPReportPaintManager::DrawNoGroupByText(CDC* pDC, const CRect& rcButtons) {
    TextStateGuard state(*pDC);
    state.UseFont(&m_fontText);
    pDC->SetBkMode(TRANSPARENT);
    const bool isEnabled = !m_pControl || !m_pControl->GetSafeHwnd() || m_pControl->IsWindowEnabled();
    pDC->SetTextColor(isEnabled ? m_clrGroupByText : m_clrDisabledText);
    DrawTextLine(pDC, m_strNoGroupBy, rcButtons, DT_LEFT);
}

void CXTPReportPaintManager::DrawGroupByButton(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcButton, BOOL bHot,
                                               BOOL bPressed) {
    if (rcButton.Width() <= 0)
        return;
    FillHeaderPart(pDC, rcButton, bHot, bPressed, FALSE);
    // A button stands alone, so it has an edge on every side, whatever the edges of columns are.
    if (GetLook().header->edge == HeaderEdge::Raised) {
        FillIfSet(pDC, rcButton.left, rcButton.bottom - 1, rcButton.right, rcButton.bottom, m_clrHeaderLine);
        DrawColumnEdges(pDC, nullptr, rcButton, bHot, bPressed);
    } else {
        const bool isFramed = (bHot || bPressed) && COLORREF(m_clrHeaderFrame) != CXTPPaintManagerColor::Unset;
        const COLORREF frame = isFramed ? m_clrHeaderFrame : m_clrHeaderLine;
        pDC->Draw3dRect(&rcButton, frame, frame);
    }
    CRect rcCaption(rcButton);
    if (bPressed)
        rcCaption.OffsetRect(GetPressedOffset(), GetPressedOffset());
    DrawCaption(pDC, pColumn, rcCaption, {true, pColumn->IsSortIncreasing() != FALSE, 0});
}

void CXTPReportPaintManager::DrawGroupByConnector(CDC* pDC, const CRect& rcGap) {
    pDC->FillSolidRect(rcGap.left, rcGap.CenterPoint().y, rcGap.Width(), 1, m_clrGroupByText);
}

void CXTPReportPaintManager::DrawFreezeLine(CDC* pDC, const CRect& rcLine) {
    FillIfSet(pDC, rcLine.left, rcLine.top, rcLine.right, rcLine.bottom, m_clrFreezeLine);
}
