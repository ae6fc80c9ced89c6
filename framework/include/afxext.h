/// @file
/// Control bars.
#pragma once

#include "afxwin.h"

#include "../docview/CControlBar.h"
#include "../docview/CStatusBar.h"
