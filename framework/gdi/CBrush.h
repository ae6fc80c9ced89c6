/// @file
/// Brushes, with which areas are filled.
#pragma once

#include "CGdiObject.h"

class CBitmap;

/// Owns a brush: a colour, a hatch or a pattern. What needs it often makes it once; making and deleting costs more than
/// a small fill (CDC::FillSolidRect needs none).
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default; ///< Without a brush.
    /// A brush of one colour. Throws CResourceException* when it cannot be made.
    explicit CBrush(COLORREF color);
    /// A hatched brush; `hatchIndex` is an HS_ value. Throws CResourceException* when it cannot be made.
    CBrush(int hatchIndex, COLORREF color);
    /// A brush that repeats the bitmap, which must not be null and is copied. Throws CResourceException* when it cannot
    /// be made.
    explicit CBrush(CBitmap* pattern);

    /// A brush of one colour. FALSE on failure.
    BOOL CreateSolidBrush(COLORREF color) { return Attach(::CreateSolidBrush(color)); }
    /// A hatched brush; `index` is an HS_ value, the gaps have the background colour of the device context. FALSE on
    /// failure.
    BOOL CreateHatchBrush(int index, COLORREF color) { return Attach(::CreateHatchBrush(index, color)); }
    /// The brush that the structure describes. FALSE on failure.
    BOOL CreateBrushIndirect(const LOGBRUSH* brush) { return Attach(::CreateBrushIndirect(brush)); }
    /// A brush that repeats the bitmap, which must not be null and is copied. FALSE on failure.
    BOOL CreatePatternBrush(CBitmap* pattern);
    /// The system's own brush of a COLOR_ index, which follows the user's colours and which the system never deletes.
    /// FALSE for an unknown index.
    BOOL CreateSysColorBrush(int index) { return Attach(::GetSysColorBrush(index)); }

    /// Describes the brush. The number of bytes copied, 0 on failure.
    int GetLogBrush(LOGBRUSH* brush) const { return GetObject(sizeof(*brush), brush); }
    /// Null when there is none; the object keeps the ownership.
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    /// As CGdiObject::FromHandle, for a handle that is known to be a brush's.
    static CBrush* PASCAL FromHandle(HBRUSH brush) { return static_cast<CBrush*>(FromHandleOfType(brush, OBJ_BRUSH)); }
};
