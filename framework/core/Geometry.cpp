// Geometry.cpp - operations of rectangles that are more than a line.
#include "core/Geometry.h"

#include <utility>

CRect CSize::operator+(const RECT* rect) const noexcept { return CRect(rect) + *this; }

CRect CSize::operator-(const RECT* rect) const noexcept { return CRect(rect) - *this; }

CRect CPoint::operator+(const RECT* rect) const noexcept { return CRect(rect) + *this; }

CRect CPoint::operator-(const RECT* rect) const noexcept { return CRect(rect) - *this; }

void CRect::InflateRect(int l, int t, int r, int b) noexcept {
    left -= l;
    top -= t;
    right += r;
    bottom += b;
}

void CRect::OffsetRect(int dx, int dy) noexcept {
    left += dx;
    top += dy;
    right += dx;
    bottom += dy;
}

void CRect::NormalizeRect() noexcept {
    if (left > right)
        std::swap(left, right);
    if (top > bottom)
        std::swap(top, bottom);
}

BOOL CRect::IntersectRect(LPCRECT a, LPCRECT b) noexcept { return ::IntersectRect(this, a, b); }

BOOL CRect::UnionRect(LPCRECT a, LPCRECT b) noexcept { return ::UnionRect(this, a, b); }

BOOL CRect::SubtractRect(LPCRECT a, LPCRECT b) noexcept { return ::SubtractRect(this, a, b); }

CRect CRect::operator+(POINT point) const noexcept {
    CRect result(*this);
    result += point;
    return result;
}

CRect CRect::operator+(SIZE size) const noexcept {
    CRect result(*this);
    result += size;
    return result;
}

CRect CRect::operator+(LPCRECT amounts) const noexcept {
    CRect result(*this);
    result += amounts;
    return result;
}

CRect CRect::operator-(POINT point) const noexcept {
    CRect result(*this);
    result -= point;
    return result;
}

CRect CRect::operator-(SIZE size) const noexcept {
    CRect result(*this);
    result -= size;
    return result;
}

CRect CRect::operator-(LPCRECT amounts) const noexcept {
    CRect result(*this);
    result -= amounts;
    return result;
}

CRect CRect::operator&(const RECT& other) const noexcept {
    CRect result;
    result.IntersectRect(this, &other);
    return result;
}

CRect CRect::operator|(const RECT& other) const noexcept {
    CRect result;
    result.UnionRect(this, &other);
    return result;
}

CRect CRect::MulDiv(int multiplier, int divisor) const noexcept {
    return CRect(::MulDiv(left, multiplier, divisor), ::MulDiv(top, multiplier, divisor),
                 ::MulDiv(right, multiplier, divisor), ::MulDiv(bottom, multiplier, divisor));
}
