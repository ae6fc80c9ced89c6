// The resolution of windows and monitors, and the system's sizes and fonts at it.
#include "WindowDpi.h"

namespace windowdpi {

namespace {

/// A function that user32 has had since Windows 10 only; null before.
template <class Function>
Function* FindInUser32(const char* name) {
    return reinterpret_cast<Function*>(::GetProcAddress(::GetModuleHandle(TEXT("user32")), name));
}

void Scale(LONG& length, int from, int to) { length = ::MulDiv(length, to, from); }

void Scale(int& length, int from, int to) { length = ::MulDiv(length, to, from); }

void Scale(NONCLIENTMETRICS& metrics, int from, int to) {
    for (LOGFONT* font : {&metrics.lfCaptionFont, &metrics.lfSmCaptionFont, &metrics.lfMenuFont, &metrics.lfStatusFont,
                          &metrics.lfMessageFont})
        Scale(font->lfHeight, from, to);
    for (int* length : {&metrics.iScrollWidth, &metrics.iScrollHeight, &metrics.iCaptionWidth, &metrics.iCaptionHeight,
                        &metrics.iSmCaptionWidth, &metrics.iSmCaptionHeight, &metrics.iMenuWidth, &metrics.iMenuHeight})
        Scale(*length, from, to);
}

} // namespace

int OfSystem() {
    const HDC screen = ::GetDC(nullptr);
    const int dpi = screen ? ::GetDeviceCaps(screen, LOGPIXELSY) : 0;
    if (screen)
        ::ReleaseDC(nullptr, screen);
    return dpi > 0 ? dpi : Standard;
}

int OfWindow(HWND window) {
    static const auto ask = FindInUser32<UINT WINAPI(HWND)>("GetDpiForWindow");
    const UINT dpi = ask && window ? ask(window) : 0;
    return dpi > 0 ? static_cast<int>(dpi) : OfSystem();
}

bool ReadNonClientMetrics(NONCLIENTMETRICS& metrics, int dpi) {
    static const auto ask = FindInUser32<BOOL WINAPI(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
    metrics = {};
    metrics.cbSize = sizeof(metrics);
    if (ask && ask(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, static_cast<UINT>(dpi)))
        return true;
    metrics = {};
    metrics.cbSize = sizeof(metrics);
    if (!::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0))
        return false;
    Scale(metrics, OfSystem(), dpi);
    return true;
}

int SystemMetric(int index, int dpi) {
    static const auto ask = FindInUser32<int WINAPI(int, UINT)>("GetSystemMetricsForDpi");
    return ask ? ask(index, static_cast<UINT>(dpi)) : ::MulDiv(::GetSystemMetrics(index), dpi, OfSystem());
}

} // namespace windowdpi
