// The records of a report control, or those below a record.
#include "CXTPReportRecords.h"

#include "CXTPReportControl.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRows.h"
#include "StoredClass.h"

#include <algorithm>

CXTPReportRecords::CXTPReportRecords(CXTPReportControl* pControl)
    : m_pControl(pControl), m_records(&CXTPReportRecord::m_nIndex) {}

CXTPReportRecords::CXTPReportRecords(CXTPReportRecord& rOwnerRecord)
    : m_pOwnerRecord(&rOwnerRecord), m_records(&CXTPReportRecord::m_nIndex) {}

CXTPReportRecords::~CXTPReportRecords() {
    // The control is being destroyed, and its rows are gone.
    m_pControl = nullptr;
    RemoveAll();
}

CXTPReportControl* CXTPReportRecords::GetControl() const {
    if (!m_pOwnerRecord)
        return m_pControl;
    const CXTPReportRecords* const pAbove = m_pOwnerRecord->GetRecords();
    return pAbove ? pAbove->GetControl() : nullptr;
}

CXTPReportRows* CXTPReportRecords::GetRows() const {
    const CXTPReportControl* const pControl = GetControl();
    return pControl ? pControl->GetRows() : nullptr;
}

int CXTPReportRecords::GetCount() const { return m_records.Count(); }

CXTPReportRecord* CXTPReportRecords::GetAt(int nIndex) const { return m_records.At(nIndex); }

int CXTPReportRecords::IndexOf(const CXTPReportRecord* pRecord) const { return m_records.IndexOf(pRecord); }

const std::vector<CXTPReportRecord*>& CXTPReportRecords::GetRecords() const { return m_records.Records(); }

CXTPReportRecord* CXTPReportRecords::Add(CXTPReportRecord* pRecord) {
    InsertAt(GetCount(), pRecord);
    return pRecord;
}

void CXTPReportRecords::InsertAt(int nIndex, CXTPReportRecord* pRecord) {
    if (!pRecord)
        return;
    ASSERT(!pRecord->m_pRecords);
    pRecord->m_pRecords = this;
    try {
        if (nIndex >= GetCount())
            m_records.Append(pRecord);
        else
            m_records.Insert(std::max(nIndex, 0), pRecord);
    } catch (...) {
        Release(pRecord); // it was taken over already
        throw;
    }
}

void CXTPReportRecords::InsertAt(int nIndex, const std::vector<CXTPReportRecord*>& records) {
    for (CXTPReportRecord* const pRecord : records) {
        ASSERT(!pRecord->m_pRecords);
        pRecord->m_pRecords = this;
    }
    try {
        m_records.Insert(std::clamp(nIndex, 0, GetCount()), records);
    } catch (...) {
        std::for_each(records.begin(), records.end(), [this](CXTPReportRecord* pRecord) { Release(pRecord); });
        throw;
    }
}

void CXTPReportRecords::RemoveRecords(const std::vector<CXTPReportRecord*>& records) {
    if (CXTPReportControl* const pControl = GetControl())
        for (const CXTPReportRecord* const pRecord : records)
            if (IndexOf(pRecord) >= 0 && !pControl->OnRecordLeaving(pRecord))
                return;
    // The hooks of the host may have changed the collection.
    std::vector<int> places;
    for (const CXTPReportRecord* const pRecord : records)
        if (const int nIndex = IndexOf(pRecord); nIndex >= 0)
            places.push_back(nIndex);
    std::sort(places.begin(), places.end());
    RowSelection gone;
    std::vector<CXTPReportRecord*> removed;
    for (const int nIndex : places) {
        if (gone.Contains(nIndex))
            continue; // named twice
        gone.Add(nIndex, nIndex);
        removed.push_back(GetAt(nIndex));
    }
    m_records.Erase(gone);
    const auto release = [&] {
        std::for_each(removed.begin(), removed.end(), [this](CXTPReportRecord* pRecord) { Release(pRecord); });
    };
    try {
        if (CXTPReportRows* const pRows = GetRows())
            pRows->RecordsRemoved(removed);
    } catch (...) {
        release(); // their rows have gone
        throw;
    }
    release();
}

BOOL CXTPReportRecords::RemoveRecord(CXTPReportRecord* pRecord) {
    CXTPReportControl* const pControl = GetControl();
    if (pControl && pRecord && !pControl->OnRecordLeaving(pRecord))
        return FALSE;
    if (pRecord && pRecord == m_pVirtualRecord) {
        SetVirtualMode(nullptr, 0);
        return TRUE;
    }
    const int nIndex = IndexOf(pRecord);
    if (nIndex < 0)
        return FALSE;
    m_records.Erase(nIndex);
    try {
        if (CXTPReportRows* const pRows = GetRows())
            pRows->RecordRemoved(pRecord);
    } catch (...) {
        Release(pRecord); // its row has gone
        throw;
    }
    Release(pRecord);
    return TRUE;
}

void CXTPReportRecords::RemoveAt(int nIndex) { RemoveRecord(GetAt(nIndex)); }

/// FALSE when the window is gone, see `CXTPReportControl::OnRecordLeaving`.
bool CXTPReportRecords::AllowRemoveAll() const {
    CXTPReportControl* const pControl = GetControl();
    if (!pControl || !m_pOwnerRecord)
        return !pControl || pControl->OnRecordLeaving(nullptr);
    // The hooks of the host may change the collection.
    for (int nIndex = 0; nIndex < GetCount(); ++nIndex)
        if (!pControl->OnRecordLeaving(GetAt(nIndex)))
            return false;
    return true;
}

void CXTPReportRecords::RemoveAll() {
    if (!AllowRemoveAll())
        return;
    if (CXTPReportRows* const pRows = GetRows()) {
        if (m_pOwnerRecord)
            pRows->ChildrenRemoved(m_pOwnerRecord);
        else
            pRows->Clear();
    }
    for (CXTPReportRecord* const pRecord : m_records.Take())
        Release(pRecord);
    m_nVirtualCount = 0;
    if (CXTPReportRecord* const pVirtualRecord = std::exchange(m_pVirtualRecord, nullptr))
        Release(pVirtualRecord);
}

void CXTPReportRecords::Release(CXTPReportRecord* pRecord) {
    pRecord->m_pRecords = nullptr;
    pRecord->InternalRelease();
}

void CXTPReportRecords::SetVirtualMode(CXTPReportRecord* pVirtualRecord, int nCount) {
    if (pVirtualRecord && pVirtualRecord == m_pVirtualRecord) {
        m_nVirtualCount = std::max(nCount, 0);
        return;
    }
    if (m_pControl && !m_pControl->OnRecordLeaving(nullptr)) {
        if (pVirtualRecord)
            pVirtualRecord->InternalRelease(); // it was taken over already
        return;
    }
    RemoveAll();
    if (!pVirtualRecord)
        return;
    ASSERT(!m_pOwnerRecord);
    ASSERT(!pVirtualRecord->m_pRecords);
    pVirtualRecord->m_pRecords = this;
    m_pVirtualRecord = pVirtualRecord;
    m_nVirtualCount = std::max(nCount, 0);
}

void CXTPReportRecords::DoPropExchange(CXTPPropExchange* pPX) {
    const CXTPPropExchangeEnumeratorPtr sections(pPX->GetEnumerator(_T("Record")));
    if (pPX->IsStoring()) {
        POSITION pos = sections->GetPosition(static_cast<DWORD>(GetCount()));
        for (CXTPReportRecord* const pRecord : GetRecords()) {
            const CXTPPropExchangeSection section(sections->GetNext(pos));
            storedclass::Write(&section, *pRecord);
            pRecord->DoPropExchange(&section);
        }
        return;
    }
    RemoveAll();
    for (POSITION pos = sections->GetPosition(); pos;) {
        const CXTPPropExchangeSection section(sections->GetNext(pos));
        CXTPReportRecord* pRecord = storedclass::Make<CXTPReportRecord>(&section);
        if (!pRecord)
            pRecord = new CXTPReportRecord;
        Add(pRecord)->DoPropExchange(&section);
    }
}
