// One record: a row's worth of items.
#pragma once

#include "XTPReportDefines.h"

#include <vector>

/// Owns its items. Created by the host with `new`; owned by the record collection it is added to.
class KY_TOOLKIT_API CXTPReportRecord : public CCmdTarget {
    DECLARE_DYNAMIC(CXTPReportRecord)
public:
    CXTPReportRecord();
    ~CXTPReportRecord() override;

    /// Takes ownership and returns the item, so that it can be set up in the same expression.
    virtual CXTPReportRecordItem* AddItem(CXTPReportRecordItem* pItem);
    int GetItemCount() const { return static_cast<int>(m_items.size()); }
    CXTPReportRecordItem* GetItem(int nItemIndex) const; ///< null when out of range
    CXTPReportRecordItem* GetItem(const CXTPReportColumn* pColumn) const;
    int IndexOf(const CXTPReportRecordItem* pItem) const;

    /// An invisible record gets no row at the next `Populate`.
    BOOL IsVisible() const { return m_bVisible; }
    void SetVisible(BOOL bVisible) { m_bVisible = bVisible; }

    int GetIndex() const { return m_nIndex; } ///< place in the collection, −1 when in none
    CXTPReportRecords* GetRecords() const { return m_pRecords; }
    /// Removes the record from its collection and deletes it.
    void Delete();

    DWORD_PTR GetItemData() const { return m_dwData; }
    void SetItemData(DWORD_PTR dwData) { m_dwData = dwData; }

    /// Lets a record change how its cells look; called by the row after the theme and before the item.
    virtual void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics);

private:
    friend class CXTPReportRecords;
    std::vector<CXTPReportRecordItem*> m_items; ///< released in the destructor
    CXTPReportRecords* m_pRecords = nullptr;
    DWORD_PTR m_dwData = 0;
    int m_nIndex = -1;
    bool m_bVisible = true;
};
