/// @file
/// The common dialogs.
#pragma once

#include "afxwin.h"

#include "../dialogs/CFileDialog.h"
