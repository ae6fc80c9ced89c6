// CDialog: a window made from a dialog template, modal or not.
#pragma once

#include "../windows/CWnd.h"

/// A dialog made from a template resource: modal with DoModal, or modeless with Create.
class KY_FRAMEWORK_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    /// For dialogs without a mode, and those whose template is given later.
    CDialog() = default;
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);

    using CWnd::Create;
    /// Without a mode. The template is a resource of the program or of an added resource module.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);
    /// Gives a modal dialog its template in memory, which must live until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);

    /// Shows the dialog, disables its owner, and runs until EndDialog; returns what that was given, -1 when the dialog
    /// could not be created. Without a parent, the main window is the owner.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    void SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }
    DWORD GetDefID() const { return static_cast<DWORD>(SendMessage(DM_GETDEFID)); }
    void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* pWndCtrl) { SendMessage(WM_NEXTDLGCTL, WPARAM(pWndCtrl->GetSafeHwnd()), TRUE); }

    /// Brings the controls up to date through UpdateData(FALSE). TRUE: the focus goes to the first control; FALSE when
    /// the override set it itself.
    virtual BOOL OnInitDialog();

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /// IDOK: saves the data and, when that succeeds, ends with IDOK. IDCANCEL: ends with it.
    virtual void OnOK();
    virtual void OnCancel();

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    LPCTSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    CWnd* m_pParentWnd = nullptr;

private:
    BOOL CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE module);
    LPCDLGTEMPLATE FindTemplate(LPCTSTR name, HINSTANCE& module) const;
    HWND DisableOwner(CWnd* owner) const;
};
