/// @file
/// CWnd: a window as an object.
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

/// For CWnd::RunModalLoop: the window shows once the message queue is empty.
/// @ingroup framework_windows
constexpr DWORD MLF_SHOWONIDLE = 0x0004;

/// Hands one message to an object's WindowProc: the one place where an exception that leaves a handler ends, in
/// CWinThread::ProcessWndProcException. Returns the message's result.
/// @ingroup framework_windows
KY_FRAMEWORK_API LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

/// A window as an object.
///
/// A CWnd holds at most one window handle. While it does, it is the permanent object of that handle: FromHandle and
/// FromHandlePermanent find it, and messages of the window come to its message map. A handle that no object holds gets
/// a temporary object from FromHandle, which receives no messages and lives until the thread is next idle. Operations
/// that give a CWnd* give what FromHandle gives for the window in question, so null for none; never keep a temporary
/// object, never delete one. All this is per thread: use a window in the thread that created it.
///
/// Coordinates: "client" means pixels from the upper left corner of the client area, "screen" pixels from that of the
/// primary monitor. Rectangles exclude their right and bottom edges.
///
/// Handlers (On… with a message in its name) are called for their message once a derived class declares a member of
/// that name and signature and maps it, see ON_WM_PAINT and its like. Those of this class do what the window would do
/// by itself; an override calls them, or Default, when it wants that as well. A temporary object never has its handlers
/// called.
///
/// Operations of the same name as a Win32 function pass on what it gives; a BOOL says whether it succeeded. They need a
/// window unless that is said: before creation and after destruction there is none.
/// @ingroup framework_windows
class KY_FRAMEWORK_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)
public:
    HWND m_hWnd = nullptr; ///< Null while there is no window.

    /// An object without a window; Create, SubclassWindow or Attach give it one.
    CWnd() = default;
    /// Destroys a window that still lives; handlers of derived classes no longer run then.
    ~CWnd() override;

    // Handles and objects -----------------------------------------------------------------------------------------

    operator HWND() const { return m_hWnd; } ///< Null while there is no window; the object keeps the ownership.
    /** @{ */
    /// Equal when both hold the same window.
    BOOL operator==(const CWnd& wnd) const { return m_hWnd == wnd.m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return m_hWnd != wnd.m_hWnd; }
    /** @} */
    /// The window as m_hWnd has it; may be asked of a null pointer, too, and then gives null.
    HWND GetSafeHwnd() const { return this == nullptr ? nullptr : m_hWnd; }

    /// The permanent object of a window of this thread, else a temporary one, valid until the thread is idle next. Null
    /// for null.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    /// The permanent object of a window of this thread; null when it has none.
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    /// Destroys the thread's temporary objects, but not their windows; the framework does so when the thread is idle.
    static void PASCAL DeleteTempMap();

    /// Makes this the permanent object of a handle without receiving its messages. FALSE for a null handle. The object
    /// must not hold one yet, nor may the handle have another object.
    BOOL Attach(HWND hWndNew);
    /// Lets go of the window, which lives on, without giving back its procedure (see UnsubclassWindow). Null when there
    /// was none.
    HWND Detach();
    /// Attach, and from now on the window's messages come here first; Default and DefWindowProc hand them to the
    /// procedure that the window had.
    BOOL SubclassWindow(HWND hWnd);
    /// SubclassWindow for a child of `pParent`, by its id. FALSE when there is none.
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Gives the window back to its own procedure and lets go of it; returns its handle, null when there was none.
    HWND UnsubclassWindow();
    /// Called when a window is about to come under this object's control, by SubclassWindow or by creation.
    virtual void PreSubclassWindow() {}

    // Creation and destruction ------------------------------------------------------------------------------------

    /// A child window at `rect`, in client coordinates of `pParentWnd`, which must not be null. Null class: the
    /// framework's own. FALSE on failure; PostNcDestroy has been called then, so that an object made with new may be
    /// gone.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    /** @{ */
    /// A window of any kind. Positions are client coordinates of the parent for a child, else screen coordinates.
    /// `nIDorHMenu` and `nID` are the id of a child, or the menu of another window. `lpParam` reaches OnCreate. FALSE
    /// on failure; PostNcDestroy has been called then, so that an object made with new may be gone.
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                          int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    /** @} */
    /// Called before the window is created: last chance to change what is created. FALSE refuses. This one fills in the
    /// framework's window class when there is none.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    /// Destroys the window and its children. The object is without a window afterwards, and may be gone
    /// (PostNcDestroy). FALSE when there was no window.
    virtual BOOL DestroyWindow();

    // Messages ----------------------------------------------------------------------------------------------------

    /// Calls the window's procedure and returns its answer.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    /// Puts the message into the queue of the window's thread and returns at once. FALSE when there is no such window
    /// or the queue is full.
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::PostMessage(m_hWnd, message, wParam, lParam);
    }
    /** @{ */
    /// Sends a message to the children, in tab order, and with `bDeep` to theirs; with `bOnlyPerm` to permanent objects
    /// only.
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    static void PASCAL SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                                BOOL bOnlyPerm);
    /** @} */
    /// The message that the thread handles now, without its time and point. Never null; it changes when handlers send
    /// messages.
    static const MSG* PASCAL GetCurrentMessage();
    /// Offers a message to the PreTranslateMessage of the permanent objects from its window up to `hWndStop` (null: the
    /// outermost); TRUE when one took it.
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    /// Sees queued messages before they are dispatched; TRUE takes the message.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// For a parent that received a message about this control: hands it to OnChildNotify. TRUE when that took it.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);

    // Text, style, state ------------------------------------------------------------------------------------------

    /// The caption of a frame or dialog, the text of a control.
    void SetWindowText(LPCTSTR lpszString) { ::SetWindowText(m_hWnd, lpszString); }
    /// Copies the text, at most `nMaxCount` characters with the terminator. The number copied, without it.
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
        return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
    }
    void GetWindowText(CString& rString) const; ///< The whole text.
    /// UTF-16 units at least; the text may be shorter.
    int GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
    /// The font of a control, which is not owned and must live as long as the control uses it; null for the system
    /// font.
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    /// A temporary object at most. Null when the window uses the system font.
    CFont* GetFont() const;
    /// WS_ and the class's own styles.
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE)); } ///< WS_EX_ styles.
    /** @{ */
    /// Removes styles, then adds some. FALSE when the style is as wanted already. Flags other than 0 are those of
    /// SetWindowPos, which is then called; SWP_FRAMECHANGED makes the frame follow the style.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    /** @} */
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); } ///< The id of a child window.
    /// Changes the id of a child window; returns the former one.
    int SetDlgCtrlID(int nID) { return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID)); }
    /// Lets mouse and keyboard reach the window, or not. TRUE when it was disabled before.
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); } ///< Its parent may be disabled nevertheless.
    /** @{ */
    /// The big icon (for switching between programs) or the small one (in the caption). Setting gives the former one;
    /// the window does not own them.
    HICON SetIcon(HICON hIcon, BOOL bBigIcon) {
        return reinterpret_cast<HICON>(SendMessage(WM_SETICON, bBigIcon, reinterpret_cast<LPARAM>(hIcon)));
    }
    HICON GetIcon(BOOL bBigIcon) const { return reinterpret_cast<HICON>(SendMessage(WM_GETICON, bBigIcon)); }
    /** @} */

    // Size and position -------------------------------------------------------------------------------------------

    /// The whole window, frame included, in screen coordinates.
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    /// The client area in client coordinates: left and top are 0.
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    /** @{ */
    /// Changes place and size of the whole window. Positions of child windows are in the parent's client coordinates,
    /// others in screen coordinates.
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE) {
        MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
    }
    /** @} */
    /// Changes size, place and order as the SWP_ flags allow; coordinates as in MoveWindow. `pWndInsertAfter` is the
    /// window above, or one of the four places; null is the top.
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
        return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
    }
    /** @{ */
    /// A place in the order of windows, for SetWindowPos: at the top, at the bottom, among those that always stay in
    /// front, or right behind these. No window.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;
    /** @} */
    /// To the top of its siblings; a top-level window is activated.
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    /// The restored, minimized and maximized places, in workspace coordinates. The structure's size is filled in.
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    /// Restores what GetWindowPlacement gave; the structure's size must be filled in.
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) { return ::SetWindowPlacement(m_hWnd, lpwndpl); }
    /// Centres the window over `pAlternateOwner`, else over its owner or parent. Children stay inside the parent's
    /// client area, others inside the work area of the monitor.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); } ///< Whether it is minimized.
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); } ///< Whether it is maximized.
    /// Limits the window to a region, in pixels from its upper left corner, which then belongs to the system; null
    /// takes the limit away. 0 on failure.
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }
    /** @{ */
    /// Turns this window's client coordinates into screen coordinates, in place.
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    /** @} */
    /** @{ */
    /// Turns screen coordinates into this window's client coordinates, in place.
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    /** @} */
    /** @{ */
    /// Turns client coordinates of this window into those of another, in place; null for screen coordinates.
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
        ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), lpPoint, nCount);
    }
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
        ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), reinterpret_cast<LPPOINT>(lpRect), 2);
    }
    /** @} */
    /// What RepositionBars does.
    enum RepositionFlags {
        reposDefault = 0, ///< Moves bars and pane.
        reposQuery = 1,   ///< Moves nothing and tells the rectangle.
        reposExtra = 2    ///< Leaves the sides of lpRectParam free around the pane.
    };
    /// Lays out the control bars among the children (ids nIDFirst to nIDLast, with permanent objects) and gives the
    /// rest of `lpRectClient` (null: the client area) to the child `nIDLeftOver`. With reposQuery nothing moves, and
    /// lpRectParam receives the rectangle left over, or, unless `bStretch`, the size that the bars take.
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlags = reposDefault,
                        LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr, BOOL bStretch = TRUE);
    /// Whether CalcWindowRect counts the sunken edge.
    enum AdjustType {
        adjustBorder = 0, ///< Without the sunken edge.
        adjustOutside = 1 ///< With it.
    };
    /// Turns a client rectangle into that of the whole window, by its style and without a menu.
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);

    // Drawing -----------------------------------------------------------------------------------------------------

    /// Begins to answer WM_PAINT; a temporary object. Prefer CPaintDC, which also ends it.
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    /// Ends what BeginPaint began.
    void EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
    /** @{ */
    /// A context of the client area, of the whole window, or as DCX_ flags say, as a temporary object; give it back
    /// with ReleaseDC. Null on failure. Prefer CClientDC and CWindowDC.
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    /** @} */
    /// Gives back what GetDC and its like gave. 0 when that is not possible.
    int ReleaseDC(CDC* pDC);
    /** @{ */
    /// Marks the client area, a rectangle (null: all) or a region (null: all) of it, in client coordinates, to be
    /// painted when the queue is empty. With `bErase` the background is erased then.
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    /** @} */
    /** @{ */
    /// Takes a rectangle (null: all) or a region (null: all), in client coordinates, out of what is to be painted.
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    void ValidateRgn(CRgn* pRgn);
    /** @} */
    /// The smallest rectangle around what is to be painted, in client coordinates. FALSE when that is nothing. With
    /// `bErase` the background is erased now.
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
    /// Sets the region, which must exist, to what is to be painted, in client coordinates. The kind of the region. With
    /// `bErase` the background is erased now.
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    /// Paints now what is to be painted, before the call returns.
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    /// FALSE keeps a window from painting while much is changed in it; after TRUE, invalidate it.
    void SetRedraw(BOOL bRedraw = TRUE) { SendMessage(WM_SETREDRAW, bRedraw); }
    /// Invalidates and paints as the RDW_ flags say, a rectangle or a region in client coordinates (both null: all).
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    /// Shows, hides, minimizes or maximizes the window by an SW_ value. TRUE when it was visible before.
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    /// Whether it and all its parents are shown; it may be covered.
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    /** @{ */
    /// Lets the window draw itself into another context, as PRF_ flags say: Print all that the flags name, PrintClient
    /// the client area.
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    /** @} */

    // Focus, capture, timers --------------------------------------------------------------------------------------

    /// The window of this thread that has the keyboard focus.
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    /// Takes the keyboard focus; the window that had it. Null when there was none, or on failure.
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    /// The active top-level window of this thread.
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    /// Activates a top-level window; the one that was active before.
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    /// The window that the user works with, of any program.
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    /// Brings the window's thread to the front, if the system allows that now.
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    /// The window of this thread that receives all mouse messages.
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    /// From now on all mouse messages come here, until ReleaseCapture; OnCaptureChanged tells of the loss. The window
    /// that had the capture before.
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    /// The window behind all others.
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    /// Every `nElapse` milliseconds OnTimer is called with `nIDEvent`, or `lpfnTimer` if there is one. A timer of the
    /// same number is replaced. 0 on failure.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer = nullptr) {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    /// Ends a timer; the window's end does so, too. FALSE when there is none.
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }
    /// Whether files may be dropped on the window; OnDropFiles receives them.
    void DragAcceptFiles(BOOL bAccept = TRUE) { ::DragAcceptFiles(m_hWnd, bAccept); }

    // Scrolling ---------------------------------------------------------------------------------------------------

    /** @{ */
    /// The position of a scroll bar: SB_HORZ, SB_VERT, or SB_CTL for a window that is one. Setting gives the former
    /// one.
    int GetScrollPos(int nBar) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    /** @} */
    /** @{ */
    /// The smallest and the greatest position of a scroll bar.
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    /** @} */
    /** @{ */
    /// What fMask names of a scroll bar: range, page, position, position while it is dragged. The structure's size is
    /// filled in, and the mask from `nMask`. GetScrollInfo gives FALSE when the window has no such bar, SetScrollInfo
    /// always TRUE.
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    /** @} */
    /// The greatest position that the user can reach: the end of the range less the page; 0 when there is no such bar.
    int GetScrollLimit(int nBar);
    /// Shows or hides SB_HORZ, SB_VERT or SB_BOTH.
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    /// Enables or disables the control that GetScrollBarCtrl gives; bars of the window itself stay as they are.
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    /// The control that stands for the window's scroll bar; null, as from this one, when the bar is part of the window
    /// itself.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    /// Moves the pixels of the client area, or of a part of it, and its children; what comes into view is invalidated.
    /// Client coordinates.
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr) {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
    }
    /// As ScrollWindow, with SW_ flags for children and erasing; `prgnUpdate` and `lpRectUpdate`, which may be null,
    /// receive what came into view. The kind of that region.
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate, LPRECT lpRectUpdate,
                       UINT flags);

    // Menus and messages to the user ------------------------------------------------------------------------------

    /// The menu bar, as a temporary object at most; null when there is none.
    CMenu* GetMenu() const;
    /// Shows another menu bar, which then belongs to the window; null for none. The former one lives on.
    BOOL SetMenu(CMenu* pMenu);
    /// The window's own copy of the system menu, to be changed; with `bRevert` it becomes the original again and the
    /// result is null.
    CMenu* GetSystemMenu(BOOL bRevert) const;
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); } ///< Shows a change to the menu bar.
    /// A message box that disables this window; null caption: the application's name. The id of the button pressed.
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);

    // Relations ---------------------------------------------------------------------------------------------------

    /// The parent of a child, the owner of another window.
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    /// Makes the window a child of another; null: of the desktop. The former parent.
    CWnd* SetParent(CWnd* pWndNewParent) { return FromHandle(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd())); }
    /// A window above, by a GA_ value.
    CWnd* GetAncestor(UINT gaFlags) const { return FromHandle(::GetAncestor(m_hWnd, gaFlags)); }
    /// A relative, by a GW_ value: first child, next sibling, owner.
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); } ///< The child at the top of the order.
    /// Itself when none of its popups was active.
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    /// At any depth; not itself.
    BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, pWnd->GetSafeHwnd()); }
    /// The tool of the window at a point in client coordinates, for tool tips: an identifier that is unique in the
    /// window, with its rectangle and text (allocated with malloc, freed by the caller) in `pTI`; −1 where there is
    /// none, as from this one.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const { return -1; }
    /// The window of any program at a point in screen coordinates.
    static CWnd* PASCAL WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    /** @{ */
    /// The direct child at a point in client coordinates; the window itself where there is none, null outside. CWP_
    /// flags leave out hidden, disabled or transparent children.
    CWnd* ChildWindowFromPoint(POINT point) const { return FromHandle(::ChildWindowFromPoint(m_hWnd, point)); }
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const {
        return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
    }
    /** @} */
    /// A direct child by its id.
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    /// A child at any depth by its id, the direct ones first; with `bOnlyPerm` permanent objects only.
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    /// The text of a child by its id.
    void SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemText(m_hWnd, nID, lpszString); }
    /// The text of a child by its id, and its length; empty and 0 when there is no such child.
    int GetDlgItemText(int nID, CString& rString) const;
    /** @{ */
    /// The state of a check box or radio button by its id: BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
    UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
    /** @} */
    /// The control with WS_TABSTOP after or before a given one, around the end.
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    /** @{ */
    /// The outermost window by way of parents and owners. GetTopLevelOwner heeds SetOwner, GetTopLevelParent does not.
    /// Null without a window.
    CWnd* GetTopLevelOwner() const;
    CWnd* GetTopLevelParent() const;
    /** @} */
    /// The nearest frame above this window, not itself; null when there is none.
    CFrameWnd* GetParentFrame() const;
    /// The outermost frame around this window, itself included; null when there is none.
    CFrameWnd* GetTopLevelFrame() const;
    /// This window, or the nearest above it that is no child; null without a window.
    CWnd* GetParentOwner() const;
    /// The window set with SetOwner, which receives the commands of tool bars and the like; else the parent.
    CWnd* GetOwner() const { return m_hWndOwner ? FromHandle(m_hWndOwner) : GetParent(); }
    /// Sets what GetOwner gives; null: the parent again. The system's own idea of the owner does not change.
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = pOwnerWnd->GetSafeHwnd(); }
    /// Sends every child control's id as a command update to `pTarget`, after the control itself (reflected).
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    /// Runs DoDataExchange: from the controls to the members when TRUE, the other way when FALSE. FALSE when a check
    /// failed, after the user was told.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    // Modal loops -------------------------------------------------------------------------------------------------

    /// Dispatches messages, with idle processing (WM_KICKIDLE to this window), until EndModalLoop or the end of the
    /// window; returns what EndModalLoop was given, -1 after WM_QUIT, which is passed on. `dwFlags`: MLF_SHOWONIDLE
    /// shows the window once the queue is empty.
    int RunModalLoop(DWORD dwFlags = 0);
    /// Asked after each message; FALSE ends the loop.
    virtual BOOL ContinueModal() { return m_modalRunning; }
    /// Lets RunModalLoop return `nResult` once the message being handled is done.
    virtual void EndModalLoop(int nResult);

protected:
    // The message core --------------------------------------------------------------------------------------------

    /// Every message of the window comes here first. Returns its result: that of OnWndMsg, or of DefWindowProc when
    /// nobody handled it.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Looks the message up in the maps. FALSE: nobody handled it.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// What happens to messages that are not handled: the procedure that the window had before this object received its
    /// messages, else the system's own.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// DefWindowProc for the message being handled, with its own arguments.
    LRESULT Default();
    /// Where the window's own procedure is kept; an override gives one place to a whole class of windows.
    virtual WNDPROC* GetSuperWndProcAddr() { return &m_pfnSuper; }
    /** @{ */
    /// WM_COMMAND and WM_NOTIFY: first to the control itself (reflection), then to OnCmdMsg. A command that is disabled
    /// now is not carried out. TRUE when somebody handled it.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /** @} */
    /// A message about this control that its parent received. TRUE: the parent need not look at it.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Looks a message that the parent received up in this control's own map, among the entries with REFLECT in their
    /// names. TRUE when one took it.
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Hands the message being handled to the object of the control that it is about. FALSE when that has no permanent
    /// object, or did not take it.
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    /// The last thing that happens for a window, also for one that could not be created; an object made with new may
    /// delete itself here.
    virtual void PostNcDestroy() {}
    /// Called by UpdateData; an override has one DDX_ line per control.
    virtual void DoDataExchange(CDataExchange* pDX) {}

    // Message handlers: one for each message that a map entry can name. A derived class declares its own and maps it.
    // These do what the window's own procedure does; an override that wants that, too, calls them.

    /// WM_CREATE: the window is there, not yet visible; children are made here. -1 gives it up again.
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) { return static_cast<int>(Default()); }
    /// WM_NCCREATE: before OnCreate. FALSE gives the window up again.
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct) { return static_cast<BOOL>(Default()); }
    /// WM_CLOSE: the user wants to close the window. By default it is destroyed.
    afx_msg void OnClose() { Default(); }
    /// WM_SIZE: the size has changed; `cx` and `cy` are those of the client area in pixels, `nType` a SIZE_ value.
    afx_msg void OnSize(UINT nType, int cx, int cy) { Default(); }
    /// WM_MOVE: the client area's upper left corner is there now, in screen coordinates or in those of the parent's
    /// client area.
    afx_msg void OnMove(int x, int y) { Default(); }
    /// WM_SIZING: the user drags the side `nSide` (WMSZ_); the rectangle, in screen coordinates, may be changed.
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect) { Default(); }
    /// WM_MOVING: the user drags the window; the rectangle, in screen coordinates, may be changed.
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect) { Default(); }
    /** @{ */
    /// WM_ENTERSIZEMOVE and WM_EXITSIZEMOVE: the user begins, and ends, dragging the window or one of its sides.
    afx_msg void OnEnterSizeMove() { Default(); }
    afx_msg void OnExitSizeMove() { Default(); }
    /** @} */
    /// WM_WINDOWPOSCHANGING: size, place or order are going to change; the structure may be changed.
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos) { Default(); }
    /// WM_WINDOWPOSCHANGED: they have changed. By default OnSize and OnMove follow from it.
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos) { Default(); }
    /// WM_GETMINMAXINFO: the limits of the window's size, in pixels, which may be changed. It comes before OnCreate for
    /// the first time.
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI) { Default(); }
    /// WM_SHOWWINDOW: the window is about to be shown or hidden; `nStatus` 0 when the program asked for it.
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus) { Default(); }
    /// WM_ENABLE: the window has been enabled or disabled.
    afx_msg void OnEnable(BOOL bEnable) { Default(); }
    /// WM_SETFOCUS: the window has the keyboard focus now; `pOldWnd`, which may be null, had it.
    afx_msg void OnSetFocus(CWnd* pOldWnd) { Default(); }
    /// WM_KILLFOCUS: the window is losing the keyboard focus to `pNewWnd`, which may be null.
    afx_msg void OnKillFocus(CWnd* pNewWnd) { Default(); }
    /// WM_ACTIVATE: a top-level window is activated (WA_ACTIVE, WA_CLICKACTIVE) or no longer active (WA_INACTIVE);
    /// `pWndOther`, which may be null, is its counterpart.
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) { Default(); }
    /// WM_MOUSEACTIVATE: a button goes down over a window that is not active. The MA_ answer says whether that
    /// activates it and whether the click counts.
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) { return static_cast<int>(Default()); }
    /// WM_CHILDACTIVATE: a child window is activated or moved.
    afx_msg void OnChildActivate() { Default(); }
    /// WM_CANCELMODE: a dialog comes up, say; captures and drags should end. By default the capture does.
    afx_msg void OnCancelMode() { Default(); }
    /// WM_STYLECHANGED: the styles (GWL_STYLE) or extended styles (GWL_EXSTYLE) have changed; the structure has the old
    /// and the new ones.
    afx_msg void OnStyleChanged(int nStyleType, LPSTYLESTRUCT lpStyleStruct) { Default(); }
    /// WM_PAINT: the client area has to be painted; an override makes a CPaintDC, and does not call this one.
    afx_msg void OnPaint() { Default(); }
    /// WM_ERASEBKGND: the background has to be erased, which the window class's brush does by default. TRUE: it is
    /// done, or OnPaint does it.
    afx_msg BOOL OnEraseBkgnd(CDC* pDC) { return static_cast<BOOL>(Default()); }
    /// WM_PRINTCLIENT: the client area shall be drawn into another context. `nFlags` are PRF_ flags.
    afx_msg LRESULT OnPrintClient(CDC* pDC, UINT nFlags) { return Default(); }
    /// WM_NCPAINT: the frame has to be painted.
    afx_msg void OnNcPaint() { Default(); }
    /// WM_NCCALCSIZE: which part of the window is the client area; the structure's first rectangle goes from one to the
    /// other.
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp) { Default(); }
    /// WM_NCHITTEST: which part of the window is at a point in screen coordinates; an HT value.
    afx_msg LRESULT OnNcHitTest(CPoint point) { return Default(); }
    /// WM_NCACTIVATE: the caption shall look active, or not. FALSE refuses to become inactive.
    afx_msg BOOL OnNcActivate(BOOL bActive) { return static_cast<BOOL>(Default()); }
    /// WM_THEMECHANGED: the user has chosen another visual style of the system. The answer is the message's result.
    afx_msg LRESULT OnThemeChanged() { return Default(); }
    /// WM_QUERYDRAGICON: the cursor of a minimized window that is dragged and has no icon.
    afx_msg HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
    /// WM_MOUSEMOVE: client coordinates, also outside of the client area while the window has the capture. `nFlags`:
    /// MK_ for buttons and keys that are down.
    afx_msg void OnMouseMove(UINT nFlags, CPoint point) { Default(); }
    /// WM_MOUSEWHEEL: `zDelta` is a multiple or part of WHEEL_DELTA (120), positive away from the user; `pt` in screen
    /// coordinates. FALSE leaves it to the parent.
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) { return static_cast<BOOL>(Default()); }
    /// WM_MOUSEHWHEEL: the wheel is tilted; `zDelta` positive to the right, `pt` in screen coordinates.
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt) { Default(); }
    /// WM_MOUSELEAVE: the mouse has left the client area. Comes once for each TrackMouseEvent that asks for it.
    afx_msg void OnMouseLeave() { Default(); }
    /** @{ */
    /// A button of the mouse (left, right, middle) over the client area, or anywhere while the window has the capture.
    /// Client coordinates; `nFlags`: MK_ for buttons and keys that are down. DblClk comes instead of the second Down,
    /// for window classes with CS_DBLCLKS.
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point) { Default(); }
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point) { Default(); }
    /** @} */
    /** @{ */
    /// The mouse over the frame: `nHitTest` says over which part of it (HT), `point` is in screen coordinates. By
    /// default the system moves, sizes and closes the window.
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point) { Default(); }
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point) { Default(); }
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point) { Default(); }
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point) { Default(); }
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point) { Default(); }
    /** @} */
    /// WM_SETCURSOR: the mouse moves over this window or its child `pWnd`; `nHitTest` says over which part. TRUE: the
    /// cursor is set, or shall stay.
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) { return static_cast<BOOL>(Default()); }
    /// WM_CAPTURECHANGED: the window has lost the mouse to `pWnd`, which may be null. A drag that is still going on
    /// ends here.
    afx_msg void OnCaptureChanged(CWnd* pWnd) { Default(); }
    /// WM_CONTEXTMENU: a menu for `pWnd`, this window or a child, at a point in screen coordinates; (-1, -1) when a key
    /// asked for it.
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos) { Default(); }
    /// WM_DROPFILES: files were dropped, see DragAcceptFiles. DragFinish is the handler's duty.
    afx_msg void OnDropFiles(HDROP hDropInfo) { Default(); }
    /** @{ */
    /// A key goes down or up while the window has the focus: `nChar` is its VK_ code, `nRepCnt` how often it counts,
    /// `nFlags` the scan code and in the higher bits whether it is an extended key and was down before.
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    /** @} */
    /// WM_CHAR: a key gave a character, a UTF-16 unit. It follows OnKeyDown.
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    /** @{ */
    /// As OnKeyDown, OnKeyUp and OnChar, for keys with Alt and for F10. By default they reach the menu.
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags) { Default(); }
    /** @} */
    /// WM_GETDLGCODE: which keys a control wants for itself instead of the dialog; DLGC_ flags.
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    /// WM_TIMER: the time of a timer of SetTimer is up. Comes when the queue is empty, so later on a busy thread, never
    /// twice at once.
    afx_msg void OnTimer(UINT_PTR nIDEvent) { Default(); }
    /// WM_INITMENU: a menu of the window is about to be used.
    afx_msg void OnInitMenu(CMenu* pMenu) { Default(); }
    /// WM_INITMENUPOPUP: a popup is about to show, at the position `nIndex` of its menu.
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu) { Default(); }
    /// WM_MENUSELECT: the user moves over an item; `nFlags` MF_ flags, 0xFFFF with a null menu when the menu closes.
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu) { Default(); }
    /// WM_MENUCHAR: a character that no item answers to. High word MNC_, low word the position of the item.
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu) { return Default(); }
    /// WM_ENTERIDLE: a dialog or menu of the window (MSGF_) waits for the user.
    afx_msg void OnEnterIdle(UINT nWhy, CWnd* pWho) { Default(); }
    /** @{ */
    /// WM_ENTERMENULOOP and WM_EXITMENULOOP: the user begins, and ends, using a menu of the window.
    afx_msg void OnEnterMenuLoop(BOOL bIsTrackPopupMenu) { Default(); }
    afx_msg void OnExitMenuLoop(BOOL bIsTrackPopupMenu) { Default(); }
    /** @} */
    /// WM_SYSCOMMAND: a command of the system menu, SC_ in `nID & 0xFFF0`; `lParam` holds the mouse's screen position
    /// when the mouse chose it.
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam) { Default(); }

    // These do more than the default: destruction, and what a child's parent hands back to it (see OnChildNotify).
    /// WM_DESTROY: the window is being destroyed and still there, as are its children.
    afx_msg void OnDestroy();
    /// WM_NCDESTROY: the last message. Lets go of the window, ends the message loop when it was the main window, and
    /// calls PostNcDestroy; an override calls this one last.
    afx_msg void OnNcDestroy();
    /// WM_PARENTNOTIFY: a child was made or destroyed, or clicked; `message` says which in its low word. Children with
    /// permanent objects hear of their making and end first.
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    /// WM_SYSCOLORCHANGE: the user has changed colours. A top-level window tells all permanent objects below it.
    afx_msg void OnSysColorChange();
    /// WM_SETTINGCHANGE: the user has changed a setting; `lpszSection`, which may be null, names it. A top-level window
    /// tells all permanent objects below it.
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    /// WM_CTLCOLOR: the colours of a child, set in its context; the answer is the brush of its background, not owned by
    /// it. `nCtlColor` is a CTLCOLOR_ value. The child's own CtlColor is asked first.
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    /** @{ */
    /// An owner-drawn control or menu: draw an item, tell its size, hear of its end, compare two of them (-1, 0, 1). A
    /// control with a permanent object is asked itself, see CWnd::OnChildNotify.
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    /** @} */
    /** @{ */
    /// A scroll bar was used: `nSBCode` an SB_ code, `nPos` the position while it is dragged (16 bits; GetScrollInfo
    /// tells all 32). `pScrollBar` is the control, null for the window's own bar. A control with a permanent object is
    /// asked first.
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    /** @} */

    HWND m_hWndOwner = nullptr;   ///< Set by SetOwner; null: the parent.
    WNDPROC m_pfnSuper = nullptr; ///< The procedure before ours; null for the system's.
    BOOL m_modalRunning = FALSE;  ///< Between the start of a modal loop and EndModalLoop.
    int m_modalResult = -1;       ///< What EndModalLoop was given last; -1 before.

    DECLARE_MESSAGE_MAP()

private:
    explicit CWnd(HWND hWnd) : m_hWnd(hWnd) {}
    BOOL DispatchToMap(AFX_MESSAGE& message);

    friend struct WindowState;
};
