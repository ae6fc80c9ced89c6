// A picture in memory in which a control draws before it shows the result.
#pragma once

#include <afxwin.h>

/// A DIB section and the memory context into which it is selected. It grows with what is asked for and is kept from one
/// painting to the next; its pixels are whatever was drawn there last.
class BackBuffer {
public:
    BackBuffer() = default;
    ~BackBuffer() { Release(); }
    BackBuffer(const BackBuffer&) = delete;
    BackBuffer& operator=(const BackBuffer&) = delete;

    /// The context to draw into, at least of the given size; null when the size is empty or there is no memory.
    CDC* Prepare(CSize size);
    /// Shows the rectangle of the buffer at the same place of `dc`.
    void Present(CDC& dc, const CRect& rc);
    void Release();

private:
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_formerBitmap = nullptr;
    CSize m_size = CSize(0, 0);
};
