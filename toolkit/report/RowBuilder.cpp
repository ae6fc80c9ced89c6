// The rows that `CXTPReportControl::Populate` makes: which records are shown, in which order, and below what.
//
// Three steps, each of which takes time in proportion to the records, but for the sorting of those that stand next to
// each other: the records that are shown are gathered with their parents, everybody's children are sorted, and then all
// is written down from the top, the records of the control by groups. None of them recurs into the tree, which may be
// as deep as it likes.
#include "RowBuilder.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRecords.h"
#include "ReportGroups.h"
#include "ReportSort.h"
#include "TextFilter.h"

#include <algorithm>
#include <numeric>
#include <span>

namespace rowbuilder {

namespace {

using Records = std::vector<CXTPReportRecord*>;
/// Numbers of gathered records.
using Numbers = std::vector<int>;

bool Passes(CXTPReportRecord& record, const CXTPReportColumns& columns, const TextFilter& filter) {
    return filter.IsEmpty() || filter.Matches(record.GetFilterText(columns));
}

/// The visible records of the control with all visible ones below them, and who stands below whom.
class Forest {
public:
    Forest(const Records& top, const CXTPReportColumns& columns, const TextFilter& filter) {
        Gather(top);
        if (!filter.IsEmpty())
            Drop(columns, filter);
        ListChildren();
    }
    CXTPReportRecord* Record(int number) const { return m_records[number]; }
    int Count() const { return static_cast<int>(m_records.size()); }
    /// Those directly below a record, or, for -1, below none.
    std::span<int> Children(int parent) {
        return std::span(m_children).subspan(m_begins[parent + 1], m_begins[parent + 2] - m_begins[parent + 1]);
    }

private:
    void Gather(const Records& top) {
        // The collections in which records are still to be looked at, the innermost last.
        struct Rest {
            const Records* records;
            std::size_t next;
            int parent;
        };
        std::vector<Rest> rests{{&top, 0, -1}};
        while (!rests.empty()) {
            Rest& rest = rests.back();
            if (rest.next == rest.records->size()) {
                rests.pop_back();
                continue;
            }
            CXTPReportRecord* const record = (*rest.records)[rest.next++];
            if (!record->IsVisible())
                continue;
            m_records.push_back(record);
            m_parents.push_back(rest.parent);
            if (record->HasChildren())
                rests.push_back({&record->GetChilds()->GetRecords(), 0, Count() - 1});
        }
    }

    /// A record that does not pass goes, unless one below it does: children have larger numbers.
    void Drop(const CXTPReportColumns& columns, const TextFilter& filter) {
        m_isDropped.assign(m_records.size(), true);
        for (int number = Count() - 1; number >= 0; --number) {
            if (m_isDropped[number] && !Passes(*m_records[number], columns, filter))
                continue;
            m_isDropped[number] = false;
            if (m_parents[number] >= 0)
                m_isDropped[m_parents[number]] = false;
        }
    }

    void ListChildren() {
        const auto isShown = [this](int number) { return m_isDropped.empty() || !m_isDropped[number]; };
        m_begins.assign(m_records.size() + 2, 0);
        for (int number = 0; number < Count(); ++number)
            if (isShown(number))
                ++m_begins[m_parents[number] + 2];
        std::partial_sum(m_begins.begin(), m_begins.end(), m_begins.begin());
        m_children.resize(m_begins.back());
        Numbers places(m_begins.begin(), m_begins.end());
        for (int number = 0; number < Count(); ++number)
            if (isShown(number))
                m_children[places[m_parents[number] + 1]++] = number;
    }

    Records m_records;
    Numbers m_parents;             ///< -1 for the records of the control's own collection
    std::vector<bool> m_isDropped; ///< by the filter; empty: none
    Numbers m_begins;              ///< of the children of each record, behind those of none
    Numbers m_children;
};

/// Writes rows down from the top.
class Writer {
public:
    Writer(Forest& forest, CXTPReportColumns& columns, ReportGroups& groups)
        : m_forest(forest), m_columns(columns), m_groups(groups) {
        const CXTPReportColumnOrder& order = *columns.GetGroupsOrder();
        for (int i = 0; i < order.GetCount(); ++i)
            m_groupColumns.push_back(order.GetAt(i));
    }

    RowList Write() {
        for (int parent = -1; parent < m_forest.Count(); ++parent)
            Sort(m_forest.Children(parent));
        m_groups.BeginUse();
        WriteGroups(m_forest.Children(-1), 0, m_groups.root, -1);
        return std::move(m_rows);
    }

private:
    void Sort(std::span<int> numbers) const {
        if (numbers.size() < 2 || m_columns.GetSortOrder()->GetCount() == 0)
            return;
        Records records;
        records.reserve(numbers.size());
        for (const int number : numbers)
            records.push_back(m_forest.Record(number));
        const Numbers former(numbers.begin(), numbers.end());
        const std::vector<std::uint32_t> order = reportsort::Order(records, m_columns);
        std::transform(order.begin(), order.end(), numbers.begin(), [&](std::uint32_t place) { return former[place]; });
    }

    int Add(CXTPReportRecord* record, int parent) {
        m_rows.records.push_back(record);
        m_rows.parents.push_back(parent);
        return static_cast<int>(m_rows.records.size()) - 1;
    }

    /// The records with all below them.
    void WriteRecords(std::span<const int> numbers, int parent) {
        struct Rest {
            std::span<const int> numbers;
            int parent;
        };
        std::vector<Rest> rests{{numbers, parent}};
        while (!rests.empty()) {
            Rest& rest = rests.back();
            if (rest.numbers.empty()) {
                rests.pop_back();
                continue;
            }
            const int number = rest.numbers.front();
            rest.numbers = rest.numbers.subspan(1);
            const int place = Add(m_forest.Record(number), rest.parent);
            if (const std::span<int> children = m_forest.Children(number); !children.empty())
                rests.push_back({children, place});
        }
    }

    /// The records by groups of the grouping columns from `level` on, below `above`, whose row is `parent`.
    void WriteGroups(std::span<int> numbers, std::size_t level, ReportGroup& above, int parent) {
        if (level == m_groupColumns.size()) {
            WriteRecords(numbers, parent);
            return;
        }
        std::vector<Bucket> buckets = Parted(numbers, m_groupColumns[level], above);
        for (const Bucket& bucket : buckets) {
            const int place = Add(bucket.group, parent);
            WriteGroups(bucket.numbers, level + 1, *bucket.group, place);
        }
    }

    struct Bucket {
        ReportGroup* group;
        CXTPReportRecordItem* first; ///< stands for the group when groups are compared; null without a text
        std::size_t count;
        std::span<int> numbers;
    };

    /// Brings the records of each group together, the groups in their order and the records in theirs.
    std::vector<Bucket> Parted(std::span<int> numbers, CXTPReportColumn* column, ReportGroup& above) {
        std::vector<Bucket> buckets;
        std::vector<ReportGroup*> groups; // of each record
        groups.reserve(numbers.size());
        for (const int number : numbers) {
            CXTPReportRecordItem* const item = m_forest.Record(number)->GetItem(column);
            const CString value = item ? item->GetCaption(column) : CString();
            ReportGroup& group = above.Below(column, value);
            if (group.use != m_groups.use) {
                group.use = m_groups.use;
                group.bucket = static_cast<int>(buckets.size());
                buckets.push_back({&group, value.IsEmpty() ? nullptr : item, 0, {}});
            }
            ++buckets[group.bucket].count;
            groups.push_back(&group);
        }
        const bool isIncreasing = column->IsSortIncreasing() != FALSE;
        // Merging bears cells whose comparison is no order at all.
        std::stable_sort(buckets.begin(), buckets.end(), [&](const Bucket& left, const Bucket& right) {
            const int order = left.first && right.first
                                  ? left.first->Compare(column, right.first)
                                  : static_cast<int>(left.first != nullptr) - static_cast<int>(right.first != nullptr);
            return isIncreasing ? order < 0 : order > 0;
        });

        const Numbers former(numbers.begin(), numbers.end());
        std::size_t begin = 0;
        for (std::size_t i = 0; i < buckets.size(); ++i) {
            buckets[i].group->bucket = static_cast<int>(i);
            buckets[i].numbers = numbers.subspan(begin, 0);
            begin += buckets[i].count;
        }
        for (std::size_t i = 0; i < former.size(); ++i) {
            std::span<int>& filled = buckets[groups[i]->bucket].numbers;
            filled = std::span(filled.data(), filled.size() + 1);
            filled.back() = former[i];
        }
        return buckets;
    }

    Forest& m_forest;
    CXTPReportColumns& m_columns;
    ReportGroups& m_groups;
    std::vector<CXTPReportColumn*> m_groupColumns;
    RowList m_rows;
};

/// The records of a grid without groups and child records; cheaper than the way of the others.
RowList Flat(Records shown, CXTPReportColumns& columns) {
    if (columns.GetSortOrder()->GetCount() == 0 || shown.size() < 2)
        return {std::move(shown), {}};
    const std::vector<std::uint32_t> order = reportsort::Order(shown, columns);
    Records sorted;
    sorted.reserve(shown.size());
    for (const std::uint32_t place : order)
        sorted.push_back(shown[place]);
    return {std::move(sorted), {}};
}

} // namespace

RowList Build(const CXTPReportRecords& records, CXTPReportColumns& columns, const TextFilter& filter,
              ReportGroups& groups) {
    const Records& top = records.GetRecords();
    Records shown;
    shown.reserve(top.size());
    bool isOutline = columns.GetGroupsOrder()->GetCount() > 0;
    for (auto it = top.begin(); it != top.end() && !isOutline; ++it) {
        if (!(*it)->IsVisible())
            continue;
        isOutline = (*it)->HasChildren() != FALSE;
        if (!isOutline && Passes(**it, columns, filter))
            shown.push_back(*it);
    }
    if (!isOutline)
        return Flat(std::move(shown), columns);
    shown = Records();
    Forest forest(top, columns, filter);
    return Writer(forest, columns, groups).Write();
}

} // namespace rowbuilder
