// The order of records in a report control, and what stays with them when the rows are made anew.
#include "ReportSort.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItemNumber.h"
#include "CXTPReportRecordItemText.h"
#include "CXTPReportRows.h"
#include "CXTPReportSelectedRows.h"
#include "ItemCompare.h"

#include <boost/sort/spreadsort/integer_sort.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <numeric>
#include <span>
#include <string>
#include <typeinfo>

namespace reportsort {

namespace {

using Items = std::vector<CXTPReportRecordItem*>;

/// What one column of the sort order says about the records, given by their place in the list that is sorted.
class ColumnKey {
public:
    virtual ~ColumnKey() = default;
    virtual int Compare(std::uint32_t left, std::uint32_t right) const = 0;
    /// A number that is smaller, or as large, for a record that sorts before another one. Most comparisons end with it.
    virtual std::uint64_t Head(std::uint32_t place) const = 0;
};

/// Any cells: each comparison asks them.
class ItemKey : public ColumnKey {
public:
    ItemKey(CXTPReportColumn* column, Items items) : m_column(column), m_items(std::move(items)) {}
    int Compare(std::uint32_t left, std::uint32_t right) const override {
        CXTPReportRecordItem* const a = m_items[left];
        CXTPReportRecordItem* const b = m_items[right];
        if (!a || !b)
            return static_cast<int>(a != nullptr) - static_cast<int>(b != nullptr);
        return a->Compare(m_column, b);
    }
    std::uint64_t Head(std::uint32_t place) const override { return m_items[place] != nullptr; }

private:
    CXTPReportColumn* m_column;
    Items m_items;
};

// Exactly: a derived class may compare in another way.
template <class Item>
bool IsExactly(const CXTPReportRecordItem* item) {
    return item && typeid(*item) == typeid(Item);
}

/// Plain number cells: their values, read once.
class NumberKey : public ColumnKey {
public:
    /// Null when there are other cells.
    static std::unique_ptr<ColumnKey> Of(CXTPReportColumn* column, const std::vector<CXTPReportRecord*>& records) {
        std::vector<double> values;
        values.reserve(records.size());
        for (const CXTPReportRecord* const record : records) {
            // A cell is looked at once: what many cells cost is reading them from memory.
            const CXTPReportRecordItem* const item = record->GetItem(column);
            if (!IsExactly<CXTPReportRecordItemNumber>(item))
                return nullptr;
            values.push_back(static_cast<const CXTPReportRecordItemNumber*>(item)->GetValue());
        }
        return std::make_unique<NumberKey>(std::move(values));
    }
    explicit NumberKey(std::vector<double> values) : m_values(std::move(values)) {}
    int Compare(std::uint32_t left, std::uint32_t right) const override {
        return itemcompare::Numbers(m_values[left], m_values[right]);
    }
    std::uint64_t Head(std::uint32_t place) const override { return itemcompare::NumberRank(m_values[place]); }

private:
    std::vector<double> m_values;
};

/// Plain text cells: the locale's sort keys, made once, compare byte by byte as the texts do in the locale.
class TextKey : public ColumnKey {
public:
    TextKey(CXTPReportColumn* column, const Items& items) {
        m_begins.reserve(items.size() + 1);
        for (auto* const item : items) {
            m_begins.push_back(m_bytes.size());
            AppendSortKey(item->GetCaption(column));
        }
        m_begins.push_back(m_bytes.size());
        MakeHeads();
    }
    int Compare(std::uint32_t left, std::uint32_t right) const override {
        if (Head(left) != Head(right))
            return Head(left) < Head(right) ? -1 : 1;
        // Sort keys end with a zero byte, so that none begins with another.
        return std::memcmp(&m_bytes[m_begins[left]], &m_bytes[m_begins[right]], std::min(Length(left), Length(right)));
    }
    /// The first bytes in which the keys differ, as a number: no look at the keys, which lie scattered over memory.
    std::uint64_t Head(std::uint32_t place) const override { return m_heads[place]; }

private:
    std::size_t Length(std::uint32_t index) const { return m_begins[index + 1] - m_begins[index]; }
    void AppendSortKey(const CString& text) {
        std::array<std::uint8_t, 512> most; // enough for most texts; the others are measured
        std::vector<std::uint8_t> rest;
        std::span<std::uint8_t> key = most;
        int length = text.IsEmpty() ? 0 : MakeSortKey(text, key.data(), static_cast<int>(key.size()));
        if (length == 0 && !text.IsEmpty()) {
            rest.resize(std::max(MakeSortKey(text, nullptr, 0), 0));
            key = rest;
            length = MakeSortKey(text, key.data(), static_cast<int>(key.size()));
        }
        m_bytes.insert(m_bytes.end(), key.begin(), key.begin() + length);
        if (length == 0 || m_bytes.back() != 0)
            m_bytes.push_back(0);
    }
    static int MakeSortKey(const CString& text, std::uint8_t* buffer, int size) {
        return ::LCMapStringEx(LOCALE_NAME_USER_DEFAULT, LCMAP_SORTKEY | itemcompare::TextFlags, text, text.GetLength(),
                               reinterpret_cast<LPWSTR>(buffer), size, nullptr, nullptr, 0);
    }

    void MakeHeads() {
        const std::size_t common = CommonLength();
        m_heads.reserve(m_begins.size() - 1);
        for (std::uint32_t i = 0; i + 1 < m_begins.size(); ++i) {
            std::uint64_t head = 0;
            for (std::size_t at = common; at < common + sizeof(head); ++at)
                head = head << 8 | (at < Length(i) ? m_bytes[m_begins[i] + at] : 0);
            m_heads.push_back(head);
        }
    }
    std::size_t CommonLength() const {
        std::size_t common = m_begins.size() > 1 ? Length(0) : 0;
        for (std::uint32_t i = 1; i + 1 < m_begins.size(); ++i) {
            const std::size_t most = std::min(common, Length(i));
            const auto begin = m_bytes.begin() + static_cast<std::ptrdiff_t>(m_begins[i]);
            common = static_cast<std::size_t>(
                std::mismatch(begin, begin + static_cast<std::ptrdiff_t>(most), m_bytes.begin()).first - begin);
        }
        return common;
    }

    std::vector<std::uint8_t> m_bytes;
    std::vector<std::size_t> m_begins;
    std::vector<std::uint64_t> m_heads;
};

std::unique_ptr<ColumnKey> MakeKey(CXTPReportColumn* column, const std::vector<CXTPReportRecord*>& records) {
    if (std::unique_ptr<ColumnKey> numbers = NumberKey::Of(column, records))
        return numbers;
    Items items;
    items.reserve(records.size());
    for (const CXTPReportRecord* const record : records)
        items.push_back(record->GetItem(column));
    if (std::all_of(items.begin(), items.end(), IsExactly<CXTPReportRecordItemText>))
        return std::make_unique<TextKey>(column, items);
    return std::make_unique<ItemKey>(column, std::move(items));
}

struct DirectedKey {
    std::unique_ptr<ColumnKey> key;
    bool increasing;
};

/// A record to be sorted.
struct Entry {
    std::uint64_t head;
    std::uint32_t place;
};

/// Brings records with the same head into the order of all keys, and those that are equal by all into the order of the
/// collection. Cells may compare in any way, and merging bears even what is no order at all.
void SortEqualHeads(const std::vector<DirectedKey>& keys, std::span<Entry> entries) {
    std::sort(entries.begin(), entries.end(),
              [](const Entry& left, const Entry& right) { return left.place < right.place; });
    std::stable_sort(entries.begin(), entries.end(), [&keys](const Entry& left, const Entry& right) {
        for (const DirectedKey& directed : keys)
            if (const int result = directed.key->Compare(left.place, right.place))
                return directed.increasing ? result < 0 : result > 0;
        return false;
    });
}

} // namespace

std::vector<std::uint32_t> Order(const std::vector<CXTPReportRecord*>& records, CXTPReportColumns& columns) {
    std::vector<std::uint32_t> places;
    places.reserve(records.size());
    std::vector<DirectedKey> keys;
    const CXTPReportColumnOrder& order = *columns.GetSortOrder();
    for (int i = 0; i < order.GetCount(); ++i)
        keys.push_back({MakeKey(order.GetAt(i), records), order.GetAt(i)->IsSortIncreasing() != FALSE});
    if (keys.empty()) {
        places.resize(records.size());
        std::iota(places.begin(), places.end(), 0U);
        return places;
    }

    // The first key's heads lie beside the places, so that most of the sorting looks at nothing else.
    const DirectedKey& first = keys.front();
    std::vector<Entry> entries;
    entries.reserve(records.size());
    for (std::uint32_t place = 0; place < records.size(); ++place) {
        const std::uint64_t head = first.key->Head(place);
        entries.push_back({first.increasing ? head : ~head, place});
    }
    // By the heads' bits, for which of two records comes first cannot be foretold by a processor.
    boost::sort::spreadsort::integer_sort(
        entries.begin(), entries.end(), [](const Entry& entry, unsigned bits) { return entry.head >> bits; },
        [](const Entry& left, const Entry& right) { return left.head < right.head; });
    for (auto begin = entries.begin(); begin != entries.end();) {
        const auto end =
            std::find_if(begin, entries.end(), [&](const Entry& entry) { return entry.head != begin->head; });
        if (end - begin > 1)
            SortEqualHeads(keys, std::span(begin, end));
        begin = end;
    }
    for (const Entry& entry : entries)
        places.push_back(entry.place);
    return places;
}

// --- RowStateKeeper --------------------------------------------------------------------------------------------------

RowStateKeeper::RowStateKeeper(CXTPReportRows& rows, CXTPReportSelectedRows& selection, int nFocusedRow)
    : m_rows(rows), m_selection(selection), m_nFocusedRow(nFocusedRow), m_bVirtual(rows.IsVirtual()) {
    if (m_bVirtual)
        return;
    m_pAnchor = rows.GetEntryAt(selection.GetAnchor());
    m_pFocused = rows.GetEntryAt(nFocusedRow);
    for (const RowSelection::Range& range : selection.GetRanges().Ranges())
        for (int nRow = range.first; nRow <= range.last && nRow < rows.GetCount(); ++nRow)
            m_selected.push_back(rows.GetEntryAt(nRow));
}

int RowStateKeeper::Restore() {
    const int nCount = m_rows.GetCount();
    if (m_bVirtual != m_rows.IsVirtual()) {
        m_selection.SetRanges(RowSelection());
        m_selection.SetAnchor(-1);
        return -1;
    }
    if (m_bVirtual) {
        m_selection.SetRanges(RowSelection(m_selection.GetRanges()));
        if (m_selection.GetAnchor() >= nCount)
            m_selection.SetAnchor(-1);
        return m_nFocusedRow < nCount ? m_nFocusedRow : -1;
    }
    std::vector<bool> selected(nCount, false);
    for (const CXTPReportRecord* const record : m_selected)
        if (const int nRow = m_rows.IndexOf(record); nRow >= 0)
            selected[nRow] = true;
    RowSelection ranges;
    for (int nRow = 0; nRow < nCount; ++nRow) {
        if (!selected[nRow])
            continue;
        const int nFirst = nRow;
        while (nRow + 1 < nCount && selected[nRow + 1])
            ++nRow;
        ranges.Add(nFirst, nRow);
    }
    m_selection.SetRanges(ranges);
    m_selection.SetAnchor(m_rows.IndexOf(m_pAnchor));
    return m_rows.IndexOfNearest(m_pFocused);
}

} // namespace reportsort
