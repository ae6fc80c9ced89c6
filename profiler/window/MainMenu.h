// The menu bar of the frame, in the user's language.
#pragma once

#include <afxwin.h>

/// Fills `bar`, which must hold no menu yet.
void MakeMainMenu(CMenu& bar);

/// The sentence that the status bar shows while the command is chosen in the menu; empty when there is none.
CString CommandDescription(UINT command);

/// The name of a theme as users know it; `theme` counts from 0 as the library's themes do.
CString ThemeName(int theme);
