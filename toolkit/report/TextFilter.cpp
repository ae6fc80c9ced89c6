// The text by which a report control filters its records.
#include "TextFilter.h"

#include <algorithm>
#include <cwctype>
#include <numeric>

namespace {

constexpr std::size_t Units = 0x10000;

/// Every UTF-16 unit in upper case, in which more letters agree than in lower case. One call for all of them costs less
/// than a call for each of a thousand texts.
std::wstring UpperCases() {
    std::wstring units(Units, L'\0');
    std::iota(units.begin(), units.end(), L'\0');
    std::wstring upper(units);
    if (::LCMapStringEx(LOCALE_NAME_USER_DEFAULT, LCMAP_UPPERCASE | LCMAP_LINGUISTIC_CASING, units.data(), Units,
                        upper.data(), Units, nullptr, nullptr, 0) != static_cast<int>(Units))
        return units;
    return upper;
}

} // namespace

void TextFilter::SetText(const CString& text) {
    TextFilter made;
    made.m_text = text;
    if (m_folds.empty())
        made.m_folds = UpperCases();
    else
        made.m_folds = m_folds;
    const std::wstring folded = made.Folded(text);
    for (auto begin = folded.begin(); begin != folded.end();) {
        begin = std::find_if_not(begin, folded.end(), [](wchar_t unit) { return std::iswspace(unit); });
        const auto end = std::find_if(begin, folded.end(), [](wchar_t unit) { return std::iswspace(unit); });
        if (begin != end)
            made.m_words.emplace_back(begin, end);
        begin = end;
    }
    *this = std::move(made);
}

std::wstring TextFilter::Folded(const CString& text) const {
    std::wstring folded(static_cast<std::size_t>(text.GetLength()), L'\0');
    std::transform(text.GetString(), text.GetString() + text.GetLength(), folded.begin(),
                   [this](wchar_t unit) { return m_folds[static_cast<std::uint16_t>(unit)]; });
    return folded;
}

bool TextFilter::Matches(const CString& text) const {
    if (IsEmpty())
        return true;
    const std::wstring folded = Folded(text);
    return std::all_of(m_words.begin(), m_words.end(),
                       [&folded](const std::wstring& word) { return folded.find(word) != std::wstring::npos; });
}
