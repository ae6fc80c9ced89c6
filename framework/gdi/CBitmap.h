// CBitmap.h - bitmaps.
#pragma once

#include "CGdiObject.h"

class CDC;

/// Owns a bitmap. It must not be selected into a device context when it is deleted.
class KY_FRAMEWORK_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap() = default;

    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits) {
        return Attach(::CreateBitmap(width, height, planes, bitCount, bits));
    }
    BOOL CreateBitmapIndirect(LPBITMAP bitmap) { return Attach(::CreateBitmapIndirect(bitmap)); }
    /// A bitmap that can be selected into memory contexts made for `dc` (null: monochrome).
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    BOOL LoadBitmap(LPCTSTR resourceName);
    BOOL LoadBitmap(UINT resourceId) { return LoadBitmap(MAKEINTRESOURCE(resourceId)); }

    int GetBitmap(BITMAP* bitmap) const { return GetObject(sizeof(*bitmap), bitmap); }
    DWORD SetBitmapBits(DWORD count, const void* bits) { return ::SetBitmapBits(*this, count, bits); }
    DWORD GetBitmapBits(DWORD count, void* bits) const { return ::GetBitmapBits(*this, count, bits); }
    /// The size noted with the bitmap, in tenths of a millimetre; nothing computes it from the pixels.
    SIZE SetBitmapDimension(int width, int height);
    SIZE GetBitmapDimension() const;

    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    static CBitmap* PASCAL FromHandle(HBITMAP bitmap) {
        return static_cast<CBitmap*>(FromHandleOfType(bitmap, OBJ_BITMAP));
    }
};
