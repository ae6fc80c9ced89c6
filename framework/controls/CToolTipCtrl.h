// CToolTipCtrl: a tool tip window that serves any number of tools.
#pragma once

#include <commctrl.h>

#include "../windows/CWnd.h"

// The text of a tool that asks for it with TTN_GETDISPINFO each time.
#ifndef LPSTR_TEXTCALLBACK
#define LPSTR_TEXTCALLBACK LPSTR_TEXTCALLBACKW
#endif

/// A tool is a rectangle of a window, in client coordinates, with an id greater than 0; or, with id 0, a whole child
/// window. RelayEvent must see the mouse messages of the tools' windows (see CWnd::PreTranslateMessage).
class KY_FRAMEWORK_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    using CWnd::Create;
    /// `dwStyle` adds TTS_ styles.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const { return static_cast<int>(SendMessage(TTM_GETTOOLCOUNT)); }
    BOOL GetToolInfo(TOOLINFO& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo) { SendMessage(TTM_SETTOOLINFO, 0, LPARAM(lpToolInfo)); }
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);

    void Activate(BOOL bActivate) { SendMessage(TTM_ACTIVATE, bActivate); }
    void RelayEvent(LPMSG lpMsg) { SendMessage(TTM_RELAYEVENT, 0, LPARAM(lpMsg)); }
    void Pop() { SendMessage(TTM_POP); }
    void Update() { SendMessage(TTM_UPDATE); }
    /// A tracking tip shows where and when it is told to (its tool has TTF_TRACK); screen coordinates.
    void TrackActivate(LPTOOLINFO lpti, BOOL bActivate) { SendMessage(TTM_TRACKACTIVATE, bActivate, LPARAM(lpti)); }
    void TrackPosition(LPPOINT lppt) { SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(lppt->x, lppt->y)); }
    /// Milliseconds; TTDT_AUTOPOP, TTDT_INITIAL, TTDT_RESHOW.
    void SetDelayTime(DWORD dwDuration, int iTime) { SendMessage(TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0)); }
    int GetDelayTime(DWORD dwDuration) const { return static_cast<int>(SendMessage(TTM_GETDELAYTIME, dwDuration)); }
    /// Pixels; -1 for one line of any width. Returns the width before.
    int SetMaxTipWidth(int iWidth) { return static_cast<int>(SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth)); }
    int GetMaxTipWidth() const { return static_cast<int>(SendMessage(TTM_GETMAXTIPWIDTH)); }
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle) {
        return static_cast<BOOL>(SendMessage(TTM_SETTITLE, uIcon, LPARAM(lpstrTitle)));
    }
    COLORREF SetTipBkColor(COLORREF clr);
    COLORREF SetTipTextColor(COLORREF clr);

private:
    void Describe(TOOLINFO& info, CWnd* pWnd, UINT_PTR nIDTool) const;
};
