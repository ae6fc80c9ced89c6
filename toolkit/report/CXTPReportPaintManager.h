/// @file
/// How a report control looks: colours and metrics of a theme, and the drawing of every part with them.
#pragma once

#include "DpiLength.h"
#include "XTPReportDefines.h"

#include <memory>

namespace reportlook {
struct Look;
}
namespace textwrap {
class CharWidths;
}

/// Draws the parts of a report control. It never changes how the control behaves. Derive and hand to
/// `CXTPReportControl::SetPaintManager` for a look of one's own. Metrics are pixels at the resolution that `GetDpi`
/// tells; the control sets it to that of its window and follows when the window moves to another monitor.
///
/// Every colour has a standard value, which the theme and the column style give it, and may be overridden by the host;
/// the override survives `SetColumnStyle` and `RefreshMetrics`. A colour that reads as `CXTPPaintManagerColor::Unset`
/// is not drawn. While the system shows high contrast, every standard value is one of its colours, whatever the theme.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportPaintManager : public CCmdTarget {
public:
    /// Themes without a look of their own get that of xtpReportThemeDefault; the column style begins as the theme's
    /// own.
    explicit CXTPReportPaintManager(XTPReportPaintTheme theme = xtpReportThemeDefault);
    ~CXTPReportPaintManager() override;

    /// The control that is drawn; set by the control as it takes the paint manager.
    CXTPReportControl* GetControl() const { return m_pControl; }
    void SetControl(CXTPReportControl* pControl) { m_pControl = pControl; } ///< called by the control

    /// Reads the system colours and fonts again and works out every metric.
    virtual void RefreshMetrics();

    XTPReportPaintTheme GetTheme() const { return m_theme; } ///< as it was given, also when it has no look of its own
    XTPReportColumnStyle GetColumnStyle() const { return m_columnStyle; } ///< as it was set last
    /// Styles without a look of their own look as xtpReportColumnShaded. The control shows it at its next redraw.
    void SetColumnStyle(XTPReportColumnStyle style);
    /// Whether every second row has a background of its own, `m_clrAlternateRow`; at first not. Items with a background
    /// of their own keep it, and so do selected rows. The control shows it at its next redraw.
    void UseAlternateRowBackground(BOOL bUse) { m_bAlternateRows = bUse != FALSE; }
    BOOL IsAlternateRowBackground() const { return m_bAlternateRows; } ///< as it was set last

    // --- Metrics ------------------------------------------------------------------------------------------------
    /// Dots per inch; at first the resolution with which the program started.
    int GetDpi() const { return m_nDpi; }
    /// Fonts, row height and everything else follow, also what the host has set. Values outside 1 to `MaxDpi` are
    /// ignored. Called by the control, whose columns and layout follow as well.
    void SetDpi(int nDpi);
    /// From one row's upper edge to the next one's, the grid line included.
    virtual int GetRowHeight() const;
    void SetRowHeight(int nHeight);      ///< pixels at the present resolution; 0: from the font
    virtual int GetHeaderHeight() const; ///< the line under the header included
    /// What so many lines of preview text add to the height of a row, pixels; 0 for none.
    virtual int GetPreviewHeight(int nLines) const;
    int GetPreviewIndent() const;                              ///< from the left edge of the row to the preview text
    int GetMaxPreviewLines() const { return m_nPreviewLines; } ///< 3 at first
    /// Held within 1 to `MostPreviewLines`. Rows follow when the control lays itself out, as at `Populate`.
    void SetMaxPreviewLines(int nLines);
    static constexpr int MostPreviewLines = 50; ///< more than a view has room for
    /// Of the text font; another object after the font has changed, of no use after the paint manager is deleted. For
    /// the control, which wraps previews with it.
    const std::shared_ptr<textwrap::CharWidths>& GetCharWidths() const { return m_charWidths; }
    /// Space between the edge of a cell or header column and its text.
    int GetCellPadding() const { return m_nCellPadding; }
    /// The width that the sort arrow takes from a caption, its distance to the text included.
    int GetSortArrowSpace() const;
    /// The width that the marks of a sorted column take: the arrow, and its rank where the rows are sorted by several
    /// columns. 0 when they are not sorted by it.
    int GetSortMarkSpace(const CXTPReportColumn* pColumn) const;
    /// How far a caption moves right and down while its column is pressed, pixels.
    int GetPressedOffset() const;
    /// How far a record is indented in a tree column from the one above it; the room of the expand button as well.
    int GetTreeIndent() const;
    /// Where a press expands or collapses the row of a group that stands at `rcRow`.
    CRect GetGroupButtonRect(const CXTPReportGroupRow* pRow, const CRect& rcRow) const;
    virtual int GetGroupByHeight() const; ///< of the group-by box
    int GetGroupByMargin() const;         ///< between the edges of the group-by box and its buttons
    int GetGroupByButtonGap() const;      ///< between two buttons of the group-by box
    /// The width at which the button of a column shows its whole caption and the arrow.
    int GetGroupByButtonWidth(const CXTPReportColumn* pColumn) const;
    /// Pixels for a length given at 96 DPI.
    int ScaleForDpi(int nPixels) const;
    CFont* GetTextFont() { return &m_fontText; }     ///< owned here; the host's, else the system's for message texts
    CFont* GetTextBoldFont() { return &m_fontBold; } ///< owned here; the text font with bold weight
    /// Also gives the bold variant. Row and header heights follow. The height is that at the present resolution.
    void SetTextFont(const LOGFONT& lf);
    /// Of the lines between columns (`bVertical`) or between rows.
    XTPReportGridStyle GetGridStyle(BOOL bVertical) const { return bVertical ? m_gridVertical : m_gridHorizontal; }
    /// The room of the line stays when it is switched off, so that cells keep their size.
    void SetGridStyle(BOOL bVertical, XTPReportGridStyle style);
    /// Shown in the middle of a grid without rows.
    CString GetNoItemText() const { return m_strNoItems; }
    void SetNoItemText(LPCTSTR strText) { m_strNoItems = strText; } ///< wraps; empty shows nothing
    /// Shown in a group-by box without buttons.
    CString GetNoGroupByText() const { return m_strNoGroupBy; }
    void SetNoGroupByText(LPCTSTR strText) { m_strNoGroupBy = strText; } ///< one line; empty shows nothing
    /// Takes what was set on another paint manager: resolution, fonts, row height, grid lines, alternate rows, texts;
    /// but no colours.
    void TakeOver(const CXTPReportPaintManager& former);
    /// Width of a text in one line, pixels.
    int GetTextWidth(const CString& strText, BOOL bBold = FALSE) const;

    // --- Parts; rectangles are in the coordinates of `pDC` -----------------------------------------------------------
    /// The strip behind and beside the columns, with the line under it.
    virtual void DrawHeaderBackground(CDC* pDC, const CRect& rcHeader);
    /// One column's part of the header with its edges, hot (under the pointer) and pressed as told.
    virtual void DrawColumnBackground(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn, BOOL bHot,
                                      BOOL bPressed);
    /// The caption and, when the rows are sorted by the column, the arrow; beside it the column's rank in the sort
    /// order when there are several.
    virtual void DrawColumnCaption(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn);
    /// At the right end of `rcArrow`, centred in its height; points up when the smallest value stands first.
    virtual void DrawSortArrow(CDC* pDC, const CRect& rcArrow, BOOL bIncreasing);
    /// Where a dragged column would land: centred on `x`, over the height of the header.
    virtual void DrawDropMarker(CDC* pDC, int x, const CRect& rcHeader);
    /// The group-by box without its buttons.
    virtual void DrawGroupByBackground(CDC* pDC, const CRect& rcGroupBy);
    /// The text of a box without buttons; `rcButtons` is where they would stand.
    virtual void DrawNoGroupByText(CDC* pDC, const CRect& rcButtons);
    /// One column's button in the group-by box, with its caption and the arrow of its groups' order.
    virtual void DrawGroupByButton(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcButton, BOOL bHot,
                                   BOOL bPressed);
    /// The line from one button to the next, in the gap between them.
    virtual void DrawGroupByConnector(CDC* pDC, const CRect& rcGap);
    /// The part of the line at the edge of the frozen columns that belongs to the header, or to the cells of a row.
    virtual void DrawFreezeLine(CDC* pDC, const CRect& rcLine);
    /// The part of the body without rows.
    virtual void FillBackground(CDC* pDC, const CRect& rc);
    /// The empty text, near the upper edge of the body.
    virtual void DrawNoItemText(CDC* pDC, const CRect& rcReport);
    /// Colours and font of a row that is or is not selected, in a control that has or has not the focus.
    virtual void FillRowMetrics(CXTPReportRow* pRow, XTP_REPORTRECORDITEM_METRICS* pMetrics);
    /// The row of a group, with its caption, button and line.
    virtual void DrawGroupRow(CDC* pDC, CXTPReportGroupRow* pRow, const CRect& rcRow);
    /// The lines that join records in the indentation `rcIndent` of a tree column's cell, which ends at `nRight`.
    virtual void DrawTreeLines(CDC* pDC, CXTPReportRow* pRow, const CRect& rcIndent, int nRight);
    /// In the middle of `rcButton`; `metrics` are those of its row.
    virtual void DrawExpandButton(CDC* pDC, const CRect& rcButton, BOOL bExpanded,
                                  const XTP_REPORTRECORDITEM_METRICS& metrics);
    /// The lines at the right and lower edge of a cell, inside `rcCell`.
    virtual void DrawGridLines(CDC* pDC, const CRect& rcCell);
    /// One line of text in the colour that `pDC` has, vertically centred, with an ellipsis when it does not fit;
    /// stretches that are hyperlinks are marked as such and told where they stand.
    virtual void DrawItemText(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics);
    /// Lines of text in the colour that `pDC` has, wrapped into the width of `rcItem` from its upper edge on, as many
    /// as fit; an ellipsis ends the last one when there are more.
    virtual void DrawPreviewText(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics);
    /// The frame of the focused row, drawn over its cells while the control has the keyboard. The grid line stays free.
    virtual void DrawFocusedRow(CDC* pDC, const CRect& rcRow);
    /// The mark of the cell that the keyboard acts on; `metrics` are those of its row.
    virtual void DrawFocusedCell(CDC* pDC, const CRect& rcCell, const XTP_REPORTRECORDITEM_METRICS& metrics);
    /// The mark of the column that the keyboard acts on, in its header.
    virtual void DrawFocusedColumn(CDC* pDC, const CRect& rcColumn);
    /// Background and frame of a cell that is being edited; the frame is a pixel wide. The text is the editor's own.
    virtual void DrawEditedCell(CDC* pDC, const CRect& rcCell);

    // --- Colours ------------------------------------------------------------------------------------------------
    CXTPPaintManagerColor m_clrHighlight;             ///< background of a selected row while the control has the focus
    CXTPPaintManagerColor m_clrHighlightText;         ///< text on it
    CXTPPaintManagerColor m_clrInactiveHighlight;     ///< background of a selected row without the focus
    CXTPPaintManagerColor m_clrInactiveHighlightText; ///< text on it
    CXTPPaintManagerColor m_clrFocusFrame;            ///< around the focused row; unset: the system's dotted rectangle
    CXTPPaintManagerColor m_clrWindow;                ///< background of rows, and of the body without rows
    CXTPPaintManagerColor m_clrWindowText;            ///< text on it
    CXTPPaintManagerColor m_clrAlternateRow;          ///< background of every second row, when that is asked for
    CXTPPaintManagerColor m_clrDisabledWindow;        ///< background of a disabled control
    CXTPPaintManagerColor m_clrGridLine;              ///< lines between cells
    CXTPPaintManagerColor m_clrHyperlink;             ///< text and line of a hyperlink
    CXTPPaintManagerColor m_clrPreviewText;           ///< text below the cells of a row
    CXTPPaintManagerColor m_clrDisabledText;          ///< every text of a disabled control, and the empty text
    CXTPPaintManagerColor m_clrDropMark;              ///< where a dragged column would land
    CXTPPaintManagerColor m_clrGroupRow;              ///< behind the caption of a group
    CXTPPaintManagerColor m_clrGroupRowText;          ///< the caption of a group
    CXTPPaintManagerColor m_clrGroupRowLine;          ///< under the row of a group
    CXTPPaintManagerColor m_clrTreeLine;              ///< from a record to those below it; unset: no lines
    CXTPPaintManagerColor m_clrExpandButton;          ///< frame of an expand button, or all of a triangle
    CXTPPaintManagerColor m_clrExpandButtonFill;      ///< inside of its frame
    CXTPPaintManagerColor m_clrExpandButtonSign;      ///< its plus or minus
    CXTPPaintManagerColor m_clrGroupBy;               ///< background of the group-by box
    CXTPPaintManagerColor m_clrGroupByText;           ///< text on it, and the lines between its buttons
    CXTPPaintManagerColor m_clrFreezeLine;            ///< at the edge of frozen columns
    CXTPPaintManagerColor m_clrHeader;            ///< lower end of the header's gradient, which runs from light to dark
    CXTPPaintManagerColor m_clrHeaderLight;       ///< its upper end
    CXTPPaintManagerColor m_clrHeaderSorted;      ///< lower end of a sorted column
    CXTPPaintManagerColor m_clrHeaderSortedLight; ///< upper end of a sorted column
    CXTPPaintManagerColor m_clrHeaderHot;         ///< lower end under the pointer
    CXTPPaintManagerColor m_clrHeaderHotLight;    ///< upper end under the pointer
    CXTPPaintManagerColor m_clrHeaderPressed;     ///< lower end while pressed
    CXTPPaintManagerColor m_clrHeaderPressedLight; ///< upper end while pressed
    CXTPPaintManagerColor m_clrHeaderDivider;      ///< at the right edge of a column; dark edge of a raised one
    CXTPPaintManagerColor m_clrHeaderDividerLight; ///< beside it in a second tone; light edge of a raised one
    CXTPPaintManagerColor m_clrHeaderFrame;        ///< around or under a hot or pressed column; unset: none
    CXTPPaintManagerColor m_clrHeaderLine;         ///< under the header
    CXTPPaintManagerColor m_clrHeaderText;         ///< captions
    CXTPPaintManagerColor m_clrSortArrow;          ///< beside or above the caption of a sorted column

protected:
    /// Whether the user has switched high contrast on; asked by `RefreshMetrics` and `SetColumnStyle`.
    virtual BOOL IsHighContrast() const;
    /// Draws `strText` in one line into `rcText` with the font selected into `pDC`.
    void DrawTextLine(CDC* pDC, const CString& strText, const CRect& rcText, int nAlignment) const;

    CXTPReportControl* m_pControl = nullptr;                ///< the control that is drawn; null before one takes this
    XTPReportPaintTheme m_theme;                            ///< which colours the body has
    XTPReportColumnStyle m_columnStyle;                     ///< which colours and edges the header has
    CFont m_fontText;                                       ///< of every text that is not bold
    CFont m_fontBold;                                       ///< the same with bold weight
    CFont m_fontRank;                                       ///< smaller, for the ranks of sorted columns
    DpiLength m_rowHeight;                                  ///< as the host has set it; 0: as the font needs it
    int m_nTextRowHeight = 0;                               ///< pixels that a row needs for the font
    int m_nHeaderHeight = 0;                                ///< pixels
    int m_nDpi;                                             ///< for which the metrics were worked out
    int m_nTextHeight = 0;                                  ///< pixels from the top of the tallest letter to the lowest
    int m_nTextAscent = 0;                                  ///< pixels above the base line
    int m_nCellPadding = 0;                                 ///< pixels between an edge and the text
    XTPReportGridStyle m_gridVertical = xtpReportGridSolid; ///< of the lines between columns
    XTPReportGridStyle m_gridHorizontal = xtpReportGridSolid; ///< of the lines between rows
    CString m_strNoItems;                                     ///< shown when there are no rows
    CString m_strNoGroupBy;                                   ///< shown when the rows are not grouped

private:
    /// What stands beside a caption; rank 0: none.
    struct SortMark {
        bool isShown = false;
        bool isIncreasing = true;
        int rank = 0;
    };
    void DrawCaption(CDC* pDC, const CXTPReportColumn* pColumn, const CRect& rcColumn, const SortMark& mark);
    int GetRankSpace(int nRank) const;
    reportlook::Look GetLook() const;
    LOGFONT MakeFont() const;
    COLORREF GetRowBackground(const CXTPReportRow* pRow, bool bDisabled) const;
    CSize GetArrowSize() const;
    void DrawLinkedText(CDC* pDC, const XTP_REPORTRECORDITEM_DRAWARGS& args, const CString& strText,
                        const CRect& rcText, int nAlignment) const;
    void ApplyColors();
    void MeasureFont();
    void DrawGridLine(CDC* pDC, const CRect& rcLine, XTPReportGridStyle style, const CRect& rcCell) const;
    void DrawColumnEdges(CDC* pDC, const CXTPReportColumn* pColumn, const CRect& rcColumn, BOOL bHot,
                         BOOL bPressed) const;
    void FillHeader(CDC* pDC, const CRect& rc, COLORREF clrLight, COLORREF clrDark) const;
    void FillHeaderPart(CDC* pDC, const CRect& rcPart, BOOL bHot, BOOL bPressed, BOOL bSorted) const;

    std::shared_ptr<textwrap::CharWidths> m_charWidths; ///< of `m_fontText`
    int m_nPreviewSpacing = 0;                          ///< pixels below the preview text of a row
    int m_nPreviewLines = 3;
    bool m_bAlternateRows = false;
    bool m_bHighContrast = false;
    LOGFONT m_lfHost;         ///< the host's font, when it has set one
    int m_nHostFontDpi = 0;   ///< the resolution for which it was set
    bool m_bHostFont = false; ///< a font was set by `SetTextFont`
};
