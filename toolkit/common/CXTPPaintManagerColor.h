/// @file
/// A theme colour that a host may override: a standard value set by the theme and an optional custom value.
#pragma once

#include <windows.h>

/// Converts to the custom value when one is set, else to the standard value (both COLORREF 0x00BBGGRR).
/// @ingroup toolkit_common
class CXTPPaintManagerColor {
public:
    /// The value of a colour that is not set.
    static constexpr COLORREF Unset = 0xFFFFFFFF;

    CXTPPaintManagerColor() = default;
    /// A colour with this standard value and no override.
    CXTPPaintManagerColor(COLORREF clrStandard) : m_clrStandard(clrStandard) {}

    /// What is drawn: the override when there is one.
    operator COLORREF() const { return m_clrCustom != Unset ? m_clrCustom : m_clrStandard; }
    /// Overrides the standard value, as `SetCustomValue` does.
    CXTPPaintManagerColor& operator=(COLORREF clrCustom) {
        m_clrCustom = clrCustom;
        return *this;
    }

    /// For the theme: an override stays in front of it.
    void SetStandardValue(COLORREF clr) { m_clrStandard = clr; }
    COLORREF GetStandardColor() const { return m_clrStandard; } ///< the theme's value, overridden or not
    /// Overrides the standard value; `Unset` takes the override back.
    void SetCustomValue(COLORREF clr) { m_clrCustom = clr; }
    COLORREF GetCustomColor() const { return m_clrCustom; }      ///< `Unset` when nothing is overridden
    void SetDefaultValue() { m_clrCustom = Unset; }              ///< takes an override back
    BOOL IsDefaultValue() const { return m_clrCustom == Unset; } ///< nothing is overridden

private:
    COLORREF m_clrStandard = Unset;
    COLORREF m_clrCustom = Unset;
};
