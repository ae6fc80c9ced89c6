// The editor for cells with the keys of a spreadsheet.
#include "KyInPlaceEdit.h"

#include "../common/WindowLife.h"

IMPLEMENT_DYNCREATE(KyInPlaceEdit, CXTPReportInplaceEdit)

BEGIN_MESSAGE_MAP(KyInPlaceEdit, CXTPReportInplaceEdit)
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

namespace {

/// With the focus the grid gets the text into the cell, which runs code of the host; then it gets the key.
void HandOver(CXTPReportControl& control, UINT message, UINT key) {
    const WindowLife life(control);
    control.SetFocus();
    if (!life.HasEnded())
        control.SendMessage(message, key, 1);
}

} // namespace

KyInPlaceEdit::KyInPlaceEdit() = default;

void KyInPlaceEdit::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    auto* const control = m_hWnd != nullptr ? DYNAMIC_DOWNCAST(CXTPReportControl, GetParent()) : nullptr;
    if (control == nullptr) {
        CEdit::OnKeyDown(key, repeat, flags);
        return;
    }
    switch (key) {
    case VK_TAB:
        HandOver(*control, WM_CHAR, VK_TAB);
        break;
    case VK_UP:
    case VK_DOWN:
        HandOver(*control, WM_KEYDOWN, key);
        break;
    case VK_RETURN:
        HandOver(*control, WM_KEYDOWN, VK_DOWN);
        break;
    case VK_ESCAPE:
        SetWindowText(GetStartText());
        SetSel(0, -1);
        break;
    default:
        CXTPReportInplaceEdit::OnKeyDown(key, repeat, flags);
        break;
    }
}
