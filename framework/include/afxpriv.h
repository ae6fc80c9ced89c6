// afxpriv.h - the messages that the framework's own windows send each other.
#pragma once

#include "afxwin.h"

#define WM_QUERYAFXWNDPROC 0x0360  // answers 1 when the window belongs to a CWnd
#define WM_SIZEPARENT 0x0361       // lParam: AFX_SIZEPARENTPARAMS*; control bars place themselves
#define WM_SETMESSAGESTRING 0x0362 // wParam: string id, or lParam: text, for the message bar
#define WM_IDLEUPDATECMDUI 0x0363  // wParam: disable items without a handler
#define WM_INITIALUPDATE 0x0364    // views show their document for the first time
#define WM_COMMANDHELP 0x0365
#define WM_RECALCPARENT 0x0368     // the parent shall lay out anew
#define WM_KICKIDLE 0x036A         // idle processing of a modal loop
#define WM_POPMESSAGESTRING 0x0375 // the message bar shows the idle message again
