// CFont.h - fonts.
#pragma once

#include "CGdiObject.h"

class CDC;

/// Owns a font. Heights are logical units, negative for the height of the characters without internal leading.
class KY_FRAMEWORK_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)
public:
    CFont() = default;

    BOOL CreateFontIndirect(const LOGFONT* font) { return Attach(::CreateFontIndirectW(font)); }
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic, BYTE underline,
                    BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
                    BYTE pitchAndFamily, LPCTSTR faceName);
    /// Makes a font of a height in tenths of a point for that device context, the screen when it is null.
    BOOL CreatePointFont(int pointSize, LPCTSTR faceName, CDC* dc = nullptr);
    /// As above; lfHeight of the description is the height in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* font, CDC* dc = nullptr);

    int GetLogFont(LOGFONT* font) const { return GetObject(sizeof(*font), font); }
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    static CFont* PASCAL FromHandle(HFONT font) { return static_cast<CFont*>(FromHandleOfType(font, OBJ_FONT)); }
};
