// One column of a report control.
#include "CXTPReportColumn.h"

#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportPaintManager.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRows.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CXTPReportColumn, CCmdTarget)

CXTPReportColumn::CXTPReportColumn(int nItemIndex, LPCTSTR strName, int nWidth, BOOL bAutoSize, int nIconID,
                                   BOOL bSortable, BOOL bVisible)
    : CXTPReportColumn(nItemIndex, strName, strName, nWidth, bAutoSize, nIconID, bSortable, bVisible) {}

CXTPReportColumn::CXTPReportColumn(int nItemIndex, LPCTSTR strDisplayName, LPCTSTR strInternalName, int nWidth,
                                   BOOL bAutoSize, int nIconID, BOOL bSortable, BOOL bVisible)
    : m_strCaption(strDisplayName), m_strInternalName(strInternalName), m_nItemIndex(nItemIndex),
      m_nWidth(std::clamp(nWidth, m_nMinWidth, m_nMaxWidth)), m_nIconID(nIconID), m_bAutoSize(bAutoSize),
      m_bSortable(bSortable), m_bVisible(bVisible) {}

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

void CXTPReportColumn::SetWidth(int nWidth) {
    Set(m_nWidth, std::clamp(nWidth, m_nMinWidth, m_nMaxWidth), Effect::Layout);
}

void CXTPReportColumn::SetMinWidth(int nMinWidth) {
    m_nMinWidth = std::max(nMinWidth, 0);
    m_nMaxWidth = std::max(m_nMaxWidth, m_nMinWidth);
    SetWidth(m_nWidth);
}

void CXTPReportColumn::SetMaxWidth(int nMaxWidth) {
    m_nMaxWidth = std::max(nMaxWidth, 0);
    m_nMinWidth = std::min(m_nMinWidth, m_nMaxWidth);
    SetWidth(m_nWidth);
}

void CXTPReportColumn::SetAlignment(int nAlignment) { Set(m_nAlignment, nAlignment, Effect::Look); }

void CXTPReportColumn::SetHeaderAlignment(int nAlignment) { Set(m_nHeaderAlignment, nAlignment, Effect::Look); }

void CXTPReportColumn::SetVisible(BOOL bVisible) {
    Set(m_bVisible, static_cast<BOOL>(bVisible != FALSE), Effect::Layout);
}

BOOL CXTPReportColumn::IsSorted() const { return m_pColumns && m_pColumns->GetSortOrder()->IndexOf(this) >= 0; }

BOOL CXTPReportColumn::IsSortedIncreasing() const { return IsSorted() && m_bSortIncreasing; }

BOOL CXTPReportColumn::IsSortedDecreasing() const { return IsSorted() && !m_bSortIncreasing; }
