// The main window.
#pragma once

#include "window/FileReading.h"
#include "window/FilterBar.h"
#include "window/MessagesWindow.h"
#include "window/ProfileGrid.h"
#include "window/ReadingPanes.h"

#include <afxext.h>

#include <memory>

/// A menu, the grid with a bar that filters it, and a status bar. Holds one open file at a time. Files are read while
/// the window goes on working with the former one, which stays as it is when the new one cannot be opened or the user
/// gives up. The object is deleted with its window.
class ProfilerFrame : public CFrameWnd {
public:
    ProfilerFrame();

    /// Creates the window, hidden, where the user left it last.
    BOOL CreateFrame();

    /// Begins to read a file, instead of the one that is being read if there is one. It is shown when it is read; the
    /// user is told what is wrong with it.
    void OpenPath(const CString& path);
    bool IsReading() const { return m_reading != nullptr; }

    BOOL PreTranslateMessage(MSG* message) override;
    void RecalcLayout(BOOL notify = TRUE) override;
    void GetMessageString(UINT id, CString& message) const override;

protected:
    int OnCreate(LPCREATESTRUCT create);
    void OnClose();
    void OnSetFocus(CWnd* old);
    void OnTimer(UINT_PTR id);
    LRESULT OnFileRead(WPARAM wParam, LPARAM lParam);
    void OnDropFiles(HDROP drop);
    LRESULT OnDpiChanged(WPARAM resolution, LPARAM suggested);
    void OnFileOpen();
    void OnFileReload();
    void OnFileStop();
    void OnFileExportHtml();
    void OnFileViewInBrowser();
    void OnEditCopyGrid();
    void OnViewDetails();
    void OnGridDoubleClick(NMHDR* header, LRESULT* result);
    void OnViewMessages();
    void OnViewFilter();
    void OnViewGroupByType();
    void OnViewGroupBox();
    void OnViewTheme(UINT id);
    void OnViewRowHeight(UINT id);
    void OnHelpKeys();
    void OnAppAbout();
    void OnUpdateFileReload(CCmdUI* item);
    void OnUpdateFileStop(CCmdUI* item);
    void OnUpdateExport(CCmdUI* item);
    void OnUpdateViewDetails(CCmdUI* item);
    void OnUpdateViewMessages(CCmdUI* item);
    void OnUpdateViewFilter(CCmdUI* item);
    void OnUpdateViewGroupByType(CCmdUI* item);
    void OnUpdateViewGroupBox(CCmdUI* item);
    void OnUpdateViewTheme(CCmdUI* item);
    void OnUpdateViewRowHeight(CCmdUI* item);
    DECLARE_MESSAGE_MAP()

private:
    bool CreateStatusBar();
    void SetPaneWidths(int dpi);
    void RestorePlacement();
    void SavePlacement();
    void BeginReading(const CString& path, const CString& opened);
    void ShowProgress();
    void FinishReading();
    void LeaveReading();
    void TakeFile(std::unique_ptr<ColumnFile> file);
    void ShowFilePanes();
    void ShowStatus(const CString& text);

    ProfileGrid m_grid;
    CStatusBar m_statusBar;
    FilterBar m_filter;
    MessagesWindow m_messages;
    std::unique_ptr<ColumnFile> m_file; ///< null when none is open
    CString m_status;                   ///< the status bar's first pane while no menu is open
    int m_theme;

    ReadingPanes m_readingPanes;
    CString m_opened;                       ///< what to tell when the file is read, instead of "... is open"
    ULONGLONG m_readingSince = 0;           ///< GetTickCount64; so is the following
    ULONGLONG m_gridTold = 0;               ///< when the grid last told something
    std::unique_ptr<FileReading> m_reading; ///< null when no file is being read
};
