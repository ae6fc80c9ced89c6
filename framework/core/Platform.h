/// @file
/// The Windows headers and the few calling-convention words that every framework header builds on.
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

/// Calling convention of the framework's plain functions; on 64-bit Windows there is only one.
#define AFXAPI __stdcall
/// Calling convention of functions with a variable number of arguments.
#define AFX_CDECL __cdecl
/// Marks message handlers for the reader; the message map finds them by address.
#define afx_msg
