// Records in an order, each of which knows its place.
#include "RecordSequence.h"

#include "CXTPReportRecord.h"

#include <algorithm>
#include <utility>

namespace {

/// Beyond this, looking back for a record costs more than putting all places right.
constexpr int MostLag = 1024;

} // namespace

CXTPReportRecord* RecordSequence::At(int index) const {
    return index >= 0 && index < Count() ? m_records[index] : nullptr;
}

int RecordSequence::IndexOf(const CXTPReportRecord* record) const {
    if (!record || record->*m_place < 0)
        return -1;
    const int kept = std::min(record->*m_place, Count() - 1);
    const int lowest = std::max(kept - m_lag, 0);
    for (int index = kept; index >= lowest; --index)
        if (m_records[index] == record)
            return index;
    return -1;
}

void RecordSequence::Append(CXTPReportRecord* record) {
    record->*m_place = Count();
    m_records.push_back(record);
}

void RecordSequence::Insert(int index, CXTPReportRecord* record) {
    m_records.insert(m_records.begin() + index, record);
    // Behind the new record the true places may now be larger than those kept.
    Renumber();
}

void RecordSequence::Insert(int index, const std::vector<CXTPReportRecord*>& records) {
    m_records.insert(m_records.begin() + index, records.begin(), records.end());
    Renumber();
}

void RecordSequence::Erase(const RowSelection& places) {
    for (const RowSelection::Range& range : places.Ranges())
        for (int index = range.first; index <= range.last; ++index)
            std::exchange(m_records[index], nullptr)->*m_place = -1;
    std::erase(m_records, nullptr);
    Renumber();
}

void RecordSequence::Erase(int index) {
    m_records[index]->*m_place = -1;
    m_records.erase(m_records.begin() + index);
    if (index == Count())
        return;
    if (++m_lag > MostLag)
        Renumber();
}

void RecordSequence::Vacate(int index) {
    if (CXTPReportRecord* const record = std::exchange(m_records[index], nullptr))
        record->*m_place = -1;
}

void RecordSequence::Assign(std::vector<CXTPReportRecord*> records) {
    Take();
    m_records = std::move(records);
    Renumber();
}

std::vector<CXTPReportRecord*> RecordSequence::Take() {
    for (CXTPReportRecord* const record : m_records)
        if (record)
            record->*m_place = -1;
    m_lag = 0;
    return std::exchange(m_records, {});
}

void RecordSequence::Renumber() {
    for (int index = 0; index < Count(); ++index)
        if (m_records[index])
            m_records[index]->*m_place = index;
    m_lag = 0;
}
