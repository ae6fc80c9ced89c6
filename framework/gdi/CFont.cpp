// CFont.cpp - fonts.
#include "gdi/CFont.h"

#include "gdi/CDC.h"

#include <cstdlib>

IMPLEMENT_DYNAMIC(CFont, CGdiObject)

BOOL CFont::CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic, BYTE underline,
                       BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
                       BYTE pitchAndFamily, LPCTSTR faceName) {
    return Attach(::CreateFontW(height, width, escapement, orientation, weight, italic, underline, strikeOut, charSet,
                                outPrecision, clipPrecision, quality, pitchAndFamily, faceName));
}

BOOL CFont::CreatePointFont(int pointSize, LPCTSTR faceName, CDC* dc) {
    LOGFONT font{};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = pointSize;
    ::lstrcpynW(font.lfFaceName, faceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* font, CDC* dc) {
    const HDC screen = dc ? nullptr : ::GetDC(nullptr);
    const HDC measured = dc ? dc->m_hAttribDC : screen;
    // A point is 1/72 inch; both ends of the height are mapped, since the mapping may have an origin.
    POINT top{0, 0};
    POINT bottom{0, ::MulDiv(::GetDeviceCaps(measured, LOGPIXELSY), font->lfHeight, 720)};
    ::DPtoLP(measured, &bottom, 1);
    ::DPtoLP(measured, &top, 1);
    LOGFONT scaled = *font;
    scaled.lfHeight = -std::abs(bottom.y - top.y);
    if (screen)
        ::ReleaseDC(nullptr, screen);
    return CreateFontIndirect(&scaled);
}
