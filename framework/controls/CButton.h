// CButton: push buttons, check boxes, radio buttons and group boxes.
#pragma once

#include "../windows/CWnd.h"

/// A push button, check box, radio button or group box of the system, as its BS_ style says.
class KY_FRAMEWORK_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, nCheck); }
    /// Check state, BST_PUSHED and BST_FOCUS together.
    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, bHighlight); }
    UINT GetButtonStyle() const { return static_cast<UINT>(GetStyle()) & 0xFF; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
    HICON SetIcon(HICON hIcon) { return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, LPARAM(hIcon))); }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(BM_GETIMAGE, IMAGE_ICON)); }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(SendMessage(BM_SETIMAGE, IMAGE_BITMAP, LPARAM(hBitmap)));
    }

    /// Draws a button of the style BS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
