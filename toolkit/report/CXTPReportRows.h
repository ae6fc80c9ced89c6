// The rows of a report control: the records in the order in which they are shown.
#pragma once

#include "XTPReportDefines.h"

#include <unordered_map>
#include <vector>

/// Rebuilt by `CXTPReportControl::Populate`. Row objects are made when they are first asked for, so that a control with
/// millions of rows holds objects only for those that were looked at.
class KY_TOOLKIT_API CXTPReportRows : public CCmdTarget {
public:
    explicit CXTPReportRows(CXTPReportControl* pControl);
    ~CXTPReportRows() override;

    int GetCount() const;
    CXTPReportRow* GetAt(int nIndex) const; ///< null when out of range
    CXTPReportRow* Find(CXTPReportRecord* pRecord) const;
    CXTPReportRecord* GetRecordAt(int nIndex) const; ///< as `GetAt(n)->GetRecord()` without making the row object
    CXTPReportControl* GetControl() const { return m_pControl; }

    // --- For the control ----------------------------------------------------------------------------------------
    /// Takes the visible records in the given order; every earlier row object is detached.
    void Rebuild(std::vector<CXTPReportRecord*> records);
    void RebuildVirtual(CXTPReportRecord* pVirtualRecord, int nCount);
    /// Takes out the row of a record that is about to be deleted.
    void RecordRemoved(CXTPReportRecord* pRecord);
    void Clear();

private:
    void DetachRowObjects();

    CXTPReportControl* m_pControl;
    std::vector<CXTPReportRecord*> m_records;
    CXTPReportRecord* m_pVirtualRecord = nullptr;
    int m_nVirtualCount = 0;
    mutable std::unordered_map<int, CXTPReportRow*> m_rowObjects;
};
