// The strip of column headers: where its columns stand, and its drawing.
#include "CXTPReportHeader.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportPaintManager.h"
#include "CellText.h"
#include "ColumnGeometry.h"
#include "HeaderExtents.h"

#include "../../framework/gdi/SelectGuard.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CXTPReportHeader, CCmdTarget)

CXTPReportHeader::CXTPReportHeader(CXTPReportControl* pControl, CXTPReportColumns* pColumns)
    : m_pControl(pControl), m_pColumns(pColumns) {}

CXTPReportHeader::~CXTPReportHeader() = default;

// --- Layout ---------------------------------------------------------------------------------------------------------

std::vector<gridgeometry::ColumnExtent> HeaderExtents(const CXTPReportHeader& header) {
    std::vector<gridgeometry::ColumnExtent> extents;
    const CXTPReportColumns* columns = header.GetColumns();
    int frozen = 0, lastResizable = -1;
    for (int i = 0; i < columns->GetCount(); ++i) {
        const CXTPReportColumn* column = columns->GetAt(i);
        const CRect rc = column->GetRect();
        if (!column->IsVisible())
            continue;
        const bool isResizable = header.IsAllowColumnResize() && column->IsResizable();
        frozen += column->IsFrozen() ? 1 : 0;
        lastResizable = isResizable ? static_cast<int>(extents.size()) : lastResizable;
        extents.push_back({rc.left, rc.right, isResizable});
    }
    // Where columns fill the view, there is nobody behind the last one to give or take.
    if (header.IsAutoColumnSizing() && lastResizable >= 0)
        extents[lastResizable].resizable = false;
    return gridgeometry::CutAtFrozen(std::move(extents), frozen);
}

void CXTPReportHeader::AdjustLayout(const CRect& rcHeader) {
    if (m_pControl->GetFreezeColumnsCount() > 0)
        PlaceFrozenColumns(rcHeader);
    else
        PlaceColumns(rcHeader);
}

/// Needs no memory, so that a column that is shown or hidden always has its place at once.
void CXTPReportHeader::PlaceColumns(const CRect& rcHeader) {
    m_nFreezeEdge = rcHeader.left;
    int x = rcHeader.left - m_pControl->GetLeftOffset();
    for (int i = 0; i < m_pColumns->GetCount(); ++i) {
        CXTPReportColumn* const column = m_pColumns->GetAt(i);
        const int width = column->IsVisible() ? column->GetWidth() : 0;
        column->m_bFrozen = FALSE;
        column->SetRect(column->IsVisible() ? CRect(x, rcHeader.top, x + width, rcHeader.bottom) : CRect());
        x += width;
    }
}

void CXTPReportHeader::PlaceFrozenColumns(const CRect& rcHeader) {
    std::vector<CXTPReportColumn*> columns;
    std::vector<int> widths;
    for (int i = 0; i < m_pColumns->GetCount(); ++i) {
        CXTPReportColumn* column = m_pColumns->GetAt(i);
        column->m_bFrozen = FALSE;
        column->SetRect(CRect());
        if (!column->IsVisible())
            continue;
        columns.push_back(column);
        widths.push_back(column->GetWidth());
    }
    const int frozen = gridgeometry::FrozenCount(widths, m_pControl->GetFreezeColumnsCount(), rcHeader.Width());
    const auto extents = gridgeometry::LayOutFrozenColumns(widths, frozen, rcHeader.left, m_pControl->GetLeftOffset());
    m_nFreezeEdge = frozen > 0 ? extents[frozen - 1].right : rcHeader.left;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        columns[i]->SetRect(CRect(extents[i].left, rcHeader.top, extents[i].right, rcHeader.bottom));
        columns[i]->m_bFrozen = i < frozen;
    }
}

int CXTPReportHeader::GetTotalWidth() const {
    int width = 0;
    for (int i = 0; i < m_pColumns->GetCount(); ++i) {
        if (m_pColumns->GetAt(i)->IsVisible())
            width += m_pColumns->GetAt(i)->GetWidth();
    }
    return width;
}

int CXTPReportHeader::GetHeight() const { return m_pControl->GetPaintManager()->GetHeaderHeight(); }

CXTPReportColumn* CXTPReportHeader::HitTest(CPoint ptPoint) const {
    const CRect rcHeader = m_pControl->GetHeaderRect();
    if (ptPoint.y < rcHeader.top || ptPoint.y >= rcHeader.bottom)
        return nullptr;
    return m_pColumns->GetVisibleAt(gridgeometry::ColumnAt(HeaderExtents(*this), ptPoint.x));
}

CXTPReportColumn* CXTPReportHeader::HitTestDivider(CPoint ptPoint) const {
    const CRect rcHeader = m_pControl->GetHeaderRect();
    if (ptPoint.y < rcHeader.top || ptPoint.y >= rcHeader.bottom)
        return nullptr;
    const int reach = m_pControl->GetPaintManager()->ScaleForDpi(gridgeometry::DividerReach);
    return m_pColumns->GetVisibleAt(gridgeometry::DividerAt(HeaderExtents(*this), ptPoint.x, reach));
}

CXTPReportColumn* CXTPReportHeader::GetNextVisibleColumn(int nColumnIndex, int nDirection) const {
    const int nStep = nDirection < 0 ? -1 : 1;
    // A place far outside is as good as the next one outside.
    for (int i = std::clamp(nColumnIndex, -1, m_pColumns->GetCount()) + nStep; i >= 0 && i < m_pColumns->GetCount();
         i += nStep) {
        if (m_pColumns->GetAt(i)->IsVisible())
            return m_pColumns->GetAt(i);
    }
    return nullptr;
}

// --- Widths ---------------------------------------------------------------------------------------------------------

/// As the arithmetic has it. Called with the own width, or with the one that the view has made of it.
gridgeometry::SharedColumn CXTPReportHeader::Describe(const CXTPReportColumn& column, int nWidth) const {
    return {nWidth, column.GetMinWidth(), column.GetMaxWidth(), m_bAutoColumnSizing && column.IsAutoSize()};
}

std::vector<gridgeometry::SharedColumn> CXTPReportHeader::DescribeVisibleColumns() const {
    std::vector<gridgeometry::SharedColumn> shared;
    for (int i = 0; i < m_pColumns->GetCount(); ++i) {
        const CXTPReportColumn* column = m_pColumns->GetAt(i);
        if (column->IsVisible())
            shared.push_back(Describe(*column, column->GetOwnWidth()));
    }
    return shared;
}

int CXTPReportHeader::GetLeastWidth() const {
    if (m_bAutoColumnSizing)
        return gridgeometry::LeastWidth(DescribeVisibleColumns());
    int width = 0;
    for (int i = 0; i < m_pColumns->GetCount(); ++i)
        width += m_pColumns->GetAt(i)->IsVisible() ? m_pColumns->GetAt(i)->GetOwnWidth() : 0;
    return width;
}

void CXTPReportHeader::FitColumns(int nViewWidth) {
    std::vector<int> widths;
    if (m_bAutoColumnSizing && nViewWidth > 0)
        widths = gridgeometry::ShareWidth(DescribeVisibleColumns(), nViewWidth);
    auto width = widths.begin();
    for (int i = 0; i < m_pColumns->GetCount(); ++i) {
        CXTPReportColumn* column = m_pColumns->GetAt(i);
        const bool isShared = column->IsVisible() && width != widths.end();
        column->m_nWidth = isShared ? *width++ : column->GetOwnWidth();
    }
}

void CXTPReportHeader::SetAutoColumnSizing(BOOL bAutoSizing) {
    if (!m_bAutoColumnSizing == !bAutoSizing)
        return;
    OnCancelMode();
    m_bAutoColumnSizing = bAutoSizing != FALSE;
    m_pControl->AdjustLayout();
}

/// The column that gets or loses what the other loses or gets, where columns fill the view; null if there is none.
CXTPReportColumn* CXTPReportHeader::GetResizePartner(const CXTPReportColumn* pColumn) const {
    CXTPReportColumn* partner = GetNextVisibleColumn(pColumn->GetIndex());
    while (partner && !partner->IsResizable())
        partner = GetNextVisibleColumn(partner->GetIndex());
    return partner;
}

void CXTPReportHeader::MoveDivider(CXTPReportColumn* pColumn, int nWidth) {
    if (!m_bAutoColumnSizing) {
        pColumn->SetWidth(nWidth);
        return;
    }
    CXTPReportColumn* const partner = GetResizePartner(pColumn);
    if (!partner || !pColumn->IsVisible())
        return;
    const int moved = gridgeometry::MovableBy(Describe(*pColumn, pColumn->GetWidth()),
                                              Describe(*partner, partner->GetWidth()), nWidth - pColumn->GetWidth());
    if (moved == 0)
        return;
    // What the others have now is their share from now on, so that they stay as they are.
    const int dpi = m_pControl->GetPaintManager()->GetDpi();
    for (int i = 0; i < m_pColumns->GetCount(); ++i) {
        CXTPReportColumn* column = m_pColumns->GetAt(i);
        const int width = column->GetWidth() + (column == pColumn ? moved : column == partner ? -moved : 0);
        if (width != column->GetOwnWidth())
            column->m_setWidth = {width, dpi};
    }
    m_pControl->AdjustLayout();
}

void CXTPReportHeader::BestFit(CXTPReportColumn* pColumn) {
    if (pColumn)
        MoveDivider(pColumn, pColumn->GetBestFitWidth());
}

void CXTPReportHeader::BestFitAll() {
    std::vector<CXTPReportColumn*> columns;
    for (int i = 0; i < m_pColumns->GetCount(); ++i) {
        CXTPReportColumn* column = m_pColumns->GetAt(i);
        if (column->IsVisible() && column->IsResizable())
            columns.push_back(column);
    }
    // Each has its share of the time, and what those before it have left.
    const auto begin = std::chrono::steady_clock::now();
    const int count = static_cast<int>(columns.size());
    for (int i = 0; i < count; ++i)
        columns[i]->SetWidth(columns[i]->BestFitWidthBefore(begin + BestFitTime * (i + 1) / count));
}

// --- Drawing --------------------------------------------------------------------------------------------------------

void CXTPReportHeader::DrawPart(CDC* pDC, const Part& part, const CRect& rc, BOOL bHot, BOOL bPressed) const {
    CXTPReportPaintManager* paintManager = m_pControl->GetPaintManager();
    if (part.isGroup) {
        paintManager->DrawGroupByButton(pDC, part.pColumn, rc, bHot, bPressed);
        return;
    }
    paintManager->DrawColumnBackground(pDC, part.pColumn, rc, bHot, bPressed);
    CRect rcCaption(rc);
    if (bPressed)
        rcCaption.OffsetRect(paintManager->GetPressedOffset(), paintManager->GetPressedOffset());
    paintManager->DrawColumnCaption(pDC, part.pColumn, rcCaption);
}

void CXTPReportHeader::Draw(CDC* pDC, const CRect& rcHeader) {
    m_pControl->GetPaintManager()->DrawHeaderBackground(pDC, rcHeader);
    CRect rcClip;
    pDC->GetClipBox(&rcClip);
    const bool isFocusShown = m_pControl->IsColumnFocusVisible() && m_pControl->HasFocus();
    const CXTPReportColumn* const focused = isFocusShown ? m_pControl->GetFocusedColumn() : nullptr;
    for (int i = 0; i < m_pColumns->GetCount(); ++i) {
        CXTPReportColumn* column = m_pColumns->GetAt(i);
        const CRect rcColumn = column->GetRect(), rcSeen = column->GetUncoveredRect();
        if (!column->IsVisible() || rcSeen.right <= rcClip.left || rcSeen.left >= rcClip.right)
            continue;
        if (rcSeen == rcColumn) {
            DrawColumn(pDC, column, rcColumn, column == focused);
        } else if (!rcSeen.IsRectEmpty()) {
            const SaveDCGuard saved(*pDC);
            pDC->IntersectClipRect(&rcSeen);
            DrawColumn(pDC, column, rcColumn, column == focused);
        }
    }
    if (m_nFreezeEdge > rcHeader.left)
        m_pControl->GetPaintManager()->DrawFreezeLine(
            pDC, CRect(m_nFreezeEdge - 1, rcHeader.top, m_nFreezeEdge, rcHeader.bottom));
}

void CXTPReportHeader::DrawColumn(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn, bool isFocused) const {
    const Part part = {pColumn, false};
    const bool isPressed =
        m_bPressedInside && part == m_pressed && m_pControl->GetMouseMode() == xtpReportMousePrepareColumnDrag;
    DrawPart(pDC, part, rcColumn, part == m_hot, isPressed);
    if (isFocused)
        m_pControl->GetPaintManager()->DrawFocusedColumn(pDC, rcColumn);
}

CRect CXTPReportHeader::GetDragRect() const {
    if (m_pControl->GetMouseMode() != xtpReportMouseColumnDrag || !m_pressed.pColumn)
        return CRect();
    CRect rcCovered = RectOf(m_pressed);
    rcCovered.OffsetRect(m_ptDrag - m_ptPress);
    rcCovered.UnionRect(&rcCovered, m_pControl->GetHeaderRect());
    rcCovered.UnionRect(&rcCovered, m_pControl->GetGroupByRect());
    return rcCovered;
}

void CXTPReportHeader::DrawDrag(CDC* pDC) {
    if (m_pControl->GetMouseMode() != xtpReportMouseColumnDrag || !m_pressed.pColumn)
        return;
    CXTPReportPaintManager* paintManager = m_pControl->GetPaintManager();
    const CRect rcPart = RectOf(m_pressed);
    const CSize size = rcPart.Size();
    const CPoint place = rcPart.TopLeft() + (m_ptDrag - m_ptPress);

    CDC picture;
    CBitmap bitmap;
    if (!rcPart.IsRectEmpty() && picture.CreateCompatibleDC(pDC) &&
        bitmap.CreateCompatibleBitmap(pDC, size.cx, size.cy)) {
        const SelectGuard select(picture, bitmap);
        DrawPart(&picture, m_pressed, CRect(CPoint(0, 0), size), TRUE, FALSE);
        constexpr BLENDFUNCTION Translucent = {AC_SRC_OVER, 0, 176, 0};
        pDC->AlphaBlend(place.x, place.y, size.cx, size.cy, &picture, 0, 0, size.cx, size.cy, Translucent);
    }
    const int visibleIndex = VisibleIndexOf(*m_pColumns, m_pressed.pColumn);
    if (m_drop.column >= 0 && gridgeometry::DropMoves(visibleIndex, m_drop.column)) {
        const int x = gridgeometry::DropMarkX(HeaderExtents(*this), m_drop.column);
        paintManager->DrawDropMarker(pDC, x, m_pControl->GetHeaderRect());
    } else if (m_drop.group >= 0 && DropMovesGroup(m_pressed.pColumn, m_drop.group)) {
        const CRect rcButtons = GetGroupButtonsRect();
        const int x = gridgeometry::ButtonMarkX(GroupExtents(*this), m_drop.group, rcButtons.left,
                                                paintManager->GetGroupByButtonGap());
        paintManager->DrawDropMarker(pDC, x, rcButtons);
    }
}
