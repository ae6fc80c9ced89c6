// Collects the cells of one column and settles what kind of column it is.
#pragma once

#include "csv/Dialect.h"
#include "csv/Message.h"
#include "csv/RecordReader.h"
#include "csv/Table.h"

#include <cstddef>
#include <string>
#include <vector>

namespace csv {

/// Takes the cells in the order of the rows. A column that begins like numbers is kept as numbers, which takes the
/// least time and memory; should too many of its cells turn out to be none, `NeedsTexts` says so at the end, and the
/// file has to be read again with a builder that collects texts. That one always comes to an end.
class ColumnBuilder {
public:
    enum class Way {
        Undecided, ///< numbers or texts, as the first cell that is there shows
        Numbers,
        Texts,
    };

    ColumnBuilder(Way way, DecimalMark mark) : m_way(way), m_mark(mark) {}

    /// Makes room for so many rows in all.
    void Reserve(std::size_t rows);

    /// Adds the cell of the next row, `field` of the record that begins on `recordLine`.
    void Add(const Field& field, std::size_t recordLine);

    /// Adds a cell that the record does not have.
    void AddMissing();

    /// True when the column is not one of numbers after all and its texts were not kept.
    bool NeedsTexts() const { return m_way == Way::Numbers && !DecidesType(m_numberCells, m_presentCells); }

    /// The column, unless `NeedsTexts`. Adds to `messages` what was odd about its cells.
    Column Finish(std::string name, const Dialect& dialect, MessageList& messages);

private:
    enum class Expected { Number, Date };

    /// Different unreadable texts that a column of numbers keeps for its messages.
    static constexpr std::size_t kMostUnreadable = 1000;

    void Decide(std::string_view text);
    void AddNumber(std::string_view text, std::size_t line);
    std::string_view Clean(std::string_view text, std::size_t line);
    void FinishTexts(const Dialect& dialect, MessageList& messages);
    void TurnIntoNumbers(MessageList& messages);
    void TurnIntoDates(MessageList& messages);
    void TellUnreadable(const TextPool::Entry& entry, Expected expected, MessageList& messages) const;
    void TellWrongBytes(MessageList& messages) const;

    Way m_way;
    DecimalMark m_mark;
    Column m_column;
    std::size_t m_rows = 0;
    std::size_t m_presentCells = 0; ///< neither missing nor a dash
    std::size_t m_numberCells = 0;  ///< of these, numbers
    std::size_t m_unlistedUnreadable = 0;
    std::vector<std::size_t> m_wrongByteLines; ///< lines of the first cells that are not UTF-8
    std::size_t m_wrongByteCells = 0;
    std::string m_cleaned; ///< the buffer of `Clean`
};

} // namespace csv
