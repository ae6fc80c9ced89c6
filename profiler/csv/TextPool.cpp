// A hash table over texts that are packed into blocks.
#include "csv/TextPool.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace csv {

std::uint32_t TextPool::Add(std::string_view text, std::size_t line) {
    const std::uint32_t* const slot = FindSlot(text);
    if (*slot != 0) {
        ++m_entries[*slot - 1].count;
        return *slot - 1;
    }
    AddNew({text, line, 1});
    return static_cast<std::uint32_t>(m_entries.size() - 1);
}

void TextPool::AddNew(const Entry& entry) {
    std::uint32_t* const slot = FindSlot(entry.text);
    m_entries.push_back({Store(entry.text), entry.firstLine, entry.count});
    *slot = static_cast<std::uint32_t>(m_entries.size());
}

/// The slot of `text`, or the free one where it belongs; there always is one.
std::uint32_t* TextPool::FindSlot(std::string_view text) {
    if (2 * (m_entries.size() + 1) > m_slots.size())
        Rehash(std::max<std::size_t>(16, 2 * m_slots.size()));
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = std::hash<std::string_view>()(text) & mask;
    while (m_slots[slot] != 0 && m_entries[m_slots[slot] - 1].text != text)
        slot = (slot + 1) & mask;
    return &m_slots[slot];
}

std::string_view TextPool::Store(std::string_view text) {
    constexpr std::size_t kFirstBlock = 256;
    constexpr std::size_t kLargestBlock = std::size_t(64) << 10;
    if (text.empty())
        return {};
    if (text.size() > m_blockFree) {
        m_blockSize = std::clamp(2 * m_blockSize, kFirstBlock, kLargestBlock);
        m_blockFree = std::max(m_blockSize, text.size());
        m_blocks.push_back(std::make_unique_for_overwrite<char[]>(m_blockFree));
        m_blockSize = m_blockFree;
    }
    char* const place = m_blocks.back().get() + (m_blockSize - m_blockFree);
    std::memcpy(place, text.data(), text.size());
    m_blockFree -= text.size();
    return {place, text.size()};
}

void TextPool::Rehash(std::size_t slots) {
    m_slots.assign(slots, 0);
    const std::size_t mask = slots - 1;
    for (std::size_t id = 0; id < m_entries.size(); ++id) {
        std::size_t slot = std::hash<std::string_view>()(m_entries[id].text) & mask;
        while (m_slots[slot] != 0)
            slot = (slot + 1) & mask;
        m_slots[slot] = static_cast<std::uint32_t>(id + 1);
    }
}

} // namespace csv
