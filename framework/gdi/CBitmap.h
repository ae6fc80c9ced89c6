/// @file
/// Bitmaps.
#pragma once

#include "CGdiObject.h"

class CDC;

/// Owns a bitmap. It must not be selected into a device context when it is deleted.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap() = default; ///< Without a bitmap.

    /// A device-dependent bitmap of that size in pixels; `bits`, when not null, is its content, rows padded to 16 bits.
    /// FALSE on failure.
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits) {
        return Attach(::CreateBitmap(width, height, planes, bitCount, bits));
    }
    /// As CreateBitmap with the numbers of the structure.
    BOOL CreateBitmapIndirect(LPBITMAP bitmap) { return Attach(::CreateBitmapIndirect(bitmap)); }
    /// A bitmap of that size in pixels that can be selected into memory contexts made for `dc` (null: monochrome). Its
    /// content is undefined. FALSE on failure.
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    /** @{ */
    /// Loads a bitmap resource from the application's resource modules. FALSE when there is none.
    BOOL LoadBitmap(LPCTSTR resourceName);
    BOOL LoadBitmap(UINT resourceId) { return LoadBitmap(MAKEINTRESOURCE(resourceId)); }
    /** @} */

    /// Describes the bitmap: size in pixels, bits per pixel. The number of bytes copied, 0 on failure.
    int GetBitmap(BITMAP* bitmap) const { return GetObject(sizeof(*bitmap), bitmap); }
    /** @{ */
    /// Copies at most `count` bytes in or out, rows padded to 16 bits, top row first. The number of bytes copied, 0 on
    /// failure.
    DWORD SetBitmapBits(DWORD count, const void* bits) { return ::SetBitmapBits(*this, count, bits); }
    DWORD GetBitmapBits(DWORD count, void* bits) const { return ::GetBitmapBits(*this, count, bits); }
    /** @} */
    /** @{ */
    /// The size noted with the bitmap, in tenths of a millimetre; nothing computes it from the pixels. Setting gives
    /// the former one.
    SIZE SetBitmapDimension(int width, int height);
    SIZE GetBitmapDimension() const;
    /** @} */

    /// Null when there is none; the object keeps the ownership.
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    /// As CGdiObject::FromHandle, for a handle that is known to be a bitmap's.
    static CBitmap* PASCAL FromHandle(HBITMAP bitmap) {
        return static_cast<CBitmap*>(FromHandleOfType(bitmap, OBJ_BITMAP));
    }
};
