// The sentences of exceptions that are about a file.
#pragma once

#include "CString.h"

namespace exceptiontext {

/// Writes `sentence`, whose "%s" stands for the file, cut to the room; FALSE when there is none.
inline BOOL Write(LPCWSTR sentence, const CString& fileName, LPTSTR error, UINT maxError) {
    if (!error || maxError == 0)
        return FALSE;
    CString text;
    text.Format(sentence, fileName.IsEmpty() ? CString(L"The file") : fileName);
    ::lstrcpynW(error, text, static_cast<int>(maxError));
    return TRUE;
}

} // namespace exceptiontext
