// Reading a CSV file for the windows.
#include "window/ColumnFile.h"

#include "common/Translation.h"
#include "window/WideText.h"

#include <filesystem>

namespace {

CString AbsolutePath(const CString& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path.GetString(), error);
    return error ? path : CString(absolute.c_str());
}

} // namespace

CString ColumnFile::Name() const { return CString(std::filesystem::path(path.GetString()).filename().c_str()); }

ColumnFileResult ReadColumnFile(const CString& path, const csv::Progress& progress) {
    csv::ReadOptions options;
    options.progress = progress;
    options.unnamedColumn = ToUtf8(Translate("Column %1%"));
    csv::ReadResult read = csv::ReadFile(path.GetString(), options);

    ColumnFileResult result;
    if (read.outcome == csv::ReadResult::Outcome::Failed)
        result.error = Sentence(read.messages.back());
    if (read.outcome != csv::ReadResult::Outcome::Read)
        return result;
    result.file = std::make_unique<ColumnFile>();
    result.file->path = AbsolutePath(path);
    result.file->warnings = std::move(read.messages);
    result.file->table = std::move(read.table);
    for (const csv::Column& column : result.file->table.columns)
        result.file->profiles.push_back(statistics::Profile(column, result.file->table.rows));
    return result;
}
