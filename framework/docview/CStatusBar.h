/// @file
/// CStatusBar: the message line and indicator panes at the bottom of a frame.
#pragma once

#include "../gdi/CFont.h"
#include "../include/afxres.h"
#include "CControlBar.h"

#include <commctrl.h>
#include <vector>

/// Pane style: a sunken border.
constexpr UINT SBPS_NORMAL = 0x0000;
/// Pane style: no border.
constexpr UINT SBPS_NOBORDERS = SBT_NOBORDERS;
/// Pane style: a raised border, as of a checked command.
constexpr UINT SBPS_POPOUT = SBT_POPOUT;
/// Pane style: CStatusBar::DrawItem draws it.
constexpr UINT SBPS_OWNERDRAW = SBT_OWNERDRAW;
/// Pane style: shows no text, as of a disabled command.
constexpr UINT SBPS_DISABLED = 0x04000000; // shows no text
/// Pane style: takes the width that the others leave; several share it.
constexpr UINT SBPS_STRETCH = 0x08000000; // takes the width that the others leave

/// A row of panes, numbered from the left. Each pane but a stretching one has a fixed width, at first that of its
/// indicator's text. A pane is updated as a command of its id, so an update handler can set its text and enable it.
/// `<afxext.h>`.
///
/// Indices out of range are harmless: nothing is changed, and what is asked for is empty or 0.
/// @ingroup framework_frames
class KY_FRAMEWORK_API CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)
public:
    /// A bar without panes yet, as a child of the frame; `dwStyle` joins WS_ and CBRS_ styles. FALSE on failure.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT nID = AFX_IDW_STATUS_BAR);
    /// As Create; `dwCtrlStyle` goes to the common control. SBARS_SIZEGRIP also follows from a parent that can be
    /// sized.
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                          UINT nID = AFX_IDW_STATUS_BAR);
    using CWnd::Create;
    using CWnd::CreateEx;

    /// One pane per id, with the text of the string resource of that id. ID_SEPARATOR makes a pane without one; the
    /// first of these, at position 0, stretches. Null ids: `nIDCount` empty panes. FALSE without a window or a count,
    /// and when a string is missing, whose pane is there nevertheless, without a width.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);

    int GetCount() const { return static_cast<int>(m_panes.size()); } ///< The number of panes.
    /// The pane with that id; -1 when no pane has it.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const; ///< ID_SEPARATOR (0) for a pane without one.
    /// Client coordinates of the bar; an empty rectangle when there is no such pane.
    void GetItemRect(int nIndex, LPRECT lpRect) const;

    /** @{ */
    /// The text that was set, also while the pane is disabled and does not show it.
    CString GetPaneText(int nIndex) const;
    void GetPaneText(int nIndex, CString& rString) const { rString = GetPaneText(nIndex); }
    /** @} */
    /// FALSE for an index out of range. A null text is an empty one. With `bUpdate` FALSE the text shows with the next
    /// change of the pane's style.
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    /** @{ */
    /// The pane's SBPS_ styles, joined. A change shows at once.
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    /** @} */
    /** @{ */
    /// Id, SBPS_ styles and width of a pane at once. Widths are of the text area, in pixels; that of a stretching pane
    /// does not count.
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    /** @} */

    /// A line of the bar's font with the control's borders around it, in pixels.
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    /// Updates each pane as a command of its id, by the bar's own handlers first, then along the route of `pTarget`;
    /// then controls on the bar.
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    /// Calls DrawItem when the control asks its parent to draw a pane.
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    /// Draws a pane of the style SBPS_OWNERDRAW: itemID is its index, rcItem in client coordinates. Such bars override
    /// it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    /// Lays the panes out for the new width.
    afx_msg void OnSize(UINT nType, int cx, int cy);
    /** @{ */
    /// The window's text is that of the first pane.
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTextLength(WPARAM wParam, LPARAM lParam);
    /** @} */
    /// A monitor of another resolution: the bar takes the system's font for it. The widths of panes are the owner's.
    afx_msg LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct Pane {
        UINT id = 0;
        int width = 0; // of the text, in pixels
        UINT style = 0;
        CString text;
    };

    bool IsPane(int index) const { return index >= 0 && index < GetCount(); }
    void ShowPane(int index);
    void LayOutPanes();
    int TextWidth(const CString& text) const;

    std::vector<Pane> m_panes;
    CFont m_font; // after a change of the resolution; the control's own before
};
