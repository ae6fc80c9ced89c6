/// @file
/// One record: a row's worth of items.
#pragma once

#include "RecordItemHeap.h"
#include "XTPReportDefines.h"

#include <memory>
#include <vector>

class CXTPPropExchange;

/// Owns its items and its child records. Created by the host with `new`; owned by the record collection it is added to.
/// Reference counted like its items: a handler that may cause the record's removal holds a reference.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportRecord : public CCmdTarget {
    DECLARE_DYNCREATE(CXTPReportRecord)
public:
    CXTPReportRecord();
    ~CXTPReportRecord() override;

    static void* operator new(size_t size);            ///< memory comes from the record-item heap
    static void operator delete(void* p, size_t size); ///< and goes back there

    /// Takes ownership and returns the item, so that it can be set up in the same expression. Null is not added.
    virtual CXTPReportRecordItem* AddItem(CXTPReportRecordItem* pItem);
    int GetItemCount() const { return static_cast<int>(m_items.size()); } ///< columns may show fewer, or more
    CXTPReportRecordItem* GetItem(int nItemIndex) const;                  ///< null when out of range
    /// The item that the column shows; null for a null column and when the record has too few items.
    CXTPReportRecordItem* GetItem(const CXTPReportColumn* pColumn) const;
    /// Takes ownership of the text that stands below the cells in preview mode, and returns it; the former one is
    /// released. Null takes it away. Rows follow at the next `Populate`.
    CXTPReportRecordItemPreview* SetPreviewItem(CXTPReportRecordItemPreview* pItemPreview);
    CXTPReportRecordItemPreview* GetItemPreview() const;  ///< null when there is none
    int IndexOf(const CXTPReportRecordItem* pItem) const; ///< −1 when the item is not in this record

    /// The records below this one, in their own order; made when they are first asked for, never null. They have rows
    /// below that of this record while it is expanded.
    CXTPReportRecords* GetChilds();
    BOOL HasChildren() const;                  ///< there is a record below this one
    CXTPReportRecord* GetParentRecord() const; ///< null for a record of the control's own collection, and of none

    /// An invisible record gets no row at the next `Populate`.
    BOOL IsVisible() const { return m_bVisible; }
    /// Rows follow at the next `Populate`. An invisible record hides those below it.
    void SetVisible(BOOL bVisible) { m_bVisible = bVisible; }
    /// Whether the records below this one are shown, as far as this one is. FALSE at first. The user's expanding and
    /// collapsing is kept here, but not while a filter is set, see `CXTPReportControl::SetFilterText`.
    BOOL IsExpanded() const { return m_bExpanded; }
    /// Rows follow at the next `Populate`; `CXTPReportRow::SetExpanded` is for at once.
    void SetExpanded(BOOL bExpanded) { m_bExpanded = bExpanded != FALSE; }
    /// The text in which the control looks for the words of its filter: here what the record shows in the visible
    /// columns that are filtrable, parted by line feeds. Overrides may append what is to be found besides.
    virtual CString GetFilterText(const CXTPReportColumns& rColumns);

    int GetIndex() const; ///< place in the collection, −1 when in none; −1 for the record of virtual mode
    CXTPReportRecords* GetRecords() const { return m_pRecords; } ///< null before the record is added
    /// Removes the record, and its row and those below it, from its collection and deletes it. The items that handlers
    /// hold references to live on without a record.
    void Delete();

    /// Writes or reads the record: whether it is visible and expanded, its items, its preview and its child records.
    /// Reading replaces items and children by new ones of the classes that were written; an item of a class that nobody
    /// can make becomes a text item, such a record a plain one. What belongs to the host (item data) is not exchanged.
    virtual void DoPropExchange(CXTPPropExchange* pPX);

    DWORD_PTR GetItemData() const;      ///< 0 at first
    void SetItemData(DWORD_PTR dwData); ///< for the host; never looked at here

    /// Lets a record change how its cells look; called by the row after the theme and before the item.
    virtual void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics);

private:
    struct Extras; ///< what few records have: child records, a preview, data
    Extras& EnsureExtras();
    void StoreItems(CXTPPropExchange* pPX);
    void LoadItems(CXTPPropExchange* pPX);
    void ExchangePreview(CXTPPropExchange* pPX);
    void ReleaseItems();
    static void Release(CXTPReportRecordItem* pItem);

    friend class CXTPReportRecords;
    friend class CXTPReportRows;
    friend class ReportGroup;

    int m_nIndex = -1; ///< kept by the collection's sequence
    std::vector<CXTPReportRecordItem*, recorditemheap::Allocator<CXTPReportRecordItem*>> m_items;
    CXTPReportRecords* m_pRecords = nullptr;
    std::unique_ptr<Extras> m_pExtras;
    int m_nRow = -1; ///< kept by the rows' sequence
    bool m_bVisible = true;
    bool m_bExpanded = false;
    bool m_bCollapsedInFilter = false; ///< takes the place of `m_bExpanded` while a filter is set
    bool m_bGroup = false;             ///< stands for a group of records among the rows
};
