/// @file
/// CButton: push buttons, check boxes, radio buttons and group boxes.
#pragma once

#include "../windows/CWnd.h"

/// A push button, check box, radio button or group box of the system, as its BS_ style says. Its parent hears of clicks
/// through ON_BN_CLICKED.
/// @ingroup framework_controls
class KY_FRAMEWORK_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    using CWnd::Create;
    /// A button with a caption, at `rect` in client coordinates of `pParentWnd`, which must not be null. Add WS_VISIBLE
    /// and, for controls that take the focus, WS_TABSTOP. FALSE on failure.
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /** @{ */
    /// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE. Setting it tells the parent nothing.
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, nCheck); }
    /** @} */
    /// Check state, BST_PUSHED and BST_FOCUS together.
    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    /// Lets the button look pressed, or not.
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, bHighlight); }
    UINT GetButtonStyle() const { return static_cast<UINT>(GetStyle()) & 0xFF; } ///< The BS_ style.
    /// Changes the BS_ style, for example to BS_DEFPUSHBUTTON; buttons do not turn into check boxes and the like.
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
    /** @{ */
    /// The picture of a button with BS_ICON or BS_BITMAP, not owned by the button. Setting gives the former one.
    HICON SetIcon(HICON hIcon) { return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, LPARAM(hIcon))); }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(BM_GETIMAGE, IMAGE_ICON)); }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(SendMessage(BM_SETIMAGE, IMAGE_BITMAP, LPARAM(hBitmap)));
    }
    /** @} */

    /// Draws a button of the style BS_OWNERDRAW, in the context and rectangle of the structure. Such buttons override
    /// it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    /// Calls DrawItem when the parent is asked to draw the button.
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
