// CFileException.cpp - what went wrong with a file.
#include "core/CFileException.h"

#include "core/ExceptionText.h"

IMPLEMENT_DYNAMIC(CFileException, CException)

namespace {

LPCWSTR SentenceFor(int cause) {
    switch (cause) {
    case CFileException::none:
        return L"No error occurred.";
    case CFileException::fileNotFound:
        return L"%s was not found.";
    case CFileException::badPath:
        return L"The path of %s does not exist.";
    case CFileException::tooManyOpenFiles:
        return L"%s could not be opened because too many files are open.";
    case CFileException::accessDenied:
        return L"Access to %s was denied.";
    case CFileException::invalidFile:
        return L"%s is not an open file.";
    case CFileException::removeCurrentDir:
        return L"%s is the current folder and cannot be removed.";
    case CFileException::directoryFull:
        return L"%s could not be made because its folder is full.";
    case CFileException::badSeek:
        return L"A position in %s lies before its begin.";
    case CFileException::hardIO:
        return L"The device failed while %s was accessed.";
    case CFileException::sharingViolation:
        return L"%s is in use by another program.";
    case CFileException::lockViolation:
        return L"A part of %s is locked by another program.";
    case CFileException::diskFull:
        return L"The disk is full; %s could not be written.";
    case CFileException::endOfFile:
        return L"%s ends too early.";
    default:
        return L"Accessing %s failed.";
    }
}

} // namespace

CFileException::CFileException(int cause, LONG osError, LPCTSTR fileName)
    : m_cause(cause), m_lOsError(osError), m_strFileName(fileName) {}

BOOL CFileException::GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext) const {
    CException::GetErrorMessage(error, maxError, helpContext);
    return exceptiontext::Write(SentenceFor(m_cause), m_strFileName, error, maxError);
}

int CFileException::OsErrorToException(LONG osError) {
    switch (osError) {
    case NO_ERROR:
        return none;
    case ERROR_FILE_NOT_FOUND:
        return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_DIRECTORY:
        return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
    case ERROR_NO_MORE_SEARCH_HANDLES:
        return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_CANNOT_MAKE:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
    case ERROR_WRITE_PROTECT:
    case ERROR_INVALID_PASSWORD:
    case ERROR_PRIVILEGE_NOT_HELD:
        return accessDenied;
    case ERROR_INVALID_HANDLE:
    case ERROR_INVALID_TARGET_HANDLE:
        return invalidFile;
    case ERROR_CURRENT_DIRECTORY:
        return removeCurrentDir;
    case ERROR_NEGATIVE_SEEK:
    case ERROR_SEEK:
    case ERROR_SEEK_ON_DEVICE:
        return badSeek;
    case ERROR_NOT_READY:
    case ERROR_CRC:
    case ERROR_READ_FAULT:
    case ERROR_WRITE_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_IO_DEVICE:
        return hardIO;
    case ERROR_SHARING_VIOLATION:
    case ERROR_DRIVE_LOCKED:
        return sharingViolation;
    case ERROR_LOCK_VIOLATION:
    case ERROR_LOCKED:
    case ERROR_LOCK_FAILED:
        return lockViolation;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return diskFull;
    case ERROR_HANDLE_EOF:
        return endOfFile;
    default:
        return genericException;
    }
}

void CFileException::ThrowOsError(LONG osError, LPCTSTR fileName) {
    AfxThrowFileException(OsErrorToException(osError), osError, fileName);
}

void AfxThrowFileException(int cause, LONG osError, LPCTSTR fileName) {
    throw new CFileException(cause, osError, fileName);
}
