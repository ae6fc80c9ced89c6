// COleException.h - a failed COM call, thrown.
#pragma once

#include "CException.h"

/// Carries the HRESULT of a failed COM operation. Caught as a pointer, ended by Delete.
class KY_FRAMEWORK_API COleException : public CException {
    DECLARE_DYNAMIC(COleException)
public:
    COleException();

    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const override;

    /// The status code of an exception: m_sc of a COleException, E_OUTOFMEMORY for a CMemoryException, else E_FAIL.
    static SCODE PASCAL Process(const CException* exception);

    SCODE m_sc; ///< S_OK until the thrower sets it
};

/// Throws a COleException with that code.
[[noreturn]] KY_FRAMEWORK_API void AfxThrowOleException(SCODE code);
