// The strip of column headers above the rows.
#pragma once

#include "XTPReportDefines.h"

/// Lays out the columns, finds the column or divider under a point, and carries out what the user does there:
/// sort by click, resize at the divider, best fit by double click, move by dragging.
/// Points and rectangles are in the control's client coordinates.
class KY_TOOLKIT_API CXTPReportHeader : public CCmdTarget {
    DECLARE_DYNAMIC(CXTPReportHeader)
public:
    CXTPReportHeader(CXTPReportControl* pControl, CXTPReportColumns* pColumns);
    ~CXTPReportHeader() override;

    CXTPReportColumns* GetColumns() const { return m_pColumns; }
    CXTPReportControl* GetControl() const { return m_pControl; }

    // --- What the user may do; all allowed at first ---------------------------------------------------------------
    void AllowColumnRemove(BOOL bAllow) { m_bAllowColumnRemove = bAllow; }
    BOOL IsAllowColumnRemove() const { return m_bAllowColumnRemove; }
    void AllowColumnReorder(BOOL bAllow) { m_bAllowColumnReorder = bAllow; }
    BOOL IsAllowColumnReorder() const { return m_bAllowColumnReorder; }
    void AllowColumnResize(BOOL bAllow) { m_bAllowColumnResize = bAllow; }
    BOOL IsAllowColumnResize() const { return m_bAllowColumnResize; }
    void AllowColumnSort(BOOL bAllow) { m_bAllowColumnSort = bAllow; }
    BOOL IsAllowColumnSort() const { return m_bAllowColumnSort; }

    // --- Layout -----------------------------------------------------------------------------------------------
    /// Gives each visible column its rectangle inside `rcHeader`, scrolled left by the control's offset.
    void AdjustLayout(const CRect& rcHeader);
    int GetTotalWidth() const; ///< widths of the visible columns, pixels
    int GetHeight() const;     ///< as the paint manager has it, pixels

    /// The visible column whose header cell contains the point; null if none.
    CXTPReportColumn* HitTest(CPoint ptPoint) const;
    /// The column whose right divider is under the point (within 4 pixels) and that may be resized; null if none.
    CXTPReportColumn* HitTestDivider(CPoint ptPoint) const;

    /// Draws the strip; columns outside the clip box of `pDC` are left out.
    virtual void Draw(CDC* pDC, const CRect& rcHeader);
    /// The drop mark and the picture of the column being dragged; drawn last, over everything.
    virtual void DrawDrag(CDC* pDC);
    /// What `DrawDrag` covers; empty while no column is dragged.
    CRect GetDragRect() const;

    // --- Mouse, called by the control -----------------------------------------------------------------------------
    virtual void OnLButtonDown(CPoint ptPoint);
    virtual void OnLButtonUp(CPoint ptPoint);
    virtual void OnLButtonDblClk(CPoint ptPoint);
    virtual void OnMouseMove(UINT nFlags, CPoint ptPoint);
    virtual void OnMouseLeave();
    /// Ends a press, a resize or a drag without effect: a column being resized gets back the width it had.
    virtual void OnCancelMode();
    virtual BOOL OnSetCursor(CPoint ptPoint);
    /// A right click on the header; here it does nothing more than ending a drag.
    virtual void OnContextMenu(CPoint ptPoint);

    /// Sorts by the column as a click on its header does: a column already in the sort order changes direction.
    /// @param bAddKey keeps the other columns of the sort order, as a click with ctrl or shift does
    void Sort(CXTPReportColumn* pColumn, BOOL bAddKey);
    /// Moves the column by one place among the visible ones, as dragging it does: nLeftRight −1 to the left, 1 to the
    /// right. Nothing happens where dragging is not allowed.
    void MoveColumn(CXTPReportColumn* pColumn, int nLeftRight);
    /// Makes the column wider by so many pixels (negative: narrower), as dragging its divider does.
    void ResizeColumn(CXTPReportColumn* pColumn, int nPixels);
    /// Sets the width at which the caption and the texts of the visible rows show without ellipsis.
    void BestFit(CXTPReportColumn* pColumn);
    /// The column is about to be deleted.
    void OnColumnRemoved(const CXTPReportColumn* pColumn);
    CXTPReportColumn* GetHotColumn() const { return m_pHotColumn; }
    CXTPReportColumn* GetPressedColumn() const { return m_pPressedColumn; }

protected:
    CXTPReportControl* m_pControl;
    CXTPReportColumns* m_pColumns;

private:
    bool IsInGesture() const;
    void BeginGesture(CXTPReportColumn* pColumn, CPoint ptPoint, XTPReportMouseMode mode);
    void EndGesture();
    void TrackPress(CPoint ptPoint);
    void TrackDrag(CPoint ptPoint);
    void TrackHover(CPoint ptPoint);
    void SetHotColumn(CXTPReportColumn* pColumn);
    void DropColumn(CXTPReportColumn* pColumn, int nDropPos);
    void RedrawColumn(const CXTPReportColumn* pColumn) const;

    BOOL m_bAllowColumnRemove = TRUE, m_bAllowColumnReorder = TRUE, m_bAllowColumnResize = TRUE,
         m_bAllowColumnSort = TRUE;
    CXTPReportColumn* m_pHotColumn = nullptr;
    CXTPReportColumn* m_pPressedColumn = nullptr;
    bool m_bPressedInside = false; ///< the pointer is over the pressed column
    CPoint m_ptPress;
    CPoint m_ptDrag;
    int m_nResizeStartWidth = 0;
    int m_nDropPos = -1; ///< place among the visible columns before which the dragged column would land, −1 for none
};
