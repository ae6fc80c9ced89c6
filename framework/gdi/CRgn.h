// CRgn.h - regions.
#pragma once

#include "../core/Geometry.h"
#include "CGdiObject.h"

/// Owns a region. Rectangles exclude their right and bottom edges.
class KY_FRAMEWORK_API CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn() = default;

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

    void SetRectRgn(int left, int top, int right, int bottom) { ::SetRectRgn(*this, left, top, right, bottom); }
    void SetRectRgn(LPCRECT rect) { SetRectRgn(rect->left, rect->top, rect->right, rect->bottom); }
    /// Sets this region, which must exist, to a combination; the kind of the result (NULLREGION, SIMPLEREGION…).
    int CombineRgn(const CRgn* first, const CRgn* second, int mode);
    int CopyRgn(const CRgn* source);
    BOOL EqualRgn(const CRgn* other) const { return ::EqualRgn(*this, *other); }
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT offset) { return OffsetRgn(offset.x, offset.y); }
    int GetRgnBox(LPRECT box) const { return ::GetRgnBox(*this, box); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    BOOL RectInRegion(LPCRECT rect) const { return ::RectInRegion(*this, rect); }

    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    static CRgn* PASCAL FromHandle(HRGN region) { return static_cast<CRgn*>(FromHandleOfType(region, OBJ_REGION)); }
};
