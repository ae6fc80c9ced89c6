// A CSV file as the program holds it: its columns and what was computed of them.
#pragma once

#include "csv/TableReader.h"
#include "statistics/ColumnProfile.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// An open file. Its numbers stay in memory, so that shares can be counted while the user drags limits.
struct ColumnFile {
    std::filesystem::path path;                      ///< absolute
    csv::Table table;                                ///< as many columns as `profiles`
    std::vector<statistics::ColumnProfile> profiles; ///< in the order of the file's columns
    std::vector<csv::Message> warnings;
};

/// What came of reading a file.
struct ColumnFileResult {
    std::unique_ptr<ColumnFile> file;  ///< null when it could not be read or `progress` gave up
    std::optional<csv::Message> error; ///< then says why; none when `progress` gave up
};

/// Reads the file at `path` and computes its statistics, on any thread. `progress` is told how much is done and may
/// give up. `unnamedColumn` names the columns without a name, see csv::ReadOptions.
ColumnFileResult ReadColumnFile(const std::filesystem::path& path, const std::string& unnamedColumn,
                                const csv::Progress& progress = {});
