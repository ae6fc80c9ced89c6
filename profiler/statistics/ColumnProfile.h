// What Column Profiler shows of one column.
#pragma once

#include "csv/Table.h"
#include "statistics/Summary.h"

#include <cstddef>
#include <string>

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
};

ColumnProfile Profile(const csv::Column& column, std::size_t rows);

} // namespace statistics
