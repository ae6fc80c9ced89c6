/// @file
/// CScrollBar: a scroll bar that is a window of its own.
#pragma once

#include "../windows/CWnd.h"

/// A scroll bar that is a window of its own. Adds no data to CWnd: scroll handlers receive it for any scroll bar
/// control, also for one without an object. Its parent hears of its use through CWnd::OnHScroll and CWnd::OnVScroll,
/// and has to set the position.
/// @ingroup framework_controls
class KY_FRAMEWORK_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)
public:
    using CWnd::Create;
    /// A scroll bar, SBS_HORZ or SBS_VERT, at `rect` in client coordinates of `pParentWnd`, which must not be null. Add
    /// WS_VISIBLE and, for controls that take the focus, WS_TABSTOP. FALSE on failure.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /** @{ */
    /// The position. Setting gives the former one.
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    /** @} */
    /** @{ */
    /// The smallest and the greatest position, both included.
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const { ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos); }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    /** @} */
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); } ///< Shows or hides it.
    /// Enables both arrows, one of them or none, by an ESB_ value. FALSE when nothing changed.
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH) { return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags); }
    /** @{ */
    /// What fMask names: range, page, position, position while it is dragged. The structure's size is filled in, and
    /// the mask from `nMask`.
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL) {
        return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
    }
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE) {
        return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
    }
    /** @} */
};
