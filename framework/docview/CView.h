/// @file
/// CView: a child window of a frame that draws something and receives the frame's commands while it is active.
#pragma once

#include "CFrameWnd.h"

/// The styles of a view that a frame creates; the border is drawn as the sunken edge.
/// @ingroup framework_frames
constexpr DWORD AFX_WS_DEFAULT_VIEW = WS_CHILD | WS_VISIBLE | WS_BORDER;

/// A view is deleted with its window (create it with new). A derived class draws in OnDraw.
/// @ingroup framework_frames
class KY_FRAMEWORK_API CView : public CWnd {
    DECLARE_DYNAMIC(CView)
public:
    ~CView() override; ///< Comes with the window's end.

    /// Called once, before the view first shows (WM_INITIALUPDATE). This one calls OnUpdate.
    virtual void OnInitialUpdate();
    /// Prepares the device context, which OnDraw then draws with: the place to scroll or to set a mapping mode. This
    /// one leaves it as it is.
    virtual void OnPrepareDC(CDC* pDC);

protected:
    CView() = default; ///< For derived classes only.

    /// Draws the view, in logical units; called by OnPaint, clipped to what needs painting.
    virtual void OnDraw(CDC* pDC) = 0;
    /// The view becomes active or stops being it; an activated view takes the focus.
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);
    /// What is shown may have changed; this one redraws all. `lHint` and `pHint` mean what the sender and the view
    /// agree on; all three may be null.
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);

    /// Turns WS_BORDER into the sunken edge and fills in a window class with the system's window colour when there is
    /// none.
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    /// Deletes the view.
    void PostNcDestroy() override;

    /// Is no longer the frame's active view.
    afx_msg void OnDestroy();
    /// Calls OnPrepareDC and OnDraw.
    afx_msg void OnPaint();
    /// A click makes the view the frame's active one.
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    /// WM_INITIALUPDATE: calls OnInitialUpdate.
    afx_msg LRESULT OnInitialUpdateMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    friend class CFrameWnd;
};
