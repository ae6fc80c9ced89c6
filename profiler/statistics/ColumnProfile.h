// What Column Profiler shows of one column.
#pragma once

#include "csv/Table.h"
#include "statistics/Histogram.h"
#include "statistics/Summary.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace statistics {

struct ColumnProfile {
    std::string name; ///< UTF-8
    csv::ColumnType type = csv::ColumnType::Empty;
    std::size_t count = 0;    ///< rows with a value
    std::size_t missing = 0;  ///< rows without; both make all rows of the file
    std::size_t distinct = 0; ///< different values of a column of dates or texts, else 0

    Summary numbers; ///< of a column of numbers

    std::string firstDate; ///< earliest and latest of a column of dates, as written in the file. Dates are compared as
    std::string lastDate;  ///< written: times in different zones are not converted
    std::vector<double>
        days;           ///< of a column of dates, per row: days since 1970-01-01 as csv::ReadDate, NaN where missing
    Summary daySummary; ///< of these

    Histogram histogram;                ///< of a column of numbers or dates
    std::vector<FrequentText> frequent; ///< of a column of texts, at most `kMostFrequentTexts`

    /// What numbers and dates have in common, for the limits and plots of either: see `ValuesOf`.
    const Summary& ValueSummary() const { return type == csv::ColumnType::Date ? daySummary : numbers; }
};

inline constexpr std::size_t kMostFrequentTexts = 10;

ColumnProfile Profile(const csv::Column& column, std::size_t rows);

/// The numbers of a column of numbers, the days of one of dates, per row, NaN where missing; else nothing.
/// @param profile  that of the column; the dates' values are its own
std::span<const double> ValuesOf(const csv::Column& column, const ColumnProfile& profile);

} // namespace statistics
