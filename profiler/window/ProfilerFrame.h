// The main window.
#pragma once

#include "window/ColumnFile.h"
#include "window/MessagesWindow.h"
#include "window/ProfileGrid.h"

#include <afxext.h>

#include <memory>

/// A menu, the grid and a status bar. Holds one open file at a time; a file that cannot be opened leaves the former one
/// as it is. The object is deleted with its window.
class ProfilerFrame : public CFrameWnd {
public:
    ProfilerFrame();

    /// Creates the window, hidden, where the user left it last.
    BOOL CreateFrame();

    /// Opens a file; tells the user what is wrong with it.
    void OpenPath(const CString& path);

    void GetMessageString(UINT id, CString& message) const override;

protected:
    int OnCreate(LPCREATESTRUCT create);
    void OnClose();
    void OnSetFocus(CWnd* old);
    void OnDropFiles(HDROP drop);
    void OnFileOpen();
    void OnFileReload();
    void OnViewMessages();
    void OnViewTheme(UINT id);
    void OnHelpKeys();
    void OnAppAbout();
    void OnUpdateFileReload(CCmdUI* item);
    void OnUpdateViewMessages(CCmdUI* item);
    void OnUpdateViewTheme(CCmdUI* item);
    DECLARE_MESSAGE_MAP()

private:
    bool CreateStatusBar();
    void RestorePlacement();
    void SavePlacement();
    ColumnFileResult ReadWithProgress(const CString& path);
    void TakeFile(std::unique_ptr<ColumnFile> file);
    void ShowFilePanes();
    void ShowStatus(const CString& text);

    ProfileGrid m_grid;
    CStatusBar m_statusBar;
    MessagesWindow m_messages;
    std::unique_ptr<ColumnFile> m_file; ///< null when none is open
    CString m_status;                   ///< the status bar's first pane while no menu is open
    int m_theme;
    bool m_reading = false; ///< a file is being read, and the user may press Escape
};
