// CView: a child window of a frame that draws something and receives the frame's commands while it is active.
#pragma once

#include "CFrameWnd.h"

constexpr DWORD AFX_WS_DEFAULT_VIEW = WS_CHILD | WS_VISIBLE | WS_BORDER;

/// A view is deleted with its window (create it with new). A derived class draws in OnDraw.
class KY_FRAMEWORK_API CView : public CWnd {
    DECLARE_DYNAMIC(CView)
public:
    ~CView() override;

    /// Called once, before the view first shows (WM_INITIALUPDATE).
    virtual void OnInitialUpdate();
    /// Prepares the device context, which OnDraw then draws with.
    virtual void OnPrepareDC(CDC* pDC);

protected:
    CView() = default;

    virtual void OnDraw(CDC* pDC) = 0;
    /// The view becomes active or stops being it; an activated view takes the focus.
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);
    /// What is shown may have changed; this one redraws all.
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg LRESULT OnInitialUpdateMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    friend class CFrameWnd;
};
