// CPen.cpp - pens.
#include "gdi/CPen.h"

#include "core/CException.h"

IMPLEMENT_DYNAMIC(CPen, CGdiObject)

CPen::CPen(int style, int width, COLORREF color) {
    if (!CreatePen(style, width, color))
        AfxThrowResourceException();
}

CPen::CPen(int style, int width, const LOGBRUSH* brush, int styleCount, const DWORD* styles) {
    if (!CreatePen(style, width, brush, styleCount, styles))
        AfxThrowResourceException();
}

BOOL CPen::CreatePen(int style, int width, COLORREF color) { return Attach(::CreatePen(style, width, color)); }

BOOL CPen::CreatePen(int style, int width, const LOGBRUSH* brush, int styleCount, const DWORD* styles) {
    return Attach(::ExtCreatePen(static_cast<DWORD>(style), static_cast<DWORD>(width), brush,
                                 static_cast<DWORD>(styleCount), styles));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN pen) { return Attach(::CreatePenIndirect(pen)); }
