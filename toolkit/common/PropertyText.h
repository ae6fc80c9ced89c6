// Numbers as texts that mean the same in every language and are read back bit by bit. No window needed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace propertytext {

/// Room for the longest number.
constexpr int MostCharacters = 32;

/// The number in a buffer of its own, so that writing it takes no memory.
class NumberText {
public:
    explicit NumberText(std::int64_t number);
    /// The shortest text that is read back as the same number; "inf" and "nan" where it is none, with their sign.
    explicit NumberText(double number);
    const wchar_t* c_str() const { return m_text; }

private:
    void Widen(const char* first, const char* last);
    wchar_t m_text[MostCharacters + 1];
};

/// The whole text as a decimal number; nothing when there is anything else in it, or it is out of range.
std::optional<std::int64_t> ReadInteger(std::wstring_view text);
/// As above; takes "inf" and "nan" as well.
std::optional<double> ReadNumber(std::wstring_view text);

} // namespace propertytext
