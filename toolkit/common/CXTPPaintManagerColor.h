// A theme colour that a host may override: a standard value set by the theme and an optional custom value.
#pragma once

#include <windows.h>

/// Converts to the custom value when one is set, else to the standard value (both COLORREF 0x00BBGGRR).
class CXTPPaintManagerColor {
public:
    /// The value of a colour that is not set.
    static constexpr COLORREF Unset = 0xFFFFFFFF;

    CXTPPaintManagerColor() = default;
    CXTPPaintManagerColor(COLORREF clrStandard) : m_clrStandard(clrStandard) {}

    operator COLORREF() const { return m_clrCustom != Unset ? m_clrCustom : m_clrStandard; }
    CXTPPaintManagerColor& operator=(COLORREF clrCustom) {
        m_clrCustom = clrCustom;
        return *this;
    }

    void SetStandardValue(COLORREF clr) { m_clrStandard = clr; }
    COLORREF GetStandardColor() const { return m_clrStandard; }
    /// Overrides the standard value; `Unset` takes the override back.
    void SetCustomValue(COLORREF clr) { m_clrCustom = clr; }
    COLORREF GetCustomColor() const { return m_clrCustom; }
    void SetDefaultValue() { m_clrCustom = Unset; }
    BOOL IsDefaultValue() const { return m_clrCustom == Unset; }

private:
    COLORREF m_clrStandard = Unset;
    COLORREF m_clrCustom = Unset;
};
