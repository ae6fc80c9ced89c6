// CFrameWnd.cpp - the frame's life, layout, views and command route.
#include <afxext.h>
#include <afxpriv.h>

#include "../windows/WindowState.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_DPICHANGED, &CFrameWnd::OnDpiChanged)
    ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
    ON_MESSAGE(WM_POPMESSAGESTRING, &CFrameWnd::OnPopMessageString)
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd() = default;
CFrameWnd::~CFrameWnd() = default;

namespace {

// Window classes name a system colour by its number plus one.
HBRUSH WindowBackground() { return reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1); }

} // namespace

// Creation and destruction --------------------------------------------------------------------------------------------

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                       LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext) {
    HMENU menu = nullptr;
    if (lpszMenuName != nullptr) {
        menu = ::LoadMenu(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (menu == nullptr) {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = lpszWindowName;
    // The default rectangle's size is the system's choice, too.
    const bool systemChooses = rect.left == CW_USEDEFAULT;
    const int width = systemChooses ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = systemChooses ? CW_USEDEFAULT : rect.bottom - rect.top;
    if (CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, width, height,
                 pParentWnd->GetSafeHwnd(), menu, pContext))
        return TRUE;
    if (menu != nullptr)
        ::DestroyMenu(menu);
    return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    CString text;
    if (text.LoadString(nIDResource))
        text = FirstLine(text);
    const LPCTSTR name = MAKEINTRESOURCE(nIDResource);
    const HINSTANCE module = AfxFindResourceHandle(name, RT_GROUP_ICON);
    HICON icon = ::LoadIcon(module, name);
    if (icon == nullptr)
        icon = ::LoadIcon(nullptr, IDI_APPLICATION);
    const CString className(
        AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), WindowBackground(), icon));
    const bool hasMenu = ::FindResource(AfxFindResourceHandle(name, RT_MENU), name, RT_MENU) != nullptr;
    if (!Create(className, text, dwDefaultStyle, rectDefault, pParentWnd, hasMenu ? name : nullptr, 0, pContext))
        return FALSE;
    LoadAccelTable(name);
    if (pContext == nullptr)
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
    m_hAccelTable = ::LoadAccelerators(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    return m_hAccelTable != nullptr;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), WindowBackground(),
                                           ::LoadIcon(nullptr, IDI_APPLICATION));
    // The bits of the frame's own styles mean nothing to the window.
    cs.style &= ~static_cast<LONG>(FWS_ADDTOTITLE | FWS_PREFIXTITLE | FWS_SNAPTOBARS);
    return TRUE;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (!OnCreateClient(lpCreateStruct, static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams)))
        return -1;
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    RecalcLayout();
    return 0;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* pContext) {
    if (pContext == nullptr || pContext->m_pNewViewClass == nullptr)
        return TRUE;
    return CreateView(pContext) != nullptr;
}

void CFrameWnd::OnDestroy() {
    m_pViewActive = nullptr;
    CWnd::OnDestroy();
}

void CFrameWnd::OnClose() { DestroyWindow(); }
void CFrameWnd::PostNcDestroy() { delete this; }

// Views ---------------------------------------------------------------------------------------------------------------

CWnd* CFrameWnd::CreateView(CCreateContext* pContext, UINT nID) {
    CObject* const made = pContext->m_pNewViewClass->CreateObject();
    auto* const view = dynamic_cast<CWnd*>(made);
    if (view == nullptr) {
        delete made;
        return nullptr;
    }
    // A view that fails has deleted itself.
    if (!view->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW, CRect(), this, nID, pContext))
        return nullptr;
    return view;
}

void CFrameWnd::SetActiveView(CView* pViewNew, BOOL bNotify) {
    CView* const before = m_pViewActive;
    if (pViewNew == before)
        return;
    m_pViewActive = nullptr; // while neither is
    if (before != nullptr)
        before->OnActivateView(FALSE, pViewNew, before);
    if (m_pViewActive != nullptr)
        return; // the old view activated another
    m_pViewActive = pViewNew;
    if (pViewNew != nullptr && bNotify)
        pViewNew->OnActivateView(TRUE, pViewNew, before);
}

void CFrameWnd::InitialUpdateFrame(CDocument*, BOOL bMakeVisible) {
    if (GetActiveView() == nullptr) {
        if (auto* view = dynamic_cast<CView*>(GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE)))
            SetActiveView(view, FALSE);
    }
    if (!bMakeVisible)
        return;
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    ActivateFrame();
    if (m_pViewActive != nullptr)
        m_pViewActive->OnActivateView(TRUE, m_pViewActive, m_pViewActive);
}

void CFrameWnd::ActivateFrame(int nCmdShow) {
    if (nCmdShow == -1) {
        if (!IsWindowVisible())
            nCmdShow = SW_SHOWNORMAL;
        else if (IsIconic())
            nCmdShow = SW_RESTORE;
    }
    BringWindowToTop();
    if (nCmdShow != -1) {
        ShowWindow(nCmdShow);
        BringWindowToTop();
    }
}

void CFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    if (nState != WA_INACTIVE && !bMinimized && m_pViewActive != nullptr)
        m_pViewActive->OnActivateView(TRUE, m_pViewActive, m_pViewActive);
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd) {
    if (m_pViewActive != nullptr)
        m_pViewActive->SetFocus();
    else
        CWnd::OnSetFocus(pOldWnd);
}

// Layout --------------------------------------------------------------------------------------------------------------

void CFrameWnd::RecalcLayout(BOOL) {
    if (m_bInRecalcLayout)
        return;
    m_bInRecalcLayout = TRUE;
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, &m_rectBorder);
    m_bInRecalcLayout = FALSE;
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

LRESULT CFrameWnd::OnDpiChanged(WPARAM wParam, LPARAM lParam) {
    const auto* suggested = reinterpret_cast<const RECT*>(lParam);
    if (suggested == nullptr)
        return 0; // the outer frame tells the descendants of both
    // Older systems tell top-level windows only. The children first, so that they are laid out with their new sizes.
    SendMessageToDescendants(WM_DPICHANGED, wParam, 0, TRUE, TRUE);
    SetWindowPos(nullptr, suggested->left, suggested->top, suggested->right - suggested->left,
                 suggested->bottom - suggested->top, SWP_NOZORDER | SWP_NOACTIVATE);
    RecalcLayout();
    return 0;
}

BOOL CFrameWnd::OnEraseBkgnd(CDC* pDC) {
    // A frame that is filled by its pane paints nothing; the pane paints itself.
    if (m_pViewActive != nullptr || GetDlgItem(AFX_IDW_PANE_FIRST) != nullptr)
        return TRUE;
    return CWnd::OnEraseBkgnd(pDC);
}

// Commands ------------------------------------------------------------------------------------------------------------

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (m_pViewActive != nullptr && m_pViewActive->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* const app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    return isKey && m_hAccelTable != nullptr && ::TranslateAccelerator(m_hWnd, m_hAccelTable, pMsg);
}

void CFrameWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT, BOOL bSysMenu) {
    if (bSysMenu || pPopupMenu == nullptr)
        return;
    // A menu that is no more has -1 items.
    const auto countOf = [](const CMenu& menu) { return static_cast<UINT>(std::max(menu.GetMenuItemCount(), 0)); };
    CCmdUI item;
    item.m_pMenu = pPopupMenu;
    item.m_nIndexMax = countOf(*pPopupMenu);
    for (item.m_nIndex = 0; item.m_nIndex < item.m_nIndexMax; ++item.m_nIndex) {
        item.m_nID = pPopupMenu->GetMenuItemID(static_cast<int>(item.m_nIndex));
        if (item.m_nID == 0)
            continue;
        if (item.m_nID == UINT(-1)) {
            // An item that opens a popup updates as the popup's first item and is never disabled.
            item.m_pSubMenu = pPopupMenu->GetSubMenu(static_cast<int>(item.m_nIndex));
            if (item.m_pSubMenu == nullptr)
                continue;
            item.m_nID = item.m_pSubMenu->GetMenuItemID(0);
            if (item.m_nID == 0 || item.m_nID == UINT(-1))
                continue;
            item.DoUpdate(this, FALSE);
        } else {
            constexpr UINT firstSystemCommand = 0xF000;
            item.m_pSubMenu = nullptr;
            item.DoUpdate(this, m_bAutoMenuEnable && item.m_nID < firstSystemCommand);
        }
        // An update handler may have put other items in this one's place.
        const UINT count = countOf(*pPopupMenu);
        if (count < item.m_nIndexMax) {
            item.m_nIndex -= item.m_nIndexMax - count;
            while (item.m_nIndex < count && pPopupMenu->GetMenuItemID(static_cast<int>(item.m_nIndex)) == item.m_nID)
                ++item.m_nIndex;
        }
        item.m_nIndexMax = count;
    }
}

// Message bar ---------------------------------------------------------------------------------------------------------

CWnd* CFrameWnd::GetMessageBar() { return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE); }

void CFrameWnd::SetMessageText(LPCTSTR lpszText) {
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CFrameWnd::SetMessageText(UINT nID) { SendMessage(WM_SETMESSAGESTRING, nID); }

void CFrameWnd::GetMessageString(UINT nID, CString& rMessage) const {
    CString text;
    rMessage.Empty();
    if (text.LoadString(nID))
        rMessage = FirstLine(text);
}

LRESULT CFrameWnd::OnSetMessageString(WPARAM wParam, LPARAM lParam) {
    const UINT before = m_nIDLastMessage;
    const auto id = static_cast<UINT>(wParam);
    CString text;
    if (lParam != 0)
        text = reinterpret_cast<LPCTSTR>(lParam);
    else if (id != 0)
        GetMessageString(id, text);
    if (CWnd* bar = GetMessageBar())
        bar->SetWindowText(text);
    m_nIDLastMessage = id;
    return before;
}

LRESULT CFrameWnd::OnPopMessageString(WPARAM wParam, LPARAM lParam) {
    return SendMessage(WM_SETMESSAGESTRING, wParam, lParam);
}

void CFrameWnd::OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu) {
    CWnd::OnMenuSelect(nItemID, nFlags, hSysMenu);
    UINT shown = nItemID;
    if (nFlags == 0xFFFF) // the menu closed
        shown = AFX_IDS_IDLEMESSAGE;
    else if (nItemID == 0 || (nFlags & (MF_SEPARATOR | MF_POPUP | MF_SYSMENU)) != 0)
        shown = 0;
    if (shown != m_nIDLastMessage)
        SendMessage(WM_SETMESSAGESTRING, shown);
}

// Control bars --------------------------------------------------------------------------------------------------------

CControlBar* CFrameWnd::GetControlBar(UINT nID) {
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (static_cast<WORD>(::GetDlgCtrlID(child)) != nID)
            continue;
        if (auto* bar = dynamic_cast<CControlBar*>(FromHandlePermanent(child)))
            return bar;
    }
    return nullptr;
}

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL) {
    pBar->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    RecalcLayout();
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* pCmdUI) {
    CControlBar* const bar = GetControlBar(pCmdUI->m_nID);
    if (bar == nullptr) {
        pCmdUI->ContinueRouting();
        return;
    }
    pCmdUI->Enable();
    pCmdUI->SetCheck(bar->IsVisible());
}

BOOL CFrameWnd::OnBarCheck(UINT nID) {
    CControlBar* const bar = GetControlBar(nID);
    if (bar == nullptr)
        return FALSE;
    ShowControlBar(bar, !bar->IsVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI* pCmdUI) {
    const int key = pCmdUI->m_nID == ID_INDICATOR_CAPS  ? VK_CAPITAL
                    : pCmdUI->m_nID == ID_INDICATOR_NUM ? VK_NUMLOCK
                                                        : VK_SCROLL;
    pCmdUI->Enable((::GetKeyState(key) & 1) != 0);
}
