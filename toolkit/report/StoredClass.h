// The class of an object, kept in a section of properties, so that reading makes an object of the same class.
#pragma once

#include "../common/CXTPPropExchange.h"

namespace storedclass {

inline void Write(CXTPPropExchange* section, const CObject& object) {
    CString name(object.GetRuntimeClass()->m_lpszClassName);
    PX_String(section, _T("ClassName"), name);
}

/// An object of the class that was written, made with its default constructor; null when there is no such class, it
/// cannot be made by name, or it is not a `T`.
template <class T>
T* Make(CXTPPropExchange* section) {
    CString name;
    PX_String(section, _T("ClassName"), name);
    CRuntimeClass* const runtimeClass = CRuntimeClass::FromName(name.GetString());
    if (!runtimeClass || !runtimeClass->IsDerivedFrom(RUNTIME_CLASS(T)))
        return nullptr;
    return static_cast<T*>(runtimeClass->CreateObject());
}

} // namespace storedclass
