// CArchiveException.cpp - what went wrong while an archive was read or written.
#include "core/CArchiveException.h"

#include "core/ExceptionText.h"

IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

LPCWSTR SentenceFor(int cause) {
    switch (cause) {
    case CArchiveException::none:
        return L"No error occurred.";
    case CArchiveException::readOnly:
        return L"%s is being read and cannot be written.";
    case CArchiveException::endOfFile:
        return L"%s ends too early.";
    case CArchiveException::writeOnly:
        return L"%s is being written and cannot be read.";
    case CArchiveException::badIndex:
        return L"%s is damaged.";
    case CArchiveException::badClass:
        return L"%s holds an object of an unexpected kind.";
    case CArchiveException::badSchema:
        return L"%s was made by another version of the program.";
    case CArchiveException::bufferFull:
        return L"%s holds more than there is room for.";
    default:
        return L"Accessing %s failed.";
    }
}

} // namespace

CArchiveException::CArchiveException(int cause, LPCTSTR archiveName) : m_cause(cause), m_strFileName(archiveName) {}

BOOL CArchiveException::GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext) const {
    CException::GetErrorMessage(error, maxError, helpContext);
    return exceptiontext::Write(SentenceFor(m_cause), m_strFileName, error, maxError);
}

void AfxThrowArchiveException(int cause, LPCTSTR archiveName) { throw new CArchiveException(cause, archiveName); }
