// CFileException.h - what went wrong with a file.
#pragma once

#include "CException.h"

/// Thrown by the file classes; `m_cause` says why, `m_lOsError` what the system said. Caught as a pointer, ended by
/// Delete.
class KY_FRAMEWORK_API CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)
public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG osError = -1, LPCTSTR fileName = nullptr);

    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const override;

    /// The cause that stands for a system error number, genericException for those without one of their own.
    static int PASCAL OsErrorToException(LONG osError);
    [[noreturn]] static void PASCAL ThrowOsError(LONG osError, LPCTSTR fileName = nullptr);

    int m_cause;
    LONG m_lOsError; ///< GetLastError of the failed call, -1 when there was none
    CString m_strFileName;
};

[[noreturn]] KY_FRAMEWORK_API void AfxThrowFileException(int cause, LONG osError = -1, LPCTSTR fileName = nullptr);
