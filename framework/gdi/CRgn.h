/// @file
/// Regions.
#pragma once

#include "../core/Geometry.h"
#include "CGdiObject.h"

/// Owns a region. Rectangles exclude their right and bottom edges. Coordinates are those of what the region is used
/// for: device units when it clips, logical ones when it is filled.
///
/// Operations that give an int give the kind of the result: NULLREGION, SIMPLEREGION, COMPLEXREGION, or ERROR (0) when
/// they failed. Other regions given by pointer must not be null unless that is said.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn() = default; ///< Without a region.

    /** @{ */
    /// A new region of that shape. FALSE on failure. The object must not hold one yet.
    BOOL CreateRectRgn(int left, int top, int right, int bottom) {
        return Attach(::CreateRectRgn(left, top, right, bottom));
    }
    BOOL CreateRectRgnIndirect(LPCRECT rect) { return Attach(::CreateRectRgnIndirect(rect)); }
    BOOL CreateEllipticRgn(int left, int top, int right, int bottom) {
        return Attach(::CreateEllipticRgn(left, top, right, bottom));
    }
    BOOL CreatePolygonRgn(const POINT* points, int count, int mode) {
        return Attach(::CreatePolygonRgn(points, count, mode));
    }
    BOOL CreateRoundRectRgn(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight) {
        return Attach(::CreateRoundRectRgn(left, top, right, bottom, ellipseWidth, ellipseHeight));
    }
    /** @} */

    /** @{ */
    /// Makes this region, which must exist, a rectangle; sides are swapped where needed.
    void SetRectRgn(int left, int top, int right, int bottom) { ::SetRectRgn(*this, left, top, right, bottom); }
    void SetRectRgn(LPCRECT rect) { SetRectRgn(rect->left, rect->top, rect->right, rect->bottom); }
    /** @} */
    /// Sets this region, which must exist, to a combination; `mode` is RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF or RGN_COPY,
    /// which needs no second one. The kind of the result.
    int CombineRgn(const CRgn* first, const CRgn* second, int mode);
    /// Sets this region, which must exist, to that of `source`. The kind of the result.
    int CopyRgn(const CRgn* source);
    /// Whether both cover the same points.
    BOOL EqualRgn(const CRgn* other) const { return ::EqualRgn(*this, *other); }
    /** @{ */
    /// Moves the region. The kind of the result.
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT offset) { return OffsetRgn(offset.x, offset.y); }
    /** @} */
    /// The smallest rectangle around the region, all zero when it is empty. The kind of the region.
    int GetRgnBox(LPRECT box) const { return ::GetRgnBox(*this, box); }
    /** @{ */
    /// Whether the point is inside.
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    /** @} */
    /// Whether any part of the rectangle is inside.
    BOOL RectInRegion(LPCRECT rect) const { return ::RectInRegion(*this, rect); }

    /// Null when there is none; the object keeps the ownership.
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    /// As CGdiObject::FromHandle, for a handle that is known to be a region's.
    static CRgn* PASCAL FromHandle(HRGN region) { return static_cast<CRgn*>(FromHandleOfType(region, OBJ_REGION)); }
};
