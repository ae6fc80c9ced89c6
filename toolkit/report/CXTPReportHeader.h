/// @file
/// The strip of column headers above the rows, and the group-by box above it.
#pragma once

#include "DpiLength.h"
#include "XTPReportDefines.h"

#include <vector>

namespace gridgeometry {
struct SharedColumn;
}

/// Lays out the columns, finds the column or divider under a point, and carries out what the user does there:
/// sort by click, resize at the divider, best fit by double click, move by dragging. The group-by box
/// (`CXTPReportControl::ShowGroupBy`) shows the columns by which rows are grouped as buttons: a header that is dragged
/// into the box groups by its column, in the place of the drop mark, and stays where it is; a button that is dragged
/// within the box changes the order, one that is dropped elsewhere takes its column out of the groups; a click on a
/// button turns the order of its groups round. Points and rectangles are in the control's client coordinates.
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

    /// Has the columns fill the view: those with `CXTPReportColumn::IsAutoSize` divide the width that the others leave
    /// in proportion to the widths set for them, as far as their limits allow; the view scrolls sideways only when
    /// their least widths do not fit. A divider that is dragged then moves width between the columns beside it. Off at
    /// first; switched off, columns have the widths again that were set for them.
    void SetAutoColumnSizing(BOOL bAutoSizing);
    BOOL IsAutoColumnSizing() const { return m_bAutoColumnSizing; } ///< see `SetAutoColumnSizing`

    // --- Layout -----------------------------------------------------------------------------------------------
    /// Gives each visible column its rectangle inside `rcHeader`, scrolled left by the control's offset unless it is
    /// frozen.
    void AdjustLayout(const CRect& rcHeader);
    /// Gives each column the width that it has in a view so wide; 0: as it was set. Called by the control, which lays
    /// out then.
    void FitColumns(int nViewWidth);
    int GetLeastWidth() const; ///< the width below which the view has to scroll sideways, pixels
    /// Where the frozen columns end and the others scroll beneath them; the left edge of the header when none is
    /// frozen.
    int GetFreezeEdge() const { return m_nFreezeEdge; }
    int GetTotalWidth() const; ///< widths of the visible columns, pixels
    int GetHeight() const;     ///< as the paint manager has it, pixels

    /// The visible column whose header cell contains the point; null if none.
    CXTPReportColumn* HitTest(CPoint ptPoint) const;
    /// The column whose right divider is under the point (within 4 pixels at 96 DPI) and that may be resized; null if
    /// none.
    CXTPReportColumn* HitTestDivider(CPoint ptPoint) const;

    /// The column whose button in the group-by box is under the point; null if none.
    CXTPReportColumn* HitTestGroup(CPoint ptPoint) const;
    /// The button of the column in the group-by box; empty where there is none.
    CRect GetGroupRect(const CXTPReportColumn* pColumn) const;

    /// The visible column nearest to the place `nColumnIndex` among all columns, to the right of it (nDirection 1) or
    /// to the left (−1); null if none.
    CXTPReportColumn* GetNextVisibleColumn(int nColumnIndex, int nDirection = 1) const;

    /// Draws the strip; columns outside the clip box of `pDC` are left out.
    virtual void Draw(CDC* pDC, const CRect& rcHeader);
    /// Draws the group-by box with its buttons, or the text that stands in an empty one.
    virtual void DrawGroupBy(CDC* pDC, const CRect& rcGroupBy);
    /// The drop mark and the picture of the column being dragged; drawn last, over everything.
    virtual void DrawDrag(CDC* pDC);
    /// What `DrawDrag` covers; empty while no column is dragged.
    CRect GetDragRect() const;

    // --- Mouse, called by the control -----------------------------------------------------------------------------
    /// Begins a resize at a divider, else the press of a column, and captures the mouse.
    virtual void OnLButtonDown(CPoint ptPoint);
    /// Ends the gesture: sorts when the column was only pressed, moves it, or groups by it, when it was dragged.
    virtual void OnLButtonUp(CPoint ptPoint);
    /// Best fit at a divider; elsewhere, also in the group-by box, a press like the first.
    virtual void OnLButtonDblClk(CPoint ptPoint);
    /// Goes on with a gesture, else makes the column under the point hot. A press becomes a drag beyond the system's
    /// drag distance.
    virtual void OnMouseMove(UINT nFlags, CPoint ptPoint);
    virtual void OnMouseLeave(); ///< no column is hot any more; a gesture goes on
    /// Ends a press, a resize or a drag without effect: a column being resized gets back the width it had.
    virtual void OnCancelMode();
    /// Chooses the cursor during a drag or resize and over dividers; FALSE leaves the choice to the control.
    virtual BOOL OnSetCursor(CPoint ptPoint);
    /// A right click on the header or the group-by box; here it does nothing more than ending a drag.
    virtual void OnContextMenu(CPoint ptPoint);

    /// Sorts by the column as a click on its header does: a column already in the sort order changes direction. Tells
    /// the owner. Nothing happens where the user may not sort.
    /// @param pColumn the column; null does nothing
    /// @param bAddKey keeps the other columns of the sort order, as a click with ctrl or shift does
    void Sort(CXTPReportColumn* pColumn, BOOL bAddKey);
    /// Groups by the column, in front of the group at `nPlace` (negative: behind the last one); a column that is
    /// grouped already moves there. Tells the owner (XTP_NM_REPORT_GROUPORDERCHANGED). Nothing happens where the user
    /// may not group by the column.
    void GroupBy(CXTPReportColumn* pColumn, int nPlace = -1);
    void Ungroup(CXTPReportColumn* pColumn); ///< takes it out of the groups; as `GroupBy` in the rest
    /// Turns round the order of the column's groups, as a click on its button does. Tells the owner.
    void TurnGroup(CXTPReportColumn* pColumn);
    /// Moves the column by one place among the visible ones, as dragging it does: nLeftRight −1 to the left, 1 to the
    /// right. Nothing happens where dragging is not allowed.
    void MoveColumn(CXTPReportColumn* pColumn, int nLeftRight);
    /// Makes the column wider by so many pixels (negative: narrower), as dragging its divider does. Where columns fill
    /// the view, its neighbour loses what it gets.
    void ResizeColumn(CXTPReportColumn* pColumn, int nPixels);
    /// Sets the width at which the caption and the texts of the visible rows show without ellipsis. Does not tell the
    /// owner.
    void BestFit(CXTPReportColumn* pColumn);
    /// The same for each visible column that may be resized, all of them in the time that one of them may take.
    void BestFitAll();
    /// The column is about to be deleted.
    void OnColumnRemoved(const CXTPReportColumn* pColumn);
    /// Under the pointer in the strip, beside dividers; or null.
    CXTPReportColumn* GetHotColumn() const { return m_hot.isGroup ? nullptr : m_hot.pColumn; }
    /// The column that a press, a drag or a resize concerns; null while there is none.
    CXTPReportColumn* GetPressedColumn() const { return m_pressed.pColumn; }

protected:
    CXTPReportControl* m_pControl; ///< not owned
    CXTPReportColumns* m_pColumns; ///< not owned

private:
    /// A column in the strip, or its button in the group-by box.
    struct Part {
        CXTPReportColumn* pColumn = nullptr;
        bool isGroup = false;
        bool operator==(const Part&) const = default;
    };
    /// Where a dragged column would land; at most one of the two is not negative.
    struct DropPlace {
        int column = -1; ///< in front of which visible column
        int group = -1;  ///< in front of which group
        bool IsSomewhere() const { return column >= 0 || group >= 0; }
    };
    struct WidthBefore {
        CXTPReportColumn* pColumn;
        DpiLength width;
    };

    bool IsInGesture() const;
    void BeginGesture(const Part& part, CPoint ptPoint, XTPReportMouseMode mode);
    void EndGesture();
    void TrackPress(CPoint ptPoint);
    void TrackDrag(CPoint ptPoint);
    void TrackHover(CPoint ptPoint);
    Part PartAt(CPoint ptPoint) const;
    CRect RectOf(const Part& part) const;
    bool MayDrag(const Part& part) const;
    DropPlace DropPlaceAt(CPoint ptPoint) const;
    void Drop(const Part& part, const DropPlace& place);
    void DropColumn(CXTPReportColumn* pColumn, int nDropPos);
    bool DropMovesGroup(const CXTPReportColumn* pColumn, int nGroup) const;
    void SetHot(const Part& part);
    void Redraw(const Part& part) const;
    void RepopulateAndTell(UINT nCode, CXTPReportColumn* pColumn);
    void DrawPart(CDC* pDC, const Part& part, const CRect& rc, BOOL bHot, BOOL bPressed) const;
    void DrawColumn(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn, bool isFocused) const;
    CRect GetGroupButtonsRect() const;
    gridgeometry::SharedColumn Describe(const CXTPReportColumn& column, int nWidth) const;
    std::vector<gridgeometry::SharedColumn> DescribeVisibleColumns() const;
    void PlaceColumns(const CRect& rcHeader);
    void PlaceFrozenColumns(const CRect& rcHeader);
    CXTPReportColumn* GetResizePartner(const CXTPReportColumn* pColumn) const;
    void MoveDivider(CXTPReportColumn* pColumn, int nWidth);

    BOOL m_bAllowColumnRemove = TRUE, m_bAllowColumnReorder = TRUE, m_bAllowColumnResize = TRUE,
         m_bAllowColumnSort = TRUE;
    BOOL m_bAutoColumnSizing = FALSE;
    int m_nFreezeEdge = 0;
    Part m_hot;
    Part m_pressed;
    bool m_bPressedInside = false; ///< the pointer is over what is pressed
    CPoint m_ptPress;
    CPoint m_ptDrag;
    std::vector<WidthBefore> m_widthsBefore; ///< what a resize may change
    int m_nResizeStartWidth = 0;
    DropPlace m_drop;
};
