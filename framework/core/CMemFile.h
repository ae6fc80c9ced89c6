// CMemFile.h - a file in memory.
#pragma once

#include "CFile.h"

/// A file whose content is one block of memory from malloc. It grows by multiples of its grow step; with a grow step of
/// zero it cannot grow, and writing behind its end throws CMemoryException*.
class KY_FRAMEWORK_API CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)
public:
    /// An empty file.
    explicit CMemFile(UINT growBytes = 1024);
    /// As Attach.
    CMemFile(BYTE* buffer, UINT bufferSize, UINT growBytes = 0);
    ~CMemFile() override;

    /// Works on the caller's block, which the file never frees. With a grow step of zero the block is the content;
    /// otherwise the file starts empty, the block comes from malloc and may be moved by growing.
    void Attach(BYTE* buffer, UINT bufferSize, UINT growBytes = 0);
    /// Gives up the block and leaves the file empty; the caller releases the block with free. Null for a file that
    /// never held anything.
    BYTE* Detach();

    UINT Read(void* buffer, UINT count) override;
    void Write(const void* buffer, UINT count) override;
    ULONGLONG GetPosition() const override;
    LONGLONG Seek(LONGLONG offset, UINT from) override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG newLength) override;
    void Close() override;
    void Abort() override;
    void Flush() override;

protected:
    /// Memory management; a subclass that replaces one replaces all three.
    virtual BYTE* Alloc(SIZE_T bytes);
    virtual BYTE* Realloc(BYTE* memory, SIZE_T bytes);
    virtual void Free(BYTE* memory);
    /// Makes room for `newLength` bytes or throws.
    virtual void GrowFile(SIZE_T newLength);

    SIZE_T m_nGrowBytes;
    SIZE_T m_nPosition;
    SIZE_T m_nBufferSize;
    SIZE_T m_nFileSize;
    BYTE* m_lpBuffer;
    BOOL m_bAutoDelete; ///< whether the block is the file's own
};
