// A cell that shows a text.
#pragma once

#include "CXTPReportRecordItem.h"

/// A text cell. Sorts by the user's locale, without regard to case.
class KY_TOOLKIT_API CXTPReportRecordItemText : public CXTPReportRecordItem {
    DECLARE_DYNCREATE(CXTPReportRecordItemText)
public:
    CXTPReportRecordItemText(LPCTSTR szText = _T(""));

    CString GetValue() const { return m_strText; }
    /// Shows at the next redraw. An explicit caption stays in front of it.
    virtual void SetValue(LPCTSTR szText);

    CString GetCaption(CXTPReportColumn* pColumn) override;
    int Compare(CXTPReportColumn* pColumn, CXTPReportRecordItem* pItem) override;

protected:
    CompactText m_strText;
};
