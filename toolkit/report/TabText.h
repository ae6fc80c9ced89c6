// Tables as text: rows end with a line break, cells are parted by tabs. What spreadsheets copy and paste. No window
// needed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tabtext {

/// Adds one row to the text. A cell with a tab, a line break or a quotation mark stands in quotation marks, and those
/// in it are doubled.
class RowWriter {
public:
    explicit RowWriter(std::wstring& text) : m_text(text) {}
    void Add(std::wstring_view cell);
    void End(); ///< once, behind the last cell

private:
    std::wstring& m_text;
    bool m_isFirst = true;
};

using Row = std::vector<std::wstring>;
/// The rows of a text as spreadsheets write it; line breaks of every kind, and one at the end begins no row. Quotation
/// marks within a cell that does not begin with one are characters like others; a cell whose last one is missing goes
/// to the end of the text.
std::vector<Row> Parse(std::wstring_view text);

} // namespace tabtext
