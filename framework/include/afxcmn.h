/// @file
/// The common controls.
#pragma once

#include "afxwin.h"

#include "../controls/CProgressCtrl.h"
#include "../controls/CToolTipCtrl.h"
