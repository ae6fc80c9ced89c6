// CBrush.h - brushes, with which areas are filled.
#pragma once

#include "CGdiObject.h"

class CBitmap;

/// Owns a brush: a colour, a hatch or a pattern.
class KY_FRAMEWORK_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default;
    /// These throw CResourceException* when the brush cannot be made.
    explicit CBrush(COLORREF color);
    CBrush(int hatchIndex, COLORREF color);
    explicit CBrush(CBitmap* pattern);

    BOOL CreateSolidBrush(COLORREF color) { return Attach(::CreateSolidBrush(color)); }
    BOOL CreateHatchBrush(int index, COLORREF color) { return Attach(::CreateHatchBrush(index, color)); }
    BOOL CreateBrushIndirect(const LOGBRUSH* brush) { return Attach(::CreateBrushIndirect(brush)); }
    BOOL CreatePatternBrush(CBitmap* pattern);
    BOOL CreateSysColorBrush(int index) { return Attach(::GetSysColorBrush(index)); }

    int GetLogBrush(LOGBRUSH* brush) const { return GetObject(sizeof(*brush), brush); }
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    static CBrush* PASCAL FromHandle(HBRUSH brush) { return static_cast<CBrush*>(FromHandleOfType(brush, OBJ_BRUSH)); }
};
