// CStatusBar: the message line and indicator panes at the bottom of a frame.
#pragma once

#include <commctrl.h>
#include <vector>

#include "../include/afxres.h"
#include "CControlBar.h"

// Styles of panes.
constexpr UINT SBPS_NORMAL = 0x0000;
constexpr UINT SBPS_NOBORDERS = SBT_NOBORDERS;
constexpr UINT SBPS_POPOUT = SBT_POPOUT;
constexpr UINT SBPS_OWNERDRAW = SBT_OWNERDRAW;
constexpr UINT SBPS_DISABLED = 0x04000000; // shows no text
constexpr UINT SBPS_STRETCH = 0x08000000;  // takes the width that the others leave

/// A row of panes, numbered from the left. Each pane but a stretching one has a fixed width, at first that of its
/// indicator's text. A pane is updated as a command of its id, so an update handler can set its text and enable it.
class KY_FRAMEWORK_API CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)
public:
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT nID = AFX_IDW_STATUS_BAR);
    /// `dwCtrlStyle` goes to the common control; SBARS_SIZEGRIP also follows from a parent that can be sized.
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                          UINT nID = AFX_IDW_STATUS_BAR);
    using CWnd::Create;
    using CWnd::CreateEx;

    /// One pane per id, with the text of the string resource of that id. ID_SEPARATOR makes a pane without one; the
    /// first of these, at position 0, stretches. Null ids: `nIDCount` empty panes.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);

    int GetCount() const { return static_cast<int>(m_panes.size()); }
    /// -1 when no pane has the id.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    /// Client coordinates of the bar.
    void GetItemRect(int nIndex, LPRECT lpRect) const;

    CString GetPaneText(int nIndex) const;
    void GetPaneText(int nIndex, CString& rString) const { rString = GetPaneText(nIndex); }
    /// FALSE for an index out of range. With `bUpdate` FALSE the text shows with the next change of the pane's style.
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    /// Widths are of the text area, in pixels.
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    /// Draws a pane of the style SBPS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTextLength(WPARAM wParam, LPARAM lParam);
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
};
