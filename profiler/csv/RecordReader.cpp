// Cutting bytes into records: one scan over each record, repeated only when it runs over the end of the buffer.
#include "csv/RecordReader.h"

#include <algorithm>
#include <cstring>

namespace csv {

namespace {

constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

bool IsBlankText(std::string_view text) { return text.find_first_not_of(" \t") == std::string_view::npos; }

} // namespace

RecordReader::RecordReader(ByteSource& source, char delimiter, std::size_t chunk, std::size_t longestRecord)
    : m_source(source), m_delimiter(delimiter), m_chunk(std::max<std::size_t>(chunk, 1)),
      m_longestRecord(longestRecord) {
    for (const char special : {delimiter, '\r', '\n'})
        m_special[static_cast<unsigned char>(special)] = true;

    while (m_end < 3 && !m_sourceAtEnd && !m_readError)
        Refill();
    if (m_end >= 3 && std::memcmp(m_buffer.data(), "\xEF\xBB\xBF", 3) == 0)
        m_begin = m_consumed = 3;
}

RecordReader::Step RecordReader::Next(Record& record) {
    for (;;) {
        Found found;
        std::size_t literalFrom = kNowhere;
        bool openQuote = false;
        Scan scan = ScanRecord(record, found, literalFrom);
        while (scan != Scan::Complete) {
            const bool tooLong = m_end - m_begin > m_longestRecord;
            if (scan == Scan::OpenQuote && (m_sourceAtEnd || tooLong)) {
                openQuote = true;
                literalFrom = found.openQuote - m_begin;
                record.openQuoteLine = m_line + found.openQuoteOffset;
            } else if (tooLong) {
                return Step::TooLong;
            } else {
                Refill();
                if (m_readError)
                    return Step::ReadError;
            }
            scan = ScanRecord(record, found, literalFrom);
        }
        if (m_readError)
            return Step::ReadError;
        if (m_begin == m_end)
            return Step::End;

        record.line = m_line;
        if (!openQuote)
            record.openQuoteLine = 0;
        record.afterQuoteLine = 0;
        Rebuild(record);
        const bool endOfLine = m_buffer[found.end - 1] == '\n' || m_buffer[found.end - 1] == '\r';
        m_line += found.lines + (endOfLine ? 1 : 0);
        m_consumed += found.end - m_begin;
        m_begin = found.end;
        if (!IsBlank(record))
            return Step::Record;
    }
}

void RecordReader::Refill() {
    // What is left of the last chunk moves to the front; the buffer grows only for a record longer than a chunk.
    if (m_begin > 0) {
        std::memmove(m_buffer.data(), m_buffer.data() + m_begin, m_end - m_begin);
        m_end -= m_begin;
        m_begin = 0;
    }
    // Doubling, so that scanning a very long record again after each refill stays linear in its length.
    const std::size_t wanted = std::max(m_chunk, m_end);
    if (m_buffer.size() < m_end + wanted)
        m_buffer.resize(m_end + wanted);
    const std::optional<std::size_t> count = m_source.Read(m_buffer.data() + m_end, wanted);
    if (!count)
        m_readError = true;
    else if (*count == 0)
        m_sourceAtEnd = true;
    else
        m_end += *count;
}

/// Scans the record at `m_begin`. Quotes from `literalFrom` on (counted from `m_begin`) are ordinary characters, and so
/// the fields behind it end at the next end of line.
RecordReader::Scan RecordReader::ScanRecord(Record& record, Found& found, std::size_t literalFrom) {
    const char* const data = m_buffer.data();
    record.fields.clear();
    m_toRebuild.clear();
    found = Found();
    std::size_t position = m_begin;
    for (;;) {
        Field field;
        field.lineOffset = found.lines;
        std::size_t start = position;
        std::size_t textEnd = kNowhere;
        if (position < m_end && data[position] == '"' && position - m_begin < literalFrom) {
            bool doubled = false;
            start = ++position;
            if (!FindClosingQuote(position, found, doubled)) {
                found.openQuote = start - 1;
                found.openQuoteOffset = field.lineOffset;
                return Scan::OpenQuote;
            }
            field.quoted = true;
            textEnd = position - 1;
            const bool goesOn = position < m_end && !m_special[static_cast<unsigned char>(data[position])];
            if (goesOn)
                textEnd = kNowhere;
            if (doubled || goesOn)
                m_toRebuild.push_back(record.fields.size());
        }
        while (position < m_end && !m_special[static_cast<unsigned char>(data[position])])
            ++position;

        const bool atEnd = position == m_end;
        if (!m_sourceAtEnd && (atEnd || (data[position] == '\r' && position + 1 == m_end)))
            return Scan::NeedMore;
        field.text = std::string_view(data + start, (textEnd == kNowhere ? position : textEnd) - start);
        record.fields.push_back(field);
        if (!atEnd && data[position] == m_delimiter) {
            ++position;
            continue;
        }
        found.end = position + (atEnd ? 0 : EndOfLineLength(position));
        return Scan::Complete;
    }
}

/// Moves `position`, just behind an opening quote, to just behind its closing quote; false when the buffer ends first.
/// A quote at the buffer's very end may be the first of two; the scan then needs more bytes in any case.
bool RecordReader::FindClosingQuote(std::size_t& position, Found& found, bool& doubled) const {
    const char* const data = m_buffer.data();
    for (; position < m_end; ++position) {
        const char byte = data[position];
        if (byte == '"') {
            if (position + 1 == m_end || data[position + 1] != '"') {
                ++position;
                return true;
            }
            doubled = true;
            ++position;
        } else if (byte == '\n' || (byte == '\r' && !(position + 1 < m_end && data[position + 1] == '\n'))) {
            ++found.lines;
        }
    }
    return false;
}

std::size_t RecordReader::EndOfLineLength(std::size_t position) const {
    const bool pair = m_buffer[position] == '\r' && position + 1 < m_end && m_buffer[position + 1] == '\n';
    return pair ? 2 : 1;
}

/// Undoes doubled quotes and takes out closing quotes, in place: the text only gets shorter.
void RecordReader::Rebuild(Record& record) {
    for (const std::size_t index : m_toRebuild) {
        Field& field = record.fields[index];
        char* const start = m_buffer.data() + (field.text.data() - m_buffer.data());
        char* to = start;
        char* afterQuote = nullptr;
        for (std::size_t i = 0; i < field.text.size(); ++i) {
            const char byte = field.text[i];
            if (byte == '"' && afterQuote == nullptr) {
                if (i + 1 == field.text.size() || field.text[i + 1] != '"') {
                    afterQuote = to;
                    continue;
                }
                ++i;
            }
            *to++ = byte;
        }
        if (afterQuote != nullptr) {
            if (IsBlankText(std::string_view(afterQuote, static_cast<std::size_t>(to - afterQuote))))
                to = afterQuote;
            else if (record.afterQuoteLine == 0)
                record.afterQuoteLine = record.line + field.lineOffset;
        }
        field.text = std::string_view(start, static_cast<std::size_t>(to - start));
    }
}

bool RecordReader::IsBlank(const Record& record) const {
    return record.fields.size() == 1 && !record.fields[0].quoted && IsBlankText(record.fields[0].text);
}

} // namespace csv
