/// @file
/// The root of the exceptions, which are thrown as pointers, and those without a subject of their own.
#pragma once

#include "CObject.h"
#include "CString.h"

/// An exception, thrown and caught as a pointer. The handler that ends it calls Delete; one that throws it on
/// (`throw;`) does not.
/// @ingroup framework_objects
class KY_FRAMEWORK_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    /// An object on the heap, which Delete destroys.
    CException();
    /// `autoDelete`: whether Delete destroys the object (FALSE for objects with static storage).
    explicit CException(BOOL autoDelete);
    /// Called by Delete; handlers do not delete exceptions themselves.
    ~CException() override;

    /// Ends the exception; it must not be used afterwards.
    void Delete();

    /// Writes a plain sentence about the exception, at most `maxError` characters with the terminator. FALSE, and an
    /// empty text, when there is none. `helpContext`, when given, receives 0.
    virtual BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const;

    /// Shows the sentence in a message box with the program's file name as title; `messageId` names a string resource
    /// to show when there is no sentence. Returns the id of the button pressed.
    virtual int ReportError(UINT type = MB_OK, UINT messageId = 0);

    BOOL m_bAutoDelete; ///< Whether Delete destroys the object.
};

/// An exception whose message is one fixed sentence.
/// @ingroup framework_objects
class KY_FRAMEWORK_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    /// Without a sentence, on the heap.
    CSimpleException();
    /// `message` is not copied and must live as long as the exception; null for none. `autoDelete` as in CException.
    explicit CSimpleException(BOOL autoDelete, LPCTSTR message = nullptr);
    /// As CException::GetErrorMessage, with the sentence given at construction.
    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const override;

private:
    LPCTSTR m_message; // a literal
};

/// Memory ran out.
/// @ingroup framework_objects
class KY_FRAMEWORK_API CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    /** @{ */
    /// AfxThrowMemoryException throws one that exists already; a program that makes its own says whether Delete
    /// destroys it (yes, if it does not say).
    CMemoryException();
    explicit CMemoryException(BOOL autoDelete);
    /** @} */
};

/// An operation was asked of an object that does not support it.
/// @ingroup framework_objects
class KY_FRAMEWORK_API CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    /** @{ */
    /// AfxThrowNotSupportedException throws one that exists already; a program that makes its own says whether Delete
    /// destroys it (yes, if it does not say).
    CNotSupportedException();
    explicit CNotSupportedException(BOOL autoDelete);
    /** @} */
};

/// A resource could not be found, loaded or made.
/// @ingroup framework_objects
class KY_FRAMEWORK_API CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    /** @{ */
    /// AfxThrowResourceException throws one that exists already; a program that makes its own says whether Delete
    /// destroys it (yes, if it does not say).
    CResourceException();
    explicit CResourceException(BOOL autoDelete);
    /** @} */
};

/// Stops an operation after the user has been told why. When one leaves a message handler, nothing more is shown.
/// @ingroup framework_objects
class KY_FRAMEWORK_API CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
public:
    /** @{ */
    /// AfxThrowUserException throws one that exists already; a program that makes its own says whether Delete destroys
    /// it (yes, if it does not say).
    CUserException();
    explicit CUserException(BOOL autoDelete);
    /** @} */
};

/// A parameter has a value that the operation does not take.
/// @ingroup framework_objects
class KY_FRAMEWORK_API CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    /** @{ */
    /// AfxThrowInvalidArgException throws one that exists already; a program that makes its own says whether Delete
    /// destroys it (yes, if it does not say).
    CInvalidArgException();
    explicit CInvalidArgException(BOOL autoDelete);
    /** @} */
};

/// @addtogroup framework_objects
/// @{

/// Throws a CMemoryException* that exists from the start, since there may be no memory for one; Delete leaves it alone.
[[noreturn]] KY_FRAMEWORK_API void AfxThrowMemoryException();
/// Throws a CNotSupportedException* that exists from the start; Delete leaves it alone.
[[noreturn]] KY_FRAMEWORK_API void AfxThrowNotSupportedException();
/// Throws a CResourceException* that exists from the start; Delete leaves it alone.
[[noreturn]] KY_FRAMEWORK_API void AfxThrowResourceException();
/// Throws a CUserException* that exists from the start; Delete leaves it alone. Tell the user before.
[[noreturn]] KY_FRAMEWORK_API void AfxThrowUserException();
/// Throws a CInvalidArgException* that exists from the start; Delete leaves it alone.
[[noreturn]] KY_FRAMEWORK_API void AfxThrowInvalidArgException();

/// @}
