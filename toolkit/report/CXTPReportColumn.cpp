// One column of a report control.
#include "CXTPReportColumn.h"

#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportHeader.h"
#include "CXTPReportPaintManager.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRows.h"

#include "../common/ObjectReference.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CXTPReportColumn, CCmdTarget)

CXTPReportColumn::CXTPReportColumn(int nItemIndex, LPCTSTR strName, int nWidth, BOOL bAutoSize, int nIconID,
                                   BOOL bSortable, BOOL bVisible)
    : CXTPReportColumn(nItemIndex, strName, strName, nWidth, bAutoSize, nIconID, bSortable, bVisible) {}

CXTPReportColumn::CXTPReportColumn(int nItemIndex, LPCTSTR strDisplayName, LPCTSTR strInternalName, int nWidth,
                                   BOOL bAutoSize, int nIconID, BOOL bSortable, BOOL bVisible)
    : m_strCaption(strDisplayName), m_strInternalName(strInternalName), m_nItemIndex(nItemIndex),
      m_nWidth(std::clamp(nWidth, m_nMinWidth, m_nMaxWidth)), m_nIconID(nIconID), m_bAutoSize(bAutoSize),
      m_bSortable(bSortable), m_bVisible(bVisible) {
    m_setWidth = {m_nWidth};
}

CXTPReportControl* CXTPReportColumn::GetControl() const { return m_pColumns ? m_pColumns->GetControl() : nullptr; }

int CXTPReportColumn::GetIndex() const { return m_pColumns ? m_pColumns->IndexOf(this) : -1; }

void CXTPReportColumn::Changed(Effect effect) {
    CXTPReportControl* const pControl = GetControl();
    if (!pControl)
        return;
    if (effect == Effect::Layout)
        pControl->AdjustLayout();
    else
        pControl->RedrawControl();
}

template <class T, class U>
void CXTPReportColumn::Set(T& member, const U& value, Effect effect) {
    if (member == value)
        return;
    member = value;
    Changed(effect);
}

void CXTPReportColumn::SetCaption(LPCTSTR strCaption) { Set(m_strCaption, CString(strCaption), Effect::Look); }

int CXTPReportColumn::GetDpi() const {
    const CXTPReportControl* const pControl = GetControl();
    return pControl ? pControl->GetPaintManager()->GetDpi() : 0;
}

int CXTPReportColumn::GetOwnWidth() const { return std::clamp(m_setWidth.At(GetDpi()), m_nMinWidth, m_nMaxWidth); }

bool CXTPReportColumn::IsSizedWithView() const {
    const CXTPReportControl* const pControl = GetControl();
    return pControl && pControl->GetReportHeader()->IsAutoColumnSizing();
}

void CXTPReportColumn::SetWidth(int nWidth) {
    nWidth = std::clamp(nWidth, m_nMinWidth, m_nMaxWidth);
    if (nWidth == GetOwnWidth())
        return;
    m_setWidth = {nWidth, GetDpi()};
    m_nWidth = nWidth;
    Changed(Effect::Layout);
}

void CXTPReportColumn::RestoreWidth(const DpiLength& width) {
    if (width == m_setWidth)
        return;
    m_setWidth = width;
    m_nWidth = GetOwnWidth();
    Changed(Effect::Layout);
}

/// Lays out when a limit has moved the width that the column had, and where a limit moves those of others.
void CXTPReportColumn::KeepLimits(int nOwnWidth) {
    const int nWidth = std::clamp(nOwnWidth, m_nMinWidth, m_nMaxWidth);
    if (nWidth != nOwnWidth)
        m_setWidth = {nWidth, GetDpi()};
    else if (!IsSizedWithView())
        return;
    m_nWidth = nWidth;
    Changed(Effect::Layout);
}

void CXTPReportColumn::SetMinWidth(int nMinWidth) {
    const int nOwnWidth = GetOwnWidth();
    m_nMinWidth = std::max(nMinWidth, 0);
    m_setMinWidth = {m_nMinWidth, GetDpi()};
    if (m_nMaxWidth < m_nMinWidth) {
        m_nMaxWidth = m_nMinWidth;
        m_setMaxWidth = m_setMinWidth;
    }
    KeepLimits(nOwnWidth);
}

void CXTPReportColumn::SetMaxWidth(int nMaxWidth) {
    const int nOwnWidth = GetOwnWidth();
    m_nMaxWidth = std::max(nMaxWidth, 0);
    m_setMaxWidth = {m_nMaxWidth, GetDpi()};
    if (m_nMinWidth > m_nMaxWidth) {
        m_nMinWidth = m_nMaxWidth;
        m_setMinWidth = m_setMaxWidth;
    }
    KeepLimits(nOwnWidth);
}

void CXTPReportColumn::SetAutoSize(BOOL bAutoSize) {
    if (!m_bAutoSize == !bAutoSize)
        return;
    m_bAutoSize = bAutoSize != FALSE;
    if (IsSizedWithView())
        Changed(Effect::Layout);
}

CRect CXTPReportColumn::GetUncoveredRect() const {
    CRect rc(m_rcColumn);
    const CXTPReportControl* const pControl = GetControl();
    if (!m_bFrozen && pControl)
        rc.left = std::max<int>(rc.left, pControl->GetReportHeader()->GetFreezeEdge());
    return rc.left < rc.right ? rc : CRect();
}

void CXTPReportColumn::FollowDpi() {
    const int dpi = GetDpi();
    for (DpiLength* length : {&m_setMinWidth, &m_setMaxWidth, &m_setWidth}) {
        if (length->dpi == 0)
            length->dpi = dpi;
    }
    // Both limits are rounded alike, so that they stay in order.
    m_nMinWidth = m_setMinWidth.At(dpi);
    m_nMaxWidth = m_setMaxWidth.At(dpi);
    m_nWidth = GetOwnWidth();
}

void CXTPReportColumn::SetAlignment(int nAlignment) { Set(m_nAlignment, nAlignment, Effect::Look); }

void CXTPReportColumn::SetHeaderAlignment(int nAlignment) { Set(m_nHeaderAlignment, nAlignment, Effect::Look); }

void CXTPReportColumn::HideDivider(BOOL bHide) {
    Set(m_bDividerHidden, static_cast<BOOL>(bHide != FALSE), Effect::Look);
}

void CXTPReportColumn::SetTreeColumn(BOOL bTreeColumn) {
    Set(m_bTreeColumn, static_cast<BOOL>(bTreeColumn != FALSE), Effect::Layout);
}

void CXTPReportColumn::SetVisible(BOOL bVisible) {
    const boost::intrusive_ptr<CXTPReportColumn> alive(this); // the host's hooks may delete the column
    if (!bVisible && m_bVisible && GetControl() && !GetControl()->OnColumnLeaving(this))
        return;
    Set(m_bVisible, static_cast<BOOL>(bVisible != FALSE), Effect::Layout);
}

BOOL CXTPReportColumn::IsSorted() const { return GetSortRank() > 0; }

int CXTPReportColumn::GetSortRank() const { return m_pColumns ? m_pColumns->GetSortOrder()->IndexOf(this) + 1 : 0; }

BOOL CXTPReportColumn::IsSortedIncreasing() const { return IsSorted() && m_bSortIncreasing; }

BOOL CXTPReportColumn::IsSortedDecreasing() const { return IsSorted() && !m_bSortIncreasing; }
