// How a CSV file is written: what separates its fields, and how its columns write numbers.
#pragma once

#include "csv/CellText.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace csv {

/// How the cells of one column read under both decimal marks.
class NumberTally {
public:
    /// Counts `count` cells with this text. Missing cells and dashes are not counted.
    void Add(std::string_view text, std::size_t count = 1);

    std::size_t Present() const { return m_present; }
    std::size_t Dates() const { return m_dates; }
    std::size_t Numbers(DecimalMark mark) const { return mark == DecimalMark::Point ? m_point : m_comma; }

    /// Cells that are numbers under this mark and no numbers under the other: "0.5", "1.23" for the point.
    std::size_t Proof(DecimalMark mark) const { return mark == DecimalMark::Point ? m_onlyPoint : m_onlyComma; }

    /// Cells that are numbers under both marks, but different ones, written with this character: "1.234".
    std::size_t Ambiguous(char written) const { return written == '.' ? m_ambiguousPoint : m_ambiguousComma; }

private:
    std::size_t m_present = 0;
    std::size_t m_dates = 0;
    std::size_t m_point = 0;
    std::size_t m_comma = 0;
    std::size_t m_onlyPoint = 0;
    std::size_t m_onlyComma = 0;
    std::size_t m_ambiguousPoint = 0;
    std::size_t m_ambiguousComma = 0;
};

/// True when `part` of `whole` cells are enough to give a column their type: two thirds. So one slip in three cells is
/// still told as a slip, and a column that mixes texts and numbers stays a column of texts.
constexpr bool DecidesType(std::size_t part, std::size_t whole) { return part > 0 && 3 * part >= 2 * whole; }

/// What the beginning of a file tells about the rest of it.
struct Dialect {
    char delimiter = ',';
    bool declared = false; ///< the first line is "sep=;" or the like, which names the delimiter and is no header
    DecimalMark fileMark = DecimalMark::Point; ///< for columns that prove nothing themselves
    std::vector<NumberTally> columns;          ///< as many as the header has fields
};

/// The decimal mark of a column. What the column itself proves counts most ("0.5" can only have a point). A column that
/// proves nothing follows the other columns of its file, except that in a file of comma-separated values a comma
/// elsewhere proves nothing. With no proof at all, "1.234" is a fraction, and so is "1,234" unless commas separate the
/// fields: then its digits are grouped.
DecimalMark ChooseMark(const NumberTally& column, const Dialect& dialect);

/// Looks at the beginning of a file. Comma, semicolon and tab are tried as delimiters. Those go first that make at
/// least two fields of the header and of half of the records; among equals the one under which the largest share of the
/// records has as many fields as the header, then the one under which more cells are numbers, dates or missing, then
/// the one that makes more fields. So a file of one column gets the delimiter that leaves its records whole. `whole`
/// tells whether `sample` is the whole file; if not, its last record is not counted on.
Dialect DetectDialect(std::string_view sample, bool whole);

} // namespace csv
