// CObject.h - the root class and its run-time class information.
#pragma once

#include "Diagnostics.h"
#include "Platform.h"

class CArchive;
class CObject;

/// Describes one CObject class at run time. One instance per class exists, inside the module that implements the
/// class; it is linked into a process-wide list while that module is loaded, so that FromName can find it.
struct KY_FRAMEWORK_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;                     ///< sizeof the class, in bytes
    UINT m_wSchema;                        ///< version of the archived form; 0xFFFF for a class that cannot be archived
    CObject*(PASCAL* m_pfnCreateObject)(); ///< null for a class without a creation function
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();
    CRuntimeClass* m_pNextClass;

    /// Creates an object on the heap with its default constructor; the caller deletes it. Null when the class has no
    /// creation function or memory runs out.
    CObject* CreateObject();
    /// True when the class is `baseClass` or derives from it.
    BOOL IsDerivedFrom(const CRuntimeClass* baseClass) const;

    /// Finds a class of any loaded module by its plain name; null when there is none.
    static CRuntimeClass* PASCAL FromName(LPCSTR className);
    static CRuntimeClass* PASCAL FromName(LPCWSTR className);
    /// Creates an object of the class of that name; null when there is none or it has no creation function.
    static CObject* PASCAL CreateObject(LPCSTR className);
    static CObject* PASCAL CreateObject(LPCWSTR className);

    /// Writes schema number and class name (a 16-bit length and 8-bit characters).
    void Store(CArchive& archive) const;
    /// Reads what Store wrote; null when the name is unknown or too long. `schema` receives the stored schema number.
    static CRuntimeClass* PASCAL Load(CArchive& archive, UINT* schema);
};

/// Keeps one class in the list of known classes for as long as its module is loaded.
class KY_FRAMEWORK_API AFX_CLASSINIT {
public:
    explicit AFX_CLASSINIT(CRuntimeClass* runtimeClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    CRuntimeClass* m_class;
};

/// Root of the framework's classes: run-time class information and archiving.
class KY_FRAMEWORK_API CObject {
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    /// True when a class of the object may be archived (it was declared with DECLARE_SERIAL).
    BOOL IsSerializable() const;
    /// True when the object's class is `runtimeClass` or derives from it.
    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const;

    /// Reads or writes the object's state. The base class has none.
    virtual void Serialize(CArchive& archive);
    /// Stops the program, in builds with assertions, when the object's state contradicts itself.
    virtual void AssertValid() const;

    static CRuntimeClass* PASCAL GetThisClass();

protected:
    CObject();
};

/// The object itself when it is of the class or derives from it, else null. Null gives null.
KY_FRAMEWORK_API CObject* AfxDynamicDownCast(CRuntimeClass* runtimeClass, CObject* object);
inline const CObject* AfxDynamicDownCast(CRuntimeClass* runtimeClass, const CObject* object) {
    return AfxDynamicDownCast(runtimeClass, const_cast<CObject*>(object));
}

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))

#define DECLARE_DYNAMIC(class_name)                                                                                    \
public:                                                                                                                \
    static CRuntimeClass* PASCAL GetThisClass();                                                                       \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* PASCAL CreateObject();

#define DECLARE_SERIAL(class_name)                                                                                     \
    DECLARE_DYNCREATE(class_name)                                                                                      \
    friend CArchive& AFXAPI operator>>(CArchive& archive, class_name*& object);

// The description itself is a constant-initialised static, so that it is usable while other statics are constructed.
#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, create_function)                                   \
    CRuntimeClass* PASCAL class_name::GetThisClass() {                                                                 \
        static CRuntimeClass description = {                                                                           \
            #class_name, sizeof(class_name), schema, create_function, &base_class_name::GetThisClass, nullptr};        \
        return &description;                                                                                           \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const { return class_name::GetThisClass(); }                          \
    static const AFX_CLASSINIT afxClassInit_##class_name(class_name::GetThisClass());

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* PASCAL class_name::CreateObject() { return new class_name; }                                              \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

#define IMPLEMENT_SERIAL(class_name, base_class_name, schema)                                                          \
    CObject* PASCAL class_name::CreateObject() { return new class_name; }                                              \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, &class_name::CreateObject)                             \
    CArchive& AFXAPI operator>>(CArchive& archive, class_name*& object) {                                              \
        object = static_cast<class_name*>(archive.ReadObject(RUNTIME_CLASS(class_name)));                              \
        return archive;                                                                                                \
    }
