// How a report control looks: colours and metrics of a theme, and the drawing of every part with them.
#pragma once

#include "XTPReportDefines.h"

/// Draws the parts of a report control. It never changes how the control behaves. Derive and hand to
/// `CXTPReportControl::SetPaintManager` for a look of one's own. Metrics are pixels at the control's DPI.
class KY_TOOLKIT_API CXTPReportPaintManager : public CCmdTarget {
public:
    explicit CXTPReportPaintManager(XTPReportPaintTheme theme = xtpReportThemeDefault);
    ~CXTPReportPaintManager() override;

    /// Reads the system colours and fonts again and works out every metric.
    virtual void RefreshMetrics();

    XTPReportPaintTheme GetTheme() const { return m_theme; }
    XTPReportColumnStyle GetColumnStyle() const { return m_columnStyle; }
    void SetColumnStyle(XTPReportColumnStyle style);

    // --- Metrics ------------------------------------------------------------------------------------------------
    virtual int GetRowHeight() const;
    void SetRowHeight(int nHeight); ///< 0: from the font
    virtual int GetHeaderHeight() const;
    CFont* GetTextFont() { return &m_fontText; }
    CFont* GetTextBoldFont() { return &m_fontBold; }
    void SetTextFont(const LOGFONT& lf);
    XTPReportGridStyle GetGridStyle(BOOL bVertical) const { return bVertical ? m_gridVertical : m_gridHorizontal; }
    void SetGridStyle(BOOL bVertical, XTPReportGridStyle style);
    /// Shown in the middle of a grid without rows.
    CString GetNoItemText() const { return m_strNoItems; }
    void SetNoItemText(LPCTSTR strText) { m_strNoItems = strText; }

    // --- Parts --------------------------------------------------------------------------------------------------
    virtual void DrawHeaderBackground(CDC* pDC, const CRect& rcHeader);
    virtual void DrawColumnBackground(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn, BOOL bHot,
                                      BOOL bPressed);
    virtual void DrawColumnCaption(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn);
    virtual void DrawSortArrow(CDC* pDC, const CRect& rcArrow, BOOL bIncreasing);
    virtual void DrawDropMarker(CDC* pDC, int x, const CRect& rcHeader);
    virtual void FillBackground(CDC* pDC, const CRect& rc);
    virtual void DrawNoItemText(CDC* pDC, const CRect& rcReport);
    /// Colours and font of a row that is or is not selected, in a control that has or has not the focus.
    virtual void FillRowMetrics(CXTPReportRow* pRow, XTP_REPORTRECORDITEM_METRICS* pMetrics);
    virtual void DrawGridLines(CDC* pDC, const CRect& rcCell);
    virtual void DrawItemText(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics);
    virtual void DrawFocusedRow(CDC* pDC, const CRect& rcRow);

    // --- Colours ------------------------------------------------------------------------------------------------
    CXTPPaintManagerColor m_clrHighlight;         ///< background of a selected row while the control has the focus
    CXTPPaintManagerColor m_clrHighlightText;     ///< text on it
    CXTPPaintManagerColor m_clrInactiveHighlight; ///< background of a selected row without the focus
    CXTPPaintManagerColor m_clrInactiveHighlightText;
    CXTPPaintManagerColor m_clrWindow, m_clrWindowText;
    CXTPPaintManagerColor m_clrGridLine;
    CXTPPaintManagerColor m_clrHeader, m_clrHeaderLight, m_clrHeaderHot, m_clrHeaderPressed, m_clrHeaderDivider,
        m_clrHeaderText;
    CXTPPaintManagerColor m_clrHyperlink;
    CXTPPaintManagerColor m_clrDisabledText;
    CXTPPaintManagerColor m_clrDropMark;

protected:
    XTPReportPaintTheme m_theme;
    XTPReportColumnStyle m_columnStyle = xtpReportColumnExplorer;
    CFont m_fontText, m_fontBold;
    int m_nRowHeight = 0, m_nTextRowHeight = 0, m_nHeaderHeight = 0;
    XTPReportGridStyle m_gridVertical = xtpReportGridSolid, m_gridHorizontal = xtpReportGridSolid;
    CString m_strNoItems;
};
