// What the status bar shows while a file is read.
#pragma once

#include <afxcmn.h>
#include <afxext.h>

/// A progress bar and a button that gives up, which cover two panes of a status bar: the panes tell of the file that is
/// open, and so of the former one while another is read.
class ReadingPanes {
public:
    /// Created hidden. `frame`, the parent of the status bar, gets the command ID_FILE_STOP from the button.
    bool Create(CFrameWnd& frame, CStatusBar& bar, int progressPane, int buttonPane);

    /// Shows both, the bar filled to `fraction` (0 to 1).
    void Show(double fraction);
    void Hide();

    /// Puts both where the panes are now; to be called after each layout of the frame.
    void Place();

private:
    void PlaceOver(CWnd& window, int pane) const;

    CStatusBar* m_bar = nullptr;
    int m_progressPane = 0;
    int m_buttonPane = 0;
    CProgressCtrl m_progress;
    CButton m_cancel;
};
