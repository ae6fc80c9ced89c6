// CFile.cpp - unbuffered files.
#include "core/CFile.h"

#include "core/Diagnostics.h"

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace {

CString AbsolutePath(LPCTSTR fileName) {
    CString path;
    const DWORD length = ::GetFullPathNameW(fileName, 0, nullptr, nullptr);
    if (length == 0)
        return CString(fileName);
    ::GetFullPathNameW(fileName, length, path.GetBuffer(static_cast<int>(length)), nullptr);
    path.ReleaseBuffer();
    return path;
}

DWORD AccessOf(UINT openFlags) {
    switch (openFlags & 3) {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD SharingOf(UINT openFlags) {
    switch (openFlags & 0x70) {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD CreationOf(UINT openFlags) {
    if (!(openFlags & CFile::modeCreate))
        return OPEN_EXISTING;
    return (openFlags & CFile::modeNoTruncate) ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD AttributesOf(UINT openFlags) {
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
    if (openFlags & CFile::osNoBuffer)
        attributes |= FILE_FLAG_NO_BUFFERING;
    if (openFlags & CFile::osWriteThrough)
        attributes |= FILE_FLAG_WRITE_THROUGH;
    if (openFlags & CFile::osRandomAccess)
        attributes |= FILE_FLAG_RANDOM_ACCESS;
    if (openFlags & CFile::osSequentialScan)
        attributes |= FILE_FLAG_SEQUENTIAL_SCAN;
    return attributes;
}

[[noreturn]] void ThrowLastError(LPCTSTR fileName) {
    CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), fileName);
}

} // namespace

CFile::CFile() : m_hFile(hFileNull) {}

CFile::CFile(HANDLE file) : m_hFile(file) {}

CFile::CFile(LPCTSTR fileName, UINT openFlags) : m_hFile(hFileNull) {
    CFileException error;
    if (!CFile::Open(fileName, openFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile() { CFile::Abort(); }

BOOL CFile::Open(LPCTSTR fileName, UINT openFlags, CFileException* error) {
    Abort();
    m_strFileName = AbsolutePath(fileName);
    SECURITY_ATTRIBUTES security{sizeof(security), nullptr, (openFlags & modeNoInherit) == 0};
    m_hFile = ::CreateFileW(fileName, AccessOf(openFlags), SharingOf(openFlags), &security, CreationOf(openFlags),
                            AttributesOf(openFlags), nullptr);
    if (m_hFile != hFileNull)
        return TRUE;
    if (error) {
        error->m_lOsError = static_cast<LONG>(::GetLastError());
        error->m_cause = CFileException::OsErrorToException(error->m_lOsError);
        error->m_strFileName = m_strFileName;
    }
    m_strFileName.Empty();
    return FALSE;
}

void CFile::Close() {
    if (m_hFile == hFileNull)
        return;
    const HANDLE closing = m_hFile;
    const CString name = m_strFileName;
    m_hFile = hFileNull;
    m_strFileName.Empty();
    if (!::CloseHandle(closing))
        ThrowLastError(name);
}

void CFile::Abort() {
    if (m_hFile != hFileNull)
        ::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_strFileName.Empty();
}

void CFile::Flush() {
    if (m_hFile != hFileNull && !::FlushFileBuffers(m_hFile))
        ThrowLastError(m_strFileName);
}

UINT CFile::Read(void* buffer, UINT count) {
    if (count == 0)
        return 0;
    DWORD bytesRead = 0;
    if (!::ReadFile(m_hFile, buffer, count, &bytesRead, nullptr))
        ThrowLastError(m_strFileName);
    return bytesRead;
}

void CFile::Write(const void* buffer, UINT count) {
    if (count == 0)
        return;
    DWORD written = 0;
    if (!::WriteFile(m_hFile, buffer, count, &written, nullptr))
        ThrowLastError(m_strFileName);
    if (written != count)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

ULONGLONG CFile::GetPosition() const {
    LARGE_INTEGER position{};
    if (!::SetFilePointerEx(m_hFile, LARGE_INTEGER{}, &position, FILE_CURRENT))
        ThrowLastError(m_strFileName);
    return static_cast<ULONGLONG>(position.QuadPart);
}

LONGLONG CFile::Seek(LONGLONG offset, UINT from) {
    LARGE_INTEGER distance{};
    LARGE_INTEGER position{};
    distance.QuadPart = offset;
    if (!::SetFilePointerEx(m_hFile, distance, &position, from))
        ThrowLastError(m_strFileName);
    return position.QuadPart;
}

ULONGLONG CFile::GetLength() const {
    LARGE_INTEGER length{};
    if (!::GetFileSizeEx(m_hFile, &length))
        ThrowLastError(m_strFileName);
    return static_cast<ULONGLONG>(length.QuadPart);
}

void CFile::SetLength(ULONGLONG newLength) {
    CFile::Seek(static_cast<LONGLONG>(newLength), begin);
    if (!::SetEndOfFile(m_hFile))
        ThrowLastError(m_strFileName);
}

CString CFile::GetFileName() const { return m_strFileName.Mid(m_strFileName.ReverseFind(L'\\') + 1); }

CString CFile::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot > 0 ? name.Left(dot) : name;
}

void CFile::Rename(LPCTSTR oldName, LPCTSTR newName) {
    if (!::MoveFileW(oldName, newName))
        ThrowLastError(oldName);
}

void CFile::Remove(LPCTSTR fileName) {
    if (!::DeleteFileW(fileName))
        ThrowLastError(fileName);
}

BOOL CFile::GetStatus(LPCTSTR fileName, CFileStatus& status) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesExW(fileName, GetFileExInfoStandard, &data))
        return FALSE;
    status.m_szFullName = AbsolutePath(fileName);
    status.m_attribute = data.dwFileAttributes;
    status.m_size = (static_cast<ULONGLONG>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
    return TRUE;
}
