/// @file
/// The records of a report control, or those below a record.
#pragma once

#include "RecordSequence.h"
#include "XTPReportDefines.h"

#include <vector>

class CXTPPropExchange;

/// Owns the records. In virtual mode it owns one record that stands for all rows. Records that are added show after the
/// control's next `Populate`; records that are removed lose their rows at once.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportRecords : public CCmdTarget {
public:
    /// @param pControl the control that owns the collection; null for a collection without one, as in tests
    explicit CXTPReportRecords(CXTPReportControl* pControl);
    /// @param rOwnerRecord the record that owns the collection, as that of its children; such a collection has no
    ///                     virtual mode
    explicit CXTPReportRecords(CXTPReportRecord& rOwnerRecord);
    ~CXTPReportRecords() override;

    /// Takes ownership and returns the record; null is not added.
    CXTPReportRecord* Add(CXTPReportRecord* pRecord);
    void InsertAt(int nIndex, CXTPReportRecord* pRecord); ///< clamped to 0…count
    /// The same for several records, none of them null, which stand in that order then: linear in the records that are
    /// there and those that come.
    void InsertAt(int nIndex, const std::vector<CXTPReportRecord*>& records);
    /// Deletes the record; its row goes with it at once, and those below it, so that no row ever shows a dead record.
    /// FALSE when the record is not in this collection.
    BOOL RemoveRecord(CXTPReportRecord* pRecord);
    /// Deletes these records; those that are not in this collection stay. Linear in the records that are there, unless
    /// the rows are an outline.
    void RemoveRecords(const std::vector<CXTPReportRecord*>& records);
    void RemoveAt(int nIndex); ///< nothing happens when out of range
    /// Deletes all records with their rows; virtual mode ends.
    void RemoveAll();

    /// Records there are; 0 in virtual mode.
    int GetCount() const;
    CXTPReportRecord* GetAt(int nIndex) const;          ///< null when out of range
    int IndexOf(const CXTPReportRecord* pRecord) const; ///< −1 when absent
    /// The control that shows the records, or the records above them; null while it is being destroyed.
    CXTPReportControl* GetControl() const;
    /// The record whose children these are; null for a control's own collection.
    CXTPReportRecord* GetOwnerRecord() const { return m_pOwnerRecord; }

    /// Writes or reads all records, one section "Record" for each. Reading replaces those that are there; rows follow
    /// at the next `Populate`. The record of virtual mode is not exchanged.
    void DoPropExchange(CXTPPropExchange* pPX);

    /// One record for `nCount` rows, shown after `Populate`; it takes the place of all records that are there. Null and
    /// 0 end virtual mode. Takes ownership of the record.
    void SetVirtualMode(CXTPReportRecord* pVirtualRecord, int nCount);
    BOOL IsVirtualMode() const { return m_pVirtualRecord != nullptr; }      ///< from `SetVirtualMode` on, shown or not
    CXTPReportRecord* GetVirtualRecord() const { return m_pVirtualRecord; } ///< null outside of virtual mode
    int GetVirtualCount() const { return m_nVirtualCount; }                 ///< rows of virtual mode, 0 outside of it

    /// In their own order, which is not the rows'. The reference is good until the next change.
    const std::vector<CXTPReportRecord*>& GetRecords() const;

private:
    CXTPReportRows* GetRows() const; ///< of the control; null without one
    bool AllowRemoveAll() const;
    void Release(CXTPReportRecord* pRecord);

    CXTPReportControl* m_pControl = nullptr;
    CXTPReportRecord* m_pOwnerRecord = nullptr;
    RecordSequence m_records;
    CXTPReportRecord* m_pVirtualRecord = nullptr;
    int m_nVirtualCount = 0;
};
