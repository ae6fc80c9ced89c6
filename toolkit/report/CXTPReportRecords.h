// The records of a report control.
#pragma once

#include "XTPReportDefines.h"

#include <vector>

/// Owns the records. In virtual mode it owns one record that stands for all rows.
class KY_TOOLKIT_API CXTPReportRecords : public CCmdTarget {
public:
    explicit CXTPReportRecords(CXTPReportControl* pControl);
    ~CXTPReportRecords() override;

    CXTPReportRecord* Add(CXTPReportRecord* pRecord);
    void InsertAt(int nIndex, CXTPReportRecord* pRecord); ///< clamped to 0…count
    /// Deletes the record; its row goes with it at once, so that no row ever shows a dead record.
    BOOL RemoveRecord(CXTPReportRecord* pRecord);
    void RemoveAt(int nIndex);
    void RemoveAll();

    int GetCount() const { return static_cast<int>(m_records.size()); }
    CXTPReportRecord* GetAt(int nIndex) const; ///< null when out of range
    CXTPReportControl* GetControl() const { return m_pControl; }

    /// One record for `nCount` rows; null and 0 end virtual mode. Takes ownership of the record.
    void SetVirtualMode(CXTPReportRecord* pVirtualRecord, int nCount);
    BOOL IsVirtualMode() const { return m_pVirtualRecord != nullptr; }
    CXTPReportRecord* GetVirtualRecord() const { return m_pVirtualRecord; }
    int GetVirtualCount() const { return m_nVirtualCount; }

private:
    void Reindex(int nFirst);

    CXTPReportControl* m_pControl;
    std::vector<CXTPReportRecord*> m_records;
    CXTPReportRecord* m_pVirtualRecord = nullptr;
    int m_nVirtualCount = 0;
};
