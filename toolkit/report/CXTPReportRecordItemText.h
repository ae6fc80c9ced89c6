/// @file
/// A cell that shows a text.
#pragma once

#include "CXTPReportRecordItem.h"

/// A text cell. Sorts by the user's locale, without regard to case.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportRecordItemText : public CXTPReportRecordItem {
    DECLARE_DYNCREATE(CXTPReportRecordItemText)
public:
    /// @param szText copied; null is the empty text
    CXTPReportRecordItemText(LPCTSTR szText = _T(""));

    CString GetValue() const { return m_strText; } ///< the text itself, whatever the cell shows
    /// Shows at the next redraw. An explicit caption stays in front of it.
    virtual void SetValue(LPCTSTR szText);

    /// The explicit caption when there is one, else the text through the format.
    CString GetCaption(CXTPReportColumn* pColumn) override;
    /// By caption in the user's locale, without regard to case.
    int Compare(CXTPReportColumn* pColumn, CXTPReportRecordItem* pItem) override;
    /// Takes the text as the value, outside of virtual mode; an explicit caption goes.
    void OnEditChanged(XTP_REPORTRECORDITEM_ARGS* pItemArgs, LPCTSTR szText) override;
    /// In addition "Text", the text itself, and "TextFormat".
    void DoPropExchange(CXTPPropExchange* pPX) override;

protected:
    CompactText m_strText; ///< the text; copies of an item share it
};
