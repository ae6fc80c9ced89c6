// What the status bar shows while a file is read.
#include "window/ReadingPanes.h"

#include "common/Translation.h"
#include "resource.h"
#include "window/DpiScale.h"

namespace {

constexpr UINT kProgressId = 1;
constexpr int kSteps = 1000; // of the progress bar

} // namespace

bool ReadingPanes::Create(CFrameWnd& frame, CStatusBar& bar, int progressPane, int buttonPane) {
    m_bar = &bar;
    m_progressPane = progressPane;
    m_buttonPane = buttonPane;
    const DWORD style = WS_CHILD | WS_CLIPSIBLINGS;
    if (!m_progress.Create(style | PBS_SMOOTH, CRect(0, 0, 0, 0), &frame, kProgressId) ||
        !m_cancel.Create(Translate("Cancel (Esc)"), style | BS_PUSHBUTTON, CRect(0, 0, 0, 0), &frame, ID_FILE_STOP))
        return false;
    m_progress.SetRange32(0, kSteps);
    m_cancel.SetFont(bar.GetFont());
    return true;
}

void ReadingPanes::Show(double fraction) {
    m_progress.SetPos(static_cast<int>(fraction * kSteps));
    if (m_progress.IsWindowVisible())
        return;
    Place();
    m_progress.ShowWindow(SW_SHOWNA);
    m_cancel.ShowWindow(SW_SHOWNA);
}

void ReadingPanes::Hide() {
    // A button that was clicked has the keyboard focus.
    if (CWnd::GetFocus() == &m_cancel)
        m_cancel.GetParent()->SetFocus();
    m_progress.ShowWindow(SW_HIDE);
    m_cancel.ShowWindow(SW_HIDE);
}

void ReadingPanes::Place() {
    if (m_bar == nullptr)
        return;
    PlaceOver(m_progress, m_progressPane);
    PlaceOver(m_cancel, m_buttonPane);
}

void ReadingPanes::PlaceOver(CWnd& window, int pane) const {
    CRect place;
    m_bar->GetItemRect(pane, &place);
    m_bar->MapWindowPoints(window.GetParent(), &place);
    const int dpi = DpiOf(m_bar->GetSafeHwnd());
    place.DeflateRect(ScaledToDpi(2, dpi), ScaledToDpi(1, dpi));
    window.SetWindowPos(&CWnd::wndTop, place.left, place.top, place.Width(), place.Height(), SWP_NOACTIVATE);
}
