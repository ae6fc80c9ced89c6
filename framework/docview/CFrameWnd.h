// CFrameWnd: a top-level window with a menu, accelerators, control bars and one view or pane between them.
#pragma once

#include "../include/afxres.h"
#include "../windows/CWnd.h"
#include "CCreateContext.h"

class CControlBar;
class CView;

// Styles of frames, beside those of windows; a frame that shows a document heeds them when it sets its title.
constexpr DWORD FWS_ADDTOTITLE = 0x8000;  // the title names the document
constexpr DWORD FWS_PREFIXTITLE = 0x4000; // the document comes before the application
constexpr DWORD FWS_SNAPTOBARS = 0x2000;

/// A frame owns its window and is deleted with it (create it with new), and lays out its children: control bars (ids
/// AFX_IDW_CONTROLBAR_FIRST to _LAST) take their sides, the pane AFX_IDW_PANE_FIRST the rest.
///
/// Commands go to the active view, then the frame, then the application. Before a popup menu shows, each of its items
/// is updated the same way; items whose command nobody handles are disabled while m_bAutoMenuEnable is set.
class KY_FRAMEWORK_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
public:
    static const CRect rectDefault; ///< Lets the system choose size and position.

    CFrameWnd();
    ~CFrameWnd() override;

    BOOL m_bAutoMenuEnable = TRUE;
    HACCEL m_hAccelTable = nullptr;

    using CWnd::Create;
    /// `lpszMenuName` is a menu resource; null for none.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                        DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    /// Creates the window with the menu, accelerators, icon and title string that share the resource id.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);

    /// Creates a view of the context's class as a child; null on failure.
    CWnd* CreateView(CCreateContext* pContext, UINT nID = AFX_IDW_PANE_FIRST);
    CView* GetActiveView() const { return m_pViewActive; }
    /// Tells the views (unless `bNotify` is FALSE) and makes commands go to the new one; null for none.
    void SetActiveView(CView* pViewNew, BOOL bNotify = TRUE);
    virtual CFrameWnd* GetActiveFrame() { return this; }

    /// Lays the children out anew.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    virtual void ActivateFrame(int nCmdShow = -1);
    /// Tells all descendants WM_INITIALUPDATE, activates the first view if none is, and shows the frame.
    void InitialUpdateFrame(class CDocument* pDoc, BOOL bMakeVisible);

    /// The status bar that shows messages: the child AFX_IDW_STATUS_BAR.
    virtual CWnd* GetMessageBar();
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    /// The message of a command: the first line of its string resource.
    virtual void GetMessageString(UINT nID, CString& rMessage) const;
    CControlBar* GetControlBar(UINT nID);
    /// Shows or hides a bar and lays out again.
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);

    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;
    /// Creates what fills the frame; this one creates the context's view.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    /// wParam a string id or 0, lParam a text or 0: shows it in the message bar; returns the id shown before.
    afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPopMessageString(WPARAM wParam, LPARAM lParam);
    afx_msg void OnUpdateControlBarMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnBarCheck(UINT nID);
    afx_msg void OnUpdateKeyIndicator(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

    CString m_strTitle;
    CRect m_rectBorder{0, 0, 0, 0}; ///< Space that the layout leaves free at each side.
    UINT m_nIDLastMessage = 0;      ///< The string whose message shows.
    CView* m_pViewActive = nullptr;
    BOOL m_bInRecalcLayout = FALSE;

    friend class CView;
};
