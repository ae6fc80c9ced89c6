/// @file
/// The resolution of windows and monitors, and the system's sizes and fonts at it.
#pragma once

#include "../core/Export.h"

#include <windows.h>

/// Resolutions are dots per inch; 96 is that of a monitor at 100 %. Systems that know one resolution only answer with
/// that one.
namespace windowdpi {

constexpr int Standard = 96; ///< a monitor at 100 %

/// The resolution with which the program started.
KY_FRAMEWORK_API int OfSystem();
/// That of the monitor on which the window is, as far as the program is aware of it; the system's for no window.
KY_FRAMEWORK_API int OfWindow(HWND window);
/// The fonts and sizes of frames, menus and messages; false when the system does not tell.
KY_FRAMEWORK_API bool ReadNonClientMetrics(NONCLIENTMETRICS& metrics, int dpi);
/// `index` is an SM_ number of a length.
KY_FRAMEWORK_API int SystemMetric(int index, int dpi);

} // namespace windowdpi
