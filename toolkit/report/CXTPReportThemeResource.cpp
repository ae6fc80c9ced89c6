// The skinned look of a report control, for looks of one's own to derive from.
#include "CXTPReportThemeResource.h"

#include "CXTPReportControl.h"

CXTPReportThemeResource::CXTPReportThemeResource() : CXTPReportPaintManager(xtpReportThemeResource) {}

void CXTPReportThemeResource::DrawColumnBackground(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn,
                                                   BOOL bHot, BOOL bPressed) {
    int nHot = bHot, nPressed = bPressed;
    DrawColumnBackground(pDC, pColumn, rcColumn, nHot, nPressed, m_pControl ? m_pControl->GetReportHeader() : nullptr);
}

void CXTPReportThemeResource::DrawColumnBackground(CDC* pDC, CXTPReportColumn* pColumn, CRect rcColumn, int& nHot,
                                                   int& nPressed, CXTPReportHeader* /*pHeader*/) {
    CXTPReportPaintManager::DrawColumnBackground(pDC, pColumn, rcColumn, nHot, nPressed);
}
