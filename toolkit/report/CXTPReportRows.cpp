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

std::uintptr_t CXTPReportRows::KeyOf(int nIndex) const {
    return m_pVirtualRecord ? static_cast<std::uintptr_t>(nIndex)
                            : reinterpret_cast<std::uintptr_t>(m_records.At(nIndex));
}

CXTPReportRow* CXTPReportRows::GetAt(int nIndex) const {
    CXTPReportRecord* const pRecord = GetRecordAt(nIndex);
    if (!pRecord)
        return nullptr;
    const auto [it, isNew] = m_rowObjects.try_emplace(KeyOf(nIndex), nullptr);
    if (!isNew)
        return it->second;
    try {
        return it->second = new CXTPReportRow(const_cast<CXTPReportRows*>(this), pRecord, nIndex);
    } catch (...) {
        m_rowObjects.erase(it);
        throw;
    }
}

int CXTPReportRows::IndexOf(const CXTPReportRecord* pRecord) const { return m_records.IndexOf(pRecord); }

CXTPReportRow* CXTPReportRows::Find(CXTPReportRecord* pRecord) const { return GetAt(IndexOf(pRecord)); }

// --- For the control -------------------------------------------------------------------------------------------------

void CXTPReportRows::Detach(CXTPReportRow* pRow) {
    pRow->m_pRows = nullptr;
    pRow->m_pRecord = nullptr;
    pRow->InternalRelease();
}

void CXTPReportRows::DetachRowObjects() {
    for (const auto& [key, pRow] : std::exchange(m_rowObjects, {}))
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
    if (auto node = m_rowObjects.extract(KeyOf(nIndex)))
        Detach(node.mapped());
    m_records.Erase(nIndex);
    for (const auto& [key, pRow] : m_rowObjects)
        if (pRow->m_nIndex > nIndex)
            --pRow->m_nIndex;
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
