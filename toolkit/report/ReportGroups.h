// The groups of a report control's rows.
#pragma once

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"

#include "../common/ObjectReference.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

/// Stands for a group among the records that have rows: it has a place, and an expanded state, as they have. Nobody
/// outside of the rows ever sees it. It is told from the others by its caption and column, and by the groups above it,
/// so that the same group is the same object after a `Populate`, and its state and its selection stay.
class ReportGroup final : public CXTPReportRecord {
public:
    /// No column: the one above all others.
    explicit ReportGroup(CXTPReportColumn* column = nullptr, const CString& value = CString());

    CXTPReportColumn* Column() const { return m_column.get(); } ///< kept in memory, not in the control
    const CString& Value() const { return m_value; } ///< what the records of the group show in the column; may be empty

    /// The group for a text below this one; made when there was none yet.
    ReportGroup& Below(CXTPReportColumn* column, const CString& value);
    /// All below this one, and those below them.
    std::size_t CountBelow() const;
    /// Forgets all of them that were not used in that building.
    void ForgetUnused(int lastUse);

    int records = 0; ///< below it in the rows
    int groups = 0;  ///< below it in the rows
    int use = 0;     ///< the number of the building that has used it last
    int bucket = 0;  ///< the group's number among those next to it, during a building

private:
    struct Key {
        const CXTPReportColumn* column;
        std::wstring value;
    };
    struct KeyView {
        const CXTPReportColumn* column;
        std::wstring_view value;
        explicit(false) KeyView(const Key& key) : column(key.column), value(key.value) {}
        KeyView(const CXTPReportColumn* ofColumn, std::wstring_view text) : column(ofColumn), value(text) {}
        bool operator==(const KeyView&) const = default;
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const KeyView& key) const {
            return std::hash<std::wstring_view>()(key.value) ^ std::hash<const void*>()(key.column);
        }
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(const KeyView& left, const KeyView& right) const { return left == right; }
    };

    boost::intrusive_ptr<CXTPReportColumn> m_column;
    CString m_value;
    std::unordered_map<Key, std::unique_ptr<ReportGroup>, Hash, Equal> m_below;
};

/// Every group that there has been, as long as there are not very many: one that a filter hides comes back as it was.
struct ReportGroups {
    ReportGroup root;
    int use = 0;         ///< counts the buildings
    bool isShown = true; ///< the last one has become the rows, or there were none

    /// Another building begins. Groups that the last one has not used are forgotten when they have become very many;
    /// those that it has used live at least until the next one.
    void BeginUse();
};
