// CGdiObject.h - the root of the classes that own GDI objects.
#pragma once

#include "../core/CObject.h"
#include "../core/CString.h"

/// Owns one GDI object and deletes it on destruction. Each thread finds the C++ object of a handle through FromHandle.
class KY_FRAMEWORK_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)
public:
    CGdiObject() = default;
    ~CGdiObject() override;

    operator HGDIOBJ() const { return m_hObject; }
    /// May be asked of a null pointer, too, and then gives null.
    HGDIOBJ GetSafeHandle() const { return this == nullptr ? nullptr : m_hObject; }
    bool operator==(const CGdiObject& other) const { return m_hObject == other.m_hObject; }
    bool operator!=(const CGdiObject& other) const { return m_hObject != other.m_hObject; }

    /// The object that owns the handle, else a temporary one of the class that fits the handle's type, valid until the
    /// thread is idle next. Null for null.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ handle);
    /// Destroys the thread's temporary objects; the framework does so when the thread is idle.
    static void PASCAL DeleteTempMap();

    /// Takes over the handle. FALSE for null.
    BOOL Attach(HGDIOBJ handle);
    /// Gives up the handle, which the caller then owns.
    HGDIOBJ Detach();
    /// Deletes the GDI object. FALSE when there is none or it is selected into a device context.
    BOOL DeleteObject();

    /// Copies the object's description (LOGPEN, BITMAP…); the number of bytes copied.
    int GetObject(int count, LPVOID description) const { return ::GetObjectW(m_hObject, count, description); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    /// Takes over a stock object, which the system never deletes.
    BOOL CreateStockObject(int index) { return Attach(::GetStockObject(index)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

    HGDIOBJ m_hObject = nullptr;

protected:
    /// The object of a handle, of the framework class for `type` (an OBJ_ value) when it has to be made.
    static CGdiObject* FromHandleOfType(HGDIOBJ handle, DWORD type);

private:
    bool m_isOwner = false; // temporary objects are not
};
