// One record: a row's worth of items.
#include "CXTPReportRecord.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRecords.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CXTPReportRecord, CCmdTarget)

CXTPReportRecord::CXTPReportRecord() = default;

CXTPReportRecord::~CXTPReportRecord() {
    for (CXTPReportRecordItem* const pItem : m_items) {
        pItem->m_pRecord = nullptr;
        pItem->InternalRelease();
    }
}

void* CXTPReportRecord::operator new(size_t size) {
    return recorditemheap::TakeObject(recorditemheap::Kind::Record, size);
}

void CXTPReportRecord::operator delete(void* p, size_t size) {
    recorditemheap::ReturnObject(recorditemheap::Kind::Record, p, size);
}

CXTPReportRecordItem* CXTPReportRecord::AddItem(CXTPReportRecordItem* pItem) {
    if (!pItem)
        return nullptr;
    ASSERT(!pItem->m_pRecord);
    try {
        m_items.push_back(pItem);
    } catch (...) {
        pItem->InternalRelease(); // it was taken over already
        throw;
    }
    pItem->m_pRecord = this;
    return pItem;
}

CXTPReportRecordItem* CXTPReportRecord::GetItem(int nItemIndex) const {
    return nItemIndex >= 0 && nItemIndex < GetItemCount() ? m_items[nItemIndex] : nullptr;
}

CXTPReportRecordItem* CXTPReportRecord::GetItem(const CXTPReportColumn* pColumn) const {
    return pColumn ? GetItem(pColumn->GetItemIndex()) : nullptr;
}

int CXTPReportRecord::IndexOf(const CXTPReportRecordItem* pItem) const {
    const auto it = std::find(m_items.begin(), m_items.end(), pItem);
    return it != m_items.end() ? static_cast<int>(it - m_items.begin()) : -1;
}

int CXTPReportRecord::GetIndex() const { return m_pRecords ? m_pRecords->IndexOf(this) : -1; }

void CXTPReportRecord::Delete() {
    if (m_pRecords)
        m_pRecords->RemoveRecord(this);
    else
        InternalRelease();
}

void CXTPReportRecord::GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* /*pDrawArgs*/,
                                      XTP_REPORTRECORDITEM_METRICS* /*pMetrics*/) {}
