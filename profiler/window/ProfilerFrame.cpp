// The main window: commands, status bar, opening of files.
#include "window/ProfilerFrame.h"

#include "common/Translation.h"
#include "resource.h"
#include "themes/Themes.h"
#include "window/ColumnDetailsDialog.h"
#include "window/DpiScale.h"
#include "window/MainMenu.h"
#include "window/WideText.h"

#include <afxdlgs.h>

#include <algorithm>

namespace {

constexpr wchar_t kTitle[] = L"Column Profiler";
constexpr wchar_t kVersion[] = L"0.1.0";
constexpr wchar_t kWindowSection[] = L"Window";
constexpr wchar_t kRowHeightEntry[] = L"RowHeight";
constexpr int kRowHeights[] = {22, 34, 48}; // pixels at 96 DPI, as the menu has them
constexpr CSize kInitialSize(1200, 720);    // pixels at 96 DPI

/// Posted when the reading thread has come to its end.
constexpr UINT kFileRead = WM_APP + 1;
constexpr UINT_PTR kReadingTimer = 1;

/// The panes of the status bar from left to right.
enum Pane { StatusPane, SizePane, MessagesPane, PaneCount };

/// Where the first window opens: in the middle of the work area, and never larger than that.
CRect InitialPlace() {
    CRect area;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    const int dpi = DpiOf(nullptr); // that of the work area's monitor, the first one
    const CSize size(std::min(ScaledToDpi(kInitialSize.cx, dpi), area.Width()),
                     std::min(ScaledToDpi(kInitialSize.cy, dpi), area.Height()));
    return CRect(area.CenterPoint() - CSize(size.cx / 2, size.cy / 2), size);
}

CString RowsText(std::size_t rows) {
    return rows == 1 ? Translate("1 row") : TranslateFormat("Status bar", "%1% rows", CountText(rows).GetString());
}

CString ColumnsText(std::size_t columns) {
    return columns == 1 ? Translate("1 column") : TranslateFormat("Status bar", "%1% columns", columns);
}

CString MessagesText(std::size_t messages) {
    if (messages == 0)
        return Translate("No messages");
    return messages == 1 ? Translate("1 message (Ctrl+M)")
                         : TranslateFormat("Status bar", "%1% messages (Ctrl+M)", messages);
}

} // namespace

BEGIN_MESSAGE_MAP(ProfilerFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_SETFOCUS()
    ON_WM_TIMER()
    ON_MESSAGE(kFileRead, &ProfilerFrame::OnFileRead)
    ON_MESSAGE(WM_DPICHANGED, &ProfilerFrame::OnDpiChanged)
    ON_WM_DROPFILES()
    ON_COMMAND(ID_FILE_OPEN, &ProfilerFrame::OnFileOpen)
    ON_COMMAND(ID_FILE_RELOAD, &ProfilerFrame::OnFileReload)
    ON_COMMAND(ID_FILE_STOP, &ProfilerFrame::OnFileStop)
    ON_COMMAND(ID_FILE_EXPORT_HTML, &ProfilerFrame::OnFileExportHtml)
    ON_COMMAND(ID_FILE_VIEW_IN_BROWSER, &ProfilerFrame::OnFileViewInBrowser)
    ON_COMMAND(ID_EDIT_COPY_GRID, &ProfilerFrame::OnEditCopyGrid)
    ON_COMMAND(ID_VIEW_DETAILS, &ProfilerFrame::OnViewDetails)
    ON_NOTIFY(NM_DBLCLK, AFX_IDW_PANE_FIRST, &ProfilerFrame::OnGridDoubleClick)
    ON_COMMAND(ID_VIEW_MESSAGES, &ProfilerFrame::OnViewMessages)
    ON_COMMAND(ID_VIEW_FILTER, &ProfilerFrame::OnViewFilter)
    ON_COMMAND(ID_VIEW_GROUP_BY_TYPE, &ProfilerFrame::OnViewGroupByType)
    ON_COMMAND(ID_VIEW_GROUP_BOX, &ProfilerFrame::OnViewGroupBox)
    ON_COMMAND_RANGE(ID_VIEW_THEME_FIRST, ID_VIEW_THEME_LAST, &ProfilerFrame::OnViewTheme)
    ON_COMMAND_RANGE(ID_VIEW_ROW_HEIGHT_FIRST, ID_VIEW_ROW_HEIGHT_LAST, &ProfilerFrame::OnViewRowHeight)
    ON_COMMAND(ID_HELP_KEYS, &ProfilerFrame::OnHelpKeys)
    ON_COMMAND(ID_APP_ABOUT, &ProfilerFrame::OnAppAbout)
    ON_UPDATE_COMMAND_UI(ID_FILE_RELOAD, &ProfilerFrame::OnUpdateFileReload)
    ON_UPDATE_COMMAND_UI(ID_FILE_STOP, &ProfilerFrame::OnUpdateFileStop)
    ON_UPDATE_COMMAND_UI(ID_FILE_EXPORT_HTML, &ProfilerFrame::OnUpdateExport)
    ON_UPDATE_COMMAND_UI(ID_FILE_VIEW_IN_BROWSER, &ProfilerFrame::OnUpdateExport)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY_GRID, &ProfilerFrame::OnUpdateExport)
    ON_UPDATE_COMMAND_UI(ID_VIEW_DETAILS, &ProfilerFrame::OnUpdateViewDetails)
    ON_UPDATE_COMMAND_UI(ID_VIEW_MESSAGES, &ProfilerFrame::OnUpdateViewMessages)
    ON_UPDATE_COMMAND_UI(ID_VIEW_FILTER, &ProfilerFrame::OnUpdateViewFilter)
    ON_UPDATE_COMMAND_UI(ID_VIEW_GROUP_BY_TYPE, &ProfilerFrame::OnUpdateViewGroupByType)
    ON_UPDATE_COMMAND_UI(ID_VIEW_GROUP_BOX, &ProfilerFrame::OnUpdateViewGroupBox)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_THEME_FIRST, ID_VIEW_THEME_LAST, &ProfilerFrame::OnUpdateViewTheme)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_ROW_HEIGHT_FIRST, ID_VIEW_ROW_HEIGHT_LAST, &ProfilerFrame::OnUpdateViewRowHeight)
END_MESSAGE_MAP()

ProfilerFrame::ProfilerFrame() : m_theme(static_cast<int>(Themes::GetProfileTheme())) {}

BOOL ProfilerFrame::CreateFrame() {
    HICON icon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
    const CString windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), nullptr, icon);
    if (!Create(windowClass, kTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, InitialPlace()))
        return FALSE;
    LoadAccelTable(MAKEINTRESOURCE(IDR_MAINFRAME));
    RestorePlacement();
    return TRUE;
}

int ProfilerFrame::OnCreate(LPCREATESTRUCT create) {
    if (CFrameWnd::OnCreate(create) == -1)
        return -1;
    CMenu menu;
    MakeMainMenu(menu);
    SetMenu(&menu);
    menu.Detach(); // the window destroys it
    const int height = static_cast<int>(AfxGetApp()->GetProfileInt(kWindowSection, kRowHeightEntry, 0));
    if (std::ranges::count(kRowHeights, height) > 0)
        m_grid.SetRowHeight(height);
    if (!CreateStatusBar() || !m_grid.CreateGrid(this, AFX_IDW_PANE_FIRST) || !m_filter.Create(*this, m_grid) ||
        !m_messages.CreateFor(this))
        return -1;
    m_grid.RestoreLayout();
    m_grid.SetRowsListener([this](std::size_t shown) {
        m_filter.ShowCount(shown, static_cast<std::size_t>(m_grid.GetRecords()->GetCount()));
    });
    m_grid.SetStatusListener([this](const CString& text) {
        m_gridTold = ::GetTickCount64();
        ShowStatus(text);
    });
    DragAcceptFiles();
    ShowFilePanes();
    ShowStatus(Translate("Ready"));
    return 0;
}

bool ProfilerFrame::CreateStatusBar() {
    // No pane follows a command: their texts are set where they change.
    const UINT panes[PaneCount] = {};
    if (!m_statusBar.Create(this) || !m_statusBar.SetIndicators(panes, PaneCount))
        return false;
    SetPaneWidths(DpiOf(m_hWnd));
    return m_readingPanes.Create(*this, m_statusBar, SizePane, MessagesPane);
}

void ProfilerFrame::SetPaneWidths(int dpi) {
    constexpr int kPaneWidth = 170; // pixels at 96 DPI
    for (const int pane : {SizePane, MessagesPane})
        m_statusBar.SetPaneInfo(pane, ID_SEPARATOR, SBPS_NORMAL, ScaledToDpi(kPaneWidth, dpi));
}

LRESULT ProfilerFrame::OnDpiChanged(WPARAM resolution, LPARAM suggested) {
    if (!IsDpi(LOWORD(resolution)))
        return 0;
    SetPaneWidths(LOWORD(resolution));
    m_filter.UseDpi(LOWORD(resolution));
    return CFrameWnd::OnDpiChanged(resolution, suggested);
}

void ProfilerFrame::RestorePlacement() {
    LPBYTE data = nullptr;
    UINT size = 0;
    if (!AfxGetApp()->GetProfileBinary(kWindowSection, L"Placement", &data, &size))
        return;
    const std::unique_ptr<BYTE[]> owner(data);
    WINDOWPLACEMENT placement{};
    if (size != sizeof placement)
        return;
    std::copy_n(data, sizeof placement, reinterpret_cast<BYTE*>(&placement));
    if (placement.length != sizeof placement)
        return;
    // Where a monitor is gone since, the system moves the window into sight.
    AfxGetApp()->m_nCmdShow = placement.showCmd == SW_SHOWMAXIMIZED ? SW_SHOWMAXIMIZED : AfxGetApp()->m_nCmdShow;
    placement.showCmd = SW_HIDE;
    SetWindowPlacement(&placement);
}

void ProfilerFrame::SavePlacement() {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (GetWindowPlacement(&placement))
        AfxGetApp()->WriteProfileBinary(kWindowSection, L"Placement", reinterpret_cast<LPBYTE>(&placement),
                                        sizeof placement);
}

void ProfilerFrame::OnClose() {
    SavePlacement();
    CFrameWnd::OnClose();
}

void ProfilerFrame::OnSetFocus(CWnd*) { m_grid.SetFocus(); }

void ProfilerFrame::RecalcLayout(BOOL notify) {
    CFrameWnd::RecalcLayout(notify);
    m_readingPanes.Place();
}

// --- Opening files ---------------------------------------------------------------------------------------------------

void ProfilerFrame::OpenPath(const CString& path) { BeginReading(path, CString()); }

/// `opened` is told when the file is read; empty for the usual words.
void ProfilerFrame::BeginReading(const CString& path, const CString& opened) {
    constexpr UINT kInterval = 60; // ms between two looks at the progress
    LeaveReading();
    m_opened = opened;
    m_readingSince = ::GetTickCount64();
    m_reading = std::make_unique<FileReading>(path.GetString(), ToUtf8(Translate("Column %1%")),
                                              [window = m_hWnd] { ::PostMessage(window, kFileRead, 0, 0); });
    SetTimer(kReadingTimer, kInterval, nullptr);
}

void ProfilerFrame::OnTimer(UINT_PTR id) {
    if (id != kReadingTimer || m_reading == nullptr)
        return CFrameWnd::OnTimer(id);
    ShowProgress();
    FinishReading();
}

LRESULT ProfilerFrame::OnFileRead(WPARAM, LPARAM) {
    FinishReading();
    return 0;
}

void ProfilerFrame::ShowProgress() {
    constexpr ULONGLONG kQuiet = 300;    // ms; a file that is read sooner needs no progress
    constexpr ULONGLONG kLegible = 3000; // ms; so long stands what the grid told
    const ULONGLONG now = ::GetTickCount64();
    if (now - m_readingSince < kQuiet)
        return;
    const csv::ReadState state = m_reading->State();
    const CString name(m_reading->Path().filename().c_str());
    m_readingPanes.Show(state.fraction);
    if (m_file == nullptr)
        m_grid.SetEmptyText(TranslateFormat("Empty grid", "Reading %1% …", name.GetString()));
    if (::GetCapture() == nullptr && now - m_gridTold >= kLegible)
        ShowStatus(TranslateFormat("Status bar", "Reading %1%: %2% %%, %3%. Escape cancels.", name.GetString(),
                                   static_cast<int>(state.fraction * 100), RowsText(state.rows).GetString()));
}

/// Shows what was read, if it is read.
void ProfilerFrame::FinishReading() {
    // While a mark or a header is dragged, or a number is being typed, the grid keeps its rows; the timer asks again.
    if (m_reading == nullptr || !m_reading->IsDone() || ::GetCapture() != nullptr || m_grid.GetActiveItem() != nullptr)
        return;
    const std::unique_ptr<FileReading> reading = std::move(m_reading);
    LeaveReading();
    ColumnFileResult result = reading->TakeResult();
    if (result.file != nullptr) {
        TakeFile(std::move(result.file));
        return;
    }
    const CString error = Sentence(*result.error);
    ShowStatus(error);
    AfxMessageBox(error, MB_OK | MB_ICONWARNING);
}

/// Ends a reading, whether it is done or not.
void ProfilerFrame::LeaveReading() {
    KillTimer(kReadingTimer);
    m_reading.reset();
    m_readingPanes.Hide();
    m_grid.SetEmptyText(ProfileGrid::DefaultEmptyText());
}

void ProfilerFrame::OnFileStop() {
    if (m_reading == nullptr)
        return;
    LeaveReading();
    ShowStatus(Translate("Cancelled: the file was not opened."));
}

BOOL ProfilerFrame::PreTranslateMessage(MSG* message) {
    const bool escape = message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE;
    // During a drag Escape is the grid's.
    if (escape && m_reading != nullptr && ::GetCapture() == nullptr) {
        OnFileStop();
        return TRUE;
    }
    return CFrameWnd::PreTranslateMessage(message);
}

void ProfilerFrame::TakeFile(std::unique_ptr<ColumnFile> file) {
    m_grid.Show(file.get());
    m_file = std::move(file); // the grid no longer needs the former file
    const CString name(m_file->path.filename().c_str());
    SetWindowText(name + L" \u2013 " + kTitle);

    std::vector<CString> sentences;
    for (const csv::Message& warning : m_file->warnings)
        sentences.push_back(Sentence(warning));
    m_messages.SetMessages(name, sentences);
    ShowFilePanes();
    if (!m_opened.IsEmpty())
        ShowStatus(m_opened);
    else if (!sentences.empty())
        ShowStatus(sentences.front());
    else
        ShowStatus(TranslateFormat("Status bar", "%1% is open.", name.GetString()));
}

void ProfilerFrame::OnDropFiles(HDROP drop) {
    const UINT count = ::DragQueryFile(drop, 0xFFFFFFFF, nullptr, 0);
    CString path;
    if (count > 0) {
        const UINT length = ::DragQueryFile(drop, 0, nullptr, 0);
        ::DragQueryFile(drop, 0, path.GetBuffer(static_cast<int>(length) + 1), length + 1);
        path.ReleaseBuffer();
    }
    ::DragFinish(drop);
    SetForegroundWindow();
    if (path.IsEmpty())
        return;
    CString opened;
    if (count > 1)
        opened = Translate("Only the first of the dropped files was opened: the program shows one at a time.");
    BeginReading(path, opened);
}

void ProfilerFrame::OnFileOpen() {
    const CString filter =
        Translate("CSV files") + L" (*.csv;*.tsv;*.txt)|*.csv;*.tsv;*.txt|" + Translate("All files") + L" (*.*)|*.*||";
    CFileDialog dialog(TRUE, L"csv", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, filter, this);
    if (dialog.DoModal() == IDOK)
        OpenPath(dialog.GetPathName());
}

void ProfilerFrame::OnFileReload() {
    if (m_file != nullptr)
        OpenPath(CString(m_file->path.c_str()));
}

// --- Status bar ------------------------------------------------------------------------------------------------------

void ProfilerFrame::ShowFilePanes() {
    CString size;
    CString messages;
    if (m_file != nullptr) {
        size = RowsText(m_file->table.rows) + L", " + ColumnsText(m_file->table.columns.size());
        messages = MessagesText(m_file->warnings.size());
    }
    m_statusBar.SetPaneText(SizePane, size);
    m_statusBar.SetPaneText(MessagesPane, messages);
}

void ProfilerFrame::ShowStatus(const CString& text) {
    m_status = text;
    m_statusBar.SetPaneText(StatusPane, text);
}

void ProfilerFrame::GetMessageString(UINT id, CString& message) const {
    message = id == AFX_IDS_IDLEMESSAGE ? m_status : CommandDescription(id);
}

// --- View and help ---------------------------------------------------------------------------------------------------

void ProfilerFrame::OnViewDetails() {
    const std::optional<std::size_t> column = m_grid.FocusedColumnOfFile();
    if (m_file != nullptr && column && *column < m_file->profiles.size())
        ColumnDetailsDialog(m_file->profiles[*column], this).DoModal();
}

/// Where a double click neither drags nor edits, it asks for the details.
void ProfilerFrame::OnGridDoubleClick(NMHDR* header, LRESULT*) {
    const auto* clicked = reinterpret_cast<const XTP_NM_REPORTRECORDITEM*>(header);
    const bool isPlot = dynamic_cast<const KyPlotRecordItem*>(clicked->pItem) != nullptr;
    const bool isEdited = clicked->pColumn != nullptr && clicked->pColumn->IsEditable() && clicked->pItem != nullptr &&
                          clicked->pItem->IsEditable();
    if (clicked->pRow != nullptr && !isPlot && !isEdited)
        OnViewDetails();
}

void ProfilerFrame::OnViewMessages() {
    if (m_messages.IsWindowVisible())
        m_messages.SendMessage(WM_CLOSE);
    else
        m_messages.Open();
}

void ProfilerFrame::OnViewFilter() {
    if (m_filter.IsVisible())
        m_filter.Close();
    else
        m_filter.Open();
}

void ProfilerFrame::OnViewGroupByType() {
    m_grid.GroupByType(!m_grid.IsGroupedByType());
    ShowStatus(m_grid.IsGroupedByType() ? Translate("The columns are grouped by their type.")
                                        : Translate("The columns are no longer grouped."));
}

void ProfilerFrame::OnViewGroupBox() { m_grid.ShowGroupBy(!m_grid.IsGroupByVisible()); }

void ProfilerFrame::OnViewTheme(UINT id) {
    m_theme = static_cast<int>(id - ID_VIEW_THEME_FIRST);
    m_grid.ApplyTheme(m_theme);
    ShowStatus(TranslateFormat("Status bar", "Theme: %1%", ThemeName(m_theme).GetString()));
}

void ProfilerFrame::OnViewRowHeight(UINT id) {
    const int height = kRowHeights[id - ID_VIEW_ROW_HEIGHT_FIRST];
    m_grid.SetRowHeight(height);
    AfxGetApp()->WriteProfileInt(kWindowSection, kRowHeightEntry, height);
    ShowStatus(TranslateFormat("Status bar", "Rows are %1% pixels high.", height));
}

void ProfilerFrame::OnHelpKeys() {
    const CString text = Translate("Drag an end of a bar or a red mark: set a limit\n"
                                   "Drag a gold mark or a slider: set the target\n"
                                   "Click a number under a slider: type an end of its scale\n"
                                   "F2 or double-click under Limit: type a share\n"
                                   "Esc: put the mark or the number back, or stop reading\n\n"
                                   "Click a header: sort\n"
                                   "Shift+click: sort by several columns\n"
                                   "Drag a header: move the column\n"
                                   "Drag a header's edge: change the width\n"
                                   "Double-click the edge: best width\n"
                                   "Right-click a header: choose columns\n\n"
                                   "Arrow keys: choose row and column\n"
                                   "Left, Right in the line of a group: close, open it\n"
                                   "F3: sort by the column, Shift+F3 also by it\n"
                                   "Ctrl+Shift+Left, Right: move the column\n"
                                   "Alt+Left, Right: change its width\n"
                                   "Alt+Plus: best width, Ctrl+Plus of all columns\n"
                                   "Alt+Down: choose columns\n"
                                   "Ctrl+F1: tip of the cell\n"
                                   "Alt+Enter, double click: details of the column\n"
                                   "Ctrl+F: filter by name, Ctrl+T: group by type\n\n"
                                   "Ctrl+O: open a file\n"
                                   "Ctrl+E: export as HTML, Ctrl+B: open in the browser\n"
                                   "Ctrl+Shift+C: copy the table, Ctrl+C: copy the row\n"
                                   "F5: read the file again\n"
                                   "Ctrl+M: messages about the file\n"
                                   "F1: this list");
    MessageBox(text, Translate("Keys and mouse"), MB_OK);
}

void ProfilerFrame::OnAppAbout() {
    const CString text = TranslateFormat(
        "About box", "Column Profiler %1%\n\nShows what is in the columns of a CSV file.\nBuilt with Ky Controls.",
        kVersion);
    MessageBox(text, Translate("About Column Profiler"), MB_OK);
}

void ProfilerFrame::OnUpdateFileReload(CCmdUI* item) { item->Enable(m_file != nullptr && !IsReading()); }

void ProfilerFrame::OnUpdateFileStop(CCmdUI* item) { item->Enable(IsReading()); }

void ProfilerFrame::OnUpdateViewDetails(CCmdUI* item) { item->Enable(m_grid.FocusedColumnOfFile().has_value()); }

void ProfilerFrame::OnUpdateViewMessages(CCmdUI* item) { item->SetCheck(m_messages.IsWindowVisible() ? 1 : 0); }

void ProfilerFrame::OnUpdateViewFilter(CCmdUI* item) { item->SetCheck(m_filter.IsVisible() ? 1 : 0); }

void ProfilerFrame::OnUpdateViewGroupByType(CCmdUI* item) { item->SetCheck(m_grid.IsGroupedByType() ? 1 : 0); }

void ProfilerFrame::OnUpdateViewGroupBox(CCmdUI* item) { item->SetCheck(m_grid.IsGroupByVisible() ? 1 : 0); }

void ProfilerFrame::OnUpdateViewRowHeight(CCmdUI* item) {
    item->SetRadio(kRowHeights[item->m_nID - ID_VIEW_ROW_HEIGHT_FIRST] == m_grid.RowHeight());
}

void ProfilerFrame::OnUpdateViewTheme(CCmdUI* item) {
    item->SetRadio(static_cast<int>(item->m_nID - ID_VIEW_THEME_FIRST) == m_theme);
}
