/// @file
/// The root class and its run-time class information.
#pragma once

#include "Diagnostics.h"
#include "Platform.h"

class CArchive;
class CObject;

/// Describes one CObject class at run time. One instance per class exists, inside the module that implements the class;
/// it is linked into a process-wide list while that module is loaded, so that FromName can find it. Nobody else makes
/// or deletes one; the DECLARE_ and IMPLEMENT_ macros do.
/// @ingroup framework_objects
struct KY_FRAMEWORK_API CRuntimeClass {
    LPCSTR m_lpszClassName; ///< The class's plain name, ASCII.
    int m_nObjectSize;      ///< sizeof the class, in bytes.
    UINT m_wSchema;         ///< Version of the archived form; 0xFFFF for a class that cannot be archived.
    CObject*(PASCAL* m_pfnCreateObject)();       ///< Null for a class without a creation function.
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)(); ///< The base class's description; null only for CObject.
    CRuntimeClass* m_pNextClass;                 ///< The next one in the list of known classes.

    /// Creates an object on the heap with its default constructor; the caller deletes it. Null when the class has no
    /// creation function or memory runs out.
    CObject* CreateObject();
    /// True when the class is `baseClass` or derives from it.
    BOOL IsDerivedFrom(const CRuntimeClass* baseClass) const;

    /** @{ */
    /// Finds a class of any loaded module by its plain name; null when there is none, also for a name that is null,
    /// empty or not ASCII. Any thread may ask.
    static CRuntimeClass* PASCAL FromName(LPCSTR className);
    static CRuntimeClass* PASCAL FromName(LPCWSTR className);
    /** @} */
    /** @{ */
    /// Creates an object of the class of that name, which the caller deletes; null when there is no such class or it
    /// has no creation function.
    static CObject* PASCAL CreateObject(LPCSTR className);
    static CObject* PASCAL CreateObject(LPCWSTR className);
    /** @} */

    /// Writes schema number and class name (a 16-bit length and 8-bit characters).
    void Store(CArchive& archive) const;
    /// Reads what Store wrote; null when the name is unknown or too long. `schema` receives the stored schema number.
    static CRuntimeClass* PASCAL Load(CArchive& archive, UINT* schema);
};

/// Keeps one class in the list of known classes for as long as its module is loaded. The IMPLEMENT_ macros make one per
/// class, with static storage.
/// @ingroup framework_objects
class KY_FRAMEWORK_API AFX_CLASSINIT {
public:
    /// Enters the class into the list.
    explicit AFX_CLASSINIT(CRuntimeClass* runtimeClass);
    /// Takes the class out of the list, when its module is unloaded.
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    CRuntimeClass* m_class;
};

/// Root of the framework's classes: run-time class information and archiving. Objects are not copied; they are handed
/// on by pointer, and who owns one is said where it is taken.
/// @ingroup framework_objects
class KY_FRAMEWORK_API CObject {
public:
    /// The description of the object's own class, the most derived one that was declared with a DECLARE_ macro.
    virtual CRuntimeClass* GetRuntimeClass() const;
    /// Objects are deleted through a pointer to any of their bases.
    virtual ~CObject();

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    /// True when the object's class may be archived (it was declared with DECLARE_SERIAL).
    BOOL IsSerializable() const;
    /// True when the object's class is `runtimeClass` or derives from it.
    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const;

    /// Reads or writes the object's state, as CArchive::IsStoring says. Overrides call the base class's first; this one
    /// does nothing. Errors are thrown, as CArchiveException* or CFileException*.
    virtual void Serialize(CArchive& archive);
    /// Stops the program, in builds with assertions, when the object's state contradicts itself. Overrides call the
    /// base class's first; this one finds nothing.
    virtual void AssertValid() const;

    /// What RUNTIME_CLASS gives for the class that declares it.
    static CRuntimeClass* PASCAL GetThisClass();

protected:
    CObject(); ///< For derived classes only.
};

/// @addtogroup framework_objects
/// @{

/// The object itself when it is of the class or derives from it, else null. Null gives null.
KY_FRAMEWORK_API CObject* AfxDynamicDownCast(CRuntimeClass* runtimeClass, CObject* object);
/// The same for an object that may only be read.
inline const CObject* AfxDynamicDownCast(CRuntimeClass* runtimeClass, const CObject* object) {
    return AfxDynamicDownCast(runtimeClass, const_cast<CObject*>(object));
}

/// The CRuntimeClass* of a class that was declared with a DECLARE_ macro.
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

/// The object as a `class_name*` when it is of that class or derives from it, else null.
#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
/// The object as a `class_name*` without a check: only for objects that are known to be of the class.
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))

/// In a class derived from CObject: gives it run-time class information. IMPLEMENT_DYNAMIC belongs beside the class's
/// code. What follows it in the class is public.
#define DECLARE_DYNAMIC(class_name)                                                                                    \
public:                                                                                                                \
    static CRuntimeClass* PASCAL GetThisClass();                                                                       \
    CRuntimeClass* GetRuntimeClass() const override;

/// As DECLARE_DYNAMIC, and CRuntimeClass::CreateObject can make objects with the default constructor.
#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* PASCAL CreateObject();

/// As DECLARE_DYNCREATE, and objects can be stored in archives; `archive >> pointer` is declared for them. The class
/// overrides CObject::Serialize.
#define DECLARE_SERIAL(class_name)                                                                                     \
    DECLARE_DYNCREATE(class_name)                                                                                      \
    friend CArchive& AFXAPI operator>>(CArchive& archive, class_name*& object);

/// What the other IMPLEMENT_ macros are made of. The description itself is a constant-initialised static, so that it is
/// usable while other statics are constructed.
#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, create_function)                                   \
    CRuntimeClass* PASCAL class_name::GetThisClass() {                                                                 \
        static CRuntimeClass description = {                                                                           \
            #class_name, sizeof(class_name), schema, create_function, &base_class_name::GetThisClass, nullptr};        \
        return &description;                                                                                           \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const { return class_name::GetThisClass(); }                          \
    static const AFX_CLASSINIT afxClassInit_##class_name(class_name::GetThisClass());

/// In one source file: the class information that DECLARE_DYNAMIC declares.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

/// In one source file: the class information that DECLARE_DYNCREATE declares.
#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* PASCAL class_name::CreateObject() { return new class_name; }                                              \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

/// In one source file: the class information that DECLARE_SERIAL declares. `schema` is the version of the archived
/// form, 0 to 0xFFFE; objects of another version are refused with CArchiveException::badSchema, unless
/// VERSIONABLE_SCHEMA is added to the number.
#define IMPLEMENT_SERIAL(class_name, base_class_name, schema)                                                          \
    CObject* PASCAL class_name::CreateObject() { return new class_name; }                                              \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, &class_name::CreateObject)                             \
    CArchive& AFXAPI operator>>(CArchive& archive, class_name*& object) {                                              \
        object = static_cast<class_name*>(archive.ReadObject(RUNTIME_CLASS(class_name)));                              \
        return archive;                                                                                                \
    }

/// @}
