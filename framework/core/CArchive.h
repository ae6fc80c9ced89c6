// CArchive.h - reads values and objects from a file, or writes them, through a buffer.
#pragma once

#include "CArchiveException.h"
#include "CFile.h"

#include <memory>

class ArchiveObjects;

/// A one-way stream of values over a CFile, which must outlive the archive. Numbers are stored in their memory form
/// (little endian). A text is stored as a length (a byte; FF and a word; FF FF FF and a double word), behind the mark
/// FF FE FF when its characters are 16 bits wide, and the characters.
///
/// Data that ends inside a value throws CArchiveException* with endOfFile; a read from a storing archive throws
/// writeOnly, a write to a loading one readOnly. A length read from the data is never trusted for an allocation.
class KY_FRAMEWORK_API CArchive {
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    /// `buffer`, when given, has `bufferSize` bytes and outlives the archive.
    CArchive(CFile* file, UINT mode, int bufferSize = 4096, void* buffer = nullptr);
    /// Closes the archive, unless bNoFlushOnDelete was given or Close was called; errors are swallowed.
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return (m_nMode & load) == 0; }
    /// True when the next read has to ask the file.
    BOOL IsBufferEmpty() const { return m_next == m_end; }
    CFile* GetFile() const { return m_file; }
    UINT GetObjectSchema();
    void SetObjectSchema(UINT schema) { m_objectSchema = schema; }

    /// The number of bytes read; fewer than asked for only at the end of the data.
    UINT Read(void* buffer, UINT count);
    /// Reads exactly that many bytes or throws endOfFile.
    UINT EnsureRead(void* buffer, UINT count);
    void Write(const void* buffer, UINT count);
    /// Writes the characters without length or terminator.
    void WriteString(LPCTSTR text);
    /// Reads one line: up to the next line feed, carriage return with line feed, or NUL, which is dropped, and at most
    /// `maxCount - 1` characters. Null when the data ends before the first character.
    LPTSTR ReadString(LPTSTR buffer, UINT maxCount);
    /// As above for a line of any length; FALSE when the data ends before the first character.
    BOOL ReadString(CString& text);

    /// Storing: writes what is buffered. Loading: moves the file back to the first byte not yet read.
    void Flush();
    /// Flushes and detaches from the file.
    void Close();
    /// Detaches from the file; what is buffered is lost. Nothing is thrown.
    void Abort();

    CArchive& operator<<(BYTE value);
    CArchive& operator<<(WORD value);
    CArchive& operator<<(LONG value);
    CArchive& operator<<(DWORD value);
    CArchive& operator<<(float value);
    CArchive& operator<<(double value);
    CArchive& operator<<(LONGLONG value);
    CArchive& operator<<(ULONGLONG value);
    CArchive& operator<<(int value);
    CArchive& operator<<(short value);
    CArchive& operator<<(char value);
    CArchive& operator<<(wchar_t value);
    CArchive& operator<<(unsigned value);
    CArchive& operator<<(bool value); ///< one byte

    CArchive& operator>>(BYTE& value);
    CArchive& operator>>(WORD& value);
    CArchive& operator>>(LONG& value);
    CArchive& operator>>(DWORD& value);
    CArchive& operator>>(float& value);
    CArchive& operator>>(double& value);
    CArchive& operator>>(LONGLONG& value);
    CArchive& operator>>(ULONGLONG& value);
    CArchive& operator>>(int& value);
    CArchive& operator>>(short& value);
    CArchive& operator>>(char& value);
    CArchive& operator>>(wchar_t& value);
    CArchive& operator>>(unsigned& value);
    CArchive& operator>>(bool& value);

    /// Counts of collections: a word, or FFFF and a double word, or FFFF FFFFFFFF and a quad word.
    void WriteCount(DWORD_PTR count);
    DWORD_PTR ReadCount();

    /// Writes the object, or only its number when it was written before; null is kept as null. The object's class must
    /// be declared with DECLARE_SERIAL, else CNotSupportedException* is thrown.
    void WriteObject(const CObject* object);
    /// Reads an object made on the heap, which the caller owns. An object of a class other than `expected` or one
    /// derived from it throws badClass, one of another version badSchema (unless the class is VERSIONABLE_SCHEMA).
    CObject* ReadObject(const CRuntimeClass* expected);
    /// Makes an object that is stored otherwise known under the next number.
    void MapObject(const CObject* object);

    CString m_strFileName; ///< named in the exceptions that are thrown

private:
    friend class ArchiveObjects;

    void RequireLoading() const;
    void RequireStoring() const;
    void WriteBuffer();
    std::size_t FillBuffer();
    template <class T>
    CArchive& WriteValue(T value);
    template <class T>
    CArchive& ReadValue(T& value);
    ArchiveObjects& Objects();

    UINT m_nMode;
    CFile* m_file;
    std::unique_ptr<BYTE[]> m_ownBuffer;
    BYTE* m_start;
    BYTE* m_next; // loading: the next byte to read; storing: the next free one
    BYTE* m_end;  // loading: behind the last byte that was read; storing: behind the buffer
    BYTE* m_limit;
    UINT m_objectSchema = static_cast<UINT>(-1);
    std::unique_ptr<ArchiveObjects> m_objects;
};

/// Set in a class's schema number when its Serialize reads older versions by itself.
inline constexpr UINT VERSIONABLE_SCHEMA = 0x80000000u;

KY_FRAMEWORK_API CArchive& operator<<(CArchive& archive, const CString& text);
KY_FRAMEWORK_API CArchive& operator>>(CArchive& archive, CString& text);
KY_FRAMEWORK_API CArchive& operator<<(CArchive& archive, const CObject* object);
KY_FRAMEWORK_API CArchive& operator<<(CArchive& archive, POINT point);
KY_FRAMEWORK_API CArchive& operator>>(CArchive& archive, POINT& point);
KY_FRAMEWORK_API CArchive& operator<<(CArchive& archive, SIZE size);
KY_FRAMEWORK_API CArchive& operator>>(CArchive& archive, SIZE& size);
KY_FRAMEWORK_API CArchive& operator<<(CArchive& archive, const RECT& rect);
KY_FRAMEWORK_API CArchive& operator>>(CArchive& archive, RECT& rect);
