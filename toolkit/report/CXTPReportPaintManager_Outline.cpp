// The drawing of a report control's outline: rows of groups, expand buttons, the lines of a tree.
#include "CXTPReportPaintManager.h"

#include "CXTPReportControl.h"
#include "CXTPReportGroupRow.h"
#include "CXTPReportRows.h"
#include "ReportLook.h"

#include "../../framework/gdi/SelectGuard.h"
#include "../common/TextStateGuard.h"

#include <algorithm>

namespace {

// Lengths at 96 DPI.
constexpr int BoxSize = 9;
constexpr int SignMargin = 2; // between the frame of a box and its sign
constexpr int TriangleSize = 6;

/// A rectangle of that size in the middle of another.
CRect Centred(const CRect& rc, CSize size) {
    return CRect(CPoint(rc.left + (rc.Width() - size.cx) / 2, rc.top + (rc.Height() - size.cy) / 2), size);
}

/// Every second pixel, the first one included.
void FillDotted(CDC* pDC, const CRect& rcLine, COLORREF color) {
    const bool isVertical = rcLine.Width() == 1;
    for (int pos = isVertical ? rcLine.top : rcLine.left; pos < (isVertical ? rcLine.bottom : rcLine.right); pos += 2)
        pDC->FillSolidRect(isVertical ? rcLine.left : pos, isVertical ? pos : rcLine.top, 1, 1, color);
}

} // namespace

int CXTPReportPaintManager::GetTreeIndent() const { return std::max(ScaleForDpi(GetLook().metrics->treeIndent), 1); }

CRect CXTPReportPaintManager::GetGroupButtonRect(const CXTPReportGroupRow* pRow, const CRect& rcRow) const {
    const int left = rcRow.left + pRow->GetGroupLevel() * GetTreeIndent();
    return CRect(left, rcRow.top, left + GetTreeIndent(), rcRow.bottom - 1);
}

void CXTPReportPaintManager::DrawGroupRow(CDC* pDC, CXTPReportGroupRow* pRow, const CRect& rcRow) {
    XTP_REPORTRECORDITEM_METRICS metrics;
    FillRowMetrics(pRow, &metrics);
    pDC->FillSolidRect(&rcRow, metrics.clrBackground);
    pDC->FillSolidRect(rcRow.left, rcRow.bottom - 1, rcRow.Width(), 1, m_clrGroupRowLine);
    const CRect rcButton = GetGroupButtonRect(pRow, rcRow);
    if (pRow->HasChildren())
        DrawExpandButton(pDC, rcButton, pRow->IsExpanded(), metrics);
    const CRect rcText(rcButton.right, rcRow.top, rcRow.right - m_nCellPadding, rcRow.bottom - 1);
    TextStateGuard state(*pDC);
    state.UseFont(metrics.pFont);
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(metrics.clrForeground);
    DrawTextLine(pDC, pRow->GetCaption(), rcText, DT_LEFT);
}

void CXTPReportPaintManager::DrawTreeLines(CDC* pDC, CXTPReportRow* pRow, const CRect& rcIndent, int nRight) {
    const CXTPReportControl* control = pRow->GetControl();
    if (m_clrTreeLine == CXTPPaintManagerColor::Unset || !control)
        return;
    const CXTPReportRows* rows = control->GetRows();
    const int step = GetTreeIndent(), depth = rcIndent.Width() / step - 1, index = pRow->GetIndex();
    const int middle = (rcIndent.top + rcIndent.bottom - 1) / 2;
    const auto fill = [&](int left, int top, int right, int bottom) {
        const CRect rcLine(left, top, std::min(right, nRight - 1), bottom);
        if (rcLine.Width() > 0)
            FillDotted(pDC, rcLine, m_clrTreeLine);
    };
    const auto upright = [&](int level, int top, int bottom) {
        const int x = rcIndent.left + level * step + step / 2;
        fill(x, top, x + 1, bottom);
    };
    // Through the indentation of each record above that is not the last one.
    for (int above = 1; above <= depth; ++above)
        if (rows->HasNextSibling(index, above))
            upright(depth - above, rcIndent.top, rcIndent.bottom);
    // From above to this record and on to the next one. Above the first one without a parent stands nothing.
    const bool isFirst = depth == 0 && rows->GetParentIndex(index) == index - 1;
    upright(depth, isFirst ? middle : static_cast<int>(rcIndent.top),
            rows->HasNextSibling(index, 0) ? static_cast<int>(rcIndent.bottom) : middle + 1);
    fill(rcIndent.left + depth * step + step / 2, middle, rcIndent.right, middle + 1);
}

void CXTPReportPaintManager::DrawExpandButton(CDC* pDC, const CRect& rcButton, BOOL bExpanded,
                                              const XTP_REPORTRECORDITEM_METRICS& metrics) {
    if (GetLook().metrics->button == reportlook::ExpandButton::Box) {
        const int size = ScaleForDpi(BoxSize) | 1; // odd, so that the sign stands in the middle
        const int width = ScaleForDpi(1) | 1;
        const CRect rcBox = Centred(rcButton, CSize(size, size));
        pDC->FillSolidRect(&rcBox, m_clrExpandButtonFill);
        pDC->Draw3dRect(&rcBox, m_clrExpandButton, m_clrExpandButton);
        CRect rcSign(rcBox);
        rcSign.DeflateRect(ScaleForDpi(SignMargin), (size - width) / 2);
        pDC->FillSolidRect(&rcSign, m_clrExpandButtonSign);
        CRect rcUpright(rcBox);
        rcUpright.DeflateRect((size - width) / 2, ScaleForDpi(SignMargin));
        if (!bExpanded)
            pDC->FillSolidRect(&rcUpright, m_clrExpandButtonSign);
        return;
    }
    // On the user's own colours a triangle is as readable as the text beside it.
    const COLORREF color = m_bHighContrast ? metrics.clrForeground : static_cast<COLORREF>(m_clrExpandButton);
    const int size = ScaleForDpi(TriangleSize);
    const CRect rc = Centred(rcButton, bExpanded ? CSize(size, size) : CSize(size - 1, 2 * size - 3));
    for (int i = 0; i < (bExpanded ? size : size - 1); ++i) {
        if (bExpanded)
            pDC->FillSolidRect(rc.right - 1 - i, rc.top + i, i + 1, 1, color); // the right angle is at the lower right
        else
            pDC->FillSolidRect(rc.left + i, rc.top + i, 1, rc.Height() - 2 * i, color);
    }
}
