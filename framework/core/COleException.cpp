// COleException.cpp - a failed COM call, thrown.
#include "core/COleException.h"

IMPLEMENT_DYNAMIC(COleException, CException)

COleException::COleException() : m_sc(S_OK) {}

BOOL COleException::GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext) const {
    CException::GetErrorMessage(error, maxError, helpContext);
    if (!error || maxError == 0)
        return FALSE;
    if (::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, static_cast<DWORD>(m_sc),
                         0, error, maxError, nullptr) > 0)
        return TRUE;
    CString sentence;
    sentence.Format(L"A component failed with code 0x%08X.", static_cast<unsigned>(m_sc));
    ::lstrcpynW(error, sentence, static_cast<int>(maxError));
    return TRUE;
}

SCODE COleException::Process(const CException* exception) {
    if (exception->IsKindOf(RUNTIME_CLASS(COleException)))
        return static_cast<const COleException*>(exception)->m_sc;
    return exception->IsKindOf(RUNTIME_CLASS(CMemoryException)) ? E_OUTOFMEMORY : E_FAIL;
}

void AfxThrowOleException(SCODE code) {
    auto* exception = new COleException;
    exception->m_sc = code;
    throw exception;
}
