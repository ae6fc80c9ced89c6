/// @file
/// CDialog: a window made from a dialog template, modal or not.
#pragma once

#include "../windows/CWnd.h"

/// A dialog made from a template resource: modal with DoModal, or modeless with Create. A modal one usually stands on
/// the stack, and what it asked for is read from its members after DoModal.
/// @ingroup framework_dialogs
class KY_FRAMEWORK_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    /// For dialogs without a mode, and those whose template is given later.
    CDialog() = default;
    /** @{ */
    /// For DoModal: the template's name or id and the owner, null for the main window. A name must live until DoModal
    /// returns.
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    /** @} */

    using CWnd::Create;
    /** @{ */
    /// Makes the dialog without a mode. The template is a resource of the program or of an added resource module; null
    /// owner: the main window. FALSE when there is no template or creation failed. Without WS_VISIBLE in the template,
    /// show it.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    /** @} */
    /// Makes the dialog without a mode from a template in memory. FALSE on failure.
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);
    /// Gives a modal dialog its template in memory, which must live until DoModal returns. Always TRUE.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);

    /// Shows the dialog, disables its owner, and runs until EndDialog; returns what that was given, -1 when the dialog
    /// could not be created. Without a parent, the main window is the owner.
    virtual INT_PTR DoModal();
    /// Lets DoModal return `nResult` once the message being handled is done. Not for dialogs without a mode, which end
    /// by DestroyWindow.
    void EndDialog(int nResult);

    /// Turns dialog units, in which templates measure, into pixels, in place.
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    /** @{ */
    /// The id of the button that Enter presses. GetDefID has it in the low word, DC_HASDEFID in the high word when
    /// there is one.
    void SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }
    DWORD GetDefID() const { return static_cast<DWORD>(SendMessage(DM_GETDEFID)); }
    /** @} */
    /** @{ */
    /// Moves the focus to the next control with WS_TABSTOP, to the one before, or to the one given.
    void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* pWndCtrl) { SendMessage(WM_NEXTDLGCTL, WPARAM(pWndCtrl->GetSafeHwnd()), TRUE); }
    /** @} */

    /// Called when all controls are there, before the dialog shows. This one brings the controls up to date through
    /// UpdateData(FALSE). TRUE: the focus goes to the first control; FALSE when the override set it itself.
    virtual BOOL OnInitDialog();

    /// Tab, arrows, Enter and Escape do what they do in dialogs.
    BOOL PreTranslateMessage(MSG* pMsg) override;
    /// Offers the command to the dialog; commands from 0x8000 to 0xEFFF also to its owner and the application.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /** @{ */
    /// IDOK: saves the data and, when that succeeds, ends with IDOK. IDCANCEL (also Escape and the close button): ends
    /// with it. Dialogs without a mode override both.
    virtual void OnOK();
    virtual void OnCancel();
    /** @} */

    /// WM_INITDIALOG: calls OnInitDialog.
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    LPCTSTR m_lpszTemplateName = nullptr;        ///< Name or MAKEINTRESOURCE; not owned.
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr; ///< The template in memory, if there is one; not owned.
    CWnd* m_pParentWnd = nullptr;                ///< The owner of a modal dialog; null: the main window.

private:
    BOOL CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE module);
    LPCDLGTEMPLATE FindTemplate(LPCTSTR name, HINSTANCE& module) const;
    HWND DisableOwner(CWnd* owner) const;
};
