/// @file
/// Pens, with which lines and borders are drawn.
#pragma once

#include "CGdiObject.h"

/// Owns a pen. A width of 0 draws one pixel wide whatever the mapping mode.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default; ///< Without a pen.
    /// A pen of a PS_ style. Throws CResourceException* when it cannot be made. Width in logical units; 0 is one pixel.
    CPen(int style, int width, COLORREF color);
    /// As the CreatePen with a brush; throws CResourceException* when the pen cannot be made.
    CPen(int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = nullptr);

    /// A pen of a PS_ style, `width` logical units wide. Dashed styles draw one pixel wide only; wider ones come out
    /// solid. FALSE on failure.
    BOOL CreatePen(int style, int width, COLORREF color);
    /// A pen with PS_ style, end cap and join flags, drawn with a brush. PS_COSMETIC widths are pixels and must be 1.
    /// With PS_USERSTYLE `styles` holds the lengths of `styleCount` dashes and gaps in turn. FALSE on failure.
    BOOL CreatePen(int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = nullptr);
    /// The pen that the structure describes. FALSE on failure.
    BOOL CreatePenIndirect(LPLOGPEN pen);

    /// Describes a pen made from a style and a colour. The number of bytes copied, 0 on failure.
    int GetLogPen(LOGPEN* pen) const { return GetObject(sizeof(*pen), pen); }
    /// Null when there is none; the object keeps the ownership.
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    /// As CGdiObject::FromHandle, for a handle that is known to be a pen's.
    static CPen* PASCAL FromHandle(HPEN pen) { return static_cast<CPen*>(FromHandleOfType(pen, OBJ_PEN)); }
};
