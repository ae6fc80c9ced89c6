/// @file
/// The strip of column headers above the rows.
#pragma once

#include "DpiLength.h"
#include "XTPReportDefines.h"

/// Lays out the columns, finds the column or divider under a point, and carries out what the user does there:
/// sort by click, resize at the divider, best fit by double click, move by dragging.
/// Points and rectangles are in the control's client coordinates.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportHeader : public CCmdTarget {
    DECLARE_DYNAMIC(CXTPReportHeader)
public:
    /// Neither pointer is owned; the control owns the header and outlives it.
    CXTPReportHeader(CXTPReportControl* pControl, CXTPReportColumns* pColumns);
    ~CXTPReportHeader() override;

    CXTPReportColumns* GetColumns() const { return m_pColumns; } ///< never null
    CXTPReportControl* GetControl() const { return m_pControl; } ///< never null

    // --- What the user may do; all allowed at first. A column may forbid it for itself ------------------------------
    void AllowColumnRemove(BOOL bAllow) { m_bAllowColumnRemove = bAllow; }   ///< hide columns, in a column chooser
    BOOL IsAllowColumnRemove() const { return m_bAllowColumnRemove; }        ///< asked by column choosers
    void AllowColumnReorder(BOOL bAllow) { m_bAllowColumnReorder = bAllow; } ///< drag columns to other places
    BOOL IsAllowColumnReorder() const { return m_bAllowColumnReorder; }    ///< see `CXTPReportColumn::IsAllowDragging`
    void AllowColumnResize(BOOL bAllow) { m_bAllowColumnResize = bAllow; } ///< drag dividers and fit columns
    BOOL IsAllowColumnResize() const { return m_bAllowColumnResize; }      ///< see `CXTPReportColumn::IsResizable`
    void AllowColumnSort(BOOL bAllow) { m_bAllowColumnSort = bAllow; }     ///< also holds for `Sort`
    BOOL IsAllowColumnSort() const { return m_bAllowColumnSort; }          ///< see `CXTPReportColumn::IsSortable`

    // --- Layout -----------------------------------------------------------------------------------------------
    /// Gives each visible column its rectangle inside `rcHeader`, scrolled left by the control's offset.
    void AdjustLayout(const CRect& rcHeader);
    int GetTotalWidth() const; ///< widths of the visible columns, pixels
    int GetHeight() const;     ///< as the paint manager has it, pixels

    /// The visible column whose header cell contains the point; null if none.
    CXTPReportColumn* HitTest(CPoint ptPoint) const;
    /// The column whose right divider is under the point (within 4 pixels at 96 DPI) and that may be resized; null if
    /// none.
    CXTPReportColumn* HitTestDivider(CPoint ptPoint) const;

    /// The visible column nearest to the place `nColumnIndex` among all columns, to the right of it (nDirection 1) or
    /// to the left (−1); null if none.
    CXTPReportColumn* GetNextVisibleColumn(int nColumnIndex, int nDirection = 1) const;

    /// Draws the strip; columns outside the clip box of `pDC` are left out.
    virtual void Draw(CDC* pDC, const CRect& rcHeader);
    /// The drop mark and the picture of the column being dragged; drawn last, over everything.
    virtual void DrawDrag(CDC* pDC);
    /// What `DrawDrag` covers; empty while no column is dragged.
    CRect GetDragRect() const;

    // --- Mouse, called by the control -----------------------------------------------------------------------------
    /// Begins a resize at a divider, else the press of a column, and captures the mouse.
    virtual void OnLButtonDown(CPoint ptPoint);
    /// Ends the gesture: sorts when the column was only pressed, moves it when it was dragged.
    virtual void OnLButtonUp(CPoint ptPoint);
    /// Best fit at a divider; elsewhere a press like the first.
    virtual void OnLButtonDblClk(CPoint ptPoint);
    /// Goes on with a gesture, else makes the column under the point hot. A press becomes a drag beyond the system's
    /// drag distance.
    virtual void OnMouseMove(UINT nFlags, CPoint ptPoint);
    virtual void OnMouseLeave(); ///< no column is hot any more; a gesture goes on
    /// Ends a press, a resize or a drag without effect: a column being resized gets back the width it had.
    virtual void OnCancelMode();
    /// Chooses the cursor during a drag or resize and over dividers; FALSE leaves the choice to the control.
    virtual BOOL OnSetCursor(CPoint ptPoint);
    /// A right click on the header; here it does nothing more than ending a drag.
    virtual void OnContextMenu(CPoint ptPoint);

    /// Sorts by the column as a click on its header does: a column already in the sort order changes direction. Tells
    /// the owner. Nothing happens where the user may not sort.
    /// @param pColumn the column; null does nothing
    /// @param bAddKey keeps the other columns of the sort order, as a click with ctrl or shift does
    void Sort(CXTPReportColumn* pColumn, BOOL bAddKey);
    /// Moves the column by one place among the visible ones, as dragging it does: nLeftRight −1 to the left, 1 to the
    /// right. Nothing happens where dragging is not allowed.
    void MoveColumn(CXTPReportColumn* pColumn, int nLeftRight);
    /// Makes the column wider by so many pixels (negative: narrower), as dragging its divider does.
    void ResizeColumn(CXTPReportColumn* pColumn, int nPixels);
    /// Sets the width at which the caption and the texts of the visible rows show without ellipsis. Does not tell the
    /// owner.
    void BestFit(CXTPReportColumn* pColumn);
    /// The same for each visible column that may be resized, all of them in the time that one of them may take.
    void BestFitAll();
    /// The column is about to be deleted.
    void OnColumnRemoved(const CXTPReportColumn* pColumn);
    CXTPReportColumn* GetHotColumn() const { return m_pHotColumn; } ///< under the pointer, beside dividers; or null
    /// The column that a press, a drag or a resize concerns; null while there is none.
    CXTPReportColumn* GetPressedColumn() const { return m_pPressedColumn; }

protected:
    CXTPReportControl* m_pControl; ///< not owned
    CXTPReportColumns* m_pColumns; ///< not owned

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
    DpiLength m_resizeStart;
    int m_nResizeStartWidth = 0;
    int m_nDropPos = -1; ///< place among the visible columns before which the dragged column would land, −1 for none
};
