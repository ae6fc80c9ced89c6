// Cuts a stream of bytes into the records and fields of a CSV file.
#pragma once

#include "csv/ByteSource.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace csv {

/// One field. The text lives in the reader's buffer and holds until the next record is read.
struct Field {
    std::string_view text;        ///< without enclosing quotes, doubled quotes undone; blanks as in the file
    std::uint32_t lineOffset = 0; ///< lines between the record's first line and the one on which the field begins
    bool quoted = false;
};

struct Record {
    std::vector<Field> fields;
    std::size_t line = 0; ///< 1-based line on which the record begins

    /// 1-based line with a quote that is never closed (taken as an ordinary character), else 0.
    std::size_t openQuoteLine = 0;
    /// 1-based line with characters between a closing quote and the next delimiter (kept as text), else 0.
    std::size_t afterQuoteLine = 0;
};

/// Reads records by the rules of RFC 4180, and kindly where a file breaks them:
/// - a record ends at LF, CR LF or CR, whichever comes; the last one needs no end of line;
/// - a field that begins with a quote goes to the closing quote, whatever is in between; "" in it is one quote;
/// - a quote elsewhere in a field is an ordinary character;
/// - lines with nothing but blanks are skipped;
/// - a quote that is not closed before the end (or within `kLongestRecord` bytes) is an ordinary character, so that a
///   stray one costs a field and not the rest of the file.
/// A UTF-8 byte order mark at the start is skipped. Bytes are read in chunks; the memory used is one chunk and one
/// record.
class RecordReader {
public:
    enum class Step {
        Record,    ///< a record was read
        End,       ///< there are no more
        TooLong,   ///< a line is longer than `kLongestRecord`: not a CSV file
        ReadError, ///< the source failed
    };

    static constexpr std::size_t kLongestRecord = std::size_t(32) << 20; ///< bytes
    static constexpr std::size_t kChunk = std::size_t(256) << 10;        ///< bytes

    /// Reads from where `source` stands, which must be its start. `source` must outlive the reader.
    RecordReader(ByteSource& source, char delimiter, std::size_t chunk = kChunk,
                 std::size_t longestRecord = kLongestRecord);

    /// Reads the next record into `record`, whose vector is reused.
    Step Next(Record& record);

    /// Bytes behind the records read so far.
    std::uint64_t Consumed() const { return m_consumed; }

    /// 1-based line on which the next record would begin.
    std::size_t Line() const { return m_line; }

private:
    enum class Scan { Complete, NeedMore, OpenQuote };

    /// What a scan found besides the fields; positions are offsets into the buffer.
    struct Found {
        std::size_t end = 0;               ///< behind the record's end of line
        std::uint32_t lines = 0;           ///< ends of line inside quoted fields
        std::size_t openQuote = 0;         ///< the quote that is not closed, and
        std::uint32_t openQuoteOffset = 0; ///< how many lines it stands below the record's first
    };

    void Refill();
    Scan ScanRecord(Record& record, Found& found, std::size_t literalFrom);
    bool FindClosingQuote(std::size_t& position, Found& found, bool& doubled) const;
    std::size_t EndOfLineLength(std::size_t position) const;
    void Rebuild(Record& record);
    bool IsBlank(const Record& record) const;

    ByteSource& m_source;
    char m_delimiter;
    std::size_t m_chunk;
    std::size_t m_longestRecord;
    bool m_special[256] = {}; ///< the bytes that end a plain field
    std::vector<char> m_buffer;
    std::vector<std::size_t> m_toRebuild; ///< fields with doubled quotes or with text behind their closing quote
    std::size_t m_begin = 0;              ///< first byte of the buffer that no record has taken
    std::size_t m_end = 0;                ///< behind the last byte read
    bool m_sourceAtEnd = false;
    bool m_readError = false;
    std::size_t m_line = 1;
    std::uint64_t m_consumed = 0;
};

} // namespace csv
