// CDataExchange.cpp - between controls and members.
#include <afxwin.h>

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    const HWND control = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), nIDC);
    if (control == nullptr)
        AfxThrowNotSupportedException();
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    const HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_hWndLastControl != nullptr) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessage(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd != nullptr)
        return; // bound already
    if (!rControl.SubclassWindow(pDX->PrepareCtrl(nIDC)))
        AfxThrowNotSupportedException();
}

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    CWnd* const control = CWnd::FromHandle(pDX->PrepareEditCtrl(nIDC));
    if (pDX->m_bSaveAndValidate) {
        control->GetWindowText(value);
        return;
    }
    CString shown;
    control->GetWindowText(shown);
    if (shown != value)
        control->SetWindowText(value);
}

void DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
    else
        ::SendMessage(control, BM_SETCHECK, value < BST_UNCHECKED || value > BST_INDETERMINATE ? 0 : value, 0);
}

void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessage(control, CB_GETCURSEL, 0, 0));
    else
        ::SendMessage(control, CB_SETCURSEL, index, 0);
}
