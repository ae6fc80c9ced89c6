// How high rows are below which a text of several lines stands. Arithmetic only, no window needed.
#pragma once

#include "RowHeights.h"
#include "TextWrap.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

/// The rows of a grid that shows a preview text below their cells. Every text is read once, for the widths at which it
/// needs one line less; another width of the view then costs a comparison of numbers for each row. Kind n of the
/// heights is a row with n lines of preview.
class PreviewRows {
public:
    /// Beyond this many characters a text is not looked at: no view shows so many in its lines.
    static constexpr std::size_t MostCharacters = 16'384;
    /// The text of the row; valid until the next call.
    using TextOf = std::function<std::wstring_view(int row)>;

    /// From row `first` on, `removed` rows have gone and `inserted` ones have come; `count` are there now.
    struct Change {
        int first;
        int removed;
        int inserted;
        int count;
    };
    /// Reads the texts of the rows that have come; a text gets `most` lines at most (1 to 255), or what it was when the
    /// first previews came. A row that goes costs a move of memory. When it throws, there are no previews left.
    void Splice(const Change& change, int most, textwrap::CharWidths& widths, const TextOf& textOf);
    /// Lays the texts out in lines of that many pixels; `heights` are those of rows with 0 to `Most` lines. Linear in
    /// the rows when the width is another one. Needed once rows have come.
    void Wrap(int width, std::vector<int> heights);
    void Clear();

    /// False as long as no row has had a preview text; no memory is held then.
    bool HasPreviews() const { return m_most > 0; }
    int Most() const { return m_most; } ///< lines; 0 without previews
    const gridgeometry::RowHeights& Heights() const { return m_heights; }

private:
    using Fits = std::vector<std::uint16_t>;
    std::uint8_t LinesOf(const std::uint16_t* own) const;
    void MoveRows(const Change& change, const Fits& came);

    int m_most = 0;
    int m_width = -1; ///< for which the rows were wrapped; −1: for none yet
    /// For each row `m_most` numbers: see textwrap::Wrapper::Measure. The last one is 0 when there is no text.
    Fits m_fits;
    gridgeometry::RowHeights m_heights;
};
