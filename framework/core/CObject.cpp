// CObject.cpp - the root class and the list of known classes.
#include "core/CObject.h"

#include "core/CArchive.h"
#include "core/CString.h"

#include <cstring>
#include <mutex>
#include <new>

namespace {

constexpr WORD maximumClassNameLength = 64;

// The list is zero-initialised data, since classes enter it while other statics are still being constructed.
CRuntimeClass* g_firstClass;

// Modules may be loaded by any thread.
std::mutex& ClassListLock() {
    static std::mutex lock;
    return lock;
}

} // namespace

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* runtimeClass) : m_class(runtimeClass) {
    const std::lock_guard<std::mutex> guard(ClassListLock());
    m_class->m_pNextClass = g_firstClass;
    g_firstClass = m_class;
}

AFX_CLASSINIT::~AFX_CLASSINIT() {
    const std::lock_guard<std::mutex> guard(ClassListLock());
    for (CRuntimeClass** link = &g_firstClass; *link; link = &(*link)->m_pNextClass) {
        if (*link == m_class) {
            *link = m_class->m_pNextClass;
            return;
        }
    }
}

CObject* CRuntimeClass::CreateObject() {
    if (!m_pfnCreateObject)
        return nullptr;
    try {
        return m_pfnCreateObject();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* baseClass) const {
    const CRuntimeClass* next = this;
    while (next) {
        if (next == baseClass)
            return TRUE;
        next = next->m_pfnGetBaseClass ? next->m_pfnGetBaseClass() : nullptr;
    }
    return FALSE;
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR className) {
    if (!className)
        return nullptr;
    const std::lock_guard<std::mutex> guard(ClassListLock());
    for (CRuntimeClass* next = g_firstClass; next; next = next->m_pNextClass) {
        if (std::strcmp(next->m_lpszClassName, className) == 0)
            return next;
    }
    return nullptr;
}

CRuntimeClass* CRuntimeClass::FromName(LPCWSTR className) {
    // Class names are plain ASCII, so that a name with other characters fits none.
    std::string narrow;
    for (LPCWSTR next = className; next && *next; ++next) {
        if (*next > 0x7F)
            return nullptr;
        narrow.push_back(static_cast<char>(*next));
    }
    return narrow.empty() ? nullptr : FromName(narrow.c_str());
}

CObject* CRuntimeClass::CreateObject(LPCSTR className) {
    CRuntimeClass* found = FromName(className);
    return found ? found->CreateObject() : nullptr;
}

CObject* CRuntimeClass::CreateObject(LPCWSTR className) {
    CRuntimeClass* found = FromName(className);
    return found ? found->CreateObject() : nullptr;
}

void CRuntimeClass::Store(CArchive& archive) const {
    const auto length = static_cast<WORD>(std::strlen(m_lpszClassName));
    archive << static_cast<WORD>(m_wSchema) << length;
    archive.Write(m_lpszClassName, length);
}

CRuntimeClass* CRuntimeClass::Load(CArchive& archive, UINT* schema) {
    WORD storedSchema = 0;
    WORD length = 0;
    archive >> storedSchema >> length;
    *schema = storedSchema;
    char name[maximumClassNameLength];
    if (length >= maximumClassNameLength || archive.Read(name, length) != length)
        return nullptr;
    name[length] = '\0';
    return FromName(name);
}

CRuntimeClass* CObject::GetThisClass() {
    static CRuntimeClass description = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr, nullptr};
    return &description;
}

static const AFX_CLASSINIT afxClassInit_CObject(CObject::GetThisClass());

CObject::CObject() = default;

CObject::~CObject() = default;

CRuntimeClass* CObject::GetRuntimeClass() const { return GetThisClass(); }

BOOL CObject::IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF; }

BOOL CObject::IsKindOf(const CRuntimeClass* runtimeClass) const {
    return GetRuntimeClass()->IsDerivedFrom(runtimeClass);
}

void CObject::Serialize(CArchive&) {}

void CObject::AssertValid() const {}

CObject* AfxDynamicDownCast(CRuntimeClass* runtimeClass, CObject* object) {
    return object && object->IsKindOf(runtimeClass) ? object : nullptr;
}
