// The look of grids that stand on dialogs.
#include "KyDialogReportControlTheme.h"

KyDialogReportControlTheme::KyDialogReportControlTheme() = default;

void KyDialogReportControlTheme::DrawColumnBackground(CDC* dc, CXTPReportColumn* column, CRect rect, int&, int&,
                                                      CXTPReportHeader* header) {
    const CXTPReportColumn* const previous = header ? header->GetNextVisibleColumn(column->GetIndex(), -1) : nullptr;
    const COLORREF dark = m_clrHeaderLine, divider = m_clrHeaderDivider;
    COLORREF light = m_clrHeaderDividerLight;
    if (light == CXTPPaintManagerColor::Unset) // in high contrast
        light = dark;
    const auto drawDivider = [&](int x) { dc->FillSolidRect(x, rect.top + 1, 1, rect.Height() - 2, divider); };

    dc->Draw3dRect(&rect, light, dark);
    if (!column->IsDividerHidden()) {
        drawDivider(rect.right - 1);
        dc->SetPixelV(rect.right - 1, rect.top, light);
    }
    if (previous && !previous->IsDividerHidden())
        drawDivider(rect.left);
}
