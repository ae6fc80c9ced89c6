/// @file
/// CEdit: an edit control. Positions and lengths are in UTF-16 units, lines are counted from 0.
#pragma once

#include "../windows/CWnd.h"

/// An edit control of the system. Positions are in UTF-16 units from 0; -1 as the end of a selection means the text's
/// end. Lines are those on the screen, counted from 0. Its parent hears of changes through ON_EN_CHANGE.
/// @ingroup framework_controls
class KY_FRAMEWORK_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    using CWnd::Create;
    /// An edit control with ES_ styles, at `rect` in client coordinates of `pParentWnd`, which must not be null. Add
    /// WS_VISIBLE and, for controls that take the focus, WS_TABSTOP. FALSE on failure.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const { return static_cast<BOOL>(SendMessage(EM_CANUNDO)); } ///< There is something to undo.
    /// The user has changed the text since it was set or SetModify(FALSE).
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, bModified); } ///< Sets what GetModify gives.
    /// The rectangle of the text, in client coordinates.
    void GetRect(LPRECT lpRect) const { SendMessage(EM_GETRECT, 0, LPARAM(lpRect)); }
    /// Sets the rectangle of the text of a multi-line control, in client coordinates.
    void SetRect(LPCRECT lpRect) { SendMessage(EM_SETRECT, 0, LPARAM(lpRect)); }
    /// The first selected position and the one behind the last; both the caret's when nothing is selected.
    void GetSel(int& nStartChar, int& nEndChar) const;
    /// Low word start, high word end, cut to 16 bits.
    DWORD GetSel() const { return static_cast<DWORD>(SendMessage(EM_GETSEL)); }
    /// 0 to -1 selects all, a start of -1 nothing. The caret is scrolled into view unless `bNoScroll`.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    /// As above, with the start in the low word and the end in the high word.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE) {
        SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
    }
    /// Replaces the selection, or inserts at the caret. The user can undo it when `bCanUndo`.
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        SendMessage(EM_REPLACESEL, bCanUndo, LPARAM(lpszNewText));
    }
    /// The greatest number of characters that the user can type; 0 for the control's own limit. SetWindowText is not
    /// limited.
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, nChars); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); } ///< In UTF-16 units.
    /// 1 for a control without text.
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    /// The position at which a line begins; -1 as the line is that with the caret. -1 when there is no such line.
    int LineIndex(int nLine = -1) const { return static_cast<int>(SendMessage(EM_LINEINDEX, nLine)); }
    /// The length of the line that holds a *position*; -1 gives the number of unselected units in the selected lines.
    int LineLength(int nLine = -1) const { return static_cast<int>(SendMessage(EM_LINELENGTH, nLine)); }
    /// The line that holds a position; -1 as the position is the caret's.
    int LineFromChar(int nIndex = -1) const { return static_cast<int>(SendMessage(EM_LINEFROMCHAR, nIndex)); }
    /// Scrolls a multi-line control down by lines and right by characters; negative the other way.
    void LineScroll(int nLines, int nChars = 0) { SendMessage(EM_LINESCROLL, nChars, nLines); }
    /// Pixels: low word left, high word right.
    DWORD GetMargins() const { return static_cast<DWORD>(SendMessage(EM_GETMARGINS)); }
    /// In pixels.
    void SetMargins(UINT nLeft, UINT nRight) {
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(nLeft, nRight));
    }
    /// The user can then select and copy, not change. FALSE on failure.
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) { return static_cast<BOOL>(SendMessage(EM_SETREADONLY, bReadOnly)); }
    /** @{ */
    /// The character that is shown instead of each one typed; 0 when the text itself is shown.
    TCHAR GetPasswordChar() const { return static_cast<TCHAR>(SendMessage(EM_GETPASSWORDCHAR)); }
    void SetPasswordChar(TCHAR ch) { SendMessage(EM_SETPASSWORDCHAR, ch); }
    /** @} */
    /** @{ */
    /// Shows a balloon that points at the text, with one of the TTI_ pictures; the texts are copied. FALSE when the
    /// system has none, as under Wine.
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip) {
        return static_cast<BOOL>(SendMessage(EM_SHOWBALLOONTIP, 0, LPARAM(pEditBalloonTip)));
    }
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE);
    /** @} */
    BOOL HideBalloonTip() { return static_cast<BOOL>(SendMessage(EM_HIDEBALLOONTIP)); } ///< FALSE on failure.

    /// Undoes the last change; once more, and it is done again. FALSE on failure.
    BOOL Undo() { return static_cast<BOOL>(SendMessage(EM_UNDO)); }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); } ///< Nothing can be undone any more.
    /** @{ */
    /// As the commands of the Edit menu: deletes the selection, copies it to the clipboard, does both, or replaces it
    /// from the clipboard.
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
    /** @} */
};
