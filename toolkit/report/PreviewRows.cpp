// How high rows are below which a text of several lines stands.
#include "PreviewRows.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace {

constexpr std::uint16_t HasText = 1;

/// The widths that the texts of these rows need; empty when there are none.
std::vector<std::uint16_t> Measured(int first, int count, int most, textwrap::CharWidths& widths,
                                    const PreviewRows::TextOf& textOf) {
    const auto rows = static_cast<std::size_t>(count), stride = static_cast<std::size_t>(most);
    textwrap::Wrapper wrapper(widths);
    std::vector<std::uint16_t> fits;
    for (std::size_t row = 0; row < rows; ++row) {
        const std::wstring_view text = textOf(first + static_cast<int>(row));
        if (text.empty())
            continue;
        if (fits.empty())
            fits.resize(rows * stride);
        std::uint16_t* const own = &fits[row * stride];
        if (wrapper.Measure(text.substr(0, PreviewRows::MostCharacters), own, most - 1))
            own[most - 1] = HasText;
        else
            std::fill_n(own, stride, std::uint16_t{0});
    }
    return fits;
}

} // namespace

void PreviewRows::Clear() { *this = PreviewRows(); }

void PreviewRows::Splice(const Change& change, int most, textwrap::CharWidths& widths, const TextOf& textOf) try {
    Fits came = Measured(change.first, change.inserted, HasPreviews() ? m_most : most, widths, textOf);
    if (!HasPreviews() && came.empty())
        return;
    if (!HasPreviews()) {
        m_most = most;
        m_fits.resize(static_cast<std::size_t>(change.count - change.inserted + change.removed) *
                      static_cast<std::size_t>(most));
    }
    came.resize(static_cast<std::size_t>(change.inserted) * static_cast<std::size_t>(m_most));
    MoveRows(change, came);
} catch (...) {
    Clear();
    throw;
}

void PreviewRows::MoveRows(const Change& change, const Fits& came) {
    gridgeometry::RowHeights::Kinds kinds;
    for (std::size_t own = 0; own < came.size(); own += static_cast<std::size_t>(m_most))
        kinds.push_back(LinesOf(&came[own]));
    const auto begin = m_fits.begin() + static_cast<std::ptrdiff_t>(change.first) * m_most;
    const auto end = begin + static_cast<std::ptrdiff_t>(change.removed) * m_most;
    m_fits.insert(m_fits.erase(begin, end), came.begin(), came.end());
    if (m_width >= 0)
        m_heights.Splice(change.first, change.removed, kinds);
}

std::uint8_t PreviewRows::LinesOf(const std::uint16_t* own) const {
    if (own[m_most - 1] != HasText)
        return 0;
    std::uint8_t lines = 1;
    while (lines < m_most && own[lines - 1] > m_width)
        ++lines;
    return lines;
}

void PreviewRows::Wrap(int width, std::vector<int> heights) {
    if (!HasPreviews())
        return;
    width = std::max(width, 0);
    if (width == m_width) {
        m_heights.SetHeights(std::move(heights));
        return;
    }
    gridgeometry::RowHeights::Kinds kinds(m_fits.size() / static_cast<std::size_t>(m_most));
    m_width = width;
    for (std::size_t row = 0; row < kinds.size(); ++row)
        kinds[row] = LinesOf(&m_fits[row * static_cast<std::size_t>(m_most)]);
    m_heights.Assign(std::move(kinds), std::move(heights));
}
