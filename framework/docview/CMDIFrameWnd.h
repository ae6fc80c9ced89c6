// CMDIFrameWnd and CMDIChildWnd: a frame that holds several document windows, and one of those.
#pragma once

#include "CFrameWnd.h"

class CMDIChildWnd;

/// The frame of a program with several documents. Its pane is the system's MDI client window, which holds the children.
/// Commands go to the active child first, then to the frame as in any frame.
class KY_FRAMEWORK_API CMDIFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWnd)
public:
    HWND m_hWndMDIClient = nullptr; ///< Null until the frame is created.

    /// The active child and, when asked for, whether it is maximized; null when there is none.
    CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = nullptr) const;
    void MDIActivate(CWnd* pWndActivate) { SendToClient(WM_MDIACTIVATE, pWndActivate); }
    void MDIMaximize(CWnd* pWnd) { SendToClient(WM_MDIMAXIMIZE, pWnd); }
    void MDIRestore(CWnd* pWnd) { SendToClient(WM_MDIRESTORE, pWnd); }
    /// Activates the next child, or the one before the active.
    void MDINext() { SendToClient(WM_MDINEXT, nullptr); }
    void MDIPrev() { ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, TRUE); }
    void MDITile(int nType) { ::SendMessage(m_hWndMDIClient, WM_MDITILE, static_cast<WPARAM>(nType), 0); }
    void MDICascade() { ::SendMessage(m_hWndMDIClient, WM_MDICASCADE, 0, 0); }
    /// Shows another menu in the frame; the list of open children goes to the end of `pWindowMenu`. Null menus leave
    /// what is there. Returns the menu shown before.
    CMenu* MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu);

    CFrameWnd* GetActiveFrame() override;
    /// Creates the MDI client as the frame's pane. `pWindowMenu` gets the list of open children; null for no list.
    virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void SendToClient(UINT message, const CWnd* pWnd) {
        ::SendMessage(m_hWndMDIClient, message, reinterpret_cast<WPARAM>(pWnd != nullptr ? pWnd->m_hWnd : nullptr), 0);
    }
};

/// A document window inside an MDI frame. Deleted with its window; create it with new.
class KY_FRAMEWORK_API CMDIChildWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIChildWnd)
public:
    using CWnd::Create;
    /// A child of `pParentWnd`, of the main window when that is null. It comes up active. FALSE when that is no MDI
    /// frame.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                        CMDIFrameWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);

    CMDIFrameWnd* GetMDIFrame() const;
    void MDIDestroy() { DestroyWindow(); }
    BOOL DestroyWindow() override;
    void MDIActivate() { GetMDIFrame()->MDIActivate(this); }
    void MDIMaximize() { GetMDIFrame()->MDIMaximize(this); }
    void MDIRestore() { GetMDIFrame()->MDIRestore(this); }
    void ActivateFrame(int nCmdShow = -1) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()
};
