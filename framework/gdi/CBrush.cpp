// CBrush.cpp - brushes.
#include "gdi/CBrush.h"

#include "core/CException.h"
#include "gdi/CBitmap.h"

IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

CBrush::CBrush(COLORREF color) {
    if (!CreateSolidBrush(color))
        AfxThrowResourceException();
}

CBrush::CBrush(int hatchIndex, COLORREF color) {
    if (!CreateHatchBrush(hatchIndex, color))
        AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* pattern) {
    if (!CreatePatternBrush(pattern))
        AfxThrowResourceException();
}

BOOL CBrush::CreatePatternBrush(CBitmap* pattern) { return Attach(::CreatePatternBrush(*pattern)); }
