// The tool tip of a plot, whose text depends on the place of the pointer in it.
#pragma once

#include <XTToolkitPro.h>

/// Answers `OnToolHitTest` with the tip of a cell; without a text there is none.
inline INT_PTR PlotTip(const CString& text, const CRect& cell, TOOLINFO* tool) {
    if (text.IsEmpty())
        return -1;
    if (tool != nullptr) {
        tool->rect = cell;
        tool->lpszText = _wcsdup(text);
    }
    return 0; // the grid numbers its cells
}
