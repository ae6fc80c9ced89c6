/// @file
/// Tool tips of a window: how they look and when they show.
#pragma once

#include "Export.h"
#include "XTPThemes.h"

#include <afxwin.h>

#include <memory>

/// Shows the tool tip of whatever tool a window's `OnToolHitTest` reports under the pointer. Owned by that window.
/// The tip's own window is made when the first tip shows.
/// @ingroup toolkit_common
class KY_TOOLKIT_API CXTPToolTipContext : public CCmdTarget {
public:
    CXTPToolTipContext();
    ~CXTPToolTipContext() override;

    /// xtpToolTipStandard at first.
    XTPToolTipStyle GetStyle() const { return m_style; }
    /// A tip that is shown takes the look at once. Styles without a look of their own look as xtpToolTipStandard.
    void SetStyle(XTPToolTipStyle style);
    /// Pixels; longer texts wrap. −1: one line, however long.
    int GetMaxTipWidth() const { return m_nMaxTipWidth; }
    void SetMaxTipWidth(int nWidth) { m_nMaxTipWidth = nWidth; } ///< for the next tip
    /// Space between the border and the text, pixels; each side of `lprc` is that of its edge. Null changes nothing.
    void SetMargin(LPCRECT lprc);
    CRect GetMargin() const { return m_rcMargin; } ///< 6 and 3 pixels at first, at 96 DPI
    /// Milliseconds; TTDT_INITIAL, TTDT_RESHOW or TTDT_AUTOPOP. −1 restores the system's time.
    void SetDelayTime(DWORD dwType, int nTime);

    /// For `OnToolHitTest`: fills `pTI` with a tool. Each of the texts that is not empty stands in lines of its own:
    /// the title, the tip, the description. Without any of them the tool shows no tip.
    /// @param pTI            filled; its text is allocated with malloc, for the caller to free. Null does nothing
    /// @param hWnd           the window that has the tool
    /// @param rect           the tool's place, client coordinates
    /// @param nHit           the tool's number
    /// @param strTip         what it says
    /// @param strTitle       above it
    /// @param strDescription below it
    static void FillInToolInfo(TOOLINFO* pTI, HWND hWnd, const CRect& rect, INT_PTR nHit, const CString& strTip,
                               const CString& strTitle = CString(), const CString& strDescription = CString());

    /// Looks at a message of `pWnd` before it is dispatched: mouse moves ask `pWnd->OnToolHitTest` and start, move or
    /// end the tip; presses, keys and wheel end it.
    void FilterToolTipMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam);
    /// Shows the tip of the tool at the point (client coordinates of `pWnd`) at once, as keys ask for it; it stays as
    /// long as the mouse rests. Returns FALSE when there is no tool with a text.
    BOOL ShowToolTip(CWnd* pWnd, CPoint point);
    /// Hides the tip that is shown, if any.
    void CancelToolTips();
    BOOL IsTipVisible() const;  ///< not while a tip still waits for the pointer to rest
    CString GetTipText() const; ///< of the tip that is shown; empty if none
    CWnd* GetTipWindow() const; ///< the tip's window, null before the first tip

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
    XTPToolTipStyle m_style = xtpToolTipStandard;
    int m_nMaxTipWidth = -1;
    CRect m_rcMargin;
};
