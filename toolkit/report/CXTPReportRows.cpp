// The rows of a report control: what it shows below each other, from the top.
#include "CXTPReportRows.h"

#include "CXTPReportControl.h"
#include "CXTPReportGroupRow.h"
#include "CXTPReportRecord.h"
#include "CXTPReportSelectedRows.h"
#include "ReportGroups.h"
#include "RowBuilder.h"
#include "RowOutline.h"
#include "TextFilter.h"

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

CXTPReportRows::CXTPReportRows(CXTPReportControl* pControl)
    : m_pControl(pControl), m_records(&CXTPReportRecord::m_nRow) {}

CXTPReportRows::~CXTPReportRows() { DetachRowObjects(); }

int CXTPReportRows::GetCount() const {
    if (m_pVirtualRecord)
        return m_nVirtualCount;
    return m_pOutline ? m_pOutline->RowCount() : m_records.Count();
}

CXTPReportRecord* CXTPReportRows::GetEntryAt(int nIndex) const {
    if (nIndex < 0 || nIndex >= GetCount())
        return nullptr;
    if (m_pVirtualRecord)
        return m_pVirtualRecord;
    return m_records.At(m_pOutline ? m_pOutline->NodeAt(nIndex) : nIndex);
}

CXTPReportRecord* CXTPReportRows::GetRecordAt(int nIndex) const {
    CXTPReportRecord* const pEntry = GetEntryAt(nIndex);
    return pEntry && !pEntry->m_bGroup ? pEntry : nullptr;
}

const ReportGroup* CXTPReportRows::GetGroupAt(int nIndex) const {
    CXTPReportRecord* const pEntry = GetEntryAt(nIndex);
    return pEntry && pEntry->m_bGroup ? static_cast<const ReportGroup*>(pEntry) : nullptr;
}

/// Where the row object of a row that is there is kept.
CXTPReportRow*& CXTPReportRows::RowObject(int nIndex) const {
    return m_rowObjects[nIndex / RowBlock][nIndex % RowBlock];
}

CXTPReportRow* CXTPReportRows::GetAt(int nIndex) const {
    CXTPReportRecord* const pEntry = GetEntryAt(nIndex);
    if (!pEntry)
        return nullptr;
    CXTPReportRow*& pRow = RowObject(nIndex);
    CXTPReportRows* const pThis = const_cast<CXTPReportRows*>(this);
    if (!pRow && pEntry->m_bGroup)
        pRow = new CXTPReportGroupRow(pThis, nIndex);
    else if (!pRow)
        pRow = new CXTPReportRow(pThis, pEntry, nIndex);
    return pRow;
}

int CXTPReportRows::IndexOf(const CXTPReportRecord* pRecord) const {
    const int nPlace = m_records.IndexOf(pRecord);
    return m_pOutline && nPlace >= 0 ? m_pOutline->RowOf(nPlace) : nPlace;
}

int CXTPReportRows::IndexOfNearest(const CXTPReportRecord* pEntry) const {
    const int nPlace = m_records.IndexOf(pEntry);
    return m_pOutline && nPlace >= 0 ? m_pOutline->RowOfNearest(nPlace) : nPlace;
}

CXTPReportRow* CXTPReportRows::Find(CXTPReportRecord* pRecord) const { return GetAt(IndexOf(pRecord)); }

// --- Outline --------------------------------------------------------------------------------------------------------

/// −1 without an outline, and when out of range.
int CXTPReportRows::NodeAt(int nIndex) const {
    return m_pOutline && nIndex >= 0 && nIndex < GetCount() ? m_pOutline->NodeAt(nIndex) : -1;
}

bool CXTPReportRows::IsGroup(int nNode) const { return m_records.At(nNode) && m_records.At(nNode)->m_bGroup; }

BOOL CXTPReportRows::IsOutline() const { return m_pOutline != nullptr; }

BOOL CXTPReportRows::HasChildren(int nIndex) const {
    const int nNode = NodeAt(nIndex);
    return nNode >= 0 && m_pOutline->HasChildren(nNode);
}

BOOL CXTPReportRows::IsExpanded(int nIndex) const { return NodeAt(nIndex) >= 0 && m_pOutline->IsExpanded(nIndex); }

int CXTPReportRows::GetParentIndex(int nIndex) const {
    const int nNode = NodeAt(nIndex);
    const int nParent = nNode >= 0 ? m_pOutline->Parent(nNode) : -1;
    return nParent >= 0 ? m_pOutline->RowOf(nParent) : -1;
}

int CXTPReportRows::GetFirstChildIndex(int nIndex) const { return IsExpanded(nIndex) ? nIndex + 1 : -1; }

int CXTPReportRows::GetNextSiblingIndex(int nIndex) const {
    if (NodeAt(nIndex) >= 0)
        return m_pOutline->NextSiblingRow(nIndex);
    return nIndex >= 0 && nIndex + 1 < GetCount() ? nIndex + 1 : -1;
}

int CXTPReportRows::GetBranchEnd(int nIndex) const {
    return NodeAt(nIndex) >= 0 ? m_pOutline->BranchEnd(nIndex) : std::clamp(nIndex + 1, 0, GetCount());
}

int CXTPReportRows::GetTreeDepth(int nIndex) const {
    int nDepth = 0;
    const int nNode = NodeAt(nIndex);
    for (int nAbove = nNode >= 0 ? m_pOutline->Parent(nNode) : -1; nAbove >= 0 && !IsGroup(nAbove);
         nAbove = m_pOutline->Parent(nAbove))
        ++nDepth;
    return nDepth;
}

int CXTPReportRows::GetGroupLevel(int nIndex) const {
    const int nNode = NodeAt(nIndex);
    return nNode >= 0 ? m_pOutline->Level(nNode) - GetTreeDepth(nIndex) : 0;
}

BOOL CXTPReportRows::HasNextSibling(int nIndex, int nAbove) const {
    int nNode = NodeAt(nIndex);
    for (; nNode >= 0 && nAbove > 0; --nAbove)
        nNode = m_pOutline->Parent(nNode);
    return nNode >= 0 && m_pOutline->HasNextSibling(nNode);
}

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

/// Lets go of the row objects of rows that have gone; those below move along. Want of memory costs all of them, to be
/// made again.
void CXTPReportRows::SpliceRowObjects(const RowSplice& splice) try {
    if (m_rowObjects.empty())
        return;
    const int nMove = splice.inserted - splice.removed, nEnd = splice.first + splice.removed;
    std::vector<CXTPReportRow*> gone, below;
    for (const auto& [nBlock, rows] : m_rowObjects)
        for (CXTPReportRow* const pRow : rows)
            if (pRow && pRow->m_nIndex >= splice.first)
                (pRow->m_nIndex < nEnd ? gone : below).push_back(pRow);
    // Room is made before anything moves.
    for (const CXTPReportRow* const pRow : below)
        RowObject(pRow->m_nIndex + nMove);
    for (const CXTPReportRow* const pRow : below)
        RowObject(pRow->m_nIndex) = nullptr;
    for (CXTPReportRow* const pRow : gone) {
        RowObject(pRow->m_nIndex) = nullptr;
        Detach(pRow);
    }
    for (CXTPReportRow* const pRow : below)
        RowObject(pRow->m_nIndex += nMove) = pRow;
} catch (const std::bad_alloc&) {
    DetachRowObjects();
}

/// Lets go of the row objects of these rows; those below move up. Want of memory costs all of them.
void CXTPReportRows::TakeOutRowObjects(const RowSelection& gone) try {
    std::vector<CXTPReportRow*> objects;
    for (const auto& [nBlock, rows] : m_rowObjects)
        std::copy_if(rows.begin(), rows.end(), std::back_inserter(objects),
                     [&gone](const CXTPReportRow* pRow) { return pRow && pRow->m_nIndex >= gone.RowAt(0); });
    std::sort(objects.begin(), objects.end(),
              [](const CXTPReportRow* a, const CXTPReportRow* b) { return a->m_nIndex < b->m_nIndex; });
    std::vector<int> places; // where each goes, −1 for one that has gone
    auto range = gone.Ranges().begin();
    int nAbove = 0;
    for (const CXTPReportRow* const pRow : objects) {
        for (; range != gone.Ranges().end() && range->last < pRow->m_nIndex; ++range)
            nAbove += range->last - range->first + 1;
        const bool bGone = range != gone.Ranges().end() && range->first <= pRow->m_nIndex;
        places.push_back(bGone ? -1 : pRow->m_nIndex - nAbove);
        if (!bGone)
            RowObject(places.back()); // room is made before anything moves
    }
    // From the top down an object moves to a place that is free by then.
    for (std::size_t i = 0; i < objects.size(); ++i) {
        RowObject(objects[i]->m_nIndex) = nullptr;
        if (places[i] < 0)
            Detach(objects[i]);
        else
            RowObject(objects[i]->m_nIndex = places[i]) = objects[i];
    }
} catch (const std::bad_alloc&) {
    DetachRowObjects();
}

/// The rows have changed: what goes by their indices follows.
void CXTPReportRows::Splice(const RowSplice& splice) {
    if (splice.IsNothing())
        return;
    SpliceRowObjects(splice);
    if (!m_pControl)
        return;
    m_pControl->GetSelectedRows()->RowsChanged(splice.first, splice.removed, splice.inserted);
    m_pControl->OnRowsChanged(splice.first, splice.removed, splice.inserted);
}

void CXTPReportRows::Rebuild(const CXTPReportRecords& records, CXTPReportColumns& columns, const TextFilter& filter) {
    if (!m_pGroups)
        m_pGroups = std::make_unique<ReportGroups>();
    RowList rows = rowbuilder::Build(records, columns, filter, *m_pGroups);
    const CString strFilter = filter.IsEmpty() ? CString() : filter.Text();
    std::unique_ptr<RowOutline> pOutline;
    if (!rows.parents.empty()) {
        if (!strFilter.IsEmpty() && strFilter != m_strFilter)
            for (CXTPReportRecord* const pEntry : rows.records)
                pEntry->m_bCollapsedInFilter = false;
        pOutline = std::make_unique<RowOutline>(rows.parents);
        pOutline->ShowAll([&](int nNode) { return IsExpandedIn(strFilter, *rows.records[nNode]); });
    }
    DetachRowObjects();
    m_pVirtualRecord = nullptr;
    m_nVirtualCount = 0;
    m_pOutline = std::move(pOutline);
    m_strFilter = strFilter;
    m_records.Assign(std::move(rows.records));
    if (m_pOutline)
        m_pGroups->isShown = true;
    CountGroups();
}

/// Counts the records of each group. Only when the rows are made: those that are there do not change for want of
/// memory.
void CXTPReportRows::CountGroups() {
    const int nEnd = m_pOutline && m_pGroups ? m_pOutline->NodeCount() : 0;
    const auto groupAt = [this](int nNode) {
        return IsGroup(nNode) ? static_cast<ReportGroup*>(m_records.At(nNode)) : nullptr;
    };
    for (int nNode = 0; nNode < nEnd; ++nNode)
        if (ReportGroup* const pGroup = groupAt(nNode))
            pGroup->groups = 0;
    // From below: groups stand below groups alone.
    for (int nNode = nEnd - 1; nNode >= 0; --nNode) {
        ReportGroup* const pGroup = groupAt(nNode);
        if (!pGroup)
            continue;
        pGroup->records = m_pOutline->End(nNode) - nNode - 1 - pGroup->groups;
        if (const int nParent = m_pOutline->Parent(nNode); nParent >= 0)
            groupAt(nParent)->groups += pGroup->groups + 1;
    }
}

/// What a filter has found is shown at first, whatever was collapsed before.
bool CXTPReportRows::IsExpandedIn(const CString& strFilter, const CXTPReportRecord& entry) {
    return strFilter.IsEmpty() ? entry.m_bExpanded : !entry.m_bCollapsedInFilter;
}

bool CXTPReportRows::IsEntryExpanded(int nNode) const { return IsExpandedIn(m_strFilter, *m_records.At(nNode)); }

void CXTPReportRows::SetEntryExpanded(int nNode, bool bExpanded) {
    CXTPReportRecord& entry = *m_records.At(nNode);
    if (m_strFilter.IsEmpty())
        entry.m_bExpanded = bExpanded;
    else
        entry.m_bCollapsedInFilter = !bExpanded;
}

void CXTPReportRows::RebuildVirtual(CXTPReportRecord* pVirtualRecord, int nCount) {
    DetachRowObjects();
    m_pOutline.reset();
    m_records.Take();
    m_pVirtualRecord = pVirtualRecord;
    m_nVirtualCount = pVirtualRecord ? std::max(nCount, 0) : 0;
}

void CXTPReportRows::SetExpanded(int nIndex, bool bExpanded) {
    if (!HasChildren(nIndex))
        return;
    SetEntryExpanded(NodeAt(nIndex), bExpanded);
    const auto isExpanded = [this](int nNode) { return IsEntryExpanded(nNode); };
    Splice(bExpanded ? m_pOutline->Expand(nIndex, isExpanded) : m_pOutline->Collapse(nIndex));
}

void CXTPReportRows::ExpandBranch(int nIndex) {
    if (!HasChildren(nIndex))
        return;
    const int nNode = NodeAt(nIndex);
    SetNodesExpanded(nNode, m_pOutline->End(nNode), true);
    m_pOutline->ExpandAnew(nIndex, [](int) { return true; });
    DetachRowObjects();
}

/// Keeps whether the entries are expanded.
void CXTPReportRows::SetNodesExpanded(int nFirstNode, int nEndNode, bool bExpanded) {
    for (int nNode = nFirstNode; nNode < nEndNode; ++nNode)
        if (!m_pOutline->IsRemoved(nNode) && m_pOutline->HasChildren(nNode))
            SetEntryExpanded(nNode, bExpanded);
}

void CXTPReportRows::SetAllExpanded(bool bExpanded) {
    if (!m_pOutline)
        return;
    SetNodesExpanded(0, m_pOutline->NodeCount(), bExpanded);
    m_pOutline->ShowAll([bExpanded](int) { return bExpanded; });
    DetachRowObjects();
}

// --- Removal ---------------------------------------------------------------------------------------------------------

void CXTPReportRows::RecordRemoved(CXTPReportRecord* pRecord) {
    const int nPlace = m_records.IndexOf(pRecord);
    if (nPlace < 0)
        return;
    if (m_pOutline) {
        TakeOut(nPlace, m_pOutline->End(nPlace));
        return;
    }
    m_records.Erase(nPlace);
    Splice({nPlace, 1, 0});
}

/// The rows of these records; none when there is no memory for so many.
RowSelection CXTPReportRows::PlacesOf(const std::vector<CXTPReportRecord*>& records) const try {
    std::vector<int> places;
    for (const CXTPReportRecord* const pRecord : records)
        if (const int nPlace = m_records.IndexOf(pRecord); nPlace >= 0)
            places.push_back(nPlace);
    std::sort(places.begin(), places.end());
    RowSelection rows;
    for (const int nPlace : places)
        rows.Add(nPlace, nPlace);
    return rows;
} catch (const std::bad_alloc&) {
    return RowSelection();
}

void CXTPReportRows::RecordsRemoved(const std::vector<CXTPReportRecord*>& records) {
    if (m_pOutline && records.size() > 1) {
        BranchesRemoved(records);
        return;
    }
    const RowSelection gone = records.size() > 1 ? PlacesOf(records) : RowSelection();
    if (gone.IsEmpty()) {
        // All rows go, also when there is no memory to lay out what is left.
        std::exception_ptr failure;
        for (CXTPReportRecord* const pRecord : records) {
            try {
                RecordRemoved(pRecord);
            } catch (...) {
                failure = std::current_exception();
            }
        }
        if (failure)
            std::rethrow_exception(failure);
        return;
    }
    m_records.Erase(gone);
    TellTakenOut(gone);
}

void CXTPReportRows::BranchesRemoved(const std::vector<CXTPReportRecord*>& records) {
    for (const CXTPReportRecord* const pRecord : records)
        if (const int nNode = m_records.IndexOf(pRecord); nNode >= 0)
            TakeOutNodes(nNode, m_pOutline->End(nNode));
    RowSelection gone;
    try {
        for (int nRow = 0; nRow < m_pOutline->RowCount(); ++nRow)
            if (m_pOutline->IsRemoved(m_pOutline->NodeAt(nRow)))
                gone.Add(nRow, nRow);
    } catch (const std::bad_alloc&) {
        // Better no selection, focus and place than those of other rows.
        m_pOutline->HideRemoved();
        DetachRowObjects();
        ForgetPlaces();
        return;
    }
    m_pOutline->HideRemoved();
    TellTakenOut(gone);
}

/// These rows have gone: what goes by their indices follows.
void CXTPReportRows::TellTakenOut(const RowSelection& gone) {
    TakeOutRowObjects(gone);
    if (!m_pControl)
        return;
    m_pControl->GetSelectedRows()->RowsTakenOut(gone);
    m_pControl->OnRowsTakenOut(gone);
}

void CXTPReportRows::ChildrenRemoved(const CXTPReportRecord* pRecord) {
    const int nNode = m_pOutline ? m_records.IndexOf(pRecord) : -1;
    if (nNode >= 0)
        TakeOut(nNode + 1, m_pOutline->End(nNode));
}

/// Takes out the nodes of a record and all below it, or those below a record, and groups that have become empty. Who
/// calls it hides their rows.
CXTPReportRows::NodeRange CXTPReportRows::TakeOutNodes(int nFirstNode, int nEndNode) {
    int nRecords = 0;
    for (int nNode = nFirstNode; nNode < nEndNode; ++nNode)
        nRecords += !m_pOutline->IsRemoved(nNode);
    bool isWhole = m_pOutline->End(nFirstNode) == nEndNode;
    int nTop = isWhole ? nFirstNode : nFirstNode - 1;
    for (int nAbove = m_pOutline->Parent(nFirstNode); nAbove >= 0; nAbove = m_pOutline->Parent(nAbove)) {
        if (!IsGroup(nAbove))
            continue;
        auto* const pGroup = static_cast<ReportGroup*>(m_records.At(nAbove));
        pGroup->records -= nRecords;
        if (pGroup->records > 0)
            continue;
        nTop = nAbove;
        isWhole = true;
    }
    if (isWhole)
        m_pOutline->Remove(nTop);
    else
        m_pOutline->RemoveBelow(nTop);
    const NodeRange gone = {isWhole ? nTop : nTop + 1, m_pOutline->End(nTop)};
    for (int nNode = gone.nFirst; nNode < gone.nEnd; ++nNode)
        m_records.Vacate(nNode);
    return gone;
}

/// As `TakeOutNodes`, with their rows.
void CXTPReportRows::TakeOut(int nFirstNode, int nEndNode) {
    if (nFirstNode == nEndNode)
        return;
    const NodeRange gone = TakeOutNodes(nFirstNode, nEndNode);
    const RowSplice splice = m_pOutline->Hide(gone.nFirst, gone.nEnd);
    if (splice.IsNothing() && m_pControl)
        m_pControl->RedrawControl(); // a count in the row of a group, or a button
    Splice(splice);
}

void CXTPReportRows::Clear() {
    RebuildVirtual(nullptr, 0);
    ForgetPlaces();
}

/// Selection, focus and top row.
void CXTPReportRows::ForgetPlaces() {
    if (!m_pControl)
        return;
    m_pControl->GetSelectedRows()->SetRanges(RowSelection());
    m_pControl->GetSelectedRows()->SetAnchor(-1);
    m_pControl->OnRowsCleared();
}
