/// @file
/// CToolTipCtrl: a tool tip window that serves any number of tools.
#pragma once

#include "../windows/CWnd.h"

#include <commctrl.h>

#ifndef LPSTR_TEXTCALLBACK
/// The text of a tool that asks for it with TTN_GETDISPINFO each time.
#define LPSTR_TEXTCALLBACK LPSTR_TEXTCALLBACKW
#endif

/// A window that shows a tip over each of its tools. `<afxcmn.h>`.
///
/// A tool is a rectangle of a window, in client coordinates, with an id greater than 0; or, with id 0, a whole child
/// window. RelayEvent must see the mouse messages of the tools' windows (see CWnd::PreTranslateMessage).
/// @ingroup framework_controls
class KY_FRAMEWORK_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    using CWnd::Create;
    /// A tool tip window, hidden until a tip shows. `pParentWnd` becomes its owner; `dwStyle` adds TTS_ styles. FALSE
    /// on failure.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    /// Adds a tool with its text, which is copied, or LPSTR_TEXTCALLBACK. `lpRectTool` is for tools with an id. FALSE
    /// on failure.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    /// As above with a string resource; FALSE also when there is none.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    /// Takes a tool out; one that is not there is ignored.
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const { return static_cast<int>(SendMessage(TTM_GETTOOLCOUNT)); } ///< The number of tools.
    /// Describes a tool, but its text, for which see GetText. FALSE when there is no such tool.
    BOOL GetToolInfo(TOOLINFO& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    /// Changes a tool that the structure, with its size filled in, names and describes.
    void SetToolInfo(LPTOOLINFO lpToolInfo) { SendMessage(TTM_SETTOOLINFO, 0, LPARAM(lpToolInfo)); }
    /// Moves the rectangle of a tool, in client coordinates of `pWnd`.
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    /// The text of a tool, up to 1023 characters; empty when there is no such tool.
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    /// Changes the text of a tool, which is copied; a tip that shows changes with it.
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);

    void Activate(BOOL bActivate) { SendMessage(TTM_ACTIVATE, bActivate); } ///< FALSE: no tips show until TRUE.
    /// Lets the tool tip see a mouse message of a tool's window; others are ignored.
    void RelayEvent(LPMSG lpMsg) { SendMessage(TTM_RELAYEVENT, 0, LPARAM(lpMsg)); }
    void Pop() { SendMessage(TTM_POP); }       ///< Hides the tip that shows.
    void Update() { SendMessage(TTM_UPDATE); } ///< Draws the tip that shows anew.
    /// A tracking tip shows where and when it is told to; its tool has TTF_TRACK. `lpti` names it, with the structure's
    /// size filled in.
    void TrackActivate(LPTOOLINFO lpti, BOOL bActivate) { SendMessage(TTM_TRACKACTIVATE, bActivate, LPARAM(lpti)); }
    /// The place of the tracking tip, in screen coordinates.
    void TrackPosition(LPPOINT lppt) { SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(lppt->x, lppt->y)); }
    /** @{ */
    /// Milliseconds until a tip shows (TTDT_INITIAL), shows over the next tool (TTDT_RESHOW) and vanishes
    /// (TTDT_AUTOPOP). TTDT_AUTOMATIC sets all three in proportion.
    void SetDelayTime(DWORD dwDuration, int iTime) { SendMessage(TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0)); }
    int GetDelayTime(DWORD dwDuration) const { return static_cast<int>(SendMessage(TTM_GETDELAYTIME, dwDuration)); }
    /** @} */
    /** @{ */
    /// Pixels, beyond which a text breaks into lines; -1 for one line of any width. Setting gives the width before.
    int SetMaxTipWidth(int iWidth) { return static_cast<int>(SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth)); }
    int GetMaxTipWidth() const { return static_cast<int>(SendMessage(TTM_GETMAXTIPWIDTH)); }
    /** @} */
    /// A title of at most 99 characters over the texts of all tools, with a TTI_ picture. FALSE on failure.
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle) {
        return static_cast<BOOL>(SendMessage(TTM_SETTITLE, uIcon, LPARAM(lpstrTitle)));
    }
    /** @{ */
    /// The colour of the tips' ground, and of their text. The former one.
    COLORREF SetTipBkColor(COLORREF clr);
    COLORREF SetTipTextColor(COLORREF clr);
    /** @} */

private:
    void Describe(TOOLINFO& info, CWnd* pWnd, UINT_PTR nIDTool) const;
};
