// CMDIFrameWnd.cpp - a frame that holds several document windows, and those windows.
#include <afxwin.h>

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)
IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
    ON_WM_SIZE()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

// CMDIFrameWnd --------------------------------------------------------------------------------------------------------

namespace {

HMENU HandleOf(const CMenu* menu) { return menu != nullptr ? menu->m_hMenu : nullptr; }

/// The popup with the commands that arrange windows; null when the menu bar has none.
CMenu* FindWindowMenu(CMenu* menuBar) {
    const int count = HandleOf(menuBar) != nullptr ? menuBar->GetMenuItemCount() : 0;
    for (int i = 0; i < count; ++i) {
        CMenu* const popup = menuBar->GetSubMenu(i);
        const int items = popup != nullptr ? popup->GetMenuItemCount() : 0;
        for (int j = 0; j < items; ++j) {
            const UINT id = popup->GetMenuItemID(j);
            if (id >= ID_WINDOW_NEW && id <= ID_WINDOW_SPLIT)
                return popup;
        }
    }
    return nullptr;
}

} // namespace

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext*) {
    return CreateClient(lpcs, FindWindowMenu(GetMenu()));
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT, CMenu* pWindowMenu) {
    CLIENTCREATESTRUCT create{HandleOf(pWindowMenu), AFX_IDM_FIRST_MDICHILD};
    constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_HSCROLL | WS_VSCROLL;
    m_hWndMDIClient = ::CreateWindowEx(WS_EX_CLIENTEDGE, L"mdiclient", nullptr, style, 0, 0, 0, 0, m_hWnd,
                                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
                                       AfxGetInstanceHandle(), &create);
    return m_hWndMDIClient != nullptr;
}

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* pbMaximized) const {
    BOOL maximized = FALSE;
    HWND child = nullptr;
    if (m_hWndMDIClient != nullptr)
        child = reinterpret_cast<HWND>(
            ::SendMessage(m_hWndMDIClient, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximized)));
    if (pbMaximized != nullptr)
        *pbMaximized = maximized;
    return dynamic_cast<CMDIChildWnd*>(FromHandlePermanent(child));
}

CMenu* CMDIFrameWnd::MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu) {
    return CMenu::FromHandle(reinterpret_cast<HMENU>(::SendMessage(m_hWndMDIClient, WM_MDISETMENU,
                                                                   reinterpret_cast<WPARAM>(HandleOf(pFrameMenu)),
                                                                   reinterpret_cast<LPARAM>(HandleOf(pWindowMenu)))));
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame() {
    CMDIChildWnd* const active = MDIGetActive();
    return active != nullptr ? static_cast<CFrameWnd*>(active) : this;
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CFrameWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool isKeyDown = pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN;
    return isKeyDown && m_hWndMDIClient != nullptr && ::TranslateMDISysAccel(m_hWndMDIClient, pMsg);
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    CMDIChildWnd* const active = MDIGetActive();
    if (active != nullptr && active->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    // The system's own commands: the list of open children, and the caption buttons of a maximized child in the menu
    // bar.
    constexpr UINT firstSystemCommand = 0xF000;
    if (lParam == 0 && LOWORD(wParam) >= firstSystemCommand)
        return FALSE;
    return CFrameWnd::OnCommand(wParam, lParam);
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefFrameProc(m_hWnd, m_hWndMDIClient, message, wParam, lParam);
}

void CMDIFrameWnd::OnSize(UINT nType, int, int) {
    // The default handling would stretch the MDI client over the control bars.
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

// CMDIChildWnd --------------------------------------------------------------------------------------------------------

BOOL CMDIChildWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                          CMDIFrameWnd* pParentWnd, CCreateContext* pContext) {
    CWnd* const parent = pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd();
    const auto* const frame = dynamic_cast<CMDIFrameWnd*>(parent);
    if (frame == nullptr || frame->m_hWndMDIClient == nullptr) {
        PostNcDestroy();
        return FALSE;
    }
    m_strTitle = lpszWindowName;
    const bool systemChooses = rect.left == CW_USEDEFAULT;
    const int width = systemChooses ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = systemChooses ? CW_USEDEFAULT : rect.bottom - rect.top;
    return CreateEx(WS_EX_MDICHILD, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, width, height,
                    frame->m_hWndMDIClient, nullptr, pContext);
}

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style |= WS_CHILD;
    return CFrameWnd::PreCreateWindow(cs);
}

int CMDIChildWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    // The system wraps the parameter of an MDI child.
    CREATESTRUCT create = *lpCreateStruct;
    create.lpCreateParams =
        reinterpret_cast<void*>(static_cast<const MDICREATESTRUCT*>(lpCreateStruct->lpCreateParams)->lParam);
    return CFrameWnd::OnCreate(&create);
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() const {
    return dynamic_cast<CMDIFrameWnd*>(FromHandlePermanent(::GetParent(::GetParent(m_hWnd))));
}

BOOL CMDIChildWnd::DestroyWindow() {
    if (m_hWnd == nullptr)
        return FALSE;
    // The client activates the next child and updates its list; it ends in this object's deletion.
    ::SendMessage(::GetParent(m_hWnd), WM_MDIDESTROY, reinterpret_cast<WPARAM>(m_hWnd), 0);
    return TRUE;
}

void CMDIChildWnd::ActivateFrame(int nCmdShow) {
    CFrameWnd::ActivateFrame(nCmdShow);
    MDIActivate();
}

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProc(m_hWnd, message, wParam, lParam);
}
