/// @file
/// CStatic: a text, picture or frame that takes no input.
#pragma once

#include "../windows/CWnd.h"

/// A static text, picture or frame of the system. It does not own the pictures that it shows. With SS_NOTIFY its parent
/// hears of clicks through ON_STN_CLICKED.
/// @ingroup framework_controls
class KY_FRAMEWORK_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    using CWnd::Create;
    /// A static control with SS_ styles, at `rect` in client coordinates of `pParentWnd`, which must not be null. Add
    /// WS_VISIBLE and, for controls that take the focus, WS_TABSTOP. FALSE on failure.
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xFFFF);

    /** @{ */
    /// The icon or bitmap that shows, with SS_ICON or SS_BITMAP. Setting returns what showed before; the control owns
    /// neither.
    HICON SetIcon(HICON hIcon) { return reinterpret_cast<HICON>(SendMessage(STM_SETICON, WPARAM(hIcon))); }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(STM_GETICON)); }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, LPARAM(hBitmap)));
    }
    HBITMAP GetBitmap() const { return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP)); }
    /** @} */

    /// Draws a control of the style SS_OWNERDRAW, in the context and rectangle of the structure. Such controls override
    /// it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    /// Calls DrawItem when the parent is asked to draw the control.
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
