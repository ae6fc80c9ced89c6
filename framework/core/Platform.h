// Platform.h - the Windows headers and the few calling-convention words that every framework header builds on.
#pragma once

#include <windows.h>
#include <windowsx.h>

#include <tchar.h>

// windowsx.h offers message-cracker macros under names that window classes need for operations of their own.
#undef SubclassWindow
#undef SubclassDialog
#undef GetNextSibling
#undef GetPrevSibling
#undef GetFirstChild
#undef CopyRgn

#include "Export.h"

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define afx_msg // marks message handlers for the reader; the message map finds them by address
