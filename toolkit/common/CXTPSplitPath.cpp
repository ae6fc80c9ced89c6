// The pieces of a path.
#include "CXTPSplitPath.h"

#include <algorithm>

CXTPSplitPath::CXTPSplitPath(LPCTSTR lpszPathName) {
    CString strRest(lpszPathName);
    if (strRest.GetLength() >= 2 && strRest[1] == _T(':')) {
        m_strDrive = strRest.Left(2);
        strRest = strRest.Mid(2);
    }
    const int nName = std::max(strRest.ReverseFind(_T('\\')), strRest.ReverseFind(_T('/'))) + 1;
    m_strDir = strRest.Left(nName);
    m_strTitle = strRest.Mid(nName);
    const int nExt = m_strTitle.ReverseFind(_T('.'));
    if (nExt >= 0) {
        m_strExt = m_strTitle.Mid(nExt);
        m_strTitle = m_strTitle.Left(nExt);
    }
}
