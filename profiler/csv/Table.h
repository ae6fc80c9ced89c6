// A CSV file in memory, column by column.
#pragma once

#include "csv/CellText.h"
#include "csv/TextPool.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace csv {

enum class ColumnType {
    Empty,  ///< every cell is missing
    Number, ///< at least two thirds of the cells that are there are numbers
    Date,   ///< at least two thirds of the cells that are there are ISO dates
    Text,   ///< everything else
};

/// One column. A number column keeps doubles, every other one the numbers of its texts: 8 or 4 bytes per row.
struct Column {
    static constexpr std::uint32_t kNoText = static_cast<std::uint32_t>(-1);

    std::string name; ///< UTF-8, not empty, unlike every other column's
    ColumnType type = ColumnType::Empty;
    DecimalMark decimalMark = DecimalMark::Point; ///< how the numbers are written in the file
    std::size_t missing = 0; ///< rows without a value, those with an unreadable number or date included

    /// Number: one per row, NaN where missing. Infinities do not occur. Else empty.
    std::vector<double> numbers;

    /// Date, text: per row the number of its text in `texts`, `kNoText` where missing. Else empty.
    std::vector<std::uint32_t> textIds;
    TextPool texts; ///< UTF-8, blanks at the ends of unquoted texts taken off
};

struct Table {
    std::size_t rows = 0;
    char delimiter = ',';
    std::vector<Column> columns;
};

} // namespace csv
