/// @file
/// CDataExchange: moves values between a dialog's controls and its members, and binds members to controls.
#pragma once

#include "../windows/CWnd.h"

/// What DoDataExchange receives. The DDX_ functions do the work, one line per control.
/// @ingroup framework_dialogs
class KY_FRAMEWORK_API CDataExchange {
public:
    /// For a window whose children are the controls. CWnd::UpdateData makes one and catches what Fail throws.
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate;          ///< TRUE: from the controls to the members.
    CWnd* m_pDlgWnd;                  ///< The window that the controls are children of.
    HWND m_hWndLastControl = nullptr; ///< Gets the focus when a check fails.
    BOOL m_bEditLastControl = FALSE;  ///< Its text is selected as well then.

    /** @{ */
    /// Finds a control by its id and makes it the one that Fail gives the focus to; Edit also lets Fail select its
    /// text. Throws CNotSupportedException* when there is no such control.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    /** @} */
    /// Ends a save that failed a check: sets the focus to the control prepared last and throws CUserException*. Tell
    /// the user before.
    [[noreturn]] void Fail();
};

/// @addtogroup framework_dialogs
/// @{

/// Makes `rControl` the object of the control, receiving its messages, the first time it is called. Throws
/// CNotSupportedException* when there is no such control.
KY_FRAMEWORK_API void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
/// The text of a control, as it stands. Throws CNotSupportedException* when there is no such control.
KY_FRAMEWORK_API void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
/// The state of a check box: BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE; other values show as unchecked.
KY_FRAMEWORK_API void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// The index of the selection in a combo box, -1 for none.
KY_FRAMEWORK_API void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);

/// @}
