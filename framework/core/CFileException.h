/// @file
/// What went wrong with a file.
#pragma once

#include "CException.h"

/// Thrown by the file classes; `m_cause` says why, `m_lOsError` what the system said. Caught as a pointer, ended by
/// Delete.
/// @ingroup framework_files
class KY_FRAMEWORK_API CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)
public:
    /// Why a file operation failed.
    enum {
        none,             ///< Nothing went wrong.
        genericException, ///< A cause without a value of its own; see m_lOsError.
        fileNotFound,     ///< The folder is there, the file is not.
        badPath,          ///< A folder is missing, or the name is not allowed.
        tooManyOpenFiles, ///< The system has no more handles.
        accessDenied,     ///< No right to do this, or the file is there already.
        invalidFile,      ///< The handle is no open file.
        removeCurrentDir, ///< The folder is the current one.
        directoryFull,    ///< No more entries in the folder; Windows no longer reports it.
        badSeek,          ///< A position before the begin.
        hardIO,           ///< The device failed or is not ready.
        sharingViolation, ///< Another program has the file open.
        lockViolation,    ///< Another program has locked the part.
        diskFull,         ///< Less was written than asked for.
        endOfFile         ///< The file ended too early.
    };

    /// `osError` as m_lOsError; `fileName`, which is copied, may be null.
    explicit CFileException(int cause = none, LONG osError = -1, LPCTSTR fileName = nullptr);

    /// A sentence with the file's name, "The file" when it has none. FALSE only without a buffer.
    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const override;

    /// The cause that stands for a system error number, genericException for those without one of their own.
    static int PASCAL OsErrorToException(LONG osError);
    /// Throws the exception for a system error number (that of GetLastError).
    [[noreturn]] static void PASCAL ThrowOsError(LONG osError, LPCTSTR fileName = nullptr);

    int m_cause;           ///< One of the values above.
    LONG m_lOsError;       ///< GetLastError of the failed call, -1 when there was none.
    CString m_strFileName; ///< The file as the operation was given it, or its absolute path; empty when it has none.
};

/// @addtogroup framework_files
/// @{

/// Throws a CFileException*, which the handler ends with Delete.
[[noreturn]] KY_FRAMEWORK_API void AfxThrowFileException(int cause, LONG osError = -1, LPCTSTR fileName = nullptr);

/// @}
