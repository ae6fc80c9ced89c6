// Filling one column.
#include "csv/ColumnBuilder.h"

#include "csv/Utf8.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace csv {

namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

/// Gives back room that was made for rows which did not come.
template <typename T>
void Trim(std::vector<T>& values) {
    if (values.capacity() > values.size() + values.size() / 20)
        values.shrink_to_fit();
}

/// True when every byte is ASCII and none is zero, which most texts are.
bool IsPlainAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) > 0; });
}

} // namespace

void ColumnBuilder::Reserve(std::size_t rows) {
    if (m_way == Way::Numbers)
        m_column.numbers.reserve(rows);
    else if (m_way == Way::Texts)
        m_column.textIds.reserve(rows);
}

void ColumnBuilder::Add(const Field& field, std::size_t recordLine) {
    const std::string_view text = field.quoted ? field.text : Trimmed(field.text);
    // Most cells of a column of numbers are numbers: that question goes first.
    if (m_way == Way::Numbers) {
        const NumberReading reading = ReadNumber(text, m_mark);
        if (reading.fault == NumberFault::None) {
            ++m_rows;
            ++m_presentCells;
            ++m_numberCells;
            m_column.numbers.push_back(reading.value);
            return;
        }
    }
    if (IsMissing(text))
        return AddMissing();
    if (m_way == Way::Undecided)
        Decide(text);
    if (m_way == Way::Numbers)
        return AddNumber(text, recordLine + field.lineOffset);
    ++m_rows;
    m_column.textIds.push_back(
        m_column.texts.Add(Clean(text, recordLine + field.lineOffset), recordLine + field.lineOffset));
}

void ColumnBuilder::AddMissing() {
    ++m_rows;
    ++m_column.missing;
    if (m_way == Way::Numbers)
        m_column.numbers.push_back(kNoNumber);
    else if (m_way == Way::Texts)
        m_column.textIds.push_back(Column::kNoText);
}

void ColumnBuilder::Decide(std::string_view text) {
    if (ReadNumber(text, m_mark).fault == NumberFault::None) {
        m_way = Way::Numbers;
        m_column.numbers.assign(m_rows, kNoNumber);
    } else {
        m_way = Way::Texts;
        m_column.textIds.assign(m_rows, Column::kNoText);
    }
}

void ColumnBuilder::AddNumber(std::string_view text, std::size_t line) {
    const NumberReading reading = ReadNumber(text, m_mark);
    const bool dash = IsDash(text);
    ++m_rows;
    m_presentCells += dash ? 0 : 1;
    m_numberCells += reading.fault != NumberFault::NotANumber ? 1 : 0;
    if (reading.fault == NumberFault::None) {
        m_column.numbers.push_back(reading.value);
        return;
    }
    ++m_column.missing;
    m_column.numbers.push_back(kNoNumber);
    if (dash)
        return;
    // The pool of a column of numbers serves to tell of its unreadable cells.
    if (m_column.texts.Size() < kMostUnreadable)
        m_column.texts.Add(Clean(text, line), line);
    else
        ++m_unlistedUnreadable;
}

/// `text` as UTF-8; what it returns holds until the next call.
std::string_view ColumnBuilder::Clean(std::string_view text, std::size_t line) {
    if (IsPlainAscii(text) || utf8::IsValid(text))
        return text;
    ++m_wrongByteCells;
    if (m_wrongByteLines.size() < MessageList::kMostOfOneKind)
        m_wrongByteLines.push_back(line);
    m_cleaned = utf8::Repaired(text);
    return m_cleaned;
}

Column ColumnBuilder::Finish(std::string name, const Dialect& dialect, MessageList& messages) {
    m_column.name = std::move(name);
    m_column.decimalMark = m_mark;
    Trim(m_column.numbers);
    Trim(m_column.textIds);
    TellWrongBytes(messages);
    if (m_way == Way::Numbers) {
        m_column.type = ColumnType::Number;
        for (const TextPool::Entry& entry : m_column.texts.Entries())
            TellUnreadable(entry, Expected::Number, messages);
        messages.LeaveOut(m_unlistedUnreadable);
        m_column.texts = TextPool();
    } else if (m_way == Way::Texts) {
        FinishTexts(dialect, messages);
    }
    return std::move(m_column);
}

void ColumnBuilder::FinishTexts(const Dialect& dialect, MessageList& messages) {
    NumberTally tally;
    for (const TextPool::Entry& entry : m_column.texts.Entries())
        tally.Add(entry.text, entry.count);
    m_mark = ChooseMark(tally, dialect);
    if (DecidesType(tally.Numbers(m_mark), tally.Present())) {
        TurnIntoNumbers(messages);
    } else if (DecidesType(tally.Dates(), tally.Present())) {
        TurnIntoDates(messages);
    } else {
        m_column.type = m_column.texts.Size() == 0 ? ColumnType::Empty : ColumnType::Text;
        if (m_column.type == ColumnType::Empty)
            m_column.textIds = {};
    }
}

void ColumnBuilder::TurnIntoNumbers(MessageList& messages) {
    m_column.type = ColumnType::Number;
    m_column.decimalMark = m_mark;
    std::vector<double> values;
    values.reserve(m_column.texts.Size());
    for (const TextPool::Entry& entry : m_column.texts.Entries()) {
        const NumberReading reading = ReadNumber(entry.text, m_mark);
        values.push_back(reading.fault == NumberFault::None ? reading.value : kNoNumber);
        if (reading.fault == NumberFault::None)
            continue;
        m_column.missing += entry.count;
        if (!IsDash(entry.text))
            TellUnreadable(entry, Expected::Number, messages);
    }
    m_column.numbers.reserve(m_rows);
    for (const std::uint32_t id : m_column.textIds)
        m_column.numbers.push_back(id == Column::kNoText ? kNoNumber : values[id]);
    m_column.textIds = {};
    m_column.texts = TextPool();
}

void ColumnBuilder::TurnIntoDates(MessageList& messages) {
    m_column.type = ColumnType::Date;
    TextPool dates;
    std::vector<std::uint32_t> ids;
    ids.reserve(m_column.texts.Size());
    for (const TextPool::Entry& entry : m_column.texts.Entries()) {
        const bool date = IsDate(entry.text);
        ids.push_back(date ? static_cast<std::uint32_t>(dates.Size()) : Column::kNoText);
        if (date) {
            dates.AddNew(entry);
            continue;
        }
        m_column.missing += entry.count;
        if (!IsDash(entry.text))
            TellUnreadable(entry, Expected::Date, messages);
    }
    for (std::uint32_t& id : m_column.textIds)
        id = id == Column::kNoText ? id : ids[id];
    m_column.texts = std::move(dates);
}

void ColumnBuilder::TellUnreadable(const TextPool::Entry& entry, Expected expected, MessageList& messages) const {
    Message message;
    message.line = entry.firstLine;
    message.arguments = {messages.FileName(), std::to_string(entry.firstLine), m_column.name,
                         Excerpt(std::string(entry.text))};
    const bool infinite =
        expected == Expected::Number && ReadNumber(entry.text, m_mark).fault == NumberFault::NotFinite;
    if (entry.count == 1) {
        if (expected == Expected::Date)
            message.literal = Translatable("%1%, line %2%, column \"%3%\": \"%4%\" is not a date like 2024-12-31. It "
                                           "counts as missing.");
        else if (infinite)
            message.literal = Translatable("%1%, line %2%, column \"%3%\": \"%4%\" is infinite or too large. It counts "
                                           "as missing.");
        else
            message.literal = Translatable("%1%, line %2%, column \"%3%\": \"%4%\" is not a number. It counts as "
                                           "missing.");
    } else {
        message.number = entry.count - 1;
        message.arguments.push_back(std::to_string(message.number));
        if (expected == Expected::Date) {
            message.literal = Translatable("%1%, line %2%, column \"%3%\": \"%4%\" is not a date like 2024-12-31. It "
                                           "counts as missing, here and in %5% more row.");
            message.plural = Translatable("%1%, line %2%, column \"%3%\": \"%4%\" is not a date like 2024-12-31. It "
                                          "counts as missing, here and in %5% more rows.");
        } else if (infinite) {
            message.literal = Translatable("%1%, line %2%, column \"%3%\": \"%4%\" is infinite or too large. It counts "
                                           "as missing, here and in %5% more row.");
            message.plural = Translatable("%1%, line %2%, column \"%3%\": \"%4%\" is infinite or too large. It counts "
                                          "as missing, here and in %5% more rows.");
        } else {
            message.literal = Translatable("%1%, line %2%, column \"%3%\": \"%4%\" is not a number. It counts as "
                                           "missing, here and in %5% more row.");
            message.plural = Translatable("%1%, line %2%, column \"%3%\": \"%4%\" is not a number. It counts as "
                                          "missing, here and in %5% more rows.");
        }
    }
    messages.Add(std::move(message));
}

void ColumnBuilder::TellWrongBytes(MessageList& messages) const {
    for (const std::size_t line : m_wrongByteLines) {
        Message message;
        message.line = line;
        message.literal = Translatable("%1%, line %2%, column \"%3%\": some characters are not UTF-8 and are shown as "
                                       "�. Save the file as UTF-8 to see them.");
        message.arguments = {messages.FileName(), std::to_string(line), m_column.name};
        messages.Add(std::move(message));
    }
    messages.LeaveOut(m_wrongByteCells - m_wrongByteLines.size());
}

} // namespace csv
