// CDCDrawing.cpp - lines, areas, bitmaps and text of device contexts.
#include "gdi/CDC.h"

// Lines

CPoint CDC::GetCurrentPosition() const {
    CPoint position;
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint former;
    OnBoth(FALSE, ::MoveToEx, x, y, &former);
    return former;
}

BOOL CDC::LineTo(int x, int y) {
    // The second context only follows the current position.
    if (HasOwnAttribDC())
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

// Areas

void CDC::FillSolidRect(LPCRECT rect, COLORREF color) {
    // An opaque text without characters is the cheapest fill and needs no brush.
    ::SetBkColor(m_hDC, color);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int width, int height, COLORREF color) {
    const CRect rect(x, y, x + width, y + height);
    FillSolidRect(rect, color);
}

void CDC::Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight) {
    Draw3dRect(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, topLeft, bottomRight);
}

void CDC::Draw3dRect(int x, int y, int width, int height, COLORREF topLeft, COLORREF bottomRight) {
    // The corners at the top right and bottom left belong to the right and bottom edges.
    FillSolidRect(x, y, width - 1, 1, topLeft);
    FillSolidRect(x, y, 1, height - 1, topLeft);
    FillSolidRect(x + width, y, -1, height, bottomRight);
    FillSolidRect(x, y + height, width, -1, bottomRight);
}

BOOL CDC::GradientFill(TRIVERTEX* vertices, ULONG vertexCount, void* elements, ULONG elementCount, DWORD mode) {
    return ::GradientFill(m_hDC, vertices, vertexCount, elements, elementCount, mode);
}

// Control parts

BOOL CDC::DrawState(POINT point, SIZE size, HBITMAP bitmap, UINT flags, HBRUSH brush) {
    return ::DrawStateW(m_hDC, brush, nullptr, reinterpret_cast<LPARAM>(bitmap), 0, point.x, point.y, size.cx, size.cy,
                        flags | DST_BITMAP);
}

BOOL CDC::DrawState(POINT point, SIZE size, HICON icon, UINT flags, HBRUSH brush) {
    return ::DrawStateW(m_hDC, brush, nullptr, reinterpret_cast<LPARAM>(icon), 0, point.x, point.y, size.cx, size.cy,
                        flags | DST_ICON);
}

// Bitmaps

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, DWORD rop) {
    return ::BitBlt(m_hDC, x, y, width, height, source ? source->m_hDC : nullptr, xSource, ySource, rop);
}

BOOL CDC::StretchBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                     int sourceHeight, DWORD rop) {
    return ::StretchBlt(m_hDC, x, y, width, height, source ? source->m_hDC : nullptr, xSource, ySource, sourceWidth,
                        sourceHeight, rop);
}

BOOL CDC::TransparentBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                         int sourceHeight, UINT transparentColor) {
    return ::TransparentBlt(m_hDC, x, y, width, height, *source, xSource, ySource, sourceWidth, sourceHeight,
                            transparentColor);
}

BOOL CDC::AlphaBlend(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                     int sourceHeight, BLENDFUNCTION blend) {
    return ::AlphaBlend(m_hDC, x, y, width, height, *source, xSource, ySource, sourceWidth, sourceHeight, blend);
}

// Text

BOOL CDC::TextOut(int x, int y, LPCTSTR text, int count) { return ::TextOutW(m_hDC, x, y, text, count); }

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count, LPINT widths) {
    return ::ExtTextOutW(m_hDC, x, y, options, rect, text, count, widths);
}

int CDC::DrawText(LPCTSTR text, int count, LPRECT rect, UINT format) {
    return ::DrawTextW(m_hDC, text, count, rect, format);
}

CSize CDC::GetTextExtent(LPCTSTR text, int count) const {
    CSize extent;
    ::GetTextExtentPoint32W(m_hAttribDC, text, count, &extent);
    return extent;
}

int CDC::GetTextFace(CString& faceName) const {
    wchar_t name[LF_FACESIZE] = L"";
    const int length = ::GetTextFaceW(m_hAttribDC, LF_FACESIZE, name);
    faceName = name;
    return length;
}
