/// @file
/// What a report grid holds as HTML and on the clipboard.
#pragma once

#include "../common/KyExport.h"

#include <XTToolkitPro.h>

#include <string>

/// Exports of any report control. Nothing is shown when something fails, and nothing throws.
namespace KyReportControlHelpers {

/// The records as an HTML table, in UTF-8 and without line breaks: a header row with every column, also hidden ones,
/// then every record that is marked visible and below it its child records. Records come in the order of their
/// collection and items in that of their record; sorting, filtering and moved columns change nothing.
///
/// A cell shows what its item writes in `DoPropExchange`: "Text", or, where there is a "Format", the float "Value" with
/// nine digits, whatever the grid shows of it; the missing-value mark is an empty cell. Plot cells become bitmap files
/// of 400 x 22 pixels.
/// @param control      any report control; it need not have a window
/// @param imagePrefix  the files of the plot cells are "PREFIX_RECORD_ITEM.bmp", both counted from 0; the page names
///                     them exactly so, also one that could not be written. Null is empty.
/// @return "<table>" alone when the records cannot be written for want of memory
/// @ingroup ky_grid
KYUI_API std::string SaveAsHtml(CXTPReportControl& control, const wchar_t* imagePrefix);

/// Puts all rows on the clipboard: as `CXTPReportControl::Copy` does, and with them, as "HTML Format", a document with
/// the table of `SaveAsHtml`. Without access to the clipboard nothing is put there. Afterwards no row is selected.
/// @ingroup ky_grid
KYUI_API void CopyToClipboard(CXTPReportControl& control, const wchar_t* imagePrefix);

} // namespace KyReportControlHelpers
