// The inside of a report control: its parts and its state. Only the control's own sources include this.
//
// The operations stand in the source of their concern: CXTPReportControl_Paint, _Scroll, _Selection, _Mouse, _Keyboard,
// _Outline, _Preview, _Edit, _Tips and _Clipboard. Callbacks to items, to the owner and to overrides may do anything,
// even destroy the control: whoever makes one holds a WindowGuard and returns at once when the window is gone, and
// finds rows and items anew afterwards.
#pragma once

#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportHeader.h"
#include "CXTPReportInplaceEdit.h"
#include "CXTPReportPaintManager.h"
#include "CXTPReportRecords.h"
#include "CXTPReportRow.h"
#include "CXTPReportRows.h"
#include "CXTPReportSelectedRows.h"
#include "DpiLength.h"
#include "GridGeometry.h"
#include "PreviewRows.h"
#include "ReportAccessible.h"
#include "ReportSort.h"
#include "RowSelection.h"
#include "TextFilter.h"

#include "../common/BackBuffer.h"
#include "../common/ObjectReference.h"

#include <optional>
#include <string>
#include <vector>

/// Tells whether a window that was there has been destroyed since, without touching the object that had it.
class WindowGuard {
public:
    explicit WindowGuard(const CWnd& window) : m_hWnd(window.m_hWnd) {}
    bool IsGone() const { return m_hWnd && !::IsWindow(m_hWnd); }

private:
    HWND m_hWnd;
};

/// Which cell a point means; all null and −1 where there is none.
struct CellHit {
    CXTPReportRow* row = nullptr;
    int rowIndex = -1;
    CXTPReportRecordItem* item = nullptr;
    CXTPReportColumn* column = nullptr;
    CRect rcItem;

    bool IsSameCell(const CellHit& other) const { return rowIndex == other.rowIndex && item == other.item; }
};

/// The cell of row and column without its grid lines and indentation, as `CXTPReportRow::HitTest` tells it; empty where
/// there is none.
CRect CellRect(const CXTPReportRow& row, const CXTPReportColumn& column);

/// A press of the left button over the rows, from button down to button up.
struct RowPress {
    CellHit cell;            ///< compared only; rows and items may be gone
    bool maySelect = false;  ///< leaving the row with the button down selects rows
    bool isClick = false;    ///< the release over the same cell is a click
    bool hasCapture = false; ///< the press captured the mouse
    bool keepsOthers = false;
    CPoint lastPoint;
    RowSelection selected; ///< right after the press
};

/// What a scroll bar was told last.
struct BarState {
    bool isShown = false;
    int last = 0; ///< the range is 0…last
    int page = 0;
    int pos = 0;
    bool isThumbStale = false; ///< the position is set, but the bar was not redrawn
};

/// Requests to redraw everything, or a row. A hundred thousand changed cells make as many of them, and the system takes
/// longer for one than the cell for its change, so only the first ones before a painting go to the system; the last of
/// those is for everything.
struct WholeDamage {
    int requests = 0;        ///< since the last painting
    bool isTimerSet = false; ///< later requests are made up for when it rings
    bool isRestOwed = false; ///< the row of a dragged cell was damaged in place of everything
};

struct CXTPReportControl::Impl {
    explicit Impl(CXTPReportControl& owner);
    ~Impl();

    CXTPReportControl& control;
    std::unique_ptr<CXTPReportPaintManager> paintManager;
    std::unique_ptr<CXTPReportColumns> columns;
    std::unique_ptr<CXTPReportRows> rows;
    std::unique_ptr<CXTPReportSelectedRows> selectedRows;
    std::unique_ptr<CXTPReportRecords> records;
    std::unique_ptr<CXTPReportHeader> header;
    CXTPToolTipContext toolTips;

    // --- Layout and scrolling ---------------------------------------------------------------------------------------
    bool isGroupByShown = false;
    int freezeCount = 0; ///< as it was asked for
    int topRow = 0;
    int leftOffset = 0;
    /// Where the user has scrolled to. A view that grows may show less of that for a while; when it shrinks again, as
    /// after a way to another monitor and back, it stands where it stood.
    int chosenTopRow = 0;
    DpiLength chosenLeftOffset;
    int wantedRow = -1; ///< to be scrolled into view as soon as there is a view
    bool isLayingOut = false;
    BarState barV, barH;
    int barScaleV = 0; ///< the vertical bar counts in 2^barScaleV rows
    gridgeometry::WheelAccumulator wheelV, wheelH;
    /// Rows whose pixels were moved by scrolling since their items drew them: see RefreshMovedRow.
    RowSelection movedRows;

    CRect ClientRect() const; ///< empty without a window; asks the system, which takes longer than most answers
    int GroupByHeight() const { return isGroupByShown ? paintManager->GetGroupByHeight() : 0; }
    void TakePaintManager(std::unique_ptr<CXTPReportPaintManager> taken);
    void FollowDpi(int dpi);
    gridgeometry::StackedRows RowGrid() const;
    int RowAt(CPoint point) const;
    /// Without memory for it everything stays where it is for a moment.
    void LayOut();
    void LayOutParts();
    void FitBars();
    void UpdateBar(int bar, BarState& state, const BarState& wanted);
    void UpdateThumbs();
    void RedrawStaleThumbs();
    void ScrollRowsTo(std::int64_t top);
    void ShowRow(int rowIndex);
    void MoveRowPixels(int formerTop);
    void ScrollSidewaysTo(int offset);
    int ScrollTarget(int bar, UINT code, UINT pos, int current, int line, int page, int maximum) const;
    int SidewaysStep() const;
    int SidewaysPage() const; ///< the part of the view that scrolls

    // --- Previews ---------------------------------------------------------------------------------------------------
    bool isPreviewMode = false;
    PreviewRows previews;
    std::weak_ptr<textwrap::CharWidths> previewWidths; ///< with which they were measured

    /// Reads the texts of all rows. When it throws, the rows have the plain height.
    void MeasurePreviews();
    CString PreviewTextOf(int rowIndex) const; ///< empty when the row has none
    /// Rows have come or gone, see `OnRowsChanged`: reads the texts of those that came. When it throws, the rows
    /// have the plain height.
    void SplicePreviews(int first, int removed, int inserted);
    /// The rows get the heights that their texts need in the view as it is.
    void WrapPreviews();

    // --- Drawing ----------------------------------------------------------------------------------------------------
    BackBuffer buffer;
    WholeDamage damage;
    std::optional<bool> focusWhileDrawing; ///< what HasFocus answers during a drawing

    void AskForRedraw();
    void AskForRedraw(int rowIndex);
    /// False when there is no timer to be had.
    bool RedrawLater();
    void RenewDamage();
    /// False when none of the rows is in view.
    bool InvalidateRows(gridgeometry::IndexRange range) const;
    void InvalidateFocusLook() const;
    void PaintRect(CDC& dc, const CRect& rc);
    void DrawRows(CDC* dc, const CRect& rcDirty);
    /// Items may keep the place where they drew last and compare points with it. Scrolling moves the pixels of rows
    /// without asking the items to draw, so a row that was moved is drawn again before the mouse meets it.
    void RefreshMovedRow(int rowIndex);

    // --- Selection and focus ----------------------------------------------------------------------------------------
    bool isMultipleSelection = true;
    int focusedRow = -1;

    /// Runs `change` and tells listeners when the selection is another one afterwards.
    template <class Change>
    void ChangeSelection(Change change) {
        const RowSelection former = selectedRows->GetRanges();
        change();
        if (former != selectedRows->GetRanges())
            TellSelectionChanged();
    }
    void TellSelectionChanged();
    void SetFocus(int rowIndex);
    CXTPReportColumn* focusedColumn = nullptr;
    bool isColumnFocusShown = false;

    /// The column that keys act on; null when none is visible.
    CXTPReportColumn* ColumnForKeys() const;
    void FocusColumn(CXTPReportColumn* column, bool isShown);
    void InvalidateColumnFocus() const;
    /// The focused cell, its row and column; null where there is none.
    CellHit FocusedCell() const;
    void SelectByClick(int rowIndex, UINT mouseFlags);
    void MoveFocusTo(int rowIndex, bool extends, bool keepsSelection);

    // --- Outline and filter -----------------------------------------------------------------------------------------
    TextFilter filter;

    /// Runs `change`, which makes all rows anew; selection and focus stay with what they stood on.
    template <class Change>
    void RemakeRows(Change change);
    void ExpandRow(int rowIndex, bool expand);
    void ExpandRowByUser(int rowIndex, bool expand);
    void ExpandBranchByUser(int rowIndex);
    void ExpandAll(bool expand);
    bool CanExpand(int rowIndex) const;
    /// A press on the button of a row expands or collapses it, and does nothing else.
    bool PressExpandButton(CPoint point);
    bool TogglePressedRow(const CellHit& pressed, CPoint point);
    bool OutlineByKey(UINT key);
    bool OutlineBySign(UINT key);

    // --- Clipboard ------------------------------------------------------------------------------------------------
    std::wstring SelectedText() const;
    CString SelectedRecords() const;
    std::vector<CXTPReportRecord*> SelectedRecordList() const;
    void InsertRecords(CXTPReportRecords& pasted);

    // --- Assistive programs -----------------------------------------------------------------------------------------
    std::shared_ptr<ReportAccessLink> accessLink; ///< null until one has asked

    void DisconnectAccess();
    /// Events about the focus, the selection and the rows; a negative row is the grid.
    void TellAccess(DWORD event, int rowIndex = -1) const;
    /// Rows have come or gone; `movesFocus`: the focused one among them.
    void TellRowsChanged(bool movesFocus) const;

    // --- Mouse ------------------------------------------------------------------------------------------------------
    XTPReportMouseMode mouseMode = xtpReportMouseNothing;
    RowPress press;
    bool isTrackingLeave = false;
    int draggedRow = -1; ///< while a cell in it is told of a mouse move with the button down and captured

    CellHit HitCell(CPoint point) const;
    XTP_REPORTRECORDITEM_CLICKARGS ClickArgs(const CellHit& hit, CPoint point) const;
    /// Over the header or the group-by box.
    bool IsOverHeader(CPoint point) const;
    bool IsHeaderGesture() const;
    bool HasCapture() const;
    void TrackLeave(); ///< not while the mouse is captured: its leaving would be told at once
    void StopTrackingLeave();
    void PressRow(UINT flags, CPoint point);
    void FocusPressedColumn(CPoint point);
    void ReleaseRow(CPoint point);
    void Click(const CellHit& pressed, CPoint point);
    void CaptureForPress();
    void EndPress();
    void TrackRowSelection(CPoint point, bool isCaptured);
    void SelectDraggedRows(CPoint point);
    void AutoScroll();
    void HoverHeader(UINT flags, CPoint point);
    void RouteMouseMove(UINT flags, CPoint point, bool isCaptured);
    /// The one way in which a gesture ends without effect.
    void CancelGesture();

    // --- Editing ----------------------------------------------------------------------------------------------------
    bool allowsEdit = false;
    boost::intrusive_ptr<CXTPReportInplaceEdit> ownEdit; ///< for every cell that brings no editor of its own
    CXTPReportInplaceEdit* openEdit = nullptr;           ///< in which a cell is being edited; removes itself

    /// Ends an editing under way, which takes effect. False when the control has been destroyed by what that ran.
    bool FinishEdit();
    bool CanEdit(const CellHit& cell) const;
    CellHit CellAt(int rowIndex, CXTPReportColumn* column) const;
    bool EditCell(int rowIndex, CXTPReportColumn* column);
    bool EditFocusedCell();
    bool EditPressedCell(const CellHit& pressed, CPoint point);
    bool EditByTyping(UINT character, UINT repeat, UINT flags);
    void EditNextCell(int direction);
    CellHit NextEditableCell(int direction) const;
    bool MayEdit(const CellHit& cell);

    // --- Keyboard ---------------------------------------------------------------------------------------------------
    CString searchText; ///< typed so far; the rows that begin with it are looked for
    DWORD searchTime = 0;

    bool isSignOurs = false;    ///< the character of the key pressed last was meant for the outline
    bool isSysCharOurs = false; ///< the character of the key pressed last with alt was meant for the columns

    bool MoveByKey(UINT key);
    bool SelectByKey(UINT key);
    bool ColumnByKey(UINT key);
    bool ColumnByAltKey(UINT key);
    bool CellByKey(UINT key);
    bool ClipboardByKey(UINT key);
    void MoveFocusSideways(int direction);
    void ShowColumn(const CXTPReportColumn* column);
    bool TakeColumn(CXTPReportColumn* column);
    void MoveColumnByKey(int direction);
    void ResizeByKey(int direction);
    void SortByKey(CXTPReportColumn* column, bool addsKey);
    void FitByKey(CXTPReportColumn* column);
    void GroupByKey(CXTPReportColumn* column, bool turns);
    void OpenHeaderMenu(CXTPReportColumn* column);
    void BestFitAll();
    bool IsTyping() const;
    void FindTyped(wchar_t character);
};

template <class Change>
void CXTPReportControl::Impl::RemakeRows(Change change) {
    reportsort::RowStateKeeper keeper(*rows, *selectedRows, focusedRow);
    change();
    previews.Clear(); // they were those of other rows
    // Until the rows of before are found again, none of the new ones may be taken for them.
    focusedRow = -1;
    try {
        focusedRow = keeper.Restore();
        MeasurePreviews();
    } catch (...) {
        selectedRows->SetRanges(RowSelection());
        control.AdjustLayout();
        throw;
    }
    control.AdjustLayout();
    chosenTopRow = topRow;
    TellAccess(EVENT_OBJECT_REORDER);
}

/// The control's timers; numbers of its own, because derived classes have theirs in the same window.
constexpr UINT_PTR ReportTimerAutoScroll = 0x7E51;
constexpr UINT_PTR ReportTimerThumbs = 0x7E52;
constexpr UINT_PTR ReportTimerDamage = 0x7E53;
constexpr UINT_PTR ReportTimerLayout = 0x7E54;
