/// @file
/// A failed COM call, thrown.
#pragma once

#include "CException.h"

/// Carries the HRESULT of a failed COM operation. Caught as a pointer, ended by Delete. `<afxdisp.h>`.
/// @ingroup framework_objects
class KY_FRAMEWORK_API COleException : public CException {
    DECLARE_DYNAMIC(COleException)
public:
    /// On the heap, with S_OK.
    COleException();

    /// The system's sentence for the code; when it has none, one that names the code. FALSE only without a buffer.
    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const override;

    /// The status code of an exception, which must not be null: m_sc of a COleException, E_OUTOFMEMORY for a
    /// CMemoryException, else E_FAIL. Does not end the exception.
    static SCODE PASCAL Process(const CException* exception);

    SCODE m_sc; ///< S_OK until the thrower sets it.
};

/// @addtogroup framework_objects
/// @{

/// Throws a COleException* with that code, which the handler ends with Delete.
[[noreturn]] KY_FRAMEWORK_API void AfxThrowOleException(SCODE code);

/// @}
