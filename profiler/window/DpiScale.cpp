// Sizes and fonts at the resolution of a monitor.
#include "window/DpiScale.h"

namespace {

/// A function that user32 has had since Windows 10 only; null before.
template <class Function>
Function* FindInUser32(const char* name) {
    return reinterpret_cast<Function*>(::GetProcAddress(::GetModuleHandle(L"user32"), name));
}

} // namespace

int DpiOf(HWND window) {
    static const auto ask = FindInUser32<UINT WINAPI(HWND)>("GetDpiForWindow");
    const UINT dpi = ask != nullptr && window != nullptr ? ask(window) : 0;
    return dpi != 0 ? static_cast<int>(dpi) : CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX);
}

bool IsDpi(int dpi) {
    constexpr int kLargest = 9600;
    return dpi > 0 && dpi <= kLargest;
}

int ScaledToDpi(int pixels, int dpi) { return ::MulDiv(pixels, dpi, 96); }

LOGFONT MessageFont(int dpi) {
    static const auto ask = FindInUser32<BOOL WINAPI(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
    NONCLIENTMETRICS metrics{};
    metrics.cbSize = sizeof metrics;
    if (ask == nullptr || !ask(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi)))
        ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics.lfMessageFont;
}
