// Sizes and fonts at the resolution of a monitor.
#pragma once

#include <afxwin.h>

/// Dots per inch of the monitor on which the window is; for no window those with which the program started.
int DpiOf(HWND window);

/// Whether a monitor may have so many dots per inch: messages can tell of any.
bool IsDpi(int dpi);

/// `pixels` at 96 dots per inch as pixels at another resolution.
int ScaledToDpi(int pixels, int dpi);

/// The user's font for messages at that resolution.
LOGFONT MessageFont(int dpi);
