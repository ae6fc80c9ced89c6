/// @file
/// One row: a record as the control shows it, or the head of a group.
#pragma once

#include "XTPReportDefines.h"

/// A row lives from one `Populate` to the next; do not keep pointers to rows across it. Reference counted: a handler
/// that may cause a `Populate` holds a reference.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportRow : public CCmdTarget {
public:
    /// Rows are made by `CXTPReportRows` alone.
    CXTPReportRow(CXTPReportRows* pRows, CXTPReportRecord* pRecord, int nIndex);

    static void* operator new(size_t size);            ///< memory comes from the record-item heap
    static void operator delete(void* p, size_t size); ///< and goes back there

    int GetIndex() const { return m_nIndex; } ///< place from the top, 0 for the first row
    /// The record; null for the row of a group, and for a row that was taken out.
    CXTPReportRecord* GetRecord() const { return m_pRecord; }
    CXTPReportControl* GetControl() const; ///< null once the row was taken out of its control
    BOOL IsSelected() const;               ///< FALSE for a row that was taken out
    /// Adds the row to the selection or takes it out; without multiple selection it becomes the only selected row. Does
    /// not raise `OnSelectionChanged`.
    void SetSelected(BOOL bSelected);
    BOOL IsFocused() const; ///< whether or not the control has the keyboard

    // --- Outline; a row that was taken out stands above and below nothing -------------------------------------------
    virtual BOOL IsGroupRow() const { return FALSE; } ///< it is a `CXTPReportGroupRow`
    BOOL HasChildren() const;                         ///< there is something below it, shown or not
    BOOL IsExpanded() const;                          ///< rows below it are shown
    /// Shows or hides the rows below it at once, see `CXTPReportControl::ExpandRow`.
    void SetExpanded(BOOL bExpanded);
    CXTPReportRow* GetParentRow() const;      ///< null when it stands below no other
    CXTPReportRow* GetFirstChildRow() const;  ///< null while it is collapsed
    CXTPReportRow* GetNextSiblingRow() const; ///< the next row below the same parent; null for the last
    int GetTreeDepth() const;                 ///< records above that of the row, 0 for those of the control itself
    int GetGroupLevel() const;                ///< group rows above it
    /// How far the cell in the column begins right of its column's edge, pixels; 0 but for tree columns.
    int GetTreeIndent(const CXTPReportColumn* pColumn) const;
    /// Where a press expands or collapses the row, in client coordinates: over its full height. Empty when nothing
    /// stands below it, and where no tree column is visible.
    virtual CRect GetExpandButtonRect() const;

    /// The row in client coordinates, over the full width of the report area; may lie outside the visible part.
    CRect GetRect() const;
    /// The upper part of the row, which its cells fill; all of it unless the record shows a preview text.
    CRect GetCellsRect() const;
    /// Where the preview text stands, client coordinates; empty when the row shows none.
    CRect GetPreviewRect() const;
    /// The rectangle of the item in client coordinates; empty when its column is hidden. It is the cell without the
    /// grid lines, which are the last pixel column and the last pixel row of the cell, and without the indentation of a
    /// tree column: exactly what `HitTest` tells for the item, and what the item is given to draw in.
    CRect GetItemRect(CXTPReportRecordItem* pItem) const;
    /// The item under the point (client coordinates) with its rectangle as `GetItemRect` has it, and its column; null
    /// if none, and then the two are left alone. A point on a grid line belongs to the cell left of or above it.
    CXTPReportRecordItem* HitTest(CPoint ptPoint, CRect* pRectItem = nullptr,
                                  CXTPReportColumn** ppColumn = nullptr) const;
    /// FALSE for the row of a group and one that was taken out, which have no items to show.
    BOOL IsItemsVisible() const { return m_pRecord != nullptr; }

    /// Draws the row into `pDC` at `rcRow`; only cells that meet the clip box of `rcClip` are drawn.
    virtual void Draw(CDC* pDC, const CRect& rcRow, const CRect& rcClip);
    void EnsureVisible(); ///< scrolls as little as needed; a row that was taken out does nothing

protected:
    CXTPReportRows* GetRows() const { return m_pRows; } ///< null once it was taken out
    /// The frame of the focused row, where it has to be drawn.
    void DrawFocus(CDC* pDC, const CRect& rcRow);

private:
    friend class CXTPReportRows;
    CRect CellsOf(const CRect& rcRow) const;
    CRect PreviewOf(const CRect& rcRow) const;
    void DrawPreview(CDC* pDC, const CRect& rcRow, const CRect& rcClip, COLORREF clrBackground);
    CRect ItemPlace(const CRect& rcCells, const CXTPReportColumn* pColumn) const;
    CRect ButtonPlace(const CRect& rcCells, const CXTPReportColumn* pColumn) const;
    void DrawTree(CDC* pDC, const CXTPReportColumn* pColumn, const CRect& rcCells,
                  const XTP_REPORTRECORDITEM_METRICS& metrics);
    void DrawCell(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcCells);

    // In this order the members leave no gaps: a host may look at millions of rows.
    int m_nIndex;
    CXTPReportRows* m_pRows;
    CXTPReportRecord* m_pRecord;
};
