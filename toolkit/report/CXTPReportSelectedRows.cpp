// Which rows are selected.
#include "CXTPReportSelectedRows.h"

#include "CXTPReportControl.h"
#include "CXTPReportRow.h"
#include "CXTPReportRows.h"

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

CXTPReportSelectedRows::CXTPReportSelectedRows(CXTPReportControl* pControl) : m_pControl(pControl) {}

int CXTPReportSelectedRows::GetRowCount() const { return m_pControl ? m_pControl->GetRows()->GetCount() : 0; }

void CXTPReportSelectedRows::Assign(RowSelection ranges) {
    const RowSelection former = std::exchange(m_ranges, std::move(ranges));
    if (!m_pControl || former == m_ranges)
        return;
    // Only rows in view can look different now; the last of them may be cut off.
    const int nFirst = m_pControl->GetTopRowIndex();
    const std::int64_t nEnd = std::int64_t{nFirst} + m_pControl->GetFullyVisibleRowCount() + 1;
    for (int nRow = nFirst; nRow < nEnd && nRow < GetRowCount(); ++nRow)
        if (former.Contains(nRow) != m_ranges.Contains(nRow))
            m_pControl->RedrawRow(m_pControl->GetRows()->GetAt(nRow));
}

int CXTPReportSelectedRows::GetCount() const {
    return static_cast<int>(std::min<std::int64_t>(m_ranges.Count(), std::numeric_limits<int>::max()));
}

CXTPReportRow* CXTPReportSelectedRows::GetAt(int nIndex) const {
    return m_pControl ? m_pControl->GetRows()->GetAt(m_ranges.RowAt(nIndex)) : nullptr;
}

BOOL CXTPReportSelectedRows::Contains(const CXTPReportRow* pRow) const {
    return pRow && pRow->GetControl() == m_pControl && Contains(pRow->GetIndex());
}

BOOL CXTPReportSelectedRows::Contains(int nRowIndex) const { return m_ranges.Contains(nRowIndex); }

void CXTPReportSelectedRows::Clear() { Assign(RowSelection()); }

void CXTPReportSelectedRows::Add(CXTPReportRow* pRow) {
    if (pRow)
        SelectBlock(pRow->GetIndex(), pRow->GetIndex(), FALSE);
}

void CXTPReportSelectedRows::Remove(CXTPReportRow* pRow) {
    if (!Contains(pRow))
        return;
    RowSelection ranges = m_ranges;
    ranges.Remove(pRow->GetIndex(), pRow->GetIndex());
    Assign(std::move(ranges));
}

void CXTPReportSelectedRows::Invert(CXTPReportRow* pRow) {
    if (Contains(pRow))
        Remove(pRow);
    else
        Add(pRow);
}

void CXTPReportSelectedRows::Select(CXTPReportRow* pRow) {
    if (pRow)
        SelectBlock(pRow->GetIndex(), pRow->GetIndex(), TRUE);
    else
        Clear();
}

void CXTPReportSelectedRows::SelectBlock(int nBegin, int nEnd, BOOL bClear) {
    RowSelection ranges = m_ranges;
    const int nLastRow = GetRowCount() - 1;
    if (m_pControl && !m_pControl->IsMultipleSelection()) {
        bClear = TRUE;
        nBegin = nEnd;
    }
    if (bClear)
        ranges.Clear();
    if (nLastRow >= 0)
        ranges.Add(std::clamp(std::min(nBegin, nEnd), 0, nLastRow), std::clamp(std::max(nBegin, nEnd), 0, nLastRow));
    SetRanges(ranges);
}

void CXTPReportSelectedRows::SetRanges(const RowSelection& ranges) {
    RowSelection kept = ranges;
    kept.Truncate(GetRowCount());
    Assign(std::move(kept));
}

void CXTPReportSelectedRows::RowsTakenOut(const RowSelection& gone) {
    try {
        m_ranges.TakeOut(gone);
    } catch (const std::bad_alloc&) {
        m_ranges.Clear(); // better no selection than other rows
    }
    if (m_nAnchor >= 0)
        m_nAnchor = std::min(m_nAnchor - gone.CountAbove(m_nAnchor), GetRowCount() - 1);
}

void CXTPReportSelectedRows::RowsChanged(int nFirst, int nRemoved, int nInserted) {
    try {
        m_ranges.Splice(nFirst, nRemoved, nInserted);
    } catch (const std::bad_alloc&) {
        m_ranges.Clear(); // better no selection than other rows
    }
    if (m_nAnchor >= nFirst + nRemoved)
        m_nAnchor += nInserted - nRemoved;
    else if (m_nAnchor >= nFirst)
        m_nAnchor = std::min(nFirst, GetRowCount() - 1);
}
