// The command bars of a frame: menus, as far as controls show them.
#include "CXTPCommandBars.h"

int CXTPCommandBars::TrackPopupMenu(CMenu* pMenu, UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect, CWnd* pOwner,
                                    CXTPCommandBars* /*pCommandBars*/) {
    const CWnd* const pMenuOwner = pOwner ? pOwner : pWnd;
    if (!pMenuOwner || !::IsWindow(pMenuOwner->m_hWnd) || !pMenu || !::IsMenu(pMenu->m_hMenu))
        return 0;
    const HWND hOwner = pMenuOwner->m_hWnd;
    // A click elsewhere closes a menu only while its owner is in the foreground.
    const HWND hTopLevel = ::GetAncestor(hOwner, GA_ROOT);
    if (::GetForegroundWindow() != hTopLevel)
        ::SetForegroundWindow(hTopLevel);
    TPMPARAMS exclusion = {sizeof(TPMPARAMS), {}};
    if (lpRect)
        exclusion.rcExclude = *lpRect;
    const int nResult = ::TrackPopupMenuEx(pMenu->m_hMenu, nFlags, x, y, hOwner, lpRect ? &exclusion : nullptr);
    // Wakes the owner's queue, without which the next menu may close as soon as it opens.
    ::PostMessage(hOwner, WM_NULL, 0, 0);
    return nResult;
}
