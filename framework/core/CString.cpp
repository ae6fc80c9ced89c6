// CString.cpp - the string value: characters, joining, comparing, parts, searching, changing.
#include "core/CString.h"

#include "core/Diagnostics.h"
#include "core/Module.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

namespace {

std::wstring_view ViewOf(LPCWSTR text) noexcept { return text ? std::wstring_view(text) : std::wstring_view(); }

std::wstring FromAnsi(LPCSTR text, int length) {
    if (!text || length <= 0)
        return {};
    const int wideLength = ::MultiByteToWideChar(CP_ACP, 0, text, length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(wideLength), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text, length, wide.data(), wideLength);
    return wide;
}

std::wstring FromAnsi(LPCSTR text) { return text ? FromAnsi(text, ::lstrlenA(text)) : std::wstring(); }

int ToPosition(std::size_t found) noexcept { return found == std::wstring_view::npos ? -1 : static_cast<int>(found); }

bool IsSpace(wchar_t c) noexcept { return std::iswspace(c) != 0; }

int Collation(LPCWSTR a, LPCWSTR b, DWORD flags) noexcept {
    return ::CompareStringW(LOCALE_USER_DEFAULT, flags, a, -1, b ? b : L"", -1) - CSTR_EQUAL;
}

} // namespace

CString::CString(LPCWSTR text) {
    if (text && IS_INTRESOURCE(text))
        LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(text)));
    else
        m_text = ViewOf(text);
}

CString::CString(LPCSTR text) {
    if (text && IS_INTRESOURCE(text))
        LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(text)));
    else
        m_text = FromAnsi(text);
}

CString::CString(LPCWSTR text, int length) { SetString(text, length); }

CString::CString(LPCSTR text, int length) : m_text(FromAnsi(text, length)) {}

CString::CString(wchar_t character, int repeat) : m_text(static_cast<std::size_t>(std::max(repeat, 0)), character) {}

CString::CString(char character, int repeat) {
    const std::wstring wide = FromAnsi(&character, 1);
    for (int i = 0; i < repeat; ++i)
        m_text += wide;
}

CString& CString::operator=(CString&& other) noexcept {
    if (this != &other) {
        m_text = std::move(other.m_text);
        other.m_text.clear();
    }
    return *this;
}

CString& CString::operator=(LPCWSTR text) {
    SetString(text);
    return *this;
}

CString& CString::operator=(LPCSTR text) {
    m_text = FromAnsi(text);
    return *this;
}

CString& CString::operator=(wchar_t character) {
    m_text.assign(1, character);
    return *this;
}

wchar_t CString::GetAt(int index) const {
    if (index < 0 || index > GetLength())
        AfxThrowInvalidArgException();
    return m_text[static_cast<std::size_t>(index)];
}

void CString::SetAt(int index, wchar_t character) {
    if (index < 0 || index >= GetLength())
        AfxThrowInvalidArgException();
    m_text[static_cast<std::size_t>(index)] = character;
}

LPWSTR CString::GetBuffer(int minLength) {
    if (minLength > GetLength())
        m_text.resize(static_cast<std::size_t>(minLength), L'\0');
    return m_text.data();
}

LPWSTR CString::GetBufferSetLength(int length) {
    if (length < 0)
        AfxThrowInvalidArgException();
    m_text.resize(static_cast<std::size_t>(length), L'\0');
    return m_text.data();
}

void CString::ReleaseBuffer(int newLength) {
    const std::size_t length =
        newLength < 0 ? std::min(std::wcslen(m_text.c_str()), m_text.size()) : static_cast<std::size_t>(newLength);
    if (length > m_text.capacity())
        AfxThrowInvalidArgException();
    m_text.resize(length);
}

void CString::Preallocate(int length) {
    if (length > 0)
        m_text.reserve(static_cast<std::size_t>(length));
}

// The text may be a part of this string, which std::wstring allows for.
void CString::SetString(LPCWSTR text) { m_text.assign(ViewOf(text)); }

void CString::SetString(LPCWSTR text, int length) {
    if (text && length > 0)
        m_text.assign(text, static_cast<std::size_t>(length));
    else
        m_text.clear();
}

CString& CString::operator+=(const CString& text) {
    m_text += text.m_text;
    return *this;
}

CString& CString::operator+=(LPCWSTR text) {
    m_text += ViewOf(text);
    return *this;
}

CString& CString::operator+=(LPCSTR text) {
    m_text += FromAnsi(text);
    return *this;
}

CString& CString::operator+=(wchar_t character) {
    m_text += character;
    return *this;
}

CString& CString::operator+=(char character) {
    m_text += FromAnsi(&character, 1);
    return *this;
}

void CString::Append(LPCWSTR text, int length) {
    if (text && length > 0)
        m_text.append(text, static_cast<std::size_t>(length));
}

int CString::Compare(LPCWSTR text) const noexcept { return std::wcscmp(m_text.c_str(), text ? text : L""); }

int CString::CompareNoCase(LPCWSTR text) const noexcept { return ::_wcsicmp(m_text.c_str(), text ? text : L""); }

int CString::Collate(LPCWSTR text) const noexcept { return Collation(m_text.c_str(), text, 0); }

int CString::CollateNoCase(LPCWSTR text) const noexcept { return Collation(m_text.c_str(), text, NORM_IGNORECASE); }

CString CString::Mid(int first) const { return Mid(first, GetLength()); }

CString CString::Mid(int first, int count) const {
    first = std::clamp(first, 0, GetLength());
    count = std::clamp(count, 0, GetLength() - first);
    return CString(m_text.c_str() + first, count);
}

CString CString::Left(int count) const { return Mid(0, count); }

CString CString::Right(int count) const {
    count = std::clamp(count, 0, GetLength());
    return Mid(GetLength() - count, count);
}

CString CString::SpanIncluding(LPCWSTR set) const {
    const std::size_t end = m_text.find_first_not_of(ViewOf(set));
    return Left(end == std::wstring::npos ? GetLength() : static_cast<int>(end));
}

CString CString::SpanExcluding(LPCWSTR set) const {
    const std::size_t end = m_text.find_first_of(ViewOf(set));
    return Left(end == std::wstring::npos ? GetLength() : static_cast<int>(end));
}

CString CString::Tokenize(LPCWSTR delimiters, int& start) const {
    if (start < 0) {
        return CString();
    }
    const std::wstring_view set = ViewOf(delimiters);
    const std::size_t first = m_text.find_first_not_of(set, static_cast<std::size_t>(start));
    if (first == std::wstring::npos) {
        start = -1;
        return CString();
    }
    std::size_t end = m_text.find_first_of(set, first);
    end = end == std::wstring::npos ? m_text.size() : end;
    start = static_cast<int>(end) + 1;
    return CString(m_text.c_str() + first, static_cast<int>(end - first));
}

int CString::Find(wchar_t character, int start) const noexcept {
    return start < 0 ? -1 : ToPosition(m_text.find(character, static_cast<std::size_t>(start)));
}

int CString::Find(LPCWSTR text, int start) const noexcept {
    return start < 0 ? -1 : ToPosition(m_text.find(ViewOf(text), static_cast<std::size_t>(start)));
}

int CString::ReverseFind(wchar_t character) const noexcept { return ToPosition(m_text.rfind(character)); }

int CString::FindOneOf(LPCWSTR set) const noexcept { return ToPosition(m_text.find_first_of(ViewOf(set))); }

CString& CString::MakeUpper() {
    ::CharUpperBuffW(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

CString& CString::MakeLower() {
    ::CharLowerBuffW(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

CString& CString::MakeReverse() {
    std::reverse(m_text.begin(), m_text.end());
    return *this;
}

CString& CString::TrimLeft() {
    m_text.erase(m_text.begin(), std::find_if_not(m_text.begin(), m_text.end(), IsSpace));
    return *this;
}

CString& CString::TrimLeft(wchar_t target) {
    m_text.erase(0, m_text.find_first_not_of(target));
    return *this;
}

CString& CString::TrimLeft(LPCWSTR targets) {
    m_text.erase(0, m_text.find_first_not_of(ViewOf(targets)));
    return *this;
}

CString& CString::TrimRight() {
    m_text.erase(std::find_if_not(m_text.rbegin(), m_text.rend(), IsSpace).base(), m_text.end());
    return *this;
}

CString& CString::TrimRight(wchar_t target) {
    m_text.erase(m_text.find_last_not_of(target) + 1);
    return *this;
}

CString& CString::TrimRight(LPCWSTR targets) {
    m_text.erase(m_text.find_last_not_of(ViewOf(targets)) + 1);
    return *this;
}

int CString::Replace(wchar_t oldCharacter, wchar_t newCharacter) {
    if (oldCharacter == newCharacter)
        return 0;
    const auto count = std::count(m_text.begin(), m_text.end(), oldCharacter);
    std::replace(m_text.begin(), m_text.end(), oldCharacter, newCharacter);
    return static_cast<int>(count);
}

int CString::Replace(LPCWSTR oldText, LPCWSTR newText) {
    const std::wstring_view oldView = ViewOf(oldText);
    const std::wstring_view newView = ViewOf(newText);
    if (oldView.empty())
        return 0;
    std::wstring result;
    int count = 0;
    std::size_t copied = 0;
    for (std::size_t found = m_text.find(oldView); found != std::wstring::npos; found = m_text.find(oldView, copied)) {
        result.append(m_text, copied, found - copied).append(newView);
        copied = found + oldView.size();
        ++count;
    }
    if (count > 0) {
        result.append(m_text, copied, std::wstring::npos);
        m_text = std::move(result);
    }
    return count;
}

int CString::Remove(wchar_t character) { return static_cast<int>(std::erase(m_text, character)); }

int CString::Insert(int index, wchar_t character) {
    m_text.insert(static_cast<std::size_t>(std::clamp(index, 0, GetLength())), 1, character);
    return GetLength();
}

int CString::Insert(int index, LPCWSTR text) {
    // A copy, since the text may be this string's own.
    m_text.insert(static_cast<std::size_t>(std::clamp(index, 0, GetLength())), std::wstring(ViewOf(text)));
    return GetLength();
}

int CString::Delete(int index, int count) {
    index = std::max(index, 0);
    if (count > 0 && index < GetLength())
        m_text.erase(static_cast<std::size_t>(index), static_cast<std::size_t>(count));
    return GetLength();
}

void CString::Truncate(int newLength) {
    if (newLength >= 0 && newLength < GetLength())
        m_text.resize(static_cast<std::size_t>(newLength));
}

CString operator+(const CString& left, const CString& right) {
    CString result(left);
    result += right;
    return result;
}

CString operator+(CString&& left, const CString& right) {
    left += right;
    return std::move(left);
}

CString operator+(const CString& left, LPCWSTR right) {
    CString result(left);
    result += right;
    return result;
}

CString operator+(CString&& left, LPCWSTR right) {
    left += right;
    return std::move(left);
}

CString operator+(LPCWSTR left, const CString& right) {
    CString result;
    result.SetString(left);
    result += right;
    return result;
}

CString operator+(const CString& left, wchar_t right) {
    CString result(left);
    result += right;
    return result;
}

CString operator+(CString&& left, wchar_t right) {
    left += right;
    return std::move(left);
}

CString operator+(wchar_t left, const CString& right) {
    CString result(left);
    result += right;
    return result;
}
