// CStringFormat.cpp - printf-like formatting and string resources.
#include "core/CString.h"

#include "core/Module.h"
#include "core/PrintfFormat.h"

#include <array>
#include <cstdio>
#include <vector>

namespace {

// mingw's own formatter: the C runtime's would write exponents of three digits.
int Print(wchar_t* buffer, std::size_t capacity, const std::wstring& format, va_list arguments) {
    va_list copy;
    va_copy(copy, arguments);
    const int length = __mingw_vsnwprintf(buffer, capacity, format.c_str(), copy);
    va_end(copy);
    return length;
}

} // namespace

void CString::FormatV(LPCWSTR format, va_list arguments) {
    const std::wstring c99 = printfformat::ToC99(format ? format : L"");
    std::array<wchar_t, 256> shortBuffer;
    const int length = Print(shortBuffer.data(), shortBuffer.size(), c99, arguments);
    if (length < 0) {
        m_text.clear();
        return;
    }
    if (static_cast<std::size_t>(length) < shortBuffer.size()) {
        m_text.assign(shortBuffer.data(), static_cast<std::size_t>(length));
        return;
    }
    // Arguments may point into this string, so that it changes only when the text is complete.
    std::vector<wchar_t> text(static_cast<std::size_t>(length) + 1);
    Print(text.data(), text.size(), c99, arguments);
    m_text.assign(text.data(), static_cast<std::size_t>(length));
}

void CString::AppendFormatV(LPCWSTR format, va_list arguments) {
    CString text;
    text.FormatV(format, arguments);
    *this += text;
}

void CString::FormatArguments(LPCWSTR format, ...) {
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

BOOL CString::LoadString(UINT id) {
    return LoadString(AfxFindResourceHandle(MAKEINTRESOURCE((id >> 4) + 1), RT_STRING), id);
}

BOOL CString::LoadString(HINSTANCE module, UINT id) {
    // With a capacity of zero the system hands out the address of the resource itself.
    LPCWSTR resource = nullptr;
    const int length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&resource), 0);
    if (length <= 0)
        return FALSE;
    m_text.assign(resource, static_cast<std::size_t>(length));
    return TRUE;
}
