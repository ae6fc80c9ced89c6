// CDC.cpp - ownership of device contexts, what is selected into them, attributes, mapping and clipping.
#include "gdi/CDC.h"

#include "core/HandleCounts.h"
#include "core/HandleMap.h"
#include "core/PerThread.h"

#include <new>

IMPLEMENT_DYNCREATE(CDC, CObject)

namespace {

using ContextMap = HandleMap<HDC, CDC>;

ContextMap& Map() {
    static PerThread<ContextMap> maps(
        [] { return new ContextMap([](CDC& dc) { dc.m_hDC = dc.m_hAttribDC = nullptr; }); });
    return maps.Get();
}

/// Hands a new context to its object, and deletes it when the object cannot take it.
BOOL AttachNew(CDC& object, HDC dc) {
    if (object.Attach(dc))
        return TRUE;
    ::DeleteDC(dc);
    return FALSE;
}

} // namespace

// The context

CDC::~CDC() { DeleteDC(); }

CDC* CDC::FromHandle(HDC dc) {
    if (!dc)
        return nullptr;
    if (CDC* owner = Map().FindPermanent(dc))
        return owner;
    if (CDC* temporary = Map().FindTemporary(dc))
        return temporary;
    auto made = std::make_unique<CDC>();
    made->m_hDC = made->m_hAttribDC = dc;
    return Map().AddTemporary(dc, std::move(made));
}

void CDC::DeleteTempMap() { Map().DeleteTemporary(); }

BOOL CDC::Attach(HDC dc) {
    if (!dc)
        return FALSE;
    ASSERT(!m_hDC);
    try {
        Map().SetPermanent(dc, this);
    } catch (const std::bad_alloc&) {
        return FALSE;
    }
    m_owned = dc;
    handlecounts::Add(handlecounts::Kind::DeviceContext);
    m_hDC = dc;
    SetAttribDC(dc);
    return TRUE;
}

HDC CDC::Detach() {
    const HDC detached = m_hDC;
    if (m_owned) {
        Map().RemovePermanent(m_owned, this);
        handlecounts::Remove(handlecounts::Kind::DeviceContext);
        m_owned = nullptr;
    }
    ReleaseAttribDC();
    m_hDC = nullptr;
    return detached;
}

BOOL CDC::CreateDC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData) {
    return AttachNew(*this, ::CreateDCW(driver, device, output, static_cast<const DEVMODEW*>(initData)));
}

BOOL CDC::CreateIC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData) {
    return AttachNew(*this, ::CreateICW(driver, device, output, static_cast<const DEVMODEW*>(initData)));
}

BOOL CDC::CreateCompatibleDC(CDC* dc) { return AttachNew(*this, ::CreateCompatibleDC(dc ? dc->m_hDC : nullptr)); }

BOOL CDC::DeleteDC() { return m_hDC ? ::DeleteDC(Detach()) : FALSE; }

int CDC::SaveDC() {
    // The two contexts are saved together, so that one number restores both.
    if (HasOwnAttribDC())
        ::SaveDC(m_hAttribDC);
    return m_hDC ? ::SaveDC(m_hDC) : 0;
}

BOOL CDC::RestoreDC(int savedDC) {
    if (!HasOwnAttribDC())
        return ::RestoreDC(m_hDC, savedDC);
    const BOOL restored = m_hDC ? ::RestoreDC(m_hDC, savedDC) : TRUE;
    return ::RestoreDC(m_hAttribDC, savedDC) && restored;
}

// What is selected

HGDIOBJ CDC::SelectObject(HGDIOBJ object) {
    HGDIOBJ former = nullptr;
    if (m_hDC)
        former = ::SelectObject(m_hDC, object);
    // A bitmap belongs to one context at a time.
    if (HasOwnAttribDC() && ::GetObjectType(object) != OBJ_BITMAP)
        former = ::SelectObject(m_hAttribDC, object);
    return former;
}

CGdiObject* CDC::SelectStockObject(int index) { return CGdiObject::FromHandle(SelectObject(::GetStockObject(index))); }

CPen* CDC::SelectObject(CPen* pen) {
    return pen ? CPen::FromHandle(static_cast<HPEN>(SelectObject(pen->GetSafeHandle()))) : nullptr;
}

CBrush* CDC::SelectObject(CBrush* brush) {
    return brush ? CBrush::FromHandle(static_cast<HBRUSH>(SelectObject(brush->GetSafeHandle()))) : nullptr;
}

CFont* CDC::SelectObject(CFont* font) {
    return font ? CFont::FromHandle(static_cast<HFONT>(SelectObject(font->GetSafeHandle()))) : nullptr;
}

CBitmap* CDC::SelectObject(CBitmap* bitmap) {
    return bitmap ? CBitmap::FromHandle(static_cast<HBITMAP>(SelectObject(bitmap->GetSafeHandle()))) : nullptr;
}

CPen* CDC::GetCurrentPen() const { return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hDC, OBJ_PEN))); }

CBrush* CDC::GetCurrentBrush() const {
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hDC, OBJ_BRUSH)));
}

CFont* CDC::GetCurrentFont() const {
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
}

CPalette* CDC::GetCurrentPalette() const {
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hDC, OBJ_PAL)));
}

CPalette* CDC::SelectPalette(CPalette* palette, BOOL forceBackground) {
    return CPalette::FromHandle(::SelectPalette(m_hDC, *palette, forceBackground));
}

// Attributes

COLORREF CDC::SetTextColor(COLORREF color) { return OnBoth(CLR_INVALID, ::SetTextColor, color); }

COLORREF CDC::SetBkColor(COLORREF color) { return OnBoth(CLR_INVALID, ::SetBkColor, color); }

int CDC::SetBkMode(int mode) { return OnBoth(0, ::SetBkMode, mode); }

UINT CDC::SetTextAlign(UINT flags) { return OnBoth(GDI_ERROR, ::SetTextAlign, flags); }

int CDC::SetROP2(int mode) { return OnBoth(0, ::SetROP2, mode); }

int CDC::SetPolyFillMode(int mode) { return OnBoth(0, ::SetPolyFillMode, mode); }

int CDC::SetStretchBltMode(int mode) { return OnBoth(0, ::SetStretchBltMode, mode); }

CPoint CDC::GetBrushOrg() const {
    CPoint origin;
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y) {
    CPoint former;
    ::SetBrushOrgEx(m_hDC, x, y, &former);
    return former;
}

// Mapping

int CDC::SetMapMode(int mode) { return OnBoth(0, ::SetMapMode, mode); }

CPoint CDC::GetViewportOrg() const {
    CPoint origin;
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetViewportOrg(int x, int y) {
    CPoint former;
    OnBoth(FALSE, ::SetViewportOrgEx, x, y, &former);
    return former;
}

CPoint CDC::OffsetViewportOrg(int width, int height) {
    CPoint former;
    OnBoth(FALSE, ::OffsetViewportOrgEx, width, height, &former);
    return former;
}

CSize CDC::GetViewportExt() const {
    CSize extent;
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetViewportExt(int width, int height) {
    CSize former;
    OnBoth(FALSE, ::SetViewportExtEx, width, height, &former);
    return former;
}

CPoint CDC::GetWindowOrg() const {
    CPoint origin;
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    CPoint former;
    OnBoth(FALSE, ::SetWindowOrgEx, x, y, &former);
    return former;
}

CPoint CDC::OffsetWindowOrg(int width, int height) {
    CPoint former;
    OnBoth(FALSE, ::OffsetWindowOrgEx, width, height, &former);
    return former;
}

CSize CDC::GetWindowExt() const {
    CSize extent;
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetWindowExt(int width, int height) {
    CSize former;
    OnBoth(FALSE, ::SetWindowExtEx, width, height, &former);
    return former;
}

void CDC::DPtoLP(LPSIZE size) const {
    // A size has no place: its ends are mapped and the distance between them is taken.
    POINT ends[] = {{0, 0}, {size->cx, size->cy}};
    DPtoLP(ends, 2);
    size->cx = ends[1].x - ends[0].x;
    size->cy = ends[1].y - ends[0].y;
}

void CDC::LPtoDP(LPSIZE size) const {
    POINT ends[] = {{0, 0}, {size->cx, size->cy}};
    LPtoDP(ends, 2);
    size->cx = ends[1].x - ends[0].x;
    size->cy = ends[1].y - ends[0].y;
}

// Clipping

int CDC::SelectClipRgn(CRgn* region) {
    return OnBoth(ERROR, ::SelectClipRgn, region ? static_cast<HRGN>(*region) : nullptr);
}

int CDC::SelectClipRgn(CRgn* region, int mode) {
    return OnBoth(ERROR, ::ExtSelectClipRgn, region ? static_cast<HRGN>(*region) : nullptr, mode);
}

int CDC::IntersectClipRect(int left, int top, int right, int bottom) {
    return OnBoth(ERROR, ::IntersectClipRect, left, top, right, bottom);
}

int CDC::ExcludeClipRect(int left, int top, int right, int bottom) {
    return OnBoth(ERROR, ::ExcludeClipRect, left, top, right, bottom);
}

int CDC::OffsetClipRgn(int x, int y) { return OnBoth(ERROR, ::OffsetClipRgn, x, y); }
