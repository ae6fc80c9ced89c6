// What Column Profiler shows of one column.
#include "statistics/ColumnProfile.h"

#include <algorithm>

namespace statistics {

ColumnProfile Profile(const csv::Column& column, std::size_t rows) {
    ColumnProfile profile;
    profile.name = column.name;
    profile.type = column.type;
    profile.missing = column.missing;
    profile.count = rows - column.missing;
    profile.distinct = column.texts.Size();
    if (column.type == csv::ColumnType::Number)
        profile.numbers = Summarize(column.numbers);
    if (column.type == csv::ColumnType::Date) {
        const auto& entries = column.texts.Entries();
        const auto [first, last] = std::minmax_element(entries.begin(), entries.end(),
                                                       [](const auto& a, const auto& b) { return a.text < b.text; });
        profile.firstDate = first->text;
        profile.lastDate = last->text;
    }
    return profile;
}

} // namespace statistics
