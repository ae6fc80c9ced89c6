// The window in which a tool tip shows.
#include "ToolTipWindow.h"

#include "BackBuffer.h"
#include "LookColor.h"
#include "SystemContrast.h"

#include "../../framework/gdi/SelectGuard.h"
#include "../../framework/windows/WindowDpi.h"

#include <algorithm>
#include <iterator>

BEGIN_MESSAGE_MAP(ToolTipWindow, CWnd)
    ON_WM_PAINT()
    ON_WM_PRINTCLIENT()
    ON_WM_ERASEBKGND()
    ON_WM_TIMER()
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

namespace {

struct TipLook {
    XTPToolTipStyle style;
    LookColor top, bottom; ///< the background's gradient
    LookColor border;
    LookColor text;
    int cornerRadius; ///< pixels at 96 DPI
};

constexpr LookColor Rgb(int hex) { return LookColor::Rgb(hex); }
constexpr LookColor Sys(int index) { return LookColor::System(index); }

constexpr TipLook TipLooks[] = {
    {xtpToolTipStandard, Sys(COLOR_INFOBK), Sys(COLOR_INFOBK), Sys(COLOR_WINDOWFRAME), Sys(COLOR_INFOTEXT), 0},
    {xtpToolTipResource, Rgb(0xFFFFFF), Rgb(0xE5E7F1), Rgb(0x767B8C), Rgb(0x3C3F48), 3},
    {xtpToolTipMarkup, Rgb(0xFFFFFF), Rgb(0xE5E7F1), Rgb(0x767B8C), Rgb(0x3C3F48), 3},
    {xtpToolTipHTML, Rgb(0xFFFFFF), Rgb(0xE5E7F1), Rgb(0x767B8C), Rgb(0x3C3F48), 3},
    {xtpToolTipOffice2013, Rgb(0xFFFFFF), Rgb(0xFFFFFF), Rgb(0xBEBEBE), Rgb(0x444444), 0},
};

/// Styles without a look of their own get that of xtpToolTipStandard, whose colours are the system's; so do all in high
/// contrast.
const TipLook& LookOf(XTPToolTipStyle style) {
    if (systemcontrast::IsHigh())
        return TipLooks[0];
    const auto it = std::find_if(std::begin(TipLooks), std::end(TipLooks),
                                 [style](const TipLook& look) { return look.style == style; });
    return it != std::end(TipLooks) ? *it : TipLooks[0];
}

/// The arrow's height below its hot spot, and the distance of a tip above the pointer; pixels at 96 DPI.
constexpr int CursorHeight = 20;
constexpr int DistanceAbove = 4;

UINT TextFormat(int maxWidth) {
    constexpr UINT common = DT_LEFT | DT_NOPREFIX | DT_EXPANDTABS;
    return maxWidth < 0 ? common | DT_SINGLELINE : common | DT_WORDBREAK | DT_EDITCONTROL;
}

CRect WorkAreaAt(CPoint point) {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST), &info);
    return CRect(info.rcWork);
}

} // namespace

ToolTipWindow::~ToolTipWindow() {
    if (m_hWnd)
        DestroyWindow();
}

bool ToolTipWindow::Ensure(CWnd* host) {
    UseDpi(windowdpi::OfWindow(host->GetSafeHwnd()));
    if (m_hWnd && ::IsWindow(m_hWnd))
        return true;
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DROPSHADOW | CS_SAVEBITS, ::LoadCursor(nullptr, IDC_ARROW));
    CWnd* owner = host->GetTopLevelParent();
    return CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT, windowClass, _T(""),
                    WS_POPUP, CRect(0, 0, 0, 0), owner, 0);
}

void ToolTipWindow::UseDpi(int dpi) {
    if (dpi == m_dpi)
        return;
    m_dpi = dpi;
    NONCLIENTMETRICS metrics;
    windowdpi::ReadNonClientMetrics(metrics, dpi);
    m_font.DeleteObject();
    m_font.CreateFontIndirect(&metrics.lfStatusFont); // the font that the system gives to tips
}

int ToolTipWindow::Scale(int pixels) const { return ::MulDiv(pixels, m_dpi, windowdpi::Standard); }

CSize ToolTipWindow::Measure() {
    CClientDC dc(this);
    const SelectGuard select(dc, m_font);
    CRect rcText(0, 0, std::max(m_appearance.maxTextWidth, 1), 0);
    dc.DrawText(m_text, &rcText, TextFormat(m_appearance.maxTextWidth) | DT_CALCRECT);
    const CRect& margin = m_appearance.margin;
    return CSize(rcText.Width() + margin.left + margin.right + 2, rcText.Height() + margin.top + margin.bottom + 2);
}

void ToolTipWindow::ShowAt(CPoint point, const CString& text, const TipAppearance& appearance) {
    m_text = text;
    m_appearance = appearance;
    m_anchor = point;
    Place(CPoint(point.x, point.y + Scale(CursorHeight)));
}

void ToolTipWindow::ChangeText(const CString& text, const TipAppearance& appearance) {
    CRect rcWindow;
    GetWindowRect(&rcWindow);
    m_text = text;
    m_appearance = appearance;
    Place(rcWindow.TopLeft());
}

void ToolTipWindow::Place(CPoint topLeft) {
    const CSize size = Measure();
    const CRect rcWork = WorkAreaAt(m_anchor);
    CRect rc(topLeft, size);
    if (rc.right > rcWork.right)
        rc.OffsetRect(rcWork.right - rc.right, 0);
    if (rc.left < rcWork.left)
        rc.OffsetRect(rcWork.left - rc.left, 0);
    if (rc.bottom > rcWork.bottom)
        rc.OffsetRect(0, m_anchor.y - Scale(DistanceAbove) - rc.bottom);
    const int radius = Scale(LookOf(m_appearance.style).cornerRadius);
    // The system owns the region from here on.
    SetWindowRgn(radius > 0 ? ::CreateRoundRectRgn(0, 0, size.cx + 1, size.cy + 1, radius * 2, radius * 2) : nullptr,
                 FALSE);
    SetWindowPos(&wndTopMost, rc.left, rc.top, size.cx, size.cy, SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOOWNERZORDER);
    Invalidate(FALSE);
    UpdateWindow();
}

void ToolTipWindow::Hide() {
    m_text.Empty();
    if (m_hWnd)
        ShowWindow(SW_HIDE);
}

// --- Messages -------------------------------------------------------------------------------------------------------

void ToolTipWindow::OnPaint() {
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    BackBuffer buffer;
    if (CDC* memory = buffer.Prepare(rcClient.Size())) {
        Draw(*memory);
        buffer.Present(dc, rcClient);
    }
}

LRESULT ToolTipWindow::OnPrintClient(CDC* pDC, UINT) {
    if (pDC)
        Draw(*pDC);
    return 0;
}

void ToolTipWindow::Draw(CDC& dc) {
    CRect rc;
    GetClientRect(&rc);
    const TipLook& look = LookOf(m_appearance.style);
    const COLORREF top = look.top.Resolve(), bottom = look.bottom.Resolve();
    const auto vertex = [](LONG x, LONG y, COLORREF color) {
        return TRIVERTEX{x,
                         y,
                         static_cast<COLOR16>(GetRValue(color) << 8),
                         static_cast<COLOR16>(GetGValue(color) << 8),
                         static_cast<COLOR16>(GetBValue(color) << 8),
                         0};
    };
    TRIVERTEX corners[] = {vertex(rc.left, rc.top, top), vertex(rc.right, rc.bottom, bottom)};
    GRADIENT_RECT whole = {0, 1};
    dc.GradientFill(corners, 2, &whole, 1, GRADIENT_FILL_RECT_V);

    CPen pen(PS_SOLID, 1, look.border.Resolve());
    {
        const SelectGuard selectPen(dc, pen);
        const SelectGuard selectBrush(dc, ::GetStockObject(NULL_BRUSH));
        const int radius = Scale(look.cornerRadius) * 2;
        dc.RoundRect(rc.left, rc.top, rc.right, rc.bottom, radius, radius);
    }
    CRect rcText(rc);
    rcText.DeflateRect(1, 1);
    rcText.DeflateRect(&m_appearance.margin);
    const SelectGuard selectFont(dc, m_font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(look.text.Resolve());
    dc.DrawText(m_text, &rcText, TextFormat(m_appearance.maxTextWidth));
}

BOOL ToolTipWindow::OnEraseBkgnd(CDC*) { return TRUE; }

void ToolTipWindow::OnTimer(UINT_PTR nIDEvent) { m_timers.OnTipTimer(nIDEvent); }

LRESULT ToolTipWindow::OnNcHitTest(CPoint) { return HTTRANSPARENT; }
