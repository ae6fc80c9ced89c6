// CFileDialog.cpp - the file dialogs of the system.
#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CFileDialog, CDialog)

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd)
    : m_bOpenFileDialog(bOpenFileDialog), m_fileName(32768), m_defaultExtension(lpszDefExt) {
    m_pParentWnd = pParentWnd;
    if (lpszFileName != nullptr)
        ::lstrcpyn(m_fileName.data(), lpszFileName, static_cast<int>(m_fileName.size()));
    if (lpszFilter != nullptr) {
        // The system wants terminators where the filter has bars.
        for (LPCTSTR c = lpszFilter; *c != _T('\0'); ++c)
            m_filter.push_back(*c == _T('|') ? _T('\0') : *c);
        m_filter.insert(m_filter.end(), 2, _T('\0'));
        m_ofn.lpstrFilter = m_filter.data();
        m_ofn.nFilterIndex = 1;
    }
    m_ofn.lStructSize = sizeof(m_ofn);
    m_ofn.Flags = dwFlags | OFN_EXPLORER;
    m_ofn.lpstrFile = m_fileName.data();
    m_ofn.nMaxFile = static_cast<DWORD>(m_fileName.size());
    m_ofn.lpstrDefExt = lpszDefExt != nullptr ? m_defaultExtension.GetString() : nullptr;
    m_ofn.hInstance = AfxGetInstanceHandle();
}

INT_PTR CFileDialog::DoModal() {
    CWnd* const owner = m_pParentWnd != nullptr ? m_pParentWnd : AfxGetMainWnd();
    m_ofn.hwndOwner = owner->GetSafeHwnd();
    const BOOL chosen = m_bOpenFileDialog ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    return chosen ? IDOK : IDCANCEL;
}

CString CFileDialog::GetPathName() const { return m_ofn.lpstrFile; }

CString CFileDialog::GetFileName() const {
    const CString path = GetPathName();
    return path.Mid(path.ReverseFind(_T('\\')) + 1);
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(_T('.'));
    return dot > 0 ? name.Left(dot) : name;
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(_T('.'));
    return dot > 0 ? name.Mid(dot + 1) : CString();
}

CString CFileDialog::GetFolderPath() const {
    const CString path = GetPathName();
    const int slash = path.ReverseFind(_T('\\'));
    return slash > 0 ? path.Left(slash) : CString();
}
