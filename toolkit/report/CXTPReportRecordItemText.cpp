// A cell that shows a text.
#include "CXTPReportRecordItemText.h"

#include "CXTPReportControl.h"
#include "ItemCompare.h"
#include "ItemFormat.h"

#include "../common/CXTPPropExchange.h"

#include <cwchar>

IMPLEMENT_DYNCREATE(CXTPReportRecordItemText, CXTPReportRecordItem)

CXTPReportRecordItemText::CXTPReportRecordItemText(LPCTSTR szText) : m_strText(szText) { InternFormatString(_T("%s")); }

void CXTPReportRecordItemText::SetValue(LPCTSTR szText) { m_strText = szText; }

CString CXTPReportRecordItemText::GetCaption(CXTPReportColumn* /*pColumn*/) {
    if (!m_strCaption.IsEmpty())
        return m_strCaption;
    const LPCTSTR strFormat = FormatString();
    if (std::wcscmp(strFormat, _T("%s")) == 0 || !itemformat::IsSafe(strFormat, itemformat::Value::Text))
        return m_strText;
    CString strText;
    strText.Format(strFormat, m_strText.GetString());
    return strText;
}

int CXTPReportRecordItemText::Compare(CXTPReportColumn* pColumn, CXTPReportRecordItem* pItem) {
    return CXTPReportRecordItem::Compare(pColumn, pItem);
}

void CXTPReportRecordItemText::OnEditChanged(XTP_REPORTRECORDITEM_ARGS* pItemArgs, LPCTSTR szText) {
    if (pItemArgs->pControl && pItemArgs->pControl->IsVirtualMode())
        return;
    SetCaption(_T("")); // it would hide what the user has typed
    SetValue(szText);
}

void CXTPReportRecordItemText::DoPropExchange(CXTPPropExchange* pPX) {
    CXTPReportRecordItem::DoPropExchange(pPX);
    ExchangeText(pPX, _T("Text"), m_strText);
    // Not "Format": that one tells a number.
    CString strFormat(FormatString());
    PX_String(pPX, _T("TextFormat"), strFormat, _T("%s"));
    if (pPX->IsLoading())
        InternFormatString(strFormat);
}
