// afxext.h - control bars.
#pragma once

#include "afxwin.h"

#include "../docview/CControlBar.h"
#include "../docview/CStatusBar.h"
