/// @file
/// CFrameWnd: a top-level window with a menu, accelerators, control bars and one view or pane between them.
#pragma once

#include "../include/afxres.h"
#include "../windows/CWnd.h"
#include "CCreateContext.h"

class CControlBar;
class CView;

/** @{ */
/// Style of a frame, beside those of windows: whether its title names the document, whether the document comes first,
/// whether it is as large as its bars. Without meaning to the window itself; a frame that shows a document heeds them
/// when it sets its title.
constexpr DWORD FWS_ADDTOTITLE = 0x8000;  // the title names the document
constexpr DWORD FWS_PREFIXTITLE = 0x4000; // the document comes before the application
constexpr DWORD FWS_SNAPTOBARS = 0x2000;
/** @} */

/// A frame owns its window and is deleted with it (create it with new), and lays out its children: control bars (ids
/// AFX_IDW_CONTROLBAR_FIRST to _LAST) take their sides, the pane AFX_IDW_PANE_FIRST the rest.
///
/// Commands go to the active view, then the frame, then the application. Before a popup menu shows, each of its items
/// is updated the same way; items whose command nobody handles are disabled while m_bAutoMenuEnable is set.
/// @ingroup framework_frames
class KY_FRAMEWORK_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
public:
    static const CRect rectDefault; ///< Lets the system choose size and position.

    CFrameWnd();           ///< Without a window; create it with new.
    ~CFrameWnd() override; ///< Comes with the window's end.

    BOOL m_bAutoMenuEnable = TRUE;  ///< Menu items without a handler are disabled.
    HACCEL m_hAccelTable = nullptr; ///< Null for none; not freed by the frame.

    using CWnd::Create;
    /// A window at `rect` in screen coordinates, with `lpszWindowName` as title. Null class: the framework's own.
    /// `lpszMenuName` is a menu resource; null for none. FALSE on failure, also when there is no such menu; the frame
    /// has been deleted then.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                        DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    /// Creates the window with the menu, accelerators, icon and title string that share the resource id; each may be
    /// missing. FALSE on failure; the frame has been deleted then.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);
    /// Keys for commands, from an accelerator resource; m_hAccelTable. FALSE, and none, when there is no such resource.
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);

    /// Creates a view of the context's class as a child, the frame's pane. Null on failure, or when the class is no
    /// window's.
    CWnd* CreateView(CCreateContext* pContext, UINT nID = AFX_IDW_PANE_FIRST);
    /// The view that commands go to; null when there is none.
    CView* GetActiveView() const { return m_pViewActive; }
    /// Tells the views (unless `bNotify` is FALSE) and makes commands go to the new one; null for none.
    void SetActiveView(CView* pViewNew, BOOL bNotify = TRUE);
    /// The frame that the user works in: the active child of an MDI frame, else this one.
    virtual CFrameWnd* GetActiveFrame() { return this; }

    /// Lays the control bars and the pane out anew. A call from within does nothing.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    /// Brings the frame to the top and shows it by the SW_ value; with -1 as it is, restored when it is minimized,
    /// shown when it is hidden.
    virtual void ActivateFrame(int nCmdShow = -1);
    /// Makes the child AFX_IDW_PANE_FIRST the active view if none is and, with `bMakeVisible`, tells all descendants
    /// WM_INITIALUPDATE and shows the frame. `pDoc` is not used.
    void InitialUpdateFrame(class CDocument* pDoc, BOOL bMakeVisible);

    /// The window that shows messages: the descendant AFX_IDW_STATUS_BAR; null when there is none.
    virtual CWnd* GetMessageBar();
    /** @{ */
    /// Shows a text, or the message of a command, in the message bar until another comes.
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    /** @} */
    /// The message of a command: the first line of its string resource, empty when there is none.
    virtual void GetMessageString(UINT nID, CString& rMessage) const;
    /// The control bar with that id among the children; null when there is none.
    CControlBar* GetControlBar(UINT nID);
    /// Shows or hides a bar and lays out again, at once even with `bDelay`.
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);

    CString GetTitle() const { return m_strTitle; }              ///< The frame's own title, without a document's name.
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; } ///< Does not change the caption.

    /// Turns keys of the accelerator table into commands.
    BOOL PreTranslateMessage(MSG* pMsg) override;
    /// Offers the command to the active view, the frame and the application, in this order.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /// Fills in a window class with the system's window colour and program icon when there is none, and removes the
    /// FWS_ styles.
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    /// Deletes the frame. An override of a frame that is a member of something else, or on the stack, does not call it.
    void PostNcDestroy() override;
    /// Called while the window is created: makes what fills the frame; this one creates the context's view, if that
    /// names a class. FALSE gives the window up.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);

    /// Calls OnCreateClient and lays out; -1 when that failed.
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    /// No view is active any more.
    afx_msg void OnDestroy();
    /// Destroys the frame; an override that wants to ask the user does so first.
    afx_msg void OnClose();
    /// Lays out, unless the frame is minimized.
    afx_msg void OnSize(UINT nType, int cx, int cy);
    /// Tells the active view.
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    /// Hands the focus to the active view.
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    /// Updates each item of the popup as a command.
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    /// Shows the message of the item in the message bar, the idle message when the menu closes.
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    /// Erases nothing when a pane covers the frame.
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    /// WM_DPICHANGED: the frame has come to a monitor of another resolution. Tells the descendants, takes the place
    /// that the system suggests (lParam, a RECT; null in a frame inside another) and lays out.
    afx_msg LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);
    /// WM_SETMESSAGESTRING: wParam a string id or 0, lParam a text or 0: shows it in the message bar; returns the id
    /// shown before.
    afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);
    /// WM_POPMESSAGESTRING: as OnSetMessageString.
    afx_msg LRESULT OnPopMessageString(WPARAM wParam, LPARAM lParam);
    /** @{ */
    /// The commands ID_VIEW_TOOLBAR and ID_VIEW_STATUS_BAR: checked while the bar of that id shows; choosing one shows
    /// or hides it. Without such a bar the command goes on along its route.
    afx_msg void OnUpdateControlBarMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnBarCheck(UINT nID);
    /** @} */
    /// The panes ID_INDICATOR_CAPS, _NUM and _SCRL: enabled while their key is locked.
    afx_msg void OnUpdateKeyIndicator(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

    CString m_strTitle; ///< See GetTitle.
    /// Space that the layout leaves free at each side, in pixels.
    CRect m_rectBorder{0, 0, 0, 0};
    /// The string whose message shows; 0 for a text of its own.
    UINT m_nIDLastMessage = 0;
    CView* m_pViewActive = nullptr; ///< See GetActiveView; not owned.
    BOOL m_bInRecalcLayout = FALSE; ///< RecalcLayout is running.

    friend class CView;
};
