/// @file
/// The text below a record's cells.
#pragma once

#include "CXTPReportRecordItem.h"

/// The preview of a record: a text that stands below its cells over the full width of the row, wrapped between words,
/// in as many lines as it needs up to `CXTPReportPaintManager::GetMaxPreviewLines`; an ellipsis ends one that has more.
/// It belongs to no column. Shown in preview mode, see `CXTPReportControl::EnablePreviewMode`. Tool tips, hyperlinks
/// and editing are the cells' affair: a preview has none, and a press on it is one on its row.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportRecordItemPreview : public CXTPReportRecordItem {
    DECLARE_DYNCREATE(CXTPReportRecordItemPreview)
public:
    /// @param szText copied; null is the empty text
    CXTPReportRecordItemPreview(LPCTSTR szText = _T(""));

    /// The text. White space alone is no preview: such a row keeps the plain height.
    virtual CString GetPreviewText() const;
    /// Shows at the next redraw; the height of the row follows at the next `Populate`.
    void SetPreviewText(LPCTSTR szText);

    /// The preview text.
    CString GetCaption(CXTPReportColumn* pColumn) override;
    /// In addition the theme's colour of previews, on rows that have the plain text colour. The font is the plain one,
    /// for which the row was measured.
    void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics) override;
    /// Draws the lines.
    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics) override;
    /// In addition "Text".
    void DoPropExchange(CXTPPropExchange* pPX) override;

private:
    CompactText m_strText;
};
