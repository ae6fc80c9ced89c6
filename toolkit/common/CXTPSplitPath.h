/// @file
/// The pieces of a path.
#pragma once

#include "Export.h"

#include <afxwin.h>

/// Splits a path once; the getters return the pieces.
/// @ingroup toolkit_common
class KY_TOOLKIT_API CXTPSplitPath {
public:
    /// Splits the text alone: the path need not exist. Both kinds of slashes separate folders.
    explicit CXTPSplitPath(LPCTSTR lpszPathName);

    CString GetDrive() const { return m_strDrive; }               ///< "C:", or empty
    CString GetDir() const { return m_strDir; }                   ///< with leading and trailing separator
    CString GetFileTitle() const { return m_strTitle; }           ///< without extension
    CString GetExt() const { return m_strExt; }                   ///< with the dot, or empty
    CString GetFileName() const { return m_strTitle + m_strExt; } ///< title and extension
    /// The path as it was given; nothing is made absolute.
    CString GetFullPath() const { return m_strDrive + m_strDir + m_strTitle + m_strExt; }

private:
    CString m_strDrive, m_strDir, m_strTitle, m_strExt;
};
