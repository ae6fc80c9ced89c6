/// @file
/// Property exchange: one piece of an object's code both writes its properties and reads them.
#pragma once

#include "Export.h"

#include <afxwin.h>

#include <memory>

/// A place in a list; null behind its end.
typedef struct __POSITION* POSITION;

class CXTPPropExchangeEnumerator;

/// A section of named properties that is being written (storing) or read (loading). Sections hold sections. An object
/// has a `DoPropExchange(CXTPPropExchange*)` that calls a `PX_…` function for each of its properties.
///
/// What is read was written by another program, or broken: a property that is missing, is not of its kind or is out of
/// its range takes its default, and a section that is missing reads as an empty one. Storing throws std::bad_alloc for
/// want of memory.
/// @ingroup toolkit_common
class KY_TOOLKIT_API CXTPPropExchange : public CCmdTarget {
public:
    BOOL IsLoading() const { return m_bLoading; }  ///< properties are being read
    BOOL IsStoring() const { return !m_bLoading; } ///< properties are being written

    /// To be called once, before the outermost section is used. FALSE when there is nothing to write to or read from.
    virtual BOOL OnBeforeExchange();
    /// The section of that name in this one, never null; storing makes it when it is not there. The caller owns the
    /// reference, see `CXTPPropExchangeSection`.
    virtual CXTPPropExchange* GetSection(LPCTSTR lpszSection) = 0;
    /// The sections of that name in this one, of which there may be any number; never null. The caller owns the
    /// reference, see `CXTPPropExchangeEnumeratorPtr`.
    virtual CXTPPropExchangeEnumerator* GetEnumerator(LPCTSTR lpszSection) = 0;
    /// Removes the sections of that name with all that is in them; nothing when there is none. Objects for them must
    /// not be used any more. Only for storing.
    virtual void EmptySection(LPCTSTR lpszSection) = 0;
    /// One property; called by the `PX_…` functions.
    /// @param pszPropName  letters and digits
    /// @param vtProp       VT_BSTR (CString), VT_UI4 (DWORD), VT_I4 (int), VT_BOOL (BOOL), VT_R4 (float) or
    ///                     VT_R8 (double)
    /// @param pvProp       the value, of the type that `vtProp` names
    /// @param pvDefault    of the same type; null: there is none. A value that equals it is not written.
    /// @return whether the value was read; storing: whether it is one of the types. A value that is not read becomes
    ///         the default, or stays as it is when there is none.
    virtual BOOL ExchangeProp(LPCTSTR pszPropName, VARTYPE vtProp, void* pvProp, const void* pvDefault = nullptr) = 0;

protected:
    explicit CXTPPropExchange(BOOL bLoading) : m_bLoading(bLoading) {} ///< reads or writes, all its life

private:
    const BOOL m_bLoading;
};

/// The sections of one name in a section, one after the other.
/// @ingroup toolkit_common
class KY_TOOLKIT_API CXTPPropExchangeEnumerator : public CCmdTarget {
public:
    /// Where to begin; null when there is no section.
    /// @param dwCount  storing: how many sections are going to be written behind those that are there; loading takes
    ///                 those that are there, whatever the number says
    virtual POSITION GetPosition(DWORD dwCount = 0) = 0;
    /// The section at `pos`, which moves on to the next one; storing makes the section. Never null; a null `pos` gives
    /// an empty section when loading, and must not be given when storing. The caller owns the reference.
    virtual CXTPPropExchange* GetNext(POSITION& pos) = 0;
};

/// Owns a reference to what property exchange gives, and lets it go.
/// @ingroup toolkit_common
template <class T>
class CXTPPropExchangeHolder {
public:
    explicit CXTPPropExchangeHolder(T* pHeld) : m_pHeld(pHeld) {} ///< takes the reference over
    T* operator->() const { return m_pHeld.get(); }               ///< never null
    T* operator&() const { return m_pHeld.get(); }                ///< as functions take it; stays owned
private:
    struct Release {
        void operator()(T* pHeld) const { pHeld->InternalRelease(); }
    };
    std::unique_ptr<T, Release> m_pHeld;
};
/// A section: `CXTPPropExchangeSection section(pPX->GetSection(_T("Name"))); PX_Int(&section, …)`.
/// @ingroup toolkit_common
using CXTPPropExchangeSection = CXTPPropExchangeHolder<CXTPPropExchange>;
/// An enumerator of sections.
/// @ingroup toolkit_common
using CXTPPropExchangeEnumeratorPtr = CXTPPropExchangeHolder<CXTPPropExchangeEnumerator>;

/** @{ */
/// One property, written or read as the exchange is loading or storing; see `CXTPPropExchange::ExchangeProp` for what
/// they return. The forms with a default do not write a value that equals it, and read it where there is none.
KY_TOOLKIT_API BOOL PX_String(CXTPPropExchange* pPX, LPCTSTR pszPropName, CString& strValue);
KY_TOOLKIT_API BOOL PX_String(CXTPPropExchange* pPX, LPCTSTR pszPropName, CString& strValue, LPCTSTR strDefault);
KY_TOOLKIT_API BOOL PX_DWord(CXTPPropExchange* pPX, LPCTSTR pszPropName, DWORD& dwValue);
KY_TOOLKIT_API BOOL PX_DWord(CXTPPropExchange* pPX, LPCTSTR pszPropName, DWORD& dwValue, DWORD dwDefault);
KY_TOOLKIT_API BOOL PX_Int(CXTPPropExchange* pPX, LPCTSTR pszPropName, int& nValue);
KY_TOOLKIT_API BOOL PX_Int(CXTPPropExchange* pPX, LPCTSTR pszPropName, int& nValue, int nDefault);
KY_TOOLKIT_API BOOL PX_Bool(CXTPPropExchange* pPX, LPCTSTR pszPropName, BOOL& bValue);
KY_TOOLKIT_API BOOL PX_Bool(CXTPPropExchange* pPX, LPCTSTR pszPropName, BOOL& bValue, BOOL bDefault);
/** @} */
/** @{ */
/// As above. Infinities and NaN are values like others; a number without a fraction, or with more digits than the type
/// has, is read as the nearest one. A float beyond the largest one is an infinity.
KY_TOOLKIT_API BOOL PX_Float(CXTPPropExchange* pPX, LPCTSTR pszPropName, float& fValue);
KY_TOOLKIT_API BOOL PX_Float(CXTPPropExchange* pPX, LPCTSTR pszPropName, float& fValue, float fDefault);
KY_TOOLKIT_API BOOL PX_Double(CXTPPropExchange* pPX, LPCTSTR pszPropName, double& dValue);
KY_TOOLKIT_API BOOL PX_Double(CXTPPropExchange* pPX, LPCTSTR pszPropName, double& dValue, double dDefault);
/** @} */
