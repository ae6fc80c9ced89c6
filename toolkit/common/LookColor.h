// A colour in a table of looks.
#pragma once

#include <windows.h>

/// A fixed colour, one of the user's system colours, or one between two of these; system colours are looked up when the
/// table is used.
class LookColor {
public:
    /// `hex` is 0xRRGGBB, as colours are written elsewhere.
    static constexpr LookColor Rgb(int hex) {
        return LookColor(RGB((hex >> 16) & 0xFF, (hex >> 8) & 0xFF, hex & 0xFF), -1, -1, 0);
    }
    /// `index` is a COLOR_ number.
    static constexpr LookColor System(int index) { return LookColor(0, index, -1, 0); }
    /// `percent` of the way from one system colour to another.
    static constexpr LookColor Between(int from, int to, int percent) { return LookColor(0, from, to, percent); }
    static constexpr LookColor None() { return LookColor(0xFFFFFFFF, -1, -1, 0); }
    /// The COLORREF now; CXTPPaintManagerColor::Unset for none.
    COLORREF Resolve() const {
        if (m_index < 0)
            return m_color;
        const COLORREF from = ::GetSysColor(m_index);
        return m_otherIndex < 0 ? from : Mix(from, ::GetSysColor(m_otherIndex), m_percent);
    }

    static constexpr COLORREF Mix(COLORREF from, COLORREF to, int percent) {
        const auto between = [percent](int a, int b) { return a + (b - a) * percent / 100; };
        return RGB(between(GetRValue(from), GetRValue(to)), between(GetGValue(from), GetGValue(to)),
                   between(GetBValue(from), GetBValue(to)));
    }

private:
    constexpr LookColor(COLORREF color, int index, int otherIndex, int percent)
        : m_color(color), m_index(index), m_otherIndex(otherIndex), m_percent(percent) {}
    COLORREF m_color;
    int m_index, m_otherIndex, m_percent;
};
