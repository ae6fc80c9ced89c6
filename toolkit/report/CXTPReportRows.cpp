// The rows of a report control: the records in the order in which they are shown.
#include "CXTPReportRows.h"

#include "CXTPReportControl.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRow.h"
#include "CXTPReportSelectedRows.h"

#include <algorithm>
#include <utility>

CXTPReportRows::CXTPReportRows(CXTPReportControl* pControl)
    : m_pControl(pControl), m_records(&CXTPReportRecord::m_nRow) {}

CXTPReportRows::~CXTPReportRows() { DetachRowObjects(); }

int CXTPReportRows::GetCount() const { return m_pVirtualRecord ? m_nVirtualCount : m_records.Count(); }

CXTPReportRecord* CXTPReportRows::GetRecordAt(int nIndex) const {
    if (!m_pVirtualRecord)
        return m_records.At(nIndex);
    return nIndex >= 0 && nIndex < m_nVirtualCount ? m_pVirtualRecord : nullptr;
}

/// Where the row object of a row that is there is kept.
CXTPReportRow*& CXTPReportRows::RowObject(int nIndex) const {
    if (m_pVirtualRecord)
        return m_virtualRowObjects[nIndex];
    if (m_rowObjects.empty())
        m_rowObjects.resize(GetCount());
    return m_rowObjects[nIndex];
}

CXTPReportRow* CXTPReportRows::GetAt(int nIndex) const {
    CXTPReportRecord* const pRecord = GetRecordAt(nIndex);
    if (!pRecord)
        return nullptr;
    CXTPReportRow*& pRow = RowObject(nIndex);
    if (!pRow)
        pRow = new CXTPReportRow(const_cast<CXTPReportRows*>(this), pRecord, nIndex);
    return pRow;
}

int CXTPReportRows::IndexOf(const CXTPReportRecord* pRecord) const { return m_records.IndexOf(pRecord); }

CXTPReportRow* CXTPReportRows::Find(CXTPReportRecord* pRecord) const { return GetAt(IndexOf(pRecord)); }

// --- For the control -------------------------------------------------------------------------------------------------

/// Takes the row object out of the rows; null is ignored.
void CXTPReportRows::Detach(CXTPReportRow* pRow) {
    if (!pRow)
        return;
    pRow->m_pRows = nullptr;
    pRow->m_pRecord = nullptr;
    pRow->InternalRelease();
}

void CXTPReportRows::DetachRowObjects() {
    for (CXTPReportRow* const pRow : std::exchange(m_rowObjects, {}))
        Detach(pRow);
    for (const auto& [nIndex, pRow] : std::exchange(m_virtualRowObjects, {}))
        Detach(pRow);
}

void CXTPReportRows::Rebuild(std::vector<CXTPReportRecord*> records) {
    DetachRowObjects();
    m_pVirtualRecord = nullptr;
    m_nVirtualCount = 0;
    m_records.Assign(std::move(records));
}

void CXTPReportRows::RebuildVirtual(CXTPReportRecord* pVirtualRecord, int nCount) {
    DetachRowObjects();
    m_records.Take();
    m_pVirtualRecord = pVirtualRecord;
    m_nVirtualCount = pVirtualRecord ? std::max(nCount, 0) : 0;
}

void CXTPReportRows::RecordRemoved(CXTPReportRecord* pRecord) {
    const int nIndex = IndexOf(pRecord);
    if (nIndex < 0)
        return;
    m_records.Erase(nIndex);
    if (!m_rowObjects.empty()) {
        Detach(m_rowObjects[nIndex]);
        const auto next = m_rowObjects.erase(m_rowObjects.begin() + nIndex);
        std::for_each(next, m_rowObjects.end(), [](CXTPReportRow* pRow) {
            if (pRow)
                --pRow->m_nIndex;
        });
    }
    if (m_pControl) {
        m_pControl->GetSelectedRows()->RowRemoved(nIndex);
        m_pControl->OnRowRemoved(nIndex);
    }
}

void CXTPReportRows::Clear() {
    RebuildVirtual(nullptr, 0);
    if (m_pControl) {
        m_pControl->GetSelectedRows()->SetRanges(RowSelection());
        m_pControl->GetSelectedRows()->SetAnchor(-1);
        m_pControl->OnRowsCleared();
    }
}
