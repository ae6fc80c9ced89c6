/// @file
/// The root of the classes that own GDI objects.
#pragma once

#include "../core/CObject.h"
#include "../core/CString.h"

/// Owns one GDI object and deletes it on destruction. Each thread finds the C++ object of a handle through FromHandle.
/// An object must not be selected into a device context when it is deleted; SelectGuard takes care of that.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)
public:
    /// Without a GDI object; one of the Create operations, or Attach, gives it one.
    CGdiObject() = default;
    /// Deletes the GDI object. Temporary objects, which own nothing, leave theirs alone.
    ~CGdiObject() override;

    operator HGDIOBJ() const { return m_hObject; } ///< Null when there is none; the object keeps the ownership.
    /// The object as m_hObject has it; may be asked of a null pointer, too, and then gives null.
    HGDIOBJ GetSafeHandle() const { return this == nullptr ? nullptr : m_hObject; }
    /** @{ */
    /// Equal when both hold the same handle, whichever of them owns it.
    bool operator==(const CGdiObject& other) const { return m_hObject == other.m_hObject; }
    bool operator!=(const CGdiObject& other) const { return m_hObject != other.m_hObject; }
    /** @} */

    /// The object of this thread that owns the handle, else a temporary one of the class that fits the handle's type,
    /// valid until the thread is idle next. Null for null.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ handle);
    /// Destroys the thread's temporary objects; the framework does so when the thread is idle. Who runs a message loop
    /// of his own may call it there.
    static void PASCAL DeleteTempMap();

    /// Takes over the handle, which is deleted with the object. FALSE for null. The object must not hold one yet.
    BOOL Attach(HGDIOBJ handle);
    /// Gives up the handle, which the caller then owns. Null when there was none.
    HGDIOBJ Detach();
    /// Deletes the GDI object; the C++ object is without one afterwards. FALSE when there was none or the system
    /// refused, as it does for one that is selected into a device context and then is lost.
    BOOL DeleteObject();

    /// Copies the object's description (LOGPEN, BITMAP…) into at most `count` bytes; the number of bytes copied, 0 on
    /// failure. With a null `description` the number of bytes that it takes.
    int GetObject(int count, LPVOID description) const { return ::GetObjectW(m_hObject, count, description); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); } ///< An OBJ_ value; 0 without a GDI object.
    /// Takes over a stock object (WHITE_BRUSH, DEFAULT_GUI_FONT…), which the system never deletes. FALSE for a number
    /// without one.
    BOOL CreateStockObject(int index) { return Attach(::GetStockObject(index)); }
    /// Makes the system map a palette anew when it is realized next; brushes need it no more.
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

    HGDIOBJ m_hObject = nullptr; ///< Null when there is none; change it through Attach and Detach.

protected:
    /// The object of a handle, of the framework class for `type` (an OBJ_ value) when it has to be made.
    static CGdiObject* FromHandleOfType(HGDIOBJ handle, DWORD type);

private:
    bool m_isOwner = false; // temporary objects are not
};
