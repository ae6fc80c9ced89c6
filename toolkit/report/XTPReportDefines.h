/// @file
/// Types that the classes of the report control share: argument records, notifications, modes.
#pragma once

#include "../common/CXTPPaintManagerColor.h"
#include "../common/Export.h"
#include "../common/XTPThemes.h"

#include <afxwin.h>

class CXTPReportColumn;
class CXTPReportColumns;
class CXTPReportControl;
class CXTPReportFilterEditControl;
class CXTPReportGroupRow;
class CXTPReportHeader;
class CXTPReportInplaceEdit;
class CXTPReportPaintManager;
class CXTPReportRecord;
class CXTPReportRecordItem;
class CXTPReportRecordItemPreview;
class CXTPReportRecords;
class CXTPReportRow;
class CXTPReportRows;
class CXTPReportSelectedRows;

/// @addtogroup toolkit_report
/// @{

/// What the mouse is doing in a report control.
enum XTPReportMouseMode {
    xtpReportMouseNothing,           ///< idle
    xtpReportMouseOverColumnDivide,  ///< hovering over a column divider
    xtpReportMousePrepareColumnDrag, ///< pressed on a header; moving on turns it into a drag
    xtpReportMouseColumnDrag,        ///< a column is being dragged to another place
    xtpReportMouseColumnResize,      ///< a column divider is being dragged
    xtpReportMouseSelectingRows      ///< rows are being selected by dragging over them
};

/// Line style of the grid lines between rows or columns.
enum XTPReportGridStyle {
    xtpReportGridNoLines,   ///< none; the room of the line stays
    xtpReportGridSmallDots, ///< every second pixel
    xtpReportGridLargeDots, ///< 2 pixels drawn, 2 left out
    xtpReportGridDashes,    ///< 4 pixels drawn, 2 left out
    xtpReportGridSolid      ///< a line of 1 pixel
};

/// Texts that a report control shows or tells by itself; see `CXTPReportControl::GetText`.
enum XTPReportText {
    xtpReportTextSort,     ///< what pressing a header does
    xtpReportTextJump,     ///< what Enter does in a cell with a link
    xtpReportTextEdit,     ///< what Enter does in a cell that can be edited
    xtpReportTextOpen,     ///< what Enter does in another cell
    xtpReportTextExpand,   ///< what is done to a collapsed row
    xtpReportTextCollapse, ///< what is done to an expanded row
    xtpReportTextNoValue,  ///< stands for the value of a group whose records show no text
    xtpReportTextFilterCue, ///< in an empty filter edit control
    /// Told by the tip of a column when the rows are sorted by several ones: "%1" in it stands for the place in the
    /// sort order, "%2" for the number of columns there. Empty tells nothing.
    xtpReportTextSortRank
};

/// Everything that drawing one cell needs. Coordinates are those of `pDC`.
struct XTP_REPORTRECORDITEM_DRAWARGS {
    CDC* pDC = nullptr;                    ///< where to draw: the control's back buffer, a bitmap, a printer
    CXTPReportControl* pControl = nullptr; ///< whose theme and state count
    CXTPReportRow* pRow = nullptr;         ///< null when the cell is drawn outside a grid, as for an image
    CRect rcItem;                          ///< the cell
    CXTPReportColumn* pColumn = nullptr;   ///< null when the cell is drawn outside a grid
    CXTPReportRecordItem* pItem = nullptr; ///< the cell that draws
    int nTextAlign = DT_LEFT;              ///< DT_LEFT, DT_CENTER or DT_RIGHT
};

/// How a cell looks; filled by the row, the record and the item before the cell is drawn.
struct XTP_REPORTRECORDITEM_METRICS {
    CString strText;        ///< what the cell shows; in virtual mode set by the item for the row that is drawn
    CFont* pFont = nullptr; ///< not owned
    COLORREF clrForeground = CXTPPaintManagerColor::Unset; ///< text; unset: the device context's
    /// Behind the text. The row has filled itself in its own colour; the cell fills where this one differs.
    COLORREF clrBackground = CXTPPaintManagerColor::Unset;
    int nColumnAlignment = DT_LEFT; ///< DT_LEFT, DT_CENTER or DT_RIGHT
};

/// A cell and where it stands; passed to the editing and clicking operations of items.
struct XTP_REPORTRECORDITEM_ARGS {
    CXTPReportControl* pControl = nullptr; ///< the grid
    CXTPReportRow* pRow = nullptr;         ///< the cell's row; in virtual mode the only way to tell which one is meant
    CXTPReportColumn* pColumn = nullptr;   ///< the column that shows the cell
    CXTPReportRecordItem* pItem = nullptr; ///< the cell
    CRect rcItem;                          ///< client coordinates, without the grid lines
};

/// A click on a cell.
struct XTP_REPORTRECORDITEM_CLICKARGS : XTP_REPORTRECORDITEM_ARGS {
    CPoint ptClient; ///< client coordinates
};

/// Notifications sent to the control's owner through WM_NOTIFY.
/// NM_CLICK, NM_DBLCLK, NM_RCLICK and the selection, focus, hyperlink and editing codes carry XTP_NM_REPORTRECORDITEM;
/// the column codes carry XTP_NM_REPORTCOLUMN.
constexpr UINT XTP_NM_REPORT_FIRST = 0U - 5000U;
constexpr UINT XTP_NM_REPORT_SELCHANGED = XTP_NM_REPORT_FIRST - 1;         ///< the selection is another one; no item
constexpr UINT XTP_NM_REPORT_FOCUSCHANGED = XTP_NM_REPORT_FIRST - 2;       ///< another row has the focus; no item
constexpr UINT XTP_NM_REPORT_HYPERLINK = XTP_NM_REPORT_FIRST - 3;          ///< a hyperlink was clicked
constexpr UINT XTP_NM_REPORT_SORTORDERCHANGED = XTP_NM_REPORT_FIRST - 4;   ///< the user has sorted; rows are in order
constexpr UINT XTP_NM_REPORT_COLUMNORDERCHANGED = XTP_NM_REPORT_FIRST - 5; ///< the user has moved a column
/// The user has made columns wider or narrower; no column when all were fitted at once.
constexpr UINT XTP_NM_REPORT_COLUMNWIDTHCHANGED = XTP_NM_REPORT_FIRST - 6;
/// A cell is about to be edited; carries XTP_NM_REPORTREQUESTEDIT, in which the owner may refuse. Every editing that
/// begins ends with one of the two that follow, unless the item has an `OnValidateEdit` of its own.
constexpr UINT XTP_NM_REPORT_REQUESTEDIT = XTP_NM_REPORT_FIRST - 7;
/// The item was given the text that the user typed. One that could not make a value of it has its former value.
constexpr UINT XTP_NM_REPORT_VALUECHANGED = XTP_NM_REPORT_FIRST - 8;
/// Editing ended without effect: by Escape, with the text that was there before, or because the record is about to go.
constexpr UINT XTP_NM_REPORT_EDITCANCELED = XTP_NM_REPORT_FIRST - 9;

/// A row was expanded or collapsed, by the user or the host; no item. `CXTPReportRow::IsExpanded` tells which.
constexpr UINT XTP_NM_REPORT_ROWEXPANDED = XTP_NM_REPORT_FIRST - 10;
/// The user has changed by which columns rows are grouped, or the order of one column's groups; rows are in order.
constexpr UINT XTP_NM_REPORT_GROUPORDERCHANGED = XTP_NM_REPORT_FIRST - 11;

/// What a notification about a cell carries. The pointers are valid until the owner returns.
struct XTP_NM_REPORTRECORDITEM {
    NMHDR hdr;                   ///< the grid's window, its identifier and the code
    CXTPReportRow* pRow;         ///< null when there is none, as for a right click below the last row
    CXTPReportRecordItem* pItem; ///< null when the notification is about the row, or its record has no such item
    CXTPReportColumn* pColumn;   ///< null when there is no item
    int nHyperlink;              ///< index of the hyperlink, −1 for none
    POINT pt;                    ///< client coordinates
};

/// What XTP_NM_REPORT_REQUESTEDIT carries.
struct XTP_NM_REPORTREQUESTEDIT : XTP_NM_REPORTRECORDITEM {
    BOOL bCancel; ///< FALSE; the owner sets TRUE to leave the cell as it is
};

/// What a notification about a column carries.
struct XTP_NM_REPORTCOLUMN {
    NMHDR hdr;                 ///< the grid's window, its identifier and the code
    CXTPReportColumn* pColumn; ///< null when the notification is about all columns
};

/// @}
