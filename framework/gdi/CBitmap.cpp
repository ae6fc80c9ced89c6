// CBitmap.cpp - bitmaps.
#include "gdi/CBitmap.h"

#include "core/Module.h"
#include "gdi/CDC.h"

IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
    // Without a context the system has no device to fit; a monochrome bitmap fits every one.
    return dc ? Attach(::CreateCompatibleBitmap(*dc, width, height)) : CreateBitmap(width, height, 1, 1, nullptr);
}

BOOL CBitmap::LoadBitmap(LPCTSTR resourceName) {
    return Attach(::LoadBitmapW(AfxFindResourceHandle(resourceName, RT_BITMAP), resourceName));
}

SIZE CBitmap::SetBitmapDimension(int width, int height) {
    SIZE former{};
    ::SetBitmapDimensionEx(*this, width, height, &former);
    return former;
}

SIZE CBitmap::GetBitmapDimension() const {
    SIZE dimension{};
    ::GetBitmapDimensionEx(*this, &dimension);
    return dimension;
}
