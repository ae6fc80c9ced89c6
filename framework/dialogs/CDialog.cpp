// CDialog.cpp - dialogs from templates.
#include <afxpriv.h>

#include "../windows/WindowState.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd) {}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd) {}

namespace {

// All messages are handled before the dialog manager's procedure asks this.
INT_PTR CALLBACK DialogProcedure(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

} // namespace

LPCDLGTEMPLATE CDialog::FindTemplate(LPCTSTR name, HINSTANCE& module) const {
    module = AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC resource = ::FindResource(module, name, RT_DIALOG);
    if (resource == nullptr)
        return nullptr;
    return static_cast<LPCDLGTEMPLATE>(::LockResource(::LoadResource(module, resource)));
}

BOOL CDialog::CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE module) {
    if (dialogTemplate == nullptr)
        return FALSE;
    AfxHookWindowCreate(this);
    const HWND created =
        ::CreateDialogIndirectParam(module, dialogTemplate, parent->GetSafeHwnd(), &DialogProcedure, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return created != nullptr;
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    m_lpszTemplateName = lpszTemplateName;
    if (pParentWnd == nullptr)
        pParentWnd = AfxGetMainWnd();
    HINSTANCE module = nullptr;
    const LPCDLGTEMPLATE dialogTemplate = FindTemplate(lpszTemplateName, module);
    return CreateFromTemplate(dialogTemplate, pParentWnd, module);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) { return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd); }

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd) {
    return CreateFromTemplate(lpDialogTemplate, pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd(),
                              AfxGetInstanceHandle());
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd) {
    m_lpDialogTemplate = lpDialogTemplate;
    if (m_pParentWnd == nullptr)
        m_pParentWnd = pParentWnd;
    return TRUE;
}

// Modal ---------------------------------------------------------------------------------------------------------------

HWND CDialog::DisableOwner(CWnd* owner) const {
    const HWND window = owner->GetSafeHwnd();
    if (window == nullptr || !::IsWindowEnabled(window))
        return nullptr;
    ::EnableWindow(window, FALSE);
    return window;
}

INT_PTR CDialog::DoModal() {
    LPCDLGTEMPLATE dialogTemplate = m_lpDialogTemplate;
    HINSTANCE module = AfxGetInstanceHandle();
    if (dialogTemplate == nullptr)
        dialogTemplate = FindTemplate(m_lpszTemplateName, module);
    if (dialogTemplate == nullptr)
        return -1;

    CWnd* owner = m_pParentWnd != nullptr ? m_pParentWnd : AfxGetMainWnd();
    if (owner != nullptr)
        owner = owner->GetTopLevelParent();
    const HWND disabled = DisableOwner(owner);
    m_modalRunning = TRUE; // so that OnInitDialog can end it already
    m_modalResult = -1;
    if (CreateFromTemplate(dialogTemplate, owner, module) && m_modalRunning)
        RunModalLoop(MLF_SHOWONIDLE);
    m_modalRunning = FALSE;

    if (m_hWnd != nullptr)
        SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    // The owner must be enabled before the dialog goes, or another program would be activated.
    if (disabled != nullptr) {
        ::EnableWindow(disabled, TRUE);
        if (m_hWnd != nullptr && ::GetActiveWindow() == m_hWnd)
            ::SetActiveWindow(disabled);
    }
    DestroyWindow();
    return m_modalResult;
}

void CDialog::EndDialog(int nResult) {
    EndModalLoop(nResult);
    ::EndDialog(m_hWnd, nResult);
}

// Messages ------------------------------------------------------------------------------------------------------------

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) { return OnInitDialog(); }

BOOL CDialog::OnInitDialog() {
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool isInput = (pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST) ||
                         (pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST);
    return isInput && ::IsDialogMessage(m_hWnd, pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    // Controls' notifications end here; the program's own commands go on to the owner and the application.
    constexpr UINT firstCommand = 0x8000;
    constexpr UINT firstSystemCommand = 0xF000;
    const bool isCommand = nCode == CN_COMMAND || nCode == CN_UPDATE_COMMAND_UI;
    if (!isCommand || nID < firstCommand || nID >= firstSystemCommand)
        return FALSE;
    CWnd* const owner = GetParent();
    if (owner != nullptr && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
