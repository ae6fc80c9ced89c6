// The bar above the grid in which the user types what the names of the shown columns contain.
#include "window/FilterBar.h"

#include "common/Translation.h"
#include "window/DpiScale.h"

#include <algorithm>

namespace {

// Pixels at 96 DPI.
constexpr int kGap = 6;
constexpr int kTextWidth = 220;
constexpr int kTextPadding = 3; // above and below the letters, the edge included

enum Control : UINT { LabelId = 1, TextId, CountId };

} // namespace

BEGIN_MESSAGE_MAP(FilterBar, CControlBar)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_CLOSE()
END_MESSAGE_MAP()

bool FilterBar::Create(CFrameWnd& frame, CXTPReportControl& grid) {
    m_grid = &grid;
    SetBarStyle(CBRS_TOP);
    const CString windowClass =
        AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1));
    const DWORD style = WS_CHILD | WS_VISIBLE;
    constexpr UINT kId = AFX_IDW_CONTROLBAR_FIRST + 20;
    if (!CWnd::Create(windowClass, nullptr, WS_CHILD | WS_CLIPCHILDREN, CRect(0, 0, 0, 0), &frame, kId) ||
        !m_label.Create(Translate("Name:"), style | SS_CENTERIMAGE, CRect(0, 0, 0, 0), this, LabelId) ||
        !m_text.CreateEx(WS_EX_CLIENTEDGE, _T("EDIT"), nullptr, style | WS_TABSTOP | ES_AUTOHSCROLL, CRect(0, 0, 0, 0),
                         this, TextId) ||
        !m_count.Create(nullptr, style | SS_CENTERIMAGE, CRect(0, 0, 0, 0), this, CountId))
        return false;
    UseDpi(DpiOf(frame.GetSafeHwnd()));
    m_text.SetReportCtrl(&grid);
    m_text.SetHint(Translate("Part of a column's name"));
    return true;
}

void FilterBar::Open() {
    ShowWindow(SW_SHOWNA);
    GetParentFrame()->RecalcLayout();
    m_text.SetFocus();
    m_text.SetSel(0, -1);
}

void FilterBar::Close() {
    m_text.SetWindowText(_T(""));
    ShowWindow(SW_HIDE);
    GetParentFrame()->RecalcLayout();
    m_grid->SetFocus();
}

void FilterBar::ShowCount(std::size_t shown, std::size_t all) {
    if (m_count.GetSafeHwnd() != nullptr)
        m_count.SetWindowText(all == 0 ? CString() : TranslateFormat("Filter bar", "%1% of %2% columns", shown, all));
}

void FilterBar::UseDpi(int dpi) {
    m_dpi = dpi;
    const LOGFONT logFont = MessageFont(dpi);
    CFont font;
    font.CreateFontIndirect(&logFont);
    for (CWnd* const control : std::initializer_list<CWnd*>{&m_label, &m_text, &m_count})
        control->SetFont(&font);
    m_font.DeleteObject();
    m_font.Attach(font.Detach());
    CClientDC dc(this);
    CFont* const former = dc.SelectObject(&m_font);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(former);
    m_textHeight = metrics.tmHeight;
    PlaceControls();
}

CSize FilterBar::CalcFixedLayout(BOOL stretch, BOOL horizontal) {
    CSize size = CControlBar::CalcFixedLayout(stretch, horizontal);
    size.cy = m_textHeight + ScaledToDpi(2 * kTextPadding + 2 * kGap, m_dpi);
    return size;
}

void FilterBar::OnSize(UINT type, int width, int height) {
    CControlBar::OnSize(type, width, height);
    PlaceControls();
}

void FilterBar::PlaceControls() {
    if (m_count.GetSafeHwnd() == nullptr)
        return;
    CRect client;
    GetClientRect(&client);
    const int gap = ScaledToDpi(kGap, m_dpi);
    CRect place = client;
    place.DeflateRect(gap, gap);
    const auto put = [&place, gap](CWnd& control, int width) {
        control.MoveWindow(place.left, place.top, std::clamp(width, 0, std::max<int>(place.Width(), 0)),
                           std::max<int>(place.Height(), 0));
        place.left += width + gap;
    };
    CString label;
    m_label.GetWindowText(label);
    CClientDC dc(this);
    CFont* const former = dc.SelectObject(&m_font);
    const int labelWidth = dc.GetTextExtent(label, label.GetLength()).cx;
    dc.SelectObject(former);
    put(m_label, labelWidth);
    put(m_text, ScaledToDpi(kTextWidth, m_dpi));
    put(m_count, place.Width());
}

void FilterBar::OnSetFocus(CWnd*) { m_text.SetFocus(); }

/// Its window stays, to be opened again.
void FilterBar::OnClose() { Close(); }

/// Escape empties the text; when there is none, it closes the bar. Tab and Enter go to the grid.
BOOL FilterBar::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN && message->hwnd == m_text.GetSafeHwnd()) {
        if (message->wParam == VK_ESCAPE && m_text.GetWindowTextLength() == 0) {
            Close();
            return TRUE;
        }
        if (message->wParam == VK_TAB || message->wParam == VK_RETURN) {
            m_grid->SetFocus();
            return TRUE;
        }
    }
    return CControlBar::PreTranslateMessage(message);
}
