/// @file
/// CComboBox: a combo box. Indices count from 0; failing operations give CB_ERR.
#pragma once

#include "../windows/CWnd.h"

/// A combo box of the system. Indices count from 0; CB_ERR (-1) says that there is no such item, CB_ERRSPACE (-2) that
/// memory has run out.
/// @ingroup framework_controls
class KY_FRAMEWORK_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    using CWnd::Create;
    /// A combo box, at `rect` in client coordinates of `pParentWnd`, which must not be null. Add WS_VISIBLE and, for
    /// controls that take the focus, WS_TABSTOP. FALSE on failure. The rectangle's height is that of the box with its
    /// list open.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// Adds an item at the end, or at its place with CBS_SORT. Its index.
    int AddString(LPCTSTR lpszString) { return Send(CB_ADDSTRING, 0, LPARAM(lpszString)); }
    /// Adds an item at an index, -1 for the end, also with CBS_SORT. Its index.
    int InsertString(int nIndex, LPCTSTR lpszString) { return Send(CB_INSERTSTRING, nIndex, LPARAM(lpszString)); }
    /// Takes an item out. The number of items left.
    int DeleteString(UINT nIndex) { return Send(CB_DELETESTRING, nIndex); }
    /// Takes all items out and empties the edit field.
    void ResetContent() { Send(CB_RESETCONTENT); }
    /** @{ */
    /// The next item that begins with the text, or is equal to it (Exact), in any case of letters; the search starts
    /// behind `nStartAfter` (-1: at the first) and goes around the end.
    int FindString(int nStartAfter, LPCTSTR lpszString) const {
        return Send(CB_FINDSTRING, nStartAfter, LPARAM(lpszString));
    }
    int FindStringExact(int nStartAfter, LPCTSTR lpszString) const {
        return Send(CB_FINDSTRINGEXACT, nStartAfter, LPARAM(lpszString));
    }
    /** @} */
    /// Selects the next item that begins with the text; nothing changes when there is none. Its index.
    int SelectString(int nStartAfter, LPCTSTR lpszString) {
        return Send(CB_SELECTSTRING, nStartAfter, LPARAM(lpszString));
    }
    int GetCount() const { return Send(CB_GETCOUNT); } ///< The number of items.
    /** @{ */
    /// The selected item, CB_ERR for none. Setting it (-1 for none) tells the parent nothing, and gives the index.
    int GetCurSel() const { return Send(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Send(CB_SETCURSEL, nSelect); }
    /** @} */
    /// UTF-16 units without the terminator.
    int GetLBTextLen(int nIndex) const { return Send(CB_GETLBTEXTLEN, nIndex); }
    /// The text of an item; empty when there is no such item.
    void GetLBText(int nIndex, CString& rString) const;
    /** @{ */
    /// A number of the program's own beside each item, 0 at first.
    DWORD_PTR GetItemData(int nIndex) const { return SendMessage(CB_GETITEMDATA, nIndex); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) { return Send(CB_SETITEMDATA, nIndex, LPARAM(dwItemData)); }
    /** @} */
    /// The selection in the edit field: low word start, high word end.
    DWORD GetEditSel() const { return static_cast<DWORD>(Send(CB_GETEDITSEL)); }
    /// Selects in the edit field; 0 to -1 selects all. FALSE without an edit field.
    BOOL SetEditSel(int nStartChar, int nEndChar) { return Send(CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar)); }
    /// The greatest number of characters that the user can type; 0 for no limit.
    BOOL LimitText(int nMaxChars) { return Send(CB_LIMITTEXT, nMaxChars); }
    /** @{ */
    /// The height of an item in pixels, of the box without its list for -1. Items differ in owner-drawn lists only.
    int GetItemHeight(int nIndex) const { return Send(CB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight) { return Send(CB_SETITEMHEIGHT, nIndex, cyItemHeight); }
    /** @} */
    /// Opens or closes the list.
    void ShowDropDown(BOOL bShowIt = TRUE) { Send(CB_SHOWDROPDOWN, bShowIt); }
    BOOL GetDroppedState() const { return Send(CB_GETDROPPEDSTATE); } ///< The list is open.
    /** @{ */
    /// The least width of the open list, in pixels. Both give the width that counts.
    int GetDroppedWidth() const { return Send(CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT nWidth) { return Send(CB_SETDROPPEDWIDTH, nWidth); }
    /** @} */

    /** @{ */
    /// Owner-drawn boxes override the operations that their style calls for: draw an item, tell its height in pixels,
    /// compare two items (-1, 0, 1), hear of the end of one.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    /** @} */

protected:
    /// Calls the operations for owner-drawn boxes.
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, wParam, lParam));
    }
};
