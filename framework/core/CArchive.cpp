// CArchive.cpp - the buffered stream of values.
#include "core/CArchive.h"

#include "core/ArchiveObjects.h"
#include "core/StringLength.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

constexpr int minimumBufferSize = 128;
// Texts are read in pieces of this size, so that a broken length costs no more memory than there is data.
constexpr std::size_t textPieceLength = 4096;

} // namespace

CArchive::CArchive(CFile* file, UINT mode, int bufferSize, void* buffer)
    : m_strFileName(file->GetFilePath()), m_nMode(mode), m_file(file) {
    if (bufferSize < minimumBufferSize) {
        bufferSize = minimumBufferSize;
        buffer = nullptr;
    }
    if (!buffer)
        m_ownBuffer = std::make_unique<BYTE[]>(static_cast<std::size_t>(bufferSize));
    m_start = buffer ? static_cast<BYTE*>(buffer) : m_ownBuffer.get();
    m_limit = m_start + bufferSize;
    m_next = m_start;
    m_end = IsLoading() ? m_start : m_limit;
}

CArchive::~CArchive() {
    if (m_file && !(m_nMode & bNoFlushOnDelete)) {
        try {
            Close();
        } catch (CException* exception) {
            exception->Delete();
        }
    }
    Abort();
}

void CArchive::RequireLoading() const {
    if (!IsLoading())
        AfxThrowArchiveException(CArchiveException::writeOnly, m_strFileName);
    if (!m_file)
        AfxThrowArchiveException(CArchiveException::genericException, m_strFileName);
}

void CArchive::RequireStoring() const {
    if (!IsStoring())
        AfxThrowArchiveException(CArchiveException::readOnly, m_strFileName);
    if (!m_file)
        AfxThrowArchiveException(CArchiveException::genericException, m_strFileName);
}

void CArchive::WriteBuffer() {
    const auto count = static_cast<UINT>(m_next - m_start);
    m_next = m_start;
    if (count > 0)
        m_file->Write(m_start, count);
}

std::size_t CArchive::FillBuffer() {
    const UINT count = m_file->Read(m_start, static_cast<UINT>(m_limit - m_start));
    m_next = m_start;
    m_end = m_start + count;
    return count;
}

UINT CArchive::Read(void* buffer, UINT count) {
    RequireLoading();
    auto* target = static_cast<BYTE*>(buffer);
    UINT missing = count;
    while (missing > 0) {
        if (IsBufferEmpty()) {
            if (missing >= static_cast<UINT>(m_limit - m_start)) {
                missing -= m_file->Read(target, missing);
                break;
            }
            if (FillBuffer() == 0)
                break;
        }
        const UINT piece = std::min(missing, static_cast<UINT>(m_end - m_next));
        std::memcpy(target, m_next, piece);
        m_next += piece;
        target += piece;
        missing -= piece;
    }
    return count - missing;
}

UINT CArchive::EnsureRead(void* buffer, UINT count) {
    if (Read(buffer, count) != count)
        AfxThrowArchiveException(CArchiveException::endOfFile, m_strFileName);
    return count;
}

void CArchive::Write(const void* buffer, UINT count) {
    RequireStoring();
    const auto* source = static_cast<const BYTE*>(buffer);
    if (count > static_cast<UINT>(m_end - m_next)) {
        WriteBuffer();
        if (count >= static_cast<UINT>(m_limit - m_start)) {
            m_file->Write(source, count);
            return;
        }
    }
    if (count > 0)
        std::memcpy(m_next, source, count);
    m_next += count;
}

void CArchive::WriteString(LPCTSTR text) { Write(text, static_cast<UINT>(::lstrlenW(text)) * sizeof(wchar_t)); }

LPTSTR CArchive::ReadString(LPTSTR buffer, UINT maxCount) {
    if (maxCount == 0)
        return nullptr;
    UINT length = 0;
    wchar_t character = 0;
    bool any = false;
    while (length + 1 < maxCount && Read(&character, sizeof(character)) == sizeof(character)) {
        any = true;
        if (character == L'\r')
            Read(&character, sizeof(character));
        if (character == L'\n' || character == L'\0')
            break;
        buffer[length++] = character;
    }
    buffer[length] = L'\0';
    return any ? buffer : nullptr;
}

BOOL CArchive::ReadString(CString& text) {
    text.Empty();
    wchar_t piece[128];
    while (ReadString(piece, ARRAYSIZE(piece))) {
        text += piece;
        if (::lstrlenW(piece) + 1 < static_cast<int>(ARRAYSIZE(piece)))
            return TRUE;
    }
    return !text.IsEmpty();
}

void CArchive::Flush() {
    if (!m_file)
        return;
    if (IsStoring()) {
        WriteBuffer();
        m_file->Flush();
        return;
    }
    if (m_next != m_end)
        m_file->Seek(-static_cast<LONGLONG>(m_end - m_next), CFile::current);
    m_next = m_end = m_start;
}

void CArchive::Close() {
    Flush();
    m_file = nullptr;
}

void CArchive::Abort() {
    m_file = nullptr;
    m_next = m_start;
    m_end = IsLoading() ? m_start : m_limit;
}

template <class T>
CArchive& CArchive::WriteValue(T value) {
    Write(&value, sizeof(value));
    return *this;
}

template <class T>
CArchive& CArchive::ReadValue(T& value) {
    T read{};
    EnsureRead(&read, sizeof(read));
    value = read;
    return *this;
}

// clang-format off
CArchive& CArchive::operator<<(BYTE value) { return WriteValue(value); }
CArchive& CArchive::operator<<(WORD value) { return WriteValue(value); }
CArchive& CArchive::operator<<(LONG value) { return WriteValue(value); }
CArchive& CArchive::operator<<(DWORD value) { return WriteValue(value); }
CArchive& CArchive::operator<<(float value) { return WriteValue(value); }
CArchive& CArchive::operator<<(double value) { return WriteValue(value); }
CArchive& CArchive::operator<<(LONGLONG value) { return WriteValue(value); }
CArchive& CArchive::operator<<(ULONGLONG value) { return WriteValue(value); }
CArchive& CArchive::operator<<(int value) { return WriteValue(value); }
CArchive& CArchive::operator<<(short value) { return WriteValue(value); }
CArchive& CArchive::operator<<(char value) { return WriteValue(value); }
CArchive& CArchive::operator<<(wchar_t value) { return WriteValue(value); }
CArchive& CArchive::operator<<(unsigned value) { return WriteValue(value); }
CArchive& CArchive::operator<<(bool value) { return WriteValue<BYTE>(value ? 1 : 0); }

CArchive& CArchive::operator>>(BYTE& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(WORD& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(LONG& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(DWORD& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(float& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(double& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(LONGLONG& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(ULONGLONG& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(int& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(short& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(char& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(wchar_t& value) { return ReadValue(value); }
CArchive& CArchive::operator>>(unsigned& value) { return ReadValue(value); }
// clang-format on

CArchive& CArchive::operator>>(bool& value) {
    BYTE read = 0;
    ReadValue(read);
    value = read != 0;
    return *this;
}

void CArchive::WriteCount(DWORD_PTR count) {
    if (count < 0xFFFF) {
        *this << static_cast<WORD>(count);
        return;
    }
    *this << static_cast<WORD>(0xFFFF);
    if (count < 0xFFFFFFFF) {
        *this << static_cast<DWORD>(count);
        return;
    }
    *this << static_cast<DWORD>(0xFFFFFFFF) << static_cast<ULONGLONG>(count);
}

DWORD_PTR CArchive::ReadCount() {
    WORD word = 0;
    *this >> word;
    if (word != 0xFFFF)
        return word;
    DWORD doubleWord = 0;
    *this >> doubleWord;
    if (doubleWord != 0xFFFFFFFF)
        return doubleWord;
    ULONGLONG quadWord = 0;
    *this >> quadWord;
    return static_cast<DWORD_PTR>(quadWord);
}

UINT CArchive::GetObjectSchema() {
    // The number may be asked for once per object, so that a base class does not take a derived class's for its own.
    const UINT schema = m_objectSchema;
    m_objectSchema = static_cast<UINT>(-1);
    return schema;
}

ArchiveObjects& CArchive::Objects() {
    if (!m_objects)
        m_objects = std::make_unique<ArchiveObjects>(*this);
    return *m_objects;
}

void CArchive::WriteObject(const CObject* object) {
    RequireStoring();
    Objects().Write(object);
}

CObject* CArchive::ReadObject(const CRuntimeClass* expected) {
    RequireLoading();
    return Objects().Read(expected);
}

void CArchive::MapObject(const CObject* object) { Objects().Map(object); }

CArchive& operator<<(CArchive& archive, const CString& text) {
    const auto length = static_cast<std::size_t>(text.GetLength());
    const stringlength::Prefix prefix = stringlength::Encode(length, stringlength::CharacterWidth::TwoBytes);
    archive.Write(prefix.bytes.data(), static_cast<UINT>(prefix.size));
    archive.Write(text.GetString(), static_cast<UINT>(length * sizeof(wchar_t)));
    return archive;
}

namespace {

template <class Character>
CString ReadCharacters(CArchive& archive, std::uint64_t length) {
    std::vector<Character> characters;
    while (characters.size() < length) {
        const std::size_t have = characters.size();
        const auto piece = static_cast<std::size_t>(std::min<std::uint64_t>(length - have, textPieceLength));
        characters.resize(have + piece);
        archive.EnsureRead(characters.data() + have, static_cast<UINT>(piece * sizeof(Character)));
    }
    return CString(characters.data(), static_cast<int>(characters.size()));
}

} // namespace

CArchive& operator>>(CArchive& archive, CString& text) {
    stringlength::Decoder decoder;
    auto state = stringlength::Decoder::State::Incomplete;
    while (state == stringlength::Decoder::State::Incomplete) {
        BYTE byte = 0;
        archive >> byte;
        state = decoder.Feed(byte);
    }
    if (state == stringlength::Decoder::State::Broken || decoder.Length() > static_cast<std::uint64_t>(MAXINT))
        AfxThrowArchiveException(CArchiveException::badIndex, archive.m_strFileName);
    text = decoder.Width() == stringlength::CharacterWidth::TwoBytes
               ? ReadCharacters<wchar_t>(archive, decoder.Length())
               : ReadCharacters<char>(archive, decoder.Length());
    return archive;
}

CArchive& operator<<(CArchive& archive, const CObject* object) {
    archive.WriteObject(object);
    return archive;
}

CArchive& operator<<(CArchive& archive, POINT point) { return archive << point.x << point.y; }

CArchive& operator>>(CArchive& archive, POINT& point) { return archive >> point.x >> point.y; }

CArchive& operator<<(CArchive& archive, SIZE size) { return archive << size.cx << size.cy; }

CArchive& operator>>(CArchive& archive, SIZE& size) { return archive >> size.cx >> size.cy; }

CArchive& operator<<(CArchive& archive, const RECT& rect) {
    return archive << rect.left << rect.top << rect.right << rect.bottom;
}

CArchive& operator>>(CArchive& archive, RECT& rect) {
    return archive >> rect.left >> rect.top >> rect.right >> rect.bottom;
}
