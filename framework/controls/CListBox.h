// CListBox: a list box. Indices count from 0; failing operations give LB_ERR.
#pragma once

#include "../windows/CWnd.h"

/// A list box of the system. Indices count from 0; LB_ERR (-1) says that there is no such item.
class KY_FRAMEWORK_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int AddString(LPCTSTR lpszItem) { return Send(LB_ADDSTRING, 0, LPARAM(lpszItem)); }
    int InsertString(int nIndex, LPCTSTR lpszItem) { return Send(LB_INSERTSTRING, nIndex, LPARAM(lpszItem)); }
    int DeleteString(UINT nIndex) { return Send(LB_DELETESTRING, nIndex); }
    void ResetContent() { Send(LB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCTSTR lpszItem) const {
        return Send(LB_FINDSTRING, nStartAfter, LPARAM(lpszItem));
    }
    int FindStringExact(int nStartAfter, LPCTSTR lpszItem) const {
        return Send(LB_FINDSTRINGEXACT, nStartAfter, LPARAM(lpszItem));
    }
    int GetCount() const { return Send(LB_GETCOUNT); }
    int GetTextLen(int nIndex) const { return Send(LB_GETTEXTLEN, nIndex); }
    void GetText(int nIndex, CString& rString) const;
    DWORD_PTR GetItemData(int nIndex) const { return SendMessage(LB_GETITEMDATA, nIndex); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) { return Send(LB_SETITEMDATA, nIndex, LPARAM(dwItemData)); }
    int GetItemRect(int nIndex, LPRECT lpRect) const { return Send(LB_GETITEMRECT, nIndex, LPARAM(lpRect)); }
    int GetItemHeight(int nIndex) const { return Send(LB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight) { return Send(LB_SETITEMHEIGHT, nIndex, cyItemHeight); }
    int GetTopIndex() const { return Send(LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return Send(LB_SETTOPINDEX, nIndex); }
    /// Lists with one selection.
    int GetCurSel() const { return Send(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Send(LB_SETCURSEL, nSelect); }
    /// Lists with several.
    int GetSel(int nIndex) const { return Send(LB_GETSEL, nIndex); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) { return Send(LB_SETSEL, bSelect, nIndex); }
    int GetSelCount() const { return Send(LB_GETSELCOUNT); }

    /// Owner-drawn lists.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, wParam, lParam));
    }
};
