// CDataExchange: moves values between a dialog's controls and its members, and binds members to controls.
#pragma once

#include "../windows/CWnd.h"

/// What DoDataExchange receives. The DDX_ functions do the work, one line per control.
class KY_FRAMEWORK_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate; ///< TRUE: from the controls to the members.
    CWnd* m_pDlgWnd;
    HWND m_hWndLastControl = nullptr; ///< Gets the focus when a check fails.
    BOOL m_bEditLastControl = FALSE;

    /// Throws CNotSupportedException* when there is no such control.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    /// Sets the focus to the control checked last and throws CUserException*. Tell the user before.
    [[noreturn]] void Fail();
};

/// Makes `rControl` the object of the control, receiving its messages.
KY_FRAMEWORK_API void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
KY_FRAMEWORK_API void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
/// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
KY_FRAMEWORK_API void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// The selection's index, -1 for none.
KY_FRAMEWORK_API void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
