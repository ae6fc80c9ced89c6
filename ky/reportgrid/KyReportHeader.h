/// @file
/// The header of the report grid.
#pragma once

#include "../common/KyExport.h"

#include <XTToolkitPro.h>

/// The header that `KyReportControl` installs: a right click on it opens the grid's column chooser.
/// @ingroup ky_grid
class KYUI_API KyReportHeader : public CXTPReportHeader {
public:
    /// Neither pointer is owned; the control owns the header.
    KyReportHeader(CXTPReportControl* control, CXTPReportColumns* columns);

    /// @param point client coordinates of the control
    void OnContextMenu(CPoint point) override;
};
