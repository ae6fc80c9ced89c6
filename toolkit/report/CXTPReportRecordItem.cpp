// One cell of a record: the base of every cell that a report control shows.
#include "CXTPReportRecordItem.h"

#include "CXTPReportColumn.h"
#include "CXTPReportControl.h"
#include "CXTPReportInplaceEdit.h"
#include "CXTPReportPaintManager.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecords.h"
#include "CXTPReportRow.h"
#include "ItemCompare.h"
#include "RecordItemHeap.h"

#include "../common/CXTPPropExchange.h"
#include "../common/TextStateGuard.h"

#include <cstring>
#include <vector>

IMPLEMENT_DYNCREATE(CXTPReportRecordItem, CCmdTarget)

struct CXTPReportRecordItem::Extras {
    CString strTooltip;
    DWORD_PTR dwData = 0;
    std::vector<std::unique_ptr<CXTPReportHyperlink>> hyperlinks;
};

CXTPReportRecordItem::CXTPReportRecordItem() = default;
CXTPReportRecordItem::~CXTPReportRecordItem() = default;

void* CXTPReportRecordItem::operator new(size_t size) {
    return recorditemheap::TakeObject(recorditemheap::Kind::Item, size);
}

void CXTPReportRecordItem::operator delete(void* p, size_t size) {
    recorditemheap::ReturnObject(recorditemheap::Kind::Item, p, size);
}

CXTPReportRecordItem::Extras& CXTPReportRecordItem::EnsureExtras() {
    if (!m_pExtras)
        m_pExtras = std::make_unique<Extras>();
    return *m_pExtras;
}

// --- Text ------------------------------------------------------------------------------------------------------------

CString CXTPReportRecordItem::GetCaption(CXTPReportColumn* /*pColumn*/) { return m_strCaption; }

void CXTPReportRecordItem::SetCaption(LPCTSTR strCaption) { m_strCaption = strCaption; }

CString CXTPReportRecordItem::GetFormatString() const { return m_formatString; }

void CXTPReportRecordItem::SetFormatString(LPCTSTR strFormat) { InternFormatString(strFormat); }

CString CXTPReportRecordItem::GetTooltip() const { return m_pExtras ? m_pExtras->strTooltip : CString(); }

void CXTPReportRecordItem::SetTooltip(LPCTSTR strTooltip) { EnsureExtras().strTooltip = strTooltip; }

// --- Look ------------------------------------------------------------------------------------------------------------

COLORREF CXTPReportRecordItem::GetTextColor() const { return m_clrText; }
void CXTPReportRecordItem::SetTextColor(COLORREF clr) { m_clrText = clr; }
COLORREF CXTPReportRecordItem::GetBackgroundColor() const { return m_clrBackground; }
void CXTPReportRecordItem::SetBackgroundColor(COLORREF clr) { m_clrBackground = clr; }
BOOL CXTPReportRecordItem::IsBold() const { return m_bBold; }
void CXTPReportRecordItem::SetBold(BOOL bBold) { m_bBold = bBold != FALSE; }
int CXTPReportRecordItem::GetAlignment() const { return m_nAlignment; }
void CXTPReportRecordItem::SetAlignment(int nAlignment) { m_nAlignment = static_cast<short>(nAlignment); }

void CXTPReportRecordItem::GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs,
                                          XTP_REPORTRECORDITEM_METRICS* pMetrics) {
    pMetrics->strText = GetCaption(pDrawArgs->pColumn);
    if (m_bBold && pDrawArgs->pControl)
        pMetrics->pFont = pDrawArgs->pControl->GetPaintManager()->GetTextBoldFont();
    const bool bSelected = pDrawArgs->pRow && pDrawArgs->pRow->IsSelected();
    if (!bSelected && m_clrText != CXTPPaintManagerColor::Unset)
        pMetrics->clrForeground = m_clrText;
    if (!bSelected && m_clrBackground != CXTPPaintManagerColor::Unset)
        pMetrics->clrBackground = m_clrBackground;
    if (m_nAlignment >= 0)
        pMetrics->nColumnAlignment = m_nAlignment;
    else if (pDrawArgs->pColumn)
        pMetrics->nColumnAlignment = pDrawArgs->pColumn->GetAlignment();
    pDrawArgs->nTextAlign = pMetrics->nColumnAlignment;
}

void CXTPReportRecordItem::Draw(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs) {
    XTP_REPORTRECORDITEM_METRICS metrics;
    CXTPReportPaintManager* const pPaintManager =
        pDrawArgs->pControl ? pDrawArgs->pControl->GetPaintManager() : nullptr;
    if (pPaintManager) {
        metrics.pFont = pPaintManager->GetTextFont();
        metrics.clrForeground = pPaintManager->m_clrWindowText;
        if (pDrawArgs->pRow)
            pPaintManager->FillRowMetrics(pDrawArgs->pRow, &metrics);
    }
    const COLORREF clrRow = metrics.clrBackground;
    if (m_pRecord)
        m_pRecord->GetItemMetrics(pDrawArgs, &metrics);
    GetItemMetrics(pDrawArgs, &metrics);

    CDC* const pDC = pDrawArgs->pDC;
    TextStateGuard state(*pDC);
    // The row has filled itself already.
    if (metrics.clrBackground != clrRow)
        pDC->FillSolidRect(pDrawArgs->rcItem, metrics.clrBackground);
    state.UseFont(metrics.pFont);
    if (metrics.clrForeground != CXTPPaintManagerColor::Unset)
        pDC->SetTextColor(metrics.clrForeground);
    pDC->SetBkMode(TRANSPARENT);
    OnDrawCaption(pDrawArgs, &metrics);
}

void CXTPReportRecordItem::OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs,
                                         XTP_REPORTRECORDITEM_METRICS* pMetrics) {
    if (!pDrawArgs->pControl || !pMetrics)
        return;
    // An override that sets another text colour before it calls this one gets it.
    pMetrics->clrForeground = pDrawArgs->pDC->GetTextColor();
    pDrawArgs->pControl->GetPaintManager()->DrawItemText(pDrawArgs, pMetrics);
}

// --- Order -----------------------------------------------------------------------------------------------------------

int CXTPReportRecordItem::Compare(CXTPReportColumn* pColumn, CXTPReportRecordItem* pItem) {
    return pItem ? itemcompare::Texts(GetCaption(pColumn), pItem->GetCaption(pColumn)) : 1;
}

CString CXTPReportRecordItem::GetAccessibleValue(CXTPReportColumn*) { return CString(); }

// --- Hyperlinks ------------------------------------------------------------------------------------------------------

int CXTPReportRecordItem::AddHyperlink(CXTPReportHyperlink* pHyperlink) {
    if (!pHyperlink)
        return -1;
    std::unique_ptr<CXTPReportHyperlink> hyperlink(pHyperlink);
    auto& hyperlinks = EnsureExtras().hyperlinks;
    hyperlinks.push_back(std::move(hyperlink));
    return static_cast<int>(hyperlinks.size()) - 1;
}

int CXTPReportRecordItem::GetHyperlinksCount() const {
    return m_pExtras ? static_cast<int>(m_pExtras->hyperlinks.size()) : 0;
}

CXTPReportHyperlink* CXTPReportRecordItem::GetHyperlinkAt(int nIndex) const {
    return nIndex >= 0 && nIndex < GetHyperlinksCount() ? m_pExtras->hyperlinks[nIndex].get() : nullptr;
}

int CXTPReportRecordItem::HitTestHyperlink(CPoint ptPoint) {
    for (int i = 0; i < GetHyperlinksCount(); ++i)
        if (m_pExtras->hyperlinks[i]->m_rcHyperSpot.PtInRect(ptPoint))
            return i;
    return -1;
}

// --- Mouse -----------------------------------------------------------------------------------------------------------

BOOL CXTPReportRecordItem::OnLButtonDown(XTP_REPORTRECORDITEM_CLICKARGS* /*pClickArgs*/) { return FALSE; }

BOOL CXTPReportRecordItem::OnLButtonUp(XTP_REPORTRECORDITEM_CLICKARGS* /*pClickArgs*/) { return FALSE; }

void CXTPReportRecordItem::OnClick(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs) {
    const int nHyperlink = HitTestHyperlink(pClickArgs->ptClient);
    if (nHyperlink >= 0 && pClickArgs->pControl)
        pClickArgs->pControl->SendItemNotify(XTP_NM_REPORT_HYPERLINK, pClickArgs->ptClient, pClickArgs->pRow, this,
                                             pClickArgs->pColumn, nHyperlink);
}

void CXTPReportRecordItem::OnDblClick(XTP_REPORTRECORDITEM_CLICKARGS* /*pClickArgs*/) {}

void CXTPReportRecordItem::OnMouseMove(UINT /*nFlags*/, CPoint /*point*/, CXTPReportControl* /*pReportControl*/) {}

INT_PTR CXTPReportRecordItem::OnToolHitTest(CPoint point, TOOLINFO* pTI) {
    const CXTPReportControl* const pControl = GetReportControl();
    if (!pControl || !m_pExtras || m_pExtras->strTooltip.IsEmpty())
        return -1;
    const CXTPReportRow* const pRow = pControl->HitTest(point);
    CRect rcItem;
    if (!pRow || pRow->HitTest(point, &rcItem) != this)
        return -1;
    // A virtual item stands in many rows: each of its cells is a tool of its own.
    const INT_PTR nTool =
        (reinterpret_cast<INT_PTR>(this) ^ (static_cast<INT_PTR>(pRow->GetIndex()) << 4)) & MAXINT_PTR;
    CXTPToolTipContext::FillInToolInfo(pTI, pControl->GetSafeHwnd(), rcItem, nTool, m_pExtras->strTooltip);
    return nTool;
}

// --- Editing ---------------------------------------------------------------------------------------------------------

void CXTPReportRecordItem::OnValidateEdit(XTP_REPORTRECORDITEM_ARGS* pItemArgs) {
    CXTPReportControl* const pControl = pItemArgs->pControl;
    const CXTPReportInplaceEdit* const pEdit = pControl ? pControl->GetInplaceEdit() : nullptr;
    if (!pEdit || !pEdit->m_hWnd)
        return;
    CString strText;
    pEdit->GetWindowText(strText);
    if (strText == pEdit->GetStartText()) {
        OnEditCanceled(pItemArgs);
        return;
    }
    const HWND hWnd = pControl->m_hWnd;
    OnEditChanged(pItemArgs, strText);
    if (!::IsWindow(hWnd))
        return; // the hook has destroyed the control
    pControl->RedrawControl();
    pControl->SendEditNotify(XTP_NM_REPORT_VALUECHANGED, *pItemArgs);
}

void CXTPReportRecordItem::OnEditChanged(XTP_REPORTRECORDITEM_ARGS* /*pItemArgs*/, LPCTSTR /*szText*/) {}

void CXTPReportRecordItem::OnEditCanceled(XTP_REPORTRECORDITEM_ARGS* pItemArgs) {
    if (pItemArgs->pControl)
        pItemArgs->pControl->SendEditNotify(XTP_NM_REPORT_EDITCANCELED, *pItemArgs);
}

// --- Property exchange -----------------------------------------------------------------------------------------------

void CXTPReportRecordItem::DoPropExchange(CXTPPropExchange* pPX) {
    ExchangeText(pPX, _T("Caption"), m_strCaption);
    CString strTooltip = GetTooltip();
    PX_String(pPX, _T("Tooltip"), strTooltip, _T(""));
    if (pPX->IsLoading() && strTooltip != GetTooltip())
        SetTooltip(strTooltip);
    PX_DWord(pPX, _T("TextColor"), m_clrText, CXTPPaintManagerColor::Unset);
    PX_DWord(pPX, _T("BackgroundColor"), m_clrBackground, CXTPPaintManagerColor::Unset);
    BOOL bBold = m_bBold;
    PX_Bool(pPX, _T("BoldText"), bBold, FALSE);
    m_bBold = bBold != FALSE;
    BOOL bEditable = m_bEditable;
    PX_Bool(pPX, _T("Editable"), bEditable, TRUE);
    m_bEditable = bEditable != FALSE;
    int nAlignment = m_nAlignment;
    PX_Int(pPX, _T("Alignment"), nAlignment, -1);
    SetAlignment(nAlignment);
}

void CXTPReportRecordItem::ExchangeText(CXTPPropExchange* pPX, LPCTSTR pszPropName, CompactText& strText) {
    CString strValue = strText;
    PX_String(pPX, pszPropName, strValue, _T(""));
    if (pPX->IsLoading())
        strText = strValue.GetString();
}

// --- Place -----------------------------------------------------------------------------------------------------------

int CXTPReportRecordItem::GetIndex() const { return m_pRecord ? m_pRecord->IndexOf(this) : -1; }

CXTPReportControl* CXTPReportRecordItem::GetReportControl() const {
    const CXTPReportRecords* const pRecords = m_pRecord ? m_pRecord->GetRecords() : nullptr;
    return pRecords ? pRecords->GetControl() : nullptr;
}

DWORD_PTR CXTPReportRecordItem::GetItemData() const { return m_pExtras ? m_pExtras->dwData : 0; }

void CXTPReportRecordItem::SetItemData(DWORD_PTR dwData) { EnsureExtras().dwData = dwData; }
