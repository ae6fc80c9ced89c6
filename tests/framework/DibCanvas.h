// DibCanvas.h - a picture of 32-bit pixels with a device context that draws into it.
#pragma once

#include <afxwin.h>

class DibCanvas {
public:
    DibCanvas(int width, int height, COLORREF background = RGB(255, 255, 255));
    ~DibCanvas();
    DibCanvas(const DibCanvas&) = delete;
    DibCanvas& operator=(const DibCanvas&) = delete;

    CDC& Dc() { return m_dc; }
    /// The colour of a pixel as it stands in memory.
    COLORREF At(int x, int y) const;
    /// The number of pixels of that colour.
    int Count(COLORREF color) const;
    /// The smallest rectangle around all pixels of that colour.
    CRect BoxOf(COLORREF color) const;
    /// Writes the picture as a .bmp file; false when that fails.
    bool SaveAs(LPCTSTR path) const;

private:
    int m_width;
    int m_height;
    DWORD* m_pixels = nullptr;
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_former = nullptr;
};
