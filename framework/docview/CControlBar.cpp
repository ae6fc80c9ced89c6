// CControlBar.cpp - how a control bar takes its strip of the parent.
#include <afxext.h>
#include <afxpriv.h>

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
    ON_MESSAGE(WM_INITIALUPDATE, &CControlBar::OnInitialUpdate)
END_MESSAGE_MAP()

void CControlBar::PostNcDestroy() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs) {
    // The bar styles are no window styles; they share the low bits, which are the control's own.
    cs.style = static_cast<LONG>(static_cast<DWORD>(cs.style) | WS_CLIPSIBLINGS);
    return CWnd::PreCreateWindow(cs);
}

void CControlBar::SetBarStyle(DWORD dwStyle) { m_dwStyle = dwStyle; }
BOOL CControlBar::IsVisible() const { return m_hWnd != nullptr && (GetStyle() & WS_VISIBLE) != 0; }

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    constexpr int fullSide = 32767;
    return CSize(bStretch && bHorz ? fullSide : 0, bStretch && !bHorz ? fullSide : 0);
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const DWORD side = m_dwStyle & CBRS_ALIGN_ANY;
    if (!IsVisible() || side == 0)
        return 0;

    const bool horizontal = side == CBRS_ALIGN_TOP || side == CBRS_ALIGN_BOTTOM;
    const CRect left(layout.rect);
    CSize size = CalcFixedLayout(layout.bStretch, horizontal);
    size.cx = std::min<int>(size.cx, left.Width());
    size.cy = std::min<int>(size.cy, left.Height());

    CRect bar(left.TopLeft(), size);
    if (horizontal) {
        layout.sizeTotal.cy += size.cy;
        layout.sizeTotal.cx = std::max(layout.sizeTotal.cx, size.cx);
        if (side == CBRS_ALIGN_TOP)
            layout.rect.top += size.cy;
        else
            bar.MoveToY(layout.rect.bottom -= size.cy);
    } else {
        layout.sizeTotal.cx += size.cx;
        layout.sizeTotal.cy = std::max(layout.sizeTotal.cy, size.cy);
        if (side == CBRS_ALIGN_LEFT)
            layout.rect.left += size.cx;
        else
            bar.MoveToX(layout.rect.right -= size.cx);
    }
    if (layout.hDWP != nullptr)
        layout.hDWP = ::DeferWindowPos(layout.hDWP, m_hWnd, nullptr, bar.left, bar.top, bar.Width(), bar.Height(),
                                       SWP_NOACTIVATE | SWP_NOZORDER);
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    if (!IsVisible())
        return 0;
    CFrameWnd* target = dynamic_cast<CFrameWnd*>(GetOwner());
    if (target == nullptr)
        target = GetParentFrame();
    if (target != nullptr)
        OnUpdateCmdUI(target, static_cast<BOOL>(wParam));
    return 0;
}

LRESULT CControlBar::OnInitialUpdate(WPARAM, LPARAM) { return OnIdleUpdateCmdUI(TRUE, 0); }
