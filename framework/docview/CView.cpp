// CView.cpp - views.
#include <afxpriv.h>

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_MOUSEACTIVATE()
    ON_MESSAGE(WM_INITIALUPDATE, &CView::OnInitialUpdateMessage)
END_MESSAGE_MAP()

CView::~CView() = default;

BOOL CView::PreCreateWindow(CREATESTRUCT& cs) {
    // The border that a view asks for is the sunken edge.
    if ((cs.style & WS_BORDER) != 0) {
        cs.style &= ~WS_BORDER;
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
    }
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return CWnd::PreCreateWindow(cs);
}

void CView::OnDestroy() {
    CFrameWnd* const frame = GetParentFrame();
    if (frame != nullptr && frame->GetActiveView() == this)
        frame->SetActiveView(nullptr);
    CWnd::OnDestroy();
}

void CView::PostNcDestroy() { delete this; }

void CView::OnInitialUpdate() { OnUpdate(nullptr, 0, nullptr); }
void CView::OnUpdate(CView*, LPARAM, CObject*) { Invalidate(TRUE); }
void CView::OnPrepareDC(CDC*) {}

LRESULT CView::OnInitialUpdateMessage(WPARAM, LPARAM) {
    OnInitialUpdate();
    return 0;
}

void CView::OnPaint() {
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

void CView::OnActivateView(BOOL bActivate, CView* pActivateView, CView*) {
    if (bActivate && pActivateView == this && IsWindowVisible() && ::GetFocus() != m_hWnd)
        SetFocus();
}

int CView::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    const int result = CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    CFrameWnd* const frame = GetParentFrame();
    if (result == MA_NOACTIVATE || result == MA_NOACTIVATEANDEAT || frame == nullptr)
        return result;
    if (frame->GetActiveView() != this)
        frame->SetActiveView(this);
    else
        OnActivateView(TRUE, this, this); // takes the focus back
    return result;
}
