// CMemFile.cpp - a file in memory.
#include "core/CMemFile.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT growBytes)
    : m_nGrowBytes(growBytes), m_nPosition(0), m_nBufferSize(0), m_nFileSize(0), m_lpBuffer(nullptr),
      m_bAutoDelete(TRUE) {}

CMemFile::CMemFile(BYTE* buffer, UINT bufferSize, UINT growBytes) : CMemFile(growBytes) {
    Attach(buffer, bufferSize, growBytes);
}

CMemFile::~CMemFile() { CMemFile::Close(); }

void CMemFile::Attach(BYTE* buffer, UINT bufferSize, UINT growBytes) {
    CMemFile::Close();
    m_nGrowBytes = growBytes;
    m_nBufferSize = bufferSize;
    m_nFileSize = growBytes == 0 ? bufferSize : 0;
    m_lpBuffer = buffer;
    m_bAutoDelete = FALSE;
}

BYTE* CMemFile::Detach() {
    BYTE* detached = m_lpBuffer;
    m_lpBuffer = nullptr;
    m_nFileSize = m_nBufferSize = m_nPosition = 0;
    m_bAutoDelete = TRUE;
    return detached;
}

UINT CMemFile::Read(void* buffer, UINT count) {
    if (m_nPosition >= m_nFileSize)
        return 0;
    const SIZE_T available = std::min<SIZE_T>(count, m_nFileSize - m_nPosition);
    std::memcpy(buffer, m_lpBuffer + m_nPosition, available);
    m_nPosition += available;
    return static_cast<UINT>(available);
}

void CMemFile::Write(const void* buffer, UINT count) {
    if (count == 0)
        return;
    if (count > std::numeric_limits<SIZE_T>::max() - m_nPosition)
        AfxThrowMemoryException();
    const SIZE_T end = m_nPosition + count;
    if (end > m_nBufferSize)
        GrowFile(end);
    if (m_nPosition > m_nFileSize)
        std::memset(m_lpBuffer + m_nFileSize, 0, m_nPosition - m_nFileSize);
    std::memcpy(m_lpBuffer + m_nPosition, buffer, count);
    m_nPosition = end;
    m_nFileSize = std::max(m_nFileSize, end);
}

ULONGLONG CMemFile::GetPosition() const { return m_nPosition; }

LONGLONG CMemFile::Seek(LONGLONG offset, UINT from) {
    LONGLONG origin = 0;
    if (from == current)
        origin = static_cast<LONGLONG>(m_nPosition);
    else if (from == end)
        origin = static_cast<LONGLONG>(m_nFileSize);
    LONGLONG position = 0;
    if (__builtin_add_overflow(origin, offset, &position) || position < 0)
        AfxThrowFileException(CFileException::badSeek);
    m_nPosition = static_cast<SIZE_T>(position);
    return position;
}

ULONGLONG CMemFile::GetLength() const { return m_nFileSize; }

void CMemFile::SetLength(ULONGLONG newLength) {
    const auto length = static_cast<SIZE_T>(newLength);
    if (length > m_nBufferSize)
        GrowFile(length);
    if (length > m_nFileSize)
        std::memset(m_lpBuffer + m_nFileSize, 0, length - m_nFileSize);
    m_nPosition = std::min(m_nPosition, length);
    m_nFileSize = length;
}

void CMemFile::Close() {
    m_nGrowBytes = m_nPosition = m_nBufferSize = m_nFileSize = 0;
    if (m_lpBuffer && m_bAutoDelete)
        Free(m_lpBuffer);
    m_lpBuffer = nullptr;
}

void CMemFile::Abort() { Close(); }

void CMemFile::Flush() {}

BYTE* CMemFile::Alloc(SIZE_T bytes) { return static_cast<BYTE*>(std::malloc(bytes)); }

BYTE* CMemFile::Realloc(BYTE* memory, SIZE_T bytes) { return static_cast<BYTE*>(std::realloc(memory, bytes)); }

void CMemFile::Free(BYTE* memory) { std::free(memory); }

void CMemFile::GrowFile(SIZE_T newLength) {
    if (newLength <= m_nBufferSize)
        return;
    if (m_nGrowBytes == 0)
        AfxThrowMemoryException();
    SIZE_T newSize = m_nBufferSize;
    const SIZE_T steps = (newLength - newSize + m_nGrowBytes - 1) / m_nGrowBytes;
    if (__builtin_mul_overflow(steps, m_nGrowBytes, &newSize) ||
        __builtin_add_overflow(newSize, m_nBufferSize, &newSize))
        AfxThrowMemoryException();
    BYTE* grown = m_lpBuffer ? Realloc(m_lpBuffer, newSize) : Alloc(newSize);
    if (!grown)
        AfxThrowMemoryException();
    m_lpBuffer = grown;
    m_nBufferSize = newSize;
}
