// Controls.cpp - creation of the standard controls, and the owner drawing that their parents hand back.
#include <afxcmn.h>

#include "../windows/WindowState.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("STATIC"), lpszText, dwStyle, rect, pParentWnd, nID);
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("BUTTON"), lpszCaption, dwStyle, rect, pParentWnd, nID);
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("EDIT"), nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("LISTBOX"), nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("COMBOBOX"), nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("SCROLLBAR"), nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    LoadCommonControls(ICC_PROGRESS_CLASS);
    return CWnd::Create(PROGRESS_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const {
    PBRANGE range{};
    SendMessage(PBM_GETRANGE, FALSE, reinterpret_cast<LPARAM>(&range));
    nLower = range.iLow;
    nUpper = range.iHigh;
}

// CEdit ---------------------------------------------------------------------------------------------------------------

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    DWORD start = 0;
    DWORD end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    SendMessage(EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        SendMessage(EM_SCROLLCARET);
}

BOOL CEdit::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon) {
    EDITBALLOONTIP tip{sizeof(tip), lpszTitle, lpszText, ttiIcon};
    return ShowBalloonTip(&tip);
}

// Lists ---------------------------------------------------------------------------------------------------------------

void CListBox::GetText(int nIndex, CString& rString) const {
    rString.Empty();
    const int length = GetTextLen(nIndex);
    if (length <= 0)
        return;
    Send(LB_GETTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(rString.GetBuffer(length)));
    rString.ReleaseBuffer(length);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    rString.Empty();
    const int length = GetLBTextLen(nIndex);
    if (length <= 0)
        return;
    Send(CB_GETLBTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(rString.GetBuffer(length)));
    rString.ReleaseBuffer(length);
}

// Owner drawing -------------------------------------------------------------------------------------------------------

namespace {

/// Hands a list's owner-draw message to its operation. False for other messages.
template <class List>
bool OwnerDraw(List& list, UINT message, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        list.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return true;
    case WM_MEASUREITEM:
        list.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return true;
    case WM_COMPAREITEM:
        *pResult = list.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return true;
    case WM_DELETEITEM:
        list.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return true;
    default:
        return false;
    }
}

} // namespace

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return OwnerDraw(*this, message, lParam, pResult) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return OwnerDraw(*this, message, lParam, pResult) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

// A control with an owner-draw style overrides the operations that the style calls for.
void CStatic::DrawItem(LPDRAWITEMSTRUCT) { ASSERT(FALSE); }
void CButton::DrawItem(LPDRAWITEMSTRUCT) { ASSERT(FALSE); }
void CListBox::DrawItem(LPDRAWITEMSTRUCT) { ASSERT(FALSE); }
void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
int CListBox::CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}
void CComboBox::DrawItem(LPDRAWITEMSTRUCT) { ASSERT(FALSE); }
void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}
