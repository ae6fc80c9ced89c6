// The report control: a grid of records with sortable, movable, resizable columns.
#pragma once

#include "XTPReportDefines.h"

#include "../common/CXTPToolTipContext.h"

#include <memory>

/// A grid. The host adds columns and records and calls `Populate`; rows are the sorted, visible records. All points and
/// rectangles are in client coordinates. Changes through setters redraw by themselves; changes of item values are shown
/// by `RedrawControl`. The control owns its columns, records, rows, header and paint manager.
///
/// Mouse. A press goes to the item under it and then, unless the item keeps it, focuses and selects the row: alone,
/// with ctrl in addition, with shift as a block. Dragging over other rows selects them and scrolls at the edges. Every
/// move goes to the item under the point, also while a derived control has captured the mouse and moves the points;
/// only a drag or resize in the header keeps them. The second press of a double click is a press as well, so that a
/// cell can be dragged right after a click. Escape, a right click and the loss of the capture end a gesture without
/// effect.
///
/// Keyboard. Up, down, page keys, home and end move focus and selection, with shift they extend the selection, with
/// ctrl they move the focus alone; space selects, ctrl+space turns round; ctrl+A selects all; typing finds the row
/// whose text in the sorted (else the first) column begins with it. Left and right move the focused column, with ctrl
/// they scroll sideways, as alt+page keys do by a page; F3 sorts by it, with shift in addition; alt+left and alt+right
/// change its width, alt+plus fits it, ctrl+plus fits all; ctrl+shift+left and right move it; alt+down opens the menu
/// of its header. Enter follows the link of the focused cell, else it sends NM_RETURN. The menu key sends NM_RCLICK for
/// the focused cell; when the owner answers 0, the menu of the focused column's header opens. Ctrl+F1 shows the tool
/// tip of the focused cell.
///
/// Drawing. Only damaged cells are drawn. Scrolling moves the pixels of the rows that stay; an item whose pixels were
/// moved is drawn again before the mouse meets it, so that it may keep the rectangle of its last drawing. Rows have one
/// height. `OnSelectionChanged` runs once per action of the user, and when the host focuses a row with its selection,
/// not when the host changes `GetSelectedRows` or populates. Notifications (XTPReportDefines.h) are sent after what
/// they tell of; the owner may change the content in them, and destroy the control.
class KY_TOOLKIT_API CXTPReportControl : public CWnd {
    DECLARE_DYNCREATE(CXTPReportControl)
public:
    CXTPReportControl();
    ~CXTPReportControl() override;

    /// Creates the window as a child of `pParentWnd`. In a dialog template the window class is "XTPReport".
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // --- Content ------------------------------------------------------------------------------------------------
    void AddColumn(CXTPReportColumn* pColumn);              ///< takes ownership
    CXTPReportRecord* AddRecord(CXTPReportRecord* pRecord); ///< takes ownership; shown after `Populate`
    virtual void Populate();     ///< rebuilds the rows; selection and focus stay with their records
    virtual void ResetContent(); ///< removes all records and rows
    /// One record stands for `nCount` rows; its items answer for the row in `GetItemMetrics`. Sorting is the host's.
    void SetVirtualMode(CXTPReportRecord* pVirtualRecord, int nCount);
    BOOL IsVirtualMode() const;

    CXTPReportColumns* GetColumns() const;
    CXTPReportRecords* GetRecords() const;
    CXTPReportRows* GetRows() const;
    CXTPReportSelectedRows* GetSelectedRows() const;
    CXTPReportHeader* GetReportHeader() const;
    void SetReportHeader(CXTPReportHeader* pHeader); ///< takes ownership of the new header, deletes the old one
    CXTPReportPaintManager* GetPaintManager() const;
    void SetPaintManager(CXTPReportPaintManager* pPaintManager); ///< takes ownership, deletes the old one
    /// A new paint manager for the theme; the column style starts as the theme's own, what the host set beside colours
    /// (font, row height, grid lines, empty text) stays. `bRedraw` paints at once; otherwise it shows with the next
    /// painting, so that more can be set before.
    void SetTheme(XTPReportPaintTheme theme, BOOL bRedraw = TRUE);
    CXTPToolTipContext* GetToolTipContext() const;

    // --- Places -------------------------------------------------------------------------------------------------
    CRect GetReportRectangle() const;        ///< where rows are shown
    CRect GetHeaderRect() const;             ///< where the header is shown
    CXTPReportRow* HitTest(CPoint pt) const; ///< the row under the point; null if none
    XTPReportMouseMode GetMouseMode() const;
    void SetMouseMode(XTPReportMouseMode mode);

    // --- Selection and focus ----------------------------------------------------------------------------------------
    void SetMultipleSelection(BOOL bMultiple);
    BOOL IsMultipleSelection() const;
    CXTPReportRow* GetFocusedRow() const;
    /// Focuses the row and, unless told otherwise, selects it alone and scrolls it into view.
    void SetFocusedRow(CXTPReportRow* pRow, BOOL bSelect = TRUE);
    /// The column that the keyboard acts on: the one focused last, a neighbour when it is hidden now; null before the
    /// user or the host has focused one.
    CXTPReportColumn* GetFocusedColumn() const;
    /// Focuses the column, shows the mark of the focus and scrolls the column into view. Hidden columns and those of
    /// other controls are not focused; null takes the focus from the column.
    void SetFocusedColumn(CXTPReportColumn* pColumn);
    /// Whether header and cell of the focused column are marked while the control has the focus: since the keyboard
    /// moved among columns, until a press of the mouse.
    BOOL IsColumnFocusVisible() const;
    virtual void OnSelectionChanged(); ///< tells the owner (XTP_NM_REPORT_SELCHANGED)
    BOOL HasFocus() const;

    // --- Scrolling ---------------------------------------------------------------------------------------------------
    int GetTopRowIndex() const;
    void SetTopRow(int nIndex);
    int GetLeftOffset() const; ///< pixels scrolled sideways
    void SetLeftOffset(int nOffset);
    void EnsureVisible(CXTPReportRow* pRow);
    int GetFullyVisibleRowCount() const; ///< whole rows that fit, at least 1

    // --- Drawing -----------------------------------------------------------------------------------------------------
    /// Asks for a redraw of everything; requests coalesce. From a cell that is being dragged, its row is redrawn with
    /// the next painting and everything else within a twentieth of a second.
    void RedrawControl();
    void RedrawRow(const CXTPReportRow* pRow); ///< asks for a redraw of one row
    /// Lays out header, columns and scroll bars again and redraws.
    void AdjustLayout();
    /// Draws the control's client area; `rcDirty` bounds what has to be right afterwards.
    virtual void DoDraw(CDC* pDC, const CRect& rcDirty);

    // --- Layout persistence ----------------------------------------------------------------------------------------
    /// Writes or reads the layout: columns by identity with order, width and visibility, sort order and grouping.
    /// Reading checks the whole stream first and throws CArchiveException* on anything broken, before it changes
    /// anything; unknown columns are dropped, columns the stream does not know keep their state and go to the end.
    virtual void SerializeState(CArchive& ar);

    // --- Editing commands -----------------------------------------------------------------------------------------
    virtual BOOL CanCut();
    virtual BOOL CanCopy();
    virtual BOOL CanPaste();

    /// The tool under the point; see `CXTPReportRecordItem::OnToolHitTest`. Headers, items and cut-off texts have tips.
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

    /// Sends a WM_NOTIFY about a cell to the owner; returns the owner's answer.
    LRESULT SendItemNotify(UINT nCode, CPoint pt, CXTPReportRow* pRow, CXTPReportRecordItem* pItem,
                           CXTPReportColumn* pColumn, int nHyperlink = -1);
    LRESULT SendColumnNotify(UINT nCode, CXTPReportColumn* pColumn);

    BOOL PreTranslateMessage(MSG* pMsg) override;
    void PreSubclassWindow() override;

    // --- Called by the model as it changes ---------------------------------------------------------------------------
    /// The row at that index was taken out, because its record is being deleted: focus, top row and scroll bars follow.
    /// The selection has already lost it. The rows below have moved up by one.
    void OnRowRemoved(int nRowIndex);
    /// All rows were taken out: nothing has the focus any more.
    void OnRowsCleared();
    /// The column is about to be deleted: the header forgets it, and a drag or resize of it ends without effect.
    void OnColumnRemoved(CXTPReportColumn* pColumn);

protected:
    int OnCreate(LPCREATESTRUCT lpCreateStruct);
    void OnDestroy();
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* pDC);
    void OnSize(UINT nType, int cx, int cy);
    void OnLButtonDown(UINT nFlags, CPoint point);
    void OnLButtonUp(UINT nFlags, CPoint point);
    void OnLButtonDblClk(UINT nFlags, CPoint point);
    void OnRButtonDown(UINT nFlags, CPoint point);
    void OnRButtonUp(UINT nFlags, CPoint point);
    void OnContextMenu(CWnd* pWnd, CPoint ptScreen);
    void OnMouseMove(UINT nFlags, CPoint point);
    void OnMouseLeave();
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt);
    BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    void OnCaptureChanged(CWnd* pWnd);
    void OnCancelMode();
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    UINT OnGetDlgCode();
    void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void OnTimer(UINT_PTR nIDEvent);
    void OnSetFocus(CWnd* pOldWnd);
    void OnKillFocus(CWnd* pNewWnd);
    void OnEnable(BOOL bEnable);
    void OnSysColorChange();
    void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    LRESULT OnPrintClient(CDC* pDC, UINT nFlags);
    LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    LRESULT SendNotify(UINT nCode, NMHDR* pHeader);

    struct Impl;
    std::unique_ptr<Impl> m_impl;
};
