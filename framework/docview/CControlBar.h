/// @file
/// CControlBar: a child of a frame that takes a strip of one of its sides.
#pragma once

#include "../windows/CWnd.h"

class CFrameWnd;

// Styles of control bars
/// Bar style: the frame does not lay the bar out.
constexpr DWORD CBRS_NOALIGN = 0x0000;
/** @{ */
/// Bar style: the side of the frame along which the bar stands; ANY is the mask of these.
constexpr DWORD CBRS_ALIGN_LEFT = 0x1000;
constexpr DWORD CBRS_ALIGN_TOP = 0x2000;
constexpr DWORD CBRS_ALIGN_RIGHT = 0x4000;
constexpr DWORD CBRS_ALIGN_BOTTOM = 0x8000;
constexpr DWORD CBRS_ALIGN_ANY = 0xF000;
/** @} */
/** @{ */
/// Bar style: the side of the bar that has a line; ANY is the mask of these.
constexpr DWORD CBRS_BORDER_LEFT = 0x0100;
constexpr DWORD CBRS_BORDER_TOP = 0x0200;
constexpr DWORD CBRS_BORDER_RIGHT = 0x0400;
constexpr DWORD CBRS_BORDER_BOTTOM = 0x0800;
constexpr DWORD CBRS_BORDER_ANY = 0x0F00;
/** @} */
/** @{ */
/// Bar style: stands along that side of the frame, with a line towards the middle.
constexpr DWORD CBRS_LEFT = CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT;
constexpr DWORD CBRS_TOP = CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM;
constexpr DWORD CBRS_RIGHT = CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT;
constexpr DWORD CBRS_BOTTOM = CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP;
/** @} */
/// The mask of all bar styles.
constexpr DWORD CBRS_ALL = 0x0040FFFF;

/// What the layout sends around with WM_SIZEPARENT: each control bar places itself along one side of `rect` and takes
/// its own strip off it.
/// @ingroup framework_frames
struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;      ///< Positions gathered so far; null when only the sizes are asked for.
    RECT rect;      ///< What is left, in client coordinates of the parent.
    SIZE sizeTotal; ///< How much the bars took.
    BOOL bStretch;  ///< Bars fill their side.
};

/// A bar that a frame lays out along one of its edges before the view gets the rest. `<afxext.h>`.
///
/// Derived classes make the window, give the bar its style with SetBarStyle and say how large it is and how its items
/// follow their commands. The object is usually a member of the frame's class and must live as long as its window.
/// @ingroup framework_frames
class KY_FRAMEWORK_API CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)
public:
    BOOL m_bAutoDelete = FALSE; ///< The object is deleted with its window.

    DWORD GetBarStyle() const { return m_dwStyle; } ///< CBRS_ styles.
    /// Sets the CBRS_ styles; they count from the next layout on (CFrameWnd::RecalcLayout).
    void SetBarStyle(DWORD dwStyle);
    /// The bar itself is shown; its frame may be hidden. FALSE without a window.
    BOOL IsVisible() const;
    /// The frame around the bar; null when there is none.
    CFrameWnd* GetDockingFrame() const { return GetParentFrame(); }
    /// The size that the bar wants along a horizontal side or a vertical one, in pixels; a stretched side is 32767,
    /// meaning all there is. This one wants nothing across.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    /// Brings the bar's items up to date, at idle time while it is visible: each as a command of `pTarget`.
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

protected:
    CControlBar() = default; ///< For derived classes only.

    /// Adds WS_CLIPSIBLINGS.
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    /// Deletes the object when m_bAutoDelete is set.
    void PostNcDestroy() override;

    /// WM_SIZEPARENT: takes the bar's strip, see AFX_SIZEPARENTPARAMS.
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    /** @{ */
    /// WM_IDLEUPDATECMDUI and WM_INITIALUPDATE: calls OnUpdateCmdUI with the owner, when that is a frame, else with the
    /// frame around the bar.
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInitialUpdate(WPARAM wParam, LPARAM lParam);
    /** @} */
    DECLARE_MESSAGE_MAP()

    DWORD m_dwStyle = 0; ///< CBRS_ styles.
};
