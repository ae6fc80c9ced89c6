/// @file
/// CMDIFrameWnd and CMDIChildWnd: a frame that holds several document windows, and one of those.
#pragma once

#include "CFrameWnd.h"

class CMDIChildWnd;

/// The frame of a program with several documents. Its pane is the system's MDI client window, which holds the children.
/// Commands go to the active child first, then to the frame as in any frame.
/// @ingroup framework_frames
class KY_FRAMEWORK_API CMDIFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWnd)
public:
    HWND m_hWndMDIClient = nullptr; ///< Null until the frame is created.

    /// The active child and, when asked for, whether it is maximized; null when there is none.
    CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = nullptr) const;
    /** @{ */
    /// Activates, maximizes or restores a child, which must not be null.
    void MDIActivate(CWnd* pWndActivate) { SendToClient(WM_MDIACTIVATE, pWndActivate); }
    void MDIMaximize(CWnd* pWnd) { SendToClient(WM_MDIMAXIMIZE, pWnd); }
    void MDIRestore(CWnd* pWnd) { SendToClient(WM_MDIRESTORE, pWnd); }
    /** @} */
    /** @{ */
    /// Activates the next child, or the one before the active.
    void MDINext() { SendToClient(WM_MDINEXT, nullptr); }
    void MDIPrev() { ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, TRUE); }
    /** @} */
    /// Arranges the children side by side: MDITILE_HORIZONTAL one above the other, MDITILE_VERTICAL one beside the
    /// other.
    void MDITile(int nType) { ::SendMessage(m_hWndMDIClient, WM_MDITILE, static_cast<WPARAM>(nType), 0); }
    /// Arranges the children one over the other, each with its caption in view.
    void MDICascade() { ::SendMessage(m_hWndMDIClient, WM_MDICASCADE, 0, 0); }
    /// Shows another menu in the frame; the list of open children goes to the end of `pWindowMenu`. Null menus leave
    /// what is there. Returns the menu shown before, as a temporary object at most. Call DrawMenuBar afterwards.
    CMenu* MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu);

    /// The active child; the frame itself when there is none.
    CFrameWnd* GetActiveFrame() override;
    /// Creates the MDI client as the frame's pane. `pWindowMenu` gets the list of open children; null for no list.
    /// FALSE on failure.
    virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);

    /// Keys of the accelerator table, then those of MDI windows (Ctrl+F4, Ctrl+F6).
    BOOL PreTranslateMessage(MSG* pMsg) override;
    /// Offers the command to the active child before the frame.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /// Creates the MDI client; the list of open children goes to the popup that has a command from ID_WINDOW_NEW to
    /// ID_WINDOW_SPLIT.
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override;
    /// Leaves the system's own commands, the list of children among them, to the default.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    /// The system's default for MDI frames.
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Lays out, unless the frame is minimized.
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void SendToClient(UINT message, const CWnd* pWnd) {
        ::SendMessage(m_hWndMDIClient, message, reinterpret_cast<WPARAM>(pWnd != nullptr ? pWnd->m_hWnd : nullptr), 0);
    }
};

/// A document window inside an MDI frame. Deleted with its window; create it with new.
/// @ingroup framework_frames
class KY_FRAMEWORK_API CMDIChildWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIChildWnd)
public:
    using CWnd::Create;
    /// A child of `pParentWnd`, of the main window when that is null; `rect` in the MDI client's coordinates. It comes
    /// up active. FALSE when that is no MDI frame, or on failure; the object has been deleted then.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                        CMDIFrameWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);

    /// The frame around the child; null before creation.
    CMDIFrameWnd* GetMDIFrame() const;
    /// As DestroyWindow.
    void MDIDestroy() { DestroyWindow(); }
    /// Destroys the window, and with it the object; the next child becomes active. FALSE when there was no window.
    BOOL DestroyWindow() override;
    /** @{ */
    /// Activates, maximizes or restores this child, whose window must exist.
    void MDIActivate() { GetMDIFrame()->MDIActivate(this); }
    void MDIMaximize() { GetMDIFrame()->MDIMaximize(this); }
    void MDIRestore() { GetMDIFrame()->MDIRestore(this); }
    /** @} */
    /// As in any frame, and makes the child the active one.
    void ActivateFrame(int nCmdShow = -1) override;

protected:
    /// As in any frame, and adds WS_CHILD.
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    /// The system's default for MDI children.
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// As in any frame; the parameter is taken out of what the MDI client wrapped around it.
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()
};
