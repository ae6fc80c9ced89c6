// CComboBox: a combo box. Indices count from 0; failing operations give CB_ERR.
#pragma once

#include "../windows/CWnd.h"

/// A combo box of the system. Indices count from 0; CB_ERR (-1) says that there is no such item.
class KY_FRAMEWORK_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    using CWnd::Create;
    /// The rectangle's height is that of the box with its list open.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int AddString(LPCTSTR lpszString) { return Send(CB_ADDSTRING, 0, LPARAM(lpszString)); }
    int InsertString(int nIndex, LPCTSTR lpszString) { return Send(CB_INSERTSTRING, nIndex, LPARAM(lpszString)); }
    int DeleteString(UINT nIndex) { return Send(CB_DELETESTRING, nIndex); }
    void ResetContent() { Send(CB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCTSTR lpszString) const {
        return Send(CB_FINDSTRING, nStartAfter, LPARAM(lpszString));
    }
    int FindStringExact(int nStartAfter, LPCTSTR lpszString) const {
        return Send(CB_FINDSTRINGEXACT, nStartAfter, LPARAM(lpszString));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszString) {
        return Send(CB_SELECTSTRING, nStartAfter, LPARAM(lpszString));
    }
    int GetCount() const { return Send(CB_GETCOUNT); }
    int GetCurSel() const { return Send(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Send(CB_SETCURSEL, nSelect); }
    int GetLBTextLen(int nIndex) const { return Send(CB_GETLBTEXTLEN, nIndex); }
    void GetLBText(int nIndex, CString& rString) const;
    DWORD_PTR GetItemData(int nIndex) const { return SendMessage(CB_GETITEMDATA, nIndex); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) { return Send(CB_SETITEMDATA, nIndex, LPARAM(dwItemData)); }
    DWORD GetEditSel() const { return static_cast<DWORD>(Send(CB_GETEDITSEL)); }
    BOOL SetEditSel(int nStartChar, int nEndChar) { return Send(CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar)); }
    BOOL LimitText(int nMaxChars) { return Send(CB_LIMITTEXT, nMaxChars); }
    int GetItemHeight(int nIndex) const { return Send(CB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight) { return Send(CB_SETITEMHEIGHT, nIndex, cyItemHeight); }
    void ShowDropDown(BOOL bShowIt = TRUE) { Send(CB_SHOWDROPDOWN, bShowIt); }
    BOOL GetDroppedState() const { return Send(CB_GETDROPPEDSTATE); }
    int GetDroppedWidth() const { return Send(CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT nWidth) { return Send(CB_SETDROPPEDWIDTH, nWidth); }

    /// Owner-drawn boxes.
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
