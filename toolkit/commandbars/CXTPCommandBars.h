/// @file
/// The command bars of a frame: menus, as far as controls show them.
#pragma once

#include "../common/Export.h"

#include <afxwin.h>

/// The command bars of a frame window.
/// @ingroup toolkit_commandbars
class KY_TOOLKIT_API CXTPCommandBars : public CCmdTarget {
public:
    /// @param pSite the frame; not owned, and outlives the command bars
    explicit CXTPCommandBars(CWnd* pSite) : m_pSite(pSite) {}
    /// The frame that the command bars belong to.
    CWnd* GetSite() const { return m_pSite; }

    /// Shows a popup menu and waits for the user. Without menu or window nothing is shown, and the result is 0.
    /// @param pMenu        not owned
    /// @param nFlags       TPM_… flags; with TPM_RETURNCMD the chosen command is returned, 0 for none; without it the
    ///                     owner gets WM_COMMAND, and the result says whether the menu was shown
    /// @param x,y          screen coordinates
    /// @param pWnd         the window for which the menu is shown
    /// @param lpRect       screen rectangle that the menu does not cover, or null
    /// @param pOwner       gets the menu's messages; null: `pWnd` does
    /// @param pCommandBars the command bars the menu belongs to, or null; the menu has the system's look in either case
    static int TrackPopupMenu(CMenu* pMenu, UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr,
                              CWnd* pOwner = nullptr, CXTPCommandBars* pCommandBars = nullptr);

private:
    CWnd* m_pSite;
};
