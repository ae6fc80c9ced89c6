// CWnd: a window as an object.
//
// A CWnd holds at most one window handle. While it does, it is the permanent object of that handle: FromHandle and
// FromHandlePermanent find it, and messages of the window come to its message map. A handle that no object holds gets a
// temporary object from FromHandle, which receives no messages and lives until the thread is next idle.
//
// Coordinates: "client" means pixels from the upper left corner of the client area, "screen" pixels from that of the
// primary monitor. Rectangles exclude their right and bottom edges.
#pragma once

#include "../gdi/CFont.h"
#include "CCmdTarget.h"

#include <commctrl.h>

class CDC;
class CDataExchange;
class CFrameWnd;
class CMenu;
class CRgn;
class CScrollBar;
struct CCreateContext;
struct AFX_SIZEPARENTPARAMS;

constexpr DWORD MLF_SHOWONIDLE = 0x0004;

/// Hands one message to an object: the one place where an exception that leaves a handler ends.
KY_FRAMEWORK_API LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

/// A window as an object; see the top of this file for handles and coordinates.
class KY_FRAMEWORK_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)
public:
    HWND m_hWnd = nullptr; ///< Null while there is no window.

    CWnd() = default;
    /// Destroys a window that still lives; handlers of derived classes no longer run then.
    ~CWnd() override;

    // Handles and objects -----------------------------------------------------------------------------------------

    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& wnd) const { return m_hWnd == wnd.m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return m_hWnd != wnd.m_hWnd; }
    /// Also answers, with null, when called through a null pointer.
    HWND GetSafeHwnd() const { return this == nullptr ? nullptr : m_hWnd; }

    static CWnd* PASCAL FromHandle(HWND hWnd);
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    static void PASCAL DeleteTempMap();

    /// Makes this the permanent object of a handle without receiving its messages. FALSE for a null handle.
    BOOL Attach(HWND hWndNew);
    HWND Detach();
    /// Attach, and from now on the window's messages come here first; Default and DefWindowProc hand them to the
    /// procedure that the window had.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Gives the window back to its own procedure; returns its handle.
    HWND UnsubclassWindow();
    /// Called when a window is about to come under this object's control, by SubclassWindow or by creation.
    virtual void PreSubclassWindow() {}

    // Creation and destruction ------------------------------------------------------------------------------------

    /// A child window. Null class: the framework's own. On failure PostNcDestroy has been called.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                          int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    /// Last chance to change what is created; FALSE refuses.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    /// The object is without a window afterwards, and may be gone (PostNcDestroy). FALSE when there was no window.
    virtual BOOL DestroyWindow();

    // Messages ----------------------------------------------------------------------------------------------------

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::PostMessage(m_hWnd, message, wParam, lParam);
    }
    /// To the children, in tab order, and with `bDeep` to theirs; with `bOnlyPerm` to permanent objects only.
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    static void PASCAL SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                                BOOL bOnlyPerm);
    static const MSG* PASCAL GetCurrentMessage();
    /// Offers a message to the permanent objects from its window up to `hWndStop`; TRUE when one took it.
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    /// Sees queued messages before they are dispatched; TRUE takes the message.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// For a parent that received a message about this control: hands it to OnChildNotify. TRUE when that took it.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);

    // Text, style, state ------------------------------------------------------------------------------------------

    void SetWindowText(LPCTSTR lpszString) { ::SetWindowText(m_hWnd, lpszString); }
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
        return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
    }
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    /// Null when the window uses the system font.
    CFont* GetFont() const;
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE)); }
    /// FALSE when the style is as wanted already. Flags other than 0 are those of SetWindowPos, which is then called.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int nID) { return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID)); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    HICON SetIcon(HICON hIcon, BOOL bBigIcon) {
        return reinterpret_cast<HICON>(SendMessage(WM_SETICON, bBigIcon, reinterpret_cast<LPARAM>(hIcon)));
    }
    HICON GetIcon(BOOL bBigIcon) const { return reinterpret_cast<HICON>(SendMessage(WM_GETICON, bBigIcon)); }

    // Size and position -------------------------------------------------------------------------------------------

    /// Screen coordinates.
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    /// Positions of child windows are in the parent's client coordinates.
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE) {
        MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
    }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
        return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
    }
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) { return ::SetWindowPlacement(m_hWnd, lpwndpl); }
    /// Centres over `pAlternateOwner`, else the owner or parent, kept inside the work area of its monitor.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
        ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), lpPoint, nCount);
    }
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
        ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), reinterpret_cast<LPPOINT>(lpRect), 2);
    }
    /// Lays out control bars (ids nIDFirst to nIDLast) around the child `nIDLeftOver`. reposQuery only computes the
    /// rectangle left over into lpRectParam; reposExtra takes lpRectParam's sides off that rectangle first.
    enum RepositionFlags { reposDefault = 0, reposQuery = 1, reposExtra = 2 };
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlags = reposDefault,
                        LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr, BOOL bStretch = TRUE);
    /// Window rectangle for a client rectangle, by style.
    enum AdjustType { adjustBorder = 0, adjustOutside = 1 };
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);

    // Drawing -----------------------------------------------------------------------------------------------------

    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
    /// Temporary objects; give them back with ReleaseDC.
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC);
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    void ValidateRgn(CRgn* pRgn);
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL bRedraw = TRUE) { SendMessage(WM_SETREDRAW, bRedraw); }
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;

    // Focus, capture, timers --------------------------------------------------------------------------------------

    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer = nullptr) {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }
    void DragAcceptFiles(BOOL bAccept = TRUE) { ::DragAcceptFiles(m_hWnd, bAccept); }

    // Scrolling ---------------------------------------------------------------------------------------------------

    int GetScrollPos(int nBar) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    /// The structure's size is filled in. FALSE when the window has no such bar.
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    int GetScrollLimit(int nBar);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    /// The control that stands for the window's scroll bar; null when the bar is part of the window itself.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr) {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
    }
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate, LPRECT lpRectUpdate,
                       UINT flags);

    // Menus and messages to the user ------------------------------------------------------------------------------

    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    CMenu* GetSystemMenu(BOOL bRevert) const;
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);

    // Relations ---------------------------------------------------------------------------------------------------

    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* pWndNewParent) { return FromHandle(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd())); }
    CWnd* GetAncestor(UINT gaFlags) const { return FromHandle(::GetAncestor(m_hWnd, gaFlags)); }
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, pWnd->GetSafeHwnd()); }
    /// The tool of the window at a point in client coordinates, for tool tips: an identifier that is unique in the
    /// window, with its rectangle and text (allocated with malloc, freed by the caller) in `pTI`; −1 where there is
    /// none.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const { return -1; }
    static CWnd* PASCAL WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    CWnd* ChildWindowFromPoint(POINT point) const { return FromHandle(::ChildWindowFromPoint(m_hWnd, point)); }
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const {
        return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
    }
    /// A child by its id; GetDescendantWindow also looks below the children, with `bOnlyPerm` for permanent ones only.
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemText(m_hWnd, nID, lpszString); }
    int GetDlgItemText(int nID, CString& rString) const;
    void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
    UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    /// The outermost window by way of parents and owners. GetTopLevelOwner heeds SetOwner, GetTopLevelParent does not.
    CWnd* GetTopLevelOwner() const;
    CWnd* GetTopLevelParent() const;
    /// The nearest frame above this window, not itself; null when there is none.
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetParentOwner() const;
    /// The window set with SetOwner, which receives the commands of tool bars and the like; else the parent.
    CWnd* GetOwner() const { return m_hWndOwner ? FromHandle(m_hWndOwner) : GetParent(); }
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = pOwnerWnd->GetSafeHwnd(); }
    /// Sends every child control's id as a command update to `pTarget`, after the control itself (reflected).
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    /// Runs DoDataExchange; saving when TRUE. FALSE when a check failed, after the user was told.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    // Modal loops -------------------------------------------------------------------------------------------------

    /// Dispatches messages, with idle processing, until EndModalLoop; returns what it was given.
    /// `dwFlags`: MLF_SHOWONIDLE shows the window once the queue is empty.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal() { return m_modalRunning; }
    virtual void EndModalLoop(int nResult);

protected:
    // The message core --------------------------------------------------------------------------------------------

    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Looks the message up in the maps. FALSE: nobody handled it.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// The procedure that the window had before this object received its messages.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// DefWindowProc for the message being handled, with its own arguments.
    LRESULT Default();
    /// Where the window's own procedure is kept; an override gives one place to a whole class of windows.
    virtual WNDPROC* GetSuperWndProcAddr() { return &m_pfnSuper; }
    /// WM_COMMAND and WM_NOTIFY: first to the control itself (reflection), then to OnCmdMsg.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// A message about this control that its parent received. TRUE: the parent need not look at it.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    /// The last thing that happens for a window; the object may delete itself here.
    virtual void PostNcDestroy() {}
    virtual void DoDataExchange(CDataExchange* pDX) {}

    // Message handlers: one for each message that a map entry can name. A derived class declares its own and maps it.

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) { return static_cast<int>(Default()); }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct) { return static_cast<BOOL>(Default()); }
    afx_msg void OnClose() { Default(); }
    afx_msg void OnSize(UINT nType, int cx, int cy) { Default(); }
    afx_msg void OnMove(int x, int y) { Default(); }
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect) { Default(); }
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect) { Default(); }
    afx_msg void OnEnterSizeMove() { Default(); }
    afx_msg void OnExitSizeMove() { Default(); }
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos) { Default(); }
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos) { Default(); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI) { Default(); }
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus) { Default(); }
    afx_msg void OnEnable(BOOL bEnable) { Default(); }
    afx_msg void OnSetFocus(CWnd* pOldWnd) { Default(); }
    afx_msg void OnKillFocus(CWnd* pNewWnd) { Default(); }
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) { Default(); }
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) { return static_cast<int>(Default()); }
    afx_msg void OnChildActivate() { Default(); }
    afx_msg void OnCancelMode() { Default(); }
    afx_msg void OnStyleChanged(int nStyleType, LPSTYLESTRUCT lpStyleStruct) { Default(); }
    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC* pDC) { return static_cast<BOOL>(Default()); }
    afx_msg LRESULT OnPrintClient(CDC* pDC, UINT nFlags) { return Default(); }
    afx_msg void OnNcPaint() { Default(); }
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp) { Default(); }
    afx_msg LRESULT OnNcHitTest(CPoint point) { return Default(); }
    afx_msg BOOL OnNcActivate(BOOL bActive) { return static_cast<BOOL>(Default()); }
    afx_msg LRESULT OnThemeChanged() { return Default(); }
    afx_msg HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
    afx_msg void OnMouseMove(UINT nFlags, CPoint point) { Default(); }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) { return static_cast<BOOL>(Default()); }
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point) { Default(); }
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point) { Default(); }
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point) { Default(); }
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point) { Default(); }
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point) { Default(); }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) { return static_cast<BOOL>(Default()); }
    afx_msg void OnCaptureChanged(CWnd* pWnd) { Default(); }
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos) { Default(); }
    afx_msg void OnDropFiles(HDROP hDropInfo) { Default(); }
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { Default(); }
    afx_msg void OnInitMenu(CMenu* pMenu) { Default(); }
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu) { Default(); }
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu) { Default(); }
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu) { return Default(); }
    afx_msg void OnEnterIdle(UINT nWhy, CWnd* pWho) { Default(); }
    afx_msg void OnEnterMenuLoop(BOOL bIsTrackPopupMenu) { Default(); }
    afx_msg void OnExitMenuLoop(BOOL bIsTrackPopupMenu) { Default(); }
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam) { Default(); }

    // These do more than the default: destruction, and what a child's parent hands back to it (see OnChildNotify).
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

    HWND m_hWndOwner = nullptr;
    WNDPROC m_pfnSuper = nullptr;
    BOOL m_modalRunning = FALSE; ///< Between the start of a modal loop and EndModalLoop.
    int m_modalResult = -1;

    DECLARE_MESSAGE_MAP()

private:
    explicit CWnd(HWND hWnd) : m_hWnd(hWnd) {}
    BOOL DispatchToMap(AFX_MESSAGE& message);

    friend struct WindowState;
};
