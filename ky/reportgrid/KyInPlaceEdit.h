/// @file
/// The editor for cells with the keys of a spreadsheet.
#pragma once

#include "../common/KyExport.h"

#include <XTToolkitPro.h>

/// An in-place editor in which Enter, Up and Down have the cell take the text and go on to the row below or above, Tab
/// goes on to the next cell, and Escape puts the text back that the editing began with, and goes on editing. Hand one
/// to `CXTPReportControl::SetInplaceEdit`, or open one over a part of a cell with `Create`.
/// @ingroup ky_grid
class KYUI_API KyInPlaceEdit : public CXTPReportInplaceEdit {
    DECLARE_DYNCREATE(KyInPlaceEdit)
public:
    KyInPlaceEdit();

    /// The keys above; any other key, and every key without a grid, is the edit control's.
    void OnKeyDown(UINT key, UINT repeat, UINT flags);

protected:
    DECLARE_MESSAGE_MAP()
};
