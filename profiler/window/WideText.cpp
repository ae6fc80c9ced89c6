// Conversion between UTF-8 and the system's UTF-16.
#include "window/WideText.h"

#include "common/Translation.h"

CString FromUtf8(const std::string& text) {
    const int bytes = static_cast<int>(text.size());
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, wide.data(), length);
    return CString(wide.c_str());
}

std::string ToUtf8(const CString& text) {
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), bytes.data(), length, nullptr, nullptr);
    return bytes;
}

CString CountText(std::size_t count) {
    wchar_t separator[8] = L"";
    ::GetLocaleInfo(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator, static_cast<int>(std::size(separator)));
    CString text(std::to_wstring(count).c_str());
    for (int place = text.GetLength() - 3; place > 0; place -= 3)
        text.Insert(place, separator);
    return text;
}

CString Sentence(const csv::Message& message) {
    return FromUtf8(csv::Text(message, [](const char* text) { return ToUtf8(Translate(text)); }));
}
