// Reading a table: a look at the beginning, one pass over the whole, and a second one only for columns of texts that
// began like numbers.
#include "csv/TableReader.h"

#include "csv/ColumnBuilder.h"
#include "csv/Dialect.h"
#include "csv/RecordReader.h"
#include "csv/Utf8.h"

#include <algorithm>
#include <new>
#include <unordered_set>

namespace csv {

namespace {

/// Passes bytes on and tells progress; going on after the user gave up looks like a read error to the reader.
class ProgressSource : public ByteSource {
public:
    ProgressSource(ByteSource& source, const Progress& progress) : m_source(source), m_progress(progress) {}

    std::optional<std::size_t> Read(char* to, std::size_t size) override {
        if (m_progress && !m_cancelled && m_source.Size() > 0) {
            const double done = std::min(1.0, static_cast<double>(m_read) / static_cast<double>(m_source.Size()));
            m_cancelled = !m_progress({m_from + (m_to - m_from) * done, m_rows});
        }
        if (m_cancelled)
            return std::nullopt;
        const std::optional<std::size_t> count = m_source.Read(to, size);
        m_read += count.value_or(0);
        return count;
    }

    bool Rewind() override {
        m_read = 0;
        return m_source.Rewind();
    }

    std::uint64_t Size() const override { return m_source.Size(); }
    bool Cancelled() const { return m_cancelled; }

    /// Rows seen so far, to be told along.
    void SetRows(std::size_t rows) { m_rows = std::max(m_rows, rows); }

    /// The stretch of the whole work that the following pass stands for.
    void SetStretch(double from, double to) {
        m_from = from;
        m_to = to;
    }

private:
    ByteSource& m_source;
    const Progress& m_progress;
    std::uint64_t m_read = 0;
    std::size_t m_rows = 0;
    double m_from = 0;
    double m_to = 0;
    bool m_cancelled = false;
};

class TableReading {
public:
    TableReading(ByteSource& source, const std::string& fileName, const ReadOptions& options)
        : m_source(source, options.progress), m_options(options), m_messages(fileName) {}

    ReadResult Run();

private:
    enum class Telling { Yes, No };

    bool TakeSample();
    bool CheckSample();
    bool ReadNames(RecordReader& reader);
    bool Pass(Telling telling);
    bool ReadRows(RecordReader& reader, Telling telling);
    void AddRow(const Record& record);
    void TellOdd(const Record& record);
    bool ReadTextsAgain();
    void Warn(std::size_t line, const char* literal, std::vector<std::string> more = {});
    bool Fail(std::size_t line, const char* literal);
    bool FailStep(const RecordReader& reader, RecordReader::Step step);
    ReadResult Result(bool read);

    ProgressSource m_source;
    const ReadOptions& m_options;
    MessageList m_messages;
    std::vector<Message> m_errors;
    std::string m_sample;
    bool m_sampleIsWhole = false;
    Dialect m_dialect;
    std::vector<std::string> m_names;
    std::vector<ColumnBuilder> m_builders;
    std::vector<bool> m_collecting; ///< the columns that the present pass fills
    Table m_table;
};

ReadResult TableReading::Run() {
    if (!TakeSample() || !CheckSample())
        return Result(false);
    m_dialect = DetectDialect(m_sample, m_sampleIsWhole);
    m_sample = {};
    // A second pass is the exception, so the first one counts for most of the way.
    m_source.SetStretch(0, 0.8);
    if (!Pass(Telling::Yes) || !ReadTextsAgain())
        return Result(false);

    m_table.delimiter = m_dialect.delimiter;
    m_table.columns.reserve(m_builders.size());
    for (std::size_t i = 0; i < m_builders.size(); ++i) {
        m_table.columns.push_back(m_builders[i].Finish(m_names[i], m_dialect, m_messages));
        if (m_table.columns.back().type == ColumnType::Empty)
            m_table.columns.back().missing = m_table.rows;
    }
    if (m_table.rows == 0)
        Warn(1, Translatable("%1%, line %2%: only a header, no rows below it. There is nothing to compute."));
    if (m_options.progress && !m_options.progress({1.0, m_table.rows})) {
        m_table = {};
        return {ReadResult::Outcome::Cancelled, {}, {}};
    }
    return Result(true);
}

bool TableReading::TakeSample() {
    m_sample.resize(std::max<std::size_t>(m_options.sample, 4));
    std::size_t size = 0;
    while (size < m_sample.size()) {
        const std::optional<std::size_t> count = m_source.Read(m_sample.data() + size, m_sample.size() - size);
        if (!count)
            return Fail(1, Translatable("%1%, line %2%: the file cannot be read. Check the disk or the connection."));
        if (*count == 0)
            break;
        size += *count;
    }
    m_sampleIsWhole = size < m_sample.size();
    m_sample.resize(size);
    return m_source.Rewind() || Fail(1, Translatable("%1%, line %2%: the file cannot be read twice. Copy it to a disk "
                                                     "and open the copy."));
}

/// Tells files that are no CSV text from their beginning.
bool TableReading::CheckSample() {
    const std::string_view begin = std::string_view(m_sample).substr(0, 2);
    const std::size_t zero = m_sample.find('\0');
    // Text in UTF-16 has zeros in every other byte; without its mark it is known by a zero next to the first letter.
    const bool utf16 = begin == "\xFF\xFE" || begin == "\xFE\xFF" ||
                       (m_sample.size() >= 4 && zero < 2 && (m_sample[zero] == '\0' && m_sample[zero + 2] == '\0') &&
                        m_sample[1 - zero] != '\0');
    if (utf16)
        return Fail(1, Translatable("%1%, line %2%: the file is UTF-16 text. Save it as UTF-8 and open it again."));
    if (zero != std::string::npos) {
        const auto line = std::count(m_sample.begin(), m_sample.begin() + static_cast<std::ptrdiff_t>(zero), '\n');
        return Fail(static_cast<std::size_t>(line) + 1,
                    Translatable("%1%, line %2%: zero bytes, so this is not a text file. Export its table as CSV and "
                                 "open that."));
    }
    if (m_sample.empty() || m_sample == "\xEF\xBB\xBF")
        return Fail(1, Translatable("%1%, line %2%: the file is empty. Its first line must name the columns."));
    return true;
}

bool TableReading::Pass(Telling telling) {
    RecordReader reader(m_source, m_dialect.delimiter, m_options.chunk);
    Record record;
    if (m_dialect.declared) {
        const RecordReader::Step step = reader.Next(record);
        if (step != RecordReader::Step::Record)
            return FailStep(reader, step);
    }
    if (telling == Telling::No) {
        const RecordReader::Step step = reader.Next(record);
        if (step != RecordReader::Step::Record)
            return FailStep(reader, step);
    } else if (!ReadNames(reader)) {
        return false;
    }
    return ReadRows(reader, telling);
}

bool TableReading::ReadNames(RecordReader& reader) {
    Record header;
    const RecordReader::Step step = reader.Next(header);
    if (step != RecordReader::Step::Record)
        return FailStep(reader, step);
    TellOdd(header);

    std::unordered_set<std::string> taken;
    std::size_t numbers = 0;
    for (const Field& field : header.fields) {
        std::string name = utf8::Repaired(Trimmed(field.text));
        std::replace_if(
            name.begin(), name.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
        const std::string place = std::to_string(m_names.size() + 1);
        const std::size_t line = header.line + field.lineOffset;
        if (name != Trimmed(field.text) && !utf8::IsValid(field.text))
            Warn(line,
                 Translatable("%1%, line %2%: the name of column %3% has characters that are not UTF-8 and are "
                              "shown as �. Save the file as UTF-8 to see them."),
                 {place});
        numbers += ReadNumber(name, m_dialect.fileMark).fault == NumberFault::None ? 1 : 0;

        const bool unnamed = name.empty();
        if (unnamed)
            name = FillIn(m_options.unnamedColumn, {place});
        std::string unique = name;
        for (std::size_t n = 2; !taken.insert(unique).second; ++n)
            unique = name + " (" + std::to_string(n) + ")";
        if (unnamed)
            Warn(line, Translatable("%1%, line %2%: column %3% has no name. It is called \"%4%\"."), {place, unique});
        else if (unique != name)
            Warn(line, Translatable("%1%, line %2%: the name \"%3%\" comes again. Column %4% is called \"%5%\"."),
                 {Excerpt(name), place, Excerpt(unique)});
        m_names.push_back(std::move(unique));
    }
    if (numbers == header.fields.size())
        Warn(header.line,
             Translatable("%1%, line %2%: the names of the columns are numbers. If this line is data, put a "
                          "line with names above it."));

    for (std::size_t i = 0; i < m_names.size(); ++i) {
        const NumberTally& tally = m_dialect.columns.size() == m_names.size() ? m_dialect.columns[i] : NumberTally();
        const DecimalMark mark = ChooseMark(tally, m_dialect);
        ColumnBuilder::Way way = ColumnBuilder::Way::Undecided;
        if (tally.Present() > 0)
            way = DecidesType(tally.Numbers(mark), tally.Present()) ? ColumnBuilder::Way::Numbers
                                                                    : ColumnBuilder::Way::Texts;
        m_builders.emplace_back(way, mark);
    }
    m_collecting.assign(m_names.size(), true);
    return true;
}

bool TableReading::ReadRows(RecordReader& reader, Telling telling) {
    Record record;
    std::size_t rows = 0;
    std::size_t room = 1000;
    for (;;) {
        const RecordReader::Step step = reader.Next(record);
        if (step == RecordReader::Step::End) {
            if (telling == Telling::No && rows != m_table.rows)
                return Fail(reader.Line(),
                            Translatable("%1%, line %2%: the file was changed while it was read. Open it "
                                         "again."));
            m_table.rows = rows;
            return true;
        }
        if (step != RecordReader::Step::Record)
            return FailStep(reader, step);
        if (telling == Telling::Yes)
            TellOdd(record);
        AddRow(record);
        m_source.SetRows(++rows);
        if (rows == room) {
            // What was read so far tells how many rows there will be; a little more than that is room for all.
            const double share = static_cast<double>(reader.Consumed()) / static_cast<double>(m_source.Size() + 1);
            const double estimate = share > 0 && share < 1 ? static_cast<double>(rows) / share * 1.02 : 0;
            room = std::max(rows + rows / 4, static_cast<std::size_t>(estimate));
            for (ColumnBuilder& builder : m_builders)
                builder.Reserve(room);
        }
    }
}

void TableReading::AddRow(const Record& record) {
    for (std::size_t i = 0; i < m_builders.size(); ++i) {
        if (!m_collecting[i])
            continue;
        if (i < record.fields.size())
            m_builders[i].Add(record.fields[i], record.line);
        else
            m_builders[i].AddMissing();
    }
}

void TableReading::TellOdd(const Record& record) {
    if (record.openQuoteLine != 0)
        Warn(record.openQuoteLine,
             Translatable("%1%, line %2%: a quotation mark is opened and never closed. It is taken "
                          "as an ordinary character."));
    if (record.afterQuoteLine != 0)
        Warn(record.afterQuoteLine, Translatable("%1%, line %2%: there is text behind a closing quotation mark. It is "
                                                 "kept as part of the field."));
    if (m_builders.empty() || record.fields.size() == m_builders.size())
        return;
    Message message;
    message.line = record.line;
    message.number = record.fields.size();
    message.arguments = {m_messages.FileName(), std::to_string(record.line), std::to_string(record.fields.size()),
                         std::to_string(m_builders.size())};
    if (record.fields.size() < m_builders.size()) {
        message.literal =
            Translatable("%1%, line %2%: %3% field where the header has %4%. The others count as missing.");
        message.plural =
            Translatable("%1%, line %2%: %3% fields where the header has %4%. The others count as missing.");
    } else {
        message.literal =
            Translatable("%1%, line %2%: %3% field where the header has %4%. The last ones are left out.");
        message.plural =
            Translatable("%1%, line %2%: %3% fields where the header has %4%. The last ones are left out.");
    }
    m_messages.Add(std::move(message));
}

/// Fills the columns that began like numbers and are none.
bool TableReading::ReadTextsAgain() {
    bool any = false;
    for (std::size_t i = 0; i < m_builders.size(); ++i) {
        m_collecting[i] = m_builders[i].NeedsTexts();
        if (m_collecting[i])
            m_builders[i] = ColumnBuilder(ColumnBuilder::Way::Texts, m_dialect.fileMark);
        any = any || m_collecting[i];
    }
    if (!any)
        return true;
    m_source.SetStretch(0.8, 1);
    if (!m_source.Rewind())
        return Fail(1,
                    Translatable("%1%, line %2%: the file cannot be read twice. Copy it to a disk and open the copy."));
    return Pass(Telling::No);
}

void TableReading::Warn(std::size_t line, const char* literal, std::vector<std::string> more) {
    more.insert(more.begin(), {m_messages.FileName(), std::to_string(line)});
    m_messages.Add({Severity::Warning, line, literal, nullptr, 1, std::move(more)});
}

bool TableReading::Fail(std::size_t line, const char* literal) {
    m_errors.push_back({Severity::Error, line, literal, nullptr, 1, {m_messages.FileName(), std::to_string(line)}});
    return false;
}

bool TableReading::FailStep(const RecordReader& reader, RecordReader::Step step) {
    switch (step) {
    case RecordReader::Step::TooLong:
        return Fail(reader.Line(), Translatable("%1%, line %2%: this line is longer than 32 MB. Check that the file "
                                                "holds a table."));
    case RecordReader::Step::End:
        return Fail(1, Translatable("%1%, line %2%: there is nothing but blank lines. The first line must name the "
                                    "columns."));
    default:
        return Fail(reader.Line(), Translatable("%1%, line %2%: the file cannot be read further. Check the disk or the "
                                                "connection."));
    }
}

ReadResult TableReading::Result(bool read) {
    if (m_source.Cancelled())
        return {ReadResult::Outcome::Cancelled, {}, {}};
    ReadResult result;
    result.outcome = read ? ReadResult::Outcome::Read : ReadResult::Outcome::Failed;
    if (read)
        result.table = std::move(m_table);
    result.messages = m_messages.Take();
    result.messages.insert(result.messages.end(), m_errors.begin(), m_errors.end());
    return result;
}

} // namespace

Message DoesNotFit(const std::string& fileName) {
    return {Severity::Error,
            0,
            Translatable("%1% does not fit into memory. Close other programs or open a part of the file."),
            nullptr,
            1,
            {fileName}};
}

ReadResult ReadTable(ByteSource& source, const std::string& fileName, const ReadOptions& options) {
    try {
        return TableReading(source, fileName, options).Run();
    } catch (const std::bad_alloc&) {
        ReadResult result;
        result.messages.push_back(DoesNotFit(fileName));
        return result;
    }
}

ReadResult ReadFile(const std::filesystem::path& path, const ReadOptions& options) {
    FileSource::OpenResult opened = FileSource::Open(path);
    if (opened.source == nullptr) {
        ReadResult result;
        result.messages.push_back(*opened.problem);
        return result;
    }
    return ReadTable(*opened.source, PathText(path.filename()), options);
}

} // namespace csv
