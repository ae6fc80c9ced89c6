// Types that the classes of the report control share: argument records, notifications, modes.
#pragma once

#include "../common/CXTPPaintManagerColor.h"
#include "../common/Export.h"
#include "../common/XTPThemes.h"

#include <afxwin.h>

class CXTPReportColumn;
class CXTPReportColumns;
class CXTPReportControl;
class CXTPReportHeader;
class CXTPReportPaintManager;
class CXTPReportRecord;
class CXTPReportRecordItem;
class CXTPReportRecords;
class CXTPReportRow;
class CXTPReportRows;
class CXTPReportSelectedRows;

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
    xtpReportGridNoLines,
    xtpReportGridSmallDots,
    xtpReportGridLargeDots,
    xtpReportGridDashes,
    xtpReportGridSolid
};

/// Everything that drawing one cell needs. Coordinates are those of `pDC`.
struct XTP_REPORTRECORDITEM_DRAWARGS {
    CDC* pDC = nullptr;
    CXTPReportControl* pControl = nullptr;
    CXTPReportRow* pRow = nullptr;       ///< null when the cell is drawn outside a grid, as for an image
    CRect rcItem;                        ///< the cell
    CXTPReportColumn* pColumn = nullptr; ///< null when the cell is drawn outside a grid
    CXTPReportRecordItem* pItem = nullptr;
    int nTextAlign = DT_LEFT; ///< DT_LEFT, DT_CENTER or DT_RIGHT
};

/// How a cell looks; filled by the row, the record and the item before the cell is drawn.
struct XTP_REPORTRECORDITEM_METRICS {
    CString strText;
    CFont* pFont = nullptr; ///< not owned
    COLORREF clrForeground = CXTPPaintManagerColor::Unset;
    COLORREF clrBackground = CXTPPaintManagerColor::Unset;
    int nColumnAlignment = DT_LEFT;
};

/// A cell and where it stands; passed to the editing and clicking operations of items.
struct XTP_REPORTRECORDITEM_ARGS {
    CXTPReportControl* pControl = nullptr;
    CXTPReportRow* pRow = nullptr;
    CXTPReportColumn* pColumn = nullptr;
    CXTPReportRecordItem* pItem = nullptr;
    CRect rcItem; ///< client coordinates
};

/// A click on a cell.
struct XTP_REPORTRECORDITEM_CLICKARGS : XTP_REPORTRECORDITEM_ARGS {
    CPoint ptClient; ///< client coordinates
};

/// Notifications sent to the control's owner through WM_NOTIFY.
/// NM_CLICK, NM_DBLCLK, NM_RCLICK and the selection, focus and hyperlink codes carry XTP_NM_REPORTRECORDITEM;
/// the column codes carry XTP_NM_REPORTCOLUMN.
constexpr UINT XTP_NM_REPORT_FIRST = 0U - 5000U;
constexpr UINT XTP_NM_REPORT_SELCHANGED = XTP_NM_REPORT_FIRST - 1;
constexpr UINT XTP_NM_REPORT_FOCUSCHANGED = XTP_NM_REPORT_FIRST - 2;
constexpr UINT XTP_NM_REPORT_HYPERLINK = XTP_NM_REPORT_FIRST - 3;
constexpr UINT XTP_NM_REPORT_SORTORDERCHANGED = XTP_NM_REPORT_FIRST - 4;
constexpr UINT XTP_NM_REPORT_COLUMNORDERCHANGED = XTP_NM_REPORT_FIRST - 5;
constexpr UINT XTP_NM_REPORT_COLUMNWIDTHCHANGED = XTP_NM_REPORT_FIRST - 6;

/// What a notification about a cell carries. The pointers are valid until the owner returns.
struct XTP_NM_REPORTRECORDITEM {
    NMHDR hdr;
    CXTPReportRow* pRow;
    CXTPReportRecordItem* pItem;
    CXTPReportColumn* pColumn;
    int nHyperlink; ///< index of the hyperlink, −1 for none
    POINT pt;       ///< client coordinates
};

/// What a notification about a column carries.
struct XTP_NM_REPORTCOLUMN {
    NMHDR hdr;
    CXTPReportColumn* pColumn;
};
