// A text that takes one pointer, for objects of which there are millions.
#include "CompactText.h"

#include "RecordItemHeap.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <mutex>
#include <string_view>
#include <unordered_map>
#include <utility>

/// The characters follow the block, with a NUL behind them.
struct CompactText::Block {
    std::atomic<int> references;
    int length;

    wchar_t* Characters() { return reinterpret_cast<wchar_t*>(this + 1); }
    static std::size_t SizeFor(int length) { return sizeof(Block) + (length + std::size_t{1}) * sizeof(wchar_t); }
};

CompactText::CompactText(LPCWSTR text) {
    const int length = text ? static_cast<int>(std::wcslen(text)) : 0;
    if (length == 0)
        return;
    m_block = new (recorditemheap::Take(Block::SizeFor(length))) Block{1, length};
    std::memcpy(m_block->Characters(), text, (length + std::size_t{1}) * sizeof(wchar_t));
}

CompactText::CompactText(const CompactText& other) noexcept : m_block(other.m_block) {
    if (m_block)
        m_block->references.fetch_add(1, std::memory_order_relaxed);
}

CompactText::~CompactText() { Release(); }

CompactText& CompactText::operator=(const CompactText& other) noexcept {
    CompactText copy(other);
    std::swap(m_block, copy.m_block);
    return *this;
}

CompactText& CompactText::operator=(CompactText&& other) noexcept {
    std::swap(m_block, other.m_block);
    return *this;
}

CompactText& CompactText::operator=(LPCWSTR text) { return *this = CompactText(text); }

int CompactText::GetLength() const noexcept { return m_block ? m_block->length : 0; }

LPCWSTR CompactText::GetString() const noexcept { return m_block ? m_block->Characters() : L""; }

bool CompactText::IsOnlyOwner() const noexcept {
    return m_block && m_block->references.load(std::memory_order_relaxed) == 1;
}

void CompactText::Release() noexcept {
    if (m_block && m_block->references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        const std::size_t size = Block::SizeFor(m_block->length);
        m_block->~Block();
        recorditemheap::Return(m_block, size);
    }
    m_block = nullptr;
}

CompactText CompactText::Interned(LPCWSTR text) {
    struct Table {
        std::mutex mutex;
        std::unordered_map<std::wstring_view, CompactText> texts;
        std::size_t cleanAt = 256;
    };
    // Never destroyed: record items may be made and die while the process ends.
    static Table& table = *new Table;

    const std::wstring_view wanted(text ? text : L"");
    if (wanted.empty())
        return CompactText();
    const std::lock_guard lock(table.mutex);
    if (const auto found = table.texts.find(wanted); found != table.texts.end())
        return found->second;
    if (table.texts.size() >= table.cleanAt) {
        std::erase_if(table.texts, [](const auto& entry) { return entry.second.IsOnlyOwner(); });
        table.cleanAt = std::max<std::size_t>(256, table.texts.size() * 2);
    }
    const CompactText made(text);
    table.texts.emplace(std::wstring_view(made.GetString(), made.GetLength()), made);
    return made;
}
