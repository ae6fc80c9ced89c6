// A CSV file as the program holds it: its columns and what was computed of them.
#pragma once

#include "csv/TableReader.h"
#include "statistics/ColumnProfile.h"

#include <afxwin.h>

#include <memory>
#include <vector>

/// An open file. Its numbers stay in memory, so that shares can be counted while the user drags limits.
struct ColumnFile {
    CString path;                                    ///< absolute
    csv::Table table;                                ///< as many columns as `profiles`
    std::vector<statistics::ColumnProfile> profiles; ///< in the order of the file's columns
    std::vector<csv::Message> warnings;

    /// The file's name without its folder.
    CString Name() const;
};

/// What came of reading a file.
struct ColumnFileResult {
    std::unique_ptr<ColumnFile> file; ///< null when it could not be read or the user gave up
    CString error;                    ///< then says why, for the user; empty when the user gave up
};

/// Reads the file at `path` and computes its statistics. `progress` is told how much is done and may give up.
ColumnFileResult ReadColumnFile(const CString& path, const csv::Progress& progress);
