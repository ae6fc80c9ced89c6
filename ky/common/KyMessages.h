/// @file
/// Private window messages of the library.
#pragma once

#include <afxwin.h>

class KyDragLineMinMaxRecordItem;

/// @addtogroup ky_common
/// @{

/// Sent to the main frame when the theme changed, and handled by the grids. wParam: the new theme's number; lParam: 0.
/// Passing it on to child windows is the host's affair.
inline constexpr UINT WM_KYTHEMECHANGED = 0x08B1;

/// Sent to a grid's window when the user has typed an end of a slider's scale. wParam: a `KyRangeEdited*`, which lasts
/// as long as the call; lParam: 0. The cell has not changed: whether its scale does is the host's affair.
inline constexpr UINT WM_KYRANGEEDITED = WM_USER + 5000;

/// What WM_KYRANGEEDITED carries.
struct KyRangeEdited {
    float value;                      ///< the number that was typed; -99.0001 for -99
    int isMinimum;                    ///< 1 for the minimum, 0 for the maximum
    KyDragLineMinMaxRecordItem* item; ///< the cell
};

/// @}
