// CFileDialog: the system's dialogs for choosing a file to open or to save.
#pragma once

#include <commdlg.h>
#include <vector>

#include "CDialog.h"

/// The filter lists pairs of description and pattern, separated by '|' and ended by "||":
/// "Tables (*.csv)|*.csv|All files|*.*||".
class KY_FRAMEWORK_API CFileDialog : public CDialog {
    DECLARE_DYNAMIC(CFileDialog)
public:
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr);

    OPENFILENAME& GetOFN() { return m_ofn; }
    OPENFILENAME m_ofn{}; ///< May be changed before DoModal.

    /// IDOK or IDCANCEL.
    INT_PTR DoModal() override;

    // What was chosen.
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileTitle() const;
    CString GetFileExt() const;
    CString GetFolderPath() const;
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }

protected:
    BOOL m_bOpenFileDialog;

private:
    std::vector<TCHAR> m_fileName; // what m_ofn.lpstrFile points to
    std::vector<TCHAR> m_filter;
    CString m_defaultExtension;
};
