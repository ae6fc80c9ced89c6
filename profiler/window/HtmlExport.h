// The grid as an HTML page with pictures beside it, and over the clipboard.
#pragma once

#include <XTToolkitPro.h>

#include <filesystem>

/// Writes the page to `file`, and the plots as pictures into the folder "NAME-plots" beside it, NAME being that of the
/// file without its extension. A picture that cannot be written is missing in the page. False when the page itself
/// cannot be written.
bool ExportHtml(CXTPReportControl& grid, const CString& title, const std::filesystem::path& file);

/// A page of the same kind in the user's folder for temporary files; empty when it cannot be written.
std::filesystem::path ExportTemporaryHtml(CXTPReportControl& grid, const CString& title);

/// Puts all rows on the clipboard, with the plots as pictures for programs that take HTML. The row with the focus stays
/// selected. False when the clipboard has not taken them.
bool CopyGrid(CXTPReportControl& grid);
