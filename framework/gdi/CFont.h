/// @file
/// Fonts.
#pragma once

#include "CGdiObject.h"

class CDC;

/// Owns a font. Heights are logical units, negative for the height of the characters without internal leading. An
/// unknown face gives the nearest one there is, not a failure.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)
public:
    CFont() = default; ///< Without a font.

    /// The font that comes closest to the description. FALSE on failure.
    BOOL CreateFontIndirect(const LOGFONT* font) { return Attach(::CreateFontIndirectW(font)); }
    /// As CreateFontIndirect, with one argument per member of LOGFONT; escapement and orientation in tenths of a
    /// degree.
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic, BYTE underline,
                    BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
                    BYTE pitchAndFamily, LPCTSTR faceName);
    /// Makes a font of a height in tenths of a point for that device context, the screen when it is null. FALSE on
    /// failure.
    BOOL CreatePointFont(int pointSize, LPCTSTR faceName, CDC* dc = nullptr);
    /// As above; lfHeight of the description is the height in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* font, CDC* dc = nullptr);

    /// The description that the font was made with. The number of bytes copied, 0 on failure.
    int GetLogFont(LOGFONT* font) const { return GetObject(sizeof(*font), font); }
    /// Null when there is none; the object keeps the ownership.
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    /// As CGdiObject::FromHandle, for a handle that is known to be a font's.
    static CFont* PASCAL FromHandle(HFONT font) { return static_cast<CFont*>(FromHandleOfType(font, OBJ_FONT)); }
};
