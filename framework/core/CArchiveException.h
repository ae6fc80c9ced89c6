/// @file
/// What went wrong while an archive was read or written.
#pragma once

#include "CException.h"

/// Thrown by CArchive and by what reads from one; `m_cause` says why. Caught as a pointer, ended by Delete.
/// @ingroup framework_files
class KY_FRAMEWORK_API CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)
public:
    /// Why reading or writing failed.
    enum {
        none,             ///< Nothing went wrong.
        genericException, ///< The archive is closed.
        readOnly,         ///< Write to an archive that loads.
        endOfFile,        ///< The data ended inside a value.
        writeOnly,        ///< Read from an archive that stores.
        badIndex,         ///< The data is broken.
        badClass,         ///< An object of an unexpected class.
        badSchema,        ///< An object of another version.
        bufferFull        ///< More than there is room for; for programs, the framework does not throw it.
    };

    /// `archiveName`, which is copied, may be null.
    explicit CArchiveException(int cause = none, LPCTSTR archiveName = nullptr);

    /// A sentence with the file's name, "The file" when it has none. FALSE only without a buffer.
    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const override;

    int m_cause;           ///< One of the values above.
    CString m_strFileName; ///< The file behind the archive; empty for files in memory.
};

/// @addtogroup framework_files
/// @{

/// Throws a CArchiveException*, which the handler ends with Delete.
[[noreturn]] KY_FRAMEWORK_API void AfxThrowArchiveException(int cause, LPCTSTR archiveName = nullptr);

/// @}
