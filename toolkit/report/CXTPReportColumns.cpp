// The columns of a report control and the order in which it is sorted by them.
#include "CXTPReportColumns.h"

#include "CXTPReportColumn.h"
#include "CXTPReportControl.h"

#include <algorithm>

// --- CXTPReportColumnOrder -------------------------------------------------------------------------------------------

CXTPReportColumn* CXTPReportColumnOrder::GetAt(int nIndex) const {
    return nIndex >= 0 && nIndex < GetCount() ? m_columns[nIndex] : nullptr;
}

int CXTPReportColumnOrder::Add(CXTPReportColumn* pColumn) { return InsertAt(GetCount(), pColumn); }

int CXTPReportColumnOrder::InsertAt(int nIndex, CXTPReportColumn* pColumn) {
    if (!pColumn)
        return -1;
    Remove(pColumn);
    nIndex = std::clamp(nIndex, 0, GetCount());
    m_columns.insert(m_columns.begin() + nIndex, pColumn);
    return nIndex;
}

int CXTPReportColumnOrder::Add(CXTPReportColumn* pColumn, BOOL bSortIncreasing) {
    if (pColumn)
        pColumn->SetSortIncreasing(bSortIncreasing);
    return Add(pColumn);
}

int CXTPReportColumnOrder::IndexOf(const CXTPReportColumn* pColumn) const {
    const auto it = std::find(m_columns.begin(), m_columns.end(), pColumn);
    return it != m_columns.end() ? static_cast<int>(it - m_columns.begin()) : -1;
}

void CXTPReportColumnOrder::Remove(CXTPReportColumn* pColumn) { std::erase(m_columns, pColumn); }

// --- CXTPReportColumns -----------------------------------------------------------------------------------------------

void CXTPReportColumns::Release::operator()(CXTPReportColumn* pColumn) const {
    pColumn->m_pColumns = nullptr;
    pColumn->InternalRelease();
}

CXTPReportColumns::CXTPReportColumns(CXTPReportControl* pControl) : m_pControl(pControl) {}

CXTPReportColumns::~CXTPReportColumns() = default;

void CXTPReportColumns::Changed() {
    if (m_pControl)
        m_pControl->AdjustLayout();
}

void CXTPReportColumns::Add(CXTPReportColumn* pColumn) {
    if (!pColumn)
        return;
    ASSERT(!pColumn->m_pColumns);
    std::unique_ptr<CXTPReportColumn, Release> column(pColumn);
    m_columns.push_back(std::move(column));
    pColumn->m_pColumns = this;
    pColumn->FollowDpi();
    Changed();
}

void CXTPReportColumns::Remove(CXTPReportColumn* pColumn) {
    if (m_pControl && IndexOf(pColumn) >= 0 && !m_pControl->OnColumnLeaving(pColumn))
        return;
    const int nIndex = IndexOf(pColumn); // the host's hooks may have changed it
    if (nIndex < 0)
        return;
    m_sortOrder.Remove(pColumn);
    m_groupsOrder.Remove(pColumn);
    if (m_pControl)
        m_pControl->OnColumnRemoved(pColumn);
    m_columns.erase(m_columns.begin() + nIndex);
    Changed();
}

void CXTPReportColumns::Clear() {
    if (m_pControl && !m_pControl->OnColumnLeaving(nullptr))
        return;
    m_sortOrder.Clear();
    m_groupsOrder.Clear();
    if (m_pControl)
        for (const auto& column : m_columns)
            m_pControl->OnColumnRemoved(column.get());
    m_columns.clear();
    Changed();
}

CXTPReportColumn* CXTPReportColumns::GetAt(int nIndex) const {
    return nIndex >= 0 && nIndex < GetCount() ? m_columns[nIndex].get() : nullptr;
}

int CXTPReportColumns::IndexOf(const CXTPReportColumn* pColumn) const {
    const auto it = std::find_if(m_columns.begin(), m_columns.end(),
                                 [pColumn](const auto& column) { return column.get() == pColumn; });
    return it != m_columns.end() ? static_cast<int>(it - m_columns.begin()) : -1;
}

CXTPReportColumn* CXTPReportColumns::Find(int nItemIndex) const {
    for (const auto& column : m_columns)
        if (column->GetItemIndex() == nItemIndex)
            return column.get();
    return nullptr;
}

CXTPReportColumn* CXTPReportColumns::Find(const CString& strInternalName) const {
    for (const auto& column : m_columns)
        if (column->m_strInternalName == strInternalName)
            return column.get();
    return nullptr;
}

int CXTPReportColumns::GetVisibleColumnsCount() const {
    return static_cast<int>(
        std::count_if(m_columns.begin(), m_columns.end(), [](const auto& column) { return column->IsVisible(); }));
}

CXTPReportColumn* CXTPReportColumns::GetVisibleAt(int nVisibleIndex) const {
    for (const auto& column : m_columns)
        if (column->IsVisible() && nVisibleIndex-- == 0)
            return column.get();
    return nullptr;
}

int CXTPReportColumns::ChangeColumnOrder(int nNewOrder, int nOldOrder) {
    if (nOldOrder < 0 || nOldOrder >= GetCount())
        return -1;
    nNewOrder = std::clamp(nNewOrder, 0, GetCount() - 1);
    if (nNewOrder == nOldOrder)
        return nNewOrder;
    const auto from = m_columns.begin() + nOldOrder;
    const auto to = m_columns.begin() + nNewOrder;
    if (nNewOrder < nOldOrder)
        std::rotate(to, from, from + 1);
    else
        std::rotate(from, from + 1, to + 1);
    Changed();
    return nNewOrder;
}

void CXTPReportColumns::Arrange(const std::vector<CXTPReportColumn*>& columns) {
    ASSERT(columns.size() == m_columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int nIndex = IndexOf(columns[i]);
        ASSERT(nIndex >= static_cast<int>(i));
        std::swap(m_columns[i], m_columns[nIndex]);
    }
    Changed();
}

void CXTPReportColumns::OnDpiChanged() {
    for (const auto& column : m_columns)
        column->FollowDpi();
}

void CXTPReportColumns::SetSortColumn(CXTPReportColumn* pColumn, BOOL bIncreasing) {
    ResetSortOrder();
    m_sortOrder.Add(pColumn, bIncreasing);
}

void CXTPReportColumns::ResetSortOrder() { m_sortOrder.Clear(); }
