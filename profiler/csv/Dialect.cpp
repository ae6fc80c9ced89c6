// Finding delimiter and decimal marks from the beginning of a file.
#include "csv/Dialect.h"

#include "csv/ByteSource.h"
#include "csv/RecordReader.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace csv {

namespace {

/// What one delimiter makes of the sample.
struct Attempt {
    char delimiter = ',';
    std::size_t headerFields = 0;
    std::size_t records = 0;    ///< below the header
    std::size_t asWide = 0;     ///< of these, with as many fields as the header
    std::size_t split = 0;      ///< of these, with two fields or more
    std::size_t cells = 0;      ///< in all records
    std::size_t plainCells = 0; ///< of these, numbers, dates or missing
    std::vector<NumberTally> columns;

    double Consistency() const { return records == 0 ? 1 : static_cast<double>(asWide) / static_cast<double>(records); }
    double PlainShare() const { return cells == 0 ? 0 : static_cast<double>(plainCells) / static_cast<double>(cells); }

    /// A comma in the only name of a one-column file does not make two columns.
    bool Separates() const { return headerFields >= 2 && 2 * split >= records; }

    /// Larger is better.
    auto Rank() const { return std::make_tuple(Separates(), Consistency(), PlainShare(), headerFields); }
};

bool IsPlain(std::string_view text) {
    return IsMissing(text) || IsDash(text) || IsDate(text) ||
           ReadNumber(text, DecimalMark::Point).fault != NumberFault::NotANumber ||
           ReadNumber(text, DecimalMark::Comma).fault != NumberFault::NotANumber;
}

Attempt Try(char delimiter, std::string_view sample, bool whole, bool skipFirst) {
    Attempt attempt;
    attempt.delimiter = delimiter;
    MemorySource source{std::string(sample)};
    RecordReader reader(source, delimiter);
    Record record;
    const auto next = [&] {
        if (reader.Next(record) != RecordReader::Step::Record)
            return false;
        // A record that the sample's end cuts is short without its fault; the header counts in any case.
        return whole || attempt.headerFields == 0 || reader.Consumed() < sample.size();
    };
    if (skipFirst)
        next();
    if (!next())
        return attempt;
    attempt.headerFields = record.fields.size();
    attempt.columns.resize(attempt.headerFields);
    while (next()) {
        ++attempt.records;
        attempt.asWide += record.fields.size() == attempt.headerFields ? 1 : 0;
        attempt.split += record.fields.size() >= 2 ? 1 : 0;
        attempt.cells += record.fields.size();
        for (std::size_t i = 0; i < record.fields.size(); ++i) {
            attempt.plainCells += IsPlain(record.fields[i].text) ? 1 : 0;
            if (i < attempt.columns.size())
                attempt.columns[i].Add(record.fields[i].text);
        }
    }
    return attempt;
}

/// The delimiter that a first line "sep=;" names, 0 when there is none. Spreadsheets write and obey such a line.
char DeclaredDelimiter(std::string_view sample) {
    if (sample.substr(0, 3) == "\xEF\xBB\xBF")
        sample.remove_prefix(3);
    const std::string_view line = sample.substr(0, sample.find_first_of("\r\n"));
    const std::string_view declaration = line.size() == 7 && line[0] == '"' ? line.substr(1, 5) : line;
    if (declaration.size() != 5 || declaration.substr(0, 4) != "sep=")
        return '\0';
    return std::string_view(",;\t|").find(declaration[4]) != std::string_view::npos ? declaration[4] : '\0';
}

DecimalMark FileMark(const std::vector<NumberTally>& columns, char delimiter) {
    std::size_t point = 0;
    std::size_t comma = 0;
    for (const NumberTally& column : columns) {
        point += column.Proof(DecimalMark::Point);
        comma += column.Proof(DecimalMark::Comma);
    }
    return delimiter != ',' && comma > point ? DecimalMark::Comma : DecimalMark::Point;
}

} // namespace

void NumberTally::Add(std::string_view text, std::size_t count) {
    if (IsMissing(text) || IsDash(text))
        return;
    m_present += count;
    const NumberReading point = ReadNumber(text, DecimalMark::Point);
    const NumberReading comma = ReadNumber(text, DecimalMark::Comma);
    // A number out of range is one that cannot be used, but it tells that the column is one of numbers.
    const bool isPoint = point.fault != NumberFault::NotANumber;
    const bool isComma = comma.fault != NumberFault::NotANumber;
    m_point += isPoint ? count : 0;
    m_comma += isComma ? count : 0;
    m_onlyPoint += isPoint && !isComma ? count : 0;
    m_onlyComma += isComma && !isPoint ? count : 0;
    if (isPoint && isComma && point.value != comma.value)
        (text.find('.') != std::string_view::npos ? m_ambiguousPoint : m_ambiguousComma) += count;
    if (!isPoint && !isComma && IsDate(text))
        m_dates += count;
}

DecimalMark ChooseMark(const NumberTally& column, const Dialect& dialect) {
    const std::size_t point = column.Proof(DecimalMark::Point);
    const std::size_t comma = column.Proof(DecimalMark::Comma);
    if (point != comma)
        return point > comma ? DecimalMark::Point : DecimalMark::Comma;
    if (dialect.fileMark == DecimalMark::Comma)
        return DecimalMark::Comma;
    const bool commaFractions = column.Ambiguous(',') > column.Ambiguous('.') && dialect.delimiter != ',';
    return commaFractions ? DecimalMark::Comma : DecimalMark::Point;
}

Dialect DetectDialect(std::string_view sample, bool whole) {
    Attempt best;
    const char declared = DeclaredDelimiter(sample);
    if (declared != '\0') {
        best = Try(declared, sample, whole, true);
    } else {
        // Of equals the first stays.
        constexpr std::array<char, 3> kDelimiters{',', ';', '\t'};
        for (const char delimiter : kDelimiters) {
            Attempt attempt = Try(delimiter, sample, whole, false);
            if (delimiter == kDelimiters.front() || attempt.Rank() > best.Rank())
                best = std::move(attempt);
        }
    }
    return {best.delimiter, declared != '\0', FileMark(best.columns, best.delimiter), std::move(best.columns)};
}

} // namespace csv
