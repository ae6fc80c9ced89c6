/// @file
/// Points, sizes and rectangles with operations, laid out exactly as the Win32 structures.
#pragma once

#include "Platform.h"

class CPoint;
class CRect;

/// A width and a height (or an offset). No unit of its own: pixels or logical units, as what it is given to expects.
/// @ingroup framework_objects
class CSize : public SIZE {
public:
    constexpr CSize() noexcept : SIZE{0, 0} {}                                 ///< Zero in both directions.
    constexpr CSize(int width, int height) noexcept : SIZE{width, height} {}   ///< May be negative: an offset.
    constexpr CSize(SIZE size) noexcept : SIZE(size) {}                        ///< A copy.
    explicit constexpr CSize(POINT point) noexcept : SIZE{point.x, point.y} {} ///< As wide as x, as high as y.
    /// Low word is the width, high word the height, both signed.
    explicit CSize(DWORD packed) noexcept
        : SIZE{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    /** @{ */
    /// Equal when both width and height are.
    constexpr bool operator==(SIZE other) const noexcept { return cx == other.cx && cy == other.cy; }
    constexpr bool operator!=(SIZE other) const noexcept { return !(*this == other); }
    /** @} */

    /** @{ */
    /// Adds or takes away width and height, each on its own; overflow is not caught.
    void operator+=(SIZE other) noexcept {
        cx += other.cx;
        cy += other.cy;
    }
    void operator-=(SIZE other) noexcept {
        cx -= other.cx;
        cy -= other.cy;
    }
    constexpr CSize operator+(SIZE other) const noexcept { return CSize(cx + other.cx, cy + other.cy); }
    constexpr CSize operator-(SIZE other) const noexcept { return CSize(cx - other.cx, cy - other.cy); }
    /** @} */

    /// Replaces both at once.
    void SetSize(int width, int height) noexcept {
        cx = width;
        cy = height;
    }
    constexpr CSize operator-() const noexcept { return CSize(-cx, -cy); } ///< The way back of an offset.

    /** @{ */
    /// The point moved by this offset; with minus, moved by it the other way.
    constexpr CPoint operator+(POINT point) const noexcept;
    constexpr CPoint operator-(POINT point) const noexcept;
    /** @} */
    /** @{ */
    /// The rectangle moved by this offset; with minus, moved by it the other way. The rectangle must not be null.
    CRect operator+(const RECT* rect) const noexcept;
    CRect operator-(const RECT* rect) const noexcept;
    /** @} */
};

/// A position. Which corner it counts from and in which unit is said where it is used: client, screen or logical
/// coordinates.
/// @ingroup framework_objects
class CPoint : public POINT {
public:
    constexpr CPoint() noexcept : POINT{0, 0} {}                               ///< The origin.
    constexpr CPoint(int px, int py) noexcept : POINT{px, py} {}               ///< Counted to the right and downwards.
    constexpr CPoint(POINT point) noexcept : POINT(point) {}                   ///< A copy.
    explicit constexpr CPoint(SIZE size) noexcept : POINT{size.cx, size.cy} {} ///< The origin moved by an offset.
    /// Low word is x, high word is y, both signed: the way mouse messages carry a point.
    explicit CPoint(LPARAM packed) noexcept
        : POINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    /** @{ */
    /// Moves the point in place.
    void Offset(int dx, int dy) noexcept {
        x += dx;
        y += dy;
    }
    void Offset(POINT offset) noexcept { Offset(offset.x, offset.y); }
    void Offset(SIZE offset) noexcept { Offset(offset.cx, offset.cy); }
    /** @} */
    /// Replaces both coordinates at once.
    void SetPoint(int px, int py) noexcept {
        x = px;
        y = py;
    }

    /** @{ */
    /// Equal when both coordinates are.
    constexpr bool operator==(POINT other) const noexcept { return x == other.x && y == other.y; }
    constexpr bool operator!=(POINT other) const noexcept { return !(*this == other); }
    /** @} */

    /** @{ */
    /// Moves the point in place, as Offset does; minus moves it the other way.
    void operator+=(SIZE size) noexcept { Offset(size); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }
    /** @} */

    /** @{ */
    /// This point moved by the offset; minus moves it the other way.
    constexpr CPoint operator+(SIZE size) const noexcept { return CPoint(x + size.cx, y + size.cy); }
    constexpr CPoint operator-(SIZE size) const noexcept { return CPoint(x - size.cx, y - size.cy); }
    constexpr CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }
    /** @} */
    constexpr CPoint operator-() const noexcept { return CPoint(-x, -y); } ///< The point mirrored at the origin.
    /// The distance from `point` to this one, with its direction.
    constexpr CSize operator-(POINT point) const noexcept { return CSize(x - point.x, y - point.y); }

    /** @{ */
    /// The rectangle moved by this offset; with minus, moved by it the other way. The rectangle must not be null.
    CRect operator+(const RECT* rect) const noexcept;
    CRect operator-(const RECT* rect) const noexcept;
    /** @} */
};

constexpr CPoint CSize::operator+(POINT point) const noexcept { return CPoint(cx + point.x, cy + point.y); }
constexpr CPoint CSize::operator-(POINT point) const noexcept { return CPoint(cx - point.x, cy - point.y); }

/// A rectangle: left and top belong to it, right and bottom do not. Operations other than NormalizeRect expect
/// left <= right and top <= bottom. Pointers to rectangles must not be null.
/// @ingroup framework_objects
class KY_FRAMEWORK_API CRect : public RECT {
public:
    constexpr CRect() noexcept : RECT{0, 0, 0, 0} {}                           ///< Empty, at the origin.
    constexpr CRect(int l, int t, int r, int b) noexcept : RECT{l, t, r, b} {} ///< Left, top, right, bottom.
    constexpr CRect(const RECT& rect) noexcept : RECT(rect) {}                 ///< A copy.
    CRect(LPCRECT rect) noexcept : RECT(*rect) {}                              ///< A copy.
    /// The rectangle of that size whose upper left corner is `point`.
    constexpr CRect(POINT point, SIZE size) noexcept : RECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    /// The rectangle between two corners; `bottomRight` itself is outside.
    constexpr CRect(POINT topLeft, POINT bottomRight) noexcept
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    constexpr int Width() const noexcept { return right - left; }                       ///< Negative unless normalized.
    constexpr int Height() const noexcept { return bottom - top; }                      ///< Negative unless normalized.
    constexpr CSize Size() const noexcept { return CSize(right - left, bottom - top); } ///< Width and Height together.
    /** @{ */
    /// A corner in place: assigning to it changes the rectangle. The bottom right one is outside the rectangle.
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(&left); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(&left); }
    CPoint& BottomRight() noexcept { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& BottomRight() const noexcept { return *reinterpret_cast<const CPoint*>(&right); }
    /** @} */
    /// The middle, rounded towards zero.
    constexpr CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }
    /** @{ */
    /// The rectangle itself, for Win32 functions that take a pointer.
    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }
    /** @} */

    /// True when the width or the height is zero or negative.
    constexpr BOOL IsRectEmpty() const noexcept { return left >= right || top >= bottom; }
    /// True when all four coordinates are zero.
    constexpr BOOL IsRectNull() const noexcept { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    /// Whether the point is inside; the right and the bottom edge are not. Never in a rectangle that is not normalized.
    constexpr BOOL PtInRect(POINT point) const noexcept {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }

    /** @{ */
    /// Replaces all four coordinates.
    void SetRect(int l, int t, int r, int b) noexcept { *this = CRect(l, t, r, b); }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept { *this = CRect(topLeft, bottomRight); }
    void CopyRect(LPCRECT source) noexcept { *this = CRect(source); }
    /** @} */
    void SetRectEmpty() noexcept { *this = CRect(); } ///< All four coordinates become zero.
    /// Whether all four coordinates are equal; two empty rectangles at different places are not.
    BOOL EqualRect(LPCRECT other) const noexcept { return *this == *other; }

    /** @{ */
    /// Moves each side outwards by its amount, so that one amount counts at both sides. Negative amounts shrink; what
    /// shrinks too far turns inside out.
    void InflateRect(int dx, int dy) noexcept { InflateRect(dx, dy, dx, dy); }
    void InflateRect(SIZE size) noexcept { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT amounts) noexcept {
        InflateRect(amounts->left, amounts->top, amounts->right, amounts->bottom);
    }
    void InflateRect(int l, int t, int r, int b) noexcept;
    /** @} */
    /** @{ */
    /// Moves each side inwards by its amount, so that one amount counts at both sides. What shrinks too far turns
    /// inside out.
    void DeflateRect(int dx, int dy) noexcept { InflateRect(-dx, -dy); }
    void DeflateRect(SIZE size) noexcept { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT amounts) noexcept {
        DeflateRect(amounts->left, amounts->top, amounts->right, amounts->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }
    /** @} */

    /** @{ */
    /// Moves the rectangle by an offset and keeps its size.
    void OffsetRect(int dx, int dy) noexcept;
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    /** @} */
    /** @{ */
    /// Moves the rectangle so that its left side, its top or its upper left corner is there, and keeps its size.
    void MoveToX(int x) noexcept { OffsetRect(x - left, 0); }
    void MoveToY(int y) noexcept { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) noexcept { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }
    /** @} */
    /// Swaps the sides where needed so that width and height are not negative.
    void NormalizeRect() noexcept;

    /// Sets this rectangle to the common part; FALSE and an empty rectangle when there is none.
    BOOL IntersectRect(LPCRECT a, LPCRECT b) noexcept;
    /// Sets this rectangle to the smallest one around both (an empty one does not count); FALSE when both are empty.
    BOOL UnionRect(LPCRECT a, LPCRECT b) noexcept;
    /// Sets this rectangle to what remains of `a` without `b`, when `b` covers `a` from one side to the other;
    /// otherwise to `a`. FALSE when nothing remains.
    BOOL SubtractRect(LPCRECT a, LPCRECT b) noexcept;

    /** @{ */
    /// Equal when all four coordinates are.
    constexpr bool operator==(const RECT& other) const noexcept {
        return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
    }
    constexpr bool operator!=(const RECT& other) const noexcept { return !(*this == other); }
    /** @} */
    /** @{ */
    /// Moves the rectangle in place; minus moves it the other way.
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    /** @} */
    /** @{ */
    /// With a rectangle for the amounts of the four sides: plus inflates, minus deflates.
    void operator+=(LPCRECT amounts) noexcept { InflateRect(amounts); }
    void operator-=(LPCRECT amounts) noexcept { DeflateRect(amounts); }
    /** @} */
    /// Becomes the part common with `other`, empty when there is none.
    void operator&=(const RECT& other) noexcept { IntersectRect(this, &other); }
    /// Becomes the smallest rectangle around both.
    void operator|=(const RECT& other) noexcept { UnionRect(this, &other); }
    /** @{ */
    /// This rectangle moved by the offset; minus moves it the other way.
    CRect operator+(POINT point) const noexcept;
    CRect operator+(SIZE size) const noexcept;
    CRect operator-(POINT point) const noexcept;
    CRect operator-(SIZE size) const noexcept;
    /** @} */
    /** @{ */
    /// With a rectangle for the amounts of the four sides: plus gives the inflated rectangle, minus the deflated one.
    CRect operator+(LPCRECT amounts) const noexcept;
    CRect operator-(LPCRECT amounts) const noexcept;
    /** @} */
    CRect operator&(const RECT& other) const noexcept; ///< The common part, empty when there is none.
    CRect operator|(const RECT& other) const noexcept; ///< The smallest rectangle around both.
    /// The rectangle scaled by multiplier / divisor, each side rounded as MulDiv does.
    CRect MulDiv(int multiplier, int divisor) const noexcept;
};
