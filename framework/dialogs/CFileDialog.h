/// @file
/// CFileDialog: the system's dialogs for choosing a file to open or to save.
#pragma once

#include "CDialog.h"

#include <commdlg.h>
#include <vector>

/// The system's dialog for choosing a file to open or to save. `<afxdlgs.h>`.
///
/// The filter lists pairs of description and pattern, separated by '|' and ended by "||": "Tables (*.csv)|*.csv|All
/// files|*.*||".
/// @ingroup framework_dialogs
class KY_FRAMEWORK_API CFileDialog : public CDialog {
    DECLARE_DYNAMIC(CFileDialog)
public:
    /// To open when `bOpenFileDialog`, else to save. The default extension, without a dot, is added to names without
    /// one; the file name is shown at first; flags are OFN_ values. Texts are copied; each may be null. Null parent:
    /// the main window.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr);

    OPENFILENAME& GetOFN() { return m_ofn; } ///< As m_ofn.
    OPENFILENAME m_ofn{};                    ///< May be changed before DoModal.

    /// Shows the dialog; IDOK when a file was chosen, else IDCANCEL.
    INT_PTR DoModal() override;

    // What was chosen.
    /** @{ */
    /// What was chosen: the whole path, the name with extension, without it, the extension without its dot, the folder
    /// without the last backslash. With OFN_ALLOWMULTISELECT read m_ofn instead.
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileTitle() const;
    CString GetFileExt() const;
    CString GetFolderPath() const;
    /** @} */
    /// The box "read only" was checked, which shows without OFN_HIDEREADONLY.
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }

protected:
    BOOL m_bOpenFileDialog; ///< FALSE: to save.

private:
    std::vector<TCHAR> m_fileName; // what m_ofn.lpstrFile points to
    std::vector<TCHAR> m_filter;
    CString m_defaultExtension;
};
