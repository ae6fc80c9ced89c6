// CPalette.h - logical palettes.
#pragma once

#include "CGdiObject.h"

/// Owns a logical palette.
class KY_FRAMEWORK_API CPalette : public CGdiObject {
    DECLARE_DYNAMIC(CPalette)
public:
    CPalette() = default;

    BOOL CreatePalette(LPLOGPALETTE palette) { return Attach(::CreatePalette(palette)); }
    /// The palette of the system's fixed colours that fits a device context.
    BOOL CreateHalftonePalette(HDC dc) { return Attach(::CreateHalftonePalette(dc)); }

    int GetEntryCount() const;
    UINT GetPaletteEntries(UINT start, UINT count, LPPALETTEENTRY entries) const {
        return ::GetPaletteEntries(*this, start, count, entries);
    }
    UINT SetPaletteEntries(UINT start, UINT count, LPPALETTEENTRY entries) {
        return ::SetPaletteEntries(*this, start, count, entries);
    }
    UINT GetNearestPaletteIndex(COLORREF color) const { return ::GetNearestPaletteIndex(*this, color); }
    BOOL ResizePalette(UINT count) { return ::ResizePalette(*this, count); }

    operator HPALETTE() const { return static_cast<HPALETTE>(m_hObject); }
    static CPalette* PASCAL FromHandle(HPALETTE palette) {
        return static_cast<CPalette*>(FromHandleOfType(palette, OBJ_PAL));
    }
};
