// The text by which a report control filters its records.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

/// Words, each of which has to occur in a text, whatever the case of the letters. Cases are folded as the user's locale
/// has it, by single UTF-16 units.
class TextFilter {
public:
    const CString& Text() const { return m_text; }
    /// What white space parts are words; without any the filter lets everything pass.
    void SetText(const CString& text);
    bool IsEmpty() const { return m_words.empty(); }
    bool Matches(const CString& text) const;

private:
    std::wstring Folded(const CString& text) const;

    CString m_text;
    std::vector<std::wstring> m_words; ///< folded
    std::wstring m_folds;              ///< for each UTF-16 unit the one that stands for all its cases
};
