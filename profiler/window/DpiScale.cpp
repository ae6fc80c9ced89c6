// Sizes at the screen's resolution.
#include "window/DpiScale.h"

#include <afxwin.h>

int ScaledToDpi(int pixels) {
    // The program is aware of the system's DPI only, which stays the same while it runs.
    static const int dpi = CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX);
    return ::MulDiv(pixels, dpi, 96);
}
