// A cell that shows a number through a printf-style format.
#include "CXTPReportRecordItemNumber.h"

#include "CXTPReportControl.h"
#include "ItemCompare.h"
#include "ItemFormat.h"

#include "../common/CXTPPropExchange.h"

IMPLEMENT_DYNCREATE(CXTPReportRecordItemNumber, CXTPReportRecordItem)

CXTPReportRecordItemNumber::CXTPReportRecordItemNumber(double dValue, LPCTSTR strFormat) : m_dValue(dValue) {
    InternFormatString(strFormat);
}

void CXTPReportRecordItemNumber::SetValue(double dValue) { m_dValue = dValue; }

CString CXTPReportRecordItemNumber::GetCaption(CXTPReportColumn* /*pColumn*/) {
    if (!m_strCaption.IsEmpty())
        return m_strCaption;
    const LPCTSTR strFormat = FormatString();
    CString strText;
    strText.Format(itemformat::IsSafe(strFormat, itemformat::Value::Number) ? strFormat : _T("%g"), m_dValue);
    return strText;
}

int CXTPReportRecordItemNumber::Compare(CXTPReportColumn* pColumn, CXTPReportRecordItem* pItem) {
    if (const auto* const pNumber = dynamic_cast<const CXTPReportRecordItemNumber*>(pItem))
        return itemcompare::Numbers(m_dValue, pNumber->m_dValue);
    return CXTPReportRecordItem::Compare(pColumn, pItem);
}

void CXTPReportRecordItemNumber::OnEditChanged(XTP_REPORTRECORDITEM_ARGS* pItemArgs, LPCTSTR szText) {
    double dValue = 0;
    if ((pItemArgs->pControl && pItemArgs->pControl->IsVirtualMode()) || !itemformat::ReadNumber(szText, dValue))
        return;
    SetCaption(_T("")); // it would hide what the user has typed
    SetValue(dValue);
}

void CXTPReportRecordItemNumber::DoPropExchange(CXTPPropExchange* pPX) {
    CXTPReportRecordItem::DoPropExchange(pPX);
    CString strFormat(FormatString());
    if (strFormat.IsEmpty())
        strFormat = _T("%g"); // what it is shown with
    PX_String(pPX, _T("Format"), strFormat);
    PX_Double(pPX, _T("Value"), m_dValue);
    if (pPX->IsLoading())
        InternFormatString(strFormat);
}
