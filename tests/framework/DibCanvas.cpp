// DibCanvas.cpp - see DibCanvas.h.
#include "DibCanvas.h"

#include <algorithm>
#include <vector>

DibCanvas::DibCanvas(int width, int height, COLORREF background) : m_width(width), m_height(height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    m_bitmap.Attach(
        ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&m_pixels), nullptr, 0));
    m_dc.CreateCompatibleDC(nullptr);
    m_former = m_dc.SelectObject(m_bitmap.GetSafeHandle());
    const DWORD pixel = RGB(GetBValue(background), GetGValue(background), GetRValue(background));
    std::fill_n(m_pixels, width * height, pixel);
}

DibCanvas::~DibCanvas() { m_dc.SelectObject(m_former); }

COLORREF DibCanvas::At(int x, int y) const {
    ::GdiFlush();
    const DWORD pixel = m_pixels[y * m_width + x];
    return RGB(GetBValue(pixel), GetGValue(pixel), GetRValue(pixel));
}

int DibCanvas::Count(COLORREF color) const {
    int count = 0;
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x)
            count += At(x, y) == color;
    return count;
}

CRect DibCanvas::BoxOf(COLORREF color) const {
    CRect box;
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x)
            if (At(x, y) == color)
                box |= CRect(x, y, x + 1, y + 1);
    return box;
}

bool DibCanvas::SaveAs(LPCTSTR path) const {
    ::GdiFlush();
    BITMAPFILEHEADER file{};
    BITMAPINFOHEADER info{};
    file.bfType = 0x4D42; // "BM"
    file.bfOffBits = sizeof(file) + sizeof(info);
    info.biSize = sizeof(info);
    info.biWidth = m_width;
    info.biHeight = -m_height;
    info.biPlanes = 1;
    info.biBitCount = 32;
    const UINT size = static_cast<UINT>(m_width * m_height) * sizeof(DWORD);
    file.bfSize = file.bfOffBits + size;
    CFile output;
    if (!output.Open(path, CFile::modeCreate | CFile::modeWrite))
        return false;
    output.Write(&file, sizeof(file));
    output.Write(&info, sizeof(info));
    // Drawing leaves anything in the fourth byte, which some readers take for a transparency.
    std::vector<DWORD> pixels(m_pixels, m_pixels + m_width * m_height);
    for (DWORD& pixel : pixels)
        pixel &= 0xFFFFFF;
    output.Write(pixels.data(), size);
    return true;
}
