/// @file
/// Windows, menus, controls, frames, dialogs, the application object; and everything of afx.h.
#pragma once

#include "afx.h"
#include "afxres.h"

#include <commctrl.h>
#include <shellapi.h>

#include "../gdi/Gdi.h"

#include "../windows/CMenu.h"
#include "../windows/CWinApp.h"
#include "../windows/CWnd.h"

#include "../controls/Controls.h"
#include "../dialogs/CDataExchange.h"
#include "../dialogs/CDialog.h"
#include "../docview/CFrameWnd.h"
#include "../docview/CMDIFrameWnd.h"
#include "../docview/CView.h"
