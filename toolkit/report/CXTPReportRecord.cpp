// One record: a row's worth of items.
#include "CXTPReportRecord.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRecordItemPreview.h"
#include "CXTPReportRecordItemText.h"
#include "CXTPReportRecords.h"
#include "StoredClass.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CXTPReportRecord, CCmdTarget)

struct CXTPReportRecord::Extras {
    std::unique_ptr<CXTPReportRecords> pChilds; // null until somebody asks
    CXTPReportRecordItemPreview* pPreview = nullptr;
    DWORD_PTR dwData = 0;
};

CXTPReportRecord::CXTPReportRecord() = default;

CXTPReportRecord::~CXTPReportRecord() {
    ReleaseItems();
    if (m_pExtras)
        Release(m_pExtras->pPreview);
}

/// Lets go of an item that others may hold; null is ignored.
void CXTPReportRecord::Release(CXTPReportRecordItem* pItem) {
    if (!pItem)
        return;
    pItem->m_pRecord = nullptr;
    pItem->InternalRelease();
}

void CXTPReportRecord::ReleaseItems() {
    for (CXTPReportRecordItem* const pItem : std::exchange(m_items, {}))
        Release(pItem);
}

void* CXTPReportRecord::operator new(size_t size) {
    return recorditemheap::TakeObject(recorditemheap::Kind::Record, size);
}

void CXTPReportRecord::operator delete(void* p, size_t size) {
    recorditemheap::ReturnObject(recorditemheap::Kind::Record, p, size);
}

CXTPReportRecordItem* CXTPReportRecord::AddItem(CXTPReportRecordItem* pItem) {
    if (!pItem)
        return nullptr;
    ASSERT(!pItem->m_pRecord);
    try {
        m_items.push_back(pItem);
    } catch (...) {
        pItem->InternalRelease(); // it was taken over already
        throw;
    }
    pItem->m_pRecord = this;
    return pItem;
}

CXTPReportRecordItem* CXTPReportRecord::GetItem(int nItemIndex) const {
    return nItemIndex >= 0 && nItemIndex < GetItemCount() ? m_items[nItemIndex] : nullptr;
}

CXTPReportRecordItem* CXTPReportRecord::GetItem(const CXTPReportColumn* pColumn) const {
    return pColumn ? GetItem(pColumn->GetItemIndex()) : nullptr;
}

int CXTPReportRecord::IndexOf(const CXTPReportRecordItem* pItem) const {
    const auto it = std::find(m_items.begin(), m_items.end(), pItem);
    return it != m_items.end() ? static_cast<int>(it - m_items.begin()) : -1;
}

int CXTPReportRecord::GetIndex() const { return m_pRecords ? m_pRecords->IndexOf(this) : -1; }

void CXTPReportRecord::Delete() {
    if (m_pRecords)
        m_pRecords->RemoveRecord(this);
    else
        InternalRelease();
}

// --- Child records ---------------------------------------------------------------------------------------------------

CXTPReportRecord::Extras& CXTPReportRecord::EnsureExtras() {
    if (!m_pExtras)
        m_pExtras = std::make_unique<Extras>();
    return *m_pExtras;
}

CXTPReportRecords* CXTPReportRecord::GetChilds() {
    Extras& extras = EnsureExtras();
    if (!extras.pChilds)
        extras.pChilds = std::make_unique<CXTPReportRecords>(*this);
    return extras.pChilds.get();
}

BOOL CXTPReportRecord::HasChildren() const {
    return m_pExtras && m_pExtras->pChilds && m_pExtras->pChilds->GetCount() > 0;
}

CXTPReportRecord* CXTPReportRecord::GetParentRecord() const {
    return m_pRecords ? m_pRecords->GetOwnerRecord() : nullptr;
}

// --- Preview ---------------------------------------------------------------------------------------------------------

CXTPReportRecordItemPreview* CXTPReportRecord::GetItemPreview() const {
    return m_pExtras ? m_pExtras->pPreview : nullptr;
}

CXTPReportRecordItemPreview* CXTPReportRecord::SetPreviewItem(CXTPReportRecordItemPreview* pItemPreview) {
    if (pItemPreview == GetItemPreview())
        return pItemPreview;
    ASSERT(!pItemPreview || !pItemPreview->GetRecord());
    try {
        EnsureExtras();
    } catch (...) {
        pItemPreview->InternalRelease(); // it was taken over already; without one there are extras
        throw;
    }
    Release(std::exchange(m_pExtras->pPreview, pItemPreview));
    if (pItemPreview)
        static_cast<CXTPReportRecordItem*>(pItemPreview)->m_pRecord = this;
    return pItemPreview;
}

// --- Data ------------------------------------------------------------------------------------------------------------

DWORD_PTR CXTPReportRecord::GetItemData() const { return m_pExtras ? m_pExtras->dwData : 0; }

void CXTPReportRecord::SetItemData(DWORD_PTR dwData) { EnsureExtras().dwData = dwData; }

// --- Property exchange -----------------------------------------------------------------------------------------------

void CXTPReportRecord::DoPropExchange(CXTPPropExchange* pPX) {
    BOOL bVisible = m_bVisible;
    PX_Bool(pPX, _T("Visible"), bVisible, TRUE);
    m_bVisible = bVisible != FALSE;
    BOOL bExpanded = m_bExpanded;
    PX_Bool(pPX, _T("Expanded"), bExpanded, FALSE);
    m_bExpanded = bExpanded != FALSE;
    if (pPX->IsStoring())
        StoreItems(pPX);
    else
        LoadItems(pPX);
    ExchangePreview(pPX);
    // Few records have children, and those that have none hold no collection for them.
    const CXTPPropExchangeEnumeratorPtr childs(pPX->GetEnumerator(_T("Record")));
    if (HasChildren() || (pPX->IsLoading() && childs->GetPosition()))
        GetChilds()->DoPropExchange(pPX);
}

/// A section of its own, which a record without a preview does not have.
void CXTPReportRecord::ExchangePreview(CXTPPropExchange* pPX) {
    const CXTPPropExchangeEnumeratorPtr previews(pPX->GetEnumerator(_T("Preview")));
    if (pPX->IsStoring()) {
        if (CXTPReportRecordItemPreview* const pPreview = GetItemPreview()) {
            POSITION pos = previews->GetPosition(1);
            const CXTPPropExchangeSection section(previews->GetNext(pos));
            storedclass::Write(&section, *pPreview);
            pPreview->DoPropExchange(&section);
        }
        return;
    }
    POSITION pos = previews->GetPosition();
    if (!pos) {
        SetPreviewItem(nullptr);
        return;
    }
    const CXTPPropExchangeSection section(previews->GetNext(pos));
    CXTPReportRecordItemPreview* const pRead = storedclass::Make<CXTPReportRecordItemPreview>(&section);
    SetPreviewItem(pRead ? pRead : new CXTPReportRecordItemPreview)->DoPropExchange(&section);
}

void CXTPReportRecord::StoreItems(CXTPPropExchange* pPX) {
    const CXTPPropExchangeEnumeratorPtr items(pPX->GetEnumerator(_T("Item")));
    POSITION pos = items->GetPosition(static_cast<DWORD>(m_items.size()));
    for (CXTPReportRecordItem* const pItem : m_items) {
        const CXTPPropExchangeSection section(items->GetNext(pos));
        storedclass::Write(&section, *pItem);
        pItem->DoPropExchange(&section);
    }
}

void CXTPReportRecord::LoadItems(CXTPPropExchange* pPX) {
    ReleaseItems();
    const CXTPPropExchangeEnumeratorPtr items(pPX->GetEnumerator(_T("Item")));
    for (POSITION pos = items->GetPosition(); pos;) {
        const CXTPPropExchangeSection section(items->GetNext(pos));
        CXTPReportRecordItem* pItem = storedclass::Make<CXTPReportRecordItem>(&section);
        if (!pItem)
            pItem = new CXTPReportRecordItemText;
        AddItem(pItem)->DoPropExchange(&section);
    }
}

CString CXTPReportRecord::GetFilterText(const CXTPReportColumns& rColumns) {
    CString strText;
    for (int i = 0; i < rColumns.GetCount(); ++i) {
        CXTPReportColumn* const pColumn = rColumns.GetAt(i);
        CXTPReportRecordItem* const pItem = GetItem(pColumn);
        if (!pItem || !pColumn->IsVisible() || !pColumn->IsFiltrable())
            continue;
        strText += pItem->GetCaption(pColumn);
        strText += _T('\n');
    }
    return strText;
}

void CXTPReportRecord::GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* /*pDrawArgs*/,
                                      XTP_REPORTRECORDITEM_METRICS* /*pMetrics*/) {}
