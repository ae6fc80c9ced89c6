// A picture in memory in which a control draws before it shows the result.
#include "BackBuffer.h"

#include <algorithm>

namespace {

/// Sizes go in steps, so that a window being resized does not need a new bitmap for every pixel.
constexpr int SizeStep = 64;

int RoundUp(int length) { return (length + SizeStep - 1) / SizeStep * SizeStep; }

HBITMAP CreateDib(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    return ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

} // namespace

CDC* BackBuffer::Prepare(CSize size) {
    if (size.cx <= 0 || size.cy <= 0)
        return nullptr;
    if (m_dc.m_hDC && size.cx <= m_size.cx && size.cy <= m_size.cy)
        return &m_dc;
    const CSize wanted(RoundUp(std::max(size.cx, m_size.cx)), RoundUp(std::max(size.cy, m_size.cy)));
    Release();
    if (!m_bitmap.Attach(CreateDib(wanted.cx, wanted.cy)) || !m_dc.CreateCompatibleDC(nullptr)) {
        Release();
        return nullptr;
    }
    m_formerBitmap = m_dc.SelectObject(m_bitmap.GetSafeHandle());
    m_size = wanted;
    return &m_dc;
}

void BackBuffer::Present(CDC& dc, const CRect& rc) {
    dc.BitBlt(rc.left, rc.top, rc.Width(), rc.Height(), &m_dc, rc.left, rc.top, SRCCOPY);
}

void BackBuffer::Release() {
    if (m_formerBitmap)
        m_dc.SelectObject(m_formerBitmap);
    m_formerBitmap = nullptr;
    m_dc.DeleteDC();
    m_bitmap.DeleteObject();
    m_size = CSize(0, 0);
}
