// Preview texts of a report control: which rows have one, and how high that makes them.
#include "ReportControlImpl.h"

#include "CXTPReportRecord.h"
#include "CXTPReportRecordItemPreview.h"

#include "../../framework/windows/WindowDpi.h"

#include <algorithm>

void CXTPReportControl::EnablePreviewMode(BOOL bEnable) {
    const bool isEnabled = bEnable != FALSE;
    if (isEnabled == m_impl->isPreviewMode)
        return;
    m_impl->isPreviewMode = isEnabled;
    try {
        m_impl->MeasurePreviews();
    } catch (...) {
        AdjustLayout();
        throw;
    }
    AdjustLayout();
}

BOOL CXTPReportControl::IsPreviewMode() const { return m_impl->isPreviewMode; }

int CXTPReportControl::GetPreviewWidth() const {
    if (!m_hWnd)
        return 0;
    const int bar = windowdpi::SystemMetric(SM_CXVSCROLL, windowdpi::OfWindow(m_hWnd));
    const int view = m_impl->ClientRect().Width() + (GetStyle() & WS_VSCROLL ? bar : 0);
    const CXTPReportPaintManager& look = *m_impl->paintManager;
    return std::max(view - bar - look.GetPreviewIndent() - look.GetCellPadding(), 0);
}

CString CXTPReportControl::Impl::PreviewTextOf(int rowIndex) const {
    const CXTPReportRecord* const record = rows->GetRecordAt(rowIndex);
    const CXTPReportRecordItemPreview* const preview = record ? record->GetItemPreview() : nullptr;
    return preview ? preview->GetPreviewText() : CString();
}

void CXTPReportControl::Impl::MeasurePreviews() {
    previews.Clear();
    SplicePreviews(0, 0, rows->GetCount());
}

void CXTPReportControl::Impl::SplicePreviews(int first, int removed, int inserted) {
    if (!isPreviewMode || control.IsVirtualMode())
        return;
    if (!previews.HasPreviews())
        previewWidths = paintManager->GetCharWidths();
    CString text;
    previews.Splice({first, removed, inserted, rows->GetCount()}, paintManager->GetMaxPreviewLines(),
                    *paintManager->GetCharWidths(), [&](int row) -> std::wstring_view {
                        text = PreviewTextOf(row);
                        return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
                    });
}

void CXTPReportControl::Impl::WrapPreviews() {
    if (!previews.HasPreviews())
        return;
    const bool isOtherFont = previewWidths.lock() != paintManager->GetCharWidths();
    if (isOtherFont || previews.Most() != paintManager->GetMaxPreviewLines())
        MeasurePreviews();
    std::vector<int> heights;
    for (int lines = 0; lines <= previews.Most(); ++lines)
        heights.push_back(paintManager->GetRowHeight() + paintManager->GetPreviewHeight(lines));
    previews.Wrap(control.GetPreviewWidth(), std::move(heights));
}
