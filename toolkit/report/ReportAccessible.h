// What a report control tells screen readers and other assistive programs.
#pragma once

#include <windows.h>

#include <memory>

class CXTPReportControl;

/// What accessible objects hold of their control. They belong to other programs and outlive it.
struct ReportAccessLink {
    CXTPReportControl* control; ///< null when its window is gone; the objects answer CO_E_OBJNOTCONNECTED then
};

namespace reportaccessible {

/// Answers WM_GETOBJECT for the client area: an `IAccessible` of the grid. Its children are the headers of the visible
/// columns, from the left, after them the rows, from the top, and last the buttons of the group-by box; a row's
/// children are its cells in the visible columns. Rows are objects, the others simple elements. 0 when memory runs out.
LRESULT Answer(const std::shared_ptr<ReportAccessLink>& link, WPARAM wParam);

/// The child number of a row of the grid, as events tell it.
LONG ChildOfRow(const CXTPReportControl& control, int rowIndex);

} // namespace reportaccessible
