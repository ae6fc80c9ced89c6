// What Column Profiler shows of one column.
#include "statistics/ColumnProfile.h"

#include <algorithm>
#include <limits>

namespace statistics {

namespace {

/// The days of the column's dates, row by row; each different text is read once.
std::vector<double> Days(const csv::Column& column) {
    constexpr double kMissing = std::numeric_limits<double>::quiet_NaN();
    std::vector<double> dayOfText;
    dayOfText.reserve(column.texts.Size());
    for (const csv::TextPool::Entry& entry : column.texts.Entries())
        dayOfText.push_back(csv::ReadDate(entry.text).value_or(kMissing));
    std::vector<double> days;
    days.reserve(column.textIds.size());
    for (const std::uint32_t id : column.textIds)
        days.push_back(id == csv::Column::kNoText ? kMissing : dayOfText[id]);
    return days;
}

} // namespace

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
        profile.days = Days(column);
        profile.daySummary = Summarize(profile.days);
    }
    if (column.type == csv::ColumnType::Text)
        profile.frequent = MostFrequent(column.texts, kMostFrequentTexts);
    profile.histogram = MakeHistogram(ValuesOf(column, profile), profile.ValueSummary());
    return profile;
}

std::span<const double> ValuesOf(const csv::Column& column, const ColumnProfile& profile) {
    if (column.type == csv::ColumnType::Number)
        return column.numbers;
    return profile.days;
}

} // namespace statistics
