// CString.h - the framework's UTF-16 string value.
#pragma once

#include "Platform.h"

#include <cstdarg>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>

/// A UTF-16 string with value semantics. Positions and counts are in UTF-16 units; "not found" is -1. Texts given as
/// 8-bit strings are taken to be in the ANSI code page of the system. A null pointer counts as an empty text.
class KY_FRAMEWORK_API CString {
public:
    using XCHAR = wchar_t;
    using PXSTR = LPWSTR;
    using PCXSTR = LPCWSTR;
    using YCHAR = char;
    using PCYSTR = LPCSTR;

    CString() = default;
    CString(const CString&) = default;
    CString(CString&& other) noexcept : m_text(std::move(other.m_text)) { other.m_text.clear(); }
    /// Copies the text. When the pointer is a resource identifier made by MAKEINTRESOURCE, the string resource of that
    /// number is loaded (empty when there is none).
    CString(LPCWSTR text);
    CString(LPCSTR text);
    CString(LPCWSTR text, int length);
    CString(LPCSTR text, int length);
    CString(wchar_t character, int repeat = 1);
    explicit CString(char character, int repeat = 1);
    ~CString() = default;

    CString& operator=(const CString&) = default;
    CString& operator=(CString&& other) noexcept;
    CString& operator=(LPCWSTR text);
    CString& operator=(LPCSTR text);
    CString& operator=(wchar_t character);

    // Length and characters
    int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const noexcept { return m_text.empty(); }
    void Empty() noexcept { m_text.clear(); }
    /// Throws CInvalidArgException* when the index is outside 0..length (the length itself names the terminator).
    wchar_t GetAt(int index) const;
    wchar_t operator[](int index) const { return GetAt(index); }
    /// Throws CInvalidArgException* when the index is outside 0..length - 1.
    void SetAt(int index, wchar_t character);
    operator LPCWSTR() const noexcept { return m_text.c_str(); }
    LPCWSTR GetString() const noexcept { return m_text.c_str(); }

    // Direct access to the characters
    /// A writable buffer that starts with the present text; call ReleaseBuffer after writing and before anything else.
    LPWSTR GetBuffer() { return m_text.data(); }
    /// As above with room for at least `minLength` characters and the terminator.
    LPWSTR GetBuffer(int minLength);
    LPWSTR GetBufferSetLength(int length);
    /// Ends direct access: the text is `newLength` characters long, or up to the first NUL when that is -1.
    void ReleaseBuffer(int newLength = -1);
    void ReleaseBufferSetLength(int newLength) { ReleaseBuffer(newLength); }
    void Preallocate(int length);
    int GetAllocLength() const noexcept { return static_cast<int>(m_text.capacity()); }
    void FreeExtra() { m_text.shrink_to_fit(); }
    void SetString(LPCWSTR text);
    void SetString(LPCWSTR text, int length);

    // Joining
    CString& operator+=(const CString& text);
    CString& operator+=(LPCWSTR text);
    CString& operator+=(LPCSTR text);
    CString& operator+=(wchar_t character);
    CString& operator+=(char character);
    void Append(LPCWSTR text) { *this += text; }
    void Append(LPCWSTR text, int length);
    void AppendChar(wchar_t character) { *this += character; }

    // Comparing: negative, zero or positive. Compare goes by character codes; the Collate ones by the user's locale.
    int Compare(LPCWSTR text) const noexcept;
    int CompareNoCase(LPCWSTR text) const noexcept;
    int Collate(LPCWSTR text) const noexcept;
    int CollateNoCase(LPCWSTR text) const noexcept;

    // Parts. Counts and starts outside the text are brought into it.
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    /// The leading characters that are all (Including) or none (Excluding) of the set.
    CString SpanIncluding(LPCWSTR set) const;
    CString SpanExcluding(LPCWSTR set) const;
    /// The next token at or after `start`, which is moved behind it; leading delimiters are skipped. At the end of the
    /// text the result is empty and `start` becomes -1.
    CString Tokenize(LPCWSTR delimiters, int& start) const;

    // Searching
    int Find(wchar_t character, int start = 0) const noexcept;
    int Find(LPCWSTR text, int start = 0) const noexcept;
    int ReverseFind(wchar_t character) const noexcept;
    int FindOneOf(LPCWSTR set) const noexcept;

    // Changing in place
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    CString& TrimLeft();
    CString& TrimLeft(wchar_t target);
    CString& TrimLeft(LPCWSTR targets);
    CString& TrimRight();
    CString& TrimRight(wchar_t target);
    CString& TrimRight(LPCWSTR targets);
    CString& Trim() { return TrimRight().TrimLeft(); }
    CString& Trim(wchar_t target) { return TrimRight(target).TrimLeft(target); }
    CString& Trim(LPCWSTR targets) { return TrimRight(targets).TrimLeft(targets); }
    /// The number of replacements. An empty `oldText` replaces nothing.
    int Replace(wchar_t oldCharacter, wchar_t newCharacter);
    int Replace(LPCWSTR oldText, LPCWSTR newText);
    /// Removes every occurrence of the character; the number removed.
    int Remove(wchar_t character);
    /// Inserts before `index` (brought into 0..length); the new length.
    int Insert(int index, wchar_t character);
    int Insert(int index, LPCWSTR text);
    /// Deletes up to `count` characters from `index`; the new length.
    int Delete(int index, int count = 1);
    void Truncate(int newLength);

    // Formatting, as Windows' wide printf does it: %s and %c take wide arguments, %S and %hs 8-bit ones; exponents have
    // at least two digits. CString arguments may be given as they are.
    template <class... Args>
    void Format(LPCWSTR format, const Args&... args) {
        FormatArguments(format, FormatArgument(args)...);
    }
    /// Formats with a string resource as the format; does nothing when there is none.
    template <class... Args>
    void Format(UINT formatId, const Args&... args) {
        CString format;
        if (format.LoadString(formatId))
            FormatArguments(format.GetString(), FormatArgument(args)...);
    }
    template <class... Args>
    void AppendFormat(LPCWSTR format, const Args&... args) {
        CString text;
        text.FormatArguments(format, FormatArgument(args)...);
        *this += text;
    }
    void FormatV(LPCWSTR format, va_list arguments);
    void AppendFormatV(LPCWSTR format, va_list arguments);

    /// Loads a string resource from the application's resource modules; FALSE (and unchanged) when there is none.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE module, UINT id);

private:
    static LPCWSTR FormatArgument(const CString& text) { return text.GetString(); }
    template <class T>
    static auto FormatArgument(const T& value) {
        return static_cast<std::decay_t<const T&>>(value);
    }
    void FormatArguments(LPCWSTR format, ...);

    std::wstring m_text;
};

using CStringW = CString;

KY_FRAMEWORK_API CString operator+(const CString& left, const CString& right);
KY_FRAMEWORK_API CString operator+(CString&& left, const CString& right);
KY_FRAMEWORK_API CString operator+(const CString& left, LPCWSTR right);
KY_FRAMEWORK_API CString operator+(CString&& left, LPCWSTR right);
KY_FRAMEWORK_API CString operator+(LPCWSTR left, const CString& right);
KY_FRAMEWORK_API CString operator+(const CString& left, wchar_t right);
KY_FRAMEWORK_API CString operator+(CString&& left, wchar_t right);
KY_FRAMEWORK_API CString operator+(wchar_t left, const CString& right);

inline bool operator==(const CString& a, const CString& b) noexcept { return a.Compare(b) == 0; }
inline bool operator==(const CString& a, LPCWSTR b) noexcept { return a.Compare(b) == 0; }
inline bool operator==(LPCWSTR a, const CString& b) noexcept { return b.Compare(a) == 0; }
inline bool operator!=(const CString& a, const CString& b) noexcept { return a.Compare(b) != 0; }
inline bool operator!=(const CString& a, LPCWSTR b) noexcept { return a.Compare(b) != 0; }
inline bool operator!=(LPCWSTR a, const CString& b) noexcept { return b.Compare(a) != 0; }
inline bool operator<(const CString& a, const CString& b) noexcept { return a.Compare(b) < 0; }
inline bool operator<(const CString& a, LPCWSTR b) noexcept { return a.Compare(b) < 0; }
inline bool operator<(LPCWSTR a, const CString& b) noexcept { return b.Compare(a) > 0; }
inline bool operator>(const CString& a, const CString& b) noexcept { return a.Compare(b) > 0; }
inline bool operator>(const CString& a, LPCWSTR b) noexcept { return a.Compare(b) > 0; }
inline bool operator>(LPCWSTR a, const CString& b) noexcept { return b.Compare(a) < 0; }
inline bool operator<=(const CString& a, const CString& b) noexcept { return a.Compare(b) <= 0; }
inline bool operator<=(const CString& a, LPCWSTR b) noexcept { return a.Compare(b) <= 0; }
inline bool operator<=(LPCWSTR a, const CString& b) noexcept { return b.Compare(a) >= 0; }
inline bool operator>=(const CString& a, const CString& b) noexcept { return a.Compare(b) >= 0; }
inline bool operator>=(const CString& a, LPCWSTR b) noexcept { return a.Compare(b) >= 0; }
inline bool operator>=(LPCWSTR a, const CString& b) noexcept { return b.Compare(a) <= 0; }

template <>
struct std::hash<CString> {
    std::size_t operator()(const CString& text) const noexcept {
        return std::hash<std::wstring_view>()(std::wstring_view(text.GetString()));
    }
};
