/// @file
/// Unbuffered files, and the interface that archives read from and write to.
#pragma once

#include "CFileException.h"

/// What CFile::GetStatus tells about a file.
/// @ingroup framework_files
struct CFileStatus {
    ULONGLONG m_size = 0;  ///< In bytes.
    DWORD m_attribute = 0; ///< FILE_ATTRIBUTE_ values, joined.
    CString m_szFullName;  ///< Absolute path.
};

/// A binary file. Operations that fail throw CFileException*, except Open. The object owns its handle and closes it.
/// Every Read and Write goes to the system, so that many small ones are slow; a CArchive buffers them.
/// @ingroup framework_files
class KY_FRAMEWORK_API CFile : public CObject {
    DECLARE_DYNAMIC(CFile)
public:
    /// How a file is opened: one access mode, one kind of sharing and any of the others, joined with `|`.
    enum OpenFlags : UINT {
        modeRead = 0x0000,       ///< For reading only; the default.
        modeWrite = 0x0001,      ///< For writing only.
        modeReadWrite = 0x0002,  ///< For both.
        shareCompat = 0x0000,    ///< As shareExclusive; the default.
        shareExclusive = 0x0010, ///< Nobody else may have it open.
        shareDenyWrite = 0x0020, ///< Others may read.
        shareDenyRead = 0x0030,  ///< Others may write.
        shareDenyNone = 0x0040,  ///< Others may do both.
        modeNoInherit = 0x0080,  ///< Child processes do not get the handle.
        modeCreate = 0x1000,     ///< Makes the file, or empties it when it exists.
        modeNoTruncate = 0x2000, ///< With modeCreate: keeps the content of an existing file.
        typeText = 0x4000,       ///< Without effect: no line ends are translated.
        typeBinary = 0x8000,     ///< Without effect: every file is binary.
        osNoBuffer = 0x10000,    ///< Past the system's cache; sizes and addresses must be multiples of the sector size.
        osWriteThrough = 0x20000,  ///< Writes return when the data are on the device.
        osRandomAccess = 0x40000,  ///< Tells the cache so.
        osSequentialScan = 0x80000 ///< Tells the cache so.
    };
    /// What Seek counts from.
    enum SeekPosition {
        begin = 0,   ///< The first byte.
        current = 1, ///< The current position.
        end = 2      ///< The end, behind the last byte.
    };

    static const HANDLE hFileNull; ///< m_hFile of a file that is not open.

    /// A file that is not open.
    CFile();
    /// Takes over an open handle, and closes it in the end. The file has no name then.
    explicit CFile(HANDLE file);
    /// Opens the file, or throws CFileException*; see Open.
    CFile(LPCTSTR fileName, UINT openFlags);
    /// Closes the file without reporting errors.
    ~CFile() override;

    /// Opens the file, after closing the one that was open. `openFlags` are OpenFlags. On failure the result is FALSE,
    /// the object has no file, and `error`, when given, says why; nothing is thrown.
    virtual BOOL Open(LPCTSTR fileName, UINT openFlags, CFileException* error = nullptr);
    /// Closes the file; one that is not open is left alone. Throws when the system reports an error; the file counts as
    /// closed nevertheless.
    virtual void Close();
    /// Closes without reporting errors.
    virtual void Abort();
    /// Lets the system write to the device what it has in its cache.
    virtual void Flush();

    /// Reads from the current position and moves it on. The number of bytes read; fewer than asked for only at the end
    /// of the file.
    virtual UINT Read(void* buffer, UINT count);
    /// Writes at the current position and moves it on, lengthening the file where needed. Throws diskFull when not
    /// everything could be written.
    virtual void Write(const void* buffer, UINT count);

    /// Bytes from the begin of the file.
    virtual ULONGLONG GetPosition() const;
    /// Moves the position, counted from a SeekPosition, in bytes. The new position from the begin. A position before
    /// the begin throws badSeek; one behind the end is taken.
    virtual LONGLONG Seek(LONGLONG offset, UINT from);
    /// The next Read or Write is at the begin.
    void SeekToBegin() { Seek(0, begin); }
    /// The next Write appends. Returns the file's length in bytes.
    ULONGLONG SeekToEnd() { return static_cast<ULONGLONG>(Seek(0, end)); }
    /// Bytes; the position stays.
    virtual ULONGLONG GetLength() const;
    /// Cuts or lengthens the file to that many bytes; the position is at the new end afterwards.
    virtual void SetLength(ULONGLONG newLength);

    virtual CString GetFileName() const;  ///< Name with extension, without folder; empty for a file without a name.
    virtual CString GetFileTitle() const; ///< Name without folder and extension; empty for a file without a name.
    /// Absolute path; empty for a file that is not open, or was made from a handle.
    virtual CString GetFilePath() const { return m_strFileName; }
    /// Changes the name that the object tells, for error messages; the file on disk keeps its own.
    virtual void SetFilePath(LPCTSTR newName) { m_strFileName = newName; }
    operator HANDLE() const { return m_hFile; } ///< hFileNull when no file is open; the object keeps the ownership.

    /// Renames or, on the same drive, moves a file. Throws, also when there is a file of the new name.
    static void PASCAL Rename(LPCTSTR oldName, LPCTSTR newName);
    /// Deletes a file. Throws, also when there is none or somebody has it open.
    static void PASCAL Remove(LPCTSTR fileName);
    /// Tells about a file that need not be open. FALSE, with `status` untouched, when there is no such file.
    static BOOL PASCAL GetStatus(LPCTSTR fileName, CFileStatus& status);

    HANDLE m_hFile; ///< hFileNull when no file is open.

protected:
    CString m_strFileName; ///< As an absolute path.
};
