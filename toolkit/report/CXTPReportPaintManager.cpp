// Colours and metrics of a report control, and the drawing of the parts of its body.
#include "CXTPReportPaintManager.h"

#include "CXTPReportControl.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRow.h"
#include "PreviewRows.h"
#include "ReportLook.h"
#include "TextWrap.h"

#include "../../framework/gdi/SelectGuard.h"
#include "../../framework/windows/WindowDpi.h"
#include "../common/SystemContrast.h"
#include "../common/TextStateGuard.h"

#include <algorithm>

namespace {

using ColorMember = CXTPPaintManagerColor CXTPReportPaintManager::*;

/// The member that holds the colour of each role, in the order of the roles.
constexpr ColorMember RoleMembers[] = {
    &CXTPReportPaintManager::m_clrWindow,
    &CXTPReportPaintManager::m_clrWindowText,
    &CXTPReportPaintManager::m_clrAlternateRow,
    &CXTPReportPaintManager::m_clrDisabledWindow,
    &CXTPReportPaintManager::m_clrDisabledText,
    &CXTPReportPaintManager::m_clrHighlight,
    &CXTPReportPaintManager::m_clrHighlightText,
    &CXTPReportPaintManager::m_clrInactiveHighlight,
    &CXTPReportPaintManager::m_clrInactiveHighlightText,
    &CXTPReportPaintManager::m_clrFocusFrame,
    &CXTPReportPaintManager::m_clrGridLine,
    &CXTPReportPaintManager::m_clrHyperlink,
    &CXTPReportPaintManager::m_clrPreviewText,
    &CXTPReportPaintManager::m_clrDropMark,
    &CXTPReportPaintManager::m_clrGroupRow,
    &CXTPReportPaintManager::m_clrGroupRowText,
    &CXTPReportPaintManager::m_clrGroupRowLine,
    &CXTPReportPaintManager::m_clrTreeLine,
    &CXTPReportPaintManager::m_clrExpandButton,
    &CXTPReportPaintManager::m_clrExpandButtonFill,
    &CXTPReportPaintManager::m_clrExpandButtonSign,
    &CXTPReportPaintManager::m_clrGroupBy,
    &CXTPReportPaintManager::m_clrGroupByText,
    &CXTPReportPaintManager::m_clrFreezeLine,
    &CXTPReportPaintManager::m_clrHeader,
    &CXTPReportPaintManager::m_clrHeaderLight,
    &CXTPReportPaintManager::m_clrHeaderSorted,
    &CXTPReportPaintManager::m_clrHeaderSortedLight,
    &CXTPReportPaintManager::m_clrHeaderHot,
    &CXTPReportPaintManager::m_clrHeaderHotLight,
    &CXTPReportPaintManager::m_clrHeaderPressed,
    &CXTPReportPaintManager::m_clrHeaderPressedLight,
    &CXTPReportPaintManager::m_clrHeaderDivider,
    &CXTPReportPaintManager::m_clrHeaderDividerLight,
    &CXTPReportPaintManager::m_clrHeaderFrame,
    &CXTPReportPaintManager::m_clrHeaderLine,
    &CXTPReportPaintManager::m_clrHeaderText,
    &CXTPReportPaintManager::m_clrSortArrow,
};
static_assert(std::size(RoleMembers) == static_cast<std::size_t>(reportlook::Role::Count));

// Lengths at 96 DPI.
constexpr int NoItemTextTop = 16;
constexpr int FocusFrameWidth = 1;
constexpr int PreviewIndent = 20;

/// The user's font for message texts; 9 point Segoe UI when the system does not tell.
LOGFONT SystemTextFont(int dpi) {
    NONCLIENTMETRICS metrics;
    if (windowdpi::ReadNonClientMetrics(metrics, dpi))
        return metrics.lfMessageFont;
    LOGFONT font = {};
    font.lfHeight = -::MulDiv(9, dpi, 72);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpyn(font.lfFaceName, _T("Segoe UI"), LF_FACESIZE);
    return font;
}

bool IsDisabled(const CXTPReportControl* control) {
    return control && control->GetSafeHwnd() && !control->IsWindowEnabled();
}

} // namespace

CXTPReportPaintManager::CXTPReportPaintManager(XTPReportPaintTheme theme)
    : m_theme(theme), m_columnStyle(reportlook::OwnColumnStyle(theme)), m_nDpi(windowdpi::OfSystem()),
      m_strNoItems(_T("There are no items to show.")),
      m_strNoGroupBy(_T("Drag a column header here to group by that column.")), m_lfHost{} {
    CXTPReportPaintManager::RefreshMetrics();
}

CXTPReportPaintManager::~CXTPReportPaintManager() = default;

// --- Metrics --------------------------------------------------------------------------------------------------------

void CXTPReportPaintManager::RefreshMetrics() {
    ApplyColors();
    MeasureFont();
}

BOOL CXTPReportPaintManager::IsHighContrast() const { return systemcontrast::IsHigh(); }

reportlook::Look CXTPReportPaintManager::GetLook() const {
    using reportlook::Contrast;
    return reportlook::LookOf(m_theme, m_columnStyle, m_bHighContrast ? Contrast::High : Contrast::Ordinary);
}

void CXTPReportPaintManager::ApplyColors() {
    m_bHighContrast = IsHighContrast() != FALSE;
    const reportlook::Look look = GetLook();
    for (std::size_t role = 0; role < std::size(RoleMembers); ++role) {
        const bool isBody = role < reportlook::BodyRoles;
        const LookColor& color = isBody ? (*look.body)[role] : look.header->colors[role - reportlook::BodyRoles];
        (this->*RoleMembers[role]).SetStandardValue(color.Resolve());
    }
}

LOGFONT CXTPReportPaintManager::MakeFont() const {
    if (!m_bHostFont)
        return SystemTextFont(m_nDpi);
    LOGFONT font = m_lfHost;
    font.lfHeight = DpiLength{static_cast<int>(font.lfHeight), m_nHostFontDpi}.At(m_nDpi);
    return font;
}

void CXTPReportPaintManager::MeasureFont() {
    CClientDC dc(nullptr);
    LOGFONT font = MakeFont();
    m_fontText.DeleteObject();
    m_fontText.CreateFontIndirect(&font);
    font.lfWeight = FW_BOLD;
    m_fontBold.DeleteObject();
    m_fontBold.CreateFontIndirect(&font);
    font.lfWeight = FW_NORMAL;
    font.lfHeight = font.lfHeight * 3 / 4;
    m_fontRank.DeleteObject();
    m_fontRank.CreateFontIndirect(&font);

    TEXTMETRIC text = {};
    const SelectGuard select(dc, m_fontText);
    dc.GetTextMetrics(&text);
    const reportlook::BodyMetrics& metrics = *GetLook().metrics;
    m_nTextHeight = text.tmHeight;
    m_nTextAscent = text.tmAscent;
    m_nCellPadding = ScaleForDpi(metrics.cellPadding);
    m_nPreviewSpacing = ScaleForDpi(metrics.rowSpacing);
    m_charWidths = std::make_shared<textwrap::CharWidths>([this](int first, textwrap::CharWidths::Page& page) {
        CClientDC screen(nullptr);
        const SelectGuard selected(screen, m_fontText);
        page.fill(m_nTextHeight / 2); // should the font not tell
        ::GetCharWidth32(screen, static_cast<UINT>(first),
                         static_cast<UINT>(first + textwrap::CharWidths::PageSize - 1), page.data());
    });
    m_nTextRowHeight = m_nTextHeight + 2 * ScaleForDpi(metrics.rowSpacing) + 1;
    m_nHeaderHeight = m_nTextHeight + 2 * ScaleForDpi(metrics.headerSpacing) + 1;
}

void CXTPReportPaintManager::SetDpi(int nDpi) {
    if (nDpi < 1 || nDpi > MaxDpi || nDpi == m_nDpi)
        return;
    m_nDpi = nDpi;
    MeasureFont();
}

int CXTPReportPaintManager::ScaleForDpi(int nPixels) const {
    return DpiLength{nPixels, windowdpi::Standard}.At(m_nDpi);
}

int CXTPReportPaintManager::GetRowHeight() const {
    const int height = m_rowHeight.At(m_nDpi);
    return height > 0 ? height : m_nTextRowHeight;
}

void CXTPReportPaintManager::SetRowHeight(int nHeight) { m_rowHeight = {std::max(nHeight, 0), m_nDpi}; }

int CXTPReportPaintManager::GetHeaderHeight() const { return m_nHeaderHeight; }

int CXTPReportPaintManager::GetPreviewHeight(int nLines) const {
    return nLines > 0 ? nLines * m_nTextHeight + m_nPreviewSpacing : 0;
}

int CXTPReportPaintManager::GetPreviewIndent() const { return ScaleForDpi(PreviewIndent); }

void CXTPReportPaintManager::SetMaxPreviewLines(int nLines) {
    m_nPreviewLines = std::clamp(nLines, 1, MostPreviewLines);
}

void CXTPReportPaintManager::SetTextFont(const LOGFONT& lf) {
    m_lfHost = lf;
    m_nHostFontDpi = m_nDpi;
    m_bHostFont = true;
    MeasureFont();
}

void CXTPReportPaintManager::TakeOver(const CXTPReportPaintManager& former) {
    m_nDpi = former.m_nDpi;
    m_rowHeight = former.m_rowHeight;
    m_gridVertical = former.m_gridVertical;
    m_gridHorizontal = former.m_gridHorizontal;
    m_bAlternateRows = former.m_bAlternateRows;
    m_strNoItems = former.m_strNoItems;
    m_nPreviewLines = former.m_nPreviewLines;
    m_strNoGroupBy = former.m_strNoGroupBy;
    m_bHostFont = former.m_bHostFont;
    m_lfHost = former.m_lfHost;
    m_nHostFontDpi = former.m_nHostFontDpi;
    MeasureFont();
}

void CXTPReportPaintManager::SetColumnStyle(XTPReportColumnStyle style) {
    m_columnStyle = style;
    ApplyColors();
}

void CXTPReportPaintManager::SetGridStyle(BOOL bVertical, XTPReportGridStyle style) {
    (bVertical ? m_gridVertical : m_gridHorizontal) = style;
}

int CXTPReportPaintManager::GetTextWidth(const CString& strText, BOOL bBold) const {
    CClientDC dc(nullptr);
    const SelectGuard select(dc, bBold ? m_fontBold : m_fontText);
    return dc.GetTextExtent(strText).cx;
}

// --- Body -----------------------------------------------------------------------------------------------------------

void CXTPReportPaintManager::FillBackground(CDC* pDC, const CRect& rc) {
    pDC->FillSolidRect(&rc, GetRowBackground(nullptr, IsDisabled(m_pControl)));
}

void CXTPReportPaintManager::DrawNoItemText(CDC* pDC, const CRect& rcReport) {
    if (m_strNoItems.IsEmpty())
        return;
    CRect rcText(rcReport);
    rcText.DeflateRect(m_nCellPadding, ScaleForDpi(NoItemTextTop), m_nCellPadding, 0);
    TextStateGuard state(*pDC);
    state.UseFont(&m_fontText);
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(m_clrDisabledText);
    pDC->DrawText(m_strNoItems, &rcText, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
}

void CXTPReportPaintManager::FillRowMetrics(CXTPReportRow* pRow, XTP_REPORTRECORDITEM_METRICS* pMetrics) {
    const CXTPReportControl* control = pRow ? pRow->GetControl() : nullptr;
    pMetrics->pFont = &m_fontText;
    pMetrics->clrForeground = m_clrWindowText;
    const bool isDisabled = IsDisabled(control);
    pMetrics->clrBackground = GetRowBackground(pRow, isDisabled);
    if (pRow && pRow->IsGroupRow()) {
        pMetrics->pFont = &m_fontBold;
        pMetrics->clrForeground = m_clrGroupRowText;
        if (!isDisabled && m_clrGroupRow != CXTPPaintManagerColor::Unset)
            pMetrics->clrBackground = m_clrGroupRow;
    }
    if (pRow && pRow->IsSelected()) {
        const bool isActive = control && control->HasFocus();
        pMetrics->clrForeground = isActive ? m_clrHighlightText : m_clrInactiveHighlightText;
        pMetrics->clrBackground = isActive ? m_clrHighlight : m_clrInactiveHighlight;
    }
    // In high contrast the colour of disabled texts cannot be read on the highlight.
    if (isDisabled && !(m_bHighContrast && pRow && pRow->IsSelected()))
        pMetrics->clrForeground = m_clrDisabledText;
}

COLORREF CXTPReportPaintManager::GetRowBackground(const CXTPReportRow* pRow, bool bDisabled) const {
    const bool isAlternate = m_bAlternateRows && pRow && pRow->GetIndex() % 2 != 0;
    return bDisabled ? m_clrDisabledWindow : isAlternate ? m_clrAlternateRow : m_clrWindow;
}

void CXTPReportPaintManager::DrawGridLines(CDC* pDC, const CRect& rcCell) {
    const CRect rcRight(rcCell.right - 1, rcCell.top, rcCell.right, rcCell.bottom);
    DrawGridLine(pDC, rcRight, m_gridVertical, rcCell);
    const CRect rcBottom(rcCell.left, rcCell.bottom - 1, rcCell.right, rcCell.bottom);
    DrawGridLine(pDC, rcBottom, m_gridHorizontal, rcCell);
}

void CXTPReportPaintManager::DrawGridLine(CDC* pDC, const CRect& rcLine, XTPReportGridStyle style,
                                          const CRect& rcCell) const {
    struct Pattern {
        int dash;
        int gap;
    };
    constexpr Pattern SmallDots = {1, 1}, LargeDots = {2, 2}, Dashes = {4, 2};
    Pattern pattern = SmallDots;
    switch (style) {
    case xtpReportGridNoLines:
        return;
    case xtpReportGridSmallDots:
        break;
    case xtpReportGridLargeDots:
        pattern = LargeDots;
        break;
    case xtpReportGridDashes:
        pattern = Dashes;
        break;
    case xtpReportGridSolid:
    default:
        pDC->FillSolidRect(&rcLine, m_clrGridLine);
        return;
    }
    // The pattern begins at the cell's corner, so that pixels moved by scrolling meet newly drawn ones without a seam.
    const bool isVertical = rcLine.Width() == 1;
    const int end = isVertical ? rcLine.bottom : rcLine.right;
    for (int pos = isVertical ? rcCell.top : rcCell.left; pos < end; pos += pattern.dash + pattern.gap) {
        const int stop = std::min(pos + pattern.dash, end);
        const CRect rcDash =
            isVertical ? CRect(rcLine.left, pos, rcLine.right, stop) : CRect(pos, rcLine.top, stop, rcLine.bottom);
        pDC->FillSolidRect(&rcDash, m_clrGridLine);
    }
}

void CXTPReportPaintManager::DrawTextLine(CDC* pDC, const CString& strText, const CRect& rcText, int nAlignment) const {
    if (strText.IsEmpty() || rcText.Width() <= 0)
        return;
    // What stands beyond the right edge is cut off anyway; a character is at least a pixel wide.
    const int length = std::min(strText.GetLength(), rcText.Width() + 8);
    const CSize extent = pDC->GetTextExtent(strText.GetString(), length);
    if (extent.cx > rcText.Width() || length < strText.GetLength()) {
        CRect rcCut(rcText);
        pDC->DrawText(strText.GetString(), length, &rcCut,
                      DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_END_ELLIPSIS | DT_NOPREFIX);
        return;
    }
    int x = rcText.left;
    if (nAlignment & DT_RIGHT)
        x = rcText.right - extent.cx;
    else if (nAlignment & DT_CENTER)
        x += (rcText.Width() - extent.cx) / 2;
    const int y = rcText.top + (rcText.Height() - extent.cy) / 2;
    pDC->ExtTextOut(x, y, ETO_CLIPPED, &rcText, strText, nullptr);
}

void CXTPReportPaintManager::DrawItemText(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs,
                                          XTP_REPORTRECORDITEM_METRICS* pMetrics) {
    CDC* pDC = pDrawArgs->pDC;
    CRect rcText(pDrawArgs->rcItem);
    rcText.DeflateRect(m_nCellPadding, 0);
    TextStateGuard state(*pDC);
    state.UseFont(pMetrics->pFont);
    pDC->SetBkMode(TRANSPARENT);
    if (pDrawArgs->pItem && pDrawArgs->pItem->GetHyperlinksCount() > 0)
        DrawLinkedText(pDC, *pDrawArgs, pMetrics->strText, rcText, pMetrics->nColumnAlignment);
    else
        DrawTextLine(pDC, pMetrics->strText, rcText, pMetrics->nColumnAlignment);
}

void CXTPReportPaintManager::DrawLinkedText(CDC* pDC, const XTP_REPORTRECORDITEM_DRAWARGS& args, const CString& strText,
                                            const CRect& rcText, int nAlignment) const {
    CXTPReportRecordItem* pItem = args.pItem;
    const COLORREF color = IsDisabled(args.pControl) ? m_clrDisabledText : m_clrHyperlink;
    const CSize extent = pDC->GetTextExtent(strText);
    const int slack = std::max<int>(rcText.Width() - extent.cx, 0);
    const int x = rcText.left + (nAlignment & DT_RIGHT ? slack : nAlignment & DT_CENTER ? slack / 2 : 0);
    const int y = rcText.top + (rcText.Height() - extent.cy) / 2;
    // Smoothed letters drawn twice look bold, so the plain text leaves out what the links cover.
    const SaveDCGuard plainText(*pDC);
    for (int i = 0; i < pItem->GetHyperlinksCount(); ++i) {
        CXTPReportHyperlink* link = pItem->GetHyperlinkAt(i);
        const bool isWhole = link->m_nHyperTextBegin == 0 && link->m_nHyperTextLen == 0;
        const int begin = std::clamp(link->m_nHyperTextBegin, 0, strText.GetLength());
        const int rest = strText.GetLength() - begin;
        const int length = isWhole ? rest : std::clamp(link->m_nHyperTextLen, 0, rest);
        const int left = x + pDC->GetTextExtent(strText.GetString(), begin).cx;
        const int right = x + pDC->GetTextExtent(strText.GetString(), begin + length).cx;
        const CRect rcLink(left, y, right, y + extent.cy);
        link->m_rcHyperSpot = CRect();
        if (!link->m_rcHyperSpot.IntersectRect(&rcLink, &rcText))
            continue;
        const SaveDCGuard linkText(*pDC);
        pDC->IntersectClipRect(link->m_rcHyperSpot);
        pDC->SetTextColor(color);
        DrawTextLine(pDC, strText, rcText, nAlignment);
        pDC->FillSolidRect(left, y + m_nTextAscent + 1, right - left, 1, color);
    }
    for (int i = 0; i < pItem->GetHyperlinksCount(); ++i)
        pDC->ExcludeClipRect(pItem->GetHyperlinkAt(i)->m_rcHyperSpot);
    DrawTextLine(pDC, strText, rcText, nAlignment);
}

void CXTPReportPaintManager::DrawPreviewText(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs,
                                             XTP_REPORTRECORDITEM_METRICS* pMetrics) {
    CDC* pDC = pDrawArgs->pDC;
    const int most = std::min(m_nPreviewLines, pDrawArgs->rcItem.Height() / std::max(m_nTextHeight, 1));
    const CString strText = pMetrics->strText.Left(static_cast<int>(PreviewRows::MostCharacters));
    const std::wstring_view text(strText.GetString(), static_cast<std::size_t>(strText.GetLength()));
    TextStateGuard state(*pDC);
    state.UseFont(pMetrics->pFont);
    pDC->SetBkMode(TRANSPARENT);
    CRect rcLine(pDrawArgs->rcItem);
    rcLine.bottom = rcLine.top + m_nTextHeight;
    const std::vector<textwrap::Line> lines =
        textwrap::Wrapper(*m_charWidths).Break(text, pDrawArgs->rcItem.Width(), most + 1);
    for (int i = 0; i < std::min(static_cast<int>(lines.size()), most); ++i) {
        const textwrap::Line& line = lines[static_cast<std::size_t>(i)];
        const bool isCut = i == most - 1 && static_cast<int>(lines.size()) > most;
        // The line that ends with an ellipsis goes on with what would stand below it.
        CString strLine = isCut ? strText.Mid(line.first) : strText.Mid(line.first, line.length);
        strLine.Replace(_T('\n'), _T(' '));
        strLine.Replace(_T('\r'), _T(' '));
        strLine.Replace(_T('\t'), _T(' '));
        DrawTextLine(pDC, strLine, rcLine, pMetrics->nColumnAlignment);
        rcLine.OffsetRect(0, m_nTextHeight);
    }
}

void CXTPReportPaintManager::DrawFocusedRow(CDC* pDC, const CRect& rcRow) {
    CRect rcFrame(rcRow);
    rcFrame.bottom -= 1; // the grid line stays
    if (m_clrFocusFrame == CXTPPaintManagerColor::Unset) {
        // The dots are exclusive-or: they show on any background when both colours are plain.
        pDC->SetTextColor(RGB(0, 0, 0));
        pDC->SetBkColor(RGB(255, 255, 255));
        pDC->DrawFocusRect(&rcFrame);
    } else {
        pDC->Draw3dRect(&rcFrame, m_clrFocusFrame, m_clrFocusFrame);
    }
}

void CXTPReportPaintManager::DrawFocusedCell(CDC* pDC, const CRect& rcCell,
                                             const XTP_REPORTRECORDITEM_METRICS& metrics) {
    // Two frames, one of the text's colour and one of the row's: whatever the cell has drawn, one of them shows.
    const int width = ScaleForDpi(FocusFrameWidth);
    CRect rcFrame(rcCell);
    for (const COLORREF color : {metrics.clrForeground, metrics.clrBackground}) {
        for (int i = 0; i < width && rcFrame.Width() > 0 && rcFrame.Height() > 0; ++i) {
            pDC->Draw3dRect(&rcFrame, color, color);
            rcFrame.DeflateRect(1, 1);
        }
    }
}

void CXTPReportPaintManager::DrawEditedCell(CDC* pDC, const CRect& rcCell) {
    const bool hasFrame = m_clrFocusFrame != CXTPPaintManagerColor::Unset;
    const COLORREF frame = hasFrame ? m_clrFocusFrame : m_clrWindowText;
    pDC->FillSolidRect(&rcCell, m_clrWindow);
    pDC->Draw3dRect(&rcCell, frame, frame);
}
