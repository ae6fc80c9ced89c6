/// @file
/// Records in an order, each of which knows its place.
#pragma once

#include "RowSelection.h"

#include <vector>

class CXTPReportRecord;

/// A list of records that finds the place of a record without a search, because the record keeps it in one of its
/// members. Taking out a record of a million costs one move of memory: the places of those behind are put right later,
/// all at once. Does not own the records.
/// @ingroup toolkit_report
class RecordSequence {
public:
    /// `place` is the member of the record that this sequence may use; −1 means that it is in none.
    explicit RecordSequence(int CXTPReportRecord::*place) : m_place(place) {}

    int Count() const { return static_cast<int>(m_records.size()); } ///< O(1)
    CXTPReportRecord* At(int index) const;                           ///< null when out of range, and for a vacant place
    /// The place of the record; −1 when it is not in this sequence. Null is in none.
    int IndexOf(const CXTPReportRecord* record) const;
    /// In order; the reference is good until the next change.
    const std::vector<CXTPReportRecord*>& Records() const { return m_records; }

    void Append(CXTPReportRecord* record);            ///< never null, and in no sequence that uses the same member
    void Insert(int index, CXTPReportRecord* record); ///< 0 <= index <= count
    /// Several at once: linear in the records that are there and those that come.
    void Insert(int index, const std::vector<CXTPReportRecord*>& records);
    void Erase(int index); ///< 0 <= index < count
    /// Takes out the records at these places, all of them there. Linear in the records that are there.
    void Erase(const RowSelection& places);
    /// Takes the record out and leaves its place empty; nothing moves. Not to be mixed with `Erase`.
    void Vacate(int index);
    /// Replaces all records. Those that were in the sequence are looked at once more, so they must still live.
    void Assign(std::vector<CXTPReportRecord*> records);
    /// Empties the sequence and returns what was in it.
    std::vector<CXTPReportRecord*> Take();

private:
    void Renumber();

    int CXTPReportRecord::*m_place;
    std::vector<CXTPReportRecord*> m_records;
    /// A place kept in a record is at most this much larger than the true one.
    int m_lag = 0;
};
