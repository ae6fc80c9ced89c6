/// @file
/// Logical palettes.
#pragma once

#include "CGdiObject.h"

/// Owns a logical palette: the colours that a device with a colour table shall show. Screens without one ignore it.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CPalette : public CGdiObject {
    DECLARE_DYNAMIC(CPalette)
public:
    CPalette() = default; ///< Without a palette.

    /// A palette of the entries given. FALSE on failure.
    BOOL CreatePalette(LPLOGPALETTE palette) { return Attach(::CreatePalette(palette)); }
    /// The palette of the system's fixed colours that fits a device context (null: the screen). FALSE on failure.
    BOOL CreateHalftonePalette(HDC dc) { return Attach(::CreateHalftonePalette(dc)); }

    int GetEntryCount() const; ///< 0 without a palette.
    /** @{ */
    /// Copies `count` entries from the one at `start` on, out or in. The number of entries copied, 0 on failure.
    UINT GetPaletteEntries(UINT start, UINT count, LPPALETTEENTRY entries) const {
        return ::GetPaletteEntries(*this, start, count, entries);
    }
    UINT SetPaletteEntries(UINT start, UINT count, LPPALETTEENTRY entries) {
        return ::SetPaletteEntries(*this, start, count, entries);
    }
    /** @} */
    /// The index of the entry that comes closest; CLR_INVALID on failure.
    UINT GetNearestPaletteIndex(COLORREF color) const { return ::GetNearestPaletteIndex(*this, color); }
    /// Changes the number of entries; new ones are black. FALSE on failure.
    BOOL ResizePalette(UINT count) { return ::ResizePalette(*this, count); }

    /// Null when there is none; the object keeps the ownership.
    operator HPALETTE() const { return static_cast<HPALETTE>(m_hObject); }
    /// As CGdiObject::FromHandle, for a handle that is known to be a palette's.
    static CPalette* PASCAL FromHandle(HPALETTE palette) {
        return static_cast<CPalette*>(FromHandleOfType(palette, OBJ_PAL));
    }
};
