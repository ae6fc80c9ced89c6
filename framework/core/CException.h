// CException.h - the root of the exceptions, which are thrown as pointers, and those without a subject of their own.
#pragma once

#include "CObject.h"
#include "CString.h"

/// An exception. The handler that ends it calls Delete.
class KY_FRAMEWORK_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException();
    /// `autoDelete`: whether Delete destroys the object (FALSE for objects with static storage).
    explicit CException(BOOL autoDelete);
    ~CException() override;

    /// Ends the exception; it must not be used afterwards.
    void Delete();

    /// Writes a plain sentence about the exception, at most `maxError` characters with the terminator. FALSE, and an
    /// empty text, when there is none. `helpContext`, when given, receives 0.
    virtual BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const;

    /// Shows the sentence in a message box; `messageId` names a string resource to show when there is no sentence.
    virtual int ReportError(UINT type = MB_OK, UINT messageId = 0);

    BOOL m_bAutoDelete;
};

/// An exception whose message is one fixed sentence.
class KY_FRAMEWORK_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException();
    explicit CSimpleException(BOOL autoDelete, LPCTSTR message = nullptr);
    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const override;

private:
    LPCTSTR m_message; // a literal
};

/// Memory ran out.
class KY_FRAMEWORK_API CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException();
    explicit CMemoryException(BOOL autoDelete);
};

/// An operation was asked of an object that does not support it.
class KY_FRAMEWORK_API CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException();
    explicit CNotSupportedException(BOOL autoDelete);
};

/// A resource could not be found, loaded or made.
class KY_FRAMEWORK_API CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException();
    explicit CResourceException(BOOL autoDelete);
};

/// Stops an operation after the user has been told why.
class KY_FRAMEWORK_API CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();
    explicit CUserException(BOOL autoDelete);
};

/// A parameter has a value that the operation does not take.
class KY_FRAMEWORK_API CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    CInvalidArgException();
    explicit CInvalidArgException(BOOL autoDelete);
};

[[noreturn]] KY_FRAMEWORK_API void AfxThrowMemoryException();
[[noreturn]] KY_FRAMEWORK_API void AfxThrowNotSupportedException();
[[noreturn]] KY_FRAMEWORK_API void AfxThrowResourceException();
[[noreturn]] KY_FRAMEWORK_API void AfxThrowUserException();
[[noreturn]] KY_FRAMEWORK_API void AfxThrowInvalidArgException();
