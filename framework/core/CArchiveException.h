// CArchiveException.h - what went wrong while an archive was read or written.
#pragma once

#include "CException.h"

/// Thrown by CArchive and by what reads from one; `m_cause` says why. Caught as a pointer, ended by Delete.
class KY_FRAMEWORK_API CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum {
        none,
        genericException,
        readOnly,  ///< write to an archive that loads
        endOfFile, ///< the data ended inside a value
        writeOnly, ///< read from an archive that stores
        badIndex,  ///< the data is broken
        badClass,  ///< an object of an unexpected class
        badSchema, ///< an object of another version
        bufferFull ///< a given buffer or an object count ran full
    };

    explicit CArchiveException(int cause = none, LPCTSTR archiveName = nullptr);

    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const override;

    int m_cause;
    CString m_strFileName;
};

[[noreturn]] KY_FRAMEWORK_API void AfxThrowArchiveException(int cause, LPCTSTR archiveName = nullptr);
