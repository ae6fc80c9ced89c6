// CGdiObject.cpp - ownership of GDI objects and the map from handles to objects.
#include "gdi/CGdiObject.h"

#include "core/HandleCounts.h"
#include "core/HandleMap.h"
#include "core/PerThread.h"
#include "gdi/Gdi.h"

#include <new>

IMPLEMENT_DYNCREATE(CGdiObject, CObject)

namespace {

using GdiObjectMap = HandleMap<HGDIOBJ, CGdiObject>;

GdiObjectMap& Map() {
    static PerThread<GdiObjectMap> maps(
        [] { return new GdiObjectMap([](CGdiObject& object) { object.m_hObject = nullptr; }); });
    return maps.Get();
}

std::unique_ptr<CGdiObject> MakeObjectOfType(DWORD type) {
    switch (type) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return std::make_unique<CPen>();
    case OBJ_BRUSH:
        return std::make_unique<CBrush>();
    case OBJ_FONT:
        return std::make_unique<CFont>();
    case OBJ_BITMAP:
        return std::make_unique<CBitmap>();
    case OBJ_PAL:
        return std::make_unique<CPalette>();
    case OBJ_REGION:
        return std::make_unique<CRgn>();
    default:
        return std::make_unique<CGdiObject>();
    }
}

CRuntimeClass* ClassOfType(DWORD type) {
    switch (type) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return RUNTIME_CLASS(CPen);
    case OBJ_BRUSH:
        return RUNTIME_CLASS(CBrush);
    case OBJ_FONT:
        return RUNTIME_CLASS(CFont);
    case OBJ_BITMAP:
        return RUNTIME_CLASS(CBitmap);
    case OBJ_PAL:
        return RUNTIME_CLASS(CPalette);
    case OBJ_REGION:
        return RUNTIME_CLASS(CRgn);
    default:
        return RUNTIME_CLASS(CGdiObject);
    }
}

} // namespace

CGdiObject::~CGdiObject() { DeleteObject(); }

CGdiObject* CGdiObject::FromHandle(HGDIOBJ handle) { return FromHandleOfType(handle, ::GetObjectType(handle)); }

CGdiObject* CGdiObject::FromHandleOfType(HGDIOBJ handle, DWORD type) {
    if (!handle)
        return nullptr;
    if (CGdiObject* owner = Map().FindPermanent(handle))
        return owner;
    // The system uses the numbers of deleted objects again, so that a temporary object may be of another type.
    CGdiObject* temporary = Map().FindTemporary(handle);
    if (temporary && temporary->IsKindOf(ClassOfType(type)))
        return temporary;
    std::unique_ptr<CGdiObject> made = MakeObjectOfType(type);
    made->m_hObject = handle;
    return Map().AddTemporary(handle, std::move(made));
}

void CGdiObject::DeleteTempMap() { Map().DeleteTemporary(); }

BOOL CGdiObject::Attach(HGDIOBJ handle) {
    if (!handle)
        return FALSE;
    ASSERT(!m_hObject);
    try {
        Map().SetPermanent(handle, this);
    } catch (const std::bad_alloc&) {
        ::DeleteObject(handle); // it was this object's already: nobody else knows the handles of new ones
        return FALSE;
    }
    m_hObject = handle;
    m_isOwner = true;
    handlecounts::Add(handlecounts::Kind::GdiObject);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    const HGDIOBJ detached = m_hObject;
    m_hObject = nullptr;
    if (m_isOwner) {
        m_isOwner = false;
        Map().RemovePermanent(detached, this);
        handlecounts::Remove(handlecounts::Kind::GdiObject);
    }
    return detached;
}

BOOL CGdiObject::DeleteObject() { return m_hObject ? ::DeleteObject(Detach()) : FALSE; }
