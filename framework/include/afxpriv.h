/// @file
/// The messages that the framework's own windows send each other.
#pragma once

#include "afxwin.h"

/// Answers 1 when the window belongs to a CWnd.
#define WM_QUERYAFXWNDPROC 0x0360
/// lParam: AFX_SIZEPARENTPARAMS*; control bars place themselves, see CWnd::RepositionBars.
#define WM_SIZEPARENT 0x0361
/// To a frame; wParam: string id, or lParam: text, for the message bar. The answer is the id shown before.
#define WM_SETMESSAGESTRING 0x0362
/// At idle time, to visible frames and all permanent objects below them; wParam: disable items without a handler.
#define WM_IDLEUPDATECMDUI 0x0363
/// Views show their document for the first time.
#define WM_INITIALUPDATE 0x0364
/// Kept free for asking a window for help; the framework does not send it.
#define WM_COMMANDHELP 0x0365
/// Kept free for asking a parent to lay out anew; the framework does not send it.
#define WM_RECALCPARENT 0x0368
/// Idle processing of a modal loop, to its window; lParam counts from 0. The answer says whether to go on.
#define WM_KICKIDLE 0x036A
/// To a frame: as WM_SETMESSAGESTRING, when the former message shall come back.
#define WM_POPMESSAGESTRING 0x0375
