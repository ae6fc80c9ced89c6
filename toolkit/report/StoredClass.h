// The class of an object, kept in a section of properties, so that reading makes an object of the same class.
#pragma once

#include "../common/CXTPPropExchange.h"

#include <algorithm>
#include <cstring>

namespace storedclass {

inline void Write(CXTPPropExchange* section, const CObject& object) {
    const char* const plain = object.GetRuntimeClass()->m_lpszClassName; // ASCII, so that no code page is asked
    CString name;
    const int length = static_cast<int>(std::strlen(plain));
    std::copy_n(plain, length, name.GetBufferSetLength(length));
    name.ReleaseBuffer(length);
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
