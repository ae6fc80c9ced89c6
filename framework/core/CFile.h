// CFile.h - unbuffered files, and the interface that archives read from and write to.
#pragma once

#include "CFileException.h"

/// What CFile::GetStatus tells about a file.
struct CFileStatus {
    ULONGLONG m_size = 0;  ///< bytes
    DWORD m_attribute = 0; ///< FILE_ATTRIBUTE_ values
    CString m_szFullName;  ///< absolute path
};

/// A binary file. Operations that fail throw CFileException*, except Open. The object owns its handle and closes it.
class KY_FRAMEWORK_API CFile : public CObject {
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,     ///< makes the file, or empties it when it exists
        modeNoTruncate = 0x2000, ///< with modeCreate: keeps the content of an existing file
        typeText = 0x4000,
        typeBinary = 0x8000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    enum SeekPosition { begin = 0, current = 1, end = 2 };

    static const HANDLE hFileNull;

    CFile();
    /// Takes over an open handle.
    explicit CFile(HANDLE file);
    /// Opens the file or throws.
    CFile(LPCTSTR fileName, UINT openFlags);
    ~CFile() override;

    /// Opens the file. On failure the result is FALSE and `error`, when given, says why; nothing is thrown.
    virtual BOOL Open(LPCTSTR fileName, UINT openFlags, CFileException* error = nullptr);
    virtual void Close();
    /// Closes without reporting errors.
    virtual void Abort();
    virtual void Flush();

    /// The number of bytes read; fewer than asked for only at the end of the file.
    virtual UINT Read(void* buffer, UINT count);
    virtual void Write(const void* buffer, UINT count);

    virtual ULONGLONG GetPosition() const;
    /// The new position. A position before the begin throws badSeek; one behind the end is taken.
    virtual LONGLONG Seek(LONGLONG offset, UINT from);
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return static_cast<ULONGLONG>(Seek(0, end)); }
    virtual ULONGLONG GetLength() const;
    /// Cuts or lengthens the file; the position may end up at the new end.
    virtual void SetLength(ULONGLONG newLength);

    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const { return m_strFileName; }
    virtual void SetFilePath(LPCTSTR newName) { m_strFileName = newName; }
    operator HANDLE() const { return m_hFile; }

    static void PASCAL Rename(LPCTSTR oldName, LPCTSTR newName);
    static void PASCAL Remove(LPCTSTR fileName);
    /// FALSE when there is no such file.
    static BOOL PASCAL GetStatus(LPCTSTR fileName, CFileStatus& status);

    HANDLE m_hFile;

protected:
    CString m_strFileName; ///< as an absolute path
};
