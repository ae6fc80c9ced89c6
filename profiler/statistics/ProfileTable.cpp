// Profiles as a table for other programs.
#include "statistics/ProfileTable.h"

#include <charconv>

namespace statistics {

namespace {

/// Puts together one record.
class RecordWriter {
public:
    explicit RecordWriter(std::string& to) : m_to(to) {}

    void AddText(std::string_view text) {
        Separate();
        if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
            m_to += text;
            return;
        }
        m_to += '"';
        for (const char c : text)
            m_to.append(c == '"' ? 2 : 1, c);
        m_to += '"';
    }

    template <typename Number>
    void AddNumber(Number number) {
        char text[32]; // the longest double takes 24 characters
        AddText(std::string_view(text, std::to_chars(text, text + sizeof text, number).ptr));
    }

    void AddEmpty(int fields) {
        for (int i = 0; i < fields; ++i)
            AddText({});
    }

    void End() { m_to += "\r\n"; }

private:
    void Separate() {
        if (!m_first)
            m_to += ',';
        m_first = false;
    }

    std::string& m_to;
    bool m_first = true;
};

const char* TypeName(csv::ColumnType type) {
    switch (type) {
    case csv::ColumnType::Number:
        return "number";
    case csv::ColumnType::Date:
        return "date";
    case csv::ColumnType::Text:
        return "text";
    default:
        return "empty";
    }
}

void AddNumbers(RecordWriter& record, const Summary& numbers) {
    record.AddNumber(numbers.minimum);
    record.AddNumber(numbers.maximum);
    record.AddNumber(numbers.mean);
    if (numbers.standardDeviation)
        record.AddNumber(*numbers.standardDeviation);
    else
        record.AddEmpty(1);
    for (const double quantile :
         {numbers.quantile5, numbers.quantile25, numbers.median, numbers.quantile75, numbers.quantile95})
        record.AddNumber(quantile);
}

} // namespace

std::string ProfileTable(std::span<const ColumnProfile> profiles) {
    std::string table = "column,type,count,missing,distinct,minimum,maximum,mean,standard_deviation,quantile_5,"
                        "quantile_25,median,quantile_75,quantile_95\r\n";
    for (const ColumnProfile& profile : profiles) {
        RecordWriter record(table);
        record.AddText(profile.name);
        record.AddText(TypeName(profile.type));
        record.AddNumber(profile.count);
        record.AddNumber(profile.missing);
        const bool texts = profile.type == csv::ColumnType::Date || profile.type == csv::ColumnType::Text;
        if (texts)
            record.AddNumber(profile.distinct);
        else
            record.AddEmpty(1);
        if (profile.numbers.count > 0) {
            AddNumbers(record, profile.numbers);
        } else {
            record.AddText(profile.firstDate);
            record.AddText(profile.lastDate);
            record.AddEmpty(7);
        }
        record.End();
    }
    return table;
}

} // namespace statistics
