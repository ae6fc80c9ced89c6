// Distinct texts, each stored once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace csv {

/// Keeps each distinct text once, under a number that counts up from 0, with how often and where first it came. The
/// memory used is the texts themselves plus 32 to 44 bytes each.
class TextPool {
public:
    struct Entry {
        std::string_view text; ///< holds as long as the pool
        std::size_t firstLine = 0;
        std::uint32_t count = 0;
    };

    /// Counts one more occurrence of `text`, standing on `line` of the file, and returns its number.
    std::uint32_t Add(std::string_view text, std::size_t line);

    /// Adds a text that is not in the pool yet, with the count and line of `entry`.
    void AddNew(const Entry& entry);

    std::size_t Size() const { return m_entries.size(); }
    const Entry& operator[](std::uint32_t id) const { return m_entries[id]; }
    const std::vector<Entry>& Entries() const { return m_entries; }

private:
    std::uint32_t* FindSlot(std::string_view text);
    std::string_view Store(std::string_view text);
    void Rehash(std::size_t slots);

    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_slots; ///< open addressing, a power of two long: entry number + 1, or 0
    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::size_t m_blockFree = 0; ///< bytes left at the end of the last block
    std::size_t m_blockSize = 0;
};

} // namespace csv
