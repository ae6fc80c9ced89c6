/// @file
/// CListBox: a list box. Indices count from 0; failing operations give LB_ERR.
#pragma once

#include "../windows/CWnd.h"

/// A list box of the system. Indices count from 0; LB_ERR (-1) says that there is no such item, LB_ERRSPACE (-2) that
/// memory has run out. With LBS_NOTIFY its parent hears of the selection through ON_LBN_SELCHANGE.
/// @ingroup framework_controls
class KY_FRAMEWORK_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
public:
    using CWnd::Create;
    /// A list box with LBS_ styles, at `rect` in client coordinates of `pParentWnd`, which must not be null. Add
    /// WS_VISIBLE and, for controls that take the focus, WS_TABSTOP. FALSE on failure.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// Adds an item at the end, or at its place with LBS_SORT. Its index.
    int AddString(LPCTSTR lpszItem) { return Send(LB_ADDSTRING, 0, LPARAM(lpszItem)); }
    /// Adds an item at an index, -1 for the end, also with LBS_SORT. Its index.
    int InsertString(int nIndex, LPCTSTR lpszItem) { return Send(LB_INSERTSTRING, nIndex, LPARAM(lpszItem)); }
    /// Takes an item out. The number of items left.
    int DeleteString(UINT nIndex) { return Send(LB_DELETESTRING, nIndex); }
    /// Takes all items out.
    void ResetContent() { Send(LB_RESETCONTENT); }
    /** @{ */
    /// The next item that begins with the text, or is equal to it (Exact), in any case of letters; the search starts
    /// behind `nStartAfter` (-1: at the first) and goes around the end.
    int FindString(int nStartAfter, LPCTSTR lpszItem) const {
        return Send(LB_FINDSTRING, nStartAfter, LPARAM(lpszItem));
    }
    int FindStringExact(int nStartAfter, LPCTSTR lpszItem) const {
        return Send(LB_FINDSTRINGEXACT, nStartAfter, LPARAM(lpszItem));
    }
    /** @} */
    int GetCount() const { return Send(LB_GETCOUNT); }                       ///< The number of items.
    int GetTextLen(int nIndex) const { return Send(LB_GETTEXTLEN, nIndex); } ///< UTF-16 units without the terminator.
    /// The text of an item; empty when there is no such item.
    void GetText(int nIndex, CString& rString) const;
    /** @{ */
    /// A number of the program's own beside each item, 0 at first.
    DWORD_PTR GetItemData(int nIndex) const { return SendMessage(LB_GETITEMDATA, nIndex); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) { return Send(LB_SETITEMDATA, nIndex, LPARAM(dwItemData)); }
    /** @} */
    /// Client coordinates, also of an item out of view.
    int GetItemRect(int nIndex, LPRECT lpRect) const { return Send(LB_GETITEMRECT, nIndex, LPARAM(lpRect)); }
    /** @{ */
    /// The height of an item in pixels. Items differ with LBS_OWNERDRAWVARIABLE only.
    int GetItemHeight(int nIndex) const { return Send(LB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight) { return Send(LB_SETITEMHEIGHT, nIndex, cyItemHeight); }
    /** @} */
    /** @{ */
    /// The first item in view; setting it scrolls.
    int GetTopIndex() const { return Send(LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return Send(LB_SETTOPINDEX, nIndex); }
    /** @} */
    /** @{ */
    /// The selected item of a list with one selection, LB_ERR for none. Setting it (-1 for none) tells the parent
    /// nothing.
    int GetCurSel() const { return Send(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Send(LB_SETCURSEL, nSelect); }
    /** @} */
    /** @{ */
    /// Whether an item is selected, in lists with several selections; the index -1 sets all.
    int GetSel(int nIndex) const { return Send(LB_GETSEL, nIndex); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) { return Send(LB_SETSEL, bSelect, nIndex); }
    /** @} */
    /// The number of selected items; LB_ERR for lists with one selection.
    int GetSelCount() const { return Send(LB_GETSELCOUNT); }

    /** @{ */
    /// Owner-drawn lists override the operations that their style calls for: draw an item, tell its height in pixels,
    /// compare two items (-1, 0, 1), hear of the end of one.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    /** @} */

protected:
    /// Calls the operations for owner-drawn lists.
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, wParam, lParam));
    }
};
