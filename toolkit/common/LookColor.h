// A colour in a table of looks.
#pragma once

#include <windows.h>

/// A fixed colour or one of the user's system colours, which is looked up when the table is used.
class LookColor {
public:
    /// `hex` is 0xRRGGBB, as colours are written elsewhere.
    static constexpr LookColor Rgb(int hex) {
        return LookColor(RGB((hex >> 16) & 0xFF, (hex >> 8) & 0xFF, hex & 0xFF), -1);
    }
    /// `index` is a COLOR_ number.
    static constexpr LookColor System(int index) { return LookColor(0, index); }
    static constexpr LookColor None() { return LookColor(0xFFFFFFFF, -1); }
    /// The COLORREF now; CXTPPaintManagerColor::Unset for none.
    COLORREF Resolve() const { return m_systemIndex >= 0 ? ::GetSysColor(m_systemIndex) : m_color; }

private:
    constexpr LookColor(COLORREF color, int systemIndex) : m_color(color), m_systemIndex(systemIndex) {}
    COLORREF m_color;
    int m_systemIndex;
};
