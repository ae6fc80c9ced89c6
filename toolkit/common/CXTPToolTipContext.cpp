// Tool tips of a window: when they show.
#include "CXTPToolTipContext.h"

#include "ToolTipWindow.h"

#include <cstdlib>
#include <optional>

namespace {

constexpr UINT_PTR TimerShow = 1;
constexpr UINT_PTR TimerAutoPop = 2;

// Pixels at 96 DPI.
constexpr int MarginX = 6;
constexpr int MarginY = 3;

/// The tool that a window reports at a point.
struct Tool {
    INT_PTR id = -1;
    CString text;
    bool IsThere() const { return id != -1 && !text.IsEmpty(); }
};

Tool ToolAt(const CWnd& window, CPoint point) {
    TOOLINFO info = {};
    info.cbSize = sizeof(info);
    Tool tool;
    tool.id = window.OnToolHitTest(point, &info);
    if (info.lpszText && info.lpszText != LPSTR_TEXTCALLBACK) {
        tool.text = info.lpszText;
        std::free(info.lpszText);
    }
    return tool;
}

} // namespace

struct CXTPToolTipContext::Impl : ToolTipWindow::Timers {
    explicit Impl(CXTPToolTipContext& owner) : context(owner) {}

    enum class Phase {
        Idle,    ///< no tool under the pointer
        Waiting, ///< the pointer has to rest for a while
        Shown,
        Dismissed ///< the tip was ended while the pointer was on its tool, and does not come back there
    };

    CXTPToolTipContext& context;
    ToolTipWindow window{*this};
    Phase phase = Phase::Idle;
    HWND host = nullptr;
    CPoint point; ///< client coordinates of the host
    Tool tool;
    std::optional<CPoint> restingAt; ///< screen: where the mouse rested when keys asked for the tip
    int initialDelay = -1, reshowDelay = -1, autoPopDelay = -1; ///< milliseconds; −1: the system's

    // The system derives its tip times from the double click's.
    int InitialDelay() const { return initialDelay >= 0 ? initialDelay : static_cast<int>(::GetDoubleClickTime()); }
    int ReshowDelay() const { return reshowDelay >= 0 ? reshowDelay : static_cast<int>(::GetDoubleClickTime() / 5); }
    int AutoPopDelay() const {
        return autoPopDelay >= 0 ? autoPopDelay : static_cast<int>(::GetDoubleClickTime() * 10);
    }

    TipAppearance Appearance() const { return {context.m_style, context.m_nMaxTipWidth, context.m_rcMargin}; }

    bool IsResting(const CWnd& hostWindow, LPARAM lParam) const;
    void Track(CWnd& hostWindow, CPoint pt);
    void StayOnTool(Tool now);
    void EnterTool(CWnd& hostWindow, Tool now);
    void Show();
    void End(Phase next);
    void OnTipTimer(UINT_PTR timer) override;
};

CXTPToolTipContext::CXTPToolTipContext() : m_impl(std::make_unique<Impl>(*this)) {
    CClientDC dc(nullptr);
    const int dpi = dc.GetDeviceCaps(LOGPIXELSY);
    const int x = ::MulDiv(MarginX, dpi, 96), y = ::MulDiv(MarginY, dpi, 96);
    m_rcMargin = CRect(x, y, x, y);
}

CXTPToolTipContext::~CXTPToolTipContext() = default;

// --- Tools -----------------------------------------------------------------------------------------------------------

void CXTPToolTipContext::FillInToolInfo(TOOLINFO* pTI, HWND hWnd, const CRect& rect, INT_PTR nHit,
                                        const CString& strTip, const CString& strTitle, const CString& strDescription) {
    if (!pTI)
        return;
    CString strText;
    for (const CString* part : {&strTitle, &strTip, &strDescription}) {
        if (!strText.IsEmpty() && !part->IsEmpty())
            strText += _T("\n");
        strText += *part;
    }
    pTI->hwnd = hWnd;
    pTI->uId = static_cast<UINT_PTR>(nHit);
    pTI->rect = rect;
    pTI->lpszText = _tcsdup(strText);
}

// --- Settings -------------------------------------------------------------------------------------------------------

void CXTPToolTipContext::SetStyle(XTPToolTipStyle style) {
    m_style = style;
    if (m_impl->phase == Impl::Phase::Shown)
        m_impl->window.ChangeText(m_impl->tool.text, m_impl->Appearance());
}

void CXTPToolTipContext::SetMargin(LPCRECT lprc) {
    if (lprc)
        m_rcMargin = *lprc;
}

void CXTPToolTipContext::SetDelayTime(DWORD dwType, int nTime) {
    const int time = nTime < 0 ? -1 : nTime;
    if (dwType == TTDT_INITIAL)
        m_impl->initialDelay = time;
    else if (dwType == TTDT_RESHOW)
        m_impl->reshowDelay = time;
    else if (dwType == TTDT_AUTOPOP)
        m_impl->autoPopDelay = time;
}

// --- What is shown --------------------------------------------------------------------------------------------------

BOOL CXTPToolTipContext::IsTipVisible() const { return m_impl->phase == Impl::Phase::Shown; }

CString CXTPToolTipContext::GetTipText() const { return IsTipVisible() ? m_impl->window.GetText() : CString(); }

CWnd* CXTPToolTipContext::GetTipWindow() const { return m_impl->window.m_hWnd ? &m_impl->window : nullptr; }

void CXTPToolTipContext::CancelToolTips() {
    m_impl->End(m_impl->phase == Impl::Phase::Idle ? Impl::Phase::Idle : Impl::Phase::Dismissed);
}

BOOL CXTPToolTipContext::ShowToolTip(CWnd* pWnd, CPoint point) {
    if (!pWnd || !pWnd->m_hWnd)
        return FALSE;
    Tool now = ToolAt(*pWnd, point);
    m_impl->End(Impl::Phase::Idle);
    if (!now.IsThere())
        return FALSE;
    m_impl->EnterTool(*pWnd, std::move(now));
    if (m_impl->phase != Impl::Phase::Waiting)
        return FALSE;
    m_impl->point = point;
    m_impl->window.KillTimer(TimerShow);
    m_impl->Show();
    CPoint cursor;
    ::GetCursorPos(&cursor);
    m_impl->restingAt = cursor;
    return IsTipVisible();
}

void CXTPToolTipContext::FilterToolTipMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!pWnd)
        return;
    switch (message) {
    case WM_MOUSEMOVE:
        // The system tells of a move when a window appears, too.
        if (m_impl->IsResting(*pWnd, lParam))
            break;
        // While a button is down the user is busy with what is under it.
        if (wParam & (MK_LBUTTON | MK_MBUTTON | MK_RBUTTON))
            CancelToolTips();
        else
            m_impl->Track(*pWnd, CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))));
        break;
    case WM_MOUSELEAVE:
    case WM_NCMOUSEMOVE:
        m_impl->End(Impl::Phase::Idle);
        break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        CancelToolTips();
        break;
    default:
        break;
    }
}

bool CXTPToolTipContext::Impl::IsResting(const CWnd& hostWindow, LPARAM lParam) const {
    CPoint screen(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
    hostWindow.ClientToScreen(&screen);
    return restingAt && *restingAt == screen;
}

// --- From tool to tool ----------------------------------------------------------------------------------------------

void CXTPToolTipContext::Impl::Track(CWnd& hostWindow, CPoint pt) {
    point = pt;
    Tool now = ToolAt(hostWindow, pt);
    if (!now.IsThere())
        End(Phase::Idle);
    else if (phase != Phase::Idle && host == hostWindow.m_hWnd && now.id == tool.id)
        StayOnTool(std::move(now));
    else
        EnterTool(hostWindow, std::move(now));
}

void CXTPToolTipContext::Impl::StayOnTool(Tool now) {
    const bool isOther = now.text != tool.text;
    tool = std::move(now);
    if (phase == Phase::Waiting) {
        window.SetTimer(TimerShow, static_cast<UINT>(InitialDelay())); // rests anew from here
    } else if (phase == Phase::Shown && isOther) {
        window.ChangeText(tool.text, Appearance());
        window.SetTimer(TimerAutoPop, static_cast<UINT>(AutoPopDelay()));
    }
}

void CXTPToolTipContext::Impl::EnterTool(CWnd& hostWindow, Tool now) {
    const bool wasShown = phase == Phase::Shown;
    End(Phase::Idle);
    if (!window.Ensure(&hostWindow))
        return;
    host = hostWindow.m_hWnd;
    tool = std::move(now);
    phase = Phase::Waiting;
    window.SetTimer(TimerShow, static_cast<UINT>(wasShown ? ReshowDelay() : InitialDelay()));
}

void CXTPToolTipContext::Impl::Show() {
    CWnd* hostWindow = ::IsWindow(host) && ::IsWindowVisible(host) ? CWnd::FromHandlePermanent(host) : nullptr;
    if (!hostWindow) {
        End(Phase::Idle);
        return;
    }
    CPoint screen(point);
    hostWindow->ClientToScreen(&screen);
    phase = Phase::Shown;
    window.ShowAt(screen, tool.text, Appearance());
    window.SetTimer(TimerAutoPop, static_cast<UINT>(AutoPopDelay()));
}

void CXTPToolTipContext::Impl::End(Phase next) {
    if (window.m_hWnd && phase != Phase::Idle) {
        window.KillTimer(TimerShow);
        window.KillTimer(TimerAutoPop);
        window.Hide();
    }
    phase = next;
    restingAt.reset();
    if (next == Phase::Idle) {
        host = nullptr;
        tool = Tool();
    }
}

void CXTPToolTipContext::Impl::OnTipTimer(UINT_PTR timer) {
    window.KillTimer(timer);
    if (timer == TimerShow && phase == Phase::Waiting)
        Show();
    else if (timer == TimerAutoPop && phase == Phase::Shown)
        End(Phase::Dismissed);
}
