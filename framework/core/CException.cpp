// CException.cpp - exceptions without a subject of their own.
#include "core/CException.h"

#include "core/Module.h"

#include <cwchar>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

CException::CException() : CException(TRUE) {}

CException::CException(BOOL autoDelete) : m_bAutoDelete(autoDelete) {}

CException::~CException() = default;

void CException::Delete() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext) const {
    if (helpContext)
        *helpContext = 0;
    if (error && maxError > 0)
        error[0] = L'\0';
    return FALSE;
}

int CException::ReportError(UINT type, UINT messageId) {
    wchar_t message[512];
    CString text;
    if (GetErrorMessage(message, ARRAYSIZE(message)))
        text = message;
    else if (messageId == 0 || !text.LoadString(messageId))
        text = L"The operation failed.";
    wchar_t title[MAX_PATH] = L"";
    ::GetModuleFileNameW(nullptr, title, MAX_PATH);
    const wchar_t* name = std::wcsrchr(title, L'\\');
    return ::MessageBoxW(::GetActiveWindow(), text, name ? name + 1 : title, type);
}

CSimpleException::CSimpleException() : CSimpleException(TRUE) {}

CSimpleException::CSimpleException(BOOL autoDelete, LPCTSTR message) : CException(autoDelete), m_message(message) {}

BOOL CSimpleException::GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext) const {
    CException::GetErrorMessage(error, maxError, helpContext);
    if (!m_message || !error || maxError == 0)
        return FALSE;
    ::lstrcpynW(error, m_message, static_cast<int>(maxError));
    return TRUE;
}

CMemoryException::CMemoryException() : CMemoryException(TRUE) {}

CMemoryException::CMemoryException(BOOL autoDelete) : CSimpleException(autoDelete, L"Memory has run out.") {}

CNotSupportedException::CNotSupportedException() : CNotSupportedException(TRUE) {}

CNotSupportedException::CNotSupportedException(BOOL autoDelete)
    : CSimpleException(autoDelete, L"This operation is not supported.") {}

CResourceException::CResourceException() : CResourceException(TRUE) {}

CResourceException::CResourceException(BOOL autoDelete)
    : CSimpleException(autoDelete, L"A resource that is needed is not available.") {}

CUserException::CUserException() : CUserException(TRUE) {}

CUserException::CUserException(BOOL autoDelete) : CSimpleException(autoDelete, L"The operation was stopped.") {}

CInvalidArgException::CInvalidArgException() : CInvalidArgException(TRUE) {}

CInvalidArgException::CInvalidArgException(BOOL autoDelete)
    : CSimpleException(autoDelete, L"A parameter has a value that is not allowed.") {}

// These objects exist from the start, so that throwing them needs no memory.
void AfxThrowMemoryException() {
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AfxThrowNotSupportedException() {
    static CNotSupportedException exception(FALSE);
    throw &exception;
}

void AfxThrowResourceException() {
    static CResourceException exception(FALSE);
    throw &exception;
}

void AfxThrowUserException() {
    static CUserException exception(FALSE);
    throw &exception;
}

void AfxThrowInvalidArgException() {
    static CInvalidArgException exception(FALSE);
    throw &exception;
}
