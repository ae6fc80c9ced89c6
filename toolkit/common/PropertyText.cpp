// Numbers as texts that mean the same in every language and are read back bit by bit.
#include "PropertyText.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace propertytext {
namespace {

/// The text as plain characters; empty when it is too long for a number or has others.
std::string_view Narrowed(std::wstring_view text, char (&buffer)[MostCharacters]) {
    const bool isPlain =
        text.size() <= std::size(buffer) && std::all_of(text.begin(), text.end(), [](wchar_t c) { return c < 0x80; });
    if (!isPlain)
        return {};
    std::transform(text.begin(), text.end(), buffer, [](wchar_t c) { return static_cast<char>(c); });
    return {buffer, text.size()};
}

template <class Number>
std::optional<Number> Read(std::wstring_view text) {
    char buffer[MostCharacters];
    const std::string_view narrowed = Narrowed(text, buffer);
    Number number{};
    const auto [end, error] = std::from_chars(narrowed.data(), narrowed.data() + narrowed.size(), number);
    if (error != std::errc() || end != narrowed.data() + narrowed.size() || narrowed.empty())
        return std::nullopt;
    return number;
}

} // namespace

NumberText::NumberText(std::int64_t number) {
    char buffer[MostCharacters];
    Widen(buffer, std::to_chars(buffer, std::end(buffer), number).ptr);
}

NumberText::NumberText(double number) {
    char buffer[MostCharacters];
    Widen(buffer, std::to_chars(buffer, std::end(buffer), number).ptr);
}

void NumberText::Widen(const char* first, const char* last) { *std::copy(first, last, m_text) = L'\0'; }

std::optional<std::int64_t> ReadInteger(std::wstring_view text) { return Read<std::int64_t>(text); }

std::optional<double> ReadNumber(std::wstring_view text) { return Read<double>(text); }

} // namespace propertytext
