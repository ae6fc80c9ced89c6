// The strip of column headers: where its columns stand, and its drawing.
#include "CXTPReportHeader.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportPaintManager.h"
#include "CellText.h"
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
    for (int i = 0; i < columns->GetCount(); ++i) {
        const CXTPReportColumn* column = columns->GetAt(i);
        const CRect rc = column->GetRect();
        if (column->IsVisible())
            extents.push_back({rc.left, rc.right, header.IsAllowColumnResize() && column->IsResizable()});
    }
    return extents;
}

void CXTPReportHeader::AdjustLayout(const CRect& rcHeader) {
    int x = rcHeader.left - m_pControl->GetLeftOffset();
    for (int i = 0; i < m_pColumns->GetCount(); ++i) {
        CXTPReportColumn* column = m_pColumns->GetAt(i);
        if (!column->IsVisible()) {
            column->SetRect(CRect());
            continue;
        }
        column->SetRect(CRect(x, rcHeader.top, x + column->GetWidth(), rcHeader.bottom));
        x += column->GetWidth();
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

void CXTPReportHeader::BestFit(CXTPReportColumn* pColumn) {
    if (pColumn)
        pColumn->SetWidth(pColumn->GetBestFitWidth());
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

void CXTPReportHeader::Draw(CDC* pDC, const CRect& rcHeader) {
    CXTPReportPaintManager* paintManager = m_pControl->GetPaintManager();
    paintManager->DrawHeaderBackground(pDC, rcHeader);
    CRect rcClip;
    pDC->GetClipBox(&rcClip);
    const bool isFocusShown = m_pControl->IsColumnFocusVisible() && m_pControl->HasFocus();
    const CXTPReportColumn* const focused = isFocusShown ? m_pControl->GetFocusedColumn() : nullptr;
    const bool isPressedShown = m_bPressedInside && m_pControl->GetMouseMode() == xtpReportMousePrepareColumnDrag;
    for (int i = 0; i < m_pColumns->GetCount(); ++i) {
        CXTPReportColumn* column = m_pColumns->GetAt(i);
        const CRect rcColumn = column->GetRect();
        if (!column->IsVisible() || rcColumn.right <= rcClip.left || rcColumn.left >= rcClip.right)
            continue;
        const bool isPressed = isPressedShown && column == m_pPressedColumn;
        paintManager->DrawColumnBackground(pDC, column, rcColumn, column == m_pHotColumn, isPressed);
        CRect rcCaption(rcColumn);
        if (isPressed)
            rcCaption.OffsetRect(paintManager->GetPressedOffset(), paintManager->GetPressedOffset());
        paintManager->DrawColumnCaption(pDC, column, rcCaption);
        if (column == focused)
            paintManager->DrawFocusedColumn(pDC, rcColumn);
    }
}

CRect CXTPReportHeader::GetDragRect() const {
    if (m_pControl->GetMouseMode() != xtpReportMouseColumnDrag || !m_pPressedColumn)
        return CRect();
    CRect rcPicture = m_pPressedColumn->GetRect();
    rcPicture.OffsetRect(m_ptDrag - m_ptPress);
    CRect rcCovered;
    rcCovered.UnionRect(&rcPicture, m_pControl->GetHeaderRect());
    return rcCovered;
}

void CXTPReportHeader::DrawDrag(CDC* pDC) {
    if (m_pControl->GetMouseMode() != xtpReportMouseColumnDrag || !m_pPressedColumn)
        return;
    CXTPReportPaintManager* paintManager = m_pControl->GetPaintManager();
    const CRect rcColumn = m_pPressedColumn->GetRect();
    const CSize offset = m_ptDrag - m_ptPress;

    CDC picture;
    CBitmap bitmap;
    if (picture.CreateCompatibleDC(pDC) && bitmap.CreateCompatibleBitmap(pDC, rcColumn.Width(), rcColumn.Height())) {
        const SelectGuard select(picture, bitmap);
        const CRect rcPicture(0, 0, rcColumn.Width(), rcColumn.Height());
        paintManager->DrawColumnBackground(&picture, m_pPressedColumn, rcPicture, TRUE, FALSE);
        paintManager->DrawColumnCaption(&picture, m_pPressedColumn, rcPicture);
        constexpr BLENDFUNCTION Translucent = {AC_SRC_OVER, 0, 176, 0};
        pDC->AlphaBlend(rcColumn.left + offset.cx, rcColumn.top + offset.cy, rcColumn.Width(), rcColumn.Height(),
                        &picture, 0, 0, rcColumn.Width(), rcColumn.Height(), Translucent);
    }
    const int visibleIndex = VisibleIndexOf(*m_pColumns, m_pPressedColumn);
    if (m_nDropPos >= 0 && gridgeometry::DropMoves(visibleIndex, m_nDropPos)) {
        const int x = gridgeometry::DropMarkX(HeaderExtents(*this), m_nDropPos);
        paintManager->DrawDropMarker(pDC, x, m_pControl->GetHeaderRect());
    }
}
