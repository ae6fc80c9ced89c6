/// @file
/// Private window messages of the library.
#pragma once

#include <afxwin.h>

/// @addtogroup ky_common
/// @{

/// Sent to the main frame when the theme changed, and handled by the grids. wParam: the new theme's number; lParam: 0.
/// Passing it on to child windows is the host's affair.
inline constexpr UINT WM_KYTHEMECHANGED = 0x08B1;

/// @}
