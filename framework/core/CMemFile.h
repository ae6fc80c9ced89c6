/// @file
/// A file in memory.
#pragma once

#include "CFile.h"

/// A file whose content is one block of memory from malloc. It grows by multiples of its grow step; with a grow step of
/// zero it cannot grow, and writing behind its end throws CMemoryException*. It has no handle and no name.
/// @ingroup framework_files
class KY_FRAMEWORK_API CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)
public:
    /// An empty file that grows by steps of `growBytes`.
    explicit CMemFile(UINT growBytes = 1024);
    /// As Attach.
    CMemFile(BYTE* buffer, UINT bufferSize, UINT growBytes = 0);
    /// Frees the block, unless it is the caller's or was detached.
    ~CMemFile() override;

    /// Works on the caller's block of `bufferSize` bytes, which the file never frees; what it held before is let go as
    /// by Close. With a grow step of zero the block is the content; otherwise the file starts empty, the block comes
    /// from malloc and may be moved by growing. Then Detach gives the block as it is in the end.
    void Attach(BYTE* buffer, UINT bufferSize, UINT growBytes = 0);
    /// Gives up the block and leaves the file empty; the caller releases the block with free. Ask GetLength before.
    /// Null for a file that never held anything.
    BYTE* Detach();

    /// Never throws; the number of bytes is what there is, 0 at or behind the end.
    UINT Read(void* buffer, UINT count) override;
    /// Grows the file where needed; a gap that Seek left behind the end is filled with zeros. Throws CMemoryException*
    /// when the file cannot grow.
    void Write(const void* buffer, UINT count) override;
    /// Bytes from the begin.
    ULONGLONG GetPosition() const override;
    /// As CFile::Seek; a position behind the end takes no memory until something is written there.
    LONGLONG Seek(LONGLONG offset, UINT from) override;
    /// Bytes of content; the block may be larger.
    ULONGLONG GetLength() const override;
    /// Cuts the content, or fills it up with zeros. The position moves only when it would be behind the new end.
    void SetLength(ULONGLONG newLength) override;
    /// Frees the block, if it is the file's own. The file is empty and cannot grow any more.
    void Close() override;
    void Abort() override; ///< As Close.
    void Flush() override; ///< Does nothing.

protected:
    /** @{ */
    /// Memory management, with malloc, realloc and free; null when memory runs out. A subclass that replaces one
    /// replaces all three.
    virtual BYTE* Alloc(SIZE_T bytes);
    virtual BYTE* Realloc(BYTE* memory, SIZE_T bytes);
    virtual void Free(BYTE* memory);
    /** @} */
    /// Makes room for `newLength` bytes, in multiples of the grow step, or throws CMemoryException*. The content's
    /// length stays.
    virtual void GrowFile(SIZE_T newLength);

    SIZE_T m_nGrowBytes;  ///< Bytes; 0: cannot grow.
    SIZE_T m_nPosition;   ///< Bytes from the begin.
    SIZE_T m_nBufferSize; ///< Bytes in the block.
    SIZE_T m_nFileSize;   ///< Bytes of content.
    BYTE* m_lpBuffer;     ///< The block; null when there is none.
    BOOL m_bAutoDelete;   ///< Whether the block is the file's own.
};
