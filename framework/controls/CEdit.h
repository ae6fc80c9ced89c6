// CEdit: an edit control. Positions and lengths are in UTF-16 units, lines are counted from 0.
#pragma once

#include "../windows/CWnd.h"

/// An edit control of the system. Positions are in characters from 0; -1 as the end of a selection means the text's
/// end.
class KY_FRAMEWORK_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const { return static_cast<BOOL>(SendMessage(EM_CANUNDO)); }
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, bModified); }
    void GetRect(LPRECT lpRect) const { SendMessage(EM_GETRECT, 0, LPARAM(lpRect)); }
    void SetRect(LPCRECT lpRect) { SendMessage(EM_SETRECT, 0, LPARAM(lpRect)); }
    void GetSel(int& nStartChar, int& nEndChar) const;
    /// Low word start, high word end.
    DWORD GetSel() const { return static_cast<DWORD>(SendMessage(EM_GETSEL)); }
    /// 0 to -1 selects all, a start of -1 nothing. The caret is scrolled into view unless `bNoScroll`.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE) {
        SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
    }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        SendMessage(EM_REPLACESEL, bCanUndo, LPARAM(lpszNewText));
    }
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, nChars); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    int LineIndex(int nLine = -1) const { return static_cast<int>(SendMessage(EM_LINEINDEX, nLine)); }
    int LineLength(int nLine = -1) const { return static_cast<int>(SendMessage(EM_LINELENGTH, nLine)); }
    int LineFromChar(int nIndex = -1) const { return static_cast<int>(SendMessage(EM_LINEFROMCHAR, nIndex)); }
    void LineScroll(int nLines, int nChars = 0) { SendMessage(EM_LINESCROLL, nChars, nLines); }
    DWORD GetMargins() const { return static_cast<DWORD>(SendMessage(EM_GETMARGINS)); }
    void SetMargins(UINT nLeft, UINT nRight) {
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(nLeft, nRight));
    }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) { return static_cast<BOOL>(SendMessage(EM_SETREADONLY, bReadOnly)); }
    TCHAR GetPasswordChar() const { return static_cast<TCHAR>(SendMessage(EM_GETPASSWORDCHAR)); }
    void SetPasswordChar(TCHAR ch) { SendMessage(EM_SETPASSWORDCHAR, ch); }
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip) {
        return static_cast<BOOL>(SendMessage(EM_SHOWBALLOONTIP, 0, LPARAM(pEditBalloonTip)));
    }
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE);
    BOOL HideBalloonTip() { return static_cast<BOOL>(SendMessage(EM_HIDEBALLOONTIP)); }

    BOOL Undo() { return static_cast<BOOL>(SendMessage(EM_UNDO)); }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
};
