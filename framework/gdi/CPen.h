// CPen.h - pens, with which lines and borders are drawn.
#pragma once

#include "CGdiObject.h"

/// Owns a pen. A width of 0 draws one pixel wide whatever the mapping mode.
class KY_FRAMEWORK_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default;
    /// Throws CResourceException* when the pen cannot be made. Width in logical units; 0 is one pixel.
    CPen(int style, int width, COLORREF color);
    CPen(int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = nullptr);

    BOOL CreatePen(int style, int width, COLORREF color);
    BOOL CreatePen(int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = nullptr);
    BOOL CreatePenIndirect(LPLOGPEN pen);

    int GetLogPen(LOGPEN* pen) const { return GetObject(sizeof(*pen), pen); }
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    static CPen* PASCAL FromHandle(HPEN pen) { return static_cast<CPen*>(FromHandleOfType(pen, OBJ_PEN)); }
};
