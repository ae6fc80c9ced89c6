// Feeds bytes to the reader of CSV files.
#include "csv/RecordReader.h"
#include "csv/TableReader.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

void Require(bool condition, const char* what) {
    if (!condition) {
        std::fprintf(stderr, "CSV reader: %s\n", what);
        std::abort();
    }
}

struct Records {
    std::vector<std::vector<std::string>> fields;
    std::vector<std::size_t> lines;
    csv::RecordReader::Step last = csv::RecordReader::Step::End;
    bool operator==(const Records&) const = default;
};

Records ReadRecords(const std::string& bytes, char delimiter, std::size_t chunk) {
    csv::MemorySource source(bytes);
    csv::RecordReader reader(source, delimiter, chunk);
    Records all;
    csv::Record record;
    while ((all.last = reader.Next(record)) == csv::RecordReader::Step::Record) {
        all.fields.emplace_back();
        for (const csv::Field& field : record.fields)
            all.fields.back().emplace_back(field.text);
        all.lines.push_back(record.line);
    }
    return all;
}

void RequireWholeTable(const csv::ReadResult& result) {
    using Outcome = csv::ReadResult::Outcome;
    if (result.outcome != Outcome::Read) {
        Require(result.outcome == Outcome::Failed && !result.messages.empty(), "failed without a word");
        Require(result.table.columns.empty(), "failed, and gave a table");
        return;
    }
    for (const csv::Column& column : result.table.columns) {
        Require(!column.name.empty(), "a column without a name");
        const bool isNumbers = column.type == csv::ColumnType::Number;
        Require(column.numbers.size() == (isNumbers ? result.table.rows : 0), "a column that is not whole");
        std::size_t missing = 0;
        for (const double number : column.numbers) {
            Require(!std::isinf(number), "an infinite number");
            missing += std::isnan(number) ? 1 : 0;
        }
        Require(!isNumbers || missing == column.missing, "missing cells miscounted");
    }
}

} // namespace

/// The first byte chooses how the rest is read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    const std::size_t chunk = 1 + data[0] % 64;
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const char delimiter = ",;\t"[data[0] % 3];
    Require(ReadRecords(bytes, delimiter, chunk) == ReadRecords(bytes, delimiter, bytes.size() + 1),
            "the chunk's size changes what is read");

    csv::MemorySource source(bytes);
    csv::ReadOptions options;
    options.chunk = chunk;
    options.sample = 1 + data[0];
    RequireWholeTable(csv::ReadTable(source, "fuzz.csv", options));
    return 0;
}
