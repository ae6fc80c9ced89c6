// Tables as text: rows end with a line break, cells are parted by tabs.
#include "TabText.h"

namespace tabtext {
namespace {

/// Reads a text from its beginning to its end.
class Reader {
public:
    explicit Reader(std::wstring_view text) : m_rest(text) {}
    bool IsAtEnd() const { return m_rest.empty(); }

    Row ReadRow() {
        Row row{ReadCell()};
        while (Skip(L'\t'))
            row.push_back(ReadCell());
        Skip(L'\r');
        Skip(L'\n');
        return row;
    }

private:
    bool Skip(wchar_t c) {
        const bool isThere = !m_rest.empty() && m_rest.front() == c;
        if (isThere)
            m_rest.remove_prefix(1);
        return isThere;
    }

    /// The text in front of the first of these characters, or all of it.
    std::wstring_view Take(std::wstring_view ends) {
        const std::wstring_view taken = m_rest.substr(0, m_rest.find_first_of(ends));
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    std::wstring ReadCell() {
        std::wstring cell;
        if (Skip(L'"'))
            ReadQuoted(cell);
        cell += Take(L"\t\r\n");
        return cell;
    }

    /// Up to the mark that closes; two marks are one of the text's own.
    void ReadQuoted(std::wstring& cell) {
        cell += Take(L"\"");
        Skip(L'"');
        while (Skip(L'"')) {
            cell += L'"';
            cell += Take(L"\"");
            Skip(L'"');
        }
    }

    std::wstring_view m_rest;
};

} // namespace

void RowWriter::Add(std::wstring_view cell) {
    if (!m_isFirst)
        m_text += L'\t';
    m_isFirst = false;
    if (cell.find_first_of(L"\t\r\n\"") == std::wstring_view::npos) {
        m_text += cell;
        return;
    }
    m_text += L'"';
    for (const wchar_t c : cell) {
        if (c == L'"')
            m_text += c;
        m_text += c;
    }
    m_text += L'"';
}

void RowWriter::End() { m_text += L"\r\n"; }

std::vector<Row> Parse(std::wstring_view text) {
    std::vector<Row> rows;
    for (Reader reader(text); !reader.IsAtEnd();)
        rows.push_back(reader.ReadRow());
    return rows;
}

} // namespace tabtext
