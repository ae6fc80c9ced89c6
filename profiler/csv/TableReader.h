// Reads a CSV file into a table.
#pragma once

#include "csv/ByteSource.h"
#include "csv/Message.h"
#include "csv/Table.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace csv {

/// How far the reading of a file has come; neither number ever falls.
struct ReadState {
    double fraction = 0;  ///< of the whole work, from 0 to 1
    std::size_t rows = 0; ///< seen so far
};

/// Told now and then what is done. Returns false to give up reading.
using Progress = std::function<bool(const ReadState& state)>;

struct ReadOptions {
    Progress progress;                           ///< may be empty
    std::string unnamedColumn = "Column %1%";    ///< name for the nth column when the header gives none
    std::size_t chunk = std::size_t(256) << 10;  ///< bytes read at a time; `progress` is called once for each
    std::size_t sample = std::size_t(256) << 10; ///< bytes that decide about delimiter and decimal marks
};

struct ReadResult {
    enum class Outcome {
        Read,      ///< `table` is whole; `messages` are warnings
        Failed,    ///< `table` is empty; the last of `messages` is the error
        Cancelled, ///< `table` is empty; the progress function gave up
    };

    Outcome outcome = Outcome::Failed;
    Table table;
    std::vector<Message> messages; ///< errors last
};

/// Reads the file at `path`. The first record is the header. Never throws for what is in the file or for want of
/// memory.
ReadResult ReadFile(const std::filesystem::path& path, const ReadOptions& options = {});

/// The same for any bytes; `fileName` is how messages call them. A row with fewer fields than the header has missing
/// cells at its end, the surplus fields of a longer row are left out; either is told.
ReadResult ReadTable(ByteSource& source, const std::string& fileName, const ReadOptions& options = {});

/// The error for a file that there is not memory enough for.
Message DoesNotFit(const std::string& fileName);

} // namespace csv
