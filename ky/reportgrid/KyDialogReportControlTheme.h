/// @file
/// The look of grids that stand on dialogs.
#pragma once

#include "../common/KyExport.h"

#include <XTToolkitPro.h>

/// Draws the columns of a grid's header as framed buttons without a look of their own under the pointer. Hand it to
/// `CXTPReportControl::SetPaintManager`; a grid that follows the application's theme takes that one's look at the next
/// change of theme.
/// @ingroup ky_grid
class KYUI_API KyDialogReportControlTheme : public CXTPReportThemeResource {
public:
    KyDialogReportControlTheme();

    using CXTPReportThemeResource::DrawColumnBackground;
    /// The frame around the column, its divider, and that of the column before it. A column whose divider is hidden
    /// (`CXTPReportColumn::HideDivider`) has its frame instead.
    void DrawColumnBackground(CDC* dc, CXTPReportColumn* column, CRect rect, int& hot, int& pressed,
                              CXTPReportHeader* header) override;
};
