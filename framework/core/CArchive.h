/// @file
/// Reads values and objects from a file, or writes them, through a buffer.
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
/// writeOnly, a write to a loading one readOnly, either on a closed archive genericException. What the file throws
/// passes through. A length read from the data is never trusted for an allocation.
/// @ingroup framework_files
class KY_FRAMEWORK_API CArchive {
public:
    /// The direction, store or load, joined with options.
    enum Mode {
        store = 0,            ///< Writes.
        load = 1,             ///< Reads.
        bNoFlushOnDelete = 2, ///< The destructor does not call Close.
        bNoByteSwap = 4       ///< Without effect: nothing is swapped on this processor.
    };

    /// Begins at the current position of the file. `mode` is a Mode. `buffer`, when given, has `bufferSize` bytes and
    /// outlives the archive; under 128 bytes the archive takes a buffer of 128 of its own.
    CArchive(CFile* file, UINT mode, int bufferSize = 4096, void* buffer = nullptr);
    /// Closes the archive, unless bNoFlushOnDelete was given or Close was called; errors are swallowed.
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_nMode & load) != 0; } ///< Reads: `>>`, Read, ReadString.
    BOOL IsStoring() const { return (m_nMode & load) == 0; } ///< Writes: `<<`, Write, WriteString.
    /// True when the next read has to ask the file.
    BOOL IsBufferEmpty() const { return m_next == m_end; }
    CFile* GetFile() const { return m_file; } ///< Null once the archive is closed.
    /// In Serialize while loading: the stored version of the object's class. It may be asked for once per object, so
    /// that a base class does not take a derived class's for its own; otherwise -1 (UINT).
    UINT GetObjectSchema();
    /// Makes the next GetObjectSchema answer that number, for a class that reads a base class stored otherwise.
    void SetObjectSchema(UINT schema) { m_objectSchema = schema; }

    /// Reads bytes as they are. The number of bytes read; fewer than asked for only at the end of the data.
    UINT Read(void* buffer, UINT count);
    /// Reads exactly that many bytes, and returns that number, or throws endOfFile.
    UINT EnsureRead(void* buffer, UINT count);
    /// Writes the bytes as they are, without their number.
    void Write(const void* buffer, UINT count);
    /// Writes the characters (16 bits each) without length or terminator. Lines end where the text has a line feed.
    void WriteString(LPCTSTR text);
    /// Reads one line: up to the next line feed, carriage return with line feed, or NUL, which is dropped, and at most
    /// `maxCount - 1` characters. Null when the data ends before the first character.
    LPTSTR ReadString(LPTSTR buffer, UINT maxCount);
    /// As above for a line of any length; FALSE, with an empty text, when the data ends before the first character.
    BOOL ReadString(CString& text);

    /// Storing: writes what is buffered. Loading: moves the file back to the first byte not yet read.
    void Flush();
    /// Flushes and detaches from the file, which stays open.
    void Close();
    /// Detaches from the file; what is buffered is lost. Nothing is thrown.
    void Abort();

    /** @{ */
    /// Writes the value in its memory form; `bool` is one byte, `wchar_t` two, `int` and `LONG` four.
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
    CArchive& operator<<(bool value);
    /** @} */

    /** @{ */
    /// Reads what `<<` of the same type wrote. When the data ends inside, endOfFile is thrown and the value stays as it
    /// was. A `bool` is true for any byte but 0.
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
    /** @} */

    /** @{ */
    /// Counts of collections: a word, or FFFF and a double word, or FFFF FFFFFFFF and a quad word.
    void WriteCount(DWORD_PTR count);
    DWORD_PTR ReadCount();
    /** @} */

    /// Writes the object, or only its number when it was written before; null is kept as null. The object's class must
    /// be declared with DECLARE_SERIAL, else CNotSupportedException* is thrown.
    void WriteObject(const CObject* object);
    /// Reads an object made on the heap, which the caller owns; the same pointer again where the same object was
    /// written again, and null for null. An object of a class other than `expected` (null: any) or one derived from it
    /// throws badClass, one of another version badSchema (unless the class is VERSIONABLE_SCHEMA), a number without an
    /// object badIndex.
    CObject* ReadObject(const CRuntimeClass* expected);
    /// Makes an object that is stored otherwise, such as the one whose Serialize runs, known under the next number.
    /// Call it at the same place when storing and when loading.
    void MapObject(const CObject* object);

    CString m_strFileName; ///< Named in the exceptions that are thrown.

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

/// Added to a class's schema number when its Serialize reads older versions by itself.
/// @ingroup framework_files
inline constexpr UINT VERSIONABLE_SCHEMA = 0x80000000u;

/// @addtogroup framework_files
/// @{

/// Writes a text with its length, 16 bits per character.
KY_FRAMEWORK_API CArchive& operator<<(CArchive& archive, const CString& text);
/// Reads a text with its length, also one of 8-bit characters, which are in the ANSI code page. A length that cannot be
/// one throws CArchiveException::badIndex.
KY_FRAMEWORK_API CArchive& operator>>(CArchive& archive, CString& text);
/// As CArchive::WriteObject; DECLARE_SERIAL declares the `>>` that reads it.
KY_FRAMEWORK_API CArchive& operator<<(CArchive& archive, const CObject* object);
/// Writes the two numbers of the structure in their order, four bytes each.
KY_FRAMEWORK_API CArchive& operator<<(CArchive& archive, POINT point);
/// Reads the two numbers of the structure.
KY_FRAMEWORK_API CArchive& operator>>(CArchive& archive, POINT& point);
/// Writes the two numbers of the structure in their order, four bytes each.
KY_FRAMEWORK_API CArchive& operator<<(CArchive& archive, SIZE size);
/// Reads the two numbers of the structure.
KY_FRAMEWORK_API CArchive& operator>>(CArchive& archive, SIZE& size);
/// Writes the four numbers of the structure in their order, four bytes each.
KY_FRAMEWORK_API CArchive& operator<<(CArchive& archive, const RECT& rect);
/// Reads the four numbers of the structure.
KY_FRAMEWORK_API CArchive& operator>>(CArchive& archive, RECT& rect);

/// @}
