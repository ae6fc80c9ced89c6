// CControlBar: a child of a frame that takes a strip of one of its sides.
#pragma once

#include "../windows/CWnd.h"

class CFrameWnd;

// Styles of control bars: where they stand, which borders they draw, what they do.
constexpr DWORD CBRS_NOALIGN = 0x0000;
constexpr DWORD CBRS_ALIGN_LEFT = 0x1000;
constexpr DWORD CBRS_ALIGN_TOP = 0x2000;
constexpr DWORD CBRS_ALIGN_RIGHT = 0x4000;
constexpr DWORD CBRS_ALIGN_BOTTOM = 0x8000;
constexpr DWORD CBRS_ALIGN_ANY = 0xF000;
constexpr DWORD CBRS_BORDER_LEFT = 0x0100;
constexpr DWORD CBRS_BORDER_TOP = 0x0200;
constexpr DWORD CBRS_BORDER_RIGHT = 0x0400;
constexpr DWORD CBRS_BORDER_BOTTOM = 0x0800;
constexpr DWORD CBRS_BORDER_ANY = 0x0F00;
constexpr DWORD CBRS_LEFT = CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT;
constexpr DWORD CBRS_TOP = CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM;
constexpr DWORD CBRS_RIGHT = CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT;
constexpr DWORD CBRS_BOTTOM = CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP;
constexpr DWORD CBRS_ALL = 0x0040FFFF;

/// What the layout sends around with WM_SIZEPARENT: each control bar places itself along one side of `rect` and takes
/// its own strip off it.
struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;      ///< Positions gathered so far; null when only the sizes are asked for.
    RECT rect;      ///< What is left, in client coordinates of the parent.
    SIZE sizeTotal; ///< How much the bars took.
    BOOL bStretch;  ///< Bars fill their side.
};

/// A bar that a frame lays out along one of its edges before the view gets the rest.
class KY_FRAMEWORK_API CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)
public:
    BOOL m_bAutoDelete = FALSE; ///< The object is deleted with its window.

    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD dwStyle);
    BOOL IsVisible() const;
    CFrameWnd* GetDockingFrame() const { return GetParentFrame(); }
    /// The size that the bar wants, in pixels; a stretched side is 32767.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    /// Brings the bar's items up to date, at idle time while it is visible.
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

protected:
    CControlBar() = default;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInitialUpdate(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    DWORD m_dwStyle = 0;
};
