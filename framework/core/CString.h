/// @file
/// The framework's UTF-16 string value.
#pragma once

#include "Platform.h"

#include <cstdarg>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>

/// A UTF-16 string with value semantics. Positions and counts are in UTF-16 units; "not found" is -1. Texts given as
/// 8-bit strings are taken to be in the ANSI code page of the system. A null pointer counts as an empty text.
///
/// One string must not be used by two threads at a time while one of them changes it; copies are independent. Joining
/// with `+` and the comparison operators stand beside the class, in CString.h.
/// @ingroup framework_objects
class KY_FRAMEWORK_API CString {
public:
    /** @{ */
    /// What generic code calls the types of a character and of texts, here and in the other width.
    using XCHAR = wchar_t;
    using PXSTR = LPWSTR;
    using PCXSTR = LPCWSTR;
    using YCHAR = char;
    using PCYSTR = LPCSTR;
    /** @} */

    /// An empty text.
    CString() = default;
    /// A copy of its own.
    CString(const CString&) = default;
    /// Takes the text over; `other` is empty afterwards.
    CString(CString&& other) noexcept : m_text(std::move(other.m_text)) { other.m_text.clear(); }
    /** @{ */
    /// Copies the text. When the pointer is a resource identifier made by MAKEINTRESOURCE, the string resource of that
    /// number is loaded (empty when there is none).
    CString(LPCWSTR text);
    CString(LPCSTR text);
    /** @} */
    /** @{ */
    /// The first `length` characters (or, of an 8-bit text, bytes), NULs included, which must all be there. A length of
    /// 0 or less gives an empty text.
    CString(LPCWSTR text, int length);
    CString(LPCSTR text, int length);
    /** @} */
    /** @{ */
    /// The character `repeat` times; 0 or less gives an empty text.
    CString(wchar_t character, int repeat = 1);
    explicit CString(char character, int repeat = 1);
    /** @} */
    /// Pointers into the text end with it.
    ~CString() = default;

    /** @{ */
    /// Replaces the text. A pointer may point into this string itself. A moved string is empty afterwards.
    CString& operator=(const CString&) = default;
    CString& operator=(CString&& other) noexcept;
    CString& operator=(LPCWSTR text);
    CString& operator=(LPCSTR text);
    CString& operator=(wchar_t character);
    /** @} */

    // Length and characters
    int GetLength() const noexcept { return static_cast<int>(m_text.size()); } ///< Without the terminator.
    bool IsEmpty() const noexcept { return m_text.empty(); }                   ///< No characters.
    void Empty() noexcept { m_text.clear(); }                                  ///< The text becomes empty.
    /** @{ */
    /// The character at a position. Throws CInvalidArgException* when the index is outside 0..length (the length itself
    /// names the terminator).
    wchar_t GetAt(int index) const;
    wchar_t operator[](int index) const { return GetAt(index); }
    /** @} */
    /// Throws CInvalidArgException* when the index is outside 0..length - 1.
    void SetAt(int index, wchar_t character);
    /** @{ */
    /// The text with its terminator, never null. Valid until the string is changed or destroyed.
    operator LPCWSTR() const noexcept { return m_text.c_str(); }
    LPCWSTR GetString() const noexcept { return m_text.c_str(); }
    /** @} */

    // Direct access to the characters
    /// A writable buffer that starts with the present text; call ReleaseBuffer after writing and before anything else.
    LPWSTR GetBuffer() { return m_text.data(); }
    /// As above with room for at least `minLength` characters and the terminator.
    LPWSTR GetBuffer(int minLength);
    /// A writable buffer for exactly `length` characters; the text has that length already, new characters are NUL.
    /// Throws CInvalidArgException* when `length` is negative.
    LPWSTR GetBufferSetLength(int length);
    /// Ends direct access: the text is `newLength` characters long, or up to the first NUL when that is negative.
    /// Throws CInvalidArgException* when it is longer than the buffer.
    void ReleaseBuffer(int newLength = -1);
    /// As ReleaseBuffer.
    void ReleaseBufferSetLength(int newLength) { ReleaseBuffer(newLength); }
    /// Makes room for that many characters, so that appending up to them moves nothing.
    void Preallocate(int length);
    /// Characters for which there is room.
    int GetAllocLength() const noexcept { return static_cast<int>(m_text.capacity()); }
    void FreeExtra() { m_text.shrink_to_fit(); } ///< Gives back memory that the text does not need.
    /** @{ */
    /// Replaces the text by one up to its terminator, or by its first `length` characters (none when that is 0 or
    /// less). The pointer may point into this string itself.
    void SetString(LPCWSTR text);
    void SetString(LPCWSTR text, int length);
    /** @} */

    // Joining
    /** @{ */
    /// Adds at the end. Null adds nothing; 8-bit texts are converted from the ANSI code page.
    CString& operator+=(const CString& text);
    CString& operator+=(LPCWSTR text);
    CString& operator+=(LPCSTR text);
    CString& operator+=(wchar_t character);
    CString& operator+=(char character);
    void Append(LPCWSTR text) { *this += text; }
    /** @} */
    /// Adds the first `length` characters, which must all be there; none when that is 0 or less.
    void Append(LPCWSTR text, int length);
    void AppendChar(wchar_t character) { *this += character; } ///< Adds one at the end.

    // Comparing
    /** @{ */
    /// Negative, zero or positive: this text is before, equal to or after the other. Compare goes by character codes,
    /// the Collate ones by the user's locale; NoCase takes upper and lower case for the same. What is behind a NUL does
    /// not count.
    int Compare(LPCWSTR text) const noexcept;
    int CompareNoCase(LPCWSTR text) const noexcept;
    int Collate(LPCWSTR text) const noexcept;
    int CollateNoCase(LPCWSTR text) const noexcept;
    /** @} */

    // Parts
    /** @{ */
    /// A part as a string of its own: from `first` on, the first `count` characters, or the last ones. Counts and
    /// starts outside the text are brought into it.
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    /** @} */
    /** @{ */
    /// The leading characters that are all (Including) or none (Excluding) of the set. A null set is an empty one.
    CString SpanIncluding(LPCWSTR set) const;
    CString SpanExcluding(LPCWSTR set) const;
    /** @} */
    /// The next token at or after `start`, which is moved behind it; leading delimiters are skipped. At the end of the
    /// text the result is empty and `start` becomes -1.
    CString Tokenize(LPCWSTR delimiters, int& start) const;

    // Searching
    /** @{ */
    /// The position of the first occurrence at or after `start`, -1 when there is none or `start` is outside the text.
    /// An empty text is found at `start`.
    int Find(wchar_t character, int start = 0) const noexcept;
    int Find(LPCWSTR text, int start = 0) const noexcept;
    /** @} */
    /// The position of the last occurrence, -1 when there is none.
    int ReverseFind(wchar_t character) const noexcept;
    /// The first position that holds any character of the set, -1 when there is none.
    int FindOneOf(LPCWSTR set) const noexcept;

    // Changing in place
    /** @{ */
    /// Changes every letter, by the rules of the system's language. Returns this string.
    CString& MakeUpper();
    CString& MakeLower();
    /** @} */
    CString& MakeReverse(); ///< The last character first, by UTF-16 units; returns this string.
    /** @{ */
    /// Takes leading characters away: white space, or the character or the set given. Returns this string.
    CString& TrimLeft();
    CString& TrimLeft(wchar_t target);
    CString& TrimLeft(LPCWSTR targets);
    /** @} */
    /** @{ */
    /// Takes trailing characters away: white space, or the character or the set given. Returns this string.
    CString& TrimRight();
    CString& TrimRight(wchar_t target);
    CString& TrimRight(LPCWSTR targets);
    /** @} */
    /** @{ */
    /// Takes leading and trailing characters away: white space, or the character or the set given. Returns this string.
    CString& Trim() { return TrimRight().TrimLeft(); }
    CString& Trim(wchar_t target) { return TrimRight(target).TrimLeft(target); }
    CString& Trim(LPCWSTR targets) { return TrimRight(targets).TrimLeft(targets); }
    /** @} */
    /** @{ */
    /// Replaces every occurrence, from the left and without looking at what was put in; a null `newText` deletes. The
    /// number of replacements. An empty `oldText` replaces nothing, nor does a character by itself.
    int Replace(wchar_t oldCharacter, wchar_t newCharacter);
    int Replace(LPCWSTR oldText, LPCWSTR newText);
    /** @} */
    /// Removes every occurrence of the character; the number removed.
    int Remove(wchar_t character);
    /** @{ */
    /// Inserts before `index` (brought into 0..length); the new length.
    int Insert(int index, wchar_t character);
    int Insert(int index, LPCWSTR text);
    /** @} */
    /// Deletes up to `count` characters from `index` (0 when negative); the new length.
    int Delete(int index, int count = 1);
    /// Keeps the first `newLength` characters; a number that is negative or not smaller than the length changes
    /// nothing.
    void Truncate(int newLength);

    // Formatting
    /// Replaces the text by a formatted one, as Windows' wide printf makes it: `%s` and `%c` take wide arguments, `%S`
    /// and `%hs` 8-bit ones; exponents have at least two digits. CString arguments may be given as they are, also this
    /// string itself. Arguments that do not fit the format are not noticed.
    template <class... Args>
    void Format(LPCWSTR format, const Args&... args) {
        FormatArguments(format, FormatArgument(args)...);
    }
    /// As above with a string resource for the format; does nothing when there is none.
    template <class... Args>
    void Format(UINT formatId, const Args&... args) {
        CString format;
        if (format.LoadString(formatId))
            FormatArguments(format.GetString(), FormatArgument(args)...);
    }
    /// Adds a formatted text at the end, see Format.
    template <class... Args>
    void AppendFormat(LPCWSTR format, const Args&... args) {
        CString text;
        text.FormatArguments(format, FormatArgument(args)...);
        *this += text;
    }
    /** @{ */
    /// As Format and AppendFormat, with the arguments of a function that has a variable number of them. A format that
    /// cannot be carried out gives an empty text. CString arguments must be given as `GetString()` here.
    void FormatV(LPCWSTR format, va_list arguments);
    void AppendFormatV(LPCWSTR format, va_list arguments);
    /** @} */

    /** @{ */
    /// Loads a string resource, from the given module or from the application's resource modules; FALSE (and unchanged)
    /// when there is none or it is empty.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE module, UINT id);
    /** @} */

private:
    static LPCWSTR FormatArgument(const CString& text) { return text.GetString(); }
    template <class T>
    static auto FormatArgument(const T& value) {
        return static_cast<std::decay_t<const T&>>(value);
    }
    void FormatArguments(LPCWSTR format, ...);

    std::wstring m_text;
};

/// The same class: strings are UTF-16 here.
/// @ingroup framework_objects
using CStringW = CString;

/** @{ */
/// The two texts joined, or text and character. Null counts as empty.
KY_FRAMEWORK_API CString operator+(const CString& left, const CString& right);
KY_FRAMEWORK_API CString operator+(CString&& left, const CString& right);
KY_FRAMEWORK_API CString operator+(const CString& left, LPCWSTR right);
KY_FRAMEWORK_API CString operator+(CString&& left, LPCWSTR right);
KY_FRAMEWORK_API CString operator+(LPCWSTR left, const CString& right);
KY_FRAMEWORK_API CString operator+(const CString& left, wchar_t right);
KY_FRAMEWORK_API CString operator+(CString&& left, wchar_t right);
KY_FRAMEWORK_API CString operator+(wchar_t left, const CString& right);
/** @} */

/** @{ */
/// Compares by character codes, see CString::Compare. Null counts as empty.
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
/** @} */

template <>
struct std::hash<CString> {
    std::size_t operator()(const CString& text) const noexcept {
        return std::hash<std::wstring_view>()(std::wstring_view(text.GetString()));
    }
};
