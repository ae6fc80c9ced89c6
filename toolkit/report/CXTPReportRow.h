/// @file
/// One row: a record as the control shows it.
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
    /// The record; null after its record was deleted and before the next `Populate`.
    CXTPReportRecord* GetRecord() const { return m_pRecord; }
    CXTPReportControl* GetControl() const; ///< null once the row was taken out of its control
    BOOL IsSelected() const;               ///< FALSE for a row that was taken out
    /// Adds the row to the selection or takes it out; without multiple selection it becomes the only selected row. Does
    /// not raise `OnSelectionChanged`.
    void SetSelected(BOOL bSelected);
    BOOL IsFocused() const; ///< whether or not the control has the keyboard

    /// The row in client coordinates, over the full width of the report area; may lie outside the visible part.
    CRect GetRect() const;
    /// The rectangle of the item in client coordinates; empty when its column is hidden. It is the cell without the
    /// grid lines, which are the last pixel column and the last pixel row of the cell: exactly what `HitTest` tells for
    /// the item, and what the item is given to draw in.
    CRect GetItemRect(CXTPReportRecordItem* pItem) const;
    /// The item under the point (client coordinates) with its rectangle as `GetItemRect` has it, and its column; null
    /// if none, and then the two are left alone. A point on a grid line belongs to the cell left of or above it.
    CXTPReportRecordItem* HitTest(CPoint ptPoint, CRect* pRectItem = nullptr,
                                  CXTPReportColumn** ppColumn = nullptr) const;
    /// FALSE for a row that was taken out, which has no items to show.
    BOOL IsItemsVisible() const { return m_pRecord != nullptr; }

    /// Draws the row into `pDC` at `rcRow`; only cells that meet the clip box of `rcClip` are drawn.
    virtual void Draw(CDC* pDC, const CRect& rcRow, const CRect& rcClip);
    void EnsureVisible(); ///< scrolls as little as needed; a row that was taken out does nothing

private:
    friend class CXTPReportRows;
    void DrawCell(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcCell);

    // In this order the members leave no gaps: a host may look at millions of rows.
    int m_nIndex;
    CXTPReportRows* m_pRows;
    CXTPReportRecord* m_pRecord;
};
