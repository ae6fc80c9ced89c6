// Reading a CSV file and profiling its columns.
#include "window/ColumnFile.h"

namespace {

/// How much of the whole work is reading; the rest is statistics.
constexpr double kReading = 0.75;

std::filesystem::path Absolute(const std::filesystem::path& path) {
    std::error_code error;
    std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute;
}

/// Profiles the columns one after the other; false when `progress` gives up.
bool ProfileColumns(ColumnFile& file, const csv::Progress& progress) {
    const std::size_t count = file.table.columns.size();
    for (const csv::Column& column : file.table.columns) {
        const double done = static_cast<double>(file.profiles.size()) / static_cast<double>(count);
        if (progress && !progress({kReading + (1 - kReading) * done, file.table.rows}))
            return false;
        file.profiles.push_back(statistics::Profile(column, file.table.rows));
    }
    return true;
}

} // namespace

ColumnFileResult ReadColumnFile(const std::filesystem::path& path, const std::string& unnamedColumn,
                                const csv::Progress& progress) {
    csv::ReadOptions options;
    options.unnamedColumn = unnamedColumn;
    if (progress)
        options.progress = [&](csv::ReadState state) {
            state.fraction *= kReading;
            return progress(state);
        };
    csv::ReadResult read = csv::ReadFile(path, options);
    if (read.outcome == csv::ReadResult::Outcome::Failed)
        return {nullptr, read.messages.back()};
    if (read.outcome == csv::ReadResult::Outcome::Cancelled)
        return {};

    auto file = std::make_unique<ColumnFile>();
    file->path = Absolute(path);
    file->warnings = std::move(read.messages);
    file->table = std::move(read.table);
    try {
        if (!ProfileColumns(*file, progress))
            return {};
    } catch (const std::bad_alloc&) {
        return {nullptr, csv::DoesNotFit(csv::PathText(path.filename()))};
    }
    return {std::move(file), std::nullopt};
}
