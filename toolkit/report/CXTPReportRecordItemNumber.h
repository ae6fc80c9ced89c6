/// @file
/// A cell that shows a number through a printf-style format.
#pragma once

#include "CXTPReportRecordItem.h"

/// A number cell. Sorts by value; a NaN sorts before every number.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportRecordItemNumber : public CXTPReportRecordItem {
    DECLARE_DYNCREATE(CXTPReportRecordItemNumber)
public:
    /// @param dValue    the number
    /// @param strFormat printf-style with one directive for a double, such as "%.2f" or "%g"; with a format that has
    ///                  any other directive, or none, the number is shown with "%g"
    CXTPReportRecordItemNumber(double dValue = 0.0, LPCTSTR strFormat = _T("%f"));

    double GetValue() const { return m_dValue; } ///< the number itself, whatever the cell shows
    /// Shows at the next redraw. An explicit caption stays in front of it.
    virtual void SetValue(double dValue);

    /// The explicit caption when there is one, else the number through the format.
    CString GetCaption(CXTPReportColumn* pColumn) override;
    /// By value with another number cell, else by caption.
    int Compare(CXTPReportColumn* pColumn, CXTPReportRecordItem* pItem) override;
    /// Takes the number, outside of virtual mode; an explicit caption goes. Both '.' and ',' are decimal separators,
    /// and there are none between thousands. A text that is no finite number changes nothing.
    void OnEditChanged(XTP_REPORTRECORDITEM_ARGS* pItemArgs, LPCTSTR szText) override;
    /// In addition "Value" and "Format", which is never empty and so tells a number from other cells.
    void DoPropExchange(CXTPPropExchange* pPX) override;

protected:
    double m_dValue; ///< the number
};
