// Whether the user has switched the system to high contrast.
#pragma once

#include <windows.h>

namespace systemcontrast {

inline bool IsHigh() {
    HIGHCONTRAST contrast = {};
    contrast.cbSize = sizeof(contrast);
    return ::SystemParametersInfo(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace systemcontrast
