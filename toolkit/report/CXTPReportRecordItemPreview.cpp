// The text below a record's cells.
#include "CXTPReportRecordItemPreview.h"

#include "CXTPReportControl.h"
#include "CXTPReportPaintManager.h"
#include "CXTPReportRow.h"

IMPLEMENT_DYNCREATE(CXTPReportRecordItemPreview, CXTPReportRecordItem)

CXTPReportRecordItemPreview::CXTPReportRecordItemPreview(LPCTSTR szText) : m_strText(szText) {}

CString CXTPReportRecordItemPreview::GetPreviewText() const { return m_strText; }

void CXTPReportRecordItemPreview::SetPreviewText(LPCTSTR szText) { m_strText = szText; }

CString CXTPReportRecordItemPreview::GetCaption(CXTPReportColumn* /*pColumn*/) { return GetPreviewText(); }

void CXTPReportRecordItemPreview::GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs,
                                                 XTP_REPORTRECORDITEM_METRICS* pMetrics) {
    CXTPReportControl* const pControl = pDrawArgs->pControl;
    const bool isSelected = pDrawArgs->pRow && pDrawArgs->pRow->IsSelected();
    // The record may have chosen a colour, and disabled rows have one.
    if (pControl && !isSelected && pMetrics->clrForeground == pControl->GetPaintManager()->m_clrWindowText)
        pMetrics->clrForeground = pControl->GetPaintManager()->m_clrPreviewText;
    CXTPReportRecordItem::GetItemMetrics(pDrawArgs, pMetrics);
    if (pControl)
        pMetrics->pFont = pControl->GetPaintManager()->GetTextFont();
}

void CXTPReportRecordItemPreview::OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs,
                                                XTP_REPORTRECORDITEM_METRICS* pMetrics) {
    if (pDrawArgs->pControl && pMetrics)
        pDrawArgs->pControl->GetPaintManager()->DrawPreviewText(pDrawArgs, pMetrics);
}

void CXTPReportRecordItemPreview::DoPropExchange(CXTPPropExchange* pPX) {
    CXTPReportRecordItem::DoPropExchange(pPX);
    ExchangeText(pPX, _T("Text"), m_strText);
}
