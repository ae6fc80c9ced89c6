// The rows of a report control: the records in the order in which they are shown.
#include "CXTPReportRows.h"

#include "CXTPReportControl.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRow.h"
#include "CXTPReportSelectedRows.h"

#include <algorithm>
#include <iterator>
#include <new>
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
    return m_rowObjects[nIndex / RowBlock][nIndex % RowBlock];
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
    for (const auto& [nBlock, rows] : std::exchange(m_rowObjects, {}))
        std::for_each(rows.begin(), rows.end(), Detach);
}

/// Lets go of a row object; those below it move up by one place. Want of memory costs all of them, to be made again.
void CXTPReportRows::TakeOutRowObject(int nIndex) try {
    std::vector<CXTPReportRow*> below;
    for (const auto& [nBlock, rows] : m_rowObjects)
        std::copy_if(rows.begin(), rows.end(), std::back_inserter(below),
                     [nIndex](const CXTPReportRow* pRow) { return pRow && pRow->m_nIndex > nIndex; });
    // Room is made before anything moves.
    CXTPReportRow*& pTaken = RowObject(nIndex);
    for (const CXTPReportRow* const pRow : below)
        RowObject(pRow->m_nIndex - 1);
    Detach(std::exchange(pTaken, nullptr));
    for (const CXTPReportRow* const pRow : below)
        RowObject(pRow->m_nIndex) = nullptr;
    for (CXTPReportRow* const pRow : below)
        RowObject(--pRow->m_nIndex) = pRow;
} catch (const std::bad_alloc&) {
    DetachRowObjects();
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
    if (!m_rowObjects.empty())
        TakeOutRowObject(nIndex);
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
