/// @file
/// The report control: a grid of records with sortable, movable, resizable columns.
#pragma once

#include "XTPReportDefines.h"

#include "../common/CXTPToolTipContext.h"

#include <memory>

class RowSelection;

/// A grid. The host adds columns and records and calls `Populate`; rows are the sorted, visible records, those below
/// expanded records, and the heads of groups. All points and
/// rectangles are in client coordinates. Changes through setters redraw by themselves; changes of item values are shown
/// by `RedrawControl`. The control owns its columns, records, rows, header and paint manager.
///
/// Outline. Records below a record (`CXTPReportRecord::GetChilds`) have rows below its row while it is expanded, sorted
/// among themselves; a tree column (`CXTPReportColumn::SetTreeColumn`) shows them indented, with a button. The columns
/// of `CXTPReportColumns::GetGroupsOrder` group the control's own records: a `CXTPReportGroupRow` for each text that
/// they show there, in the order in which the cells compare and in the column's direction, with the records below it;
/// records that show no text form the group that comes first, in a decreasing column last. Grouping columns stay as
/// visible as they are. What is expanded is kept in the records and, for groups, by their captions, over every
/// `Populate`; groups are expanded at first, records are not. Group rows are focused and selected as others are but
/// have no record: what works on records leaves them out. A filter (`SetFilterText`) leaves the records that contain
/// its words, and those above them. None of this applies to virtual mode.
///
/// Mouse. A press on an expand button expands or collapses the row and does nothing else; so does a double click on the
/// row of a group, and on a cell of a tree column that cannot be edited. Another press goes to the item under it and
/// then, unless the item keeps it, focuses and selects the row: alone, with ctrl in addition, with shift as a block.
/// Dragging over other rows selects them and scrolls at the edges. Every move goes to the item under the point, also
/// while a derived control has captured the mouse and moves the points; only a drag or resize in the header keeps them.
/// The second press of a double click is a press as well, so that a cell can be dragged right after a click. Escape, a
/// right click and the loss of the capture end a gesture without effect.
///
/// Keyboard. Up, down, page keys, home and end move focus and selection, with shift they extend the selection, with
/// ctrl they move the focus alone; space selects, ctrl+space turns round; ctrl+A selects all; ctrl+C, X and V copy,
/// cut and paste, as insert and delete with ctrl or shift do; typing finds the row
/// whose text in the sorted (else the first) column begins with it. Left and right move the focused column, with ctrl
/// they scroll sideways, as alt+page keys do by a page; on the row of a group and in a tree column, right expands or
/// goes to the first row below, and left collapses or goes to the row above. The number pad's plus, minus and asterisk
/// expand, collapse, and expand with all below, where a cell does not want them typed; F3 sorts by it, with shift in
/// addition; alt+left and alt+right change its width, alt+plus fits it, ctrl+plus fits all; ctrl+shift+left and right
/// move it; ctrl+G groups by it, or no longer, while the group-by box is shown, with shift it turns the order of its
/// groups round; alt+down opens the menu of its header. Enter follows the link of the focused cell, else it edits it,
/// else it sends NM_RETURN. The menu key sends NM_RCLICK for the focused cell; when the owner answers 0, the menu of
/// the focused column's header opens. Ctrl+F1 shows the tool tip of the focused cell.
///
/// Editing. Where `AllowEdit`, the column and the item allow it, F2, Enter, a double click and typing edit the focused
/// cell, tab and shift+tab the next and the previous such cell. A session begins when the owner does not refuse
/// (XTP_NM_REPORT_REQUESTEDIT). It takes effect by Enter, Tab, up, down and page keys, a click elsewhere, the loss of
/// the focus, scrolling, sorting and `Populate`, when its column is hidden or deleted, and when the control is disabled
/// or destroyed: the text goes to the item for which it was typed, wherever that stands then. Escape ends it without
/// effect, and so does the removal of the record. In virtual mode the item has to keep what was typed, see
/// `CXTPReportRecordItem::OnEditChanged`. What changes in the layout, the theme or the resolution moves the editor
/// along with its cell.
///
/// Drawing. Only damaged cells are drawn. Scrolling moves the pixels of the rows that stay; an item whose pixels were
/// moved is drawn again before the mouse meets it, so that it may keep the rectangle of its last drawing. Rows have one
/// height, unless they show previews; scrolling goes by rows, whatever their heights. `OnSelectionChanged` runs once
/// per action of the user, and when the host focuses a row with its selection, not when the host changes
/// `GetSelectedRows` or populates. Notifications (XTPReportDefines.h) are sent after what they tell of; the owner may
/// change the content in them, and destroy the control.
///
/// Resolution. Fonts, heights, paddings and column widths are pixels at the resolution of the paint manager, which is
/// that of the window's monitor. It follows what the system tells child windows; a parent on a system that tells only
/// top-level windows passes its WM_DPICHANGED on. Going to another monitor and back changes nothing.
/// @ingroup toolkit_report
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
    /// One record stands for `nCount` rows; its items answer for the row in `GetItemMetrics`. Sorting is the host's,
    /// and so are child records, grouping and the filter, which have no effect here; a saved layout keeps the groups.
    void SetVirtualMode(CXTPReportRecord* pVirtualRecord, int nCount);
    BOOL IsVirtualMode() const; ///< from `SetVirtualMode` on, also before `Populate`

    CXTPReportColumns* GetColumns() const;           ///< never null; owned by the control, as the parts that follow
    CXTPReportRecords* GetRecords() const;           ///< never null
    CXTPReportRows* GetRows() const;                 ///< never null; as of the last `Populate`
    CXTPReportSelectedRows* GetSelectedRows() const; ///< never null
    CXTPReportHeader* GetReportHeader() const;       ///< never null; another one after `SetReportHeader`
    void SetReportHeader(CXTPReportHeader* pHeader); ///< takes ownership of the new header, deletes the old one
    CXTPReportPaintManager* GetPaintManager() const; ///< never null; another one after `SetTheme`, so do not keep it
    void SetPaintManager(CXTPReportPaintManager* pPaintManager); ///< takes ownership, deletes the old one
    /// A new paint manager for the theme; the column style starts as the theme's own, what the host set beside colours
    /// (font, row height, grid lines, empty text) stays. `bRedraw` paints at once; otherwise it shows with the next
    /// painting, so that more can be set before.
    void SetTheme(XTPReportPaintTheme theme, BOOL bRedraw = TRUE);
    CXTPToolTipContext* GetToolTipContext() const; ///< never null

    // --- Outline ------------------------------------------------------------------------------------------------
    /// Shows or hides the rows below the row, as `CXTPReportRow::SetExpanded` does, and tells the owner
    /// (XTP_NM_REPORT_ROWEXPANDED). A focused row that goes hands the focus to the collapsed one, and the selection as
    /// well when nothing else is selected. Rows without any below them do not change.
    void ExpandRow(CXTPReportRow* pRow, BOOL bExpand);
    /** @{ */
    /// Expands or collapses every row that has others below it, groups and records. The owner is not told.
    void ExpandAll();
    void CollapseAll();
    /** @} */
    /// The caption of the row of a group. Here "<caption of the column>: <value> (<number of records>)".
    virtual CString GetGroupCaption(const CXTPReportColumn* pColumn, const CString& strValue, int nRecords) const;

    // --- Filter -------------------------------------------------------------------------------------------------
    /// Records have a row from the next `Populate` on only when every word of the text (what white space parts) occurs
    /// in what `CXTPReportRecord::GetFilterText` tells, whatever the case of the letters, or in that of a record below
    /// them. Empty: all of them. What another text has found is expanded; what is collapsed then is so until the text
    /// changes again, and without a filter everything is as it was before.
    void SetFilterText(LPCTSTR strText);
    CString GetFilterText() const; ///< empty at first

    /// A text that the control shows or tells by itself. English here: a host that speaks another language overrides
    /// this.
    virtual CString GetText(XTPReportText text) const;

    // --- Previews -----------------------------------------------------------------------------------------------
    /// Whether records show their preview text below their cells, see `CXTPReportRecord::SetPreviewItem`; FALSE at
    /// first. Such a row is as high as its text needs in the width of the view, up to `GetMaxPreviewLines` lines of the
    /// paint manager; a row without a text keeps the plain height. The texts are read at `Populate`: one that is
    /// changed shows at the next redraw in the room that there is. In virtual mode there are no previews.
    void EnablePreviewMode(BOOL bEnable);
    BOOL IsPreviewMode() const; ///< see `EnablePreviewMode`
    /// The width into which preview texts are wrapped, pixels: that of the view between the indent and a vertical
    /// scroll bar. The room for the bar is kept free without one as well, so that its coming changes no row. 0 without
    /// a window.
    int GetPreviewWidth() const;

    // --- Places -------------------------------------------------------------------------------------------------
    CRect GetReportRectangle() const; ///< where rows are shown
    /// Where the row stands, over the full width of the report area; may lie outside the visible part. Empty when there
    /// is no such row.
    CRect GetRowRect(int nRowIndex) const;
    CRect GetHeaderRect() const;                ///< where the header is shown
    CRect GetGroupByRect() const;               ///< where the group-by box is shown; empty without one
    CXTPReportRow* HitTest(CPoint pt) const;    ///< the row under the point; null if none
    XTPReportMouseMode GetMouseMode() const;    ///< xtpReportMouseNothing while no gesture is under way
    void SetMouseMode(XTPReportMouseMode mode); ///< for the header: neither starts nor ends a gesture

    // --- Columns ----------------------------------------------------------------------------------------------------
    /// The box above the header into which headers are dragged to group by their columns; not shown at first. Hiding it
    /// leaves the groups as they are. Kept in saved layouts.
    void ShowGroupBy(BOOL bShow = TRUE);
    BOOL IsGroupByVisible() const; ///< see `ShowGroupBy`
    /// So many of the visible columns, from the left, stay while the others scroll sideways beneath them; 0 at first,
    /// negative counts are 0. While they would take more than three quarters of a view that has to scroll, those from
    /// the right that do scroll with the others, so that every part of each column can be reached. Kept in saved
    /// layouts.
    void SetFreezeColumnsCount(int nCount);
    int GetFreezeColumnsCount() const; ///< as it was set; see `CXTPReportColumn::IsFrozen`

    // --- Selection and focus ----------------------------------------------------------------------------------------
    /// Without it a single row is selected at most: when several are, the focused one stays (else the topmost), which
    /// raises `OnSelectionChanged`. On at first.
    void SetMultipleSelection(BOOL bMultiple);
    BOOL IsMultipleSelection() const;     ///< see `SetMultipleSelection`
    CXTPReportRow* GetFocusedRow() const; ///< where the keyboard goes on from; null when no row is
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
    /// The keyboard is the control's or that of a child window of it, such as an editor in a cell.
    BOOL HasFocus() const;

    // --- Scrolling ---------------------------------------------------------------------------------------------------
    int GetTopRowIndex() const;      ///< the row at the upper edge; rows are never cut off there
    void SetTopRow(int nIndex);      ///< held within what can be scrolled to
    int GetLeftOffset() const;       ///< pixels scrolled sideways
    void SetLeftOffset(int nOffset); ///< held within what can be scrolled to
    /// Scrolls as little as needed; without a window, as soon as there is room for rows. Null and rows that were taken
    /// out change nothing.
    void EnsureVisible(CXTPReportRow* pRow);
    /// Whole rows that fit from the top row on, at least 1; room below the last row counts as rows of the plain height.
    int GetFullyVisibleRowCount() const;

    // --- Drawing -----------------------------------------------------------------------------------------------------
    /// Asks for a redraw of everything; requests coalesce. From a cell that is being dragged, its row is redrawn with
    /// the next painting and everything else within a twentieth of a second.
    void RedrawControl();
    /// Asks for a redraw of one row; requests coalesce, and very many become one for everything.
    void RedrawRow(const CXTPReportRow* pRow);
    /// Lays out header, columns and scroll bars again and redraws.
    void AdjustLayout();
    /// Draws the control's client area; `rcDirty` bounds what has to be right afterwards.
    virtual void DoDraw(CDC* pDC, const CRect& rcDirty);

    // --- Layout persistence ----------------------------------------------------------------------------------------
    /// Writes or reads the layout: columns by identity with order, width and visibility, sort order and grouping, the
    /// number of frozen columns, and whether the group-by box is shown; layouts without these two leave them alone.
    /// Reading checks the whole stream first and throws CArchiveException* on anything broken, before it changes
    /// anything; unknown columns are dropped, columns the stream does not know keep their state and go to the end.
    /// Widths keep their proportions when they were written at another resolution.
    virtual void SerializeState(CArchive& ar);

    // --- In-place editing ------------------------------------------------------------------------------------------
    /// Whether the user may edit cells; FALSE at first. Column and item have to allow it as well, which they do at
    /// first: see `CXTPReportColumn::SetEditable` and `CXTPReportRecordItem::SetEditable`. Forbidding it ends an
    /// editing under way, which takes effect.
    void AllowEdit(BOOL bAllow);
    BOOL IsAllowEdit() const; ///< see `AllowEdit`
    /// Edits the cell of row and column (the other members are not looked at), which gets the focus and is scrolled
    /// into view. Nothing happens where editing is not allowed, and when the owner refuses. Null ends the editing that
    /// is under way, which takes effect.
    void EditItem(const XTP_REPORTRECORDITEM_ARGS* pItemArgs);
    CXTPReportRecordItem* GetActiveItem() const; ///< the item that is being edited; null if none
    /// The edit control in which the user types now, or will; never null. Another one after `SetInplaceEdit`.
    CXTPReportInplaceEdit* GetInplaceEdit() const;
    /// Takes ownership of the edit control, for editors with keys of their own, and deletes the one that was there. An
    /// editing under way takes effect first. Null changes nothing.
    void SetInplaceEdit(CXTPReportInplaceEdit* pEdit);

    // --- Editing commands -----------------------------------------------------------------------------------------
    virtual BOOL CanCut();   ///< FALSE here: the control does not cut unless an override lets it
    virtual BOOL CanCopy();  ///< whether rows are selected
    virtual BOOL CanPaste(); ///< FALSE here: the control does not paste unless an override lets it
    /// Ends an editing under way, which takes effect, and puts the selected rows on the clipboard: as Unicode text
    /// (visible columns from left to right, parted by tabs, as spreadsheets take it), and as records with everything
    /// that `DoPropExchange` writes, which only `Paste` reads. Very many records (more than some ten thousand) and the
    /// rows of virtual mode go as text alone. The clipboard stays as it was when there is nothing to copy or another
    /// program holds it.
    virtual void Copy();
    /// `Copy`, and then removes the records; those that could not be copied stay. Nothing unless `CanCut` lets it; in
    /// virtual mode nothing either.
    virtual void Cut();
    /// Inserts what the clipboard holds in front of the focused row, else at the end, and selects it: the records of
    /// `Copy`, else the lines of a text as records of text items, one for each visible column from the left. Nothing
    /// unless `CanPaste` lets it; in virtual mode nothing either.
    virtual void Paste();

    /// The tool under the point; see `CXTPReportRecordItem::OnToolHitTest`. Headers, items and cut-off texts have tips.
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

    /// Sends a WM_NOTIFY about a cell to the owner; returns the owner's answer.
    LRESULT SendItemNotify(UINT nCode, CPoint pt, CXTPReportRow* pRow, CXTPReportRecordItem* pItem,
                           CXTPReportColumn* pColumn, int nHyperlink = -1);
    /// Sends a WM_NOTIFY about a cell that was edited to the owner. Row, item and column are null in it when they have
    /// left the control meanwhile.
    void SendEditNotify(UINT nCode, const XTP_REPORTRECORDITEM_ARGS& args);
    /// Sends a WM_NOTIFY about a column (null: about all of them) to the owner; returns the owner's answer. 0 without a
    /// window or an owner, as for cells.
    LRESULT SendColumnNotify(UINT nCode, CXTPReportColumn* pColumn);

    /// Lets the tool tips see what the mouse and the keyboard send to the control.
    BOOL PreTranslateMessage(MSG* pMsg) override;
    /// Lays out a window that is taken over from a dialog, which gets no WM_CREATE.
    void PreSubclassWindow() override;

    // --- Called by the model as it changes ---------------------------------------------------------------------------
    /// From `nFirst` on, `nRemoved` rows were taken out and `nInserted` have come in their place, because records are
    /// being deleted, or a row was expanded or collapsed: focus, top row and scroll bars follow. The selection has done
    /// so already. The rows below have moved along.
    void OnRowsChanged(int nFirst, int nRemoved, int nInserted);
    /// The same for rows that were taken out here and there.
    void OnRowsTakenOut(const RowSelection& gone);
    /// All rows were taken out: nothing has the focus any more.
    void OnRowsCleared();
    /// The column is about to be deleted: the header forgets it, and a drag or resize of it ends without effect.
    void OnColumnRemoved(CXTPReportColumn* pColumn);
    /** @{ */
    /// A column or record (null: each of them) is about to leave: an editor in it closes, and the text goes to the item
    /// when it is the column that leaves, or nowhere. Runs hooks of the host: whatever was looked up before has to be
    /// looked up again. FALSE when the window is gone, and perhaps the control as well: then nothing more is to be
    /// done.
    BOOL OnColumnLeaving(const CXTPReportColumn* pColumn);
    BOOL OnRecordLeaving(const CXTPReportRecord* pRecord);
    /** @} */

protected:
    // --- Messages; derived classes call these handlers from their own ----------------------------------------------
    int OnCreate(LPCREATESTRUCT lpCreateStruct); ///< lays out; −1 when the window is refused
    void OnDestroy();                            ///< hides the tip, ends gestures and editing, frees the back buffer
    void OnPaint();                              ///< draws what is damaged into the back buffer and shows it
    BOOL OnEraseBkgnd(CDC* pDC);                 ///< TRUE without drawing: painting leaves no gap
    void OnSize(UINT nType, int cx, int cy);     ///< lays out; nothing when the window is minimised
    /// Takes the focus; a press on the header begins a gesture there, one on a row goes to the item, then selects.
    void OnLButtonDown(UINT nFlags, CPoint point);
    void OnLButtonUp(UINT nFlags, CPoint point); ///< ends a gesture, or makes a click of the press
    /// In the header best fit; on a row `OnDblClick`, NM_DBLCLK, and then the press that it is as well.
    void OnLButtonDblClk(UINT nFlags, CPoint point);
    void OnRButtonDown(UINT nFlags, CPoint point); ///< focuses the row; one that is not selected is selected alone
    void OnRButtonUp(UINT nFlags, CPoint point);   ///< sends NM_RCLICK, then becomes WM_CONTEXTMENU
    /// Over the header and the group-by box the header's affair, elsewhere the parent's.
    void OnContextMenu(CWnd* pWnd, CPoint ptScreen);
    void OnMouseMove(UINT nFlags, CPoint point); ///< goes on with a gesture, else routes to the item under the point
    void OnMouseLeave();                         ///< no column of the header is hot any more
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);   ///< rows; with shift sideways
    void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt);  ///< sideways
    BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message); ///< dividers, hyperlinks, else the arrow
    void OnCaptureChanged(CWnd* pWnd); ///< ends a gesture without effect when another window has the mouse
    void OnCancelMode();               ///< ends a gesture without effect
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);    ///< see the top of this class
    void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags); ///< alt with arrows: see the top of this class
    /// Edits the focused cell, else finds the row that begins with what is typed; tab edits the next cell.
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags); ///< kept from the menus when its key was ours
    UINT OnGetDlgCode(); ///< arrows and characters; every key during a gesture, so that Escape ends it alone
    void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar); ///< `pScrollBar` is null for the control's own
    void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar); ///< `pScrollBar` is null for the control's own
    void OnTimer(UINT_PTR nIDEvent); ///< scrolling at the edges, delayed redraws; derived classes have other numbers
    void OnSetFocus(CWnd* pOldWnd);  ///< the selection and the focused row look active
    void OnKillFocus(CWnd* pNewWnd); ///< and inactive again; the tip goes
    void OnEnable(BOOL bEnable);     ///< ends gestures and editing; a disabled grid has grey texts
    void OnSysColorChange();         ///< the theme takes the new colours
    void OnSettingChange(UINT uFlags, LPCTSTR lpszSection); ///< the theme takes the new fonts and metrics
    LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);     ///< a parent's WM_DPICHANGED, passed on: everything scales
    LRESULT OnDpiChangedAroundParent(WPARAM wParam, LPARAM lParam); ///< the system's word to child windows
    LRESULT OnPrintClient(CDC* pDC, UINT nFlags);    ///< draws the client area into `pDC`, whatever the flags
    LRESULT OnSetFont(WPARAM wParam, LPARAM lParam); ///< a copy of the font, for all texts; a null font changes nothing
    /// For assistive programs: an `IAccessible` of the client area, with the headers of the visible columns, the rows
    /// with their cells, and the buttons of the group-by box. Its objects may be kept; they answer CO_E_OBJNOTCONNECTED
    /// once the window is destroyed, or the row was taken out. Changes of focus, selection and rows are told as events.
    LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetFont(WPARAM wParam, LPARAM lParam); ///< the paint manager's font; not the handle that was set
    DECLARE_MESSAGE_MAP()

private:
    friend class CXTPReportInplaceEdit;
    LRESULT SendNotify(UINT nCode, NMHDR* pHeader);

    struct Impl;
    std::unique_ptr<Impl> m_impl;
};
