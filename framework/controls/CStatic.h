// CStatic: a text, picture or frame that takes no input.
#pragma once

#include "../windows/CWnd.h"

/// A static text, picture or frame of the system. It does not own the pictures that it shows.
class KY_FRAMEWORK_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xFFFF);

    /// Both return what showed before; the control owns neither.
    HICON SetIcon(HICON hIcon) { return reinterpret_cast<HICON>(SendMessage(STM_SETICON, WPARAM(hIcon))); }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(STM_GETICON)); }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, LPARAM(hBitmap)));
    }
    HBITMAP GetBitmap() const { return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP)); }

    /// Draws a control of the style SS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
