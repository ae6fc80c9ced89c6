/// @file
/// The row at the head of a group of records.
#pragma once

#include "CXTPReportRow.h"

/// A row without a record, above the records that show the same text in a grouping column, and above the groups of the
/// next grouping column. It is focused, selected, expanded and collapsed as other rows are, and shows its caption over
/// the full width, wherever the columns are scrolled to.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportGroupRow : public CXTPReportRow {
public:
    /// Rows are made by `CXTPReportRows` alone.
    CXTPReportGroupRow(CXTPReportRows* pRows, int nIndex);

    BOOL IsGroupRow() const override { return TRUE; }
    CString GetCaption() const;          ///< as `CXTPReportControl::GetGroupCaption` makes it
    CXTPReportColumn* GetColumn() const; ///< by which the records are grouped; null once it or the row was taken out
    CString GetValue() const;            ///< the text that the records show in the column; may be empty
    int GetRecordCount() const;          ///< records in the group, with all below them, shown or not
    CRect GetExpandButtonRect() const override;
    void Draw(CDC* pDC, const CRect& rcRow, const CRect& rcClip) override;
};
