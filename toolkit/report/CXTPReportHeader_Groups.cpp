// The group-by box above the header: where its buttons stand, what they do, and its drawing.
#include "CXTPReportHeader.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportPaintManager.h"
#include "ColumnGeometry.h"
#include "HeaderExtents.h"

// --- Places ---------------------------------------------------------------------------------------------------------

/// Where the buttons may stand: they are as high as the header.
CRect CXTPReportHeader::GetGroupButtonsRect() const {
    CRect rc = m_pControl->GetGroupByRect();
    if (!rc.IsRectEmpty()) {
        const int margin = m_pControl->GetPaintManager()->GetGroupByMargin();
        rc.DeflateRect(margin, margin);
        rc.bottom = rc.top + GetHeight();
    }
    return rc;
}

std::vector<gridgeometry::ColumnExtent> GroupExtents(const CXTPReportHeader& header) {
    const CXTPReportControl& control = *header.GetControl();
    const CXTPReportPaintManager& paintManager = *control.GetPaintManager();
    const CXTPReportColumnOrder& groups = *header.GetColumns()->GetGroupsOrder();
    const CRect rcBox = control.GetGroupByRect();
    if (rcBox.IsRectEmpty())
        return {};
    std::vector<int> widths;
    for (int i = 0; i < groups.GetCount(); ++i)
        widths.push_back(paintManager.GetGroupByButtonWidth(groups.GetAt(i)));
    const int margin = paintManager.GetGroupByMargin();
    return gridgeometry::LayOutButtons(widths, rcBox.left + margin, rcBox.right - margin,
                                       paintManager.GetGroupByButtonGap());
}

CRect CXTPReportHeader::GetGroupRect(const CXTPReportColumn* pColumn) const {
    const int index = m_pColumns->GetGroupsOrder()->IndexOf(pColumn);
    const CRect rcButtons = GetGroupButtonsRect();
    if (index < 0 || rcButtons.IsRectEmpty())
        return CRect();
    const gridgeometry::ColumnExtent place = GroupExtents(*this)[index];
    return CRect(place.left, rcButtons.top, place.right, rcButtons.bottom);
}

CXTPReportColumn* CXTPReportHeader::HitTestGroup(CPoint ptPoint) const {
    const CRect rcButtons = GetGroupButtonsRect();
    if (ptPoint.y < rcButtons.top || ptPoint.y >= rcButtons.bottom)
        return nullptr;
    return m_pColumns->GetGroupsOrder()->GetAt(gridgeometry::ColumnAt(GroupExtents(*this), ptPoint.x));
}

// --- What the user does ---------------------------------------------------------------------------------------------

bool CXTPReportHeader::DropMovesGroup(const CXTPReportColumn* pColumn, int nGroup) const {
    const int index = m_pColumns->GetGroupsOrder()->IndexOf(pColumn);
    return index < 0 || gridgeometry::DropMoves(index, nGroup);
}

void CXTPReportHeader::GroupBy(CXTPReportColumn* pColumn, int nPlace) {
    if (!pColumn || !pColumn->IsGroupable())
        return;
    CXTPReportColumnOrder* const groups = m_pColumns->GetGroupsOrder();
    const int former = groups->IndexOf(pColumn);
    const int place = nPlace < 0 || nPlace > groups->GetCount() ? groups->GetCount() : nPlace;
    if (!DropMovesGroup(pColumn, place))
        return;
    if (former < 0 && !pColumn->IsSorted())
        pColumn->SetSortIncreasing(TRUE); // whatever it was when it was sorted by last
    // The groups behind it move up by one when the column is taken out in front of them.
    groups->InsertAt(former >= 0 && former < place ? place - 1 : place, pColumn);
    RepopulateAndTell(XTP_NM_REPORT_GROUPORDERCHANGED, pColumn);
}

void CXTPReportHeader::Ungroup(CXTPReportColumn* pColumn) {
    CXTPReportColumnOrder* const groups = m_pColumns->GetGroupsOrder();
    if (!pColumn || !pColumn->IsGroupable() || groups->IndexOf(pColumn) < 0)
        return;
    groups->Remove(pColumn);
    RepopulateAndTell(XTP_NM_REPORT_GROUPORDERCHANGED, pColumn);
}

void CXTPReportHeader::TurnGroup(CXTPReportColumn* pColumn) {
    if (!pColumn || m_pColumns->GetGroupsOrder()->IndexOf(pColumn) < 0)
        return;
    pColumn->SetSortIncreasing(!pColumn->IsSortIncreasing());
    RepopulateAndTell(XTP_NM_REPORT_GROUPORDERCHANGED, pColumn);
}

// --- Drawing --------------------------------------------------------------------------------------------------------

void CXTPReportHeader::DrawGroupBy(CDC* pDC, const CRect& rcGroupBy) {
    CXTPReportPaintManager* const paintManager = m_pControl->GetPaintManager();
    const CXTPReportColumnOrder& groups = *m_pColumns->GetGroupsOrder();
    paintManager->DrawGroupByBackground(pDC, rcGroupBy);
    if (groups.GetCount() == 0) {
        paintManager->DrawNoGroupByText(pDC, GetGroupButtonsRect());
        return;
    }
    const CRect rcButtons = GetGroupButtonsRect();
    const auto places = GroupExtents(*this);
    for (int i = 0; i < groups.GetCount(); ++i) {
        if (i > 0)
            paintManager->DrawGroupByConnector(
                pDC, CRect(places[i - 1].right, rcButtons.top, places[i].left, rcButtons.bottom));
        const Part part = {groups.GetAt(i), true};
        const bool isPressed =
            m_bPressedInside && part == m_pressed && m_pControl->GetMouseMode() == xtpReportMousePrepareColumnDrag;
        DrawPart(pDC, part, CRect(places[i].left, rcButtons.top, places[i].right, rcButtons.bottom), part == m_hot,
                 isPressed);
    }
}
