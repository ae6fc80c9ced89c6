// The dialog that tells everything that is known of one column.
#pragma once

#include "reportgrid/KyReportControl.h"
#include "statistics/ColumnProfile.h"

#include <afxwin.h>

#include <utility>
#include <vector>

/// What is told of a column: names and values, in the user's language.
std::vector<std::pair<CString, CString>> ColumnDetails(const statistics::ColumnProfile& profile);

/// A list to read, with one line for each statistic. Modal.
class ColumnDetailsDialog : public CDialog {
public:
    /// @param profile  read when the dialog opens
    ColumnDetailsDialog(const statistics::ColumnProfile& profile, CWnd* owner);

    INT_PTR DoModal() override;
    BOOL OnInitDialog() override;

private:
    void AddLines();
    void PlaceControls();

    const statistics::ColumnProfile& m_profile;
    KyReportControl m_grid;
    CButton m_close;
    CFont m_font;
};
